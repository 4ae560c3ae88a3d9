// Test data in tests/data: a line is a row, tabs separate its cells, a line that begins with "#" is a comment.
//
//     for (const QStringList& row : test::table("codec.tsv")) EXPECT_EQ(answer(row[0]), row[1]);
#pragma once

#include <QStringList>

#include <vector>

namespace test {

// The rows of a file of that folder, or of any file if the name is absolute.
std::vector<QStringList> table(const QString& name);

}  // namespace test
