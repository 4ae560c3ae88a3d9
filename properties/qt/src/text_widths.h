// The widths of texts, and the places where a word that is too wide can be broken.
#pragma once

#include <QFontMetrics>
#include <QHash>
#include <QString>

namespace tiv::properties {

// The widths of texts in one line, in pixels. That of a text is the sum of its words: shaping texts dominates the cost
// of measuring, and many texts share words.
class TextWidths {
 public:
    explicit TextWidths(const QFont& font);
    int of(const QString& text);
    bool isKnown(const QString& text) const { return known_.contains(text); }

 private:
    QFontMetricsF metrics_;
    qreal space_;
    QHash<QString, int> known_;
};

// The word with zero-width spaces, at which it can be broken into parts that fit into the width.
QString breakable(const QString& word, const QFontMetrics& metrics, int width);

}  // namespace tiv::properties
