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
    <message>
        <source>popups_dropped</source>
        <translation>このルールはもう有効ではありません</translation>
    </message>
    <message>
        <source>popups_fact_state</source>
        <translation>ブロック</translation>
    </message>
    <message>
        <source>popups_fact_today</source>
        <translation>今日閉じるよう求めた数</translation>
    </message>
    <message>
        <source>popups_list_empty</source>
        <translation>閉じるよう求めたウィンドウはまだありません。</translation>
    </message>
    <message>
        <source>popups_list_title</source>
        <translation>閉じるよう求めたウィンドウ</translation>
    </message>
    <message>
        <source>popups_no_answer</source>
        <translation>サービスから応答がありません。何も変わっていません。</translation>
    </message>
    <message>
        <source>popups_none</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>popups_notice</source>
        <translation>%1 のポップアップに閉じるよう求めました。ここを押すと理由が表示されます。</translation>
    </message>
    <message>
        <source>popups_off</source>
        <translation>オフ: 無効にされています</translation>
    </message>
    <message>
        <source>popups_off_unenrolled</source>
        <translation>オフ: このデバイスは登録されていません</translation>
    </message>
    <message>
        <source>popups_older</source>
        <translation>以前のものを表示 (%1)</translation>
    </message>
    <message>
        <source>popups_on</source>
        <translation>オン、有効なルール: %1</translation>
    </message>
    <message>
        <source>popups_rule</source>
        <translation>ルール: ウィンドウクラス %1、製品 %2</translation>
    </message>
    <message>
        <source>popups_still_open</source>
        <translation>閉じるよう求めましたが、まだ開いています</translation>
    </message>
    <message>
        <source>popups_switch</source>
        <translation>不要なポップアップを閉じる</translation>
    </message>
    <message>
        <source>popups_switch_nobody</source>
        <translation>デバイスが登録され、サービスに接続できると依頼できます。</translation>
    </message>
    <message>
        <source>popups_switch_tip</source>
        <translation>決めるのは組織のサービスです。スイッチはその回答を示します。</translation>
    </message>
    <message>
        <source>popups_switch_waiting</source>
        <translation>サービスに依頼しましたが、まだ応答がありません。</translation>
    </message>
    <message>
        <source>popups_times</source>
        <translation>%1、%2 回</translation>
    </message>
    <message>
        <source>popups_unknown</source>
        <translation>サービスからまだ通知がありません</translation>
    </message>
    <message>
        <source>popups_wrong</source>
        <translation>これは誤りです</translation>
    </message>
    <message>
        <source>popups_wrong_name</source>
        <translation>これは誤りです: %1、%2</translation>
    </message>
</context>
</TS>
