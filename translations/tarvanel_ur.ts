<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ur" sourcelanguage="en">
<context>
    <name>About</name>
    <message>
        <source>Tarvanel %1
Prayer times that lock every screen, so you step away and pray.

Licence: %2

Settings: %3
History and state: %4
Log: %5
Login service: %6</source>
        <extracomment>%1 the version number, %2 the licence&apos;s name, %3 the settings file, %4 the folder of history and state, %5 the log file, %6 the login service&apos;s file. Keep the line breaks.</extracomment>
        <translation>‏Tarvanel %1
نماز کے اوقات جو ہر اسکرین کو لاک کر دیتے ہیں، تاکہ آپ کام چھوڑ کر نماز پڑھیں۔

لائسنس: %2

ترتیبات: %3
ریکارڈ اور حالت: %4
لاگ: %5
لاگ اِن سروس: %6</translation>
    </message>
</context>
<context>
    <name>Agent</name>
    <message>
        <source>no systemd user service manager is running, and %1 cannot be written</source>
        <extracomment>%1 is a file</extracomment>
        <translation>‏systemd کا یوزر سروس مینیجر نہیں چل رہا، اور %1 لکھی نہیں جا سکتی</translation>
    </message>
    <message>
        <source>no systemd user service manager is running, and %1 cannot be started</source>
        <extracomment>%1 is the program file</extracomment>
        <translation>‏systemd کا یوزر سروس مینیجر نہیں چل رہا، اور %1 شروع نہیں ہو سکتا</translation>
    </message>
    <message>
        <source>no systemd user service manager is running: it starts at login through %1</source>
        <extracomment>%1 is the autostart file that starts the program at login</extracomment>
        <translation>‏systemd کا یوزر سروس مینیجر نہیں چل رہا: یہ لاگ اِن پر %1 کے ذریعے شروع ہوتا ہے</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <extracomment>%1 is a file</extracomment>
        <translation>‏%1 لکھی نہیں جا سکتی</translation>
    </message>
    <message>
        <source>%1 gave no answer in time</source>
        <extracomment>%1 is a command, as in &quot;systemctl --user enable --now …&quot;</extracomment>
        <translation>‏%1 نے وقت پر جواب نہیں دیا</translation>
    </message>
    <message>
        <source>%1 failed with status %2</source>
        <extracomment>%1 is a command, as in &quot;systemctl --user enable --now …&quot;; %2 its exit status</extracomment>
        <translation>‏%1 اسٹیٹس %2 کے ساتھ ناکام ہوا</translation>
    </message>
    <message>
        <source>%1 runs in the background and starts at login, so it has to be installed: copied to ~/.local/bin and added to your applications menu.</source>
        <extracomment>%1 is the program&apos;s name, Tarvanel</extracomment>
        <translation>‏%1 پس منظر میں چلتا ہے اور لاگ اِن پر شروع ہوتا ہے، اس لیے اسے انسٹال کرنا ضروری ہے: یہ ~/.local/bin میں کاپی ہو گا اور آپ کے ایپلیکیشنز مینو میں شامل ہو جائے گا۔</translation>
    </message>
    <message>
        <source>Install %1 in ~/.local/bin?</source>
        <extracomment>%1 is the program&apos;s name, Tarvanel</extracomment>
        <translation>کیا %1 کو ~/.local/bin میں انسٹال کریں؟</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>انسٹال کریں</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>بند کریں</translation>
    </message>
    <message>
        <source>%1 starts at login through the systemd user unit %2, and it did not start: %3.
See why with “systemctl --user status %2”, then open %1 again.</source>
        <extracomment>%1 is the program&apos;s name, Tarvanel; %2 the unit&apos;s file name; %3 why it did not start. Keep the command in quotes as it is</extracomment>
        <translation>‏%1 لاگ اِن پر systemd یوزر یونٹ %2 کے ذریعے شروع ہوتا ہے، اور یہ شروع نہیں ہوا: %3۔
وجہ دیکھنے کے لیے “systemctl --user status %2” چلائیں، پھر %1 دوبارہ کھولیں۔</translation>
    </message>
    <message>
        <source>%1 couldn&apos;t start in the background</source>
        <extracomment>%1 is the program&apos;s name, Tarvanel</extracomment>
        <translation>‏%1 پس منظر میں شروع نہیں ہو سکا</translation>
    </message>
    <message>
        <source>Open Service Folder</source>
        <translation>سروس فولڈر کھولیں</translation>
    </message>
    <message>
        <source>Couldn&apos;t copy %1 to %2</source>
        <extracomment>%1 is the program&apos;s name, Tarvanel; %2 a folder</extracomment>
        <translation>‏%1 کو %2 میں کاپی نہیں کیا جا سکا</translation>
    </message>
    <message>
        <source>Copy %1 into ~/.local/bin yourself, then open it from there.</source>
        <extracomment>%1 is the program&apos;s name, Tarvanel</extracomment>
        <translation>‏%1 کو خود ~/.local/bin میں کاپی کریں، پھر اسے وہیں سے کھولیں۔</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ٹھیک ہے</translation>
    </message>
    <message>
        <source>%1 was installed as a package</source>
        <extracomment>%1 is the program&apos;s name, Tarvanel</extracomment>
        <translation>‏%1 پیکیج کے طور پر انسٹال کیا گیا تھا</translation>
    </message>
    <message>
        <source>%1 no longer runs or starts at login. To remove it from this computer too, run:

sudo apt remove tarvanel</source>
        <extracomment>%1 is the program&apos;s name, Tarvanel. Keep the command as it is</extracomment>
        <translation>‏%1 اب نہ چلتا ہے نہ لاگ اِن پر شروع ہوتا ہے۔ اسے اس کمپیوٹر سے بھی ہٹانے کے لیے یہ چلائیں:

sudo apt remove tarvanel</translation>
    </message>
</context>
<context>
    <name>Banner</name>
    <message numerus="yes">
        <source>%1 in %Ln minutes — begin wrapping up.</source>
        <extracomment>%1 is a prayer name; the screens lock when the minutes run out</extracomment>
        <translation>
            <numerusform>‏%1 میں %Ln منٹ — کام سمیٹنا شروع کریں۔</numerusform>
            <numerusform>‏%1 میں %Ln منٹ — کام سمیٹنا شروع کریں۔</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln minutes. Start finishing up.</source>
        <extracomment>%1 is a prayer name; the screens lock when the minutes run out</extracomment>
        <translation>
            <numerusform>‏%1 میں %Ln منٹ۔ کام ختم کرنا شروع کریں۔</numerusform>
            <numerusform>‏%1 میں %Ln منٹ۔ کام ختم کرنا شروع کریں۔</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln minutes. Save your work now.</source>
        <extracomment>%1 is a prayer name; the screens lock when the minutes run out</extracomment>
        <translation>
            <numerusform>‏%1 میں %Ln منٹ۔ اپنا کام ابھی محفوظ کر لیں۔</numerusform>
            <numerusform>‏%1 میں %Ln منٹ۔ اپنا کام ابھی محفوظ کر لیں۔</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln min — the screen is about to lock. Go make wudu.</source>
        <extracomment>%1 is a prayer name. Wudu: the ablution before prayer</extracomment>
        <translation>
            <numerusform>‏%1 میں %Ln منٹ — اسکرین لاک ہونے والی ہے۔ وضو کر لیں۔</numerusform>
            <numerusform>‏%1 میں %Ln منٹ — اسکرین لاک ہونے والی ہے۔ وضو کر لیں۔</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 ends at sunrise %2 — only %Ln min left!</source>
        <extracomment>%1 is the prayer name Fajr, %2 the time of sunrise</extracomment>
        <translation>
            <numerusform>‏%1 طلوعِ آفتاب %2 پر ختم ہو جائے گی — صرف %Ln منٹ باقی!</numerusform>
            <numerusform>‏%1 طلوعِ آفتاب %2 پر ختم ہو جائے گی — صرف %Ln منٹ باقی!</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 tonight — don&apos;t miss it.</source>
        <extracomment>%1 is the Ramadan night prayer, Tarawih</extracomment>
        <translation>آج رات %1 ہے — چھوٹنے نہ پائے۔</translation>
    </message>
</context>
<context>
    <name>CalcMethods</name>
    <message>
        <source>Muslim World League</source>
        <extracomment>A calculation method: the organisation&apos;s own name.</extracomment>
        <translation>Muslim World League</translation>
    </message>
    <message>
        <source>ISNA (North America)</source>
        <extracomment>A calculation method: ISNA, the Islamic Society of North America.</extracomment>
        <translation>‏ISNA (شمالی امریکہ)</translation>
    </message>
    <message>
        <source>Egyptian General Authority</source>
        <translation>Egyptian General Authority</translation>
    </message>
    <message>
        <source>Umm al-Qura (Makkah)</source>
        <translation>ام القریٰ (مکہ مکرمہ)</translation>
    </message>
    <message>
        <source>Karachi (Univ. of Islamic Sciences)</source>
        <extracomment>A calculation method: the University of Islamic Sciences, Karachi.</extracomment>
        <translation>کراچی (جامعۃ العلوم الاسلامیہ)</translation>
    </message>
    <message>
        <source>Gulf Region</source>
        <extracomment>A calculation method used in the Gulf states.</extracomment>
        <translation>خلیجی خطہ</translation>
    </message>
    <message>
        <source>Kuwait</source>
        <translation>کویت</translation>
    </message>
    <message>
        <source>Qatar</source>
        <translation>قطر</translation>
    </message>
    <message>
        <source>Singapore, Malaysia, Indonesia</source>
        <translation>سنگاپور، ملائیشیا، انڈونیشیا</translation>
    </message>
    <message>
        <source>UOIF (France)</source>
        <extracomment>A calculation method: UOIF, the Union of Islamic Organisations of France.</extracomment>
        <translation>‏UOIF (فرانس)</translation>
    </message>
    <message>
        <source>Spiritual Administration of Russia</source>
        <translation>Spiritual Administration of Russia</translation>
    </message>
    <message>
        <source>Shia Ithna-Ashari (Jafari)</source>
        <extracomment>A calculation method: the Shia Ithna-Ashari (Jafari) school.</extracomment>
        <translation>شیعہ اثنا عشری (جعفری)</translation>
    </message>
    <message>
        <source>Institute of Geophysics, Tehran</source>
        <translation>‏Institute of Geophysics، تہران</translation>
    </message>
    <message>
        <source>Hanafi, %1</source>
        <extracomment>The Asr school and the calculation method: &quot;Hanafi, Muslim World League&quot;.</extracomment>
        <translation>حنفی، %1</translation>
    </message>
    <message>
        <source>Standard Asr, %1</source>
        <extracomment>&quot;Standard Asr&quot; (the Shafi&apos;i, Maliki and Hanbali Asr) and the calculation method: &quot;Standard Asr, Muslim World League&quot;.</extracomment>
        <translation>عام عصر، %1</translation>
    </message>
    <message>
        <source>Hanafi, custom angles</source>
        <extracomment>The Hanafi Asr with angles the user set, not a known method.</extracomment>
        <translation>حنفی، اپنے زاویے</translation>
    </message>
    <message>
        <source>Standard Asr, custom angles</source>
        <extracomment>The standard Asr with angles the user set, not a known method.</extracomment>
        <translation>عام عصر، اپنے زاویے</translation>
    </message>
</context>
<context>
    <name>Calendar</name>
    <message>
        <source>Allow Tarvanel to add busy events to your calendars?</source>
        <translation>کیا Tarvanel کو آپ کے کیلنڈرز میں مصروف ایونٹس شامل کرنے کی اجازت ہے؟</translation>
    </message>
    <message>
        <source>Tarvanel keeps its events in the calendar folders under %1, one file per event. khal shows them, and vdirsyncer syncs them with your online calendar so colleagues see you&apos;re busy.</source>
        <extracomment>%1 is a folder. khal and vdirsyncer are the names of two programs</extracomment>
        <translation>‏Tarvanel اپنے ایونٹس %1 کے تحت کیلنڈر فولڈرز میں رکھتا ہے، ہر ایونٹ کی ایک فائل۔ khal انہیں دکھاتا ہے، اور vdirsyncer انہیں آپ کے آن لائن کیلنڈر سے ہم آہنگ کرتا ہے تاکہ ساتھیوں کو پتا چلے کہ آپ مصروف ہیں۔</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>اجازت دیں</translation>
    </message>
    <message>
        <source>Don&apos;t Allow</source>
        <translation>اجازت نہ دیں</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>SECONDS</source>
        <extracomment>Stands for the number of seconds given to --test-lock</extracomment>
        <translation>سیکنڈ</translation>
    </message>
    <message>
        <source>print today&apos;s prayer and lock times and exit</source>
        <translation>آج کے نماز اور لاک کے اوقات دکھا کر بند ہو جائیں</translation>
    </message>
    <message>
        <source>with --times: the day to print</source>
        <extracomment>yyyy-MM-dd is the date format typed after --date: keep it as it is</extracomment>
        <translation>‏--times کے ساتھ: کس دن کے اوقات دکھانے ہیں</translation>
    </message>
    <message>
        <source>install and start the per-user login service</source>
        <translation>فی صارف لاگ اِن سروس انسٹال کر کے شروع کریں</translation>
    </message>
    <message>
        <source>show one lock named &quot;Test&quot; for %1, then exit</source>
        <extracomment>%1 stands for the number of seconds; &quot;Test&quot; is the name the lock shows</extracomment>
        <translation>&quot;ٹیسٹ&quot; نام کا ایک لاک %1 تک دکھائیں، پھر بند ہو جائیں</translation>
    </message>
    <message>
        <source>show one %1 reminder, exit 17 seconds later</source>
        <extracomment>%1 is the prayer name Asr</extracomment>
        <translation>‏%1 کی ایک یاد دہانی دکھائیں، 17 سیکنڈ بعد بند ہو جائیں</translation>
    </message>
    <message>
        <source>show this text</source>
        <translation>یہ متن دکھائیں</translation>
    </message>
    <message>
        <source>show the version</source>
        <translation>ورژن دکھائیں</translation>
    </message>
    <message>
        <source>Usage: tarvanel [option] [timetable file]</source>
        <extracomment>&quot;tarvanel&quot; is the command, typed as it is</extracomment>
        <translation>استعمال: tarvanel [آپشن] [نظام الاوقات کی فائل]</translation>
    </message>
    <message>
        <source>Without options Tarvanel starts in the tray and locks the screens at prayer times.</source>
        <translation>آپشنز کے بغیر Tarvanel ٹرے میں شروع ہوتا ہے اور نماز کے اوقات پر اسکرینیں لاک کرتا ہے۔</translation>
    </message>
    <message>
        <source>A timetable file (CSV, text, image or PDF) opens the timetable import window.</source>
        <translation>نظام الاوقات کی فائل (CSV، متن، تصویر یا PDF) نظام الاوقات درآمد کرنے کی ونڈو کھولتی ہے۔</translation>
    </message>
    <message>
        <source>Settings: %1. Time zone: the TZ environment variable or the system&apos;s.</source>
        <extracomment>%1 is the settings file; TZ is the name of an environment variable</extracomment>
        <translation>ترتیبات: %1۔ ٹائم زون: TZ انوائرنمنٹ ویری ایبل یا سسٹم کا۔</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <extracomment>%1 is what the user typed</extracomment>
        <translation>نامعلوم آپشن %1</translation>
    </message>
    <message>
        <source>Tarvanel running — look for 🕌 in the tray</source>
        <translation>‏Tarvanel چل رہا ہے — ٹرے میں 🕌 دیکھیں</translation>
    </message>
    <message>
        <source>Tarvanel&apos;s login service did not start</source>
        <translation>‏Tarvanel کی لاگ اِن سروس شروع نہیں ہوئی</translation>
    </message>
</context>
<context>
    <name>Config</name>
    <message>
        <source>a boolean</source>
        <extracomment>The type of a value in the settings file (config.json).</extracomment>
        <translation>بولین</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>عدد</translation>
    </message>
    <message>
        <source>text</source>
        <translation>متن</translation>
    </message>
    <message>
        <source>an array</source>
        <translation>فہرست</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>آبجیکٹ</translation>
    </message>
    <message>
        <source>null</source>
        <extracomment>A JSON value that is null; &quot;null&quot; is the word written in the file.</extracomment>
        <translation>null</translation>
    </message>
    <message>
        <source>an array of numbers</source>
        <translation>اعداد کی فہرست</translation>
    </message>
    <message>
        <source>an array with %1 at position %2</source>
        <extracomment>%1 is a value&apos;s type (&quot;text&quot;), %2 its position in the list.</extracomment>
        <translation>فہرست جس کے مقام %2 پر %1 ہے</translation>
    </message>
    <message>
        <source>an object of texts</source>
        <translation>متن کا آبجیکٹ</translation>
    </message>
    <message>
        <source>an object with %1 at &quot;%2&quot;</source>
        <extracomment>%1 is a value&apos;s type (&quot;a number&quot;), %2 the name it is stored under.</extracomment>
        <translation>آبجیکٹ جس میں &quot;%2&quot; پر %1 ہے</translation>
    </message>
    <message>
        <source>a number from %1 to %2</source>
        <extracomment>%1 and %2 are the smallest and largest values a setting may have.</extracomment>
        <translation>‏%1 سے %2 تک کا عدد</translation>
    </message>
    <message>
        <source>%1: expected %2, found %3</source>
        <extracomment>An error in the settings file: %1 is the setting&apos;s name as written in the file (keep it first if you can), %2 what it should be, %3 what it is.</extracomment>
        <translation>‏%1: %2 ہونا چاہیے تھا، %3 ملا</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <extracomment>%1 is a line number of the settings file, %2 what is wrong there.</extracomment>
        <translation>سطر %1: %2</translation>
    </message>
    <message>
        <source>the top level is not an object</source>
        <extracomment>The settings file holds a value that is not a JSON object ({ … }).</extracomment>
        <translation>سب سے اوپر کی سطح آبجیکٹ نہیں ہے</translation>
    </message>
</context>
<context>
    <name>Dialogs</name>
    <message>
        <source>OK</source>
        <translation>ٹھیک ہے</translation>
    </message>
    <message>
        <source>Export History</source>
        <translation>ریکارڈ برآمد کریں</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv)</source>
        <extracomment>A file type filter; keep the part in brackets as it is</extracomment>
        <translation>کوما سے الگ اقدار (*.csv)</translation>
    </message>
</context>
<context>
    <name>Hijri</name>
    <message>
        <source>%1 AH</source>
        <extracomment>A Hijri date: %1 is the day, month and year (&quot;14 Ramadan 1446&quot;); AH is the era.</extracomment>
        <translation>‏%1ھ</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>F</source>
        <comment>first letter of Fajr, in the week&apos;s grid</comment>
        <translation>ف</translation>
    </message>
    <message>
        <source>D</source>
        <comment>first letter of Dhuhr, in the week&apos;s grid</comment>
        <translation>ظ</translation>
    </message>
    <message>
        <source>A</source>
        <comment>first letter of Asr, in the week&apos;s grid</comment>
        <translation>ع</translation>
    </message>
    <message>
        <source>M</source>
        <comment>first letter of Maghrib, in the week&apos;s grid</comment>
        <translation>م</translation>
    </message>
    <message>
        <source>I</source>
        <comment>first letter of Isha, in the week&apos;s grid</comment>
        <translation>ش</translation>
    </message>
    <message>
        <source>q</source>
        <extracomment>In the week&apos;s grid: a prayer made up later (qada), one letter.</extracomment>
        <translation>ق</translation>
    </message>
    <message numerus="yes">
        <source>This week: %1/%2 prayers at the computer • streak %Ln days</source>
        <extracomment>The weekly report: %1 of 35 prayers kept at the computer; %Ln days in a row kept.</extracomment>
        <translation>
            <numerusform>اس ہفتے: کمپیوٹر پر %1/%2 نمازیں • تسلسل %Ln دن</numerusform>
            <numerusform>اس ہفتے: کمپیوٹر پر %1/%2 نمازیں • تسلسل %Ln دن</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImportWindow</name>
    <message>
        <source>The reader stopped unexpectedly while reading %1. Nothing was changed: try another photo or PDF, or paste the text.</source>
        <extracomment>%1 the name of the photo or PDF being read</extracomment>
        <translation>‏%1 پڑھتے ہوئے ریڈر اچانک رک گیا۔ کچھ نہیں بدلا: کوئی اور تصویر یا PDF آزمائیں، یا متن پیسٹ کریں۔</translation>
    </message>
    <message>
        <source>Photos and PDFs can&apos;t be read: the reader is missing (%1). Paste the text instead, or reinstall Tarvanel.</source>
        <extracomment>%1 the path of the program that reads photos and PDFs</extracomment>
        <translation>تصاویر اور PDF نہیں پڑھی جا سکتیں: ریڈر موجود نہیں (%1)۔ اس کی جگہ متن پیسٹ کریں، یا Tarvanel دوبارہ انسٹال کریں۔</translation>
    </message>
    <message>
        <source>Faj</source>
        <extracomment>Fajr shortened to fit a column of the timetable&apos;s preview</extracomment>
        <translation>فجر</translation>
    </message>
    <message>
        <source>Dhu</source>
        <extracomment>Dhuhr shortened to fit a column of the timetable&apos;s preview</extracomment>
        <translation>ظہر</translation>
    </message>
    <message>
        <source>Asr</source>
        <extracomment>Asr shortened to fit a column of the timetable&apos;s preview</extracomment>
        <translation>عصر</translation>
    </message>
    <message>
        <source>Mag</source>
        <extracomment>Maghrib shortened to fit a column of the timetable&apos;s preview</extracomment>
        <translation>مغرب</translation>
    </message>
    <message>
        <source>Ish</source>
        <extracomment>Isha shortened to fit a column of the timetable&apos;s preview</extracomment>
        <translation>عشاء</translation>
    </message>
    <message>
        <source>Jum</source>
        <extracomment>Jumu&apos;ah shortened to fit a column of the timetable&apos;s preview</extracomment>
        <translation>جمعہ</translation>
    </message>
    <message>
        <source>Import Masjid Timetable</source>
        <translation>مسجد کا نظام الاوقات درآمد کریں</translation>
    </message>
    <message numerus="yes">
        <source>%Ln cells were hard to read and are marked in yellow: check them against the sheet.</source>
        <extracomment>Cells of the timetable&apos;s text that the reader was unsure of</extracomment>
        <translation>
            <numerusform>‏%Ln خانہ پڑھنا مشکل تھا اور پیلے رنگ میں نشان زد ہے: اسے شیٹ سے ملا لیں۔</numerusform>
            <numerusform>‏%Ln خانے پڑھنا مشکل تھے اور پیلے رنگ میں نشان زد ہیں: انہیں شیٹ سے ملا لیں۔</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Language</name>
    <message>
        <source>System</source>
        <translation>سسٹم</translation>
    </message>
</context>
<context>
    <name>LockScreen</name>
    <message>
        <source>Screen unlocks in %1</source>
        <extracomment>%1 is the time left in minutes and seconds, as in &quot;4:59&quot;</extracomment>
        <translation>اسکرین %1 میں کھلے گی</translation>
    </message>
    <message>
        <source>Emergency? Type your guardian&apos;s 6-digit code</source>
        <extracomment>The guardian: the person who keeps the code that ends a lock early</extracomment>
        <translation>ہنگامی صورت؟ اپنے نگران کا 6 ہندسوں کا کوڈ لکھیں</translation>
    </message>
    <message>
        <source>That code didn&apos;t work</source>
        <translation>یہ کوڈ درست نہیں</translation>
    </message>
    <message numerus="yes">
        <source>Too many tries. Try again in %Ln minutes</source>
        <translation>
            <numerusform>بہت زیادہ کوششیں۔ %Ln منٹ بعد دوبارہ کوشش کریں</numerusform>
            <numerusform>بہت زیادہ کوششیں۔ %Ln منٹ بعد دوبارہ کوشش کریں</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LockWeakness</name>
    <message>
        <source>on this desktop a lock can be left by switching windows</source>
        <extracomment>Shown on a line of its own with its first letter made a capital and &quot;%1.&quot; around it</extracomment>
        <translation>اس ڈیسک ٹاپ پر ونڈو بدل کر لاک سے نکلا جا سکتا ہے</translation>
    </message>
    <message>
        <source>on this desktop the compositor&apos;s own shortcuts may still leave a lock</source>
        <extracomment>Shown on a line of its own with its first letter made a capital and &quot;%1.&quot; around it</extracomment>
        <translation>اس ڈیسک ٹاپ پر کمپوزیٹر کے اپنے شارٹ کٹ اب بھی لاک سے نکال سکتے ہیں</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>About Tarvanel</source>
        <translation>‏Tarvanel کے بارے میں</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>ترتیبات…</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>ونڈو بند کریں</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <extracomment>The Edit menu; the &amp; marks its Alt key letter</extracomment>
        <translation>&amp;ترمیم</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>واپس کریں</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>دوبارہ کریں</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>کاٹیں</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>کاپی کریں</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>پیسٹ کریں</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>سب منتخب کریں</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>No Longer Excused</source>
        <extracomment>Excused: exempt from prayer for a while (menstruation, illness)</extracomment>
        <translation>عذر ختم</translation>
    </message>
    <message>
        <source>✓ prayed   q qada   – excused   · not kept</source>
        <extracomment>Legend of the seven-day grid. Keep the marks ✓ q – · as they are: the grid shows them</extracomment>
        <translation>✓ ادا   ق قضا   – عذر   · ادا نہیں</translation>
    </message>
    <message>
        <source>Tarvanel isn&apos;t set up yet</source>
        <translation>‏Tarvanel ابھی سیٹ اپ نہیں ہوا</translation>
    </message>
    <message>
        <source>Set Up Tarvanel…</source>
        <translation>‏Tarvanel سیٹ اپ کریں…</translation>
    </message>
    <message>
        <source>Ramadan</source>
        <translation>رمضان</translation>
    </message>
    <message>
        <source>Locks paused until %1</source>
        <extracomment>%1 is a weekday and a time, as in &quot;Friday 3:15 PM&quot;</extracomment>
        <translation>لاک %1 تک رکے ہوئے ہیں</translation>
    </message>
    <message>
        <source>Excused · reminders and locks are off</source>
        <translation>عذر · یاد دہانیاں اور لاک بند ہیں</translation>
    </message>
    <message>
        <source>Travelling until %1</source>
        <extracomment>%1 is the last day of the journey, as in &quot;Friday 3 Oct&quot;</extracomment>
        <translation>‏%1 تک سفر میں</translation>
    </message>
    <message>
        <source>Travelling until %1 · combining prayers</source>
        <extracomment>%1 is the last day of the journey, as in &quot;Friday 3 Oct&quot;</extracomment>
        <translation>‏%1 تک سفر میں · نمازیں جمع</translation>
    </message>
    <message>
        <source>%1 locks when your call ends</source>
        <extracomment>%1 is a prayer name: its lock waits for the end of a call</extracomment>
        <translation>‏%1 کا لاک آپ کی کال ختم ہونے پر ہو گا</translation>
    </message>
    <message>
        <source>%1 (with %2)</source>
        <extracomment>A prayer combined with an earlier one while travelling: &quot;Asr (with Dhuhr)&quot;</extracomment>
        <translation>‏%1 (%2 کے ساتھ)</translation>
    </message>
    <message>
        <source>(waqt %1)</source>
        <extracomment>After a lock time that differs from the computed time: %1 is the computed (waqt) time</extracomment>
        <translation>(وقت %1)</translation>
    </message>
    <message>
        <source>◀ next</source>
        <extracomment>Marks the row of the next prayer; the arrow points back at its time</extracomment>
        <translation>▶ اگلی</translation>
    </message>
    <message>
        <source>%1 ends %2</source>
        <extracomment>%1 is Suhoor, the meal before the fast; %2 the time it ends</extracomment>
        <translation>‏%1 %2 پر ختم</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>Iftar and its time</comment>
        <extracomment>%1 is Iftar, the meal that breaks the fast; %2 its time</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message numerus="yes">
        <source>Streak: %Ln days</source>
        <extracomment>Days in a row with every prayer kept</extracomment>
        <translation>
            <numerusform>تسلسل: %Ln دن</numerusform>
            <numerusform>تسلسل: %Ln دن</numerusform>
        </translation>
    </message>
    <message>
        <source>Mark as Prayed</source>
        <translation>ادا شدہ قرار دیں</translation>
    </message>
    <message>
        <source>%1: Prayed Late (Qada)</source>
        <extracomment>%1 is a prayer name; qada: a prayer made up after its time</extracomment>
        <translation>‏%1: دیر سے پڑھی (قضا)</translation>
    </message>
    <message>
        <source>%1: Prayed Elsewhere</source>
        <extracomment>%1 is a prayer name, prayed at the mosque or anywhere away from the screen</extracomment>
        <translation>‏%1: کہیں اور پڑھی</translation>
    </message>
    <message>
        <source>Nothing to mark yet</source>
        <translation>ابھی نشان لگانے کو کچھ نہیں</translation>
    </message>
    <message>
        <source>I&apos;m Excused…</source>
        <extracomment>Excused: exempt from prayer for a while (menstruation, illness)</extracomment>
        <translation>مجھے عذر ہے…</translation>
    </message>
    <message>
        <source>Stop Travelling</source>
        <translation>سفر ختم کریں</translation>
    </message>
    <message>
        <source>I&apos;m Travelling…</source>
        <translation>میں سفر میں ہوں…</translation>
    </message>
    <message>
        <source>Resume Locks</source>
        <translation>لاک دوبارہ شروع کریں</translation>
    </message>
    <message>
        <source>Pause Locks</source>
        <extracomment>&quot;Locks&quot; is a noun: the screen locks at prayer times</extracomment>
        <translation>لاک روکیں</translation>
    </message>
    <message>
        <source>For the Rest of Today</source>
        <translation>آج کے باقی دن کے لیے</translation>
    </message>
    <message>
        <source>For 3 Days</source>
        <translation>3 دن کے لیے</translation>
    </message>
    <message>
        <source>For a Week</source>
        <translation>ایک ہفتے کے لیے</translation>
    </message>
    <message>
        <source>Preview Lock (10 s)</source>
        <extracomment>Shows the lock screen for ten seconds; &quot;Lock&quot; is a noun</extracomment>
        <translation>لاک کا پیش نظارہ (10 سیکنڈ)</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>ترتیبات…</translation>
    </message>
</context>
<context>
    <name>Prayer</name>
    <message>
        <source>Fajr</source>
        <comment>the dawn prayer</comment>
        <translation>فجر</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <comment>the time of sunrise</comment>
        <translation>طلوعِ آفتاب</translation>
    </message>
    <message>
        <source>Dhuhr</source>
        <comment>the noon prayer</comment>
        <translation>ظہر</translation>
    </message>
    <message>
        <source>Jumu&apos;ah</source>
        <comment>the Friday congregational prayer</comment>
        <translation>جمعہ</translation>
    </message>
    <message>
        <source>Asr</source>
        <comment>the afternoon prayer</comment>
        <translation>عصر</translation>
    </message>
    <message>
        <source>Maghrib</source>
        <comment>the sunset prayer</comment>
        <translation>مغرب</translation>
    </message>
    <message>
        <source>Isha</source>
        <comment>the night prayer</comment>
        <translation>عشاء</translation>
    </message>
    <message>
        <source>Tarawih</source>
        <comment>the Ramadan night prayer</comment>
        <translation>تراویح</translation>
    </message>
    <message>
        <source>Iftar</source>
        <comment>the meal that breaks the Ramadan fast</comment>
        <translation>افطار</translation>
    </message>
    <message>
        <source>Suhoor</source>
        <comment>the meal before the Ramadan fast</comment>
        <translation>سحری</translation>
    </message>
    <message>
        <source>%1 &amp; %2</source>
        <extracomment>Two prayers prayed together while travelling, e.g. &quot;Dhuhr &amp; Asr&quot;</extracomment>
        <translation>‏%1 و %2</translation>
    </message>
</context>
<context>
    <name>PrayerCalendar</name>
    <message>
        <source>Prayer times</source>
        <translation>نماز کے اوقات</translation>
    </message>
    <message>
        <source>%1 (prayer)</source>
        <extracomment>A calendar event&apos;s title: %1 is a prayer&apos;s name (&quot;Fajr (prayer)&quot;).</extracomment>
        <translation>‏%1 (نماز)</translation>
    </message>
</context>
<context>
    <name>RowProblems</name>
    <message>
        <source>%1, %2</source>
        <extracomment>Items of a list before its last: &quot;4, 12&quot; in &quot;4, 12 and 19 March&quot;.</extracomment>
        <translation>‏%1، %2</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <extracomment>The last item of a list: &quot;4 and 12&quot;, &quot;4, 12 and 19 March&quot;.</extracomment>
        <translation>‏%1 اور %2</translation>
    </message>
    <message>
        <source>line %1</source>
        <extracomment>A row of the pasted or read timetable text, counted from 1.</extracomment>
        <translation>سطر %1</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>Days of one month: %1 is one or more day numbers (&quot;4, 12 and 19&quot;), %2 the month.</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 are missing a time in a chosen column</source>
        <extracomment>%1 names the rows: days (&quot;4, 12 and 19 March&quot;) or lines (&quot;line 7&quot;); %n counts them.</extracomment>
        <translation>
            <numerusform>‏%1 میں منتخب کالم کا وقت موجود نہیں</numerusform>
            <numerusform>‏%1 میں منتخب کالم کا وقت موجود نہیں</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 have no day number or date</source>
        <extracomment>%1 names the rows (&quot;line 7 and line 9&quot;); %n counts them.</extracomment>
        <translation>
            <numerusform>‏%1 میں دن کا نمبر یا تاریخ نہیں</numerusform>
            <numerusform>‏%1 میں دن کا نمبر یا تاریخ نہیں</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>days %1 are not in %2</source>
        <extracomment>%1 is one or more day numbers (&quot;30 and 31&quot;), %2 a month (&quot;February&quot;); %n counts the days.</extracomment>
        <translation>
            <numerusform>تاریخ %1 %2 میں نہیں ہے</numerusform>
            <numerusform>تاریخیں %1 %2 میں نہیں ہیں</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 appear twice (the later rows are used)</source>
        <extracomment>%1 names the rows (&quot;4 and 5 March&quot;); %n counts them.</extracomment>
        <translation>
            <numerusform>‏%1 دو بار درج ہے (بعد والی قطار لی گئی)</numerusform>
            <numerusform>‏%1 دو بار درج ہیں (بعد والی قطاریں لی گئیں)</numerusform>
        </translation>
    </message>
    <message>
        <source>; </source>
        <extracomment>Separates the reasons in the sentence below: &quot;… in a chosen column; line 7 has …&quot;.</extracomment>
        <translation>؛ </translation>
    </message>
    <message numerus="yes">
        <source>%Ln rows can&apos;t be used: %1.</source>
        <extracomment>%Ln counts the rows, %1 gives the reasons (&quot;4 March is missing a time in a chosen column&quot;).</extracomment>
        <translation>
            <numerusform>‏%Ln قطار استعمال نہیں ہو سکتی: %1۔</numerusform>
            <numerusform>‏%Ln قطاریں استعمال نہیں ہو سکتیں: %1۔</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Language</source>
        <translation>زبان</translation>
    </message>
    <message>
        <source>The menu and every window opened from now on use this language. System follows your desktop&apos;s.</source>
        <translation>مینو اور اب سے کھلنے والی ہر ونڈو یہی زبان استعمال کرے گی۔ “سسٹم” آپ کے ڈیسک ٹاپ کی زبان اپناتا ہے۔</translation>
    </message>
    <message>
        <source>The GNOME Shell extension is on: a lock covers every screen.</source>
        <translation>‏GNOME Shell ایکسٹینشن آن ہے: لاک ہر اسکرین کو ڈھانپ لیتا ہے۔</translation>
    </message>
    <message>
        <source>The GNOME Shell extension is off, so GNOME&apos;s shortcuts still work during a lock.</source>
        <translation>‏GNOME Shell ایکسٹینشن بند ہے، اس لیے لاک کے دوران GNOME کے شارٹ کٹ اب بھی کام کرتے ہیں۔</translation>
    </message>
    <message>
        <source>Enable the GNOME Shell extension</source>
        <translation>‏GNOME Shell ایکسٹینشن آن کریں</translation>
    </message>
    <message>
        <source>The GNOME Shell extension is on.</source>
        <translation>‏GNOME Shell ایکسٹینشن آن ہے۔</translation>
    </message>
    <message>
        <source>Log out and back in to load it.</source>
        <translation>اسے لوڈ کرنے کے لیے لاگ آؤٹ کر کے دوبارہ لاگ اِن کریں۔</translation>
    </message>
    <message>
        <source>Adhan</source>
        <extracomment>The call to prayer</extracomment>
        <translation>اذان</translation>
    </message>
    <message>
        <source>Pick any MP3, M4A, AIFF or WAV file.</source>
        <translation>کوئی بھی MP3، M4A، AIFF یا WAV فائل چنیں۔</translation>
    </message>
    <message>
        <source>Play the adhan when a lock starts</source>
        <translation>لاک شروع ہونے پر اذان چلائیں</translation>
    </message>
    <message>
        <source>Play</source>
        <extracomment>A button: play the chosen adhan</extracomment>
        <translation>چلائیں</translation>
    </message>
    <message>
        <source>Choose Sound…</source>
        <translation>آواز چنیں…</translation>
    </message>
    <message>
        <source>Choose Sound</source>
        <translation>آواز چنیں</translation>
    </message>
    <message>
        <source>Sounds (*.mp3 *.m4a *.aif *.aiff *.wav)</source>
        <extracomment>A file type filter; keep the part in brackets as it is</extracomment>
        <translation>آوازیں (*.mp3 *.m4a *.aif *.aiff *.wav)</translation>
    </message>
    <message>
        <source>Use This Adhan</source>
        <translation>یہ اذان استعمال کریں</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>A button: stop using the chosen adhan
----------
A button: remove the guardian&apos;s code</extracomment>
        <translation>ہٹائیں</translation>
    </message>
    <message>
        <source>None (a chime plays)</source>
        <translation>کوئی نہیں (گھنٹی بجے گی)</translation>
    </message>
    <message>
        <source>Stop</source>
        <extracomment>A button: stop the adhan that plays</extracomment>
        <translation>روکیں</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>آواز</translation>
    </message>
    <message>
        <source>Calculation</source>
        <translation>حساب</translation>
    </message>
    <message>
        <source>Custom angles</source>
        <extracomment>The calculation method of one&apos;s own: the sun&apos;s angles below the horizon for Fajr and Isha</extracomment>
        <translation>اپنے زاویے</translation>
    </message>
    <message>
        <source>Method</source>
        <extracomment>The calculation method of prayer times</extracomment>
        <translation>طریقہ</translation>
    </message>
    <message>
        <source>Fajr angle</source>
        <extracomment>The sun&apos;s angle below the horizon at which Fajr starts</extracomment>
        <translation>فجر کا زاویہ</translation>
    </message>
    <message>
        <source>Isha angle</source>
        <extracomment>The sun&apos;s angle below the horizon at which Isha starts</extracomment>
        <translation>عشاء کا زاویہ</translation>
    </message>
    <message>
        <source>Standard (Shafi&apos;i, Maliki, Hanbali)</source>
        <extracomment>The way of reckoning the Asr time shared by the Shafi&apos;i, Maliki and Hanbali schools</extracomment>
        <translation>عام (شافعی، مالکی، حنبلی)</translation>
    </message>
    <message>
        <source>Hanafi</source>
        <extracomment>The Hanafi school&apos;s later Asr time</extracomment>
        <translation>حنفی</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>کیلنڈر</translation>
    </message>
    <message>
        <source>Adds each lock as a Busy event for the next 7 days, so colleagues see you&apos;re busy and don&apos;t book meetings over salah. Pick your work calendar. Turning this off removes the events.
On Linux the calendars are the folders under ~/.local/share/calendars (khal and vdirsyncer use them too).</source>
        <extracomment>Busy is how the event shows in others&apos; calendars; khal and vdirsyncer are programs</extracomment>
        <translation>ہر لاک کو اگلے 7 دن کے لیے مصروف ایونٹ کے طور پر شامل کرتا ہے، تاکہ ساتھیوں کو پتا چلے کہ آپ مصروف ہیں اور وہ نماز کے وقت میٹنگ نہ رکھیں۔ اپنا دفتری کیلنڈر چنیں۔ اسے بند کرنے سے ایونٹس ہٹ جاتے ہیں۔
Linux پر کیلنڈر ~/.local/share/calendars کے اندر موجود فولڈر ہیں (khal اور vdirsyncer بھی انہی کو استعمال کرتے ہیں)۔</translation>
    </message>
    <message>
        <source>Block prayer times in my calendar</source>
        <translation>میرے کیلنڈر میں نماز کے اوقات بلاک کریں</translation>
    </message>
    <message>
        <source>None</source>
        <extracomment>No calendar chosen</extracomment>
        <translation>کوئی نہیں</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>A calendar in the list: %1 its name, %2 the account or folder it belongs to</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Emergency exit</source>
        <translation>ہنگامی اخراج</translation>
    </message>
    <message>
        <source>Optional. Someone you trust keeps a 6-digit code in their phone. In a real emergency they read it to you and you type it on the lock screen to end the lock; that prayer isn&apos;t counted as kept. The key is stored on this computer, so this is a speed bump, not a vault.</source>
        <extracomment>“A speed bump, not a vault”: it slows a determined person down but cannot stop one</extracomment>
        <translation>اختیاری۔ آپ کا کوئی قابلِ اعتماد شخص اپنے فون میں 6 ہندسوں کا کوڈ رکھتا ہے۔ حقیقی ہنگامی صورت میں وہ آپ کو کوڈ پڑھ کر سناتا ہے اور آپ اسے لاک اسکرین پر لکھ کر لاک ختم کرتے ہیں؛ وہ نماز ادا شدہ شمار نہیں ہوتی۔ کلید اسی کمپیوٹر پر محفوظ ہے، اس لیے یہ ایک اسپیڈ بریکر ہے، تجوری نہیں۔</translation>
    </message>
    <message>
        <source>Guardian code</source>
        <extracomment>The guardian&apos;s code is set; a Remove button follows</extracomment>
        <translation>نگران کا کوڈ</translation>
    </message>
    <message>
        <source>Set Up Guardian Code…</source>
        <translation>نگران کا کوڈ سیٹ اپ کریں…</translation>
    </message>
    <message>
        <source>Extras</source>
        <translation>اضافی</translation>
    </message>
    <message>
        <source>Ramadan mode adds suhoor and iftar times and a Tarawih reminder during Ramadan.</source>
        <translation>رمضان موڈ رمضان میں سحری اور افطار کے اوقات اور تراویح کی یاد دہانی شامل کرتا ہے۔</translation>
    </message>
    <message>
        <source>Ramadan mode</source>
        <translation>رمضان موڈ</translation>
    </message>
    <message>
        <source>Weekly report on Sunday evenings</source>
        <translation>اتوار کی شام ہفتہ وار رپورٹ</translation>
    </message>
    <message>
        <source>Streak &amp; history</source>
        <translation>تسلسل اور ریکارڈ</translation>
    </message>
    <message>
        <source>I&apos;m Excused… in the menu turns off reminders and locks without breaking your streak. Mark as Prayed counts a prayer you prayed at the masjid or made up late (qada). Export saves every prayer with how it was kept as a CSV.</source>
        <extracomment>I&apos;m Excused… and Mark as Prayed are commands of the tray menu; use their translations</extracomment>
        <translation>مینو میں “مجھے عذر ہے…” آپ کا تسلسل توڑے بغیر یاد دہانیاں اور لاک بند کر دیتا ہے۔ “ادا شدہ قرار دیں” وہ نماز شمار کرتا ہے جو آپ نے مسجد میں پڑھی یا بعد میں قضا کی۔ برآمد ہر نماز کو اس کی ادائیگی کی تفصیل کے ساتھ CSV فائل میں محفوظ کرتا ہے۔</translation>
    </message>
    <message>
        <source>“I&apos;m Excused” ends by itself after</source>
        <extracomment>A number of days follows in a field; I&apos;m Excused is a command of the tray menu</extracomment>
        <translation>“مجھے عذر ہے” خود ختم ہونے کی مدت</translation>
    </message>
    <message>
        <source> days</source>
        <extracomment>A unit after a number of days in a field; keep the leading space if your language has one</extracomment>
        <translation> دن</translation>
    </message>
    <message>
        <source>Export History…</source>
        <translation>ریکارڈ برآمد کریں…</translation>
    </message>
    <message>
        <source>On Fridays Dhuhr becomes Jumu&apos;ah at this time, with a longer lock.</source>
        <translation>جمعہ کے دن ظہر اس وقت جمعہ بن جاتی ہے، اور لاک لمبا ہوتا ہے۔</translation>
    </message>
    <message>
        <source>Jumu&apos;ah on Fridays</source>
        <translation>نمازِ جمعہ</translation>
    </message>
    <message>
        <source>Jumu&apos;ah time</source>
        <translation>جمعہ کا وقت</translation>
    </message>
    <message>
        <source>Jumu&apos;ah lock lasts</source>
        <translation>جمعہ کے لاک کی مدت</translation>
    </message>
    <message>
        <source> min</source>
        <extracomment>A unit after a number of minutes in a field; keep the leading space if your language has one</extracomment>
        <translation> منٹ</translation>
    </message>
    <message>
        <source>Places with this name</source>
        <translation>اس نام کی جگہیں</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>مقام</translation>
    </message>
    <message>
        <source>Times are calculated on your computer, no internet needed. Your computer&apos;s time zone: %1</source>
        <extracomment>%1 the time zone&apos;s identifier, such as Europe/London</extracomment>
        <translation>اوقات کا حساب آپ کے کمپیوٹر پر ہوتا ہے، انٹرنیٹ کی ضرورت نہیں۔ آپ کے کمپیوٹر کا ٹائم زون: %1</translation>
    </message>
    <message>
        <source>City</source>
        <translation>شہر</translation>
    </message>
    <message>
        <source>e.g. London, Dhaka, Toronto</source>
        <extracomment>Examples of cities; use cities your readers know</extracomment>
        <translation>مثلاً لاہور، کراچی، لندن</translation>
    </message>
    <message>
        <source>Find</source>
        <extracomment>A button: search for the city typed</extracomment>
        <translation>تلاش کریں</translation>
    </message>
    <message>
        <source>Using</source>
        <extracomment>The location in use: a label before the place&apos;s name and coordinates</extracomment>
        <translation>زیرِ استعمال</translation>
    </message>
    <message>
        <source>%1  %2, %3</source>
        <extracomment>%1 the place&apos;s name, %2 its latitude, %3 its longitude</extracomment>
        <translation>‏%1  %2، %3</translation>
    </message>
    <message>
        <source>Not set yet</source>
        <translation>ابھی طے نہیں</translation>
    </message>
    <message>
        <source>Enter coordinates</source>
        <translation>کوآرڈینیٹس درج کریں</translation>
    </message>
    <message>
        <source>Name</source>
        <extracomment>The place&apos;s name, typed with its coordinates</extracomment>
        <translation>نام</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>عرض بلد</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>طول بلد</translation>
    </message>
    <message>
        <source>During a lock every screen goes black, and the lock holds the keyboard and mouse, so the panel, window and workspace switching and the desktop&apos;s shortcuts are out of reach. There&apos;s no way to end it early except your guardian&apos;s code. If your mic or camera is in use when a lock is due, it waits for the call to end, then locks for the full time. With “Did you pray?”, answering Not Yet locks again for 5 minutes. If your computer is asleep, it locks on wake only while still inside the lock window.</source>
        <extracomment>“Did you pray?” and Not Yet are the texts of the question asked after a lock and its button</extracomment>
        <translation>لاک کے دوران ہر اسکرین سیاہ ہو جاتی ہے، اور لاک کی بورڈ اور ماؤس کو اپنے قابو میں رکھتا ہے، اس لیے پینل، ونڈو اور ورک اسپیس بدلنا اور ڈیسک ٹاپ کے شارٹ کٹ کام نہیں کرتے۔ آپ کے نگران کے کوڈ کے سوا اسے جلد ختم کرنے کا کوئی راستہ نہیں۔ اگر لاک کے وقت آپ کا مائیک یا کیمرا استعمال میں ہو تو یہ کال ختم ہونے کا انتظار کرتا ہے، پھر پورے وقت کے لیے لاک کرتا ہے۔ “کیا آپ نے نماز پڑھی؟” آن ہو تو “ابھی نہیں” کا جواب 5 منٹ کے لیے دوبارہ لاک کر دیتا ہے۔ اگر آپ کا کمپیوٹر سو رہا ہو تو جاگنے پر یہ صرف تب لاک کرتا ہے جب لاک کا وقت ابھی باقی ہو۔</translation>
    </message>
    <message>
        <source>During a lock every screen goes black, and the lock holds the keyboard and mouse, so the panel, window and workspace switching and the desktop&apos;s shortcuts are out of reach. There&apos;s no way to end it early. If your mic or camera is in use when a lock is due, it waits for the call to end, then locks for the full time. With “Did you pray?”, answering Not Yet locks again for 5 minutes. If your computer is asleep, it locks on wake only while still inside the lock window.</source>
        <extracomment>“Did you pray?” and Not Yet are the texts of the question asked after a lock and its button</extracomment>
        <translation>لاک کے دوران ہر اسکرین سیاہ ہو جاتی ہے، اور لاک کی بورڈ اور ماؤس کو اپنے قابو میں رکھتا ہے، اس لیے پینل، ونڈو اور ورک اسپیس بدلنا اور ڈیسک ٹاپ کے شارٹ کٹ کام نہیں کرتے۔ اسے جلد ختم کرنے کا کوئی راستہ نہیں۔ اگر لاک کے وقت آپ کا مائیک یا کیمرا استعمال میں ہو تو یہ کال ختم ہونے کا انتظار کرتا ہے، پھر پورے وقت کے لیے لاک کرتا ہے۔ “کیا آپ نے نماز پڑھی؟” آن ہو تو “ابھی نہیں” کا جواب 5 منٹ کے لیے دوبارہ لاک کر دیتا ہے۔ اگر آپ کا کمپیوٹر سو رہا ہو تو جاگنے پر یہ صرف تب لاک کرتا ہے جب لاک کا وقت ابھی باقی ہو۔</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>A sentence&apos;s full stop: %1 the sentence</extracomment>
        <translation>‏%1۔</translation>
    </message>
    <message>
        <source>Lock</source>
        <extracomment>The heading of the section about the lock (a noun)</extracomment>
        <translation>لاک</translation>
    </message>
    <message>
        <source>Lock lasts</source>
        <translation>لاک کی مدت</translation>
    </message>
    <message>
        <source>Lock starts before prayer</source>
        <translation>نماز سے پہلے لاک</translation>
    </message>
    <message>
        <source>Reminders (minutes before)</source>
        <translation>یاد دہانیاں (کتنے منٹ پہلے)</translation>
    </message>
    <message>
        <source>20, 10, 5, 2</source>
        <extracomment>An example of the reminders field: minutes before the lock, separated by commas</extracomment>
        <translation>20, 10, 5, 2</translation>
    </message>
    <message>
        <source>Wait for a call to end</source>
        <extracomment>How long a lock waits while the mic or camera is in use</extracomment>
        <translation>کال ختم ہونے کا انتظار</translation>
    </message>
    <message>
        <source>Ask “Did you pray?” after each lock</source>
        <translation>ہر لاک کے بعد پوچھیں “کیا آپ نے نماز پڑھی؟”</translation>
    </message>
    <message>
        <source>Your phone too</source>
        <translation>آپ کا فون بھی</translation>
    </message>
    <message>
        <source>Tarvanel runs the script “%1” when a lock starts and “%2” when it ends. The pair written for your desktop turns its notification banners off and back on; a command added to both can quiet your phone as well.</source>
        <extracomment>%1 and %2 the names of the two scripts (file names: they stay as they are)</extracomment>
        <translation>لاک شروع ہونے پر Tarvanel اسکرپٹ “%1” اور ختم ہونے پر “%2” چلاتا ہے۔ آپ کے ڈیسک ٹاپ کے لیے لکھا گیا جوڑا اس کے نوٹیفکیشن بینر بند کر کے پھر آن کرتا ہے؛ دونوں میں شامل کی گئی کوئی کمانڈ آپ کا فون بھی خاموش کر سکتی ہے۔</translation>
    </message>
    <message>
        <source>Run the Focus scripts during each lock</source>
        <extracomment>Focus names the pair of scripts run at the start and the end of a lock</extracomment>
        <translation>ہر لاک کے دوران فوکس اسکرپٹس چلائیں</translation>
    </message>
    <message>
        <source>Scripts</source>
        <translation>اسکرپٹس</translation>
    </message>
    <message>
        <source>Not checked yet</source>
        <translation>ابھی چیک نہیں کیا</translation>
    </message>
    <message>
        <source>Both scripts found</source>
        <translation>دونوں اسکرپٹس مل گئے</translation>
    </message>
    <message>
        <source>Scripts missing</source>
        <translation>اسکرپٹس موجود نہیں</translation>
    </message>
    <message>
        <source>1. Choose your desktop below and press Write Scripts: it makes “%1” and “%2” in %3, which switch the desktop&apos;s notification banners off and on.
2. Or write them yourself: any executable files with those names (each may run for 30 seconds at most).
3. For your phone: add to both scripts a command of the tool that links your phone to this computer, if you use one.</source>
        <extracomment>%1 and %2 the names of the two scripts, %3 their folder; Write Scripts is a button below</extracomment>
        <translation>1. نیچے اپنا ڈیسک ٹاپ چنیں اور “اسکرپٹس لکھیں” دبائیں: یہ %3 میں “%1” اور “%2” بناتا ہے، جو ڈیسک ٹاپ کے نوٹیفکیشن بینر بند اور آن کرتے ہیں۔
2. یا انہیں خود لکھیں: انہی ناموں کی کوئی بھی قابلِ اجرا فائلیں (ہر ایک زیادہ سے زیادہ 30 سیکنڈ چل سکتی ہے)۔
3. فون کے لیے: اگر آپ فون کو اس کمپیوٹر سے جوڑنے والا کوئی ٹول استعمال کرتے ہیں تو اس کی ایک کمانڈ دونوں اسکرپٹس میں شامل کریں۔</translation>
    </message>
    <message>
        <source>Scripts for</source>
        <extracomment>The desktop the scripts are written for</extracomment>
        <translation>اسکرپٹس برائے</translation>
    </message>
    <message>
        <source>Write Scripts</source>
        <translation>اسکرپٹس لکھیں</translation>
    </message>
    <message>
        <source>Open Shortcuts Folder</source>
        <translation>شارٹ کٹس فولڈر کھولیں</translation>
    </message>
    <message>
        <source>Check Again</source>
        <translation>دوبارہ چیک کریں</translation>
    </message>
    <message>
        <source>Test</source>
        <extracomment>A button: run the scripts once now to try them</extracomment>
        <translation>ٹیسٹ</translation>
    </message>
    <message>
        <source>Find your city to begin</source>
        <translation>شروع کرنے کے لیے اپنا شہر تلاش کریں</translation>
    </message>
    <message>
        <source>Your location</source>
        <translation>آپ کا مقام</translation>
    </message>
    <message>
        <source>%1  ·  %2 locks at %3</source>
        <extracomment>The settings window&apos;s header: %1 the place, %2 a prayer, %3 the time its lock starts</extracomment>
        <translation>‏%1  ·  %2 کا لاک %3 پر</translation>
    </message>
    <message>
        <source>Start Tarvanel</source>
        <extracomment>The button that saves the settings on the first run and starts the program</extracomment>
        <translation>‏Tarvanel شروع کریں</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>محفوظ کریں</translation>
    </message>
    <message>
        <source>h:mm AP</source>
        <extracomment>How a time of day is written, in Qt&apos;s date-time pattern letters: h hour, mm minutes, AP AM or PM. A 24-hour clock is HH:mm</extracomment>
        <translation>h:mm AP</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>آج</translation>
    </message>
    <message>
        <source>Find your city to see today&apos;s times.</source>
        <translation>آج کے اوقات دیکھنے کے لیے اپنا شہر تلاش کریں۔</translation>
    </message>
    <message>
        <source>locks %1</source>
        <extracomment>A column of today&apos;s times: %1 the time this prayer&apos;s lock starts</extracomment>
        <translation>لاک %1</translation>
    </message>
    <message>
        <source>Fajr ends at sunrise, %1.</source>
        <extracomment>%1 the time of sunrise</extracomment>
        <translation>فجر طلوعِ آفتاب (%1) پر ختم ہوتی ہے۔</translation>
    </message>
    <message>
        <source>Travel</source>
        <translation>سفر</translation>
    </message>
    <message>
        <source>Travel mode checks your rough location online every 6 hours and uses local times when you&apos;re more than 50 km from home; a VPN will fool it. You can also choose I&apos;m Travelling… in the menu. Combining makes Dhuhr and Asr one lock at Dhuhr, and Maghrib and Isha one lock at Maghrib, only while travelling. Schools differ: the Hanafi school, for example, doesn&apos;t permit combining except at Arafah and Muzdalifah. Turn it on only if your school permits it.</source>
        <extracomment>I&apos;m Travelling… is a command of the tray menu</extracomment>
        <translation>سفر موڈ ہر 6 گھنٹے بعد آن لائن آپ کا اندازاً مقام دیکھتا ہے اور جب آپ گھر سے 50 کلومیٹر سے زیادہ دور ہوں تو وہاں کے مقامی اوقات استعمال کرتا ہے؛ VPN اسے دھوکا دے سکتا ہے۔ آپ مینو میں “میں سفر میں ہوں…” بھی چن سکتے ہیں۔ جمع کرنے سے، صرف سفر کے دوران، ظہر اور عصر کا ظہر کے وقت ایک ہی لاک ہوتا ہے، اور مغرب اور عشاء کا مغرب کے وقت۔ مسالک میں اختلاف ہے: مثلاً حنفی مسلک عرفات اور مزدلفہ کے سوا جمع کی اجازت نہیں دیتا۔ اسے صرف تب آن کریں جب آپ کا مسلک اس کی اجازت دیتا ہو۔</translation>
    </message>
    <message>
        <source>Travel mode (follow my location)</source>
        <translation>سفر موڈ (میرے مقام کے مطابق)</translation>
    </message>
    <message>
        <source>Combine prayers while travelling</source>
        <translation>سفر میں نمازیں جمع کریں</translation>
    </message>
    <message>
        <source>%1 minutes after start</source>
        <extracomment>Read by a screen reader: %1 a prayer</extracomment>
        <translation>‏%1: وقت شروع ہونے کے بعد منٹ</translation>
    </message>
    <message>
        <source>%1 fixed time</source>
        <extracomment>Read by a screen reader: %1 a prayer</extracomment>
        <translation>‏%1: مقررہ وقت</translation>
    </message>
    <message>
        <source>When you pray</source>
        <translation>آپ کب نماز پڑھتے ہیں</translation>
    </message>
    <message>
        <source>Lock at the time you actually pray, like your mosque&apos;s jamaat, instead of the moment the time starts. An imported timetable wins on the days it covers.</source>
        <extracomment>“Lock” here is a verb; jamaat is the congregational prayer at the mosque</extracomment>
        <translation>وقت شروع ہوتے ہی نہیں بلکہ اس وقت لاک کریں جب آپ واقعی نماز پڑھتے ہیں، جیسے آپ کی مسجد کی جماعت۔ درآمد شدہ نظام الاوقات جن دنوں کا ہو، ان دنوں اسی کو ترجیح ملتی ہے۔</translation>
    </message>
    <message>
        <source>Clear</source>
        <extracomment>A button: forget the imported timetable</extracomment>
        <translation>صاف کریں</translation>
    </message>
    <message>
        <source>Masjid timetable: %1</source>
        <extracomment>%1 the imported timetable&apos;s days and dates, such as “31 days, 1 Mar 2025 – 31 Mar 2025”</extracomment>
        <translation>مسجد کا نظام الاوقات: %1</translation>
    </message>
    <message>
        <source>No masjid timetable imported</source>
        <translation>مسجد کا کوئی نظام الاوقات درآمد نہیں کیا گیا</translation>
    </message>
    <message>
        <source>Import Timetable…</source>
        <translation>نظام الاوقات درآمد کریں…</translation>
    </message>
</context>
<context>
    <name>TimeFormat</name>
    <message>
        <source>dddd d MMMM yyyy</source>
        <extracomment>Qt pattern of the date above the --times table, as in &quot;Friday 3 October 2025&quot;</extracomment>
        <translation>dddd d MMMM yyyy</translation>
    </message>
    <message>
        <source>dddd d MMMM</source>
        <extracomment>Qt pattern of a weekday and a date, as in &quot;Friday 3 October&quot;</extracomment>
        <translation>dddd d MMMM</translation>
    </message>
    <message>
        <source>h:mm AP</source>
        <extracomment>Qt time pattern of a clock time: h hour, mm minutes, AP AM or PM. Write HH:mm where a 24-hour clock is usual.</extracomment>
        <translation>⁦h:mm AP⁩</translation>
    </message>
    <message>
        <source>dddd h:mm AP</source>
        <extracomment>Qt pattern of a weekday and a clock time, as in &quot;Friday 3:15 PM&quot;</extracomment>
        <translation>dddd ⁦h:mm AP⁩</translation>
    </message>
    <message>
        <source>dddd d MMM</source>
        <extracomment>Qt pattern of a weekday and a date, as in &quot;Friday 3 Oct&quot;</extracomment>
        <translation>dddd d MMM</translation>
    </message>
    <message>
        <source>ddd d</source>
        <extracomment>Qt pattern of a short weekday and the day of the month in the seven-day grid, as in &quot;Fri 3&quot;</extracomment>
        <translation>ddd d</translation>
    </message>
</context>
<context>
    <name>TimeMode</name>
    <message>
        <source>At start time</source>
        <extracomment>When the lock comes: at the prayer&apos;s start time (its waqt).</extracomment>
        <translation>وقت شروع ہوتے ہی</translation>
    </message>
    <message>
        <source>After start</source>
        <extracomment>When the lock comes: some minutes after the prayer&apos;s start time.</extracomment>
        <translation>وقت کے بعد</translation>
    </message>
    <message>
        <source>Fixed time</source>
        <extracomment>When the lock comes: at a fixed clock time, such as a mosque&apos;s jamaat.</extracomment>
        <translation>مقررہ وقت</translation>
    </message>
</context>
<context>
    <name>TimesCommand</name>
    <message>
        <source>Ramadan</source>
        <translation>رمضان</translation>
    </message>
    <message>
        <source>Prayer</source>
        <extracomment>Column heading of the --times table: the prayer&apos;s name</extracomment>
        <translation>نماز</translation>
    </message>
    <message>
        <source>Waqt</source>
        <extracomment>Column heading of the --times table: the computed time of the prayer</extracomment>
        <translation>وقت</translation>
    </message>
    <message>
        <source>Lock at</source>
        <extracomment>Column heading of the --times table: when the screens lock</extracomment>
        <translation>لاک کا وقت</translation>
    </message>
    <message>
        <source>config.json is invalid (%1); printing the default settings&apos; times</source>
        <extracomment>%1 says what is wrong with the settings file config.json</extracomment>
        <translation>‏config.json درست نہیں (%1)؛ طے شدہ ترتیبات کے اوقات دکھائے جا رہے ہیں</translation>
    </message>
    <message>
        <source>no place is set, so these times are for 0° N 0° E; to set yours, open Tarvanel (its settings open on the first start) or write %1</source>
        <extracomment>%1 is the settings file</extracomment>
        <translation>کوئی مقام طے نہیں، اس لیے یہ اوقات 0° N 0° E کے ہیں؛ اپنا مقام طے کرنے کے لیے Tarvanel کھولیں (پہلی بار اس کی ترتیبات خود کھلتی ہیں) یا %1 میں لکھیں</translation>
    </message>
</context>
<context>
    <name>Timetable</name>
    <message numerus="yes">
        <source>%Ln days, %1 – %2</source>
        <extracomment>The imported timetable: %Ln days from %1 to %2 (&quot;30 days, 1 Mar 2025 – 30 Mar 2025&quot;).</extracomment>
        <translation>
            <numerusform>‏%Ln دن، %1 – %2</numerusform>
            <numerusform>‏%Ln دن، %1 – %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Title</name>
    <message>
        <source>%1m</source>
        <extracomment>Short countdown in the tray title: %1 minutes, as in &quot;47m&quot;</extracomment>
        <translation>‏%1 منٹ</translation>
    </message>
    <message>
        <source>%1h %2m</source>
        <extracomment>Short countdown in the tray title: %1 hours and %2 minutes, as in &quot;1h 5m&quot;</extracomment>
        <translation>‏%1 گھنٹے %2 منٹ</translation>
    </message>
    <message>
        <source>Preview</source>
        <extracomment>Tray title while the lock started by &quot;Preview Lock&quot; in the menu shows</extracomment>
        <translation>پیش نظارہ</translation>
    </message>
    <message>
        <source>Test</source>
        <extracomment>Tray title while the lock started by the command line&apos;s --test-lock shows</extracomment>
        <translation>ٹیسٹ</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <extracomment>Tray title: %1 is a prayer name, %2 a short countdown such as &quot;47m&quot; or &quot;1h 5m&quot;</extracomment>
        <translation>‏%1 میں %2</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <extracomment>Tray title: %1 is the prayer name Fajr, %2 its time tomorrow</extracomment>
        <translation>‏%1 %2 پر</translation>
    </message>
</context>
<context>
    <name>Travel</name>
    <message>
        <source>Travelling</source>
        <extracomment>Stands for the place&apos;s name while travelling when the location service names no city.</extracomment>
        <translation>سفر میں</translation>
    </message>
</context>
<context>
    <name>tarvanel::AppDelegate</name>
    <message>
        <source>config.json can&apos;t be used (%1). Tarvanel keeps the last good settings.</source>
        <extracomment>%1 says what is wrong with the settings file config.json</extracomment>
        <translation>‏config.json استعمال نہیں ہو سکتی (%1)۔ Tarvanel آخری درست ترتیبات برقرار رکھتا ہے۔</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>بدل دیں</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>منسوخ</translation>
    </message>
    <message>
        <source>Tarvanel history.csv</source>
        <extracomment>The file name the history export suggests; keep the .csv ending</extracomment>
        <translation>‏Tarvanel ریکارڈ.csv</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ٹھیک ہے</translation>
    </message>
    <message>
        <source>Couldn&apos;t export the history to %1</source>
        <extracomment>%1 is a file</extracomment>
        <translation>ریکارڈ %1 میں برآمد نہیں ہو سکا</translation>
    </message>
    <message numerus="yes">
        <source>Exported %Ln prayers to %1</source>
        <extracomment>%1 is a file; the count is of prayers written to it</extracomment>
        <translation>
            <numerusform>‏%Ln نماز %1 میں برآمد کی گئی</numerusform>
            <numerusform>‏%Ln نمازیں %1 میں برآمد کی گئیں</numerusform>
        </translation>
    </message>
    <message>
        <source>Uninstall Tarvanel?</source>
        <translation>‏Tarvanel ان انسٹال کریں؟</translation>
    </message>
    <message>
        <source>Tarvanel stops running, stops starting at login, and moves to the Trash. Your prayer times stop locking the screen.</source>
        <translation>‏Tarvanel چلنا بند ہو جائے گا، لاگ اِن پر شروع نہیں ہو گا، اور ردی کی ٹوکری میں چلا جائے گا۔ نماز کے اوقات پر اسکرین لاک ہونا بند ہو جائے گی۔</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>ان انسٹال کریں</translation>
    </message>
    <message>
        <source>Also delete my settings and history</source>
        <translation>میری ترتیبات اور ریکارڈ بھی حذف کریں</translation>
    </message>
    <message>
        <source>Turn off reminders and locks?</source>
        <extracomment>Asked on &quot;I&apos;m Excused…&quot; in the menu: exempt from prayer for a while</extracomment>
        <translation>یاد دہانیاں اور لاک بند کریں؟</translation>
    </message>
    <message numerus="yes">
        <source>They come back when you choose %1, or after %Ln days. Your streak is kept.</source>
        <extracomment>%1 is the menu item that ends the excused days</extracomment>
        <translation>
            <numerusform>یہ تب واپس آئیں گے جب آپ “%1” چنیں گے، یا %Ln دن بعد۔ آپ کا تسلسل برقرار رہے گا۔</numerusform>
            <numerusform>یہ تب واپس آئیں گے جب آپ “%1” چنیں گے، یا %Ln دن بعد۔ آپ کا تسلسل برقرار رہے گا۔</numerusform>
        </translation>
    </message>
    <message>
        <source>Turn Off</source>
        <translation>بند کریں</translation>
    </message>
    <message>
        <source>Travelling until…</source>
        <extracomment>Above a date picker: the last day of the journey</extracomment>
        <translation>سفر کی آخری تاریخ…</translation>
    </message>
    <message>
        <source>%1 and %2 become one lock, and so do %3 and %4, through the end of this day.</source>
        <extracomment>%1 and %2 are combined into one lock, and so are %3 and %4 (prayer names)</extracomment>
        <translation>اس دن کے اختتام تک %1 اور %2 کا ایک لاک ہو گا، اور اسی طرح %3 اور %4 کا بھی۔</translation>
    </message>
    <message>
        <source>Turn on “Combine prayers while travelling” in Settings if your school permits it.</source>
        <extracomment>The quoted text is a check box in Settings; school: of Islamic law</extracomment>
        <translation>اگر آپ کا مسلک اجازت دیتا ہو تو ترتیبات میں “سفر میں نمازیں جمع کریں” آن کریں۔</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>شروع کریں</translation>
    </message>
    <message>
        <source>Pause Tarvanel?</source>
        <translation>‏Tarvanel روکیں؟</translation>
    </message>
    <message>
        <source>No reminders and no locks until %1 at midnight. You can resume any time from the menu.</source>
        <extracomment>%1 is a weekday and a date, as in &quot;Friday 3 October&quot;</extracomment>
        <translation>‏%1 کی آدھی رات تک نہ یاد دہانیاں ہوں گی نہ لاک۔ آپ مینو سے کسی بھی وقت دوبارہ شروع کر سکتے ہیں۔</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>روکیں</translation>
    </message>
    <message>
        <source>%1&apos;s lock is due now: lock now?</source>
        <extracomment>%1 is a prayer name; &quot;lock now&quot; is a verb</extracomment>
        <translation>‏%1 کا لاک اب ہونا ہے: ابھی لاک کریں؟</translation>
    </message>
    <message>
        <source>Resuming now turns every screen black at once. Cancel keeps the pause.</source>
        <extracomment>&quot;Cancel&quot; is the button of this question</extracomment>
        <translation>ابھی دوبارہ شروع کرنے سے ہر اسکرین فوراً سیاہ ہو جائے گی۔ “منسوخ” وقفہ برقرار رکھتا ہے۔</translation>
    </message>
    <message>
        <source>Lock Now</source>
        <extracomment>A verb: lock the screens now</extracomment>
        <translation>ابھی لاک کریں</translation>
    </message>
    <message>
        <source>Next lock: %1 at %2</source>
        <extracomment>%1 is a prayer name, %2 the time the screens lock</extracomment>
        <translation>اگلا لاک: %1، %2 پر</translation>
    </message>
    <message>
        <source>Next lock: %1 tomorrow at %2</source>
        <extracomment>%1 is the prayer name Fajr, %2 the time the screens lock tomorrow</extracomment>
        <translation>اگلا لاک: %1، کل %2 پر</translation>
    </message>
    <message>
        <source>Tarvanel lives in the tray: its menu has today&apos;s times and Settings.</source>
        <translation>‏Tarvanel ٹرے میں رہتا ہے: اس کے مینو میں آج کے اوقات اور ترتیبات ہیں۔</translation>
    </message>
    <message>
        <source>Tarvanel is running</source>
        <translation>‏Tarvanel چل رہا ہے</translation>
    </message>
    <message>
        <source>Set up</source>
        <extracomment>Tray title while the program has no settings yet</extracomment>
        <translation>سیٹ اپ</translation>
    </message>
    <message>
        <source>Paused</source>
        <extracomment>Tray title while the locks are paused</extracomment>
        <translation>رکا ہوا</translation>
    </message>
    <message>
        <source>%1 after your call</source>
        <extracomment>Tray title: %1 is a prayer name; its lock waits for the end of a call</extracomment>
        <translation>‏%1 کال کے بعد</translation>
    </message>
    <message>
        <source>%1 locks when your call ends</source>
        <extracomment>%1 is a prayer name: its lock waits for the end of a call</extracomment>
        <translation>‏%1 کا لاک آپ کی کال ختم ہونے پر ہو گا</translation>
    </message>
    <message>
        <source>Did you pray %1?</source>
        <extracomment>%1 is a prayer name</extracomment>
        <translation>کیا آپ نے %1 پڑھ لی؟</translation>
    </message>
    <message numerus="yes">
        <source>“Not yet” locks the screen again for %Ln minutes.</source>
        <extracomment>“Not yet” is the second button of this question</extracomment>
        <translation>
            <numerusform>“ابھی نہیں” اسکرین کو %Ln منٹ کے لیے پھر لاک کر دے گا۔</numerusform>
            <numerusform>“ابھی نہیں” اسکرین کو %Ln منٹ کے لیے پھر لاک کر دے گا۔</numerusform>
        </translation>
    </message>
    <message>
        <source>Yes, I Prayed</source>
        <translation>جی، پڑھ لی</translation>
    </message>
    <message>
        <source>Not Yet</source>
        <translation>ابھی نہیں</translation>
    </message>
</context>
<context>
    <name>tarvanel::GuardianSetup</name>
    <message>
        <source>QR code</source>
        <translation>‏QR کوڈ</translation>
    </message>
    <message>
        <source>Ask the person you trust to scan this with an authenticator app (Google Authenticator, Microsoft Authenticator, Authy, or Apple&apos;s Passwords app), or to type the key:</source>
        <extracomment>The apps are proper names; Apple&apos;s app is called Passwords</extracomment>
        <translation>جس شخص پر آپ کو بھروسا ہے اس سے کہیں کہ وہ اسے کسی authenticator ایپ (Google Authenticator، Microsoft Authenticator، Authy، یا Apple کی Passwords ایپ) سے اسکین کرے، یا یہ کلید لکھ لے:</translation>
    </message>
    <message>
        <source>Key</source>
        <extracomment>The secret key of the guardian&apos;s code, shown to be typed into an app</extracomment>
        <translation>کلید</translation>
    </message>
    <message>
        <source>Code from their app</source>
        <translation>ان کی ایپ کا کوڈ</translation>
    </message>
    <message>
        <source>Code</source>
        <extracomment>The six-digit code the guardian&apos;s app shows</extracomment>
        <translation>کوڈ</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>تصدیق کریں</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>منسوخ</translation>
    </message>
</context>
<context>
    <name>tarvanel::LockView</name>
    <message>
        <source>PREVIEW</source>
        <extracomment>Above the name of a lock that is only tried out from the settings; capitals if your script has them</extracomment>
        <translation>پیش نظارہ</translation>
    </message>
    <message>
        <source>IT&apos;S TIME FOR</source>
        <extracomment>Above the prayer&apos;s name on the lock screen, e.g. IT&apos;S TIME FOR / Fajr; capitals if your script has them</extracomment>
        <translation>نماز کا وقت</translation>
    </message>
    <message>
        <source>Preview</source>
        <extracomment>The name of a lock tried out from the settings, shown in place of a prayer&apos;s name</extracomment>
        <translation>پیش نظارہ</translation>
    </message>
    <message>
        <source>Test</source>
        <extracomment>The name of a lock started for a test, shown in place of a prayer&apos;s name</extracomment>
        <translation>ٹیسٹ</translation>
    </message>
</context>
<context>
    <name>tarvanel::PrayerSettingsModel</name>
    <message>
        <source>The settings file changed while this window was open. Save keeps what you see here; Cancel keeps the file&apos;s settings.</source>
        <extracomment>&quot;Save&quot; and &quot;Cancel&quot; are the window&apos;s buttons.</extracomment>
        <translation>یہ ونڈو کھلی ہونے کے دوران ترتیبات کی فائل بدل گئی۔ “محفوظ کریں” یہاں دکھائی گئی ترتیبات رکھے گا؛ “منسوخ” فائل کی ترتیبات رکھے گا۔</translation>
    </message>
    <message>
        <source>Found %1.</source>
        <extracomment>After a city search: %1 is the place found (&quot;Leeds, England, United Kingdom&quot;).</extracomment>
        <translation>‏%1 مل گیا۔</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>تلاش جاری ہے…</translation>
    </message>
    <message>
        <source>Couldn&apos;t find “%1”. Check the spelling, or enter coordinates below.</source>
        <extracomment>%1 is the place the user searched for.</extracomment>
        <translation>‏“%1” نہیں ملا۔ ہجے چیک کریں، یا نیچے کوآرڈینیٹس درج کریں۔</translation>
    </message>
    <message>
        <source>Suggested: %1, Hanafi Asr. Change it below if your mosque uses something else.</source>
        <extracomment>Follows &quot;Found &lt;place&gt;.&quot; %1 is a calculation method (&quot;Muslim World League&quot;).</extracomment>
        <translation>تجویز: %1، حنفی عصر۔ اگر آپ کی مسجد کچھ اور استعمال کرتی ہے تو نیچے بدل دیں۔</translation>
    </message>
    <message>
        <source>Suggested: %1. Change it below if your mosque uses something else.</source>
        <extracomment>Follows &quot;Found &lt;place&gt;.&quot; %1 is a calculation method (&quot;Muslim World League&quot;).</extracomment>
        <translation>تجویز: %1۔ اگر آپ کی مسجد کچھ اور استعمال کرتی ہے تو نیچے بدل دیں۔</translation>
    </message>
    <message>
        <source>Heads up: your computer is set to %1, not %2. Times follow your computer&apos;s clock.</source>
        <extracomment>%1 and %2 are time zones such as &quot;Europe/London&quot; and &quot;Asia/Karachi&quot;.</extracomment>
        <translation>توجہ: آپ کے کمپیوٹر کا ٹائم زون %1 ہے، %2 نہیں۔ اوقات آپ کے کمپیوٹر کی گھڑی کے مطابق ہیں۔</translation>
    </message>
    <message>
        <source>Asking for Calendar access…</source>
        <translation>کیلنڈر تک رسائی مانگی جا رہی ہے…</translation>
    </message>
    <message>
        <source>Calendar access is off. Tarvanel writes its events under ~/.local/share/calendars: turn this on again and choose Allow, and check that you can write to that folder.</source>
        <extracomment>&quot;Allow&quot; is the button of the question asking for calendar access.</extracomment>
        <translation>کیلنڈر تک رسائی بند ہے۔ Tarvanel اپنے ایونٹس ~/.local/share/calendars میں لکھتا ہے: اسے دوبارہ آن کریں اور “اجازت دیں” چنیں، اور دیکھ لیں کہ آپ اس فولڈر میں لکھ سکتے ہیں۔</translation>
    </message>
    <message>
        <source>Focus on for 10 seconds… check that notifications stay quiet.</source>
        <extracomment>Focus: the desktop&apos;s do-not-disturb mode, turned on while a lock lasts.</extracomment>
        <translation>فوکس 10 سیکنڈ کے لیے آن… دیکھیں کہ نوٹیفکیشنز خاموش رہیں۔</translation>
    </message>
    <message>
        <source>Done. Focus is off again.</source>
        <translation>ہو گیا۔ فوکس پھر بند ہے۔</translation>
    </message>
    <message>
        <source>“%1”</source>
        <extracomment>A shortcut&apos;s name in quotation marks; use the language&apos;s own marks.</extracomment>
        <translation>“%1”</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <extracomment>Two names in a list, each already quoted: “A” and “B”.</extracomment>
        <translation>‏%1 اور %2</translation>
    </message>
    <message>
        <source>Replace your own %1?</source>
        <extracomment>%1 is one or two shortcut names the user wrote, already quoted.</extracomment>
        <translation>آپ کے اپنے %1 بدل دیں؟</translation>
    </message>
    <message>
        <source>Tarvanel&apos;s pair for %1 takes the place of what you wrote.</source>
        <extracomment>%1 is a desktop such as &quot;GNOME&quot; or &quot;XFCE&quot;.</extracomment>
        <translation>‏%1 کے لیے Tarvanel کا جوڑا آپ کے لکھے ہوئے کی جگہ لے لے گا۔</translation>
    </message>
    <message>
        <source>Kept your own %1.</source>
        <extracomment>%1 is one or two shortcut names the user wrote, already quoted.</extracomment>
        <translation>آپ کے اپنے %1 برقرار رکھے گئے۔</translation>
    </message>
    <message>
        <source>Wrote %1 for %2.</source>
        <extracomment>%1 is the two quoted shortcut names (“Tarvanel Focus On” and “Tarvanel Focus Off”), %2 a desktop such as &quot;GNOME&quot;.</extracomment>
        <translation>‏%2 کے لیے %1 لکھ دیے گئے۔</translation>
    </message>
    <message>
        <source>Couldn&apos;t write %1. The log in ~/.tarvanel/log.txt says why.</source>
        <extracomment>%1 is the two quoted shortcut names.</extracomment>
        <translation>‏%1 نہیں لکھے جا سکے۔ وجہ ~/.tarvanel/log.txt کے لاگ میں ہے۔</translation>
    </message>
    <message>
        <source>Guardian code is on.</source>
        <extracomment>The guardian: the person whose six-digit code ends a lock early.</extracomment>
        <translation>نگران کا کوڈ آن ہے۔</translation>
    </message>
    <message>
        <source>That code doesn&apos;t match. Check both clocks are right and try the newest code.</source>
        <translation>یہ کوڈ مطابق نہیں۔ دیکھیں کہ دونوں گھڑیاں درست ہیں، اور تازہ ترین کوڈ آزمائیں۔</translation>
    </message>
</context>
<context>
    <name>tarvanel::PrayerSettingsView</name>
    <message>
        <source>Your settings file can&apos;t be used (%1), so nothing locks yet. Check the settings below and save to start again.</source>
        <extracomment>%1 what is wrong with the settings file</extracomment>
        <translation>آپ کی ترتیبات کی فائل استعمال نہیں ہو سکتی (%1)، اس لیے ابھی کچھ لاک نہیں ہو گا۔ نیچے ترتیبات دیکھیں اور دوبارہ شروع کرنے کے لیے محفوظ کریں۔</translation>
    </message>
    <message>
        <source>Welcome to Tarvanel</source>
        <translation>‏Tarvanel میں خوش آمدید</translation>
    </message>
    <message>
        <source>Get up and pray, on time</source>
        <translation>اٹھیں اور وقت پر نماز پڑھیں</translation>
    </message>
    <message>
        <source>At each prayer time Tarvanel turns every screen black for a few minutes so you step away and pray. You get reminders before each lock. Once a lock starts there&apos;s no way out until it ends. Find your city to begin.</source>
        <translation>ہر نماز کے وقت Tarvanel چند منٹ کے لیے ہر اسکرین سیاہ کر دیتا ہے تاکہ آپ کام چھوڑ کر نماز پڑھیں۔ ہر لاک سے پہلے آپ کو یاد دہانیاں ملتی ہیں۔ لاک شروع ہونے کے بعد اس کے ختم ہونے تک نکلنے کا کوئی راستہ نہیں۔ شروع کرنے کے لیے اپنا شہر تلاش کریں۔</translation>
    </message>
    <message>
        <source>Preview Lock</source>
        <translation>لاک کا پیش نظارہ</translation>
    </message>
    <message>
        <source>Black out the screen for 10 seconds</source>
        <translation>اسکرین 10 سیکنڈ کے لیے سیاہ کریں</translation>
    </message>
    <message>
        <source>Uninstall…</source>
        <translation>ان انسٹال…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>منسوخ</translation>
    </message>
    <message>
        <source>Find your city or enter coordinates first.</source>
        <translation>پہلے اپنا شہر تلاش کریں یا کوآرڈینیٹس درج کریں۔</translation>
    </message>
</context>
<context>
    <name>tarvanel::QtPlatform</name>
    <message>
        <source>There&apos;s no tray on this desktop, so Tarvanel runs without an icon: it still locks on time, and opening Tarvanel from the applications menu shows these settings.</source>
        <translation>اس ڈیسک ٹاپ پر ٹرے نہیں ہے، اس لیے Tarvanel آئیکن کے بغیر چلتا ہے: یہ پھر بھی وقت پر لاک کرتا ہے، اور ایپلیکیشنز مینو سے Tarvanel کھولنے پر یہی ترتیبات دکھائی دیتی ہیں۔</translation>
    </message>
    <message>
        <source>Welcome to Tarvanel</source>
        <extracomment>The settings window&apos;s title on the first run</extracomment>
        <translation>‏Tarvanel میں خوش آمدید</translation>
    </message>
    <message>
        <source>Tarvanel Settings</source>
        <translation>‏Tarvanel کی ترتیبات</translation>
    </message>
</context>
<context>
    <name>tarvanel::TimetableImportModel</name>
    <message>
        <source>Couldn&apos;t read any text in %1.</source>
        <extracomment>%1 is a file&apos;s name.</extracomment>
        <translation>‏%1 میں کوئی متن نہیں پڑھا جا سکا۔</translation>
    </message>
    <message>
        <source>No rows with prayer times found yet.</source>
        <translation>ابھی تک نماز کے اوقات والی کوئی قطار نہیں ملی۔</translation>
    </message>
    <message numerus="yes">
        <source>Found %Ln rows with %1 times each.</source>
        <extracomment>%Ln is the number of rows read from a timetable, %1 the number of times in each.</extracomment>
        <translation>
            <numerusform>‏%Ln قطار ملی، ہر ایک میں %1 اوقات۔</numerusform>
            <numerusform>‏%Ln قطاریں ملیں، ہر ایک میں %1 اوقات۔</numerusform>
        </translation>
    </message>
    <message>
        <source>Column %1</source>
        <extracomment>A column of the timetable being imported, counted from 1.</extracomment>
        <translation>کالم %1</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <extracomment>%1 is a file&apos;s name.</extracomment>
        <translation>‏%1 پڑھا جا رہا ہے…</translation>
    </message>
    <message>
        <source>Reading page %1 of %2…</source>
        <extracomment>While a file of several pages is read: %1 is the page, %2 the number of pages.</extracomment>
        <translation>صفحہ %1 از %2 پڑھا جا رہا ہے…</translation>
    </message>
    <message numerus="yes">
        <source>Read the first %1 of %Ln pages.</source>
        <extracomment>%1 is the number of pages read, %Ln the number of pages in the file.</extracomment>
        <translation>
            <numerusform>‏%Ln صفحے میں سے پہلے %1 پڑھے گئے۔</numerusform>
            <numerusform>‏%Ln صفحات میں سے پہلے %1 پڑھے گئے۔</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Read %Ln pages.</source>
        <extracomment>After a file of several pages was read whole.</extracomment>
        <translation>
            <numerusform>‏%Ln صفحہ پڑھا گیا۔</numerusform>
            <numerusform>‏%Ln صفحات پڑھے گئے۔</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tarvanel::TimetableImportView</name>
    <message>
        <source>1. Your masjid&apos;s timetable</source>
        <translation>1. آپ کی مسجد کا نظام الاوقات</translation>
    </message>
    <message>
        <source>Choose File…</source>
        <translation>فائل چنیں…</translation>
    </message>
    <message>
        <source>Reading</source>
        <extracomment>A busy indicator while a photo or PDF is read</extracomment>
        <translation>پڑھ رہا ہے</translation>
    </message>
    <message>
        <source>Paste it from the masjid&apos;s website or PDF, or choose a CSV, a photo or a screenshot of the printed sheet. Photos are read on your computer; nothing is uploaded.</source>
        <translation>اسے مسجد کی ویب سائٹ یا PDF سے پیسٹ کریں، یا CSV، تصویر، یا چھپی ہوئی شیٹ کا اسکرین شاٹ چنیں۔ تصاویر آپ کے کمپیوٹر پر ہی پڑھی جاتی ہیں؛ کچھ اپ لوڈ نہیں ہوتا۔</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>مہینہ</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>سال</translation>
    </message>
    <message>
        <source>2. Which column is which</source>
        <extracomment>Jamaat and iqamah: the time the congregation prays at the masjid</extracomment>
        <translation>2. کون سا کالم کس کا ہے</translation>
    </message>
    <message>
        <source>Pick the jamaat (iqamah) column for each prayer, the time you actually pray. Times without AM/PM are read as morning for Fajr, midday for Dhuhr, and afternoon or evening for the rest.</source>
        <translation>ہر نماز کے لیے جماعت (اقامت) کا کالم چنیں، یعنی وہ وقت جب آپ واقعی نماز پڑھتے ہیں۔ AM/PM کے بغیر اوقات فجر کے لیے صبح، ظہر کے لیے دوپہر، اور باقی نمازوں کے لیے سہ پہر یا شام کے سمجھے جاتے ہیں۔</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>منسوخ</translation>
    </message>
    <message>
        <source>Use This Timetable</source>
        <translation>یہ نظام الاوقات استعمال کریں</translation>
    </message>
    <message>
        <source>Timetables (*.csv *.txt *.tsv *.png *.jpg *.jpeg *.gif *.bmp *.tif *.tiff *.webp *.pdf)</source>
        <extracomment>A file type filter; keep the part in brackets as it is</extracomment>
        <translation>نظام الاوقات (*.csv *.txt *.tsv *.png *.jpg *.jpeg *.gif *.bmp *.tif *.tiff *.webp *.pdf)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <extracomment>A file type filter; keep the part in brackets as it is</extracomment>
        <translation>تمام فائلیں (*)</translation>
    </message>
    <message>
        <source>Read Timetable</source>
        <translation>نظام الاوقات پڑھیں</translation>
    </message>
    <message>
        <source>Not in the timetable</source>
        <extracomment>A prayer&apos;s column choice: the timetable has no column for this prayer</extracomment>
        <translation>نظام الاوقات میں نہیں</translation>
    </message>
    <message numerus="yes">
        <source>3. Preview (%Ln days)</source>
        <translation>
            <numerusform>3. پیش نظارہ (%Ln دن)</numerusform>
            <numerusform>3. پیش نظارہ (%Ln دن)</numerusform>
        </translation>
    </message>
    <message>
        <source>No days yet. Check the month and the columns.</source>
        <translation>ابھی کوئی دن نہیں۔ مہینہ اور کالم چیک کریں۔</translation>
    </message>
</context>
</TS>
