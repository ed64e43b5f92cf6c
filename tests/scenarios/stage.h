// SPDX-License-Identifier: MIT
#pragma once

#include "platform/numbers.h"
#include "scenarios/scenario_text.h"
#include "shell/module1.h"
#include "shell/project_list.h"
#include "shell/side_tools.h"
#include "shell/wizard_state.h"
#include "store/store_setup.h"
#include "support/every_screen.h"
#include "support/hand.h"
#include "support/sample_project.h"
#include "support/site_links.h"

#include <filesystem>
#include <iostream>
#include <map>

#include <gtest/gtest.h>

namespace twk::test {

inline Text u(const std::string& text) {
    return from_utf8(text);
}

/// Leaves the process at once, before anybody can kill it.
inline void tell(const std::string& line) {
    std::cout << line << std::endl;
}

/// The open scenario: what its words do.
class Stage {
  public:
    Stage() = default;
    /// On an application folder that stands: whatever is asked is answered by Yes or OK, and told.
    explicit Stage(const char* folder) : app_(folder) {
        desk_.always(u"Are you sure", Answer::yes);
        desk_.always(u"", Answer::ok);
    }

    /// "put A = x & B = y then click C -> no: Sure?"
    void play(const std::string& line) {
        const auto [first, all] = cut(line, " ");
        if (first == "during" || first == "repeat")
            return words_.at(first)(cut(all, " ").first, cut(all, " ").second);
        for (const std::string& step : parts(line, " then ")) {
            const std::vector<std::string> told = parts(step, " -> ");
            const auto [word, rest] = cut(told.front(), " ");
            for (std::size_t i = 1; i < told.size(); ++i) answer(told[i]);
            for (const std::string& each : parts(rest, " & ")) say(word, each);
            EXPECT_TRUE(told.size() == 1 || desk_.all_said());
        }
    }

    void tell_messages() {
        for (const Message& each : std::exchange(desk_.messages, {})) tell(to_utf8(each.text));
    }

  private:
    using Is = const std::string&;

    /// What stands behind a word is a name, and mostly a value behind " = " or " => ".
    void say(const std::string& word, const std::string& rest) {
        const std::string told = rest + (rest.ends_with("=") || rest.ends_with("=>") ? " " : "");
        const auto [name, value] = cut(told, told.find(" => ") == std::string::npos ? " = " : " => ");
        if (!words_.contains(word)) throw std::runtime_error("unknown word " + word);
        words_.at(word)(unescaped(name), unescaped(value));
    }

    const std::map<std::string, std::function<void(Is, Is)>> words_{
        // What stands before.
        {"sql", [this](Is one, Is more) { app_.run(one + (more.empty() ? "" : " = " + more)); }},
        {"write", [this](Is file, Is bytes) { app_.write(u(file), bytes); }},
        {"open",
         [](Is key, Is name) {
             module1().pid_actual = static_cast<std::int16_t>(std::stoi(key));
             module1().proyecto_actual = u(name);
             twk::screen<Form2>().txt_name[0].text = u(name);
         }},
        {"site", [](Is address, Is) { module1().url_sitio = u(address); }},
        {"setting", [this](Is key, Is value) { desk_.settings[u(key)] = u(value); }},
        {"page", [this](Is at, Is html) { desk_.pages[u(at)] = u(html); }},
        {"fails", [this](Is at, Is fault) { desk_.faults[u(at)] = std::stoi(fault); }},
        {"busy", [this](Is rounds, Is) { desk_.busy_rounds = std::stoi(rounds); }},
        {"erase", [this](Is file, Is) { std::filesystem::remove(app_.folder() / file); }},
        {"sample",
         [this](Is, Is) {
             const SampleProject shed(app_);
             screen_ = Form6::name;
             desk_.always(u"Are you sure you want to proceed?", Answer::yes);
         }},
        {"tell", [](Is line, Is) { tell(line); }},
        {"show", [this](Is one, Is more) { tell(app_.rows_of(one + (more.empty() ? "" : " = " + more))); }},
        {"lock",
         [this](Is, Is) {
             sqlite3* const store =
                 open_store((app_.folder() / "hive.mdb").string(), SQLITE_OPEN_READWRITE, "lantern4821");
             tell(sqlite3_exec(store, "begin exclusive", nullptr, nullptr, nullptr) == 0 ? "locked" : "free");
         }},
        {"keep", [this](Is, Is) { kept_ = app_.all_rows(); }},
        // What a hand does.
        {"on", [this](Is name, Is) { screen_ = screen_by_name(name).name; }},
        {"put", [this](Is name, Is value) { put(control(name), u(value)); }},
        {"list", [this](Is name, Is value) { list(control(name), value); }},
        {"mark", [this](Is name, Is value) { choose(control(name), value); }},
        {"choose", [this](Is name, Is value) { choose(control(name), value), fire(name, "Click"); }},
        {"type", [this](Is name, Is value) { put(control(name), u(value)), fire(name, "Change"); }},
        {"enter", [this](Is name, Is value) { put(control(name), u(value)), fire(name, "Enter"); }},
        {"leave", [this](Is name, Is value) { put(control(name), u(value)), fire(name, "LostFocus"); }},
        {"click", [this](Is name, Is) { fire(name, "Click"); }},
        {"run", [this](Is, Is) { fire("Form6!Command1", "Click"); }},
        {"close", [](Is name, Is) { screens().close(screen_by_name(name)); }},
        {"fire", [this](Is name, Is event) { fire(name, event); }},
        {"undo", [this](Is, Is) { screens().dispatch(screen().undo_event); }},
        {"unload",
         [](Is name, Is) {
             if (Screen* const open = screens().find(name))
                 screens().dispatch([&] { screens().unload(*open); });
         }},
        {"again", [this](Is name, Is) { play("unload " + name + " then on " + name); }},
        {"project", [](Is name, Is) { open_listed_project(u(name)); }},
        {"go", [](Is number, Is) { go_to_step(std::stoi(number)); }},
        {"tool", [](Is name, Is) { open_tool(tool(name)); }},
        {"during", [this](Is moment, Is line) { at_moment(moment, line); }},
        {"repeat",
         [this](Is times, Is line) {
             for (int i = 1; i <= std::stoi(times); ++i)
                 play(to_utf8(Replace(u(line), u"{i}", u(std::to_string(i)))));
         }},
        {"says", [this](Is message, Is) { answer(message); }},
        {"gives", [this](Is dialog, Is value) { give(dialog, value); }},
        // What must be.
        {"is",
         [this](Is name, Is value) {
             EXPECT_EQ(shown(control(name), Target(name, "").property), value) << name;
         }},
        {"has", [this](Is name, Is part) { EXPECT_PRED2(holds, shown(control(name), ""), part) << name; }},
        {"title", [this](Is text, Is) { EXPECT_EQ(to_utf8(screen().caption()), text); }},
        {"rows", [this](Is sql, Is rows) { EXPECT_EQ(app_.rows_of(sql), rows) << sql; }},
        {"tree",
         [this](Is golden, Is below) { expect_same_tree(app_.path(u"Projects/shed" + u(below)), golden); }},
        {"links", [](Is, Is) { expect_links_lead_somewhere(); }},
        {"kept", [this](Is, Is) { EXPECT_EQ(app_.all_rows(), kept_); }},
        {"holds", [this](Is file, Is bytes) { EXPECT_EQ(app_.read(u(file)), bytes) << file; }},
        {"within", [this](Is file, Is part) { EXPECT_PRED2(holds, app_.read(u(file)), part) << file; }},
        {"there", [this](Is file, Is) { EXPECT_TRUE(app_.exists(u(file))) << file; }},
        {"gone", [this](Is file, Is) { EXPECT_FALSE(app_.exists(u(file))) << file; }},
        {"loaded", [](Is name, Is) { EXPECT_NE(screens().find(name), nullptr) << name; }},
        {"unloaded", [](Is name, Is) { EXPECT_EQ(screens().find(name), nullptr) << name; }},
        {"front", [](Is name, Is) { EXPECT_EQ(screens().open().back()->name, name); }},
        {"opened",
         [](Is key, Is name) {
             EXPECT_EQ(std::to_string(module1().pid_actual), key);
             EXPECT_EQ(to_utf8(module1().proyecto_actual), name);
         }},
        {"went", [this](Is addresses, Is) { all_of(desk_.navigated, addresses); }},
        {"started", [this](Is addresses, Is) { all_of(desk_.started, addresses); }},
        {"status", [this](Is text, Is) { EXPECT_EQ(to_utf8(desk_.said.back()), text); }},
        {"slept",
         [this](Is time, Is) { EXPECT_EQ(app_.clock->slept, std::chrono::seconds(std::stoi(time))); }},
        {"offered",
         [this](Is filter, Is) { EXPECT_EQ(to_utf8(desk_.file_questions.back().filter), filter); }},
        {"asked", [this](Is title, Is) { EXPECT_EQ(to_utf8(desk_.messages.back().title), title); }},
        {"warned", [this](Is lost, Is) { EXPECT_TRUE(desk_.warned_of(u(lost))) << lost; }},
        {"deleted", [this](Is what, Is) { EXPECT_EQ(to_utf8(screen().deletions->description()), what); }},
        {"step",
         [](Is number, Is state) {
             static const char* const states[] = {"not yet", "missing", "done"};
             const WizardStep step =
                 look_at_wizard().steps.at(static_cast<std::size_t>(std::stoi(number) - 1));
             const std::string detail = step.detail.empty() ? "" : ", " + to_utf8(step.detail);
             EXPECT_EQ(states[static_cast<int>(step.state)] + detail, state) << number;
         }},
        {"focus", [this](Is name, Is) { EXPECT_EQ(std::exchange(desk_.focused, ""), name); }},
        {"listed",
         [](Is lines, Is) {
             std::string all;
             for (const ProjectLine& each : project_lines())
                 all += (all.empty() ? "" : "|") +
                        to_utf8(each.name + u"," + to_text(each.keywords) + u"," + to_text(each.boxes) +
                                (each.last_run.empty() ? u"," : u",run"));
             EXPECT_EQ(all, lines);
         }},
        {"reachable", [](Is name, Is yes) { EXPECT_EQ(can_open(tool(name)) ? "yes" : "no", yes) << name; }}};

    static bool holds(Is text, Is part) { return text.find(part) != std::string::npos; }
    static const SideTool& tool(Is name) {
        for (const SideTool& each : side_tools())
            if (to_utf8(each.name) == name) return each;
        throw std::runtime_error("no tool " + name);
    }
    /// "no: Sure?", "Done" for ok, and the beginning of a message with "..." behind it.
    void answer(Is told) {
        static const std::map<std::string, Answer> answers = {
            {"cancel", Answer::cancel}, {"yes", Answer::yes}, {"no", Answer::no}};
        const auto found = answers.find(cut(told, ": ").first);
        const std::string words = unescaped(found == answers.end() ? told : cut(told, ": ").second);
        const Answer given = found == answers.end() ? Answer::ok : found->second;
        if (words.ends_with("..."))
            desk_.expect(u(words.substr(0, words.size() - 3)), given);
        else
            desk_.expect_exactly(u(words), given);
    }
    void give(Is dialog, Is value) {
        const auto put_behind = [&](auto& answers, auto answer) {
            answers.push_back(value == "cancel" ? std::nullopt : std::optional(answer));
        };
        if (dialog == "open") put_behind(desk_.open_files, u(value));
        if (dialog == "save") put_behind(desk_.save_files, u(value));
        if (dialog == "colour")
            put_behind(desk_.colors, static_cast<std::uint32_t>(std::atoi(value.c_str())));
        if (dialog == "font") put_behind(desk_.fonts, FontChoice{u(value), 10.5, true, true, true, true});
    }
    /// Plays the line within the next moment that lets events run, the next wait or fetch, once.
    void at_moment(Is moment, const std::string& line) {
        const auto once = [this, line](auto& hook) {
            return [this, line, &hook](auto&&...) { std::exchange(hook, nullptr), play(line); };
        };
        if (moment == "modal") desk_.on_modal = once(desk_.on_modal);
        if (moment == "pages")
            desk_.on_events = [this, once] {
                if (twk::screen<Form6>().run != nullptr && twk::screen<Form6>().run->fase == 2)
                    once(desk_.on_events)();
            };
        if (moment == "wait") desk_.on_wait = once(desk_.on_wait);
        if (moment == "fetch") desk_.on_fetch = once(desk_.on_fetch);
        if (moment == "events") desk_.on_events = once(desk_.on_events);
    }
    static void all_of(std::vector<Text>& seen, Is addresses) {
        std::string all;
        for (const Text& each : std::exchange(seen, {})) all += (all.empty() ? "" : "|") + to_utf8(each);
        EXPECT_EQ(all, addresses);
    }
    Screen& screen() { return screen_by_name(screen_); }
    const ScreenMap::Control& control(Is name) {
        const Target target(name, screen_);
        const auto* const found = screen_by_name(target.screen).map.find_control(target.name, target.index);
        if (found == nullptr) throw std::runtime_error(target.screen + " has no control " + name);
        return *found;
    }
    void fire(Is name, Is event) {
        const Target target(name, screen_);
        Screen& on = screen_by_name(target.screen);
        if (on.map.find_event(target.name, event, target.index) == nullptr)
            throw std::runtime_error(target.screen + " has no event " + target.name + "_" + event);
        screens().fire(on, target.name, event, target.index);
    }

    TempApp app_;
    TestDesktop& desk_ = app_.desktop;
    std::string screen_, kept_;
};

} // namespace twk::test
