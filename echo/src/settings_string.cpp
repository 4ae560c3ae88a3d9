#include "echo/src/settings_string.h"

#include "bond/compact_binary.h"
#include "bond/simple_json.h"

#include <QByteArray>

namespace tiv::echo::data {

SettingsForm settingsForm(const QString& text) {
    return text.startsWith(QLatin1Char('{')) ? SettingsForm::Json : SettingsForm::Base64;
}

QStringView nextLine(QStringView& rest) {
    while (rest.startsWith(u'\n')) rest = rest.mid(1);
    const auto end = rest.indexOf(u'\n');
    const QStringView line = end < 0 ? rest : rest.left(end);
    rest = rest.mid(line.size());
    return line;
}

}  // namespace tiv::echo::data
