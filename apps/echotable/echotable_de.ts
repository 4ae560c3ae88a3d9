<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>EditWindow</name>
    <message>
        <source>%1 has unsaved changes.</source>
        <translation>%1 hat ungespeicherte Änderungen.</translation>
    </message>
    <message>
        <source>%1 was changed by another program. Save over it?</source>
        <translation>%1 wurde von einem anderen Programm geändert. Trotzdem speichern?</translation>
    </message>
</context>
</TS>
