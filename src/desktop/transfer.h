// SPDX-License-Identifier: MIT
#pragma once

#include "platform/controls.h"

#include <QNetworkAccessManager>
#include <vector>

class QNetworkReply;

namespace twk {

/// The transfer control: fetches pages over HTTP while other events run.
class Transfer {
  public:
    /// The page's text. Fault 35761 when the control's time is up; another one when the page cannot be had or
    /// has been cancelled. A reply longer than a few megabytes is cut off.
    Text fetch(Inet& inet, const Text& address);
    /// Breaks off all that is fetched for the control.
    void cancel(const Inet& inet);

  private:
    struct UnderWay {
        const Inet* inet;
        QNetworkReply* reply;
    };

    QNetworkAccessManager manager_;
    std::vector<UnderWay> under_way_; ///< a fetch may begin while another one waits
};

} // namespace twk
