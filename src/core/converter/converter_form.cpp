#include "core/converter/converter_form.h"

namespace brenko {

ConverterForm::ConverterForm() {
  label1.caption = kConverterIdleCaption;
  label1.backColor = kPaleYellow;
  for (Label& l : lblLabel) l.backColor = kPaleYellow;
}

}  // namespace brenko
