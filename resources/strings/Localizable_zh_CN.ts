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
        <source>Advanced Options</source>
        <translation>高级选项</translation>
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
        <source>Black and White</source>
        <translation>黑白</translation>
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
        <source>Color Output:</source>
        <translation>颜色输出：</translation>
    </message>
    <message>
        <source>Color Preferences:</source>
        <translation>颜色偏好：</translation>
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
        <source>Dry Time</source>
        <translation>干燥时间</translation>
    </message>
    <message>
        <source>Dry Time:</source>
        <translation>干燥时间：</translation>
    </message>
    <message>
        <source>Halftone:</source>
        <translation>半色调：</translation>
    </message>
    <message>
        <source>How carefully the page is printed: better quality takes longer and uses more ink or toner.</source>
        <translation>页面打印的精细程度：质量越高，耗时越长，使用的墨水或碳粉越多。</translation>
    </message>
    <message>
        <source>How colors are matched between the screen and the print.</source>
        <translation>屏幕与打印之间的色彩匹配方式。</translation>
    </message>
    <message>
        <source>How dark a gray must be to be printed as black, from 1 to 5.</source>
        <translation>灰色达到多深时打印为黑色，取值 1 到 5。</translation>
    </message>
    <message>
        <source>How long the printer waits for the ink to dry before it prints the other side of the sheet.</source>
        <translation>打印纸张另一面之前等待墨水干燥的时间。</translation>
    </message>
    <message>
        <source>ICC Test Chart</source>
        <translation>ICC 测试图</translation>
    </message>
    <message>
        <source>Improve toner fixing</source>
        <translation>改善碳粉定影</translation>
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
        <source>Ink To Use:</source>
        <translation>使用的墨水：</translation>
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
        <source>Makes the edges in pictures crisper. Too much of it looks grainy.</source>
        <translation>使图片边缘更清晰，过度则显得粗糙。</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>镜像</translation>
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
        <source>Paper Source:</source>
        <translation>纸张来源：</translation>
    </message>
    <message>
        <source>Paper Type:</source>
        <translation>纸张类型：</translation>
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
        <source>Print Quality:</source>
        <translation>打印质量：</translation>
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
        <source>Prints in color, or in black and shades of gray. Other settings depend on it.</source>
        <translation>以彩色打印，或以黑色和灰阶打印。其他设置取决于此项。</translation>
    </message>
    <message>
        <source>Prints lighter, so that the toner lasts longer.</source>
        <translation>打印得较淡，使碳粉更耐用。</translation>
    </message>
    <message>
        <source>Prints the page reversed from left to right, as iron-on transfers need it.</source>
        <translation>左右反转打印页面，适用于热转印纸。</translation>
    </message>
    <message>
        <source>Prints without any color correction, for measuring a test chart.</source>
        <translation>不做任何色彩校正地打印，用于测量测试图表。</translation>
    </message>
    <message>
        <source>Prints without colors.</source>
        <translation>不使用彩色打印。</translation>
    </message>
    <message>
        <source>Quality &amp; Media</source>
        <translation>质量与介质</translation>
    </message>
    <message>
        <source>Raises or lowers the threshold by one.</source>
        <translation>将阈值增加或减少 1。</translation>
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
        <source>Sharpening:</source>
        <translation>锐化：</translation>
    </message>
    <message>
        <source>Show instructions to resolve the conflict settings.</source>
        <translation>显示解决冲突的操作说明。</translation>
    </message>
    <message>
        <source>Shows or hides the less common settings.</source>
        <translation>显示或隐藏不常用的设置。</translation>
    </message>
    <message>
        <source>The ink cartridges that the page is printed with.</source>
        <translation>打印页面所用的墨盒。</translation>
    </message>
    <message>
        <source>The kind of paper in the printer. It decides how much ink is laid down and how fast the paper moves.</source>
        <translation>打印机中的纸张种类，决定墨水用量和走纸速度。</translation>
    </message>
    <message>
        <source>The pattern of dots that shades of gray are made of.</source>
        <translation>构成灰阶的网点图案。</translation>
    </message>
    <message>
        <source>The problem that the printer corrects.</source>
        <translation>打印机要改善的问题。</translation>
    </message>
    <message>
        <source>The tray that the paper is taken from.</source>
        <translation>取纸的纸盘。</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>阈值</translation>
    </message>
    <message>
        <source>Threshold:</source>
        <translation>阈值：</translation>
    </message>
    <message>
        <source>Toner Save</source>
        <translation>节省碳粉</translation>
    </message>
    <message>
        <source>is not compatible with</source>
        <translation>与下列设置不兼容</translation>
    </message>
</context>
</TS>
