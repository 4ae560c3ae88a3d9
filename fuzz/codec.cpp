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
#include "echo/schema/mexora.h"
#include "echo/schema/plax2.h"
#include "echo/schema/qsx.h"
#include "echo/schema/rova.h"
#include "echo/schema/tiviload.h"
#include "echo/schema/vibr.h"
#include "fuzz/target.h"
#include "support/every_type.h"

#include <array>
#include <cmath>
#include <limits>
#include <span>
#include <string>

namespace {

using namespace tiv::echo;
using fuzz::require;

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
    if constexpr (std::is_same_v<Record, test::EveryType>) {
        round(readJson.f, record.f);
        round(readJson.d, record.d);
    }
    require(bond::writeCompactBinary(readJson) == written, "JSON means another record");
}

template <class... Records>
constexpr std::array runs{&run<Records>...};

constexpr auto records = runs<qsx::BrucData, qsx::RissData, qsx::ElPlData, esk::Data, esk::EigeData,
    dimvel::BrucData, dimvel::RissData, kst::Data, vibr::EarthquakeData, mexora::Data, plax2::Data,
    tiviload::Data, rova::Data, XMLEchoData, test::EveryType, test::EveryType>;

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size > 0) records[*data & 0xF](std::as_bytes(std::span(data + 1, size - 1)), (*data & 0x10) != 0);
    return 0;
}
