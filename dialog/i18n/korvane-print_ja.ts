<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>ChoiceWords</name>
    <message>
        <source>“%1: %2” and “%3: %4” do not go together.</source>
        <translation>「%1: %2」と「%3: %4」は組み合わせられません。</translation>
    </message>
    <message>
        <source>%1: you chose “%2”, the job has “%3”.</source>
        <translation>%1: 選択は「%2」ですが、ジョブでは「%3」になります。</translation>
    </message>
    <message>
        <source>“%1: %2” cannot be used together with “%3: %4”.</source>
        <translation>「%1: %2」は「%3: %4」と同時には使えません。</translation>
    </message>
    <message>
        <source>“%1: %2” cannot be chosen now.</source>
        <translation>「%1: %2」は今は選べません。</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: you chose “%2”, but “%3” is set.</source>
        <translation>%1: 選択は「%2」ですが、「%3」に設定されています。</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>「%1」</translation>
    </message>
    <message>
        <source>“%1” cannot be used together with %2.</source>
        <translation>「%1」は%2と同時には使えません。</translation>
    </message>
    <message>
        <source>not with %1</source>
        <translation>%1とは併用不可</translation>
    </message>
    <message>
        <source>%1: without “%2”</source>
        <translation>%1: 「%2」なし</translation>
    </message>
    <message>
        <source>%1: “%2”</source>
        <translation>%1: 「%2」</translation>
    </message>
    <message>
        <source>%1: “%2” instead of “%3”</source>
        <translation>%1: 「%3」の代わりに「%2」</translation>
    </message>
</context>
<context>
    <name>DocumentTexts</name>
    <message>
        <source>There is no document %1. Nothing was sent; choose another document.</source>
        <translation>書類 %1 がありません。何も送信されていません。別の書類を選んでください。</translation>
    </message>
    <message>
        <source>The document %1 cannot be read. Nothing was sent; choose another document or allow reading it.</source>
        <translation>書類 %1 を読めません。何も送信されていません。別の書類を選ぶか、読み取りを許可してください。</translation>
    </message>
</context>
<context>
    <name>JobMessages</name>
    <message>
        <source>There is no print server to send the job to (%1). Nothing was sent, and your settings are kept: start the print server or correct CUPS_SERVER, and print again.</source>
        <translation>プリントサーバに接続できません (%1)。何も送信されず、設定は残っています。プリントサーバを起動するか CUPS_SERVER を修正して、もう一度プリントしてください。</translation>
    </message>
    <message>
        <source>The print server does not answer. Your settings are kept. Print again when it does: what may have arrived by then is found, and not sent a second time.</source>
        <translation>プリントサーバが応答しません。設定は残っています。応答したらもう一度プリントしてください。すでに届いたジョブは検出され、二重に送信されません。</translation>
    </message>
    <message>
        <source>The connection to the print server broke (%1). Your settings are kept. Print again: what may have arrived is found, and not sent a second time.</source>
        <translation>プリントサーバとの接続が切れました (%1)。設定は残っています。もう一度プリントしてください。すでに届いたジョブは検出され、二重に送信されません。</translation>
    </message>
    <message>
        <source>The print server does not let you print to the queue %1 without a name and password that it accepts. Nothing was printed, and your settings are kept: print again and sign in, ask its administrator, or choose another queue.</source>
        <translation>キュー %1 でプリントするには、プリントサーバが認める名前とパスワードが必要です。何もプリントされず、設定は残っています。もう一度プリントしてサインインするか、管理者に依頼するか、別のキューを選んでください。</translation>
    </message>
    <message>
        <source>The queue %1 takes no jobs at present. Nothing was sent, and your settings are kept: ask for the queue to be opened, or choose another one.</source>
        <translation>キュー %1 は現在ジョブを受け付けていません。何も送信されず、設定は残っています。キューを開くよう依頼するか、別のキューを選んでください。</translation>
    </message>
    <message>
        <source>The print server no longer has a queue %1. Nothing was sent, and your settings are kept: choose another queue.</source>
        <translation>プリントサーバにキュー %1 はもうありません。何も送信されず、設定は残っています。別のキューを選んでください。</translation>
    </message>
    <message>
        <source>The queue %1 cannot print a document of this kind (%2). Nothing was printed. Convert the document to PDF, or choose another queue.</source>
        <translation>キュー %1 はこの種類の書類をプリントできません (%2)。何もプリントされませんでした。書類を PDF に変換するか、別のキューを選んでください。</translation>
    </message>
    <message>
        <source>The print server did not take the job: %1. Your settings are kept; print again when it answers.</source>
        <translation>プリントサーバはジョブを受け付けませんでした: %1。設定は残っています。サーバが応答したらもう一度プリントしてください。</translation>
    </message>
    <message>
        <source>The document can no longer be read (%1). Nothing was printed, and your settings are kept: put the document back and print again.</source>
        <translation>書類を読み込めなくなりました (%1)。何もプリントされず、設定は残っています。書類を元に戻して、もう一度プリントしてください。</translation>
    </message>
    <message>
        <source>Nothing was sent, because a setting would get lost: %1. Choose another value for it.</source>
        <translation>設定が失われるため、何も送信されませんでした: %1。別の値を選んでください。</translation>
    </message>
    <message>
        <source>The job could not be noted in your state folder, so nothing was sent: a second copy could not be ruled out later. Make room on that disk and print again.</source>
        <translation>ジョブを状態フォルダに記録できなかったため、何も送信しませんでした (二重プリントを防ぐためです)。ディスクの空きを増やして、もう一度プリントしてください。</translation>
    </message>
    <message>
        <source>The job was cancelled; nothing of it prints. Your settings are kept.</source>
        <translation>ジョブは中止され、プリントされません。設定は残っています。</translation>
    </message>
    <message>
        <source>An earlier attempt was sent whole to the queue %1, and the print server no longer knows it: it may have printed. Look at the printer before you press Print again.</source>
        <translation>前回のジョブはキュー %1 にすべて送信されましたが、プリントサーバに記録がありません。プリント済みの可能性があります。もう一度「プリント」を押す前にプリンタを確認してください。</translation>
    </message>
    <message>
        <source>The print server took the job and gave it up (%2). Your settings are kept; look at the queue %1, and print again.</source>
        <translation>プリントサーバはジョブを受け取りましたが、中止しました (%2)。設定は残っています。キュー %1 を確認して、もう一度プリントしてください。</translation>
    </message>
    <message>
        <source>The earlier attempt had arrived as job %1, so nothing was sent again. Press Print once more for another copy.</source>
        <translation>前回のジョブは %1 番として届いていたため、再送信しませんでした。もう一部必要な場合は、もう一度「プリント」を押してください。</translation>
    </message>
    <message>
        <source>Job %1 waits, because the queue %2 is paused. It prints when somebody resumes the queue.</source>
        <translation>キュー %2 が一時停止しているため、ジョブ %1 は待機しています。キューが再開されるとプリントされます。</translation>
    </message>
    <message>
        <source>The print server did not keep the setting %1 (%2). Check the first page.</source>
        <translation>プリントサーバは設定 %1 (%2) を受け付けませんでした。最初のページを確認してください。</translation>
    </message>
    <message>
        <source>The print server changed the setting %1 from %2 to %3. Check the first page.</source>
        <translation>プリントサーバは設定 %1 を %2 から %3 に変更しました。最初のページを確認してください。</translation>
    </message>
    <message>
        <source>“%1”, sent to %2 before this dialog was opened, had arrived as job %3. It was not sent again.</source>
        <translation>このダイアログを開く前に %2 へ送信した「%1」は、ジョブ %3 として届いていました。再送信はしていません。</translation>
    </message>
    <message>
        <source>“%1”, sent to %2 before this dialog was opened, had not arrived whole, and nothing of it prints. Print it again if you still need it.</source>
        <translation>このダイアログを開く前に %2 へ送信した「%1」は完全には届かず、プリントされません。必要な場合はもう一度プリントしてください。</translation>
    </message>
    <message>
        <source>“%1” was sent whole to %2 before this dialog was opened, and the print server no longer knows it: it may have printed. Look at the printer before you print it again.</source>
        <translation>このダイアログを開く前に「%1」を %2 にすべて送信しましたが、プリントサーバに記録がありません。プリント済みの可能性があります。再度プリントする前にプリンタを確認してください。</translation>
    </message>
</context>
<context>
    <name>JobSettings</name>
    <message>
        <source>Both</source>
        <translation>両方</translation>
    </message>
    <message>
        <source>Odd pages only</source>
        <translation>奇数ページのみ</translation>
    </message>
    <message>
        <source>Even pages only</source>
        <translation>偶数ページのみ</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>縦</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>横</translation>
    </message>
    <message>
        <source>Reverse portrait</source>
        <translation>縦 (180°回転)</translation>
    </message>
    <message>
        <source>Reverse landscape</source>
        <translation>横 (180°回転)</translation>
    </message>
    <message>
        <source>Right, then down</source>
        <translation>右へ、次に下へ</translation>
    </message>
    <message>
        <source>Down, then right</source>
        <translation>下へ、次に右へ</translation>
    </message>
    <message>
        <source>Left, then down</source>
        <translation>左へ、次に下へ</translation>
    </message>
    <message>
        <source>Down, then left</source>
        <translation>下へ、次に左へ</translation>
    </message>
    <message>
        <source>Right, then up</source>
        <translation>右へ、次に上へ</translation>
    </message>
    <message>
        <source>Up, then right</source>
        <translation>上へ、次に右へ</translation>
    </message>
    <message>
        <source>Left, then up</source>
        <translation>左へ、次に上へ</translation>
    </message>
    <message>
        <source>Up, then left</source>
        <translation>上へ、次に左へ</translation>
    </message>
    <message>
        <source>No border</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Thin line</source>
        <translation>細線</translation>
    </message>
    <message>
        <source>Thick line</source>
        <translation>太線</translation>
    </message>
    <message>
        <source>Two thin lines</source>
        <translation>細い二重線</translation>
    </message>
    <message>
        <source>Two thick lines</source>
        <translation>太い二重線</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>実際のサイズ</translation>
    </message>
    <message>
        <source>Fit to the paper</source>
        <translation>用紙に合わせる</translation>
    </message>
    <message>
        <source>Fill the paper</source>
        <translation>用紙いっぱいに拡大</translation>
    </message>
</context>
<context>
    <name>MemoryMessages</name>
    <message>
        <source>Your home folder does not answer, so that your last settings could not be read. The printer&apos;s default settings are shown.</source>
        <translation>ホームフォルダが応答しないため、前回の設定を読み込めませんでした。プリンタのデフォルト設定を表示しています。</translation>
    </message>
    <message>
        <source>The file with the size of this window was damaged. It is kept as “%1”. Correct the file and give it back its old name, or delete it.</source>
        <translation>このウインドウのサイズのファイルが壊れていました。「%1」として保管されています。ファイルを修正して元の名前に戻すか、削除してください。</translation>
    </message>
    <message>
        <source>The file with your last settings for this printer was damaged, so that the printer&apos;s default settings are shown. It is kept as “%1”. Correct the file and give it back its old name, or delete it.</source>
        <translation>このプリンタの前回の設定のファイルが壊れていたため、プリンタのデフォルト設定を表示しています。ファイルは「%1」として保管されています。ファイルを修正して元の名前に戻すか、削除してください。</translation>
    </message>
    <message>
        <source>What this dialog remembers could not be read, because “%1” may not be read or written. Allow it, and open the dialog again.</source>
        <translation>「%1」の読み書きが許可されていないため、このダイアログが記憶している内容を読み込めませんでした。許可してから、ダイアログをもう一度開いてください。</translation>
    </message>
    <message>
        <source>What this dialog remembers was not read, because “%1” is a link, belongs to somebody else, or others may write to it. Replace it by a folder that only you may write to.</source>
        <translation>「%1」はリンクか、所有者が異なるか、ほかのユーザが書き込めるため、このダイアログが記憶している内容を読み込みませんでした。自分だけが書き込めるフォルダに置き換えてください。</translation>
    </message>
    <message>
        <source>What this dialog remembers in “%1” is of a newer version of this program. Update the program, or move the file away to begin anew.</source>
        <translation>「%1」にこのダイアログが記憶している内容は、このプログラムの新しいバージョンのものです。プログラムを更新するか、ファイルを移動して新しく始めてください。</translation>
    </message>
    <message>
        <source>What this dialog remembers could not be read from “%1”: %2.</source>
        <translation>このダイアログが記憶している内容を「%1」から読み込めませんでした: %2。</translation>
    </message>
</context>
<context>
    <name>PathRefusal</name>
    <message>
        <source>it lies outside /Library/Printers</source>
        <translation>/Library/Printers の外にあります</translation>
    </message>
    <message>
        <source>the path goes through “..”</source>
        <translation>パスに「..」が含まれています</translation>
    </message>
    <message>
        <source>it is not there</source>
        <translation>見つかりません</translation>
    </message>
    <message>
        <source>it is a link</source>
        <translation>リンクです</translation>
    </message>
    <message>
        <source>it belongs to somebody else</source>
        <translation>所有者が異なります</translation>
    </message>
    <message>
        <source>others may write it</source>
        <translation>ほかのユーザが書き込めます</translation>
    </message>
    <message>
        <source>it is no ordinary file or folder</source>
        <translation>通常のファイルやフォルダではありません</translation>
    </message>
</context>
<context>
    <name>PlugInTexts</name>
    <message>
        <source>The printer&apos;s panels are not installed: there is no %1. Install the maker&apos;s driver.</source>
        <translation>プリンタの設定パネルがインストールされていません: %1 がありません。ドライバをインストールしてください。</translation>
    </message>
    <message>
        <source>The printer&apos;s panels were not loaded: %1 (%2). Install the maker&apos;s driver again as an administrator.</source>
        <translation>プリンタの設定パネルは読み込まれませんでした: %1 (%2)。管理者としてドライバを再インストールしてください。</translation>
    </message>
    <message>
        <source>The printer&apos;s panels could not be loaded: %1 is damaged (%2). Install the maker&apos;s driver again.</source>
        <translation>プリンタの設定パネルを読み込めませんでした: %1 が壊れています (%2)。ドライバを再インストールしてください。</translation>
    </message>
    <message>
        <source>it is cut off</source>
        <translation>途中で切れています</translation>
    </message>
    <message>
        <source>The printer&apos;s panels do not fit this dialog: %1 was made for another version. Install the maker&apos;s current driver.</source>
        <translation>プリンタの設定パネルはこのダイアログに対応していません: %1 は別のバージョン用です。最新のドライバをインストールしてください。</translation>
    </message>
    <message>
        <source>The maker&apos;s driver offers no panels for this printer.</source>
        <translation>このプリンタ用の設定パネルはドライバにありません。</translation>
    </message>
</context>
<context>
    <name>PresetMessages</name>
    <message>
        <source>There is no such preset any more; another print dialog has deleted or renamed it.</source>
        <translation>このプリセットはもうありません。別のプリントダイアログで削除されたか、名前が変更されました。</translation>
    </message>
    <message numerus="yes">
        <source>There is room for %n preset(s) only. Delete one that is not needed any more.</source>
        <translation>
            <numerusform>保存できるプリセットは %n 個までです。不要なものを削除してください。</numerusform>
        </translation>
    </message>
    <message>
        <source>Another print dialog is changing the presets. Try again.</source>
        <translation>別のプリントダイアログがプリセットを変更しています。もう一度お試しください。</translation>
    </message>
    <message>
        <source>The presets could not be written to “%1” because there is no room left. Free some space and try again.</source>
        <translation>空き容量がないため、プリセットを「%1」に書き込めませんでした。空きを増やして、もう一度お試しください。</translation>
    </message>
    <message>
        <source>“%1” may not be read or written. Allow it, and try again.</source>
        <translation>「%1」の読み書きが許可されていません。許可してから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>“%1” is a link, belongs to somebody else, or others may write to it. Replace it by a folder that only you may write to.</source>
        <translation>「%1」はリンクか、所有者が異なるか、ほかのユーザが書き込めます。自分だけが書き込めるフォルダに置き換えてください。</translation>
    </message>
    <message>
        <source>The presets in “%1” are of a newer version of this program. Update the program, or move the file away to begin anew.</source>
        <translation>「%1」のプリセットは、このプログラムの新しいバージョンのものです。プログラムを更新するか、ファイルを移動して新しく始めてください。</translation>
    </message>
    <message>
        <source>“%1” cannot be used for presets: %2.</source>
        <translation>「%1」はプリセットに使用できません: %2。</translation>
    </message>
    <message>
        <source>The file of your presets for this printer was damaged. It is kept as “%1”; what could be read of it is still here. Correct the file and give it back its old name, or delete it.</source>
        <translation>このプリンタのプリセットのファイルが壊れていました。「%1」として保管され、読み取れたものは残っています。ファイルを修正して元の名前に戻すか、削除してください。</translation>
    </message>
    <message>
        <source>Type a name.</source>
        <translation>名前を入力してください。</translation>
    </message>
    <message numerus="yes">
        <source>A name has at most %n character(s).</source>
        <translation>
            <numerusform>名前は %n 文字までです。</numerusform>
        </translation>
    </message>
    <message>
        <source>Another preset has this name.</source>
        <translation>この名前のプリセットがすでにあります。</translation>
    </message>
    <message>
        <source>This printer does not have everything that “%1” sets. These settings were left as the printer has them:</source>
        <translation>「%1」の設定の一部がこのプリンタにはありません。次の設定はプリンタのままです:</translation>
    </message>
    <message>
        <source>These settings cannot be used together on this printer:</source>
        <translation>次の設定は、このプリンタでは同時に使えません:</translation>
    </message>
    <message>
        <source>“%1” and “%2”</source>
        <translation>「%1」と「%2」</translation>
    </message>
</context>
<context>
    <name>PreviewWords</name>
    <message>
        <source>Page %1 is damaged and stays empty.</source>
        <translation>ページ %1 は壊れているため、空白になります。</translation>
    </message>
    <message>
        <source>No pages</source>
        <translation>ページなし</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>ページ %1</translation>
    </message>
    <message>
        <source>Pages %1 and %2</source>
        <translation>ページ %1 と %2</translation>
    </message>
    <message>
        <source>Pages %1 to %2</source>
        <translation>ページ %1–%2</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>用紙 %1/%2</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, front</source>
        <translation>用紙 %1/%2、表面</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, back</source>
        <translation>用紙 %1/%2、裏面</translation>
    </message>
    <message>
        <source>front</source>
        <translation>表面</translation>
    </message>
    <message>
        <source>back</source>
        <translation>裏面</translation>
    </message>
    <message numerus="yes">
        <source>%n copies</source>
        <translation>
            <numerusform>%n 部</numerusform>
        </translation>
    </message>
    <message>
        <source>collated</source>
        <translation>部単位</translation>
    </message>
    <message>
        <source>landscape</source>
        <translation>横</translation>
    </message>
    <message>
        <source>portrait</source>
        <translation>縦</translation>
    </message>
    <message>
        <source>grayscale</source>
        <translation>グレースケール</translation>
    </message>
    <message>
        <source>flipped</source>
        <translation>左右反転</translation>
    </message>
</context>
<context>
    <name>PrinterLists</name>
    <message>
        <source>As the printer is set</source>
        <translation>プリンタの設定に従う</translation>
    </message>
    <message>
        <source>A4</source>
        <translation>A4</translation>
    </message>
    <message>
        <source>A3</source>
        <translation>A3</translation>
    </message>
    <message>
        <source>A5</source>
        <translation>A5</translation>
    </message>
    <message>
        <source>A6</source>
        <translation>A6</translation>
    </message>
    <message>
        <source>B5 (JIS)</source>
        <translation>B5 (JIS)</translation>
    </message>
    <message>
        <source>US Letter</source>
        <translation>USレター</translation>
    </message>
    <message>
        <source>US Legal</source>
        <translation>USリーガル</translation>
    </message>
    <message>
        <source>Tabloid</source>
        <translation>タブロイド</translation>
    </message>
    <message>
        <source>Photo 10 × 15 cm</source>
        <translation>写真 10 × 15 cm</translation>
    </message>
    <message>
        <source>DL envelope</source>
        <translation>封筒 DL</translation>
    </message>
    <message>
        <source>No. 10 envelope</source>
        <translation>封筒 No. 10</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Turn on the long edge</source>
        <translation>長辺でとじる</translation>
    </message>
    <message>
        <source>Turn on the short edge</source>
        <translation>短辺でとじる</translation>
    </message>
</context>
<context>
    <name>PrinterWords</name>
    <message>
        <source>There is no printer %1 at the print server. Choose another one.</source>
        <translation>プリントサーバにプリンタ %1 がありません。別のプリンタを選んでください。</translation>
    </message>
    <message>
        <source>The printer %1 cannot be used, because its PPD is damaged: %2. Have the printer set up again or choose another one.</source>
        <translation>プリンタ %1 は PPD が壊れているため使用できません: %2。プリンタを設定し直すか、別のプリンタを選んでください。</translation>
    </message>
    <message>
        <source>Not reachable</source>
        <translation>接続できません</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>一時停止中</translation>
    </message>
    <message>
        <source>Paused: %1</source>
        <translation>一時停止中: %1</translation>
    </message>
    <message>
        <source>Takes no jobs</source>
        <translation>ジョブを受け付けていません</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>オフライン</translation>
    </message>
    <message>
        <source>Offline: %1</source>
        <translation>オフライン: %1</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>プリント中</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>No print server answers at %1 (%2). Start the server or check the network, then try again.</source>
        <translation>%1 のプリントサーバに接続できません (%2)。サーバを起動するかネットワークを確認して、再試行してください。</translation>
    </message>
    <message>
        <source>The print server at %1 does not answer. Wait a moment or have it restarted, then try again.</source>
        <translation>%1 のプリントサーバが応答しません。しばらく待つかサーバを再起動してから、再試行してください。</translation>
    </message>
    <message>
        <source>The print server at %1 refused to answer: %2. Ask its administrator for access, then try again.</source>
        <translation>%1 のプリントサーバに拒否されました: %2。管理者にアクセス権を確認して、再試行してください。</translation>
    </message>
</context>
<context>
    <name>QueueListCommand</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>default</source>
        <translation>デフォルト</translation>
    </message>
</context>
<context>
    <name>RangeTexts</name>
    <message>
        <source>Type the pages to print, such as 1-3, 5, 8-.</source>
        <translation>プリントするページを 1-3, 5, 8- のように入力してください。</translation>
    </message>
    <message>
        <source>“%1” is no page number. Write pages as 1-3, 5, 8-.</source>
        <translation>「%1」はページ番号ではありません。1-3, 5, 8- のように入力してください。</translation>
    </message>
    <message>
        <source>“%1”: pages count from 1.</source>
        <translation>「%1」: ページ番号は 1 から始まります。</translation>
    </message>
    <message>
        <source>“%1”: no document has so many pages.</source>
        <translation>「%1」: これほど多くのページを持つ書類はありません。</translation>
    </message>
    <message>
        <source>“%1” runs backwards. Write %2.</source>
        <translation>「%1」は逆順です。%2 と入力してください。</translation>
    </message>
    <message>
        <source>“%1” is no range. Write a range as 1-3.</source>
        <translation>「%1」は範囲ではありません。範囲は 1-3 のように入力してください。</translation>
    </message>
    <message numerus="yes">
        <source>“%1”: the document has only %n page(s).</source>
        <translation>
            <numerusform>「%1」: 書類は %n ページしかありません。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingWords</name>
    <message>
        <source>Copies</source>
        <translation>部数</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>部単位で印刷</translation>
    </message>
    <message>
        <source>Order of sheets</source>
        <translation>用紙の順序</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>Odd or even pages</source>
        <translation>奇数/偶数ページ</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>用紙</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>両面</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>1枚あたりのページ数</translation>
    </message>
    <message>
        <source>Layout order</source>
        <translation>レイアウトの順序</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>枠線</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>拡大/縮小</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>カラー</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>品質</translation>
    </message>
    <message>
        <source>Output tray</source>
        <translation>排紙トレイ</translation>
    </message>
    <message>
        <source>Flip horizontally</source>
        <translation>左右反転</translation>
    </message>
    <message>
        <source>On</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>First page first</source>
        <translation>最初のページから</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>最後のページから</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>グレースケール</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>ドラフト</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>High</source>
        <translation>高品質</translation>
    </message>
    <message>
        <source>Pages side by side</source>
        <translation>横に並ぶページ数</translation>
    </message>
    <message>
        <source>Turn on the long edge</source>
        <translation>長辺でとじる</translation>
    </message>
    <message>
        <source>Turn on the short edge</source>
        <translation>短辺でとじる</translation>
    </message>
    <message>
        <source>Installed Options</source>
        <translation>取り付けられているオプション</translation>
    </message>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Job Control</source>
        <translation>ジョブ制御</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>その他のオプション</translation>
    </message>
</context>
<context>
    <name>SummaryTexts</name>
    <message>
        <source>Job</source>
        <translation>ジョブ</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>その他</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>変更あり</translation>
    </message>
    <message>
        <source>replaced by a setting of the job</source>
        <translation>ジョブの設定が優先されます</translation>
    </message>
</context>
<context>
    <name>Unsendable</name>
    <message>
        <source>a setting has no name</source>
        <translation>設定に名前がありません</translation>
    </message>
    <message>
        <source>the name is too long</source>
        <translation>名前が長すぎます</translation>
    </message>
    <message>
        <source>the name contains a character that cannot be sent</source>
        <translation>名前に送信できない文字が含まれています</translation>
    </message>
    <message>
        <source>the value is empty</source>
        <translation>値が空です</translation>
    </message>
    <message>
        <source>a value cannot begin with “{”</source>
        <translation>値を「{」で始めることはできません</translation>
    </message>
    <message>
        <source>the value contains a character that cannot be sent</source>
        <translation>値に送信できない文字が含まれています</translation>
    </message>
    <message>
        <source>the value is too long</source>
        <translation>値が長すぎます</translation>
    </message>
    <message>
        <source>the printer would read it as “off”</source>
        <translation>プリンタが「オフ」として解釈してしまいます</translation>
    </message>
    <message>
        <source>all settings together are too long</source>
        <translation>設定全体が長すぎます</translation>
    </message>
</context>
<context>
    <name>dialog::ChoiceDelegate</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>dialog::ConflictDesk</name>
    <message>
        <source>What is installed in the printer is set by whoever administers it.</source>
        <translation>プリンタに取り付けられているものは、プリンタの管理者が設定します。</translation>
    </message>
    <message>
        <source>No change of a few other settings makes it possible.</source>
        <translation>ほかの設定を少し変更しても、この設定は使えません。</translation>
    </message>
    <message>
        <source>Keep It This Way</source>
        <translation>このままにする</translation>
    </message>
</context>
<context>
    <name>dialog::ConflictSheet</name>
    <message>
        <source>Keep What I Had</source>
        <translation>元の設定を保つ</translation>
    </message>
    <message>
        <source>Make This Change</source>
        <translation>この変更を行う</translation>
    </message>
    <message>
        <source>What should change?</source>
        <translation>どの設定を変更しますか?</translation>
    </message>
</context>
<context>
    <name>dialog::FeaturesPanel</name>
    <message>
        <source>Printer Features</source>
        <translation>プリンタの機能</translation>
    </message>
    <message>
        <source>No feature matches.</source>
        <translation>該当する機能がありません。</translation>
    </message>
    <message>
        <source>Find a feature</source>
        <translation>機能を検索</translation>
    </message>
    <message>
        <source>Whoever administers the printer sets these.</source>
        <translation>プリンタの管理者が設定します。</translation>
    </message>
    <message>
        <source>Changed from the default “%1”</source>
        <translation>変更あり (デフォルトは「%1」)</translation>
    </message>
</context>
<context>
    <name>dialog::GeneralView</name>
    <message>
        <source>Collate</source>
        <translation>部単位で印刷</translation>
    </message>
    <message>
        <source>Reverse order</source>
        <translation>逆順</translation>
    </message>
    <message>
        <source>How often the document is printed</source>
        <translation>書類をプリントする部数</translation>
    </message>
    <message>
        <source>Prints one whole copy after the other</source>
        <translation>1部ずつまとめてプリントします</translation>
    </message>
    <message>
        <source>Prints the last page first</source>
        <translation>最後のページからプリントします</translation>
    </message>
    <message>
        <source>Which of these pages are printed</source>
        <translation>これらのうちプリントするページ</translation>
    </message>
    <message>
        <source>How the pages lie on the paper</source>
        <translation>用紙上のページの向き</translation>
    </message>
    <message>
        <source>The paper in the printer</source>
        <translation>プリンタにセットした用紙</translation>
    </message>
    <message>
        <source>Whether the paper is printed on both sides</source>
        <translation>用紙の両面にプリントするかどうか</translation>
    </message>
    <message>
        <source>Paper size:</source>
        <translation>用紙サイズ:</translation>
    </message>
    <message>
        <source>Two-sided:</source>
        <translation>両面:</translation>
    </message>
    <message>
        <source>Copies:</source>
        <translation>部数:</translation>
    </message>
    <message>
        <source>Pages:</source>
        <translation>ページ:</translation>
    </message>
    <message>
        <source>Odd or even:</source>
        <translation>奇数/偶数:</translation>
    </message>
    <message>
        <source>Orientation:</source>
        <translation>方向:</translation>
    </message>
</context>
<context>
    <name>dialog::JobDesk</name>
    <message>
        <source>There is nothing to print. Start the dialog with a document.</source>
        <translation>プリントする書類がありません。書類を指定してダイアログを開いてください。</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Print Anyway</source>
        <translation>このままプリント</translation>
    </message>
    <message>
        <source>Before this prints:</source>
        <translation>プリントの前に:</translation>
    </message>
    <message>
        <source>The job could not be written to %1: %2. Make room or allow writing there, then print again.</source>
        <translation>ジョブを %1 に書き込めませんでした: %2。空き容量または書き込み権限を確認して、もう一度プリントしてください。</translation>
    </message>
    <message>
        <source>Nothing was sent, because a setting would get lost: %1. Choose another value for it.</source>
        <translation>設定が失われるため、何も送信されませんでした: %1。別の値を選んでください。</translation>
    </message>
    <message>
        <source>Sending to %1: %2 %.</source>
        <translation>%1 に送信中: %2%</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>ジョブを中止</translation>
    </message>
    <message>
        <source>Sent as job %1.</source>
        <translation>ジョブ %1 として送信しました。</translation>
    </message>
    <message>
        <source>Writing the job: %1 %.</source>
        <translation>ジョブを書き込み中: %1%</translation>
    </message>
</context>
<context>
    <name>dialog::LayoutPanel</name>
    <message>
        <source>Flip horizontally</source>
        <translation>左右反転</translation>
    </message>
    <message>
        <source>Pages per sheet:</source>
        <translation>1枚あたりのページ数:</translation>
    </message>
    <message>
        <source>How many pages share a side of the paper</source>
        <translation>用紙の片面に並べるページ数</translation>
    </message>
    <message>
        <source>Layout order:</source>
        <translation>レイアウトの順序:</translation>
    </message>
    <message>
        <source>In which order they lie there</source>
        <translation>ページを並べる順序</translation>
    </message>
    <message>
        <source>Border:</source>
        <translation>枠線:</translation>
    </message>
    <message>
        <source>A line around each page</source>
        <translation>各ページを囲む線</translation>
    </message>
    <message>
        <source>Scaling:</source>
        <translation>拡大/縮小:</translation>
    </message>
    <message>
        <source>How large the pages are on the paper</source>
        <translation>用紙上のページの大きさ</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>レイアウト</translation>
    </message>
    <message>
        <source>Prints every page as in a mirror</source>
        <translation>各ページを鏡に映したようにプリントします</translation>
    </message>
    <message>
        <source>On this system the printer&apos;s own panel mirrors the pages.</source>
        <translation>このシステムでは、プリンタの設定パネルでページを左右反転します。</translation>
    </message>
</context>
<context>
    <name>dialog::NoticeArea</name>
    <message>
        <source>Dismiss this notice</source>
        <translation>この通知を閉じる</translation>
    </message>
</context>
<context>
    <name>dialog::PanelStack</name>
    <message>
        <source>This printer has no PPD, so there are no panels for it. Print uses the settings that its queue has.</source>
        <translation>このプリンタには PPD がないため、設定パネルはありません。キューの設定でプリントします。</translation>
    </message>
    <message>
        <source>The PPD of this printer names no panels. Print uses the settings that are marked in it.</source>
        <translation>このプリンタの PPD には設定パネルが指定されていません。PPD の設定でプリントします。</translation>
    </message>
    <message>
        <source>The maker&apos;s driver offers no panels for this printer.</source>
        <translation>このプリンタ用の設定パネルはドライバにありません。</translation>
    </message>
</context>
<context>
    <name>dialog::PresetBar</name>
    <message>
        <source>Presets</source>
        <translation>プリセット</translation>
    </message>
    <message>
        <source>(changed)</source>
        <translation>(変更あり)</translation>
    </message>
    <message>
        <source>The settings are others than those of the preset.</source>
        <translation>現在の設定はプリセットと異なります。</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>管理</translation>
    </message>
    <message>
        <source>Manage presets</source>
        <translation>プリセットを管理</translation>
    </message>
    <message>
        <source>Save, change and compare presets</source>
        <translation>プリセットの保存、変更、比較</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>別名で保存…</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>名前を変更…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Compare with Settings</source>
        <translation>現在の設定と比較</translation>
    </message>
    <message>
        <source>Name of the preset</source>
        <translation>プリセットの名前</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Differences from the preset</source>
        <translation>プリセットとの違い</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>現在</translation>
    </message>
    <message>
        <source>In the Preset</source>
        <translation>プリセット</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>My Presets</source>
        <translation>マイプリセット</translation>
    </message>
    <message>
        <source>Presets of the Printer</source>
        <translation>プリンタのプリセット</translation>
    </message>
    <message>
        <source>Default Settings</source>
        <translation>デフォルト設定</translation>
    </message>
    <message>
        <source>Last Used Settings</source>
        <translation>前回使用した設定</translation>
    </message>
</context>
<context>
    <name>dialog::PresetDesk</name>
    <message>
        <source>Last Used Settings</source>
        <translation>前回使用した設定</translation>
    </message>
    <message>
        <source>Preset “%1”</source>
        <translation>プリセット「%1」</translation>
    </message>
    <message>
        <source>The preset “%1” has the present settings now.</source>
        <translation>プリセット「%1」を現在の設定で更新しました。</translation>
    </message>
    <message>
        <source>The preset “%1” has been deleted.</source>
        <translation>プリセット「%1」を削除しました。</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>取り消す</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>デフォルトに戻す</translation>
    </message>
    <message>
        <source>Your home folder does not answer. As soon as it does, your presets appear in the menu, and what you have changed in them is written.</source>
        <translation>ホームフォルダが応答しません。応答すると、プリセットがメニューに表示され、プリセットに加えた変更が保存されます。</translation>
    </message>
</context>
<context>
    <name>dialog::PreviewPane</name>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>Previous sheet</source>
        <translation>前の用紙</translation>
    </message>
    <message>
        <source>Next sheet</source>
        <translation>次の用紙</translation>
    </message>
    <message>
        <source>Sheet shown</source>
        <translation>表示中の用紙</translation>
    </message>
    <message>
        <source>Make the preview smaller</source>
        <translation>プレビューを縮小</translation>
    </message>
    <message>
        <source>Make the preview larger</source>
        <translation>プレビューを拡大</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>全体</translation>
    </message>
    <message>
        <source>Show the whole sheet</source>
        <translation>用紙全体を表示</translation>
    </message>
    <message>
        <source>Side </source>
        <extracomment>Stands before the number of the sheet in &quot;Sheet 1 of 3&quot;.</extracomment>
        <translation>面 </translation>
    </message>
    <message>
        <source>Sheet </source>
        <translation>用紙 </translation>
    </message>
    <message>
        <source> of %1</source>
        <extracomment>Stands behind the number of the sheet in &quot;Sheet 1 of 3&quot;.</extracomment>
        <translation>/%1</translation>
    </message>
    <message>
        <source>Nothing would be printed: no page is among those chosen.</source>
        <translation>選択したページに該当するものがないため、何もプリントされません。</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <extracomment>What the sheet shows, and a sentence about what it does not.</extracomment>
        <translation>%1。%2</translation>
    </message>
</context>
<context>
    <name>dialog::PreviewWords</name>
    <message>
        <source>No document. The sheet stays empty.</source>
        <translation>書類がありません。用紙は空白のままです。</translation>
    </message>
    <message>
        <source>The document cannot be read. Check that it is still in its place and that you may read it.</source>
        <translation>書類を読み込めません。元の場所にあり、読み取り権限があることを確認してください。</translation>
    </message>
    <message>
        <source>The document is damaged. Open it in the program that made it and save it again.</source>
        <translation>書類が壊れています。作成したプログラムで開いて、保存し直してください。</translation>
    </message>
    <message>
        <source>The document is protected by a password. Save a copy of it without the password and print that.</source>
        <translation>書類はパスワードで保護されています。パスワードなしのコピーを保存して、それをプリントしてください。</translation>
    </message>
    <message>
        <source>The document has no pages. Choose another one.</source>
        <translation>書類にページがありません。別の書類を選んでください。</translation>
    </message>
    <message>
        <source>The picture is too large to be shown. Scale it down to see it here; it can be printed as it is.</source>
        <translation>画像が大きすぎて表示できません。ここで見るには縮小してください。プリントはこのままできます。</translation>
    </message>
    <message>
        <source>There is no preview for this kind of document. It can be printed all the same.</source>
        <translation>この種類の書類はプレビューできませんが、プリントはできます。</translation>
    </message>
    <message>
        <source>There is no preview of PDF documents: the part of this program that reads them is not installed. Install the program again to see it; the document can be printed as it is.</source>
        <translation>PDF 書類のプレビューは表示できません。PDF を読み込む部分がインストールされていません。表示するにはプログラムをインストールし直してください。書類はこのまま印刷できます。</translation>
    </message>
</context>
<context>
    <name>dialog::PrintDialog</name>
    <message>
        <source>Choose a group of settings from the pop-up menu, change what you need, and press Print. Where the printer cannot combine a choice with another one, the window says which one is in the way, and what could change instead.</source>
        <translation>ポップアップメニューで設定の種類を選び、必要な項目を変更して「プリント」を押してください。組み合わせられない選択があるときは、妨げになっている設定と、代わりに変更できる設定が表示されます。</translation>
    </message>
    <message>
        <source>Changed: %1</source>
        <translation>変更: %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>取り消す</translation>
    </message>
</context>
<context>
    <name>dialog::PrintWindow</name>
    <message>
        <source>Print</source>
        <translation>プリント</translation>
    </message>
    <message>
        <source>Settings:</source>
        <translation>設定:</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>プリンタ:</translation>
    </message>
    <message>
        <source>Document:</source>
        <translation>書類:</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>送信中…</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>デフォルトに戻す</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Presets:</source>
        <translation>プリセット:</translation>
    </message>
</context>
<context>
    <name>dialog::PrinterPicker</name>
    <message>
        <source>Find a printer</source>
        <translation>プリンタを検索</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>プリンタ</translation>
    </message>
</context>
<context>
    <name>dialog::QueueDialog</name>
    <message>
        <source>Connecting to %1…</source>
        <translation>%1 に接続中…</translation>
    </message>
    <message>
        <source>The print server at %1 has no printers. Add one there, then try again.</source>
        <translation>%1 のプリントサーバにはプリンタがありません。プリンタを追加して、再試行してください。</translation>
    </message>
    <message>
        <source>This printer does not have what you chose for the one before:</source>
        <translation>前のプリンタで選んだ次の設定は、このプリンタにはありません:</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>再試行</translation>
    </message>
</context>
<context>
    <name>dialog::RangeField</name>
    <message numerus="yes">
        <source>The document has %n page(s): it is printed up to its end.</source>
        <translation>
            <numerusform>書類は %n ページです。最後のページまでプリントします。</numerusform>
        </translation>
    </message>
    <message>
        <source>All</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>Only:</source>
        <translation>指定:</translation>
    </message>
    <message>
        <source>Prints the whole document</source>
        <translation>書類全体をプリントします</translation>
    </message>
    <message>
        <source>Prints the pages that are named beside it</source>
        <translation>横に入力したページをプリントします</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>すべてのページ</translation>
    </message>
    <message>
        <source>Only some pages</source>
        <translation>一部のページのみ</translation>
    </message>
    <message>
        <source>Pages to print</source>
        <translation>プリントするページ</translation>
    </message>
    <message>
        <source>for example 1-3, 5, 8-</source>
        <translation>例: 1-3, 5, 8-</translation>
    </message>
    <message>
        <source>Pages and ranges of pages, with commas between them</source>
        <translation>ページ番号とページ範囲をコンマで区切って入力</translation>
    </message>
    <message>
        <source>“%1”: with %2 pages per sheet the numbers count printed sides, and there are fewer.</source>
        <translation>「%1」: 1枚に %2 ページを割り付けると、番号は印刷面を数えます。印刷面はそれより少なくなります。</translation>
    </message>
    <message>
        <source>With %1 pages per sheet the numbers count printed sides: these have the pages %2 of the document.</source>
        <translation>1枚に %1 ページを割り付けると、番号は印刷面を数えます。これらには書類の %2 ページが入ります。</translation>
    </message>
</context>
<context>
    <name>dialog::SaveDesk</name>
    <message>
        <source>Save as PDF…</source>
        <translation>PDFとして保存…</translation>
    </message>
    <message>
        <source>Save Job Ticket…</source>
        <translation>ジョブチケットを保存…</translation>
    </message>
    <message>
        <source>There is no document. Start the dialog with one.</source>
        <translation>書類がありません。書類を指定してダイアログを開いてください。</translation>
    </message>
    <message>
        <source>Saving %1: side %2 of %3.</source>
        <translation>%1 を保存中: %2/%3 面</translation>
    </message>
    <message>
        <source>Cancel Saving</source>
        <translation>保存を中止</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>%1 として保存しました。</translation>
    </message>
    <message>
        <source>%1 could not be saved: %2. Choose another place, or make room and allow writing there.</source>
        <translation>%1 を保存できませんでした: %2。別の場所を選ぶか、空き容量と書き込み権限を確認してください。</translation>
    </message>
    <message>
        <source>%1 could not be saved. %2</source>
        <translation>%1 を保存できませんでした。%2</translation>
    </message>
</context>
<context>
    <name>dialog::SignInPrompt</name>
    <message>
        <source>Name:</source>
        <translation>名前:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>パスワード:</translation>
    </message>
    <message>
        <source>The print server did not accept this name and password.</source>
        <translation>プリントサーバはこの名前とパスワードを受け付けませんでした。</translation>
    </message>
    <message>
        <source>The print server %1 wants a name and password before it prints to %2. They are sent for this job and not kept.</source>
        <translation>プリントサーバ %1 で %2 にプリントするには名前とパスワードが必要です。このジョブにだけ送信され、保存はされません。</translation>
    </message>
    <message>
        <source>The connection is not encrypted: others in the network could read the password.</source>
        <translation>接続は暗号化されていません。ネットワーク上のほかの人にパスワードを読み取られる可能性があります。</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>ジョブを中止</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>サインイン</translation>
    </message>
</context>
<context>
    <name>dialog::SummaryPanel</name>
    <message>
        <source>Summary</source>
        <translation>一覧</translation>
    </message>
    <message>
        <source>No setting matches.</source>
        <translation>該当する設定がありません。</translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation>設定を検索</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>テキストとしてコピー</translation>
    </message>
</context>
</TS>
