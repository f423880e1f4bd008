#include "dialog/program/LauncherTexts.h"

const LauncherTexts kEnglishTexts{
    R"(Usage: velkaro-print [options] [FILE...]
Prints documents with the settings that you choose in a dialog. The file - is
standard input.

Printer
  -d, --destination QUEUE[/INSTANCE]
                          print to this queue (with the settings saved for
                          the instance)
  -h, --server HOST[:PORT]
                          ask this print server instead of the usual one
      --ppd FILE          take the printer from a PPD file instead of a queue

Settings
  -o, --option KEY=VALUE  make a setting of the printer; may be given again,
                          in any order, once for each KEY;
                          media, sides, print-quality, print-color-mode and
                          output-bin as far as the printer has them; with
                          every printer number-up, number-up-layout,
                          page-border, page-set, outputorder, booklet,
                          multiple-document-handling, job-hold-until,
                          job-priority, job-sheets, notify-recipient-uri
      --paper NAME        choose the paper by its name in the PPD, or
                          Custom.WIDTHxHEIGHT with a unit: Custom.100x150mm

Job
  -n, --copies NUMBER     print so many copies
  -P, --pages LIST        print these pages: 1-3,5 (with several pages on a
                          sheet: these printed sides)
  -t, --title TITLE       give the job this title
  -H, --hold WHEN         hold the job: hold, immediate, night or another
                          period of the server, or a time of day in UTC, HH:MM
  -q, --priority NUMBER   from 1 to 100, the highest
  -m, --mail              send mail to you when the job is over
      --output FILE       put the job into a file (-: standard output),
                          settings and documents together; print it later
                          with --no-dialog -d QUEUE FILE
      --force             replace files that exist already: those of --output,
                          --screenshot, --record and of a script's pictures
      --no-dialog         print without showing the dialog; every check is made
      --dry-run           make every check, and send and write nothing
      --explain           tell what each setting has changed besides, and how
                          one that was lost is to be had
      --yes               answer yes to what a check asks, instead of no, and
                          print without the settings that cannot be had
      --each              with --no-dialog: print each document as a job of its
                          own, with the same settings
      --wait              with --no-dialog: wait until the job is printed, and
                          tell on standard error where it stands
      --timeout SECONDS   with --wait: for so long at most while the job is
                          stopped or held
      --password-fd N     with --no-dialog: read the password that a server or
                          a printer asks for from this open file, up to the end
                          of its first line; else it is asked for on the
                          terminal

Looking and testing
      --screenshot FILE.png
                          paint the dialog into a picture instead of showing it
      --panel NAME        show this part first: setup, print, color,
                          features, layout or summary; in a picture, this
                          part alone
      --record SCRIPT     note the session in a script
      --replay SCRIPT     run a session from a script (-: standard input)
                          and print what happens, a line of JSON an event
      --why KEY=VALUE     tell why this setting is not to be had with the other
                          ones, and how it is
      --json              tell it as one object of JSON
      --check-ppd FILE    print what the plug-in will not understand in a PPD
                          file, a line a finding
      --plug-in FOLDER    load the plug-in from this bundle
      --forget-alerts     show the warnings again that were not to be shown
      --version           print the version
      --help              print this text

Exit status
  0  printed, written, checked, or the script ran to its end
  1  cancelled in the dialog, or by a signal before the server had the
     whole job or while it was waited for
  2  a wrong option, setting or script, a PPD that cannot be opened, or no
     display for the dialog
  3  a check stopped the job, or a setting could not be had together
     with the others
  4  a document cannot be read
  5  an output file cannot be written, or exists already
  6  the server or the queue cannot be reached, the job was refused, the
     queue was set up anew meanwhile, or it is not known whether the job was
     taken; with --wait: the job was cancelled elsewhere, or ended with errors
  7  the plug-in cannot be used, or cannot check a PPD
  8  with --wait and --timeout: the job was stopped or held for too long
)",
    "The installation is incomplete: %s",
    "the program's own place is unknown",
    "Standard output cannot be written: %s.",
};
