<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>Localizable</name>
    <message>
        <source>Options &amp; &lt;more&gt;</source>
        <translation>Options &amp; &lt;suite&gt;</translation>
    </message>
    <message>
        <source>Conflict</source>
        <translation>Conflit</translation>
    </message>
    <message>
        <source>First</source>
        <translation>Premier</translation>
    </message>
</context>
</TS>
