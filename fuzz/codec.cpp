// Both forms of a record, as they are inside a settings string. The first byte's low four bits choose
// the record, the bit above them the form:
//
//     C<bytes>           0: Compact Binary, here of esk.Data
//     3{"prop":{}}       1: SimpleJSON
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
#include "echo/schema/xml_echo_data.h"
#include "fuzz/target.h"

#include <cmath>
#include <limits>
#include <span>
#include <string>

namespace {

using namespace tiv::echo;
using fuzz::require;

// A field of every type; the settings records hold levels alone.
struct Every {
    bool yes = true;
    std::int8_t i8 = 8;
    std::int16_t i16 = -16;
    std::int32_t i32 = 32;
    std::int64_t i64 = -64;
    std::uint8_t u8 = 8;
    std::uint16_t u16 = 16;
    std::uint32_t u32 = 32;
    std::uint64_t u64 = 64;
    float f = 0.5F;
    double d = -0.25;
    std::string text = "text";
    OutPutType level = FULL_OUTPUT;
    kst::Data data;
};
constexpr auto describe(const Every*) {
    using bond::field;
    return bond::record<Every>("fuzz.Every",
        field("yes", &Every::yes),
        field("i8", &Every::i8),
        field("i16", &Every::i16),
        field("i32", &Every::i32),
        field("i64", &Every::i64),
        field("u8", &Every::u8),
        field("u16", &Every::u16),
        field("u32", &Every::u32),
        field("u64", &Every::u64),
        field("f", &Every::f),
        field("d", &Every::d),
        field("text", &Every::text, {{"JsonName", "Text"}}),
        field("level", &Every::level),
        field("data", &Every::data));
}

// JSON has no infinities and no NaN, and may lose the last bits of a double.
void round(double& read, double written) {
    const double lost = std::abs(written) * 1e-15 + 4 * std::numeric_limits<double>::denorm_min();
    if (!std::isfinite(written) || std::abs(read - written) <= lost) read = written;
}

void round(float& read, float written) {
    if (!std::isfinite(written)) read = written;
}

template <class Record>
void run(std::span<const std::byte> bytes, bool isJson) {
    Record record;
    try {
        if (isJson)
            record =
                bond::readSimpleJson<Record>({reinterpret_cast<const char*>(bytes.data()), bytes.size()});
        else
            record = bond::readCompactBinary<Record>(bytes);
    } catch (const bond::CoreException&) {
        return;
    } catch (const bond::StreamException&) {
        require(!isJson, "JSON text has no bounds to read out of");
        return;
    }
    const bond::Bytes written = bond::writeCompactBinary(record);
    const auto read = bond::readCompactBinary<Record>({written.data(), written.size()});
    require(bond::writeCompactBinary(read) == written, "Compact Binary changes when it is read again");

    auto readJson = bond::readSimpleJson<Record>(bond::writeSimpleJson(record));
    if constexpr (std::is_same_v<Record, Every>) {
        round(readJson.f, record.f);
        round(readJson.d, record.d);
    }
    require(bond::writeCompactBinary(readJson) == written, "JSON means another record");
}

constexpr decltype(&run<Every>) records[] = {
    run<qsx::BrucData>,
    run<qsx::RissData>,
    run<qsx::ElPlData>,
    run<esk::Data>,
    run<esk::EigeData>,
    run<dimvel::BrucData>,
    run<dimvel::RissData>,
    run<kst::Data>,
    run<vibr::EarthquakeData>,
    run<mexora::Data>,
    run<plax2::Data>,
    run<tiviload::Data>,
    run<rova::Data>,
    run<XMLEchoData>,
    run<Every>,
    run<Every>,
};

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size > 0) records[*data & 0xF](std::as_bytes(std::span(data + 1, size - 1)), (*data & 0x10) != 0);
    return 0;
}
