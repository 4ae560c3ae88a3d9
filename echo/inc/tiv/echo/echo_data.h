/// \file
/// The echo table of one analysis program: which results its report prints, and how much of each.
/// The one exported class of the library tiv_echotable.
///
///     tiv::echo::EchoData echo(tiv::echo::EchoData::ESK, database);
///     echo.insertXMLData(savedSettings);                       // from an earlier getXMLData()
///     layout->addWidget(echo.createPropertyInspector(this));   // the engineer's edits go into `echo`
///     savedSettings = echo.getXMLData();
///     for (const QString& line : echo.getTELINP(false, false, 1)) input << line << '\n';
///
/// Every call comes from the user-interface thread. A QApplication exists while inspectors do.
#pragma once

#if (defined(_MSVC_LANG) ? _MSVC_LANG : __cplusplus) < 201703L
#error "tiv_echotable needs C++17: compile with -std=c++17 or later."
#endif

#include <QCoreApplication>
#include <QObject>
#include <QString>

#include <cstdint>
#include <memory>
#include <vector>

#if defined(TIV_ECHOTABLE_STATIC)
#define TIV_ECHOTABLE_EXPORT
#elif defined(tiv_echotable_EXPORTS)
#define TIV_ECHOTABLE_EXPORT Q_DECL_EXPORT
#else
#define TIV_ECHOTABLE_EXPORT Q_DECL_IMPORT
#endif

#if defined(TIV_ECHOTABLE_QT) && TIV_ECHOTABLE_QT != QT_VERSION_MAJOR
#error "This tiv_echotable was built with another major version of Qt than the host."
#endif

class QWidget;

/// Echo tables.
namespace tiv::echo {

namespace data {
class InternalInterface;
}

/// The options of one task of one analysis program, each with its level. Texts for the engineer are
/// translated by tr() and trUtf8() in the context "EchoData".
class TIV_ECHOTABLE_EXPORT EchoData : public QObject {
    // The translation context is "EchoData"; Q_OBJECT would make it "tiv::echo::EchoData".
    Q_DECLARE_TR_FUNCTIONS(EchoData)

 public:
#if QT_VERSION_MAJOR >= 6  // where the macro declares tr() only
    /// The same as tr().
    static QString trUtf8(const char* text, const char* disambiguation = nullptr, int n = -1) {
        return tr(text, disambiguation, n);
    }
#endif

    /// One task of one analysis program. (sic: hosts use this spelling.)
    enum ProgrammTypes : std::uint32_t {
        QSX_BRUC = 0,     ///< cross sections, ultimate limit state
        QSX_RISS = 1,     ///< cross sections, crack width
        QSX_ELPL = 2,     ///< cross sections, elastic-plastic
        ESK = 3,          ///< finite elements, static analysis
        ESK_EIGE = 4,     ///< finite elements, eigenvalues
        DIMVEL_BRUC = 5,  ///< design of quadrilateral elements, ultimate limit state
        DIMVEL_RISS = 6,  ///< design of quadrilateral elements, serviceability
        KST = 7,          ///< construction stages
        VIBR = 8,         ///< earthquake and vibration
        MEXORA = 9,       ///< superposition
        PLAX2 = 10,       ///< beam statics
        TIVILOAD = 11,    ///< loading
        KURTA = 12,       ///< has no options
        ROVA = 13,        ///< load trains
    };

    /// Every option at its program's default. Reads from the database, once, which kinds of element the
    /// project holds: an option that needs quads, beams or springs applies if there are any.
    /// \param type an unknown one is reported as a failed assertion, `0 && "invalid prog_type"` at
    ///     echo/src/internal_data:120, and gives an object without options.
    /// \param database the handle of the open project (tiv/dbo/dbo.h). It may be closed afterwards.
    /// \throws std::runtime_error "<path>: <reason>" where the project file cannot be read.
    EchoData(ProgrammTypes type, int database);

    /// Inspectors may outlive it: their rows can still be read, and refuse edits.
    ~EchoData() override;

    /// A new widget that shows the options applicable to the project and writes each choice straight
    /// into this object. Any number of inspectors may show the same options. Widget, parent and EchoData
    /// may be destroyed in any order.
    ///
    /// The widget has a signal settingsChanged(), sent after each change of the settings, whatever
    /// the cause. Its class is internal to the library, so a host connects by name:
    ///
    ///     connect(inspector, SIGNAL(settingsChanged()), this, SLOT(updatePreview()));
    ///
    /// \param parent null, or the widget that owns the new one.
    /// \returns a widget that the caller owns unless `parent` does; never null.
    QWidget* createPropertyInspector(QWidget* parent);

    /// The input lines of the analysis program: one for each option that applies to the project and is
    /// not at level 0 ("Default output"). A level without a keyword (below 0, or above 4) gives no line
    /// and is reported as a failed assertion, `0` at echo/src/utils:48.
    /// \param defaultsOnly instead, the one line that sets all options at once, whatever is stored.
    /// \param extensive with `defaultsOnly`: full output; otherwise none.
    /// \param language of the keywords: 0 German, any other English. The comment after "$" is in the
    ///     language of the application.
    /// \returns the lines in the program's order, without line ends; none for a program without options.
    std::vector<QString> getTELINP(bool defaultsOnly, bool extensive, int language);

    /// The settings, for the host to store and to pass to insertXMLData() later. (sic: it is not XML.)
    /// \returns one base64 line closed by a line feed, "CgAA\n" with every option at its program's
    ///     default; a null string for a program without options.
    QString getXMLData();

    /// Replaces all settings. A text without a record, or with more than one, resets every option to its
    /// program's default. Ignored for a program without options.
    /// \param text a settings string, or its JSON form; a line feed at its end is not needed.
    /// \throws bond::StreamException, bond::CoreException (bond/exceptions.h, with their texts) when the
    ///     text cannot be read, and std::runtime_error "Transaction in progress. Hierarchical transactions
    ///     not supported (yet). Should we?" (one line) while the settings are being changed. The settings
    ///     are then as they were, and no inspector is notified.
    void insertXMLData(const QString& text);

 private:
    std::shared_ptr<data::InternalInterface> data;
};

}  // namespace tiv::echo
