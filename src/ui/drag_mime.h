#pragma once
// What travels with a drag between the program's windows: only which control
// is being dragged ("readout" or "memory N"). The drop reads the caption and
// tag from the models when it lands, so nothing stale can be dropped.

#include <QMimeData>
#include <QString>
#include <memory>
#include <optional>

#include "core/base/window_model.h"
#include "core/memory/drag_source.h"

namespace brenko::ui {

inline constexpr const char* kDragSourceMimeType =
    "application/x-brenko-drag-source";

// "readout" or "memory 3".
QString DragSourceText(const DragSource& source);
// The source a text names; nothing for any other text.
std::optional<DragSource> ParseDragSource(const QString& text);

std::unique_ptr<QMimeData> MakeDragMime(const DragSource& source);
// The source carried by a drag; nothing when it is not one of ours.
std::optional<DragSource> DragSourceOf(const QMimeData* mime);

// A drop point in the coordinates the drop handlers take: twips in the
// target control's container (its window's client area), that is the
// control's own place in twips plus the point inside it.
float DropTwips(float controlPlace, double localPixels, double twipsPerPixel);

}  // namespace brenko::ui
