#pragma once

#include <QColor>

class QApplication;

namespace tr7::look {

// One light, calm palette: it is read all day, beside a machine, in factory light.
inline const QColor kWindow{0xee, 0xf1, 0xf4};
inline const QColor kBase{0xff, 0xff, 0xff};
inline const QColor kText{0x1a, 0x24, 0x2e};
inline const QColor kFaintText{0x85, 0x91, 0x9d};
inline const QColor kButton{0xf8, 0xf9, 0xfb};
inline const QColor kSelection{0x1f, 0x6f, 0xb2};
inline const QColor kHeader{0xe3, 0xe9, 0xef};
inline const QColor kHeaderSelected{0xc4, 0xd8, 0xea};
inline const QColor kHeaderLine{0xc2, 0xcc, 0xd6};
inline const QColor kGridLine{0xd9, 0xdf, 0xe5};
inline const QColor kUnusedCell{0xe9, 0xeb, 0xed};
inline const QColor kAtWork{0x1b, 0x6b, 0x3a};
inline const QColor kAtWorkRow{0xd6, 0xf0, 0xdd};
inline const QColor kMarkedCell{0xff, 0xc9, 0xc4};
inline const QColor kLampOn{0x2f, 0xa8, 0x4f};

/// Style, palette and fonts of the whole program.
void Apply(QApplication& application);

/// Fonts of the language; does nothing when they are in use already.
void UseLanguage(bool japanese);

}  // namespace tr7::look
