<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ms" sourcelanguage="en">
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
        <translation>Tarvanel %1
Waktu solat yang mengunci setiap skrin, supaya anda berhenti seketika dan bersolat.

Lesen: %2

Tetapan: %3
Sejarah dan status: %4
Log: %5
Perkhidmatan log masuk: %6</translation>
    </message>
</context>
<context>
    <name>Agent</name>
    <message>
        <source>no systemd user service manager is running, and %1 cannot be written</source>
        <extracomment>%1 is a file</extracomment>
        <translation>tiada pengurus perkhidmatan pengguna systemd yang berjalan, dan %1 tidak dapat ditulis</translation>
    </message>
    <message>
        <source>no systemd user service manager is running, and %1 cannot be started</source>
        <extracomment>%1 is the program file</extracomment>
        <translation>tiada pengurus perkhidmatan pengguna systemd yang berjalan, dan %1 tidak dapat dimulakan</translation>
    </message>
    <message>
        <source>no systemd user service manager is running: it starts at login through %1</source>
        <extracomment>%1 is the autostart file that starts the program at login</extracomment>
        <translation>tiada pengurus perkhidmatan pengguna systemd yang berjalan: ia bermula semasa log masuk melalui %1</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <extracomment>%1 is a file</extracomment>
        <translation>%1 tidak dapat ditulis</translation>
    </message>
    <message>
        <source>%1 gave no answer in time</source>
        <extracomment>%1 is a command, as in &quot;systemctl --user enable --now …&quot;</extracomment>
        <translation>%1 tidak menjawab dalam tempoh yang ditetapkan</translation>
    </message>
    <message>
        <source>%1 failed with status %2</source>
        <extracomment>%1 is a command, as in &quot;systemctl --user enable --now …&quot;; %2 its exit status</extracomment>
        <translation>%1 gagal dengan status %2</translation>
    </message>
    <message>
        <source>%1 runs in the background and starts at login, so it has to be installed: copied to ~/.local/bin and added to your applications menu.</source>
        <extracomment>%1 is the program&apos;s name, Tarvanel</extracomment>
        <translation>%1 berjalan di latar belakang dan bermula semasa log masuk, jadi ia perlu dipasang: disalin ke ~/.local/bin dan ditambah ke menu aplikasi anda.</translation>
    </message>
    <message>
        <source>Install %1 in ~/.local/bin?</source>
        <extracomment>%1 is the program&apos;s name, Tarvanel</extracomment>
        <translation>Pasang %1 dalam ~/.local/bin?</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Pasang</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Keluar</translation>
    </message>
    <message>
        <source>%1 starts at login through the systemd user unit %2, and it did not start: %3.
See why with “systemctl --user status %2”, then open %1 again.</source>
        <extracomment>%1 is the program&apos;s name, Tarvanel; %2 the unit&apos;s file name; %3 why it did not start. Keep the command in quotes as it is</extracomment>
        <translation>%1 bermula semasa log masuk melalui unit pengguna systemd %2, tetapi ia tidak bermula: %3.
Lihat sebabnya dengan “systemctl --user status %2”, kemudian buka %1 semula.</translation>
    </message>
    <message>
        <source>%1 couldn&apos;t start in the background</source>
        <extracomment>%1 is the program&apos;s name, Tarvanel</extracomment>
        <translation>%1 tidak dapat bermula di latar belakang</translation>
    </message>
    <message>
        <source>Open Service Folder</source>
        <translation>Buka Folder Perkhidmatan</translation>
    </message>
    <message>
        <source>Couldn&apos;t copy %1 to %2</source>
        <extracomment>%1 is the program&apos;s name, Tarvanel; %2 a folder</extracomment>
        <translation>Tidak dapat menyalin %1 ke %2</translation>
    </message>
    <message>
        <source>Copy %1 into ~/.local/bin yourself, then open it from there.</source>
        <extracomment>%1 is the program&apos;s name, Tarvanel</extracomment>
        <translation>Salin sendiri %1 ke ~/.local/bin, kemudian bukanya dari situ.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>%1 was installed as a package</source>
        <extracomment>%1 is the program&apos;s name, Tarvanel</extracomment>
        <translation>%1 telah dipasang sebagai pakej</translation>
    </message>
    <message>
        <source>%1 no longer runs or starts at login. To remove it from this computer too, run:

sudo apt remove tarvanel</source>
        <extracomment>%1 is the program&apos;s name, Tarvanel. Keep the command as it is</extracomment>
        <translation>%1 tidak lagi berjalan atau bermula semasa log masuk. Untuk membuangnya daripada komputer ini juga, jalankan:

sudo apt remove tarvanel</translation>
    </message>
</context>
<context>
    <name>Banner</name>
    <message numerus="yes">
        <source>%1 in %Ln minutes — begin wrapping up.</source>
        <extracomment>%1 is a prayer name; the screens lock when the minutes run out</extracomment>
        <translation>
            <numerusform>%1 dalam %Ln minit — mula selesaikan kerja anda.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln minutes. Start finishing up.</source>
        <extracomment>%1 is a prayer name; the screens lock when the minutes run out</extracomment>
        <translation>
            <numerusform>%1 dalam %Ln minit. Mula menyudahkan kerja anda.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln minutes. Save your work now.</source>
        <extracomment>%1 is a prayer name; the screens lock when the minutes run out</extracomment>
        <translation>
            <numerusform>%1 dalam %Ln minit. Simpan kerja anda sekarang.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln min — the screen is about to lock. Go make wudu.</source>
        <extracomment>%1 is a prayer name. Wudu: the ablution before prayer</extracomment>
        <translation>
            <numerusform>%1 dalam %Ln minit — skrin akan dikunci. Pergilah ambil wuduk.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 ends at sunrise %2 — only %Ln min left!</source>
        <extracomment>%1 is the prayer name Fajr, %2 the time of sunrise</extracomment>
        <translation>
            <numerusform>%1 berakhir ketika syuruk %2 — tinggal %Ln minit sahaja!</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 tonight — don&apos;t miss it.</source>
        <extracomment>%1 is the Ramadan night prayer, Tarawih</extracomment>
        <translation>%1 malam ini — jangan terlepas.</translation>
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
        <translation>ISNA (Amerika Utara)</translation>
    </message>
    <message>
        <source>Egyptian General Authority</source>
        <translation>Egyptian General Authority</translation>
    </message>
    <message>
        <source>Umm al-Qura (Makkah)</source>
        <translation>Umm al-Qura (Makkah)</translation>
    </message>
    <message>
        <source>Karachi (Univ. of Islamic Sciences)</source>
        <extracomment>A calculation method: the University of Islamic Sciences, Karachi.</extracomment>
        <translation>Karachi (Univ. of Islamic Sciences)</translation>
    </message>
    <message>
        <source>Gulf Region</source>
        <extracomment>A calculation method used in the Gulf states.</extracomment>
        <translation>Rantau Teluk</translation>
    </message>
    <message>
        <source>Kuwait</source>
        <translation>Kuwait</translation>
    </message>
    <message>
        <source>Qatar</source>
        <translation>Qatar</translation>
    </message>
    <message>
        <source>Singapore, Malaysia, Indonesia</source>
        <translation>Singapura, Malaysia, Indonesia</translation>
    </message>
    <message>
        <source>UOIF (France)</source>
        <extracomment>A calculation method: UOIF, the Union of Islamic Organisations of France.</extracomment>
        <translation>UOIF (Perancis)</translation>
    </message>
    <message>
        <source>Spiritual Administration of Russia</source>
        <translation>Spiritual Administration of Russia</translation>
    </message>
    <message>
        <source>Shia Ithna-Ashari (Jafari)</source>
        <extracomment>A calculation method: the Shia Ithna-Ashari (Jafari) school.</extracomment>
        <translation>Syiah Ithna-Ashari (Jafari)</translation>
    </message>
    <message>
        <source>Institute of Geophysics, Tehran</source>
        <translation>Institute of Geophysics, Tehran</translation>
    </message>
    <message>
        <source>Hanafi, %1</source>
        <extracomment>The Asr school and the calculation method: &quot;Hanafi, Muslim World League&quot;.</extracomment>
        <translation>Hanafi, %1</translation>
    </message>
    <message>
        <source>Standard Asr, %1</source>
        <extracomment>&quot;Standard Asr&quot; (the Shafi&apos;i, Maliki and Hanbali Asr) and the calculation method: &quot;Standard Asr, Muslim World League&quot;.</extracomment>
        <translation>Asar standard, %1</translation>
    </message>
    <message>
        <source>Hanafi, custom angles</source>
        <extracomment>The Hanafi Asr with angles the user set, not a known method.</extracomment>
        <translation>Hanafi, sudut tersendiri</translation>
    </message>
    <message>
        <source>Standard Asr, custom angles</source>
        <extracomment>The standard Asr with angles the user set, not a known method.</extracomment>
        <translation>Asar standard, sudut tersendiri</translation>
    </message>
</context>
<context>
    <name>Calendar</name>
    <message>
        <source>Allow Tarvanel to add busy events to your calendars?</source>
        <translation>Benarkan Tarvanel menambah acara sibuk pada kalendar anda?</translation>
    </message>
    <message>
        <source>Tarvanel keeps its events in the calendar folders under %1, one file per event. khal shows them, and vdirsyncer syncs them with your online calendar so colleagues see you&apos;re busy.</source>
        <extracomment>%1 is a folder. khal and vdirsyncer are the names of two programs</extracomment>
        <translation>Tarvanel menyimpan acaranya dalam folder kalendar di bawah %1, satu fail bagi setiap acara. khal memaparkannya, dan vdirsyncer menyegerakkannya dengan kalendar dalam talian anda supaya rakan sekerja nampak anda sibuk.</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Benarkan</translation>
    </message>
    <message>
        <source>Don&apos;t Allow</source>
        <translation>Jangan Benarkan</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>SECONDS</source>
        <extracomment>Stands for the number of seconds given to --test-lock</extracomment>
        <translation>SAAT</translation>
    </message>
    <message>
        <source>print today&apos;s prayer and lock times and exit</source>
        <translation>cetak waktu solat dan waktu kunci hari ini, kemudian keluar</translation>
    </message>
    <message>
        <source>with --times: the day to print</source>
        <extracomment>yyyy-MM-dd is the date format typed after --date: keep it as it is</extracomment>
        <translation>dengan --times: hari yang hendak dicetak</translation>
    </message>
    <message>
        <source>install and start the per-user login service</source>
        <translation>pasang dan mulakan perkhidmatan log masuk pengguna</translation>
    </message>
    <message>
        <source>show one lock named &quot;Test&quot; for %1, then exit</source>
        <extracomment>%1 stands for the number of seconds; &quot;Test&quot; is the name the lock shows</extracomment>
        <translation>tunjukkan satu kunci skrin bernama &quot;Ujian&quot; selama %1, kemudian keluar</translation>
    </message>
    <message>
        <source>show one %1 reminder, exit 17 seconds later</source>
        <extracomment>%1 is the prayer name Asr</extracomment>
        <translation>tunjukkan satu peringatan %1, keluar 17 saat kemudian</translation>
    </message>
    <message>
        <source>show this text</source>
        <translation>tunjukkan teks ini</translation>
    </message>
    <message>
        <source>show the version</source>
        <translation>tunjukkan versi</translation>
    </message>
    <message>
        <source>Usage: tarvanel [option] [timetable file]</source>
        <extracomment>&quot;tarvanel&quot; is the command, typed as it is</extracomment>
        <translation>Penggunaan: tarvanel [pilihan] [fail jadual waktu]</translation>
    </message>
    <message>
        <source>Without options Tarvanel starts in the tray and locks the screens at prayer times.</source>
        <translation>Tanpa pilihan, Tarvanel bermula dalam dulang sistem dan mengunci skrin pada waktu solat.</translation>
    </message>
    <message>
        <source>A timetable file (CSV, text, image or PDF) opens the timetable import window.</source>
        <translation>Fail jadual waktu (CSV, teks, imej atau PDF) membuka tetingkap import jadual waktu.</translation>
    </message>
    <message>
        <source>Settings: %1. Time zone: the TZ environment variable or the system&apos;s.</source>
        <extracomment>%1 is the settings file; TZ is the name of an environment variable</extracomment>
        <translation>Tetapan: %1. Zon waktu: pemboleh ubah persekitaran TZ atau zon waktu sistem.</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <extracomment>%1 is what the user typed</extracomment>
        <translation>pilihan tidak diketahui %1</translation>
    </message>
    <message>
        <source>Tarvanel running — look for 🕌 in the tray</source>
        <translation>Tarvanel sedang berjalan — cari 🕌 dalam dulang sistem</translation>
    </message>
    <message>
        <source>Tarvanel&apos;s login service did not start</source>
        <translation>Perkhidmatan log masuk Tarvanel tidak bermula</translation>
    </message>
</context>
<context>
    <name>Config</name>
    <message>
        <source>a boolean</source>
        <extracomment>The type of a value in the settings file (config.json).</extracomment>
        <translation>nilai boolean</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>nombor</translation>
    </message>
    <message>
        <source>text</source>
        <translation>teks</translation>
    </message>
    <message>
        <source>an array</source>
        <translation>tatasusunan</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>objek</translation>
    </message>
    <message>
        <source>null</source>
        <extracomment>A JSON value that is null; &quot;null&quot; is the word written in the file.</extracomment>
        <translation>null</translation>
    </message>
    <message>
        <source>an array of numbers</source>
        <translation>tatasusunan nombor</translation>
    </message>
    <message>
        <source>an array with %1 at position %2</source>
        <extracomment>%1 is a value&apos;s type (&quot;text&quot;), %2 its position in the list.</extracomment>
        <translation>tatasusunan dengan %1 pada kedudukan %2</translation>
    </message>
    <message>
        <source>an object of texts</source>
        <translation>objek teks</translation>
    </message>
    <message>
        <source>an object with %1 at &quot;%2&quot;</source>
        <extracomment>%1 is a value&apos;s type (&quot;a number&quot;), %2 the name it is stored under.</extracomment>
        <translation>objek dengan %1 pada &quot;%2&quot;</translation>
    </message>
    <message>
        <source>a number from %1 to %2</source>
        <extracomment>%1 and %2 are the smallest and largest values a setting may have.</extracomment>
        <translation>nombor dari %1 hingga %2</translation>
    </message>
    <message>
        <source>%1: expected %2, found %3</source>
        <extracomment>An error in the settings file: %1 is the setting&apos;s name as written in the file (keep it first if you can), %2 what it should be, %3 what it is.</extracomment>
        <translation>%1: dijangka %2, ditemui %3</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <extracomment>%1 is a line number of the settings file, %2 what is wrong there.</extracomment>
        <translation>baris %1: %2</translation>
    </message>
    <message>
        <source>the top level is not an object</source>
        <extracomment>The settings file holds a value that is not a JSON object ({ … }).</extracomment>
        <translation>aras teratas bukan objek</translation>
    </message>
</context>
<context>
    <name>Dialogs</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Export History</source>
        <translation>Eksport Sejarah</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv)</source>
        <extracomment>A file type filter; keep the part in brackets as it is</extracomment>
        <translation>Nilai dipisahkan koma (*.csv)</translation>
    </message>
</context>
<context>
    <name>Hijri</name>
    <message>
        <source>%1 AH</source>
        <extracomment>A Hijri date: %1 is the day, month and year (&quot;14 Ramadan 1446&quot;); AH is the era.</extracomment>
        <translation>%1 H</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>F</source>
        <comment>first letter of Fajr, in the week&apos;s grid</comment>
        <translation>S</translation>
    </message>
    <message>
        <source>D</source>
        <comment>first letter of Dhuhr, in the week&apos;s grid</comment>
        <translation>Z</translation>
    </message>
    <message>
        <source>A</source>
        <comment>first letter of Asr, in the week&apos;s grid</comment>
        <translation>A</translation>
    </message>
    <message>
        <source>M</source>
        <comment>first letter of Maghrib, in the week&apos;s grid</comment>
        <translation>M</translation>
    </message>
    <message>
        <source>I</source>
        <comment>first letter of Isha, in the week&apos;s grid</comment>
        <translation>I</translation>
    </message>
    <message>
        <source>q</source>
        <extracomment>In the week&apos;s grid: a prayer made up later (qada), one letter.</extracomment>
        <translation>q</translation>
    </message>
    <message numerus="yes">
        <source>This week: %1/%2 prayers at the computer • streak %Ln days</source>
        <extracomment>The weekly report: %1 of 35 prayers kept at the computer; %Ln days in a row kept.</extracomment>
        <translation>
            <numerusform>Minggu ini: %1/%2 solat di komputer • rentetan %Ln hari</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImportWindow</name>
    <message>
        <source>The reader stopped unexpectedly while reading %1. Nothing was changed: try another photo or PDF, or paste the text.</source>
        <extracomment>%1 the name of the photo or PDF being read</extracomment>
        <translation>Pembaca terhenti secara tiba-tiba semasa membaca %1. Tiada apa-apa yang diubah: cuba foto atau PDF lain, atau tampal teksnya.</translation>
    </message>
    <message>
        <source>Photos and PDFs can&apos;t be read: the reader is missing (%1). Paste the text instead, or reinstall Tarvanel.</source>
        <extracomment>%1 the path of the program that reads photos and PDFs</extracomment>
        <translation>Foto dan PDF tidak dapat dibaca: pembacanya tiada (%1). Tampal teksnya sahaja, atau pasang semula Tarvanel.</translation>
    </message>
    <message>
        <source>Faj</source>
        <extracomment>Fajr shortened to fit a column of the timetable&apos;s preview</extracomment>
        <translation>Sub</translation>
    </message>
    <message>
        <source>Dhu</source>
        <extracomment>Dhuhr shortened to fit a column of the timetable&apos;s preview</extracomment>
        <translation>Zoh</translation>
    </message>
    <message>
        <source>Asr</source>
        <extracomment>Asr shortened to fit a column of the timetable&apos;s preview</extracomment>
        <translation>Asar</translation>
    </message>
    <message>
        <source>Mag</source>
        <extracomment>Maghrib shortened to fit a column of the timetable&apos;s preview</extracomment>
        <translation>Mag</translation>
    </message>
    <message>
        <source>Ish</source>
        <extracomment>Isha shortened to fit a column of the timetable&apos;s preview</extracomment>
        <translation>Isy</translation>
    </message>
    <message>
        <source>Jum</source>
        <extracomment>Jumu&apos;ah shortened to fit a column of the timetable&apos;s preview</extracomment>
        <translation>Jum</translation>
    </message>
    <message>
        <source>Import Masjid Timetable</source>
        <translation>Import Jadual Waktu Masjid</translation>
    </message>
    <message numerus="yes">
        <source>%Ln cells were hard to read and are marked in yellow: check them against the sheet.</source>
        <extracomment>Cells of the timetable&apos;s text that the reader was unsure of</extracomment>
        <translation>
            <numerusform>%Ln sel sukar dibaca dan ditanda kuning: semak dengan helaian asal.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Language</name>
    <message>
        <source>System</source>
        <translation>Sistem</translation>
    </message>
</context>
<context>
    <name>LockScreen</name>
    <message>
        <source>Screen unlocks in %1</source>
        <extracomment>%1 is the time left in minutes and seconds, as in &quot;4:59&quot;</extracomment>
        <translation>Skrin terbuka dalam %1</translation>
    </message>
    <message>
        <source>Emergency? Type your guardian&apos;s 6-digit code</source>
        <extracomment>The guardian: the person who keeps the code that ends a lock early</extracomment>
        <translation>Kecemasan? Taip kod 6 digit penjaga anda</translation>
    </message>
    <message>
        <source>That code didn&apos;t work</source>
        <translation>Kod itu tidak sah</translation>
    </message>
    <message numerus="yes">
        <source>Too many tries. Try again in %Ln minutes</source>
        <translation>
            <numerusform>Terlalu banyak cubaan. Cuba lagi dalam %Ln minit</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LockWeakness</name>
    <message>
        <source>on this desktop a lock can be left by switching windows</source>
        <extracomment>Shown on a line of its own with its first letter made a capital and &quot;%1.&quot; around it</extracomment>
        <translation>di desktop ini, kunci skrin boleh dilepasi dengan menukar tetingkap</translation>
    </message>
    <message>
        <source>on this desktop the compositor&apos;s own shortcuts may still leave a lock</source>
        <extracomment>Shown on a line of its own with its first letter made a capital and &quot;%1.&quot; around it</extracomment>
        <translation>di desktop ini, pintasan kompositor sendiri mungkin masih dapat melepasi kunci skrin</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>About Tarvanel</source>
        <translation>Perihal Tarvanel</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Tetapan…</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>Tutup Tetingkap</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <extracomment>The Edit menu; the &amp; marks its Alt key letter</extracomment>
        <translation>&amp;Sunting</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Buat Asal</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Buat Semula</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Potong</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Salin</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Tampal</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Pilih Semua</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>No Longer Excused</source>
        <extracomment>Excused: exempt from prayer for a while (menstruation, illness)</extracomment>
        <translation>Tidak Lagi Uzur</translation>
    </message>
    <message>
        <source>✓ prayed   q qada   – excused   · not kept</source>
        <extracomment>Legend of the seven-day grid. Keep the marks ✓ q – · as they are: the grid shows them</extracomment>
        <translation>✓ sudah solat   q qada   – uzur   · tidak ditunaikan</translation>
    </message>
    <message>
        <source>Tarvanel isn&apos;t set up yet</source>
        <translation>Tarvanel belum disediakan</translation>
    </message>
    <message>
        <source>Set Up Tarvanel…</source>
        <translation>Sediakan Tarvanel…</translation>
    </message>
    <message>
        <source>Ramadan</source>
        <translation>Ramadan</translation>
    </message>
    <message>
        <source>Locks paused until %1</source>
        <extracomment>%1 is a weekday and a time, as in &quot;Friday 3:15 PM&quot;</extracomment>
        <translation>Kunci skrin dijeda hingga %1</translation>
    </message>
    <message>
        <source>Excused · reminders and locks are off</source>
        <translation>Uzur · peringatan dan kunci skrin dimatikan</translation>
    </message>
    <message>
        <source>Travelling until %1</source>
        <extracomment>%1 is the last day of the journey, as in &quot;Friday 3 Oct&quot;</extracomment>
        <translation>Bermusafir hingga %1</translation>
    </message>
    <message>
        <source>Travelling until %1 · combining prayers</source>
        <extracomment>%1 is the last day of the journey, as in &quot;Friday 3 Oct&quot;</extracomment>
        <translation>Bermusafir hingga %1 · jamak solat</translation>
    </message>
    <message>
        <source>%1 locks when your call ends</source>
        <extracomment>%1 is a prayer name: its lock waits for the end of a call</extracomment>
        <translation>Kunci %1 selepas panggilan tamat</translation>
    </message>
    <message>
        <source>%1 (with %2)</source>
        <extracomment>A prayer combined with an earlier one while travelling: &quot;Asr (with Dhuhr)&quot;</extracomment>
        <translation>%1 (bersama %2)</translation>
    </message>
    <message>
        <source>(waqt %1)</source>
        <extracomment>After a lock time that differs from the computed time: %1 is the computed (waqt) time</extracomment>
        <translation>(masuk waktu %1)</translation>
    </message>
    <message>
        <source>◀ next</source>
        <extracomment>Marks the row of the next prayer; the arrow points back at its time</extracomment>
        <translation>◀ seterusnya</translation>
    </message>
    <message>
        <source>%1 ends %2</source>
        <extracomment>%1 is Suhoor, the meal before the fast; %2 the time it ends</extracomment>
        <translation>%1 berakhir %2</translation>
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
            <numerusform>Rentetan: %Ln hari</numerusform>
        </translation>
    </message>
    <message>
        <source>Mark as Prayed</source>
        <translation>Tanda Sudah Solat</translation>
    </message>
    <message>
        <source>%1: Prayed Late (Qada)</source>
        <extracomment>%1 is a prayer name; qada: a prayer made up after its time</extracomment>
        <translation>%1: Solat Lewat (Qada)</translation>
    </message>
    <message>
        <source>%1: Prayed Elsewhere</source>
        <extracomment>%1 is a prayer name, prayed at the mosque or anywhere away from the screen</extracomment>
        <translation>%1: Solat di Tempat Lain</translation>
    </message>
    <message>
        <source>Nothing to mark yet</source>
        <translation>Belum ada untuk ditanda</translation>
    </message>
    <message>
        <source>I&apos;m Excused…</source>
        <extracomment>Excused: exempt from prayer for a while (menstruation, illness)</extracomment>
        <translation>Saya Uzur…</translation>
    </message>
    <message>
        <source>Stop Travelling</source>
        <translation>Tamatkan Musafir</translation>
    </message>
    <message>
        <source>I&apos;m Travelling…</source>
        <translation>Saya Bermusafir…</translation>
    </message>
    <message>
        <source>Resume Locks</source>
        <translation>Sambung Kunci</translation>
    </message>
    <message>
        <source>Pause Locks</source>
        <extracomment>&quot;Locks&quot; is a noun: the screen locks at prayer times</extracomment>
        <translation>Jeda Kunci</translation>
    </message>
    <message>
        <source>For the Rest of Today</source>
        <translation>Untuk Baki Hari Ini</translation>
    </message>
    <message>
        <source>For 3 Days</source>
        <translation>Selama 3 Hari</translation>
    </message>
    <message>
        <source>For a Week</source>
        <translation>Selama Seminggu</translation>
    </message>
    <message>
        <source>Preview Lock (10 s)</source>
        <extracomment>Shows the lock screen for ten seconds; &quot;Lock&quot; is a noun</extracomment>
        <translation>Pratonton Kunci (10 s)</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Tetapan…</translation>
    </message>
</context>
<context>
    <name>Prayer</name>
    <message>
        <source>Fajr</source>
        <comment>the dawn prayer</comment>
        <translation>Subuh</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <comment>the time of sunrise</comment>
        <translation>Syuruk</translation>
    </message>
    <message>
        <source>Dhuhr</source>
        <comment>the noon prayer</comment>
        <translation>Zohor</translation>
    </message>
    <message>
        <source>Jumu&apos;ah</source>
        <comment>the Friday congregational prayer</comment>
        <translation>Jumaat</translation>
    </message>
    <message>
        <source>Asr</source>
        <comment>the afternoon prayer</comment>
        <translation>Asar</translation>
    </message>
    <message>
        <source>Maghrib</source>
        <comment>the sunset prayer</comment>
        <translation>Maghrib</translation>
    </message>
    <message>
        <source>Isha</source>
        <comment>the night prayer</comment>
        <translation>Isyak</translation>
    </message>
    <message>
        <source>Tarawih</source>
        <comment>the Ramadan night prayer</comment>
        <translation>Tarawih</translation>
    </message>
    <message>
        <source>Iftar</source>
        <comment>the meal that breaks the Ramadan fast</comment>
        <translation>Berbuka</translation>
    </message>
    <message>
        <source>Suhoor</source>
        <comment>the meal before the Ramadan fast</comment>
        <translation>Sahur</translation>
    </message>
    <message>
        <source>%1 &amp; %2</source>
        <extracomment>Two prayers prayed together while travelling, e.g. &quot;Dhuhr &amp; Asr&quot;</extracomment>
        <translation>%1 &amp; %2</translation>
    </message>
</context>
<context>
    <name>PrayerCalendar</name>
    <message>
        <source>Prayer times</source>
        <translation>Waktu solat</translation>
    </message>
    <message>
        <source>%1 (prayer)</source>
        <extracomment>A calendar event&apos;s title: %1 is a prayer&apos;s name (&quot;Fajr (prayer)&quot;).</extracomment>
        <translation>Solat %1</translation>
    </message>
</context>
<context>
    <name>RowProblems</name>
    <message>
        <source>%1, %2</source>
        <extracomment>Items of a list before its last: &quot;4, 12&quot; in &quot;4, 12 and 19 March&quot;.</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <extracomment>The last item of a list: &quot;4 and 12&quot;, &quot;4, 12 and 19 March&quot;.</extracomment>
        <translation>%1 dan %2</translation>
    </message>
    <message>
        <source>line %1</source>
        <extracomment>A row of the pasted or read timetable text, counted from 1.</extracomment>
        <translation>baris %1</translation>
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
            <numerusform>%1 tiada waktu dalam lajur yang dipilih</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 have no day number or date</source>
        <extracomment>%1 names the rows (&quot;line 7 and line 9&quot;); %n counts them.</extracomment>
        <translation>
            <numerusform>%1 tiada nombor hari atau tarikh</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>days %1 are not in %2</source>
        <extracomment>%1 is one or more day numbers (&quot;30 and 31&quot;), %2 a month (&quot;February&quot;); %n counts the days.</extracomment>
        <translation>
            <numerusform>tarikh %1 tiada dalam bulan %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 appear twice (the later rows are used)</source>
        <extracomment>%1 names the rows (&quot;4 and 5 March&quot;); %n counts them.</extracomment>
        <translation>
            <numerusform>%1 muncul dua kali (baris yang kemudian digunakan)</numerusform>
        </translation>
    </message>
    <message>
        <source>; </source>
        <extracomment>Separates the reasons in the sentence below: &quot;… in a chosen column; line 7 has …&quot;.</extracomment>
        <translation>; </translation>
    </message>
    <message numerus="yes">
        <source>%Ln rows can&apos;t be used: %1.</source>
        <extracomment>%Ln counts the rows, %1 gives the reasons (&quot;4 March is missing a time in a chosen column&quot;).</extracomment>
        <translation>
            <numerusform>%Ln baris tidak dapat digunakan: %1.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Language</source>
        <translation>Bahasa</translation>
    </message>
    <message>
        <source>The menu and every window opened from now on use this language. System follows your desktop&apos;s.</source>
        <translation>Menu dan setiap tetingkap yang dibuka mulai sekarang menggunakan bahasa ini. Sistem mengikut bahasa desktop anda.</translation>
    </message>
    <message>
        <source>The GNOME Shell extension is on: a lock covers every screen.</source>
        <translation>Sambungan GNOME Shell dihidupkan: kunci skrin meliputi setiap skrin.</translation>
    </message>
    <message>
        <source>The GNOME Shell extension is off, so GNOME&apos;s shortcuts still work during a lock.</source>
        <translation>Sambungan GNOME Shell dimatikan, jadi pintasan GNOME masih berfungsi semasa kunci skrin.</translation>
    </message>
    <message>
        <source>Enable the GNOME Shell extension</source>
        <translation>Dayakan sambungan GNOME Shell</translation>
    </message>
    <message>
        <source>The GNOME Shell extension is on.</source>
        <translation>Sambungan GNOME Shell dihidupkan.</translation>
    </message>
    <message>
        <source>Log out and back in to load it.</source>
        <translation>Log keluar dan log masuk semula untuk memuatkannya.</translation>
    </message>
    <message>
        <source>Adhan</source>
        <extracomment>The call to prayer</extracomment>
        <translation>Azan</translation>
    </message>
    <message>
        <source>Pick any MP3, M4A, AIFF or WAV file.</source>
        <translation>Pilih mana-mana fail MP3, M4A, AIFF atau WAV.</translation>
    </message>
    <message>
        <source>Play the adhan when a lock starts</source>
        <translation>Mainkan azan apabila kunci skrin bermula</translation>
    </message>
    <message>
        <source>Play</source>
        <extracomment>A button: play the chosen adhan</extracomment>
        <translation>Main</translation>
    </message>
    <message>
        <source>Choose Sound…</source>
        <translation>Pilih Bunyi…</translation>
    </message>
    <message>
        <source>Choose Sound</source>
        <translation>Pilih Bunyi</translation>
    </message>
    <message>
        <source>Sounds (*.mp3 *.m4a *.aif *.aiff *.wav)</source>
        <extracomment>A file type filter; keep the part in brackets as it is</extracomment>
        <translation>Bunyi (*.mp3 *.m4a *.aif *.aiff *.wav)</translation>
    </message>
    <message>
        <source>Use This Adhan</source>
        <translation>Guna Azan Ini</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>A button: stop using the chosen adhan
----------
A button: remove the guardian&apos;s code</extracomment>
        <translation>Buang</translation>
    </message>
    <message>
        <source>None (a chime plays)</source>
        <translation>Tiada (bunyi loceng)</translation>
    </message>
    <message>
        <source>Stop</source>
        <extracomment>A button: stop the adhan that plays</extracomment>
        <translation>Henti</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Bunyi</translation>
    </message>
    <message>
        <source>Calculation</source>
        <translation>Pengiraan</translation>
    </message>
    <message>
        <source>Custom angles</source>
        <extracomment>The calculation method of one&apos;s own: the sun&apos;s angles below the horizon for Fajr and Isha</extracomment>
        <translation>Sudut tersendiri</translation>
    </message>
    <message>
        <source>Method</source>
        <extracomment>The calculation method of prayer times</extracomment>
        <translation>Kaedah</translation>
    </message>
    <message>
        <source>Fajr angle</source>
        <extracomment>The sun&apos;s angle below the horizon at which Fajr starts</extracomment>
        <translation>Sudut Subuh</translation>
    </message>
    <message>
        <source>Isha angle</source>
        <extracomment>The sun&apos;s angle below the horizon at which Isha starts</extracomment>
        <translation>Sudut Isyak</translation>
    </message>
    <message>
        <source>Standard (Shafi&apos;i, Maliki, Hanbali)</source>
        <extracomment>The way of reckoning the Asr time shared by the Shafi&apos;i, Maliki and Hanbali schools</extracomment>
        <translation>Standard (Syafie, Maliki, Hanbali)</translation>
    </message>
    <message>
        <source>Hanafi</source>
        <extracomment>The Hanafi school&apos;s later Asr time</extracomment>
        <translation>Hanafi</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalendar</translation>
    </message>
    <message>
        <source>Adds each lock as a Busy event for the next 7 days, so colleagues see you&apos;re busy and don&apos;t book meetings over salah. Pick your work calendar. Turning this off removes the events.
On Linux the calendars are the folders under ~/.local/share/calendars (khal and vdirsyncer use them too).</source>
        <extracomment>Busy is how the event shows in others&apos; calendars; khal and vdirsyncer are programs</extracomment>
        <translation>Menambah setiap kunci skrin sebagai acara Sibuk untuk 7 hari akan datang, supaya rakan sekerja nampak anda sibuk dan tidak menetapkan mesyuarat pada waktu solat. Pilih kalendar kerja anda. Mematikan pilihan ini akan membuang acara tersebut.
Di Linux, kalendar ialah folder di bawah ~/.local/share/calendars (khal dan vdirsyncer juga menggunakannya).</translation>
    </message>
    <message>
        <source>Block prayer times in my calendar</source>
        <translation>Sekat waktu solat dalam kalendar saya</translation>
    </message>
    <message>
        <source>None</source>
        <extracomment>No calendar chosen</extracomment>
        <translation>Tiada</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>A calendar in the list: %1 its name, %2 the account or folder it belongs to</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Emergency exit</source>
        <translation>Jalan keluar kecemasan</translation>
    </message>
    <message>
        <source>Optional. Someone you trust keeps a 6-digit code in their phone. In a real emergency they read it to you and you type it on the lock screen to end the lock; that prayer isn&apos;t counted as kept. The key is stored on this computer, so this is a speed bump, not a vault.</source>
        <extracomment>“A speed bump, not a vault”: it slows a determined person down but cannot stop one</extracomment>
        <translation>Pilihan. Seseorang yang anda percayai menyimpan kod 6 digit dalam telefonnya. Dalam kecemasan sebenar, dia membacakan kod itu kepada anda dan anda menaipnya pada skrin kunci untuk menamatkan kunci; solat itu tidak dikira sebagai ditunaikan. Kunci rahsianya disimpan dalam komputer ini, jadi ini sekadar bonggol jalan, bukan peti besi.</translation>
    </message>
    <message>
        <source>Guardian code</source>
        <extracomment>The guardian&apos;s code is set; a Remove button follows</extracomment>
        <translation>Kod penjaga</translation>
    </message>
    <message>
        <source>Set Up Guardian Code…</source>
        <translation>Sediakan Kod Penjaga…</translation>
    </message>
    <message>
        <source>Extras</source>
        <translation>Tambahan</translation>
    </message>
    <message>
        <source>Ramadan mode adds suhoor and iftar times and a Tarawih reminder during Ramadan.</source>
        <translation>Mod Ramadan menambah waktu sahur dan berbuka serta peringatan Tarawih sepanjang Ramadan.</translation>
    </message>
    <message>
        <source>Ramadan mode</source>
        <translation>Mod Ramadan</translation>
    </message>
    <message>
        <source>Weekly report on Sunday evenings</source>
        <translation>Laporan mingguan pada petang Ahad</translation>
    </message>
    <message>
        <source>Streak &amp; history</source>
        <translation>Rentetan &amp; sejarah</translation>
    </message>
    <message>
        <source>I&apos;m Excused… in the menu turns off reminders and locks without breaking your streak. Mark as Prayed counts a prayer you prayed at the masjid or made up late (qada). Export saves every prayer with how it was kept as a CSV.</source>
        <extracomment>I&apos;m Excused… and Mark as Prayed are commands of the tray menu; use their translations</extracomment>
        <translation>Saya Uzur… dalam menu mematikan peringatan dan kunci skrin tanpa memutuskan rentetan anda. Tanda Sudah Solat mengira solat yang anda tunaikan di masjid atau secara qada. Eksport menyimpan setiap solat berserta cara ia ditunaikan sebagai fail CSV.</translation>
    </message>
    <message>
        <source>“I&apos;m Excused” ends by itself after</source>
        <extracomment>A number of days follows in a field; I&apos;m Excused is a command of the tray menu</extracomment>
        <translation>“Saya Uzur” tamat dengan sendirinya selepas</translation>
    </message>
    <message>
        <source> days</source>
        <extracomment>A unit after a number of days in a field; keep the leading space if your language has one</extracomment>
        <translation> hari</translation>
    </message>
    <message>
        <source>Export History…</source>
        <translation>Eksport Sejarah…</translation>
    </message>
    <message>
        <source>On Fridays Dhuhr becomes Jumu&apos;ah at this time, with a longer lock.</source>
        <translation>Pada hari Jumaat, Zohor digantikan dengan solat Jumaat pada waktu ini, dengan kunci skrin yang lebih lama.</translation>
    </message>
    <message>
        <source>Jumu&apos;ah on Fridays</source>
        <translation>Solat Jumaat</translation>
    </message>
    <message>
        <source>Jumu&apos;ah time</source>
        <translation>Waktu solat Jumaat</translation>
    </message>
    <message>
        <source>Jumu&apos;ah lock lasts</source>
        <translation>Tempoh kunci Jumaat</translation>
    </message>
    <message>
        <source> min</source>
        <extracomment>A unit after a number of minutes in a field; keep the leading space if your language has one</extracomment>
        <translation> minit</translation>
    </message>
    <message>
        <source>Places with this name</source>
        <translation>Tempat dengan nama ini</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Lokasi</translation>
    </message>
    <message>
        <source>Times are calculated on your computer, no internet needed. Your computer&apos;s time zone: %1</source>
        <extracomment>%1 the time zone&apos;s identifier, such as Europe/London</extracomment>
        <translation>Waktu dikira pada komputer anda, tanpa memerlukan internet. Zon waktu komputer anda: %1</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Bandar</translation>
    </message>
    <message>
        <source>e.g. London, Dhaka, Toronto</source>
        <extracomment>Examples of cities; use cities your readers know</extracomment>
        <translation>cth. Kuala Lumpur, Kota Bharu, Kuching</translation>
    </message>
    <message>
        <source>Find</source>
        <extracomment>A button: search for the city typed</extracomment>
        <translation>Cari</translation>
    </message>
    <message>
        <source>Using</source>
        <extracomment>The location in use: a label before the place&apos;s name and coordinates</extracomment>
        <translation>Digunakan</translation>
    </message>
    <message>
        <source>%1  %2, %3</source>
        <extracomment>%1 the place&apos;s name, %2 its latitude, %3 its longitude</extracomment>
        <translation>%1  %2, %3</translation>
    </message>
    <message>
        <source>Not set yet</source>
        <translation>Belum ditetapkan</translation>
    </message>
    <message>
        <source>Enter coordinates</source>
        <translation>Masukkan koordinat</translation>
    </message>
    <message>
        <source>Name</source>
        <extracomment>The place&apos;s name, typed with its coordinates</extracomment>
        <translation>Nama</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Latitud</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Longitud</translation>
    </message>
    <message>
        <source>During a lock every screen goes black, and the lock holds the keyboard and mouse, so the panel, window and workspace switching and the desktop&apos;s shortcuts are out of reach. There&apos;s no way to end it early except your guardian&apos;s code. If your mic or camera is in use when a lock is due, it waits for the call to end, then locks for the full time. With “Did you pray?”, answering Not Yet locks again for 5 minutes. If your computer is asleep, it locks on wake only while still inside the lock window.</source>
        <extracomment>“Did you pray?” and Not Yet are the texts of the question asked after a lock and its button</extracomment>
        <translation>Semasa kunci skrin, setiap skrin menjadi hitam dan papan kekunci serta tetikus dikawal, jadi panel, pertukaran tetingkap dan ruang kerja serta pintasan desktop tidak dapat dicapai. Tiada cara untuk menamatkannya lebih awal kecuali kod penjaga anda. Jika mikrofon atau kamera anda sedang digunakan ketika tiba masa untuk mengunci, ia menunggu panggilan tamat, kemudian mengunci untuk tempoh penuh. Dengan “Sudah solat?”, jawapan Belum Lagi akan mengunci semula selama 5 minit. Jika komputer anda dalam mod tidur, ia mengunci apabila bangun hanya jika masih dalam tempoh kunci.</translation>
    </message>
    <message>
        <source>During a lock every screen goes black, and the lock holds the keyboard and mouse, so the panel, window and workspace switching and the desktop&apos;s shortcuts are out of reach. There&apos;s no way to end it early. If your mic or camera is in use when a lock is due, it waits for the call to end, then locks for the full time. With “Did you pray?”, answering Not Yet locks again for 5 minutes. If your computer is asleep, it locks on wake only while still inside the lock window.</source>
        <extracomment>“Did you pray?” and Not Yet are the texts of the question asked after a lock and its button</extracomment>
        <translation>Semasa kunci skrin, setiap skrin menjadi hitam dan papan kekunci serta tetikus dikawal, jadi panel, pertukaran tetingkap dan ruang kerja serta pintasan desktop tidak dapat dicapai. Tiada cara untuk menamatkannya lebih awal. Jika mikrofon atau kamera anda sedang digunakan ketika tiba masa untuk mengunci, ia menunggu panggilan tamat, kemudian mengunci untuk tempoh penuh. Dengan “Sudah solat?”, jawapan Belum Lagi akan mengunci semula selama 5 minit. Jika komputer anda dalam mod tidur, ia mengunci apabila bangun hanya jika masih dalam tempoh kunci.</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>A sentence&apos;s full stop: %1 the sentence</extracomment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Lock</source>
        <extracomment>The heading of the section about the lock (a noun)</extracomment>
        <translation>Kunci skrin</translation>
    </message>
    <message>
        <source>Lock lasts</source>
        <translation>Tempoh kunci</translation>
    </message>
    <message>
        <source>Lock starts before prayer</source>
        <translation>Kunci bermula sebelum solat</translation>
    </message>
    <message>
        <source>Reminders (minutes before)</source>
        <translation>Peringatan (minit sebelum)</translation>
    </message>
    <message>
        <source>20, 10, 5, 2</source>
        <extracomment>An example of the reminders field: minutes before the lock, separated by commas</extracomment>
        <translation>20, 10, 5, 2</translation>
    </message>
    <message>
        <source>Wait for a call to end</source>
        <extracomment>How long a lock waits while the mic or camera is in use</extracomment>
        <translation>Tunggu panggilan tamat</translation>
    </message>
    <message>
        <source>Ask “Did you pray?” after each lock</source>
        <translation>Tanya “Sudah solat?” selepas setiap kunci</translation>
    </message>
    <message>
        <source>Your phone too</source>
        <translation>Telefon anda juga</translation>
    </message>
    <message>
        <source>Tarvanel runs the script “%1” when a lock starts and “%2” when it ends. The pair written for your desktop turns its notification banners off and back on; a command added to both can quiet your phone as well.</source>
        <extracomment>%1 and %2 the names of the two scripts (file names: they stay as they are)</extracomment>
        <translation>Tarvanel menjalankan skrip “%1” apabila kunci skrin bermula dan “%2” apabila ia tamat. Pasangan skrip yang ditulis untuk desktop anda mematikan dan menghidupkan semula sepanduk pemberitahuannya; arahan yang ditambah pada kedua-duanya boleh menyenyapkan telefon anda juga.</translation>
    </message>
    <message>
        <source>Run the Focus scripts during each lock</source>
        <extracomment>Focus names the pair of scripts run at the start and the end of a lock</extracomment>
        <translation>Jalankan skrip Fokus semasa setiap kunci skrin</translation>
    </message>
    <message>
        <source>Scripts</source>
        <translation>Skrip</translation>
    </message>
    <message>
        <source>Not checked yet</source>
        <translation>Belum disemak</translation>
    </message>
    <message>
        <source>Both scripts found</source>
        <translation>Kedua-dua skrip ditemui</translation>
    </message>
    <message>
        <source>Scripts missing</source>
        <translation>Skrip tiada</translation>
    </message>
    <message>
        <source>1. Choose your desktop below and press Write Scripts: it makes “%1” and “%2” in %3, which switch the desktop&apos;s notification banners off and on.
2. Or write them yourself: any executable files with those names (each may run for 30 seconds at most).
3. For your phone: add to both scripts a command of the tool that links your phone to this computer, if you use one.</source>
        <extracomment>%1 and %2 the names of the two scripts, %3 their folder; Write Scripts is a button below</extracomment>
        <translation>1. Pilih desktop anda di bawah dan tekan Tulis Skrip: ia membuat “%1” dan “%2” dalam %3, yang mematikan dan menghidupkan sepanduk pemberitahuan desktop.
2. Atau tulis sendiri: mana-mana fail boleh laku dengan nama tersebut (setiap satu boleh berjalan paling lama 30 saat).
3. Untuk telefon anda: tambah pada kedua-dua skrip satu arahan daripada alat yang menghubungkan telefon anda dengan komputer ini, jika anda menggunakannya.</translation>
    </message>
    <message>
        <source>Scripts for</source>
        <extracomment>The desktop the scripts are written for</extracomment>
        <translation>Skrip untuk</translation>
    </message>
    <message>
        <source>Write Scripts</source>
        <translation>Tulis Skrip</translation>
    </message>
    <message>
        <source>Open Shortcuts Folder</source>
        <translation>Buka Folder Pintasan</translation>
    </message>
    <message>
        <source>Check Again</source>
        <translation>Semak Semula</translation>
    </message>
    <message>
        <source>Test</source>
        <extracomment>A button: run the scripts once now to try them</extracomment>
        <translation>Uji</translation>
    </message>
    <message>
        <source>Find your city to begin</source>
        <translation>Cari bandar anda untuk bermula</translation>
    </message>
    <message>
        <source>Your location</source>
        <translation>Lokasi anda</translation>
    </message>
    <message>
        <source>%1  ·  %2 locks at %3</source>
        <extracomment>The settings window&apos;s header: %1 the place, %2 a prayer, %3 the time its lock starts</extracomment>
        <translation>%1  ·  Kunci %2 pada %3</translation>
    </message>
    <message>
        <source>Start Tarvanel</source>
        <extracomment>The button that saves the settings on the first run and starts the program</extracomment>
        <translation>Mulakan Tarvanel</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Simpan</translation>
    </message>
    <message>
        <source>h:mm AP</source>
        <extracomment>How a time of day is written, in Qt&apos;s date-time pattern letters: h hour, mm minutes, AP AM or PM. A 24-hour clock is HH:mm</extracomment>
        <translation>h:mm AP</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hari ini</translation>
    </message>
    <message>
        <source>Find your city to see today&apos;s times.</source>
        <translation>Cari bandar anda untuk melihat waktu hari ini.</translation>
    </message>
    <message>
        <source>locks %1</source>
        <extracomment>A column of today&apos;s times: %1 the time this prayer&apos;s lock starts</extracomment>
        <translation>kunci %1</translation>
    </message>
    <message>
        <source>Fajr ends at sunrise, %1.</source>
        <extracomment>%1 the time of sunrise</extracomment>
        <translation>Subuh berakhir ketika syuruk, %1.</translation>
    </message>
    <message>
        <source>Travel</source>
        <translation>Musafir</translation>
    </message>
    <message>
        <source>Travel mode checks your rough location online every 6 hours and uses local times when you&apos;re more than 50 km from home; a VPN will fool it. You can also choose I&apos;m Travelling… in the menu. Combining makes Dhuhr and Asr one lock at Dhuhr, and Maghrib and Isha one lock at Maghrib, only while travelling. Schools differ: the Hanafi school, for example, doesn&apos;t permit combining except at Arafah and Muzdalifah. Turn it on only if your school permits it.</source>
        <extracomment>I&apos;m Travelling… is a command of the tray menu</extracomment>
        <translation>Mod musafir menyemak anggaran lokasi anda dalam talian setiap 6 jam dan menggunakan waktu tempatan apabila anda berada lebih 50 km dari rumah; VPN boleh mengelirukannya. Anda juga boleh memilih Saya Bermusafir… dalam menu. Jamak menjadikan Zohor dan Asar satu kunci pada waktu Zohor, dan Maghrib serta Isyak satu kunci pada waktu Maghrib, hanya semasa musafir. Pendapat mazhab berbeza: mazhab Hanafi, contohnya, tidak membenarkan jamak kecuali di Arafah dan Muzdalifah. Hidupkan hanya jika mazhab anda membenarkannya.</translation>
    </message>
    <message>
        <source>Travel mode (follow my location)</source>
        <translation>Mod musafir (ikut lokasi saya)</translation>
    </message>
    <message>
        <source>Combine prayers while travelling</source>
        <translation>Jamak solat semasa musafir</translation>
    </message>
    <message>
        <source>%1 minutes after start</source>
        <extracomment>Read by a screen reader: %1 a prayer</extracomment>
        <translation>%1: minit selepas masuk waktu</translation>
    </message>
    <message>
        <source>%1 fixed time</source>
        <extracomment>Read by a screen reader: %1 a prayer</extracomment>
        <translation>%1: waktu tetap</translation>
    </message>
    <message>
        <source>When you pray</source>
        <translation>Waktu anda solat</translation>
    </message>
    <message>
        <source>Lock at the time you actually pray, like your mosque&apos;s jamaat, instead of the moment the time starts. An imported timetable wins on the days it covers.</source>
        <extracomment>“Lock” here is a verb; jamaat is the congregational prayer at the mosque</extracomment>
        <translation>Kunci pada waktu anda benar-benar solat, seperti waktu jemaah masjid anda, dan bukan pada saat masuk waktu. Jadual waktu yang diimport diutamakan pada hari-hari yang diliputinya.</translation>
    </message>
    <message>
        <source>Clear</source>
        <extracomment>A button: forget the imported timetable</extracomment>
        <translation>Padam</translation>
    </message>
    <message>
        <source>Masjid timetable: %1</source>
        <extracomment>%1 the imported timetable&apos;s days and dates, such as “31 days, 1 Mar 2025 – 31 Mar 2025”</extracomment>
        <translation>Jadual waktu masjid: %1</translation>
    </message>
    <message>
        <source>No masjid timetable imported</source>
        <translation>Tiada jadual waktu masjid diimport</translation>
    </message>
    <message>
        <source>Import Timetable…</source>
        <translation>Import Jadual Waktu…</translation>
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
        <translation>Ketika masuk waktu</translation>
    </message>
    <message>
        <source>After start</source>
        <extracomment>When the lock comes: some minutes after the prayer&apos;s start time.</extracomment>
        <translation>Selepas masuk waktu</translation>
    </message>
    <message>
        <source>Fixed time</source>
        <extracomment>When the lock comes: at a fixed clock time, such as a mosque&apos;s jamaat.</extracomment>
        <translation>Waktu tetap</translation>
    </message>
</context>
<context>
    <name>TimesCommand</name>
    <message>
        <source>Ramadan</source>
        <translation>Ramadan</translation>
    </message>
    <message>
        <source>Prayer</source>
        <extracomment>Column heading of the --times table: the prayer&apos;s name</extracomment>
        <translation>Solat</translation>
    </message>
    <message>
        <source>Waqt</source>
        <extracomment>Column heading of the --times table: the computed time of the prayer</extracomment>
        <translation>Masuk waktu</translation>
    </message>
    <message>
        <source>Lock at</source>
        <extracomment>Column heading of the --times table: when the screens lock</extracomment>
        <translation>Kunci pada</translation>
    </message>
    <message>
        <source>config.json is invalid (%1); printing the default settings&apos; times</source>
        <extracomment>%1 says what is wrong with the settings file config.json</extracomment>
        <translation>config.json tidak sah (%1); mencetak waktu bagi tetapan lalai</translation>
    </message>
    <message>
        <source>no place is set, so these times are for 0° N 0° E; to set yours, open Tarvanel (its settings open on the first start) or write %1</source>
        <extracomment>%1 is the settings file</extracomment>
        <translation>tiada tempat ditetapkan, jadi waktu ini untuk 0° U 0° T; untuk menetapkan tempat anda, buka Tarvanel (tetapannya dibuka pada permulaan pertama) atau tulis %1</translation>
    </message>
</context>
<context>
    <name>Timetable</name>
    <message numerus="yes">
        <source>%Ln days, %1 – %2</source>
        <extracomment>The imported timetable: %Ln days from %1 to %2 (&quot;30 days, 1 Mar 2025 – 30 Mar 2025&quot;).</extracomment>
        <translation>
            <numerusform>%Ln hari, %1 – %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Title</name>
    <message>
        <source>%1m</source>
        <extracomment>Short countdown in the tray title: %1 minutes, as in &quot;47m&quot;</extracomment>
        <translation>%1m</translation>
    </message>
    <message>
        <source>%1h %2m</source>
        <extracomment>Short countdown in the tray title: %1 hours and %2 minutes, as in &quot;1h 5m&quot;</extracomment>
        <translation>%1j %2m</translation>
    </message>
    <message>
        <source>Preview</source>
        <extracomment>Tray title while the lock started by &quot;Preview Lock&quot; in the menu shows</extracomment>
        <translation>Pratonton</translation>
    </message>
    <message>
        <source>Test</source>
        <extracomment>Tray title while the lock started by the command line&apos;s --test-lock shows</extracomment>
        <translation>Ujian</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <extracomment>Tray title: %1 is a prayer name, %2 a short countdown such as &quot;47m&quot; or &quot;1h 5m&quot;</extracomment>
        <translation>%1 dalam %2</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <extracomment>Tray title: %1 is the prayer name Fajr, %2 its time tomorrow</extracomment>
        <translation>%1 pada %2</translation>
    </message>
</context>
<context>
    <name>Travel</name>
    <message>
        <source>Travelling</source>
        <extracomment>Stands for the place&apos;s name while travelling when the location service names no city.</extracomment>
        <translation>Dalam musafir</translation>
    </message>
</context>
<context>
    <name>tarvanel::AppDelegate</name>
    <message>
        <source>config.json can&apos;t be used (%1). Tarvanel keeps the last good settings.</source>
        <extracomment>%1 says what is wrong with the settings file config.json</extracomment>
        <translation>config.json tidak dapat digunakan (%1). Tarvanel mengekalkan tetapan baik yang terakhir.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ganti</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Batal</translation>
    </message>
    <message>
        <source>Tarvanel history.csv</source>
        <extracomment>The file name the history export suggests; keep the .csv ending</extracomment>
        <translation>Sejarah Tarvanel.csv</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Couldn&apos;t export the history to %1</source>
        <extracomment>%1 is a file</extracomment>
        <translation>Tidak dapat mengeksport sejarah ke %1</translation>
    </message>
    <message numerus="yes">
        <source>Exported %Ln prayers to %1</source>
        <extracomment>%1 is a file; the count is of prayers written to it</extracomment>
        <translation>
            <numerusform>%Ln solat dieksport ke %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Uninstall Tarvanel?</source>
        <translation>Nyahpasang Tarvanel?</translation>
    </message>
    <message>
        <source>Tarvanel stops running, stops starting at login, and moves to the Trash. Your prayer times stop locking the screen.</source>
        <translation>Tarvanel akan berhenti berjalan, tidak lagi bermula semasa log masuk, dan dipindahkan ke Tong Sampah. Waktu solat anda tidak lagi mengunci skrin.</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>Nyahpasang</translation>
    </message>
    <message>
        <source>Also delete my settings and history</source>
        <translation>Padam juga tetapan dan sejarah saya</translation>
    </message>
    <message>
        <source>Turn off reminders and locks?</source>
        <extracomment>Asked on &quot;I&apos;m Excused…&quot; in the menu: exempt from prayer for a while</extracomment>
        <translation>Matikan peringatan dan kunci skrin?</translation>
    </message>
    <message numerus="yes">
        <source>They come back when you choose %1, or after %Ln days. Your streak is kept.</source>
        <extracomment>%1 is the menu item that ends the excused days</extracomment>
        <translation>
            <numerusform>Kedua-duanya kembali apabila anda memilih %1, atau selepas %Ln hari. Rentetan anda kekal.</numerusform>
        </translation>
    </message>
    <message>
        <source>Turn Off</source>
        <translation>Matikan</translation>
    </message>
    <message>
        <source>Travelling until…</source>
        <extracomment>Above a date picker: the last day of the journey</extracomment>
        <translation>Bermusafir hingga…</translation>
    </message>
    <message>
        <source>%1 and %2 become one lock, and so do %3 and %4, through the end of this day.</source>
        <extracomment>%1 and %2 are combined into one lock, and so are %3 and %4 (prayer names)</extracomment>
        <translation>%1 dan %2 menjadi satu kunci, begitu juga %3 dan %4, sehingga hujung hari ini.</translation>
    </message>
    <message>
        <source>Turn on “Combine prayers while travelling” in Settings if your school permits it.</source>
        <extracomment>The quoted text is a check box in Settings; school: of Islamic law</extracomment>
        <translation>Hidupkan “Jamak solat semasa musafir” dalam Tetapan jika mazhab anda membenarkannya.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Mula</translation>
    </message>
    <message>
        <source>Pause Tarvanel?</source>
        <translation>Jeda Tarvanel?</translation>
    </message>
    <message>
        <source>No reminders and no locks until %1 at midnight. You can resume any time from the menu.</source>
        <extracomment>%1 is a weekday and a date, as in &quot;Friday 3 October&quot;</extracomment>
        <translation>Tiada peringatan dan tiada kunci skrin hingga %1 pada tengah malam. Anda boleh menyambungnya pada bila-bila masa dari menu.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Jeda</translation>
    </message>
    <message>
        <source>%1&apos;s lock is due now: lock now?</source>
        <extracomment>%1 is a prayer name; &quot;lock now&quot; is a verb</extracomment>
        <translation>Sudah tiba masa kunci %1: kunci sekarang?</translation>
    </message>
    <message>
        <source>Resuming now turns every screen black at once. Cancel keeps the pause.</source>
        <extracomment>&quot;Cancel&quot; is the button of this question</extracomment>
        <translation>Menyambung sekarang akan menghitamkan setiap skrin serta-merta. Batal mengekalkan jeda.</translation>
    </message>
    <message>
        <source>Lock Now</source>
        <extracomment>A verb: lock the screens now</extracomment>
        <translation>Kunci Sekarang</translation>
    </message>
    <message>
        <source>Next lock: %1 at %2</source>
        <extracomment>%1 is a prayer name, %2 the time the screens lock</extracomment>
        <translation>Kunci seterusnya: %1 pada %2</translation>
    </message>
    <message>
        <source>Next lock: %1 tomorrow at %2</source>
        <extracomment>%1 is the prayer name Fajr, %2 the time the screens lock tomorrow</extracomment>
        <translation>Kunci seterusnya: %1 esok pada %2</translation>
    </message>
    <message>
        <source>Tarvanel lives in the tray: its menu has today&apos;s times and Settings.</source>
        <translation>Tarvanel berada dalam dulang sistem: menunya memaparkan waktu hari ini dan Tetapan.</translation>
    </message>
    <message>
        <source>Tarvanel is running</source>
        <translation>Tarvanel sedang berjalan</translation>
    </message>
    <message>
        <source>Set up</source>
        <extracomment>Tray title while the program has no settings yet</extracomment>
        <translation>Sediakan</translation>
    </message>
    <message>
        <source>Paused</source>
        <extracomment>Tray title while the locks are paused</extracomment>
        <translation>Dijeda</translation>
    </message>
    <message>
        <source>%1 after your call</source>
        <extracomment>Tray title: %1 is a prayer name; its lock waits for the end of a call</extracomment>
        <translation>%1 selepas panggilan</translation>
    </message>
    <message>
        <source>%1 locks when your call ends</source>
        <extracomment>%1 is a prayer name: its lock waits for the end of a call</extracomment>
        <translation>Kunci %1 selepas panggilan tamat</translation>
    </message>
    <message>
        <source>Did you pray %1?</source>
        <extracomment>%1 is a prayer name</extracomment>
        <translation>Sudah solat %1?</translation>
    </message>
    <message numerus="yes">
        <source>“Not yet” locks the screen again for %Ln minutes.</source>
        <extracomment>“Not yet” is the second button of this question</extracomment>
        <translation>
            <numerusform>“Belum Lagi” mengunci skrin semula selama %Ln minit.</numerusform>
        </translation>
    </message>
    <message>
        <source>Yes, I Prayed</source>
        <translation>Ya, Sudah Solat</translation>
    </message>
    <message>
        <source>Not Yet</source>
        <translation>Belum Lagi</translation>
    </message>
</context>
<context>
    <name>tarvanel::GuardianSetup</name>
    <message>
        <source>QR code</source>
        <translation>Kod QR</translation>
    </message>
    <message>
        <source>Ask the person you trust to scan this with an authenticator app (Google Authenticator, Microsoft Authenticator, Authy, or Apple&apos;s Passwords app), or to type the key:</source>
        <extracomment>The apps are proper names; Apple&apos;s app is called Passwords</extracomment>
        <translation>Minta orang yang anda percayai mengimbas kod ini dengan aplikasi pengesah (Google Authenticator, Microsoft Authenticator, Authy atau aplikasi Passwords Apple), atau menaip kunci rahsia ini:</translation>
    </message>
    <message>
        <source>Key</source>
        <extracomment>The secret key of the guardian&apos;s code, shown to be typed into an app</extracomment>
        <translation>Kunci rahsia</translation>
    </message>
    <message>
        <source>Code from their app</source>
        <translation>Kod daripada aplikasinya</translation>
    </message>
    <message>
        <source>Code</source>
        <extracomment>The six-digit code the guardian&apos;s app shows</extracomment>
        <translation>Kod</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Sahkan</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Batal</translation>
    </message>
</context>
<context>
    <name>tarvanel::LockView</name>
    <message>
        <source>PREVIEW</source>
        <extracomment>Above the name of a lock that is only tried out from the settings; capitals if your script has them</extracomment>
        <translation>PRATONTON</translation>
    </message>
    <message>
        <source>IT&apos;S TIME FOR</source>
        <extracomment>Above the prayer&apos;s name on the lock screen, e.g. IT&apos;S TIME FOR / Fajr; capitals if your script has them</extracomment>
        <translation>SUDAH TIBA WAKTU</translation>
    </message>
    <message>
        <source>Preview</source>
        <extracomment>The name of a lock tried out from the settings, shown in place of a prayer&apos;s name</extracomment>
        <translation>Pratonton</translation>
    </message>
    <message>
        <source>Test</source>
        <extracomment>The name of a lock started for a test, shown in place of a prayer&apos;s name</extracomment>
        <translation>Ujian</translation>
    </message>
</context>
<context>
    <name>tarvanel::PrayerSettingsModel</name>
    <message>
        <source>The settings file changed while this window was open. Save keeps what you see here; Cancel keeps the file&apos;s settings.</source>
        <extracomment>&quot;Save&quot; and &quot;Cancel&quot; are the window&apos;s buttons.</extracomment>
        <translation>Fail tetapan berubah semasa tetingkap ini dibuka. Simpan mengekalkan apa yang anda lihat di sini; Batal mengekalkan tetapan dalam fail.</translation>
    </message>
    <message>
        <source>Found %1.</source>
        <extracomment>After a city search: %1 is the place found (&quot;Leeds, England, United Kingdom&quot;).</extracomment>
        <translation>Ditemui: %1.</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>Mencari…</translation>
    </message>
    <message>
        <source>Couldn&apos;t find “%1”. Check the spelling, or enter coordinates below.</source>
        <extracomment>%1 is the place the user searched for.</extracomment>
        <translation>Tidak menemui “%1”. Semak ejaan, atau masukkan koordinat di bawah.</translation>
    </message>
    <message>
        <source>Suggested: %1, Hanafi Asr. Change it below if your mosque uses something else.</source>
        <extracomment>Follows &quot;Found &lt;place&gt;.&quot; %1 is a calculation method (&quot;Muslim World League&quot;).</extracomment>
        <translation>Dicadangkan: %1, Asar Hanafi. Tukar di bawah jika masjid anda menggunakan kaedah lain.</translation>
    </message>
    <message>
        <source>Suggested: %1. Change it below if your mosque uses something else.</source>
        <extracomment>Follows &quot;Found &lt;place&gt;.&quot; %1 is a calculation method (&quot;Muslim World League&quot;).</extracomment>
        <translation>Dicadangkan: %1. Tukar di bawah jika masjid anda menggunakan kaedah lain.</translation>
    </message>
    <message>
        <source>Heads up: your computer is set to %1, not %2. Times follow your computer&apos;s clock.</source>
        <extracomment>%1 and %2 are time zones such as &quot;Europe/London&quot; and &quot;Asia/Karachi&quot;.</extracomment>
        <translation>Perhatian: komputer anda ditetapkan kepada %1, bukan %2. Waktu mengikut jam komputer anda.</translation>
    </message>
    <message>
        <source>Asking for Calendar access…</source>
        <translation>Meminta akses Kalendar…</translation>
    </message>
    <message>
        <source>Calendar access is off. Tarvanel writes its events under ~/.local/share/calendars: turn this on again and choose Allow, and check that you can write to that folder.</source>
        <extracomment>&quot;Allow&quot; is the button of the question asking for calendar access.</extracomment>
        <translation>Akses kalendar dimatikan. Tarvanel menulis acaranya di bawah ~/.local/share/calendars: hidupkan pilihan ini semula dan pilih Benarkan, dan pastikan anda boleh menulis ke folder itu.</translation>
    </message>
    <message>
        <source>Focus on for 10 seconds… check that notifications stay quiet.</source>
        <extracomment>Focus: the desktop&apos;s do-not-disturb mode, turned on while a lock lasts.</extracomment>
        <translation>Fokus dihidupkan selama 10 saat… pastikan pemberitahuan kekal senyap.</translation>
    </message>
    <message>
        <source>Done. Focus is off again.</source>
        <translation>Selesai. Fokus dimatikan semula.</translation>
    </message>
    <message>
        <source>“%1”</source>
        <extracomment>A shortcut&apos;s name in quotation marks; use the language&apos;s own marks.</extracomment>
        <translation>“%1”</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <extracomment>Two names in a list, each already quoted: “A” and “B”.</extracomment>
        <translation>%1 dan %2</translation>
    </message>
    <message>
        <source>Replace your own %1?</source>
        <extracomment>%1 is one or two shortcut names the user wrote, already quoted.</extracomment>
        <translation>Ganti %1 anda sendiri?</translation>
    </message>
    <message>
        <source>Tarvanel&apos;s pair for %1 takes the place of what you wrote.</source>
        <extracomment>%1 is a desktop such as &quot;GNOME&quot; or &quot;XFCE&quot;.</extracomment>
        <translation>Pasangan skrip Tarvanel untuk %1 menggantikan apa yang anda tulis.</translation>
    </message>
    <message>
        <source>Kept your own %1.</source>
        <extracomment>%1 is one or two shortcut names the user wrote, already quoted.</extracomment>
        <translation>%1 anda sendiri dikekalkan.</translation>
    </message>
    <message>
        <source>Wrote %1 for %2.</source>
        <extracomment>%1 is the two quoted shortcut names (“Tarvanel Focus On” and “Tarvanel Focus Off”), %2 a desktop such as &quot;GNOME&quot;.</extracomment>
        <translation>%1 untuk %2 telah ditulis.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write %1. The log in ~/.tarvanel/log.txt says why.</source>
        <extracomment>%1 is the two quoted shortcut names.</extracomment>
        <translation>Tidak dapat menulis %1. Log dalam ~/.tarvanel/log.txt menyatakan sebabnya.</translation>
    </message>
    <message>
        <source>Guardian code is on.</source>
        <extracomment>The guardian: the person whose six-digit code ends a lock early.</extracomment>
        <translation>Kod penjaga dihidupkan.</translation>
    </message>
    <message>
        <source>That code doesn&apos;t match. Check both clocks are right and try the newest code.</source>
        <translation>Kod itu tidak sepadan. Pastikan kedua-dua jam betul dan cuba kod yang terbaharu.</translation>
    </message>
</context>
<context>
    <name>tarvanel::PrayerSettingsView</name>
    <message>
        <source>Your settings file can&apos;t be used (%1), so nothing locks yet. Check the settings below and save to start again.</source>
        <extracomment>%1 what is wrong with the settings file</extracomment>
        <translation>Fail tetapan anda tidak dapat digunakan (%1), jadi belum ada kunci skrin. Semak tetapan di bawah dan simpan untuk bermula semula.</translation>
    </message>
    <message>
        <source>Welcome to Tarvanel</source>
        <translation>Selamat datang ke Tarvanel</translation>
    </message>
    <message>
        <source>Get up and pray, on time</source>
        <translation>Bangun dan solat, tepat pada waktunya</translation>
    </message>
    <message>
        <source>At each prayer time Tarvanel turns every screen black for a few minutes so you step away and pray. You get reminders before each lock. Once a lock starts there&apos;s no way out until it ends. Find your city to begin.</source>
        <translation>Pada setiap waktu solat, Tarvanel menghitamkan setiap skrin selama beberapa minit supaya anda berhenti seketika dan bersolat. Anda menerima peringatan sebelum setiap kunci skrin. Sebaik sahaja kunci bermula, tiada jalan keluar sehingga ia tamat. Cari bandar anda untuk bermula.</translation>
    </message>
    <message>
        <source>Preview Lock</source>
        <translation>Pratonton Kunci</translation>
    </message>
    <message>
        <source>Black out the screen for 10 seconds</source>
        <translation>Hitamkan skrin selama 10 saat</translation>
    </message>
    <message>
        <source>Uninstall…</source>
        <translation>Nyahpasang…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Batal</translation>
    </message>
    <message>
        <source>Find your city or enter coordinates first.</source>
        <translation>Cari bandar anda atau masukkan koordinat dahulu.</translation>
    </message>
</context>
<context>
    <name>tarvanel::QtPlatform</name>
    <message>
        <source>There&apos;s no tray on this desktop, so Tarvanel runs without an icon: it still locks on time, and opening Tarvanel from the applications menu shows these settings.</source>
        <translation>Tiada dulang sistem pada desktop ini, jadi Tarvanel berjalan tanpa ikon: ia tetap mengunci tepat pada waktunya, dan membuka Tarvanel dari menu aplikasi akan memaparkan tetapan ini.</translation>
    </message>
    <message>
        <source>Welcome to Tarvanel</source>
        <extracomment>The settings window&apos;s title on the first run</extracomment>
        <translation>Selamat datang ke Tarvanel</translation>
    </message>
    <message>
        <source>Tarvanel Settings</source>
        <translation>Tetapan Tarvanel</translation>
    </message>
</context>
<context>
    <name>tarvanel::TimetableImportModel</name>
    <message>
        <source>Couldn&apos;t read any text in %1.</source>
        <extracomment>%1 is a file&apos;s name.</extracomment>
        <translation>Tidak dapat membaca sebarang teks dalam %1.</translation>
    </message>
    <message>
        <source>No rows with prayer times found yet.</source>
        <translation>Belum ada baris dengan waktu solat ditemui.</translation>
    </message>
    <message numerus="yes">
        <source>Found %Ln rows with %1 times each.</source>
        <extracomment>%Ln is the number of rows read from a timetable, %1 the number of times in each.</extracomment>
        <translation>
            <numerusform>%Ln baris ditemui dengan %1 waktu setiap satu.</numerusform>
        </translation>
    </message>
    <message>
        <source>Column %1</source>
        <extracomment>A column of the timetable being imported, counted from 1.</extracomment>
        <translation>Lajur %1</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <extracomment>%1 is a file&apos;s name.</extracomment>
        <translation>Membaca %1…</translation>
    </message>
    <message>
        <source>Reading page %1 of %2…</source>
        <extracomment>While a file of several pages is read: %1 is the page, %2 the number of pages.</extracomment>
        <translation>Membaca halaman %1 daripada %2…</translation>
    </message>
    <message numerus="yes">
        <source>Read the first %1 of %Ln pages.</source>
        <extracomment>%1 is the number of pages read, %Ln the number of pages in the file.</extracomment>
        <translation>
            <numerusform>%1 halaman pertama daripada %Ln telah dibaca.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Read %Ln pages.</source>
        <extracomment>After a file of several pages was read whole.</extracomment>
        <translation>
            <numerusform>%Ln halaman telah dibaca.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tarvanel::TimetableImportView</name>
    <message>
        <source>1. Your masjid&apos;s timetable</source>
        <translation>1. Jadual waktu masjid anda</translation>
    </message>
    <message>
        <source>Choose File…</source>
        <translation>Pilih Fail…</translation>
    </message>
    <message>
        <source>Reading</source>
        <extracomment>A busy indicator while a photo or PDF is read</extracomment>
        <translation>Membaca</translation>
    </message>
    <message>
        <source>Paste it from the masjid&apos;s website or PDF, or choose a CSV, a photo or a screenshot of the printed sheet. Photos are read on your computer; nothing is uploaded.</source>
        <translation>Tampal daripada laman web atau PDF masjid, atau pilih fail CSV, foto atau tangkapan skrin helaian bercetak. Foto dibaca pada komputer anda; tiada apa-apa dimuat naik.</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Bulan</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Tahun</translation>
    </message>
    <message>
        <source>2. Which column is which</source>
        <extracomment>Jamaat and iqamah: the time the congregation prays at the masjid</extracomment>
        <translation>2. Lajur yang mana satu</translation>
    </message>
    <message>
        <source>Pick the jamaat (iqamah) column for each prayer, the time you actually pray. Times without AM/PM are read as morning for Fajr, midday for Dhuhr, and afternoon or evening for the rest.</source>
        <translation>Pilih lajur jemaah (iqamah) bagi setiap solat, iaitu waktu anda benar-benar solat. Waktu tanpa AM/PM dibaca sebagai pagi untuk Subuh, tengah hari untuk Zohor, dan petang atau malam untuk yang lain.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Batal</translation>
    </message>
    <message>
        <source>Use This Timetable</source>
        <translation>Guna Jadual Ini</translation>
    </message>
    <message>
        <source>Timetables (*.csv *.txt *.tsv *.png *.jpg *.jpeg *.gif *.bmp *.tif *.tiff *.webp *.pdf)</source>
        <extracomment>A file type filter; keep the part in brackets as it is</extracomment>
        <translation>Jadual waktu (*.csv *.txt *.tsv *.png *.jpg *.jpeg *.gif *.bmp *.tif *.tiff *.webp *.pdf)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <extracomment>A file type filter; keep the part in brackets as it is</extracomment>
        <translation>Semua fail (*)</translation>
    </message>
    <message>
        <source>Read Timetable</source>
        <translation>Baca Jadual Waktu</translation>
    </message>
    <message>
        <source>Not in the timetable</source>
        <extracomment>A prayer&apos;s column choice: the timetable has no column for this prayer</extracomment>
        <translation>Tiada dalam jadual</translation>
    </message>
    <message numerus="yes">
        <source>3. Preview (%Ln days)</source>
        <translation>
            <numerusform>3. Pratonton (%Ln hari)</numerusform>
        </translation>
    </message>
    <message>
        <source>No days yet. Check the month and the columns.</source>
        <translation>Belum ada hari. Semak bulan dan lajur.</translation>
    </message>
</context>
</TS>
