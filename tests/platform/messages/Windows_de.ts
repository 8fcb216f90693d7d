<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>Windows</name>
    <message><source>Print Quality</source><translation>Qualität im Fenster</translation></message>
</context>
</TS>
