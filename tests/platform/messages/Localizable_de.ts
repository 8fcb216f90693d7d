<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>Localizable</name>
    <message><source>Print Quality</source><translation>Druckqualität</translation></message>
    <message><source>Größe</source><translation>Format</translation></message>
</context>
<context>
    <name>Other</name>
    <message><source>Print Quality</source><translation>falscher Kontext</translation></message>
    <message><source>Paper</source><translation>falscher Kontext</translation></message>
</context>
</TS>
