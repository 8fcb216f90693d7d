<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>1) Cancel the Print dialog.</source>
        <translation>1) プリントダイアログをキャンセルします。</translation>
    </message>
    <message>
        <source>1) From the pop-up menu, choose Layout.</source>
        <translation>1) ポップアップメニューから［レイアウト］を選択します。</translation>
    </message>
    <message>
        <source>1) From the pop-up menu, choose Quality &amp; Media.</source>
        <translation>1) ポップアップメニューから［印刷品質/用紙の種類］を選択します。</translation>
    </message>
    <message>
        <source>1) If your application does not have File -&gt; Page Setup, skip to step 7.</source>
        <translation>1) アプリケーションに［ファイル］-&gt;［ページ設定］がない場合は、手順7に進みます。</translation>
    </message>
    <message>
        <source>2) Cancel the Print dialog.</source>
        <translation>2) プリントダイアログをキャンセルします。</translation>
    </message>
    <message>
        <source>2) From the Pages per Sheet popup menu, choose 1.</source>
        <translation>2) ［ページ数/枚］ポップアップメニューから［1］を選択します。</translation>
    </message>
    <message>
        <source>2) Go to Advanced Options -&gt; From the Color Output pop-up menu, choose Color.</source>
        <translation>2) ［追加オプション］を開き、［カラー出力］ポップアップメニューから［Color］（カラー）を選択します。</translation>
    </message>
    <message>
        <source>2) Go to Advanced Options -&gt; From the Ink To Use pop-up menu, choose Automatic.</source>
        <translation>2) ［追加オプション］を開き、［使用するインク］ポップアップメニューから［自動］を選択します。</translation>
    </message>
    <message>
        <source>2) Launch the Korvane Utility</source>
        <translation>2) %@用のKorvaneユーティリティを起動します。</translation>
    </message>
    <message>
        <source>3) Click the close button in the upper left corner of this screen.</source>
        <translation>3) このウインドウのクローズボタンをクリックします。</translation>
    </message>
    <message>
        <source>3) Select File -&gt; Page Setup.</source>
        <translation>3) ［ファイル］-&gt;［ページ設定］を選択します。</translation>
    </message>
    <message>
        <source>3) Select the Install/ Change Cartridge... button.</source>
        <translation>3) ［カートリッジの取り付け/交換...］ボタンをクリックします。</translation>
    </message>
    <message>
        <source>4) From the Paper Size pop-up menu, select the desired paper size.</source>
        <translation>4) ［用紙サイズ］ポップアップメニューから、使用する用紙サイズを選択します。</translation>
    </message>
    <message>
        <source>4) Install a black cartridge.</source>
        <translation>4) 黒カートリッジを取り付けます。</translation>
    </message>
    <message>
        <source>5) Click OK.</source>
        <translation>5) ［OK］をクリックします。</translation>
    </message>
    <message>
        <source>5) Open the Print dialog, and then reselect your settings.</source>
        <translation>5) プリントダイアログを開き、設定を選択し直します。</translation>
    </message>
    <message>
        <source>6) Click the close button in the upper left corner of this screen.</source>
        <translation>6) このウインドウのクローズボタンをクリックします。</translation>
    </message>
    <message>
        <source>6) Open the Print dialog.</source>
        <translation>6) プリントダイアログを開きます。</translation>
    </message>
    <message>
        <source>7) From the Print dialog, select your desired settings.</source>
        <translation>7) プリントダイアログで、使用する設定を選択します。</translation>
    </message>
    <message>
        <source>8) Click the close button in the upper left corner of this screen.</source>
        <translation>8) このウインドウのクローズボタンをクリックします。</translation>
    </message>
    <message>
        <source>Adjusts how dark text and images are printed.</source>
        <translation>文字と画像を印刷する濃さを調整します。</translation>
    </message>
    <message>
        <source>Advanced Options</source>
        <translation>追加オプション</translation>
    </message>
    <message>
        <source>Advanced Options: Mirror (OFF)</source>
        <translation>追加オプション: 左右反転 (オフ)</translation>
    </message>
    <message>
        <source>Advanced Options: Mirror (ON)</source>
        <translation>追加オプション: 左右反転 (オン)</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Black and White</source>
        <translation>モノクロ</translation>
    </message>
    <message>
        <source>Cartridge(s) installed: Only Color</source>
        <translation>取り付け済みカートリッジ: カラーのみ</translation>
    </message>
    <message>
        <source>Cartridge(s) installed: Photo</source>
        <translation>取り付け済みカートリッジ: フォト</translation>
    </message>
    <message>
        <source>Changes how the printer works to correct the problem chosen below.</source>
        <translation>下で選んだ問題を改善するように、プリンターの動作を変えます。</translation>
    </message>
    <message>
        <source>Choose an option to resolve the conflict:</source>
        <translation>競合の解決方法を選択してください。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>カラー</translation>
    </message>
    <message>
        <source>Color Output:</source>
        <translation>カラー出力:</translation>
    </message>
    <message>
        <source>Color Preferences:</source>
        <translation>色の設定:</translation>
    </message>
    <message>
        <source>Conflicting settings</source>
        <translation>設定の競合</translation>
    </message>
    <message>
        <source>Continue without resolving the conflict.</source>
        <translation>競合を解決せずに続行する。</translation>
    </message>
    <message>
        <source>Document Color: Black Only</source>
        <translation>文書の色: 黒のみ</translation>
    </message>
    <message>
        <source>Document Color: Color</source>
        <translation>文書の色: カラー</translation>
    </message>
    <message>
        <source>Dry Time</source>
        <translation>乾燥時間</translation>
    </message>
    <message>
        <source>Dry Time:</source>
        <translation>乾燥時間:</translation>
    </message>
    <message>
        <source>Halftone:</source>
        <translation>ハーフトーン:</translation>
    </message>
    <message>
        <source>How carefully the page is printed: better quality takes longer and uses more ink or toner.</source>
        <translation>印刷の丁寧さです。高品質ほど時間がかかり、インクやトナーを多く使います。</translation>
    </message>
    <message>
        <source>How colors are matched between the screen and the print.</source>
        <translation>画面と印刷の色の合わせ方です。</translation>
    </message>
    <message>
        <source>How dark a gray must be to be printed as black, from 1 to 5.</source>
        <translation>どの濃さのグレーから黒として印刷するか、1～5で指定します。</translation>
    </message>
    <message>
        <source>How long the printer waits for the ink to dry before it prints the other side of the sheet.</source>
        <translation>裏面を印刷する前にインクを乾かす時間です。</translation>
    </message>
    <message>
        <source>ICC Test Chart</source>
        <translation>ICCテストチャート</translation>
    </message>
    <message>
        <source>Improve toner fixing</source>
        <translation>トナーの定着を良くする</translation>
    </message>
    <message>
        <source>Improvement</source>
        <translation>改善</translation>
    </message>
    <message>
        <source>Improvement Settings</source>
        <translation>改善設定</translation>
    </message>
    <message>
        <source>Ink To Use</source>
        <translation>使用するインク</translation>
    </message>
    <message>
        <source>Ink To Use:</source>
        <translation>使用するインク:</translation>
    </message>
    <message>
        <source>Instructions</source>
        <translation>操作手順</translation>
    </message>
    <message>
        <source>Keeps faint copies of an image from appearing further down the page.</source>
        <translation>画像の薄い残像がページの下のほうに現れるのを防ぎます。</translation>
    </message>
    <message>
        <source>Layout: Pages per Sheet (&gt;1)</source>
        <translation>レイアウト: ページ数/枚 (2以上)</translation>
    </message>
    <message>
        <source>Makes the edges in pictures crisper. Too much of it looks grainy.</source>
        <translation>画像の輪郭をくっきりさせます。強すぎるとざらついて見えます。</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>左右反転</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>その他</translation>
    </message>
    <message>
        <source>Paper Size: </source>
        <translation>用紙サイズ: </translation>
    </message>
    <message>
        <source>Paper Source:</source>
        <translation>給紙方法:</translation>
    </message>
    <message>
        <source>Paper Type:</source>
        <translation>用紙の種類:</translation>
    </message>
    <message>
        <source>Paper Type: </source>
        <translation>用紙の種類: </translation>
    </message>
    <message>
        <source>Paper Type: Automatic</source>
        <translation>用紙の種類: 自動</translation>
    </message>
    <message>
        <source>Paper Type: Envelope</source>
        <translation>用紙の種類: 封筒</translation>
    </message>
    <message>
        <source>Paper Type: Iron-On Transfer</source>
        <translation>用紙の種類: アイロンプリント紙</translation>
    </message>
    <message>
        <source>Paper Type: Plain Paper</source>
        <translation>用紙の種類: 普通紙</translation>
    </message>
    <message>
        <source>Print Density</source>
        <translation>印刷濃度</translation>
    </message>
    <message>
        <source>Print Quality:</source>
        <translation>印刷品質:</translation>
    </message>
    <message>
        <source>Print Quality: Draft</source>
        <translation>印刷品質: 下書き</translation>
    </message>
    <message>
        <source>Print Quality: Normal</source>
        <translation>印刷品質: 標準</translation>
    </message>
    <message>
        <source>Prints in color, or in black and shades of gray. Other settings depend on it.</source>
        <translation>カラー、または黒とグレーの濃淡で印刷します。ほかの設定もこれに従います。</translation>
    </message>
    <message>
        <source>Prints lighter, so that the toner lasts longer.</source>
        <translation>薄く印刷してトナーを長持ちさせます。</translation>
    </message>
    <message>
        <source>Prints the page reversed from left to right, as iron-on transfers need it.</source>
        <translation>ページを左右反転して印刷します。アイロンプリント紙に必要です。</translation>
    </message>
    <message>
        <source>Prints without any color correction, for measuring a test chart.</source>
        <translation>色補正なしで印刷します。テストチャートの測定用です。</translation>
    </message>
    <message>
        <source>Prints without colors.</source>
        <translation>色を使わずに印刷します。</translation>
    </message>
    <message>
        <source>Quality &amp; Media</source>
        <translation>印刷品質/用紙の種類</translation>
    </message>
    <message>
        <source>Raises or lowers the threshold by one.</source>
        <translation>しきい値を1つ上げ下げします。</translation>
    </message>
    <message>
        <source>Reduce Ghosting</source>
        <translation>ゴーストを減らす</translation>
    </message>
    <message>
        <source>Reduce paper curl</source>
        <translation>用紙のカールを減らす</translation>
    </message>
    <message>
        <source>Reduce wrinkles or creases</source>
        <translation>しわや折れを減らす</translation>
    </message>
    <message>
        <source>Sharpening:</source>
        <translation>シャープネス:</translation>
    </message>
    <message>
        <source>Show instructions to resolve the conflict settings.</source>
        <translation>競合を解決する手順を表示する。</translation>
    </message>
    <message>
        <source>Shows or hides the less common settings.</source>
        <translation>あまり使わない設定を表示または非表示にします。</translation>
    </message>
    <message>
        <source>The ink cartridges that the page is printed with.</source>
        <translation>印刷に使うインクカートリッジです。</translation>
    </message>
    <message>
        <source>The kind of paper in the printer. It decides how much ink is laid down and how fast the paper moves.</source>
        <translation>プリンターにセットした用紙の種類です。インクの量と紙送りの速さが決まります。</translation>
    </message>
    <message>
        <source>The pattern of dots that shades of gray are made of.</source>
        <translation>グレーの濃淡を作る網点のパターンです。</translation>
    </message>
    <message>
        <source>The problem that the printer corrects.</source>
        <translation>プリンターが改善する問題です。</translation>
    </message>
    <message>
        <source>The tray that the paper is taken from.</source>
        <translation>用紙を給紙するトレイです。</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>しきい値</translation>
    </message>
    <message>
        <source>Threshold:</source>
        <translation>しきい値:</translation>
    </message>
    <message>
        <source>Toner Save</source>
        <translation>トナー節約</translation>
    </message>
    <message>
        <source>is not compatible with</source>
        <translation>は、次の設定と同時に使用できません</translation>
    </message>
</context>
</TS>
