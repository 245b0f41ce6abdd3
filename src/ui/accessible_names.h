#pragma once
// Names and descriptions in words for assistive technology: the keys say
// what they do ("Backspace", not an arrow; the words are the keypad table's),
// the readout and every memory tell their values, the tape grid names the tape
// it shows, and the converter's results carry their units.

namespace brenko {
struct App;
struct CalculatorForm;
struct MemoryForm;
}  // namespace brenko

namespace brenko::ui {

class CalculatorWindow;
class ConverterWindow;
class MainFrameWindow;
class MemoryWindow;
class TapeWindow;

// Makes the program's windows known to assistive technology as windows.
void InstallAccessibleWindows();

// Names the calculator's keys after they changed (made, laid out anew).
void NameCalculatorKeys(CalculatorWindow* calculator,
                        const CalculatorForm& form);

// Names the readout, the operation and the prompt, and tells their values,
// after they changed.
void NameCalculatorLabels(CalculatorWindow* calculator,
                          const CalculatorForm& form);

// Names a memory window and its value after the memory's model changed.
void NameMemory(MemoryWindow* window, const MemoryForm& form);

// Gives the other windows that exist (any may be nullptr) their names and
// the values they show now; touches only what changed. The calculator and
// the memory windows name themselves when their models changed.
void NameForAssistiveTechnology(const App& app, TapeWindow* tape,
                                MainFrameWindow* frame,
                                ConverterWindow* converter);

}  // namespace brenko::ui
