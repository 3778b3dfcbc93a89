<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr" sourcelanguage="en">
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
Her ekranı kilitleyen namaz vakitleri: işinize ara verip namazınızı kılın.

Lisans: %2

Ayarlar: %3
Geçmiş ve durum: %4
Günlük: %5
Oturum açma hizmeti: %6</translation>
    </message>
</context>
<context>
    <name>Agent</name>
    <message>
        <source>no systemd user service manager is running, and %1 cannot be written</source>
        <extracomment>%1 is a file</extracomment>
        <translation>çalışan bir systemd kullanıcı hizmet yöneticisi yok ve %1 dosyası yazılamıyor</translation>
    </message>
    <message>
        <source>no systemd user service manager is running, and %1 cannot be started</source>
        <extracomment>%1 is the program file</extracomment>
        <translation>çalışan bir systemd kullanıcı hizmet yöneticisi yok ve %1 başlatılamıyor</translation>
    </message>
    <message>
        <source>no systemd user service manager is running: it starts at login through %1</source>
        <extracomment>%1 is the autostart file that starts the program at login</extracomment>
        <translation>çalışan bir systemd kullanıcı hizmet yöneticisi yok: program oturum açılışında %1 aracılığıyla başlar</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <extracomment>%1 is a file</extracomment>
        <translation>%1 dosyası yazılamıyor</translation>
    </message>
    <message>
        <source>%1 gave no answer in time</source>
        <extracomment>%1 is a command, as in &quot;systemctl --user enable --now …&quot;</extracomment>
        <translation>%1 zamanında yanıt vermedi</translation>
    </message>
    <message>
        <source>%1 failed with status %2</source>
        <extracomment>%1 is a command, as in &quot;systemctl --user enable --now …&quot;; %2 its exit status</extracomment>
        <translation>%1 başarısız oldu (çıkış durumu %2)</translation>
    </message>
    <message>
        <source>%1 runs in the background and starts at login, so it has to be installed: copied to ~/.local/bin and added to your applications menu.</source>
        <extracomment>%1 is the program&apos;s name, Tarvanel</extracomment>
        <translation>%1 arka planda çalışır ve oturum açılışında başlar; bu yüzden yüklenmesi gerekir: ~/.local/bin klasörüne kopyalanır ve uygulamalar menünüze eklenir.</translation>
    </message>
    <message>
        <source>Install %1 in ~/.local/bin?</source>
        <extracomment>%1 is the program&apos;s name, Tarvanel</extracomment>
        <translation>%1, ~/.local/bin klasörüne yüklensin mi?</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Yükle</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Çık</translation>
    </message>
    <message>
        <source>%1 starts at login through the systemd user unit %2, and it did not start: %3.
See why with “systemctl --user status %2”, then open %1 again.</source>
        <extracomment>%1 is the program&apos;s name, Tarvanel; %2 the unit&apos;s file name; %3 why it did not start. Keep the command in quotes as it is</extracomment>
        <translation>%1, oturum açılışında %2 systemd kullanıcı birimiyle başlar, ancak başlamadı: %3.
Nedenini “systemctl --user status %2” ile görün, sonra %1 programını yeniden açın.</translation>
    </message>
    <message>
        <source>%1 couldn&apos;t start in the background</source>
        <extracomment>%1 is the program&apos;s name, Tarvanel</extracomment>
        <translation>%1 arka planda başlatılamadı</translation>
    </message>
    <message>
        <source>Open Service Folder</source>
        <translation>Hizmet Klasörünü Aç</translation>
    </message>
    <message>
        <source>Couldn&apos;t copy %1 to %2</source>
        <extracomment>%1 is the program&apos;s name, Tarvanel; %2 a folder</extracomment>
        <translation>%1, %2 klasörüne kopyalanamadı</translation>
    </message>
    <message>
        <source>Copy %1 into ~/.local/bin yourself, then open it from there.</source>
        <extracomment>%1 is the program&apos;s name, Tarvanel</extracomment>
        <translation>%1 programını ~/.local/bin klasörüne kendiniz kopyalayın, sonra oradan açın.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>%1 was installed as a package</source>
        <extracomment>%1 is the program&apos;s name, Tarvanel</extracomment>
        <translation>%1 paket olarak yüklenmiş</translation>
    </message>
    <message>
        <source>%1 no longer runs or starts at login. To remove it from this computer too, run:

sudo apt remove tarvanel</source>
        <extracomment>%1 is the program&apos;s name, Tarvanel. Keep the command as it is</extracomment>
        <translation>%1 artık çalışmıyor ve oturum açılışında başlamıyor. Bu bilgisayardan da kaldırmak için şunu çalıştırın:

sudo apt remove tarvanel</translation>
    </message>
</context>
<context>
    <name>Banner</name>
    <message numerus="yes">
        <source>%1 in %Ln minutes — begin wrapping up.</source>
        <extracomment>%1 is a prayer name; the screens lock when the minutes run out</extracomment>
        <translation>
            <numerusform>%1 namazına %Ln dakika var — toparlanmaya başlayın.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln minutes. Start finishing up.</source>
        <extracomment>%1 is a prayer name; the screens lock when the minutes run out</extracomment>
        <translation>
            <numerusform>%1 namazına %Ln dakika var. İşinizi bitirmeye başlayın.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln minutes. Save your work now.</source>
        <extracomment>%1 is a prayer name; the screens lock when the minutes run out</extracomment>
        <translation>
            <numerusform>%1 namazına %Ln dakika var. Çalışmanızı şimdi kaydedin.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln min — the screen is about to lock. Go make wudu.</source>
        <extracomment>%1 is a prayer name. Wudu: the ablution before prayer</extracomment>
        <translation>
            <numerusform>%1 namazına %Ln dk var — ekran kilitlenmek üzere. Abdest alın.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 ends at sunrise %2 — only %Ln min left!</source>
        <extracomment>%1 is the prayer name Fajr, %2 the time of sunrise</extracomment>
        <translation>
            <numerusform>%1 vakti güneşin doğuşuyla (%2) çıkıyor — yalnızca %Ln dk kaldı!</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 tonight — don&apos;t miss it.</source>
        <extracomment>%1 is the Ramadan night prayer, Tarawih</extracomment>
        <translation>Bu gece %1 namazı var — kaçırmayın.</translation>
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
        <translation>ISNA (Kuzey Amerika)</translation>
    </message>
    <message>
        <source>Egyptian General Authority</source>
        <translation>Egyptian General Authority</translation>
    </message>
    <message>
        <source>Umm al-Qura (Makkah)</source>
        <translation>Umm al-Qura (Mekke)</translation>
    </message>
    <message>
        <source>Karachi (Univ. of Islamic Sciences)</source>
        <extracomment>A calculation method: the University of Islamic Sciences, Karachi.</extracomment>
        <translation>Karachi (Univ. of Islamic Sciences)</translation>
    </message>
    <message>
        <source>Gulf Region</source>
        <extracomment>A calculation method used in the Gulf states.</extracomment>
        <translation>Körfez Bölgesi</translation>
    </message>
    <message>
        <source>Kuwait</source>
        <translation>Kuveyt</translation>
    </message>
    <message>
        <source>Qatar</source>
        <translation>Katar</translation>
    </message>
    <message>
        <source>Singapore, Malaysia, Indonesia</source>
        <translation>Singapur, Malezya, Endonezya</translation>
    </message>
    <message>
        <source>UOIF (France)</source>
        <extracomment>A calculation method: UOIF, the Union of Islamic Organisations of France.</extracomment>
        <translation>UOIF (Fransa)</translation>
    </message>
    <message>
        <source>Spiritual Administration of Russia</source>
        <translation>Spiritual Administration of Russia</translation>
    </message>
    <message>
        <source>Shia Ithna-Ashari (Jafari)</source>
        <extracomment>A calculation method: the Shia Ithna-Ashari (Jafari) school.</extracomment>
        <translation>Şii İsna Aşeri (Caferi)</translation>
    </message>
    <message>
        <source>Institute of Geophysics, Tehran</source>
        <translation>Institute of Geophysics, Tehran</translation>
    </message>
    <message>
        <source>Hanafi, %1</source>
        <extracomment>The Asr school and the calculation method: &quot;Hanafi, Muslim World League&quot;.</extracomment>
        <translation>Hanefi, %1</translation>
    </message>
    <message>
        <source>Standard Asr, %1</source>
        <extracomment>&quot;Standard Asr&quot; (the Shafi&apos;i, Maliki and Hanbali Asr) and the calculation method: &quot;Standard Asr, Muslim World League&quot;.</extracomment>
        <translation>Standart İkindi, %1</translation>
    </message>
    <message>
        <source>Hanafi, custom angles</source>
        <extracomment>The Hanafi Asr with angles the user set, not a known method.</extracomment>
        <translation>Hanefi, özel açılar</translation>
    </message>
    <message>
        <source>Standard Asr, custom angles</source>
        <extracomment>The standard Asr with angles the user set, not a known method.</extracomment>
        <translation>Standart İkindi, özel açılar</translation>
    </message>
</context>
<context>
    <name>Calendar</name>
    <message>
        <source>Allow Tarvanel to add busy events to your calendars?</source>
        <translation>Tarvanel takvimlerinize “meşgul” etkinlikleri ekleyebilsin mi?</translation>
    </message>
    <message>
        <source>Tarvanel keeps its events in the calendar folders under %1, one file per event. khal shows them, and vdirsyncer syncs them with your online calendar so colleagues see you&apos;re busy.</source>
        <extracomment>%1 is a folder. khal and vdirsyncer are the names of two programs</extracomment>
        <translation>Tarvanel etkinliklerini %1 altındaki takvim klasörlerinde, her etkinlik için bir dosya olarak tutar. khal bunları gösterir, vdirsyncer da çevrimiçi takviminizle eşitler; böylece iş arkadaşlarınız meşgul olduğunuzu görür.</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>İzin Ver</translation>
    </message>
    <message>
        <source>Don&apos;t Allow</source>
        <translation>İzin Verme</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>SECONDS</source>
        <extracomment>Stands for the number of seconds given to --test-lock</extracomment>
        <translation>SANİYE</translation>
    </message>
    <message>
        <source>print today&apos;s prayer and lock times and exit</source>
        <translation>bugünün namaz ve kilit saatlerini yazdır ve çık</translation>
    </message>
    <message>
        <source>with --times: the day to print</source>
        <extracomment>yyyy-MM-dd is the date format typed after --date: keep it as it is</extracomment>
        <translation>--times ile: yazdırılacak gün</translation>
    </message>
    <message>
        <source>install and start the per-user login service</source>
        <translation>kullanıcıya özel oturum açma hizmetini yükle ve başlat</translation>
    </message>
    <message>
        <source>show one lock named &quot;Test&quot; for %1, then exit</source>
        <extracomment>%1 stands for the number of seconds; &quot;Test&quot; is the name the lock shows</extracomment>
        <translation>%1 boyunca &quot;Test&quot; adlı bir kilit göster, sonra çık</translation>
    </message>
    <message>
        <source>show one %1 reminder, exit 17 seconds later</source>
        <extracomment>%1 is the prayer name Asr</extracomment>
        <translation>bir %1 hatırlatması göster, 17 saniye sonra çık</translation>
    </message>
    <message>
        <source>show this text</source>
        <translation>bu metni göster</translation>
    </message>
    <message>
        <source>show the version</source>
        <translation>sürümü göster</translation>
    </message>
    <message>
        <source>Usage: tarvanel [option] [timetable file]</source>
        <extracomment>&quot;tarvanel&quot; is the command, typed as it is</extracomment>
        <translation>Kullanım: tarvanel [seçenek] [vakit çizelgesi dosyası]</translation>
    </message>
    <message>
        <source>Without options Tarvanel starts in the tray and locks the screens at prayer times.</source>
        <translation>Seçenek verilmezse Tarvanel sistem tepsisinde başlar ve namaz vakitlerinde ekranları kilitler.</translation>
    </message>
    <message>
        <source>A timetable file (CSV, text, image or PDF) opens the timetable import window.</source>
        <translation>Bir vakit çizelgesi dosyası (CSV, metin, görüntü ya da PDF) çizelge içe aktarma penceresini açar.</translation>
    </message>
    <message>
        <source>Settings: %1. Time zone: the TZ environment variable or the system&apos;s.</source>
        <extracomment>%1 is the settings file; TZ is the name of an environment variable</extracomment>
        <translation>Ayarlar: %1. Saat dilimi: TZ ortam değişkeni ya da sistemin saat dilimi.</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <extracomment>%1 is what the user typed</extracomment>
        <translation>bilinmeyen seçenek %1</translation>
    </message>
    <message>
        <source>Tarvanel running — look for 🕌 in the tray</source>
        <translation>Tarvanel çalışıyor — sistem tepsisinde 🕌 simgesine bakın</translation>
    </message>
    <message>
        <source>Tarvanel&apos;s login service did not start</source>
        <translation>Tarvanel&apos;in oturum açma hizmeti başlamadı</translation>
    </message>
</context>
<context>
    <name>Config</name>
    <message>
        <source>a boolean</source>
        <extracomment>The type of a value in the settings file (config.json).</extracomment>
        <translation>bir mantıksal değer (true/false)</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>bir sayı</translation>
    </message>
    <message>
        <source>text</source>
        <translation>metin</translation>
    </message>
    <message>
        <source>an array</source>
        <translation>bir dizi</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>bir nesne</translation>
    </message>
    <message>
        <source>null</source>
        <extracomment>A JSON value that is null; &quot;null&quot; is the word written in the file.</extracomment>
        <translation>null</translation>
    </message>
    <message>
        <source>an array of numbers</source>
        <translation>bir sayı dizisi</translation>
    </message>
    <message>
        <source>an array with %1 at position %2</source>
        <extracomment>%1 is a value&apos;s type (&quot;text&quot;), %2 its position in the list.</extracomment>
        <translation>%2. konumunda %1 bulunan bir dizi</translation>
    </message>
    <message>
        <source>an object of texts</source>
        <translation>metinlerden oluşan bir nesne</translation>
    </message>
    <message>
        <source>an object with %1 at &quot;%2&quot;</source>
        <extracomment>%1 is a value&apos;s type (&quot;a number&quot;), %2 the name it is stored under.</extracomment>
        <translation>&quot;%2&quot; anahtarında %1 bulunan bir nesne</translation>
    </message>
    <message>
        <source>a number from %1 to %2</source>
        <extracomment>%1 and %2 are the smallest and largest values a setting may have.</extracomment>
        <translation>%1 ile %2 arasında bir sayı</translation>
    </message>
    <message>
        <source>%1: expected %2, found %3</source>
        <extracomment>An error in the settings file: %1 is the setting&apos;s name as written in the file (keep it first if you can), %2 what it should be, %3 what it is.</extracomment>
        <translation>%1: beklenen %2, bulunan %3</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <extracomment>%1 is a line number of the settings file, %2 what is wrong there.</extracomment>
        <translation>satır %1: %2</translation>
    </message>
    <message>
        <source>the top level is not an object</source>
        <extracomment>The settings file holds a value that is not a JSON object ({ … }).</extracomment>
        <translation>en üst düzey bir nesne değil</translation>
    </message>
</context>
<context>
    <name>Dialogs</name>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Export History</source>
        <translation>Geçmişi Dışa Aktar</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv)</source>
        <extracomment>A file type filter; keep the part in brackets as it is</extracomment>
        <translation>Virgülle ayrılmış değerler (*.csv)</translation>
    </message>
</context>
<context>
    <name>Hijri</name>
    <message>
        <source>%1 AH</source>
        <extracomment>A Hijri date: %1 is the day, month and year (&quot;14 Ramadan 1446&quot;); AH is the era.</extracomment>
        <translation>Hicri %1</translation>
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
        <translation>Ö</translation>
    </message>
    <message>
        <source>A</source>
        <comment>first letter of Asr, in the week&apos;s grid</comment>
        <translation>İ</translation>
    </message>
    <message>
        <source>M</source>
        <comment>first letter of Maghrib, in the week&apos;s grid</comment>
        <translation>A</translation>
    </message>
    <message>
        <source>I</source>
        <comment>first letter of Isha, in the week&apos;s grid</comment>
        <translation>Y</translation>
    </message>
    <message>
        <source>q</source>
        <extracomment>In the week&apos;s grid: a prayer made up later (qada), one letter.</extracomment>
        <translation>k</translation>
    </message>
    <message numerus="yes">
        <source>This week: %1/%2 prayers at the computer • streak %Ln days</source>
        <extracomment>The weekly report: %1 of 35 prayers kept at the computer; %Ln days in a row kept.</extracomment>
        <translation>
            <numerusform>Bu hafta: bilgisayar başında %1/%2 namaz • seri %Ln gün</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImportWindow</name>
    <message>
        <source>The reader stopped unexpectedly while reading %1. Nothing was changed: try another photo or PDF, or paste the text.</source>
        <extracomment>%1 the name of the photo or PDF being read</extracomment>
        <translation>Okuyucu %1 dosyasını okurken beklenmedik biçimde durdu. Hiçbir şey değişmedi: başka bir fotoğraf ya da PDF deneyin veya metni yapıştırın.</translation>
    </message>
    <message>
        <source>Photos and PDFs can&apos;t be read: the reader is missing (%1). Paste the text instead, or reinstall Tarvanel.</source>
        <extracomment>%1 the path of the program that reads photos and PDFs</extracomment>
        <translation>Fotoğraflar ve PDF&apos;ler okunamıyor: okuyucu eksik (%1). Bunun yerine metni yapıştırın ya da Tarvanel&apos;i yeniden yükleyin.</translation>
    </message>
    <message>
        <source>Faj</source>
        <extracomment>Fajr shortened to fit a column of the timetable&apos;s preview</extracomment>
        <translation>Sab</translation>
    </message>
    <message>
        <source>Dhu</source>
        <extracomment>Dhuhr shortened to fit a column of the timetable&apos;s preview</extracomment>
        <translation>Öğl</translation>
    </message>
    <message>
        <source>Asr</source>
        <extracomment>Asr shortened to fit a column of the timetable&apos;s preview</extracomment>
        <translation>İkn</translation>
    </message>
    <message>
        <source>Mag</source>
        <extracomment>Maghrib shortened to fit a column of the timetable&apos;s preview</extracomment>
        <translation>Akş</translation>
    </message>
    <message>
        <source>Ish</source>
        <extracomment>Isha shortened to fit a column of the timetable&apos;s preview</extracomment>
        <translation>Yat</translation>
    </message>
    <message>
        <source>Jum</source>
        <extracomment>Jumu&apos;ah shortened to fit a column of the timetable&apos;s preview</extracomment>
        <translation>Cum</translation>
    </message>
    <message>
        <source>Import Masjid Timetable</source>
        <translation>Cami Vakit Çizelgesini İçe Aktar</translation>
    </message>
    <message numerus="yes">
        <source>%Ln cells were hard to read and are marked in yellow: check them against the sheet.</source>
        <extracomment>Cells of the timetable&apos;s text that the reader was unsure of</extracomment>
        <translation>
            <numerusform>Okunması zor %Ln hücre sarıyla işaretlendi: bunları basılı çizelgeyle karşılaştırın.</numerusform>
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
        <translation>Kilidin açılmasına %1 kaldı</translation>
    </message>
    <message>
        <source>Emergency? Type your guardian&apos;s 6-digit code</source>
        <extracomment>The guardian: the person who keeps the code that ends a lock early</extracomment>
        <translation>Acil durum mu? Koruyucunuzun 6 haneli kodunu yazın</translation>
    </message>
    <message>
        <source>That code didn&apos;t work</source>
        <translation>Bu kod kabul edilmedi</translation>
    </message>
    <message numerus="yes">
        <source>Too many tries. Try again in %Ln minutes</source>
        <translation>
            <numerusform>Çok fazla deneme. %Ln dakika sonra yeniden deneyin</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LockWeakness</name>
    <message>
        <source>on this desktop a lock can be left by switching windows</source>
        <extracomment>Shown on a line of its own with its first letter made a capital and &quot;%1.&quot; around it</extracomment>
        <translation>bu masaüstünde pencere değiştirilerek kilitten çıkılabilir</translation>
    </message>
    <message>
        <source>on this desktop the compositor&apos;s own shortcuts may still leave a lock</source>
        <extracomment>Shown on a line of its own with its first letter made a capital and &quot;%1.&quot; around it</extracomment>
        <translation>bu masaüstünde birleştiricinin kendi kısayollarıyla kilitten yine de çıkılabilir</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>About Tarvanel</source>
        <translation>Tarvanel Hakkında</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Ayarlar…</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>Pencereyi Kapat</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <extracomment>The Edit menu; the &amp; marks its Alt key letter</extracomment>
        <translation>&amp;Düzen</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Geri Al</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Yinele</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Kes</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopyala</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Yapıştır</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tümünü Seç</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>No Longer Excused</source>
        <extracomment>Excused: exempt from prayer for a while (menstruation, illness)</extracomment>
        <translation>Mazeretim Bitti</translation>
    </message>
    <message>
        <source>✓ prayed   q qada   – excused   · not kept</source>
        <extracomment>Legend of the seven-day grid. Keep the marks ✓ q – · as they are: the grid shows them</extracomment>
        <translation>✓ kılındı   k kaza   – mazeret   · kılınmadı</translation>
    </message>
    <message>
        <source>Tarvanel isn&apos;t set up yet</source>
        <translation>Tarvanel henüz ayarlanmadı</translation>
    </message>
    <message>
        <source>Set Up Tarvanel…</source>
        <translation>Tarvanel&apos;i Ayarla…</translation>
    </message>
    <message>
        <source>Ramadan</source>
        <translation>Ramazan</translation>
    </message>
    <message>
        <source>Locks paused until %1</source>
        <extracomment>%1 is a weekday and a time, as in &quot;Friday 3:15 PM&quot;</extracomment>
        <translation>Kilitler duraklatıldı, bitiş: %1</translation>
    </message>
    <message>
        <source>Excused · reminders and locks are off</source>
        <translation>Mazeretli · hatırlatmalar ve kilitler kapalı</translation>
    </message>
    <message>
        <source>Travelling until %1</source>
        <extracomment>%1 is the last day of the journey, as in &quot;Friday 3 Oct&quot;</extracomment>
        <translation>%1 tarihine kadar yolculukta</translation>
    </message>
    <message>
        <source>Travelling until %1 · combining prayers</source>
        <extracomment>%1 is the last day of the journey, as in &quot;Friday 3 Oct&quot;</extracomment>
        <translation>%1 tarihine kadar yolculukta · namazlar birleştiriliyor</translation>
    </message>
    <message>
        <source>%1 locks when your call ends</source>
        <extracomment>%1 is a prayer name: its lock waits for the end of a call</extracomment>
        <translation>%1 kilidi görüşmeniz bitince başlar</translation>
    </message>
    <message>
        <source>%1 (with %2)</source>
        <extracomment>A prayer combined with an earlier one while travelling: &quot;Asr (with Dhuhr)&quot;</extracomment>
        <translation>%1 (%2 ile)</translation>
    </message>
    <message>
        <source>(waqt %1)</source>
        <extracomment>After a lock time that differs from the computed time: %1 is the computed (waqt) time</extracomment>
        <translation>(vakit %1)</translation>
    </message>
    <message>
        <source>◀ next</source>
        <extracomment>Marks the row of the next prayer; the arrow points back at its time</extracomment>
        <translation>◀ sıradaki</translation>
    </message>
    <message>
        <source>%1 ends %2</source>
        <extracomment>%1 is Suhoor, the meal before the fast; %2 the time it ends</extracomment>
        <translation>%1 sonu: %2</translation>
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
            <numerusform>Seri: %Ln gün</numerusform>
        </translation>
    </message>
    <message>
        <source>Mark as Prayed</source>
        <translation>Kılındı İşaretle</translation>
    </message>
    <message>
        <source>%1: Prayed Late (Qada)</source>
        <extracomment>%1 is a prayer name; qada: a prayer made up after its time</extracomment>
        <translation>%1: Geç Kılındı (Kaza)</translation>
    </message>
    <message>
        <source>%1: Prayed Elsewhere</source>
        <extracomment>%1 is a prayer name, prayed at the mosque or anywhere away from the screen</extracomment>
        <translation>%1: Başka Yerde Kılındı</translation>
    </message>
    <message>
        <source>Nothing to mark yet</source>
        <translation>Henüz işaretlenecek bir şey yok</translation>
    </message>
    <message>
        <source>I&apos;m Excused…</source>
        <extracomment>Excused: exempt from prayer for a while (menstruation, illness)</extracomment>
        <translation>Mazeretliyim…</translation>
    </message>
    <message>
        <source>Stop Travelling</source>
        <translation>Yolculuğu Bitir</translation>
    </message>
    <message>
        <source>I&apos;m Travelling…</source>
        <translation>Yolculuktayım…</translation>
    </message>
    <message>
        <source>Resume Locks</source>
        <translation>Kilitleri Sürdür</translation>
    </message>
    <message>
        <source>Pause Locks</source>
        <extracomment>&quot;Locks&quot; is a noun: the screen locks at prayer times</extracomment>
        <translation>Kilitleri Duraklat</translation>
    </message>
    <message>
        <source>For the Rest of Today</source>
        <translation>Gün Sonuna Kadar</translation>
    </message>
    <message>
        <source>For 3 Days</source>
        <translation>3 Gün</translation>
    </message>
    <message>
        <source>For a Week</source>
        <translation>Bir Hafta</translation>
    </message>
    <message>
        <source>Preview Lock (10 s)</source>
        <extracomment>Shows the lock screen for ten seconds; &quot;Lock&quot; is a noun</extracomment>
        <translation>Kilidi Önizle (10 sn)</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Ayarlar…</translation>
    </message>
</context>
<context>
    <name>Prayer</name>
    <message>
        <source>Fajr</source>
        <comment>the dawn prayer</comment>
        <translation>Sabah</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <comment>the time of sunrise</comment>
        <translation>Güneş</translation>
    </message>
    <message>
        <source>Dhuhr</source>
        <comment>the noon prayer</comment>
        <translation>Öğle</translation>
    </message>
    <message>
        <source>Jumu&apos;ah</source>
        <comment>the Friday congregational prayer</comment>
        <translation>Cuma</translation>
    </message>
    <message>
        <source>Asr</source>
        <comment>the afternoon prayer</comment>
        <translation>İkindi</translation>
    </message>
    <message>
        <source>Maghrib</source>
        <comment>the sunset prayer</comment>
        <translation>Akşam</translation>
    </message>
    <message>
        <source>Isha</source>
        <comment>the night prayer</comment>
        <translation>Yatsı</translation>
    </message>
    <message>
        <source>Tarawih</source>
        <comment>the Ramadan night prayer</comment>
        <translation>Teravih</translation>
    </message>
    <message>
        <source>Iftar</source>
        <comment>the meal that breaks the Ramadan fast</comment>
        <translation>İftar</translation>
    </message>
    <message>
        <source>Suhoor</source>
        <comment>the meal before the Ramadan fast</comment>
        <translation>Sahur</translation>
    </message>
    <message>
        <source>%1 &amp; %2</source>
        <extracomment>Two prayers prayed together while travelling, e.g. &quot;Dhuhr &amp; Asr&quot;</extracomment>
        <translation>%1 ve %2</translation>
    </message>
</context>
<context>
    <name>PrayerCalendar</name>
    <message>
        <source>Prayer times</source>
        <translation>Namaz vakitleri</translation>
    </message>
    <message>
        <source>%1 (prayer)</source>
        <extracomment>A calendar event&apos;s title: %1 is a prayer&apos;s name (&quot;Fajr (prayer)&quot;).</extracomment>
        <translation>%1 namazı</translation>
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
        <translation>%1 ve %2</translation>
    </message>
    <message>
        <source>line %1</source>
        <extracomment>A row of the pasted or read timetable text, counted from 1.</extracomment>
        <translation>%1. satır</translation>
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
            <numerusform>%1 için seçilen bir sütunda saat eksik</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 have no day number or date</source>
        <extracomment>%1 names the rows (&quot;line 7 and line 9&quot;); %n counts them.</extracomment>
        <translation>
            <numerusform>%1 için gün numarası ya da tarih yok</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>days %1 are not in %2</source>
        <extracomment>%1 is one or more day numbers (&quot;30 and 31&quot;), %2 a month (&quot;February&quot;); %n counts the days.</extracomment>
        <translation>
            <numerusform>%2 ayında %1. gün yok</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 appear twice (the later rows are used)</source>
        <extracomment>%1 names the rows (&quot;4 and 5 March&quot;); %n counts them.</extracomment>
        <translation>
            <numerusform>%1 iki kez geçiyor (sonraki satırlar kullanılır)</numerusform>
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
            <numerusform>%Ln satır kullanılamıyor: %1.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Language</source>
        <translation>Dil</translation>
    </message>
    <message>
        <source>The menu and every window opened from now on use this language. System follows your desktop&apos;s.</source>
        <translation>Menü ve bundan sonra açılan her pencere bu dili kullanır. Sistem, masaüstünüzün dilini izler.</translation>
    </message>
    <message>
        <source>The GNOME Shell extension is on: a lock covers every screen.</source>
        <translation>GNOME Shell uzantısı açık: kilit her ekranı kaplar.</translation>
    </message>
    <message>
        <source>The GNOME Shell extension is off, so GNOME&apos;s shortcuts still work during a lock.</source>
        <translation>GNOME Shell uzantısı kapalı; bu yüzden kilit sırasında GNOME kısayolları çalışmaya devam eder.</translation>
    </message>
    <message>
        <source>Enable the GNOME Shell extension</source>
        <translation>GNOME Shell uzantısını etkinleştir</translation>
    </message>
    <message>
        <source>The GNOME Shell extension is on.</source>
        <translation>GNOME Shell uzantısı açık.</translation>
    </message>
    <message>
        <source>Log out and back in to load it.</source>
        <translation>Yüklemek için oturumu kapatıp yeniden açın.</translation>
    </message>
    <message>
        <source>Adhan</source>
        <extracomment>The call to prayer</extracomment>
        <translation>Ezan</translation>
    </message>
    <message>
        <source>Pick any MP3, M4A, AIFF or WAV file.</source>
        <translation>Herhangi bir MP3, M4A, AIFF ya da WAV dosyası seçin.</translation>
    </message>
    <message>
        <source>Play the adhan when a lock starts</source>
        <translation>Kilit başlarken ezanı çal</translation>
    </message>
    <message>
        <source>Play</source>
        <extracomment>A button: play the chosen adhan</extracomment>
        <translation>Çal</translation>
    </message>
    <message>
        <source>Choose Sound…</source>
        <translation>Ses Seç…</translation>
    </message>
    <message>
        <source>Choose Sound</source>
        <translation>Ses Seç</translation>
    </message>
    <message>
        <source>Sounds (*.mp3 *.m4a *.aif *.aiff *.wav)</source>
        <extracomment>A file type filter; keep the part in brackets as it is</extracomment>
        <translation>Sesler (*.mp3 *.m4a *.aif *.aiff *.wav)</translation>
    </message>
    <message>
        <source>Use This Adhan</source>
        <translation>Bu Ezanı Kullan</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>A button: stop using the chosen adhan
----------
A button: remove the guardian&apos;s code</extracomment>
        <translation>Kaldır</translation>
    </message>
    <message>
        <source>None (a chime plays)</source>
        <translation>Yok (bir zil sesi çalar)</translation>
    </message>
    <message>
        <source>Stop</source>
        <extracomment>A button: stop the adhan that plays</extracomment>
        <translation>Durdur</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Ses</translation>
    </message>
    <message>
        <source>Calculation</source>
        <translation>Hesaplama</translation>
    </message>
    <message>
        <source>Custom angles</source>
        <extracomment>The calculation method of one&apos;s own: the sun&apos;s angles below the horizon for Fajr and Isha</extracomment>
        <translation>Özel açılar</translation>
    </message>
    <message>
        <source>Method</source>
        <extracomment>The calculation method of prayer times</extracomment>
        <translation>Yöntem</translation>
    </message>
    <message>
        <source>Fajr angle</source>
        <extracomment>The sun&apos;s angle below the horizon at which Fajr starts</extracomment>
        <translation>İmsak açısı</translation>
    </message>
    <message>
        <source>Isha angle</source>
        <extracomment>The sun&apos;s angle below the horizon at which Isha starts</extracomment>
        <translation>Yatsı açısı</translation>
    </message>
    <message>
        <source>Standard (Shafi&apos;i, Maliki, Hanbali)</source>
        <extracomment>The way of reckoning the Asr time shared by the Shafi&apos;i, Maliki and Hanbali schools</extracomment>
        <translation>Standart (Şafii, Maliki, Hanbeli)</translation>
    </message>
    <message>
        <source>Hanafi</source>
        <extracomment>The Hanafi school&apos;s later Asr time</extracomment>
        <translation>Hanefi</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Takvim</translation>
    </message>
    <message>
        <source>Adds each lock as a Busy event for the next 7 days, so colleagues see you&apos;re busy and don&apos;t book meetings over salah. Pick your work calendar. Turning this off removes the events.
On Linux the calendars are the folders under ~/.local/share/calendars (khal and vdirsyncer use them too).</source>
        <extracomment>Busy is how the event shows in others&apos; calendars; khal and vdirsyncer are programs</extracomment>
        <translation>Önümüzdeki 7 gün için her kilidi Meşgul etkinliği olarak ekler; böylece iş arkadaşlarınız meşgul olduğunuzu görür ve namaz vaktine toplantı koymaz. İş takviminizi seçin. Bunu kapatmak etkinlikleri kaldırır.
Linux&apos;ta takvimler ~/.local/share/calendars altındaki klasörlerdir (khal ve vdirsyncer da bunları kullanır).</translation>
    </message>
    <message>
        <source>Block prayer times in my calendar</source>
        <translation>Namaz vakitlerini takvimimde meşgul göster</translation>
    </message>
    <message>
        <source>None</source>
        <extracomment>No calendar chosen</extracomment>
        <translation>Yok</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>A calendar in the list: %1 its name, %2 the account or folder it belongs to</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Emergency exit</source>
        <translation>Acil çıkış</translation>
    </message>
    <message>
        <source>Optional. Someone you trust keeps a 6-digit code in their phone. In a real emergency they read it to you and you type it on the lock screen to end the lock; that prayer isn&apos;t counted as kept. The key is stored on this computer, so this is a speed bump, not a vault.</source>
        <extracomment>“A speed bump, not a vault”: it slows a determined person down but cannot stop one</extracomment>
        <translation>İsteğe bağlı. Güvendiğiniz biri telefonunda 6 haneli bir kod tutar. Gerçek bir acil durumda kodu size okur, siz de kilidi bitirmek için kilit ekranına yazarsınız; o namaz kılınmış sayılmaz. Anahtar bu bilgisayarda saklanır; yani bu bir kasa değil, yalnızca bir hız kesicidir.</translation>
    </message>
    <message>
        <source>Guardian code</source>
        <extracomment>The guardian&apos;s code is set; a Remove button follows</extracomment>
        <translation>Koruyucu kodu</translation>
    </message>
    <message>
        <source>Set Up Guardian Code…</source>
        <translation>Koruyucu Kodunu Ayarla…</translation>
    </message>
    <message>
        <source>Extras</source>
        <translation>Ek özellikler</translation>
    </message>
    <message>
        <source>Ramadan mode adds suhoor and iftar times and a Tarawih reminder during Ramadan.</source>
        <translation>Ramazan modu, Ramazan boyunca sahur ve iftar saatlerini ve bir Teravih hatırlatması ekler.</translation>
    </message>
    <message>
        <source>Ramadan mode</source>
        <translation>Ramazan modu</translation>
    </message>
    <message>
        <source>Weekly report on Sunday evenings</source>
        <translation>Pazar akşamları haftalık rapor</translation>
    </message>
    <message>
        <source>Streak &amp; history</source>
        <translation>Seri ve geçmiş</translation>
    </message>
    <message>
        <source>I&apos;m Excused… in the menu turns off reminders and locks without breaking your streak. Mark as Prayed counts a prayer you prayed at the masjid or made up late (qada). Export saves every prayer with how it was kept as a CSV.</source>
        <extracomment>I&apos;m Excused… and Mark as Prayed are commands of the tray menu; use their translations</extracomment>
        <translation>Menüdeki “Mazeretliyim…” serinizi bozmadan hatırlatmaları ve kilitleri kapatır. “Kılındı İşaretle”, camide kıldığınız ya da sonradan kaza ettiğiniz bir namazı sayar. Dışa aktarma, her namazı nasıl kılındığıyla birlikte CSV olarak kaydeder.</translation>
    </message>
    <message>
        <source>“I&apos;m Excused” ends by itself after</source>
        <extracomment>A number of days follows in a field; I&apos;m Excused is a command of the tray menu</extracomment>
        <translation>“Mazeretliyim” kendiliğinden bitsin:</translation>
    </message>
    <message>
        <source> days</source>
        <extracomment>A unit after a number of days in a field; keep the leading space if your language has one</extracomment>
        <translation> gün sonra</translation>
    </message>
    <message>
        <source>Export History…</source>
        <translation>Geçmişi Dışa Aktar…</translation>
    </message>
    <message>
        <source>On Fridays Dhuhr becomes Jumu&apos;ah at this time, with a longer lock.</source>
        <translation>Cuma günleri Öğle bu saatte Cuma namazına dönüşür ve kilit daha uzun sürer.</translation>
    </message>
    <message>
        <source>Jumu&apos;ah on Fridays</source>
        <translation>Cuma günleri Cuma namazı</translation>
    </message>
    <message>
        <source>Jumu&apos;ah time</source>
        <translation>Cuma namazı saati</translation>
    </message>
    <message>
        <source>Jumu&apos;ah lock lasts</source>
        <translation>Cuma kilidi süresi</translation>
    </message>
    <message>
        <source> min</source>
        <extracomment>A unit after a number of minutes in a field; keep the leading space if your language has one</extracomment>
        <translation> dk</translation>
    </message>
    <message>
        <source>Places with this name</source>
        <translation>Bu adı taşıyan yerler</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Konum</translation>
    </message>
    <message>
        <source>Times are calculated on your computer, no internet needed. Your computer&apos;s time zone: %1</source>
        <extracomment>%1 the time zone&apos;s identifier, such as Europe/London</extracomment>
        <translation>Vakitler bilgisayarınızda hesaplanır, internet gerekmez. Bilgisayarınızın saat dilimi: %1</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Şehir</translation>
    </message>
    <message>
        <source>e.g. London, Dhaka, Toronto</source>
        <extracomment>Examples of cities; use cities your readers know</extracomment>
        <translation>ör. İstanbul, Ankara, Berlin</translation>
    </message>
    <message>
        <source>Find</source>
        <extracomment>A button: search for the city typed</extracomment>
        <translation>Bul</translation>
    </message>
    <message>
        <source>Using</source>
        <extracomment>The location in use: a label before the place&apos;s name and coordinates</extracomment>
        <translation>Kullanılan</translation>
    </message>
    <message>
        <source>%1  %2, %3</source>
        <extracomment>%1 the place&apos;s name, %2 its latitude, %3 its longitude</extracomment>
        <translation>%1  %2, %3</translation>
    </message>
    <message>
        <source>Not set yet</source>
        <translation>Henüz ayarlanmadı</translation>
    </message>
    <message>
        <source>Enter coordinates</source>
        <translation>Koordinat girin</translation>
    </message>
    <message>
        <source>Name</source>
        <extracomment>The place&apos;s name, typed with its coordinates</extracomment>
        <translation>Ad</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Enlem</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Boylam</translation>
    </message>
    <message>
        <source>During a lock every screen goes black, and the lock holds the keyboard and mouse, so the panel, window and workspace switching and the desktop&apos;s shortcuts are out of reach. There&apos;s no way to end it early except your guardian&apos;s code. If your mic or camera is in use when a lock is due, it waits for the call to end, then locks for the full time. With “Did you pray?”, answering Not Yet locks again for 5 minutes. If your computer is asleep, it locks on wake only while still inside the lock window.</source>
        <extracomment>“Did you pray?” and Not Yet are the texts of the question asked after a lock and its button</extracomment>
        <translation>Kilit sırasında her ekran kararır ve kilit klavyeyle fareyi tutar; böylece panel, pencere ve çalışma alanı geçişi ile masaüstünün kısayollarına erişilemez. Koruyucunuzun kodu dışında kilidi erken bitirmenin yolu yoktur. Kilit zamanı geldiğinde mikrofonunuz ya da kameranız kullanılıyorsa görüşmenin bitmesini bekler, sonra tam süre boyunca kilitler. “Namazınızı kıldınız mı?” açıksa Henüz Değil yanıtı 5 dakika daha kilitler. Bilgisayarınız uykudaysa, uyandığında yalnızca hâlâ kilit aralığının içindeyse kilitler.</translation>
    </message>
    <message>
        <source>During a lock every screen goes black, and the lock holds the keyboard and mouse, so the panel, window and workspace switching and the desktop&apos;s shortcuts are out of reach. There&apos;s no way to end it early. If your mic or camera is in use when a lock is due, it waits for the call to end, then locks for the full time. With “Did you pray?”, answering Not Yet locks again for 5 minutes. If your computer is asleep, it locks on wake only while still inside the lock window.</source>
        <extracomment>“Did you pray?” and Not Yet are the texts of the question asked after a lock and its button</extracomment>
        <translation>Kilit sırasında her ekran kararır ve kilit klavyeyle fareyi tutar; böylece panel, pencere ve çalışma alanı geçişi ile masaüstünün kısayollarına erişilemez. Kilidi erken bitirmenin yolu yoktur. Kilit zamanı geldiğinde mikrofonunuz ya da kameranız kullanılıyorsa görüşmenin bitmesini bekler, sonra tam süre boyunca kilitler. “Namazınızı kıldınız mı?” açıksa Henüz Değil yanıtı 5 dakika daha kilitler. Bilgisayarınız uykudaysa, uyandığında yalnızca hâlâ kilit aralığının içindeyse kilitler.</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>A sentence&apos;s full stop: %1 the sentence</extracomment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Lock</source>
        <extracomment>The heading of the section about the lock (a noun)</extracomment>
        <translation>Kilit</translation>
    </message>
    <message>
        <source>Lock lasts</source>
        <translation>Kilit süresi</translation>
    </message>
    <message>
        <source>Lock starts before prayer</source>
        <translation>Kilit namazdan önce başlar</translation>
    </message>
    <message>
        <source>Reminders (minutes before)</source>
        <translation>Hatırlatmalar (kaç dakika önce)</translation>
    </message>
    <message>
        <source>20, 10, 5, 2</source>
        <extracomment>An example of the reminders field: minutes before the lock, separated by commas</extracomment>
        <translation>20, 10, 5, 2</translation>
    </message>
    <message>
        <source>Wait for a call to end</source>
        <extracomment>How long a lock waits while the mic or camera is in use</extracomment>
        <translation>Görüşmenin bitmesini bekle</translation>
    </message>
    <message>
        <source>Ask “Did you pray?” after each lock</source>
        <translation>Her kilitten sonra “Namazınızı kıldınız mı?” diye sor</translation>
    </message>
    <message>
        <source>Your phone too</source>
        <translation>Telefonunuz da</translation>
    </message>
    <message>
        <source>Tarvanel runs the script “%1” when a lock starts and “%2” when it ends. The pair written for your desktop turns its notification banners off and back on; a command added to both can quiet your phone as well.</source>
        <extracomment>%1 and %2 the names of the two scripts (file names: they stay as they are)</extracomment>
        <translation>Tarvanel, kilit başlarken “%1”, bittiğinde “%2” betiğini çalıştırır. Masaüstünüz için yazılan bu çift, masaüstünün bildirimlerini kapatıp yeniden açar; ikisine de eklenen bir komut telefonunuzu da sessize alabilir.</translation>
    </message>
    <message>
        <source>Run the Focus scripts during each lock</source>
        <extracomment>Focus names the pair of scripts run at the start and the end of a lock</extracomment>
        <translation>Her kilit sırasında Odak betiklerini çalıştır</translation>
    </message>
    <message>
        <source>Scripts</source>
        <translation>Betikler</translation>
    </message>
    <message>
        <source>Not checked yet</source>
        <translation>Henüz denetlenmedi</translation>
    </message>
    <message>
        <source>Both scripts found</source>
        <translation>İki betik de bulundu</translation>
    </message>
    <message>
        <source>Scripts missing</source>
        <translation>Betikler eksik</translation>
    </message>
    <message>
        <source>1. Choose your desktop below and press Write Scripts: it makes “%1” and “%2” in %3, which switch the desktop&apos;s notification banners off and on.
2. Or write them yourself: any executable files with those names (each may run for 30 seconds at most).
3. For your phone: add to both scripts a command of the tool that links your phone to this computer, if you use one.</source>
        <extracomment>%1 and %2 the names of the two scripts, %3 their folder; Write Scripts is a button below</extracomment>
        <translation>1. Aşağıdan masaüstünüzü seçip Betikleri Yaz düğmesine basın: %3 klasöründe, masaüstünün bildirimlerini kapatıp açan “%1” ve “%2” betiklerini oluşturur.
2. Ya da bunları kendiniz yazın: bu adları taşıyan herhangi bir çalıştırılabilir dosya olabilir (her biri en fazla 30 saniye çalışabilir).
3. Telefonunuz için: telefonunuzu bu bilgisayara bağlayan bir araç kullanıyorsanız, o aracın bir komutunu iki betiğe de ekleyin.</translation>
    </message>
    <message>
        <source>Scripts for</source>
        <extracomment>The desktop the scripts are written for</extracomment>
        <translation>Masaüstü</translation>
    </message>
    <message>
        <source>Write Scripts</source>
        <translation>Betikleri Yaz</translation>
    </message>
    <message>
        <source>Open Shortcuts Folder</source>
        <translation>Kısayollar Klasörünü Aç</translation>
    </message>
    <message>
        <source>Check Again</source>
        <translation>Yeniden Denetle</translation>
    </message>
    <message>
        <source>Test</source>
        <extracomment>A button: run the scripts once now to try them</extracomment>
        <translation>Dene</translation>
    </message>
    <message>
        <source>Find your city to begin</source>
        <translation>Başlamak için şehrinizi bulun</translation>
    </message>
    <message>
        <source>Your location</source>
        <translation>Konumunuz</translation>
    </message>
    <message>
        <source>%1  ·  %2 locks at %3</source>
        <extracomment>The settings window&apos;s header: %1 the place, %2 a prayer, %3 the time its lock starts</extracomment>
        <translation>%1  ·  %2 kilidi: %3</translation>
    </message>
    <message>
        <source>Start Tarvanel</source>
        <extracomment>The button that saves the settings on the first run and starts the program</extracomment>
        <translation>Tarvanel&apos;i Başlat</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Kaydet</translation>
    </message>
    <message>
        <source>h:mm AP</source>
        <extracomment>How a time of day is written, in Qt&apos;s date-time pattern letters: h hour, mm minutes, AP AM or PM. A 24-hour clock is HH:mm</extracomment>
        <translation>HH:mm</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Bugün</translation>
    </message>
    <message>
        <source>Find your city to see today&apos;s times.</source>
        <translation>Bugünün vakitlerini görmek için şehrinizi bulun.</translation>
    </message>
    <message>
        <source>locks %1</source>
        <extracomment>A column of today&apos;s times: %1 the time this prayer&apos;s lock starts</extracomment>
        <translation>kilit %1</translation>
    </message>
    <message>
        <source>Fajr ends at sunrise, %1.</source>
        <extracomment>%1 the time of sunrise</extracomment>
        <translation>Sabah vakti güneşin doğuşuyla (%1) çıkar.</translation>
    </message>
    <message>
        <source>Travel</source>
        <translation>Yolculuk</translation>
    </message>
    <message>
        <source>Travel mode checks your rough location online every 6 hours and uses local times when you&apos;re more than 50 km from home; a VPN will fool it. You can also choose I&apos;m Travelling… in the menu. Combining makes Dhuhr and Asr one lock at Dhuhr, and Maghrib and Isha one lock at Maghrib, only while travelling. Schools differ: the Hanafi school, for example, doesn&apos;t permit combining except at Arafah and Muzdalifah. Turn it on only if your school permits it.</source>
        <extracomment>I&apos;m Travelling… is a command of the tray menu</extracomment>
        <translation>Yolculuk modu yaklaşık konumunuzu 6 saatte bir çevrimiçi denetler ve evinizden 50 km&apos;den fazla uzaktayken yerel vakitleri kullanır; VPN onu yanıltır. Menüden “Yolculuktayım…” komutunu da seçebilirsiniz. Birleştirme, yalnızca yolculuktayken Öğle ile İkindi namazlarını Öğle vaktinde, Akşam ile Yatsı namazlarını Akşam vaktinde tek kilit yapar. Mezhepler farklıdır: örneğin Hanefi mezhebi Arafat ve Müzdelife dışında birleştirmeye izin vermez. Yalnızca mezhebiniz izin veriyorsa açın.</translation>
    </message>
    <message>
        <source>Travel mode (follow my location)</source>
        <translation>Yolculuk modu (konumumu izle)</translation>
    </message>
    <message>
        <source>Combine prayers while travelling</source>
        <translation>Yolculukta namazları birleştir</translation>
    </message>
    <message>
        <source>%1 minutes after start</source>
        <extracomment>Read by a screen reader: %1 a prayer</extracomment>
        <translation>%1: vakit girdikten kaç dakika sonra</translation>
    </message>
    <message>
        <source>%1 fixed time</source>
        <extracomment>Read by a screen reader: %1 a prayer</extracomment>
        <translation>%1: sabit saat</translation>
    </message>
    <message>
        <source>When you pray</source>
        <translation>Ne zaman kılıyorsunuz</translation>
    </message>
    <message>
        <source>Lock at the time you actually pray, like your mosque&apos;s jamaat, instead of the moment the time starts. An imported timetable wins on the days it covers.</source>
        <extracomment>“Lock” here is a verb; jamaat is the congregational prayer at the mosque</extracomment>
        <translation>Vaktin girdiği an yerine, namazı gerçekten kıldığınız saatte kilitleyin; örneğin caminizin cemaat vaktinde. İçe aktarılmış bir vakit çizelgesi, kapsadığı günlerde önceliklidir.</translation>
    </message>
    <message>
        <source>Clear</source>
        <extracomment>A button: forget the imported timetable</extracomment>
        <translation>Temizle</translation>
    </message>
    <message>
        <source>Masjid timetable: %1</source>
        <extracomment>%1 the imported timetable&apos;s days and dates, such as “31 days, 1 Mar 2025 – 31 Mar 2025”</extracomment>
        <translation>Cami vakit çizelgesi: %1</translation>
    </message>
    <message>
        <source>No masjid timetable imported</source>
        <translation>İçe aktarılmış cami vakit çizelgesi yok</translation>
    </message>
    <message>
        <source>Import Timetable…</source>
        <translation>Çizelgeyi İçe Aktar…</translation>
    </message>
</context>
<context>
    <name>TimeFormat</name>
    <message>
        <source>dddd d MMMM yyyy</source>
        <extracomment>Qt pattern of the date above the --times table, as in &quot;Friday 3 October 2025&quot;</extracomment>
        <translation>d MMMM yyyy dddd</translation>
    </message>
    <message>
        <source>dddd d MMMM</source>
        <extracomment>Qt pattern of a weekday and a date, as in &quot;Friday 3 October&quot;</extracomment>
        <translation>d MMMM dddd</translation>
    </message>
    <message>
        <source>h:mm AP</source>
        <extracomment>Qt time pattern of a clock time: h hour, mm minutes, AP AM or PM. Write HH:mm where a 24-hour clock is usual.</extracomment>
        <translation>HH:mm</translation>
    </message>
    <message>
        <source>dddd h:mm AP</source>
        <extracomment>Qt pattern of a weekday and a clock time, as in &quot;Friday 3:15 PM&quot;</extracomment>
        <translation>dddd HH:mm</translation>
    </message>
    <message>
        <source>dddd d MMM</source>
        <extracomment>Qt pattern of a weekday and a date, as in &quot;Friday 3 Oct&quot;</extracomment>
        <translation>d MMM dddd</translation>
    </message>
    <message>
        <source>ddd d</source>
        <extracomment>Qt pattern of a short weekday and the day of the month in the seven-day grid, as in &quot;Fri 3&quot;</extracomment>
        <translation>d ddd</translation>
    </message>
</context>
<context>
    <name>TimeMode</name>
    <message>
        <source>At start time</source>
        <extracomment>When the lock comes: at the prayer&apos;s start time (its waqt).</extracomment>
        <translation>Vakit girince</translation>
    </message>
    <message>
        <source>After start</source>
        <extracomment>When the lock comes: some minutes after the prayer&apos;s start time.</extracomment>
        <translation>Vakitten sonra</translation>
    </message>
    <message>
        <source>Fixed time</source>
        <extracomment>When the lock comes: at a fixed clock time, such as a mosque&apos;s jamaat.</extracomment>
        <translation>Sabit saat</translation>
    </message>
</context>
<context>
    <name>TimesCommand</name>
    <message>
        <source>Ramadan</source>
        <translation>Ramazan</translation>
    </message>
    <message>
        <source>Prayer</source>
        <extracomment>Column heading of the --times table: the prayer&apos;s name</extracomment>
        <translation>Namaz</translation>
    </message>
    <message>
        <source>Waqt</source>
        <extracomment>Column heading of the --times table: the computed time of the prayer</extracomment>
        <translation>Vakit</translation>
    </message>
    <message>
        <source>Lock at</source>
        <extracomment>Column heading of the --times table: when the screens lock</extracomment>
        <translation>Kilit saati</translation>
    </message>
    <message>
        <source>config.json is invalid (%1); printing the default settings&apos; times</source>
        <extracomment>%1 says what is wrong with the settings file config.json</extracomment>
        <translation>config.json geçersiz (%1); varsayılan ayarların vakitleri yazdırılıyor</translation>
    </message>
    <message>
        <source>no place is set, so these times are for 0° N 0° E; to set yours, open Tarvanel (its settings open on the first start) or write %1</source>
        <extracomment>%1 is the settings file</extracomment>
        <translation>konum ayarlanmamış, bu yüzden bu vakitler 0° K 0° D içindir; kendi konumunuzu ayarlamak için Tarvanel&apos;i açın (ayarları ilk açılışta açılır) ya da %1 dosyasını yazın</translation>
    </message>
</context>
<context>
    <name>Timetable</name>
    <message numerus="yes">
        <source>%Ln days, %1 – %2</source>
        <extracomment>The imported timetable: %Ln days from %1 to %2 (&quot;30 days, 1 Mar 2025 – 30 Mar 2025&quot;).</extracomment>
        <translation>
            <numerusform>%Ln gün, %1 – %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Title</name>
    <message>
        <source>%1m</source>
        <extracomment>Short countdown in the tray title: %1 minutes, as in &quot;47m&quot;</extracomment>
        <translation>%1 dk</translation>
    </message>
    <message>
        <source>%1h %2m</source>
        <extracomment>Short countdown in the tray title: %1 hours and %2 minutes, as in &quot;1h 5m&quot;</extracomment>
        <translation>%1 sa %2 dk</translation>
    </message>
    <message>
        <source>Preview</source>
        <extracomment>Tray title while the lock started by &quot;Preview Lock&quot; in the menu shows</extracomment>
        <translation>Önizleme</translation>
    </message>
    <message>
        <source>Test</source>
        <extracomment>Tray title while the lock started by the command line&apos;s --test-lock shows</extracomment>
        <translation>Test</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <extracomment>Tray title: %1 is a prayer name, %2 a short countdown such as &quot;47m&quot; or &quot;1h 5m&quot;</extracomment>
        <translation>%1 %2 sonra</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <extracomment>Tray title: %1 is the prayer name Fajr, %2 its time tomorrow</extracomment>
        <translation>%1 %2</translation>
    </message>
</context>
<context>
    <name>Travel</name>
    <message>
        <source>Travelling</source>
        <extracomment>Stands for the place&apos;s name while travelling when the location service names no city.</extracomment>
        <translation>Yolculukta</translation>
    </message>
</context>
<context>
    <name>tarvanel::AppDelegate</name>
    <message>
        <source>config.json can&apos;t be used (%1). Tarvanel keeps the last good settings.</source>
        <extracomment>%1 says what is wrong with the settings file config.json</extracomment>
        <translation>config.json kullanılamıyor (%1). Tarvanel son geçerli ayarları kullanmaya devam ediyor.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Değiştir</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Tarvanel history.csv</source>
        <extracomment>The file name the history export suggests; keep the .csv ending</extracomment>
        <translation>Tarvanel geçmişi.csv</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Couldn&apos;t export the history to %1</source>
        <extracomment>%1 is a file</extracomment>
        <translation>Geçmiş %1 dosyasına aktarılamadı</translation>
    </message>
    <message numerus="yes">
        <source>Exported %Ln prayers to %1</source>
        <extracomment>%1 is a file; the count is of prayers written to it</extracomment>
        <translation>
            <numerusform>%Ln namaz %1 dosyasına aktarıldı</numerusform>
        </translation>
    </message>
    <message>
        <source>Uninstall Tarvanel?</source>
        <translation>Tarvanel kaldırılsın mı?</translation>
    </message>
    <message>
        <source>Tarvanel stops running, stops starting at login, and moves to the Trash. Your prayer times stop locking the screen.</source>
        <translation>Tarvanel çalışmayı ve oturum açılışında başlamayı bırakır ve Çöp Kutusu&apos;na taşınır. Namaz vakitleriniz artık ekranı kilitlemez.</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>Kaldır</translation>
    </message>
    <message>
        <source>Also delete my settings and history</source>
        <translation>Ayarlarımı ve geçmişimi de sil</translation>
    </message>
    <message>
        <source>Turn off reminders and locks?</source>
        <extracomment>Asked on &quot;I&apos;m Excused…&quot; in the menu: exempt from prayer for a while</extracomment>
        <translation>Hatırlatmalar ve kilitler kapatılsın mı?</translation>
    </message>
    <message numerus="yes">
        <source>They come back when you choose %1, or after %Ln days. Your streak is kept.</source>
        <extracomment>%1 is the menu item that ends the excused days</extracomment>
        <translation>
            <numerusform>“%1” komutunu seçtiğinizde ya da %Ln gün sonra geri gelirler. Seriniz korunur.</numerusform>
        </translation>
    </message>
    <message>
        <source>Turn Off</source>
        <translation>Kapat</translation>
    </message>
    <message>
        <source>Travelling until…</source>
        <extracomment>Above a date picker: the last day of the journey</extracomment>
        <translation>Yolculuğun son günü…</translation>
    </message>
    <message>
        <source>%1 and %2 become one lock, and so do %3 and %4, through the end of this day.</source>
        <extracomment>%1 and %2 are combined into one lock, and so are %3 and %4 (prayer names)</extracomment>
        <translation>Bugünün sonuna kadar %1 ile %2 tek kilit olur, %3 ile %4 de öyle.</translation>
    </message>
    <message>
        <source>Turn on “Combine prayers while travelling” in Settings if your school permits it.</source>
        <extracomment>The quoted text is a check box in Settings; school: of Islamic law</extracomment>
        <translation>Mezhebiniz izin veriyorsa Ayarlar&apos;da “Yolculukta namazları birleştir” seçeneğini açın.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Başlat</translation>
    </message>
    <message>
        <source>Pause Tarvanel?</source>
        <translation>Tarvanel duraklatılsın mı?</translation>
    </message>
    <message>
        <source>No reminders and no locks until %1 at midnight. You can resume any time from the menu.</source>
        <extracomment>%1 is a weekday and a date, as in &quot;Friday 3 October&quot;</extracomment>
        <translation>%1 gece yarısına kadar hatırlatma ve kilit yok. Menüden istediğiniz zaman sürdürebilirsiniz.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Duraklat</translation>
    </message>
    <message>
        <source>%1&apos;s lock is due now: lock now?</source>
        <extracomment>%1 is a prayer name; &quot;lock now&quot; is a verb</extracomment>
        <translation>%1 kilidinin zamanı geldi: şimdi kilitlensin mi?</translation>
    </message>
    <message>
        <source>Resuming now turns every screen black at once. Cancel keeps the pause.</source>
        <extracomment>&quot;Cancel&quot; is the button of this question</extracomment>
        <translation>Şimdi sürdürmek her ekranı hemen karartır. İptal, duraklatmayı korur.</translation>
    </message>
    <message>
        <source>Lock Now</source>
        <extracomment>A verb: lock the screens now</extracomment>
        <translation>Kilitle</translation>
    </message>
    <message>
        <source>Next lock: %1 at %2</source>
        <extracomment>%1 is a prayer name, %2 the time the screens lock</extracomment>
        <translation>Sonraki kilit: %1 %2</translation>
    </message>
    <message>
        <source>Next lock: %1 tomorrow at %2</source>
        <extracomment>%1 is the prayer name Fajr, %2 the time the screens lock tomorrow</extracomment>
        <translation>Sonraki kilit: %1, yarın %2</translation>
    </message>
    <message>
        <source>Tarvanel lives in the tray: its menu has today&apos;s times and Settings.</source>
        <translation>Tarvanel sistem tepsisinde durur: menüsünde bugünün vakitleri ve Ayarlar bulunur.</translation>
    </message>
    <message>
        <source>Tarvanel is running</source>
        <translation>Tarvanel çalışıyor</translation>
    </message>
    <message>
        <source>Set up</source>
        <extracomment>Tray title while the program has no settings yet</extracomment>
        <translation>Ayarla</translation>
    </message>
    <message>
        <source>Paused</source>
        <extracomment>Tray title while the locks are paused</extracomment>
        <translation>Duraklatıldı</translation>
    </message>
    <message>
        <source>%1 after your call</source>
        <extracomment>Tray title: %1 is a prayer name; its lock waits for the end of a call</extracomment>
        <translation>%1 görüşmeden sonra</translation>
    </message>
    <message>
        <source>%1 locks when your call ends</source>
        <extracomment>%1 is a prayer name: its lock waits for the end of a call</extracomment>
        <translation>%1 kilidi görüşmeniz bitince başlar</translation>
    </message>
    <message>
        <source>Did you pray %1?</source>
        <extracomment>%1 is a prayer name</extracomment>
        <translation>%1 namazını kıldınız mı?</translation>
    </message>
    <message numerus="yes">
        <source>“Not yet” locks the screen again for %Ln minutes.</source>
        <extracomment>“Not yet” is the second button of this question</extracomment>
        <translation>
            <numerusform>“Henüz Değil” ekranı %Ln dakika daha kilitler.</numerusform>
        </translation>
    </message>
    <message>
        <source>Yes, I Prayed</source>
        <translation>Evet, Kıldım</translation>
    </message>
    <message>
        <source>Not Yet</source>
        <translation>Henüz Değil</translation>
    </message>
</context>
<context>
    <name>tarvanel::GuardianSetup</name>
    <message>
        <source>QR code</source>
        <translation>QR kodu</translation>
    </message>
    <message>
        <source>Ask the person you trust to scan this with an authenticator app (Google Authenticator, Microsoft Authenticator, Authy, or Apple&apos;s Passwords app), or to type the key:</source>
        <extracomment>The apps are proper names; Apple&apos;s app is called Passwords</extracomment>
        <translation>Güvendiğiniz kişiden bunu bir doğrulama uygulamasıyla (Google Authenticator, Microsoft Authenticator, Authy ya da Apple&apos;ın Parolalar uygulaması) taramasını veya anahtarı yazmasını isteyin:</translation>
    </message>
    <message>
        <source>Key</source>
        <extracomment>The secret key of the guardian&apos;s code, shown to be typed into an app</extracomment>
        <translation>Anahtar</translation>
    </message>
    <message>
        <source>Code from their app</source>
        <translation>Uygulamasındaki kod</translation>
    </message>
    <message>
        <source>Code</source>
        <extracomment>The six-digit code the guardian&apos;s app shows</extracomment>
        <translation>Kod</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Onayla</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
</context>
<context>
    <name>tarvanel::LockView</name>
    <message>
        <source>PREVIEW</source>
        <extracomment>Above the name of a lock that is only tried out from the settings; capitals if your script has them</extracomment>
        <translation>ÖNİZLEME</translation>
    </message>
    <message>
        <source>IT&apos;S TIME FOR</source>
        <extracomment>Above the prayer&apos;s name on the lock screen, e.g. IT&apos;S TIME FOR / Fajr; capitals if your script has them</extracomment>
        <translation>NAMAZ VAKTİ</translation>
    </message>
    <message>
        <source>Preview</source>
        <extracomment>The name of a lock tried out from the settings, shown in place of a prayer&apos;s name</extracomment>
        <translation>Önizleme</translation>
    </message>
    <message>
        <source>Test</source>
        <extracomment>The name of a lock started for a test, shown in place of a prayer&apos;s name</extracomment>
        <translation>Test</translation>
    </message>
</context>
<context>
    <name>tarvanel::PrayerSettingsModel</name>
    <message>
        <source>The settings file changed while this window was open. Save keeps what you see here; Cancel keeps the file&apos;s settings.</source>
        <extracomment>&quot;Save&quot; and &quot;Cancel&quot; are the window&apos;s buttons.</extracomment>
        <translation>Bu pencere açıkken ayarlar dosyası değişti. Kaydet, burada gördüklerinizi korur; İptal, dosyadaki ayarları korur.</translation>
    </message>
    <message>
        <source>Found %1.</source>
        <extracomment>After a city search: %1 is the place found (&quot;Leeds, England, United Kingdom&quot;).</extracomment>
        <translation>Bulunan: %1.</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>Aranıyor…</translation>
    </message>
    <message>
        <source>Couldn&apos;t find “%1”. Check the spelling, or enter coordinates below.</source>
        <extracomment>%1 is the place the user searched for.</extracomment>
        <translation>“%1” bulunamadı. Yazımı denetleyin ya da aşağıya koordinat girin.</translation>
    </message>
    <message>
        <source>Suggested: %1, Hanafi Asr. Change it below if your mosque uses something else.</source>
        <extracomment>Follows &quot;Found &lt;place&gt;.&quot; %1 is a calculation method (&quot;Muslim World League&quot;).</extracomment>
        <translation>Önerilen: %1, Hanefi İkindi. Caminiz başka bir yöntem kullanıyorsa aşağıdan değiştirin.</translation>
    </message>
    <message>
        <source>Suggested: %1. Change it below if your mosque uses something else.</source>
        <extracomment>Follows &quot;Found &lt;place&gt;.&quot; %1 is a calculation method (&quot;Muslim World League&quot;).</extracomment>
        <translation>Önerilen: %1. Caminiz başka bir yöntem kullanıyorsa aşağıdan değiştirin.</translation>
    </message>
    <message>
        <source>Heads up: your computer is set to %1, not %2. Times follow your computer&apos;s clock.</source>
        <extracomment>%1 and %2 are time zones such as &quot;Europe/London&quot; and &quot;Asia/Karachi&quot;.</extracomment>
        <translation>Dikkat: bilgisayarınızın saat dilimi %2 değil, %1. Vakitler bilgisayarınızın saatine göre hesaplanır.</translation>
    </message>
    <message>
        <source>Asking for Calendar access…</source>
        <translation>Takvim erişimi isteniyor…</translation>
    </message>
    <message>
        <source>Calendar access is off. Tarvanel writes its events under ~/.local/share/calendars: turn this on again and choose Allow, and check that you can write to that folder.</source>
        <extracomment>&quot;Allow&quot; is the button of the question asking for calendar access.</extracomment>
        <translation>Takvim erişimi kapalı. Tarvanel etkinliklerini ~/.local/share/calendars altına yazar: bunu yeniden açıp İzin Ver seçeneğini seçin ve o klasöre yazabildiğinizi denetleyin.</translation>
    </message>
    <message>
        <source>Focus on for 10 seconds… check that notifications stay quiet.</source>
        <extracomment>Focus: the desktop&apos;s do-not-disturb mode, turned on while a lock lasts.</extracomment>
        <translation>Odak 10 saniyeliğine açık… bildirimlerin sessiz kaldığını denetleyin.</translation>
    </message>
    <message>
        <source>Done. Focus is off again.</source>
        <translation>Tamam. Odak yeniden kapalı.</translation>
    </message>
    <message>
        <source>“%1”</source>
        <extracomment>A shortcut&apos;s name in quotation marks; use the language&apos;s own marks.</extracomment>
        <translation>“%1”</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <extracomment>Two names in a list, each already quoted: “A” and “B”.</extracomment>
        <translation>%1 ve %2</translation>
    </message>
    <message>
        <source>Replace your own %1?</source>
        <extracomment>%1 is one or two shortcut names the user wrote, already quoted.</extracomment>
        <translation>Kendi yazdığınız %1 değiştirilsin mi?</translation>
    </message>
    <message>
        <source>Tarvanel&apos;s pair for %1 takes the place of what you wrote.</source>
        <extracomment>%1 is a desktop such as &quot;GNOME&quot; or &quot;XFCE&quot;.</extracomment>
        <translation>Tarvanel&apos;in %1 için yazdığı çift, sizin yazdıklarınızın yerini alır.</translation>
    </message>
    <message>
        <source>Kept your own %1.</source>
        <extracomment>%1 is one or two shortcut names the user wrote, already quoted.</extracomment>
        <translation>Kendi yazdığınız %1 korundu.</translation>
    </message>
    <message>
        <source>Wrote %1 for %2.</source>
        <extracomment>%1 is the two quoted shortcut names (“Tarvanel Focus On” and “Tarvanel Focus Off”), %2 a desktop such as &quot;GNOME&quot;.</extracomment>
        <translation>%2 için %1 yazıldı.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write %1. The log in ~/.tarvanel/log.txt says why.</source>
        <extracomment>%1 is the two quoted shortcut names.</extracomment>
        <translation>%1 yazılamadı. Nedeni ~/.tarvanel/log.txt günlüğünde yazıyor.</translation>
    </message>
    <message>
        <source>Guardian code is on.</source>
        <extracomment>The guardian: the person whose six-digit code ends a lock early.</extracomment>
        <translation>Koruyucu kodu açık.</translation>
    </message>
    <message>
        <source>That code doesn&apos;t match. Check both clocks are right and try the newest code.</source>
        <translation>Bu kod eşleşmiyor. İki saatin de doğru olduğunu denetleyin ve en yeni kodu deneyin.</translation>
    </message>
</context>
<context>
    <name>tarvanel::PrayerSettingsView</name>
    <message>
        <source>Your settings file can&apos;t be used (%1), so nothing locks yet. Check the settings below and save to start again.</source>
        <extracomment>%1 what is wrong with the settings file</extracomment>
        <translation>Ayarlar dosyanız kullanılamıyor (%1), bu yüzden henüz hiçbir şey kilitlenmiyor. Aşağıdaki ayarları denetleyin ve yeniden başlatmak için kaydedin.</translation>
    </message>
    <message>
        <source>Welcome to Tarvanel</source>
        <translation>Tarvanel&apos;e Hoş Geldiniz</translation>
    </message>
    <message>
        <source>Get up and pray, on time</source>
        <translation>Kalkın, namazınızı vaktinde kılın</translation>
    </message>
    <message>
        <source>At each prayer time Tarvanel turns every screen black for a few minutes so you step away and pray. You get reminders before each lock. Once a lock starts there&apos;s no way out until it ends. Find your city to begin.</source>
        <translation>Tarvanel her namaz vaktinde tüm ekranları birkaç dakikalığına karartır; siz de işinize ara verip namazınızı kılarsınız. Her kilitten önce hatırlatma alırsınız. Kilit bir kez başladı mı, bitene kadar çıkış yoktur. Başlamak için şehrinizi bulun.</translation>
    </message>
    <message>
        <source>Preview Lock</source>
        <translation>Kilidi Önizle</translation>
    </message>
    <message>
        <source>Black out the screen for 10 seconds</source>
        <translation>Ekranı 10 saniye karart</translation>
    </message>
    <message>
        <source>Uninstall…</source>
        <translation>Kaldır…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Find your city or enter coordinates first.</source>
        <translation>Önce şehrinizi bulun ya da koordinat girin.</translation>
    </message>
</context>
<context>
    <name>tarvanel::QtPlatform</name>
    <message>
        <source>There&apos;s no tray on this desktop, so Tarvanel runs without an icon: it still locks on time, and opening Tarvanel from the applications menu shows these settings.</source>
        <translation>Bu masaüstünde sistem tepsisi yok; bu yüzden Tarvanel simgesiz çalışır: yine de vaktinde kilitler ve Tarvanel&apos;i uygulamalar menüsünden açtığınızda bu ayarlar görünür.</translation>
    </message>
    <message>
        <source>Welcome to Tarvanel</source>
        <extracomment>The settings window&apos;s title on the first run</extracomment>
        <translation>Tarvanel&apos;e Hoş Geldiniz</translation>
    </message>
    <message>
        <source>Tarvanel Settings</source>
        <translation>Tarvanel Ayarları</translation>
    </message>
</context>
<context>
    <name>tarvanel::TimetableImportModel</name>
    <message>
        <source>Couldn&apos;t read any text in %1.</source>
        <extracomment>%1 is a file&apos;s name.</extracomment>
        <translation>%1 dosyasında hiç metin okunamadı.</translation>
    </message>
    <message>
        <source>No rows with prayer times found yet.</source>
        <translation>Henüz namaz vakti içeren satır bulunamadı.</translation>
    </message>
    <message numerus="yes">
        <source>Found %Ln rows with %1 times each.</source>
        <extracomment>%Ln is the number of rows read from a timetable, %1 the number of times in each.</extracomment>
        <translation>
            <numerusform>Her birinde %1 vakit bulunan %Ln satır bulundu.</numerusform>
        </translation>
    </message>
    <message>
        <source>Column %1</source>
        <extracomment>A column of the timetable being imported, counted from 1.</extracomment>
        <translation>%1. sütun</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <extracomment>%1 is a file&apos;s name.</extracomment>
        <translation>%1 okunuyor…</translation>
    </message>
    <message>
        <source>Reading page %1 of %2…</source>
        <extracomment>While a file of several pages is read: %1 is the page, %2 the number of pages.</extracomment>
        <translation>Sayfa %1 / %2 okunuyor…</translation>
    </message>
    <message numerus="yes">
        <source>Read the first %1 of %Ln pages.</source>
        <extracomment>%1 is the number of pages read, %Ln the number of pages in the file.</extracomment>
        <translation>
            <numerusform>%Ln sayfanın ilk %1 sayfası okundu.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Read %Ln pages.</source>
        <extracomment>After a file of several pages was read whole.</extracomment>
        <translation>
            <numerusform>%Ln sayfa okundu.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tarvanel::TimetableImportView</name>
    <message>
        <source>1. Your masjid&apos;s timetable</source>
        <translation>1. Caminizin vakit çizelgesi</translation>
    </message>
    <message>
        <source>Choose File…</source>
        <translation>Dosya Seç…</translation>
    </message>
    <message>
        <source>Reading</source>
        <extracomment>A busy indicator while a photo or PDF is read</extracomment>
        <translation>Okunuyor</translation>
    </message>
    <message>
        <source>Paste it from the masjid&apos;s website or PDF, or choose a CSV, a photo or a screenshot of the printed sheet. Photos are read on your computer; nothing is uploaded.</source>
        <translation>Caminin web sitesinden ya da PDF&apos;inden yapıştırın veya bir CSV, fotoğraf ya da basılı çizelgenin ekran görüntüsünü seçin. Fotoğraflar bilgisayarınızda okunur; hiçbir şey karşıya yüklenmez.</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Ay</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Yıl</translation>
    </message>
    <message>
        <source>2. Which column is which</source>
        <extracomment>Jamaat and iqamah: the time the congregation prays at the masjid</extracomment>
        <translation>2. Hangi sütun hangisi</translation>
    </message>
    <message>
        <source>Pick the jamaat (iqamah) column for each prayer, the time you actually pray. Times without AM/PM are read as morning for Fajr, midday for Dhuhr, and afternoon or evening for the rest.</source>
        <translation>Her namaz için cemaat (kamet) sütununu, yani namazı gerçekten kıldığınız saati seçin. AM/PM içermeyen saatler Sabah için sabah, Öğle için öğle, diğerleri için öğleden sonra ya da akşam saati olarak okunur.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Use This Timetable</source>
        <translation>Bu Çizelgeyi Kullan</translation>
    </message>
    <message>
        <source>Timetables (*.csv *.txt *.tsv *.png *.jpg *.jpeg *.gif *.bmp *.tif *.tiff *.webp *.pdf)</source>
        <extracomment>A file type filter; keep the part in brackets as it is</extracomment>
        <translation>Vakit çizelgeleri (*.csv *.txt *.tsv *.png *.jpg *.jpeg *.gif *.bmp *.tif *.tiff *.webp *.pdf)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <extracomment>A file type filter; keep the part in brackets as it is</extracomment>
        <translation>Tüm dosyalar (*)</translation>
    </message>
    <message>
        <source>Read Timetable</source>
        <translation>Çizelgeyi Oku</translation>
    </message>
    <message>
        <source>Not in the timetable</source>
        <extracomment>A prayer&apos;s column choice: the timetable has no column for this prayer</extracomment>
        <translation>Çizelgede yok</translation>
    </message>
    <message numerus="yes">
        <source>3. Preview (%Ln days)</source>
        <translation>
            <numerusform>3. Önizleme (%Ln gün)</numerusform>
        </translation>
    </message>
    <message>
        <source>No days yet. Check the month and the columns.</source>
        <translation>Henüz gün yok. Ayı ve sütunları denetleyin.</translation>
    </message>
</context>
</TS>
