#include "core/converter/converter_form.h"

#include <algorithm>
#include <cstddef>

namespace brenko {

ConverterForm::ConverterForm() {
  label1.caption = kConverterIdleCaption;
  label1.backColor = kPaleYellow;
  label1.rect = {kConverterFieldLeft, kConverterDropTop, 0,
                 kConverterRowHeight};
  for (Label& l : lblLabel) l.backColor = kPaleYellow;
  // The two fixed captions sit on the window's own colour.
  lblLabel[0].caption = kConverterValueCaption;
  lblLabel[0].backColor = kTeal;
  lblLabel[0].rect = {kConverterCaptionLeft, kConverterDropTop,
                      kConverterCaptionWidth, kConverterRowHeight};
  lblLabel[1].caption = kConverterResultsCaption;
  lblLabel[1].backColor = kTeal;
  lblLabel[1].rect = {kConverterCaptionLeft, kConverterResultTop,
                      kConverterCaptionWidth, kConverterRowHeight};
  for (std::size_t i = 2; i < lblLabel.size(); ++i) {
    lblLabel[i].rect = {
        kConverterFieldLeft,
        kConverterResultTop + kConverterResultPitch * static_cast<float>(i - 2),
        0, kConverterRowHeight};
  }
  FitConverterLabels(*this);
}

void FitConverterLabels(ConverterForm& form) {
  const float width =
      std::max(0.0f, form.geometry.width - kConverterNonClientWidth -
                         kConverterFieldLeft - kConverterFieldMargin);
  form.label1.rect.width = width;
  for (std::size_t i = 2; i < form.lblLabel.size(); ++i) {
    form.lblLabel[i].rect.width = width;
  }
}

}  // namespace brenko
