#include "dialog/program/LauncherTexts.h"

const LauncherTexts kJapaneseTexts{
    R"(使い方: velkaro-print [オプション] [FILE...]
画面で選んだ設定で文書を印刷します。ファイル名 - は標準入力を表します。

プリンター
  -d, --destination QUEUE[/INSTANCE]
                          このキューに印刷する（INSTANCE に保存された設定を
                          使う）
  -h, --server HOST[:PORT]
                          通常のサーバーではなく、このプリントサーバーを使う
      --ppd FILE          キューではなく PPD ファイルのプリンターを使う

設定
  -o, --option KEY=VALUE  プリンターの設定を選ぶ（KEY ごとに 1 回ずつ、順序に
                          関係なく、繰り返し指定できます）。プリンターに
                          あれば使える設定: media, sides, print-quality,
                          print-color-mode, output-bin。どのプリンターでも
                          使える設定: number-up, number-up-layout,
                          page-border, page-set, outputorder, booklet,
                          multiple-document-handling, job-hold-until,
                          job-priority, job-sheets, notify-recipient-uri
      --paper NAME        PPD での名前で用紙を選ぶ。または単位を付けて
                          Custom.WIDTHxHEIGHT で指定する: Custom.100x150mm

ジョブ
  -n, --copies NUMBER     この部数を印刷する
  -P, --pages LIST        これらのページを印刷する: 1-3,5 (1 枚に複数の
                          ページを印刷するときは、これらの面)
  -t, --title TITLE       ジョブにこのタイトルを付ける
  -H, --hold WHEN         ジョブを保留する: hold、immediate、night などサーバー
                          の時間帯、または UTC の時刻 HH:MM
  -q, --priority NUMBER   1 から 100（最高）まで
  -m, --mail              ジョブが終わったらメールで知らせる
      --output FILE       ジョブの設定と文書をまとめてファイルに保存する
                          （-: 標準出力）。後で
                          --no-dialog -d QUEUE FILE で印刷できます
      --force             既にあるファイルを置き換える（--output、--record、
                          --screenshot、スクリプトの画像）
      --no-dialog         画面を表示せずに印刷する（確認はすべて行います）
      --dry-run           すべて確認するが、送信も保存もしない
      --explain           それぞれの設定がほかに何を変えたか、選べなかった設定
                          をどうすれば選べるかを表示する
      --yes               確認の質問に「いいえ」ではなく「はい」で答え、選べな
                          かった設定なしで印刷する
      --each              --no-dialog と使う: 文書を 1 つずつ別のジョブとして、
                          同じ設定で印刷する
      --wait              --no-dialog と使う: 印刷が終わるまで待ち、標準エラー
                          出力に様子を表示する
      --timeout SECONDS   --wait と使う: 停止または保留されたジョブを待つ長さ
                          の上限
      --password-fd N     --no-dialog と使う: サーバーやプリンターが求める
                          パスワードを、開いているこのファイルの 1 行目から
                          読む。なければ端末で尋ねる

表示とテスト
      --screenshot FILE.png
                          画面を表示せずに、画像として保存する
      --panel NAME        最初に表示する部分: setup、print、color、features、
                          layout、summary。画像の場合はその部分だけを保存する
      --record SCRIPT     操作をスクリプトに記録する
      --replay SCRIPT     スクリプト（-: 標準入力）を実行し、結果をイベント
                          ごとに 1 行の JSON で出力する
      --why KEY=VALUE     この設定がほかの設定と同時に選べない理由と、選べる
                          ようにする方法を表示する
      --json              それを 1 つの JSON オブジェクトで出力する
      --check-ppd FILE    PPD ファイルのうちプラグインが認識できない部分を
                          1 件 1 行で出力する
      --plug-in FOLDER    このバンドルのプラグインを読み込む
      --forget-alerts     表示しないようにした警告を再び表示させる
      --version           バージョンを表示する
      --help              この説明を表示する

終了ステータス
  0  印刷、保存、確認が終わった、またはスクリプトを最後まで実行した
  1  画面でキャンセルされた、またはサーバーがジョブ全体を受け取る前に
     シグナルで中止された、または待っている間にシグナルで中止された
  2  オプション、設定、スクリプトの誤り、PPD を開けない、または画面を
     表示できるディスプレイがない
  3  確認によりジョブを中止した、またはほかの設定と同時に使えない設定が
     あった
  4  文書を読み込めない
  5  出力ファイルに書き込めない、または既に存在する
  6  サーバーまたはキューに接続できない、ジョブが拒否された、その間に
     キューの設定が変更された、または受け付けられたかどうか分からない。
     --wait では、ジョブが他で取り消された、またはエラーで終わった
  7  プラグインを使用できない、または PPD を調べられない
  8  --wait と --timeout で: ジョブの停止または保留が長すぎた
)",
    "インストールが不完全です: %s",
    "プログラムの場所が分かりません",
    "標準出力に書き込めません（%s）。",
};
