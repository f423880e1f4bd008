#include "dialog/program/LauncherTexts.h"

const LauncherTexts kGermanTexts{
    R"(Aufruf: velkaro-print [Optionen] [FILE...]
Druckt Dokumente mit den Einstellungen, die Sie in einem Dialog wählen. Die
Datei - ist die Standardeingabe.

Drucker
  -d, --destination QUEUE[/INSTANCE]
                          auf diese Warteschlange drucken (mit den
                          Einstellungen, die für die Instanz gespeichert sind)
  -h, --server HOST[:PORT]
                          diesen Druckserver fragen statt des üblichen
      --ppd FILE          den Drucker aus einer PPD-Datei nehmen statt aus
                          einer Warteschlange

Einstellungen
  -o, --option KEY=VALUE  den Drucker einstellen; mehrfach möglich, in jeder
                          Reihenfolge, einmal für jeden KEY;
                          media, sides, print-quality, print-color-mode und
                          output-bin, soweit der Drucker sie hat; mit jedem
                          Drucker number-up, number-up-layout,
                          page-border, page-set, outputorder, booklet,
                          multiple-document-handling, job-hold-until,
                          job-priority, job-sheets, notify-recipient-uri
      --paper NAME        das Papier mit seinem Namen in der PPD-Datei wählen,
                          oder Custom.WIDTHxHEIGHT mit Einheit:
                          Custom.100x150mm

Auftrag
  -n, --copies NUMBER     so viele Exemplare drucken
  -P, --pages LIST        diese Seiten drucken: 1-3,5 (bei mehreren Seiten
                          pro Blatt: diese bedruckten Blattseiten)
  -t, --title TITLE       dem Auftrag diesen Titel geben
  -H, --hold WHEN         den Auftrag zurückhalten: hold, immediate, night oder
                          ein anderer Zeitraum des Servers, oder eine Uhrzeit
                          in UTC, HH:MM
  -q, --priority NUMBER   von 1 bis 100, der höchsten
  -m, --mail              Ihnen am Ende des Auftrags eine Mail schicken
      --output FILE       den Auftrag in eine Datei schreiben (-:
                          Standardausgabe), Einstellungen und Dokumente
                          zusammen; später drucken mit
                          --no-dialog -d QUEUE FILE
      --force             vorhandene Dateien ersetzen: die von --output,
                          --screenshot, --record und die Bilder eines Skripts
      --no-dialog         ohne Dialog drucken; alle Prüfungen finden statt
      --dry-run           alles prüfen, aber nichts senden und nichts schreiben
      --explain           sagen, was jede Einstellung sonst noch geändert hat
                          und wie eine nicht mögliche möglich wird
      --yes               was eine Prüfung fragt, mit Ja beantworten statt mit
                          Nein, und ohne die Einstellungen drucken, die nicht
                          möglich sind
      --each              mit --no-dialog: jedes Dokument als eigenen Auftrag
                          drucken, mit denselben Einstellungen
      --wait              mit --no-dialog: warten, bis der Auftrag gedruckt
                          ist, und auf der Standardfehlerausgabe sagen, wie es
                          um ihn steht
      --timeout SECONDS   mit --wait: höchstens so lange, wie der Auftrag
                          angehalten ist oder zurückgehalten wird
      --password-fd N     mit --no-dialog: das Passwort, nach dem ein Server
                          oder Drucker fragt, aus dieser offenen Datei lesen,
                          bis zum Ende der ersten Zeile; sonst wird auf dem
                          Terminal danach gefragt

Ansehen und prüfen
      --screenshot FILE.png
                          den Dialog in ein Bild zeichnen statt ihn zu zeigen
      --panel NAME        diesen Teil zuerst zeigen: setup, print, color,
                          features, layout oder summary; in einem Bild nur
                          diesen Teil
      --record SCRIPT     die Sitzung in einem Skript aufzeichnen
      --replay SCRIPT     eine Sitzung aus einem Skript ausführen (-:
                          Standardeingabe) und ausgeben, was geschieht, eine
                          JSON-Zeile je Ereignis
      --why KEY=VALUE     sagen, warum diese Einstellung mit den übrigen nicht
                          möglich ist und wie sie möglich wird
      --json              es als ein JSON-Objekt sagen
      --check-ppd FILE    ausgeben, was das Plug-in in einer PPD-Datei nicht
                          verstehen wird, eine Zeile je Befund
      --plug-in FOLDER    das Plug-in aus diesem Bündel laden
      --forget-alerts     Warnungen wieder anzeigen, die nicht mehr angezeigt
                          werden sollten
      --version           die Version ausgeben
      --help              diesen Text ausgeben

Exit-Status
  0  gedruckt, geschrieben, geprüft, oder das Skript lief bis zum Ende
  1  im Dialog abgebrochen, oder durch ein Signal, bevor der Server den
     ganzen Auftrag hatte oder während auf ihn gewartet wurde
  2  falsche Option, Einstellung oder falsches Skript, eine PPD-Datei, die
     sich nicht öffnen lässt, oder kein Bildschirm für den Dialog
  3  eine Prüfung hat den Auftrag angehalten, oder eine Einstellung war
     zusammen mit den übrigen nicht möglich
  4  ein Dokument kann nicht gelesen werden
  5  eine Ausgabedatei kann nicht geschrieben werden oder ist bereits vorhanden
  6  der Server oder die Warteschlange ist nicht erreichbar, der Auftrag wurde
     abgelehnt, die Warteschlange wurde inzwischen neu eingerichtet, oder es
     ist nicht bekannt, ob er angenommen wurde; mit --wait: er wurde anderswo
     abgebrochen oder endete mit Fehlern
  7  das Plug-in kann nicht verwendet werden oder keine PPD-Datei prüfen
  8  mit --wait und --timeout: der Auftrag war zu lange angehalten oder
     zurückgehalten
)",
    "Die Installation ist unvollständig: %s",
    "der Ort des Programms ist unbekannt",
    "Die Standardausgabe kann nicht geschrieben werden: %s.",
};
