// SPDX-License-Identifier: MIT
#include "assist/form9.h"
#include "assist/frm_tip.h"
#include "assist/help.h"
#include "shell/module1.h"
#include "support/temp_app.h"

#include <set>

#include <gtest/gtest.h>

namespace twk {
namespace {

using test::TempApp;

void next_tip() {
    ASSERT_TRUE(screens().fire<frmTip>("cmdNextTip", "Click"));
}

TEST(Tips, DrawsFromAllLinesOfTheFile) {
    TempApp app;
    app.write(u"TIPOFDAY.TXT", "One \nTwo\r\n\r\nFour");
    std::set<Text> seen{screen<frmTip>().lblTipText.caption()};
    for (int i = 0; i < 100; ++i) {
        next_tip();
        seen.insert(screen<frmTip>().lblTipText.caption());
    }
    EXPECT_EQ(seen, (std::set<Text>{u"One ", u"Two", u"", u"Four"}));
    ASSERT_TRUE(screens().fire<frmTip>("cmdOK", "Click"));
    EXPECT_FALSE(screens().is_loaded<frmTip>());
}

TEST(Tips, TellWhatIsMissingAndStayAwayWhenTheyAreTurnedOff) {
    TempApp app;
    app.write(u"TIPOFDAY.TXT", "");
    EXPECT_EQ(screen<frmTip>().lblTipText.caption(), u"");
    screens().unload<frmTip>();
    std::filesystem::remove(app.folder() / "TIPOFDAY.TXT");
    for (int i = 0; i < 2; ++i) {
        EXPECT_TRUE(screen<frmTip>().lblTipText.caption().starts_with(
            u"That the TIPOFDAY.TXT file was not found? \r\nCreate a text file named TIPOFDAY.TXT"));
        next_tip();
    }
    screens().unload<frmTip>();
    app.desktop.settings[u"Options/Show Tips at Startup"] = u"0";
    screens().dispatch([] { screens().show<frmTip>(); });
    EXPECT_FALSE(screens().is_loaded<frmTip>());
}

TEST(Help, OpensTheLocalFileAtTheAnchorAndTheOnlineCopyOnDemand) {
    TempApp app;
    mostrar_ayuda(u"form7");
    EXPECT_TRUE(screens().record<Form9>().visible);
    EXPECT_TRUE(screen<Form9>().wb1.address_bar);
    EXPECT_EQ(module1().formas_abiertas[9], -1);
    screens().fire<Form9>("Command1", "Click");
    EXPECT_EQ(app.desktop.navigated,
              (std::vector<Text>{app.path(u"help.htm#form7"), u"http://www.tarnwick.example/help.htm"}));
}

} // namespace
} // namespace twk
