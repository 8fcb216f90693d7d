<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>1) Cancel the Print dialog.</source>
        <translation>1) 取消“打印”对话框。</translation>
    </message>
    <message>
        <source>1) From the pop-up menu, choose Layout.</source>
        <translation>1) 在弹出式菜单中选择“布局”。</translation>
    </message>
    <message>
        <source>1) From the pop-up menu, choose Quality &amp; Media.</source>
        <translation>1) 在弹出式菜单中选择“质量与介质”。</translation>
    </message>
    <message>
        <source>1) If your application does not have File -&gt; Page Setup, skip to step 7.</source>
        <translation>1) 如果应用程序没有“文件 -&gt; 页面设置”，请跳到第 7 步。</translation>
    </message>
    <message>
        <source>2) Cancel the Print dialog.</source>
        <translation>2) 取消“打印”对话框。</translation>
    </message>
    <message>
        <source>2) From the Pages per Sheet popup menu, choose 1.</source>
        <translation>2) 在“每张页数”弹出式菜单中选择 1。</translation>
    </message>
    <message>
        <source>2) Go to Advanced Options -&gt; From the Color Output pop-up menu, choose Color.</source>
        <translation>2) 打开“高级选项” -&gt; 在“颜色输出”弹出式菜单中选择“Color”（彩色）。</translation>
    </message>
    <message>
        <source>2) Go to Advanced Options -&gt; From the Ink To Use pop-up menu, choose Automatic.</source>
        <translation>2) 打开“高级选项” -&gt; 在“使用的墨水”弹出式菜单中选择“自动”。</translation>
    </message>
    <message>
        <source>2) Launch the Korvane Utility</source>
        <translation>2) 启动 Korvane 实用工具</translation>
    </message>
    <message>
        <source>3) Click the close button in the upper left corner of this screen.</source>
        <translation>3) 单击此窗口的关闭按钮。</translation>
    </message>
    <message>
        <source>3) Select File -&gt; Page Setup.</source>
        <translation>3) 选择“文件 -&gt; 页面设置”。</translation>
    </message>
    <message>
        <source>3) Select the Install/ Change Cartridge... button.</source>
        <translation>3) 单击“安装/更换墨盒...”按钮。</translation>
    </message>
    <message>
        <source>4) From the Paper Size pop-up menu, select the desired paper size.</source>
        <translation>4) 在“纸张尺寸”弹出式菜单中选择所需的纸张尺寸。</translation>
    </message>
    <message>
        <source>4) Install a black cartridge.</source>
        <translation>4) 安装黑色墨盒。</translation>
    </message>
    <message>
        <source>5) Click OK.</source>
        <translation>5) 单击“确定”。</translation>
    </message>
    <message>
        <source>5) Open the Print dialog, and then reselect your settings.</source>
        <translation>5) 打开“打印”对话框，然后重新选择设置。</translation>
    </message>
    <message>
        <source>6) Click the close button in the upper left corner of this screen.</source>
        <translation>6) 单击此窗口的关闭按钮。</translation>
    </message>
    <message>
        <source>6) Open the Print dialog.</source>
        <translation>6) 打开“打印”对话框。</translation>
    </message>
    <message>
        <source>7) From the Print dialog, select your desired settings.</source>
        <translation>7) 在“打印”对话框中选择所需的设置。</translation>
    </message>
    <message>
        <source>8) Click the close button in the upper left corner of this screen.</source>
        <translation>8) 单击此窗口的关闭按钮。</translation>
    </message>
    <message>
        <source>Adjusts how dark text and images are printed.</source>
        <translation>调整文字和图像的打印浓度。</translation>
    </message>
    <message>
        <source>Advanced Options: Mirror (OFF)</source>
        <translation>高级选项: 镜像 (关)</translation>
    </message>
    <message>
        <source>Advanced Options: Mirror (ON)</source>
        <translation>高级选项: 镜像 (开)</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>Cartridge(s) installed: Only Color</source>
        <translation>已安装的墨盒: 仅彩色</translation>
    </message>
    <message>
        <source>Cartridge(s) installed: Photo</source>
        <translation>已安装的墨盒: 照片</translation>
    </message>
    <message>
        <source>Changes how the printer works to correct the problem chosen below.</source>
        <translation>改变打印机的工作方式，以改善下面所选的问题。</translation>
    </message>
    <message>
        <source>Choose an option to resolve the conflict:</source>
        <translation>请选择解决冲突的方式：</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>彩色</translation>
    </message>
    <message>
        <source>Conflicting settings</source>
        <translation>设置冲突</translation>
    </message>
    <message>
        <source>Continue without resolving the conflict.</source>
        <translation>不解决冲突，直接继续。</translation>
    </message>
    <message>
        <source>Document Color: Black Only</source>
        <translation>文档颜色: 仅黑色</translation>
    </message>
    <message>
        <source>Document Color: Color</source>
        <translation>文档颜色: 彩色</translation>
    </message>
    <message>
        <source>Improve toner fixing</source>
        <translation>改善墨粉定影</translation>
    </message>
    <message>
        <source>Improvement</source>
        <translation>改善</translation>
    </message>
    <message>
        <source>Improvement Settings</source>
        <translation>改善设置</translation>
    </message>
    <message>
        <source>Ink To Use</source>
        <translation>使用的墨水</translation>
    </message>
    <message>
        <source>Instructions</source>
        <translation>操作说明</translation>
    </message>
    <message>
        <source>Keeps faint copies of an image from appearing further down the page.</source>
        <translation>防止图像的淡影出现在页面下方。</translation>
    </message>
    <message>
        <source>Layout: Pages per Sheet (&gt;1)</source>
        <translation>布局: 每张页数 (&gt;1)</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>其他</translation>
    </message>
    <message>
        <source>Paper Size: </source>
        <translation>纸张尺寸: </translation>
    </message>
    <message>
        <source>Paper Type: </source>
        <translation>纸张类型: </translation>
    </message>
    <message>
        <source>Paper Type: Automatic</source>
        <translation>纸张类型: 自动</translation>
    </message>
    <message>
        <source>Paper Type: Envelope</source>
        <translation>纸张类型: 信封</translation>
    </message>
    <message>
        <source>Paper Type: Iron-On Transfer</source>
        <translation>纸张类型: 热转印纸</translation>
    </message>
    <message>
        <source>Paper Type: Plain Paper</source>
        <translation>纸张类型: 普通纸</translation>
    </message>
    <message>
        <source>Print Density</source>
        <translation>打印浓度</translation>
    </message>
    <message>
        <source>Print Quality: Draft</source>
        <translation>打印质量: 草稿</translation>
    </message>
    <message>
        <source>Print Quality: Normal</source>
        <translation>打印质量: 标准</translation>
    </message>
    <message>
        <source>Quality &amp; Media</source>
        <translation>质量与介质</translation>
    </message>
    <message>
        <source>Reduce Ghosting</source>
        <translation>减少重影</translation>
    </message>
    <message>
        <source>Reduce paper curl</source>
        <translation>减少纸张卷曲</translation>
    </message>
    <message>
        <source>Reduce wrinkles or creases</source>
        <translation>减少褶皱或折痕</translation>
    </message>
    <message>
        <source>Show instructions to resolve the conflict settings.</source>
        <translation>显示解决冲突的操作说明。</translation>
    </message>
    <message>
        <source>The problem that the printer corrects.</source>
        <translation>打印机要改善的问题。</translation>
    </message>
    <message>
        <source>is not compatible with</source>
        <translation>与下列设置不兼容</translation>
    </message>
</context>
</TS>
