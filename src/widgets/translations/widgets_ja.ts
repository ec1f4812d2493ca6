<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>button_back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>button_close</source>
        <translation>ウィンドウを閉じる</translation>
    </message>
    <message>
        <source>button_ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>loading</source>
        <translation>お待ちください…</translation>
    </message>
</context>
</TS>
