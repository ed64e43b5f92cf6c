// SPDX-License-Identifier: MIT
#include "cli/wizard.h"

#include "engine/run.h"
#include "inputs/form3.h"
#include "inputs/form5.h"
#include "inputs/form7.h"
#include "platform/screens.h"
#include "settings/form6.h"
#include "shell/form1.h"
#include "shell/form2.h"
#include "shell/module1.h"

#include <algorithm>
#include <ostream>

namespace twk::cli {

namespace {

/// The system's time, without waiting: the pauses of the screens are for people who look at them.
class PromptClock : public SystemClock {
  public:
    void sleep(std::chrono::milliseconds) override {}
};

/// Index in the list of the entry that is meant; -1 when there is none.
int find_project(const std::vector<Text>& names, const Text& project) {
    auto at = std::find(names.begin(), names.end(), project);
    if (at == names.end())
        at = std::find_if(names.begin(), names.end(),
                          [&](const Text& each) { return same_text(each, project); });
    return at == names.end() ? -1 : static_cast<int>(at - names.begin());
}

Text absolute_text(const std::filesystem::path& folder) {
    return from_utf8(std::filesystem::absolute(folder).lexically_normal().string());
}

std::shared_ptr<Clock> prompt_clock(std::optional<LocalTime> now) {
    if (now) return std::make_shared<FixedClock>(*now);
    return std::make_shared<PromptClock>();
}

} // namespace

Session::Session(const Console& console, const std::filesystem::path& application_folder,
                 std::optional<std::uint64_t> seed, std::optional<LocalTime> now)
    : desktop(console), guard(desktop, absolute_text(application_folder), prompt_clock(now), seed) {}

Status Wizard::step(const std::function<bool()>& press, const std::function<bool()>& arrived,
                    std::string_view name) {
    desktop_.forget_messages();
    if (!press()) return Status::fault;
    if (arrived()) return Status::done;
    if (!desktop_.messages().empty()) return Status::refused;
    console_.err << name << " did not go on.\n"; // its own fault trap was silent
    return Status::fault;
}

Status Wizard::projects(std::vector<Text>& names) {
    desktop_.forget_messages();
    if (!screens().dispatch([] { screens().show<Form1>(); })) return Status::fault;
    names = screen<Form1>().combo1.entries();
    return Status::done;
}

Status Wizard::select_project(const Text& project) {
    std::vector<Text> names;
    if (const Status opened = projects(names); opened != Status::done) return opened;
    const int index = find_project(names, project);
    if (index < 0) console_.err << "There is no project named '" << to_utf8(project) << "'.\n";
    // With nothing selected the project manager itself refuses.
    screen<Form1>().combo1.select(index);
    if (index >= 0 && !screens().fire<Form1>("combo1", "Click")) return Status::fault;
    return step([] { return screens().fire<Form1>("Command3", "Click"); },
                [] { return module1().pid_actual != 0 && screens().is_loaded<Form2>(); }, "Project manager");
}

template <class From, class To> Status Wizard::next(const char* button, std::string_view name) {
    return step([button] { return screens().fire<From>(button, "Click"); },
                [] { return screens().is_loaded<To>(); }, name);
}

Status Wizard::walk_to_step5(const Text& project) {
    Status status = select_project(project);
    if (status == Status::done) status = next<Form2, Form3>("Command2", "Step 1");
    if (status == Status::done) status = next<Form3, Form5>("Command5", "Step 2");
    if (status == Status::done) status = next<Form5, Form7>("Command1", "Step 3");
    if (status == Status::done) status = next<Form7, Form6>("Command1", "Step 4");
    return status;
}

Status Wizard::generate() {
    return step([] { return screens().fire<Form6>("Command1", "Click"); },
                [] {
                    const Form6& step5 = screen<Form6>();
                    return step5.run != nullptr && step5.run->finished;
                },
                "The run");
}

} // namespace twk::cli
