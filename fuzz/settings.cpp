// Settings strings of unknown origin, as a host inserts them. The first byte's low four bits are the program type
// (those above the last one do not exist), its high four bits, taken modulo three, are the form of the rest:
//
//     3ChAGAAA=    0: the text in UTF-8
//     C<bytes>     1: the bytes that base64 encodes
//     S<units>     2: the text in UTF-16
#include "bond/exceptions.h"
#include "fuzz/target.h"
#include "tiv/dbo/dbo.h"
#include "tiv/echo/echo_data.h"
#include "tiv/smartassert/smart_assert.h"

#include <QStringList>

#include <cstring>
#include <string>

namespace {

using fuzz::require;
using tiv::echo::EchoData;

// A project with every kind of element, so that every option applies.
int project() {
    // An unknown program type and a level without a keyword are reported, both often.
    tiv::smartassert::setReporter([](const tiv::smartassert::Report&) {});
    return tiv::dbo::createProject(":memory:", {1, 1, 1, 1, 1});
}

QString textOf(unsigned form, const std::string& bytes) {
    if (form == 0) return QString::fromStdString(bytes);
    if (form == 1) return QString::fromLatin1(QByteArray::fromStdString(bytes).toBase64());
    std::u16string text(bytes.size() / sizeof(char16_t), 0);
    std::memcpy(text.data(), bytes.data(), text.size() * sizeof(char16_t));
    return QString::fromStdU16String(text);
}

bool canInsert(EchoData& echo, const QString& text) try {
    echo.insertXMLData(text);
    return true;
} catch (const bond::Exception&) {
    return false;
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const int database = project();
    if (size == 0) return 0;
    EchoData echo(static_cast<EchoData::ProgrammTypes>(*data & 0xF), database);
    const QString text = textOf((*data >> 4) % 3, {data + 1, data + size});

    const QString defaults = echo.getXMLData();
    require(canInsert(echo, R"({"prop":{"0":3,"2":4}})"), "the start is refused");
    const QString start = echo.getXMLData();
    require(defaults.isNull() == (start == defaults), "the start is the defaults");
    const bool isRead = canInsert(echo, text);
    const QString settings = echo.getXMLData();
    require(isRead || settings == start, "a text that was refused has changed the settings");
    const auto lines = text.split('\n', Qt::SkipEmptyParts).size();
    require(!isRead || lines == 1 || settings == defaults, "the text is no single record, yet was kept");
    if (settings == start) return 0;

    const auto telinp = echo.getTELINP(false, false, 1);
    require(canInsert(echo, {}) && canInsert(echo, settings), "settings that were given are refused");
    require(echo.getXMLData() == settings, "settings change when they are read again");
    require(echo.getTELINP(false, false, 1) == telinp, "other lines when read again");
    return 0;
}
