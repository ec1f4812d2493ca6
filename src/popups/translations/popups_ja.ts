<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>features_sentence</source>
        <translation>このデバイスでブロックされるポップアップウィンドウを確認できます。</translation>
    </message>
    <message>
        <source>features_title</source>
        <translation>機能</translation>
    </message>
</context>
</TS>
