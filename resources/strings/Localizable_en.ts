<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>1) Cancel the Print dialog.</source>
        <translation>1) Cancel the Print dialog.</translation>
    </message>
    <message>
        <source>1) From the pop-up menu, choose Layout.</source>
        <translation>1) From the pop-up menu, choose Layout.</translation>
    </message>
    <message>
        <source>1) From the pop-up menu, choose Quality &amp; Media.</source>
        <translation>1) From the pop-up menu, choose Quality &amp; Media.</translation>
    </message>
    <message>
        <source>1) If your application does not have File -&gt; Page Setup, skip to step 7.</source>
        <translation>1) If your application does not have File -&gt; Page Setup, skip to step 7.</translation>
    </message>
    <message>
        <source>2) Cancel the Print dialog.</source>
        <translation>2) Cancel the Print dialog.</translation>
    </message>
    <message>
        <source>2) From the Pages per Sheet popup menu, choose 1.</source>
        <translation>2) From the Pages per Sheet popup menu, choose 1.</translation>
    </message>
    <message>
        <source>2) Go to Advanced Options -&gt; From the Color Output pop-up menu, choose Color.</source>
        <translation>2) Go to Advanced Options -&gt; From the Color Output pop-up menu, choose Color.</translation>
    </message>
    <message>
        <source>2) Go to Advanced Options -&gt; From the Ink To Use pop-up menu, choose Automatic.</source>
        <translation>2) Go to Advanced Options -&gt; From the Ink To Use pop-up menu, choose Automatic.</translation>
    </message>
    <message>
        <source>2) Launch the Korvane Utility</source>
        <translation>2) Launch the Korvane Utility</translation>
    </message>
    <message>
        <source>3) Click the close button in the upper left corner of this screen.</source>
        <translation>3) Click the close button in the upper left corner of this screen.</translation>
    </message>
    <message>
        <source>3) Select File -&gt; Page Setup.</source>
        <translation>3) Select File -&gt; Page Setup.</translation>
    </message>
    <message>
        <source>3) Select the Install/ Change Cartridge... button.</source>
        <translation>3) Select the Install/ Change Cartridge... button.</translation>
    </message>
    <message>
        <source>4) From the Paper Size pop-up menu, select the desired paper size.</source>
        <translation>4) From the Paper Size pop-up menu, select the desired paper size.</translation>
    </message>
    <message>
        <source>4) Install a black cartridge.</source>
        <translation>4) Install a black cartridge.</translation>
    </message>
    <message>
        <source>5) Click OK.</source>
        <translation>5) Click OK.</translation>
    </message>
    <message>
        <source>5) Open the Print dialog, and then reselect your settings.</source>
        <translation>5) Open the Print dialog, and then reselect your settings.</translation>
    </message>
    <message>
        <source>6) Click the close button in the upper left corner of this screen.</source>
        <translation>6) Click the close button in the upper left corner of this screen.</translation>
    </message>
    <message>
        <source>6) Open the Print dialog.</source>
        <translation>6) Open the Print dialog.</translation>
    </message>
    <message>
        <source>7) From the Print dialog, select your desired settings.</source>
        <translation>7) From the Print dialog, select your desired settings.</translation>
    </message>
    <message>
        <source>8) Click the close button in the upper left corner of this screen.</source>
        <translation>8) Click the close button in the upper left corner of this screen.</translation>
    </message>
    <message>
        <source>Adjusts how dark text and images are printed.</source>
        <translation>Adjusts how dark text and images are printed.</translation>
    </message>
    <message>
        <source>Advanced Options</source>
        <translation>Advanced Options</translation>
    </message>
    <message>
        <source>Advanced Options: Mirror (OFF)</source>
        <translation>Advanced Options: Mirror (OFF)</translation>
    </message>
    <message>
        <source>Advanced Options: Mirror (ON)</source>
        <translation>Advanced Options: Mirror (ON)</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatic</translation>
    </message>
    <message>
        <source>Black and White</source>
        <translation>Black and White</translation>
    </message>
    <message>
        <source>Cartridge(s) installed: Only Color</source>
        <translation>Cartridge(s) installed: Only Color</translation>
    </message>
    <message>
        <source>Cartridge(s) installed: Photo</source>
        <translation>Cartridge(s) installed: Photo</translation>
    </message>
    <message>
        <source>Changes how the printer works to correct the problem chosen below.</source>
        <translation>Changes how the printer works to correct the problem chosen below.</translation>
    </message>
    <message>
        <source>Choose an option to resolve the conflict:</source>
        <translation>Choose an option to resolve the conflict:</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Color Output:</source>
        <translation>Color Output:</translation>
    </message>
    <message>
        <source>Color Preferences:</source>
        <translation>Color Preferences:</translation>
    </message>
    <message>
        <source>Conflicting settings</source>
        <translation>Conflicting settings</translation>
    </message>
    <message>
        <source>Continue without resolving the conflict.</source>
        <translation>Continue without resolving the conflict.</translation>
    </message>
    <message>
        <source>Document Color: Black Only</source>
        <translation>Document Color: Black Only</translation>
    </message>
    <message>
        <source>Document Color: Color</source>
        <translation>Document Color: Color</translation>
    </message>
    <message>
        <source>Dry Time</source>
        <translation>Dry Time</translation>
    </message>
    <message>
        <source>Dry Time:</source>
        <translation>Dry Time:</translation>
    </message>
    <message>
        <source>Halftone:</source>
        <translation>Halftone:</translation>
    </message>
    <message>
        <source>How carefully the page is printed: better quality takes longer and uses more ink or toner.</source>
        <translation>How carefully the page is printed: better quality takes longer and uses more ink or toner.</translation>
    </message>
    <message>
        <source>How colors are matched between the screen and the print.</source>
        <translation>How colors are matched between the screen and the print.</translation>
    </message>
    <message>
        <source>How dark a gray must be to be printed as black, from 1 to 5.</source>
        <translation>How dark a gray must be to be printed as black, from 1 to 5.</translation>
    </message>
    <message>
        <source>How long the printer waits for the ink to dry before it prints the other side of the sheet.</source>
        <translation>How long the printer waits for the ink to dry before it prints the other side of the sheet.</translation>
    </message>
    <message>
        <source>ICC Test Chart</source>
        <translation>ICC Test Chart</translation>
    </message>
    <message>
        <source>Improve toner fixing</source>
        <translation>Improve toner fixing</translation>
    </message>
    <message>
        <source>Improvement</source>
        <translation>Improvement</translation>
    </message>
    <message>
        <source>Improvement Settings</source>
        <translation>Improvement Settings</translation>
    </message>
    <message>
        <source>Ink To Use</source>
        <translation>Ink To Use</translation>
    </message>
    <message>
        <source>Ink To Use:</source>
        <translation>Ink To Use:</translation>
    </message>
    <message>
        <source>Instructions</source>
        <translation>Instructions</translation>
    </message>
    <message>
        <source>Keeps faint copies of an image from appearing further down the page.</source>
        <translation>Keeps faint copies of an image from appearing further down the page.</translation>
    </message>
    <message>
        <source>Layout: Pages per Sheet (&gt;1)</source>
        <translation>Layout: Pages per Sheet (&gt;1)</translation>
    </message>
    <message>
        <source>Makes the edges in pictures crisper. Too much of it looks grainy.</source>
        <translation>Makes the edges in pictures crisper. Too much of it looks grainy.</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Mirror</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Other</translation>
    </message>
    <message>
        <source>Paper Size: </source>
        <translation>Paper Size: </translation>
    </message>
    <message>
        <source>Paper Source:</source>
        <translation>Paper Source:</translation>
    </message>
    <message>
        <source>Paper Type:</source>
        <translation>Paper Type:</translation>
    </message>
    <message>
        <source>Paper Type: </source>
        <translation>Paper Type: </translation>
    </message>
    <message>
        <source>Paper Type: Automatic</source>
        <translation>Paper Type: Automatic</translation>
    </message>
    <message>
        <source>Paper Type: Envelope</source>
        <translation>Paper Type: Envelope</translation>
    </message>
    <message>
        <source>Paper Type: Iron-On Transfer</source>
        <translation>Paper Type: Iron-On Transfer</translation>
    </message>
    <message>
        <source>Paper Type: Plain Paper</source>
        <translation>Paper Type: Plain Paper</translation>
    </message>
    <message>
        <source>Print Density</source>
        <translation>Print Density</translation>
    </message>
    <message>
        <source>Print Quality:</source>
        <translation>Print Quality:</translation>
    </message>
    <message>
        <source>Print Quality: Draft</source>
        <translation>Print Quality: Draft</translation>
    </message>
    <message>
        <source>Print Quality: Normal</source>
        <translation>Print Quality: Normal</translation>
    </message>
    <message>
        <source>Prints in color, or in black and shades of gray. Other settings depend on it.</source>
        <translation>Prints in color, or in black and shades of gray. Other settings depend on it.</translation>
    </message>
    <message>
        <source>Prints lighter, so that the toner lasts longer.</source>
        <translation>Prints lighter, so that the toner lasts longer.</translation>
    </message>
    <message>
        <source>Prints the page reversed from left to right, as iron-on transfers need it.</source>
        <translation>Prints the page reversed from left to right, as iron-on transfers need it.</translation>
    </message>
    <message>
        <source>Prints without any color correction, for measuring a test chart.</source>
        <translation>Prints without any color correction, for measuring a test chart.</translation>
    </message>
    <message>
        <source>Prints without colors.</source>
        <translation>Prints without colors.</translation>
    </message>
    <message>
        <source>Quality &amp; Media</source>
        <translation>Quality &amp; Media</translation>
    </message>
    <message>
        <source>Raises or lowers the threshold by one.</source>
        <translation>Raises or lowers the threshold by one.</translation>
    </message>
    <message>
        <source>Reduce Ghosting</source>
        <translation>Reduce Ghosting</translation>
    </message>
    <message>
        <source>Reduce paper curl</source>
        <translation>Reduce paper curl</translation>
    </message>
    <message>
        <source>Reduce wrinkles or creases</source>
        <translation>Reduce wrinkles or creases</translation>
    </message>
    <message>
        <source>Sharpening:</source>
        <translation>Sharpening:</translation>
    </message>
    <message>
        <source>Show instructions to resolve the conflict settings.</source>
        <translation>Show instructions to resolve the conflict settings.</translation>
    </message>
    <message>
        <source>Shows or hides the less common settings.</source>
        <translation>Shows or hides the less common settings.</translation>
    </message>
    <message>
        <source>The ink cartridges that the page is printed with.</source>
        <translation>The ink cartridges that the page is printed with.</translation>
    </message>
    <message>
        <source>The kind of paper in the printer. It decides how much ink is laid down and how fast the paper moves.</source>
        <translation>The kind of paper in the printer. It decides how much ink is laid down and how fast the paper moves.</translation>
    </message>
    <message>
        <source>The pattern of dots that shades of gray are made of.</source>
        <translation>The pattern of dots that shades of gray are made of.</translation>
    </message>
    <message>
        <source>The problem that the printer corrects.</source>
        <translation>The problem that the printer corrects.</translation>
    </message>
    <message>
        <source>The tray that the paper is taken from.</source>
        <translation>The tray that the paper is taken from.</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Threshold</translation>
    </message>
    <message>
        <source>Threshold:</source>
        <translation>Threshold:</translation>
    </message>
    <message>
        <source>Toner Save</source>
        <translation>Toner Save</translation>
    </message>
    <message>
        <source>is not compatible with</source>
        <translation>is not compatible with</translation>
    </message>
</context>
</TS>
