<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
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
مواقيت صلاة تُقفل كل الشاشات، لتترك الحاسوب وتصلّي.

الترخيص: %2

الإعدادات: %3
السجل والحالة: %4
السجل التشغيلي: %5
خدمة تسجيل الدخول: %6</translation>
    </message>
</context>
<context>
    <name>Agent</name>
    <message>
        <source>no systemd user service manager is running, and %1 cannot be written</source>
        <extracomment>%1 is a file</extracomment>
        <translation>لا يعمل مدير خدمات المستخدم في systemd، وتعذّرت الكتابة في %1</translation>
    </message>
    <message>
        <source>no systemd user service manager is running, and %1 cannot be started</source>
        <extracomment>%1 is the program file</extracomment>
        <translation>لا يعمل مدير خدمات المستخدم في systemd، وتعذّر تشغيل %1</translation>
    </message>
    <message>
        <source>no systemd user service manager is running: it starts at login through %1</source>
        <extracomment>%1 is the autostart file that starts the program at login</extracomment>
        <translation>لا يعمل مدير خدمات المستخدم في systemd: يبدأ البرنامج عند تسجيل الدخول عبر %1</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <extracomment>%1 is a file</extracomment>
        <translation>تعذّرت الكتابة في %1</translation>
    </message>
    <message>
        <source>%1 gave no answer in time</source>
        <extracomment>%1 is a command, as in &quot;systemctl --user enable --now …&quot;</extracomment>
        <translation>لم يُجب %1 في الوقت المحدد</translation>
    </message>
    <message>
        <source>%1 failed with status %2</source>
        <extracomment>%1 is a command, as in &quot;systemctl --user enable --now …&quot;; %2 its exit status</extracomment>
        <translation>فشل %1 برمز الخروج %2</translation>
    </message>
    <message>
        <source>%1 runs in the background and starts at login, so it has to be installed: copied to ~/.local/bin and added to your applications menu.</source>
        <extracomment>%1 is the program&apos;s name, Tarvanel</extracomment>
        <translation>يعمل %1 في الخلفية ويبدأ عند تسجيل الدخول، لذا يجب تثبيته: نسخه إلى ‎~/.local/bin‎ وإضافته إلى قائمة التطبيقات.</translation>
    </message>
    <message>
        <source>Install %1 in ~/.local/bin?</source>
        <extracomment>%1 is the program&apos;s name, Tarvanel</extracomment>
        <translation>تثبيت %1 في ‎~/.local/bin‎؟</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>تثبيت</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>إنهاء</translation>
    </message>
    <message>
        <source>%1 starts at login through the systemd user unit %2, and it did not start: %3.
See why with “systemctl --user status %2”, then open %1 again.</source>
        <extracomment>%1 is the program&apos;s name, Tarvanel; %2 the unit&apos;s file name; %3 why it did not start. Keep the command in quotes as it is</extracomment>
        <translation>يبدأ %1 عند تسجيل الدخول عبر وحدة المستخدم %2 في systemd، لكنه لم يبدأ: %3.
اعرف السبب بالأمر “systemctl --user status %2”، ثم افتح %1 من جديد.</translation>
    </message>
    <message>
        <source>%1 couldn&apos;t start in the background</source>
        <extracomment>%1 is the program&apos;s name, Tarvanel</extracomment>
        <translation>تعذّر تشغيل %1 في الخلفية</translation>
    </message>
    <message>
        <source>Open Service Folder</source>
        <translation>فتح مجلد الخدمة</translation>
    </message>
    <message>
        <source>Couldn&apos;t copy %1 to %2</source>
        <extracomment>%1 is the program&apos;s name, Tarvanel; %2 a folder</extracomment>
        <translation>تعذّر نسخ %1 إلى %2</translation>
    </message>
    <message>
        <source>Copy %1 into ~/.local/bin yourself, then open it from there.</source>
        <extracomment>%1 is the program&apos;s name, Tarvanel</extracomment>
        <translation>يُرجى نسخ %1 يدويًا إلى ‎~/.local/bin‎، ثم فتحه من هناك.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>حسنًا</translation>
    </message>
    <message>
        <source>%1 was installed as a package</source>
        <extracomment>%1 is the program&apos;s name, Tarvanel</extracomment>
        <translation>‏%1 مثبّت كحزمة</translation>
    </message>
    <message>
        <source>%1 no longer runs or starts at login. To remove it from this computer too, run:

sudo apt remove tarvanel</source>
        <extracomment>%1 is the program&apos;s name, Tarvanel. Keep the command as it is</extracomment>
        <translation>لم يعد %1 يعمل ولا يبدأ عند تسجيل الدخول. لإزالته من هذا الحاسوب أيضًا، شغّل:

sudo apt remove tarvanel</translation>
    </message>
</context>
<context>
    <name>Banner</name>
    <message numerus="yes">
        <source>%1 in %Ln minutes — begin wrapping up.</source>
        <extracomment>%1 is a prayer name; the screens lock when the minutes run out</extracomment>
        <translation>
            <numerusform>‏%1 بعد %Ln دقيقة — حان وقت إنهاء ما بين يديك.</numerusform>
            <numerusform>‏%1 بعد دقيقة واحدة — حان وقت إنهاء ما بين يديك.</numerusform>
            <numerusform>‏%1 بعد دقيقتين — حان وقت إنهاء ما بين يديك.</numerusform>
            <numerusform>‏%1 بعد %Ln دقائق — حان وقت إنهاء ما بين يديك.</numerusform>
            <numerusform>‏%1 بعد %Ln دقيقة — حان وقت إنهاء ما بين يديك.</numerusform>
            <numerusform>‏%1 بعد %Ln دقيقة — حان وقت إنهاء ما بين يديك.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln minutes. Start finishing up.</source>
        <extracomment>%1 is a prayer name; the screens lock when the minutes run out</extracomment>
        <translation>
            <numerusform>‏%1 بعد %Ln دقيقة. آن أوان إنهاء العمل.</numerusform>
            <numerusform>‏%1 بعد دقيقة واحدة. آن أوان إنهاء العمل.</numerusform>
            <numerusform>‏%1 بعد دقيقتين. آن أوان إنهاء العمل.</numerusform>
            <numerusform>‏%1 بعد %Ln دقائق. آن أوان إنهاء العمل.</numerusform>
            <numerusform>‏%1 بعد %Ln دقيقة. آن أوان إنهاء العمل.</numerusform>
            <numerusform>‏%1 بعد %Ln دقيقة. آن أوان إنهاء العمل.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln minutes. Save your work now.</source>
        <extracomment>%1 is a prayer name; the screens lock when the minutes run out</extracomment>
        <translation>
            <numerusform>‏%1 بعد %Ln دقيقة. يُرجى حفظ عملك الآن.</numerusform>
            <numerusform>‏%1 بعد دقيقة واحدة. يُرجى حفظ عملك الآن.</numerusform>
            <numerusform>‏%1 بعد دقيقتين. يُرجى حفظ عملك الآن.</numerusform>
            <numerusform>‏%1 بعد %Ln دقائق. يُرجى حفظ عملك الآن.</numerusform>
            <numerusform>‏%1 بعد %Ln دقيقة. يُرجى حفظ عملك الآن.</numerusform>
            <numerusform>‏%1 بعد %Ln دقيقة. يُرجى حفظ عملك الآن.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln min — the screen is about to lock. Go make wudu.</source>
        <extracomment>%1 is a prayer name. Wudu: the ablution before prayer</extracomment>
        <translation>
            <numerusform>‏%1 بعد %Ln د — الشاشة على وشك القفل. حان وقت الوضوء.</numerusform>
            <numerusform>‏%1 بعد دقيقة — الشاشة على وشك القفل. حان وقت الوضوء.</numerusform>
            <numerusform>‏%1 بعد دقيقتين — الشاشة على وشك القفل. حان وقت الوضوء.</numerusform>
            <numerusform>‏%1 بعد %Ln د — الشاشة على وشك القفل. حان وقت الوضوء.</numerusform>
            <numerusform>‏%1 بعد %Ln د — الشاشة على وشك القفل. حان وقت الوضوء.</numerusform>
            <numerusform>‏%1 بعد %Ln د — الشاشة على وشك القفل. حان وقت الوضوء.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 ends at sunrise %2 — only %Ln min left!</source>
        <extracomment>%1 is the prayer name Fajr, %2 the time of sunrise</extracomment>
        <translation>
            <numerusform>ينتهي %1 عند الشروق %2 — بقيت %Ln دقيقة فقط!</numerusform>
            <numerusform>ينتهي %1 عند الشروق %2 — بقيت دقيقة واحدة فقط!</numerusform>
            <numerusform>ينتهي %1 عند الشروق %2 — بقيت دقيقتان فقط!</numerusform>
            <numerusform>ينتهي %1 عند الشروق %2 — بقيت %Ln دقائق فقط!</numerusform>
            <numerusform>ينتهي %1 عند الشروق %2 — بقيت %Ln دقيقة فقط!</numerusform>
            <numerusform>ينتهي %1 عند الشروق %2 — بقيت %Ln دقيقة فقط!</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 tonight — don&apos;t miss it.</source>
        <extracomment>%1 is the Ramadan night prayer, Tarawih</extracomment>
        <translation>‏%1 الليلة — لا تفوّتها.</translation>
    </message>
</context>
<context>
    <name>CalcMethods</name>
    <message>
        <source>Muslim World League</source>
        <extracomment>A calculation method: the organisation&apos;s own name.</extracomment>
        <translation>رابطة العالم الإسلامي</translation>
    </message>
    <message>
        <source>ISNA (North America)</source>
        <extracomment>A calculation method: ISNA, the Islamic Society of North America.</extracomment>
        <translation>‏ISNA (أمريكا الشمالية)</translation>
    </message>
    <message>
        <source>Egyptian General Authority</source>
        <translation>الهيئة المصرية العامة للمساحة</translation>
    </message>
    <message>
        <source>Umm al-Qura (Makkah)</source>
        <translation>أم القرى (مكة المكرمة)</translation>
    </message>
    <message>
        <source>Karachi (Univ. of Islamic Sciences)</source>
        <extracomment>A calculation method: the University of Islamic Sciences, Karachi.</extracomment>
        <translation>كراتشي (جامعة العلوم الإسلامية)</translation>
    </message>
    <message>
        <source>Gulf Region</source>
        <extracomment>A calculation method used in the Gulf states.</extracomment>
        <translation>منطقة الخليج</translation>
    </message>
    <message>
        <source>Kuwait</source>
        <translation>الكويت</translation>
    </message>
    <message>
        <source>Qatar</source>
        <translation>قطر</translation>
    </message>
    <message>
        <source>Singapore, Malaysia, Indonesia</source>
        <translation>سنغافورة، ماليزيا، إندونيسيا</translation>
    </message>
    <message>
        <source>UOIF (France)</source>
        <extracomment>A calculation method: UOIF, the Union of Islamic Organisations of France.</extracomment>
        <translation>‏UOIF (فرنسا)</translation>
    </message>
    <message>
        <source>Spiritual Administration of Russia</source>
        <translation>الإدارة الدينية لمسلمي روسيا</translation>
    </message>
    <message>
        <source>Shia Ithna-Ashari (Jafari)</source>
        <extracomment>A calculation method: the Shia Ithna-Ashari (Jafari) school.</extracomment>
        <translation>الشيعة الإثنا عشرية (الجعفري)</translation>
    </message>
    <message>
        <source>Institute of Geophysics, Tehran</source>
        <translation>معهد الجيوفيزياء، طهران</translation>
    </message>
    <message>
        <source>Hanafi, %1</source>
        <extracomment>The Asr school and the calculation method: &quot;Hanafi, Muslim World League&quot;.</extracomment>
        <translation>العصر الحنفي، %1</translation>
    </message>
    <message>
        <source>Standard Asr, %1</source>
        <extracomment>&quot;Standard Asr&quot; (the Shafi&apos;i, Maliki and Hanbali Asr) and the calculation method: &quot;Standard Asr, Muslim World League&quot;.</extracomment>
        <translation>عصر الجمهور، %1</translation>
    </message>
    <message>
        <source>Hanafi, custom angles</source>
        <extracomment>The Hanafi Asr with angles the user set, not a known method.</extracomment>
        <translation>العصر الحنفي، زوايا مخصّصة</translation>
    </message>
    <message>
        <source>Standard Asr, custom angles</source>
        <extracomment>The standard Asr with angles the user set, not a known method.</extracomment>
        <translation>عصر الجمهور، زوايا مخصّصة</translation>
    </message>
</context>
<context>
    <name>Calendar</name>
    <message>
        <source>Allow Tarvanel to add busy events to your calendars?</source>
        <translation>السماح لـ Tarvanel بإضافة أحداث «مشغول» إلى تقاويمك؟</translation>
    </message>
    <message>
        <source>Tarvanel keeps its events in the calendar folders under %1, one file per event. khal shows them, and vdirsyncer syncs them with your online calendar so colleagues see you&apos;re busy.</source>
        <extracomment>%1 is a folder. khal and vdirsyncer are the names of two programs</extracomment>
        <translation>يحفظ Tarvanel أحداثه في مجلدات التقويم داخل %1، كل حدث في ملف. يعرضها برنامج khal، ويزامنها vdirsyncer مع تقويمك على الإنترنت ليرى زملاؤك أنك مشغول.</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>سماح</translation>
    </message>
    <message>
        <source>Don&apos;t Allow</source>
        <translation>عدم السماح</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>SECONDS</source>
        <extracomment>Stands for the number of seconds given to --test-lock</extracomment>
        <translation>الثواني</translation>
    </message>
    <message>
        <source>print today&apos;s prayer and lock times and exit</source>
        <translation>طباعة مواقيت الصلاة والقفل لليوم ثم الخروج</translation>
    </message>
    <message>
        <source>with --times: the day to print</source>
        <extracomment>yyyy-MM-dd is the date format typed after --date: keep it as it is</extracomment>
        <translation>مع ‎--times‎: اليوم المراد طباعته</translation>
    </message>
    <message>
        <source>install and start the per-user login service</source>
        <translation>تثبيت خدمة تسجيل الدخول للمستخدم وتشغيلها</translation>
    </message>
    <message>
        <source>show one lock named &quot;Test&quot; for %1, then exit</source>
        <extracomment>%1 stands for the number of seconds; &quot;Test&quot; is the name the lock shows</extracomment>
        <translation>عرض قفل واحد باسم «تجربة» لمدة %1، ثم الخروج</translation>
    </message>
    <message>
        <source>show one %1 reminder, exit 17 seconds later</source>
        <extracomment>%1 is the prayer name Asr</extracomment>
        <translation>عرض تذكير واحد بصلاة %1، ثم الخروج بعد 17 ثانية</translation>
    </message>
    <message>
        <source>show this text</source>
        <translation>عرض هذا النص</translation>
    </message>
    <message>
        <source>show the version</source>
        <translation>عرض الإصدار</translation>
    </message>
    <message>
        <source>Usage: tarvanel [option] [timetable file]</source>
        <extracomment>&quot;tarvanel&quot; is the command, typed as it is</extracomment>
        <translation>الاستخدام: tarvanel [خيار] [ملف جدول المواقيت]</translation>
    </message>
    <message>
        <source>Without options Tarvanel starts in the tray and locks the screens at prayer times.</source>
        <translation>دون خيارات يبدأ Tarvanel في لوحة النظام ويُقفل الشاشات في مواقيت الصلاة.</translation>
    </message>
    <message>
        <source>A timetable file (CSV, text, image or PDF) opens the timetable import window.</source>
        <translation>ملف جدول المواقيت (CSV أو نص أو صورة أو PDF) يفتح نافذة استيراد الجدول.</translation>
    </message>
    <message>
        <source>Settings: %1. Time zone: the TZ environment variable or the system&apos;s.</source>
        <extracomment>%1 is the settings file; TZ is the name of an environment variable</extracomment>
        <translation>الإعدادات: %1. المنطقة الزمنية: متغير البيئة TZ أو منطقة النظام.</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <extracomment>%1 is what the user typed</extracomment>
        <translation>خيار غير معروف %1</translation>
    </message>
    <message>
        <source>Tarvanel running — look for 🕌 in the tray</source>
        <translation>‏Tarvanel يعمل — ابحث عن 🕌 في لوحة النظام</translation>
    </message>
    <message>
        <source>Tarvanel&apos;s login service did not start</source>
        <translation>لم تبدأ خدمة تسجيل الدخول الخاصة بـ Tarvanel</translation>
    </message>
</context>
<context>
    <name>Config</name>
    <message>
        <source>a boolean</source>
        <extracomment>The type of a value in the settings file (config.json).</extracomment>
        <translation>قيمة منطقية</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>رقم</translation>
    </message>
    <message>
        <source>text</source>
        <translation>نص</translation>
    </message>
    <message>
        <source>an array</source>
        <translation>مصفوفة</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>كائن</translation>
    </message>
    <message>
        <source>null</source>
        <extracomment>A JSON value that is null; &quot;null&quot; is the word written in the file.</extracomment>
        <translation>null</translation>
    </message>
    <message>
        <source>an array of numbers</source>
        <translation>مصفوفة أرقام</translation>
    </message>
    <message>
        <source>an array with %1 at position %2</source>
        <extracomment>%1 is a value&apos;s type (&quot;text&quot;), %2 its position in the list.</extracomment>
        <translation>مصفوفة فيها %1 في الموضع %2</translation>
    </message>
    <message>
        <source>an object of texts</source>
        <translation>كائن نصوص</translation>
    </message>
    <message>
        <source>an object with %1 at &quot;%2&quot;</source>
        <extracomment>%1 is a value&apos;s type (&quot;a number&quot;), %2 the name it is stored under.</extracomment>
        <translation>كائن فيه %1 عند &quot;%2&quot;</translation>
    </message>
    <message>
        <source>a number from %1 to %2</source>
        <extracomment>%1 and %2 are the smallest and largest values a setting may have.</extracomment>
        <translation>رقم من %1 إلى %2</translation>
    </message>
    <message>
        <source>%1: expected %2, found %3</source>
        <extracomment>An error in the settings file: %1 is the setting&apos;s name as written in the file (keep it first if you can), %2 what it should be, %3 what it is.</extracomment>
        <translation>‏%1: المتوقع %2، والموجود %3</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <extracomment>%1 is a line number of the settings file, %2 what is wrong there.</extracomment>
        <translation>السطر %1: %2</translation>
    </message>
    <message>
        <source>the top level is not an object</source>
        <extracomment>The settings file holds a value that is not a JSON object ({ … }).</extracomment>
        <translation>المستوى الأعلى ليس كائنًا</translation>
    </message>
</context>
<context>
    <name>Dialogs</name>
    <message>
        <source>OK</source>
        <translation>حسنًا</translation>
    </message>
    <message>
        <source>Export History</source>
        <translation>تصدير السجل</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv)</source>
        <extracomment>A file type filter; keep the part in brackets as it is</extracomment>
        <translation>قيم مفصولة بفواصل (*.csv)</translation>
    </message>
</context>
<context>
    <name>Hijri</name>
    <message>
        <source>%1 AH</source>
        <extracomment>A Hijri date: %1 is the day, month and year (&quot;14 Ramadan 1446&quot;); AH is the era.</extracomment>
        <translation>‏%1 هـ</translation>
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
            <numerusform>هذا الأسبوع: %1/%2 صلاة عند الحاسوب • المواظبة %Ln يوم</numerusform>
            <numerusform>هذا الأسبوع: %1/%2 صلاة عند الحاسوب • المواظبة يوم واحد</numerusform>
            <numerusform>هذا الأسبوع: %1/%2 صلاة عند الحاسوب • المواظبة يومان</numerusform>
            <numerusform>هذا الأسبوع: %1/%2 صلاة عند الحاسوب • المواظبة %Ln أيام</numerusform>
            <numerusform>هذا الأسبوع: %1/%2 صلاة عند الحاسوب • المواظبة %Ln يومًا</numerusform>
            <numerusform>هذا الأسبوع: %1/%2 صلاة عند الحاسوب • المواظبة %Ln يوم</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImportWindow</name>
    <message>
        <source>The reader stopped unexpectedly while reading %1. Nothing was changed: try another photo or PDF, or paste the text.</source>
        <extracomment>%1 the name of the photo or PDF being read</extracomment>
        <translation>توقّف القارئ فجأة أثناء قراءة %1. لم يتغيّر شيء: جرّب صورة أو ملف PDF آخر، أو الصق النص.</translation>
    </message>
    <message>
        <source>Photos and PDFs can&apos;t be read: the reader is missing (%1). Paste the text instead, or reinstall Tarvanel.</source>
        <extracomment>%1 the path of the program that reads photos and PDFs</extracomment>
        <translation>تتعذّر قراءة الصور وملفات PDF: القارئ غير موجود (%1). الصق النص بدلًا من ذلك، أو أعد تثبيت Tarvanel.</translation>
    </message>
    <message>
        <source>Faj</source>
        <extracomment>Fajr shortened to fit a column of the timetable&apos;s preview</extracomment>
        <translation>فجر</translation>
    </message>
    <message>
        <source>Dhu</source>
        <extracomment>Dhuhr shortened to fit a column of the timetable&apos;s preview</extracomment>
        <translation>ظهر</translation>
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
        <translation>جمعة</translation>
    </message>
    <message>
        <source>Import Masjid Timetable</source>
        <translation>استيراد جدول مواقيت المسجد</translation>
    </message>
    <message numerus="yes">
        <source>%Ln cells were hard to read and are marked in yellow: check them against the sheet.</source>
        <extracomment>Cells of the timetable&apos;s text that the reader was unsure of</extracomment>
        <translation>
            <numerusform>‏%Ln خلية صعبة القراءة ومعلّمة بالأصفر: راجعها مع الورقة.</numerusform>
            <numerusform>خلية واحدة صعبة القراءة ومعلّمة بالأصفر: راجعها مع الورقة.</numerusform>
            <numerusform>خليتان صعبتا القراءة ومعلّمتان بالأصفر: راجعهما مع الورقة.</numerusform>
            <numerusform>‏%Ln خلايا صعبة القراءة ومعلّمة بالأصفر: راجعها مع الورقة.</numerusform>
            <numerusform>‏%Ln خلية صعبة القراءة ومعلّمة بالأصفر: راجعها مع الورقة.</numerusform>
            <numerusform>‏%Ln خلية صعبة القراءة ومعلّمة بالأصفر: راجعها مع الورقة.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Language</name>
    <message>
        <source>System</source>
        <translation>النظام</translation>
    </message>
</context>
<context>
    <name>LockScreen</name>
    <message>
        <source>Screen unlocks in %1</source>
        <extracomment>%1 is the time left in minutes and seconds, as in &quot;4:59&quot;</extracomment>
        <translation>تُفتح الشاشة بعد %1</translation>
    </message>
    <message>
        <source>Emergency? Type your guardian&apos;s 6-digit code</source>
        <extracomment>The guardian: the person who keeps the code that ends a lock early</extracomment>
        <translation>حالة طارئة؟ اكتب رمز الوصيّ المكوّن من 6 أرقام</translation>
    </message>
    <message>
        <source>That code didn&apos;t work</source>
        <translation>هذا الرمز غير صحيح</translation>
    </message>
    <message numerus="yes">
        <source>Too many tries. Try again in %Ln minutes</source>
        <translation>
            <numerusform>محاولات كثيرة. المحاولة التالية بعد %Ln دقيقة</numerusform>
            <numerusform>محاولات كثيرة. المحاولة التالية بعد دقيقة</numerusform>
            <numerusform>محاولات كثيرة. المحاولة التالية بعد دقيقتين</numerusform>
            <numerusform>محاولات كثيرة. المحاولة التالية بعد %Ln دقائق</numerusform>
            <numerusform>محاولات كثيرة. المحاولة التالية بعد %Ln دقيقة</numerusform>
            <numerusform>محاولات كثيرة. المحاولة التالية بعد %Ln دقيقة</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LockWeakness</name>
    <message>
        <source>on this desktop a lock can be left by switching windows</source>
        <extracomment>Shown on a line of its own with its first letter made a capital and &quot;%1.&quot; around it</extracomment>
        <translation>في سطح المكتب هذا يمكن الخروج من القفل بالتبديل بين النوافذ</translation>
    </message>
    <message>
        <source>on this desktop the compositor&apos;s own shortcuts may still leave a lock</source>
        <extracomment>Shown on a line of its own with its first letter made a capital and &quot;%1.&quot; around it</extracomment>
        <translation>في سطح المكتب هذا قد تُتيح اختصارات المركّب نفسه الخروج من القفل</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>About Tarvanel</source>
        <translation>عن Tarvanel</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>الإعدادات…</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>إغلاق النافذة</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <extracomment>The Edit menu; the &amp; marks its Alt key letter</extracomment>
        <translation>&amp;تحرير</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>تراجع</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>إعادة</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>قص</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>نسخ</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>لصق</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>تحديد الكل</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>No Longer Excused</source>
        <extracomment>Excused: exempt from prayer for a while (menstruation, illness)</extracomment>
        <translation>انتهى العذر</translation>
    </message>
    <message>
        <source>✓ prayed   q qada   – excused   · not kept</source>
        <extracomment>Legend of the seven-day grid. Keep the marks ✓ q – · as they are: the grid shows them</extracomment>
        <translation>✓ صُلّيت   ق قضاء   – عذر   · لم تُؤدَّ</translation>
    </message>
    <message>
        <source>Tarvanel isn&apos;t set up yet</source>
        <translation>لم يُضبط Tarvanel بعد</translation>
    </message>
    <message>
        <source>Set Up Tarvanel…</source>
        <translation>ضبط Tarvanel…</translation>
    </message>
    <message>
        <source>Ramadan</source>
        <translation>رمضان</translation>
    </message>
    <message>
        <source>Locks paused until %1</source>
        <extracomment>%1 is a weekday and a time, as in &quot;Friday 3:15 PM&quot;</extracomment>
        <translation>القفل متوقف مؤقتًا حتى %1</translation>
    </message>
    <message>
        <source>Excused · reminders and locks are off</source>
        <translation>عذر · التذكيرات والقفل متوقفة</translation>
    </message>
    <message>
        <source>Travelling until %1</source>
        <extracomment>%1 is the last day of the journey, as in &quot;Friday 3 Oct&quot;</extracomment>
        <translation>في سفر حتى %1</translation>
    </message>
    <message>
        <source>Travelling until %1 · combining prayers</source>
        <extracomment>%1 is the last day of the journey, as in &quot;Friday 3 Oct&quot;</extracomment>
        <translation>في سفر حتى %1 · جمع الصلوات</translation>
    </message>
    <message>
        <source>%1 locks when your call ends</source>
        <extracomment>%1 is a prayer name: its lock waits for the end of a call</extracomment>
        <translation>يبدأ قفل %1 عند انتهاء مكالمتك</translation>
    </message>
    <message>
        <source>%1 (with %2)</source>
        <extracomment>A prayer combined with an earlier one while travelling: &quot;Asr (with Dhuhr)&quot;</extracomment>
        <translation>‏%1 (مع %2)</translation>
    </message>
    <message>
        <source>(waqt %1)</source>
        <extracomment>After a lock time that differs from the computed time: %1 is the computed (waqt) time</extracomment>
        <translation>(دخول الوقت %1)</translation>
    </message>
    <message>
        <source>◀ next</source>
        <extracomment>Marks the row of the next prayer; the arrow points back at its time</extracomment>
        <translation>▶ التالية</translation>
    </message>
    <message>
        <source>%1 ends %2</source>
        <extracomment>%1 is Suhoor, the meal before the fast; %2 the time it ends</extracomment>
        <translation>ينتهي %1 عند %2</translation>
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
            <numerusform>المواظبة: %Ln يوم</numerusform>
            <numerusform>المواظبة: يوم واحد</numerusform>
            <numerusform>المواظبة: يومان</numerusform>
            <numerusform>المواظبة: %Ln أيام</numerusform>
            <numerusform>المواظبة: %Ln يومًا</numerusform>
            <numerusform>المواظبة: %Ln يوم</numerusform>
        </translation>
    </message>
    <message>
        <source>Mark as Prayed</source>
        <translation>تسجيل صلاة مؤدّاة</translation>
    </message>
    <message>
        <source>%1: Prayed Late (Qada)</source>
        <extracomment>%1 is a prayer name; qada: a prayer made up after its time</extracomment>
        <translation>‏%1: صُلّيت قضاءً</translation>
    </message>
    <message>
        <source>%1: Prayed Elsewhere</source>
        <extracomment>%1 is a prayer name, prayed at the mosque or anywhere away from the screen</extracomment>
        <translation>‏%1: صُلّيت في مكان آخر</translation>
    </message>
    <message>
        <source>Nothing to mark yet</source>
        <translation>لا شيء لتسجيله بعد</translation>
    </message>
    <message>
        <source>I&apos;m Excused…</source>
        <extracomment>Excused: exempt from prayer for a while (menstruation, illness)</extracomment>
        <translation>لديّ عذر…</translation>
    </message>
    <message>
        <source>Stop Travelling</source>
        <translation>إنهاء السفر</translation>
    </message>
    <message>
        <source>I&apos;m Travelling…</source>
        <translation>أنا في سفر…</translation>
    </message>
    <message>
        <source>Resume Locks</source>
        <translation>استئناف القفل</translation>
    </message>
    <message>
        <source>Pause Locks</source>
        <extracomment>&quot;Locks&quot; is a noun: the screen locks at prayer times</extracomment>
        <translation>إيقاف القفل مؤقتًا</translation>
    </message>
    <message>
        <source>For the Rest of Today</source>
        <translation>لبقية اليوم</translation>
    </message>
    <message>
        <source>For 3 Days</source>
        <translation>لمدة 3 أيام</translation>
    </message>
    <message>
        <source>For a Week</source>
        <translation>لمدة أسبوع</translation>
    </message>
    <message>
        <source>Preview Lock (10 s)</source>
        <extracomment>Shows the lock screen for ten seconds; &quot;Lock&quot; is a noun</extracomment>
        <translation>معاينة القفل (10 ث)</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>الإعدادات…</translation>
    </message>
</context>
<context>
    <name>Prayer</name>
    <message>
        <source>Fajr</source>
        <comment>the dawn prayer</comment>
        <translation>الفجر</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <comment>the time of sunrise</comment>
        <translation>الشروق</translation>
    </message>
    <message>
        <source>Dhuhr</source>
        <comment>the noon prayer</comment>
        <translation>الظهر</translation>
    </message>
    <message>
        <source>Jumu&apos;ah</source>
        <comment>the Friday congregational prayer</comment>
        <translation>الجمعة</translation>
    </message>
    <message>
        <source>Asr</source>
        <comment>the afternoon prayer</comment>
        <translation>العصر</translation>
    </message>
    <message>
        <source>Maghrib</source>
        <comment>the sunset prayer</comment>
        <translation>المغرب</translation>
    </message>
    <message>
        <source>Isha</source>
        <comment>the night prayer</comment>
        <translation>العشاء</translation>
    </message>
    <message>
        <source>Tarawih</source>
        <comment>the Ramadan night prayer</comment>
        <translation>التراويح</translation>
    </message>
    <message>
        <source>Iftar</source>
        <comment>the meal that breaks the Ramadan fast</comment>
        <translation>الإفطار</translation>
    </message>
    <message>
        <source>Suhoor</source>
        <comment>the meal before the Ramadan fast</comment>
        <translation>السحور</translation>
    </message>
    <message>
        <source>%1 &amp; %2</source>
        <extracomment>Two prayers prayed together while travelling, e.g. &quot;Dhuhr &amp; Asr&quot;</extracomment>
        <translation>‏%1 و%2</translation>
    </message>
</context>
<context>
    <name>PrayerCalendar</name>
    <message>
        <source>Prayer times</source>
        <translation>مواقيت الصلاة</translation>
    </message>
    <message>
        <source>%1 (prayer)</source>
        <extracomment>A calendar event&apos;s title: %1 is a prayer&apos;s name (&quot;Fajr (prayer)&quot;).</extracomment>
        <translation>‏%1 (صلاة)</translation>
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
        <translation>‏%1 و%2</translation>
    </message>
    <message>
        <source>line %1</source>
        <extracomment>A row of the pasted or read timetable text, counted from 1.</extracomment>
        <translation>السطر %1</translation>
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
            <numerusform>‏%1 ينقصها وقت في عمود مختار</numerusform>
            <numerusform>‏%1 ينقصه وقت في عمود مختار</numerusform>
            <numerusform>‏%1 ينقصهما وقت في عمود مختار</numerusform>
            <numerusform>‏%1 ينقصها وقت في عمود مختار</numerusform>
            <numerusform>‏%1 ينقصها وقت في عمود مختار</numerusform>
            <numerusform>‏%1 ينقصها وقت في عمود مختار</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 have no day number or date</source>
        <extracomment>%1 names the rows (&quot;line 7 and line 9&quot;); %n counts them.</extracomment>
        <translation>
            <numerusform>‏%1 بلا رقم يوم أو تاريخ</numerusform>
            <numerusform>‏%1 بلا رقم يوم أو تاريخ</numerusform>
            <numerusform>‏%1 بلا رقم يوم أو تاريخ</numerusform>
            <numerusform>‏%1 بلا رقم يوم أو تاريخ</numerusform>
            <numerusform>‏%1 بلا رقم يوم أو تاريخ</numerusform>
            <numerusform>‏%1 بلا رقم يوم أو تاريخ</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>days %1 are not in %2</source>
        <extracomment>%1 is one or more day numbers (&quot;30 and 31&quot;), %2 a month (&quot;February&quot;); %n counts the days.</extracomment>
        <translation>
            <numerusform>الأيام %1 ليست في %2</numerusform>
            <numerusform>اليوم %1 ليس في %2</numerusform>
            <numerusform>اليومان %1 ليسا في %2</numerusform>
            <numerusform>الأيام %1 ليست في %2</numerusform>
            <numerusform>الأيام %1 ليست في %2</numerusform>
            <numerusform>الأيام %1 ليست في %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 appear twice (the later rows are used)</source>
        <extracomment>%1 names the rows (&quot;4 and 5 March&quot;); %n counts them.</extracomment>
        <translation>
            <numerusform>‏%1 مكرّرة (تُعتمد الصفوف اللاحقة)</numerusform>
            <numerusform>‏%1 مكرّر (يُعتمد الصف اللاحق)</numerusform>
            <numerusform>‏%1 مكرّران (يُعتمد الصف اللاحق)</numerusform>
            <numerusform>‏%1 مكرّرة (تُعتمد الصفوف اللاحقة)</numerusform>
            <numerusform>‏%1 مكرّرة (تُعتمد الصفوف اللاحقة)</numerusform>
            <numerusform>‏%1 مكرّرة (تُعتمد الصفوف اللاحقة)</numerusform>
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
            <numerusform>‏%Ln صف لا يمكن استخدامها: %1.</numerusform>
            <numerusform>صف واحد لا يمكن استخدامه: %1.</numerusform>
            <numerusform>صفان لا يمكن استخدامهما: %1.</numerusform>
            <numerusform>‏%Ln صفوف لا يمكن استخدامها: %1.</numerusform>
            <numerusform>‏%Ln صفًا لا يمكن استخدامها: %1.</numerusform>
            <numerusform>‏%Ln صف لا يمكن استخدامها: %1.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Language</source>
        <translation>اللغة</translation>
    </message>
    <message>
        <source>The menu and every window opened from now on use this language. System follows your desktop&apos;s.</source>
        <translation>تستخدم القائمة وكل نافذة تُفتح من الآن هذه اللغة. «النظام» يتبع لغة سطح المكتب.</translation>
    </message>
    <message>
        <source>The GNOME Shell extension is on: a lock covers every screen.</source>
        <translation>امتداد GNOME Shell مفعّل: القفل يغطي كل الشاشات.</translation>
    </message>
    <message>
        <source>The GNOME Shell extension is off, so GNOME&apos;s shortcuts still work during a lock.</source>
        <translation>امتداد GNOME Shell غير مفعّل، لذا تظل اختصارات GNOME تعمل أثناء القفل.</translation>
    </message>
    <message>
        <source>Enable the GNOME Shell extension</source>
        <translation>تفعيل امتداد GNOME Shell</translation>
    </message>
    <message>
        <source>The GNOME Shell extension is on.</source>
        <translation>امتداد GNOME Shell مفعّل.</translation>
    </message>
    <message>
        <source>Log out and back in to load it.</source>
        <translation>سجّل الخروج ثم الدخول لتحميله.</translation>
    </message>
    <message>
        <source>Adhan</source>
        <extracomment>The call to prayer</extracomment>
        <translation>الأذان</translation>
    </message>
    <message>
        <source>Pick any MP3, M4A, AIFF or WAV file.</source>
        <translation>اختر أي ملف MP3 أو M4A أو AIFF أو WAV.</translation>
    </message>
    <message>
        <source>Play the adhan when a lock starts</source>
        <translation>تشغيل الأذان عند بدء القفل</translation>
    </message>
    <message>
        <source>Play</source>
        <extracomment>A button: play the chosen adhan</extracomment>
        <translation>تشغيل</translation>
    </message>
    <message>
        <source>Choose Sound…</source>
        <translation>اختيار صوت…</translation>
    </message>
    <message>
        <source>Choose Sound</source>
        <translation>اختيار صوت</translation>
    </message>
    <message>
        <source>Sounds (*.mp3 *.m4a *.aif *.aiff *.wav)</source>
        <extracomment>A file type filter; keep the part in brackets as it is</extracomment>
        <translation>الأصوات (*.mp3 *.m4a *.aif *.aiff *.wav)</translation>
    </message>
    <message>
        <source>Use This Adhan</source>
        <translation>استخدام هذا الأذان</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>A button: stop using the chosen adhan
----------
A button: remove the guardian&apos;s code</extracomment>
        <translation>إزالة</translation>
    </message>
    <message>
        <source>None (a chime plays)</source>
        <translation>لا شيء (نغمة تنبيه)</translation>
    </message>
    <message>
        <source>Stop</source>
        <extracomment>A button: stop the adhan that plays</extracomment>
        <translation>إيقاف</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>الصوت</translation>
    </message>
    <message>
        <source>Calculation</source>
        <translation>الحساب</translation>
    </message>
    <message>
        <source>Custom angles</source>
        <extracomment>The calculation method of one&apos;s own: the sun&apos;s angles below the horizon for Fajr and Isha</extracomment>
        <translation>زوايا مخصّصة</translation>
    </message>
    <message>
        <source>Method</source>
        <extracomment>The calculation method of prayer times</extracomment>
        <translation>الطريقة</translation>
    </message>
    <message>
        <source>Fajr angle</source>
        <extracomment>The sun&apos;s angle below the horizon at which Fajr starts</extracomment>
        <translation>زاوية الفجر</translation>
    </message>
    <message>
        <source>Isha angle</source>
        <extracomment>The sun&apos;s angle below the horizon at which Isha starts</extracomment>
        <translation>زاوية العشاء</translation>
    </message>
    <message>
        <source>Standard (Shafi&apos;i, Maliki, Hanbali)</source>
        <extracomment>The way of reckoning the Asr time shared by the Shafi&apos;i, Maliki and Hanbali schools</extracomment>
        <translation>الجمهور (الشافعي، المالكي، الحنبلي)</translation>
    </message>
    <message>
        <source>Hanafi</source>
        <extracomment>The Hanafi school&apos;s later Asr time</extracomment>
        <translation>الحنفي</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>التقويم</translation>
    </message>
    <message>
        <source>Adds each lock as a Busy event for the next 7 days, so colleagues see you&apos;re busy and don&apos;t book meetings over salah. Pick your work calendar. Turning this off removes the events.
On Linux the calendars are the folders under ~/.local/share/calendars (khal and vdirsyncer use them too).</source>
        <extracomment>Busy is how the event shows in others&apos; calendars; khal and vdirsyncer are programs</extracomment>
        <translation>يضيف كل قفل حدثًا «مشغول» للأيام السبعة القادمة، ليرى زملاؤك أنك مشغول فلا يحجزوا اجتماعات وقت الصلاة. اختر تقويم العمل. إيقاف هذا الخيار يحذف الأحداث.
في لينكس، التقاويم هي المجلدات داخل ‎~/.local/share/calendars‎ (ويستخدمها khal وvdirsyncer أيضًا).</translation>
    </message>
    <message>
        <source>Block prayer times in my calendar</source>
        <translation>حجز مواقيت الصلاة في تقويمي</translation>
    </message>
    <message>
        <source>None</source>
        <extracomment>No calendar chosen</extracomment>
        <translation>لا شيء</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>A calendar in the list: %1 its name, %2 the account or folder it belongs to</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Emergency exit</source>
        <translation>مخرج الطوارئ</translation>
    </message>
    <message>
        <source>Optional. Someone you trust keeps a 6-digit code in their phone. In a real emergency they read it to you and you type it on the lock screen to end the lock; that prayer isn&apos;t counted as kept. The key is stored on this computer, so this is a speed bump, not a vault.</source>
        <extracomment>“A speed bump, not a vault”: it slows a determined person down but cannot stop one</extracomment>
        <translation>اختياري. شخص تثق به يحتفظ برمز من 6 أرقام في هاتفه. في حالة طارئة حقيقية يقرأه لك فتكتبه على شاشة القفل لإنهاء القفل؛ ولا تُحتسب تلك الصلاة مؤدّاة. المفتاح محفوظ على هذا الحاسوب، فهو مطبّ يُبطئ لا خزنة تمنع.</translation>
    </message>
    <message>
        <source>Guardian code</source>
        <extracomment>The guardian&apos;s code is set; a Remove button follows</extracomment>
        <translation>رمز الوصيّ</translation>
    </message>
    <message>
        <source>Set Up Guardian Code…</source>
        <translation>إعداد رمز الوصيّ…</translation>
    </message>
    <message>
        <source>Extras</source>
        <translation>إضافات</translation>
    </message>
    <message>
        <source>Ramadan mode adds suhoor and iftar times and a Tarawih reminder during Ramadan.</source>
        <translation>يضيف وضع رمضان وقتي السحور والإفطار وتذكيرًا بالتراويح خلال رمضان.</translation>
    </message>
    <message>
        <source>Ramadan mode</source>
        <translation>وضع رمضان</translation>
    </message>
    <message>
        <source>Weekly report on Sunday evenings</source>
        <translation>تقرير أسبوعي مساء كل أحد</translation>
    </message>
    <message>
        <source>Streak &amp; history</source>
        <translation>المواظبة والسجل</translation>
    </message>
    <message>
        <source>I&apos;m Excused… in the menu turns off reminders and locks without breaking your streak. Mark as Prayed counts a prayer you prayed at the masjid or made up late (qada). Export saves every prayer with how it was kept as a CSV.</source>
        <extracomment>I&apos;m Excused… and Mark as Prayed are commands of the tray menu; use their translations</extracomment>
        <translation>«لديّ عذر…» في القائمة يوقف التذكيرات والقفل دون أن تنقطع مواظبتك. «تسجيل صلاة مؤدّاة» يحتسب صلاة صلّيتها في المسجد أو قضيتها لاحقًا (قضاء). «تصدير السجل» يحفظ كل صلاة وطريقة أدائها في ملف CSV.</translation>
    </message>
    <message>
        <source>“I&apos;m Excused” ends by itself after</source>
        <extracomment>A number of days follows in a field; I&apos;m Excused is a command of the tray menu</extracomment>
        <translation>ينتهي «لديّ عذر» تلقائيًا بعد</translation>
    </message>
    <message>
        <source> days</source>
        <extracomment>A unit after a number of days in a field; keep the leading space if your language has one</extracomment>
        <translation> أيام</translation>
    </message>
    <message>
        <source>Export History…</source>
        <translation>تصدير السجل…</translation>
    </message>
    <message>
        <source>On Fridays Dhuhr becomes Jumu&apos;ah at this time, with a longer lock.</source>
        <translation>في أيام الجمعة يصبح الظهر صلاةَ الجمعة في هذا الوقت، بقفل أطول.</translation>
    </message>
    <message>
        <source>Jumu&apos;ah on Fridays</source>
        <translation>صلاة الجمعة</translation>
    </message>
    <message>
        <source>Jumu&apos;ah time</source>
        <translation>وقت الجمعة</translation>
    </message>
    <message>
        <source>Jumu&apos;ah lock lasts</source>
        <translation>مدة قفل الجمعة</translation>
    </message>
    <message>
        <source> min</source>
        <extracomment>A unit after a number of minutes in a field; keep the leading space if your language has one</extracomment>
        <translation> دقيقة</translation>
    </message>
    <message>
        <source>Places with this name</source>
        <translation>أماكن بهذا الاسم</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>الموقع</translation>
    </message>
    <message>
        <source>Times are calculated on your computer, no internet needed. Your computer&apos;s time zone: %1</source>
        <extracomment>%1 the time zone&apos;s identifier, such as Europe/London</extracomment>
        <translation>تُحسب المواقيت على حاسوبك، دون حاجة إلى الإنترنت. المنطقة الزمنية لحاسوبك: %1</translation>
    </message>
    <message>
        <source>City</source>
        <translation>المدينة</translation>
    </message>
    <message>
        <source>e.g. London, Dhaka, Toronto</source>
        <extracomment>Examples of cities; use cities your readers know</extracomment>
        <translation>مثلًا: Cairo، Riyadh، Casablanca</translation>
    </message>
    <message>
        <source>Find</source>
        <extracomment>A button: search for the city typed</extracomment>
        <translation>بحث</translation>
    </message>
    <message>
        <source>Using</source>
        <extracomment>The location in use: a label before the place&apos;s name and coordinates</extracomment>
        <translation>المعتمد</translation>
    </message>
    <message>
        <source>%1  %2, %3</source>
        <extracomment>%1 the place&apos;s name, %2 its latitude, %3 its longitude</extracomment>
        <translation>‏%1  %2، %3</translation>
    </message>
    <message>
        <source>Not set yet</source>
        <translation>لم يُحدَّد بعد</translation>
    </message>
    <message>
        <source>Enter coordinates</source>
        <translation>إدخال الإحداثيات</translation>
    </message>
    <message>
        <source>Name</source>
        <extracomment>The place&apos;s name, typed with its coordinates</extracomment>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>خط العرض</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>خط الطول</translation>
    </message>
    <message>
        <source>During a lock every screen goes black, and the lock holds the keyboard and mouse, so the panel, window and workspace switching and the desktop&apos;s shortcuts are out of reach. There&apos;s no way to end it early except your guardian&apos;s code. If your mic or camera is in use when a lock is due, it waits for the call to end, then locks for the full time. With “Did you pray?”, answering Not Yet locks again for 5 minutes. If your computer is asleep, it locks on wake only while still inside the lock window.</source>
        <extracomment>“Did you pray?” and Not Yet are the texts of the question asked after a lock and its button</extracomment>
        <translation>أثناء القفل تسودّ كل الشاشات، ويستحوذ القفل على لوحة المفاتيح والفأرة، فلا يمكن الوصول إلى اللوحة ولا التبديل بين النوافذ ومساحات العمل ولا اختصارات سطح المكتب. لا سبيل لإنهائه مبكرًا إلا برمز الوصيّ. إن كان الميكروفون أو الكاميرا قيد الاستخدام عند موعد القفل، فإنه ينتظر انتهاء المكالمة ثم يُقفل المدة كاملة. مع «هل صلّيت؟»، تُقفل الإجابة بـ«ليس بعد» الشاشة مجددًا 5 دقائق. إن كان حاسوبك في وضع السكون، فإنه يُقفل عند الاستيقاظ فقط إن كان ذلك ما يزال ضمن مدة القفل.</translation>
    </message>
    <message>
        <source>During a lock every screen goes black, and the lock holds the keyboard and mouse, so the panel, window and workspace switching and the desktop&apos;s shortcuts are out of reach. There&apos;s no way to end it early. If your mic or camera is in use when a lock is due, it waits for the call to end, then locks for the full time. With “Did you pray?”, answering Not Yet locks again for 5 minutes. If your computer is asleep, it locks on wake only while still inside the lock window.</source>
        <extracomment>“Did you pray?” and Not Yet are the texts of the question asked after a lock and its button</extracomment>
        <translation>أثناء القفل تسودّ كل الشاشات، ويستحوذ القفل على لوحة المفاتيح والفأرة، فلا يمكن الوصول إلى اللوحة ولا التبديل بين النوافذ ومساحات العمل ولا اختصارات سطح المكتب. لا سبيل لإنهائه مبكرًا. إن كان الميكروفون أو الكاميرا قيد الاستخدام عند موعد القفل، فإنه ينتظر انتهاء المكالمة ثم يُقفل المدة كاملة. مع «هل صلّيت؟»، تُقفل الإجابة بـ«ليس بعد» الشاشة مجددًا 5 دقائق. إن كان حاسوبك في وضع السكون، فإنه يُقفل عند الاستيقاظ فقط إن كان ذلك ما يزال ضمن مدة القفل.</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>A sentence&apos;s full stop: %1 the sentence</extracomment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Lock</source>
        <extracomment>The heading of the section about the lock (a noun)</extracomment>
        <translation>القفل</translation>
    </message>
    <message>
        <source>Lock lasts</source>
        <translation>مدة القفل</translation>
    </message>
    <message>
        <source>Lock starts before prayer</source>
        <translation>بدء القفل قبل الصلاة</translation>
    </message>
    <message>
        <source>Reminders (minutes before)</source>
        <translation>التذكيرات (دقائق قبل الموعد)</translation>
    </message>
    <message>
        <source>20, 10, 5, 2</source>
        <extracomment>An example of the reminders field: minutes before the lock, separated by commas</extracomment>
        <translation>20، 10، 5، 2</translation>
    </message>
    <message>
        <source>Wait for a call to end</source>
        <extracomment>How long a lock waits while the mic or camera is in use</extracomment>
        <translation>انتظار انتهاء المكالمة</translation>
    </message>
    <message>
        <source>Ask “Did you pray?” after each lock</source>
        <translation>سؤال «هل صلّيت؟» بعد كل قفل</translation>
    </message>
    <message>
        <source>Your phone too</source>
        <translation>هاتفك أيضًا</translation>
    </message>
    <message>
        <source>Tarvanel runs the script “%1” when a lock starts and “%2” when it ends. The pair written for your desktop turns its notification banners off and back on; a command added to both can quiet your phone as well.</source>
        <extracomment>%1 and %2 the names of the two scripts (file names: they stay as they are)</extracomment>
        <translation>يشغّل Tarvanel البرنامج النصي “%1” عند بدء القفل و“%2” عند انتهائه. يوقف البرنامجان المكتوبان لسطح مكتبك إشعاراته ثم يعيدانها؛ وأمر يُضاف إلى كليهما يمكنه إسكات هاتفك أيضًا.</translation>
    </message>
    <message>
        <source>Run the Focus scripts during each lock</source>
        <extracomment>Focus names the pair of scripts run at the start and the end of a lock</extracomment>
        <translation>تشغيل برنامجي التركيز النصيين أثناء كل قفل</translation>
    </message>
    <message>
        <source>Scripts</source>
        <translation>البرامج النصية</translation>
    </message>
    <message>
        <source>Not checked yet</source>
        <translation>لم يُفحص بعد</translation>
    </message>
    <message>
        <source>Both scripts found</source>
        <translation>عُثر على البرنامجين</translation>
    </message>
    <message>
        <source>Scripts missing</source>
        <translation>البرنامجان مفقودان</translation>
    </message>
    <message>
        <source>1. Choose your desktop below and press Write Scripts: it makes “%1” and “%2” in %3, which switch the desktop&apos;s notification banners off and on.
2. Or write them yourself: any executable files with those names (each may run for 30 seconds at most).
3. For your phone: add to both scripts a command of the tool that links your phone to this computer, if you use one.</source>
        <extracomment>%1 and %2 the names of the two scripts, %3 their folder; Write Scripts is a button below</extracomment>
        <translation>1. اختر سطح مكتبك أدناه واضغط «كتابة البرنامجين»: يُنشئ “%1” و“%2” في %3، وهما يوقفان إشعارات سطح المكتب ويعيدانها.
2. أو اكتبهما بنفسك: أي ملفين تنفيذيين بهذين الاسمين (لا يتجاوز تشغيل كل منهما 30 ثانية).
3. للهاتف: أضف إلى البرنامجين أمرًا من الأداة التي تربط هاتفك بهذا الحاسوب، إن كنت تستخدم واحدة.</translation>
    </message>
    <message>
        <source>Scripts for</source>
        <extracomment>The desktop the scripts are written for</extracomment>
        <translation>لسطح المكتب</translation>
    </message>
    <message>
        <source>Write Scripts</source>
        <translation>كتابة البرنامجين</translation>
    </message>
    <message>
        <source>Open Shortcuts Folder</source>
        <translation>فتح مجلد الاختصارات</translation>
    </message>
    <message>
        <source>Check Again</source>
        <translation>إعادة الفحص</translation>
    </message>
    <message>
        <source>Test</source>
        <extracomment>A button: run the scripts once now to try them</extracomment>
        <translation>تجربة</translation>
    </message>
    <message>
        <source>Find your city to begin</source>
        <translation>ابحث عن مدينتك للبدء</translation>
    </message>
    <message>
        <source>Your location</source>
        <translation>موقعك</translation>
    </message>
    <message>
        <source>%1  ·  %2 locks at %3</source>
        <extracomment>The settings window&apos;s header: %1 the place, %2 a prayer, %3 the time its lock starts</extracomment>
        <translation>‏%1  ·  قفل %2 عند %3</translation>
    </message>
    <message>
        <source>Start Tarvanel</source>
        <extracomment>The button that saves the settings on the first run and starts the program</extracomment>
        <translation>بدء Tarvanel</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>حفظ</translation>
    </message>
    <message>
        <source>h:mm AP</source>
        <extracomment>How a time of day is written, in Qt&apos;s date-time pattern letters: h hour, mm minutes, AP AM or PM. A 24-hour clock is HH:mm</extracomment>
        <translation>h:mm AP</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>اليوم</translation>
    </message>
    <message>
        <source>Find your city to see today&apos;s times.</source>
        <translation>ابحث عن مدينتك لترى مواقيت اليوم.</translation>
    </message>
    <message>
        <source>locks %1</source>
        <extracomment>A column of today&apos;s times: %1 the time this prayer&apos;s lock starts</extracomment>
        <translation>القفل %1</translation>
    </message>
    <message>
        <source>Fajr ends at sunrise, %1.</source>
        <extracomment>%1 the time of sunrise</extracomment>
        <translation>ينتهي الفجر عند الشروق، %1.</translation>
    </message>
    <message>
        <source>Travel</source>
        <translation>السفر</translation>
    </message>
    <message>
        <source>Travel mode checks your rough location online every 6 hours and uses local times when you&apos;re more than 50 km from home; a VPN will fool it. You can also choose I&apos;m Travelling… in the menu. Combining makes Dhuhr and Asr one lock at Dhuhr, and Maghrib and Isha one lock at Maghrib, only while travelling. Schools differ: the Hanafi school, for example, doesn&apos;t permit combining except at Arafah and Muzdalifah. Turn it on only if your school permits it.</source>
        <extracomment>I&apos;m Travelling… is a command of the tray menu</extracomment>
        <translation>يفحص وضع السفر موقعك التقريبي عبر الإنترنت كل 6 ساعات ويستخدم المواقيت المحلية حين تبعد أكثر من 50 كم عن منزلك؛ والشبكة الافتراضية الخاصة (VPN) تخدعه. يمكنك أيضًا اختيار «أنا في سفر…» من القائمة. الجمع يجعل الظهر والعصر قفلًا واحدًا عند الظهر، والمغرب والعشاء قفلًا واحدًا عند المغرب، في السفر فقط. المذاهب تختلف: فالمذهب الحنفي مثلًا لا يُجيز الجمع إلا في عرفة ومزدلفة. فعّله فقط إن كان مذهبك يُجيزه.</translation>
    </message>
    <message>
        <source>Travel mode (follow my location)</source>
        <translation>وضع السفر (تتبّع موقعي)</translation>
    </message>
    <message>
        <source>Combine prayers while travelling</source>
        <translation>الجمع بين الصلوات في السفر</translation>
    </message>
    <message>
        <source>%1 minutes after start</source>
        <extracomment>Read by a screen reader: %1 a prayer</extracomment>
        <translation>‏%1: دقائق بعد دخول الوقت</translation>
    </message>
    <message>
        <source>%1 fixed time</source>
        <extracomment>Read by a screen reader: %1 a prayer</extracomment>
        <translation>‏%1: وقت ثابت</translation>
    </message>
    <message>
        <source>When you pray</source>
        <translation>وقت صلاتك</translation>
    </message>
    <message>
        <source>Lock at the time you actually pray, like your mosque&apos;s jamaat, instead of the moment the time starts. An imported timetable wins on the days it covers.</source>
        <extracomment>“Lock” here is a verb; jamaat is the congregational prayer at the mosque</extracomment>
        <translation>القفل في الوقت الذي تصلّي فيه فعلًا، مثل وقت الجماعة في مسجدك، بدلًا من لحظة دخول الوقت. جدول المواقيت المستورد له الأولوية في الأيام التي يشملها.</translation>
    </message>
    <message>
        <source>Clear</source>
        <extracomment>A button: forget the imported timetable</extracomment>
        <translation>مسح</translation>
    </message>
    <message>
        <source>Masjid timetable: %1</source>
        <extracomment>%1 the imported timetable&apos;s days and dates, such as “31 days, 1 Mar 2025 – 31 Mar 2025”</extracomment>
        <translation>جدول مواقيت المسجد: %1</translation>
    </message>
    <message>
        <source>No masjid timetable imported</source>
        <translation>لم يُستورد جدول مواقيت مسجد</translation>
    </message>
    <message>
        <source>Import Timetable…</source>
        <translation>استيراد جدول المواقيت…</translation>
    </message>
</context>
<context>
    <name>TimeFormat</name>
    <message>
        <source>dddd d MMMM yyyy</source>
        <extracomment>Qt pattern of the date above the --times table, as in &quot;Friday 3 October 2025&quot;</extracomment>
        <translation>‏dddd، d MMMM yyyy</translation>
    </message>
    <message>
        <source>dddd d MMMM</source>
        <extracomment>Qt pattern of a weekday and a date, as in &quot;Friday 3 October&quot;</extracomment>
        <translation>‏dddd، d MMMM</translation>
    </message>
    <message>
        <source>h:mm AP</source>
        <extracomment>Qt time pattern of a clock time: h hour, mm minutes, AP AM or PM. Write HH:mm where a 24-hour clock is usual.</extracomment>
        <translation>h:mm AP</translation>
    </message>
    <message>
        <source>dddd h:mm AP</source>
        <extracomment>Qt pattern of a weekday and a clock time, as in &quot;Friday 3:15 PM&quot;</extracomment>
        <translation>dddd h:mm AP</translation>
    </message>
    <message>
        <source>dddd d MMM</source>
        <extracomment>Qt pattern of a weekday and a date, as in &quot;Friday 3 Oct&quot;</extracomment>
        <translation>‏dddd، d MMM</translation>
    </message>
    <message>
        <source>ddd d</source>
        <extracomment>Qt pattern of a short weekday and the day of the month in the seven-day grid, as in &quot;Fri 3&quot;</extracomment>
        <translation>d/M</translation>
    </message>
</context>
<context>
    <name>TimeMode</name>
    <message>
        <source>At start time</source>
        <extracomment>When the lock comes: at the prayer&apos;s start time (its waqt).</extracomment>
        <translation>عند دخول الوقت</translation>
    </message>
    <message>
        <source>After start</source>
        <extracomment>When the lock comes: some minutes after the prayer&apos;s start time.</extracomment>
        <translation>بعد دخول الوقت</translation>
    </message>
    <message>
        <source>Fixed time</source>
        <extracomment>When the lock comes: at a fixed clock time, such as a mosque&apos;s jamaat.</extracomment>
        <translation>وقت ثابت</translation>
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
        <translation>الصلاة</translation>
    </message>
    <message>
        <source>Waqt</source>
        <extracomment>Column heading of the --times table: the computed time of the prayer</extracomment>
        <translation>الوقت</translation>
    </message>
    <message>
        <source>Lock at</source>
        <extracomment>Column heading of the --times table: when the screens lock</extracomment>
        <translation>القفل</translation>
    </message>
    <message>
        <source>config.json is invalid (%1); printing the default settings&apos; times</source>
        <extracomment>%1 says what is wrong with the settings file config.json</extracomment>
        <translation>ملف config.json غير صالح (%1)؛ تُطبع مواقيت الإعدادات الافتراضية</translation>
    </message>
    <message>
        <source>no place is set, so these times are for 0° N 0° E; to set yours, open Tarvanel (its settings open on the first start) or write %1</source>
        <extracomment>%1 is the settings file</extracomment>
        <translation>لم يُحدَّد مكان، لذا هذه المواقيت للموقع 0° ش 0° ق؛ لتحديد مكانك افتح Tarvanel (تُفتح إعداداته في أول تشغيل) أو اكتب في %1</translation>
    </message>
</context>
<context>
    <name>Timetable</name>
    <message numerus="yes">
        <source>%Ln days, %1 – %2</source>
        <extracomment>The imported timetable: %Ln days from %1 to %2 (&quot;30 days, 1 Mar 2025 – 30 Mar 2025&quot;).</extracomment>
        <translation>
            <numerusform>‏%Ln يوم، %1 – %2</numerusform>
            <numerusform>يوم واحد، %1 – %2</numerusform>
            <numerusform>يومان، %1 – %2</numerusform>
            <numerusform>‏%Ln أيام، %1 – %2</numerusform>
            <numerusform>‏%Ln يومًا، %1 – %2</numerusform>
            <numerusform>‏%Ln يوم، %1 – %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Title</name>
    <message>
        <source>%1m</source>
        <extracomment>Short countdown in the tray title: %1 minutes, as in &quot;47m&quot;</extracomment>
        <translation>‏%1د</translation>
    </message>
    <message>
        <source>%1h %2m</source>
        <extracomment>Short countdown in the tray title: %1 hours and %2 minutes, as in &quot;1h 5m&quot;</extracomment>
        <translation>‏%1س %2د</translation>
    </message>
    <message>
        <source>Preview</source>
        <extracomment>Tray title while the lock started by &quot;Preview Lock&quot; in the menu shows</extracomment>
        <translation>معاينة</translation>
    </message>
    <message>
        <source>Test</source>
        <extracomment>Tray title while the lock started by the command line&apos;s --test-lock shows</extracomment>
        <translation>تجربة</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <extracomment>Tray title: %1 is a prayer name, %2 a short countdown such as &quot;47m&quot; or &quot;1h 5m&quot;</extracomment>
        <translation>‏%1 بعد %2</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <extracomment>Tray title: %1 is the prayer name Fajr, %2 its time tomorrow</extracomment>
        <translation>‏%1 عند %2</translation>
    </message>
</context>
<context>
    <name>Travel</name>
    <message>
        <source>Travelling</source>
        <extracomment>Stands for the place&apos;s name while travelling when the location service names no city.</extracomment>
        <translation>في سفر</translation>
    </message>
</context>
<context>
    <name>tarvanel::AppDelegate</name>
    <message>
        <source>config.json can&apos;t be used (%1). Tarvanel keeps the last good settings.</source>
        <extracomment>%1 says what is wrong with the settings file config.json</extracomment>
        <translation>تعذّر استخدام config.json ‏(%1). يحتفظ Tarvanel بآخر إعدادات سليمة.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>استبدال</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Tarvanel history.csv</source>
        <extracomment>The file name the history export suggests; keep the .csv ending</extracomment>
        <translation>سجل Tarvanel.csv</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>حسنًا</translation>
    </message>
    <message>
        <source>Couldn&apos;t export the history to %1</source>
        <extracomment>%1 is a file</extracomment>
        <translation>تعذّر تصدير السجل إلى %1</translation>
    </message>
    <message numerus="yes">
        <source>Exported %Ln prayers to %1</source>
        <extracomment>%1 is a file; the count is of prayers written to it</extracomment>
        <translation>
            <numerusform>صُدّرت %Ln صلاة إلى %1</numerusform>
            <numerusform>صُدّرت صلاة واحدة إلى %1</numerusform>
            <numerusform>صُدّرت صلاتان إلى %1</numerusform>
            <numerusform>صُدّرت %Ln صلوات إلى %1</numerusform>
            <numerusform>صُدّرت %Ln صلاة إلى %1</numerusform>
            <numerusform>صُدّرت %Ln صلاة إلى %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Uninstall Tarvanel?</source>
        <translation>إزالة تثبيت Tarvanel؟</translation>
    </message>
    <message>
        <source>Tarvanel stops running, stops starting at login, and moves to the Trash. Your prayer times stop locking the screen.</source>
        <translation>يتوقف Tarvanel عن العمل وعن البدء عند تسجيل الدخول، ويُنقل إلى سلة المهملات. ولن تعود مواقيت صلاتك تُقفل الشاشة.</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>إزالة التثبيت</translation>
    </message>
    <message>
        <source>Also delete my settings and history</source>
        <translation>حذف إعداداتي وسجلّي أيضًا</translation>
    </message>
    <message>
        <source>Turn off reminders and locks?</source>
        <extracomment>Asked on &quot;I&apos;m Excused…&quot; in the menu: exempt from prayer for a while</extracomment>
        <translation>إيقاف التذكيرات والقفل؟</translation>
    </message>
    <message numerus="yes">
        <source>They come back when you choose %1, or after %Ln days. Your streak is kept.</source>
        <extracomment>%1 is the menu item that ends the excused days</extracomment>
        <translation>
            <numerusform>تعود حين تختار «%1»، أو بعد %Ln يوم. تبقى مواظبتك محفوظة.</numerusform>
            <numerusform>تعود حين تختار «%1»، أو بعد يوم واحد. تبقى مواظبتك محفوظة.</numerusform>
            <numerusform>تعود حين تختار «%1»، أو بعد يومين. تبقى مواظبتك محفوظة.</numerusform>
            <numerusform>تعود حين تختار «%1»، أو بعد %Ln أيام. تبقى مواظبتك محفوظة.</numerusform>
            <numerusform>تعود حين تختار «%1»، أو بعد %Ln يومًا. تبقى مواظبتك محفوظة.</numerusform>
            <numerusform>تعود حين تختار «%1»، أو بعد %Ln يوم. تبقى مواظبتك محفوظة.</numerusform>
        </translation>
    </message>
    <message>
        <source>Turn Off</source>
        <translation>إيقاف</translation>
    </message>
    <message>
        <source>Travelling until…</source>
        <extracomment>Above a date picker: the last day of the journey</extracomment>
        <translation>في سفر حتى…</translation>
    </message>
    <message>
        <source>%1 and %2 become one lock, and so do %3 and %4, through the end of this day.</source>
        <extracomment>%1 and %2 are combined into one lock, and so are %3 and %4 (prayer names)</extracomment>
        <translation>يصبح %1 و%2 قفلًا واحدًا، وكذلك %3 و%4، حتى نهاية هذا اليوم.</translation>
    </message>
    <message>
        <source>Turn on “Combine prayers while travelling” in Settings if your school permits it.</source>
        <extracomment>The quoted text is a check box in Settings; school: of Islamic law</extracomment>
        <translation>فعّل «الجمع بين الصلوات في السفر» في الإعدادات إن كان مذهبك يُجيزه.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>بدء</translation>
    </message>
    <message>
        <source>Pause Tarvanel?</source>
        <translation>إيقاف Tarvanel مؤقتًا؟</translation>
    </message>
    <message>
        <source>No reminders and no locks until %1 at midnight. You can resume any time from the menu.</source>
        <extracomment>%1 is a weekday and a date, as in &quot;Friday 3 October&quot;</extracomment>
        <translation>لا تذكيرات ولا قفل حتى %1 عند منتصف الليل. يمكنك الاستئناف في أي وقت من القائمة.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>إيقاف مؤقت</translation>
    </message>
    <message>
        <source>%1&apos;s lock is due now: lock now?</source>
        <extracomment>%1 is a prayer name; &quot;lock now&quot; is a verb</extracomment>
        <translation>حان موعد قفل %1: القفل الآن؟</translation>
    </message>
    <message>
        <source>Resuming now turns every screen black at once. Cancel keeps the pause.</source>
        <extracomment>&quot;Cancel&quot; is the button of this question</extracomment>
        <translation>الاستئناف الآن يُسوّد كل الشاشات فورًا. «إلغاء» يُبقي الإيقاف المؤقت.</translation>
    </message>
    <message>
        <source>Lock Now</source>
        <extracomment>A verb: lock the screens now</extracomment>
        <translation>القفل الآن</translation>
    </message>
    <message>
        <source>Next lock: %1 at %2</source>
        <extracomment>%1 is a prayer name, %2 the time the screens lock</extracomment>
        <translation>القفل التالي: %1 عند %2</translation>
    </message>
    <message>
        <source>Next lock: %1 tomorrow at %2</source>
        <extracomment>%1 is the prayer name Fajr, %2 the time the screens lock tomorrow</extracomment>
        <translation>القفل التالي: %1 غدًا عند %2</translation>
    </message>
    <message>
        <source>Tarvanel lives in the tray: its menu has today&apos;s times and Settings.</source>
        <translation>يقيم Tarvanel في لوحة النظام: في قائمته مواقيت اليوم والإعدادات.</translation>
    </message>
    <message>
        <source>Tarvanel is running</source>
        <translation>‏Tarvanel يعمل</translation>
    </message>
    <message>
        <source>Set up</source>
        <extracomment>Tray title while the program has no settings yet</extracomment>
        <translation>إعداد</translation>
    </message>
    <message>
        <source>Paused</source>
        <extracomment>Tray title while the locks are paused</extracomment>
        <translation>متوقف مؤقتًا</translation>
    </message>
    <message>
        <source>%1 after your call</source>
        <extracomment>Tray title: %1 is a prayer name; its lock waits for the end of a call</extracomment>
        <translation>‏%1 بعد مكالمتك</translation>
    </message>
    <message>
        <source>%1 locks when your call ends</source>
        <extracomment>%1 is a prayer name: its lock waits for the end of a call</extracomment>
        <translation>يبدأ قفل %1 عند انتهاء مكالمتك</translation>
    </message>
    <message>
        <source>Did you pray %1?</source>
        <extracomment>%1 is a prayer name</extracomment>
        <translation>هل صلّيت %1؟</translation>
    </message>
    <message numerus="yes">
        <source>“Not yet” locks the screen again for %Ln minutes.</source>
        <extracomment>“Not yet” is the second button of this question</extracomment>
        <translation>
            <numerusform>«ليس بعد» يُقفل الشاشة مجددًا %Ln دقيقة.</numerusform>
            <numerusform>«ليس بعد» يُقفل الشاشة مجددًا دقيقة واحدة.</numerusform>
            <numerusform>«ليس بعد» يُقفل الشاشة مجددًا دقيقتين.</numerusform>
            <numerusform>«ليس بعد» يُقفل الشاشة مجددًا %Ln دقائق.</numerusform>
            <numerusform>«ليس بعد» يُقفل الشاشة مجددًا %Ln دقيقة.</numerusform>
            <numerusform>«ليس بعد» يُقفل الشاشة مجددًا %Ln دقيقة.</numerusform>
        </translation>
    </message>
    <message>
        <source>Yes, I Prayed</source>
        <translation>نعم، صلّيت</translation>
    </message>
    <message>
        <source>Not Yet</source>
        <translation>ليس بعد</translation>
    </message>
</context>
<context>
    <name>tarvanel::GuardianSetup</name>
    <message>
        <source>QR code</source>
        <translation>رمز QR</translation>
    </message>
    <message>
        <source>Ask the person you trust to scan this with an authenticator app (Google Authenticator, Microsoft Authenticator, Authy, or Apple&apos;s Passwords app), or to type the key:</source>
        <extracomment>The apps are proper names; Apple&apos;s app is called Passwords</extracomment>
        <translation>اطلب من الشخص الذي تثق به مسح هذا الرمز بتطبيق مصادقة (Google Authenticator أو Microsoft Authenticator أو Authy أو تطبيق Passwords من Apple)، أو كتابة المفتاح:</translation>
    </message>
    <message>
        <source>Key</source>
        <extracomment>The secret key of the guardian&apos;s code, shown to be typed into an app</extracomment>
        <translation>المفتاح</translation>
    </message>
    <message>
        <source>Code from their app</source>
        <translation>الرمز من تطبيقه</translation>
    </message>
    <message>
        <source>Code</source>
        <extracomment>The six-digit code the guardian&apos;s app shows</extracomment>
        <translation>الرمز</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>تأكيد</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
</context>
<context>
    <name>tarvanel::LockView</name>
    <message>
        <source>PREVIEW</source>
        <extracomment>Above the name of a lock that is only tried out from the settings; capitals if your script has them</extracomment>
        <translation>معاينة</translation>
    </message>
    <message>
        <source>IT&apos;S TIME FOR</source>
        <extracomment>Above the prayer&apos;s name on the lock screen, e.g. IT&apos;S TIME FOR / Fajr; capitals if your script has them</extracomment>
        <translation>حان وقت</translation>
    </message>
    <message>
        <source>Preview</source>
        <extracomment>The name of a lock tried out from the settings, shown in place of a prayer&apos;s name</extracomment>
        <translation>معاينة</translation>
    </message>
    <message>
        <source>Test</source>
        <extracomment>The name of a lock started for a test, shown in place of a prayer&apos;s name</extracomment>
        <translation>تجربة</translation>
    </message>
</context>
<context>
    <name>tarvanel::PrayerSettingsModel</name>
    <message>
        <source>The settings file changed while this window was open. Save keeps what you see here; Cancel keeps the file&apos;s settings.</source>
        <extracomment>&quot;Save&quot; and &quot;Cancel&quot; are the window&apos;s buttons.</extracomment>
        <translation>تغيّر ملف الإعدادات أثناء فتح هذه النافذة. «حفظ» يُبقي ما تراه هنا، و«إلغاء» يُبقي إعدادات الملف.</translation>
    </message>
    <message>
        <source>Found %1.</source>
        <extracomment>After a city search: %1 is the place found (&quot;Leeds, England, United Kingdom&quot;).</extracomment>
        <translation>عُثر على %1.</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>جارٍ البحث…</translation>
    </message>
    <message>
        <source>Couldn&apos;t find “%1”. Check the spelling, or enter coordinates below.</source>
        <extracomment>%1 is the place the user searched for.</extracomment>
        <translation>تعذّر العثور على «%1». تحقّق من الإملاء، أو أدخل الإحداثيات أدناه.</translation>
    </message>
    <message>
        <source>Suggested: %1, Hanafi Asr. Change it below if your mosque uses something else.</source>
        <extracomment>Follows &quot;Found &lt;place&gt;.&quot; %1 is a calculation method (&quot;Muslim World League&quot;).</extracomment>
        <translation>المقترح: %1، والعصر الحنفي. غيّرها أدناه إن كان مسجدك يعتمد غير ذلك.</translation>
    </message>
    <message>
        <source>Suggested: %1. Change it below if your mosque uses something else.</source>
        <extracomment>Follows &quot;Found &lt;place&gt;.&quot; %1 is a calculation method (&quot;Muslim World League&quot;).</extracomment>
        <translation>المقترح: %1. غيّرها أدناه إن كان مسجدك يعتمد غير ذلك.</translation>
    </message>
    <message>
        <source>Heads up: your computer is set to %1, not %2. Times follow your computer&apos;s clock.</source>
        <extracomment>%1 and %2 are time zones such as &quot;Europe/London&quot; and &quot;Asia/Karachi&quot;.</extracomment>
        <translation>تنبيه: حاسوبك مضبوط على %1، لا على %2. تتبع المواقيت ساعة حاسوبك.</translation>
    </message>
    <message>
        <source>Asking for Calendar access…</source>
        <translation>جارٍ طلب الوصول إلى التقويم…</translation>
    </message>
    <message>
        <source>Calendar access is off. Tarvanel writes its events under ~/.local/share/calendars: turn this on again and choose Allow, and check that you can write to that folder.</source>
        <extracomment>&quot;Allow&quot; is the button of the question asking for calendar access.</extracomment>
        <translation>الوصول إلى التقويم متوقف. يكتب Tarvanel أحداثه داخل ‎~/.local/share/calendars‎: فعّل هذا الخيار مجددًا واختر «سماح»، وتأكّد من أنك تستطيع الكتابة في ذلك المجلد.</translation>
    </message>
    <message>
        <source>Focus on for 10 seconds… check that notifications stay quiet.</source>
        <extracomment>Focus: the desktop&apos;s do-not-disturb mode, turned on while a lock lasts.</extracomment>
        <translation>التركيز مفعّل لمدة 10 ثوانٍ… تحقّق من أن الإشعارات تبقى صامتة.</translation>
    </message>
    <message>
        <source>Done. Focus is off again.</source>
        <translation>تم. أُوقف التركيز مجددًا.</translation>
    </message>
    <message>
        <source>“%1”</source>
        <extracomment>A shortcut&apos;s name in quotation marks; use the language&apos;s own marks.</extracomment>
        <translation>«%1»</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <extracomment>Two names in a list, each already quoted: “A” and “B”.</extracomment>
        <translation>‏%1 و%2</translation>
    </message>
    <message>
        <source>Replace your own %1?</source>
        <extracomment>%1 is one or two shortcut names the user wrote, already quoted.</extracomment>
        <translation>استبدال ما كتبته: %1؟</translation>
    </message>
    <message>
        <source>Tarvanel&apos;s pair for %1 takes the place of what you wrote.</source>
        <extracomment>%1 is a desktop such as &quot;GNOME&quot; or &quot;XFCE&quot;.</extracomment>
        <translation>برنامجا Tarvanel لـ %1 يحلّان محل ما كتبته.</translation>
    </message>
    <message>
        <source>Kept your own %1.</source>
        <extracomment>%1 is one or two shortcut names the user wrote, already quoted.</extracomment>
        <translation>أُبقي على ما كتبته: %1.</translation>
    </message>
    <message>
        <source>Wrote %1 for %2.</source>
        <extracomment>%1 is the two quoted shortcut names (“Tarvanel Focus On” and “Tarvanel Focus Off”), %2 a desktop such as &quot;GNOME&quot;.</extracomment>
        <translation>كُتب %1 لـ %2.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write %1. The log in ~/.tarvanel/log.txt says why.</source>
        <extracomment>%1 is the two quoted shortcut names.</extracomment>
        <translation>تعذّرت كتابة %1. السبب مذكور في السجل ‎~/.tarvanel/log.txt‎.</translation>
    </message>
    <message>
        <source>Guardian code is on.</source>
        <extracomment>The guardian: the person whose six-digit code ends a lock early.</extracomment>
        <translation>رمز الوصيّ مفعّل.</translation>
    </message>
    <message>
        <source>That code doesn&apos;t match. Check both clocks are right and try the newest code.</source>
        <translation>الرمز غير مطابق. تحقّق من صحة الساعتين وجرّب أحدث رمز.</translation>
    </message>
</context>
<context>
    <name>tarvanel::PrayerSettingsView</name>
    <message>
        <source>Your settings file can&apos;t be used (%1), so nothing locks yet. Check the settings below and save to start again.</source>
        <extracomment>%1 what is wrong with the settings file</extracomment>
        <translation>تعذّر استخدام ملف إعداداتك (%1)، لذا لا شيء يُقفل بعد. راجع الإعدادات أدناه واحفظها للبدء من جديد.</translation>
    </message>
    <message>
        <source>Welcome to Tarvanel</source>
        <translation>مرحبًا بك في Tarvanel</translation>
    </message>
    <message>
        <source>Get up and pray, on time</source>
        <translation>قم إلى صلاتك في وقتها</translation>
    </message>
    <message>
        <source>At each prayer time Tarvanel turns every screen black for a few minutes so you step away and pray. You get reminders before each lock. Once a lock starts there&apos;s no way out until it ends. Find your city to begin.</source>
        <translation>في كل وقت صلاة يُسوّد Tarvanel كل الشاشات بضع دقائق لتترك الحاسوب وتصلّي. تصلك تذكيرات قبل كل قفل. وما إن يبدأ القفل فلا سبيل للخروج منه حتى ينتهي. ابحث عن مدينتك للبدء.</translation>
    </message>
    <message>
        <source>Preview Lock</source>
        <translation>معاينة القفل</translation>
    </message>
    <message>
        <source>Black out the screen for 10 seconds</source>
        <translation>تسويد الشاشة لمدة 10 ثوانٍ</translation>
    </message>
    <message>
        <source>Uninstall…</source>
        <translation>إزالة التثبيت…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Find your city or enter coordinates first.</source>
        <translation>ابحث عن مدينتك أو أدخل الإحداثيات أولًا.</translation>
    </message>
</context>
<context>
    <name>tarvanel::QtPlatform</name>
    <message>
        <source>There&apos;s no tray on this desktop, so Tarvanel runs without an icon: it still locks on time, and opening Tarvanel from the applications menu shows these settings.</source>
        <translation>لا توجد لوحة نظام في سطح المكتب هذا، لذا يعمل Tarvanel دون أيقونة: ما يزال يُقفل في الوقت، وفتح Tarvanel من قائمة التطبيقات يعرض هذه الإعدادات.</translation>
    </message>
    <message>
        <source>Welcome to Tarvanel</source>
        <extracomment>The settings window&apos;s title on the first run</extracomment>
        <translation>مرحبًا بك في Tarvanel</translation>
    </message>
    <message>
        <source>Tarvanel Settings</source>
        <translation>إعدادات Tarvanel</translation>
    </message>
</context>
<context>
    <name>tarvanel::TimetableImportModel</name>
    <message>
        <source>Couldn&apos;t read any text in %1.</source>
        <extracomment>%1 is a file&apos;s name.</extracomment>
        <translation>تعذّرت قراءة أي نص في %1.</translation>
    </message>
    <message>
        <source>No rows with prayer times found yet.</source>
        <translation>لم يُعثر بعد على صفوف فيها مواقيت صلاة.</translation>
    </message>
    <message numerus="yes">
        <source>Found %Ln rows with %1 times each.</source>
        <extracomment>%Ln is the number of rows read from a timetable, %1 the number of times in each.</extracomment>
        <translation>
            <numerusform>عُثر على %Ln صف، في كل صف %1 مواقيت.</numerusform>
            <numerusform>عُثر على صف واحد فيه %1 مواقيت.</numerusform>
            <numerusform>عُثر على صفين، في كل صف %1 مواقيت.</numerusform>
            <numerusform>عُثر على %Ln صفوف، في كل صف %1 مواقيت.</numerusform>
            <numerusform>عُثر على %Ln صفًا، في كل صف %1 مواقيت.</numerusform>
            <numerusform>عُثر على %Ln صف، في كل صف %1 مواقيت.</numerusform>
        </translation>
    </message>
    <message>
        <source>Column %1</source>
        <extracomment>A column of the timetable being imported, counted from 1.</extracomment>
        <translation>العمود %1</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <extracomment>%1 is a file&apos;s name.</extracomment>
        <translation>جارٍ قراءة %1…</translation>
    </message>
    <message>
        <source>Reading page %1 of %2…</source>
        <extracomment>While a file of several pages is read: %1 is the page, %2 the number of pages.</extracomment>
        <translation>جارٍ قراءة الصفحة %1 من %2…</translation>
    </message>
    <message numerus="yes">
        <source>Read the first %1 of %Ln pages.</source>
        <extracomment>%1 is the number of pages read, %Ln the number of pages in the file.</extracomment>
        <translation>
            <numerusform>قُرئت أول %1 صفحات من أصل %Ln صفحة.</numerusform>
            <numerusform>قُرئت أول %1 صفحات من أصل صفحة واحدة.</numerusform>
            <numerusform>قُرئت أول %1 صفحات من أصل صفحتين.</numerusform>
            <numerusform>قُرئت أول %1 صفحات من أصل %Ln صفحات.</numerusform>
            <numerusform>قُرئت أول %1 صفحات من أصل %Ln صفحة.</numerusform>
            <numerusform>قُرئت أول %1 صفحات من أصل %Ln صفحة.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Read %Ln pages.</source>
        <extracomment>After a file of several pages was read whole.</extracomment>
        <translation>
            <numerusform>قُرئت %Ln صفحة.</numerusform>
            <numerusform>قُرئت صفحة واحدة.</numerusform>
            <numerusform>قُرئت صفحتان.</numerusform>
            <numerusform>قُرئت %Ln صفحات.</numerusform>
            <numerusform>قُرئت %Ln صفحة.</numerusform>
            <numerusform>قُرئت %Ln صفحة.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tarvanel::TimetableImportView</name>
    <message>
        <source>1. Your masjid&apos;s timetable</source>
        <translation>1. جدول مواقيت مسجدك</translation>
    </message>
    <message>
        <source>Choose File…</source>
        <translation>اختيار ملف…</translation>
    </message>
    <message>
        <source>Reading</source>
        <extracomment>A busy indicator while a photo or PDF is read</extracomment>
        <translation>جارٍ القراءة</translation>
    </message>
    <message>
        <source>Paste it from the masjid&apos;s website or PDF, or choose a CSV, a photo or a screenshot of the printed sheet. Photos are read on your computer; nothing is uploaded.</source>
        <translation>الصقه من موقع المسجد أو ملف PDF، أو اختر ملف CSV أو صورة أو لقطة شاشة للورقة المطبوعة. تُقرأ الصور على حاسوبك؛ ولا يُرفع شيء.</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>الشهر</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>السنة</translation>
    </message>
    <message>
        <source>2. Which column is which</source>
        <extracomment>Jamaat and iqamah: the time the congregation prays at the masjid</extracomment>
        <translation>2. أي عمود لأي صلاة</translation>
    </message>
    <message>
        <source>Pick the jamaat (iqamah) column for each prayer, the time you actually pray. Times without AM/PM are read as morning for Fajr, midday for Dhuhr, and afternoon or evening for the rest.</source>
        <translation>اختر عمود الجماعة (الإقامة) لكل صلاة، أي الوقت الذي تصلّي فيه فعلًا. المواقيت التي بلا AM/PM تُقرأ صباحًا للفجر، وظهرًا للظهر، وعصرًا أو مساءً للبقية.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Use This Timetable</source>
        <translation>استخدام هذا الجدول</translation>
    </message>
    <message>
        <source>Timetables (*.csv *.txt *.tsv *.png *.jpg *.jpeg *.gif *.bmp *.tif *.tiff *.webp *.pdf)</source>
        <extracomment>A file type filter; keep the part in brackets as it is</extracomment>
        <translation>جداول المواقيت (*.csv *.txt *.tsv *.png *.jpg *.jpeg *.gif *.bmp *.tif *.tiff *.webp *.pdf)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <extracomment>A file type filter; keep the part in brackets as it is</extracomment>
        <translation>كل الملفات (*)</translation>
    </message>
    <message>
        <source>Read Timetable</source>
        <translation>قراءة الجدول</translation>
    </message>
    <message>
        <source>Not in the timetable</source>
        <extracomment>A prayer&apos;s column choice: the timetable has no column for this prayer</extracomment>
        <translation>ليس في الجدول</translation>
    </message>
    <message numerus="yes">
        <source>3. Preview (%Ln days)</source>
        <translation>
            <numerusform>3. معاينة (%Ln يوم)</numerusform>
            <numerusform>3. معاينة (يوم واحد)</numerusform>
            <numerusform>3. معاينة (يومان)</numerusform>
            <numerusform>3. معاينة (%Ln أيام)</numerusform>
            <numerusform>3. معاينة (%Ln يومًا)</numerusform>
            <numerusform>3. معاينة (%Ln يوم)</numerusform>
        </translation>
    </message>
    <message>
        <source>No days yet. Check the month and the columns.</source>
        <translation>لا أيام بعد. تحقّق من الشهر والأعمدة.</translation>
    </message>
</context>
</TS>
