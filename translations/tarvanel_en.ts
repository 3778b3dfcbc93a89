<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Banner</name>
    <message numerus="yes">
        <source>%1 in %Ln minutes — begin wrapping up.</source>
        <extracomment>%1 is a prayer name; the screens lock when the minutes run out</extracomment>
        <translation>
            <numerusform>%1 in %Ln minute — begin wrapping up.</numerusform>
            <numerusform>%1 in %Ln minutes — begin wrapping up.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln minutes. Start finishing up.</source>
        <extracomment>%1 is a prayer name; the screens lock when the minutes run out</extracomment>
        <translation>
            <numerusform>%1 in %Ln minute. Start finishing up.</numerusform>
            <numerusform>%1 in %Ln minutes. Start finishing up.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln minutes. Save your work now.</source>
        <extracomment>%1 is a prayer name; the screens lock when the minutes run out</extracomment>
        <translation>
            <numerusform>%1 in %Ln minute. Save your work now.</numerusform>
            <numerusform>%1 in %Ln minutes. Save your work now.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln min — the screen is about to lock. Go make wudu.</source>
        <extracomment>%1 is a prayer name. Wudu: the ablution before prayer</extracomment>
        <translation>
            <numerusform>%1 in %Ln min — the screen is about to lock. Go make wudu.</numerusform>
            <numerusform>%1 in %Ln min — the screen is about to lock. Go make wudu.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 ends at sunrise %2 — only %Ln min left!</source>
        <extracomment>%1 is the prayer name Fajr, %2 the time of sunrise</extracomment>
        <translation>
            <numerusform>%1 ends at sunrise %2 — only %Ln min left!</numerusform>
            <numerusform>%1 ends at sunrise %2 — only %Ln min left!</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>History</name>
    <message numerus="yes">
        <source>This week: %1/%2 prayers at the computer • streak %Ln days</source>
        <extracomment>The weekly report: %1 of 35 prayers kept at the computer; %Ln days in a row kept.</extracomment>
        <translation>
            <numerusform>This week: %1/%2 prayers at the computer • streak %Ln day</numerusform>
            <numerusform>This week: %1/%2 prayers at the computer • streak %Ln days</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImportWindow</name>
    <message numerus="yes">
        <source>%Ln cells were hard to read and are marked in yellow: check them against the sheet.</source>
        <extracomment>Cells of the timetable&apos;s text that the reader was unsure of</extracomment>
        <translation>
            <numerusform>%Ln cell was hard to read and is marked in yellow: check it against the sheet.</numerusform>
            <numerusform>%Ln cells were hard to read and are marked in yellow: check them against the sheet.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LockScreen</name>
    <message numerus="yes">
        <source>Too many tries. Try again in %Ln minutes</source>
        <translation>
            <numerusform>Too many tries. Try again in %Ln minute</numerusform>
            <numerusform>Too many tries. Try again in %Ln minutes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message numerus="yes">
        <source>Streak: %Ln days</source>
        <extracomment>Days in a row with every prayer kept</extracomment>
        <translation>
            <numerusform>Streak: %Ln day</numerusform>
            <numerusform>Streak: %Ln days</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RowProblems</name>
    <message numerus="yes">
        <source>%1 are missing a time in a chosen column</source>
        <extracomment>%1 names the rows: days (&quot;4, 12 and 19 March&quot;) or lines (&quot;line 7&quot;); %n counts them.</extracomment>
        <translation>
            <numerusform>%1 is missing a time in a chosen column</numerusform>
            <numerusform>%1 are missing a time in a chosen column</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 have no day number or date</source>
        <extracomment>%1 names the rows (&quot;line 7 and line 9&quot;); %n counts them.</extracomment>
        <translation>
            <numerusform>%1 has no day number or date</numerusform>
            <numerusform>%1 have no day number or date</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>days %1 are not in %2</source>
        <extracomment>%1 is one or more day numbers (&quot;30 and 31&quot;), %2 a month (&quot;February&quot;); %n counts the days.</extracomment>
        <translation>
            <numerusform>day %1 is not in %2</numerusform>
            <numerusform>days %1 are not in %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 appear twice (the later rows are used)</source>
        <extracomment>%1 names the rows (&quot;4 and 5 March&quot;); %n counts them.</extracomment>
        <translation>
            <numerusform>%1 appears twice (the later row is used)</numerusform>
            <numerusform>%1 appear twice (the later rows are used)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln rows can&apos;t be used: %1.</source>
        <extracomment>%Ln counts the rows, %1 gives the reasons (&quot;4 March is missing a time in a chosen column&quot;).</extracomment>
        <translation>
            <numerusform>%Ln row can&apos;t be used: %1.</numerusform>
            <numerusform>%Ln rows can&apos;t be used: %1.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Timetable</name>
    <message numerus="yes">
        <source>%Ln days, %1 – %2</source>
        <extracomment>The imported timetable: %Ln days from %1 to %2 (&quot;30 days, 1 Mar 2025 – 30 Mar 2025&quot;).</extracomment>
        <translation>
            <numerusform>%Ln day, %1 – %2</numerusform>
            <numerusform>%Ln days, %1 – %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tarvanel::AppDelegate</name>
    <message numerus="yes">
        <source>Exported %Ln prayers to %1</source>
        <extracomment>%1 is a file; the count is of prayers written to it</extracomment>
        <translation>
            <numerusform>Exported %Ln prayer to %1</numerusform>
            <numerusform>Exported %Ln prayers to %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>They come back when you choose %1, or after %Ln days. Your streak is kept.</source>
        <extracomment>%1 is the menu item that ends the excused days</extracomment>
        <translation>
            <numerusform>They come back when you choose %1, or after %Ln day. Your streak is kept.</numerusform>
            <numerusform>They come back when you choose %1, or after %Ln days. Your streak is kept.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>“Not yet” locks the screen again for %Ln minutes.</source>
        <extracomment>“Not yet” is the second button of this question</extracomment>
        <translation>
            <numerusform>“Not yet” locks the screen again for %Ln minute.</numerusform>
            <numerusform>“Not yet” locks the screen again for %Ln minutes.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tarvanel::TimetableImportModel</name>
    <message numerus="yes">
        <source>Found %Ln rows with %1 times each.</source>
        <extracomment>%Ln is the number of rows read from a timetable, %1 the number of times in each.</extracomment>
        <translation>
            <numerusform>Found %Ln row with %1 times each.</numerusform>
            <numerusform>Found %Ln rows with %1 times each.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Read the first %1 of %Ln pages.</source>
        <extracomment>%1 is the number of pages read, %Ln the number of pages in the file.</extracomment>
        <translation>
            <numerusform>Read the first %1 of %Ln page.</numerusform>
            <numerusform>Read the first %1 of %Ln pages.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Read %Ln pages.</source>
        <extracomment>After a file of several pages was read whole.</extracomment>
        <translation>
            <numerusform>Read %Ln page.</numerusform>
            <numerusform>Read %Ln pages.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tarvanel::TimetableImportView</name>
    <message numerus="yes">
        <source>3. Preview (%Ln days)</source>
        <translation>
            <numerusform>3. Preview (%Ln day)</numerusform>
            <numerusform>3. Preview (%Ln days)</numerusform>
        </translation>
    </message>
</context>
</TS>
