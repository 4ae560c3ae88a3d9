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
    <name>Project</name>
    <message>
        <source>%1 records instead of one</source>
        <translation>%1 Datensätze statt eines</translation>
    </message>
    <message>
        <source>A task needs a name.</source>
        <translation>Eine Aufgabe braucht einen Namen.</translation>
    </message>
    <message>
        <source>There is a task &quot;%1&quot; already.</source>
        <translation>Es gibt bereits eine Aufgabe „%1“.</translation>
    </message>
</context>
<context>
    <name>echohost::MainWindow</name>
    <message>
        <source>Assertion failed: %1</source>
        <translation>Zusicherung verletzt: %1</translation>
    </message>
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
        <source>New project</source>
        <translation>Neues Projekt</translation>
    </message>
    <message>
        <source>Projects (*.tiv)</source>
        <translation>Projekte (*.tiv)</translation>
    </message>
    <message>
        <source>Open project</source>
        <translation>Projekt öffnen</translation>
    </message>
    <message>
        <source>%1 has unsaved changes.</source>
        <translation>%1 enthält ungesicherte Änderungen.</translation>
    </message>
    <message>
        <source>Export ECHO lines</source>
        <translation>ECHO-Zeilen exportieren</translation>
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
</context>
</TS>
