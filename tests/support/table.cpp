#include "support/table.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

std::vector<QStringList> test::table(const QString& name) {
    QFile file(QDir(TIV_TEST_DATA).filePath(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    std::vector<QStringList> rows;
    for (const QString& line : QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts))
        if (!line.startsWith('#')) rows.push_back(line.split('\t'));
    return rows;
}
