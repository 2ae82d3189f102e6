#pragma once

#include <QRect>
#include <algorithm>

namespace tr7 {

/// The place, moved into the field; smaller where the field has no room for it.
inline QRect Inside(QRect place, const QRect& field) {
  place.setSize(place.size().boundedTo(field.size()));
  place.moveTo(std::clamp(place.left(), field.left(), field.right() - place.width() + 1),
               std::clamp(place.top(), field.top(), field.bottom() - place.height() + 1));
  return place;
}

}  // namespace tr7
