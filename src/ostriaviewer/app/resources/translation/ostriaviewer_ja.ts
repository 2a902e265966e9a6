<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>Cameras::CameraControlService</name>
    <message>
        <source>The camera is not open.</source>
        <translation>カメラは開いていません。</translation>
    </message>
    <message>
        <source>The camera is open already.</source>
        <translation>カメラはすでに開いています。</translation>
    </message>
</context>
<context>
    <name>Cameras::Emulation::EmulatedCamera</name>
    <message>
        <source>Emulated cameras</source>
        <translation>エミュレーションカメラ</translation>
    </message>
    <message>
        <source>The camera is being used by another application.</source>
        <translation>カメラは別のアプリケーションで使用されています。</translation>
    </message>
    <message>
        <source>The camera does not answer.</source>
        <translation>カメラが応答しません。</translation>
    </message>
    <message>
        <source>The frame is incomplete.</source>
        <translation>フレームが不完全です。</translation>
    </message>
</context>
<context>
    <name>Cameras::Emulation::UserSets</name>
    <message>
        <source>The user sets cannot be written to %1.</source>
        <translation>ユーザーセットを %1 に書き込めません。</translation>
    </message>
</context>
<context>
    <name>Cameras::GenICam::AcquisitionFeatures</name>
    <message>
        <source>The camera could not be asked for another image.</source>
        <translation>カメラに次の画像を要求できませんでした。</translation>
    </message>
    <message>
        <source>The camera could not be stopped.</source>
        <translation>カメラを停止できませんでした。</translation>
    </message>
    <message>
        <source>The camera&apos;s features stay locked.</source>
        <translation>カメラの機能はロックされたままです。</translation>
    </message>
    <message>
        <source>The acquisition mode could not be put back; set AcquisitionMode to &quot;%1&quot;.</source>
        <translation>取り込みモードを元に戻せませんでした。AcquisitionMode を「%1」に設定してください。</translation>
    </message>
    <message>
        <source>%1: %2 (%3)</source>
        <translation>%1：%2（%3）</translation>
    </message>
</context>
<context>
    <name>Cameras::GenICam::CameraFinder</name>
    <message>
        <source>The search for cameras failed (%1). It is repeated soon.</source>
        <translation>カメラの検索に失敗しました（%1）。まもなく再試行します。</translation>
    </message>
</context>
<context>
    <name>Cameras::GenICam::Device</name>
    <message>
        <source>The description of the camera &quot;%1&quot; cannot be used (%2).</source>
        <translation>カメラ「%1」の機能記述を使用できません（%2）。</translation>
    </message>
    <message>
        <source>The camera &quot;%1&quot; does not answer (%2).</source>
        <translation>カメラ「%1」が応答しません（%2）。</translation>
    </message>
    <message>
        <source>The camera &quot;%1&quot; does not answer.</source>
        <translation>カメラ「%1」が応答しません。</translation>
    </message>
    <message>
        <source>The camera is being used by another application.</source>
        <translation>カメラは別のアプリケーションで使用されています。</translation>
    </message>
    <message>
        <source>The camera gives no description of its features.</source>
        <translation>カメラから機能記述を取得できません。</translation>
    </message>
    <message>
        <source>The camera&apos;s images cannot be received: %1.</source>
        <translation>カメラの画像を受信できません：%1。</translation>
    </message>
    <message>
        <source>the connection to the camera is lost</source>
        <translation>カメラとの接続が失われました</translation>
    </message>
    <message>
        <source>the camera does not answer at present</source>
        <translation>カメラが現在応答していません</translation>
    </message>
    <message>
        <source>%1: the camera does not take packets of %2 bytes, as the settings want them; it uses packets of %3 bytes.</source>
        <translation>%1：設定されたパケットサイズ（%2バイト）にカメラが対応していないため、%3バイトのパケットを使用します。</translation>
    </message>
    <message>
        <source>the camera refuses it</source>
        <translation>カメラが拒否しました</translation>
    </message>
    <message>
        <source>the camera refuses it, and does not answer when asked why</source>
        <translation>カメラが要求を拒否し、その理由を問い合わせても応答しませんでした</translation>
    </message>
    <message>
        <source>the camera has not heard from this program for too long and does not obey it any more; open the camera again</source>
        <translation>このプログラムからの通信が長時間届かなかったため、カメラが操作を受け付けなくなりました。カメラを開き直してください</translation>
    </message>
</context>
<context>
    <name>Cameras::GenICam::Feature</name>
    <message>
        <source>the camera answers %1, which is no entry</source>
        <translation>カメラが返した値%1に該当する選択肢がありません</translation>
    </message>
    <message>
        <source>%1 is not available with the camera&apos;s present settings</source>
        <translation>カメラの現在の設定では %1 を使用できません</translation>
    </message>
    <message>
        <source>there is no entry &quot;%1&quot;</source>
        <translation>選択肢「%1」がありません</translation>
    </message>
    <message>
        <source>the camera has no such feature</source>
        <translation>カメラにこの機能がありません</translation>
    </message>
    <message>
        <source>the connection to the camera is lost</source>
        <translation>カメラとの接続が失われました</translation>
    </message>
    <message>
        <source>not available with the camera&apos;s present settings</source>
        <translation>カメラの現在の設定では使用できません</translation>
    </message>
    <message>
        <source>cannot be read, only written</source>
        <translation>書き込み専用のため、読み取れません</translation>
    </message>
    <message>
        <source>cannot be written, only read</source>
        <translation>読み取り専用のため、変更できません</translation>
    </message>
    <message>
        <source>locked with the camera&apos;s present settings</source>
        <translation>カメラの現在の設定ではロックされています</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation>%1：%2。</translation>
    </message>
    <message>
        <source>%1 is below the minimum %2</source>
        <translation>%1は最小値%2を下回っています</translation>
    </message>
    <message>
        <source>%1 is above the maximum %2</source>
        <translation>%1は最大値%2を超えています</translation>
    </message>
    <message>
        <source>%1 is not a multiple of %2 above %3</source>
        <translation>%1は、%3を起点とする%2刻みの値ではありません</translation>
    </message>
    <message>
        <source>the camera keeps %1 instead of %2</source>
        <translation>カメラの値が、設定した%2ではなく%1になっています</translation>
    </message>
    <message>
        <source>the value is not a finite number</source>
        <translation>値が有限の数ではありません</translation>
    </message>
    <message>
        <source>the camera keeps another value than %1</source>
        <translation>カメラの値が %1 になりません</translation>
    </message>
    <message>
        <source>the camera does not finish the command</source>
        <translation>カメラのコマンドが完了しません</translation>
    </message>
    <message>
        <source>the text is longer than %1 bytes</source>
        <translation>文字列が%1バイトを超えています</translation>
    </message>
    <message>
        <source>an integer is expected</source>
        <translation>整数を指定してください</translation>
    </message>
    <message>
        <source>a number is expected</source>
        <translation>数値を指定してください</translation>
    </message>
    <message>
        <source>0 or 1 is expected</source>
        <translation>0または1を指定してください</translation>
    </message>
    <message>
        <source>has no value</source>
        <translation>値がありません</translation>
    </message>
    <message>
        <source>There is no node map &quot;%1&quot;.</source>
        <translation>ノードマップ「%1」は存在しません。</translation>
    </message>
    <message>
        <source>the camera has not finished the command yet</source>
        <translation>カメラがまだコマンドを完了していません</translation>
    </message>
    <message>
        <source>the camera refuses the access</source>
        <translation>カメラがアクセスを拒否しました</translation>
    </message>
    <message>
        <source>the text has a NUL character</source>
        <translation>文字列にNUL文字が含まれています</translation>
    </message>
</context>
<context>
    <name>Cameras::GenICam::FeatureStream</name>
    <message>
        <source>Line %1: %2
</source>
        <translation>%1行目：%2
</translation>
    </message>
    <message>
        <source>And %1 more lines.
</source>
        <translation>ほかに%1行あります。
</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no tab and no value.</source>
        <translation>「%1」の後にタブと値がありません。</translation>
    </message>
    <message>
        <source>the camera has no feature &quot;%1&quot;.</source>
        <translation>カメラに機能「%1」がありません。</translation>
    </message>
    <message>
        <source>skipped, as %1 could not be set</source>
        <translation>%1 は設定できなかったため、スキップしました</translation>
    </message>
    <message>
        <source>skipped, as it is not saved with the camera&apos;s settings</source>
        <translation>カメラの設定と一緒に保存されない機能のため、スキップしました</translation>
    </message>
    <message>
        <source>skipped, as its present text could not be given back</source>
        <translation>現在のテキストを元に戻せなくなるため、スキップしました</translation>
    </message>
    <message>
        <source>%1: %2 could not be put back while settings were read; set it to &quot;%3&quot;. (%4)</source>
        <translation>%1：設定の読み取り中に %2 を元に戻せませんでした。「%3」に設定してください。（%4）</translation>
    </message>
</context>
<context>
    <name>Cameras::GenICam::Frame</name>
    <message>
        <source>The frame holds no image.</source>
        <translation>フレームに画像がありません。</translation>
    </message>
    <message>
        <source>The pixel format 0x%1 is not known; choose another one.</source>
        <translation>ピクセルフォーマット0x%1には対応していません。別のピクセルフォーマットを選択してください。</translation>
    </message>
    <message>
        <source>The frame cannot be used (%1). Choose another pixel format or another image size.</source>
        <translation>このフレームは使用できません（%1）。別のピクセルフォーマットまたは別の画像サイズを選択してください。</translation>
    </message>
</context>
<context>
    <name>Cameras::GenICam::FrameStream</name>
    <message>
        <source>The camera does not tell how large its images are.</source>
        <translation>カメラから画像のサイズを取得できません。</translation>
    </message>
    <message>
        <source>The camera says that an image has %1 bytes, which is too much.</source>
        <translation>カメラが通知した画像のサイズ（%1バイト）が大きすぎます。</translation>
    </message>
</context>
<context>
    <name>Cameras::GenICam::GenicamCamera</name>
    <message>
        <source>Network cameras</source>
        <translation>ネットワークカメラ</translation>
    </message>
    <message>
        <source>USB cameras</source>
        <translation>USBカメラ</translation>
    </message>
    <message>
        <source>%1: %2 of %3 images were damaged on their way and left out (%4 packets are missing). Set a larger packet size or a packet delay.</source>
        <translation>%1：%3枚中%2枚の画像が転送中に破損したため、破棄しました（欠落パケット数：%4）。パケットサイズを大きくするか、パケット遅延を設定してください。</translation>
    </message>
    <message>
        <source>%1: %2 of %3 images were shorter than the camera says and were left out. Nothing was lost on the way. Restart the camera, or choose another image size or pixel format.</source>
        <translation>%1：画像%3枚中%2枚がカメラの通知したサイズに満たなかったため、破棄しました。転送中の欠落はありません。カメラを再起動するか、別の画像サイズまたはピクセルフォーマットを選択してください。</translation>
    </message>
    <message>
        <source>%1: %2 of %3 images came faster than this computer takes them and were left out. Set a lower frame rate or a smaller image.</source>
        <translation>%1：%3枚中%2枚の画像は、このコンピューターの処理が追いつかなかったため、破棄しました。フレームレートを下げるか、画像を小さくしてください。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>Cameras::GenICam::LibraryLog</name>
    <message>
        <source>The camera library reports: %1.</source>
        <translation>カメラライブラリからの通知：%1。</translation>
    </message>
    <message>
        <source>The camera library reports of the camera &quot;%1&quot;: %2.</source>
        <translation>カメラ「%1」に関するカメラライブラリからの通知：%2。</translation>
    </message>
    <message>
        <source>The description of the camera &quot;%1&quot; is faulty: %2.</source>
        <translation>カメラ「%1」の機能記述に誤りがあります：%2。</translation>
    </message>
    <message>
        <source>The description of the camera &quot;%1&quot; is faulty at the feature &quot;%2&quot;: %3.</source>
        <translation>カメラ「%1」の機能記述で、機能「%2」に誤りがあります：%3。</translation>
    </message>
    <message>
        <source>The camera library has much to complain of; no more of it is shown.</source>
        <translation>カメラライブラリからの通知が多すぎるため、以降は表示しません。</translation>
    </message>
</context>
<context>
    <name>Cameras::GenICam::NodeMap</name>
    <message>
        <source>The camera&apos;s description cannot be used: %1.</source>
        <translation>カメラの機能記述を使用できません：%1。</translation>
    </message>
    <message>
        <source>it describes no registers</source>
        <translation>レジスターの記述がありません</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>%1行目：%2</translation>
    </message>
    <message>
        <source>it has no feature tree</source>
        <translation>機能ツリーがありません</translation>
    </message>
    <message>
        <source>The connection to the camera is lost.</source>
        <translation>カメラとの接続が失われました。</translation>
    </message>
</context>
<context>
    <name>Cameras::HostCamera</name>
    <message>
        <source>The camera is being used by another part of the program.</source>
        <translation>カメラはこのプログラム内の別の処理で使用されています。</translation>
    </message>
</context>
<context>
    <name>Core::CameraPoolComponents::CameraTexts</name>
    <message>
        <source>The camera could not be opened. Close it in other programs, open it in the viewer, then try again.</source>
        <translation>カメラを開けませんでした。カメラを使用しているほかのアプリケーションでカメラを閉じ、このビューアーで開いてから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The camera&apos;s original settings couldn&apos;t be restored. Load them from a user set or a settings file.</source>
        <translation>カメラの元の設定を復元できませんでした。ユーザーセットまたは設定ファイルから設定を読み込んでください。</translation>
    </message>
    <message>
        <source>The camera&apos;s original settings couldn&apos;t be restored. Check the connection of the camera and try again, or cancel.</source>
        <translation>カメラの元の設定を復元できませんでした。カメラの接続を確認してから再試行するか、キャンセルしてください。</translation>
    </message>
    <message>
        <source>The camera&apos;s settings couldn&apos;t be backed up. Check the connection of the camera and try again, or cancel.</source>
        <translation>カメラの設定をバックアップできませんでした。カメラの接続を確認してから再試行するか、キャンセルしてください。</translation>
    </message>
    <message>
        <source>The connection to the camera was lost while its settings were being stored in the user set &quot;%1&quot;. Whether it holds the new settings is not known. Open the camera again and check it, and which user set the camera starts with.</source>
        <translation>カメラの設定をユーザーセット「%1」に保存しているときに、カメラとの接続が失われました。新しい設定が保存されたかどうかは不明です。もう一度カメラを開いて、このユーザーセットの内容と、カメラが起動時に使用するユーザーセットを確認してください。</translation>
    </message>
</context>
<context>
    <name>Viewer::CameraCommands</name>
    <message>
        <source>%1 could not be opened. %2</source>
        <translation>%1 を開けませんでした。%2</translation>
    </message>
    <message>
        <source>%1 delivers no images, as another part of the program is using it. End that first.</source>
        <translation>%1 はこのプログラム内の別の処理で使用されているため、画像を取り込めません。先にその処理を終了してください。</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>開く(&amp;O)</translation>
    </message>
    <message>
        <source>Open the selected camera</source>
        <translation>選択したカメラを開きます</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>Close the selected camera</source>
        <translation>選択したカメラを閉じます</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>開始(&amp;S)</translation>
    </message>
    <message>
        <source>Show the camera&apos;s picture continuously</source>
        <translation>カメラの画像を連続して表示します</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>停止(&amp;T)</translation>
    </message>
    <message>
        <source>Stop the camera</source>
        <translation>カメラの画像取り込みを停止します</translation>
    </message>
    <message>
        <source>Single &amp;Picture</source>
        <translation>1枚撮影(&amp;P)</translation>
    </message>
    <message>
        <source>Take one picture</source>
        <translation>画像を1枚取り込みます</translation>
    </message>
    <message>
        <source>%1 delivers no images. %2</source>
        <translation>%1 から画像を取り込めません。%2</translation>
    </message>
    <message>
        <source>%1 takes no picture, as another part of the program is using it. Try again later.</source>
        <translation>%1 はこのプログラム内の別の処理で使用されているため、画像を取り込めません。しばらくしてから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>%1 takes no picture. %2</source>
        <translation>%1 から画像を1枚取り込むことができません。%2</translation>
    </message>
</context>
<context>
    <name>Viewer::CameraList</name>
    <message>
        <source>closed</source>
        <translation>閉じています</translation>
    </message>
    <message>
        <source>open</source>
        <translation>開いています</translation>
    </message>
    <message>
        <source>acquiring</source>
        <translation>取り込み中</translation>
    </message>
    <message>
        <source>recording</source>
        <translation>録画中</translation>
    </message>
</context>
<context>
    <name>Viewer::CameraSelectorPanel</name>
    <message>
        <source>%1
Model %2, %3</source>
        <translation>%1
モデル：%2、%3</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>カメラ</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>カメラ</translation>
    </message>
</context>
<context>
    <name>Viewer::CameraSettingsCommands</name>
    <message>
        <source>&amp;Look for Cameras</source>
        <translation>カメラを検索(&amp;L)</translation>
    </message>
    <message>
        <source>Look for cameras on the network and on USB now</source>
        <translation>ネットワークとUSBのカメラを今すぐ検索します</translation>
    </message>
    <message>
        <source>Camera Setti&amp;ngs...</source>
        <translation>カメラの接続設定(&amp;N)...</translation>
    </message>
    <message>
        <source>Choose which cameras are shown and how they are reached</source>
        <translation>表示するカメラとその接続方法を選択します</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>These settings close cameras that are in use:

%1

Do you want to close them and use the settings?</source>
        <translation>この設定を適用すると、使用中の次のカメラを閉じます：

%1

カメラを閉じて、この設定を適用しますか？</translation>
    </message>
</context>
<context>
    <name>Viewer::CameraSettingsDialog</name>
    <message>
        <source>Camera Settings</source>
        <translation>カメラの接続設定</translation>
    </message>
    <message>
        <source>&amp;Show:</source>
        <translation>表示(&amp;S)：</translation>
    </message>
    <message>
        <source>Emulated and real cameras</source>
        <translation>エミュレーションカメラと実カメラ</translation>
    </message>
    <message>
        <source>Cameras on the network and on USB</source>
        <translation>ネットワークとUSBのカメラ</translation>
    </message>
    <message>
        <source>Emulated cameras</source>
        <translation>エミュレーションカメラ</translation>
    </message>
    <message>
        <source>&amp;Look for network cameras</source>
        <translation>ネットワークカメラを検索する(&amp;L)</translation>
    </message>
    <message>
        <source>Network interfaces</source>
        <translation>ネットワークインターフェース</translation>
    </message>
    <message>
        <source>Searches these network interfaces. If none is selected, all except loopback (lo).</source>
        <translation>カメラの検索に使用するネットワークインターフェースを選択します。何も選択しない場合は、ループバック（lo）を除くすべてで検索します。</translation>
    </message>
    <message>
        <source>Cameras with a fixed &amp;address</source>
        <translation>固定アドレスのカメラ(&amp;A)</translation>
    </message>
    <message>
        <source>Addresses</source>
        <translation>アドレス</translation>
    </message>
    <message>
        <source>such as 192.168.1.20</source>
        <translation>例：192.168.1.20</translation>
    </message>
    <message>
        <source>IP address of a camera</source>
        <translation>カメラのIPアドレス</translation>
    </message>
    <message>
        <source>A&amp;dd</source>
        <translation>追加(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>削除(&amp;R)</translation>
    </message>
    <message>
        <source>Contacted directly, even where broadcasts do not arrive.</source>
        <translation>ブロードキャストが届かない場所のカメラにも、直接問い合わせます。</translation>
    </message>
    <message>
        <source>Images from the network</source>
        <translation>ネットワークからの画像</translation>
    </message>
    <message>
        <source>as large as possible</source>
        <translation>可能な最大サイズ</translation>
    </message>
    <message>
        <source> bytes</source>
        <translation>バイト</translation>
    </message>
    <message>
        <source>&amp;Packet size:</source>
        <translation>パケットサイズ(&amp;P)：</translation>
    </message>
    <message>
        <source>Takes effect the next time a camera is opened. Choose 1500 if no images arrive.</source>
        <translation>次にカメラを開いたときから有効になります。画像が届かない場合は、1500を選択してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no address of a camera. It consists of four numbers, such as 192.168.1.20.</source>
        <translation>「%1」はカメラのアドレスではありません。アドレスは4つの数字で指定します（例：192.168.1.20）。</translation>
    </message>
    <message>
        <source>&amp;Close Cameras</source>
        <translation>カメラを閉じる(&amp;C)</translation>
    </message>
</context>
<context>
    <name>Viewer::ClosingQuestion</name>
    <message>
        <source>Pictures of these cameras are being recorded:

%1

Do you want to end the recording and close the viewer?</source>
        <translation>次のカメラの画像を録画しています：

%1

録画を終了してビューアーを閉じますか？</translation>
    </message>
    <message>
        <source>&amp;End Recording</source>
        <translation>録画を終了(&amp;E)</translation>
    </message>
</context>
<context>
    <name>Viewer::FeatureModel</name>
    <message>
        <source>Execute</source>
        <translation>実行</translation>
    </message>
    <message>
        <source>not available</source>
        <translation>使用不可</translation>
    </message>
    <message>
        <source>Range: %1 %2</source>
        <translation>範囲：%1 %2</translation>
    </message>
    <message>
        <source>Not available with the camera&apos;s present settings</source>
        <translation>カメラの現在の設定では使用できません</translation>
    </message>
    <message>
        <source>Cannot be changed now</source>
        <translation>現在は変更できません</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>機能</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
</context>
<context>
    <name>Viewer::FeaturePanel</name>
    <message>
        <source>Filter features</source>
        <translation>機能を絞り込む</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>機能</translation>
    </message>
    <message>
        <source>Open a camera to see its features.</source>
        <translation>カメラを開くと、その機能が表示されます。</translation>
    </message>
</context>
<context>
    <name>Viewer::FeatureValue</name>
    <message>
        <source>%1 to %2</source>
        <translation>%1～%2</translation>
    </message>
    <message>
        <source>at least %1</source>
        <translation>%1以上</translation>
    </message>
    <message>
        <source>at most %1</source>
        <translation>%1以下</translation>
    </message>
    <message>
        <source>, in steps of %1</source>
        <translation>、%1刻み</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number of this kind.</source>
        <translation>「%1」はこの機能に指定できる数値ではありません。</translation>
    </message>
    <message>
        <source>%1 (possible now: %2).</source>
        <translation>%1（現在設定できる値：%2）。</translation>
    </message>
</context>
<context>
    <name>Viewer::FrameConverter</name>
    <message>
        <source>It cannot be shown (%1). Choose another pixel format or another image size.</source>
        <translation>この画像は表示できません（%1）。別のピクセルフォーマットまたは別の画像サイズを選択してください。</translation>
    </message>
</context>
<context>
    <name>Viewer::LiveSession</name>
    <message>
        <source>Select a camera in the list.</source>
        <translation>リストからカメラを選択してください。</translation>
    </message>
    <message>
        <source>The connection to %1 is lost. Reconnect the camera and open it again.</source>
        <translation>%1 との接続が失われました。カメラを接続し直して、もう一度開いてください。</translation>
    </message>
    <message>
        <source>%1 is closed. Double-click it, or press F5, to see its picture.</source>
        <translation>%1 は閉じています。画像を表示するには、カメラをダブルクリックするか、F5キーを押してください。</translation>
    </message>
    <message>
        <source>%1 is open. Press F5 to see its picture, or F6 for a single one.</source>
        <translation>%1 は開いています。連続して表示するにはF5キー、1枚取り込むにはF6キーを押してください。</translation>
    </message>
    <message>
        <source>Waiting for the first picture of %1.</source>
        <translation>%1 の最初の画像を待っています。</translation>
    </message>
</context>
<context>
    <name>Viewer::MainMenu</name>
    <message>
        <source>Open the camera to see its tools</source>
        <translation>ツールを表示するにはカメラを開いてください</translation>
    </message>
    <message>
        <source>No tool for the selected camera</source>
        <translation>選択したカメラで使用できるツールはありません</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Camera</source>
        <translation>カメラ(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>ツール(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>言語(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>テーマ(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Save Picture...</source>
        <translation>画像を保存(&amp;S)...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>Zoom to &amp;Fit</source>
        <translation>ウィンドウに合わせる(&amp;F)</translation>
    </message>
    <message>
        <source>Zoom to &amp;Pixels</source>
        <translation>等倍で表示(&amp;P)</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>拡大(&amp;I)</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>縮小(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Plugins</source>
        <translation>プラグイン(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>バージョン情報(&amp;A)</translation>
    </message>
    <message>
        <source>Like the &amp;Desktop</source>
        <translation>デスクトップの設定に合わせる(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>ライト(&amp;L)</translation>
    </message>
    <message>
        <source>Dar&amp;k</source>
        <translation>ダーク(&amp;K)</translation>
    </message>
</context>
<context>
    <name>Viewer::MainWindow</name>
    <message>
        <source>Ostria Viewer</source>
        <translation>Ostria ビューアー</translation>
    </message>
    <message>
        <source>There is no picture to save. Start a camera first.</source>
        <translation>保存する画像がありません。先にカメラの画像取り込みを開始してください。</translation>
    </message>
    <message>
        <source>Recording Folder</source>
        <translation>録画フォルダー</translation>
    </message>
    <message>
        <source>%1, %2:  R %3  G %4  B %5</source>
        <translation>%1, %2:  R %3  G %4  B %5</translation>
    </message>
    <message>
        <source>%1 x %2 at %3 %</source>
        <translation>%1 × %2、%3%</translation>
    </message>
    <message>
        <source>%1 pictures/s</source>
        <translation>%1枚/秒</translation>
    </message>
    <message>
        <source>Live view</source>
        <translation>ライブビュー</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>カメラ</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>メッセージ</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>機能</translation>
    </message>
    <message>
        <source>Camera tools</source>
        <translation>カメラツール</translation>
    </message>
    <message>
        <source>Writing the last pictures of %1.</source>
        <translation>%1 の残りの画像を書き込んでいます。</translation>
    </message>
</context>
<context>
    <name>Viewer::MessageLogModel</name>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>レベル</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>発生元</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>メッセージ</translation>
    </message>
    <message>
        <source>Debug</source>
        <translation>デバッグ</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Fatal</source>
        <translation>致命的エラー</translation>
    </message>
</context>
<context>
    <name>Viewer::MessageLogPanel</name>
    <message>
        <source>All messages</source>
        <translation>すべてのメッセージ</translation>
    </message>
    <message>
        <source>Information and graver</source>
        <translation>情報以上</translation>
    </message>
    <message>
        <source>Warnings and errors</source>
        <translation>警告とエラー</translation>
    </message>
    <message>
        <source>Errors only</source>
        <translation>エラーのみ</translation>
    </message>
    <message>
        <source>Lowest level shown</source>
        <translation>表示する最低レベル</translation>
    </message>
    <message>
        <source>Filter messages</source>
        <translation>メッセージを絞り込む</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>メッセージ</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Copy the selected messages, or all that are shown</source>
        <translation>選択したメッセージをコピーします（選択がない場合は、表示中のすべてのメッセージ）</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>消去</translation>
    </message>
    <message>
        <source>Remove all messages</source>
        <translation>すべてのメッセージを消去します</translation>
    </message>
</context>
<context>
    <name>Viewer::MessageLogService</name>
    <message>
        <source>Viewer</source>
        <translation>ビューアー</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>カメラ</translation>
    </message>
</context>
<context>
    <name>Viewer::PictureFile</name>
    <message>
        <source>There is not enough memory for the picture. Close other programs or choose a smaller image size.</source>
        <translation>画像を処理するためのメモリが不足しています。ほかのアプリケーションを終了するか、より小さい画像サイズを選択してください。</translation>
    </message>
</context>
<context>
    <name>Viewer::PictureSaver</name>
    <message>
        <source>Save Picture</source>
        <translation>画像の保存</translation>
    </message>
    <message>
        <source>Pictures (*.png *.tif *.bmp *.jpg)</source>
        <translation>画像 (*.png *.tif *.bmp *.jpg)</translation>
    </message>
    <message>
        <source>%1 could not be written. Choose another folder or another kind of file, or make room on the disk.</source>
        <translation>%1 に書き込めませんでした。別のフォルダーかファイル形式を選択するか、ディスクの空き容量を増やしてください。</translation>
    </message>
</context>
<context>
    <name>Viewer::PluginManager</name>
    <message>
        <source>The plugin stands in the folder twice; %1 is used instead. Remove one of the two files.</source>
        <translation>同じプラグインがフォルダーに2つあります。%1 を使用します。どちらかのファイルを削除してください。</translation>
    </message>
    <message>
        <source>It needs &quot;%1&quot; in version %2, which is not there; install it, or a version of this plugin for this viewer.</source>
        <translation>「%1」バージョン %2 が必要ですが、見つかりません。それをインストールするか、このビューアーに対応するバージョンのプラグインをインストールしてください。</translation>
    </message>
    <message>
        <source>Its main class is not what it says.</source>
        <translation>プラグインのメインクラスが宣言と一致しません。</translation>
    </message>
    <message>
        <source>A service of the viewer that it needs is missing; install a version of the plugin for this viewer.</source>
        <translation>必要なビューアーのサービスがありません。このビューアーに対応するバージョンのプラグインをインストールしてください。</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1%2</translation>
    </message>
    <message>
        <source>It could not be initialized.</source>
        <translation>初期化できませんでした。</translation>
    </message>
    <message>
        <source>It could not complete its start.</source>
        <translation>起動を完了できませんでした。</translation>
    </message>
</context>
<context>
    <name>Viewer::PluginMetaData</name>
    <message>
        <source>Its list of what it depends on has an entry without name or version.</source>
        <translation>依存関係の一覧に、名前またはバージョンのない項目があります。</translation>
    </message>
    <message>
        <source>It has no metadata with name and version; rebuild it with them.</source>
        <translation>名前とバージョンを記したメタデータがありません。メタデータを追加してビルドし直してください。</translation>
    </message>
    <message>
        <source>The file does not exist any more; install the plugin anew.</source>
        <translation>ファイルが存在しません。プラグインをインストールし直してください。</translation>
    </message>
    <message>
        <source>It is no plugin, or was built with another version of Qt; remove the file or install a suitable one.</source>
        <translation>プラグインではないか、別のバージョンのQtでビルドされています。ファイルを削除するか、対応するプラグインをインストールしてください。</translation>
    </message>
    <message>
        <source>It was built against another interface, &quot;%1&quot; instead of &quot;%2&quot;; install a version for this viewer.</source>
        <translation>別のインターフェース用にビルドされています（「%2」ではなく「%1」）。このビューアーに対応するバージョンをインストールしてください。</translation>
    </message>
</context>
<context>
    <name>Viewer::PluginsDialog</name>
    <message>
        <source>Plugins</source>
        <translation>プラグイン</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>動作中</translation>
    </message>
    <message>
        <source>There are no plugins.</source>
        <translation>プラグインはありません。</translation>
    </message>
</context>
<context>
    <name>Viewer::Recorder</name>
    <message>
        <source>The folder %1 cannot be made. Choose another one for recordings.</source>
        <translation>フォルダー %1 を作成できません。録画用に別のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>A picture could not be written (%1). Make room on the disk or choose another folder.</source>
        <translation>画像を書き込めませんでした（%1）。ディスクの空き容量を増やすか、別のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>A picture could not be converted (%1). Choose another pixel format or another image size.</source>
        <translation>画像を変換できませんでした（%1）。別のピクセルフォーマットまたは別の画像サイズを選択してください。</translation>
    </message>
</context>
<context>
    <name>Viewer::RecordingCommands</name>
    <message numerus="yes">
        <source>The recording of %1 ended after %n picture(s). %2 What was recorded is in %3.</source>
        <translation>
            <numerusform>%1 の録画は、%n枚を記録したところで終了しました。%2録画した画像は %3 にあります。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Recorded %n picture(s) of %1 in %2. %3 more came too fast to be written, %4 failed in the camera; the numbers of the files show where.</source>
        <translation>
            <numerusform>%1 の画像%n枚を %2 に録画しました。ほかに%3枚は書き込みが間に合わず、%4枚はカメラ側で取り込みに失敗しました。欠けた箇所はファイルの番号でわかります。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Recorded %n picture(s) of %1 in %2.</source>
        <translation>
            <numerusform>%1 の画像%n枚を %2 に録画しました。</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Record</source>
        <translation>録画(&amp;R)</translation>
    </message>
    <message>
        <source>Write the camera&apos;s pictures into files until pressed again</source>
        <translation>もう一度押すまで、カメラの画像をファイルに保存します</translation>
    </message>
    <message>
        <source>Recording &amp;Folder...</source>
        <translation>録画フォルダー(&amp;F)...</translation>
    </message>
</context>
<context>
    <name>Viewer::ViewerApplication</name>
    <message>
        <source>A picture of %1 failed: %2</source>
        <translation>%1 の画像に問題があります：%2</translation>
    </message>
    <message>
        <source>The connection to %1 is lost. Reconnect the camera and open it again.</source>
        <translation>%1 との接続が失われました。カメラを接続し直して、もう一度開いてください。</translation>
    </message>
    <message>
        <source>There is no camera &quot;%1&quot;; select one in the list.</source>
        <translation>カメラ「%1」はありません。リストからカメラを選択してください。</translation>
    </message>
    <message>
        <source>There is no plugin in %1, so the viewer runs without tools. Install it again, or start it with the option --plugins and the folder of its plugins.</source>
        <translation>%1 にプラグインがないため、ビューアーはツールなしで動作します。ビューアーをインストールし直すか、オプション --plugins でプラグインのフォルダーを指定して起動してください。</translation>
    </message>
    <message>
        <source>Plugin %1 %2 is loaded.</source>
        <translation>プラグイン %1 %2 を読み込みました。</translation>
    </message>
    <message>
        <source>Plugin %1 is left out. %2</source>
        <translation>プラグイン %1 は読み込まれませんでした。%2</translation>
    </message>
    <message>
        <source>About Ostria Viewer</source>
        <translation>Ostria ビューアーについて</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Ostria Viewer %1&lt;/h3&gt;&lt;p&gt;Shows the pictures of cameras, and what plugins do with them.&lt;/p&gt;&lt;p&gt;Licence: Apache 2.0. Built on Qt %2.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Ostria ビューアー %1&lt;/h3&gt;&lt;p&gt;カメラの画像と、プラグインによる処理の結果を表示します。&lt;/p&gt;&lt;p&gt;ライセンス：Apache 2.0。Qt %2 を使用しています。&lt;/p&gt;</translation>
    </message>
    <message>
        <source>%1 was found.</source>
        <translation>%1 が見つかりました。</translation>
    </message>
    <message>
        <source>%1 can no longer be found.</source>
        <translation>%1 が見つからなくなりました。</translation>
    </message>
    <message>
        <source>There are several cameras &quot;%1&quot;; select one in the list.</source>
        <translation>カメラ「%1」が複数あります。リストからカメラを選択してください。</translation>
    </message>
</context>
<context>
    <name>Viewer::ViewerSettings</name>
    <message>
        <source>The settings file %1 cannot be read; the viewer starts with defaults and remembers nothing. Check the file&apos;s permissions.</source>
        <translation>設定ファイル %1 を読み取れないため、デフォルトの設定で起動します。変更した内容は保存されません。ファイルのアクセス権を確認してください。</translation>
    </message>
    <message>
        <source>The settings file is damaged; the viewer starts with defaults. The old file was kept as %1.</source>
        <translation>設定ファイルが壊れているため、デフォルトの設定で起動します。元のファイルは %1 として残してあります。</translation>
    </message>
    <message>
        <source>The settings file %1 is damaged; the viewer starts with defaults and remembers nothing. Remove the file.</source>
        <translation>設定ファイル %1 が壊れているため、デフォルトの設定で起動します。変更した内容は保存されません。このファイルを削除してください。</translation>
    </message>
    <message>
        <source>The settings were written by a newer viewer; this one starts with defaults and leaves them as they are. What you change is forgotten at the end.</source>
        <translation>設定はより新しいバージョンのビューアーで保存されたものです。このビューアーはデフォルトの設定で起動し、保存済みの設定は変更しません。変更した内容は終了時に失われます。</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be written; what you change is forgotten at the end. Check the file&apos;s permissions and the room on its disk.</source>
        <translation>設定ファイル %1 に書き込めません。変更した内容は終了時に失われます。ファイルのアクセス権とディスクの空き容量を確認してください。</translation>
    </message>
</context>
</TS>
