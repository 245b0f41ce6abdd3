#pragma once
// The tape and the converter are the calculator's companions: they belong
// with it on the desktop. They go out of sight while it is minimised and
// come back with it, come up when it is activated, and the tape keeps its
// place beside the calculator when the user moves it. The converter is the
// calculator's transient window (the window manager keeps it above the
// calculator and in its layer); the tape is a window of its own, so that it
// has its entry in the task list (panels leave transient and tool windows
// out), and is kept with the calculator by these rules alone. None of this
// changes a model: a minimised calculator's tape is still "shown".

#include <QPoint>

class QWidget;

namespace brenko::ui {

class AppWindows;

// Makes a companion window the calculator's transient window.
void AttachCompanion(QWidget& calculator, QWidget& companion);

// Whether the companions stay out of sight now (the calculator is
// minimised), whatever their models say.
bool CompanionsAway(const AppWindows& windows);

// Shows or hides a companion as its model wants it and the calculator
// allows; a companion the window manager minimised with the calculator
// comes back normal.
void ShowCompanion(const AppWindows& windows, QWidget& companion, bool wanted);

// The calculator became the active window: its shown companions come up
// with it, without taking the keyboard, and the calculator stays above the
// tape it overlaps.
void RaiseCompanions(const AppWindows& windows);

// The user moved the calculator by delta: the shown tape moves with it (and,
// moved, its model takes its new place as after any move of the tape).
void CalculatorMoved(const AppWindows& windows, QPoint delta);

}  // namespace brenko::ui
