<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>EchoData</name>
    <message>
        <source>Default output</source>
        <translation>Standardausgabe</translation>
    </message>
    <message>
        <source>No output</source>
        <translation>Keine Ausgabe</translation>
    </message>
    <message>
        <source>Normal output</source>
        <translation>Normale Ausgabe</translation>
    </message>
    <message>
        <source>Full output</source>
        <translation>Vollständige Ausgabe</translation>
    </message>
    <message>
        <source>Extensive output</source>
        <translation>Erweiterte Ausgabe</translation>
    </message>
    <message>
        <source>no output of text lists</source>
        <translation>keine Ausgabe von Textlisten</translation>
    </message>
    <message>
        <source>extensive output of text lists</source>
        <translation>erweiterte Ausgabe von Textlisten</translation>
    </message>
    <message>
        <source>Default of all options</source>
        <translation>Voreinstellung aller Optionen</translation>
    </message>
    <message>
        <source>Default of all other options</source>
        <translation>Voreinstellung aller übrigen Optionen</translation>
    </message>
    <message>
        <source>Group parameters</source>
        <translation>Gruppenparameter</translation>
    </message>
    <message>
        <source>Loads</source>
        <translation>Lasten</translation>
    </message>
    <message>
        <source>Sum of loads</source>
        <translation>Lastsummen</translation>
    </message>
    <message>
        <source>Support reactions</source>
        <translation>Auflagerreaktionen</translation>
    </message>
    <message>
        <source>Distributed support reactions</source>
        <translation>Verteilte Auflagerreaktionen</translation>
    </message>
    <message>
        <source>Displacements</source>
        <translation>Verschiebungen</translation>
    </message>
    <message>
        <source>Internal forces and moments</source>
        <translation>Schnittgrößen</translation>
    </message>
    <message>
        <source>Internal forces and moments at nodes</source>
        <translation>Schnittgrößen in Knoten</translation>
    </message>
    <message>
        <source>Bedding stresses</source>
        <translation>Bettungsspannungen</translation>
    </message>
    <message>
        <source>Eigenvalues</source>
        <translation>Eigenwerte</translation>
    </message>
    <message>
        <source>Node coordinates, constraints</source>
        <translation>Knotenkoordinaten, Festhaltungen</translation>
    </message>
    <message>
        <source>Beams (structure)</source>
        <translation>Stäbe (System)</translation>
    </message>
    <message>
        <source>Spring elements (structures)</source>
        <translation>Federelemente (System)</translation>
    </message>
    <message>
        <source>Distributed supported elements (structures)</source>
        <translation>Verteilt gelagerte Elemente (System)</translation>
    </message>
    <message>
        <source>Cross Section values</source>
        <translation>Querschnittswerte</translation>
    </message>
    <message>
        <source>Material constants</source>
        <translation>Materialkennwerte</translation>
    </message>
    <message>
        <source>Beam deformations</source>
        <translation>Stabverformungen</translation>
    </message>
    <message>
        <source>Nodal displacements</source>
        <translation>Knotenverschiebungen</translation>
    </message>
    <message>
        <source>Reinforcements</source>
        <translation>Bewehrung</translation>
    </message>
    <message>
        <source>Strains and stiffnesses</source>
        <translation>Dehnungen und Steifigkeiten</translation>
    </message>
    <message>
        <source>Output of all iterations</source>
        <translation>Ausgabe aller Iterationen</translation>
    </message>
    <message>
        <source>Stresses, Utilisation Level, Flexural Buckling</source>
        <translation>Spannungen, Ausnutzungsgrad, Biegeknicken</translation>
    </message>
    <message>
        <source>Tabular summaries</source>
        <translation>Tabellarische Zusammenfassungen</translation>
    </message>
    <message>
        <source>Non-linear stresses</source>
        <translation>Nichtlineare Spannungen</translation>
    </message>
    <message>
        <source>Used participy factors</source>
        <translation>Ausnutzungsfaktoren</translation>
    </message>
    <message>
        <source>Individual loadcases</source>
        <translation>Einzelne Lastfälle</translation>
    </message>
    <message>
        <source>Shear design</source>
        <translation>Schubbemessung</translation>
    </message>
    <message>
        <source>Dimensioning</source>
        <translation>Bemessung</translation>
    </message>
    <message>
        <source>Limitation of crack width</source>
        <translation>Beschränkung der Rissbreite</translation>
    </message>
    <message>
        <source>Velocities</source>
        <translation>Geschwindigkeiten</translation>
    </message>
    <message>
        <source>Accelerations</source>
        <translation>Beschleunigungen</translation>
    </message>
    <message>
        <source>Nodal values</source>
        <translation>Knotenwerte</translation>
    </message>
    <message>
        <source>Elements</source>
        <translation>Elemente</translation>
    </message>
    <message>
        <source>Masses in nodes</source>
        <translation>Knotenmassen</translation>
    </message>
    <message>
        <source>Natural frequencies</source>
        <translation>Eigenfrequenzen</translation>
    </message>
    <message>
        <source>Construction Stages</source>
        <translation>Bauabschnitte</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Gruppen</translation>
    </message>
    <message>
        <source>Loadcases</source>
        <translation>Lastfälle</translation>
    </message>
    <message>
        <source>Design parameter</source>
        <translation>Bemessungsparameter</translation>
    </message>
    <message>
        <source>Design results</source>
        <translation>Bemessungsergebnisse</translation>
    </message>
    <message>
        <source>Reinforcement compilation</source>
        <translation>Bewehrungszusammenstellung</translation>
    </message>
    <message>
        <source>Steel index</source>
        <translation>Stahlindex</translation>
    </message>
    <message>
        <source>Internal forces of the design</source>
        <translation>Bemessungsschnittgrößen</translation>
    </message>
    <message>
        <source>Punching checks</source>
        <translation>Durchstanznachweise</translation>
    </message>
    <message>
        <source>Concrete compressive stress</source>
        <translation>Betondruckspannung</translation>
    </message>
    <message>
        <source>Fatigue design</source>
        <translation>Ermüdungsnachweis</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Einwirkungen</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Belastung</translation>
    </message>
    <message>
        <source>General tables of the combinations and generated load cases</source>
        <translation>Allgemeine Tabellen der Kombinationen und erzeugten Lastfälle</translation>
    </message>
    <message>
        <source>Used load cases</source>
        <translation>Verwendete Lastfälle</translation>
    </message>
    <message>
        <source>Loadtrains</source>
        <translation>Lastenzüge</translation>
    </message>
    <message>
        <source>Evaluation</source>
        <translation>Auswertung</translation>
    </message>
    <message>
        <source>Load positions</source>
        <translation>Laststellungen</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Ergebnisse</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Eigenschaft</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Output options</source>
        <translation>Ausgabeoptionen</translation>
    </message>
    <message>
        <source>%1 (not offered)</source>
        <translation>%1 (nicht angeboten)</translation>
    </message>
    <message>
        <source>Keyword: %1</source>
        <translation>Schlüsselwort: %1</translation>
    </message>
    <message>
        <source>Default: %1</source>
        <translation>Vorgabe: %1</translation>
    </message>
    <message>
        <source>Changed. Default: %1</source>
        <translation>Geändert. Vorgabe: %1</translation>
    </message>
    <message>
        <source>The stored value %1 is not offered. It stays until another one is chosen.</source>
        <translation>Der gespeicherte Wert %1 wird nicht angeboten. Er bleibt, bis ein anderer gewählt wird.</translation>
    </message>
    <message>
        <source>Numeric level %1: kept with the settings, but the input text has no keyword for it, so no line is written.</source>
        <translation>Zahlenstufe %1: wird mit den Einstellungen gespeichert, aber der Eingabetext hat kein Schlüsselwort dafür, daher wird keine Zeile geschrieben.</translation>
    </message>
    <message>
        <source>Reset to default</source>
        <translation>Auf Vorgabe zurücksetzen</translation>
    </message>
    <message>
        <source>Reset all shown (%1)</source>
        <translation>Alle angezeigten zurücksetzen (%1)</translation>
    </message>
    <message>
        <source>Set to</source>
        <translation>Setzen auf</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy settings</source>
        <translation>Einstellungen kopieren</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtern</translation>
    </message>
    <message>
        <source>Changed only</source>
        <translation>Nur geänderte</translation>
    </message>
    <message>
        <source>No option matches the filter.</source>
        <translation>Keine Option passt zum Filter.</translation>
    </message>
    <message>
        <source>No option applies.</source>
        <translation>Keine Option ist anwendbar.</translation>
    </message>
    <message>
        <source>Not offered for: %1</source>
        <translation>Nicht angeboten für: %1</translation>
    </message>
    <message>
        <source>Not changed: %1</source>
        <translation>Nicht geändert: %1</translation>
    </message>
    <message>
        <source>These settings can no longer be changed.</source>
        <translation>Diese Einstellungen können nicht mehr geändert werden.</translation>
    </message>
    <message>
        <source>The clipboard does not hold settings.</source>
        <translation>Die Zwischenablage enthält keine Einstellungen.</translation>
    </message>
    <message>
        <source>Choose value</source>
        <translation>Wert wählen</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Hide filter</source>
        <translation>Filter ausblenden</translation>
    </message>
    <message>
        <source>Not pasted: %1</source>
        <translation>Nicht eingefügt: %1</translation>
    </message>
    <message>
        <source>Not changed, because the filter hides it: %1</source>
        <translation>Nicht geändert, weil der Filter es ausblendet: %1</translation>
    </message>
    <message>
        <source>Not a number of at most %1 decimal places: %2</source>
        <translation>Keine Zahl mit höchstens %1 Nachkommastellen: %2</translation>
    </message>
    <message>
        <source>The clipboard holds settings of another program.</source>
        <translation>Die Zwischenablage enthält Einstellungen eines anderen Programms.</translation>
    </message>
</context>
</TS>
