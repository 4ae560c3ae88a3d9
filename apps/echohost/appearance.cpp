#include "apps/echohost/appearance.h"

#include <QApplication>
#include <QColor>
#include <QPalette>
#include <QStyle>

namespace echohost {
namespace {

QPalette darkPalette() {
    const QColor window(0x2b, 0x2d, 0x30);
    const QColor text(0xe6, 0xe6, 0xe6);
    const QColor faint(0x85, 0x87, 0x8a);
    QPalette palette(QColor(0x3a, 0x3d, 0x41), window);  // Qt derives the shades of frames and buttons
    for (const auto role :
        {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        palette.setColor(role, text);
        palette.setColor(QPalette::Disabled, role, faint);
    }
    palette.setColor(QPalette::Base, QColor(0x1e, 0x1f, 0x22));
    palette.setColor(QPalette::AlternateBase, QColor(0x26, 0x28, 0x2b));
    palette.setColor(QPalette::ToolTipBase, QColor(0x4a, 0x43, 0x2a));
    palette.setColor(QPalette::PlaceholderText, faint);
    palette.setColor(QPalette::Highlight, QColor(0x2f, 0x65, 0xa8));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(0x6c, 0xa8, 0xf0));
    return palette;
}

}  // namespace

Appearance::Appearance() : style_(QApplication::style()->objectName()), palette_(QApplication::palette()) {}

void Appearance::setDark(bool dark) {
    if (dark == isDark_) return;
    isDark_ = dark;
    // Fusion takes all its colours from the palette; other styles do not.
    QApplication::setStyle(dark ? QStringLiteral("Fusion") : style_);
    QApplication::setPalette(dark ? darkPalette() : palette_);
}

}  // namespace echohost
