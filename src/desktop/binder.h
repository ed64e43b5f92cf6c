// SPDX-License-Identifier: MIT
#pragma once

#include "platform/screens.h"

#include <QObject>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

class QWidget;

namespace twk {

class BrowserView;

/// Ties a loaded screen to the form that shows it: every control to the widget of its name, both ways, and
/// every event to the signal that raises it. Nothing in here knows what a screen does.
class ScreenBinding : public QObject {
  public:
    ScreenBinding(Screen& screen, QWidget& form);
    ~ScreenBinding() override;

    /// Lets go of the screen: its controls are watched no more, and no event reaches it.
    void detach();
    Screen* screen() const { return screen_; }

    /// Raises an event of the screen. Nothing happens when the screen has none of that name or is gone.
    void fire(const ScreenMap::Control& control, const char* event);
    /// Runs something that may end in a fault, as an event does.
    void run(const std::function<void()>& event);
    /// Raises an event that the user's hand has caused, behind all that is owed.
    void act(const ScreenMap::Control& control, const char* event);
    /// The same as soon as the widgets are done with what the hand is doing: when no mouse button is held any
    /// more, and before the next `act` at the latest. What is owed twice is raised once.
    void owe(const ScreenMap::Control& control, const char* event);
    /// Raises what is owed to all screens, in the order in which it happened. Gives whether something that
    /// the user has left has taken the focus back.
    static bool raise_owed();

    bool has_event(const ScreenMap::Control& control, const char* event) const;
    /// The control that a widget shows, null for none.
    const ScreenMap::Control* control_of(const QWidget& widget) const;

    /// Told by the links: an event that the widget raises.
    void offer(const ScreenMap::Control& control, const char* event);
    void add_browser(const WebBrowser& browser, BrowserView& view);
    BrowserView* browser(const WebBrowser& browser) const;

    /// Names of controls without a widget and of events without a signal.
    const std::vector<std::string>& unbound() const { return unbound_; }

    /// Called after each event that this program's windows have raised.
    static std::function<void()> after_event;

  private:
    void bind_controls(QWidget& form);
    void check_events();
    void raise_owed_when_idle();

    Screen* screen_;
    std::set<std::string> offered_;
    std::map<const WebBrowser*, BrowserView*> browsers_;
    std::vector<std::string> unbound_;
};

} // namespace twk
