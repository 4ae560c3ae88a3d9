// Decodes and encodes the rows of two tables: settings records, as recorded from the reference library, and a record
// with the other types, attributes and limits.
#include "bond/compact_binary.h"
#include "bond/exceptions.h"
#include "bond/simple_json.h"
#include "echo/schema/dimvel.h"
#include "echo/schema/esk.h"
#include "echo/schema/kst.h"
#include "echo/schema/mexora.h"
#include "echo/schema/plax2.h"
#include "echo/schema/qsx.h"
#include "echo/schema/rova.h"
#include "echo/schema/tiviload.h"
#include "echo/schema/vibr.h"
#include "support/every_type.h"
#include "support/printing.h"
#include "support/table.h"

#include <QMap>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace {

using namespace tiv::echo;

QString hex(const bond::Bytes& bytes) {
    return QByteArray(reinterpret_cast<const char*>(bytes.data()), int(bytes.size())).toHex();
}

// Expands a cell of the table: "(0a*62)" stands for 62 times "0a".
QString expanded(QString cell) {
    static const QRegularExpression repeated(R"(\((.+?)\*(\d+)\))");
    for (auto group = repeated.match(cell); group.hasMatch(); group = repeated.match(cell))
        cell.replace(group.capturedStart(), group.capturedLength(),
            group.captured(1).repeated(group.captured(2).toInt()));
    return cell;
}

template <class Record>
QString answer(const QByteArray& input, bool isJson, bool asJson) {
    const Record record = isJson ? bond::readSimpleJson<Record>({input.data(), std::size_t(input.size())})
                                 : bond::readCompactBinary<Record>(std::as_bytes(std::span(input)));
    return asJson ? QString::fromStdString(bond::writeSimpleJson(record))
                  : hex(bond::writeCompactBinary(record));
}

template <class... Records>
QMap<QString, decltype(&answer<kst::Data>)> answers() {
    return {{bond::description<Records>.name, answer<Records>}...};
}

TEST(Codec, GivesTheResultsOfTheReferenceLibraryWithinItsLimits) {
    const auto known = answers<qsx::BrucData, qsx::RissData, qsx::ElPlData, esk::Data, esk::EigeData,
        dimvel::BrucData, dimvel::RissData, kst::Data, vibr::EarthquakeData, mexora::Data, plax2::Data,
        tiviload::Data, rova::Data, test::EveryType>();
    for (const char* file : {"settings_vectors.tsv", "codec.tsv"}) {
        for (const QStringList& row : test::table(file)) {
            const QByteArray cell = expanded(row[2]).toUtf8();
            const bool isJson = row[1] == "json";
            const QByteArray input =
                isJson ? QByteArray::fromPercentEncoding(cell) : QByteArray::fromHex(cell);
            QString output;
            try {
                output = known[row[0]](input, isJson, row[3].startsWith('{'));
            } catch (const bond::Exception& e) {
                output = (dynamic_cast<const bond::CoreException*>(&e) ? "core: " : "stream: ") +
                         QString(e.what());
            }
            EXPECT_TRUE(output == expanded(row[3])) << row.join('\t') << '\n' << output.left(999);
        }
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
