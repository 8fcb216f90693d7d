<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt">
<context>
    <name>Localizable</name>
    <message><source>Print Quality</source><translation>Qualidade</translation></message>
</context>
</TS>
