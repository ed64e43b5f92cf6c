// SPDX-License-Identifier: MIT
#include "shell/wizard_state.h"

#include "engine/form17.h"
#include "engine/run.h"
#include "inputs/form3.h"
#include "inputs/form5.h"
#include "inputs/form7.h"
#include "platform/desktop.h"
#include "platform/faults.h"
#include "platform/numbers.h"
#include "settings/form6.h"
#include "shell/form1.h"
#include "shell/form2.h"
#include "shell/module1.h"
#include "shell/project_list.h"
#include "store/statements.h"
#include "store/stores.h"

#include <algorithm>

namespace twk {

namespace {

struct StepName {
    const char* screen;
    TextView name;
};
constexpr std::array<StepName, wizard_steps> step_names = {{{Form2::name, u"Properties"},
                                                            {Form3::name, u"Keywords"},
                                                            {Form5::name, u"Content"},
                                                            {Form7::name, u"Hosts"},
                                                            {Form6::name, u"Generation"},
                                                            {Form17::name, u"File names"}}};

/// A loaded screen, which the look must not load.
template <class S> S* loaded() {
    return screens().is_loaded<S>() ? &screen<S>() : nullptr;
}

Text count_of(int count, TextView one, TextView many) {
    return to_text(count) + u" " + Text(count == 1 ? one : many);
}

/// What the store holds of the project, read when a step asks that is not loaded.
class StoredProject {
  public:
    explicit StoredProject(const Text& name) {
        if (name.empty()) return;
        try {
            store_ = open_hive();
            for (const auto row : store_.OpenRecordset(statements::project_names()))
                if (same_text(row.Fields(u"name").text(), name)) pid_ = row.Fields(u"pid").key();
        } catch (const RuntimeFault&) { // the screens tell of it
        }
    }
    bool known() const { return pid_ != 0; }
    // cppcheck-suppress passedByValue
    int count(StatementName column, StatementName table) {
        return static_cast<int>(column_of(column, table).size());
    }
    std::vector<Text> hosts(StatementName table) { return column_of(u"host", table); }

  private:
    std::vector<Text> column_of(StatementName column, StatementName table) {
        std::vector<Text> all;
        if (!known()) return all;
        try {
            for (const auto row :
                 store_.OpenRecordset({u"select {} from {} where pid = {}", column, table, pid_})) {
                const Field field = row.Fields(column.text());
                all.push_back(field.is_null() ? Text() : field.text());
            }
        } catch (const RuntimeFault&) { // likewise
        }
        return all;
    }

    Database store_;
    std::int64_t pid_ = 0; ///< 0 when the store does not have it
};

/// A step that wants at least so many of something.
void judge_count(WizardStep& step, int count, int least, TextView one, TextView many, TextView refusal) {
    const bool enough = count >= least;
    step.state = enough ? StepState::done : StepState::missing;
    step.detail =
        enough ? count_of(count, one, many) : to_text(count) + u" of " + to_text(least) + u" " + Text(many);
    if (!enough) step.reason = refusal;
}

void judge_step1(WizardStep& step, const StoredProject& stored) {
    Form2* const form = loaded<Form2>();
    if (form == nullptr) {
        step.state = stored.known() ? StepState::missing : StepState::not_yet;
        step.detail = stored.known() ? u"closed" : u"";
        if (stored.known()) step.reason = u"The later steps read the project's name here.";
        return;
    }
    step.reason = form->first_refusal().message;
    const int filled = form->filled_fields();
    if (filled < Form2::needed_fields) {
        step.state = StepState::missing;
        step.detail = to_text(filled) + u" of " + to_text(Form2::needed_fields) + u" fields";
    } else if (!step.reason.empty()) {
        step.state = StepState::missing;
        step.detail = u"to be corrected";
    } else {
        step.state = stored.known() ? StepState::done : StepState::not_yet;
        step.detail = stored.known() ? u"" : u"not saved yet";
    }
}

void judge_step4(WizardStep& step, StoredProject& stored) {
    Text main;
    std::vector<Text> others;
    if (const Form7* const form = loaded<Form7>()) {
        main = form->Text2.text();
        others = form->List1.entries();
    } else {
        for (const Text& each : stored.hosts(u"host1")) main = each;
        others = stored.hosts(u"host");
    }
    step.reason = Form7::directory_refusal(main, others);
    step.state = step.reason.empty() ? StepState::done : StepState::missing;
    step.detail = step.reason.empty()
                      ? count_of(static_cast<int>(others.size()) + 1, u"directory", u"directories")
                      : u"no main directory";
}

/// Steps 5 and 6 miss nothing of their own: they wait for the run.
void judge_run(WizardState& state) {
    const Form6* const form = loaded<Form6>();
    if (form != nullptr && form->run != nullptr && form->run->finished) {
        state.pages = form->run->page.pages_written;
        state.seconds = form->run->seconds;
        state.steps[4].state = StepState::done;
        state.steps[4].detail = count_of(static_cast<int>(state.pages), u"page", u"pages");
        if (form->Check9.value()) state.steps[5].state = StepState::done;
        return;
    }
    const bool ready = std::all_of(state.steps.begin(), state.steps.begin() + 4,
                                   [](const WizardStep& each) { return each.state == StepState::done; });
    if (ready) state.steps[4].detail = u"ready";
    // A run that was done before this screen was opened, or before the program was started.
    const bool broken_off = form != nullptr && form->run != nullptr;
    if (const Text last = last_run_of(state.project); ready && !broken_off && !last.empty()) {
        state.steps[4].state = StepState::done;
        state.steps[4].detail = u"run " + last;
    }
    if (form != nullptr && !form->Check9.value()) state.steps[5].detail = u"left out";
}

/// A step that waits for an earlier one misses nothing yet.
void hold_back(WizardState& state) {
    bool reached = true;
    for (WizardStep& each : state.steps) {
        if (!reached && !each.loaded && each.state != StepState::done) {
            each.state = StepState::not_yet;
            each.reason.clear();
        }
        reached = reached && each.state == StepState::done;
    }
}

Text project_in_sight() {
    if (const Form2* const form = loaded<Form2>()) return Trim(form->txt_name[0].text());
    return module1().proyecto_actual;
}

/// Puts the cursor where a step misses something.
void focus_what_is_missing(int number) {
    switch (number) {
    case 1:
        if (TextBox* const box = screen<Form2>().first_refusal().box) box->set_focus();
        break;
    case 2: screen<Form3>().Text1.set_focus(); break;
    case 3: screen<Form5>().rt1.set_focus(); break;
    case 4: screen<Form7>().Text2.set_focus(); break;
    default: break;
    }
}

} // namespace

int step_of(const std::string& screen) {
    for (int i = 0; i < wizard_steps; ++i)
        if (step_names[static_cast<std::size_t>(i)].screen == screen) return i + 1;
    return 0;
}

WizardState look_at_wizard() {
    WizardState state;
    for (std::size_t i = 0; i < step_names.size(); ++i) {
        state.steps[i].screen = step_names[i].screen;
        state.steps[i].name = step_names[i].name;
        state.steps[i].loaded = screens().find(state.steps[i].screen) != nullptr;
    }
    state.project = project_in_sight();
    const bool any = std::any_of(state.steps.begin(), state.steps.end(),
                                 [](const WizardStep& each) { return each.loaded; });
    if (!any && state.project.empty()) return state;
    StoredProject stored(state.project);
    judge_step1(state.steps[0], stored);
    const Form3* const step2 = loaded<Form3>();
    judge_count(state.steps[1], step2 ? step2->List1.list_count() : stored.count(u"keyid", u"keywords"),
                Form3::least_keywords, u"keyword", u"keywords", Form3::too_few_keywords);
    const Form5* const step3 = loaded<Form5>();
    judge_count(state.steps[2], step3 ? step3->List1.list_count() : stored.count(u"cid", u"content"),
                Form5::least_boxes, u"box", u"boxes", Form5::too_few_boxes);
    judge_step4(state.steps[3], stored);
    hold_back(state);
    judge_run(state);
    return state;
}

void go_to_step(int number) {
    const WizardState state = look_at_wizard();
    const auto at = [&](int n) -> const WizardStep& { return state.steps[static_cast<std::size_t>(n - 1)]; };
    int reached = number;
    while (reached > 0 && !at(reached).loaded) --reached;
    if (reached == 0) {
        screens().bring_forward<Form1>();
        say(u"Choose a project, or make a new one, to reach its steps.");
        return;
    }
    if (Screen* const found = screens().find(at(reached).screen)) screens().bring_forward(*found);
    if (at(reached).state == StepState::missing) {
        focus_what_is_missing(reached);
        if (!at(reached).reason.empty()) say(at(reached).reason);
    } else if (reached < number) {
        say(number == wizard_steps ? Text(u"Step 6 comes up while the pages are generated.")
                                   : u"Step " + to_text(number) + u" is reached by Next.");
    }
}

} // namespace twk
