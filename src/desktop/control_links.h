// SPDX-License-Identifier: MIT
#pragma once

#include "platform/controls.h"
#include "platform/screens.h"

class QWidget;

namespace twk {

class ScreenBinding;

/// One control and the widget that shows it.
template <class C> struct ControlLink {
    ScreenBinding& binding;
    const ScreenMap::Control& name;
    C& control;
    QWidget& widget;
};

/// Each ties a control to its widget both ways, tells the binding which events the widget raises, and returns
/// false when the widget is of a kind that cannot show the control.
bool link(const ControlLink<Label>& link);
bool link(const ControlLink<Frame>& link);
bool link(const ControlLink<CommandButton>& link);
bool link(const ControlLink<TextBox>& link);
bool link(const ControlLink<RichTextBox>& link);
bool link(const ControlLink<CheckBox>& link);
bool link(const ControlLink<OptionButton>& link);
bool link(const ControlLink<ListBox>& link);
bool link(const ControlLink<ComboBox>& link);
bool link(const ControlLink<Slider>& link);
bool link(const ControlLink<ProgressBar>& link);
bool link(const ControlLink<Grid>& link);
bool link(const ControlLink<PictureBox>& link);
bool link(const ControlLink<FileListBox>& link);
bool link(const ControlLink<DirListBox>& link);
bool link(const ControlLink<DriveListBox>& link);
bool link(const ControlLink<WebBrowser>& link);

} // namespace twk
