// SPDX-License-Identifier: MIT
#include "desktop/binder.h"

#include "desktop/control_links.h"
#include "desktop/field_manners.h"
#include "desktop/file_drop.h"
#include "desktop/form_keys.h"
#include "desktop/form_manners.h"
#include "desktop/list_manners.h"
#include "desktop/page_tabs.h"
#include "desktop/widget_events.h"

#include <QGuiApplication>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QSlider>
#include <QTimer>
#include <QWidget>
#include <deque>
#include <string_view>
#include <type_traits>

namespace twk {

std::function<void()> ScreenBinding::after_event;

namespace {

/// Dialogs, timers and transfers have no place in a window.
template <class C>
constexpr bool is_windowless =
    std::is_same_v<C, Inet> || std::is_same_v<C, CommonDialog> || std::is_same_v<C, Timer>;

std::string event_key(const std::string& object, const std::string& event) {
    return object + "." + event;
}

/// Whether a list is one that the screen keeps for its own use, without a place in its window.
bool is_own_list(const Screen& screen, const ScreenMap::Control& control) {
    static const std::set<std::string> own_lists = {
        "Form1.Dir1",  "Form1.File1",          "Form6.File1",          "Form6.Dir1",
        "Form6.List1", "Form23.dir_escondido", "Form23.file_escondido"};
    return own_lists.contains(screen.name + "." + control.object_name());
}

struct Owed {
    QPointer<ScreenBinding> binding;
    const ScreenMap::Control* control;
    std::string_view event;
};

std::deque<Owed> owed;
bool raising = false;

void forget(const ScreenBinding& binding, const ScreenMap::Control& control, std::string_view event) {
    std::erase_if(owed, [&](const Owed& each) {
        return each.binding == &binding && each.control == &control && each.event == event;
    });
}

} // namespace

ScreenBinding::ScreenBinding(Screen& screen, QWidget& form) : screen_(&screen) {
    for (auto* button : form.findChildren<QPushButton*>()) button->setAutoDefault(false);
    for (auto* list : form.findChildren<QListWidget*>()) new ListManners(*this, form, *list);
    bind_controls(form);
    for (auto* button : form.findChildren<QPushButton*>()) browse_by(*button, *this, form);
    for (auto* tabs : form.findChildren<PageTabs*>())
        if (auto* slider = form.findChild<QSlider*>(tabs->property("follows").toString()))
            tabs->follow(*slider);
    new FileDrop(*this, form);
    new FormKeys(*this, form);
    new FormManners(*this, form);
    check_events();
}

ScreenBinding::~ScreenBinding() {
    detach();
}

void ScreenBinding::bind_controls(QWidget& form) {
    for (const ScreenMap::Control& each : screen_->map.all_controls()) {
        const bool bound = std::visit(
            [&]<class C>(C* control) {
                if constexpr (std::is_same_v<C, Timer>) {
                    auto* timer = new QTimer(this);
                    connect(timer, &QTimer::timeout, this, [this, &each] { fire(each, "Timer"); });
                    const auto apply = [timer, control](Prop) {
                        control->enabled() && control->interval() > 0 ? timer->start(control->interval())
                                                                      : timer->stop();
                    };
                    control->observer.watch(apply);
                    apply(Prop::enabled);
                    offer(each, "Timer");
                    return true;
                } else if constexpr (is_windowless<C>) {
                    return true;
                } else {
                    auto* const widget = form.findChild<QWidget*>(QString::fromStdString(each.object_name()));
                    if (widget == nullptr) return is_own_list(*screen_, each);
                    return link(ControlLink<C>{*this, each, *control, *widget});
                }
            },
            each.ref);
        if (!bound) unbound_.push_back(each.object_name());
    }
}

void ScreenBinding::check_events() {
    for (const ScreenMap::Event& each : screen_->map.all_events()) {
        if (each.control == "Form" && (each.name == "QueryUnload" || each.name == "Activate")) continue;
        const ScreenMap::Control* const control = screen_->map.find_control(each.control, each.index);
        if (control == nullptr || !offered_.contains(event_key(control->object_name(), each.name)))
            unbound_.push_back(event_key(each.control, each.name));
    }
}

void ScreenBinding::detach() {
    if (screen_ == nullptr) return;
    for (const ScreenMap::Control& each : screen_->map.all_controls())
        std::visit([](auto* control) { control->observer.watch({}); }, each.ref);
    screen_->observer.watch({});
    std::erase_if(owed, [this](const Owed& each) { return each.binding == this; });
    screen_ = nullptr;
    browsers_.clear();
}

void ScreenBinding::fire(const ScreenMap::Control& control, const char* event) {
    if (screen_ == nullptr) return;
    screens().fire(*screen_, control.name, event, control.index);
    if (after_event) after_event();
}

void ScreenBinding::run(const std::function<void()>& event) {
    if (screen_ == nullptr) return;
    screens().dispatch(event);
    if (after_event) after_event();
}

void ScreenBinding::act(const ScreenMap::Control& control, const char* event) {
    forget(*this, control, event);
    raise_owed();
    fire(control, event);
}

void ScreenBinding::owe(const ScreenMap::Control& control, const char* event) {
    if (!has_event(control, event)) return;
    forget(*this, control, event);
    owed.push_back({this, &control, event});
    QTimer::singleShot(0, this, &ScreenBinding::raise_owed_when_idle);
}

void ScreenBinding::raise_owed_when_idle() {
    constexpr int while_held = 10; // milliseconds
    if (owed.empty()) return;
    if (raising || QGuiApplication::mouseButtons() != Qt::NoButton)
        QTimer::singleShot(while_held, this, &ScreenBinding::raise_owed_when_idle);
    else
        raise_owed();
}

bool ScreenBinding::raise_owed() {
    if (raising) return false; // an event that is owed shows a message, and others go on meanwhile
    raising = true;
    bool taken_back = false;
    while (!owed.empty()) {
        const Owed next = owed.front();
        owed.pop_front();
        const int given = times_focus_given();
        if (next.binding != nullptr) next.binding->fire(*next.control, next.event.data());
        taken_back |= next.event == "LostFocus" && times_focus_given() != given;
    }
    raising = false;
    return taken_back;
}

bool ScreenBinding::has_event(const ScreenMap::Control& control, const char* event) const {
    return screen_ != nullptr && screen_->map.find_event(control.name, event, control.index) != nullptr;
}

const ScreenMap::Control* ScreenBinding::control_of(const QWidget& widget) const {
    if (screen_ == nullptr) return nullptr;
    const std::string name = widget.objectName().toStdString();
    for (const ScreenMap::Control& each : screen_->map.all_controls())
        if (each.object_name() == name) return &each;
    return nullptr;
}

void ScreenBinding::offer(const ScreenMap::Control& control, const char* event) {
    offered_.insert(event_key(control.object_name(), event));
}

void ScreenBinding::add_browser(const WebBrowser& browser, BrowserView& view) {
    browsers_[&browser] = &view;
}

BrowserView* ScreenBinding::browser(const WebBrowser& browser) const {
    const auto at = browsers_.find(&browser);
    return at == browsers_.end() ? nullptr : at->second;
}

} // namespace twk
