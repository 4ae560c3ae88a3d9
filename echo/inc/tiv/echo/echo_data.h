// The echo table of one analysis program: which results its report prints, and how much of each.
// The one exported class of the library tiv_echotable.
//
//     tiv::echo::EchoData echo(tiv::echo::EchoData::ESK, database);
//     echo.insertXMLData(savedSettings);                       // from an earlier getXMLData()
//     layout->addWidget(echo.createPropertyInspector(this));   // the engineer's edits go into `echo`
//     savedSettings = echo.getXMLData();
//     for (const QString& line : echo.getTELINP(false, false, 1)) input << line << '\n';
//
// Every call comes from the user-interface thread. A QApplication exists while inspectors do.
#pragma once

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

class QWidget;

namespace tiv::echo {

namespace data {
class InternalInterface;
}

class TIV_ECHOTABLE_EXPORT EchoData : public QObject {
    // The translation context is "EchoData"; Q_OBJECT would make it "tiv::echo::EchoData".
    Q_DECLARE_TR_FUNCTIONS(EchoData)

 public:
    // One task of one analysis program.
    enum ProgrammTypes : std::uint32_t {  // sic
        QSX_BRUC = 0,                     // cross sections
        QSX_RISS = 1,
        QSX_ELPL = 2,
        ESK = 3,          // finite elements, static analysis
        ESK_EIGE = 4,     // finite elements, eigenvalues
        DIMVEL_BRUC = 5,  // design of quadrilateral elements
        DIMVEL_RISS = 6,
        KST = 7,        // construction stages
        VIBR = 8,       // earthquake and vibration
        MEXORA = 9,     // superposition
        PLAX2 = 10,     // beam statics
        TIVILOAD = 11,  // loading
        KURTA = 12,     // has no options
        ROVA = 13,      // load trains
    };

    // `database` is the handle of the open project database. It is asked here, and never again, which
    // kinds of element the project holds. An unknown `type` is reported as a failed assertion and
    // gives an object without options.
    EchoData(ProgrammTypes type, int database);
    ~EchoData() override;

    // A new widget that shows the options applicable to the project and writes each choice straight
    // into this object. The caller, or `parent`, owns it. Any number of inspectors may show the same
    // options. Widget, parent and EchoData may be destroyed in any order. The widget has a signal
    // settingsChanged(), for a host that shows what follows from the settings:
    //     connect(inspector, SIGNAL(settingsChanged()), this, SLOT(updatePreview()));
    QWidget* createPropertyInspector(QWidget* parent);

    // The input lines of the analysis program, without line ends; none for an option at its program's
    // default, for one that does not apply to the project, or for a level without a keyword (reported
    // as a failed assertion).
    // `defaultsOnly`: instead, the one line that sets all options at once, whatever is stored;
    // `extensive` then asks for full output, otherwise for none.
    // `language`: 0 German keywords, else English. The comment after "$" follows the application.
    std::vector<QString> getTELINP(bool defaultsOnly, bool extensive, int language);

    // The settings string: one base64 line closed by a line feed, "CgAA\n" with nothing set. Null for
    // a program without options.
    QString getXMLData();

    // Replaces all settings by those of a settings string, or of its JSON form. A text without a
    // record, or with more than one, resets every option. Ignored for a program without options.
    // Throws bond::StreamException, bond::CoreException (bond/exceptions.h) when the text cannot be
    // read, and std::runtime_error while a transaction on the settings is open; the settings are then
    // unchanged and no inspector was told.
    void insertXMLData(const QString& text);

 private:
    std::shared_ptr<data::InternalInterface> data;
};

}  // namespace tiv::echo
