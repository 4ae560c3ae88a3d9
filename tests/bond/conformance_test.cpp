// Answers recorded from releases of the reference implementation, one JSON object a line:
//
//     {"category", "record", "op", "in", "out" | "error": {"type", "what"}, "variants"?, "silent_parse_error"?}
//
// op is encode, decode (base64 of the bytes), json_encode or json; levels stand under their fields'
// names. tests/data/settings_vectors.jsonl is a selection; TIV_VECTORS=FILE judges another file.
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
#include "support/table.h"

#include <boost/algorithm/string/replace.hpp>

#include <QByteArray>

#include <cstdio>
#include <map>

#include <gtest/gtest.h>
#include <rapidjson/document.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

namespace {

using namespace tiv::echo;
using Json = rapidjson::Value;

const Json& member(const Json& object, const char* name) {
    static const Json null;
    const auto found = object.FindMember(name);
    return found == object.MemberEnd() ? null : found->value;
}

std::string textOf(const Json& string) {
    return {string.GetString(), string.GetStringLength()};
}

// The settings record with these levels as SimpleJSON text.
std::string envelope(const Json& levels) {
    rapidjson::StringBuffer text;
    rapidjson::Writer<rapidjson::StringBuffer> writer(text);
    levels.Accept(writer);
    return std::string(R"({"prop":)") + text.GetString() + "}";
}

template <class Data>
std::string answer(const std::string& op, const Json& in, const QByteArray& bytes) {
    if (op == "json") return bond::writeSimpleJson(bond::readSimpleJson<Data>(textOf(in)));
    if (op == "decode")
        return bond::writeSimpleJson(bond::readCompactBinary<Data>(std::as_bytes(std::span(bytes))));
    const auto record = bond::readSimpleJson<Data>(envelope(in));
    if (op == "json_encode") return bond::writeSimpleJson(record);
    const bond::Bytes written = bond::writeCompactBinary(record);
    return QByteArray(reinterpret_cast<const char*>(written.data()), int(written.size()))
        .toBase64()
        .toStdString();
}

template <class... Data>
auto answersByRecord() {
    return std::map<std::string, decltype(&answer<kst::Data>)>{
        {bond::description<Data>.name, answer<Data>}...};
}

// What the project answers, as text: base64, the record as SimpleJSON, or "bond::CoreException: text".
std::string answer(const Json& row, const QByteArray& bytes) try {
    static const auto answers = answersByRecord<qsx::BrucData, qsx::RissData, qsx::ElPlData, esk::Data,
        esk::EigeData, dimvel::BrucData, dimvel::RissData, kst::Data, vibr::EarthquakeData, mexora::Data,
        plax2::Data, tiviload::Data, rova::Data>();
    return answers.at(textOf(member(row, "record")))(textOf(member(row, "op")), member(row, "in"), bytes);
} catch (const bond::CoreException& e) {
    return std::string("bond::CoreException: ") + e.what();
} catch (const bond::StreamException& e) {
    return std::string("bond::StreamException: ") + e.what();
}

// A recorded answer in the same form.
std::string recorded(const Json& answer) {
    const Json& error = member(answer, "error");
    const Json& out = member(answer, "out");
    if (error.IsObject()) return textOf(member(error, "type")) + ": " + textOf(member(error, "what"));
    return out.IsString() ? textOf(out) : envelope(out);
}

// Stricter is right only where a value of more than one byte runs past the end of the input and the
// recorded answer went on behind it: with a result, with an overflow, or until it met the end.
bool isStricterOnDamage(const QByteArray& bytes, const std::string& ours) {
    unsigned long long size = 0, offset = 0, length = 0;
    const int found = std::sscanf(ours.c_str(),
        "bond::StreamException: Read out of bounds: %llu bytes requested, offset: %llu, length: %llu", &size,
        &offset, &length);
    return found == 3 && size > 1 && length == quint64(bytes.size()) && offset <= length &&
           size > length - offset;
}

const char* verdict(const Json& row, const QByteArray& bytes, const std::string& ours) {
    if (row.HasMember("silent_parse_error"))
        return ours.starts_with("bond::CoreException: JSON parser error: ") ? "stricter" : "wrong";
    if (ours == recorded(row)) return "exact";
    if (row.HasMember("variants"))
        for (const Json& variant : member(row, "variants").GetArray())
            if (ours == boost::replace_all_copy(recorded(variant), "Read or skip", "Read"))
                return "as another release";
    return isStricterOnDamage(bytes, ours) ? "stricter" : "wrong";
}

TEST(Conformance, EveryRecordedAnswerIsGiven) {
    std::map<std::string, std::map<std::string, int>> verdicts;  // by category, then by verdict
    int exact = 0;
    for (const QStringList& cells :
        test::table(qEnvironmentVariable("TIV_VECTORS", "settings_vectors.jsonl"))) {
        const std::string line = cells[0].toStdString();
        rapidjson::Document row;
        ASSERT_FALSE(row.Parse(line.c_str()).HasParseError()) << line;
        const bool isBinary = member(row, "op") == "decode";
        const QByteArray bytes = isBinary ? QByteArray::fromBase64(member(row, "in").GetString()) : "";
        const std::string ours = answer(row, bytes);
        const std::string found = verdict(row, bytes, ours);
        ++verdicts[textOf(member(row, "category"))][found];
        exact += found == "exact";
        EXPECT_NE(found, "wrong") << "ours:     " << ours << "\nrecorded: " << recorded(row) << "\n"
                                  << line.substr(0, 400);
    }
    EXPECT_GT(exact, 300);
    for (const auto& [category, counts] : verdicts)
        for (const auto& [name, count] : counts)
            std::printf("%-24s %6d %s\n", category.c_str(), count, name.c_str());
}

}  // namespace
