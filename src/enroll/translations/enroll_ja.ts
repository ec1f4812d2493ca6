<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>enrolment_sentence</source>
        <translation>このデバイスが属する組織と管理者を確認できます。</translation>
    </message>
    <message>
        <source>enrolment_title</source>
        <translation>デバイス登録</translation>
    </message>
    <message>
        <source>fact_administrator</source>
        <translation>管理者</translation>
    </message>
    <message>
        <source>fact_tags</source>
        <translation>タグ</translation>
    </message>
    <message>
        <source>page_note_state_only</source>
        <translation>現在のところ、このページには状態のみが表示されます。</translation>
    </message>
</context>
</TS>
