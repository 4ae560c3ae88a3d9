// What the recorded answers cannot show: fields that are no OutPutType, attributes, and limits.
#include "bond/compact_binary.h"
#include "bond/exceptions.h"
#include "bond/simple_json.h"
#include "support/every_type.h"
#include "support/printing.h"
#include "support/table.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

namespace {

using test::EveryType;

QString hex(const bond::Bytes& bytes) {
    return QByteArray(reinterpret_cast<const char*>(bytes.data()), int(bytes.size())).toHex();
}

// A cell of the table, in which "(0a*62)" stands for 62 times "0a".
QString expanded(QString cell) {
    static const QRegularExpression repeated(R"(\((.+?)\*(\d+)\))");
    for (auto group = repeated.match(cell); group.hasMatch(); group = repeated.match(cell))
        cell.replace(group.capturedStart(), group.capturedLength(),
            group.captured(1).repeated(group.captured(2).toInt()));
    return cell;
}

// The record that the text or the bytes hold, in the other form or in the same.
QString answer(const QString& input, bool asJson) try {
    const bool isJson = input.startsWith('{');
    const QByteArray bytes = isJson ? input.toUtf8() : QByteArray::fromHex(input.toLatin1());
    const EveryType record = isJson
                                 ? bond::readSimpleJson<EveryType>({bytes.data(), std::size_t(bytes.size())})
                                 : bond::readCompactBinary<EveryType>(std::as_bytes(std::span(bytes)));
    return asJson ? QString::fromStdString(bond::writeSimpleJson(record))
                  : hex(bond::writeCompactBinary(record));
} catch (const bond::Exception& e) {
    return e.what();
}

TEST(Codec, ReadsAndWritesEveryTypeWithinItsLimits) {
    for (const QStringList& row : test::table("codec.tsv")) {
        EXPECT_EQ(answer(expanded(row[0]), row[1].startsWith('{')), expanded(row[1])) << row[0].toStdString();
    }
}

TEST(Codec, AnIdAbove255TakesTwoBytes) {
    std::array<std::int32_t, 300> record{}, read{};
    const std::array<std::int32_t, 300> defaults{};
    std::vector<bond::Row> rows;
    for (std::uint16_t id = 0; id < 300; ++id)
        rows.push_back({"x", bond::Type::Int32, id, id * sizeof(std::int32_t), {}, nullptr, nullptr});
    const bond::Struct description{"test.Many", rows, &defaults};
    for (const unsigned id : {0U, 5U, 6U, 255U, 256U, 299U}) record[id] = 1;
    bond::Bytes bytes;
    bond::writeCompactBinary(description, &record, bytes);
    EXPECT_EQ(hex(bytes), "1002b002d00602d0ff02f0000102f02b010200");
    bond::readCompactBinary(description, &read, {bytes.data(), bytes.size()});
    EXPECT_EQ(read, record);
}

}  // namespace
