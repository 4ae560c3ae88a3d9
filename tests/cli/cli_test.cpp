// The built tool as its users run it: in a folder of its own, without a display.
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <map>

namespace {

struct Result {
    int exitCode;
    std::string out;
    std::string error;
};

class EchotableTool : public testing::Test {
 protected:
    Result run(const std::string& command, const QByteArray& input = {}, const QString& sink = {}) const {
        QProcess process;
        auto environment = QProcessEnvironment::systemEnvironment();
        for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) environment.remove(name);
        environment.insert("LC_ALL", "C");
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(folder.path());
        if (!sink.isNull()) process.setStandardOutputFile(sink);
        process.start(TIV_ECHOTABLE, QProcess::splitCommand(QString::fromStdString(command)));
        process.write(input);
        process.closeWriteChannel();
        EXPECT_TRUE(process.waitForFinished()) << process.errorString().toStdString();
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit) << command;
        return {process.exitCode(),
            process.readAllStandardOutput().toStdString(),
            process.readAllStandardError().toStdString()};
    }

    // What the tool prints when all is well.
    std::string output(
        const std::string& command, const QByteArray& input = {}, const std::string& warnings = {}) const {
        const Result result = run(command, input);
        EXPECT_EQ(result.exitCode, 0) << command;
        EXPECT_EQ(result.error, warnings) << command;
        return result.out;
    }

    QJsonDocument json(const std::string& command) const {
        return QJsonDocument::fromJson(QByteArray::fromStdString(output(command + " --json")));
    }

    void write(const QString& name, const QByteArray& bytes) const {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }

    std::map<QString, QByteArray> files() const {
        std::map<QString, QByteArray> contents;
        for (const QString& name : QDir(folder.path()).entryList(QDir::Files)) {
            QFile file(folder.filePath(name));
            EXPECT_TRUE(file.open(QIODevice::ReadOnly));
            contents[name] = file.readAll();
        }
        return contents;
    }

    const QTemporaryDir folder;
};

TEST_F(EchotableTool, TakesAProjectFromItsOptionsToItsInputLines) {
    const struct {
        const char* command;
        const char* out;
        const char* warnings = "";
    } rows[] = {
        {"project create Brücke.tiv --quads 48 --beams 36 --springs 0", ""},
        {"set 3 full=normal prop.esk_reac=full nost=4 bedd=#-7 --output S", ""},
        {"set esk full=no load=EXTENSIVE_OUTPUT --settings S --output S", ""},
        {"project store Brücke.tiv \"Static analysis\" esk --settings S", ""},
        {"project store Brücke.tiv spare 12", ""},
        {"project store Brücke.tiv load rova", ""},
        {"project info Brücke.tiv",
            "ELEMENTS  COUNT\n"
            "quads     48\n"
            "brics     0\n"
            "beams     36\n"
            "cables    0\n"
            "springs   0\n"
            "\n"
            "TASK             PROGRAM  SETTINGS\n"
            "Static analysis  esk      ChACUAiQBtAICtAJDQAA\n"
            "spare            kurta\n"
            "load             rova     CgAA\n"},
        {"project load Brücke.tiv \"Static analysis\" --output S2", ""},
        {"project load Brücke.tiv spare", ""},
        {"telinp esk --settings S2 --project Brücke.tiv --language de",
            "ECHO OPT VOLL WERT NEIN $ Voreinstellung aller Optionen\n"
            "ECHO OPT LAST WERT EXTR $ Lasten\n"
            "ECHO OPT REAK WERT VOLL $ Auflagerreaktionen\n",
            "echotable: warning: nost: the level 4 has no keyword, its line is left out\n"
            "echotable: warning: bedd: the level #-7 has no keyword, its line is left out\n"},
        {"telinp esk --settings S2 --all-off --project Brücke.tiv",
            "ECHO FULL NO $ no output of text lists\n"},
        {"telinp esk --all-full --language de", "ECHO VOLL VOLL $ erweiterte Ausgabe von Textlisten\n"},
        {"telinp kurta", ""},
    };
    for (const auto& row : rows) EXPECT_EQ(output(row.command, {}, row.warnings), row.out) << row.command;
    EXPECT_EQ(files()["S2"], "ChACUAiQBtAICtAJDQAA\n");

    const QJsonObject info = json("project info Brücke.tiv").object();
    EXPECT_EQ(info["elements"].toObject()["quads"], 48);
    EXPECT_EQ(info["tasks"].toArray()[2],
        (QJsonObject{{"name", "load"}, {"program", "rova"}, {"number", 13}, {"settings", "CgAA\n"}}));
}

TEST_F(EchotableTool, ShowsTheProgramsAndTheirOptions) {
    EXPECT_EQ(output("programs"),
        "NUMBER  NAME         OPTIONS\n"
        "0       qsx.bruc     full shea lc desi rein\n"
        "1       qsx.riss     full shea lc nstr crac\n"
        "2       qsx.elpl     full sect forc lc stre tabs nstr usep\n"
        "3       esk          full grp load lsum esk_reac line disp esk_forc nost bedd\n"
        "4       esk.eige     full eige grp\n"
        "5       dimvel.bruc  full para beme rtab indx dmom punc\n"
        "6       dimvel.riss  full para beme rtab indx sigs dehn\n"
        "7       kst          cs grp lc\n"
        "8       vibr         full disp velo acce node elem mass eige forc\n"
        "9       mexora       mexora_full mexora_tabs mexora_load\n"
        "10      plax2        full node beam spri boun sect mat load forc defo bdef reac rein nstr step\n"
        "11      tiviload     full act load\n"
        "12      kurta\n"
        "13      rova         rova_load rova_eval rova_lpos rova_res\n");
    EXPECT_EQ(json("programs").array()[7],
        (QJsonObject{{"number", 7}, {"name", "kst"}, {"options", QJsonArray{"cs", "grp", "lc"}}}));

    EXPECT_EQ(output("show mexora --settings -", R"({"prop":{"mexora_tabs":99,"mexora_load":0}})"),
        "KEY               LABEL                                                        ENGLISH  GERMAN  "
        "LEVEL    OFFERED            APPLICABLE\n"
        "prop.mexora_full  Default of all other options                                 FULL     VOLL    "
        "default  default no full    yes\n"
        "prop.mexora_tabs  General tables of the combinations and generated load cases  TABS     TABU    "
        "#99      default no normal  yes\n"
        "prop.mexora_load  Used load cases                                              LOAD     LAST    "
        "default  default no normal  yes\n");
    EXPECT_EQ(json("show plax2 --elements brics,beams").array()[3],
        (QJsonObject{{"key", "prop.spri"},
            {"label", "Spring elements (structures)"},
            {"english", "SPRI"},
            {"german", "MAT"},
            {"level", "default"},
            {"value", 0},
            {"offered", QJsonArray{"default", "no", "normal", "full", "extensive"}},
            {"applicable", false}}));
    const QByteArray springs = QByteArray::fromStdString(output("set plax2 spri=full"));
    EXPECT_EQ(output("telinp plax2 --elements none --settings -", springs), "");
    EXPECT_EQ(output("telinp plax2 --elements springs --settings -", springs),
        "ECHO OPT SPRI VAL FULL $ Spring elements (structures)\n");
}

TEST_F(EchotableTool, ReadsLevelsAndSettingsInEveryForm) {
    const QByteArray two = "CgAA\r\n\r\nChAGAAA=";
    const char* reset =
        "echotable: warning: standard input: 2 records instead of one, every option was reset\n";
    const char16_t wide[] = u"\ufeff{\"prop\":{\"full\":3}}\r\n";
    const struct {
        const char* arguments;
        QByteArray settings;
        const char* out;
        const char* warnings = "";
    } rows[] = {
        {"nost=SEVEN", "", "CtAIEAAA\n"},
        {"nost=7", "", "CtAIEAAA\n"},
        {"nost=#8", "", "CtAIEAAA\n"},
        {"line=#4 line=#8 line=default", "", "CgAA\n"},
        {"full=#2147483647 grp=#-2147483648", "", "ChD+////DzD/////DwAA\n"},
        {"grp=no", "ChAGAAA=", "ChAGMAIAAA==\n"},
        {"", "\xef\xbb\xbf{\"prop\":{\"full\":3}}\r\n\r\n", "ChAGAAA=\n"},
        {"", QByteArray(reinterpret_cast<const char*>(wide), sizeof(wide) - 2), "ChAGAAA=\n"},
        {"", two, "CgAA\n", reset},
        {"full=full", two, "ChAGAAA=\n", reset},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(
            output(std::string("set esk --settings - ") + row.arguments, row.settings, row.warnings), row.out)
            << row.arguments << ' ' << row.settings.toStdString();
    }
}

TEST_F(EchotableTool, SaysInOneLineWhatWentWrongAndChangesNothing) {
    output("project create P --quads 1");
    output("project store P task esk");
    output("set esk full=no --output S");
    write("bad", "*");
    write("text", "{\"prop\":");
    QByteArray newer = files()["P"];
    newer[63] = 2;  // the last byte of the format's number
    write("newer", newer);
    QDir(folder.path()).mkdir("folder");

    const std::string programs =
        "qsx.bruc, qsx.riss, qsx.elpl, esk, esk.eige, dimvel.bruc, dimvel.riss, kst, vibr, mexora, plax2, "
        "tiviload, kurta, rova, or a number from 0 to 13";
    const std::string kinds = "a list of quads, brics, beams, cables, springs; all or none";
    const struct {
        const char* verb;
        const char* arguments;
        int exitCode;
        std::string error;  // between "echotable: " and the hint at the help
    } rows[] = {
        {"show", "esk --settings missing", 1, "missing: No such file or directory"},
        {"show", "esk --settings folder", 1, "folder: file to open is a directory"},
        {"set", "esk --settings bad", 1, "bad: Read out of bounds: 1 bytes requested, offset: 0, length: 0"},
        {"telinp", "esk --settings text", 1, "text: JSON parser error: Invalid value. at offset 8"},
        {"edit", "esk --settings S", 1, "edit needs a display"},
        {"show", "esk --project missing", 1, "missing: no such file"},
        {"telinp", "esk --project bad", 1, "bad: not a project"},
        {"project info", "newer", 1, "newer: project format 2, expected 1"},
        {"project create", "P --quads 5", 1, "P: already exists"},
        {"project create", "folder/missing/P", 1, "folder/missing/P: unable to open database file"},
        {"project store",
            "P task esk --settings bad",
            1,
            "bad: Read out of bounds: 1 bytes requested, offset: 0, length: 0"},
        {"project load", "P other", 1, "P: no task \"other\", expected task"},
        {"set",
            "esk --settings bad --output S",
            1,
            "bad: Read out of bounds: 1 bytes requested, offset: 0, length: 0"},
        {"set", "esk full=full --output missing/S", 1, "missing/S: No such file or directory"},
        {"project load", "P task --output folder", 1, "folder: not a file"},

        {"show", "14", 2, "unknown program \"14\", expected " + programs},
        {"project store", "P task Esk", 2, "unknown program \"Esk\", expected " + programs},
        {"set", "kst cs=no lcs=no --output S", 2, "unknown option \"lcs\", expected cs, grp or lc"},
        {"set",
            "esk grp=no line=extensive --settings S --output S",
            2,
            "line does not offer the level \"extensive\", expected default, no, normal or full, or #NUMBER"},
        {"set",
            "mexora mexora_full=2",
            2,
            "mexora_full does not offer the level \"2\", expected default, no or full, or #NUMBER"},
        {"set",
            "mexora mexora_load=#2147483648",
            2,
            "mexora_load does not offer the level \"#2147483648\", expected default, no or normal, or #NUMBER"},
        {"set", "esk full", 2, "expected KEY=LEVEL, got \"full\""},
        {"set", "kurta --output S", 2, "kurta has no options"},
        {"telinp", "esk --elements quads,beam", 2, "unknown kind of element \"beam\", expected " + kinds},
        {"show", "esk --elements all --project P", 2, "--project and --elements exclude each other"},
        {"telinp", "esk --all-off --all-full", 2, "--all-off and --all-full exclude each other"},
        {"telinp", "esk --language fr", 2, "unknown language \"fr\", expected de or en"},
        {"project create", "Q --beams -1", 2, "--beams: expected a number from 0 to 2147483647, got \"-1\""},
        {"project create", ":memory:", 2, "expected the name of a file, got :memory:"},
        {"project load", "P", 2, "NAME is missing"},
        {"programs", "esk", 2, "unexpected argument \"esk\""},
        {"show", "esk --output S", 2, "Unknown option 'output'"},
        {"set", "esk --settings", 2, "Missing value after '--settings'"},
        {"",
            "project",
            2,
            "unknown verb \"project\", expected programs, show, set, telinp, edit, project create, "
            "project info, project store or project load"},
    };
    const auto before = files();
    for (const auto& row : rows) {
        const std::string verb = *row.verb ? row.verb + std::string(" ") : "";
        const std::string hint = row.exitCode == 2 ? " (see echotable " + verb + "--help)" : "";
        const Result result = run(verb + row.arguments);
        EXPECT_EQ(result.exitCode, row.exitCode) << row.arguments;
        EXPECT_EQ(result.out, "") << row.arguments;
        EXPECT_EQ(result.error, "echotable: " + row.error + hint + "\n");
        EXPECT_EQ(files(), before) << row.arguments;
    }
}

TEST_F(EchotableTool, ReportsAFullDevice) {
    if (!QFile::exists("/dev/full")) GTEST_SKIP() << "no such device here";
    const Result result = run("programs", {}, "/dev/full");
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.error, "echotable: standard output: No space left on device\n");
}

TEST_F(EchotableTool, ExplainsEveryVerbAndTheManPageKnowsItAll) {
    QFile page(TIV_MAN_PAGE);
    ASSERT_TRUE(page.open(QIODevice::ReadOnly));
    const QString manual = QString::fromUtf8(page.readAll()).remove('\\');
    for (const char* verb : {"programs",
             "show",
             "set",
             "telinp",
             "edit",
             "project create",
             "project info",
             "project store",
             "project load"}) {
        const std::string help = output(std::string(verb) + " --help");
        EXPECT_EQ(help.rfind(std::string("Usage: echotable ") + verb, 0), 0u) << help;
        EXPECT_TRUE(manual.contains(QString("echotable ") + verb)) << verb;
        EXPECT_EQ(output(std::string(verb) + " --version"), "echotable " TIV_VERSION "\n");
        auto options = QRegularExpression("--[a-z-]+").globalMatch(QString::fromStdString(help));
        while (options.hasNext()) {
            const QString option = options.next().captured();
            EXPECT_TRUE(manual.contains(option)) << option.toStdString();
        }
    }
}

}  // namespace
