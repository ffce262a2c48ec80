<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="de">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Kopiert</source>
        <translation>Copied</translation>
    </message>
    <message>
        <source>&amp;Versionen kopieren</source>
        <translation>Copy &amp;versions</translation>
    </message>
    <message>
        <source>Über %1</source>
        <translation>About %1</translation>
    </message>
    <message>
        <source>Prozessüberwachung für Spritzgießwerkzeuge</source>
        <translation>Process monitoring for injection moulds</translation>
    </message>
    <message>
        <source>Versionen</source>
        <translation>Versions</translation>
    </message>
    <message>
        <source>Lizenzen</source>
        <translation>Licences</translation>
    </message>
    <message>
        <source>Text der Lizenz</source>
        <translation>Licence text</translation>
    </message>
    <message>
        <source>Kopiert die Versionen als Text für eine Anfrage beim Hersteller</source>
        <translation>Copies the versions as text for an enquiry to the manufacturer</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>&amp;Close</translation>
    </message>
</context>
<context>
    <name>AboutInfo</name>
    <message>
        <source>unbekannt</source>
        <translation>unknown</translation>
    </message>
    <message>
        <source>nicht verbunden</source>
        <translation>not connected</translation>
    </message>
    <message>
        <source>%1 (zuletzt bekannt, nicht verbunden)</source>
        <translation>%1 (last known, not connected)</translation>
    </message>
    <message>
        <source>%1 (übersetzt mit %2)</source>
        <translation>%1 (compiled with %2)</translation>
    </message>
    <message>
        <source>Programm</source>
        <translation>Program</translation>
    </message>
    <message>
        <source>Projektdatei</source>
        <translation>Project file</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Hersteller</source>
        <translation>Manufacturer</translation>
    </message>
    <message>
        <source>Hardware der Box</source>
        <translation>Box hardware</translation>
    </message>
    <message>
        <source>Firmware der Box</source>
        <translation>Box firmware</translation>
    </message>
    <message>
        <source>Betriebssystem</source>
        <translation>Operating system</translation>
    </message>
    <message>
        <source>Systemkern</source>
        <translation>Kernel</translation>
    </message>
    <message>
        <source>Plattform</source>
        <translation>Platform</translation>
    </message>
    <message>
        <source>Oberfläche und Netzwerk, dynamisch gebunden. LGPL Version 3.</source>
        <translation>User interface and network, linked dynamically. LGPL version 3.</translation>
    </message>
    <message>
        <source>Die LGPL Version 3 von Qt nimmt auf sie Bezug.</source>
        <translation>The LGPL version 3 of Qt refers to it.</translation>
    </message>
    <message>
        <source>Schriften Regular, Medium und Bold, Copyright 2015 Google Inc. Apache 2.0.</source>
        <translation>Fonts Regular, Medium and Bold, copyright 2015 Google Inc. Apache 2.0.</translation>
    </message>
    <message>
        <source>Symbole. Apache 2.0.</source>
        <translation>Icons. Apache 2.0.</translation>
    </message>
    <message>
        <source>wird nicht geführt</source>
        <translation>none is kept</translation>
    </message>
    <message>
        <source>leer, da nichts ungespeichert ist</source>
        <translation>empty, as nothing is unsaved</translation>
    </message>
    <message>
        <source>Schreiben auf den Datenträger: zuletzt %1 ms, höchstens %2 ms</source>
        <translation>Writing to the disk: last %1 ms, at most %2 ms</translation>
    </message>
    <message>
        <source>Sicherung</source>
        <translation>Recovery journal</translation>
    </message>
</context>
<context>
    <name>BackupSetting</name>
    <message>
        <source>&amp;Vorige Fassung behalten (.vnt~)</source>
        <translation>Keep pre&amp;vious version (.vnt~)</translation>
    </message>
    <message>
        <source>Lässt beim Speichern den vorigen Stand des Projekts als Sicherungskopie daneben liegen</source>
        <translation>When a project is saved, keeps its previous version beside it as a backup</translation>
    </message>
</context>
<context>
    <name>BlackBoxDays</name>
    <message>
        <source>Lokale Dateien</source>
        <translation>Local files</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Day</translation>
    </message>
    <message>
        <source>Dateien</source>
        <translation>Files</translation>
    </message>
    <message>
        <source>Zustand</source>
        <translation>State</translation>
    </message>
    <message>
        <source>neu</source>
        <translation>new</translation>
    </message>
    <message>
        <source>geladen</source>
        <translation>copied</translation>
    </message>
    <message>
        <source>importiert</source>
        <translation>imported</translation>
    </message>
    <message>
        <source>teilweise</source>
        <translation>partly</translation>
    </message>
</context>
<context>
    <name>BlackBoxFiles</name>
    <message>
        <source>Datei</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Größe</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>Zustand</source>
        <translation>State</translation>
    </message>
</context>
<context>
    <name>BoxCard</name>
    <message>
        <source>&amp;Demo beenden</source>
        <translation>&amp;End demo</translation>
    </message>
    <message>
        <source>&amp;Demo starten</source>
        <translation>Start de&amp;mo</translation>
    </message>
    <message>
        <source>Keine Box zur Hand? Die Demo zeigt Ventaro mit einer simulierten Box.</source>
        <translation>No box at hand? The demo shows Ventaro with a simulated box.</translation>
    </message>
    <message>
        <source>Die Demo ist nicht verfügbar: Das Programm &quot;ventaro-box-simulator&quot; liegt nicht neben Ventaro.</source>
        <translation>The demo is not available: the program &quot;ventaro-box-simulator&quot; is not next to Ventaro.</translation>
    </message>
    <message>
        <source>Noch keine. Jede Box, mit der die Verbindung gelungen ist, steht hier bereit.</source>
        <translation>None yet. Every box that Ventaro has connected to is listed here.</translation>
    </message>
    <message>
        <source>Mit %1 verbinden</source>
        <translation>Connect to %1</translation>
    </message>
    <message>
        <source>Zuletzt verbunden</source>
        <translation>Recent boxes</translation>
    </message>
    <message>
        <source>antwortet</source>
        <translation>answers</translation>
    </message>
    <message>
        <source>keine Antwort</source>
        <translation>no answer</translation>
    </message>
    <message>
        <source>Erreichbarkeit prüfen</source>
        <translation>Check which answer</translation>
    </message>
    <message>
        <source>Zeigt, welche dieser Boxen jetzt Verbindungen annehmen</source>
        <translation>Shows which of these boxes take connections now</translation>
    </message>
</context>
<context>
    <name>BoxDescriptions</name>
    <message>
        <source>Namen und Grenzen der Sensoren kommen jetzt von der Box.</source>
        <translation>The names and limits of the sensors now come from the box.</translation>
    </message>
    <message>
        <source>Übernahme der Sensorbeschreibung</source>
        <translation>taking over the sensor description</translation>
    </message>
</context>
<context>
    <name>BoxLink</name>
    <message>
        <source>Keine Verbindung zur Mesotra Hardware.</source>
        <translation>No connection to the Mesotra hardware.</translation>
    </message>
    <message>
        <source>Verbinden ...</source>
        <translation>Connecting ...</translation>
    </message>
    <message>
        <source>Keine gültige Adresse: %1</source>
        <translation>Not a valid address: %1</translation>
    </message>
    <message>
        <source>Ventaro ist mit %1 verbunden.</source>
        <translation>Ventaro is connected to %1.</translation>
    </message>
    <message>
        <source>Die Demo wird beendet. Mit %1 verbinden?</source>
        <translation>The demo will end. Connect to %1?</translation>
    </message>
    <message>
        <source>Die Verbindung zu %1 wird getrennt. Mit %2 verbinden?</source>
        <translation>The connection to %1 will be closed. Connect to %2?</translation>
    </message>
    <message>
        <source>Verbinden</source>
        <translation>Connect</translation>
    </message>
    <message>
        <source>Verbinden mit %1 ...</source>
        <translation>Connecting to %1 ...</translation>
    </message>
    <message>
        <source>Verbindungsaufbau abgebrochen.</source>
        <translation>Connection attempt cancelled.</translation>
    </message>
    <message>
        <source>Die Demo läuft.</source>
        <translation>The demo is running.</translation>
    </message>
    <message>
        <source>Verbunden mit %1.</source>
        <translation>Connected to %1.</translation>
    </message>
    <message>
        <source>Verbindung getrennt, Aufnahme beendet. Alle Daten sind erhalten.</source>
        <translation>Disconnected, recording ended. All data has been kept.</translation>
    </message>
    <message>
        <source>Verbindung getrennt.</source>
        <translation>Disconnected.</translation>
    </message>
    <message>
        <source>Die Mesotra Box startet neu. Verbinden mit %1 ...</source>
        <translation>The Mesotra box is restarting. Connecting to %1 ...</translation>
    </message>
</context>
<context>
    <name>BoxProbe</name>
    <message>
        <source>Ventaro baut zu jeder Box kurz eine Verbindung auf. Eine Box, die gerade für einen anderen Rechner aufzeichnet, bricht diese Aufzeichnung dabei vielleicht ab. Prüfen?</source>
        <translation>Ventaro connects to each box for a moment. A box that is recording for another computer may break that recording off. Check?</translation>
    </message>
    <message>
        <source>Erreichbarkeit prüfen</source>
        <translation>Check which answer</translation>
    </message>
    <message>
        <source>Das geht nur, solange keine Box verbunden ist oder verbunden wird.</source>
        <translation>This is only possible while no box is connected or being connected.</translation>
    </message>
</context>
<context>
    <name>BoxStateCard</name>
    <message>
        <source>Nicht verbunden</source>
        <translation>Not connected</translation>
    </message>
    <message>
        <source>Aufzeichnung läuft</source>
        <translation>Recording</translation>
    </message>
    <message>
        <source>Verbunden</source>
        <translation>Connected</translation>
    </message>
    <message>
        <source>Verbindung wird aufgebaut ...</source>
        <translation>Connecting ...</translation>
    </message>
    <message>
        <source>Adresse:</source>
        <translation>Address:</translation>
    </message>
    <message>
        <source>Gerät:</source>
        <translation>Device:</translation>
    </message>
    <message>
        <source>Bezeichnung:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Hardware:</source>
        <translation>Hardware:</translation>
    </message>
    <message>
        <source>Firmware:</source>
        <translation>Firmware:</translation>
    </message>
    <message>
        <source>Abtastrate:</source>
        <translation>Sampling period:</translation>
    </message>
    <message>
        <source>Sensoren:</source>
        <translation>Sensors:</translation>
    </message>
    <message>
        <source>Messungen:</source>
        <translation>Measurements:</translation>
    </message>
    <message>
        <source>Mesotra, Typ %1</source>
        <translation>Mesotra, type %1</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>Noch keine</source>
        <translation>None yet</translation>
    </message>
    <message>
        <source>Demo: simulierte Box, keine Messwerte</source>
        <translation>Demo: simulated box, no real readings</translation>
    </message>
</context>
<context>
    <name>ColoredButton</name>
    <message>
        <source>Farbe %1, Klick öffnet die Farbauswahl</source>
        <translation>Colour %1, click to choose another</translation>
    </message>
    <message>
        <source>Farbe wählen</source>
        <translation>Choose a colour</translation>
    </message>
</context>
<context>
    <name>ConnectionProgress</name>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Den Verbindungsversuch beenden (Esc)</source>
        <translation>Give up the connection attempt (Esc)</translation>
    </message>
    <message>
        <source>Verbindungsaufbau</source>
        <translation>Connection</translation>
    </message>
</context>
<context>
    <name>Continuation</name>
    <message>
        <source>Fortsetzung nach Verbindungsabbruch</source>
        <translation>Continued after a lost connection</translation>
    </message>
</context>
<context>
    <name>CycleTile</name>
    <message>
        <source>Zykluszeit: %1, Schüsse: %2</source>
        <translation>Cycle time: %1, shots: %2</translation>
    </message>
    <message>
        <source>Zeit vom Beginn des vorigen Schusses bis zum Beginn des letzten; ohne Zeitstempel die Dauer der Aufzeichnung</source>
        <translation>Time from the start of the previous shot to the start of the latest; without time stamps the duration of the recording</translation>
    </message>
    <message>
        <source>Zykluszeit</source>
        <translation>Cycle time</translation>
    </message>
    <message>
        <source>Letzter Zyklus</source>
        <translation>Latest cycle</translation>
    </message>
    <message>
        <source>Mittel der letzten %1</source>
        <translation>Mean of the last %1</translation>
    </message>
    <message>
        <source>Mittel</source>
        <translation>Mean</translation>
    </message>
    <message>
        <source>Schüsse</source>
        <translation>Shots</translation>
    </message>
    <message>
        <source>Letzter Schuss</source>
        <translation>Latest shot</translation>
    </message>
    <message>
        <source>Nicht im Mittel: %1 Pausen, länger als das Fünffache des Medians</source>
        <translation>Not part of the mean: %1 breaks, longer than five times the median</translation>
    </message>
    <message>
        <source>Mittel von %1, ohne Pausen</source>
        <translation>Mean of %1, without breaks</translation>
    </message>
</context>
<context>
    <name>Dashboard</name>
    <message>
        <source>Übersicht</source>
        <translation>Overview</translation>
    </message>
</context>
<context>
    <name>DashboardTile</name>
    <message>
        <source>Keine Grenzen</source>
        <translation>No limits</translation>
    </message>
    <message>
        <source>%1/%2 Schuss</source>
        <translation>%1/%2 shots</translation>
    </message>
    <message>
        <source>Cpk %1</source>
        <translation>Cpk %1</translation>
    </message>
    <message>
        <source>%1 bis %2</source>
        <translation>%1 to %2</translation>
    </message>
    <message>
        <source>ab %1</source>
        <translation>from %1</translation>
    </message>
    <message>
        <source>bis %1</source>
        <translation>up to %1</translation>
    </message>
    <message>
        <source>%1, %2: %3 %4, %5</source>
        <translation>%1, %2: %3 %4, %5</translation>
    </message>
    <message>
        <source>Schüsse: %1</source>
        <translation>Shots: %1</translation>
    </message>
    <message>
        <source>Gut: %1, außerhalb: %2</source>
        <translation>Good: %1, outside: %2</translation>
    </message>
    <message>
        <source>Gut: %1</source>
        <translation>Good: %1</translation>
    </message>
    <message>
        <source>Grenzen: %1</source>
        <translation>Limits: %1</translation>
    </message>
    <message>
        <source>Außerhalb: %1</source>
        <translation>Outside: %1</translation>
    </message>
</context>
<context>
    <name>DaysPanel</name>
    <message>
        <source>Tage auf der Box: %1</source>
        <translation>Days on the box: %1</translation>
    </message>
    <message>
        <source>Tage auf der Box</source>
        <translation>Days on the box</translation>
    </message>
    <message>
        <source>&amp;Liste laden</source>
        <translation>&amp;Load list</translation>
    </message>
    <message>
        <source>Die Box nach den Tagen fragen, die sie aufgezeichnet hat</source>
        <translation>Ask the box for the days it has logged</translation>
    </message>
    <message>
        <source>&amp;Alle</source>
        <translation>&amp;All</translation>
    </message>
    <message>
        <source>Alle Tage auswählen</source>
        <translation>Select all days</translation>
    </message>
    <message>
        <source>&amp;Keine</source>
        <translation>&amp;None</translation>
    </message>
    <message>
        <source>Keinen Tag auswählen</source>
        <translation>Select no day</translation>
    </message>
    <message>
        <source>&amp;Nur neue</source>
        <translation>N&amp;ew only</translation>
    </message>
    <message>
        <source>Die Tage auswählen, von denen noch nichts geladen ist</source>
        <translation>Select the days of which nothing has been copied yet</translation>
    </message>
    <message>
        <source>&amp;Holen</source>
        <translation>Cop&amp;y</translation>
    </message>
    <message>
        <source>Die Dateien der ausgewählten Tage von der Box kopieren</source>
        <translation>Copy the files of the selected days from the box</translation>
    </message>
    <message>
        <source>Aufgezeichnete Tage</source>
        <translation>Logged days</translation>
    </message>
</context>
<context>
    <name>DeletionQuestion</name>
    <message>
        <source>Messung %1</source>
        <translation>Measurement %1</translation>
    </message>
    <message>
        <source>... und %1 weitere, zuletzt Messung %2</source>
        <translation>... and %1 more, the last one is measurement %2</translation>
    </message>
    <message>
        <source>Keine Messung wird gelöscht.</source>
        <translation>No measurement will be deleted.</translation>
    </message>
    <message>
        <source>Das ist 1 Messung:</source>
        <translation>This is 1 measurement:</translation>
    </message>
    <message>
        <source>Das sind %1 Messungen:</source>
        <translation>These are %1 measurements:</translation>
    </message>
    <message>
        <source>Achtung: Das sind andere als eingegeben, weil nach jeder Löschung die folgenden Messungen nachrücken.</source>
        <translation>Attention: these are others than those entered, because after each deletion the measurements behind move up.</translation>
    </message>
    <message>
        <source>Ab &quot;%1&quot; ist die Eingabe fehlerhaft. Dieser Teil und alles dahinter wird nicht gelöscht.</source>
        <translation>From &quot;%1&quot; on the input is malformed. This part and all behind it will not be deleted.</translation>
    </message>
    <message>
        <source>Mit Strg+Z lässt sich das rückgängig machen.</source>
        <translation>This can be undone with Ctrl+Z.</translation>
    </message>
    <message>
        <source>Es gibt keine Messung.</source>
        <translation>There is no measurement.</translation>
    </message>
    <message>
        <source>Das ist 1 Messung.</source>
        <translation>This is 1 measurement.</translation>
    </message>
    <message>
        <source>Das sind %1 Messungen.</source>
        <translation>These are %1 measurements.</translation>
    </message>
</context>
<context>
    <name>DemoLink</name>
    <message>
        <source>Die Demo ist nicht möglich: Der Simulator lässt sich nicht starten.</source>
        <translation>The demo cannot run: the simulator does not start.</translation>
    </message>
    <message>
        <source>Die Demo ist nicht möglich: Der Simulator antwortet nicht.</source>
        <translation>The demo cannot run: the simulator does not respond.</translation>
    </message>
    <message>
        <source>Die Demo ist beendet: Der Simulator läuft nicht mehr.</source>
        <translation>The demo has ended: the simulator is no longer running.</translation>
    </message>
    <message>
        <source>Die Demo wird gestartet ...</source>
        <translation>Starting the demo ...</translation>
    </message>
    <message>
        <source>Die Verbindung zur Box wird getrennt.</source>
        <translation>The connection to the box will be closed.</translation>
    </message>
    <message>
        <source>Was in der Demo aufgezeichnet wird, kommt in das geöffnete Projekt.</source>
        <translation>What is recorded in the demo is added to the open project.</translation>
    </message>
    <message>
        <source>Demo starten?</source>
        <translation>Start the demo?</translation>
    </message>
    <message>
        <source>Demo</source>
        <translation>Demo</translation>
    </message>
    <message>
        <source>Die Demo ist beendet.</source>
        <translation>The demo has ended.</translation>
    </message>
    <message>
        <source>Das ist in der Demo nicht möglich: Die simulierte Box hat keinen Speicher.</source>
        <translation>Not possible in the demo: the simulated box has no storage.</translation>
    </message>
</context>
<context>
    <name>DialogPrompts</name>
    <message>
        <source>Speichern</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Verwerfen</source>
        <translation>Discard</translation>
    </message>
    <message>
        <source>Ja</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>Nein</source>
        <translation>No</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>DistributionPanel</name>
    <message>
        <source>Normalverteilung</source>
        <translation>Normal distribution</translation>
    </message>
</context>
<context>
    <name>EvaluationData</name>
    <message>
        <source>Wert an Marker %1</source>
        <translation>Value at marker %1</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Mittelwert</source>
        <translation>Mean</translation>
    </message>
    <message>
        <source>Integral</source>
        <translation>Integral</translation>
    </message>
    <message>
        <source>Zeit der Spitze</source>
        <translation>Time of peak</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Phase %1</source>
        <translation>Phase %1</translation>
    </message>
    <message>
        <source>Spalten von %1</source>
        <translation>columns of %1</translation>
    </message>
    <message>
        <source>Grenzen von %1</source>
        <translation>limits of %1</translation>
    </message>
</context>
<context>
    <name>Exports</name>
    <message>
        <source>Bitte warten, bis der laufende Vorgang beendet ist.</source>
        <translation>Please wait until the current operation has finished.</translation>
    </message>
    <message>
        <source>Save terminal</source>
        <translation>Save terminal</translation>
    </message>
    <message>
        <source>ASCII File (*.txt)</source>
        <translation>ASCII file (*.txt)</translation>
    </message>
    <message>
        <source>Datei überschreiben</source>
        <translation>Overwrite file</translation>
    </message>
    <message>
        <source>Der Inhalt des Terminals konnte nicht gespeichert werden!</source>
        <translation>The contents of the terminal could not be saved!</translation>
    </message>
    <message>
        <source>Save oscilloscope</source>
        <translation>Save oscilloscope</translation>
    </message>
    <message>
        <source>BMP (*.bmp);;JPG (*.jpg);;PNG (*.png);;TIFF (*.tif)</source>
        <translation>BMP (*.bmp);;JPG (*.jpg);;PNG (*.png);;TIFF (*.tif)</translation>
    </message>
    <message>
        <source>Das Oszilloskop konnte nicht als Bild gespeichert werden!</source>
        <translation>The oscilloscope could not be saved as a picture!</translation>
    </message>
    <message>
        <source>Save data logger file</source>
        <translation>Save data logger file</translation>
    </message>
    <message>
        <source>CSV - Comma separated values (*.csv)</source>
        <translation>CSV - Comma separated values (*.csv)</translation>
    </message>
    <message>
        <source>Die CSV-Datei konnte nicht gespeichert werden!</source>
        <translation>The CSV file could not be saved!</translation>
    </message>
    <message>
        <source>Gespeichert: %1</source>
        <translation>Saved: %1</translation>
    </message>
</context>
<context>
    <name>FaultText</name>
    <message>
        <source>Die Datei ist nicht da.</source>
        <translation>The file does not exist.</translation>
    </message>
    <message>
        <source>Der Ordner %1 ist nicht da.</source>
        <translation>The folder %1 does not exist.</translation>
    </message>
    <message>
        <source>Unter diesem Namen gibt es einen Ordner.</source>
        <translation>There is a folder of that name.</translation>
    </message>
    <message>
        <source>Unter diesem Namen gibt es keine gewöhnliche Datei.</source>
        <translation>What has that name is no ordinary file.</translation>
    </message>
    <message>
        <source>Dazu fehlen die Zugriffsrechte.</source>
        <translation>Permission is denied.</translation>
    </message>
    <message>
        <source>Beim Lesen ist ein Fehler aufgetreten</source>
        <translation>Reading failed</translation>
    </message>
    <message>
        <source>Der Arbeitsspeicher reicht nicht aus.</source>
        <translation>There is not enough memory.</translation>
    </message>
    <message>
        <source>Die Datei ist beschädigt oder kein Ventaro-Projekt (Zeile %1, Byte %2).</source>
        <translation>The file is damaged or no Ventaro project (line %1, byte %2).</translation>
    </message>
    <message>
        <source>Die Datei ist leer.</source>
        <translation>The file is empty.</translation>
    </message>
    <message>
        <source>Die Datei ist unvollständig: Sie bricht in Zeile %1 ab (Byte %2).</source>
        <translation>The file is incomplete: it ends in line %1 (byte %2).</translation>
    </message>
    <message>
        <source>Die Datei enthält kein Ventaro-Projekt.</source>
        <translation>The file holds no Ventaro project.</translation>
    </message>
    <message>
        <source>Beim Schreiben ist ein Fehler aufgetreten</source>
        <translation>Writing failed</translation>
    </message>
    <message>
        <source>Die Datei wird zu groß für diesen Datenträger.</source>
        <translation>The file becomes too large for this medium.</translation>
    </message>
    <message>
        <source>Der Name der Datei ist zu lang.</source>
        <translation>The name of the file is too long.</translation>
    </message>
    <message>
        <source>Ein anderes Programm hat die Datei währenddessen geändert.</source>
        <translation>Another program has changed the file meanwhile.</translation>
    </message>
    <message>
        <source>Die Endung des Namens gehört zu keinem Bildformat.</source>
        <translation>The ending of the name belongs to no picture format.</translation>
    </message>
    <message>
        <source>Kein Speicherplatz auf %1: %2 fehlen</source>
        <translation>No space left on %1: %2 are missing</translation>
    </message>
    <message>
        <source>Kein Speicherplatz auf %1</source>
        <translation>No space left on %1</translation>
    </message>
    <message>
        <source>Der zugeteilte Speicherplatz auf %1 ist aufgebraucht.</source>
        <translation>Your quota on %1 is used up.</translation>
    </message>
    <message>
        <source>Der Datenträger %1 ist schreibgeschützt.</source>
        <translation>The medium %1 is read-only.</translation>
    </message>
    <message>
        <source>Der Datenträger mit %1 ist nicht mehr erreichbar.</source>
        <translation>The medium with %1 cannot be reached any more.</translation>
    </message>
    <message>
        <source>Vielleicht wurde sie verschoben, umbenannt oder gelöscht.</source>
        <translation>It may have been moved, renamed or deleted.</translation>
    </message>
    <message>
        <source>Ist der Datenträger eingesteckt und das Netzlaufwerk verbunden?</source>
        <translation>Is the medium plugged in and the network drive connected?</translation>
    </message>
    <message>
        <source>Bitte eine andere Datei wählen.</source>
        <translation>Please choose another file.</translation>
    </message>
    <message>
        <source>Bitte einen kürzeren Namen wählen.</source>
        <translation>Please choose a shorter name.</translation>
    </message>
    <message>
        <source>Bitte einen Namen mit der Endung .png, .jpg, .bmp oder .tif wählen.</source>
        <translation>Please choose a name that ends in .png, .jpg, .bmp or .tif.</translation>
    </message>
    <message>
        <source>Bitte andere Programme beenden und es noch einmal versuchen.</source>
        <translation>Please close other programs and try again.</translation>
    </message>
    <message>
        <source>Bitte den Datenträger prüfen und es noch einmal versuchen.</source>
        <translation>Please check the medium and try again.</translation>
    </message>
    <message>
        <source>Der Stand vor dem letzten Speichern liegt daneben in &quot;%1&quot;: umbenennen und öffnen.</source>
        <translation>The version before the last save is beside it in &quot;%1&quot;: rename and open it.</translation>
    </message>
    <message>
        <source>Bitte eine Kopie der Datei öffnen, falls es eine gibt.</source>
        <translation>Please open a copy of the file if there is one.</translation>
    </message>
    <message>
        <source>Bitte einen anderen Ort wählen.</source>
        <translation>Please choose another place.</translation>
    </message>
    <message>
        <source>Der vorige Inhalt ist gerettet in %1</source>
        <translation>The previous content is safe in %1</translation>
    </message>
</context>
<context>
    <name>FileProgress</name>
    <message>
        <source>Saving...</source>
        <translation>Saving...</translation>
    </message>
</context>
<context>
    <name>FileQuestions</name>
    <message>
        <source>Das Projekt &quot;%1&quot; ist auf diesem Rechner schon geöffnet (%2, Prozess %3).</source>
        <translation>The project &quot;%1&quot; is open on this computer already (%2, process %3).</translation>
    </message>
    <message>
        <source>Das Projekt &quot;%1&quot; ist auf dem Rechner %2 schon geöffnet (%3, Prozess %4).

Läuft das Programm dort nicht mehr, kann die Datei %5 gelöscht werden.</source>
        <translation>The project &quot;%1&quot; is open on the computer %2 already (%3, process %4).

If the program does not run there any more, the file %5 can be deleted.</translation>
    </message>
    <message>
        <source>Projekt öffnen</source>
        <translation>Open project</translation>
    </message>
    <message>
        <source>Beides lässt die Datei, wie sie ist: Gespeichert wird unter einem anderen Namen.</source>
        <translation>Both leave the file as it is: changes are saved under another name.</translation>
    </message>
    <message>
        <source>Nur lesen</source>
        <translation>Read only</translation>
    </message>
    <message>
        <source>Als Kopie öffnen</source>
        <translation>Open a copy</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Projekt speichern</source>
        <translation>Save project</translation>
    </message>
    <message>
        <source>Speichern würde verwerfen, was dort geändert wird.</source>
        <translation>Saving would discard what is changed there.</translation>
    </message>
    <message>
        <source>Anderen Ort wählen...</source>
        <translation>Choose another place...</translation>
    </message>
    <message>
        <source>Die Datei &quot;%1&quot; ist nicht mehr da: Sie wurde verschoben, umbenannt oder gelöscht.</source>
        <translation>The file &quot;%1&quot; is gone: it was moved, renamed or deleted.</translation>
    </message>
    <message>
        <source>Die Datei &quot;%1&quot; wurde geändert, seit sie hier geöffnet oder gespeichert wurde.</source>
        <translation>The file &quot;%1&quot; was changed since it was opened or saved here.</translation>
    </message>
    <message>
        <source>Der Stand in diesem Programm ist vollständig.</source>
        <translation>What this program holds is complete.</translation>
    </message>
    <message>
        <source>Überschreiben verwirft, was das andere Programm gespeichert hat.</source>
        <translation>Overwriting discards what the other program has saved.</translation>
    </message>
    <message>
        <source>Neu anlegen</source>
        <translation>Create again</translation>
    </message>
    <message>
        <source>Überschreiben</source>
        <translation>Overwrite</translation>
    </message>
    <message>
        <source>Speichern unter...</source>
        <translation>Save as...</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>Das Projekt konnte nicht gespeichert werden!</source>
        <translation>The project could not be saved!</translation>
    </message>
    <message>
        <source>Das Projekt bleibt geöffnet und geändert.</source>
        <translation>The project stays open and modified.</translation>
    </message>
    <message>
        <source>Noch einmal versuchen</source>
        <translation>Try again</translation>
    </message>
    <message>
        <source>Cannot open file %1 !.</source>
        <translation>Cannot open file %1!</translation>
    </message>
</context>
<context>
    <name>FilesPanel</name>
    <message>
        <source>&amp;Importieren (%1)</source>
        <translation>&amp;Import (%1)</translation>
    </message>
    <message>
        <source>&amp;Importieren</source>
        <translation>&amp;Import</translation>
    </message>
    <message>
        <source>Dateien</source>
        <translation>Files</translation>
    </message>
    <message>
        <source>Dateien vom %1</source>
        <translation>Files from %1</translation>
    </message>
    <message>
        <source>Lokale Dateien</source>
        <translation>Local files</translation>
    </message>
    <message>
        <source>&amp;Ordner öffnen...</source>
        <translation>&amp;Open folder...</translation>
    </message>
    <message>
        <source>Dateien der Box aus einem Ordner dieses Rechners nehmen</source>
        <translation>Use files of the box from a folder on this computer</translation>
    </message>
    <message>
        <source>Die ausgewählten Dateien als Messungen in das Projekt übernehmen</source>
        <translation>Add the selected files to the project as measurements</translation>
    </message>
    <message>
        <source>Dateien des Tages</source>
        <translation>Files of the day</translation>
    </message>
    <message>
        <source>Vorschau der Messung</source>
        <translation>Preview of the measurement</translation>
    </message>
    <message>
        <source>Datei in der Vorschau</source>
        <translation>File in the preview</translation>
    </message>
    <message>
        <source>Vorige und nächste Datei des Tages ansehen</source>
        <translation>Look at the previous and the next file of the day</translation>
    </message>
</context>
<context>
    <name>IPAddressDialog</name>
    <message>
        <source>&lt;b&gt;Verbindung abgebrochen&lt;/b&gt;</source>
        <translation>&lt;b&gt;Connection aborted&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Unter anderer IP-Adresse verbinden:</source>
        <translation>Connect to a different IP address:</translation>
    </message>
    <message>
        <source>&amp;Verbinden</source>
        <translation>&amp;Connect</translation>
    </message>
    <message>
        <source>&amp;Abbrechen</source>
        <translation>C&amp;ancel</translation>
    </message>
    <message>
        <source>Bitte eine IPv4-Adresse (z. B. 192.168.4.1) oder einen Rechnernamen eingeben.</source>
        <translation>Please enter an IPv4 address (e.g. 192.168.4.1) or a host name.</translation>
    </message>
</context>
<context>
    <name>ImagePreview</name>
    <message>
        <source>Klicken zum Schließen</source>
        <translation>Click to close</translation>
    </message>
</context>
<context>
    <name>ImageTile</name>
    <message>
        <source>%1 × %2 Bildpunkte</source>
        <translation>%1 × %2 pixels</translation>
    </message>
    <message>
        <source>Bild auswählen</source>
        <translation>Choose a picture</translation>
    </message>
    <message>
        <source>Anderes Bild auswählen</source>
        <translation>Choose another picture</translation>
    </message>
    <message>
        <source>Bild auswählen, ablegen oder einfügen (Strg+V)</source>
        <translation>Choose, drop or paste a picture (Ctrl+V)</translation>
    </message>
    <message>
        <source>Klicken zum Vergrößern, Entf zum Löschen</source>
        <translation>Click to enlarge, Del to delete</translation>
    </message>
    <message>
        <source>kein Bild</source>
        <translation>no picture</translation>
    </message>
    <message>
        <source>&amp;Vergrößern</source>
        <translation>&amp;Enlarge</translation>
    </message>
    <message>
        <source>&amp;Auswählen...</source>
        <translation>&amp;Choose...</translation>
    </message>
    <message>
        <source>&amp;Einfügen</source>
        <translation>&amp;Paste</translation>
    </message>
    <message>
        <source>&amp;Kopieren</source>
        <translation>C&amp;opy</translation>
    </message>
    <message>
        <source>&amp;Löschen...</source>
        <translation>&amp;Delete...</translation>
    </message>
    <message>
        <source>Bild %1</source>
        <translation>Picture %1</translation>
    </message>
    <message>
        <source>Auswählen oder hier ablegen</source>
        <translation>Choose or drop here</translation>
    </message>
    <message>
        <source>Hier ablegen</source>
        <translation>Drop here</translation>
    </message>
    <message>
        <source>Das ist kein Bild</source>
        <translation>This is not a picture</translation>
    </message>
    <message>
        <source>Bild %1 auswählen</source>
        <translation>Choose picture %1</translation>
    </message>
    <message>
        <source>Bild löschen</source>
        <translation>Delete picture</translation>
    </message>
    <message>
        <source>Bild %1 löschen</source>
        <translation>Delete picture %1</translation>
    </message>
    <message>
        <source>&amp;Speichern unter...</source>
        <translation>&amp;Save as...</translation>
    </message>
    <message>
        <source>, verkleinert gezeigt</source>
        <translation>, shown reduced</translation>
    </message>
    <message>
        <source>Zu groß zum Anzeigen:</source>
        <translation>Too large to be shown:</translation>
    </message>
    <message>
        <source>Das Bild in der Datei kann nicht gelesen werden. Es bleibt erhalten.</source>
        <translation>The picture in the file cannot be read. It is kept.</translation>
    </message>
    <message>
        <source>Klicken für ein anderes Bild, Entf zum Löschen</source>
        <translation>Click for another picture, Del to delete</translation>
    </message>
</context>
<context>
    <name>ImportPreview</name>
    <message>
        <source>Name „%1“ wird „%2“</source>
        <translation>name “%1” becomes “%2”</translation>
    </message>
    <message>
        <source>Einheit „%1“ wird „%2“</source>
        <translation>unit “%1” becomes “%2”</translation>
    </message>
    <message>
        <source>Grenzen %1 werden %2</source>
        <translation>limits %1 become %2</translation>
    </message>
    <message>
        <source>Sensor %1: %2</source>
        <translation>Sensor %1: %2</translation>
    </message>
</context>
<context>
    <name>ImportSummary</name>
    <message>
        <source>1 Messung importiert</source>
        <translation>1 measurement imported</translation>
    </message>
    <message>
        <source>%1 Messungen importiert</source>
        <translation>%1 measurements imported</translation>
    </message>
    <message>
        <source>1 Zeile übersprungen</source>
        <translation>1 line skipped</translation>
    </message>
    <message>
        <source>%1 Zeilen übersprungen</source>
        <translation>%1 lines skipped</translation>
    </message>
    <message>
        <source>1 Wert war nicht lesbar und ist jetzt 0</source>
        <translation>1 value was unreadable and is now 0</translation>
    </message>
    <message>
        <source>%1 Werte waren nicht lesbar und sind jetzt 0</source>
        <translation>%1 values were unreadable and are now 0</translation>
    </message>
    <message>
        <source>1 Datei nicht lesbar</source>
        <translation>1 file unreadable</translation>
    </message>
    <message>
        <source>%1 Dateien nicht lesbar</source>
        <translation>%1 files unreadable</translation>
    </message>
    <message>
        <source>Diese Dateien konnten nicht gelesen werden:</source>
        <translation>These files could not be read:</translation>
    </message>
</context>
<context>
    <name>Journal</name>
    <message>
        <source>kein Speicherplatz</source>
        <translation>no space left</translation>
    </message>
    <message>
        <source>keine Schreibrechte</source>
        <translation>no permission to write</translation>
    </message>
    <message>
        <source>Ungespeicherte Änderungen können nicht gesichert werden (%1: %2). Die Aufzeichnung läuft weiter; bitte das Projekt speichern.</source>
        <translation>Unsaved changes cannot be protected (%1: %2). The recording goes on; please save the project.</translation>
    </message>
</context>
<context>
    <name>LimitsPanel</name>
    <message>
        <source>Cp %1</source>
        <translation>Cp %1</translation>
    </message>
    <message>
        <source>Cpk %1</source>
        <translation>Cpk %1</translation>
    </message>
    <message>
        <source>Grenzen sind gleich!</source>
        <translation>Limits are equal!</translation>
    </message>
    <message>
        <source>Untere Grenze über oberer!</source>
        <translation>Lower limit above upper!</translation>
    </message>
    <message>
        <source>Keine Grenzen</source>
        <translation>No limits</translation>
    </message>
    <message>
        <source>Außerhalb: %1 von %2</source>
        <translation>Outside: %1 of %2</translation>
    </message>
    <message>
        <source>&amp;Untere Grenze</source>
        <translation>&amp;Lower limit</translation>
    </message>
    <message>
        <source>&amp;Obere Grenze</source>
        <translation>&amp;Upper limit</translation>
    </message>
    <message>
        <source>Mit der Standardabweichung der Grundgesamtheit (geteilt durch n)</source>
        <translation>With the population standard deviation (divided by n)</translation>
    </message>
    <message>
        <source>(Obere - untere Grenze) / 6 Sigma. %1</source>
        <translation>(Upper - lower limit) / 6 sigma. %1</translation>
    </message>
    <message>
        <source>Abstand des Mittelwerts von der näheren Grenze / 3 Sigma. %1</source>
        <translation>Distance of the mean from the nearer limit / 3 sigma. %1</translation>
    </message>
</context>
<context>
    <name>LinkDialogs</name>
    <message>
        <source>Die Mesotra Hardware ist nicht mehr erreichbar.</source>
        <translation>The Mesotra hardware can no longer be reached.</translation>
    </message>
    <message>
        <source>Die Mesotra Hardware wurde nicht gefunden! Bitte IP-Adresse überprüfen!</source>
        <translation>The Mesotra hardware was not found! Please check the IP address!</translation>
    </message>
    <message>
        <source>Die Verbindung wurde abgelehnt!
(Die IP-Adresse wurde jedoch gefunden.)</source>
        <translation>The connection was refused!
(The IP address was found, however.)</translation>
    </message>
    <message>
        <source>Netzwerk Fehler</source>
        <translation>Network error</translation>
    </message>
</context>
<context>
    <name>LinkParts</name>
    <message>
        <source>Die Box antwortet nicht (%1).</source>
        <translation>The box does not answer (%1).</translation>
    </message>
</context>
<context>
    <name>LinkReason</name>
    <message>
        <source>Verbindung abgelehnt</source>
        <translation>connection refused</translation>
    </message>
    <message>
        <source>%1 ist im Netzwerk, nimmt aber keine Verbindung an. Läuft die Box schon? Nach dem Einschalten braucht sie einen Moment.</source>
        <translation>%1 is on the network but accepts no connection. Is the box running yet? It needs a moment after being switched on.</translation>
    </message>
    <message>
        <source>Name unbekannt</source>
        <translation>unknown name</translation>
    </message>
    <message>
        <source>Das Netzwerk kennt den Namen %1 nicht. Bitte die Schreibweise prüfen oder die IPv4-Adresse der Box eingeben.</source>
        <translation>The network does not know the name %1. Please check the spelling or enter the IPv4 address of the box.</translation>
    </message>
    <message>
        <source>kein Weg zur Box</source>
        <translation>no route to the box</translation>
    </message>
    <message>
        <source>Von diesem Rechner führt kein Weg zu %1. Bitte Netzwerkkabel und WLAN prüfen, und ob Rechner und Box im selben Netz sind.</source>
        <translation>There is no route from this computer to %1. Please check the network cable and Wi-Fi, and whether computer and box are on the same network.</translation>
    </message>
    <message>
        <source>keine Antwort</source>
        <translation>no answer</translation>
    </message>
    <message>
        <source>%1 antwortet nicht. Ist die Box eingeschaltet, und stimmt die Adresse?</source>
        <translation>%1 does not answer. Is the box switched on, and is the address right?</translation>
    </message>
    <message>
        <source>Verbindung abgerissen</source>
        <translation>connection broken</translation>
    </message>
    <message>
        <source>Störung im Netzwerk</source>
        <translation>network fault</translation>
    </message>
    <message>
        <source>Die Verbindung zu %1 ist gestört. Bitte Box und Netzwerk prüfen.</source>
        <translation>The connection to %1 is disturbed. Please check the box and the network.</translation>
    </message>
    <message>
        <source>Die Verbindung zu %1 ist abgerissen. Bitte Stromversorgung und Netzwerkkabel der Box prüfen, und ob sich ein anderer Rechner mit ihr verbunden hat.</source>
        <translation>The connection to %1 has broken off. Please check the power supply and the network cable of the box, and whether another computer has connected to it.</translation>
    </message>
</context>
<context>
    <name>LinkReport</name>
    <message>
        <source>Die Verbindung wird nicht mehr von selbst aufgebaut.</source>
        <translation>The connection is no longer made by itself.</translation>
    </message>
</context>
<context>
    <name>LocalFolder</name>
    <message>
        <source>Ordner mit BlackBox-Dateien auswählen</source>
        <translation>Choose a folder with BlackBox files</translation>
    </message>
    <message>
        <source>Dateien kopieren...</source>
        <translation>Copying files...</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>%1 Dateien konnten nicht kopiert werden und fehlen in der Liste:</source>
        <translation>%1 files could not be copied and are missing in the list:</translation>
    </message>
    <message>
        <source>Abgebrochen; %1 Dateien sind kopiert.</source>
        <translation>Cancelled; %1 files have been copied.</translation>
    </message>
    <message>
        <source>Keine BlackBox-Dateien (*.bb) in %1</source>
        <translation>No BlackBox files (*.bb) in %1</translation>
    </message>
</context>
<context>
    <name>LoggerFetch</name>
    <message>
        <source>Problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>Dateien übertragen...</source>
        <translation>Transferring files...</translation>
    </message>
    <message>
        <source>%1 von %2 Tagen übertragen.</source>
        <translation>%1 of %2 days transferred.</translation>
    </message>
    <message>
        <source>Die Dateien vom %1 konnten nicht in den Ordner der Box verschoben werden:
%2</source>
        <translation>The files of %1 could not be moved into the folder of the box:
%2</translation>
    </message>
    <message>
        <source>%1 von %2 Dateien</source>
        <translation>%1 of %2 files</translation>
    </message>
    <message>
        <source>%1 Dateien</source>
        <translation>%1 files</translation>
    </message>
</context>
<context>
    <name>LoggerImport</name>
    <message>
        <source>Während einer Aufzeichnung kann nichts importiert werden.
Bitte beenden Sie zuerst die Aufzeichnung.</source>
        <translation>Nothing can be imported while a recording is running.
Please stop the recording first.</translation>
    </message>
    <message>
        <source>BlackBox</source>
        <translation>BlackBox</translation>
    </message>
    <message>
        <source>Eine der Dateien ist schon in diesem Projekt.
Noch einmal importieren?</source>
        <translation>One of the files is already in this project.
Import it again?</translation>
    </message>
    <message>
        <source>%1 der Dateien sind schon in diesem Projekt.
Noch einmal importieren?</source>
        <translation>%1 of the files are already in this project.
Import them again?</translation>
    </message>
    <message>
        <source>Importieren...</source>
        <translation>Importing...</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>&quot;Nein&quot; importiert nur die neuen Dateien. Escape oder Schließen bricht den Import ab.</source>
        <translation>&quot;No&quot; imports the new files only. Escape or closing cancels the import.</translation>
    </message>
    <message>
        <source>Import einer Datei</source>
        <translation>import of a file</translation>
    </message>
    <message>
        <source>Import von %1 Dateien</source>
        <translation>import of %1 files</translation>
    </message>
    <message>
        <source>Die Dateien beschreiben die Sensoren anders als das Projekt:</source>
        <translation>The files describe the sensors differently from the project:</translation>
    </message>
    <message>
        <source>Die Dateien stimmen darin nicht überein; die letzte gilt.</source>
        <translation>The files do not agree on this; the last one counts.</translation>
    </message>
    <message>
        <source>Die Messwerte werden in beiden Fällen importiert.</source>
        <translation>The measured values are imported in both cases.</translation>
    </message>
    <message>
        <source>Angaben der Dateien</source>
        <translation>Use the files&apos;</translation>
    </message>
    <message>
        <source>Angaben des Projekts</source>
        <translation>Keep the project&apos;s</translation>
    </message>
</context>
<context>
    <name>MainToolBar</name>
    <message>
        <source>Werkzeugleiste</source>
        <translation>Tool bar</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Der Browser konnte nicht geöffnet werden.</source>
        <translation>The browser could not be opened.</translation>
    </message>
</context>
<context>
    <name>MarkerBar</name>
    <message>
        <source>absolut</source>
        <translation>absolute</translation>
    </message>
    <message>
        <source>Zeiten ab dem Beginn der Messung statt Abstände der Marker</source>
        <translation>Times from the start of the measurement instead of distances between markers</translation>
    </message>
    <message>
        <source>Alle Marker löschen</source>
        <translation>Clear all markers</translation>
    </message>
    <message>
        <source>t [s]=</source>
        <translation>t [s]=</translation>
    </message>
    <message>
        <source>Klicken und dann im Diagramm auf die gewünschte Stelle tippen.
Esc bricht ab.</source>
        <translation>Click, then tap the desired place in the plot.
Esc cancels.</translation>
    </message>
    <message>
        <source>Marker %1 setzen</source>
        <translation>Set marker %1</translation>
    </message>
    <message>
        <source>Zeit des Markers in Sekunden; ohne &quot;absolut&quot; der Abstand zum vorigen Marker</source>
        <translation>Time of the marker in seconds; without &quot;absolute&quot; the distance from the previous marker</translation>
    </message>
    <message>
        <source>Marker %1 in Sekunden</source>
        <translation>Marker %1 in seconds</translation>
    </message>
</context>
<context>
    <name>MeasurementDeletion</name>
    <message>
        <source>Folgende Datensätze werden gelöscht:
</source>
        <translation>The following records will be deleted:
</translation>
    </message>
    <message>
        <source>Daten löschen</source>
        <translation>Delete data</translation>
    </message>
    <message>
        <source>Fehler im Bereich &quot;%1&quot;: ab dort wurde nichts gelöscht.</source>
        <translation>Error in the range &quot;%1&quot;: nothing was deleted from there on.</translation>
    </message>
    <message>
        <source>Löschen einer Messung</source>
        <translation>deletion of a measurement</translation>
    </message>
    <message>
        <source>Löschen von %1 Messungen</source>
        <translation>deletion of %1 measurements</translation>
    </message>
    <message>
        <source>Löschen aller Messdaten</source>
        <translation>deletion of all measurement data</translation>
    </message>
</context>
<context>
    <name>Model</name>
    <message>
        <source>WZ schließen</source>
        <translation>Mould closing</translation>
    </message>
    <message>
        <source>Einspritzzeit</source>
        <translation>Injection time</translation>
    </message>
    <message>
        <source>Nachdruckzeit</source>
        <translation>Holding time</translation>
    </message>
    <message>
        <source>Kühlzeit</source>
        <translation>Cooling time</translation>
    </message>
    <message>
        <source>WZ öffnen</source>
        <translation>Mould opening</translation>
    </message>
    <message>
        <source>Zurücksetzen der Offsets</source>
        <translation>reset of the offsets</translation>
    </message>
</context>
<context>
    <name>MultiLanguageUtils</name>
    <message>
        <source>Sprache</source>
        <translation>Language</translation>
    </message>
</context>
<context>
    <name>NormalBoxWidget</name>
    <message>
        <source>n</source>
        <translation>n</translation>
    </message>
    <message>
        <source>Mittelwert</source>
        <translation>Mean</translation>
    </message>
    <message>
        <source>Sigma</source>
        <translation>Sigma</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>Q1</source>
        <translation>Q1</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Median</translation>
    </message>
    <message>
        <source>Q3</source>
        <translation>Q3</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Standardabweichung der Grundgesamtheit (geteilt durch n)</source>
        <translation>Population standard deviation (divided by n)</translation>
    </message>
    <message>
        <source>Box-Plot</source>
        <translation>Box plot</translation>
    </message>
</context>
<context>
    <name>Occupancy</name>
    <message>
        <source>Bitte warten, bis der laufende Vorgang beendet ist.</source>
        <translation>Please wait until the current operation has finished.</translation>
    </message>
</context>
<context>
    <name>OpenNotice</name>
    <message>
        <source>%1 und %2 weitere</source>
        <translation>%1 and %2 more</translation>
    </message>
    <message>
        <source>Ohne die Datei &quot;%1&quot; fehlen Zeitstempel, Bezeichnungen, Einheiten, Grenzen und Schwellen.</source>
        <translation>Without the file &quot;%1&quot; time stamps, labels, units, limits and thresholds are missing.</translation>
    </message>
    <message>
        <source>Hinweise zum Projekt</source>
        <translation>Notes on the project</translation>
    </message>
    <message>
        <source>Damit nichts verloren geht, kann das Projekt unter einem anderen Namen gespeichert werden.</source>
        <translation>To lose nothing, save the project under another name.</translation>
    </message>
    <message>
        <source>Die Datei &quot;%1&quot; sieht nicht wie ein Projekt aus: Sie enthält keine einzige Angabe eines Projekts.
Sie wird beim Speichern nicht ersetzt; das Programm fragt dann nach einem anderen Namen.</source>
        <translation>The file &quot;%1&quot; does not look like a project: it holds nothing that belongs to one.
Saving does not replace it; the program will ask for another name.</translation>
    </message>
    <message>
        <source>Das Projekt wurde mit einer neueren Version des Programms gespeichert (Dateiversion %1).
Beim Speichern bekommt es die Dateiversion %2.</source>
        <translation>The project was saved by a newer version of the program (file version %1).
Saving gives it the file version %2.</translation>
    </message>
    <message>
        <source>Unbekannte Angaben, die erhalten bleiben und wieder gespeichert werden: %1.</source>
        <translation>Unknown entries, which are kept and saved again: %1.</translation>
    </message>
    <message>
        <source>Angaben, die nicht gelesen werden konnten und beim Speichern verloren gehen: %1.</source>
        <translation>Entries that could not be read and will be lost when the project is saved: %1.</translation>
    </message>
    <message>
        <source>Nicht lesbar: %1.</source>
        <translation>Not readable: %1.</translation>
    </message>
    <message>
        <source>Zu groß zum Anzeigen, da alle Bilder zusammen höchstens %1 Millionen Bildpunkte haben dürfen: %2.</source>
        <translation>Too large to be shown, as all pictures together may have at most %1 million pixels: %2.</translation>
    </message>
    <message>
        <source>Was in der Datei steht, bleibt erhalten, bis dort ein anderes Bild gewählt wird.</source>
        <translation>What the file holds is kept until another picture is chosen there.</translation>
    </message>
    <message>
        <source>Bild %1</source>
        <translation>Picture %1</translation>
    </message>
    <message>
        <source>Die Datei &quot;%1&quot; neben dem Projekt ist von einer neueren Version des Programms.</source>
        <translation>The file &quot;%1&quot; beside the project is from a newer version of the program.</translation>
    </message>
    <message>
        <source>Die Datei &quot;%1&quot; neben dem Projekt ist beschädigt oder nicht lesbar.</source>
        <translation>The file &quot;%1&quot; beside the project is damaged or cannot be read.</translation>
    </message>
    <message>
        <source>Es fehlen Zeitstempel, Bezeichnungen, Einheiten, Grenzen und Schwellen.
Beim Speichern wird sie nicht ersetzt, sondern als &quot;%1&quot; aufgehoben.</source>
        <translation>Time stamps, labels, units, limits and thresholds are missing.
Saving does not replace it, but keeps it as &quot;%1&quot;.</translation>
    </message>
</context>
<context>
    <name>OsziHead</name>
    <message>
        <source>Gesperrt: Bereiche, Raster, Korrekturen, Marker und Messungen sind vor Änderungen geschützt. Klicken zum Entsperren.</source>
        <translation>Locked: ranges, grids, offsets, markers and measurements are protected against changes. Click to unlock.</translation>
    </message>
    <message>
        <source>Alles kann geändert werden. Klicken zum Sperren.</source>
        <translation>Everything can be changed. Click to lock.</translation>
    </message>
    <message>
        <source>Gesperrt</source>
        <translation>Locked</translation>
    </message>
    <message>
        <source>Offen</source>
        <translation>Unlocked</translation>
    </message>
    <message>
        <source>Diagramm dieses Sensors zeigen</source>
        <translation>Show this sensor&apos;s plot</translation>
    </message>
</context>
<context>
    <name>OsziPage</name>
    <message>
        <source>Löschen der Marker</source>
        <translation>clearing the markers</translation>
    </message>
</context>
<context>
    <name>OsziRow</name>
    <message>
        <source>%1 [%2]</source>
        <translation>%1 [%2]</translation>
    </message>
    <message>
        <source>Bereich</source>
        <translation>Range</translation>
    </message>
    <message>
        <source>auto</source>
        <translation>auto</translation>
    </message>
    <message>
        <source>Raster</source>
        <translation>Grid</translation>
    </message>
    <message>
        <source>Korrektur dy</source>
        <translation>Offset dy</translation>
    </message>
    <message>
        <source>Oberes Ende des Wertebereichs</source>
        <translation>Upper end of the value range</translation>
    </message>
    <message>
        <source>Unteres Ende des Wertebereichs</source>
        <translation>Lower end of the value range</translation>
    </message>
    <message>
        <source>Abstand der waagrechten Rasterlinien automatisch wählen</source>
        <translation>Choose the spacing of the horizontal grid lines automatically</translation>
    </message>
    <message>
        <source>Abstand der waagrechten Rasterlinien</source>
        <translation>Spacing of the horizontal grid lines</translation>
    </message>
    <message>
        <source>Wert, der zu allen Kurven dieses Sensors addiert wird</source>
        <translation>Value added to all curves of this sensor</translation>
    </message>
    <message>
        <source>%1: Bereich, oberes Ende</source>
        <translation>%1: range, upper end</translation>
    </message>
    <message>
        <source>%1: Bereich, unteres Ende</source>
        <translation>%1: range, lower end</translation>
    </message>
    <message>
        <source>%1: Raster automatisch</source>
        <translation>%1: automatic grid</translation>
    </message>
    <message>
        <source>%1: Raster</source>
        <translation>%1: grid</translation>
    </message>
    <message>
        <source>%1: Korrektur dy</source>
        <translation>%1: offset dy</translation>
    </message>
    <message>
        <source>Tasten im Diagramm: + und - Zeitachse, Strg mit + und - Werteachse,
Pfeile verschieben, Pos1 und Ende springen, F passt den Wertebereich an die Kurven an,
Strg mit Pfeil nach links oder rechts zeigt die Werte (mit Umschalt in Zehnerschritten).
Maus: Rad Zeitachse, Strg mit Rad Werteachse, mittlere Taste oder Umschalt verschiebt,
Doppelklick passt den Wertebereich an.</source>
        <translation>Keys in the plot: + and - time axis, Ctrl with + and - value axis,
arrows move, Home and End jump, F fits the value range to the curves,
Ctrl with the left or right arrow shows the values (with Shift in steps of ten).
Mouse: wheel time axis, Ctrl with wheel value axis, middle button or Shift moves,
double-click fits the value range.</translation>
    </message>
</context>
<context>
    <name>OverlayOptions</name>
    <message>
        <source>Ausrichten</source>
        <translation>Align</translation>
    </message>
    <message>
        <source>Schwelle in der Einheit des Sensors</source>
        <translation>Threshold in the sensor&apos;s unit</translation>
    </message>
    <message>
        <source>&amp;Mittelwert</source>
        <translation>&amp;Mean</translation>
    </message>
    <message>
        <source>Mittelwert der gezeigten Kurven</source>
        <translation>Mean of the curves shown</translation>
    </message>
    <message>
        <source>&amp;Band ±</source>
        <translation>&amp;Band ±</translation>
    </message>
    <message>
        <source>Streuung der gezeigten Kurven um ihren Mittelwert</source>
        <translation>Scatter of the curves shown around their mean</translation>
    </message>
    <message>
        <source>Breite des Bandes in Sigma</source>
        <translation>Width of the band in sigmas</translation>
    </message>
    <message>
        <source>am Beginn</source>
        <translation>at the start</translation>
    </message>
    <message>
        <source>Null bei Marker %1</source>
        <translation>Zero at marker %1</translation>
    </message>
    <message>
        <source>Schwelle steigend</source>
        <translation>Threshold rising</translation>
    </message>
    <message>
        <source>Schwelle fallend</source>
        <translation>Threshold falling</translation>
    </message>
    <message>
        <source>Woran die Kurven übereinander liegen: an ihrem Beginn, mit ihren Werten bei einem Marker, oder wo sie zum ersten Mal eine Schwelle durchlaufen</source>
        <translation>What the curves are aligned by: their start, their values at a marker, or where they first cross a threshold</translation>
    </message>
</context>
<context>
    <name>OverlayShotList</name>
    <message>
        <source>Noch keine Messungen</source>
        <translation>No measurements yet</translation>
    </message>
    <message>
        <source>%1 von %2 gezeigt</source>
        <translation>%1 of %2 shown</translation>
    </message>
    <message>
        <source>&amp;Referenz aufheben</source>
        <translation>Clear &amp;reference</translation>
    </message>
    <message>
        <source>Als &amp;Referenz</source>
        <translation>As &amp;reference</translation>
    </message>
    <message>
        <source>%1 ohne Durchgang</source>
        <translation>%1 without crossing</translation>
    </message>
    <message>
        <source>%1 leer</source>
        <translation>%1 empty</translation>
    </message>
    <message>
        <source>%1 zu kurz</source>
        <translation>%1 too short</translation>
    </message>
    <message>
        <source>&amp;Alle zeigen</source>
        <translation>Show &amp;all</translation>
    </message>
    <message>
        <source>&amp;Keine zeigen</source>
        <translation>Show &amp;none</translation>
    </message>
</context>
<context>
    <name>OverlayTable</name>
    <message>
        <source>Schüsse der Überlagerung</source>
        <translation>Shots of the overlay</translation>
    </message>
</context>
<context>
    <name>OverlayTableModel</name>
    <message>
        <source>Referenz</source>
        <translation>Reference</translation>
    </message>
    <message>
        <source>Farbe der Kurve: Doppelklick oder F2 zum Ändern</source>
        <translation>Colour of the curve: double-click or F2 to change</translation>
    </message>
    <message>
        <source>Kurve zeigen: Klick oder Leertaste</source>
        <translation>Show the curve: click or space bar</translation>
    </message>
    <message>
        <source>Bezeichnung: Doppelklick oder F2 zum Ändern</source>
        <translation>Label: double-click or F2 to change</translation>
    </message>
    <message>
        <source>Farbe der Kurve</source>
        <translation>Colour of the curve</translation>
    </message>
    <message>
        <source>Kurve zeigen</source>
        <translation>Show the curve</translation>
    </message>
    <message>
        <source>Schuss</source>
        <translation>Shot</translation>
    </message>
    <message>
        <source>Zeitstempel</source>
        <translation>Time stamp</translation>
    </message>
    <message>
        <source>Bezeichnung</source>
        <translation>Label</translation>
    </message>
    <message>
        <source>Größter Abstand von der Referenz, wo beide Kurven Werte haben</source>
        <translation>Largest distance from the reference where both curves have values</translation>
    </message>
    <message>
        <source>Abweichung</source>
        <translation>Deviation</translation>
    </message>
</context>
<context>
    <name>PageTable</name>
    <message>
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Project</translation>
    </message>
    <message>
        <source>Sensoren</source>
        <translation>Sensors</translation>
    </message>
    <message>
        <source>Oszilloskop</source>
        <translation>Oscilloscope</translation>
    </message>
    <message>
        <source>Auswertung</source>
        <translation>Evaluation</translation>
    </message>
    <message>
        <source>Web Configuration</source>
        <translation>Web configuration</translation>
    </message>
    <message>
        <source>Datenlogger</source>
        <translation>Data logger</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>Terminal</translation>
    </message>
    <message>
        <source>BlackBox</source>
        <translation>BlackBox</translation>
    </message>
</context>
<context>
    <name>PhaseStrip</name>
    <message>
        <source>&amp;%1</source>
        <translation>&amp;%1</translation>
    </message>
    <message>
        <source>ab %1 s</source>
        <translation>from %1 s</translation>
    </message>
    <message>
        <source>%1 – %2 s</source>
        <translation>%1 – %2 s</translation>
    </message>
    <message>
        <source>Name der Phase %1</source>
        <translation>Name of phase %1</translation>
    </message>
    <message>
        <source>Name der Phase %1; der vorige Marker beginnt sie, der nächste beendet sie.</source>
        <translation>Name of phase %1; the marker before begins it, the next one ends it.</translation>
    </message>
    <message>
        <source>Phase %1</source>
        <translation>Phase %1</translation>
    </message>
</context>
<context>
    <name>ProgramArguments</name>
    <message>
        <source>Aufruf: %1 [Optionen] [Projekt.vnt]
Zeichnet Messungen an Spritzgießwerkzeugen auf und wertet sie aus.

Optionen:
  -h, --help     zeigt diese Hilfe
  -v, --version  zeigt die Version

Argumente:
  Projekt.vnt    Projekt, das geöffnet wird; bei mehreren wird keines geöffnet. Ein
                 Name, der mit &quot;-&quot; beginnt, wird als &quot;./-Name&quot; angegeben.
</source>
        <translation>Usage: %1 [options] [project.vnt]
Records measurements of injection moulding tools and evaluates them.

Options:
  -h, --help     shows this help
  -v, --version  shows the version

Arguments:
  project.vnt    project to open; of several, none is opened. A name that begins
                 with &quot;-&quot; is given as &quot;./-name&quot;.
</translation>
    </message>
    <message>
        <source>Unbekannte Option: %1
Ein Dateiname, der mit &quot;-&quot; beginnt, wird als &quot;./-Name&quot; angegeben.
Hilfe: %2 --help
</source>
        <translation>Unknown option: %1
A file name that begins with &quot;-&quot; is given as &quot;./-name&quot;.
Help: %2 --help
</translation>
    </message>
</context>
<context>
    <name>ProjectCard</name>
    <message>
        <source>So geht es los</source>
        <translation>Getting started</translation>
    </message>
    <message>
        <source>Zuletzt geöffnet</source>
        <translation>Recent projects</translation>
    </message>
    <message>
        <source>&amp;Neues Projekt</source>
        <translation>&amp;New project</translation>
    </message>
    <message>
        <source>Projekt &amp;öffnen...</source>
        <translation>&amp;Open project...</translation>
    </message>
</context>
<context>
    <name>ProjectFiles</name>
    <message>
        <source>Projekt öffnen</source>
        <translation>Open project</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Loading...</translation>
    </message>
    <message>
        <source>Eine Aufzeichnung läuft. Sie wird beendet, bevor das andere Projekt geöffnet wird.</source>
        <translation>A recording is running. It will be stopped before the other project is opened.</translation>
    </message>
    <message>
        <source>Weiter aufzeichnen</source>
        <translation>Go on recording</translation>
    </message>
    <message>
        <source>Beenden und öffnen</source>
        <translation>Stop and open</translation>
    </message>
</context>
<context>
    <name>ProjectForm</name>
    <message>
        <source>&amp;Projekt:</source>
        <translation>&amp;Project:</translation>
    </message>
    <message>
        <source>Projekt&amp;nummer:</source>
        <translation>Project &amp;number:</translation>
    </message>
    <message>
        <source>Bea&amp;rbeiter:</source>
        <translation>P&amp;erson in charge:</translation>
    </message>
    <message>
        <source>&amp;Datum:</source>
        <translation>D&amp;ate:</translation>
    </message>
    <message>
        <source>&amp;Kunde:</source>
        <translation>Cus&amp;tomer:</translation>
    </message>
    <message>
        <source>&amp;Schließkraft:</source>
        <translation>C&amp;lamping force:</translation>
    </message>
    <message>
        <source>&amp;Einspritzzeit:</source>
        <translation>&amp;Injection time:</translation>
    </message>
    <message>
        <source>Na&amp;chdruckzeit:</source>
        <translation>H&amp;olding time:</translation>
    </message>
    <message>
        <source>Dr&amp;uck:</source>
        <translation>P&amp;ressure:</translation>
    </message>
    <message>
        <source>TT.MM.JJJJ</source>
        <translation>DD.MM.YYYY</translation>
    </message>
    <message>
        <source>&amp;Heute</source>
        <translation>Toda&amp;y</translation>
    </message>
    <message>
        <source>Das heutige Datum eintragen</source>
        <translation>Enter today&apos;s date</translation>
    </message>
    <message>
        <source> kN</source>
        <translation> kN</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source> bar</source>
        <translation> bar</translation>
    </message>
</context>
<context>
    <name>ProjectImages</name>
    <message>
        <source>Bild %1</source>
        <translation>Picture %1</translation>
    </message>
</context>
<context>
    <name>ProjectOffer</name>
    <message>
        <source>Soll die aktuelle Projektbeschreibung durch die empfangenen Daten überschrieben werden?</source>
        <translation>Overwrite the current project description with the data received?</translation>
    </message>
    <message>
        <source>Projektbeschreibung empfangen</source>
        <translation>Project description received</translation>
    </message>
    <message>
        <source>Aktuell</source>
        <translation>Current</translation>
    </message>
    <message>
        <source>Empfangen</source>
        <translation>Received</translation>
    </message>
    <message>
        <source>Projekt</source>
        <translation>Project</translation>
    </message>
    <message>
        <source>Projektnummer</source>
        <translation>Project number</translation>
    </message>
    <message>
        <source>Bearbeiter</source>
        <translation>Person in charge</translation>
    </message>
    <message>
        <source>Datum</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Kunde</source>
        <translation>Customer</translation>
    </message>
    <message>
        <source>Schließkraft [kN]</source>
        <translation>Clamping force [kN]</translation>
    </message>
    <message>
        <source>Einspritzzeit [s]</source>
        <translation>Injection time [s]</translation>
    </message>
    <message>
        <source>Nachdruckzeit [s]</source>
        <translation>Holding time [s]</translation>
    </message>
    <message>
        <source>Druck [bar]</source>
        <translation>Pressure [bar]</translation>
    </message>
    <message>
        <source>Phase %1</source>
        <translation>Phase %1</translation>
    </message>
    <message>
        <source>Übernahme der Projektbeschreibung</source>
        <translation>taking over the project description</translation>
    </message>
</context>
<context>
    <name>ProjectPictures</name>
    <message>
        <source>Bilder (%1)</source>
        <translation>Pictures (%1)</translation>
    </message>
    <message>
        <source>Die Datei &quot;%1&quot; konnte nicht gelesen werden!</source>
        <translation>The file &quot;%1&quot; could not be read!</translation>
    </message>
    <message>
        <source>Das Bild &quot;%1&quot; ist zu groß: Es hat mehr als %2 Millionen Bildpunkte!</source>
        <translation>The picture &quot;%1&quot; is too large: it has more than %2 million pixels!</translation>
    </message>
    <message>
        <source>Die Datei &quot;%1&quot; enthält kein Bild, das gelesen werden kann!</source>
        <translation>The file &quot;%1&quot; holds no picture that can be read!</translation>
    </message>
    <message>
        <source>Bild auswählen</source>
        <translation>Choose a picture</translation>
    </message>
    <message>
        <source>Nur %1 von %2 Bildern übernommen, mehr Plätze sind nicht frei.</source>
        <translation>Only %1 of %2 pictures added; there is no room for more.</translation>
    </message>
    <message>
        <source>Bild %1 wird durch ein anderes ersetzt.
Fortfahren?</source>
        <translation>Picture %1 will be replaced by another one.
Continue?</translation>
    </message>
    <message>
        <source>Bild ersetzen</source>
        <translation>Replace picture</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>Bild %1 wird aus dem Projekt gelöscht.
Fortfahren?</source>
        <translation>Picture %1 will be deleted from the project.
Continue?</translation>
    </message>
    <message>
        <source>Bild löschen</source>
        <translation>Delete picture</translation>
    </message>
    <message>
        <source>Bild gespeichert: %1</source>
        <translation>Picture saved: %1</translation>
    </message>
    <message>
        <source>Das Bild konnte nicht gespeichert werden!</source>
        <translation>The picture could not be saved!</translation>
    </message>
    <message>
        <source>Bild speichern</source>
        <translation>Save picture</translation>
    </message>
    <message>
        <source>PNG-Bild (*.png)</source>
        <translation>PNG picture (*.png)</translation>
    </message>
    <message>
        <source>Für Bild %1 ist kein Platz mehr: Alle Bilder eines Projekts zusammen dürfen höchstens %2 Millionen Bildpunkte haben, die anderen haben schon %3 Millionen.
Bitte zuerst ein großes Bild löschen oder durch ein kleineres ersetzen.</source>
        <translation>There is no room left for picture %1: all pictures of a project together may have at most %2 million pixels, the others have %3 million already.
Please delete a large picture first, or replace it with a smaller one.</translation>
    </message>
    <message>
        <source>Ersetzen von Bild %1</source>
        <translation>Replacement of picture %1</translation>
    </message>
    <message>
        <source>Einfügen von Bild %1</source>
        <translation>insertion of picture %1</translation>
    </message>
    <message>
        <source>Löschen von Bild %1</source>
        <translation>deletion of picture %1</translation>
    </message>
</context>
<context>
    <name>ProjectSaving</name>
    <message>
        <source>Ventaro Dateien (*.vnt)</source>
        <translation>Ventaro files (*.vnt)</translation>
    </message>
    <message>
        <source>Projekt speichern</source>
        <translation>Save project</translation>
    </message>
    <message>
        <source>Saving...</source>
        <translation>Saving...</translation>
    </message>
    <message>
        <source>Das Projekt ist gespeichert, aber Zeitstempel, Bezeichnungen, Einheiten, Grenzen und Schwellen konnten nicht gespeichert werden!</source>
        <translation>The project has been saved, but its time stamps, labels, units, limits and thresholds could not be saved!</translation>
    </message>
    <message>
        <source>Projekt gespeichert: %1</source>
        <translation>Project saved: %1</translation>
    </message>
    <message>
        <source>Das Projekt ist nur zum Lesen geöffnet: Bitte einen anderen Namen wählen.</source>
        <translation>The project is open for reading only: please choose another name.</translation>
    </message>
    <message>
        <source> (Kopie)</source>
        <translation> (copy)</translation>
    </message>
    <message>
        <source>Projekt ohne Sicherungskopie gespeichert: %1</source>
        <translation>Project saved without a backup: %1</translation>
    </message>
</context>
<context>
    <name>ProjectStart</name>
    <message>
        <source>Es wurden %1 Dateien angegeben, aber nur eine kann geöffnet werden. Deshalb ist keine geöffnet.

Bitte eine davon mit &quot;Projekt öffnen...&quot; wählen.</source>
        <translation>%1 files were given, but only one can be opened. Therefore none was opened.

Please choose one of them with &quot;Open project...&quot;.</translation>
    </message>
</context>
<context>
    <name>QcAttitudeMeter</name>
    <message>
        <source>Querneigung %1°, Längsneigung %2°</source>
        <translation>Roll %1°, pitch %2°</translation>
    </message>
</context>
<context>
    <name>QcGaugeWidget</name>
    <message>
        <source>kein Wert</source>
        <translation>no value</translation>
    </message>
    <message>
        <source>%1, veraltet</source>
        <translation>%1, out of date</translation>
    </message>
</context>
<context>
    <name>QuantityChoice</name>
    <message>
        <source>Größe</source>
        <translation>Quantity</translation>
    </message>
    <message>
        <source>Dargestellte Größe</source>
        <translation>Displayed quantity</translation>
    </message>
    <message>
        <source>&amp;Spalten...</source>
        <translation>&amp;Columns...</translation>
    </message>
    <message>
        <source>Größen der Tabelle wählen</source>
        <translation>Choose the quantities of the table</translation>
    </message>
</context>
<context>
    <name>QuantityPicker</name>
    <message>
        <source>Wert</source>
        <translation>Value</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Mittelwert</source>
        <translation>Mean</translation>
    </message>
    <message>
        <source>Integral</source>
        <translation>Integral</translation>
    </message>
    <message>
        <source>Zeit der Spitze</source>
        <translation>Time of peak</translation>
    </message>
    <message>
        <source>Summe der Messwerte mal Abtastzeit</source>
        <translation>Sum of the samples times the sampling period</translation>
    </message>
    <message>
        <source>Zeit vom Beginn des Schusses bis zum größten Wert</source>
        <translation>Time from the start of the shot to the largest value</translation>
    </message>
    <message>
        <source>Marker %1</source>
        <translation>Marker %1</translation>
    </message>
    <message>
        <source>Ganzer Schuss</source>
        <translation>Whole shot</translation>
    </message>
    <message>
        <source>Phase %1</source>
        <translation>Phase %1</translation>
    </message>
</context>
<context>
    <name>QuantityTableModel</name>
    <message>
        <source>Außerhalb der Grenzen</source>
        <translation>Outside the limits</translation>
    </message>
    <message>
        <source>Zeitstempel</source>
        <translation>Time stamp</translation>
    </message>
    <message>
        <source>Schuss</source>
        <translation>Shot</translation>
    </message>
</context>
<context>
    <name>Questions</name>
    <message>
        <source>Projekt speichern?</source>
        <translation>Save project?</translation>
    </message>
    <message>
        <source>Ventaro beenden?</source>
        <translation>Quit Ventaro?</translation>
    </message>
    <message>
        <source>Vor dem Beenden Ventaro Projekt speichern?</source>
        <translation>Save the Ventaro project before quitting?</translation>
    </message>
    <message>
        <source>Achtung: Alle Messdaten werden gelöscht!</source>
        <translation>Attention: all measured data will be deleted!</translation>
    </message>
    <message>
        <source>Die Datei &quot;%1&quot; ist schon vorhanden. Überschreiben?</source>
        <translation>The file &quot;%1&quot; already exists. Overwrite it?</translation>
    </message>
    <message>
        <source>Escape oder Schließen bricht ab, und nichts ändert sich.</source>
        <translation>Escape or closing cancels, and nothing changes.</translation>
    </message>
</context>
<context>
    <name>ReadOnlySign</name>
    <message>
        <source>Nur lesen</source>
        <translation>Read only</translation>
    </message>
    <message>
        <source>Das Projekt ist auch auf %1 geöffnet (%2, Prozess %3).</source>
        <translation>The project is open on %1 too (%2, process %3).</translation>
    </message>
</context>
<context>
    <name>RecentProjectList</name>
    <message>
        <source>heute, %1</source>
        <translation>today, %1</translation>
    </message>
    <message>
        <source>gestern, %1</source>
        <translation>yesterday, %1</translation>
    </message>
    <message>
        <source>dd.MM.yyyy</source>
        <translation>d MMM yyyy</translation>
    </message>
    <message>
        <source>1. Box einschalten und &lt;b&gt;Verbinden&lt;/b&gt; drücken oder die &lt;b&gt;Demo&lt;/b&gt; starten.&lt;br&gt;2. &lt;b&gt;Start&lt;/b&gt; in der Werkzeugleiste zeichnet eine Messung auf, &lt;b&gt;Stop&lt;/b&gt; beendet sie.&lt;br&gt;3. Kurven ansehen unter &lt;b&gt;Oszilloskop&lt;/b&gt;, Messungen vergleichen unter &lt;b&gt;Auswertung&lt;/b&gt;.&lt;br&gt;4. Projekt speichern. Beim nächsten Mal steht es hier bereit.</source>
        <translation>1. Switch on the box and press &lt;b&gt;Connect&lt;/b&gt;, or start the &lt;b&gt;demo&lt;/b&gt;.&lt;br&gt;2. &lt;b&gt;Start&lt;/b&gt; in the tool bar records a measurement, &lt;b&gt;Stop&lt;/b&gt; ends it.&lt;br&gt;3. View the curves in &lt;b&gt;Oscilloscope&lt;/b&gt;, compare measurements in &lt;b&gt;Evaluation&lt;/b&gt;.&lt;br&gt;4. Save the project. Next time you will find it here.</translation>
    </message>
    <message>
        <source>Netzlaufwerk</source>
        <translation>network drive</translation>
    </message>
    <message>
        <source>nicht gefunden</source>
        <translation>not found</translation>
    </message>
    <message>
        <source>Aus der Liste entfernen</source>
        <translation>Remove from the list</translation>
    </message>
</context>
<context>
    <name>RecordingActions</name>
    <message>
        <source>Die Sensoren werden kalibriert.</source>
        <translation>The sensors are being calibrated.</translation>
    </message>
    <message>
        <source>Kalibrierung</source>
        <translation>Calibration</translation>
    </message>
</context>
<context>
    <name>Recovery</name>
    <message>
        <source>(ohne Namen)</source>
        <translation>(unnamed)</translation>
    </message>
    <message>
        <source>Projekt: %1</source>
        <translation>Project: %1</translation>
    </message>
    <message>
        <source>Datei: %1</source>
        <translation>File: %1</translation>
    </message>
    <message>
        <source>Stand: %1</source>
        <translation>As of: %1</translation>
    </message>
    <message>
        <source>Messungen: %1</source>
        <translation>Measurements: %1</translation>
    </message>
    <message>
        <source>Messwerte: %1</source>
        <translation>Samples: %1</translation>
    </message>
    <message>
        <source>Die Projektdatei wurde danach noch geändert: %1</source>
        <translation>The project file was changed after that: %1</translation>
    </message>
    <message>
        <source>Wiederherstellung</source>
        <translation>Recovery</translation>
    </message>
    <message>
        <source>Das Programm wurde beendet, bevor dieses Projekt gespeichert war:</source>
        <translation>The program ended before this project was saved:</translation>
    </message>
    <message>
        <source>„Später“ lässt alles, wie es ist; beim nächsten Start wird wieder gefragt.</source>
        <translation>“Later” leaves everything as it is; you will be asked again at the next start.</translation>
    </message>
    <message>
        <source>Wiederherstellen</source>
        <translation>Restore</translation>
    </message>
    <message>
        <source>Später</source>
        <translation>Later</translation>
    </message>
    <message>
        <source>Verwerfen</source>
        <translation>Discard</translation>
    </message>
    <message>
        <source>Ungespeicherte Änderungen aus einem früheren Lauf sind nicht lesbar. Sie bleiben aufgehoben:
%1</source>
        <translation>Unsaved changes of an earlier run cannot be read. They are kept:
%1</translation>
    </message>
    <message>
        <source>Die ungespeicherten Änderungen bleiben aufgehoben.</source>
        <translation>The unsaved changes are kept.</translation>
    </message>
    <message>
        <source>Achtung: Diese ungespeicherten Änderungen gehen endgültig verloren!</source>
        <translation>Attention: These unsaved changes will be lost for good!</translation>
    </message>
    <message>
        <source>Behalten</source>
        <translation>Keep</translation>
    </message>
    <message>
        <source>Endgültig verwerfen</source>
        <translation>Discard for good</translation>
    </message>
    <message>
        <source>%1 kann nicht gelöscht werden.</source>
        <translation>%1 cannot be deleted.</translation>
    </message>
    <message>
        <source>Das geöffnete Projekt ist noch nicht gespeichert.</source>
        <translation>The open project has not been saved yet.</translation>
    </message>
    <message>
        <source>Es wird durch das wiederhergestellte Projekt ersetzt.</source>
        <translation>The restored project will take its place.</translation>
    </message>
    <message>
        <source>Speichern und wiederherstellen</source>
        <translation>Save and restore</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Loading...</translation>
    </message>
    <message>
        <source>Das Projekt kann nicht wiederhergestellt werden: Der Speicher reicht nicht. Die Daten bleiben aufgehoben; nach einem Neustart kann es noch einmal versucht werden.</source>
        <translation>The project cannot be restored: there is not enough memory. The data is kept; you can try again after a restart.</translation>
    </message>
    <message>
        <source>Projekt wiederhergestellt; es ist noch nicht gespeichert.</source>
        <translation>Project restored; it has not been saved yet.</translation>
    </message>
    <message>
        <source>Fehlende Messungen: %1</source>
        <translation>Missing measurements: %1</translation>
    </message>
    <message>
        <source>Messungen ohne ihren Anfang: %1</source>
        <translation>Measurements without their beginning: %1</translation>
    </message>
    <message>
        <source>Fehlende Bilder: %1</source>
        <translation>Missing pictures: %1</translation>
    </message>
    <message>
        <source>Die Projektdatei fehlt oder wurde inzwischen geändert. Nicht alles konnte wiederhergestellt werden:</source>
        <translation>The project file is missing or has been changed meanwhile. Not everything could be restored:</translation>
    </message>
    <message>
        <source>Inzwischen läuft eine Aufzeichnung. Die ungespeicherten Änderungen bleiben aufgehoben; beim nächsten Start wird wieder gefragt.</source>
        <translation>A recording is running by now. The unsaved changes are kept; you will be asked again at the next start.</translation>
    </message>
</context>
<context>
    <name>RowRanges</name>
    <message>
        <source>Bereich von %1</source>
        <translation>range of %1</translation>
    </message>
</context>
<context>
    <name>RuntimeBoxPlots</name>
    <message>
        <source>Start [s]</source>
        <translation>Start [s]</translation>
    </message>
    <message>
        <source>Dauer [s]</source>
        <translation>Duration [s]</translation>
    </message>
    <message>
        <source>Stop [s]</source>
        <translation>Stop [s]</translation>
    </message>
</context>
<context>
    <name>RuntimeTable</name>
    <message>
        <source>Laufzeiten der Schüsse</source>
        <translation>Run times of the shots</translation>
    </message>
</context>
<context>
    <name>RuntimeTableModel</name>
    <message>
        <source>Sigma</source>
        <translation>Sigma</translation>
    </message>
    <message>
        <source>Mittelwert</source>
        <translation>Mean</translation>
    </message>
    <message>
        <source>Schuss</source>
        <translation>Shot</translation>
    </message>
    <message>
        <source>timestamp</source>
        <translation>timestamp</translation>
    </message>
    <message>
        <source>Start [s]</source>
        <translation>Start [s]</translation>
    </message>
    <message>
        <source>Dauer [s]</source>
        <translation>Duration [s]</translation>
    </message>
    <message>
        <source>Stop [s]</source>
        <translation>Stop [s]</translation>
    </message>
    <message>
        <source>Gesamtdauer [s]</source>
        <translation>Total duration [s]</translation>
    </message>
    <message>
        <source>Pause [s]</source>
        <translation>Pause [s]</translation>
    </message>
    <message>
        <source>ohne 1 lange Pause</source>
        <translation>without 1 long pause</translation>
    </message>
    <message>
        <source>ohne %1 lange Pausen</source>
        <translation>without %1 long pauses</translation>
    </message>
    <message>
        <source>Pausen, die länger sind als das Fünffache des Medians, zählen hier nicht mit, ebenso solche, bei denen die Uhr zurückgestellt wurde.</source>
        <translation>Pauses that are longer than five times the median do not count here, nor do those in which the clock was set back.</translation>
    </message>
</context>
<context>
    <name>SamplingBox</name>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>Abtastrate</source>
        <translation>Sampling period</translation>
    </message>
    <message>
        <source>Zeit zwischen zwei Messwerten; wählbar, solange die Box verbunden ist</source>
        <translation>Time between two samples; selectable while the box is connected</translation>
    </message>
</context>
<context>
    <name>SamplingPeriod</name>
    <message>
        <source>Die Abtastrate lässt sich nicht ändern, solange eine Aufzeichnung läuft.</source>
        <translation>The sampling period cannot be changed while a recording is running.</translation>
    </message>
    <message>
        <source>Die vorhandenen Messungen erhalten die Zeitachse der neuen Abtastrate. Fortfahren?</source>
        <translation>The existing measurements will take on the time axis of the new sampling period. Continue?</translation>
    </message>
    <message>
        <source>Abtastrate ändern</source>
        <translation>Change sampling period</translation>
    </message>
    <message>
        <source>Achtung: Das Projekt ist mit %1 ms je Wert aufgezeichnet, die Box misst mit %2 ms.</source>
        <translation>Attention: the project was recorded at %1 ms per value, the box samples at %2 ms.</translation>
    </message>
    <message>
        <source>Änderung der Abtastrate</source>
        <translation>change of the sampling rate</translation>
    </message>
    <message>
        <source>Die Box misst jetzt wie das Projekt mit %1 ms je Wert.</source>
        <translation>The box now measures like the project, at %1 ms per value.</translation>
    </message>
</context>
<context>
    <name>Scp</name>
    <message>
        <source>Problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>The SCP tool could not be started!&lt;br&gt;&lt;br&gt;Tool command: %1&lt;br&gt;Error: %2</source>
        <translation>The SCP tool could not be started!&lt;br&gt;&lt;br&gt;Tool command: %1&lt;br&gt;Error: %2</translation>
    </message>
    <message>
        <source>SCP Problem</source>
        <translation>SCP Problem</translation>
    </message>
    <message>
        <source>SCP was NOT successful!!

Please check output:</source>
        <translation>SCP was NOT successful!!

Please check output:</translation>
    </message>
    <message>
        <source>SCP did not end (yet)!</source>
        <translation>SCP did not end (yet)!</translation>
    </message>
    <message>
        <source>The tool stopped!</source>
        <translation>The tool stopped!</translation>
    </message>
    <message>
        <source>Das ist kein Ordner der BlackBox: %1</source>
        <translation>This is not a folder of the BlackBox: %1</translation>
    </message>
    <message>
        <source>Der Dateiname darf keine Leerzeichen, Anführungszeichen, Platzhalter (* ?) oder Steuerzeichen enthalten. Bitte die Datei umbenennen:
%1</source>
        <translation>The file name must not contain blanks, quotation marks, wildcards (* ?) or control characters. Please rename the file:
%1</translation>
    </message>
    <message>
        <source>Das ist kein Datum (TT.MM.JJJJ): %1</source>
        <translation>This is not a date (DD.MM.YYYY): %1</translation>
    </message>
    <message>
        <source>Es läuft schon eine Übertragung. Bitte warten, bis sie beendet ist.</source>
        <translation>A transfer is already running. Please wait until it has ended.</translation>
    </message>
    <message>
        <source>Die Adresse der Box ist noch nicht bekannt. Bitte zuerst verbinden.</source>
        <translation>The address of the box is not known yet. Please connect first.</translation>
    </message>
    <message>
        <source>Keine gültige Adresse: %1</source>
        <translation>Not a valid address: %1</translation>
    </message>
    <message>
        <source>Unter dieser Adresse antwortet ein anderes Gerät als bisher, und so ist es eingestellt: Ein solches wird abgewiesen (VENTARO_SCP_REFUSE_NEW_KEY). Ist es die richtige Box, bitte die Einstellung für eine Übertragung weglassen.</source>
        <translation>Another device than before answers at this address, and it is set that such a one is refused (VENTARO_SCP_REFUSE_NEW_KEY). If it is the right box, please leave this setting out for one transfer.</translation>
    </message>
    <message>
        <source>Das Gerät unter %1 weist sich mit einem anderen Schlüssel aus als bisher.

Das ist so, wenn dort jetzt eine andere Box angeschlossen ist oder ihr System neu aufgespielt wurde. Trifft keines von beiden zu, gibt sich womöglich ein fremdes Gerät als Box aus und kennt nun das Kennwort: dann bitte das Netz prüfen.

bisher: %2
jetzt: %3</source>
        <translation>The device at %1 identifies itself with another key than before.

This is so if another box is connected there now, or if its system was installed anew. If neither is the case, a foreign device may pose as a box and know the password now: please check the network then.

before: %2
now: %3</translation>
    </message>
    <message>
        <source>Andere Box?</source>
        <translation>Another box?</translation>
    </message>
    <message>
        <source>Benutzername und Kennwort des Zugangs zur Box dürfen weder leer sein noch Leerzeichen, Anführungszeichen oder Steuerzeichen enthalten, der Benutzername auch weder : noch @. Sie werden beim Bau des Programms festgelegt (VENTARO_DEVICE_PASSWORD).</source>
        <translation>User name and password of the account on the box must neither be empty nor contain blanks, quotation marks or control characters, and the user name neither : nor @. They are set when the program is built (VENTARO_DEVICE_PASSWORD).</translation>
    </message>
</context>
<context>
    <name>SensorDescription</name>
    <message>
        <source>Sensor %1</source>
        <translation>Sensor %1</translation>
    </message>
</context>
<context>
    <name>SensorDialog</name>
    <message>
        <source>Sensor bearbeiten</source>
        <translation>Edit sensor</translation>
    </message>
    <message>
        <source>Ü&amp;bernehmen</source>
        <translation>Ap&amp;ply</translation>
    </message>
    <message>
        <source>&amp;Abbrechen</source>
        <translation>&amp;Cancel</translation>
    </message>
    <message>
        <source>Untere Grenze</source>
        <translation>Lower limit</translation>
    </message>
    <message>
        <source>Obere Grenze</source>
        <translation>Upper limit</translation>
    </message>
    <message>
        <source>Farbe wählen</source>
        <translation>Choose colour</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Name</translation>
    </message>
    <message>
        <source>&amp;Farbe</source>
        <translation>Co&amp;lour</translation>
    </message>
    <message>
        <source>Bitte einen Namen eingeben.</source>
        <translation>Please enter a name.</translation>
    </message>
    <message>
        <source>Die untere Grenze muss kleiner als die obere sein.</source>
        <translation>The lower limit must be below the upper one.</translation>
    </message>
    <message>
        <source>Grenzen liegen zwischen -100000 und 100000.</source>
        <translation>Limits lie between -100000 and 100000.</translation>
    </message>
    <message>
        <source>Ausgeschaltet gibt es keine Grenze.</source>
        <translation>There is no limit while this is off.</translation>
    </message>
    <message>
        <source>Eine Box, die ihre Sensoren beschreibt, bringt ihre eigenen Einheiten mit.</source>
        <translation>A box that describes its sensors brings its own units.</translation>
    </message>
    <message>
        <source>&amp;Einheit</source>
        <translation>&amp;Unit</translation>
    </message>
</context>
<context>
    <name>SensorEditor</name>
    <message>
        <source>Änderung von %1</source>
        <translation>change of %1</translation>
    </message>
</context>
<context>
    <name>SensorList</name>
    <message>
        <source>Gruppe %1</source>
        <translation>Group %1</translation>
    </message>
</context>
<context>
    <name>SensorReading</name>
    <message>
        <source>kein Wert</source>
        <translation>no value</translation>
    </message>
    <message>
        <source>veraltet</source>
        <translation>out of date</translation>
    </message>
    <message>
        <source>aktuell</source>
        <translation>up to date</translation>
    </message>
    <message>
        <source>unter der Grenze</source>
        <translation>below the limit</translation>
    </message>
    <message>
        <source>über der Grenze</source>
        <translation>above the limit</translation>
    </message>
    <message>
        <source>min %1   max %2</source>
        <translation>min %1   max %2</translation>
    </message>
</context>
<context>
    <name>SensorSide</name>
    <message>
        <source>Sensoren</source>
        <translation>Sensors</translation>
    </message>
    <message>
        <source>&amp;Bearbeiten...</source>
        <translation>&amp;Edit...</translation>
    </message>
    <message>
        <source>Name, Farbe und Grenzen des gewählten Sensors (Eingabetaste)</source>
        <translation>Name, colour and limits of the selected sensor (Enter)</translation>
    </message>
    <message>
        <source>&amp;Min/Max neu</source>
        <translation>Reset &amp;min/max</translation>
    </message>
    <message>
        <source>Minimum und Maximum aller Sensoren neu beginnen</source>
        <translation>Reset minimum and maximum of all sensors</translation>
    </message>
    <message>
        <source>Umbenennen (F2)</source>
        <translation>Rename (F2)</translation>
    </message>
    <message>
        <source>Bearbeiten...</source>
        <translation>Edit...</translation>
    </message>
    <message>
        <source>Minimum und Maximum neu beginnen</source>
        <translation>Reset minimum and maximum</translation>
    </message>
</context>
<context>
    <name>SensorTile</name>
    <message>
        <source>Linear</source>
        <translation>Linear</translation>
    </message>
    <message>
        <source>Rund</source>
        <translation>Round</translation>
    </message>
    <message>
        <source>Balken</source>
        <translation>Bar</translation>
    </message>
    <message>
        <source>Digital</source>
        <translation>Digital</translation>
    </message>
    <message>
        <source>Art der Anzeige (Tasten 1 bis 4)</source>
        <translation>Display type (keys 1 to 4)</translation>
    </message>
    <message>
        <source>%1: Art der Anzeige</source>
        <translation>%1: display type</translation>
    </message>
    <message>
        <source>Minimum und Maximum neu beginnen (Entf)</source>
        <translation>Reset minimum and maximum (Del)</translation>
    </message>
    <message>
        <source>%1: Minimum und Maximum neu beginnen</source>
        <translation>%1: reset minimum and maximum</translation>
    </message>
    <message>
        <source>Alle Sensoren zeigen (Esc)</source>
        <translation>Show all sensors (Esc)</translation>
    </message>
    <message>
        <source>Groß zeigen (Eingabetaste oder Doppelklick)</source>
        <translation>Enlarge (Enter or double-click)</translation>
    </message>
    <message>
        <source>Alle Sensoren zeigen</source>
        <translation>Show all sensors</translation>
    </message>
    <message>
        <source>%1: groß zeigen</source>
        <translation>%1: enlarge</translation>
    </message>
</context>
<context>
    <name>SensorTreeModel</name>
    <message>
        <source>Die Box sendet für diesen Sensor keine Werte.</source>
        <translation>The box sends no values for this sensor.</translation>
    </message>
    <message>
        <source>%1
F2 oder Doppelklick: umbenennen
Eingabetaste: bearbeiten</source>
        <translation>%1
F2 or double-click: rename
Enter: edit</translation>
    </message>
    <message>
        <source>Sensor</source>
        <translation>Sensor</translation>
    </message>
    <message>
        <source>Wert</source>
        <translation>Value</translation>
    </message>
    <message>
        <source>Einheit</source>
        <translation>Unit</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
</context>
<context>
    <name>ShotBar</name>
    <message>
        <source>Dargestellt werden die Messungen 1 bis %1. Alle weiteren werden aufgezeichnet und gespeichert, aber nicht gezeichnet.</source>
        <translation>Measurements 1 to %1 are displayed. All further ones are recorded and saved, but not drawn.</translation>
    </message>
    <message>
        <source>Messungen (%1 gezeigt)</source>
        <translation>Measurements (%1 shown)</translation>
    </message>
    <message>
        <source>Messungen</source>
        <translation>Measurements</translation>
    </message>
    <message>
        <source>Angezeigt</source>
        <translation>Displayed</translation>
    </message>
    <message>
        <source>alle</source>
        <translation>all</translation>
    </message>
    <message>
        <source>Alle Messungen zeigen</source>
        <translation>Show all measurements</translation>
    </message>
    <message>
        <source>Nummern und Bereiche, durch Komma getrennt: 1-3,5 zeigt die Messungen 1, 2, 3 und 5.</source>
        <translation>Numbers and ranges, separated by commas: 1-3,5 shows measurements 1, 2, 3 and 5.</translation>
    </message>
    <message>
        <source>Angezeigte Messungen</source>
        <translation>Displayed measurements</translation>
    </message>
    <message>
        <source>Markiert</source>
        <translation>Highlight</translation>
    </message>
    <message>
        <source>Nummer der hervorgehobenen Messung; 0 hebt keine hervor</source>
        <translation>Number of the highlighted measurement; 0 highlights none</translation>
    </message>
    <message>
        <source>Markierte Messung</source>
        <translation>Highlighted measurement</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Nummern und Bereiche in aufsteigender Folge, durch Komma getrennt: 1-3,5 löscht die Messungen 1, 2, 3 und 5.</source>
        <translation>Numbers and ranges in ascending order, separated by commas: 1-3,5 deletes measurements 1, 2, 3 and 5.</translation>
    </message>
    <message>
        <source>Zu löschende Messungen</source>
        <translation>Measurements to delete</translation>
    </message>
    <message>
        <source>Diese Messungen löschen</source>
        <translation>Delete these measurements</translation>
    </message>
</context>
<context>
    <name>ShotPreview</name>
    <message>
        <source>Die Datei kann nicht gelesen werden.</source>
        <translation>The file cannot be read.</translation>
    </message>
    <message>
        <source>die ersten %1 Werte je Sensor</source>
        <translation>the first %1 values per sensor</translation>
    </message>
    <message>
        <source>1 Wert je Sensor</source>
        <translation>1 value per sensor</translation>
    </message>
    <message>
        <source>%1 Werte je Sensor</source>
        <translation>%1 values per sensor</translation>
    </message>
    <message>
        <source>1 Zeile unlesbar</source>
        <translation>1 line unreadable</translation>
    </message>
    <message>
        <source>%1 Zeilen unlesbar</source>
        <translation>%1 lines unreadable</translation>
    </message>
</context>
<context>
    <name>ShotWatch</name>
    <message>
        <source>Messung %1: %2 Werte fehlen.</source>
        <translation>Measurement %1: %2 values are missing.</translation>
    </message>
</context>
<context>
    <name>Startup</name>
    <message>
        <source>Ventaro ist für diesen Rechner nicht freigeschaltet.

Kennung dieses Rechners:
%1</source>
        <translation>Ventaro is not licensed for this computer.

Identification of this computer:
%1</translation>
    </message>
</context>
<context>
    <name>StateLine</name>
    <message>
        <source>Nicht mehr versuchen</source>
        <translation>Stop trying</translation>
    </message>
    <message>
        <source>Die Verbindung nicht mehr von selbst aufbauen</source>
        <translation>Do not make the connection by itself any more</translation>
    </message>
    <message>
        <source>Gesehen</source>
        <translation>Seen</translation>
    </message>
    <message>
        <source>Die Meldung ausblenden</source>
        <translation>Hide this message</translation>
    </message>
</context>
<context>
    <name>StateText</name>
    <message>
        <source>Simulierte Box</source>
        <translation>Simulated box</translation>
    </message>
    <message>
        <source>seit %1</source>
        <translation>since %1</translation>
    </message>
    <message>
        <source>Messung %1</source>
        <translation>Measurement %1</translation>
    </message>
    <message>
        <source>%1 Werte</source>
        <translation>%1 values</translation>
    </message>
    <message>
        <source>%1 Werte/s</source>
        <translation>%1 values/s</translation>
    </message>
    <message>
        <source>Verbindung unterbrochen %1–%2</source>
        <translation>link was lost %1–%2</translation>
    </message>
    <message>
        <source>letzte Messung: %1 Werte fehlen</source>
        <translation>last measurement: %1 values are missing</translation>
    </message>
    <message>
        <source>Nicht verbunden</source>
        <translation>Not connected</translation>
    </message>
    <message>
        <source>Verbindung verloren</source>
        <translation>Connection lost</translation>
    </message>
    <message>
        <source>um %1</source>
        <translation>at %1</translation>
    </message>
    <message>
        <source>%1. Versuch in %2 s</source>
        <translation>attempt %1 in %2 s</translation>
    </message>
    <message>
        <source>Aufzeichnung geht dann weiter</source>
        <translation>recording will go on then</translation>
    </message>
    <message>
        <source>keine Daten seit %1 s</source>
        <translation>No data for %1 s</translation>
    </message>
    <message>
        <source>Die Box antwortet nicht</source>
        <translation>The box does not answer</translation>
    </message>
    <message>
        <source>Netzwerkkabel und Stromversorgung prüfen</source>
        <translation>check network cable and power supply</translation>
    </message>
    <message>
        <source>Aufzeichnung läuft</source>
        <translation>Recording</translation>
    </message>
    <message>
        <source>Verbunden</source>
        <translation>Connected</translation>
    </message>
    <message>
        <source>Messungen: %1</source>
        <translation>Measurements: %1</translation>
    </message>
    <message>
        <source>Verbindung wird aufgebaut ...</source>
        <translation>Connecting ...</translation>
    </message>
</context>
<context>
    <name>StatusDisplay</name>
    <message>
        <source>Demonstration</source>
        <translation>Demonstration</translation>
    </message>
    <message>
        <source>Neues Projekt</source>
        <translation>New project</translation>
    </message>
    <message>
        <source>geändert</source>
        <translation>changed</translation>
    </message>
    <message>
        <source>gespeichert</source>
        <translation>saved</translation>
    </message>
</context>
<context>
    <name>TabDataLogger</name>
    <message>
        <source>&amp;Leeren</source>
        <translation>C&amp;lear</translation>
    </message>
    <message>
        <source>Alle Zeilen entfernen</source>
        <translation>Remove all lines</translation>
    </message>
    <message>
        <source>Messwerte als Text</source>
        <translation>Measured values as text</translation>
    </message>
    <message>
        <source>Sensoren oben auswählen: Je Messwert erscheint eine Zeile.</source>
        <translation>Select sensors above: one line appears for each sample.</translation>
    </message>
</context>
<context>
    <name>TabEdits</name>
    <message>
        <source>Eingabe in &quot;Projekt&quot;</source>
        <translation>entry in &quot;Project&quot;</translation>
    </message>
    <message>
        <source>Eingabe in &quot;Projektnummer&quot;</source>
        <translation>entry in &quot;Project number&quot;</translation>
    </message>
    <message>
        <source>Eingabe in &quot;Bearbeiter&quot;</source>
        <translation>entry in &quot;Person in charge&quot;</translation>
    </message>
    <message>
        <source>Eingabe in &quot;Datum&quot;</source>
        <translation>entry in &quot;Date&quot;</translation>
    </message>
    <message>
        <source>Eingabe in &quot;Kunde&quot;</source>
        <translation>entry in &quot;Customer&quot;</translation>
    </message>
    <message>
        <source>Eingabe in &quot;Schließkraft&quot;</source>
        <translation>entry in &quot;Clamping force&quot;</translation>
    </message>
    <message>
        <source>Eingabe in &quot;Einspritzzeit&quot;</source>
        <translation>entry in &quot;Injection time&quot;</translation>
    </message>
    <message>
        <source>Eingabe in &quot;Nachdruckzeit&quot;</source>
        <translation>entry in &quot;Holding time&quot;</translation>
    </message>
    <message>
        <source>Eingabe in &quot;Druck&quot;</source>
        <translation>entry in &quot;Pressure&quot;</translation>
    </message>
    <message>
        <source>Eingabe in &quot;Kommentar&quot;</source>
        <translation>entry in &quot;Comment&quot;</translation>
    </message>
    <message>
        <source>Name der Phase %1</source>
        <translation>Name of phase %1</translation>
    </message>
    <message>
        <source>Marker %1</source>
        <translation>Marker %1</translation>
    </message>
    <message>
        <source>Umstellung der Marker</source>
        <translation>switching the marker mode</translation>
    </message>
    <message>
        <source>Offset von %1</source>
        <translation>offset of %1</translation>
    </message>
    <message>
        <source>Änderung von %1</source>
        <translation>change of %1</translation>
    </message>
</context>
<context>
    <name>TabEvaluation</name>
    <message>
        <source>Übersicht</source>
        <translation>Overview</translation>
    </message>
    <message>
        <source>Auswertung 1/3: Werte</source>
        <translation>Evaluation 1/3: values</translation>
    </message>
    <message>
        <source>Auswertung 2/3: Laufzeit</source>
        <translation>Evaluation 2/3: run time</translation>
    </message>
    <message>
        <source>Auswertung 3/3: Überlagerung</source>
        <translation>Evaluation 3/3: overlay</translation>
    </message>
    <message>
        <source>Schwellen der Laufzeit</source>
        <translation>thresholds of the runtime</translation>
    </message>
</context>
<context>
    <name>TabEvaluationOverlay</name>
    <message>
        <source>Bezeichnung von Messung %1</source>
        <translation>label of measurement %1</translation>
    </message>
</context>
<context>
    <name>TabEvaluationValues</name>
    <message>
        <source>%1 [%2]</source>
        <translation>%1 [%2]</translation>
    </message>
    <message>
        <source>Verlauf über die Schüsse</source>
        <translation>Trend over the shots</translation>
    </message>
</context>
<context>
    <name>TabHome</name>
    <message>
        <source>Prozessüberwachung für Spritzgießwerkzeuge</source>
        <translation>Process monitoring for injection moulds</translation>
    </message>
</context>
<context>
    <name>TabProject</name>
    <message>
        <source>Projektbeschreibung</source>
        <translation>Project description</translation>
    </message>
    <message>
        <source>Kommentar</source>
        <translation>Comment</translation>
    </message>
    <message>
        <source>&amp;Alle Messdaten löschen...</source>
        <translation>Delete all &amp;measured data...</translation>
    </message>
    <message>
        <source>Löscht die Messdaten aller Sensoren; die Projektbeschreibung bleibt.</source>
        <translation>Deletes the measured data of all sensors; the project description stays.</translation>
    </message>
    <message>
        <source>Bilder</source>
        <translation>Pictures</translation>
    </message>
    <message>
        <source>K&amp;ommentar</source>
        <translation>&amp;Comment</translation>
    </message>
    <message>
        <source>Phasen</source>
        <translation>Phases</translation>
    </message>
    <message>
        <source>&amp;Löschen...</source>
        <translation>De&amp;lete...</translation>
    </message>
</context>
<context>
    <name>TabSensors</name>
    <message>
        <source>Noch keine Sensoren bekannt – bitte verbinden.</source>
        <translation>No sensors known yet – please connect.</translation>
    </message>
    <message>
        <source>Kein Sensor ausgewählt.
Links die Sensoren ankreuzen, die gezeigt werden sollen.</source>
        <translation>No sensor selected.
Tick the sensors to be shown on the left.</translation>
    </message>
</context>
<context>
    <name>TabTerminal</name>
    <message>
        <source>&amp;Befehl:</source>
        <translation>Co&amp;mmand:</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Send</translation>
    </message>
    <message>
        <source>Zeile an die Box senden (Eingabetaste)</source>
        <translation>Send the line to the box (Enter)</translation>
    </message>
    <message>
        <source>&amp;Leeren</source>
        <translation>C&amp;lear</translation>
    </message>
    <message>
        <source>Alle Zeilen aus der Anzeige entfernen</source>
        <translation>Remove all lines from the display</translation>
    </message>
    <message>
        <source>Zeile für die Box, z. B. deviceDescription
Pfeil nach oben und unten: frühere Zeilen</source>
        <translation>Line for the box, e.g. deviceDescription
Arrow up and down: earlier lines</translation>
    </message>
    <message>
        <source>Zeilen von und zu der Box</source>
        <translation>Lines from and to the box</translation>
    </message>
    <message>
        <source>„&lt;“ kam von der Box, „&gt;“ ging an die Box.</source>
        <translation>“&lt;” came from the box, “&gt;” went to the box.</translation>
    </message>
</context>
<context>
    <name>TabWebConfig</name>
    <message>
        <source>Keine Adresse bekannt</source>
        <translation>No address known</translation>
    </message>
    <message>
        <source>Einstellungen der Mesotra Box</source>
        <translation>Settings of the Mesotra box</translation>
    </message>
    <message>
        <source>Netzwerk, Uhrzeit und Sensoren der Box werden auf ihrer eigenen Seite eingestellt. Die Seite öffnet sich im Browser; dieser Computer muss im Netz der Box sein.</source>
        <translation>The box&apos;s network, clock and sensors are set up on its own page. The page opens in the browser; this computer must be on the network of the box.</translation>
    </message>
    <message>
        <source>Im &amp;Browser öffnen</source>
        <translation>Open in &amp;browser</translation>
    </message>
</context>
<context>
    <name>ThresholdFields</name>
    <message>
        <source>Startschwelle</source>
        <translation>Start threshold</translation>
    </message>
    <message>
        <source>Stoppschwelle</source>
        <translation>Stop threshold</translation>
    </message>
</context>
<context>
    <name>TimeAxisBar</name>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Zeitachse dehnen (im Diagramm: Mausrad, + und -)</source>
        <translation>Stretch the time axis (in the plot: mouse wheel, + and -)</translation>
    </message>
    <message>
        <source>Zoom der Zeitachse</source>
        <translation>Zoom of the time axis</translation>
    </message>
    <message>
        <source>Zeitachse verschieben (im Diagramm: Pfeiltasten, Pos1 und Ende).
Ganz rechts folgt die Ansicht den neuesten Werten.</source>
        <translation>Move the time axis (in the plot: arrow keys, Home and End).
At the far right the view follows the newest values.</translation>
    </message>
    <message>
        <source>Zeitachse verschieben</source>
        <translation>Move the time axis</translation>
    </message>
    <message>
        <source>Raster</source>
        <translation>Grid</translation>
    </message>
    <message>
        <source>auto</source>
        <translation>auto</translation>
    </message>
    <message>
        <source>Abstand der senkrechten Rasterlinien automatisch wählen</source>
        <translation>Choose the spacing of the vertical grid lines automatically</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>Abstand der senkrechten Rasterlinien</source>
        <translation>Spacing of the vertical grid lines</translation>
    </message>
    <message>
        <source>Raster der Zeitachse</source>
        <translation>Grid of the time axis</translation>
    </message>
</context>
<context>
    <name>TransferBar</name>
    <message>
        <source>%1 von %2</source>
        <translation>%1 of %2</translation>
    </message>
    <message>
        <source>Fortschritt der Übertragung</source>
        <translation>Progress of the transfer</translation>
    </message>
</context>
<context>
    <name>TransferDialogs</name>
    <message>
        <source>Problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>Der Ordner %1 kann nicht angelegt werden.</source>
        <translation>The folder %1 cannot be created.</translation>
    </message>
    <message>
        <source>Noch 1 weiterer Tag ist ausgewählt.</source>
        <translation>1 more day is selected.</translation>
    </message>
    <message>
        <source>Noch %1 weitere Tage sind ausgewählt.</source>
        <translation>%1 more days are selected.</translation>
    </message>
    <message>
        <source>Weitere Tage holen</source>
        <translation>Fetch the other days</translation>
    </message>
    <message>
        <source>Weitere Tage auslassen</source>
        <translation>Skip the other days</translation>
    </message>
    <message>
        <source>Auch diese Tage konnten nicht geholt werden:</source>
        <translation>These days could not be fetched either:</translation>
    </message>
</context>
<context>
    <name>TrendChart</name>
    <message>
        <source>Keine Werte</source>
        <translation>No values</translation>
    </message>
    <message>
        <source>Obere Grenze %1</source>
        <translation>Upper limit %1</translation>
    </message>
    <message>
        <source>Untere Grenze %1</source>
        <translation>Lower limit %1</translation>
    </message>
</context>
<context>
    <name>UndoActions</name>
    <message>
        <source>%1 rückgängig machen</source>
        <translation>Undo %1</translation>
    </message>
    <message>
        <source>Rückgängig</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>%1 wiederholen</source>
        <translation>Redo %1</translation>
    </message>
    <message>
        <source>Wiederholen</source>
        <translation>Redo</translation>
    </message>
    <message>
        <source>Nimmt den letzten Schritt zurück</source>
        <translation>Takes the last step back</translation>
    </message>
    <message>
        <source>Macht den zuletzt zurückgenommenen Schritt noch einmal</source>
        <translation>Does the step that was taken back last again</translation>
    </message>
</context>
<context>
    <name>UndoControl</name>
    <message>
        <source>Rückgängig gemacht: %1</source>
        <translation>Undone: %1</translation>
    </message>
    <message>
        <source>Wiederholt: %1</source>
        <translation>Redone: %1</translation>
    </message>
    <message>
        <source>Die Abtastrate lässt sich nicht ändern, solange eine Aufzeichnung läuft.</source>
        <translation>The sampling period cannot be changed while a recording is running.</translation>
    </message>
</context>
<context>
    <name>UpdateDialog</name>
    <message>
        <source>Firmware auswählen</source>
        <translation>Choose firmware</translation>
    </message>
    <message>
        <source>Mesotra Firmware (*.tgz)</source>
        <translation>Mesotra firmware (*.tgz)</translation>
    </message>
    <message>
        <source>Firmware wird hochgeladen...</source>
        <translation>Uploading firmware...</translation>
    </message>
    <message>
        <source>Fehler beim Hochladen!</source>
        <translation>Upload failed!</translation>
    </message>
    <message>
        <source>Hochladen erfolgreich.</source>
        <translation>Upload successful.</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Connecting...</translation>
    </message>
    <message>
        <source>NO CONNECTION!</source>
        <translation>NO CONNECTION!</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Reboot Kommando gesendet.</source>
        <translation>Reboot command sent.</translation>
    </message>
    <message>
        <source>Fehler beim Reboot!</source>
        <translation>Reboot failed!</translation>
    </message>
    <message>
        <source>Firmware Update</source>
        <translation>Firmware update</translation>
    </message>
    <message>
        <source>Bitte Firmware-Datei auswählen (*.tgz) und hochladen. Danach Mesotra Box neu starten.</source>
        <translation>Please choose a firmware file (*.tgz) and upload it. Then restart the Mesotra box.</translation>
    </message>
    <message>
        <source>Firmware Datei auswählen...</source>
        <translation>Choose firmware file...</translation>
    </message>
    <message>
        <source>Firmware hochladen</source>
        <translation>Upload firmware</translation>
    </message>
    <message>
        <source>Mesotra Neustart</source>
        <translation>Restart Mesotra</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>ValuesTable</name>
    <message>
        <source>Werte der Schüsse</source>
        <translation>Values of the shots</translation>
    </message>
</context>
<context>
    <name>ViewActions</name>
    <message>
        <source>&amp;Neues Projekt</source>
        <translation>&amp;New project</translation>
    </message>
    <message>
        <source>Neues Projekt anlegen</source>
        <translation>Create a new project</translation>
    </message>
    <message>
        <source>Beginnt ein leeres Projekt</source>
        <translation>Starts an empty project</translation>
    </message>
    <message>
        <source>Projekt &amp;öffnen...</source>
        <translation>&amp;Open project...</translation>
    </message>
    <message>
        <source>Öffnet eine Projektdatei</source>
        <translation>Opens a project file</translation>
    </message>
    <message>
        <source>Projekt &amp;speichern</source>
        <translation>&amp;Save project</translation>
    </message>
    <message>
        <source>Speichert das Projekt in seiner Datei</source>
        <translation>Saves the project to its file</translation>
    </message>
    <message>
        <source>Projekt speichern &amp;unter...</source>
        <translation>Save project &amp;as...</translation>
    </message>
    <message>
        <source>Speichert das Projekt in einer neuen Datei</source>
        <translation>Saves the project to a new file</translation>
    </message>
    <message>
        <source>BlackBox Daten Öffnen</source>
        <translation>Open BlackBox data</translation>
    </message>
    <message>
        <source>Übernimmt Aufzeichnungen der Box in das Projekt</source>
        <translation>Adds what the box has logged to the project</translation>
    </message>
    <message>
        <source>CSV speichern...</source>
        <translation>Save CSV...</translation>
    </message>
    <message>
        <source>Save data as CSV file</source>
        <translation>Save data as CSV file</translation>
    </message>
    <message>
        <source>Schreibt alle Messungen als Tabelle in eine Datei</source>
        <translation>Writes all measurements to a file as a table</translation>
    </message>
    <message>
        <source>Oszilloskop speichern...</source>
        <translation>Save oscilloscope...</translation>
    </message>
    <message>
        <source>Save oscilloscope as a graphics file</source>
        <translation>Save oscilloscope as a graphics file</translation>
    </message>
    <message>
        <source>Speichert die erste Zeile des Oszilloskops als Bild</source>
        <translation>Saves the first row of the oscilloscope as a picture</translation>
    </message>
    <message>
        <source>Terminal speichern...</source>
        <translation>Save terminal...</translation>
    </message>
    <message>
        <source>Schreibt den Inhalt des Terminals in eine Datei</source>
        <translation>Writes the contents of the terminal to a file</translation>
    </message>
    <message>
        <source>Verbinden</source>
        <translation>Connect</translation>
    </message>
    <message>
        <source>Mit Mesotra verbinden.</source>
        <translation>Connect to Mesotra.</translation>
    </message>
    <message>
        <source>Verbindet mit der Mesotra Box</source>
        <translation>Connects to the Mesotra box</translation>
    </message>
    <message>
        <source>Trennen</source>
        <translation>Disconnect</translation>
    </message>
    <message>
        <source>Mesotra Verbindung trennen.</source>
        <translation>Disconnect from Mesotra.</translation>
    </message>
    <message>
        <source>Trennt die Verbindung zur Box</source>
        <translation>Disconnects from the box</translation>
    </message>
    <message>
        <source>Kalibrieren</source>
        <translation>Calibrate</translation>
    </message>
    <message>
        <source>Setzt die aktuellen Werte aller Sensoren auf null</source>
        <translation>Sets the current values of all sensors to zero</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Startet oder beendet eine Aufzeichnung</source>
        <translation>Starts or stops a recording</translation>
    </message>
    <message>
        <source>&amp;Firmware Update...</source>
        <translation>&amp;Firmware update...</translation>
    </message>
    <message>
        <source>Überträgt eine neue Firmware auf die Box</source>
        <translation>Transfers new firmware to the box</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Öffnet das Menü</source>
        <translation>Opens the menu</translation>
    </message>
    <message>
        <source>Über Ventaro...</source>
        <translation>About Ventaro...</translation>
    </message>
    <message>
        <source>Versionen von Programm und Box</source>
        <translation>Versions of the program and the box</translation>
    </message>
    <message>
        <source>Ventaro beenden</source>
        <translation>Quit Ventaro</translation>
    </message>
    <message>
        <source>Beendet das Programm</source>
        <translation>Quits the program</translation>
    </message>
    <message>
        <source>German</source>
        <translation>German</translation>
    </message>
    <message>
        <source>Zeigt die Texte auf Deutsch</source>
        <translation>Shows the texts in German</translation>
    </message>
    <message>
        <source>English</source>
        <translation>English</translation>
    </message>
    <message>
        <source>Zeigt die Texte auf Englisch</source>
        <translation>Shows the texts in English</translation>
    </message>
    <message>
        <source>&amp;Trennen</source>
        <translation>&amp;Disconnect</translation>
    </message>
    <message>
        <source>&amp;Verbinden</source>
        <translation>&amp;Connect</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Stop</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Start</translation>
    </message>
    <message>
        <source>Aufzeichnung beenden</source>
        <translation>Stop recording</translation>
    </message>
    <message>
        <source>Aufzeichnung starten</source>
        <translation>Start recording</translation>
    </message>
</context>
<context>
    <name>YCorrectionBox</name>
    <message>
        <source>y Korr.</source>
        <translation>y corr.</translation>
    </message>
    <message>
        <source>Jede Kurve so verschieben, dass sie zu dieser Zeit durch null geht</source>
        <translation>Shift every curve so that it passes through zero at this time</translation>
    </message>
    <message>
        <source>y Korrektur</source>
        <translation>y correction</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>Zeit, zu der jede Kurve durch null geht</source>
        <translation>Time at which every curve passes through zero</translation>
    </message>
    <message>
        <source>Zeit der y Korrektur</source>
        <translation>Time of the y correction</translation>
    </message>
</context>
</TS>
