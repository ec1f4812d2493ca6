<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>header_no_organisation</source>
        <translation>まだ組織で管理されていません</translation>
    </message>
    <message>
        <source>header_status_name</source>
        <translation>管理サービスへの接続: %1</translation>
    </message>
    <message>
        <source>launcher_button</source>
        <translation>このデバイスを登録</translation>
    </message>
    <message>
        <source>launcher_no_service</source>
        <translation>このデバイスのサービスが停止しています。サービスが再開すると登録を始められます。</translation>
    </message>
    <message>
        <source>launcher_sentence</source>
        <translation>Velmora RYX を使うと、組織がこのデバイスを管理し、最新の状態に保ち、問題が起きたときに支援し、無人のときも保護します。</translation>
    </message>
    <message>
        <source>launcher_step_code</source>
        <translation>6 文字の組織コードと管理者のメールアドレスを用意します。</translation>
    </message>
    <message>
        <source>launcher_step_done</source>
        <translation>完了: 上部に「接続済み」と表示されます。</translation>
    </message>
    <message>
        <source>launcher_step_enrol</source>
        <translation>このデバイスを登録します。1 分ほどで終わります。</translation>
    </message>
    <message>
        <source>launcher_title</source>
        <translation>Velmora RYX へようこそ</translation>
    </message>
    <message>
        <source>live_vanished</source>
        <translation>再生中のチャンネル「%1」は提供されなくなりました。</translation>
    </message>
    <message>
        <source>menu_about</source>
        <translation>このアプリについて</translation>
    </message>
    <message>
        <source>menu_enrolment</source>
        <translation>デバイス登録</translation>
    </message>
    <message>
        <source>menu_features</source>
        <translation>機能</translation>
    </message>
    <message>
        <source>menu_feedback</source>
        <translation>フィードバック</translation>
    </message>
    <message>
        <source>menu_live_channels</source>
        <translation>ライブチャンネル</translation>
    </message>
    <message>
        <source>menu_mark_disconnected</source>
        <translation>管理サービスに接続できません</translation>
    </message>
    <message>
        <source>menu_mark_managed</source>
        <translation>一部の設定は組織によって管理されています</translation>
    </message>
    <message>
        <source>menu_mark_update</source>
        <translation>更新に関するお知らせがあります</translation>
    </message>
    <message>
        <source>menu_name</source>
        <translation>メインメニュー</translation>
    </message>
    <message>
        <source>menu_network</source>
        <translation>ネットワーク</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Please contact IT administrator</source>
        <translation>IT 管理者にお問い合わせください</translation>
    </message>
    <message>
        <source>Report a problem</source>
        <translation>問題を報告</translation>
    </message>
    <message>
        <source>toast_channel_switched</source>
        <translation>このデバイスのチャンネルが切り替わりました。</translation>
    </message>
    <message>
        <source>toast_wifi_composition</source>
        <translation>%1「%2」。%3。</translation>
    </message>
    <message>
        <source>tray_link_state</source>
        <translation>接続: %1</translation>
    </message>
    <message>
        <source>Unable to connect to</source>
        <translation>次のネットワークに接続できません:</translation>
    </message>
</context>
</TS>
