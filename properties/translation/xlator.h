// The translator of a property set: labels, tooltips and categories reach the user through it.
//
//     auto xlator = std::make_shared<Xlator>([](const std::string&, const char* s) { return tr(s); });
//     configure_xlator(*xlator, "tiv.echo.esk.Data");
//     xlator->text("prop.full", "Default of all options");   // "Voreinstellung aller Optionen"
//
// The lookup is handed the whole key, "tiv.echo.esk.Data:prop.full", and the source text. It decides
// which of the two finds the translation; this class knows no catalogue and no context.
#pragma once

#include <QString>

#include <functional>
#include <locale>
#include <memory>
#include <string>

namespace tiv::translation {

class Xlator {
 public:
    using Lookup = std::function<QString(const std::string& key, const char* sourceText)>;

    // An empty lookup leaves every text as it is.
    explicit Xlator(Lookup lookup);
    Xlator(const Xlator&) = delete;
    Xlator& operator=(const Xlator&) = delete;

    // The text in the user's language; the source text (UTF-8) while no struct is bound.
    QString text(const std::string& key, const char* sourceText) const;

    // The UTF-8 locale for a locale name: "de_DE" gives that of "de_DE.UTF-8". Each name is generated
    // once and then served from a cache, which only grows. The first one costs tens of milliseconds.
    // The reference is good for as long as the translator lives.
    const std::locale& locale(const std::string& name);

 private:
    friend void configure_xlator(Xlator&, const std::string&);
    struct Implementation;
    struct Locales;  // in a file of its own: only a program that asks for a locale loads Boost.Locale
    std::shared_ptr<Implementation> implementation_;
    std::shared_ptr<Locales> locales_;  // made with the first one
};

// Binds the translator to the struct whose fields are translated; its qualified name begins every key.
void configure_xlator(Xlator& xlator, const std::string& structName);

}  // namespace tiv::translation
