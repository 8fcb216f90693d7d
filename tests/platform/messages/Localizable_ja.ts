<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>Localizable</name>
    <message><source>Print Quality</source><translation>印刷品質</translation></message>
</context>
</TS>
