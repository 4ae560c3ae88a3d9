<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>Dialog</name>
    <message>
        <source>Elements of the new project</source>
        <translation>Elemente des neuen Projekts</translation>
    </message>
    <message>
        <source>&amp;Quadrilaterals:</source>
        <translation>&amp;Viereckelemente:</translation>
    </message>
    <message>
        <source>S&amp;olids:</source>
        <translation>V&amp;olumenelemente:</translation>
    </message>
    <message>
        <source>&amp;Beams:</source>
        <translation>&amp;Stäbe:</translation>
    </message>
    <message>
        <source>&amp;Cables:</source>
        <translation>S&amp;eile:</translation>
    </message>
    <message>
        <source>&amp;Springs:</source>
        <translation>&amp;Federn:</translation>
    </message>
    <message>
        <source>New analysis task</source>
        <translation>Neue Berechnungsaufgabe</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>&amp;Program:</source>
        <translation>&amp;Programm:</translation>
    </message>
    <message>
        <source>A task of this name already exists.</source>
        <translation>Es gibt bereits eine Aufgabe dieses Namens.</translation>
    </message>
</context>
<context>
    <name>EditWindow</name>
    <message>
        <source>%1 was changed by another program. Save over it?</source>
        <translation>%1 wurde von einem anderen Programm geändert. Trotzdem speichern?</translation>
    </message>
    <message>
        <source>%1 has unsaved changes.</source>
        <translation>%1 hat ungespeicherte Änderungen.</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>Cross sections, ultimate limit state</source>
        <translation>Querschnitte, Bruchzustand</translation>
    </message>
    <message>
        <source>Cross sections, crack width</source>
        <translation>Querschnitte, Rissbreite</translation>
    </message>
    <message>
        <source>Cross sections, elastic-plastic</source>
        <translation>Querschnitte, elastisch-plastisch</translation>
    </message>
    <message>
        <source>Finite elements, static analysis</source>
        <translation>Finite Elemente, Statik</translation>
    </message>
    <message>
        <source>Finite elements, eigenvalues</source>
        <translation>Finite Elemente, Eigenwerte</translation>
    </message>
    <message>
        <source>Design of quadrilaterals, ultimate limit state</source>
        <translation>Bemessung der Viereckelemente, Bruchzustand</translation>
    </message>
    <message>
        <source>Design of quadrilaterals, serviceability</source>
        <translation>Bemessung der Viereckelemente, Gebrauchszustand</translation>
    </message>
    <message>
        <source>Construction stages</source>
        <translation>Bauabschnitte</translation>
    </message>
    <message>
        <source>Earthquake and vibration</source>
        <translation>Erdbeben und Schwingungen</translation>
    </message>
    <message>
        <source>Superposition</source>
        <translation>Überlagerung</translation>
    </message>
    <message>
        <source>Beam statics</source>
        <translation>Stabstatik</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Belastung</translation>
    </message>
    <message>
        <source>Without output options</source>
        <translation>Ohne Ausgabeoptionen</translation>
    </message>
    <message>
        <source>Load trains</source>
        <translation>Lastenzüge</translation>
    </message>
    <message>
        <source>Unknown program</source>
        <translation>Unbekanntes Programm</translation>
    </message>
</context>
<context>
    <name>Reason</name>
    <message>
        <source>already exists</source>
        <translation>gibt es bereits</translation>
    </message>
    <message>
        <source>no file name</source>
        <translation>kein Dateiname</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>Datei nicht vorhanden</translation>
    </message>
    <message>
        <source>not a file</source>
        <translation>keine Datei</translation>
    </message>
    <message>
        <source>not a project</source>
        <translation>kein Projekt</translation>
    </message>
    <message>
        <source>project format %1, expected %2</source>
        <translation>Projektformat %1 statt %2</translation>
    </message>
    <message>
        <source>attempt to write a readonly database</source>
        <translation>die Projektdatei ist schreibgeschützt</translation>
    </message>
    <message>
        <source>database is locked</source>
        <translation>die Projektdatei ist gesperrt</translation>
    </message>
    <message>
        <source>database or disk is full</source>
        <translation>der Datenträger ist voll</translation>
    </message>
    <message>
        <source>disk I/O error</source>
        <translation>Fehler beim Lesen oder Schreiben</translation>
    </message>
    <message>
        <source>file is not a database</source>
        <translation>die Datei ist keine Projektdatei</translation>
    </message>
    <message>
        <source>unable to open database file</source>
        <translation>die Projektdatei lässt sich nicht öffnen</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>Datei zu groß</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>ist ein Ordner</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>der Datenträger ist voll</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>Datei oder Ordner nicht vorhanden</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>keine Berechtigung</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>der Datenträger ist schreibgeschützt</translation>
    </message>
    <message>
        <source>%1 records instead of one</source>
        <translation>%1 Datensätze statt eines</translation>
    </message>
    <message>
        <source>JSON parser error: %1 at offset %2</source>
        <translation>JSON-Fehler bei Byte %2: %1</translation>
    </message>
    <message>
        <source>Max recursion depth exceeded</source>
        <translation>zu tief verschachtelt</translation>
    </message>
    <message>
        <source>Read out of bounds: %1 bytes requested, offset: %2, length: %3</source>
        <translation>%1 Bytes erwartet, aber der Text endet: Stelle %2 von %3</translation>
    </message>
    <message>
        <source>Unknown data type found</source>
        <translation>unbekannter Datentyp</translation>
    </message>
    <message>
        <source>the file is damaged</source>
        <translation>die Datei ist beschädigt</translation>
    </message>
    <message>
        <source>no such table: %1</source>
        <translation>Tabelle %1 fehlt</translation>
    </message>
    <message>
        <source>invalid number of %1</source>
        <translation>ungültige Anzahl: %1</translation>
    </message>
    <message>
        <source>the file was replaced</source>
        <translation>die Datei wurde ersetzt</translation>
    </message>
    <message>
        <source>quads</source>
        <translation>Viereckelemente</translation>
    </message>
    <message>
        <source>brics</source>
        <translation>Volumenelemente</translation>
    </message>
    <message>
        <source>beams</source>
        <translation>Stäbe</translation>
    </message>
    <message>
        <source>cables</source>
        <translation>Seile</translation>
    </message>
    <message>
        <source>springs</source>
        <translation>Federn</translation>
    </message>
    <message>
        <source>database disk image is malformed</source>
        <translation>die Projektdatei ist beschädigt</translation>
    </message>
    <message>
        <source>longer than 64 MiB</source>
        <translation>länger als 64 MiB</translation>
    </message>
    <message>
        <source>no such folder</source>
        <translation>Ordner nicht vorhanden</translation>
    </message>
    <message>
        <source>too many links</source>
        <translation>zu viele Verknüpfungen</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>das Speicherkontingent ist erschöpft</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>Dateiname zu lang</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>Fehler beim Lesen oder Schreiben</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>kein Ordner</translation>
    </message>
    <message>
        <source>Too many levels of symbolic links</source>
        <translation>zu viele Verknüpfungen</translation>
    </message>
    <message>
        <source>The document is empty.</source>
        <translation>kein Text</translation>
    </message>
    <message>
        <source>The document root must not be followed by other values.</source>
        <translation>Text nach dem Ende</translation>
    </message>
    <message>
        <source>Invalid value.</source>
        <translation>ungültiger Wert</translation>
    </message>
    <message>
        <source>Missing a name for object member.</source>
        <translation>Name fehlt</translation>
    </message>
    <message>
        <source>Missing a colon after a name of object member.</source>
        <translation>Doppelpunkt fehlt</translation>
    </message>
    <message>
        <source>Missing a comma or &apos;}&apos; after an object member.</source>
        <translation>Komma oder } fehlt</translation>
    </message>
    <message>
        <source>Missing a comma or &apos;]&apos; after an array element.</source>
        <translation>Komma oder ] fehlt</translation>
    </message>
    <message>
        <source>Incorrect hex digit after \u escape in string.</source>
        <translation>falsche Ziffer nach \u</translation>
    </message>
    <message>
        <source>The surrogate pair in string is invalid.</source>
        <translation>ungültiges Surrogatpaar</translation>
    </message>
    <message>
        <source>Invalid escape character in string.</source>
        <translation>ungültiges Zeichen nach \</translation>
    </message>
    <message>
        <source>Missing a closing quotation mark in string.</source>
        <translation>schließendes Anführungszeichen fehlt</translation>
    </message>
    <message>
        <source>Invalid encoding in string.</source>
        <translation>ungültige Zeichenkodierung</translation>
    </message>
    <message>
        <source>Number too big to be stored in double.</source>
        <translation>Zahl zu groß</translation>
    </message>
    <message>
        <source>Miss fraction part in number.</source>
        <translation>Nachkommastellen fehlen</translation>
    </message>
    <message>
        <source>Miss exponent in number.</source>
        <translation>Exponent fehlt</translation>
    </message>
</context>
<context>
    <name>echohost::MainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;New project…</source>
        <translation>&amp;Neues Projekt …</translation>
    </message>
    <message>
        <source>&amp;Open project…</source>
        <translation>Projekt ö&amp;ffnen …</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Export ECHO lines…</source>
        <translation>ECHO-Zeilen &amp;exportieren …</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Task</source>
        <translation>&amp;Aufgabe</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Hinzufügen …</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>An&amp;sicht</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Sprache</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Dunkel</translation>
    </message>
    <message>
        <source>Use defaults</source>
        <translation>Standardwerte übernehmen</translation>
    </message>
    <message>
        <source>Task</source>
        <translation>Aufgabe</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programm</translation>
    </message>
    <message>
        <source>German keywords</source>
        <translation>Deutsche Schlüsselwörter</translation>
    </message>
    <message>
        <source>English keywords</source>
        <translation>Englische Schlüsselwörter</translation>
    </message>
    <message>
        <source>Options as set</source>
        <translation>Optionen wie gewählt</translation>
    </message>
    <message>
        <source>All options off</source>
        <translation>Alle Optionen aus</translation>
    </message>
    <message>
        <source>All options full</source>
        <translation>Alle Optionen voll</translation>
    </message>
    <message>
        <source>Tasks</source>
        <translation>Aufgaben</translation>
    </message>
    <message>
        <source>Language of the keywords</source>
        <translation>Sprache der Schlüsselwörter</translation>
    </message>
    <message>
        <source>Options to print</source>
        <translation>Auszugebende Optionen</translation>
    </message>
    <message>
        <source>ECHO lines</source>
        <translation>ECHO-Zeilen</translation>
    </message>
    <message>
        <source>Recent &amp;projects</source>
        <translation>Zuletzt geöffnete &amp;Projekte</translation>
    </message>
    <message>
        <source>Save &amp;as…</source>
        <translation>Speichern &amp;unter …</translation>
    </message>
    <message>
        <source>Re&amp;name…</source>
        <translation>&amp;Umbenennen …</translation>
    </message>
    <message>
        <source>&amp;Duplicate…</source>
        <translation>&amp;Duplizieren …</translation>
    </message>
    <message>
        <source>&amp;Copy ECHO lines</source>
        <translation>ECHO-Zeilen &amp;kopieren</translation>
    </message>
    <message>
        <source>Options with a numeric level write no ECHO line.</source>
        <translation>Optionen mit Zahlenstufe schreiben keine ECHO-Zeile.</translation>
    </message>
    <message>
        <source>Assertion failed: %1</source>
        <translation>Zusicherung verletzt: %1</translation>
    </message>
    <message>
        <source>Projects (*.tiv)</source>
        <translation>Projekte (*.tiv)</translation>
    </message>
    <message>
        <source>New project</source>
        <translation>Neues Projekt</translation>
    </message>
    <message>
        <source>Open project</source>
        <translation>Projekt öffnen</translation>
    </message>
    <message>
        <source>You have changed the task &quot;%1&quot;. Another program has changed or removed it, too.</source>
        <translation>Sie haben die Aufgabe „%1“ geändert. Ein anderes Programm hat sie ebenfalls geändert oder entfernt.</translation>
    </message>
    <message>
        <source>Keep &amp;mine</source>
        <translation>&amp;Meine behalten</translation>
    </message>
    <message>
        <source>Take &amp;theirs</source>
        <translation>&amp;Andere übernehmen</translation>
    </message>
    <message>
        <source>Save project as</source>
        <translation>Projekt speichern unter</translation>
    </message>
    <message>
        <source>%1 has unsaved changes.</source>
        <translation>%1 hat ungespeicherte Änderungen.</translation>
    </message>
    <message>
        <source>Export ECHO lines</source>
        <translation>ECHO-Zeilen exportieren</translation>
    </message>
    <message>
        <source>Rename the task</source>
        <translation>Aufgabe umbenennen</translation>
    </message>
    <message>
        <source>Duplicate the task</source>
        <translation>Aufgabe duplizieren</translation>
    </message>
    <message>
        <source>Remove the task &quot;%1&quot; and its settings?</source>
        <translation>Die Aufgabe „%1“ und ihre Einstellungen entfernen?</translation>
    </message>
    <message>
        <source>No task is selected.</source>
        <translation>Keine Aufgabe ausgewählt.</translation>
    </message>
    <message>
        <source>The stored settings cannot be read: %1. They are kept until you change an option or use the defaults.</source>
        <translation>Die gespeicherten Einstellungen sind nicht lesbar: %1. Sie bleiben erhalten, bis Sie eine Option ändern oder die Standardwerte übernehmen.</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Neu</translation>
    </message>
</context>
</TS>
