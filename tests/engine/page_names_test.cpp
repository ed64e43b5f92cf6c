// SPDX-License-Identifier: MIT
#include "engine/page_names.h"
#include "inputs/form7.h"
#include "support/faults.h"
#include "support/lone_run.h"

#include <gtest/gtest.h>

namespace twk {
namespace {

class PageNames : public testing::Test, public test::LoneRun {
  protected:
    PageNames() {
        form.Combo6.text = u"_";
        form.Combo3.text = u"0";
        form.settings.palabras_extracto = 3;
        screen<Form7>().Text2.text = u"http://main";
        screen<Form7>().List1.clear();
    }

    void terms(std::vector<Text> all) {
        run.project.n_terminos = static_cast<std::int16_t>(all.size());
        run.project.terminos = std::move(all);
    }
    std::vector<std::string> built(const char16_t* pages, const char16_t* share = u"0") {
        form.Combo2.text = Text(pages);
        form.Combo3.text = Text(share);
        build_page_names(run.plan, run.project, form.choices);
        std::vector<std::string> names;
        for (const Text& name : run.plan.nombres) names.push_back(to_utf8(name));
        return names;
    }
    /// Names of the plan once `names` are spread over `secondary` hosts beside the main one.
    std::vector<std::string> spread(std::vector<Text> names, const char16_t* pages, int secondary) {
        form.Combo2.text = Text(pages);
        run.plan.n_nombres = static_cast<std::int16_t>(names.size());
        run.plan.nombres = std::move(names);
        ListBox& hosts = screen<Form7>().List1;
        for (int i = 1; i <= secondary; ++i) hosts.add_item(u"http://host" + from_utf8(std::to_string(i)));
        distribute_pages(run.plan, form.choices);
        std::vector<std::string> planned;
        for (const PlannedPage& page : run.plan.paginas)
            planned.push_back(to_utf8(page.name + (page.host.empty() ? u"" : u" @ ") + page.host));
        return planned;
    }
    int fault_of_building(const char16_t* pages, const char16_t* share) {
        return test::fault_of([&] { built(pages, share); });
    }
    static std::size_t redirecting(const std::vector<std::string>& names) {
        return static_cast<std::size_t>(std::count_if(
            names.begin(), names.end(), [](const auto& name) { return name.ends_with("_js"); }));
    }
};

TEST_F(PageNames, pair_every_term_with_every_term_and_take_every_second_from_the_far_end) {
    terms({u"Red Shed", u"rack "});
    // Of red-red, red-rack, rack-red, rack-rack the even count loses the second and the last.
    EXPECT_EQ(built(u"3"), (std::vector<std::string>{"red_shed_red_shed_a", "rack_red_shed_a",
                                                     "rack_red_shed_a", "red_shed_red_shed_a"}));
    // One more than there are pairs: they start over. An odd count loses none.
    EXPECT_EQ(built(u"4"), (std::vector<std::string>{"red_shed_red_shed_a", "rack_rack_b", "rack_red_shed_a",
                                                     "red_shed_rack_b", "red_shed_red_shed_a"}));
    EXPECT_EQ(run.plan.n_nombres, 5);
}

TEST_F(PageNames, letter_behind_z_sends_the_second_term_back) {
    std::vector<Text> many;
    for (int i = 0; i < 30; ++i) many.push_back(u"t" + from_utf8(std::to_string(i)));
    terms(many);
    const std::vector<std::string> names = built(u"54");
    ASSERT_EQ(names.size(), 55U);
    EXPECT_EQ(names[24], "t0_t24_y");
    EXPECT_EQ(names[26], "t0_t26_b");
    EXPECT_EQ(names[28], "t0_t3_d"); // the one before bears "t2", and so on for ever: "t0" stays in front
    EXPECT_EQ(names[52], "t0_t2_c");
}

TEST_F(PageNames, share_of_redirecting_pages) {
    terms({u"aaa", u"bbb", u"ccc "});
    EXPECT_EQ(redirecting(built(u"20", u"0")), 0U);
    EXPECT_EQ(redirecting(built(u"20", u"100")), 21U);
    EXPECT_EQ(redirecting(built(u"10", u"20")),
              2U); // of eleven: the fifth and the tenth
    EXPECT_EQ(fault_of_building(u"4", u"20"), fault_division);
}

TEST_F(PageNames, without_terms_a_fault_says_what_is_missing) {
    terms({});
    EXPECT_EQ(fault_of_building(u"0", u"0"), fault_project_lacks);
}

TEST_F(PageNames, doubles_are_numbered_against_the_start_of_the_plan) {
    EXPECT_EQ(spread({u"x", u"x", u"y_js", u"y_js", u"x"}, u"4", 0),
              (std::vector<std::string>{"x @ http://main", "x1 @ http://main", "y_js @ http://main",
                                        "y3_js @ http://main", "", ""}));
}

TEST_F(PageNames, hosts_share_the_pages_and_the_remainder_gets_none) {
    const std::vector<Text> names(6, u"x");
    // The first page of each host is compared with nothing, the second with the first of the plan.
    EXPECT_EQ(spread(names, u"5", 1),
              (std::vector<std::string>{"x @ http://main", "x1 @ http://main", "x @ http://host1",
                                        "x3 @ http://host1", "", "", ""}));
    run.plan.paginas.clear();
    spread(std::vector<Text>(21, u"z"), u"20", 1); // two hosts beside the main one by now
    EXPECT_EQ(run.plan.paginas_host, 6);
    EXPECT_EQ(run.plan.paginas[17].host, u"http://host1");
    EXPECT_TRUE(run.plan.paginas[18].name.empty());
}

} // namespace
} // namespace twk
