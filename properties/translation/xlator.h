// The translator of a property set, for its labels, tooltips and categories.
//
//     auto xlator = std::make_shared<Xlator>([](const std::string&, const char* s) { return tr(s); });
//     configure_xlator(*xlator, "tiv.echo.esk.Data");
//     xlator->text("prop.full", "Default of all options");   // "Voreinstellung aller Optionen"
//
// The lookup gets the whole key, "tiv.echo.esk.Data:prop.full", and the source text, and finds the
// translation by either of them. This class depends on no catalogue and no context.
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
    // The reference is valid as long as the translator lives.
    const std::locale& locale(const std::string& name);

 private:
    friend void configure_xlator(Xlator&, const std::string&);
    struct Implementation;
    struct Locales;  // defined in its own .cpp, so that Boost.Locale is linked only where locale() is used
    std::shared_ptr<Implementation> implementation_;
    std::shared_ptr<Locales> locales_;  // made for the first one
};

// Binds the translator to the struct whose fields are translated; its qualified name begins every key.
void configure_xlator(Xlator& xlator, const std::string& structName);

}  // namespace tiv::translation
