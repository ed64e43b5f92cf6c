// SPDX-License-Identifier: MIT
// Runs the scenario files of this folder, each scenario as a test of its own. README.txt beside it tells the
// words.

#include "shell/module1.h"
#include "support/every_screen.h"
#include "support/hand.h"
#include "support/temp_app.h"

#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>

#include <gtest/gtest.h>

namespace twk::test {
namespace {

namespace fs = std::filesystem;

struct Line {
    int number = 0;
    std::string word, rest;
};

struct Scenario {
    std::string file, name;
    std::vector<Line> lines; ///< those of the file's opening first
};

/// "\r", "\n", "\t", "\s" for a blank at an end, "\\", and {APP} for the application folder.
std::string unescaped(std::string_view text) {
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text.substr(i, 5) == "{APP}") {
            plain += to_utf8(app_path());
            i += 4;
        } else if (text[i] == '\\' && i + 1 < text.size()) {
            constexpr std::string_view marks = "rnts\\", meant = "\r\n\t \\";
            const std::size_t at = marks.find(text[++i]);
            if (at == std::string_view::npos) throw std::runtime_error("unknown escape");
            plain += meant[at];
        } else {
            plain += text[i];
        }
    }
    return plain;
}

Text text_of(std::string_view text) {
    return from_utf8(unescaped(text));
}

std::pair<std::string, std::string> cut(const std::string& text, const std::string& at) {
    const std::size_t found = text.find(at);
    if (found == std::string::npos) return {text, ""};
    return {text.substr(0, found), text.substr(found + at.size())};
}

/// "Command2(110)" is element 110 of Command2; "Text1.enabled" a property of Text1.
struct Target {
    std::string name, property;
    int index = -1;

    explicit Target(const std::string& text) {
        std::tie(name, property) = cut(text, ".");
        if (name.ends_with(')')) {
            index = std::stoi(cut(name, "(").second);
            name = cut(name, "(").first;
        }
    }
};

template <class... S> Screen* load_by_name(const std::string& name) {
    Screen* loaded = nullptr;
    screens().dispatch(
        [&] { ((name == S::name ? static_cast<void>(loaded = &screens().record<S>()) : void()), ...); });
    return loaded;
}

Screen& screen_by_name(const std::string& name) {
    if (Screen* const loaded = screens().find(name)) return *loaded;
    Screen* const made =
        load_by_name<Form1, Form2, Form3, Form4, Form5, Form6, Form7, Form8, Form9, Form10, Form11, Form12,
                     Form16, Form17, Form19, Form20, Form21, Form23, frmTip, frmVersion, disclaimer>(name);
    if (made == nullptr) throw std::runtime_error("no screen " + name);
    return *made;
}

/// The open scenario: what its words do.
class Stage {
  public:
    void play(const Line& line) {
        static const std::map<std::string, void (Stage::*)(const std::string&)> words = {
            {"sql", &Stage::sql},           {"write", &Stage::write},   {"on", &Stage::on},
            {"put", &Stage::put_in},        {"type", &Stage::type},     {"choose", &Stage::choose_in},
            {"click", &Stage::click},       {"fire", &Stage::fire},     {"says", &Stage::says},
            {"gives", &Stage::gives},       {"is", &Stage::is},         {"rows", &Stage::rows},
            {"holds", &Stage::holds},       {"gone", &Stage::gone},     {"loaded", &Stage::loaded},
            {"unloaded", &Stage::unloaded}, {"unload", &Stage::unload}, {"title", &Stage::title},
            {"open", &Stage::open},         {"opened", &Stage::opened}, {"during", &Stage::during}};
        const auto found = words.find(line.word);
        if (found == words.end()) throw std::runtime_error("unknown word " + line.word);
        (this->*found->second)(line.rest);
    }

  private:
    // What stands before.
    void sql(const std::string& statement) { app_.run_unfenced(unescaped(statement)); }
    void write(const std::string& rest) {
        const auto [name, bytes] = cut(rest, " = ");
        const fs::path path = app_.folder() / unescaped(name);
        fs::create_directories(path.parent_path());
        app_.write(text_of(name), unescaped(bytes));
    }
    /// The project that the wizard has open: "open 1 tea".
    void open(const std::string& rest) {
        const auto [key, name] = cut(rest, " ");
        module1().pid_actual = static_cast<std::int16_t>(std::stoi(key));
        module1().proyecto_actual = text_of(name);
        twk::screen<Form2>().txt_name[0].text = text_of(name);
    }

    // What a hand does.
    void on(const std::string& name) { screen_ = screen_by_name(name).name; }
    void put_in(const std::string& rest) {
        const auto [target, value] = cut(rest, " = ");
        put(control(target), text_of(value));
    }
    void type(const std::string& rest) {
        put_in(rest);
        const Target target(cut(rest, " = ").first);
        screens().fire(screen(), target.name, "Change", target.index);
    }
    void choose_in(const std::string& rest) {
        const auto [target, what] = cut(rest, " = ");
        choose(control(target), unescaped(what));
        screens().fire(screen(), Target(target).name, "Click", Target(target).index);
    }
    void click(const std::string& name) { raise(Target(name), "Click"); }
    void fire(const std::string& rest) {
        const auto [name, event] = cut(rest, " ");
        raise(Target(name), event);
    }
    void unload(const std::string& name) {
        screens().dispatch([&] { screens().unload(screen_by_name(name)); });
    }
    /// "during click Command3": within the next event that lets others run, once.
    void during(const std::string& rest) {
        app_.desktop.on_events = [this, rest] {
            app_.desktop.on_events = nullptr;
            play({0, cut(rest, " ").first, cut(rest, " ").second});
        };
    }

    // What the user will answer: "says yes: Are you sure?", "gives save: {APP}/x.dat".
    void says(const std::string& rest) {
        static const std::map<std::string, Answer> answers = {
            {"ok", Answer::ok}, {"cancel", Answer::cancel}, {"yes", Answer::yes}, {"no", Answer::no}};
        const auto [answer, words] = cut(rest, ": ");
        app_.desktop.expect_exactly(text_of(words), answers.at(answer));
    }
    void gives(const std::string& rest) {
        const auto [dialog, value] = cut(rest, ": ");
        const bool cancelled = value == "cancel";
        const auto file = cancelled ? std::nullopt : std::optional<Text>(text_of(value));
        if (dialog == "open")
            app_.desktop.open_files.push_back(file);
        else if (dialog == "save")
            app_.desktop.save_files.push_back(file);
        else if (dialog == "colour")
            app_.desktop.colors.push_back(
                cancelled ? std::nullopt : std::optional(static_cast<std::uint32_t>(std::stoul(value))));
        else
            throw std::runtime_error("no dialog " + dialog);
    }

    // What must be.
    void is(const std::string& rest) {
        const auto [target, value] = cut(rest, " = ");
        EXPECT_EQ(shown(control(target), Target(target).property), unescaped(value)) << target;
    }
    void title(const std::string& value) { EXPECT_EQ(to_utf8(screen().caption()), unescaped(value)); }
    void rows(const std::string& rest) {
        const auto [statement, value] = cut(rest, " => ");
        EXPECT_EQ(app_.rows_of(unescaped(statement)), unescaped(value)) << statement;
    }
    void holds(const std::string& rest) {
        const auto [file, bytes] = cut(rest, " = ");
        EXPECT_TRUE(app_.exists(text_of(file))) << file;
        EXPECT_EQ(app_.read(text_of(file)), unescaped(bytes)) << file;
    }
    void gone(const std::string& file) { EXPECT_FALSE(app_.exists(text_of(file))) << file; }
    void loaded(const std::string& name) { EXPECT_NE(screens().find(name), nullptr) << name; }
    void unloaded(const std::string& name) { EXPECT_EQ(screens().find(name), nullptr) << name; }
    /// The project that is open, by key and name.
    void opened(const std::string& rest) {
        EXPECT_EQ(std::to_string(module1().pid_actual) + " " + to_utf8(module1().proyecto_actual), rest);
    }

    Screen& screen() { return screen_by_name(screen_); }
    const ScreenMap::Control& control(const std::string& name) {
        const Target target(name);
        const auto* const found = screen().map.find_control(target.name, target.index);
        if (found == nullptr) throw std::runtime_error(screen_ + " has no control " + name);
        return *found;
    }
    void raise(const Target& target, const char* event) { raise(target, std::string(event)); }
    void raise(const Target& target, const std::string& event) {
        if (screen().map.find_event(target.name, event, target.index) == nullptr)
            throw std::runtime_error(screen_ + " has no event " + target.name + "_" + event);
        screens().fire(screen(), target.name, event, target.index);
        EXPECT_TRUE(app_.desktop.all_said());
    }

    TempApp app_;
    std::string screen_;
};

/// A file is an opening, played before each of its scenarios, and scenarios that begin with "== name".
std::vector<Scenario> read(const fs::path& path) {
    std::ifstream in(path);
    std::vector<Line> opening;
    std::vector<Scenario> all;
    int number = 0;
    for (std::string text; std::getline(in, text);) {
        ++number;
        text.erase(0, text.find_first_not_of(' '));
        if (text.empty() || text.starts_with('#')) continue;
        const auto [word, rest] = cut(text, " ");
        if (word == "==")
            all.push_back({path.stem().string(), rest, opening});
        else
            (all.empty() ? opening : all.back().lines).push_back({number, word, rest});
    }
    return all;
}

class ScenarioTest : public testing::Test {
  public:
    explicit ScenarioTest(Scenario scenario) : scenario_(std::move(scenario)) {}
    void TestBody() override {
        Stage stage;
        for (const Line& line : scenario_.lines) {
            SCOPED_TRACE(scenario_.file + ".txt:" + std::to_string(line.number) + ": " + line.word + " " +
                         line.rest);
            try {
                stage.play(line);
            } catch (const std::exception& wrong) {
                FAIL() << wrong.what();
            }
        }
    }

  private:
    Scenario scenario_;
};

} // namespace
} // namespace twk::test

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    std::vector<twk::test::fs::path> files;
    for (const auto& each : twk::test::fs::directory_iterator(SCENARIO_DIR))
        if (each.path().extension() == ".txt" && each.path().filename() != "README.txt")
            files.push_back(each.path());
    std::sort(files.begin(), files.end());
    for (const auto& file : files)
        for (twk::test::Scenario& each : twk::test::read(file)) {
            std::string name = each.name;
            std::replace_if(
                name.begin(), name.end(), [](unsigned char c) { return std::isalnum(c) == 0; }, '_');
            testing::RegisterTest(each.file.c_str(), name.c_str(), nullptr, nullptr, file.c_str(), 1,
                                  [each]() -> testing::Test* { return new twk::test::ScenarioTest(each); });
        }
    return RUN_ALL_TESTS();
}
