<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>ChangeWords</name>
    <message>
        <source>%1 is now %2</source>
        <translation>„%1“ ist jetzt „%2“</translation>
    </message>
    <message>
        <source>%1 is now %2 (was %3)</source>
        <translation>„%1“ ist jetzt „%2“ (bisher „%3“)</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <translation>%1; %2</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; would be printed in place of &quot;%3&quot;.</source>
        <translation>%1: „%2“ würde anstelle von „%3“ gedruckt.</translation>
    </message>
    <message>
        <source>%1 is gone (was %2)</source>
        <translation>„%1“ gibt es nicht mehr (bisher „%2“)</translation>
    </message>
</context>
<context>
    <name>CheckCommand</name>
    <message>
        <source>The plug-in %1 cannot check a PPD.</source>
        <translation>Das Plug-in %1 kann keine PPD-Datei prüfen.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Standard input, -, may be given only once.</source>
        <translation>Die Standardeingabe, -, darf nur einmal angegeben werden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the name of a queue.</source>
        <translation>„%1“ ist kein Name einer Warteschlange.</translation>
    </message>
    <message>
        <source>-o needs KEY=VALUE, not &quot;%1&quot;.</source>
        <translation>-o erwartet KEY=VALUE, nicht „%1“.</translation>
    </message>
    <message>
        <source>%1 needs a value.</source>
        <translation>%1 braucht einen Wert.</translation>
    </message>
    <message>
        <source>%1 may be given only once.</source>
        <translation>%1 darf nur einmal angegeben werden.</translation>
    </message>
    <message>
        <source>There is no option %1.</source>
        <translation>Die Option %1 gibt es nicht.</translation>
    </message>
    <message>
        <source>%1 takes no value.</source>
        <translation>%1 nimmt keinen Wert an.</translation>
    </message>
    <message>
        <source>--replay and --record do not go together.</source>
        <translation>--replay und --record lassen sich nicht zusammen verwenden.</translation>
    </message>
    <message>
        <source>--no-dialog and --screenshot do not go together.</source>
        <translation>--no-dialog und --screenshot lassen sich nicht zusammen verwenden.</translation>
    </message>
    <message>
        <source>--no-dialog needs a document to print.</source>
        <translation>--no-dialog braucht ein Dokument, das gedruckt werden soll.</translation>
    </message>
    <message>
        <source>--yes is for --no-dialog.</source>
        <translation>--yes gilt nur zusammen mit --no-dialog.</translation>
    </message>
    <message>
        <source>The value of %1 is no UTF-8 text.</source>
        <translation>Der Wert von %1 ist kein UTF-8-Text.</translation>
    </message>
    <message>
        <source>--check-ppd only looks at a PPD: it prints and replays nothing.</source>
        <translation>--check-ppd prüft nur eine PPD-Datei: Es wird nichts gedruckt und kein Skript ausgeführt.</translation>
    </message>
    <message>
        <source>--no-dialog and --panel do not go together.</source>
        <translation>--no-dialog und --panel lassen sich nicht zusammen verwenden.</translation>
    </message>
    <message>
        <source>--forget-alerts only has the warnings shown again: it prints nothing.</source>
        <translation>--forget-alerts lässt nur die Warnungen wieder anzeigen; es druckt nichts.</translation>
    </message>
    <message>
        <source>--why needs KEY=VALUE, not &quot;%1&quot;.</source>
        <translation>--why braucht KEY=VALUE, nicht „%1“.</translation>
    </message>
    <message>
        <source>--why only tells of a setting: it prints and replays nothing.</source>
        <translation>--why sagt nur etwas über eine Einstellung: Es druckt nichts und führt kein Skript aus.</translation>
    </message>
    <message>
        <source>--json is for --why.</source>
        <translation>--json gehört zu --why.</translation>
    </message>
    <message>
        <source>--explain is for --no-dialog.</source>
        <translation>--explain gehört zu --no-dialog.</translation>
    </message>
    <message>
        <source>--dry-run is for --no-dialog.</source>
        <translation>--dry-run gehört zu --no-dialog.</translation>
    </message>
    <message>
        <source>--dry-run and --record do not go together.</source>
        <translation>--dry-run und --record lassen sich nicht zusammen verwenden.</translation>
    </message>
    <message>
        <source>--timeout needs a number of seconds from 0 to %1, not &quot;%2&quot;.</source>
        <translation>--timeout braucht eine Anzahl von Sekunden von 0 bis %1, nicht „%2“.</translation>
    </message>
    <message>
        <source>--wait is for --no-dialog, where the job is sent to a printer.</source>
        <translation>--wait gilt für --no-dialog, wenn der Auftrag an einen Drucker geht.</translation>
    </message>
    <message>
        <source>--timeout is for --wait.</source>
        <translation>--timeout gilt für --wait.</translation>
    </message>
    <message>
        <source>--password-fd needs the number of an open file, not &quot;%1&quot;.</source>
        <translation>--password-fd braucht die Nummer einer offenen Datei, nicht „%1“.</translation>
    </message>
    <message>
        <source>--password-fd is for --no-dialog.</source>
        <translation>--password-fd gehört zu --no-dialog.</translation>
    </message>
    <message>
        <source>--each is for --no-dialog, where the jobs are sent to a printer.</source>
        <translation>--each gilt für --no-dialog, wenn die Aufträge an einen Drucker gehen.</translation>
    </message>
</context>
<context>
    <name>Conflicts</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be chosen: the printer does not allow it together with %2.</source>
        <translation>„%1“ kann nicht gewählt werden: Der Drucker lässt es zusammen mit %2 nicht zu.</translation>
    </message>
</context>
<context>
    <name>CustomSizeFields</name>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>inches</source>
        <translation>Zoll</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>&amp;Breite:</translation>
    </message>
    <message>
        <source>Too small: at least %1.</source>
        <translation>Zu klein: mindestens %1.</translation>
    </message>
    <message>
        <source>Too large: at most %1.</source>
        <translation>Zu groß: höchstens %1.</translation>
    </message>
    <message>
        <source>H&amp;eight:</source>
        <translation>Höh&amp;e:</translation>
    </message>
</context>
<context>
    <name>CustomValueFields</name>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
</context>
<context>
    <name>DialogCommand</name>
    <message>
        <source>There is no display for the dialog; --no-dialog prints without it.</source>
        <translation>Für den Dialog ist kein Bildschirm vorhanden; mit --no-dialog wird ohne ihn gedruckt.</translation>
    </message>
</context>
<context>
    <name>DialogAdvice</name>
    <message>
        <source>Why is there no &quot;%1&quot;?</source>
        <translation>Warum gibt es „%1“ nicht?</translation>
    </message>
    <message>
        <source>Everything here can be chosen.</source>
        <translation>Hier kann alles gewählt werden.</translation>
    </message>
    <message>
        <source>Not to be had now: %1
Shift+F1 or the context menu tells why.</source>
        <translation>Zurzeit nicht wählbar: %1
Umschalt+F1 oder das Kontextmenü sagt, warum.</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Finding out…</source>
        <translation>Wird ermittelt …</translation>
    </message>
    <message>
        <source>This cannot be explained.</source>
        <translation>Das lässt sich nicht erklären.</translation>
    </message>
    <message>
        <source>With that: %1</source>
        <translation>Damit: %1</translation>
    </message>
    <message>
        <source>Get It</source>
        <translation>Ermöglichen</translation>
    </message>
    <message>
        <source>All %1</source>
        <translation>Alle %1</translation>
    </message>
</context>
<context>
    <name>DialogWindow</name>
    <message>
        <source>Leave It</source>
        <translation>So lassen</translation>
    </message>
    <message>
        <source>This printer has nothing for the part %1.</source>
        <translation>Dieser Drucker hat nichts für den Teil %1.</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Use It</source>
        <translation>Verwenden</translation>
    </message>
    <message>
        <source>Velkaro Print</source>
        <translation>Velkaro Print</translation>
    </message>
    <message>
        <source>The settings of this panel cannot be shown: a part of the plug-in is missing. Install Velkaro Print again.</source>
        <translation>Die Einstellungen dieses Bereichs können nicht angezeigt werden: Ein Teil des Plug-ins fehlt. Installieren Sie Velkaro Print neu.</translation>
    </message>
    <message>
        <source>The printer cannot take the paper size in Page Setup. Correct it there to print.</source>
        <translation>Der Drucker kann das Papierformat unter „Seite einrichten“ nicht verarbeiten. Ändern Sie es dort, um zu drucken.</translation>
    </message>
    <message>
        <source>Save Job</source>
        <translation>Auftrag speichern</translation>
    </message>
    <message>
        <source>Print jobs (*.velkaro-job);;All files (*)</source>
        <translation>Druckaufträge (*.velkaro-job);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Sending the job to %1…</source>
        <translation>Der Auftrag wird an %1 gesendet …</translation>
    </message>
    <message>
        <source>Job %1 was accepted. %2</source>
        <translation>Auftrag %1 wurde angenommen. %2</translation>
    </message>
    <message>
        <source>Looking for a printer…</source>
        <translation>Drucker wird gesucht …</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>%1 wird gelesen …</translation>
    </message>
    <message>
        <source>Asking %1 about its settings…</source>
        <translation>Die Einstellungen von %1 werden abgefragt …</translation>
    </message>
    <message>
        <source>%1 It prints with the settings of this dialog alone.</source>
        <translation>%1 Gedruckt wird nur mit den Einstellungen dieses Dialogs.</translation>
    </message>
    <message>
        <source>There is no panel %1.</source>
        <translation>Den Bereich %1 gibt es nicht.</translation>
    </message>
    <message>
        <source>Choose a document to print.</source>
        <translation>Wählen Sie ein Dokument zum Drucken aus.</translation>
    </message>
    <message>
        <source>No queue was chosen: the job can be saved to a file.</source>
        <translation>Es ist keine Warteschlange ausgewählt: Der Auftrag kann in einer Datei gespeichert werden.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Save to &amp;File…</source>
        <translation>In &amp;Datei speichern …</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Choose Documents</source>
        <translation>Dokumente auswählen</translation>
    </message>
    <message>
        <source>Documents (%1);;All files (*)</source>
        <translation>Dokumente (%1);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Print Again</source>
        <translation>Erneut drucken</translation>
    </message>
    <message>
        <source>Writing the job to %1…</source>
        <translation>Der Auftrag wird in %1 geschrieben …</translation>
    </message>
    <message>
        <source>Reading the document to its end…</source>
        <translation>Das Dokument wird bis zum Ende gelesen …</translation>
    </message>
    <message>
        <source>%1 exists already. Replace it?</source>
        <translation>%1 ist bereits vorhanden. Ersetzen?</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>The printer %1 is no longer on the print server. Choose another one; the settings of this job stay.</source>
        <translation>Der Drucker %1 ist nicht mehr auf dem Druckserver. Wählen Sie einen anderen; die Einstellungen dieses Auftrags bleiben.</translation>
    </message>
    <message>
        <source>Go on with this job?</source>
        <translation>Mit diesem Auftrag fortfahren?</translation>
    </message>
    <message>
        <source>Go On</source>
        <translation>Fortfahren</translation>
    </message>
    <message>
        <source>A value in Printer Features cannot be used. Correct it there to print.</source>
        <translation>Ein Wert in „Druckerfunktionen“ kann nicht verwendet werden. Berichtigen Sie ihn dort, um zu drucken.</translation>
    </message>
    <message>
        <source>Choose the printer for this saved job.</source>
        <translation>Wählen Sie den Drucker für diesen gespeicherten Auftrag.</translation>
    </message>
    <message>
        <source>This job is printed with the settings that it was saved with.</source>
        <translation>Dieser Auftrag wird mit den Einstellungen gedruckt, mit denen er gespeichert wurde.</translation>
    </message>
    <message>
        <source>This job sets %1, which Velkaro Print does not write. Print it all the same?</source>
        <translation>Dieser Auftrag setzt %1, was Velkaro Print nicht schreibt. Trotzdem drucken?</translation>
    </message>
    <message>
        <source>Saved Job</source>
        <translation>Gespeicherter Auftrag</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Dokument</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Undone.</source>
        <translation>Rückgängig gemacht.</translation>
    </message>
    <message>
        <source>Done again.</source>
        <translation>Wiederhergestellt.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Trust It</source>
        <translation>Vertrauen</translation>
    </message>
    <message>
        <source>Print job %1 all the same?</source>
        <translation>Auftrag %1 trotzdem drucken?</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>Auftrag abbrechen</translation>
    </message>
    <message>
        <source>Job %1 was cancelled.</source>
        <translation>Auftrag %1 wurde abgebrochen.</translation>
    </message>
    <message>
        <source>What is shown are the former settings.</source>
        <translation>Angezeigt werden noch die bisherigen Einstellungen.</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Neu laden</translation>
    </message>
    <message>
        <source>Your settings are as they were.</source>
        <translation>Ihre Einstellungen sind unverändert.</translation>
    </message>
    <message>
        <source>Look at the settings before you print.</source>
        <translation>Prüfen Sie die Einstellungen, bevor Sie drucken.</translation>
    </message>
</context>
<context>
    <name>DialogTabs</name>
    <message>
        <source>All Parts</source>
        <translation>Alle Teile</translation>
    </message>
    <message>
        <source>Page Setup</source>
        <translation>Seite einrichten</translation>
    </message>
    <message>
        <source>Printer Features</source>
        <translation>Druckerfunktionen</translation>
    </message>
    <message>
        <source>Layout &amp; Job</source>
        <translation>Layout &amp; Auftrag</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Zusammenfassung</translation>
    </message>
    <message>
        <source>Supplies</source>
        <translation>Verbrauchsmaterial</translation>
    </message>
</context>
<context>
    <name>Document</name>
    <message>
        <source>The document %1 has become shorter or longer since it was opened.</source>
        <translation>Das Dokument %1 ist seit dem Öffnen kürzer oder länger geworden.</translation>
    </message>
    <message>
        <source>The document %1 cannot be read to its end.</source>
        <translation>Das Dokument %1 kann nicht bis zum Ende gelesen werden.</translation>
    </message>
</context>
<context>
    <name>DocumentFile</name>
    <message>
        <source>The document %1 does not exist.</source>
        <translation>Das Dokument %1 ist nicht vorhanden.</translation>
    </message>
    <message>
        <source>%1 is a folder, not a document.</source>
        <translation>%1 ist ein Ordner, kein Dokument.</translation>
    </message>
    <message>
        <source>The document %1 is empty.</source>
        <translation>Das Dokument %1 ist leer.</translation>
    </message>
    <message>
        <source>The document %1 cannot be read: %2.</source>
        <translation>Das Dokument %1 kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>%1 is a named pipe, not a document.</source>
        <translation>%1 ist eine benannte Pipe, kein Dokument.</translation>
    </message>
    <message>
        <source>%1 is a socket, not a document.</source>
        <translation>%1 ist ein Socket, kein Dokument.</translation>
    </message>
    <message>
        <source>%1 is a device, not a document.</source>
        <translation>%1 ist ein Gerät, kein Dokument.</translation>
    </message>
    <message>
        <source>Standard input</source>
        <translation>Standardeingabe</translation>
    </message>
</context>
<context>
    <name>HoldField</name>
    <message>
        <source>At a time of day</source>
        <translation>Zu einer Uhrzeit</translation>
    </message>
    <message>
        <source>Time of day</source>
        <translation>Uhrzeit</translation>
    </message>
</context>
<context>
    <name>Explanation</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>It can be had with: %1</source>
        <translation>Möglich wird es mit: %1</translation>
    </message>
</context>
<context>
    <name>FeaturePicks</name>
    <message>
        <source>&quot;%1&quot; needs at least one choice.</source>
        <translation>„%1“ braucht mindestens eine Auswahl.</translation>
    </message>
    <message>
        <source>The printer does not take &quot;%1: %2&quot;.</source>
        <translation>Der Drucker nimmt „%1: %2“ nicht an.</translation>
    </message>
</context>
<context>
    <name>FeatureTexts</name>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1 is a number.</source>
        <translation>%1 muss eine Zahl sein.</translation>
    </message>
    <message>
        <source>%1 is at least %2.</source>
        <translation>%1 muss mindestens %2 sein.</translation>
    </message>
    <message>
        <source>%1 is at most %2.</source>
        <translation>%1 darf höchstens %2 sein.</translation>
    </message>
    <message>
        <source>%1 has at least %2 characters.</source>
        <translation>%1 braucht mindestens %2 Zeichen.</translation>
    </message>
    <message>
        <source>%1 has at most %2 characters.</source>
        <translation>%1 darf höchstens %2 Zeichen haben.</translation>
    </message>
    <message>
        <source>%1 consists of digits.</source>
        <translation>%1 darf nur aus Ziffern bestehen.</translation>
    </message>
</context>
<context>
    <name>FeaturesPane</name>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>Installed in the Printer</source>
        <translation>Ausstattung des Druckers</translation>
    </message>
    <message>
        <source>What the printer has been fitted with. It is set when the printer is set up, for everybody, and can only be looked at here.</source>
        <translation>Womit der Drucker ausgestattet ist. Das wird beim Einrichten des Druckers für alle festgelegt und kann hier nur angesehen werden.</translation>
    </message>
</context>
<context>
    <name>ForgetCommand</name>
    <message>
        <source>%1 is no plug-in.</source>
        <translation>%1 ist kein Plug-in.</translation>
    </message>
    <message>
        <source>The user&apos;s settings cannot be written.</source>
        <translation>Die Einstellungen des Benutzers können nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Shown again: %1</source>
        <translation>Wird wieder angezeigt: %1</translation>
    </message>
</context>
<context>
    <name>HiddenAlertsDialog</name>
    <message>
        <source>Hidden Warnings</source>
        <translation>Ausgeblendete Warnungen</translation>
    </message>
    <message>
        <source>You have asked not to be shown these warnings again. Select those to be shown.</source>
        <translation>Diese Warnungen sollten nicht mehr angezeigt werden. Wählen Sie aus, welche wieder angezeigt werden sollen.</translation>
    </message>
    <message>
        <source>Show Again</source>
        <translation>Wieder anzeigen</translation>
    </message>
    <message>
        <source>Show All Again</source>
        <translation>Alle wieder anzeigen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>HostHelp</name>
    <message>
        <source>Page Setup holds the paper, its orientation, two-sided printing and what else the printer leaves to this dialog. A size of your own is entered below the paper; a word beside the field says when the printer cannot take it.</source>
        <translation>„Seite einrichten“ enthält das Papier, seine Ausrichtung, den beidseitigen Druck und was der Drucker sonst diesem Dialog überlässt. Ein eigenes Format wird unter dem Papier eingegeben; neben dem Feld steht, wenn der Drucker es nicht verarbeiten kann.</translation>
    </message>
    <message>
        <source>When the printer does not allow two settings together, the second one is not made, and a line below the tabs names both.</source>
        <translation>Lässt der Drucker zwei Einstellungen nicht zusammen zu, wird die zweite nicht übernommen, und eine Zeile unter den Registern nennt beide.</translation>
    </message>
    <message>
        <source>Summary lists everything that will be printed with. &quot;Save to File&quot; keeps the job with its documents; open it here later, as a document, to print it.</source>
        <translation>„Zusammenfassung“ zeigt alles, womit gedruckt wird. „In Datei speichern“ bewahrt den Auftrag mit seinen Dokumenten auf; öffnen Sie ihn später hier als Dokument, um ihn zu drucken.</translation>
    </message>
    <message>
        <source>Print Help</source>
        <translation>Hilfe zum Drucken</translation>
    </message>
    <message>
        <source>&quot;Scaling&quot; says how the pages of the document come to the size of the paper in the printer. What comes of each choice stands below it.</source>
        <translation>„Skalierung“ sagt, wie die Seiten des Dokuments auf die Größe des Papiers im Drucker kommen. Was die Auswahl bewirkt, steht darunter.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Ctrl+Z takes back what you have set, step by step, and Ctrl+Shift+Z does it again. Shift+F1 and the context menu of a setting tell why something cannot be chosen there, and how it can.</source>
        <translation>Strg+Z nimmt Ihre Einstellungen Schritt für Schritt zurück, Strg+Umschalt+Z stellt sie wieder her. Umschalt+F1 und das Kontextmenü einer Einstellung sagen, warum etwas dort nicht gewählt werden kann und wie es möglich wird.</translation>
    </message>
</context>
<context>
    <name>JobAuthentication</name>
    <message>
        <source>Job %1 on %2 stays held: nobody has said who prints.</source>
        <translation>Auftrag %1 auf %2 bleibt zurückgehalten: Niemand hat gesagt, wer druckt.</translation>
    </message>
    <message>
        <source>The printer behind %1 wants to know who prints, and nobody has said it.</source>
        <translation>Der Drucker hinter %1 will wissen, wer druckt, und niemand hat es gesagt.</translation>
    </message>
</context>
<context>
    <name>JobDispatch</name>
    <message>
        <source>Job %1 on %2 was cancelled; --yes prints it all the same.</source>
        <translation>Auftrag %1 auf %2 wurde abgebrochen; mit --yes wird er trotzdem gedruckt.</translation>
    </message>
    <message>
        <source>Not sent: %1</source>
        <translation>Nicht gesendet: %1</translation>
    </message>
</context>
<context>
    <name>JobDoubts</name>
    <message>
        <source>A booklet has two pages on a side, not %1.</source>
        <translation>Eine Broschüre hat zwei Seiten auf jeder Blattseite, nicht %1.</translation>
    </message>
    <message>
        <source>A booklet needs both sides of the paper; this job is printed on one.</source>
        <translation>Eine Broschüre braucht beide Seiten des Papiers; dieser Auftrag wird auf einer gedruckt.</translation>
    </message>
    <message>
        <source>The printer cannot print on both sides of this paper: %1.</source>
        <translation>Der Drucker kann dieses Papier nicht beidseitig bedrucken: %1.</translation>
    </message>
    <message>
        <source>For %1 there is &quot;%2&quot;.</source>
        <translation>Für %1 gibt es „%2“.</translation>
    </message>
    <message>
        <source>With several pages on a sheet, &quot;Pages&quot; and &quot;Even and Odd&quot; count the printed sides.</source>
        <translation>Bei mehreren Seiten pro Blatt zählen „Seiten“ und „Gerade und ungerade“ die bedruckten Blattseiten.</translation>
    </message>
</context>
<context>
    <name>JobFile</name>
    <message>
        <source>The saved job %1 is damaged, or another version of Velkaro Print has written it.</source>
        <translation>Der gespeicherte Auftrag %1 ist beschädigt oder wurde von einer anderen Version von Velkaro Print geschrieben.</translation>
    </message>
    <message>
        <source>%1 is no saved job.</source>
        <translation>%1 ist kein gespeicherter Auftrag.</translation>
    </message>
    <message>
        <source>The saved job %1 is damaged.</source>
        <translation>Der gespeicherte Auftrag %1 ist beschädigt.</translation>
    </message>
    <message>
        <source>The saved job %1 is cut short: its end is missing.</source>
        <translation>Der gespeicherte Auftrag %1 ist unvollständig: Sein Ende fehlt.</translation>
    </message>
    <message>
        <source>The saved job %1 is damaged: its header has no end.</source>
        <translation>Der gespeicherte Auftrag %1 ist beschädigt: Sein Kopfteil hat kein Ende.</translation>
    </message>
    <message>
        <source>The saved job %1 has too many documents: %2 are the most.</source>
        <translation>Der gespeicherte Auftrag %1 hat zu viele Dokumente: Höchstens %2 sind möglich.</translation>
    </message>
    <message>
        <source>The saved job %1 has too many settings: %2 are the most.</source>
        <translation>Der gespeicherte Auftrag %1 hat zu viele Einstellungen: Höchstens %2 sind möglich.</translation>
    </message>
    <message>
        <source>%1 would have too many documents: %2 are the most.</source>
        <translation>%1 hätte zu viele Dokumente: Höchstens %2 sind möglich.</translation>
    </message>
    <message>
        <source>The job was not written.</source>
        <translation>Der Auftrag wurde nicht geschrieben.</translation>
    </message>
</context>
<context>
    <name>JobHeader</name>
    <message>
        <source>C&amp;hoose…</source>
        <translation>Aus&amp;wählen …</translation>
    </message>
    <message>
        <source>All, or 1-3, 5</source>
        <translation>Alle, oder 1-3, 5</translation>
    </message>
    <message>
        <source>Document:</source>
        <translation>Dokument:</translation>
    </message>
    <message>
        <source>Pri&amp;nter:</source>
        <translation>Druc&amp;ker:</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>E&amp;xemplare:</translation>
    </message>
    <message>
        <source>Pa&amp;ges:</source>
        <translation>Se&amp;iten:</translation>
    </message>
    <message>
        <source>No document</source>
        <translation>Kein Dokument</translation>
    </message>
    <message>
        <source>Pages look like this: 1-3, 5</source>
        <translation>Seiten werden so angegeben: 1-3, 5</translation>
    </message>
    <message>
        <source>Preset:</source>
        <translation>Voreinstellung:</translation>
    </message>
    <message>
        <source>%1 is beyond page %2</source>
        <translation>%1 liegt hinter Seite %2</translation>
    </message>
    <message>
        <source>%1 in all</source>
        <translation>insgesamt %1</translation>
    </message>
    <message>
        <source>How many there are is not known</source>
        <translation>Wie viele es gibt, ist nicht bekannt</translation>
    </message>
    <message>
        <source>%1 is beyond side %2</source>
        <translation>%1 liegt hinter Blattseite %2</translation>
    </message>
    <message>
        <source>%1 sides in all</source>
        <translation>insgesamt %1 Blattseiten</translation>
    </message>
</context>
<context>
    <name>JobLayout</name>
    <message>
        <source>Across, from the top left</source>
        <translation>Quer, von links oben</translation>
    </message>
    <message>
        <source>Across, from the top right</source>
        <translation>Quer, von rechts oben</translation>
    </message>
    <message>
        <source>Across, from the bottom left</source>
        <translation>Quer, von links unten</translation>
    </message>
    <message>
        <source>Across, from the bottom right</source>
        <translation>Quer, von rechts unten</translation>
    </message>
    <message>
        <source>Down, from the top left</source>
        <translation>Abwärts, von links oben</translation>
    </message>
    <message>
        <source>Down, from the top right</source>
        <translation>Abwärts, von rechts oben</translation>
    </message>
    <message>
        <source>Up, from the bottom left</source>
        <translation>Aufwärts, von links unten</translation>
    </message>
    <message>
        <source>Up, from the bottom right</source>
        <translation>Aufwärts, von rechts unten</translation>
    </message>
    <message>
        <source>No border</source>
        <translation>Kein Rahmen</translation>
    </message>
    <message>
        <source>Thin line</source>
        <translation>Dünne Linie</translation>
    </message>
    <message>
        <source>Thick line</source>
        <translation>Dicke Linie</translation>
    </message>
    <message>
        <source>Two thin lines</source>
        <translation>Zwei dünne Linien</translation>
    </message>
    <message>
        <source>Two thick lines</source>
        <translation>Zwei dicke Linien</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>Alle Seiten</translation>
    </message>
    <message>
        <source>Odd pages only</source>
        <translation>Nur ungerade Seiten</translation>
    </message>
    <message>
        <source>Even pages only</source>
        <translation>Nur gerade Seiten</translation>
    </message>
    <message>
        <source>First page first</source>
        <translation>Erste Seite zuerst</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>Letzte Seite zuerst</translation>
    </message>
    <message>
        <source>Copy by copy</source>
        <translation>Exemplar für Exemplar</translation>
    </message>
    <message>
        <source>Page by page</source>
        <translation>Seite für Seite</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>When somebody releases it</source>
        <translation>Wenn jemand ihn freigibt</translation>
    </message>
    <message>
        <source>By day (6:00 to 18:00)</source>
        <translation>Tagsüber (6:00 bis 18:00)</translation>
    </message>
    <message>
        <source>In the evening (from 18:00)</source>
        <translation>Abends (ab 18:00)</translation>
    </message>
    <message>
        <source>At night (18:00 to 6:00)</source>
        <translation>Nachts (18:00 bis 6:00)</translation>
    </message>
    <message>
        <source>In the second shift (from 16:00)</source>
        <translation>In der zweiten Schicht (ab 16:00)</translation>
    </message>
    <message>
        <source>In the third shift (from midnight)</source>
        <translation>In der dritten Schicht (ab Mitternacht)</translation>
    </message>
    <message>
        <source>At the weekend</source>
        <translation>Am Wochenende</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Unclassified</source>
        <translation>Nicht eingestuft</translation>
    </message>
    <message>
        <source>Classified</source>
        <translation>Eingestuft</translation>
    </message>
    <message>
        <source>Confidential</source>
        <translation>Vertraulich</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>Geheim</translation>
    </message>
    <message>
        <source>Top secret</source>
        <translation>Streng geheim</translation>
    </message>
    <message>
        <source>At %1</source>
        <translation>Um %1</translation>
    </message>
    <message>
        <source>%1 before the job</source>
        <translation>%1 vor dem Auftrag</translation>
    </message>
    <message>
        <source>%1 after the job</source>
        <translation>%1 nach dem Auftrag</translation>
    </message>
    <message>
        <source>%1 before the job, %2 after it</source>
        <translation>%1 vor dem Auftrag, %2 danach</translation>
    </message>
    <message>
        <source>Pages per Sheet</source>
        <translation>Seiten pro Blatt</translation>
    </message>
    <message>
        <source>Order on the Sheet</source>
        <translation>Anordnung auf dem Blatt</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Rahmen</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Broschüre</translation>
    </message>
    <message>
        <source>Even and Odd</source>
        <translation>Gerade und ungerade</translation>
    </message>
    <message>
        <source>Page Order</source>
        <translation>Seitenfolge</translation>
    </message>
    <message>
        <source>Several Copies</source>
        <translation>Mehrere Exemplare</translation>
    </message>
    <message>
        <source>When to Print</source>
        <translation>Druckzeit</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Priorität</translation>
    </message>
    <message>
        <source>Cover Pages</source>
        <translation>Deckblätter</translation>
    </message>
    <message>
        <source>Notification</source>
        <translation>Benachrichtigung</translation>
    </message>
</context>
<context>
    <name>JobOptions</name>
    <message>
        <source>The setting %1 cannot be sent: &quot;%2&quot; is no value that a print server may be given.</source>
        <translation>Die Einstellung %1 kann nicht gesendet werden: „%2“ ist kein Wert, der einem Druckserver übergeben werden darf.</translation>
    </message>
    <message>
        <source>The setting &quot;%1&quot; cannot be sent: a print server may be given no setting of that name.</source>
        <translation>Die Einstellung „%1“ kann nicht gesendet werden: Einem Druckserver darf keine Einstellung dieses Namens übergeben werden.</translation>
    </message>
</context>
<context>
    <name>JobReadBack</name>
    <message>
        <source>The printer is stopped; job %1 waits (%2).</source>
        <translation>Der Drucker ist angehalten; Auftrag %1 wartet (%2).</translation>
    </message>
    <message>
        <source>The server holds job %1 (%2).</source>
        <translation>Der Server hält Auftrag %1 zurück (%2).</translation>
    </message>
    <message>
        <source>The server dropped the setting %1=%2.</source>
        <translation>Der Server hat die Einstellung %1=%2 verworfen.</translation>
    </message>
    <message>
        <source>The server changed the setting %1 from %2 to %3.</source>
        <translation>Der Server hat die Einstellung %1 von %2 in %3 geändert.</translation>
    </message>
    <message>
        <source>The server has cancelled job %1 (%2).</source>
        <translation>Der Server hat Auftrag %1 abgebrochen (%2).</translation>
    </message>
    <message>
        <source>The server has aborted job %1 (%2).</source>
        <translation>Der Server hat Auftrag %1 vorzeitig beendet (%2).</translation>
    </message>
    <message>
        <source>The server has ended job %1 with errors (%2).</source>
        <translation>Der Server hat Auftrag %1 mit Fehlern beendet (%2).</translation>
    </message>
    <message>
        <source>Whether the server keeps all settings of job %1 is not known: its account of the job cannot be read.</source>
        <translation>Ob der Server alle Einstellungen von Auftrag %1 übernommen hat, ist nicht bekannt: Seine Angaben zum Auftrag sind nicht lesbar.</translation>
    </message>
    <message>
        <source>The server set %1 to %2, where %3 was shown.</source>
        <translation>Der Server hat %1 auf %2 gesetzt; angezeigt wurde %3.</translation>
    </message>
    <message>
        <source>The server set %1 to %2, which was not shown.</source>
        <translation>Der Server hat %1 auf %2 gesetzt, was nicht angezeigt wurde.</translation>
    </message>
</context>
<context>
    <name>JobSentence</name>
    <message>
        <source>Job %1 on %2 is waiting for its turn.</source>
        <translation>Auftrag %1 auf %2 wartet, bis er an der Reihe ist.</translation>
    </message>
    <message>
        <source>Job %1 on %2 is held.</source>
        <translation>Auftrag %1 auf %2 wird zurückgehalten.</translation>
    </message>
    <message>
        <source>Job %1 on %2 is held: %3.</source>
        <translation>Auftrag %1 auf %2 wird zurückgehalten: %3.</translation>
    </message>
    <message>
        <source>Job %1 on %2 is held: it will be tried again later.</source>
        <translation>Auftrag %1 auf %2 wird zurückgehalten und später noch einmal versucht.</translation>
    </message>
    <message>
        <source>Job %1 on %2 is held and will be tried again later: %3.</source>
        <translation>Auftrag %1 auf %2 wird zurückgehalten und später noch einmal versucht: %3.</translation>
    </message>
    <message>
        <source>Job %1 on %2 is held until its printer is given a user name and a password.</source>
        <translation>Auftrag %1 auf %2 wird zurückgehalten, bis der Drucker einen Benutzernamen und ein Passwort bekommt.</translation>
    </message>
    <message>
        <source>Job %1 on %2 is printing.</source>
        <translation>Auftrag %1 auf %2 wird gedruckt.</translation>
    </message>
    <message>
        <source>Job %1 on %2: the printer needs somebody.</source>
        <translation>Auftrag %1 auf %2: Der Drucker braucht jemanden.</translation>
    </message>
    <message>
        <source>Job %1 on %2: the printer needs somebody: %3.</source>
        <translation>Auftrag %1 auf %2: Der Drucker braucht jemanden: %3.</translation>
    </message>
    <message>
        <source>Job %1 on %2 is waiting: the printer is stopped.</source>
        <translation>Auftrag %1 auf %2 wartet: Der Drucker ist angehalten.</translation>
    </message>
    <message>
        <source>Job %1 on %2 is waiting: the printer is stopped: %3.</source>
        <translation>Auftrag %1 auf %2 wartet: Der Drucker ist angehalten: %3.</translation>
    </message>
    <message>
        <source>Job %1 on %2 is printed.</source>
        <translation>Auftrag %1 auf %2 ist gedruckt.</translation>
    </message>
    <message>
        <source>Job %1 on %2 has ended with errors.</source>
        <translation>Auftrag %1 auf %2 ist mit Fehlern zu Ende gegangen.</translation>
    </message>
    <message>
        <source>Job %1 on %2 has ended with errors: %3.</source>
        <translation>Auftrag %1 auf %2 ist mit Fehlern zu Ende gegangen: %3.</translation>
    </message>
    <message>
        <source>Job %1 on %2 was cancelled.</source>
        <translation>Auftrag %1 auf %2 wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The server has given job %1 on %2 up.</source>
        <translation>Der Server hat Auftrag %1 auf %2 aufgegeben.</translation>
    </message>
    <message>
        <source>The server has given job %1 on %2 up: %3.</source>
        <translation>Der Server hat Auftrag %1 auf %2 aufgegeben: %3.</translation>
    </message>
    <message>
        <source>The server has no record of job %1 on %2 any more: whether it was printed is not known.</source>
        <translation>Der Server weiß nichts mehr von Auftrag %1 auf %2: Ob er gedruckt wurde, ist nicht bekannt.</translation>
    </message>
    <message>
        <source>Job %1 on %2 is held until somebody releases it.</source>
        <translation>Auftrag %1 auf %2 wird zurückgehalten, bis ihn jemand freigibt.</translation>
    </message>
    <message>
        <source>Job %1 on %2 is held. %3: %4.</source>
        <translation>Auftrag %1 auf %2 wird zurückgehalten. %3: %4.</translation>
    </message>
    <message>
        <source>Job %1 on %2 is held until %3.</source>
        <translation>Auftrag %1 auf %2 wird bis %3 zurückgehalten.</translation>
    </message>
    <message>
        <source>Job %1 on %2 is printing, %3 sheets so far.</source>
        <translation>Auftrag %1 auf %2 wird gedruckt, Blätter bisher: %3.</translation>
    </message>
    <message>
        <source>Job %1 on %2 is printing page %3 of %4.</source>
        <translation>Auftrag %1 auf %2: Seite %3 von %4 wird gedruckt.</translation>
    </message>
</context>
<context>
    <name>JobSettlement</name>
    <message>
        <source>%1 Job %2 on %3 could not be cancelled at %4 and may be printed.</source>
        <translation>%1 Auftrag %2 auf %3 konnte auf %4 nicht abgebrochen werden und wird möglicherweise gedruckt.</translation>
    </message>
    <message>
        <source>The print server %1 cancelled job %2 on %3.</source>
        <translation>Der Druckserver %1 hat Auftrag %2 auf %3 abgebrochen.</translation>
    </message>
    <message>
        <source>The print server %1 aborted job %2 on %3.</source>
        <translation>Der Druckserver %1 hat Auftrag %2 auf %3 vorzeitig beendet.</translation>
    </message>
    <message>
        <source>The print server %1 did not say whether it took the job: it may have been printed as job %2 on %3.</source>
        <translation>Der Druckserver %1 hat nicht mitgeteilt, ob er den Auftrag angenommen hat: Er wurde möglicherweise als Auftrag %2 auf %3 gedruckt.</translation>
    </message>
    <message>
        <source>The server holds job %1, which could not be released: %2</source>
        <translation>Der Server hält Auftrag %1 zurück; er konnte nicht freigegeben werden: %2</translation>
    </message>
    <message>
        <source>Job %1 on %2 was cancelled: %3</source>
        <translation>Auftrag %1 auf %2 wurde abgebrochen: %3</translation>
    </message>
    <message>
        <source>Nothing was printed on %1: %2</source>
        <translation>Auf %1 wurde nichts gedruckt: %2</translation>
    </message>
</context>
<context>
    <name>JobSubmission</name>
    <message>
        <source>The queue %1 takes no jobs at present.</source>
        <translation>Die Warteschlange %1 nimmt zurzeit keine Aufträge an.</translation>
    </message>
</context>
<context>
    <name>JobSummary</name>
    <message>
        <source>Page Setup</source>
        <translation>Seite einrichten</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Querformat</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Hochformat</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>By the Printer</source>
        <translation>Durch den Drucker</translation>
    </message>
    <message>
        <source>By the Application</source>
        <translation>Durch die Anwendung</translation>
    </message>
    <message>
        <source>Layout &amp; Job</source>
        <translation>Layout &amp; Auftrag</translation>
    </message>
    <message>
        <source>Also Sent</source>
        <translation>Wird auch gesendet</translation>
    </message>
    <message>
        <source>Printer Features</source>
        <translation>Druckerfunktionen</translation>
    </message>
</context>
<context>
    <name>JobTrial</name>
    <message>
        <source>Job %1 is held on %2 and could not be released: %3</source>
        <translation>Auftrag %1 wird auf %2 zurückgehalten und konnte nicht freigegeben werden: %3</translation>
    </message>
    <message>
        <source>Job %1 is held on %2 and could not be cancelled: %3</source>
        <translation>Auftrag %1 wird auf %2 zurückgehalten und konnte nicht abgebrochen werden: %3</translation>
    </message>
</context>
<context>
    <name>JobWait</name>
    <message>
        <source>Job %1 on %2 was not waited for any longer; it stays where it is.</source>
        <translation>Auf Auftrag %1 auf %2 wurde nicht länger gewartet; er bleibt, wo er ist.</translation>
    </message>
    <message>
        <source>Job %1 on %2 goes on without being waited for.</source>
        <translation>Auftrag %1 auf %2 läuft weiter, ohne dass auf ihn gewartet wird.</translation>
    </message>
</context>
<context>
    <name>JobWindow</name>
    <message>
        <source>Job %1 on %2</source>
        <translation>Auftrag %1 auf %2</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Zurückhalten</translation>
    </message>
    <message>
        <source>Release</source>
        <translation>Freigeben</translation>
    </message>
    <message>
        <source>Print Again</source>
        <translation>Erneut drucken</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>Auftrag abbrechen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Enter Password…</source>
        <translation>Passwort eingeben …</translation>
    </message>
    <message>
        <source>Open Queue</source>
        <translation>Warteschlange öffnen</translation>
    </message>
</context>
<context>
    <name>LayoutPane</name>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>Job Title:</source>
        <translation>Auftragstitel:</translation>
    </message>
    <message>
        <source>Cover page before the job</source>
        <translation>Deckblatt vor dem Auftrag</translation>
    </message>
    <message>
        <source>Cover page after the job</source>
        <translation>Deckblatt nach dem Auftrag</translation>
    </message>
    <message>
        <source>Mail address, or nothing</source>
        <translation>Mailadresse oder nichts</translation>
    </message>
    <message>
        <source>An address looks like this: me@example.com</source>
        <translation>Eine Adresse sieht so aus: ich@example.com</translation>
    </message>
</context>
<context>
    <name>LengthUnit</name>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>%1 in</source>
        <translation>%1 Zoll</translation>
    </message>
</context>
<context>
    <name>LpoptionsFile</name>
    <message>
        <source>The saved settings in %1 cannot be read: %2.</source>
        <translation>Die gespeicherten Einstellungen in %1 können nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>it is no ordinary file</source>
        <translation>es ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>it has more than %1 MB</source>
        <translation>sie hat mehr als %1 MB</translation>
    </message>
    <message>
        <source>Another program is changing %1. Try again.</source>
        <translation>Ein anderes Programm ändert gerade %1. Versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>These are too many settings for one name.</source>
        <translation>Das sind zu viele Einstellungen für einen Namen.</translation>
    </message>
</context>
<context>
    <name>Mnemonics</name>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
</context>
<context>
    <name>NoDialogCommand</name>
    <message>
        <source>No printer was chosen and there is no default one; -d QUEUE names one.</source>
        <translation>Es ist kein Drucker ausgewählt, und es gibt keinen Standarddrucker; -d QUEUE gibt einen an.</translation>
    </message>
    <message>
        <source>Printing was cancelled.</source>
        <translation>Das Drucken wurde abgebrochen.</translation>
    </message>
    <message>
        <source>No queue was named to print to; -d QUEUE names one, --output FILE keeps the job.</source>
        <translation>Es ist keine Warteschlange angegeben; -d QUEUE gibt eine an, --output FILE bewahrt den Auftrag auf.</translation>
    </message>
    <message>
        <source>The job was written to %1.</source>
        <translation>Der Auftrag wurde in %1 geschrieben.</translation>
    </message>
    <message>
        <source>Sending &quot;%1&quot; to %2.</source>
        <translation>„%1“ wird an %2 gesendet.</translation>
    </message>
    <message>
        <source>Document: %1 (%2 bytes)</source>
        <translation>Dokument: %1 (%2 Byte)</translation>
    </message>
    <message>
        <source>Setting: %1=%2</source>
        <translation>Einstellung: %1=%2</translation>
    </message>
    <message>
        <source>%1 would get the job.</source>
        <translation>%1 würde den Auftrag bekommen.</translation>
    </message>
    <message>
        <source>The job would be written to %1.</source>
        <translation>Der Auftrag würde nach %1 geschrieben.</translation>
    </message>
    <message>
        <source>%1 would get %2 jobs.</source>
        <translation>%1 würde %2 Aufträge bekommen.</translation>
    </message>
    <message>
        <source>The printer %1 is stopped: what is sent waits.</source>
        <translation>Der Drucker %1 ist angehalten: Was gesendet wird, wartet.</translation>
    </message>
    <message>
        <source>The printer %1 is stopped: what is sent waits. It says: %2</source>
        <translation>Der Drucker %1 ist angehalten: Was gesendet wird, wartet. Er sagt: %2</translation>
    </message>
</context>
<context>
    <name>OptionRows</name>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>By the P&amp;rinter</source>
        <translation>Durch den D&amp;rucker</translation>
    </message>
    <message>
        <source>By the Appl&amp;ication</source>
        <translation>Durch die &amp;Anwendung</translation>
    </message>
    <message>
        <source>Color Management:</source>
        <translation>Farbverwaltung:</translation>
    </message>
</context>
<context>
    <name>OriginWords</name>
    <message>
        <source>Because you chose %1: %2</source>
        <translation>Weil Sie %1: %2 gewählt haben</translation>
    </message>
    <message>
        <source>Goes with your choices</source>
        <translation>Passend zu Ihrer Auswahl</translation>
    </message>
    <message>
        <source>Saved with the printer</source>
        <translation>Für den Drucker gespeichert</translation>
    </message>
    <message>
        <source>From the preset %1</source>
        <translation>Aus der Voreinstellung %1</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Zuletzt verwendet</translation>
    </message>
    <message>
        <source>From the command line</source>
        <translation>Von der Befehlszeile</translation>
    </message>
    <message>
        <source>Your choice</source>
        <translation>Ihre Auswahl</translation>
    </message>
    <message>
        <source>Goes with the other settings</source>
        <translation>Passend zu den anderen Einstellungen</translation>
    </message>
    <message>
        <source>The printer's default</source>
        <translation>Vorgabe des Druckers</translation>
    </message>
    <message>
        <source>%1: %2 – %3</source>
        <translation>%1: %2 – %3</translation>
    </message>
</context>
<context>
    <name>OutputFile</name>
    <message>
        <source>The file %1 cannot be written: %2.</source>
        <translation>Die Datei %1 kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>nobody reads from it</source>
        <translation>niemand liest daraus</translation>
    </message>
</context>
<context>
    <name>OutputRule</name>
    <message>
        <source>Nothing is written over %1: it is in use for this.</source>
        <translation>%1 wird nicht überschrieben: Die Datei wird gerade hierfür verwendet.</translation>
    </message>
    <message>
        <source>%1 is a folder: it cannot be written.</source>
        <translation>%1 ist ein Ordner und kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The file %1 exists already; --force replaces it.</source>
        <translation>Die Datei %1 ist bereits vorhanden; --force ersetzt sie.</translation>
    </message>
</context>
<context>
    <name>OwnSizeFields</name>
    <message>
        <source>&amp;Keep</source>
        <translation>&amp;Behalten</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>Remo&amp;ve</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Name of this size</source>
        <translation>Name dieses Formats</translation>
    </message>
</context>
<context>
    <name>PathBytes</name>
    <message>
        <source>standard output</source>
        <translation>die Standardausgabe</translation>
    </message>
</context>
<context>
    <name>PPDFile</name>
    <message>
        <source>The PPD file %1 does not exist.</source>
        <translation>Die PPD-Datei %1 ist nicht vorhanden.</translation>
    </message>
    <message>
        <source>%1 is not a PPD file.</source>
        <translation>%1 ist keine PPD-Datei.</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be read.</source>
        <translation>Die PPD-Datei %1 kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The PPD file %1 is too large: it has more than %2 bytes.</source>
        <translation>Die PPD-Datei %1 ist zu groß: Sie hat mehr als %2 Byte.</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be used: it has more than %2 lines.</source>
        <translation>Die PPD-Datei %1 kann nicht verwendet werden: Sie hat mehr als %2 Zeilen.</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be used: it has more than %2 groups of options.</source>
        <translation>Die PPD-Datei %1 kann nicht verwendet werden: Sie hat mehr als %2 Optionsgruppen.</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be used: it has more than %2 options.</source>
        <translation>Die PPD-Datei %1 kann nicht verwendet werden: Sie hat mehr als %2 Optionen.</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be used: an option has more than %2 choices.</source>
        <translation>Die PPD-Datei %1 kann nicht verwendet werden: Eine Option hat mehr als %2 Auswahlmöglichkeiten.</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be used: it has more than %2 papers.</source>
        <translation>Die PPD-Datei %1 kann nicht verwendet werden: Sie hat mehr als %2 Papiere.</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be used: it has more than %2 custom parameters.</source>
        <translation>Die PPD-Datei %1 kann nicht verwendet werden: Sie hat mehr als %2 benutzerdefinierte Parameter.</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be used: it has more than %2 UIConstraints.</source>
        <translation>Die PPD-Datei %1 kann nicht verwendet werden: Sie hat mehr als %2 UIConstraints.</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be used: it has more than %2 cupsUIConstraints.</source>
        <translation>Die PPD-Datei %1 kann nicht verwendet werden: Sie hat mehr als %2 cupsUIConstraints.</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be used: its cupsUIConstraints name more than %2 options.</source>
        <translation>Die PPD-Datei %1 kann nicht verwendet werden: Ihre cupsUIConstraints nennen mehr als %2 Optionen.</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be used: it has more than %2 attributes.</source>
        <translation>Die PPD-Datei %1 kann nicht verwendet werden: Sie hat mehr als %2 Attribute.</translation>
    </message>
    <message>
        <source>The PPD file %1 is damaged: it cannot be unpacked. Get it again.</source>
        <translation>Die PPD-Datei %1 ist beschädigt: Sie lässt sich nicht entpacken. Besorgen Sie die Datei erneut.</translation>
    </message>
    <message>
        <source>%1 is not a PPD file (%2).</source>
        <translation>%1 ist keine PPD-Datei (%2).</translation>
    </message>
    <message>
        <source>%1 is not a usable PPD file (line %2: %3).</source>
        <translation>%1 ist keine brauchbare PPD-Datei (Zeile %2: %3).</translation>
    </message>
    <message>
        <source>The PPD file %1 is incomplete: it ends too early. Get it again.</source>
        <translation>Die PPD-Datei %1 ist unvollständig: Sie endet zu früh. Besorgen Sie die Datei erneut.</translation>
    </message>
</context>
<context>
    <name>PanelVeto</name>
    <message>
        <source>The printer&apos;s settings do not allow this job.</source>
        <translation>Die Einstellungen des Druckers lassen diesen Auftrag nicht zu.</translation>
    </message>
</context>
<context>
    <name>PaperList</name>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Envelopes and Cards</source>
        <translation>Umschläge und Karten</translation>
    </message>
    <message>
        <source>Discs</source>
        <translation>Discs</translation>
    </message>
    <message>
        <source>Used Recently</source>
        <translation>Zuletzt verwendet</translation>
    </message>
    <message>
        <source>Custom Size</source>
        <translation>Eigenes Format</translation>
    </message>
    <message>
        <source>Own Sizes</source>
        <translation>Eigene Formate</translation>
    </message>
</context>
<context>
    <name>PaperRows</name>
    <message>
        <source>P&amp;aper in the Printer:</source>
        <translation>&amp;Papier im Drucker:</translation>
    </message>
    <message>
        <source>&amp;Borderless</source>
        <translation>&amp;Randlos</translation>
    </message>
    <message>
        <source>Document Page:</source>
        <translation>Seite des Dokuments:</translation>
    </message>
</context>
<context>
    <name>PaperSizes</name>
    <message>
        <source>%1 × %2 in</source>
        <translation>%1 × %2 Zoll</translation>
    </message>
    <message>
        <source>%1 × %2 mm</source>
        <translation>%1 × %2 mm</translation>
    </message>
</context>
<context>
    <name>PasswordDialog</name>
    <message>
        <source>&amp;Remember the password in the keyring</source>
        <translation>Passwort im Schlüsselbund &amp;merken</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>&amp;User name:</source>
        <translation>&amp;Benutzername:</translation>
    </message>
    <message>
        <source>&amp;Domain:</source>
        <translation>&amp;Domäne:</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Passwort:</translation>
    </message>
</context>
<context>
    <name>PasswordPrompt</name>
    <message>
        <source>No password can be read from the open file %1 (--password-fd): %2.</source>
        <translation>Aus der offenen Datei %1 (--password-fd) kann kein Passwort gelesen werden: %2.</translation>
    </message>
    <message>
        <source>The open file %1 cannot be a document and hold the password (--password-fd).</source>
        <translation>Die offene Datei %1 kann nicht zugleich ein Dokument sein und das Passwort enthalten (--password-fd).</translation>
    </message>
    <message>
        <source>Domain: </source>
        <translation>Domäne: </translation>
    </message>
    <message>
        <source>Password: </source>
        <translation>Passwort: </translation>
    </message>
    <message>
        <source>User name: </source>
        <translation>Benutzername: </translation>
    </message>
    <message>
        <source>User name [%1]: </source>
        <translation>Benutzername [%1]: </translation>
    </message>
</context>
<context>
    <name>PasswordWords</name>
    <message>
        <source>The print server %1 wants to know who asks for its printers.</source>
        <translation>Der Druckserver %1 will wissen, wer nach seinen Druckern fragt.</translation>
    </message>
    <message>
        <source>The print server %1 wants to know who asks for the settings of %2.</source>
        <translation>Der Druckserver %1 will wissen, wer nach den Einstellungen von %2 fragt.</translation>
    </message>
    <message>
        <source>The print server %1 wants to know who prints to %2.</source>
        <translation>Der Druckserver %1 will wissen, wer auf %2 druckt.</translation>
    </message>
    <message>
        <source>The print server %1 wants to know who changes a job on %2.</source>
        <translation>Der Druckserver %1 will wissen, wer einen Auftrag auf %2 ändert.</translation>
    </message>
    <message>
        <source>The print server %1 holds the job until the printer behind %2 knows who prints.</source>
        <translation>Der Druckserver %1 hält den Auftrag zurück, bis der Drucker hinter %2 weiß, wer druckt.</translation>
    </message>
    <message>
        <source>The user name or the password was not right.</source>
        <translation>Der Benutzername oder das Passwort war nicht richtig.</translation>
    </message>
    <message>
        <source>The connection is not encrypted: others in the network may read the password.</source>
        <translation>Die Verbindung ist nicht verschlüsselt: Andere im Netz können das Passwort mitlesen.</translation>
    </message>
    <message>
        <source>The printer behind %2 on the print server %1 wants to know who prints.</source>
        <translation>Der Drucker hinter %2 auf dem Druckserver %1 will wissen, wer druckt.</translation>
    </message>
</context>
<context>
    <name>PipeDocuments</name>
    <message>
        <source>There is no room in the temporary folder %1 for the document %2.</source>
        <translation>Im temporären Ordner %1 ist kein Platz für das Dokument %2.</translation>
    </message>
    <message>
        <source>The document %1 cannot be kept in the temporary folder %2: %3.</source>
        <translation>Das Dokument %1 kann nicht im temporären Ordner %2 abgelegt werden: %3.</translation>
    </message>
    <message>
        <source>The document %1 is longer than %2 MB, the most that is read from a pipe.</source>
        <translation>Das Dokument %1 ist länger als %2 MB; mehr wird aus einer Pipe nicht gelesen.</translation>
    </message>
</context>
<context>
    <name>PlacementRows</name>
    <message>
        <source>P&amp;ortrait</source>
        <translation>&amp;Hochformat</translation>
    </message>
    <message>
        <source>&amp;Landscape</source>
        <translation>&amp;Querformat</translation>
    </message>
    <message>
        <source>Orientation:</source>
        <translation>Ausrichtung:</translation>
    </message>
    <message>
        <source>&amp;Scaling:</source>
        <translation>&amp;Skalierung:</translation>
    </message>
    <message>
        <source>The paper lies on its side, and every page upright on it.</source>
        <translation>Das Papier liegt quer, und jede Seite steht aufrecht darauf.</translation>
    </message>
    <message>
        <source>Pages that are wider than high are turned to fill the paper.</source>
        <translation>Seiten, die breiter als hoch sind, werden gedreht und füllen das Papier.</translation>
    </message>
</context>
<context>
    <name>PlugInLoader</name>
    <message>
        <source>The printer&apos;s settings are missing: there is no plug-in at %1. Install Velkaro Print again.</source>
        <translation>Die Einstellungen des Druckers fehlen: Unter %1 gibt es kein Plug-in. Installieren Sie Velkaro Print neu.</translation>
    </message>
    <message>
        <source>The plug-in %1 is incomplete: it has no readable Info.json. Install Velkaro Print again.</source>
        <translation>Das Plug-in %1 ist unvollständig: Es hat keine lesbare Info.json. Installieren Sie Velkaro Print neu.</translation>
    </message>
    <message>
        <source>The plug-in is incomplete: %1 is missing. Install Velkaro Print again.</source>
        <translation>Das Plug-in ist unvollständig: %1 fehlt. Installieren Sie Velkaro Print neu.</translation>
    </message>
    <message>
        <source>The plug-in %1 is incomplete: its library is missing. Install Velkaro Print again.</source>
        <translation>Das Plug-in %1 ist unvollständig: Seine Bibliothek fehlt. Installieren Sie Velkaro Print neu.</translation>
    </message>
    <message>
        <source>The plug-in is not used, because other users may change %1. Let nobody but yourself and the administrator write there.</source>
        <translation>Das Plug-in wird nicht verwendet, weil andere Benutzer %1 ändern dürfen. Lassen Sie dort nur sich selbst und den Administrator schreiben.</translation>
    </message>
    <message>
        <source>%1 is not a plug-in of this print dialog.</source>
        <translation>%1 ist kein Plug-in dieses Druckdialogs.</translation>
    </message>
    <message>
        <source>The plug-in %1 was made for another version of this print dialog. Install the same version of both.</source>
        <translation>Das Plug-in %1 wurde für eine andere Version dieses Druckdialogs erstellt. Installieren Sie beide in derselben Version.</translation>
    </message>
    <message>
        <source>The plug-in %1 could not be loaded.</source>
        <translation>Das Plug-in %1 konnte nicht geladen werden.</translation>
    </message>
    <message>
        <source>The plug-in %1 cannot be used with this print dialog.</source>
        <translation>Das Plug-in %1 kann mit diesem Druckdialog nicht verwendet werden.</translation>
    </message>
    <message>
        <source>The plug-in cannot be used: %1 is no row of a keyword, a choice, a standard attribute and its value.</source>
        <translation>Das Plug-in kann nicht verwendet werden: %1 ist keine Zeile aus Schlüsselwort, Auswahl, Standardattribut und dessen Wert.</translation>
    </message>
</context>
<context>
    <name>PresetActions</name>
    <message>
        <source>Save as Preset</source>
        <translation>Als Voreinstellung speichern</translation>
    </message>
    <message>
        <source>Rename Preset</source>
        <translation>Voreinstellung umbenennen</translation>
    </message>
    <message>
        <source>Delete the preset &quot;%1&quot;?</source>
        <translation>Voreinstellung „%1“ löschen?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Behalten</translation>
    </message>
    <message>
        <source>No warnings are hidden: all are shown.</source>
        <translation>Keine Warnungen sind ausgeblendet: Alle werden angezeigt.</translation>
    </message>
    <message>
        <source>Some of the settings do not go together: the preset has what is shown now.</source>
        <translation>Einige der Einstellungen passen nicht zusammen: Die Voreinstellung enthält, was jetzt angezeigt wird.</translation>
    </message>
</context>
<context>
    <name>PresetNameDialog</name>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>There is a preset of this name already.</source>
        <translation>Eine Voreinstellung dieses Namens gibt es schon.</translation>
    </message>
    <message>
        <source>This replaces the preset of the same name.</source>
        <translation>Das ersetzt die gleichnamige Voreinstellung.</translation>
    </message>
</context>
<context>
    <name>Presets</name>
    <message>
        <source>The preset &quot;%1&quot; was set up for everybody who uses this computer; it cannot be changed here.</source>
        <translation>Die Voreinstellung „%1“ wurde für alle Benutzer dieses Computers eingerichtet; hier kann sie nicht geändert werden.</translation>
    </message>
    <message>
        <source>Give the preset a name.</source>
        <translation>Geben Sie der Voreinstellung einen Namen.</translation>
    </message>
    <message>
        <source>The name of a preset has no spaces, slashes, quotes, braces or #; other programs would not find it. &quot;-&quot; and &quot;_&quot; are fine.</source>
        <translation>Der Name einer Voreinstellung enthält keine Leerzeichen, Schrägstriche, Anführungszeichen, geschweiften Klammern oder #; andere Programme fänden sie sonst nicht. „-“ und „_“ sind erlaubt.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>Der Name ist zu lang.</translation>
    </message>
    <message>
        <source>There is a preset &quot;%1&quot; already.</source>
        <translation>Die Voreinstellung „%1“ gibt es schon.</translation>
    </message>
</context>
<context>
    <name>PresetsRow</name>
    <message>
        <source>Presets</source>
        <translation>Voreinstellungen</translation>
    </message>
    <message>
        <source>Save as Preset…</source>
        <translation>Als Voreinstellung speichern …</translation>
    </message>
    <message>
        <source>Rename Preset…</source>
        <translation>Voreinstellung umbenennen …</translation>
    </message>
    <message>
        <source>Delete Preset…</source>
        <translation>Voreinstellung löschen …</translation>
    </message>
    <message>
        <source>Back to the Printer&apos;s Defaults</source>
        <translation>Zurück zu den Vorgaben des Druckers</translation>
    </message>
    <message>
        <source>Start with the Settings Used Last</source>
        <translation>Mit den zuletzt verwendeten Einstellungen beginnen</translation>
    </message>
    <message>
        <source>Hidden Warnings…</source>
        <translation>Ausgeblendete Warnungen …</translation>
    </message>
    <message>
        <source>Printer&apos;s Defaults</source>
        <translation>Vorgaben des Druckers</translation>
    </message>
    <message>
        <source>Usual Settings</source>
        <translation>Übliche Einstellungen</translation>
    </message>
    <message>
        <source>Settings Used Last</source>
        <translation>Zuletzt verwendete Einstellungen</translation>
    </message>
    <message>
        <source>%1 (from the printer&apos;s maker)</source>
        <translation>%1 (vom Druckerhersteller)</translation>
    </message>
    <message>
        <source>Follow the Job After Printing</source>
        <translation>Auftrag nach dem Drucken verfolgen</translation>
    </message>
</context>
<context>
    <name>PopUpButton</name>
    <message>
        <source>Not available</source>
        <translation>Nicht verfügbar</translation>
    </message>
</context>
<context>
    <name>PrinterChoice</name>
    <message>
        <source>%1 was chosen: you printed to it last.</source>
        <translation>%1 wurde gewählt: Darauf haben Sie zuletzt gedruckt.</translation>
    </message>
    <message>
        <source>%1 was chosen: LPDEST or PRINTER names it.</source>
        <translation>%1 wurde gewählt: LPDEST oder PRINTER nennt diesen Drucker.</translation>
    </message>
    <message>
        <source>%1 was chosen: it is your default printer.</source>
        <translation>%1 wurde gewählt: Das ist Ihr Standarddrucker.</translation>
    </message>
    <message>
        <source>%1 was chosen: it is the print server's default printer.</source>
        <translation>%1 wurde gewählt: Das ist der Standarddrucker des Druckservers.</translation>
    </message>
    <message>
        <source>%1 was chosen: it is the only printer.</source>
        <translation>%1 wurde gewählt: Das ist der einzige Drucker.</translation>
    </message>
    <message>
        <source>%1 was chosen: it is the first printer that takes jobs, and none is the default.</source>
        <translation>%1 wurde gewählt: Das ist der erste Drucker, der Aufträge annimmt, und keiner ist Standard.</translation>
    </message>
    <message>
        <source>No printer takes jobs at present. Choose one, or try again later.</source>
        <translation>Derzeit nimmt kein Drucker Aufträge an. Wählen Sie einen, oder versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>The print server has no printer to print to.</source>
        <translation>Der Druckserver hat keinen Drucker, auf dem gedruckt werden kann.</translation>
    </message>
</context>
<context>
    <name>PrinterDoubts</name>
    <message>
        <source>The jobs of this queue go to printers of different models: %1. What is set for one of them may come out differently on another.</source>
        <translation>Die Aufträge dieser Warteschlange gehen an Drucker verschiedener Modelle: %1. Was für einen davon eingestellt ist, kann auf einem anderen anders herauskommen.</translation>
    </message>
    <message>
        <source>The paper of this job is not loaded: %1. There is %2.</source>
        <translation>Das Papier dieses Auftrags ist nicht eingelegt: %1. Eingelegt ist %2.</translation>
    </message>
</context>
<context>
    <name>PrinterPopUp</name>
    <message>
        <source>No printer</source>
        <translation>Kein Drucker</translation>
    </message>
    <message>
        <source>Searching for printers…</source>
        <translation>Drucker werden gesucht …</translation>
    </message>
    <message>
        <source>The other printers cannot be listed</source>
        <translation>Die übrigen Drucker können nicht aufgelistet werden</translation>
    </message>
    <message>
        <source>No longer on the print server</source>
        <translation>Nicht mehr auf dem Druckserver</translation>
    </message>
    <message>
        <source>Jobs in the queue: %1</source>
        <translation>Aufträge in der Warteschlange: %1</translation>
    </message>
</context>
<context>
    <name>PrinterOpening</name>
    <message>
        <source>The plug-in could not attach its panels to this printer. Its rules and checks are missing.</source>
        <translation>Das Plug-in konnte seine Bereiche nicht mit diesem Drucker verbinden. Seine Regeln und Prüfungen fehlen.</translation>
    </message>
</context>
<context>
    <name>PrinterReasons</name>
    <message>
        <source>An alert is over</source>
        <translation>Eine Warnung ist aufgehoben</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Verbindung wird hergestellt</translation>
    </message>
    <message>
        <source>The cover is open</source>
        <translation>Die Abdeckung ist offen</translation>
    </message>
    <message>
        <source>A filter of the server is not safe to run</source>
        <translation>Ein Filter des Servers ist nicht sicher</translation>
    </message>
    <message>
        <source>A filter is missing on the server</source>
        <translation>Auf dem Server fehlt ein Filter</translation>
    </message>
    <message>
        <source>Waiting for the end of a job</source>
        <translation>Wartet auf das Ende eines Auftrags</translation>
    </message>
    <message>
        <source>Deactivated</source>
        <translation>Deaktiviert</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Gelöscht</translation>
    </message>
    <message>
        <source>The developer is used up</source>
        <translation>Der Entwickler ist verbraucht</translation>
    </message>
    <message>
        <source>The developer is low</source>
        <translation>Der Entwickler geht zur Neige</translation>
    </message>
    <message>
        <source>A door is open</source>
        <translation>Eine Klappe ist offen</translation>
    </message>
    <message>
        <source>The fuser is too hot</source>
        <translation>Die Fixiereinheit ist zu heiß</translation>
    </message>
    <message>
        <source>The fuser is too cold</source>
        <translation>Die Fixiereinheit ist zu kalt</translation>
    </message>
    <message>
        <source>Hibernating</source>
        <translation>Im Ruhezustand</translation>
    </message>
    <message>
        <source>New jobs are held</source>
        <translation>Neue Aufträge werden zurückgehalten</translation>
    </message>
    <message>
        <source>Making itself known</source>
        <translation>Macht auf sich aufmerksam</translation>
    </message>
    <message>
        <source>A paper tray is missing</source>
        <translation>Ein Papierfach fehlt</translation>
    </message>
    <message>
        <source>An interlock is open</source>
        <translation>Eine Verriegelung ist offen</translation>
    </message>
    <message>
        <source>A font or form is missing</source>
        <translation>Eine Schrift oder ein Formular fehlt</translation>
    </message>
    <message>
        <source>Ink or toner is used up</source>
        <translation>Tinte oder Toner ist verbraucht</translation>
    </message>
    <message>
        <source>Ink or toner is low</source>
        <translation>Tinte oder Toner geht zur Neige</translation>
    </message>
    <message>
        <source>An ink or toner cartridge is missing</source>
        <translation>Eine Tinten- oder Tonerpatrone fehlt</translation>
    </message>
    <message>
        <source>The waste container is almost full</source>
        <translation>Der Resttintenbehälter ist fast voll</translation>
    </message>
    <message>
        <source>The waste container is full</source>
        <translation>Der Resttintenbehälter ist voll</translation>
    </message>
    <message>
        <source>Out of paper</source>
        <translation>Kein Papier</translation>
    </message>
    <message>
        <source>Paper jam</source>
        <translation>Papierstau</translation>
    </message>
    <message>
        <source>Paper is low</source>
        <translation>Wenig Papier</translation>
    </message>
    <message>
        <source>Waiting for paper</source>
        <translation>Wartet auf Papier</translation>
    </message>
    <message>
        <source>Being stopped</source>
        <translation>Wird angehalten</translation>
    </message>
    <message>
        <source>Not connected or switched off</source>
        <translation>Nicht verbunden oder ausgeschaltet</translation>
    </message>
    <message>
        <source>The drum is worn out</source>
        <translation>Die Trommel ist verschlissen</translation>
    </message>
    <message>
        <source>The drum is nearly worn out</source>
        <translation>Die Trommel ist fast verschlissen</translation>
    </message>
    <message>
        <source>Something is wrong</source>
        <translation>Etwas stimmt nicht</translation>
    </message>
    <message>
        <source>The output tray is almost full</source>
        <translation>Das Ausgabefach ist fast voll</translation>
    </message>
    <message>
        <source>The output tray is full</source>
        <translation>Das Ausgabefach ist voll</translation>
    </message>
    <message>
        <source>The output tray is missing</source>
        <translation>Das Ausgabefach fehlt</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>Starting again</source>
        <translation>Läuft wieder an</translation>
    </message>
    <message>
        <source>Switched off</source>
        <translation>Ausgeschaltet</translation>
    </message>
    <message>
        <source>The server has no room for jobs</source>
        <translation>Der Server hat keinen Platz für Aufträge</translation>
    </message>
    <message>
        <source>On standby</source>
        <translation>In Bereitschaft</translation>
    </message>
    <message>
        <source>Stopped in part</source>
        <translation>Teilweise angehalten</translation>
    </message>
    <message>
        <source>Suspended</source>
        <translation>Ausgesetzt</translation>
    </message>
    <message>
        <source>Testing itself</source>
        <translation>Prüft sich selbst</translation>
    </message>
    <message>
        <source>The printer does not answer</source>
        <translation>Der Drucker antwortet nicht</translation>
    </message>
    <message>
        <source>Toner is used up</source>
        <translation>Der Toner ist verbraucht</translation>
    </message>
    <message>
        <source>Toner is low</source>
        <translation>Der Toner geht zur Neige</translation>
    </message>
    <message>
        <source>The state is not known</source>
        <translation>Der Zustand ist nicht bekannt</translation>
    </message>
    <message>
        <source>Waiting for fonts</source>
        <translation>Wartet auf Schriften</translation>
    </message>
    <message>
        <source>Bander: %1</source>
        <translation>Banderoliergerät: %1</translation>
    </message>
    <message>
        <source>Binder: %1</source>
        <translation>Bindegerät: %1</translation>
    </message>
    <message>
        <source>Cleaner: %1</source>
        <translation>Reiniger: %1</translation>
    </message>
    <message>
        <source>Configuration: %1</source>
        <translation>Konfiguration: %1</translation>
    </message>
    <message>
        <source>Die cutter: %1</source>
        <translation>Stanzgerät: %1</translation>
    </message>
    <message>
        <source>Folder: %1</source>
        <translation>Falzgerät: %1</translation>
    </message>
    <message>
        <source>Imprinter: %1</source>
        <translation>Eindruckwerk: %1</translation>
    </message>
    <message>
        <source>Paper feed: %1</source>
        <translation>Papierzufuhr: %1</translation>
    </message>
    <message>
        <source>Inserter: %1</source>
        <translation>Einschießgerät: %1</translation>
    </message>
    <message>
        <source>Interpreter: %1</source>
        <translation>Interpreter: %1</translation>
    </message>
    <message>
        <source>Envelope maker: %1</source>
        <translation>Umschlaggerät: %1</translation>
    </message>
    <message>
        <source>Print head: %1</source>
        <translation>Druckwerk: %1</translation>
    </message>
    <message>
        <source>Paper path: %1</source>
        <translation>Papierweg: %1</translation>
    </message>
    <message>
        <source>Output tray: %1</source>
        <translation>Ausgabefach: %1</translation>
    </message>
    <message>
        <source>Perforator: %1</source>
        <translation>Perforiergerät: %1</translation>
    </message>
    <message>
        <source>Power: %1</source>
        <translation>Strom: %1</translation>
    </message>
    <message>
        <source>Hole punch: %1</source>
        <translation>Locher: %1</translation>
    </message>
    <message>
        <source>Cutter: %1</source>
        <translation>Schneidegerät: %1</translation>
    </message>
    <message>
        <source>Sheet rotator: %1</source>
        <translation>Blattdreher: %1</translation>
    </message>
    <message>
        <source>Slitter: %1</source>
        <translation>Längsschneider: %1</translation>
    </message>
    <message>
        <source>Stacker: %1</source>
        <translation>Stapler: %1</translation>
    </message>
    <message>
        <source>Stapler: %1</source>
        <translation>Hefter: %1</translation>
    </message>
    <message>
        <source>Stitcher: %1</source>
        <translation>Drahthefter: %1</translation>
    </message>
    <message>
        <source>A part: %1</source>
        <translation>Ein Teil: %1</translation>
    </message>
    <message>
        <source>Trimmer: %1</source>
        <translation>Beschnitt: %1</translation>
    </message>
    <message>
        <source>Wrapper: %1</source>
        <translation>Verpackung: %1</translation>
    </message>
    <message>
        <source>added</source>
        <translation>hinzugefügt</translation>
    </message>
    <message>
        <source>almost empty</source>
        <translation>fast leer</translation>
    </message>
    <message>
        <source>almost full</source>
        <translation>fast voll</translation>
    </message>
    <message>
        <source>at its limit</source>
        <translation>an der Grenze</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>geändert</translation>
    </message>
    <message>
        <source>closed</source>
        <translation>geschlossen</translation>
    </message>
    <message>
        <source>set up anew</source>
        <translation>neu eingerichtet</translation>
    </message>
    <message>
        <source>cover closed</source>
        <translation>Abdeckung geschlossen</translation>
    </message>
    <message>
        <source>cover open</source>
        <translation>Abdeckung offen</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>leer</translation>
    </message>
    <message>
        <source>full</source>
        <translation>voll</translation>
    </message>
    <message>
        <source>interlock closed</source>
        <translation>Verriegelung geschlossen</translation>
    </message>
    <message>
        <source>interlock open</source>
        <translation>Verriegelung offen</translation>
    </message>
    <message>
        <source>jammed</source>
        <translation>Stau</translation>
    </message>
    <message>
        <source>nearly worn out</source>
        <translation>fast verschlissen</translation>
    </message>
    <message>
        <source>worn out</source>
        <translation>verschlissen</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>kein Speicher mehr</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>fehlt</translation>
    </message>
    <message>
        <source>motor failed</source>
        <translation>Motor ausgefallen</translation>
    </message>
    <message>
        <source>near its limit</source>
        <translation>nahe der Grenze</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>offline</translation>
    </message>
    <message>
        <source>opened</source>
        <translation>geöffnet</translation>
    </message>
    <message>
        <source>too hot</source>
        <translation>zu heiß</translation>
    </message>
    <message>
        <source>saving power</source>
        <translation>spart Strom</translation>
    </message>
    <message>
        <source>failed for the moment</source>
        <translation>vorübergehend ausgefallen</translation>
    </message>
    <message>
        <source>storage is short</source>
        <translation>Speicher knapp</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>entfernt</translation>
    </message>
    <message>
        <source>resource added</source>
        <translation>Ressource hinzugefügt</translation>
    </message>
    <message>
        <source>resource removed</source>
        <translation>Ressource entfernt</translation>
    </message>
    <message>
        <source>thermistor failed</source>
        <translation>Temperaturfühler ausgefallen</translation>
    </message>
    <message>
        <source>timing failed</source>
        <translation>Zeitablauf gestört</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>ausgeschaltet</translation>
    </message>
    <message>
        <source>switched on</source>
        <translation>eingeschaltet</translation>
    </message>
    <message>
        <source>too cold</source>
        <translation>zu kalt</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>ausgefallen</translation>
    </message>
    <message>
        <source>storage failed</source>
        <translation>Speicher ausgefallen</translation>
    </message>
    <message>
        <source>warming up</source>
        <translation>wärmt auf</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>Warnung: %1</translation>
    </message>
    <message>
        <source>Error: %1</source>
        <translation>Fehler: %1</translation>
    </message>
    <message>
        <source>Takes no jobs at present</source>
        <translation>Nimmt derzeit keine Aufträge an</translation>
    </message>
    <message>
        <source>Stopped: jobs wait</source>
        <translation>Angehalten: Aufträge warten</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Druckt</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
</context>
<context>
    <name>PrinterSource</name>
    <message>
        <source>There are more settings saved for %1 than the %2 that can be used.</source>
        <translation>Für %1 sind mehr Einstellungen gespeichert als die %2, die verwendet werden können.</translation>
    </message>
    <message>
        <source>The PPD of the queue %1 cannot be used. %2</source>
        <translation>Die PPD-Datei der Warteschlange %1 kann nicht verwendet werden. %2</translation>
    </message>
    <message>
        <source>There is no printer to print to.</source>
        <translation>Es ist kein Drucker vorhanden.</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>The printer no longer has some of the settings that you used last: %1.</source>
        <translation>Einige der zuletzt verwendeten Einstellungen hat der Drucker nicht mehr: %1.</translation>
    </message>
    <message>
        <source>The printer does not have some of the settings that are saved for %1: %2.</source>
        <translation>Einige der für %1 gespeicherten Einstellungen hat der Drucker nicht: %2.</translation>
    </message>
</context>
<context>
    <name>ProgressStrip</name>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
</context>
<context>
    <name>Recorder</name>
    <message>
        <source>The PPD cannot be copied to %1: %2</source>
        <translation>Die PPD-Datei kann nicht nach %1 kopiert werden: %2</translation>
    </message>
    <message>
        <source>no name is free</source>
        <translation>kein Name ist frei</translation>
    </message>
</context>
<context>
    <name>RemedyWords</name>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 is there for %2.</source>
        <translation>%1 ist bei %2 verfügbar.</translation>
    </message>
    <message>
        <source>%1 is not there for %2. It is there for %3.</source>
        <translation>%1 ist bei %2 nicht verfügbar. Verfügbar ist es bei %3.</translation>
    </message>
    <message>
        <source>%1 is not there for %2. It is there with %3.</source>
        <translation>%1 ist bei %2 nicht verfügbar. Verfügbar ist es mit %3.</translation>
    </message>
    <message>
        <source>%1 can be chosen.</source>
        <translation>%1 kann gewählt werden.</translation>
    </message>
    <message>
        <source>No setting of this printer gives %1.</source>
        <translation>Keine Einstellung dieses Druckers ermöglicht %1.</translation>
    </message>
    <message>
        <source>There are too many conditions to explain why %1 is not there.</source>
        <translation>Es sind zu viele Bedingungen, um zu erklären, warum %1 nicht verfügbar ist.</translation>
    </message>
    <message>
        <source>use %1</source>
        <translation>%1 verwenden</translation>
    </message>
    <message>
        <source>turn on %1</source>
        <translation>%1 einschalten</translation>
    </message>
    <message>
        <source>turn off %1</source>
        <translation>%1 ausschalten</translation>
    </message>
    <message>
        <source>use %1 and %2</source>
        <translation>%1 verwenden und %2</translation>
    </message>
    <message>
        <source>turn on %1 and %2</source>
        <translation>%1 einschalten und %2</translation>
    </message>
    <message>
        <source>turn off %1 and %2</source>
        <translation>%1 ausschalten und %2</translation>
    </message>
</context>
<context>
    <name>RequestChecks</name>
    <message>
        <source>Page %1 is beyond the document's last page, %2.</source>
        <translation>Seite %1 liegt hinter der letzten Seite des Dokuments, %2.</translation>
    </message>
    <message>
        <source>%1 is beyond the last side that is printed, %2.</source>
        <translation>%1 liegt hinter der letzten bedruckten Blattseite, %2.</translation>
    </message>
</context>
<context>
    <name>StandardKeywords</name>
    <message>
        <source>Color Mode</source>
        <translation>Farbmodus</translation>
    </message>
    <message>
        <source>Print Quality</source>
        <translation>Druckqualität</translation>
    </message>
    <message>
        <source>Two-Sided Printing</source>
        <translation>Beidseitiger Druck</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Falzen</translation>
    </message>
    <message>
        <source>Paper Source</source>
        <translation>Papierquelle</translation>
    </message>
    <message>
        <source>Media Type</source>
        <translation>Medientyp</translation>
    </message>
    <message>
        <source>Output Bin</source>
        <translation>Ausgabefach</translation>
    </message>
    <message>
        <source>Paper Size</source>
        <translation>Papierformat</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Lochen</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>Heften</translation>
    </message>
    <message>
        <source>Fast Grayscale</source>
        <translation>Graustufen, schnell</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>Graustufen</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Entwurf</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Off (1-Sided)</source>
        <translation>Aus (einseitig)</translation>
    </message>
    <message>
        <source>Long-Edge (Portrait)</source>
        <translation>Lange Kante (Hochformat)</translation>
    </message>
    <message>
        <source>Short-Edge (Landscape)</source>
        <translation>Kurze Kante (Querformat)</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Main</source>
        <translation>Hauptfach</translation>
    </message>
    <message>
        <source>Alternate</source>
        <translation>Alternatives Fach</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manuell</translation>
    </message>
    <message>
        <source>Plain Paper</source>
        <translation>Normalpapier</translation>
    </message>
    <message>
        <source>Photo Paper</source>
        <translation>Fotopapier</translation>
    </message>
    <message>
        <source>Glossy Photo Paper</source>
        <translation>Fotopapier, glänzend</translation>
    </message>
    <message>
        <source>Matte Photo Paper</source>
        <translation>Fotopapier, matt</translation>
    </message>
    <message>
        <source>Envelope</source>
        <translation>Umschlag</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Etiketten</translation>
    </message>
    <message>
        <source>Face Down</source>
        <translation>Druckseite unten</translation>
    </message>
    <message>
        <source>Face Up</source>
        <translation>Druckseite oben</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
</context>
<context>
    <name>SummaryPart</name>
    <message>
        <source>Only What Differs from the Printer's Defaults</source>
        <translation>Nur Abweichungen von den Vorgaben des Druckers</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>Als Text kopieren</translation>
    </message>
</context>
<context>
    <name>Supplies</name>
    <message>
        <source>Supply %1</source>
        <translation>Verbrauchsmaterial %1</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Nicht bekannt</translation>
    </message>
    <message>
        <source>Some left</source>
        <translation>Noch etwas da</translation>
    </message>
    <message>
        <source>Some room left</source>
        <translation>Noch etwas Platz</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1% full</source>
        <translation>%1 % voll</translation>
    </message>
    <message>
        <source>Low: %1%</source>
        <translation>Fast leer: %1 %</translation>
    </message>
    <message>
        <source>Almost full: %1%</source>
        <translation>Fast voll: %1 %</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Leer</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Voll</translation>
    </message>
    <message>
        <source>Used up in the printer: %1.</source>
        <translation>Im Drucker aufgebraucht: %1.</translation>
    </message>
    <message>
        <source>Full in the printer: %1.</source>
        <translation>Im Drucker voll: %1.</translation>
    </message>
    <message>
        <source>Running low in the printer: %1.</source>
        <translation>Im Drucker fast aufgebraucht: %1.</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>SuppliesPane</name>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Paper in the printer:</source>
        <translation>Papier im Drucker:</translation>
    </message>
</context>
<context>
    <name>WhyCommand</name>
    <message>
        <source>This cannot be explained.</source>
        <translation>Das lässt sich nicht erklären.</translation>
    </message>
</context>
<context>
    <name>RequestedSettings</name>
    <message>
        <source>%1=%2 and %1=%3 cannot both be had: ask for one of them.</source>
        <translation>%1=%2 und %1=%3 schließen einander aus: Geben Sie nur eines davon an.</translation>
    </message>
</context>
<context>
    <name>SavedJob</name>
    <message>
        <source>The printer does not have some of the settings that the job was saved with: %1.</source>
        <translation>Einige der Einstellungen, mit denen der Auftrag gespeichert wurde, hat der Drucker nicht: %1.</translation>
    </message>
    <message>
        <source>%1 is a saved job: it is sent as it was saved, without -o, --paper and --output.</source>
        <translation>%1 ist ein gespeicherter Auftrag: Er wird so gesendet, wie er gespeichert wurde, ohne -o, --paper und --output.</translation>
    </message>
    <message>
        <source>%1 is a saved job: it is sent alone, with no other document beside it.</source>
        <translation>%1 ist ein gespeicherter Auftrag: Er wird allein gesendet, ohne weitere Dokumente.</translation>
    </message>
    <message>
        <source>%1 is not sent: it sets %2, which no saved job may.</source>
        <translation>%1 wird nicht gesendet: Der Auftrag setzt %2, was ein gespeicherter Auftrag nicht darf.</translation>
    </message>
    <message>
        <source>%1 is not sent: it sets %2, which Velkaro Print does not write; --yes sends it all the same.</source>
        <translation>%1 wird nicht gesendet: Der Auftrag setzt %2, was Velkaro Print nicht schreibt; mit --yes wird er trotzdem gesendet.</translation>
    </message>
    <message>
        <source>The job in %1 can be looked at but not sent: it sets %2, which no saved job may. Remove that from the settings saved for the queue.</source>
        <translation>Der Auftrag in %1 kann angesehen, aber nicht gesendet werden: Er setzt %2, was ein gespeicherter Auftrag nicht darf. Entfernen Sie dies aus den Einstellungen, die für die Warteschlange gespeichert sind.</translation>
    </message>
</context>
<context>
    <name>SearchList</name>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>What was found</source>
        <translation>Gefundenes</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>Nichts gefunden.</translation>
    </message>
</context>
<context>
    <name>SavedOptions</name>
    <message>
        <source>There are no settings saved as &quot;%1&quot; for the printer %2.</source>
        <translation>Unter „%1“ sind für den Drucker %2 keine Einstellungen gespeichert.</translation>
    </message>
</context>
<context>
    <name>ScalingSentences</name>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Actual Size</source>
        <translation>Originalgröße</translation>
    </message>
    <message>
        <source>Fit to the Printable Area</source>
        <translation>In den druckbaren Bereich einpassen</translation>
    </message>
    <message>
        <source>Fill the Sheet</source>
        <translation>Das Blatt füllen</translation>
    </message>
    <message>
        <source>Fill the Printable Area</source>
        <translation>Den druckbaren Bereich füllen</translation>
    </message>
    <message>
        <source>Pages that are larger than the paper are made just small enough to cover it, and what does not fit is cut off. All others keep their size.</source>
        <translation>Seiten, die größer als das Papier sind, werden so weit verkleinert, dass sie es gerade bedecken; was nicht darauf passt, wird abgeschnitten. Alle anderen behalten ihre Größe.</translation>
    </message>
    <message>
        <source>Pictures that are larger than the printable area are made smaller. All others keep their size.</source>
        <translation>Bilder, die größer als der druckbare Bereich sind, werden verkleinert. Alle anderen behalten ihre Größe.</translation>
    </message>
    <message>
        <source>Pages that are larger than the paper are made smaller. All others keep their size.</source>
        <translation>Seiten, die größer als das Papier sind, werden verkleinert. Alle anderen behalten ihre Größe.</translation>
    </message>
    <message>
        <source>Every page keeps its size, in the middle of the paper. What does not fit is cut off.</source>
        <translation>Jede Seite behält ihre Größe, in der Mitte des Papiers. Was nicht darauf passt, wird abgeschnitten.</translation>
    </message>
    <message>
        <source>Every picture is made as large as fits as a whole. The print server leaves twice the paper&apos;s margins around it; borderless paper has none.</source>
        <translation>Jedes Bild wird so groß, dass es ganz darauf passt. Der Druckserver lässt rundherum das Doppelte der Papierränder frei; randloses Papier hat keine.</translation>
    </message>
    <message>
        <source>Every page is made as large as fits on the paper as a whole.</source>
        <translation>Jede Seite wird so groß, dass sie ganz auf das Papier passt.</translation>
    </message>
    <message>
        <source>Every page is made so large that no place stays white. What does not fit is cut off.</source>
        <translation>Jede Seite wird so groß, dass nichts weiß bleibt. Was nicht darauf passt, wird abgeschnitten.</translation>
    </message>
    <message>
        <source>Every picture is cut to the shape of the printable area. The print server leaves twice the paper&apos;s margins around it; borderless paper has none.</source>
        <translation>Jedes Bild wird auf die Form des druckbaren Bereichs zugeschnitten. Der Druckserver lässt rundherum das Doppelte der Papierränder frei; randloses Papier hat keine.</translation>
    </message>
    <message>
        <source>Every page is made so large that only the paper&apos;s margins stay white. What does not fit is cut off.</source>
        <translation>Jede Seite wird so groß, dass nur die Ränder des Papiers weiß bleiben. Was nicht darauf passt, wird abgeschnitten.</translation>
    </message>
</context>
<context>
    <name>Server</name>
    <message>
        <source>The queue %1 has no PPD.</source>
        <translation>Die Warteschlange %1 hat keine PPD-Datei.</translation>
    </message>
    <message>
        <source>The PPD of the queue %1 is too large.</source>
        <translation>Die PPD-Datei der Warteschlange %1 ist zu groß.</translation>
    </message>
    <message>
        <source>The print server %1 sent only part of the PPD of the queue %2. Try again.</source>
        <translation>Der Druckserver %1 hat nur einen Teil der PPD-Datei der Warteschlange %2 gesendet. Versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The print server %1 cannot be reached.</source>
        <translation>Der Druckserver %1 ist nicht erreichbar.</translation>
    </message>
    <message>
        <source>The print server %1 broke off: %2.</source>
        <translation>Der Druckserver %1 hat die Verbindung abgebrochen: %2.</translation>
    </message>
    <message>
        <source>The print server %1 closed the connection without an answer.</source>
        <translation>Der Druckserver %1 hat die Verbindung ohne Antwort geschlossen.</translation>
    </message>
    <message>
        <source>The print server %1 broke off in the middle of its answer.</source>
        <translation>Der Druckserver %1 hat mitten in seiner Antwort abgebrochen.</translation>
    </message>
    <message>
        <source>The answer of the print server %1 cannot be understood.</source>
        <translation>Die Antwort des Druckservers %1 ist nicht verständlich.</translation>
    </message>
    <message>
        <source>The answer of the print server %1 is too large.</source>
        <translation>Die Antwort des Druckservers %1 ist zu groß.</translation>
    </message>
    <message>
        <source>What the print server %1 sends cannot be kept in the temporary folder %2: %3.</source>
        <translation>Was der Druckserver %1 sendet, kann nicht im temporären Ordner %2 abgelegt werden: %3.</translation>
    </message>
    <message>
        <source>Printing was cancelled.</source>
        <translation>Das Drucken wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The print server %1 has no queue %2.</source>
        <translation>Der Druckserver %1 hat keine Warteschlange %2.</translation>
    </message>
    <message>
        <source>The print server %1 does not know what it was asked for.</source>
        <translation>Der Druckserver %1 kennt das Angefragte nicht.</translation>
    </message>
    <message>
        <source>The print server %1 lets nobody print to %2 without a password.</source>
        <translation>Der Druckserver %1 lässt niemanden ohne Passwort auf %2 drucken.</translation>
    </message>
    <message>
        <source>The print server %1 answers nobody without a password.</source>
        <translation>Der Druckserver %1 antwortet niemandem ohne Passwort.</translation>
    </message>
    <message>
        <source>The print server %1 refused: %2</source>
        <translation>Der Druckserver %1 hat abgelehnt: %2</translation>
    </message>
    <message>
        <source>The print server %1 reports a fault: %2</source>
        <translation>Der Druckserver %1 meldet einen Fehler: %2</translation>
    </message>
    <message>
        <source>The print server %1 does not allow this machine to print to %2.</source>
        <translation>Der Druckserver %1 erlaubt diesem Computer nicht, auf %2 zu drucken.</translation>
    </message>
    <message>
        <source>The print server %1 does not allow this machine to ask.</source>
        <translation>Der Druckserver %1 erlaubt diesem Computer keine Anfragen.</translation>
    </message>
    <message>
        <source>The print server %1 answered with a redirection, which is not followed (%2).</source>
        <translation>Der Druckserver %1 hat mit einer Weiterleitung geantwortet, der nicht gefolgt wird (%2).</translation>
    </message>
    <message>
        <source>The print server %1 demands an encrypted connection, which cannot be made.</source>
        <translation>Der Druckserver %1 verlangt eine verschlüsselte Verbindung, die sich nicht herstellen lässt.</translation>
    </message>
    <message>
        <source>The print server %1 has a fault (%2).</source>
        <translation>Der Druckserver %1 hat einen Fehler (%2).</translation>
    </message>
    <message>
        <source>The print server %1 refused (%2).</source>
        <translation>Der Druckserver %1 hat abgelehnt (%2).</translation>
    </message>
    <message>
        <source>The print server %1 does not answer.</source>
        <translation>Der Druckserver %1 antwortet nicht.</translation>
    </message>
    <message>
        <source>The print server %1 takes too long to answer.</source>
        <translation>Der Druckserver %1 braucht zu lange für eine Antwort.</translation>
    </message>
    <message>
        <source>The print server %1 does not accept the user name and the password.</source>
        <translation>Der Druckserver %1 nimmt den Benutzernamen und das Passwort nicht an.</translation>
    </message>
    <message>
        <source>The print server %1 shows another certificate than before, and may be another server: nothing was sent. The one before is in %2.</source>
        <translation>Der Druckserver %1 zeigt ein anderes Zertifikat als bisher und ist vielleicht ein anderer Server: Es wurde nichts gesendet. Das bisherige steht in %2.</translation>
    </message>
    <message>
        <source>The queue %1 was set up anew on the print server: it has another PPD, or other defaults.</source>
        <translation>Die Warteschlange %1 wurde auf dem Druckserver neu eingerichtet: Sie hat eine andere PPD-Datei oder andere Standardwerte.</translation>
    </message>
</context>
<context>
    <name>SettingRequests</name>
    <message>
        <source>It can be: %1.</source>
        <translation>Möglich sind: %1.</translation>
    </message>
    <message>
        <source>It can be: %1 and %2 more.</source>
        <translation>Möglich sind: %1 und %2 weitere.</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>%2 is no value for %1.</source>
        <translation>%2 ist kein Wert für %1.</translation>
    </message>
    <message>
        <source>%1 cannot be set: the queue has no PPD.</source>
        <translation>%1 kann nicht eingestellt werden: Die Warteschlange hat keine PPD-Datei.</translation>
    </message>
    <message>
        <source>The printer has no setting %1.</source>
        <translation>Der Drucker hat keine Einstellung %1.</translation>
    </message>
    <message>
        <source>%1 stands for several choices of this printer.</source>
        <translation>%1 steht bei diesem Drucker für mehrere Möglichkeiten.</translation>
    </message>
    <message>
        <source>%1 cannot be chosen while the other settings are as they are.</source>
        <translation>%1 kann mit den übrigen Einstellungen nicht gewählt werden.</translation>
    </message>
    <message>
        <source>The printer has no paper %1.</source>
        <translation>Der Drucker hat kein Papier %1.</translation>
    </message>
    <message>
        <source>The printer takes no paper of a size of your own.</source>
        <translation>Der Drucker nimmt kein Papier in eigenem Format an.</translation>
    </message>
    <message>
        <source>The printer takes no paper of %1 × %2 mm: sizes of your own go from %3 × %4 mm to %5 × %6 mm.</source>
        <translation>Der Drucker nimmt kein Papier von %1 × %2 mm an: Eigene Formate reichen von %3 × %4 mm bis %5 × %6 mm.</translation>
    </message>
    <message>
        <source>%1 cannot be chosen while the other settings are as they are. %2 is %3 instead.</source>
        <translation>%1 kann mit den übrigen Einstellungen nicht gewählt werden. Stattdessen ist „%2“ auf „%3“ gestellt.</translation>
    </message>
    <message>
        <source>A paper of a size of your own needs that size, such as Custom.100x150mm.</source>
        <translation>Ein Papier mit eigenem Format braucht dessen Maße, etwa Custom.100x150mm.</translation>
    </message>
</context>
<context>
    <name>SettingTitle</name>
    <message>
        <source>Paper in the Printer</source>
        <translation>Papier im Drucker</translation>
    </message>
    <message>
        <source>Document Page</source>
        <translation>Seite des Dokuments</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>Skalierung</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Exemplare</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Color Management</source>
        <translation>Farbverwaltung</translation>
    </message>
    <message>
        <source>Job Title</source>
        <translation>Auftragstitel</translation>
    </message>
</context>
<context>
    <name>SummaryPane</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: %2 (%3)</source>
        <translation>%1: %2 (%3)</translation>
    </message>
</context>
<context>
    <name>ListAdvice</name>
    <message>
        <source>Not to be had now: %1</source>
        <translation>Zurzeit nicht wählbar: %1</translation>
    </message>
</context>
<context>
    <name>YieldedSettings</name>
    <message>
        <source>%1 cannot be chosen together with what was asked for; it is sent as it was saved.</source>
        <translation>%1 kann nicht zusammen mit dem gewählt werden, was verlangt wurde; es wird gesendet, wie es gespeichert ist.</translation>
    </message>
    <message>
        <source>Saved for this printer: %1</source>
        <translation>Für diesen Drucker gespeichert: %1</translation>
    </message>
</context>
<context>
    <name>KeptSettings</name>
    <message>
        <source>other changes: %1</source>
        <translation>weitere Änderungen: %1</translation>
    </message>
</context>
</TS>
