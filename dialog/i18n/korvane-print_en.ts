<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>PresetMessages</name>
    <message numerus="yes">
        <source>There is room for %n preset(s) only. Delete one that is not needed any more.</source>
        <translation>
            <numerusform>There is room for %n preset only. Delete one that is not needed any more.</numerusform>
            <numerusform>There is room for %n presets only. Delete one that is not needed any more.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>A name has at most %n character(s).</source>
        <translation>
            <numerusform>A name has at most %n character.</numerusform>
            <numerusform>A name has at most %n characters.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PreviewWords</name>
    <message numerus="yes">
        <source>%n copies</source>
        <translation>
            <numerusform>%n copy</numerusform>
            <numerusform>%n copies</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RangeTexts</name>
    <message numerus="yes">
        <source>“%1”: the document has only %n page(s).</source>
        <translation>
            <numerusform>“%1”: the document has only %n page.</numerusform>
            <numerusform>“%1”: the document has only %n pages.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>dialog::RangeField</name>
    <message numerus="yes">
        <source>The document has %n page(s): it is printed up to its end.</source>
        <translation>
            <numerusform>The document has %n page: it is printed up to its end.</numerusform>
            <numerusform>The document has %n pages: it is printed up to its end.</numerusform>
        </translation>
    </message>
</context>
</TS>
