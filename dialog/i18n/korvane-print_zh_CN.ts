<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>ChoiceWords</name>
    <message>
        <source>“%1: %2” and “%3: %4” do not go together.</source>
        <translation>“%1：%2”与“%3：%4”不能同时使用。</translation>
    </message>
    <message>
        <source>%1: you chose “%2”, the job has “%3”.</source>
        <translation>%1：您选择了“%2”，作业中为“%3”。</translation>
    </message>
    <message>
        <source>“%1: %2” cannot be used together with “%3: %4”.</source>
        <translation>“%1：%2”不能与“%3：%4”一起使用。</translation>
    </message>
    <message>
        <source>“%1: %2” cannot be chosen now.</source>
        <translation>现在不能选择“%1：%2”。</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1: you chose “%2”, but “%3” is set.</source>
        <translation>%1：您选择了“%2”，但当前设置为“%3”。</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>“%1”</translation>
    </message>
    <message>
        <source>“%1” cannot be used together with %2.</source>
        <translation>“%1”不能与%2一起使用。</translation>
    </message>
    <message>
        <source>not with %1</source>
        <translation>不能与%1同时使用</translation>
    </message>
    <message>
        <source>%1: without “%2”</source>
        <translation>%1：去除“%2”</translation>
    </message>
    <message>
        <source>%1: “%2”</source>
        <translation>%1：“%2”</translation>
    </message>
    <message>
        <source>%1: “%2” instead of “%3”</source>
        <translation>%1：用“%2”代替“%3”</translation>
    </message>
</context>
<context>
    <name>DocumentTexts</name>
    <message>
        <source>There is no document %1. Nothing was sent; choose another document.</source>
        <translation>文档 %1 不存在。未发送任何内容；请选择其他文档。</translation>
    </message>
    <message>
        <source>The document %1 cannot be read. Nothing was sent; choose another document or allow reading it.</source>
        <translation>无法读取文档 %1。未发送任何内容；请选择其他文档，或允许读取它。</translation>
    </message>
</context>
<context>
    <name>JobMessages</name>
    <message>
        <source>There is no print server to send the job to (%1). Nothing was sent, and your settings are kept: start the print server or correct CUPS_SERVER, and print again.</source>
        <translation>没有可接收作业的打印服务器（%1）。未发送任何内容，您的设置已保留：请启动打印服务器或更正 CUPS_SERVER，然后重新打印。</translation>
    </message>
    <message>
        <source>The print server does not answer. Your settings are kept. Print again when it does: what may have arrived by then is found, and not sent a second time.</source>
        <translation>打印服务器没有响应。您的设置已保留。请在其响应后重新打印：届时已送达的内容会被识别，不会重复发送。</translation>
    </message>
    <message>
        <source>The connection to the print server broke (%1). Your settings are kept. Print again: what may have arrived is found, and not sent a second time.</source>
        <translation>与打印服务器的连接已中断（%1）。您的设置已保留。请重新打印：已送达的内容会被识别，不会重复发送。</translation>
    </message>
    <message>
        <source>The print server does not let you print to the queue %1 without a name and password that it accepts. Nothing was printed, and your settings are kept: print again and sign in, ask its administrator, or choose another queue.</source>
        <translation>打印服务器要求提供它认可的用户名和密码，才允许您打印到队列 %1。未打印任何内容，您的设置已保留：请重新打印并登录、联系管理员，或选择其他队列。</translation>
    </message>
    <message>
        <source>The queue %1 takes no jobs at present. Nothing was sent, and your settings are kept: ask for the queue to be opened, or choose another one.</source>
        <translation>队列 %1 目前不接受作业。未发送任何内容，您的设置已保留：请要求开放该队列，或选择其他队列。</translation>
    </message>
    <message>
        <source>The print server no longer has a queue %1. Nothing was sent, and your settings are kept: choose another queue.</source>
        <translation>打印服务器上已没有队列 %1。未发送任何内容，您的设置已保留：请选择其他队列。</translation>
    </message>
    <message>
        <source>The queue %1 cannot print a document of this kind (%2). Nothing was printed. Convert the document to PDF, or choose another queue.</source>
        <translation>队列 %1 无法打印此类文档（%2）。未打印任何内容。请将文档转换为 PDF，或选择其他队列。</translation>
    </message>
    <message>
        <source>The print server did not take the job: %1. Your settings are kept; print again when it answers.</source>
        <translation>打印服务器未接受作业：%1。您的设置已保留；请在其响应后重新打印。</translation>
    </message>
    <message>
        <source>The document can no longer be read (%1). Nothing was printed, and your settings are kept: put the document back and print again.</source>
        <translation>无法再读取文档（%1）。未打印任何内容，您的设置已保留：请将文档放回原处，然后重新打印。</translation>
    </message>
    <message>
        <source>Nothing was sent, because a setting would get lost: %1. Choose another value for it.</source>
        <translation>未发送任何内容，因为有一项设置会丢失：%1。请为它选择其他值。</translation>
    </message>
    <message>
        <source>The job could not be noted in your state folder, so nothing was sent: a second copy could not be ruled out later. Make room on that disk and print again.</source>
        <translation>无法将作业记录到您的状态文件夹，因此未发送任何内容：否则之后无法排除重复打印。请在该磁盘上腾出空间，然后重新打印。</translation>
    </message>
    <message>
        <source>The job was cancelled; nothing of it prints. Your settings are kept.</source>
        <translation>作业已取消，不会打印任何内容。您的设置已保留。</translation>
    </message>
    <message>
        <source>An earlier attempt was sent whole to the queue %1, and the print server no longer knows it: it may have printed. Look at the printer before you press Print again.</source>
        <translation>先前的一次打印已完整发送到队列 %1，但打印服务器上已没有它的记录：它可能已经打印。请先查看打印机，再次按“打印”。</translation>
    </message>
    <message>
        <source>The print server took the job and gave it up (%2). Your settings are kept; look at the queue %1, and print again.</source>
        <translation>打印服务器接受了作业，但随后将其中止（%2）。您的设置已保留；请查看队列 %1，然后重新打印。</translation>
    </message>
    <message>
        <source>The earlier attempt had arrived as job %1, so nothing was sent again. Press Print once more for another copy.</source>
        <translation>先前的打印已作为作业 %1 送达，因此未再次发送。如需再打印一份，请再按一次“打印”。</translation>
    </message>
    <message>
        <source>Job %1 waits, because the queue %2 is paused. It prints when somebody resumes the queue.</source>
        <translation>作业 %1 正在等待，因为队列 %2 已暂停。恢复该队列后即会打印。</translation>
    </message>
    <message>
        <source>The print server did not keep the setting %1 (%2). Check the first page.</source>
        <translation>打印服务器未保留设置 %1（%2）。请检查第一页。</translation>
    </message>
    <message>
        <source>The print server changed the setting %1 from %2 to %3. Check the first page.</source>
        <translation>打印服务器已将设置 %1 从 %2 更改为 %3。请检查第一页。</translation>
    </message>
    <message>
        <source>“%1”, sent to %2 before this dialog was opened, had arrived as job %3. It was not sent again.</source>
        <translation>在打开此对话框之前发送到 %2 的“%1”已作为作业 %3 送达。未再次发送。</translation>
    </message>
    <message>
        <source>“%1”, sent to %2 before this dialog was opened, had not arrived whole, and nothing of it prints. Print it again if you still need it.</source>
        <translation>在打开此对话框之前发送到 %2 的“%1”未完整送达，不会打印任何内容。如仍需要，请重新打印。</translation>
    </message>
    <message>
        <source>“%1” was sent whole to %2 before this dialog was opened, and the print server no longer knows it: it may have printed. Look at the printer before you print it again.</source>
        <translation>在打开此对话框之前，“%1”已完整发送到 %2，但打印服务器上已没有它的记录：它可能已经打印。请先查看打印机，再重新打印。</translation>
    </message>
</context>
<context>
    <name>JobSettings</name>
    <message>
        <source>Both</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Odd pages only</source>
        <translation>仅奇数页</translation>
    </message>
    <message>
        <source>Even pages only</source>
        <translation>仅偶数页</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>纵向</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>横向</translation>
    </message>
    <message>
        <source>Reverse portrait</source>
        <translation>反向纵向</translation>
    </message>
    <message>
        <source>Reverse landscape</source>
        <translation>反向横向</translation>
    </message>
    <message>
        <source>Right, then down</source>
        <translation>先向右，再向下</translation>
    </message>
    <message>
        <source>Down, then right</source>
        <translation>先向下，再向右</translation>
    </message>
    <message>
        <source>Left, then down</source>
        <translation>先向左，再向下</translation>
    </message>
    <message>
        <source>Down, then left</source>
        <translation>先向下，再向左</translation>
    </message>
    <message>
        <source>Right, then up</source>
        <translation>先向右，再向上</translation>
    </message>
    <message>
        <source>Up, then right</source>
        <translation>先向上，再向右</translation>
    </message>
    <message>
        <source>Left, then up</source>
        <translation>先向左，再向上</translation>
    </message>
    <message>
        <source>Up, then left</source>
        <translation>先向上，再向左</translation>
    </message>
    <message>
        <source>No border</source>
        <translation>无边框</translation>
    </message>
    <message>
        <source>Thin line</source>
        <translation>细线</translation>
    </message>
    <message>
        <source>Thick line</source>
        <translation>粗线</translation>
    </message>
    <message>
        <source>Two thin lines</source>
        <translation>双细线</translation>
    </message>
    <message>
        <source>Two thick lines</source>
        <translation>双粗线</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>实际大小</translation>
    </message>
    <message>
        <source>Fit to the paper</source>
        <translation>适合纸张</translation>
    </message>
    <message>
        <source>Fill the paper</source>
        <translation>填满纸张</translation>
    </message>
</context>
<context>
    <name>MemoryMessages</name>
    <message>
        <source>Your home folder does not answer, so that your last settings could not be read. The printer&apos;s default settings are shown.</source>
        <translation>您的主文件夹没有响应，因此无法读取您上次的设置。现在显示打印机的默认设置。</translation>
    </message>
    <message>
        <source>The file with the size of this window was damaged. It is kept as “%1”. Correct the file and give it back its old name, or delete it.</source>
        <translation>保存此窗口大小的文件已损坏。它已保留为“%1”。请修正该文件并恢复原名，或将其删除。</translation>
    </message>
    <message>
        <source>The file with your last settings for this printer was damaged, so that the printer&apos;s default settings are shown. It is kept as “%1”. Correct the file and give it back its old name, or delete it.</source>
        <translation>您上次使用此打印机的设置文件已损坏，因此显示打印机的默认设置。它已保留为“%1”。请修正该文件并恢复原名，或将其删除。</translation>
    </message>
    <message>
        <source>What this dialog remembers could not be read, because “%1” may not be read or written. Allow it, and open the dialog again.</source>
        <translation>无法读取此对话框记住的内容，因为没有读取或写入“%1”的权限。请授予权限，然后重新打开对话框。</translation>
    </message>
    <message>
        <source>What this dialog remembers was not read, because “%1” is a link, belongs to somebody else, or others may write to it. Replace it by a folder that only you may write to.</source>
        <translation>未读取此对话框记住的内容，因为“%1”是链接、属于其他用户，或其他用户可以写入。请用只有您能写入的文件夹替换它。</translation>
    </message>
    <message>
        <source>What this dialog remembers in “%1” is of a newer version of this program. Update the program, or move the file away to begin anew.</source>
        <translation>此对话框在“%1”中记住的内容来自本程序的更新版本。请更新程序，或移走该文件以重新开始。</translation>
    </message>
    <message>
        <source>What this dialog remembers could not be read from “%1”: %2.</source>
        <translation>无法从“%1”读取此对话框记住的内容：%2。</translation>
    </message>
</context>
<context>
    <name>PathRefusal</name>
    <message>
        <source>it lies outside /Library/Printers</source>
        <translation>位于 /Library/Printers 之外</translation>
    </message>
    <message>
        <source>the path goes through “..”</source>
        <translation>路径中包含“..”</translation>
    </message>
    <message>
        <source>it is not there</source>
        <translation>不存在</translation>
    </message>
    <message>
        <source>it is a link</source>
        <translation>是一个链接</translation>
    </message>
    <message>
        <source>it belongs to somebody else</source>
        <translation>属于其他用户</translation>
    </message>
    <message>
        <source>others may write it</source>
        <translation>其他用户可以写入</translation>
    </message>
    <message>
        <source>it is no ordinary file or folder</source>
        <translation>不是普通的文件或文件夹</translation>
    </message>
</context>
<context>
    <name>PlugInTexts</name>
    <message>
        <source>The printer&apos;s panels are not installed: there is no %1. Install the maker&apos;s driver.</source>
        <translation>打印机的面板未安装：%1 不存在。请安装制造商的驱动程序。</translation>
    </message>
    <message>
        <source>The printer&apos;s panels were not loaded: %1 (%2). Install the maker&apos;s driver again as an administrator.</source>
        <translation>未加载打印机的面板：%1（%2）。请以管理员身份重新安装制造商的驱动程序。</translation>
    </message>
    <message>
        <source>The printer&apos;s panels could not be loaded: %1 is damaged (%2). Install the maker&apos;s driver again.</source>
        <translation>无法加载打印机的面板：%1 已损坏（%2）。请重新安装制造商的驱动程序。</translation>
    </message>
    <message>
        <source>it is cut off</source>
        <translation>文件不完整</translation>
    </message>
    <message>
        <source>The printer&apos;s panels do not fit this dialog: %1 was made for another version. Install the maker&apos;s current driver.</source>
        <translation>打印机的面板与此对话框不兼容：%1 是为其他版本制作的。请安装制造商的最新驱动程序。</translation>
    </message>
    <message>
        <source>The maker&apos;s driver offers no panels for this printer.</source>
        <translation>制造商的驱动程序没有为此打印机提供面板。</translation>
    </message>
</context>
<context>
    <name>PresetMessages</name>
    <message>
        <source>There is no such preset any more; another print dialog has deleted or renamed it.</source>
        <translation>此预设已不存在；它已被另一个打印对话框删除或重命名。</translation>
    </message>
    <message numerus="yes">
        <source>There is room for %n preset(s) only. Delete one that is not needed any more.</source>
        <translation>
            <numerusform>最多只能保存 %n 个预设。请删除不再需要的预设。</numerusform>
        </translation>
    </message>
    <message>
        <source>Another print dialog is changing the presets. Try again.</source>
        <translation>另一个打印对话框正在更改预设。请重试。</translation>
    </message>
    <message>
        <source>The presets could not be written to “%1” because there is no room left. Free some space and try again.</source>
        <translation>由于没有剩余空间，无法将预设写入“%1”。请腾出空间，然后重试。</translation>
    </message>
    <message>
        <source>“%1” may not be read or written. Allow it, and try again.</source>
        <translation>没有读取或写入“%1”的权限。请授予权限，然后重试。</translation>
    </message>
    <message>
        <source>“%1” is a link, belongs to somebody else, or others may write to it. Replace it by a folder that only you may write to.</source>
        <translation>“%1”是链接、属于其他用户，或其他用户可以写入。请用只有您能写入的文件夹替换它。</translation>
    </message>
    <message>
        <source>The presets in “%1” are of a newer version of this program. Update the program, or move the file away to begin anew.</source>
        <translation>“%1”中的预设来自本程序的更新版本。请更新程序，或移走该文件以重新开始。</translation>
    </message>
    <message>
        <source>“%1” cannot be used for presets: %2.</source>
        <translation>“%1”无法用于预设：%2。</translation>
    </message>
    <message>
        <source>The file of your presets for this printer was damaged. It is kept as “%1”; what could be read of it is still here. Correct the file and give it back its old name, or delete it.</source>
        <translation>您为此打印机保存的预设文件已损坏。它已保留为“%1”；能够读取的内容仍然可用。请修正该文件并恢复原名，或将其删除。</translation>
    </message>
    <message>
        <source>Type a name.</source>
        <translation>请输入名称。</translation>
    </message>
    <message numerus="yes">
        <source>A name has at most %n character(s).</source>
        <translation>
            <numerusform>名称最多 %n 个字符。</numerusform>
        </translation>
    </message>
    <message>
        <source>Another preset has this name.</source>
        <translation>已有其他预设使用此名称。</translation>
    </message>
    <message>
        <source>This printer does not have everything that “%1” sets. These settings were left as the printer has them:</source>
        <translation>此打印机不具备“%1”设置的全部内容。以下设置保持打印机的原样：</translation>
    </message>
    <message>
        <source>These settings cannot be used together on this printer:</source>
        <translation>以下设置在此打印机上不能同时使用：</translation>
    </message>
    <message>
        <source>“%1” and “%2”</source>
        <translation>“%1”和“%2”</translation>
    </message>
</context>
<context>
    <name>PreviewWords</name>
    <message>
        <source>Page %1 is damaged and stays empty.</source>
        <translation>第 %1 页已损坏，将保持空白。</translation>
    </message>
    <message>
        <source>No pages</source>
        <translation>没有页面</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>第 %1 页</translation>
    </message>
    <message>
        <source>Pages %1 and %2</source>
        <translation>第 %1 和 %2 页</translation>
    </message>
    <message>
        <source>Pages %1 to %2</source>
        <translation>第 %1 至 %2 页</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>第 %1 张，共 %2 张</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, front</source>
        <translation>第 %1 张，共 %2 张，正面</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, back</source>
        <translation>第 %1 张，共 %2 张，背面</translation>
    </message>
    <message>
        <source>front</source>
        <translation>正面</translation>
    </message>
    <message>
        <source>back</source>
        <translation>背面</translation>
    </message>
    <message numerus="yes">
        <source>%n copies</source>
        <translation>
            <numerusform>%n 份</numerusform>
        </translation>
    </message>
    <message>
        <source>collated</source>
        <translation>逐份</translation>
    </message>
    <message>
        <source>landscape</source>
        <translation>横向</translation>
    </message>
    <message>
        <source>portrait</source>
        <translation>纵向</translation>
    </message>
    <message>
        <source>grayscale</source>
        <translation>灰度</translation>
    </message>
    <message>
        <source>flipped</source>
        <translation>翻转</translation>
    </message>
</context>
<context>
    <name>PrinterLists</name>
    <message>
        <source>As the printer is set</source>
        <translation>按打印机设置</translation>
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
        <translation>US Letter</translation>
    </message>
    <message>
        <source>US Legal</source>
        <translation>US Legal</translation>
    </message>
    <message>
        <source>Tabloid</source>
        <translation>Tabloid</translation>
    </message>
    <message>
        <source>Photo 10 × 15 cm</source>
        <translation>照片 10 × 15 厘米</translation>
    </message>
    <message>
        <source>DL envelope</source>
        <translation>DL 信封</translation>
    </message>
    <message>
        <source>No. 10 envelope</source>
        <translation>10 号信封</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>Turn on the long edge</source>
        <translation>沿长边翻转</translation>
    </message>
    <message>
        <source>Turn on the short edge</source>
        <translation>沿短边翻转</translation>
    </message>
</context>
<context>
    <name>PrinterWords</name>
    <message>
        <source>There is no printer %1 at the print server. Choose another one.</source>
        <translation>打印服务器上没有打印机 %1。请选择其他打印机。</translation>
    </message>
    <message>
        <source>The printer %1 cannot be used, because its PPD is damaged: %2. Have the printer set up again or choose another one.</source>
        <translation>无法使用打印机 %1，因为其 PPD 已损坏：%2。请重新设置该打印机，或选择其他打印机。</translation>
    </message>
    <message>
        <source>Not reachable</source>
        <translation>无法连接</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暂停</translation>
    </message>
    <message>
        <source>Paused: %1</source>
        <translation>已暂停：%1</translation>
    </message>
    <message>
        <source>Takes no jobs</source>
        <translation>不接受作业</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>离线</translation>
    </message>
    <message>
        <source>Offline: %1</source>
        <translation>离线：%1</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>正在打印</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>空闲</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>No print server answers at %1 (%2). Start the server or check the network, then try again.</source>
        <translation>%1 上没有打印服务器响应（%2）。请启动服务器或检查网络，然后重试。</translation>
    </message>
    <message>
        <source>The print server at %1 does not answer. Wait a moment or have it restarted, then try again.</source>
        <translation>%1 上的打印服务器没有响应。请稍候或让人重新启动它，然后重试。</translation>
    </message>
    <message>
        <source>The print server at %1 refused to answer: %2. Ask its administrator for access, then try again.</source>
        <translation>%1 上的打印服务器拒绝响应：%2。请向管理员申请访问权限，然后重试。</translation>
    </message>
</context>
<context>
    <name>QueueListCommand</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>default</source>
        <translation>默认</translation>
    </message>
</context>
<context>
    <name>RangeTexts</name>
    <message>
        <source>Type the pages to print, such as 1-3, 5, 8-.</source>
        <translation>请输入要打印的页面，例如 1-3, 5, 8-。</translation>
    </message>
    <message>
        <source>“%1” is no page number. Write pages as 1-3, 5, 8-.</source>
        <translation>“%1”不是页码。请按 1-3, 5, 8- 的形式输入页面。</translation>
    </message>
    <message>
        <source>“%1”: pages count from 1.</source>
        <translation>“%1”：页码从 1 开始。</translation>
    </message>
    <message>
        <source>“%1”: no document has so many pages.</source>
        <translation>“%1”：没有文档有这么多页。</translation>
    </message>
    <message>
        <source>“%1” runs backwards. Write %2.</source>
        <translation>“%1”顺序颠倒。请输入 %2。</translation>
    </message>
    <message>
        <source>“%1” is no range. Write a range as 1-3.</source>
        <translation>“%1”不是范围。请按 1-3 的形式输入范围。</translation>
    </message>
    <message numerus="yes">
        <source>“%1”: the document has only %n page(s).</source>
        <translation>
            <numerusform>“%1”：文档只有 %n 页。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingWords</name>
    <message>
        <source>Copies</source>
        <translation>份数</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>逐份打印</translation>
    </message>
    <message>
        <source>Order of sheets</source>
        <translation>纸张顺序</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>页面</translation>
    </message>
    <message>
        <source>Odd or even pages</source>
        <translation>奇数页或偶数页</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>纸张</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>双面</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>每张页数</translation>
    </message>
    <message>
        <source>Layout order</source>
        <translation>布局顺序</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>边框</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>彩色</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>质量</translation>
    </message>
    <message>
        <source>Output tray</source>
        <translation>出纸盒</translation>
    </message>
    <message>
        <source>Flip horizontally</source>
        <translation>水平翻转</translation>
    </message>
    <message>
        <source>On</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>First page first</source>
        <translation>从第一页开始</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>从最后一页开始</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>灰度</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>草稿</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>普通</translation>
    </message>
    <message>
        <source>High</source>
        <translation>高</translation>
    </message>
    <message>
        <source>Pages side by side</source>
        <translation>并排页数</translation>
    </message>
    <message>
        <source>Turn on the long edge</source>
        <translation>沿长边翻转</translation>
    </message>
    <message>
        <source>Turn on the short edge</source>
        <translation>沿短边翻转</translation>
    </message>
    <message>
        <source>Installed Options</source>
        <translation>已安装的选件</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>Job Control</source>
        <translation>作业控制</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>更多选项</translation>
    </message>
</context>
<context>
    <name>SummaryTexts</name>
    <message>
        <source>Job</source>
        <translation>作业</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>其他</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>已更改</translation>
    </message>
    <message>
        <source>replaced by a setting of the job</source>
        <translation>已被作业设置取代</translation>
    </message>
</context>
<context>
    <name>Unsendable</name>
    <message>
        <source>a setting has no name</source>
        <translation>有一项设置没有名称</translation>
    </message>
    <message>
        <source>the name is too long</source>
        <translation>名称过长</translation>
    </message>
    <message>
        <source>the name contains a character that cannot be sent</source>
        <translation>名称中含有无法发送的字符</translation>
    </message>
    <message>
        <source>the value is empty</source>
        <translation>值为空</translation>
    </message>
    <message>
        <source>a value cannot begin with “{”</source>
        <translation>值不能以“{”开头</translation>
    </message>
    <message>
        <source>the value contains a character that cannot be sent</source>
        <translation>值中含有无法发送的字符</translation>
    </message>
    <message>
        <source>the value is too long</source>
        <translation>值过长</translation>
    </message>
    <message>
        <source>the printer would read it as “off”</source>
        <translation>打印机会将其理解为“关”</translation>
    </message>
    <message>
        <source>all settings together are too long</source>
        <translation>所有设置加起来过长</translation>
    </message>
</context>
<context>
    <name>dialog::ChoiceDelegate</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1（%2）</translation>
    </message>
</context>
<context>
    <name>dialog::ConflictDesk</name>
    <message>
        <source>What is installed in the printer is set by whoever administers it.</source>
        <translation>打印机中安装的部件由打印机管理员设置。</translation>
    </message>
    <message>
        <source>No change of a few other settings makes it possible.</source>
        <translation>更改少数其他设置也无法实现。</translation>
    </message>
    <message>
        <source>Keep It This Way</source>
        <translation>保持现状</translation>
    </message>
</context>
<context>
    <name>dialog::ConflictSheet</name>
    <message>
        <source>Keep What I Had</source>
        <translation>保留原来的设置</translation>
    </message>
    <message>
        <source>Make This Change</source>
        <translation>进行此更改</translation>
    </message>
    <message>
        <source>What should change?</source>
        <translation>要更改什么？</translation>
    </message>
</context>
<context>
    <name>dialog::FeaturesPanel</name>
    <message>
        <source>Printer Features</source>
        <translation>打印机功能</translation>
    </message>
    <message>
        <source>No feature matches.</source>
        <translation>没有匹配的功能。</translation>
    </message>
    <message>
        <source>Find a feature</source>
        <translation>查找功能</translation>
    </message>
    <message>
        <source>Whoever administers the printer sets these.</source>
        <translation>由打印机管理员设置。</translation>
    </message>
    <message>
        <source>Changed from the default “%1”</source>
        <translation>已更改，默认值为“%1”</translation>
    </message>
</context>
<context>
    <name>dialog::GeneralView</name>
    <message>
        <source>Collate</source>
        <translation>逐份打印</translation>
    </message>
    <message>
        <source>Reverse order</source>
        <translation>逆序</translation>
    </message>
    <message>
        <source>How often the document is printed</source>
        <translation>文档打印的份数</translation>
    </message>
    <message>
        <source>Prints one whole copy after the other</source>
        <translation>打印完一整份后再打印下一份</translation>
    </message>
    <message>
        <source>Prints the last page first</source>
        <translation>先打印最后一页</translation>
    </message>
    <message>
        <source>Which of these pages are printed</source>
        <translation>打印其中的哪些页面</translation>
    </message>
    <message>
        <source>How the pages lie on the paper</source>
        <translation>页面在纸上的方向</translation>
    </message>
    <message>
        <source>The paper in the printer</source>
        <translation>打印机中的纸张</translation>
    </message>
    <message>
        <source>Whether the paper is printed on both sides</source>
        <translation>是否在纸张两面打印</translation>
    </message>
    <message>
        <source>Paper size:</source>
        <translation>纸张大小：</translation>
    </message>
    <message>
        <source>Two-sided:</source>
        <translation>双面：</translation>
    </message>
    <message>
        <source>Copies:</source>
        <translation>份数：</translation>
    </message>
    <message>
        <source>Pages:</source>
        <translation>页面：</translation>
    </message>
    <message>
        <source>Odd or even:</source>
        <translation>奇偶页：</translation>
    </message>
    <message>
        <source>Orientation:</source>
        <translation>方向：</translation>
    </message>
</context>
<context>
    <name>dialog::JobDesk</name>
    <message>
        <source>There is nothing to print. Start the dialog with a document.</source>
        <translation>没有可打印的内容。请带文档启动此对话框。</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Print Anyway</source>
        <translation>仍然打印</translation>
    </message>
    <message>
        <source>Before this prints:</source>
        <translation>打印之前：</translation>
    </message>
    <message>
        <source>The job could not be written to %1: %2. Make room or allow writing there, then print again.</source>
        <translation>无法将作业写入 %1：%2。请腾出空间或允许写入，然后重新打印。</translation>
    </message>
    <message>
        <source>Nothing was sent, because a setting would get lost: %1. Choose another value for it.</source>
        <translation>未发送任何内容，因为有一项设置会丢失：%1。请为它选择其他值。</translation>
    </message>
    <message>
        <source>Sending to %1: %2 %.</source>
        <translation>正在发送到 %1：%2%。</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>取消作业</translation>
    </message>
    <message>
        <source>Sent as job %1.</source>
        <translation>已作为作业 %1 发送。</translation>
    </message>
    <message>
        <source>Writing the job: %1 %.</source>
        <translation>正在写入作业：%1%。</translation>
    </message>
</context>
<context>
    <name>dialog::LayoutPanel</name>
    <message>
        <source>Flip horizontally</source>
        <translation>水平翻转</translation>
    </message>
    <message>
        <source>Pages per sheet:</source>
        <translation>每张页数：</translation>
    </message>
    <message>
        <source>How many pages share a side of the paper</source>
        <translation>纸张每面容纳的页数</translation>
    </message>
    <message>
        <source>Layout order:</source>
        <translation>布局顺序：</translation>
    </message>
    <message>
        <source>In which order they lie there</source>
        <translation>页面排列的顺序</translation>
    </message>
    <message>
        <source>Border:</source>
        <translation>边框：</translation>
    </message>
    <message>
        <source>A line around each page</source>
        <translation>每页周围的线条</translation>
    </message>
    <message>
        <source>Scaling:</source>
        <translation>缩放：</translation>
    </message>
    <message>
        <source>How large the pages are on the paper</source>
        <translation>页面在纸上的大小</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>布局</translation>
    </message>
    <message>
        <source>Prints every page as in a mirror</source>
        <translation>像照镜子一样打印每一页</translation>
    </message>
    <message>
        <source>On this system the printer&apos;s own panel mirrors the pages.</source>
        <translation>在此系统上，由打印机自己的面板翻转页面。</translation>
    </message>
</context>
<context>
    <name>dialog::NoticeArea</name>
    <message>
        <source>Dismiss this notice</source>
        <translation>关闭此通知</translation>
    </message>
</context>
<context>
    <name>dialog::PanelStack</name>
    <message>
        <source>This printer has no PPD, so there are no panels for it. Print uses the settings that its queue has.</source>
        <translation>此打印机没有 PPD，因此没有面板。打印将使用其队列的设置。</translation>
    </message>
    <message>
        <source>The PPD of this printer names no panels. Print uses the settings that are marked in it.</source>
        <translation>此打印机的 PPD 未指定面板。打印将使用其中选定的设置。</translation>
    </message>
    <message>
        <source>The maker&apos;s driver offers no panels for this printer.</source>
        <translation>制造商的驱动程序没有为此打印机提供面板。</translation>
    </message>
</context>
<context>
    <name>dialog::PresetBar</name>
    <message>
        <source>Presets</source>
        <translation>预设</translation>
    </message>
    <message>
        <source>(changed)</source>
        <translation>（已更改）</translation>
    </message>
    <message>
        <source>The settings are others than those of the preset.</source>
        <translation>当前设置与预设不同。</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>管理</translation>
    </message>
    <message>
        <source>Manage presets</source>
        <translation>管理预设</translation>
    </message>
    <message>
        <source>Save, change and compare presets</source>
        <translation>保存、更改和比较预设</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>另存为…</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>重命名…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Compare with Settings</source>
        <translation>与当前设置比较</translation>
    </message>
    <message>
        <source>Name of the preset</source>
        <translation>预设名称</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Differences from the preset</source>
        <translation>与预设的差异</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>当前</translation>
    </message>
    <message>
        <source>In the Preset</source>
        <translation>预设中</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>My Presets</source>
        <translation>我的预设</translation>
    </message>
    <message>
        <source>Presets of the Printer</source>
        <translation>打印机的预设</translation>
    </message>
    <message>
        <source>Default Settings</source>
        <translation>默认设置</translation>
    </message>
    <message>
        <source>Last Used Settings</source>
        <translation>上次使用的设置</translation>
    </message>
</context>
<context>
    <name>dialog::PresetDesk</name>
    <message>
        <source>Last Used Settings</source>
        <translation>上次使用的设置</translation>
    </message>
    <message>
        <source>Preset “%1”</source>
        <translation>预设“%1”</translation>
    </message>
    <message>
        <source>The preset “%1” has the present settings now.</source>
        <translation>预设“%1”现已采用当前设置。</translation>
    </message>
    <message>
        <source>The preset “%1” has been deleted.</source>
        <translation>已删除预设“%1”。</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>恢复默认值</translation>
    </message>
    <message>
        <source>Your home folder does not answer. As soon as it does, your presets appear in the menu, and what you have changed in them is written.</source>
        <translation>您的主文件夹没有响应。一旦响应，您的预设就会显示在菜单中，您对预设所做的更改也会保存。</translation>
    </message>
</context>
<context>
    <name>dialog::PreviewPane</name>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>Previous sheet</source>
        <translation>上一张</translation>
    </message>
    <message>
        <source>Next sheet</source>
        <translation>下一张</translation>
    </message>
    <message>
        <source>Sheet shown</source>
        <translation>显示的纸张</translation>
    </message>
    <message>
        <source>Make the preview smaller</source>
        <translation>缩小预览</translation>
    </message>
    <message>
        <source>Make the preview larger</source>
        <translation>放大预览</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>适合</translation>
    </message>
    <message>
        <source>Show the whole sheet</source>
        <translation>显示整张纸</translation>
    </message>
    <message>
        <source>Side </source>
        <extracomment>Stands before the number of the sheet in &quot;Sheet 1 of 3&quot;.</extracomment>
        <translation>面 </translation>
    </message>
    <message>
        <source>Sheet </source>
        <translation>纸张 </translation>
    </message>
    <message>
        <source> of %1</source>
        <extracomment>Stands behind the number of the sheet in &quot;Sheet 1 of 3&quot;.</extracomment>
        <translation>/%1</translation>
    </message>
    <message>
        <source>Nothing would be printed: no page is among those chosen.</source>
        <translation>不会打印任何内容：没有页面在所选范围内。</translation>
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
        <translation>没有文档。纸张保持空白。</translation>
    </message>
    <message>
        <source>The document cannot be read. Check that it is still in its place and that you may read it.</source>
        <translation>无法读取文档。请检查它是否仍在原处，以及您是否有权读取。</translation>
    </message>
    <message>
        <source>The document is damaged. Open it in the program that made it and save it again.</source>
        <translation>文档已损坏。请在创建它的程序中打开并重新保存。</translation>
    </message>
    <message>
        <source>The document is protected by a password. Save a copy of it without the password and print that.</source>
        <translation>文档受密码保护。请保存一份不带密码的副本并打印该副本。</translation>
    </message>
    <message>
        <source>The document has no pages. Choose another one.</source>
        <translation>文档没有页面。请选择其他文档。</translation>
    </message>
    <message>
        <source>The picture is too large to be shown. Scale it down to see it here; it can be printed as it is.</source>
        <translation>图片太大，无法显示。请缩小后在此查看；它可以按原样打印。</translation>
    </message>
    <message>
        <source>There is no preview for this kind of document. It can be printed all the same.</source>
        <translation>此类文档没有预览，但仍可打印。</translation>
    </message>
    <message>
        <source>There is no preview of PDF documents: the part of this program that reads them is not installed. Install the program again to see it; the document can be printed as it is.</source>
        <translation>无法预览 PDF 文档：本程序读取 PDF 的部分未安装。请重新安装程序以查看预览；文档可以照常打印。</translation>
    </message>
</context>
<context>
    <name>dialog::PrintDialog</name>
    <message>
        <source>Choose a group of settings from the pop-up menu, change what you need, and press Print. Where the printer cannot combine a choice with another one, the window says which one is in the way, and what could change instead.</source>
        <translation>从弹出菜单中选择一组设置，更改所需内容，然后按“打印”。如果打印机无法将某个选择与另一个组合，窗口会说明是哪一项造成冲突，以及可以改动什么。</translation>
    </message>
    <message>
        <source>Changed: %1</source>
        <translation>已更改：%1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
</context>
<context>
    <name>dialog::PrintWindow</name>
    <message>
        <source>Print</source>
        <translation>打印</translation>
    </message>
    <message>
        <source>Settings:</source>
        <translation>设置：</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>打印机：</translation>
    </message>
    <message>
        <source>Document:</source>
        <translation>文档：</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>正在发送…</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>恢复默认值</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Presets:</source>
        <translation>预设：</translation>
    </message>
</context>
<context>
    <name>dialog::PrinterPicker</name>
    <message>
        <source>Find a printer</source>
        <translation>查找打印机</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>打印机</translation>
    </message>
</context>
<context>
    <name>dialog::QueueDialog</name>
    <message>
        <source>Connecting to %1…</source>
        <translation>正在连接 %1…</translation>
    </message>
    <message>
        <source>The print server at %1 has no printers. Add one there, then try again.</source>
        <translation>%1 上的打印服务器没有打印机。请在那里添加一台，然后重试。</translation>
    </message>
    <message>
        <source>This printer does not have what you chose for the one before:</source>
        <translation>此打印机没有您为前一台打印机选择的以下设置：</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>重试</translation>
    </message>
</context>
<context>
    <name>dialog::RangeField</name>
    <message numerus="yes">
        <source>The document has %n page(s): it is printed up to its end.</source>
        <translation>
            <numerusform>文档有 %n 页：将打印到最后一页。</numerusform>
        </translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Only:</source>
        <translation>仅：</translation>
    </message>
    <message>
        <source>Prints the whole document</source>
        <translation>打印整个文档</translation>
    </message>
    <message>
        <source>Prints the pages that are named beside it</source>
        <translation>打印旁边指定的页面</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>所有页面</translation>
    </message>
    <message>
        <source>Only some pages</source>
        <translation>仅部分页面</translation>
    </message>
    <message>
        <source>Pages to print</source>
        <translation>要打印的页面</translation>
    </message>
    <message>
        <source>for example 1-3, 5, 8-</source>
        <translation>例如 1-3, 5, 8-</translation>
    </message>
    <message>
        <source>Pages and ranges of pages, with commas between them</source>
        <translation>页码和页码范围，用逗号分隔</translation>
    </message>
    <message>
        <source>“%1”: with %2 pages per sheet the numbers count printed sides, and there are fewer.</source>
        <translation>“%1”：每张 %2 页时，编号按打印面计算，而打印面没有这么多。</translation>
    </message>
    <message>
        <source>With %1 pages per sheet the numbers count printed sides: these have the pages %2 of the document.</source>
        <translation>每张 %1 页时，编号按打印面计算：这些面上是文稿的第 %2 页。</translation>
    </message>
</context>
<context>
    <name>dialog::SaveDesk</name>
    <message>
        <source>Save as PDF…</source>
        <translation>另存为 PDF…</translation>
    </message>
    <message>
        <source>Save Job Ticket…</source>
        <translation>保存作业传票…</translation>
    </message>
    <message>
        <source>There is no document. Start the dialog with one.</source>
        <translation>没有文档。请带文档启动此对话框。</translation>
    </message>
    <message>
        <source>Saving %1: side %2 of %3.</source>
        <translation>正在保存 %1：第 %2 面，共 %3 面。</translation>
    </message>
    <message>
        <source>Cancel Saving</source>
        <translation>取消保存</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>已保存为 %1。</translation>
    </message>
    <message>
        <source>%1 could not be saved: %2. Choose another place, or make room and allow writing there.</source>
        <translation>无法保存 %1：%2。请选择其他位置，或在该处腾出空间并允许写入。</translation>
    </message>
    <message>
        <source>%1 could not be saved. %2</source>
        <translation>无法保存 %1。%2</translation>
    </message>
</context>
<context>
    <name>dialog::SignInPrompt</name>
    <message>
        <source>Name:</source>
        <translation>用户名：</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>密码：</translation>
    </message>
    <message>
        <source>The print server did not accept this name and password.</source>
        <translation>打印服务器不接受此用户名和密码。</translation>
    </message>
    <message>
        <source>The print server %1 wants a name and password before it prints to %2. They are sent for this job and not kept.</source>
        <translation>打印服务器 %1 需要用户名和密码才能打印到 %2。它们仅用于此作业，不会保存。</translation>
    </message>
    <message>
        <source>The connection is not encrypted: others in the network could read the password.</source>
        <translation>连接未加密：网络中的其他人可能会看到密码。</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>取消作业</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>登录</translation>
    </message>
</context>
<context>
    <name>dialog::SummaryPanel</name>
    <message>
        <source>Summary</source>
        <translation>摘要</translation>
    </message>
    <message>
        <source>No setting matches.</source>
        <translation>没有匹配的设置。</translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation>查找设置</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>复制为文本</translation>
    </message>
</context>
</TS>
