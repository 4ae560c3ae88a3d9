#include "properties/qt/src/text_widths.h"

#include <QStringList>
#include <QTextBoundaryFinder>

#include <cmath>

namespace tiv::properties {

TextWidths::TextWidths(const QFont& font)
    : metrics_(font), space_(metrics_.horizontalAdvance(QLatin1Char(' '))) {}

int TextWidths::of(const QString& text) {
    const auto found = known_.constFind(text);
    if (found != known_.constEnd()) return *found;
    const QStringList words = text.split(QLatin1Char(' '));
    qreal width =
        words.size() == 1 ? metrics_.horizontalAdvance(text) : static_cast<qreal>(words.size() - 1) * space_;
    if (words.size() > 1)
        for (const QString& word : words) width += of(word);
    return *known_.insert(text, static_cast<int>(std::ceil(width)));
}

QString breakable(const QString& word, const QFontMetrics& metrics, int width) {
    QString result;
    QTextBoundaryFinder letters(QTextBoundaryFinder::Grapheme, word);
    for (int from = 0, to = 0; to >= 0;) {
        const auto next = static_cast<int>(letters.toNextBoundary());
        const bool fits = next >= 0 && metrics.horizontalAdvance(word.mid(from, next - from)) <= width;
        if (!fits && to > from) {
            if (from > 0) result += QChar(0x200B);
            result += word.mid(from, to - from);
            from = to;
        }
        to = next;
    }
    return result;
}

}  // namespace tiv::properties
