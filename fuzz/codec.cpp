// Both forms of a record with a field of every type; settings.cpp has the records of the settings. Bit 4 of
// the first byte is the form:
//
//     N<bytes>           0: Compact Binary
//     ~{"Text":"a"}      1: SimpleJSON
#include "bond/compact_binary.h"
#include "bond/exceptions.h"
#include "bond/simple_json.h"
#include "fuzz/target.h"
#include "support/every_type.h"

#include <span>
#include <string>

namespace {

using fuzz::require;
using Record = test::EveryType;

Record readRecord(std::span<const std::byte> bytes, bool isJson) {
    if (!isJson) return bond::readCompactBinary<Record>(bytes);
    return bond::readSimpleJson<Record>({reinterpret_cast<const char*>(bytes.data()), bytes.size()});
}

void run(std::span<const std::byte> bytes, bool isJson) {
    Record record;
    try {
        record = readRecord(bytes, isJson);
    } catch (const bond::CoreException&) {
        return;
    } catch (const bond::StreamException&) {
        return require(!isJson, "JSON text has no bounds to read out of");
    }
    const bond::Bytes written = bond::writeCompactBinary(record);
    const auto read = bond::readCompactBinary<Record>({written.data(), written.size()});
    require(bond::writeCompactBinary(read) == written, "Compact Binary changes when it is read again");

    auto readJson = bond::readSimpleJson<Record>(bond::writeSimpleJson(record));
    readJson.f = record.f;  // JSON has no infinities and no NaN, and may lose the last bits of a number
    readJson.d = record.d;
    require(bond::writeCompactBinary(readJson) == written, "JSON means another record");
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size > 0) run(std::as_bytes(std::span(data + 1, size - 1)), (*data & 0x10) != 0);
    return 0;
}
