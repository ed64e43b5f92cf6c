// SPDX-License-Identifier: MIT
#pragma once

#include "cli/commands.h"
#include "cli/console_desktop.h"
#include "platform/process.h"

#include <functional>

namespace twk::cli {

/// What a command runs in: a desktop on the console, the application folder, a clock that does not wait, and
/// stands at `now` when there is one, and a seed.
struct Session {
    Session(const Console& console, const std::filesystem::path& application_folder,
            std::optional<std::uint64_t> seed = {}, std::optional<LocalTime> now = {});

    ConsoleDesktop desktop;
    ProcessGuard guard;
};

/// Walks the screens of the wizard as a user does, each Next with its checks.
class Wizard {
  public:
    Wizard(const Console& console, ConsoleDesktop& desktop) : console_(console), desktop_(desktop) {}

    /// Opens the project manager and tells the projects of its list.
    Status projects(std::vector<Text>& names);
    /// From the project manager to Step 5. The name is taken as it is listed, else without regard to case.
    Status walk_to_step5(const Text& project);
    /// The run of Step 5. Refused when it ended by one of its own messages.
    Status generate();

  private:
    Status step(const std::function<bool()>& press, const std::function<bool()>& arrived,
                std::string_view name);
    /// Presses a screen's Next. Every Next unloads the following screen before it checks, so that its
    /// presence is its success.
    template <class From, class To> Status next(const char* button, std::string_view name);
    Status select_project(const Text& project);

    const Console console_;
    ConsoleDesktop& desktop_;
};

} // namespace twk::cli
