// Settings strings of unknown origin, as a host hands them over. The first byte's low four bits are the
// program type (14 and 15 do not exist), its high four bits, taken modulo three, say what follows:
//
//     3ChAGAAA=    0: the text in UTF-8
//     C<bytes>     1: what base64 hides
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
    using tiv::dbo::ElementKind;
    const int database = tiv::dbo::createProject(":memory:");
    for (const auto kind : {ElementKind::Quads,
             ElementKind::Brics,
             ElementKind::Beams,
             ElementKind::Cables,
             ElementKind::Springs})
        tiv::dbo::addElements(database, kind, 1);
    // An unknown program type and a level without a keyword are reported; many are to be expected here.
    tiv::smartassert::setReporter([](const tiv::smartassert::Report&) {});
    return database;
}

QString textOf(unsigned form, const std::string& bytes) {
    if (form == 0) return QString::fromStdString(bytes);
    if (form == 1) return QString::fromLatin1(QByteArray::fromStdString(bytes).toBase64());
    std::u16string text(bytes.size() / sizeof(char16_t), 0);
    std::memcpy(text.data(), bytes.data(), text.size() * sizeof(char16_t));
    return QString::fromStdU16String(text);
}

// Whether the text was read. If not, it has changed nothing.
bool insert(EchoData& echo, const QString& text) {
    const QString before = echo.getXMLData();
    try {
        echo.insertXMLData(text);
        return true;
    } catch (const bond::Exception&) {
        require(echo.getXMLData() == before, "a text that was refused has changed the settings");
        return false;
    }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const int database = project();
    if (size == 0) return 0;
    const auto type = static_cast<EchoData::ProgrammTypes>(*data & 0xF);
    const QString text = textOf((*data >> 4) % 3, {data + 1, data + size});

    EchoData echo(type, database);
    const QString defaults = echo.getXMLData();
    require(insert(echo, R"({"prop":{"0":3,"2":4}})"), "no settings to begin with");
    require(
        defaults.isNull() == (echo.getXMLData() == defaults), "the settings to begin with are the defaults");

    const bool isRead = insert(echo, text);
    const QString settings = echo.getXMLData();
    const auto lines = text.split('\n', Qt::SkipEmptyParts).size();
    require(!isRead || lines == 1 || settings == defaults, "the text is no single record, yet was kept");
    const auto germanLines = echo.getTELINP(false, false, 0), englishLines = echo.getTELINP(false, false, 1);
    require(germanLines.size() == englishLines.size(), "a line in one language only");

    require(insert(echo, {}) && insert(echo, settings), "settings that were given are refused");
    require(echo.getXMLData() == settings, "settings change when they are read again");
    require(echo.getTELINP(false, false, 1) == englishLines, "other lines when read again");
    return 0;
}
