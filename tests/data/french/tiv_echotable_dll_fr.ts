<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>EchoData</name>
    <message>
        <source>Loads</source>
        <translation>Charges</translation>
    </message>
</context>
</TS>
