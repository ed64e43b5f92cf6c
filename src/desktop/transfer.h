// SPDX-License-Identifier: MIT
#pragma once

#include "platform/controls.h"

#include <QNetworkAccessManager>

namespace twk {

/// The transfer control: fetches pages over HTTP while other events run.
class Transfer {
  public:
    /// The page's text. Fault 35761 when the control's time is up; another one when the page cannot be had. A
    /// reply longer than a few megabytes is cut off.
    Text fetch(Inet& inet, const Text& address);

  private:
    QNetworkAccessManager manager_;
};

} // namespace twk
