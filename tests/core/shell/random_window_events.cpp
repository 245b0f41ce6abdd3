// The random user's window events: the memory windows, the main frame, the
// tape window, the converter and the calculator window itself, each moved,
// resized, clicked and closed as a user can.

#include "core/commands/converter_handlers.h"
#include "core/commands/frame_handlers.h"
#include "core/commands/keypad_handlers.h"
#include "core/commands/keys.h"
#include "core/commands/memory_handlers.h"
#include "core/commands/menus.h"
#include "core/commands/shell_handlers.h"
#include "core/commands/startup.h"
#include "core/commands/tape_handlers.h"
#include "core/converter/converter.h"
#include "core/memory/memory_cells.h"
#include "core/shell/main_frame.h"
#include "core/shell/random_user.h"
#include "core/tape/tape_window.h"

namespace brenko::testing_support {

void RandomUser::MemoryWindowEvent() {
  if (app_.memory.Forms().size() < 3 || Chance(5)) {
    QueueAnswers();  // a named memory asks for its name
    last_ = Chance(50) ? "NewMemory" : "NamedMemory";
    RunMenuCommand(app_, last_);
    return;
  }
  const int number = AnyMemoryNumber();
  MemoryForm* form = app_.memory.Find(number);
  if (form == nullptr) return;  // a closed window sends no events
  const std::string which = " " + std::to_string(number);
  switch (Below(8)) {
    case 0:
      last_ = "MemoryForm_Label1_DblClick" + which;
      MemoryForm_Label1_DblClick(app_, number);
      break;
    case 1:
      last_ = "MemoryForm_Form_Click" + which;
      MemoryForm_Form_Click(app_, number);
      break;
    case 2:
      last_ = "MemoryForm_Form_DblClick" + which;
      MemoryForm_Form_DblClick(app_, number);
      break;
    case 3:
      form->geometry = AnyRect();
      last_ = "MemoryForm_Form_Resize" + which;
      MemoryForm_Form_Resize(app_, number);
      break;
    case 4:
      last_ = "MemoryForm_Form_Activate" + which;
      MemoryForm_Form_Activate(app_, number);
      break;
    case 5:
      last_ = "MemoryForm_Form_MouseUp" + which;
      MemoryForm_Form_MouseUp(app_, number);
      break;
    case 6:
      last_ = "MemoryForm_Form_GotFocus" + which;
      MemoryForm_Form_GotFocus(app_, number);
      break;
    default:
      last_ = "MemoryForm_Form_Unload" + which;
      MemoryForm_Form_Unload(app_, number);
      break;
  }
}

void RandomUser::FrameEvent() {
  switch (Below(5)) {
    case 0:
    case 1:
      app_.mainFrame.geometry = AnyRect();
      app_.mainFrame.state = static_cast<WindowState>(Below(3));
      last_ = "MDIForm_Resize";
      MDIForm_Resize(app_);
      break;
    case 2:
      last_ = "MDIForm_Unload";
      MDIForm_Unload(app_);
      break;
    case 3:
      last_ = "MoveMainFrame";
      MoveMainFrame(app_, AnyRect());
      break;
    default:
      last_ = "ArrangeMemories";
      ArrangeMemories(app_);
      break;
  }
}

void RandomUser::TapeEvent() {
  switch (Below(4)) {
    case 0:
      app_.tapeWindow.geometry = AnyRect();
      last_ = "frmTape_Form_Resize";
      frmTape_Form_Resize(app_);
      break;
    case 1: {
      const int index = Below(5) - 1;
      last_ = "cmdScrollTape_Click " + std::to_string(index);
      ClickControl(app_, "cmdScrollTape", index);
      break;
    }
    case 2: {
      const int key = Chance(70) ? (Chance(50) ? 37 : 39) : Below(256);
      last_ = "Grid1_KeyDown " + std::to_string(key);
      Grid1_KeyDown(app_, key);
      break;
    }
    default:
      last_ = "MoveToTape";
      MoveToTape(app_.tapes, app_.tapeWindow, Chance(50));
      break;
  }
}

void RandomUser::ConverterEvent() {
  if (!app_.converter.loaded || !app_.converter.visible) {
    last_ = "mnuConverter";
    RunMenuCommand(app_, "mnuConverter");
    return;
  }
  switch (Below(4)) {
    case 0:
      last_ = "Converter_Form_DblClick";
      Converter_Form_DblClick(app_);
      break;
    case 1:
      last_ = "Converter_Label1_DblClick";
      Converter_Label1_DblClick(app_);
      break;
    case 2:
      app_.converter.geometry = AnyRect();
      last_ = "Converter_Form_Resize";
      Converter_Form_Resize(app_);
      break;
    default:
      last_ = "Converter_Form_Unload";
      Converter_Form_Unload(app_);
      break;
  }
}

void RandomUser::CalculatorEvent() {
  const int button = Below(4);
  switch (Below(7)) {
    case 0:
      last_ = "Form_DblClick";
      Form_DblClick(app_);
      break;
    case 1:
      last_ = "Label1_DblClick";
      Label1_DblClick(app_);
      break;
    case 2:
      last_ = "Form_MouseDown " + std::to_string(button);
      Form_MouseDown(app_, button);
      break;
    case 3:
      last_ = "Label1_MouseDown " + std::to_string(button);
      Label1_MouseDown(app_, button);
      break;
    case 4:
      last_ = "Form_Activate";
      Form_Activate(app_);
      break;
    case 5:
      last_ = "Form_GotFocus";
      Form_GotFocus(app_);
      break;
    default: {
      // The user drags the calculator somewhere else on the screen.
      app_.calculator.geometry.left = AnyCoordinate();
      app_.calculator.geometry.top = AnyCoordinate();
      int key = Chance(50) ? 32 : Below(256);
      last_ = "move calculator, Form_KeyUp " + std::to_string(key);
      Form_KeyUp(app_, key);
      break;
    }
  }
}

}  // namespace brenko::testing_support
