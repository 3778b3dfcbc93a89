<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
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
Des heures de prière qui verrouillent tous les écrans, pour que vous vous leviez et alliez prier.

Licence&#xa0;: %2

Paramètres&#xa0;: %3
Historique et état&#xa0;: %4
Journal&#xa0;: %5
Service de session&#xa0;: %6</translation>
    </message>
</context>
<context>
    <name>Agent</name>
    <message>
        <source>no systemd user service manager is running, and %1 cannot be written</source>
        <extracomment>%1 is a file</extracomment>
        <translation>aucun gestionnaire de services utilisateur systemd n&apos;est actif, et %1 ne peut pas être écrit</translation>
    </message>
    <message>
        <source>no systemd user service manager is running, and %1 cannot be started</source>
        <extracomment>%1 is the program file</extracomment>
        <translation>aucun gestionnaire de services utilisateur systemd n&apos;est actif, et %1 ne peut pas être lancé</translation>
    </message>
    <message>
        <source>no systemd user service manager is running: it starts at login through %1</source>
        <extracomment>%1 is the autostart file that starts the program at login</extracomment>
        <translation>aucun gestionnaire de services utilisateur systemd n&apos;est actif&#xa0;: le programme démarre à l&apos;ouverture de session par %1</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <extracomment>%1 is a file</extracomment>
        <translation>%1 ne peut pas être écrit</translation>
    </message>
    <message>
        <source>%1 gave no answer in time</source>
        <extracomment>%1 is a command, as in &quot;systemctl --user enable --now …&quot;</extracomment>
        <translation>%1 n&apos;a pas répondu à temps</translation>
    </message>
    <message>
        <source>%1 failed with status %2</source>
        <extracomment>%1 is a command, as in &quot;systemctl --user enable --now …&quot;; %2 its exit status</extracomment>
        <translation>%1 a échoué avec le code %2</translation>
    </message>
    <message>
        <source>%1 runs in the background and starts at login, so it has to be installed: copied to ~/.local/bin and added to your applications menu.</source>
        <extracomment>%1 is the program&apos;s name, Tarvanel</extracomment>
        <translation>%1 fonctionne en arrière-plan et démarre à l&apos;ouverture de session&#xa0;: il doit donc être installé, c&apos;est-à-dire copié dans ~/.local/bin et ajouté à votre menu des applications.</translation>
    </message>
    <message>
        <source>Install %1 in ~/.local/bin?</source>
        <extracomment>%1 is the program&apos;s name, Tarvanel</extracomment>
        <translation>Installer %1 dans ~/.local/bin&#xa0;?</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installer</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>%1 starts at login through the systemd user unit %2, and it did not start: %3.
See why with “systemctl --user status %2”, then open %1 again.</source>
        <extracomment>%1 is the program&apos;s name, Tarvanel; %2 the unit&apos;s file name; %3 why it did not start. Keep the command in quotes as it is</extracomment>
        <translation>%1 démarre à l&apos;ouverture de session par l&apos;unité utilisateur systemd %2, mais il n&apos;a pas démarré&#xa0;: %3.
La commande «&#xa0;systemctl --user status %2&#xa0;» indique pourquoi&#xa0;; rouvrez ensuite %1.</translation>
    </message>
    <message>
        <source>%1 couldn&apos;t start in the background</source>
        <extracomment>%1 is the program&apos;s name, Tarvanel</extracomment>
        <translation>%1 n&apos;a pas pu démarrer en arrière-plan</translation>
    </message>
    <message>
        <source>Open Service Folder</source>
        <translation>Ouvrir le dossier du service</translation>
    </message>
    <message>
        <source>Couldn&apos;t copy %1 to %2</source>
        <extracomment>%1 is the program&apos;s name, Tarvanel; %2 a folder</extracomment>
        <translation>Impossible de copier %1 dans %2</translation>
    </message>
    <message>
        <source>Copy %1 into ~/.local/bin yourself, then open it from there.</source>
        <extracomment>%1 is the program&apos;s name, Tarvanel</extracomment>
        <translation>Copiez vous-même %1 dans ~/.local/bin, puis ouvrez-le depuis cet emplacement.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>%1 was installed as a package</source>
        <extracomment>%1 is the program&apos;s name, Tarvanel</extracomment>
        <translation>%1 a été installé en tant que paquet</translation>
    </message>
    <message>
        <source>%1 no longer runs or starts at login. To remove it from this computer too, run:

sudo apt remove tarvanel</source>
        <extracomment>%1 is the program&apos;s name, Tarvanel. Keep the command as it is</extracomment>
        <translation>%1 ne fonctionne plus et ne démarre plus à l&apos;ouverture de session. Pour le supprimer aussi de cet ordinateur, exécutez&#xa0;:

sudo apt remove tarvanel</translation>
    </message>
</context>
<context>
    <name>Banner</name>
    <message numerus="yes">
        <source>%1 in %Ln minutes — begin wrapping up.</source>
        <extracomment>%1 is a prayer name; the screens lock when the minutes run out</extracomment>
        <translation>
            <numerusform>%1 dans %Ln minute — commencez à conclure.</numerusform>
            <numerusform>%1 dans %Ln minutes — commencez à conclure.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln minutes. Start finishing up.</source>
        <extracomment>%1 is a prayer name; the screens lock when the minutes run out</extracomment>
        <translation>
            <numerusform>%1 dans %Ln minute. Terminez ce que vous faites.</numerusform>
            <numerusform>%1 dans %Ln minutes. Terminez ce que vous faites.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln minutes. Save your work now.</source>
        <extracomment>%1 is a prayer name; the screens lock when the minutes run out</extracomment>
        <translation>
            <numerusform>%1 dans %Ln minute. Enregistrez votre travail maintenant.</numerusform>
            <numerusform>%1 dans %Ln minutes. Enregistrez votre travail maintenant.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln min — the screen is about to lock. Go make wudu.</source>
        <extracomment>%1 is a prayer name. Wudu: the ablution before prayer</extracomment>
        <translation>
            <numerusform>%1 dans %Ln min — l&apos;écran va se verrouiller. Allez faire vos ablutions.</numerusform>
            <numerusform>%1 dans %Ln min — l&apos;écran va se verrouiller. Allez faire vos ablutions.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 ends at sunrise %2 — only %Ln min left!</source>
        <extracomment>%1 is the prayer name Fajr, %2 the time of sunrise</extracomment>
        <translation>
            <numerusform>%1 se termine au lever du soleil, à %2 — plus que %Ln min&#xa0;!</numerusform>
            <numerusform>%1 se termine au lever du soleil, à %2 — plus que %Ln min&#xa0;!</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 tonight — don&apos;t miss it.</source>
        <extracomment>%1 is the Ramadan night prayer, Tarawih</extracomment>
        <translation>%1 ce soir — à ne pas manquer.</translation>
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
        <translation>ISNA (Amérique du Nord)</translation>
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
        <translation>Région du Golfe</translation>
    </message>
    <message>
        <source>Kuwait</source>
        <translation>Koweït</translation>
    </message>
    <message>
        <source>Qatar</source>
        <translation>Qatar</translation>
    </message>
    <message>
        <source>Singapore, Malaysia, Indonesia</source>
        <translation>Singapour, Malaisie, Indonésie</translation>
    </message>
    <message>
        <source>UOIF (France)</source>
        <extracomment>A calculation method: UOIF, the Union of Islamic Organisations of France.</extracomment>
        <translation>UOIF (France)</translation>
    </message>
    <message>
        <source>Spiritual Administration of Russia</source>
        <translation>Spiritual Administration of Russia</translation>
    </message>
    <message>
        <source>Shia Ithna-Ashari (Jafari)</source>
        <extracomment>A calculation method: the Shia Ithna-Ashari (Jafari) school.</extracomment>
        <translation>Chiite Ithna-Ashari (Jafari)</translation>
    </message>
    <message>
        <source>Institute of Geophysics, Tehran</source>
        <translation>Institute of Geophysics, Tehran</translation>
    </message>
    <message>
        <source>Hanafi, %1</source>
        <extracomment>The Asr school and the calculation method: &quot;Hanafi, Muslim World League&quot;.</extracomment>
        <translation>Hanafite, %1</translation>
    </message>
    <message>
        <source>Standard Asr, %1</source>
        <extracomment>&quot;Standard Asr&quot; (the Shafi&apos;i, Maliki and Hanbali Asr) and the calculation method: &quot;Standard Asr, Muslim World League&quot;.</extracomment>
        <translation>Asr standard, %1</translation>
    </message>
    <message>
        <source>Hanafi, custom angles</source>
        <extracomment>The Hanafi Asr with angles the user set, not a known method.</extracomment>
        <translation>Hanafite, angles personnalisés</translation>
    </message>
    <message>
        <source>Standard Asr, custom angles</source>
        <extracomment>The standard Asr with angles the user set, not a known method.</extracomment>
        <translation>Asr standard, angles personnalisés</translation>
    </message>
</context>
<context>
    <name>Calendar</name>
    <message>
        <source>Allow Tarvanel to add busy events to your calendars?</source>
        <translation>Autoriser Tarvanel à ajouter des événements «&#xa0;Occupé&#xa0;» à vos agendas&#xa0;?</translation>
    </message>
    <message>
        <source>Tarvanel keeps its events in the calendar folders under %1, one file per event. khal shows them, and vdirsyncer syncs them with your online calendar so colleagues see you&apos;re busy.</source>
        <extracomment>%1 is a folder. khal and vdirsyncer are the names of two programs</extracomment>
        <translation>Tarvanel conserve ses événements dans les dossiers d&apos;agenda sous %1, un fichier par événement. khal les affiche, et vdirsyncer les synchronise avec votre agenda en ligne pour que vos collègues voient que vous n&apos;êtes pas disponible.</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Autoriser</translation>
    </message>
    <message>
        <source>Don&apos;t Allow</source>
        <translation>Refuser</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>SECONDS</source>
        <extracomment>Stands for the number of seconds given to --test-lock</extracomment>
        <translation>SECONDES</translation>
    </message>
    <message>
        <source>print today&apos;s prayer and lock times and exit</source>
        <translation>afficher les heures de prière et de verrouillage du jour, puis quitter</translation>
    </message>
    <message>
        <source>with --times: the day to print</source>
        <extracomment>yyyy-MM-dd is the date format typed after --date: keep it as it is</extracomment>
        <translation>avec --times&#xa0;: le jour à afficher</translation>
    </message>
    <message>
        <source>install and start the per-user login service</source>
        <translation>installer et démarrer le service de session de l&apos;utilisateur</translation>
    </message>
    <message>
        <source>show one lock named &quot;Test&quot; for %1, then exit</source>
        <extracomment>%1 stands for the number of seconds; &quot;Test&quot; is the name the lock shows</extracomment>
        <translation>afficher un verrouillage nommé «&#xa0;Test&#xa0;» pendant %1, puis quitter</translation>
    </message>
    <message>
        <source>show one %1 reminder, exit 17 seconds later</source>
        <extracomment>%1 is the prayer name Asr</extracomment>
        <translation>afficher un rappel pour %1, puis quitter 17 secondes plus tard</translation>
    </message>
    <message>
        <source>show this text</source>
        <translation>afficher ce texte</translation>
    </message>
    <message>
        <source>show the version</source>
        <translation>afficher la version</translation>
    </message>
    <message>
        <source>Usage: tarvanel [option] [timetable file]</source>
        <extracomment>&quot;tarvanel&quot; is the command, typed as it is</extracomment>
        <translation>Utilisation&#xa0;: tarvanel [option] [fichier d&apos;horaires]</translation>
    </message>
    <message>
        <source>Without options Tarvanel starts in the tray and locks the screens at prayer times.</source>
        <translation>Sans option, Tarvanel démarre dans la zone de notification et verrouille les écrans aux heures de prière.</translation>
    </message>
    <message>
        <source>A timetable file (CSV, text, image or PDF) opens the timetable import window.</source>
        <translation>Un fichier d&apos;horaires (CSV, texte, image ou PDF) ouvre la fenêtre d&apos;importation des horaires.</translation>
    </message>
    <message>
        <source>Settings: %1. Time zone: the TZ environment variable or the system&apos;s.</source>
        <extracomment>%1 is the settings file; TZ is the name of an environment variable</extracomment>
        <translation>Paramètres&#xa0;: %1. Fuseau horaire&#xa0;: la variable d&apos;environnement TZ, sinon celui du système.</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <extracomment>%1 is what the user typed</extracomment>
        <translation>option inconnue&#xa0;: %1</translation>
    </message>
    <message>
        <source>Tarvanel running — look for 🕌 in the tray</source>
        <translation>Tarvanel est lancé — cherchez 🕌 dans la zone de notification</translation>
    </message>
    <message>
        <source>Tarvanel&apos;s login service did not start</source>
        <translation>Le service de session de Tarvanel n&apos;a pas démarré</translation>
    </message>
</context>
<context>
    <name>Config</name>
    <message>
        <source>a boolean</source>
        <extracomment>The type of a value in the settings file (config.json).</extracomment>
        <translation>un booléen</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>un nombre</translation>
    </message>
    <message>
        <source>text</source>
        <translation>du texte</translation>
    </message>
    <message>
        <source>an array</source>
        <translation>un tableau</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>un objet</translation>
    </message>
    <message>
        <source>null</source>
        <extracomment>A JSON value that is null; &quot;null&quot; is the word written in the file.</extracomment>
        <translation>null</translation>
    </message>
    <message>
        <source>an array of numbers</source>
        <translation>un tableau de nombres</translation>
    </message>
    <message>
        <source>an array with %1 at position %2</source>
        <extracomment>%1 is a value&apos;s type (&quot;text&quot;), %2 its position in the list.</extracomment>
        <translation>un tableau avec %1 en position %2</translation>
    </message>
    <message>
        <source>an object of texts</source>
        <translation>un objet de textes</translation>
    </message>
    <message>
        <source>an object with %1 at &quot;%2&quot;</source>
        <extracomment>%1 is a value&apos;s type (&quot;a number&quot;), %2 the name it is stored under.</extracomment>
        <translation>un objet avec %1 sous «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>a number from %1 to %2</source>
        <extracomment>%1 and %2 are the smallest and largest values a setting may have.</extracomment>
        <translation>un nombre de %1 à %2</translation>
    </message>
    <message>
        <source>%1: expected %2, found %3</source>
        <extracomment>An error in the settings file: %1 is the setting&apos;s name as written in the file (keep it first if you can), %2 what it should be, %3 what it is.</extracomment>
        <translation>%1&#xa0;: attendu %2, trouvé %3</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <extracomment>%1 is a line number of the settings file, %2 what is wrong there.</extracomment>
        <translation>ligne %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>the top level is not an object</source>
        <extracomment>The settings file holds a value that is not a JSON object ({ … }).</extracomment>
        <translation>le niveau supérieur n&apos;est pas un objet</translation>
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
        <translation>Exporter l&apos;historique</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv)</source>
        <extracomment>A file type filter; keep the part in brackets as it is</extracomment>
        <translation>Valeurs séparées par des virgules (*.csv)</translation>
    </message>
</context>
<context>
    <name>Hijri</name>
    <message>
        <source>%1 AH</source>
        <extracomment>A Hijri date: %1 is the day, month and year (&quot;14 Ramadan 1446&quot;); AH is the era.</extracomment>
        <translation>%1 de l&apos;hégire</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>F</source>
        <comment>first letter of Fajr, in the week&apos;s grid</comment>
        <translation>F</translation>
    </message>
    <message>
        <source>D</source>
        <comment>first letter of Dhuhr, in the week&apos;s grid</comment>
        <translation>D</translation>
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
            <numerusform>Cette semaine&#xa0;: %1/%2 prières accomplies à l&apos;ordinateur • série de %Ln jour</numerusform>
            <numerusform>Cette semaine&#xa0;: %1/%2 prières accomplies à l&apos;ordinateur • série de %Ln jours</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImportWindow</name>
    <message>
        <source>The reader stopped unexpectedly while reading %1. Nothing was changed: try another photo or PDF, or paste the text.</source>
        <extracomment>%1 the name of the photo or PDF being read</extracomment>
        <translation>La lecture de %1 s&apos;est arrêtée de façon inattendue. Rien n&apos;a été modifié&#xa0;: essayez une autre photo ou un autre PDF, ou collez le texte.</translation>
    </message>
    <message>
        <source>Photos and PDFs can&apos;t be read: the reader is missing (%1). Paste the text instead, or reinstall Tarvanel.</source>
        <extracomment>%1 the path of the program that reads photos and PDFs</extracomment>
        <translation>Impossible de lire les photos et les PDF&#xa0;: le programme de lecture est introuvable (%1). Collez plutôt le texte, ou réinstallez Tarvanel.</translation>
    </message>
    <message>
        <source>Faj</source>
        <extracomment>Fajr shortened to fit a column of the timetable&apos;s preview</extracomment>
        <translation>Faj</translation>
    </message>
    <message>
        <source>Dhu</source>
        <extracomment>Dhuhr shortened to fit a column of the timetable&apos;s preview</extracomment>
        <translation>Doh</translation>
    </message>
    <message>
        <source>Asr</source>
        <extracomment>Asr shortened to fit a column of the timetable&apos;s preview</extracomment>
        <translation>Asr</translation>
    </message>
    <message>
        <source>Mag</source>
        <extracomment>Maghrib shortened to fit a column of the timetable&apos;s preview</extracomment>
        <translation>Mag</translation>
    </message>
    <message>
        <source>Ish</source>
        <extracomment>Isha shortened to fit a column of the timetable&apos;s preview</extracomment>
        <translation>Ich</translation>
    </message>
    <message>
        <source>Jum</source>
        <extracomment>Jumu&apos;ah shortened to fit a column of the timetable&apos;s preview</extracomment>
        <translation>Jou</translation>
    </message>
    <message>
        <source>Import Masjid Timetable</source>
        <translation>Importer les horaires d&apos;une mosquée</translation>
    </message>
    <message numerus="yes">
        <source>%Ln cells were hard to read and are marked in yellow: check them against the sheet.</source>
        <extracomment>Cells of the timetable&apos;s text that the reader was unsure of</extracomment>
        <translation>
            <numerusform>%Ln cellule était difficile à lire et est marquée en jaune&#xa0;: vérifiez-la sur la feuille.</numerusform>
            <numerusform>%Ln cellules étaient difficiles à lire et sont marquées en jaune&#xa0;: vérifiez-les sur la feuille.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Language</name>
    <message>
        <source>System</source>
        <translation>Système</translation>
    </message>
</context>
<context>
    <name>LockScreen</name>
    <message>
        <source>Screen unlocks in %1</source>
        <extracomment>%1 is the time left in minutes and seconds, as in &quot;4:59&quot;</extracomment>
        <translation>Déverrouillage dans %1</translation>
    </message>
    <message>
        <source>Emergency? Type your guardian&apos;s 6-digit code</source>
        <extracomment>The guardian: the person who keeps the code that ends a lock early</extracomment>
        <translation>Urgence&#xa0;? Saisissez le code à 6 chiffres de votre gardien</translation>
    </message>
    <message>
        <source>That code didn&apos;t work</source>
        <translation>Ce code n&apos;a pas fonctionné</translation>
    </message>
    <message numerus="yes">
        <source>Too many tries. Try again in %Ln minutes</source>
        <translation>
            <numerusform>Trop d&apos;essais. Réessayez dans %Ln minute</numerusform>
            <numerusform>Trop d&apos;essais. Réessayez dans %Ln minutes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LockWeakness</name>
    <message>
        <source>on this desktop a lock can be left by switching windows</source>
        <extracomment>Shown on a line of its own with its first letter made a capital and &quot;%1.&quot; around it</extracomment>
        <translation>sur ce bureau, on peut sortir d&apos;un verrouillage en changeant de fenêtre</translation>
    </message>
    <message>
        <source>on this desktop the compositor&apos;s own shortcuts may still leave a lock</source>
        <extracomment>Shown on a line of its own with its first letter made a capital and &quot;%1.&quot; around it</extracomment>
        <translation>sur ce bureau, les raccourcis propres au compositeur peuvent encore permettre de sortir d&apos;un verrouillage</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>About Tarvanel</source>
        <translation>À propos de Tarvanel</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Paramètres…</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>Fermer la fenêtre</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <extracomment>The Edit menu; the &amp; marks its Alt key letter</extracomment>
        <translation>&amp;Édition</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Couper</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>No Longer Excused</source>
        <extracomment>Excused: exempt from prayer for a while (menstruation, illness)</extracomment>
        <translation>Fin de la dispense</translation>
    </message>
    <message>
        <source>✓ prayed   q qada   – excused   · not kept</source>
        <extracomment>Legend of the seven-day grid. Keep the marks ✓ q – · as they are: the grid shows them</extracomment>
        <translation>✓ accomplie   q qada   – dispense   · manquée</translation>
    </message>
    <message>
        <source>Tarvanel isn&apos;t set up yet</source>
        <translation>Tarvanel n&apos;est pas encore configuré</translation>
    </message>
    <message>
        <source>Set Up Tarvanel…</source>
        <translation>Configurer Tarvanel…</translation>
    </message>
    <message>
        <source>Ramadan</source>
        <translation>Ramadan</translation>
    </message>
    <message>
        <source>Locks paused until %1</source>
        <extracomment>%1 is a weekday and a time, as in &quot;Friday 3:15 PM&quot;</extracomment>
        <translation>Verrouillages en pause jusqu&apos;à %1</translation>
    </message>
    <message>
        <source>Excused · reminders and locks are off</source>
        <translation>Dispense · rappels et verrouillages désactivés</translation>
    </message>
    <message>
        <source>Travelling until %1</source>
        <extracomment>%1 is the last day of the journey, as in &quot;Friday 3 Oct&quot;</extracomment>
        <translation>En voyage jusqu&apos;au %1</translation>
    </message>
    <message>
        <source>Travelling until %1 · combining prayers</source>
        <extracomment>%1 is the last day of the journey, as in &quot;Friday 3 Oct&quot;</extracomment>
        <translation>En voyage jusqu&apos;au %1 · prières regroupées</translation>
    </message>
    <message>
        <source>%1 locks when your call ends</source>
        <extracomment>%1 is a prayer name: its lock waits for the end of a call</extracomment>
        <translation>%1&#xa0;: verrouillage à la fin de votre appel</translation>
    </message>
    <message>
        <source>%1 (with %2)</source>
        <extracomment>A prayer combined with an earlier one while travelling: &quot;Asr (with Dhuhr)&quot;</extracomment>
        <translation>%1 (avec %2)</translation>
    </message>
    <message>
        <source>(waqt %1)</source>
        <extracomment>After a lock time that differs from the computed time: %1 is the computed (waqt) time</extracomment>
        <translation>(début %1)</translation>
    </message>
    <message>
        <source>◀ next</source>
        <extracomment>Marks the row of the next prayer; the arrow points back at its time</extracomment>
        <translation>◀ prochaine</translation>
    </message>
    <message>
        <source>%1 ends %2</source>
        <extracomment>%1 is Suhoor, the meal before the fast; %2 the time it ends</extracomment>
        <translation>%1 jusqu&apos;à %2</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>Iftar and its time</comment>
        <extracomment>%1 is Iftar, the meal that breaks the fast; %2 its time</extracomment>
        <translation>%1 à %2</translation>
    </message>
    <message numerus="yes">
        <source>Streak: %Ln days</source>
        <extracomment>Days in a row with every prayer kept</extracomment>
        <translation>
            <numerusform>Série&#xa0;: %Ln jour</numerusform>
            <numerusform>Série&#xa0;: %Ln jours</numerusform>
        </translation>
    </message>
    <message>
        <source>Mark as Prayed</source>
        <translation>Marquer comme accomplie</translation>
    </message>
    <message>
        <source>%1: Prayed Late (Qada)</source>
        <extracomment>%1 is a prayer name; qada: a prayer made up after its time</extracomment>
        <translation>%1&#xa0;: rattrapée (qada)</translation>
    </message>
    <message>
        <source>%1: Prayed Elsewhere</source>
        <extracomment>%1 is a prayer name, prayed at the mosque or anywhere away from the screen</extracomment>
        <translation>%1&#xa0;: accomplie ailleurs</translation>
    </message>
    <message>
        <source>Nothing to mark yet</source>
        <translation>Rien à marquer pour l&apos;instant</translation>
    </message>
    <message>
        <source>I&apos;m Excused…</source>
        <extracomment>Excused: exempt from prayer for a while (menstruation, illness)</extracomment>
        <translation>Dispense de prière…</translation>
    </message>
    <message>
        <source>Stop Travelling</source>
        <translation>Fin du voyage</translation>
    </message>
    <message>
        <source>I&apos;m Travelling…</source>
        <translation>Je suis en voyage…</translation>
    </message>
    <message>
        <source>Resume Locks</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>Pause Locks</source>
        <extracomment>&quot;Locks&quot; is a noun: the screen locks at prayer times</extracomment>
        <translation>Mettre en pause</translation>
    </message>
    <message>
        <source>For the Rest of Today</source>
        <translation>Pour aujourd&apos;hui</translation>
    </message>
    <message>
        <source>For 3 Days</source>
        <translation>Pour 3 jours</translation>
    </message>
    <message>
        <source>For a Week</source>
        <translation>Pour une semaine</translation>
    </message>
    <message>
        <source>Preview Lock (10 s)</source>
        <extracomment>Shows the lock screen for ten seconds; &quot;Lock&quot; is a noun</extracomment>
        <translation>Aperçu du verrouillage (10 s)</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Paramètres…</translation>
    </message>
</context>
<context>
    <name>Prayer</name>
    <message>
        <source>Fajr</source>
        <comment>the dawn prayer</comment>
        <translation>Fajr</translation>
    </message>
    <message>
        <source>Sunrise</source>
        <comment>the time of sunrise</comment>
        <translation>Lever du soleil</translation>
    </message>
    <message>
        <source>Dhuhr</source>
        <comment>the noon prayer</comment>
        <translation>Dohr</translation>
    </message>
    <message>
        <source>Jumu&apos;ah</source>
        <comment>the Friday congregational prayer</comment>
        <translation>Joumou&apos;a</translation>
    </message>
    <message>
        <source>Asr</source>
        <comment>the afternoon prayer</comment>
        <translation>Asr</translation>
    </message>
    <message>
        <source>Maghrib</source>
        <comment>the sunset prayer</comment>
        <translation>Maghreb</translation>
    </message>
    <message>
        <source>Isha</source>
        <comment>the night prayer</comment>
        <translation>Icha</translation>
    </message>
    <message>
        <source>Tarawih</source>
        <comment>the Ramadan night prayer</comment>
        <translation>Tarawih</translation>
    </message>
    <message>
        <source>Iftar</source>
        <comment>the meal that breaks the Ramadan fast</comment>
        <translation>Iftar</translation>
    </message>
    <message>
        <source>Suhoor</source>
        <comment>the meal before the Ramadan fast</comment>
        <translation>Shour</translation>
    </message>
    <message>
        <source>%1 &amp; %2</source>
        <extracomment>Two prayers prayed together while travelling, e.g. &quot;Dhuhr &amp; Asr&quot;</extracomment>
        <translation>%1 et %2</translation>
    </message>
</context>
<context>
    <name>PrayerCalendar</name>
    <message>
        <source>Prayer times</source>
        <translation>Heures de prière</translation>
    </message>
    <message>
        <source>%1 (prayer)</source>
        <extracomment>A calendar event&apos;s title: %1 is a prayer&apos;s name (&quot;Fajr (prayer)&quot;).</extracomment>
        <translation>%1 (prière)</translation>
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
        <translation>%1 et %2</translation>
    </message>
    <message>
        <source>line %1</source>
        <extracomment>A row of the pasted or read timetable text, counted from 1.</extracomment>
        <translation>ligne %1</translation>
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
            <numerusform>%1 n&apos;a pas d&apos;heure dans une colonne choisie</numerusform>
            <numerusform>%1 n&apos;ont pas d&apos;heure dans une colonne choisie</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 have no day number or date</source>
        <extracomment>%1 names the rows (&quot;line 7 and line 9&quot;); %n counts them.</extracomment>
        <translation>
            <numerusform>%1 n&apos;a ni numéro de jour ni date</numerusform>
            <numerusform>%1 n&apos;ont ni numéro de jour ni date</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>days %1 are not in %2</source>
        <extracomment>%1 is one or more day numbers (&quot;30 and 31&quot;), %2 a month (&quot;February&quot;); %n counts the days.</extracomment>
        <translation>
            <numerusform>le jour %1 n&apos;existe pas en %2</numerusform>
            <numerusform>les jours %1 n&apos;existent pas en %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 appear twice (the later rows are used)</source>
        <extracomment>%1 names the rows (&quot;4 and 5 March&quot;); %n counts them.</extracomment>
        <translation>
            <numerusform>%1 apparaît deux fois (la dernière ligne est retenue)</numerusform>
            <numerusform>%1 apparaissent deux fois (les dernières lignes sont retenues)</numerusform>
        </translation>
    </message>
    <message>
        <source>; </source>
        <extracomment>Separates the reasons in the sentence below: &quot;… in a chosen column; line 7 has …&quot;.</extracomment>
        <translation>&#xa0;; </translation>
    </message>
    <message numerus="yes">
        <source>%Ln rows can&apos;t be used: %1.</source>
        <extracomment>%Ln counts the rows, %1 gives the reasons (&quot;4 March is missing a time in a chosen column&quot;).</extracomment>
        <translation>
            <numerusform>%Ln ligne est inutilisable&#xa0;: %1.</numerusform>
            <numerusform>%Ln lignes sont inutilisables&#xa0;: %1.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>The menu and every window opened from now on use this language. System follows your desktop&apos;s.</source>
        <translation>Le menu et toutes les fenêtres ouvertes à partir de maintenant utilisent cette langue. «&#xa0;Système&#xa0;» suit celle de votre bureau.</translation>
    </message>
    <message>
        <source>The GNOME Shell extension is on: a lock covers every screen.</source>
        <translation>L&apos;extension GNOME Shell est activée&#xa0;: un verrouillage couvre tous les écrans.</translation>
    </message>
    <message>
        <source>The GNOME Shell extension is off, so GNOME&apos;s shortcuts still work during a lock.</source>
        <translation>L&apos;extension GNOME Shell est désactivée&#xa0;: les raccourcis de GNOME restent donc actifs pendant un verrouillage.</translation>
    </message>
    <message>
        <source>Enable the GNOME Shell extension</source>
        <translation>Activer l&apos;extension GNOME Shell</translation>
    </message>
    <message>
        <source>The GNOME Shell extension is on.</source>
        <translation>L&apos;extension GNOME Shell est activée.</translation>
    </message>
    <message>
        <source>Log out and back in to load it.</source>
        <translation>Fermez la session puis rouvrez-la pour la charger.</translation>
    </message>
    <message>
        <source>Adhan</source>
        <extracomment>The call to prayer</extracomment>
        <translation>Adhan</translation>
    </message>
    <message>
        <source>Pick any MP3, M4A, AIFF or WAV file.</source>
        <translation>Choisissez un fichier MP3, M4A, AIFF ou WAV.</translation>
    </message>
    <message>
        <source>Play the adhan when a lock starts</source>
        <translation>Jouer l&apos;adhan au début d&apos;un verrouillage</translation>
    </message>
    <message>
        <source>Play</source>
        <extracomment>A button: play the chosen adhan</extracomment>
        <translation>Écouter</translation>
    </message>
    <message>
        <source>Choose Sound…</source>
        <translation>Choisir un son…</translation>
    </message>
    <message>
        <source>Choose Sound</source>
        <translation>Choisir un son</translation>
    </message>
    <message>
        <source>Sounds (*.mp3 *.m4a *.aif *.aiff *.wav)</source>
        <extracomment>A file type filter; keep the part in brackets as it is</extracomment>
        <translation>Sons (*.mp3 *.m4a *.aif *.aiff *.wav)</translation>
    </message>
    <message>
        <source>Use This Adhan</source>
        <translation>Utiliser cet adhan</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>A button: stop using the chosen adhan
----------
A button: remove the guardian&apos;s code</extracomment>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>None (a chime plays)</source>
        <translation>Aucun (un carillon retentit)</translation>
    </message>
    <message>
        <source>Stop</source>
        <extracomment>A button: stop the adhan that plays</extracomment>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Son</translation>
    </message>
    <message>
        <source>Calculation</source>
        <translation>Calcul</translation>
    </message>
    <message>
        <source>Custom angles</source>
        <extracomment>The calculation method of one&apos;s own: the sun&apos;s angles below the horizon for Fajr and Isha</extracomment>
        <translation>Angles personnalisés</translation>
    </message>
    <message>
        <source>Method</source>
        <extracomment>The calculation method of prayer times</extracomment>
        <translation>Méthode</translation>
    </message>
    <message>
        <source>Fajr angle</source>
        <extracomment>The sun&apos;s angle below the horizon at which Fajr starts</extracomment>
        <translation>Angle de Fajr</translation>
    </message>
    <message>
        <source>Isha angle</source>
        <extracomment>The sun&apos;s angle below the horizon at which Isha starts</extracomment>
        <translation>Angle d&apos;Icha</translation>
    </message>
    <message>
        <source>Standard (Shafi&apos;i, Maliki, Hanbali)</source>
        <extracomment>The way of reckoning the Asr time shared by the Shafi&apos;i, Maliki and Hanbali schools</extracomment>
        <translation>Standard (chafiite, malikite, hanbalite)</translation>
    </message>
    <message>
        <source>Hanafi</source>
        <extracomment>The Hanafi school&apos;s later Asr time</extracomment>
        <translation>Hanafite</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Agenda</translation>
    </message>
    <message>
        <source>Adds each lock as a Busy event for the next 7 days, so colleagues see you&apos;re busy and don&apos;t book meetings over salah. Pick your work calendar. Turning this off removes the events.
On Linux the calendars are the folders under ~/.local/share/calendars (khal and vdirsyncer use them too).</source>
        <extracomment>Busy is how the event shows in others&apos; calendars; khal and vdirsyncer are programs</extracomment>
        <translation>Ajoute chaque verrouillage des 7 prochains jours comme événement «&#xa0;Occupé&#xa0;», pour que vos collègues voient que vous n&apos;êtes pas disponible et ne fixent pas de réunion pendant la prière. Choisissez votre agenda de travail. Désactiver cette option supprime les événements.
Sous Linux, les agendas sont les dossiers sous ~/.local/share/calendars (khal et vdirsyncer les utilisent aussi).</translation>
    </message>
    <message>
        <source>Block prayer times in my calendar</source>
        <translation>Bloquer les heures de prière dans mon agenda</translation>
    </message>
    <message>
        <source>None</source>
        <extracomment>No calendar chosen</extracomment>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>A calendar in the list: %1 its name, %2 the account or folder it belongs to</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Emergency exit</source>
        <translation>Sortie d&apos;urgence</translation>
    </message>
    <message>
        <source>Optional. Someone you trust keeps a 6-digit code in their phone. In a real emergency they read it to you and you type it on the lock screen to end the lock; that prayer isn&apos;t counted as kept. The key is stored on this computer, so this is a speed bump, not a vault.</source>
        <extracomment>“A speed bump, not a vault”: it slows a determined person down but cannot stop one</extracomment>
        <translation>Facultatif. Une personne de confiance garde un code à 6 chiffres dans son téléphone. En cas de réelle urgence, elle vous le lit et vous le saisissez sur l&apos;écran verrouillé pour mettre fin au verrouillage&#xa0;; cette prière n&apos;est alors pas comptée comme accomplie. La clé est stockée sur cet ordinateur&#xa0;: c&apos;est un ralentisseur, pas un coffre-fort.</translation>
    </message>
    <message>
        <source>Guardian code</source>
        <extracomment>The guardian&apos;s code is set; a Remove button follows</extracomment>
        <translation>Code du gardien</translation>
    </message>
    <message>
        <source>Set Up Guardian Code…</source>
        <translation>Configurer le code du gardien…</translation>
    </message>
    <message>
        <source>Extras</source>
        <translation>Autres options</translation>
    </message>
    <message>
        <source>Ramadan mode adds suhoor and iftar times and a Tarawih reminder during Ramadan.</source>
        <translation>Le mode Ramadan ajoute les heures du shour et de l&apos;iftar ainsi qu&apos;un rappel des tarawih pendant le Ramadan.</translation>
    </message>
    <message>
        <source>Ramadan mode</source>
        <translation>Mode Ramadan</translation>
    </message>
    <message>
        <source>Weekly report on Sunday evenings</source>
        <translation>Bilan hebdomadaire le dimanche soir</translation>
    </message>
    <message>
        <source>Streak &amp; history</source>
        <translation>Série et historique</translation>
    </message>
    <message>
        <source>I&apos;m Excused… in the menu turns off reminders and locks without breaking your streak. Mark as Prayed counts a prayer you prayed at the masjid or made up late (qada). Export saves every prayer with how it was kept as a CSV.</source>
        <extracomment>I&apos;m Excused… and Mark as Prayed are commands of the tray menu; use their translations</extracomment>
        <translation>«&#xa0;Dispense de prière…&#xa0;» dans le menu désactive les rappels et les verrouillages sans interrompre votre série. «&#xa0;Marquer comme accomplie&#xa0;» compte une prière faite à la mosquée ou rattrapée plus tard (qada). «&#xa0;Exporter l&apos;historique…&#xa0;» enregistre chaque prière, avec la façon dont elle a été accomplie, dans un fichier CSV.</translation>
    </message>
    <message>
        <source>“I&apos;m Excused” ends by itself after</source>
        <extracomment>A number of days follows in a field; I&apos;m Excused is a command of the tray menu</extracomment>
        <translation>La «&#xa0;Dispense de prière&#xa0;» prend fin d&apos;elle-même après</translation>
    </message>
    <message>
        <source> days</source>
        <extracomment>A unit after a number of days in a field; keep the leading space if your language has one</extracomment>
        <translation> jours</translation>
    </message>
    <message>
        <source>Export History…</source>
        <translation>Exporter l&apos;historique…</translation>
    </message>
    <message>
        <source>On Fridays Dhuhr becomes Jumu&apos;ah at this time, with a longer lock.</source>
        <translation>Le vendredi, Dohr devient Joumou&apos;a à cette heure, avec un verrouillage plus long.</translation>
    </message>
    <message>
        <source>Jumu&apos;ah on Fridays</source>
        <translation>Joumou&apos;a le vendredi</translation>
    </message>
    <message>
        <source>Jumu&apos;ah time</source>
        <translation>Heure de Joumou&apos;a</translation>
    </message>
    <message>
        <source>Jumu&apos;ah lock lasts</source>
        <translation>Durée du verrouillage de Joumou&apos;a</translation>
    </message>
    <message>
        <source> min</source>
        <extracomment>A unit after a number of minutes in a field; keep the leading space if your language has one</extracomment>
        <translation> min</translation>
    </message>
    <message>
        <source>Places with this name</source>
        <translation>Lieux portant ce nom</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Times are calculated on your computer, no internet needed. Your computer&apos;s time zone: %1</source>
        <extracomment>%1 the time zone&apos;s identifier, such as Europe/London</extracomment>
        <translation>Les heures sont calculées sur votre ordinateur, sans connexion Internet. Fuseau horaire de votre ordinateur&#xa0;: %1</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Ville</translation>
    </message>
    <message>
        <source>e.g. London, Dhaka, Toronto</source>
        <extracomment>Examples of cities; use cities your readers know</extracomment>
        <translation>p. ex. Paris, Dakar, Montréal</translation>
    </message>
    <message>
        <source>Find</source>
        <extracomment>A button: search for the city typed</extracomment>
        <translation>Chercher</translation>
    </message>
    <message>
        <source>Using</source>
        <extracomment>The location in use: a label before the place&apos;s name and coordinates</extracomment>
        <translation>Position utilisée</translation>
    </message>
    <message>
        <source>%1  %2, %3</source>
        <extracomment>%1 the place&apos;s name, %2 its latitude, %3 its longitude</extracomment>
        <translation>%1  %2, %3</translation>
    </message>
    <message>
        <source>Not set yet</source>
        <translation>Pas encore définie</translation>
    </message>
    <message>
        <source>Enter coordinates</source>
        <translation>Saisir les coordonnées</translation>
    </message>
    <message>
        <source>Name</source>
        <extracomment>The place&apos;s name, typed with its coordinates</extracomment>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Latitude</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Longitude</translation>
    </message>
    <message>
        <source>During a lock every screen goes black, and the lock holds the keyboard and mouse, so the panel, window and workspace switching and the desktop&apos;s shortcuts are out of reach. There&apos;s no way to end it early except your guardian&apos;s code. If your mic or camera is in use when a lock is due, it waits for the call to end, then locks for the full time. With “Did you pray?”, answering Not Yet locks again for 5 minutes. If your computer is asleep, it locks on wake only while still inside the lock window.</source>
        <extracomment>“Did you pray?” and Not Yet are the texts of the question asked after a lock and its button</extracomment>
        <translation>Pendant un verrouillage, tous les écrans deviennent noirs et le verrouillage capture le clavier et la souris&#xa0;: le panneau, le changement de fenêtre ou d&apos;espace de travail et les raccourcis du bureau sont hors d&apos;atteinte. Rien ne permet d&apos;y mettre fin plus tôt, sauf le code de votre gardien. Si votre micro ou votre caméra est utilisé au moment prévu, le verrouillage attend la fin de l&apos;appel, puis dure tout le temps prévu. Avec «&#xa0;Avez-vous prié&#xa0;?&#xa0;», répondre «&#xa0;Pas encore&#xa0;» verrouille de nouveau pendant 5 minutes. Si votre ordinateur est en veille, il se verrouille à son réveil seulement si la plage de verrouillage n&apos;est pas terminée.</translation>
    </message>
    <message>
        <source>During a lock every screen goes black, and the lock holds the keyboard and mouse, so the panel, window and workspace switching and the desktop&apos;s shortcuts are out of reach. There&apos;s no way to end it early. If your mic or camera is in use when a lock is due, it waits for the call to end, then locks for the full time. With “Did you pray?”, answering Not Yet locks again for 5 minutes. If your computer is asleep, it locks on wake only while still inside the lock window.</source>
        <extracomment>“Did you pray?” and Not Yet are the texts of the question asked after a lock and its button</extracomment>
        <translation>Pendant un verrouillage, tous les écrans deviennent noirs et le verrouillage capture le clavier et la souris&#xa0;: le panneau, le changement de fenêtre ou d&apos;espace de travail et les raccourcis du bureau sont hors d&apos;atteinte. Rien ne permet d&apos;y mettre fin plus tôt. Si votre micro ou votre caméra est utilisé au moment prévu, le verrouillage attend la fin de l&apos;appel, puis dure tout le temps prévu. Avec «&#xa0;Avez-vous prié&#xa0;?&#xa0;», répondre «&#xa0;Pas encore&#xa0;» verrouille de nouveau pendant 5 minutes. Si votre ordinateur est en veille, il se verrouille à son réveil seulement si la plage de verrouillage n&apos;est pas terminée.</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>A sentence&apos;s full stop: %1 the sentence</extracomment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Lock</source>
        <extracomment>The heading of the section about the lock (a noun)</extracomment>
        <translation>Verrouillage</translation>
    </message>
    <message>
        <source>Lock lasts</source>
        <translation>Durée du verrouillage</translation>
    </message>
    <message>
        <source>Lock starts before prayer</source>
        <translation>Verrouiller avant la prière</translation>
    </message>
    <message>
        <source>Reminders (minutes before)</source>
        <translation>Rappels (minutes avant)</translation>
    </message>
    <message>
        <source>20, 10, 5, 2</source>
        <extracomment>An example of the reminders field: minutes before the lock, separated by commas</extracomment>
        <translation>20, 10, 5, 2</translation>
    </message>
    <message>
        <source>Wait for a call to end</source>
        <extracomment>How long a lock waits while the mic or camera is in use</extracomment>
        <translation>Attendre la fin d&apos;un appel</translation>
    </message>
    <message>
        <source>Ask “Did you pray?” after each lock</source>
        <translation>Demander «&#xa0;Avez-vous prié&#xa0;?&#xa0;» après chaque verrouillage</translation>
    </message>
    <message>
        <source>Your phone too</source>
        <translation>Votre téléphone aussi</translation>
    </message>
    <message>
        <source>Tarvanel runs the script “%1” when a lock starts and “%2” when it ends. The pair written for your desktop turns its notification banners off and back on; a command added to both can quiet your phone as well.</source>
        <extracomment>%1 and %2 the names of the two scripts (file names: they stay as they are)</extracomment>
        <translation>Tarvanel lance le script «&#xa0;%1&#xa0;» au début d&apos;un verrouillage et «&#xa0;%2&#xa0;» à la fin. La paire écrite pour votre bureau désactive puis réactive ses bannières de notification&#xa0;; une commande ajoutée aux deux peut aussi rendre votre téléphone silencieux.</translation>
    </message>
    <message>
        <source>Run the Focus scripts during each lock</source>
        <extracomment>Focus names the pair of scripts run at the start and the end of a lock</extracomment>
        <translation>Lancer les scripts Focus à chaque verrouillage</translation>
    </message>
    <message>
        <source>Scripts</source>
        <translation>Scripts</translation>
    </message>
    <message>
        <source>Not checked yet</source>
        <translation>Pas encore vérifiés</translation>
    </message>
    <message>
        <source>Both scripts found</source>
        <translation>Les deux scripts sont présents</translation>
    </message>
    <message>
        <source>Scripts missing</source>
        <translation>Scripts manquants</translation>
    </message>
    <message>
        <source>1. Choose your desktop below and press Write Scripts: it makes “%1” and “%2” in %3, which switch the desktop&apos;s notification banners off and on.
2. Or write them yourself: any executable files with those names (each may run for 30 seconds at most).
3. For your phone: add to both scripts a command of the tool that links your phone to this computer, if you use one.</source>
        <extracomment>%1 and %2 the names of the two scripts, %3 their folder; Write Scripts is a button below</extracomment>
        <translation>1. Choisissez votre bureau ci-dessous et cliquez sur «&#xa0;Écrire les scripts&#xa0;»&#xa0;: cela crée «&#xa0;%1&#xa0;» et «&#xa0;%2&#xa0;» dans %3, qui désactivent puis réactivent les bannières de notification du bureau.
2. Ou écrivez-les vous-même&#xa0;: n&apos;importe quels fichiers exécutables portant ces noms (chacun peut durer 30 secondes au plus).
3. Pour votre téléphone&#xa0;: ajoutez aux deux scripts une commande de l&apos;outil qui relie votre téléphone à cet ordinateur, si vous en utilisez un.</translation>
    </message>
    <message>
        <source>Scripts for</source>
        <extracomment>The desktop the scripts are written for</extracomment>
        <translation>Scripts pour</translation>
    </message>
    <message>
        <source>Write Scripts</source>
        <translation>Écrire les scripts</translation>
    </message>
    <message>
        <source>Open Shortcuts Folder</source>
        <translation>Ouvrir le dossier des scripts</translation>
    </message>
    <message>
        <source>Check Again</source>
        <translation>Revérifier</translation>
    </message>
    <message>
        <source>Test</source>
        <extracomment>A button: run the scripts once now to try them</extracomment>
        <translation>Tester</translation>
    </message>
    <message>
        <source>Find your city to begin</source>
        <translation>Cherchez votre ville pour commencer</translation>
    </message>
    <message>
        <source>Your location</source>
        <translation>Votre position</translation>
    </message>
    <message>
        <source>%1  ·  %2 locks at %3</source>
        <extracomment>The settings window&apos;s header: %1 the place, %2 a prayer, %3 the time its lock starts</extracomment>
        <translation>%1  ·  %2&#xa0;: verrouillage à %3</translation>
    </message>
    <message>
        <source>Start Tarvanel</source>
        <extracomment>The button that saves the settings on the first run and starts the program</extracomment>
        <translation>Démarrer Tarvanel</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>h:mm AP</source>
        <extracomment>How a time of day is written, in Qt&apos;s date-time pattern letters: h hour, mm minutes, AP AM or PM. A 24-hour clock is HH:mm</extracomment>
        <translation>HH:mm</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Aujourd&apos;hui</translation>
    </message>
    <message>
        <source>Find your city to see today&apos;s times.</source>
        <translation>Cherchez votre ville pour voir les heures du jour.</translation>
    </message>
    <message>
        <source>locks %1</source>
        <extracomment>A column of today&apos;s times: %1 the time this prayer&apos;s lock starts</extracomment>
        <translation>verrouille à %1</translation>
    </message>
    <message>
        <source>Fajr ends at sunrise, %1.</source>
        <extracomment>%1 the time of sunrise</extracomment>
        <translation>Fajr se termine au lever du soleil, à %1.</translation>
    </message>
    <message>
        <source>Travel</source>
        <translation>Voyage</translation>
    </message>
    <message>
        <source>Travel mode checks your rough location online every 6 hours and uses local times when you&apos;re more than 50 km from home; a VPN will fool it. You can also choose I&apos;m Travelling… in the menu. Combining makes Dhuhr and Asr one lock at Dhuhr, and Maghrib and Isha one lock at Maghrib, only while travelling. Schools differ: the Hanafi school, for example, doesn&apos;t permit combining except at Arafah and Muzdalifah. Turn it on only if your school permits it.</source>
        <extracomment>I&apos;m Travelling… is a command of the tray menu</extracomment>
        <translation>Le mode voyage vérifie votre position approximative en ligne toutes les 6 heures et utilise les heures locales quand vous êtes à plus de 50 km de chez vous&#xa0;; un VPN le trompera. Vous pouvez aussi choisir «&#xa0;Je suis en voyage…&#xa0;» dans le menu. Le regroupement fait de Dohr et Asr un seul verrouillage à l&apos;heure de Dohr, et de Maghreb et Icha un seul verrouillage à l&apos;heure de Maghreb, uniquement en voyage. Les écoles divergent&#xa0;: l&apos;école hanafite, par exemple, ne permet le regroupement qu&apos;à Arafah et Muzdalifah. Ne l&apos;activez que si votre école le permet.</translation>
    </message>
    <message>
        <source>Travel mode (follow my location)</source>
        <translation>Mode voyage (suivre ma position)</translation>
    </message>
    <message>
        <source>Combine prayers while travelling</source>
        <translation>Regrouper les prières en voyage</translation>
    </message>
    <message>
        <source>%1 minutes after start</source>
        <extracomment>Read by a screen reader: %1 a prayer</extracomment>
        <translation>%1&#xa0;: minutes après le début</translation>
    </message>
    <message>
        <source>%1 fixed time</source>
        <extracomment>Read by a screen reader: %1 a prayer</extracomment>
        <translation>%1&#xa0;: heure fixe</translation>
    </message>
    <message>
        <source>When you pray</source>
        <translation>Quand vous priez</translation>
    </message>
    <message>
        <source>Lock at the time you actually pray, like your mosque&apos;s jamaat, instead of the moment the time starts. An imported timetable wins on the days it covers.</source>
        <extracomment>“Lock” here is a verb; jamaat is the congregational prayer at the mosque</extracomment>
        <translation>Verrouiller à l&apos;heure où vous priez vraiment, comme l&apos;iqama (prière en commun) de votre mosquée, plutôt qu&apos;au début de l&apos;heure de la prière. Des horaires importés l&apos;emportent sur les jours qu&apos;ils couvrent.</translation>
    </message>
    <message>
        <source>Clear</source>
        <extracomment>A button: forget the imported timetable</extracomment>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Masjid timetable: %1</source>
        <extracomment>%1 the imported timetable&apos;s days and dates, such as “31 days, 1 Mar 2025 – 31 Mar 2025”</extracomment>
        <translation>Horaires de la mosquée&#xa0;: %1</translation>
    </message>
    <message>
        <source>No masjid timetable imported</source>
        <translation>Aucun horaire de mosquée importé</translation>
    </message>
    <message>
        <source>Import Timetable…</source>
        <translation>Importer des horaires…</translation>
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
        <translation>Dès le début</translation>
    </message>
    <message>
        <source>After start</source>
        <extracomment>When the lock comes: some minutes after the prayer&apos;s start time.</extracomment>
        <translation>Après le début</translation>
    </message>
    <message>
        <source>Fixed time</source>
        <extracomment>When the lock comes: at a fixed clock time, such as a mosque&apos;s jamaat.</extracomment>
        <translation>Heure fixe</translation>
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
        <translation>Prière</translation>
    </message>
    <message>
        <source>Waqt</source>
        <extracomment>Column heading of the --times table: the computed time of the prayer</extracomment>
        <translation>Début</translation>
    </message>
    <message>
        <source>Lock at</source>
        <extracomment>Column heading of the --times table: when the screens lock</extracomment>
        <translation>Verrouillage</translation>
    </message>
    <message>
        <source>config.json is invalid (%1); printing the default settings&apos; times</source>
        <extracomment>%1 says what is wrong with the settings file config.json</extracomment>
        <translation>config.json n&apos;est pas valide (%1)&#xa0;; affichage des heures selon les paramètres par défaut</translation>
    </message>
    <message>
        <source>no place is set, so these times are for 0° N 0° E; to set yours, open Tarvanel (its settings open on the first start) or write %1</source>
        <extracomment>%1 is the settings file</extracomment>
        <translation>aucun lieu n&apos;est défini, ces heures sont donc celles de 0° N 0° E&#xa0;; pour définir le vôtre, ouvrez Tarvanel (ses paramètres s&apos;ouvrent au premier lancement) ou écrivez %1</translation>
    </message>
</context>
<context>
    <name>Timetable</name>
    <message numerus="yes">
        <source>%Ln days, %1 – %2</source>
        <extracomment>The imported timetable: %Ln days from %1 to %2 (&quot;30 days, 1 Mar 2025 – 30 Mar 2025&quot;).</extracomment>
        <translation>
            <numerusform>%Ln jour, %1 – %2</numerusform>
            <numerusform>%Ln jours, %1 – %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Title</name>
    <message>
        <source>%1m</source>
        <extracomment>Short countdown in the tray title: %1 minutes, as in &quot;47m&quot;</extracomment>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1h %2m</source>
        <extracomment>Short countdown in the tray title: %1 hours and %2 minutes, as in &quot;1h 5m&quot;</extracomment>
        <translation>%1 h %2 min</translation>
    </message>
    <message>
        <source>Preview</source>
        <extracomment>Tray title while the lock started by &quot;Preview Lock&quot; in the menu shows</extracomment>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Test</source>
        <extracomment>Tray title while the lock started by the command line&apos;s --test-lock shows</extracomment>
        <translation>Test</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <extracomment>Tray title: %1 is a prayer name, %2 a short countdown such as &quot;47m&quot; or &quot;1h 5m&quot;</extracomment>
        <translation>%1 dans %2</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <extracomment>Tray title: %1 is the prayer name Fajr, %2 its time tomorrow</extracomment>
        <translation>%1 à %2</translation>
    </message>
</context>
<context>
    <name>Travel</name>
    <message>
        <source>Travelling</source>
        <extracomment>Stands for the place&apos;s name while travelling when the location service names no city.</extracomment>
        <translation>En voyage</translation>
    </message>
</context>
<context>
    <name>tarvanel::AppDelegate</name>
    <message>
        <source>config.json can&apos;t be used (%1). Tarvanel keeps the last good settings.</source>
        <extracomment>%1 says what is wrong with the settings file config.json</extracomment>
        <translation>config.json est inutilisable (%1). Tarvanel conserve les derniers paramètres valides.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Tarvanel history.csv</source>
        <extracomment>The file name the history export suggests; keep the .csv ending</extracomment>
        <translation>Historique Tarvanel.csv</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Couldn&apos;t export the history to %1</source>
        <extracomment>%1 is a file</extracomment>
        <translation>Impossible d&apos;exporter l&apos;historique vers %1</translation>
    </message>
    <message numerus="yes">
        <source>Exported %Ln prayers to %1</source>
        <extracomment>%1 is a file; the count is of prayers written to it</extracomment>
        <translation>
            <numerusform>%Ln prière exportée vers %1</numerusform>
            <numerusform>%Ln prières exportées vers %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Uninstall Tarvanel?</source>
        <translation>Désinstaller Tarvanel&#xa0;?</translation>
    </message>
    <message>
        <source>Tarvanel stops running, stops starting at login, and moves to the Trash. Your prayer times stop locking the screen.</source>
        <translation>Tarvanel s&apos;arrête, ne démarre plus à l&apos;ouverture de session et est mis à la corbeille. Vos heures de prière ne verrouilleront plus l&apos;écran.</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>Désinstaller</translation>
    </message>
    <message>
        <source>Also delete my settings and history</source>
        <translation>Supprimer aussi mes paramètres et mon historique</translation>
    </message>
    <message>
        <source>Turn off reminders and locks?</source>
        <extracomment>Asked on &quot;I&apos;m Excused…&quot; in the menu: exempt from prayer for a while</extracomment>
        <translation>Désactiver les rappels et les verrouillages&#xa0;?</translation>
    </message>
    <message numerus="yes">
        <source>They come back when you choose %1, or after %Ln days. Your streak is kept.</source>
        <extracomment>%1 is the menu item that ends the excused days</extracomment>
        <translation>
            <numerusform>Ils reviendront quand vous choisirez «&#xa0;%1&#xa0;», ou après %Ln jour. Votre série est conservée.</numerusform>
            <numerusform>Ils reviendront quand vous choisirez «&#xa0;%1&#xa0;», ou après %Ln jours. Votre série est conservée.</numerusform>
        </translation>
    </message>
    <message>
        <source>Turn Off</source>
        <translation>Désactiver</translation>
    </message>
    <message>
        <source>Travelling until…</source>
        <extracomment>Above a date picker: the last day of the journey</extracomment>
        <translation>En voyage jusqu&apos;au…</translation>
    </message>
    <message>
        <source>%1 and %2 become one lock, and so do %3 and %4, through the end of this day.</source>
        <extracomment>%1 and %2 are combined into one lock, and so are %3 and %4 (prayer names)</extracomment>
        <translation>%1 et %2 deviennent un seul verrouillage, de même que %3 et %4, jusqu&apos;à la fin de ce jour.</translation>
    </message>
    <message>
        <source>Turn on “Combine prayers while travelling” in Settings if your school permits it.</source>
        <extracomment>The quoted text is a check box in Settings; school: of Islamic law</extracomment>
        <translation>Activez «&#xa0;Regrouper les prières en voyage&#xa0;» dans les paramètres si votre école le permet.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Commencer</translation>
    </message>
    <message>
        <source>Pause Tarvanel?</source>
        <translation>Mettre Tarvanel en pause&#xa0;?</translation>
    </message>
    <message>
        <source>No reminders and no locks until %1 at midnight. You can resume any time from the menu.</source>
        <extracomment>%1 is a weekday and a date, as in &quot;Friday 3 October&quot;</extracomment>
        <translation>Aucun rappel ni verrouillage jusqu&apos;au %1 à minuit. Vous pouvez reprendre à tout moment depuis le menu.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>%1&apos;s lock is due now: lock now?</source>
        <extracomment>%1 is a prayer name; &quot;lock now&quot; is a verb</extracomment>
        <translation>%1&#xa0;: le verrouillage est prévu maintenant. Verrouiller&#xa0;?</translation>
    </message>
    <message>
        <source>Resuming now turns every screen black at once. Cancel keeps the pause.</source>
        <extracomment>&quot;Cancel&quot; is the button of this question</extracomment>
        <translation>Reprendre maintenant rend aussitôt tous les écrans noirs. «&#xa0;Annuler&#xa0;» maintient la pause.</translation>
    </message>
    <message>
        <source>Lock Now</source>
        <extracomment>A verb: lock the screens now</extracomment>
        <translation>Verrouiller</translation>
    </message>
    <message>
        <source>Next lock: %1 at %2</source>
        <extracomment>%1 is a prayer name, %2 the time the screens lock</extracomment>
        <translation>Prochain verrouillage&#xa0;: %1 à %2</translation>
    </message>
    <message>
        <source>Next lock: %1 tomorrow at %2</source>
        <extracomment>%1 is the prayer name Fajr, %2 the time the screens lock tomorrow</extracomment>
        <translation>Prochain verrouillage&#xa0;: %1 demain à %2</translation>
    </message>
    <message>
        <source>Tarvanel lives in the tray: its menu has today&apos;s times and Settings.</source>
        <translation>Tarvanel se trouve dans la zone de notification&#xa0;: son menu affiche les heures du jour et donne accès aux paramètres.</translation>
    </message>
    <message>
        <source>Tarvanel is running</source>
        <translation>Tarvanel est lancé</translation>
    </message>
    <message>
        <source>Set up</source>
        <extracomment>Tray title while the program has no settings yet</extracomment>
        <translation>À configurer</translation>
    </message>
    <message>
        <source>Paused</source>
        <extracomment>Tray title while the locks are paused</extracomment>
        <translation>En pause</translation>
    </message>
    <message>
        <source>%1 after your call</source>
        <extracomment>Tray title: %1 is a prayer name; its lock waits for the end of a call</extracomment>
        <translation>%1 après votre appel</translation>
    </message>
    <message>
        <source>%1 locks when your call ends</source>
        <extracomment>%1 is a prayer name: its lock waits for the end of a call</extracomment>
        <translation>%1&#xa0;: verrouillage à la fin de votre appel</translation>
    </message>
    <message>
        <source>Did you pray %1?</source>
        <extracomment>%1 is a prayer name</extracomment>
        <translation>%1&#xa0;: avez-vous prié&#xa0;?</translation>
    </message>
    <message numerus="yes">
        <source>“Not yet” locks the screen again for %Ln minutes.</source>
        <extracomment>“Not yet” is the second button of this question</extracomment>
        <translation>
            <numerusform>«&#xa0;Pas encore&#xa0;» verrouille de nouveau l&apos;écran pendant %Ln minute.</numerusform>
            <numerusform>«&#xa0;Pas encore&#xa0;» verrouille de nouveau l&apos;écran pendant %Ln minutes.</numerusform>
        </translation>
    </message>
    <message>
        <source>Yes, I Prayed</source>
        <translation>Oui, j&apos;ai prié</translation>
    </message>
    <message>
        <source>Not Yet</source>
        <translation>Pas encore</translation>
    </message>
</context>
<context>
    <name>tarvanel::GuardianSetup</name>
    <message>
        <source>QR code</source>
        <translation>Code QR</translation>
    </message>
    <message>
        <source>Ask the person you trust to scan this with an authenticator app (Google Authenticator, Microsoft Authenticator, Authy, or Apple&apos;s Passwords app), or to type the key:</source>
        <extracomment>The apps are proper names; Apple&apos;s app is called Passwords</extracomment>
        <translation>Demandez à la personne de confiance de scanner ce code avec une application d&apos;authentification (Google Authenticator, Microsoft Authenticator, Authy ou l&apos;app Mots de passe d&apos;Apple), ou de saisir la clé&#xa0;:</translation>
    </message>
    <message>
        <source>Key</source>
        <extracomment>The secret key of the guardian&apos;s code, shown to be typed into an app</extracomment>
        <translation>Clé</translation>
    </message>
    <message>
        <source>Code from their app</source>
        <translation>Code de son application</translation>
    </message>
    <message>
        <source>Code</source>
        <extracomment>The six-digit code the guardian&apos;s app shows</extracomment>
        <translation>Code</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Confirmer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>tarvanel::LockView</name>
    <message>
        <source>PREVIEW</source>
        <extracomment>Above the name of a lock that is only tried out from the settings; capitals if your script has them</extracomment>
        <translation>APERÇU</translation>
    </message>
    <message>
        <source>IT&apos;S TIME FOR</source>
        <extracomment>Above the prayer&apos;s name on the lock screen, e.g. IT&apos;S TIME FOR / Fajr; capitals if your script has them</extracomment>
        <translation>C&apos;EST L&apos;HEURE DE LA PRIÈRE</translation>
    </message>
    <message>
        <source>Preview</source>
        <extracomment>The name of a lock tried out from the settings, shown in place of a prayer&apos;s name</extracomment>
        <translation>Aperçu</translation>
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
        <translation>Le fichier de paramètres a changé pendant que cette fenêtre était ouverte. «&#xa0;Enregistrer&#xa0;» garde ce que vous voyez ici&#xa0;; «&#xa0;Annuler&#xa0;» garde les paramètres du fichier.</translation>
    </message>
    <message>
        <source>Found %1.</source>
        <extracomment>After a city search: %1 is the place found (&quot;Leeds, England, United Kingdom&quot;).</extracomment>
        <translation>Trouvé&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>Recherche…</translation>
    </message>
    <message>
        <source>Couldn&apos;t find “%1”. Check the spelling, or enter coordinates below.</source>
        <extracomment>%1 is the place the user searched for.</extracomment>
        <translation>«&#xa0;%1&#xa0;» est introuvable. Vérifiez l&apos;orthographe, ou saisissez les coordonnées ci-dessous.</translation>
    </message>
    <message>
        <source>Suggested: %1, Hanafi Asr. Change it below if your mosque uses something else.</source>
        <extracomment>Follows &quot;Found &lt;place&gt;.&quot; %1 is a calculation method (&quot;Muslim World League&quot;).</extracomment>
        <translation>Suggestion&#xa0;: %1, Asr hanafite. Modifiez ce choix ci-dessous si votre mosquée en utilise un autre.</translation>
    </message>
    <message>
        <source>Suggested: %1. Change it below if your mosque uses something else.</source>
        <extracomment>Follows &quot;Found &lt;place&gt;.&quot; %1 is a calculation method (&quot;Muslim World League&quot;).</extracomment>
        <translation>Suggestion&#xa0;: %1. Modifiez ce choix ci-dessous si votre mosquée en utilise un autre.</translation>
    </message>
    <message>
        <source>Heads up: your computer is set to %1, not %2. Times follow your computer&apos;s clock.</source>
        <extracomment>%1 and %2 are time zones such as &quot;Europe/London&quot; and &quot;Asia/Karachi&quot;.</extracomment>
        <translation>Attention&#xa0;: votre ordinateur est réglé sur %1, et non sur %2. Les heures suivent l&apos;horloge de votre ordinateur.</translation>
    </message>
    <message>
        <source>Asking for Calendar access…</source>
        <translation>Demande d&apos;accès à l&apos;agenda…</translation>
    </message>
    <message>
        <source>Calendar access is off. Tarvanel writes its events under ~/.local/share/calendars: turn this on again and choose Allow, and check that you can write to that folder.</source>
        <extracomment>&quot;Allow&quot; is the button of the question asking for calendar access.</extracomment>
        <translation>L&apos;accès à l&apos;agenda est désactivé. Tarvanel écrit ses événements sous ~/.local/share/calendars&#xa0;: réactivez cette option, choisissez «&#xa0;Autoriser&#xa0;» et vérifiez que vous pouvez écrire dans ce dossier.</translation>
    </message>
    <message>
        <source>Focus on for 10 seconds… check that notifications stay quiet.</source>
        <extracomment>Focus: the desktop&apos;s do-not-disturb mode, turned on while a lock lasts.</extracomment>
        <translation>Focus activé pour 10 secondes… vérifiez que les notifications restent silencieuses.</translation>
    </message>
    <message>
        <source>Done. Focus is off again.</source>
        <translation>Terminé. Focus est de nouveau désactivé.</translation>
    </message>
    <message>
        <source>“%1”</source>
        <extracomment>A shortcut&apos;s name in quotation marks; use the language&apos;s own marks.</extracomment>
        <translation>«&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <extracomment>Two names in a list, each already quoted: “A” and “B”.</extracomment>
        <translation>%1 et %2</translation>
    </message>
    <message>
        <source>Replace your own %1?</source>
        <extracomment>%1 is one or two shortcut names the user wrote, already quoted.</extracomment>
        <translation>Remplacer votre version de %1&#xa0;?</translation>
    </message>
    <message>
        <source>Tarvanel&apos;s pair for %1 takes the place of what you wrote.</source>
        <extracomment>%1 is a desktop such as &quot;GNOME&quot; or &quot;XFCE&quot;.</extracomment>
        <translation>La paire de Tarvanel pour %1 remplace ce que vous aviez écrit.</translation>
    </message>
    <message>
        <source>Kept your own %1.</source>
        <extracomment>%1 is one or two shortcut names the user wrote, already quoted.</extracomment>
        <translation>Votre version de %1 a été conservée.</translation>
    </message>
    <message>
        <source>Wrote %1 for %2.</source>
        <extracomment>%1 is the two quoted shortcut names (“Tarvanel Focus On” and “Tarvanel Focus Off”), %2 a desktop such as &quot;GNOME&quot;.</extracomment>
        <translation>Scripts %1 écrits pour %2.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write %1. The log in ~/.tarvanel/log.txt says why.</source>
        <extracomment>%1 is the two quoted shortcut names.</extracomment>
        <translation>Impossible d&apos;écrire %1. Le journal ~/.tarvanel/log.txt indique pourquoi.</translation>
    </message>
    <message>
        <source>Guardian code is on.</source>
        <extracomment>The guardian: the person whose six-digit code ends a lock early.</extracomment>
        <translation>Le code du gardien est activé.</translation>
    </message>
    <message>
        <source>That code doesn&apos;t match. Check both clocks are right and try the newest code.</source>
        <translation>Ce code ne correspond pas. Vérifiez que les deux horloges sont à l&apos;heure et essayez le code le plus récent.</translation>
    </message>
</context>
<context>
    <name>tarvanel::PrayerSettingsView</name>
    <message>
        <source>Your settings file can&apos;t be used (%1), so nothing locks yet. Check the settings below and save to start again.</source>
        <extracomment>%1 what is wrong with the settings file</extracomment>
        <translation>Votre fichier de paramètres est inutilisable (%1)&#xa0;: rien ne se verrouille pour l&apos;instant. Vérifiez les paramètres ci-dessous et enregistrez pour repartir.</translation>
    </message>
    <message>
        <source>Welcome to Tarvanel</source>
        <translation>Bienvenue dans Tarvanel</translation>
    </message>
    <message>
        <source>Get up and pray, on time</source>
        <translation>Levez-vous et priez, à l&apos;heure</translation>
    </message>
    <message>
        <source>At each prayer time Tarvanel turns every screen black for a few minutes so you step away and pray. You get reminders before each lock. Once a lock starts there&apos;s no way out until it ends. Find your city to begin.</source>
        <translation>À chaque heure de prière, Tarvanel rend tous les écrans noirs pendant quelques minutes pour que vous vous leviez et alliez prier. Des rappels vous préviennent avant chaque verrouillage. Une fois un verrouillage commencé, impossible d&apos;en sortir avant la fin. Cherchez votre ville pour commencer.</translation>
    </message>
    <message>
        <source>Preview Lock</source>
        <translation>Aperçu du verrouillage</translation>
    </message>
    <message>
        <source>Black out the screen for 10 seconds</source>
        <translation>Rendre l&apos;écran noir pendant 10 secondes</translation>
    </message>
    <message>
        <source>Uninstall…</source>
        <translation>Désinstaller…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Find your city or enter coordinates first.</source>
        <translation>Cherchez d&apos;abord votre ville ou saisissez des coordonnées.</translation>
    </message>
</context>
<context>
    <name>tarvanel::QtPlatform</name>
    <message>
        <source>There&apos;s no tray on this desktop, so Tarvanel runs without an icon: it still locks on time, and opening Tarvanel from the applications menu shows these settings.</source>
        <translation>Ce bureau n&apos;a pas de zone de notification&#xa0;: Tarvanel fonctionne donc sans icône. Il verrouille toujours à l&apos;heure, et ouvrir Tarvanel depuis le menu des applications affiche ces paramètres.</translation>
    </message>
    <message>
        <source>Welcome to Tarvanel</source>
        <extracomment>The settings window&apos;s title on the first run</extracomment>
        <translation>Bienvenue dans Tarvanel</translation>
    </message>
    <message>
        <source>Tarvanel Settings</source>
        <translation>Paramètres de Tarvanel</translation>
    </message>
</context>
<context>
    <name>tarvanel::TimetableImportModel</name>
    <message>
        <source>Couldn&apos;t read any text in %1.</source>
        <extracomment>%1 is a file&apos;s name.</extracomment>
        <translation>Aucun texte n&apos;a pu être lu dans %1.</translation>
    </message>
    <message>
        <source>No rows with prayer times found yet.</source>
        <translation>Aucune ligne avec des heures de prière pour l&apos;instant.</translation>
    </message>
    <message numerus="yes">
        <source>Found %Ln rows with %1 times each.</source>
        <extracomment>%Ln is the number of rows read from a timetable, %1 the number of times in each.</extracomment>
        <translation>
            <numerusform>%Ln ligne trouvée, avec %1 heures.</numerusform>
            <numerusform>%Ln lignes trouvées, avec %1 heures chacune.</numerusform>
        </translation>
    </message>
    <message>
        <source>Column %1</source>
        <extracomment>A column of the timetable being imported, counted from 1.</extracomment>
        <translation>Colonne %1</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <extracomment>%1 is a file&apos;s name.</extracomment>
        <translation>Lecture de %1…</translation>
    </message>
    <message>
        <source>Reading page %1 of %2…</source>
        <extracomment>While a file of several pages is read: %1 is the page, %2 the number of pages.</extracomment>
        <translation>Lecture de la page %1 sur %2…</translation>
    </message>
    <message numerus="yes">
        <source>Read the first %1 of %Ln pages.</source>
        <extracomment>%1 is the number of pages read, %Ln the number of pages in the file.</extracomment>
        <translation>
            <numerusform>%1 premières pages lues sur %Ln.</numerusform>
            <numerusform>%1 premières pages lues sur %Ln.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Read %Ln pages.</source>
        <extracomment>After a file of several pages was read whole.</extracomment>
        <translation>
            <numerusform>%Ln page lue.</numerusform>
            <numerusform>%Ln pages lues.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tarvanel::TimetableImportView</name>
    <message>
        <source>1. Your masjid&apos;s timetable</source>
        <translation>1. Les horaires de votre mosquée</translation>
    </message>
    <message>
        <source>Choose File…</source>
        <translation>Choisir un fichier…</translation>
    </message>
    <message>
        <source>Reading</source>
        <extracomment>A busy indicator while a photo or PDF is read</extracomment>
        <translation>Lecture en cours</translation>
    </message>
    <message>
        <source>Paste it from the masjid&apos;s website or PDF, or choose a CSV, a photo or a screenshot of the printed sheet. Photos are read on your computer; nothing is uploaded.</source>
        <translation>Collez-les depuis le site ou le PDF de la mosquée, ou choisissez un CSV, une photo ou une capture d&apos;écran de la feuille imprimée. Les photos sont lues sur votre ordinateur&#xa0;; rien n&apos;est envoyé en ligne.</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mois</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Année</translation>
    </message>
    <message>
        <source>2. Which column is which</source>
        <extracomment>Jamaat and iqamah: the time the congregation prays at the masjid</extracomment>
        <translation>2. Quelle colonne correspond à quoi</translation>
    </message>
    <message>
        <source>Pick the jamaat (iqamah) column for each prayer, the time you actually pray. Times without AM/PM are read as morning for Fajr, midday for Dhuhr, and afternoon or evening for the rest.</source>
        <translation>Choisissez pour chaque prière la colonne de l&apos;iqama (prière en commun), l&apos;heure à laquelle vous priez vraiment. Les heures sans AM/PM sont lues comme le matin pour Fajr, la mi-journée pour Dohr, et l&apos;après-midi ou le soir pour les autres.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Use This Timetable</source>
        <translation>Utiliser ces horaires</translation>
    </message>
    <message>
        <source>Timetables (*.csv *.txt *.tsv *.png *.jpg *.jpeg *.gif *.bmp *.tif *.tiff *.webp *.pdf)</source>
        <extracomment>A file type filter; keep the part in brackets as it is</extracomment>
        <translation>Horaires (*.csv *.txt *.tsv *.png *.jpg *.jpeg *.gif *.bmp *.tif *.tiff *.webp *.pdf)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <extracomment>A file type filter; keep the part in brackets as it is</extracomment>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Read Timetable</source>
        <translation>Lire les horaires</translation>
    </message>
    <message>
        <source>Not in the timetable</source>
        <extracomment>A prayer&apos;s column choice: the timetable has no column for this prayer</extracomment>
        <translation>Absent des horaires</translation>
    </message>
    <message numerus="yes">
        <source>3. Preview (%Ln days)</source>
        <translation>
            <numerusform>3. Aperçu (%Ln jour)</numerusform>
            <numerusform>3. Aperçu (%Ln jours)</numerusform>
        </translation>
    </message>
    <message>
        <source>No days yet. Check the month and the columns.</source>
        <translation>Aucun jour pour l&apos;instant. Vérifiez le mois et les colonnes.</translation>
    </message>
</context>
</TS>
