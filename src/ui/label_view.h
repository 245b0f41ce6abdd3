#pragma once
// How a window shows a label of its model: caption, place, colours and
// visibility, each touched only when it differs from what is shown. Every
// window's labels go through here.

#include <QColor>

#include "core/base/platform.h"
#include "core/base/window_model.h"

class QLabel;
class QWidget;

namespace brenko::ui {

// Caption, colours and visibility; the place is the caller's.
void ApplyLabelLook(QLabel* label, const Label& model);
// All of it, the place converted from the model's twips.
void ApplyLabel(QLabel* label, const Label& model, const ScreenInfo& screen);

// A widget's background, and with `withText` a legible text colour on it.
void SetBackground(QWidget* widget, const QColor& back, bool withText);

}  // namespace brenko::ui
