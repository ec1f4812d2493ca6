<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>feedback_note</source>
        <translation>このバージョンではまだレポートを送信できません。それまでは管理者に直接お知らせください。</translation>
    </message>
    <message>
        <source>feedback_sentence</source>
        <translation>ここから問題を説明し、このデバイスのログとともに管理者へ報告します。</translation>
    </message>
    <message>
        <source>feedback_title</source>
        <translation>ログレポート</translation>
    </message>
</context>
</TS>
