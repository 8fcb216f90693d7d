<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>ChoiceWords</name>
    <message>
        <source>“%1: %2” and “%3: %4” do not go together.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: you chose “%2”, the job has “%3”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1: %2” cannot be used together with “%3: %4”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1: %2” cannot be chosen now.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DocumentTexts</name>
    <message>
        <source>There is no document %1. Nothing was sent; choose another document.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document %1 cannot be read. Nothing was sent; choose another document or allow reading it.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>JobMessages</name>
    <message>
        <source>There is no print server to send the job to (%1). Nothing was sent, and your settings are kept: start the print server or correct CUPS_SERVER, and print again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The print server does not answer. Your settings are kept. Print again when it does: what may have arrived by then is found, and not sent a second time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The connection to the print server broke (%1). Your settings are kept. Print again: what may have arrived is found, and not sent a second time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The print server does not let you print to the queue %1 without a name and password that it accepts. Nothing was printed, and your settings are kept: print again and sign in, ask its administrator, or choose another queue.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The queue %1 takes no jobs at present. Nothing was sent, and your settings are kept: ask for the queue to be opened, or choose another one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The print server no longer has a queue %1. Nothing was sent, and your settings are kept: choose another queue.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The queue %1 cannot print a document of this kind (%2). Nothing was printed. Convert the document to PDF, or choose another queue.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The print server did not take the job: %1. Your settings are kept; print again when it answers.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document can no longer be read (%1). Nothing was printed, and your settings are kept: put the document back and print again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was sent, because a setting would get lost: %1. Choose another value for it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The job could not be noted in your state folder, so nothing was sent: a second copy could not be ruled out later. Make room on that disk and print again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The job was cancelled; nothing of it prints. Your settings are kept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An earlier attempt was sent whole to the queue %1, and the print server no longer knows it: it may have printed. Look at the printer before you press Print again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The print server took the job and gave it up (%2). Your settings are kept; look at the queue %1, and print again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The earlier attempt had arrived as job %1, so nothing was sent again. Press Print once more for another copy.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Job %1 waits, because the queue %2 is paused. It prints when somebody resumes the queue.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The print server did not keep the setting %1 (%2). Check the first page.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The print server changed the setting %1 from %2 to %3. Check the first page.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1”, sent to %2 before this dialog was opened, had arrived as job %3. It was not sent again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1”, sent to %2 before this dialog was opened, had not arrived whole, and nothing of it prints. Print it again if you still need it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” was sent whole to %2 before this dialog was opened, and the print server no longer knows it: it may have printed. Look at the printer before you print it again.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PathRefusal</name>
    <message>
        <source>it lies outside /Library/Printers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the path goes through “..”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is not there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is a link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it belongs to somebody else</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>others may write it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is no ordinary file or folder</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PlugInTexts</name>
    <message>
        <source>The printer&apos;s panels are not installed: there is no %1. Install the maker&apos;s driver.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The printer&apos;s panels were not loaded: %1 (%2). Install the maker&apos;s driver again as an administrator.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The printer&apos;s panels could not be loaded: %1 is damaged (%2). Install the maker&apos;s driver again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is cut off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The printer&apos;s panels do not fit this dialog: %1 was made for another version. Install the maker&apos;s current driver.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The maker&apos;s driver offers no panels for this printer.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PrinterWords</name>
    <message>
        <source>Not reachable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paused: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Takes no jobs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offline: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Idle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No print server answers at %1 (%2). Start the server or check the network, then try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The print server at %1 does not answer. Wait a moment or have it restarted, then try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The print server at %1 refused to answer: %2. Ask its administrator for access, then try again.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QueueListCommand</name>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>default</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Unsendable</name>
    <message>
        <source>a setting has no name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the name is too long</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the name contains a character that cannot be sent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the value is empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a value cannot begin with “{”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the value contains a character that cannot be sent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the value is too long</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the printer would read it as “off”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>all settings together are too long</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dialog::JobDesk</name>
    <message>
        <source>There is nothing to print. Start the dialog with a document.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print Anyway</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Before this prints:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The job could not be written to %1: %2. Make room or allow writing there, then print again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was sent, because a setting would get lost: %1. Choose another value for it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sending to %1: %2 %.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sent as job %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dialog::NoticeArea</name>
    <message>
        <source>Dismiss this notice</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dialog::PanelStack</name>
    <message>
        <source>This printer has no PPD, so there are no panels for it. Print uses the settings that its queue has.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The PPD of this printer names no panels. Print uses the settings that are marked in it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The maker&apos;s driver offers no panels for this printer.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dialog::PrintDialog</name>
    <message>
        <source>Choose a group of settings from the pop-up menu, change what you need, and press Print. A choice that the printer cannot combine with another one is refused, and a notice says which one is in the way.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dialog::PrintWindow</name>
    <message>
        <source>Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Document:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Presets:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dialog::PrinterPicker</name>
    <message>
        <source>Find a printer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printer</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dialog::QueueDialog</name>
    <message>
        <source>Connecting to %1…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The print server at %1 has no printers. Add one there, then try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no printer %1 at the print server. Choose another one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The printer %1 cannot be used, because its PPD is damaged: %2. Have the printer set up again or choose another one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This printer does not have what you chose for the one before:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dialog::SignInPrompt</name>
    <message>
        <source>Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The print server did not accept this name and password.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The print server %1 wants a name and password before it prints to %2. They are sent for this job and not kept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The connection is not encrypted: others in the network could read the password.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dialog::SummaryPanel</name>
    <message>
        <source>Summary</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
