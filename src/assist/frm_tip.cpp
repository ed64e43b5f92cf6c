// SPDX-License-Identifier: MIT
#include "assist/frm_tip.h"

#include "platform/chance.h"
#include "platform/desktop.h"
#include "platform/file_system.h"
#include "platform/numbers.h"

namespace twk {

namespace {

constexpr TextView tip_file = u"TIPOFDAY.TXT";

} // namespace

void frmTip::enumerate(ScreenMap& map) {
    map.events<&frmTip::cmdNextTip_Click, &frmTip::cmdOK_Click>(*this);
}

void frmTip::Form_Load() {
    if (Val(desktop().get_setting(u"Options", u"Show Tips at Startup", u"1")) == 0) {
        screens().unload<frmTip>();
        return;
    }
    chance().Randomize();
    if (LoadTips(beside_program(tip_file))) return;
    lblTipText.caption =
        u"That the " + Text(tip_file) + u" file was not found? \r\nCreate a text file named " +
        Text(tip_file) +
        u" using NotePad with 1 tip per line. Then place it in the same directory as the application. ";
}

bool frmTip::LoadTips(const Text& path) {
    if (path.empty() || !file_exists(path)) return false;
    const TextStreamPtr file = FileSystemObject().OpenTextFile(path, OpenMode::reading);
    while (!file->AtEndOfStream()) tips.push_back(file->readline());
    file->Close();
    siguiente_tip();
    return true;
}

void frmTip::siguiente_tip() {
    tip_actual = CLng(Int(chance().Rnd() * static_cast<double>(tips.size()) + 1));
    DisplayCurrentTip();
}

void frmTip::DisplayCurrentTip() {
    if (!tips.empty()) lblTipText.caption = tips.at(static_cast<std::size_t>(tip_actual) - 1);
}

void frmTip::cmdNextTip_Click() {
    siguiente_tip();
}
void frmTip::cmdOK_Click() {
    screens().unload<frmTip>();
}

} // namespace twk
