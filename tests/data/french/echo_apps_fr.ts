<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>EditWindow</name>
    <message>
        <source>%1 has unsaved changes.</source>
        <translation>%1 a été modifié.</translation>
    </message>
</context>
<context>
    <name>echohost::MainWindow</name>
    <message>
        <source>Task</source>
        <translation>Tâche</translation>
    </message>
</context>
</TS>
