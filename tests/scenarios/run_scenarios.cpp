// SPDX-License-Identifier: MIT
// Runs the scenario files of this folder, each scenario as a test of its own. README.txt beside it tells the
// words.

#include "scenarios/stage.h"

#include <fstream>

namespace twk::test {
namespace {

struct Line {
    int number = 0;
    std::string text;
};

struct Scenario {
    std::string file, name;
    std::vector<Line> lines; ///< those of the file's opening first
};

/// A file is an opening, played before each of its scenarios, and scenarios that begin with "== name".
std::vector<Scenario> read(const std::filesystem::path& path) {
    std::ifstream in(path);
    std::vector<Line> opening;
    std::vector<Scenario> all;
    int number = 0;
    for (std::string text; std::getline(in, text);) {
        ++number;
        if (text.empty() || text.starts_with('#')) continue;
        if (text.starts_with("== "))
            all.push_back({path.stem().string(), text.substr(3), opening});
        else
            (all.empty() ? opening : all.back().lines).push_back({number, text});
    }
    return all;
}

class ScenarioTest : public testing::Test {
  public:
    explicit ScenarioTest(Scenario scenario) : scenario_(std::move(scenario)) {}
    void TestBody() override {
        Stage stage;
        for (const Line& line : scenario_.lines) {
            SCOPED_TRACE(scenario_.file + ".txt:" + std::to_string(line.number) + ": " + line.text);
            try {
                stage.play(line.text);
            } catch (const std::exception& wrong) {
                FAIL() << wrong.what();
            }
        }
    }

  private:
    Scenario scenario_;
};

/// Plays the lines of the input on an application folder, for the fault scripts.
int play(const char* folder) {
    Stage stage(folder);
    for (std::string line; std::getline(std::cin, line);) try {
            stage.play(line);
            stage.tell_messages();
        } catch (const std::exception& wrong) {
            tell(wrong.what());
            return 1;
        }
    return 0;
}

} // namespace
} // namespace twk::test

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (argc == 3 && std::string(argv[1]) == "--play") return twk::test::play(argv[2]);
    std::vector<std::filesystem::path> files;
    for (const auto& each : std::filesystem::directory_iterator(SCENARIO_DIR))
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
