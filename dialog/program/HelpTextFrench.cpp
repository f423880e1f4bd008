#include "dialog/program/LauncherTexts.h"

const LauncherTexts kFrenchTexts{
    R"(Utilisation : velkaro-print [options] [FILE...]
Imprime des documents avec les réglages choisis dans une boîte de dialogue. Le
fichier - est l’entrée standard.

Imprimante
  -d, --destination QUEUE[/INSTANCE]
                          imprimer sur cette file d’attente (avec les réglages
                          enregistrés pour l’instance)
  -h, --server HOST[:PORT]
                          interroger ce serveur d’impression au lieu du
                          serveur habituel
      --ppd FILE          prendre l’imprimante dans un fichier PPD au lieu
                          d’une file d’attente

Réglages
  -o, --option KEY=VALUE  faire un réglage de l’imprimante ; peut être répété,
                          dans n’importe quel ordre, une fois par KEY ;
                          media, sides, print-quality, print-color-mode et
                          output-bin si l’imprimante les a ; avec chaque
                          imprimante number-up, number-up-layout,
                          page-border, page-set, outputorder, booklet,
                          multiple-document-handling, job-hold-until,
                          job-priority, job-sheets, notify-recipient-uri
      --paper NAME        choisir le papier par son nom dans le fichier PPD,
                          ou Custom.WIDTHxHEIGHT avec une unité :
                          Custom.100x150mm

Travail
  -n, --copies NUMBER     imprimer ce nombre d’exemplaires
  -P, --pages LIST        imprimer ces pages : 1-3,5 (avec plusieurs pages
                          par feuille : ces côtés imprimés)
  -t, --title TITLE       donner ce titre au travail
  -H, --hold WHEN         retenir le travail : hold, immediate, night ou une
                          autre période du serveur, ou une heure UTC, HH:MM
  -q, --priority NUMBER   de 1 à 100, la plus haute
  -m, --mail              vous envoyer un courriel à la fin du travail
      --output FILE       écrire le travail dans un fichier (- : sortie
                          standard), réglages et documents ensemble ;
                          l’imprimer plus tard avec
                          --no-dialog -d QUEUE FILE
      --force             remplacer les fichiers existants : ceux de --output,
                          --screenshot, --record et les images d’un script
      --no-dialog         imprimer sans boîte de dialogue ; toutes les
                          vérifications sont faites
      --dry-run           tout vérifier, sans rien envoyer ni écrire
      --explain           dire ce que chaque réglage a changé d’autre, et
                          comment obtenir un réglage impossible
      --yes               répondre oui, et non pas non, à ce que demande une
                          vérification, et imprimer sans les réglages
                          impossibles
      --each              avec --no-dialog : imprimer chaque document comme un
                          travail à part, avec les mêmes réglages
      --wait              avec --no-dialog : attendre que le travail soit
                          imprimé, et dire sur l’erreur standard où il en est
      --timeout SECONDS   avec --wait : aussi longtemps au plus tant que le
                          travail est arrêté ou retenu
      --password-fd N     avec --no-dialog : lire dans ce fichier ouvert le mot
                          de passe demandé par un serveur ou une imprimante,
                          jusqu’à la fin de la première ligne ; sinon il est
                          demandé sur le terminal

Examen et essais
      --screenshot FILE.png
                          dessiner la boîte de dialogue dans une image au lieu
                          de l’afficher
      --panel NAME        afficher d’abord cette partie : setup, print, color,
                          features, layout ou summary ; dans une image, cette
                          partie seule
      --record SCRIPT     noter la session dans un script
      --replay SCRIPT     exécuter une session depuis un script (- : entrée
                          standard) et afficher ce qui se passe, une ligne
                          JSON par événement
      --why KEY=VALUE     dire pourquoi ce réglage n’est pas possible avec les
                          autres, et comment l’obtenir
      --json              le dire sous forme d’un objet JSON
      --check-ppd FILE    afficher ce que le module ne comprendra pas dans un
                          fichier PPD, une ligne par constat
      --plug-in FOLDER    charger le module depuis ce paquet
      --forget-alerts     réafficher les avertissements qui ne devaient plus
                          l’être
      --version           afficher la version
      --help              afficher ce texte

Code de retour
  0  imprimé, écrit, vérifié, ou le script est allé jusqu’à la fin
  1  annulé dans la boîte de dialogue, ou par un signal avant que le serveur
     n’ait tout le travail ou pendant l’attente
  2  option, réglage ou script incorrect, fichier PPD impossible à ouvrir, ou
     aucun écran pour la boîte de dialogue
  3  une vérification a arrêté le travail, ou un réglage n’était pas possible
     avec les autres
  4  un document ne peut pas être lu
  5  un fichier de sortie ne peut pas être écrit ou existe déjà
  6  le serveur ou la file d’attente est injoignable, le travail a été refusé,
     la file a été reconfigurée entre-temps, ou l’on ignore s’il a été
     accepté ; avec --wait : il a été annulé ailleurs, ou s’est terminé avec
     des erreurs
  7  le module ne peut pas être utilisé, ou ne peut pas vérifier de fichier PPD
  8  avec --wait et --timeout : le travail est resté trop longtemps arrêté ou
     retenu
)",
    "L’installation est incomplète : %s",
    "l’emplacement du programme est inconnu",
    "La sortie standard ne peut pas être écrite : %s.",
};
