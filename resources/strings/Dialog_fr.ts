<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>ChangeWords</name>
    <message>
        <source>%1 is now %2</source>
        <translation>« %1 » est maintenant « %2 »</translation>
    </message>
    <message>
        <source>%1 is now %2 (was %3)</source>
        <translation>« %1 » est maintenant « %2 » (auparavant « %3 »)</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <translation>%1 ; %2</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; would be printed in place of &quot;%3&quot;.</source>
        <translation>%1 : « %2 » serait imprimé au lieu de « %3 ».</translation>
    </message>
    <message>
        <source>%1 is gone (was %2)</source>
        <translation>« %1 » n’existe plus (auparavant « %2 »)</translation>
    </message>
</context>
<context>
    <name>CheckCommand</name>
    <message>
        <source>The plug-in %1 cannot check a PPD.</source>
        <translation>Le module %1 ne peut pas vérifier de fichier PPD.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Standard input, -, may be given only once.</source>
        <translation>L’entrée standard, -, ne peut être donnée qu’une fois.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the name of a queue.</source>
        <translation>« %1 » n’est pas le nom d’une file d’attente.</translation>
    </message>
    <message>
        <source>-o needs KEY=VALUE, not &quot;%1&quot;.</source>
        <translation>-o attend KEY=VALUE, et non « %1 ».</translation>
    </message>
    <message>
        <source>%1 needs a value.</source>
        <translation>%1 attend une valeur.</translation>
    </message>
    <message>
        <source>%1 may be given only once.</source>
        <translation>%1 ne peut être indiqué qu’une fois.</translation>
    </message>
    <message>
        <source>There is no option %1.</source>
        <translation>L’option %1 n’existe pas.</translation>
    </message>
    <message>
        <source>%1 takes no value.</source>
        <translation>%1 n’accepte pas de valeur.</translation>
    </message>
    <message>
        <source>--replay and --record do not go together.</source>
        <translation>--replay et --record ne peuvent pas être utilisés ensemble.</translation>
    </message>
    <message>
        <source>--no-dialog and --screenshot do not go together.</source>
        <translation>--no-dialog et --screenshot ne peuvent pas être utilisés ensemble.</translation>
    </message>
    <message>
        <source>--no-dialog needs a document to print.</source>
        <translation>--no-dialog attend un document à imprimer.</translation>
    </message>
    <message>
        <source>--yes is for --no-dialog.</source>
        <translation>--yes ne s’utilise qu’avec --no-dialog.</translation>
    </message>
    <message>
        <source>The value of %1 is no UTF-8 text.</source>
        <translation>La valeur de %1 n’est pas un texte UTF-8.</translation>
    </message>
    <message>
        <source>--check-ppd only looks at a PPD: it prints and replays nothing.</source>
        <translation>--check-ppd examine seulement un fichier PPD : rien n’est imprimé et aucun script n’est exécuté.</translation>
    </message>
    <message>
        <source>--no-dialog and --panel do not go together.</source>
        <translation>--no-dialog et --panel ne vont pas ensemble.</translation>
    </message>
    <message>
        <source>--forget-alerts only has the warnings shown again: it prints nothing.</source>
        <translation>--forget-alerts fait seulement réafficher les avertissements ; il n’imprime rien.</translation>
    </message>
    <message>
        <source>--why needs KEY=VALUE, not &quot;%1&quot;.</source>
        <translation>--why attend KEY=VALUE, et non « %1 ».</translation>
    </message>
    <message>
        <source>--why only tells of a setting: it prints and replays nothing.</source>
        <translation>--why ne fait que renseigner sur un réglage : il n’imprime et n’exécute rien.</translation>
    </message>
    <message>
        <source>--json is for --why.</source>
        <translation>--json va avec --why.</translation>
    </message>
    <message>
        <source>--explain is for --no-dialog.</source>
        <translation>--explain va avec --no-dialog.</translation>
    </message>
    <message>
        <source>--dry-run is for --no-dialog.</source>
        <translation>--dry-run va avec --no-dialog.</translation>
    </message>
    <message>
        <source>--dry-run and --record do not go together.</source>
        <translation>--dry-run et --record ne vont pas ensemble.</translation>
    </message>
    <message>
        <source>--timeout needs a number of seconds from 0 to %1, not &quot;%2&quot;.</source>
        <translation>--timeout demande un nombre de secondes de 0 à %1, et non « %2 ».</translation>
    </message>
    <message>
        <source>--wait is for --no-dialog, where the job is sent to a printer.</source>
        <translation>--wait s’emploie avec --no-dialog, quand le travail est envoyé à une imprimante.</translation>
    </message>
    <message>
        <source>--timeout is for --wait.</source>
        <translation>--timeout s’emploie avec --wait.</translation>
    </message>
    <message>
        <source>--password-fd needs the number of an open file, not &quot;%1&quot;.</source>
        <translation>--password-fd demande le numéro d’un fichier ouvert, et non « %1 ».</translation>
    </message>
    <message>
        <source>--password-fd is for --no-dialog.</source>
        <translation>--password-fd va avec --no-dialog.</translation>
    </message>
    <message>
        <source>--each is for --no-dialog, where the jobs are sent to a printer.</source>
        <translation>--each s’emploie avec --no-dialog, quand les travaux sont envoyés à une imprimante.</translation>
    </message>
</context>
<context>
    <name>Conflicts</name>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>« %1 »</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be chosen: the printer does not allow it together with %2.</source>
        <translation>« %1 » ne peut pas être choisi : l’imprimante ne l’accepte pas avec %2.</translation>
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
        <translation>pouces</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unité</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>&amp;Largeur :</translation>
    </message>
    <message>
        <source>Too small: at least %1.</source>
        <translation>Trop petit : au moins %1.</translation>
    </message>
    <message>
        <source>Too large: at most %1.</source>
        <translation>Trop grand : au plus %1.</translation>
    </message>
    <message>
        <source>H&amp;eight:</source>
        <translation>Ha&amp;uteur :</translation>
    </message>
</context>
<context>
    <name>CustomValueFields</name>
    <message>
        <source>%1:</source>
        <translation>%1 :</translation>
    </message>
</context>
<context>
    <name>DialogCommand</name>
    <message>
        <source>There is no display for the dialog; --no-dialog prints without it.</source>
        <translation>Aucun écran n’est disponible pour la boîte de dialogue ; --no-dialog imprime sans elle.</translation>
    </message>
</context>
<context>
    <name>DialogAdvice</name>
    <message>
        <source>Why is there no &quot;%1&quot;?</source>
        <translation>Pourquoi « %1 » n’est-il pas proposé ?</translation>
    </message>
    <message>
        <source>Everything here can be chosen.</source>
        <translation>Tout peut être choisi ici.</translation>
    </message>
    <message>
        <source>Not to be had now: %1
Shift+F1 or the context menu tells why.</source>
        <translation>Pas disponible actuellement : %1
Maj+F1 ou le menu contextuel dit pourquoi.</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Finding out…</source>
        <translation>Recherche en cours…</translation>
    </message>
    <message>
        <source>This cannot be explained.</source>
        <translation>Cela ne peut pas être expliqué.</translation>
    </message>
    <message>
        <source>With that: %1</source>
        <translation>Avec cela : %1</translation>
    </message>
    <message>
        <source>Get It</source>
        <translation>L’obtenir</translation>
    </message>
    <message>
        <source>All %1</source>
        <translation>Tout voir (%1)</translation>
    </message>
</context>
<context>
    <name>DialogWindow</name>
    <message>
        <source>Leave It</source>
        <translation>Laisser ainsi</translation>
    </message>
    <message>
        <source>This printer has nothing for the part %1.</source>
        <translation>Cette imprimante n’a rien pour la partie %1.</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Use It</source>
        <translation>Utiliser</translation>
    </message>
    <message>
        <source>Velkaro Print</source>
        <translation>Velkaro Print</translation>
    </message>
    <message>
        <source>The settings of this panel cannot be shown: a part of the plug-in is missing. Install Velkaro Print again.</source>
        <translation>Les réglages de ce volet ne peuvent pas être affichés : une partie du module est absente. Réinstallez Velkaro Print.</translation>
    </message>
    <message>
        <source>The printer cannot take the paper size in Page Setup. Correct it there to print.</source>
        <translation>L’imprimante n’accepte pas le format de papier indiqué dans « Mise en page ». Corrigez-le pour imprimer.</translation>
    </message>
    <message>
        <source>Save Job</source>
        <translation>Enregistrer le travail</translation>
    </message>
    <message>
        <source>Print jobs (*.velkaro-job);;All files (*)</source>
        <translation>Travaux d’impression (*.velkaro-job);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Sending the job to %1…</source>
        <translation>Envoi du travail à %1…</translation>
    </message>
    <message>
        <source>Job %1 was accepted. %2</source>
        <translation>Le travail %1 a été accepté. %2</translation>
    </message>
    <message>
        <source>Looking for a printer…</source>
        <translation>Recherche d’une imprimante…</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>Lecture de %1…</translation>
    </message>
    <message>
        <source>Asking %1 about its settings…</source>
        <translation>Lecture des réglages de %1…</translation>
    </message>
    <message>
        <source>%1 It prints with the settings of this dialog alone.</source>
        <translation>%1 L’impression se fera avec les seuls réglages de cette boîte de dialogue.</translation>
    </message>
    <message>
        <source>There is no panel %1.</source>
        <translation>Le volet %1 n’existe pas.</translation>
    </message>
    <message>
        <source>Choose a document to print.</source>
        <translation>Choisissez un document à imprimer.</translation>
    </message>
    <message>
        <source>No queue was chosen: the job can be saved to a file.</source>
        <translation>Aucune file d’attente n’est choisie : le travail peut être enregistré dans un fichier.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Save to &amp;File…</source>
        <translation>Enregistrer dans un &amp;fichier…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Choose Documents</source>
        <translation>Choisir des documents</translation>
    </message>
    <message>
        <source>Documents (%1);;All files (*)</source>
        <translation>Documents (%1);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Print Again</source>
        <translation>Imprimer à nouveau</translation>
    </message>
    <message>
        <source>Writing the job to %1…</source>
        <translation>Écriture du travail dans %1…</translation>
    </message>
    <message>
        <source>Reading the document to its end…</source>
        <translation>Lecture du document jusqu’à la fin…</translation>
    </message>
    <message>
        <source>%1 exists already. Replace it?</source>
        <translation>%1 existe déjà. Remplacer ce fichier ?</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>The printer %1 is no longer on the print server. Choose another one; the settings of this job stay.</source>
        <translation>L’imprimante %1 n’est plus sur le serveur d’impression. Choisissez-en une autre ; les réglages de ce travail restent.</translation>
    </message>
    <message>
        <source>Go on with this job?</source>
        <translation>Poursuivre avec ce travail ?</translation>
    </message>
    <message>
        <source>Go On</source>
        <translation>Poursuivre</translation>
    </message>
    <message>
        <source>A value in Printer Features cannot be used. Correct it there to print.</source>
        <translation>Une valeur dans « Fonctions de l’imprimante » ne peut pas être utilisée. Corrigez-la pour imprimer.</translation>
    </message>
    <message>
        <source>Choose the printer for this saved job.</source>
        <translation>Choisissez l’imprimante de ce travail enregistré.</translation>
    </message>
    <message>
        <source>This job is printed with the settings that it was saved with.</source>
        <translation>Ce travail est imprimé avec les réglages enregistrés avec lui.</translation>
    </message>
    <message>
        <source>This job sets %1, which Velkaro Print does not write. Print it all the same?</source>
        <translation>Ce travail définit %1, que Velkaro Print n’écrit pas. L’imprimer malgré tout ?</translation>
    </message>
    <message>
        <source>Saved Job</source>
        <translation>Travail enregistré</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Document</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Undone.</source>
        <translation>Action annulée.</translation>
    </message>
    <message>
        <source>Done again.</source>
        <translation>Action rétablie.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler l’action</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Trust It</source>
        <translation>Lui faire confiance</translation>
    </message>
    <message>
        <source>Print job %1 all the same?</source>
        <translation>Imprimer quand même le travail %1 ?</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>Annuler le travail</translation>
    </message>
    <message>
        <source>Job %1 was cancelled.</source>
        <translation>Le travail %1 a été annulé.</translation>
    </message>
    <message>
        <source>What is shown are the former settings.</source>
        <translation>Les réglages affichés sont encore les anciens.</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Recharger</translation>
    </message>
    <message>
        <source>Your settings are as they were.</source>
        <translation>Vos réglages sont inchangés.</translation>
    </message>
    <message>
        <source>Look at the settings before you print.</source>
        <translation>Vérifiez les réglages avant d’imprimer.</translation>
    </message>
</context>
<context>
    <name>DialogTabs</name>
    <message>
        <source>All Parts</source>
        <translation>Toutes les parties</translation>
    </message>
    <message>
        <source>Page Setup</source>
        <translation>Mise en page</translation>
    </message>
    <message>
        <source>Printer Features</source>
        <translation>Fonctions de l’imprimante</translation>
    </message>
    <message>
        <source>Layout &amp; Job</source>
        <translation>Disposition &amp; travail</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Récapitulatif</translation>
    </message>
    <message>
        <source>Supplies</source>
        <translation>Consommables</translation>
    </message>
</context>
<context>
    <name>Document</name>
    <message>
        <source>The document %1 has become shorter or longer since it was opened.</source>
        <translation>La longueur du document %1 a changé depuis son ouverture.</translation>
    </message>
    <message>
        <source>The document %1 cannot be read to its end.</source>
        <translation>Le document %1 ne peut pas être lu jusqu’à la fin.</translation>
    </message>
</context>
<context>
    <name>DocumentFile</name>
    <message>
        <source>The document %1 does not exist.</source>
        <translation>Le document %1 n’existe pas.</translation>
    </message>
    <message>
        <source>%1 is a folder, not a document.</source>
        <translation>%1 est un dossier, pas un document.</translation>
    </message>
    <message>
        <source>The document %1 is empty.</source>
        <translation>Le document %1 est vide.</translation>
    </message>
    <message>
        <source>The document %1 cannot be read: %2.</source>
        <translation>Le document %1 ne peut pas être lu : %2.</translation>
    </message>
    <message>
        <source>%1 is a named pipe, not a document.</source>
        <translation>%1 est un tube nommé, pas un document.</translation>
    </message>
    <message>
        <source>%1 is a socket, not a document.</source>
        <translation>%1 est un socket, pas un document.</translation>
    </message>
    <message>
        <source>%1 is a device, not a document.</source>
        <translation>%1 est un périphérique, pas un document.</translation>
    </message>
    <message>
        <source>Standard input</source>
        <translation>Entrée standard</translation>
    </message>
</context>
<context>
    <name>HoldField</name>
    <message>
        <source>At a time of day</source>
        <translation>À une heure donnée</translation>
    </message>
    <message>
        <source>Time of day</source>
        <translation>Heure</translation>
    </message>
</context>
<context>
    <name>Explanation</name>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>It can be had with: %1</source>
        <translation>C’est possible avec : %1</translation>
    </message>
</context>
<context>
    <name>FeaturePicks</name>
    <message>
        <source>&quot;%1&quot; needs at least one choice.</source>
        <translation>« %1 » demande au moins un choix.</translation>
    </message>
    <message>
        <source>The printer does not take &quot;%1: %2&quot;.</source>
        <translation>L’imprimante n’accepte pas « %1 : %2 ».</translation>
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
        <translation>%1 doit être un nombre.</translation>
    </message>
    <message>
        <source>%1 is at least %2.</source>
        <translation>%1 doit être au moins %2.</translation>
    </message>
    <message>
        <source>%1 is at most %2.</source>
        <translation>%1 doit être au plus %2.</translation>
    </message>
    <message>
        <source>%1 has at least %2 characters.</source>
        <translation>%1 doit avoir au moins %2 caractères.</translation>
    </message>
    <message>
        <source>%1 has at most %2 characters.</source>
        <translation>%1 doit avoir au plus %2 caractères.</translation>
    </message>
    <message>
        <source>%1 consists of digits.</source>
        <translation>%1 ne doit contenir que des chiffres.</translation>
    </message>
</context>
<context>
    <name>FeaturesPane</name>
    <message>
        <source>%1:</source>
        <translation>%1 :</translation>
    </message>
    <message>
        <source>Installed in the Printer</source>
        <translation>Équipement de l’imprimante</translation>
    </message>
    <message>
        <source>What the printer has been fitted with. It is set when the printer is set up, for everybody, and can only be looked at here.</source>
        <translation>Ce dont l’imprimante est équipée. Cela se règle à l’installation de l’imprimante, pour tous, et ne peut être que consulté ici.</translation>
    </message>
</context>
<context>
    <name>ForgetCommand</name>
    <message>
        <source>%1 is no plug-in.</source>
        <translation>%1 n’est pas un module.</translation>
    </message>
    <message>
        <source>The user&apos;s settings cannot be written.</source>
        <translation>Les réglages de l’utilisateur ne peuvent pas être écrits.</translation>
    </message>
    <message>
        <source>Shown again: %1</source>
        <translation>S’affichera de nouveau : %1</translation>
    </message>
</context>
<context>
    <name>HiddenAlertsDialog</name>
    <message>
        <source>Hidden Warnings</source>
        <translation>Avertissements masqués</translation>
    </message>
    <message>
        <source>You have asked not to be shown these warnings again. Select those to be shown.</source>
        <translation>Vous avez demandé à ne plus voir ces avertissements. Sélectionnez ceux à afficher de nouveau.</translation>
    </message>
    <message>
        <source>Show Again</source>
        <translation>Afficher de nouveau</translation>
    </message>
    <message>
        <source>Show All Again</source>
        <translation>Tous les afficher de nouveau</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>HostHelp</name>
    <message>
        <source>Page Setup holds the paper, its orientation, two-sided printing and what else the printer leaves to this dialog. A size of your own is entered below the paper; a word beside the field says when the printer cannot take it.</source>
        <translation>« Mise en page » réunit le papier, son orientation, l’impression recto verso et tout ce que l’imprimante confie à cette boîte de dialogue. Un format personnalisé se saisit sous le papier ; un mot à côté du champ signale que l’imprimante ne l’accepte pas.</translation>
    </message>
    <message>
        <source>When the printer does not allow two settings together, the second one is not made, and a line below the tabs names both.</source>
        <translation>Lorsque l’imprimante n’accepte pas deux réglages ensemble, le second n’est pas appliqué et une ligne sous les onglets les nomme tous deux.</translation>
    </message>
    <message>
        <source>Summary lists everything that will be printed with. &quot;Save to File&quot; keeps the job with its documents; open it here later, as a document, to print it.</source>
        <translation>« Récapitulatif » indique tout ce avec quoi l’impression se fera. « Enregistrer dans un fichier » conserve le travail avec ses documents ; ouvrez-le ici plus tard, comme un document, pour l’imprimer.</translation>
    </message>
    <message>
        <source>Print Help</source>
        <translation>Aide sur l’impression</translation>
    </message>
    <message>
        <source>&quot;Scaling&quot; says how the pages of the document come to the size of the paper in the printer. What comes of each choice stands below it.</source>
        <translation>« Mise à l’échelle » dit comment les pages du document sont mises à la taille du papier dans l’imprimante. L’effet de chaque choix est indiqué en dessous.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Ctrl+Z takes back what you have set, step by step, and Ctrl+Shift+Z does it again. Shift+F1 and the context menu of a setting tell why something cannot be chosen there, and how it can.</source>
        <translation>Ctrl+Z annule pas à pas ce que vous avez réglé, et Ctrl+Maj+Z le rétablit. Maj+F1 et le menu contextuel d’un réglage disent pourquoi une valeur n’y peut pas être choisie, et comment l’obtenir.</translation>
    </message>
</context>
<context>
    <name>JobAuthentication</name>
    <message>
        <source>Job %1 on %2 stays held: nobody has said who prints.</source>
        <translation>Le travail %1 sur %2 reste retenu : personne n’a dit qui imprime.</translation>
    </message>
    <message>
        <source>The printer behind %1 wants to know who prints, and nobody has said it.</source>
        <translation>L’imprimante derrière %1 veut savoir qui imprime, et personne ne l’a dit.</translation>
    </message>
</context>
<context>
    <name>JobDispatch</name>
    <message>
        <source>Job %1 on %2 was cancelled; --yes prints it all the same.</source>
        <translation>Le travail %1 sur %2 a été annulé ; --yes l’imprime quand même.</translation>
    </message>
    <message>
        <source>Not sent: %1</source>
        <translation>Non envoyés : %1</translation>
    </message>
</context>
<context>
    <name>JobDoubts</name>
    <message>
        <source>A booklet has two pages on a side, not %1.</source>
        <translation>Un livret a deux pages par côté, et non %1.</translation>
    </message>
    <message>
        <source>A booklet needs both sides of the paper; this job is printed on one.</source>
        <translation>Un livret demande les deux côtés du papier ; ce travail est imprimé sur un seul.</translation>
    </message>
    <message>
        <source>The printer cannot print on both sides of this paper: %1.</source>
        <translation>L’imprimante ne peut pas imprimer ce papier recto verso : %1.</translation>
    </message>
    <message>
        <source>For %1 there is &quot;%2&quot;.</source>
        <translation>Pour %1, il y a « %2 ».</translation>
    </message>
    <message>
        <source>With several pages on a sheet, &quot;Pages&quot; and &quot;Even and Odd&quot; count the printed sides.</source>
        <translation>Avec plusieurs pages par feuille, « Pages » et « Paires et impaires » comptent les côtés imprimés.</translation>
    </message>
</context>
<context>
    <name>JobFile</name>
    <message>
        <source>The saved job %1 is damaged, or another version of Velkaro Print has written it.</source>
        <translation>Le travail enregistré %1 est endommagé, ou a été écrit par une autre version de Velkaro Print.</translation>
    </message>
    <message>
        <source>%1 is no saved job.</source>
        <translation>%1 n’est pas un travail enregistré.</translation>
    </message>
    <message>
        <source>The saved job %1 is damaged.</source>
        <translation>Le travail enregistré %1 est endommagé.</translation>
    </message>
    <message>
        <source>The saved job %1 is cut short: its end is missing.</source>
        <translation>Le travail enregistré %1 est tronqué : la fin est absente.</translation>
    </message>
    <message>
        <source>The saved job %1 is damaged: its header has no end.</source>
        <translation>Le travail enregistré %1 est endommagé : son en-tête n’a pas de fin.</translation>
    </message>
    <message>
        <source>The saved job %1 has too many documents: %2 are the most.</source>
        <translation>Le travail enregistré %1 contient trop de documents : %2 au maximum.</translation>
    </message>
    <message>
        <source>The saved job %1 has too many settings: %2 are the most.</source>
        <translation>Le travail enregistré %1 contient trop de réglages : %2 au maximum.</translation>
    </message>
    <message>
        <source>%1 would have too many documents: %2 are the most.</source>
        <translation>%1 contiendrait trop de documents : %2 au maximum.</translation>
    </message>
    <message>
        <source>The job was not written.</source>
        <translation>Le travail n’a pas été écrit.</translation>
    </message>
</context>
<context>
    <name>JobHeader</name>
    <message>
        <source>C&amp;hoose…</source>
        <translation>C&amp;hoisir…</translation>
    </message>
    <message>
        <source>All, or 1-3, 5</source>
        <translation>Toutes, ou 1-3, 5</translation>
    </message>
    <message>
        <source>Document:</source>
        <translation>Document :</translation>
    </message>
    <message>
        <source>Pri&amp;nter:</source>
        <translation>I&amp;mprimante :</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>&amp;Copies :</translation>
    </message>
    <message>
        <source>Pa&amp;ges:</source>
        <translation>Pa&amp;ges :</translation>
    </message>
    <message>
        <source>No document</source>
        <translation>Aucun document</translation>
    </message>
    <message>
        <source>Pages look like this: 1-3, 5</source>
        <translation>Les pages s’indiquent ainsi : 1-3, 5</translation>
    </message>
    <message>
        <source>Preset:</source>
        <translation>Préréglage :</translation>
    </message>
    <message>
        <source>%1 is beyond page %2</source>
        <translation>%1 dépasse la page %2</translation>
    </message>
    <message>
        <source>%1 in all</source>
        <translation>%1 en tout</translation>
    </message>
    <message>
        <source>How many there are is not known</source>
        <translation>Leur nombre n’est pas connu</translation>
    </message>
    <message>
        <source>%1 is beyond side %2</source>
        <translation>%1 dépasse le côté %2</translation>
    </message>
    <message>
        <source>%1 sides in all</source>
        <translation>%1 côtés en tout</translation>
    </message>
</context>
<context>
    <name>JobLayout</name>
    <message>
        <source>Across, from the top left</source>
        <translation>En ligne, depuis le haut à gauche</translation>
    </message>
    <message>
        <source>Across, from the top right</source>
        <translation>En ligne, depuis le haut à droite</translation>
    </message>
    <message>
        <source>Across, from the bottom left</source>
        <translation>En ligne, depuis le bas à gauche</translation>
    </message>
    <message>
        <source>Across, from the bottom right</source>
        <translation>En ligne, depuis le bas à droite</translation>
    </message>
    <message>
        <source>Down, from the top left</source>
        <translation>Vers le bas, depuis le haut à gauche</translation>
    </message>
    <message>
        <source>Down, from the top right</source>
        <translation>Vers le bas, depuis le haut à droite</translation>
    </message>
    <message>
        <source>Up, from the bottom left</source>
        <translation>Vers le haut, depuis le bas à gauche</translation>
    </message>
    <message>
        <source>Up, from the bottom right</source>
        <translation>Vers le haut, depuis le bas à droite</translation>
    </message>
    <message>
        <source>No border</source>
        <translation>Sans cadre</translation>
    </message>
    <message>
        <source>Thin line</source>
        <translation>Trait fin</translation>
    </message>
    <message>
        <source>Thick line</source>
        <translation>Trait épais</translation>
    </message>
    <message>
        <source>Two thin lines</source>
        <translation>Deux traits fins</translation>
    </message>
    <message>
        <source>Two thick lines</source>
        <translation>Deux traits épais</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>Toutes les pages</translation>
    </message>
    <message>
        <source>Odd pages only</source>
        <translation>Pages impaires seulement</translation>
    </message>
    <message>
        <source>Even pages only</source>
        <translation>Pages paires seulement</translation>
    </message>
    <message>
        <source>First page first</source>
        <translation>Première page d’abord</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>Dernière page d’abord</translation>
    </message>
    <message>
        <source>Copy by copy</source>
        <translation>Exemplaire par exemplaire</translation>
    </message>
    <message>
        <source>Page by page</source>
        <translation>Page par page</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Maintenant</translation>
    </message>
    <message>
        <source>When somebody releases it</source>
        <translation>Quand quelqu’un le libère</translation>
    </message>
    <message>
        <source>By day (6:00 to 18:00)</source>
        <translation>Le jour (6:00 à 18:00)</translation>
    </message>
    <message>
        <source>In the evening (from 18:00)</source>
        <translation>Le soir (dès 18:00)</translation>
    </message>
    <message>
        <source>At night (18:00 to 6:00)</source>
        <translation>La nuit (18:00 à 6:00)</translation>
    </message>
    <message>
        <source>In the second shift (from 16:00)</source>
        <translation>Au deuxième poste (dès 16:00)</translation>
    </message>
    <message>
        <source>In the third shift (from midnight)</source>
        <translation>Au troisième poste (dès minuit)</translation>
    </message>
    <message>
        <source>At the weekend</source>
        <translation>Le week-end</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Unclassified</source>
        <translation>Non classifié</translation>
    </message>
    <message>
        <source>Classified</source>
        <translation>Classifié</translation>
    </message>
    <message>
        <source>Confidential</source>
        <translation>Confidentiel</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>Secret</translation>
    </message>
    <message>
        <source>Top secret</source>
        <translation>Très secret</translation>
    </message>
    <message>
        <source>At %1</source>
        <translation>À %1</translation>
    </message>
    <message>
        <source>%1 before the job</source>
        <translation>%1 avant le travail</translation>
    </message>
    <message>
        <source>%1 after the job</source>
        <translation>%1 après le travail</translation>
    </message>
    <message>
        <source>%1 before the job, %2 after it</source>
        <translation>%1 avant le travail, %2 après</translation>
    </message>
    <message>
        <source>Pages per Sheet</source>
        <translation>Pages par feuille</translation>
    </message>
    <message>
        <source>Order on the Sheet</source>
        <translation>Ordre sur la feuille</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Cadre</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Livret</translation>
    </message>
    <message>
        <source>Even and Odd</source>
        <translation>Paires et impaires</translation>
    </message>
    <message>
        <source>Page Order</source>
        <translation>Ordre des pages</translation>
    </message>
    <message>
        <source>Several Copies</source>
        <translation>Plusieurs exemplaires</translation>
    </message>
    <message>
        <source>When to Print</source>
        <translation>Moment de l’impression</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Priorité</translation>
    </message>
    <message>
        <source>Cover Pages</source>
        <translation>Pages de garde</translation>
    </message>
    <message>
        <source>Notification</source>
        <translation>Notification</translation>
    </message>
</context>
<context>
    <name>JobOptions</name>
    <message>
        <source>The setting %1 cannot be sent: &quot;%2&quot; is no value that a print server may be given.</source>
        <translation>Le réglage %1 ne peut pas être envoyé : « %2 » n’est pas une valeur admise pour un serveur d’impression.</translation>
    </message>
    <message>
        <source>The setting &quot;%1&quot; cannot be sent: a print server may be given no setting of that name.</source>
        <translation>Le réglage « %1 » ne peut pas être envoyé : un serveur d’impression n’admet aucun réglage de ce nom.</translation>
    </message>
</context>
<context>
    <name>JobReadBack</name>
    <message>
        <source>The printer is stopped; job %1 waits (%2).</source>
        <translation>L’imprimante est arrêtée ; le travail %1 attend (%2).</translation>
    </message>
    <message>
        <source>The server holds job %1 (%2).</source>
        <translation>Le serveur a mis le travail %1 en attente (%2).</translation>
    </message>
    <message>
        <source>The server dropped the setting %1=%2.</source>
        <translation>Le serveur a écarté le réglage %1=%2.</translation>
    </message>
    <message>
        <source>The server changed the setting %1 from %2 to %3.</source>
        <translation>Le serveur a remplacé %2 par %3 pour le réglage %1.</translation>
    </message>
    <message>
        <source>The server has cancelled job %1 (%2).</source>
        <translation>Le serveur a annulé le travail %1 (%2).</translation>
    </message>
    <message>
        <source>The server has aborted job %1 (%2).</source>
        <translation>Le serveur a interrompu le travail %1 (%2).</translation>
    </message>
    <message>
        <source>The server has ended job %1 with errors (%2).</source>
        <translation>Le serveur a terminé le travail %1 avec des erreurs (%2).</translation>
    </message>
    <message>
        <source>Whether the server keeps all settings of job %1 is not known: its account of the job cannot be read.</source>
        <translation>On ignore si le serveur conserve tous les réglages du travail %1 : ses indications sur le travail sont illisibles.</translation>
    </message>
    <message>
        <source>The server set %1 to %2, where %3 was shown.</source>
        <translation>Le serveur a donné à %1 la valeur %2, alors que %3 était affiché.</translation>
    </message>
    <message>
        <source>The server set %1 to %2, which was not shown.</source>
        <translation>Le serveur a donné à %1 la valeur %2, qui n’était pas affichée.</translation>
    </message>
</context>
<context>
    <name>JobSentence</name>
    <message>
        <source>Job %1 on %2 is waiting for its turn.</source>
        <translation>Le travail %1 sur %2 attend son tour.</translation>
    </message>
    <message>
        <source>Job %1 on %2 is held.</source>
        <translation>Le travail %1 sur %2 est retenu.</translation>
    </message>
    <message>
        <source>Job %1 on %2 is held: %3.</source>
        <translation>Le travail %1 sur %2 est retenu : %3.</translation>
    </message>
    <message>
        <source>Job %1 on %2 is held: it will be tried again later.</source>
        <translation>Le travail %1 sur %2 est retenu ; il sera réessayé plus tard.</translation>
    </message>
    <message>
        <source>Job %1 on %2 is held and will be tried again later: %3.</source>
        <translation>Le travail %1 sur %2 est retenu et sera réessayé plus tard : %3.</translation>
    </message>
    <message>
        <source>Job %1 on %2 is held until its printer is given a user name and a password.</source>
        <translation>Le travail %1 sur %2 est retenu jusqu’à ce que son imprimante reçoive un nom d’utilisateur et un mot de passe.</translation>
    </message>
    <message>
        <source>Job %1 on %2 is printing.</source>
        <translation>Le travail %1 sur %2 est en cours d’impression.</translation>
    </message>
    <message>
        <source>Job %1 on %2: the printer needs somebody.</source>
        <translation>Travail %1 sur %2 : l’imprimante a besoin de quelqu’un.</translation>
    </message>
    <message>
        <source>Job %1 on %2: the printer needs somebody: %3.</source>
        <translation>Travail %1 sur %2 : l’imprimante a besoin de quelqu’un : %3.</translation>
    </message>
    <message>
        <source>Job %1 on %2 is waiting: the printer is stopped.</source>
        <translation>Le travail %1 sur %2 attend : l’imprimante est arrêtée.</translation>
    </message>
    <message>
        <source>Job %1 on %2 is waiting: the printer is stopped: %3.</source>
        <translation>Le travail %1 sur %2 attend : l’imprimante est arrêtée : %3.</translation>
    </message>
    <message>
        <source>Job %1 on %2 is printed.</source>
        <translation>Le travail %1 sur %2 est imprimé.</translation>
    </message>
    <message>
        <source>Job %1 on %2 has ended with errors.</source>
        <translation>Le travail %1 sur %2 s’est terminé avec des erreurs.</translation>
    </message>
    <message>
        <source>Job %1 on %2 has ended with errors: %3.</source>
        <translation>Le travail %1 sur %2 s’est terminé avec des erreurs : %3.</translation>
    </message>
    <message>
        <source>Job %1 on %2 was cancelled.</source>
        <translation>Le travail %1 sur %2 a été annulé.</translation>
    </message>
    <message>
        <source>The server has given job %1 on %2 up.</source>
        <translation>Le serveur a abandonné le travail %1 sur %2.</translation>
    </message>
    <message>
        <source>The server has given job %1 on %2 up: %3.</source>
        <translation>Le serveur a abandonné le travail %1 sur %2 : %3.</translation>
    </message>
    <message>
        <source>The server has no record of job %1 on %2 any more: whether it was printed is not known.</source>
        <translation>Le serveur n’a plus trace du travail %1 sur %2 : on ne sait pas s’il a été imprimé.</translation>
    </message>
    <message>
        <source>Job %1 on %2 is held until somebody releases it.</source>
        <translation>Le travail %1 sur %2 est retenu jusqu’à ce que quelqu’un le libère.</translation>
    </message>
    <message>
        <source>Job %1 on %2 is held. %3: %4.</source>
        <translation>Le travail %1 sur %2 est retenu. %3 : %4.</translation>
    </message>
    <message>
        <source>Job %1 on %2 is held until %3.</source>
        <translation>Le travail %1 sur %2 est retenu jusqu’à %3.</translation>
    </message>
    <message>
        <source>Job %1 on %2 is printing, %3 sheets so far.</source>
        <translation>Le travail %1 sur %2 est en cours d’impression, feuilles jusqu’ici : %3.</translation>
    </message>
    <message>
        <source>Job %1 on %2 is printing page %3 of %4.</source>
        <translation>Travail %1 sur %2 : impression de la page %3 sur %4.</translation>
    </message>
</context>
<context>
    <name>JobSettlement</name>
    <message>
        <source>%1 Job %2 on %3 could not be cancelled at %4 and may be printed.</source>
        <translation>%1 Le travail %2 sur %3 n’a pas pu être annulé sur %4 et sera peut-être imprimé.</translation>
    </message>
    <message>
        <source>The print server %1 cancelled job %2 on %3.</source>
        <translation>Le serveur d’impression %1 a annulé le travail %2 sur %3.</translation>
    </message>
    <message>
        <source>The print server %1 aborted job %2 on %3.</source>
        <translation>Le serveur d’impression %1 a interrompu le travail %2 sur %3.</translation>
    </message>
    <message>
        <source>The print server %1 did not say whether it took the job: it may have been printed as job %2 on %3.</source>
        <translation>Le serveur d’impression %1 n’a pas indiqué s’il acceptait le travail : celui-ci a peut-être été imprimé comme travail %2 sur %3.</translation>
    </message>
    <message>
        <source>The server holds job %1, which could not be released: %2</source>
        <translation>Le serveur retient le travail %1, qui n’a pas pu être libéré : %2</translation>
    </message>
    <message>
        <source>Job %1 on %2 was cancelled: %3</source>
        <translation>Le travail %1 sur %2 a été annulé : %3</translation>
    </message>
    <message>
        <source>Nothing was printed on %1: %2</source>
        <translation>Rien n’a été imprimé sur %1 : %2</translation>
    </message>
</context>
<context>
    <name>JobSubmission</name>
    <message>
        <source>The queue %1 takes no jobs at present.</source>
        <translation>La file d’attente %1 n’accepte pas de travaux pour le moment.</translation>
    </message>
</context>
<context>
    <name>JobSummary</name>
    <message>
        <source>Page Setup</source>
        <translation>Mise en page</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Paysage</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Portrait</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Toutes</translation>
    </message>
    <message>
        <source>By the Printer</source>
        <translation>Par l’imprimante</translation>
    </message>
    <message>
        <source>By the Application</source>
        <translation>Par l’application</translation>
    </message>
    <message>
        <source>Layout &amp; Job</source>
        <translation>Disposition &amp; travail</translation>
    </message>
    <message>
        <source>Also Sent</source>
        <translation>Également envoyé</translation>
    </message>
    <message>
        <source>Printer Features</source>
        <translation>Fonctions de l’imprimante</translation>
    </message>
</context>
<context>
    <name>JobTrial</name>
    <message>
        <source>Job %1 is held on %2 and could not be released: %3</source>
        <translation>Le travail %1 est retenu sur %2 et n’a pas pu être libéré : %3</translation>
    </message>
    <message>
        <source>Job %1 is held on %2 and could not be cancelled: %3</source>
        <translation>Le travail %1 est retenu sur %2 et n’a pas pu être annulé : %3</translation>
    </message>
</context>
<context>
    <name>JobWait</name>
    <message>
        <source>Job %1 on %2 was not waited for any longer; it stays where it is.</source>
        <translation>Le travail %1 sur %2 n’a pas été attendu plus longtemps ; il reste où il est.</translation>
    </message>
    <message>
        <source>Job %1 on %2 goes on without being waited for.</source>
        <translation>Le travail %1 sur %2 continue sans être attendu.</translation>
    </message>
</context>
<context>
    <name>JobWindow</name>
    <message>
        <source>Job %1 on %2</source>
        <translation>Travail %1 sur %2</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Retenir</translation>
    </message>
    <message>
        <source>Release</source>
        <translation>Libérer</translation>
    </message>
    <message>
        <source>Print Again</source>
        <translation>Imprimer à nouveau</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>Annuler le travail</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Enter Password…</source>
        <translation>Saisir le mot de passe…</translation>
    </message>
    <message>
        <source>Open Queue</source>
        <translation>Ouvrir la file d’attente</translation>
    </message>
</context>
<context>
    <name>LayoutPane</name>
    <message>
        <source>%1:</source>
        <translation>%1 :</translation>
    </message>
    <message>
        <source>Job Title:</source>
        <translation>Titre du travail :</translation>
    </message>
    <message>
        <source>Cover page before the job</source>
        <translation>Page de garde avant le travail</translation>
    </message>
    <message>
        <source>Cover page after the job</source>
        <translation>Page de garde après le travail</translation>
    </message>
    <message>
        <source>Mail address, or nothing</source>
        <translation>Adresse électronique, ou rien</translation>
    </message>
    <message>
        <source>An address looks like this: me@example.com</source>
        <translation>Une adresse ressemble à : moi@example.com</translation>
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
        <translation>%1 po</translation>
    </message>
</context>
<context>
    <name>LpoptionsFile</name>
    <message>
        <source>The saved settings in %1 cannot be read: %2.</source>
        <translation>Les réglages enregistrés dans %1 ne peuvent pas être lus : %2.</translation>
    </message>
    <message>
        <source>it is no ordinary file</source>
        <translation>ce n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>it has more than %1 MB</source>
        <translation>il dépasse %1 Mo</translation>
    </message>
    <message>
        <source>Another program is changing %1. Try again.</source>
        <translation>Un autre programme est en train de modifier %1. Réessayez.</translation>
    </message>
    <message>
        <source>These are too many settings for one name.</source>
        <translation>Il y a trop de réglages pour un seul nom.</translation>
    </message>
</context>
<context>
    <name>Mnemonics</name>
    <message>
        <source>%1:</source>
        <translation>%1 :</translation>
    </message>
</context>
<context>
    <name>NoDialogCommand</name>
    <message>
        <source>No printer was chosen and there is no default one; -d QUEUE names one.</source>
        <translation>Aucune imprimante n’est choisie et il n’y en a pas par défaut ; -d QUEUE en désigne une.</translation>
    </message>
    <message>
        <source>Printing was cancelled.</source>
        <translation>L’impression a été annulée.</translation>
    </message>
    <message>
        <source>No queue was named to print to; -d QUEUE names one, --output FILE keeps the job.</source>
        <translation>Aucune file d’attente n’est indiquée ; -d QUEUE en désigne une, --output FILE conserve le travail.</translation>
    </message>
    <message>
        <source>The job was written to %1.</source>
        <translation>Le travail a été écrit dans %1.</translation>
    </message>
    <message>
        <source>Sending &quot;%1&quot; to %2.</source>
        <translation>Envoi de « %1 » à %2.</translation>
    </message>
    <message>
        <source>Document: %1 (%2 bytes)</source>
        <translation>Document : %1 (%2 octets)</translation>
    </message>
    <message>
        <source>Setting: %1=%2</source>
        <translation>Réglage : %1=%2</translation>
    </message>
    <message>
        <source>%1 would get the job.</source>
        <translation>%1 recevrait le travail.</translation>
    </message>
    <message>
        <source>The job would be written to %1.</source>
        <translation>Le travail serait écrit dans %1.</translation>
    </message>
    <message>
        <source>%1 would get %2 jobs.</source>
        <translation>%1 recevrait %2 travaux.</translation>
    </message>
    <message>
        <source>The printer %1 is stopped: what is sent waits.</source>
        <translation>L’imprimante %1 est arrêtée : ce qui est envoyé attend.</translation>
    </message>
    <message>
        <source>The printer %1 is stopped: what is sent waits. It says: %2</source>
        <translation>L’imprimante %1 est arrêtée : ce qui est envoyé attend. Elle dit : %2</translation>
    </message>
</context>
<context>
    <name>OptionRows</name>
    <message>
        <source>%1:</source>
        <translation>%1 :</translation>
    </message>
    <message>
        <source>By the P&amp;rinter</source>
        <translation>Par l’imp&amp;rimante</translation>
    </message>
    <message>
        <source>By the Appl&amp;ication</source>
        <translation>Par l’appl&amp;ication</translation>
    </message>
    <message>
        <source>Color Management:</source>
        <translation>Gestion des couleurs :</translation>
    </message>
</context>
<context>
    <name>OriginWords</name>
    <message>
        <source>Because you chose %1: %2</source>
        <translation>Parce que vous avez choisi %1 : %2</translation>
    </message>
    <message>
        <source>Goes with your choices</source>
        <translation>En accord avec vos choix</translation>
    </message>
    <message>
        <source>Saved with the printer</source>
        <translation>Enregistré pour l’imprimante</translation>
    </message>
    <message>
        <source>From the preset %1</source>
        <translation>Du préréglage %1</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Dernier réglage utilisé</translation>
    </message>
    <message>
        <source>From the command line</source>
        <translation>De la ligne de commande</translation>
    </message>
    <message>
        <source>Your choice</source>
        <translation>Votre choix</translation>
    </message>
    <message>
        <source>Goes with the other settings</source>
        <translation>En accord avec les autres réglages</translation>
    </message>
    <message>
        <source>The printer's default</source>
        <translation>Valeur par défaut de l’imprimante</translation>
    </message>
    <message>
        <source>%1: %2 – %3</source>
        <translation>%1 : %2 – %3</translation>
    </message>
</context>
<context>
    <name>OutputFile</name>
    <message>
        <source>The file %1 cannot be written: %2.</source>
        <translation>Le fichier %1 ne peut pas être écrit : %2.</translation>
    </message>
    <message>
        <source>nobody reads from it</source>
        <translation>personne ne le lit</translation>
    </message>
</context>
<context>
    <name>OutputRule</name>
    <message>
        <source>Nothing is written over %1: it is in use for this.</source>
        <translation>%1 n’est pas remplacé : ce fichier sert à l’opération en cours.</translation>
    </message>
    <message>
        <source>%1 is a folder: it cannot be written.</source>
        <translation>%1 est un dossier et ne peut pas être écrit.</translation>
    </message>
    <message>
        <source>The file %1 exists already; --force replaces it.</source>
        <translation>Le fichier %1 existe déjà ; --force le remplace.</translation>
    </message>
</context>
<context>
    <name>OwnSizeFields</name>
    <message>
        <source>&amp;Keep</source>
        <translation>&amp;Garder</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>Re&amp;nommer</translation>
    </message>
    <message>
        <source>Remo&amp;ve</source>
        <translation>Suppri&amp;mer</translation>
    </message>
    <message>
        <source>Name of this size</source>
        <translation>Nom de ce format</translation>
    </message>
</context>
<context>
    <name>PathBytes</name>
    <message>
        <source>standard output</source>
        <translation>la sortie standard</translation>
    </message>
</context>
<context>
    <name>PPDFile</name>
    <message>
        <source>The PPD file %1 does not exist.</source>
        <translation>Le fichier PPD %1 n’existe pas.</translation>
    </message>
    <message>
        <source>%1 is not a PPD file.</source>
        <translation>%1 n’est pas un fichier PPD.</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be read.</source>
        <translation>Le fichier PPD %1 ne peut pas être lu.</translation>
    </message>
    <message>
        <source>The PPD file %1 is too large: it has more than %2 bytes.</source>
        <translation>Le fichier PPD %1 est trop volumineux : il compte plus de %2 octets.</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be used: it has more than %2 lines.</source>
        <translation>Le fichier PPD %1 ne peut pas être utilisé : il compte plus de %2 lignes.</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be used: it has more than %2 groups of options.</source>
        <translation>Le fichier PPD %1 ne peut pas être utilisé : il compte plus de %2 groupes d’options.</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be used: it has more than %2 options.</source>
        <translation>Le fichier PPD %1 ne peut pas être utilisé : il compte plus de %2 options.</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be used: an option has more than %2 choices.</source>
        <translation>Le fichier PPD %1 ne peut pas être utilisé : une option compte plus de %2 choix.</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be used: it has more than %2 papers.</source>
        <translation>Le fichier PPD %1 ne peut pas être utilisé : il compte plus de %2 papiers.</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be used: it has more than %2 custom parameters.</source>
        <translation>Le fichier PPD %1 ne peut pas être utilisé : il compte plus de %2 paramètres personnalisés.</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be used: it has more than %2 UIConstraints.</source>
        <translation>Le fichier PPD %1 ne peut pas être utilisé : il compte plus de %2 UIConstraints.</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be used: it has more than %2 cupsUIConstraints.</source>
        <translation>Le fichier PPD %1 ne peut pas être utilisé : il compte plus de %2 cupsUIConstraints.</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be used: its cupsUIConstraints name more than %2 options.</source>
        <translation>Le fichier PPD %1 ne peut pas être utilisé : ses cupsUIConstraints nomment plus de %2 options.</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be used: it has more than %2 attributes.</source>
        <translation>Le fichier PPD %1 ne peut pas être utilisé : il compte plus de %2 attributs.</translation>
    </message>
    <message>
        <source>The PPD file %1 is damaged: it cannot be unpacked. Get it again.</source>
        <translation>Le fichier PPD %1 est endommagé : il ne peut pas être décompressé. Procurez-vous-le à nouveau.</translation>
    </message>
    <message>
        <source>%1 is not a PPD file (%2).</source>
        <translation>%1 n’est pas un fichier PPD (%2).</translation>
    </message>
    <message>
        <source>%1 is not a usable PPD file (line %2: %3).</source>
        <translation>%1 n’est pas un fichier PPD utilisable (ligne %2 : %3).</translation>
    </message>
    <message>
        <source>The PPD file %1 is incomplete: it ends too early. Get it again.</source>
        <translation>Le fichier PPD %1 est incomplet : il se termine trop tôt. Procurez-vous-le à nouveau.</translation>
    </message>
</context>
<context>
    <name>PanelVeto</name>
    <message>
        <source>The printer&apos;s settings do not allow this job.</source>
        <translation>Les réglages de l’imprimante n’autorisent pas ce travail.</translation>
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
        <translation>Photo</translation>
    </message>
    <message>
        <source>Envelopes and Cards</source>
        <translation>Enveloppes et cartes</translation>
    </message>
    <message>
        <source>Discs</source>
        <translation>Disques</translation>
    </message>
    <message>
        <source>Used Recently</source>
        <translation>Utilisés récemment</translation>
    </message>
    <message>
        <source>Custom Size</source>
        <translation>Format personnalisé</translation>
    </message>
    <message>
        <source>Own Sizes</source>
        <translation>Vos formats</translation>
    </message>
</context>
<context>
    <name>PaperRows</name>
    <message>
        <source>P&amp;aper in the Printer:</source>
        <translation>&amp;Papier dans l’imprimante :</translation>
    </message>
    <message>
        <source>&amp;Borderless</source>
        <translation>&amp;Sans bordure</translation>
    </message>
    <message>
        <source>Document Page:</source>
        <translation>Page du document :</translation>
    </message>
</context>
<context>
    <name>PaperSizes</name>
    <message>
        <source>%1 × %2 in</source>
        <translation>%1 × %2 po</translation>
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
        <translation>&amp;Retenir le mot de passe dans le trousseau</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>&amp;User name:</source>
        <translation>Nom d’&amp;utilisateur :</translation>
    </message>
    <message>
        <source>&amp;Domain:</source>
        <translation>&amp;Domaine :</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>Mot de &amp;passe :</translation>
    </message>
</context>
<context>
    <name>PasswordPrompt</name>
    <message>
        <source>No password can be read from the open file %1 (--password-fd): %2.</source>
        <translation>Aucun mot de passe ne peut être lu dans le fichier ouvert %1 (--password-fd) : %2.</translation>
    </message>
    <message>
        <source>The open file %1 cannot be a document and hold the password (--password-fd).</source>
        <translation>Le fichier ouvert %1 ne peut pas être à la fois un document et contenir le mot de passe (--password-fd).</translation>
    </message>
    <message>
        <source>Domain: </source>
        <translation>Domaine : </translation>
    </message>
    <message>
        <source>Password: </source>
        <translation>Mot de passe : </translation>
    </message>
    <message>
        <source>User name: </source>
        <translation>Nom d’utilisateur : </translation>
    </message>
    <message>
        <source>User name [%1]: </source>
        <translation>Nom d’utilisateur [%1] : </translation>
    </message>
</context>
<context>
    <name>PasswordWords</name>
    <message>
        <source>The print server %1 wants to know who asks for its printers.</source>
        <translation>Le serveur d’impression %1 veut savoir qui demande ses imprimantes.</translation>
    </message>
    <message>
        <source>The print server %1 wants to know who asks for the settings of %2.</source>
        <translation>Le serveur d’impression %1 veut savoir qui demande les réglages de %2.</translation>
    </message>
    <message>
        <source>The print server %1 wants to know who prints to %2.</source>
        <translation>Le serveur d’impression %1 veut savoir qui imprime sur %2.</translation>
    </message>
    <message>
        <source>The print server %1 wants to know who changes a job on %2.</source>
        <translation>Le serveur d’impression %1 veut savoir qui modifie un travail sur %2.</translation>
    </message>
    <message>
        <source>The print server %1 holds the job until the printer behind %2 knows who prints.</source>
        <translation>Le serveur d’impression %1 retient le travail jusqu’à ce que l’imprimante derrière %2 sache qui imprime.</translation>
    </message>
    <message>
        <source>The user name or the password was not right.</source>
        <translation>Le nom d’utilisateur ou le mot de passe n’était pas correct.</translation>
    </message>
    <message>
        <source>The connection is not encrypted: others in the network may read the password.</source>
        <translation>La connexion n’est pas chiffrée : d’autres sur le réseau peuvent lire le mot de passe.</translation>
    </message>
    <message>
        <source>The printer behind %2 on the print server %1 wants to know who prints.</source>
        <translation>L’imprimante derrière %2 sur le serveur d’impression %1 veut savoir qui imprime.</translation>
    </message>
</context>
<context>
    <name>PipeDocuments</name>
    <message>
        <source>There is no room in the temporary folder %1 for the document %2.</source>
        <translation>Il n’y a pas de place dans le dossier temporaire %1 pour le document %2.</translation>
    </message>
    <message>
        <source>The document %1 cannot be kept in the temporary folder %2: %3.</source>
        <translation>Le document %1 ne peut pas être conservé dans le dossier temporaire %2 : %3.</translation>
    </message>
    <message>
        <source>The document %1 is longer than %2 MB, the most that is read from a pipe.</source>
        <translation>Le document %1 dépasse %2 Mo, le maximum lu depuis un tube.</translation>
    </message>
</context>
<context>
    <name>PlacementRows</name>
    <message>
        <source>P&amp;ortrait</source>
        <translation>P&amp;ortrait</translation>
    </message>
    <message>
        <source>&amp;Landscape</source>
        <translation>Pa&amp;ysage</translation>
    </message>
    <message>
        <source>Orientation:</source>
        <translation>Orientation :</translation>
    </message>
    <message>
        <source>&amp;Scaling:</source>
        <translation>Mise à l’é&amp;chelle :</translation>
    </message>
    <message>
        <source>The paper lies on its side, and every page upright on it.</source>
        <translation>Le papier est couché, et chaque page y est droite.</translation>
    </message>
    <message>
        <source>Pages that are wider than high are turned to fill the paper.</source>
        <translation>Les pages plus larges que hautes sont tournées pour remplir le papier.</translation>
    </message>
</context>
<context>
    <name>PlugInLoader</name>
    <message>
        <source>The printer&apos;s settings are missing: there is no plug-in at %1. Install Velkaro Print again.</source>
        <translation>Les réglages de l’imprimante sont absents : il n’y a pas de module dans %1. Réinstallez Velkaro Print.</translation>
    </message>
    <message>
        <source>The plug-in %1 is incomplete: it has no readable Info.json. Install Velkaro Print again.</source>
        <translation>Le module %1 est incomplet : son fichier Info.json est absent ou illisible. Réinstallez Velkaro Print.</translation>
    </message>
    <message>
        <source>The plug-in is incomplete: %1 is missing. Install Velkaro Print again.</source>
        <translation>Le module est incomplet : %1 est absent. Réinstallez Velkaro Print.</translation>
    </message>
    <message>
        <source>The plug-in %1 is incomplete: its library is missing. Install Velkaro Print again.</source>
        <translation>Le module %1 est incomplet : sa bibliothèque est absente. Réinstallez Velkaro Print.</translation>
    </message>
    <message>
        <source>The plug-in is not used, because other users may change %1. Let nobody but yourself and the administrator write there.</source>
        <translation>Le module n’est pas utilisé, car d’autres utilisateurs peuvent modifier %1. N’y autorisez l’écriture qu’à vous-même et à l’administrateur.</translation>
    </message>
    <message>
        <source>%1 is not a plug-in of this print dialog.</source>
        <translation>%1 n’est pas un module de cette boîte de dialogue d’impression.</translation>
    </message>
    <message>
        <source>The plug-in %1 was made for another version of this print dialog. Install the same version of both.</source>
        <translation>Le module %1 a été conçu pour une autre version de cette boîte de dialogue. Installez la même version des deux.</translation>
    </message>
    <message>
        <source>The plug-in %1 could not be loaded.</source>
        <translation>Le module %1 n’a pas pu être chargé.</translation>
    </message>
    <message>
        <source>The plug-in %1 cannot be used with this print dialog.</source>
        <translation>Le module %1 ne peut pas être utilisé avec cette boîte de dialogue d’impression.</translation>
    </message>
    <message>
        <source>The plug-in cannot be used: %1 is no row of a keyword, a choice, a standard attribute and its value.</source>
        <translation>Le module ne peut pas être utilisé : %1 n’est pas une ligne composée d’un mot-clé, d’un choix, d’un attribut standard et de sa valeur.</translation>
    </message>
</context>
<context>
    <name>PresetActions</name>
    <message>
        <source>Save as Preset</source>
        <translation>Enregistrer comme préréglage</translation>
    </message>
    <message>
        <source>Rename Preset</source>
        <translation>Renommer le préréglage</translation>
    </message>
    <message>
        <source>Delete the preset &quot;%1&quot;?</source>
        <translation>Supprimer le préréglage « %1 » ?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Garder</translation>
    </message>
    <message>
        <source>No warnings are hidden: all are shown.</source>
        <translation>Aucun avertissement n’est masqué : tous s’affichent.</translation>
    </message>
    <message>
        <source>Some of the settings do not go together: the preset has what is shown now.</source>
        <translation>Certains réglages ne vont pas ensemble : le préréglage contient ce qui est affiché maintenant.</translation>
    </message>
</context>
<context>
    <name>PresetNameDialog</name>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nom :</translation>
    </message>
    <message>
        <source>There is a preset of this name already.</source>
        <translation>Il existe déjà un préréglage de ce nom.</translation>
    </message>
    <message>
        <source>This replaces the preset of the same name.</source>
        <translation>Cela remplace le préréglage du même nom.</translation>
    </message>
</context>
<context>
    <name>Presets</name>
    <message>
        <source>The preset &quot;%1&quot; was set up for everybody who uses this computer; it cannot be changed here.</source>
        <translation>Le préréglage « %1 » a été créé pour tous les utilisateurs de cet ordinateur ; il ne peut pas être modifié ici.</translation>
    </message>
    <message>
        <source>Give the preset a name.</source>
        <translation>Donnez un nom au préréglage.</translation>
    </message>
    <message>
        <source>The name of a preset has no spaces, slashes, quotes, braces or #; other programs would not find it. &quot;-&quot; and &quot;_&quot; are fine.</source>
        <translation>Le nom d’un préréglage ne contient ni espaces, ni barres obliques, ni guillemets, ni accolades, ni # ; d’autres programmes ne le trouveraient pas. « - » et « _ » conviennent.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>Le nom est trop long.</translation>
    </message>
    <message>
        <source>There is a preset &quot;%1&quot; already.</source>
        <translation>Le préréglage « %1 » existe déjà.</translation>
    </message>
</context>
<context>
    <name>PresetsRow</name>
    <message>
        <source>Presets</source>
        <translation>Préréglages</translation>
    </message>
    <message>
        <source>Save as Preset…</source>
        <translation>Enregistrer comme préréglage…</translation>
    </message>
    <message>
        <source>Rename Preset…</source>
        <translation>Renommer le préréglage…</translation>
    </message>
    <message>
        <source>Delete Preset…</source>
        <translation>Supprimer le préréglage…</translation>
    </message>
    <message>
        <source>Back to the Printer&apos;s Defaults</source>
        <translation>Revenir aux valeurs par défaut de l’imprimante</translation>
    </message>
    <message>
        <source>Start with the Settings Used Last</source>
        <translation>Commencer avec les derniers réglages utilisés</translation>
    </message>
    <message>
        <source>Hidden Warnings…</source>
        <translation>Avertissements masqués…</translation>
    </message>
    <message>
        <source>Printer&apos;s Defaults</source>
        <translation>Valeurs par défaut de l’imprimante</translation>
    </message>
    <message>
        <source>Usual Settings</source>
        <translation>Réglages habituels</translation>
    </message>
    <message>
        <source>Settings Used Last</source>
        <translation>Derniers réglages utilisés</translation>
    </message>
    <message>
        <source>%1 (from the printer&apos;s maker)</source>
        <translation>%1 (du fabricant de l’imprimante)</translation>
    </message>
    <message>
        <source>Follow the Job After Printing</source>
        <translation>Suivre le travail après l’impression</translation>
    </message>
</context>
<context>
    <name>PopUpButton</name>
    <message>
        <source>Not available</source>
        <translation>Non disponible</translation>
    </message>
</context>
<context>
    <name>PrinterChoice</name>
    <message>
        <source>%1 was chosen: you printed to it last.</source>
        <translation>%1 a été choisie : c’est la dernière que vous avez utilisée.</translation>
    </message>
    <message>
        <source>%1 was chosen: LPDEST or PRINTER names it.</source>
        <translation>%1 a été choisie : LPDEST ou PRINTER la désigne.</translation>
    </message>
    <message>
        <source>%1 was chosen: it is your default printer.</source>
        <translation>%1 a été choisie : c’est votre imprimante par défaut.</translation>
    </message>
    <message>
        <source>%1 was chosen: it is the print server's default printer.</source>
        <translation>%1 a été choisie : c’est l’imprimante par défaut du serveur d’impression.</translation>
    </message>
    <message>
        <source>%1 was chosen: it is the only printer.</source>
        <translation>%1 a été choisie : c’est la seule imprimante.</translation>
    </message>
    <message>
        <source>%1 was chosen: it is the first printer that takes jobs, and none is the default.</source>
        <translation>%1 a été choisie : c’est la première qui accepte des travaux, et aucune n’est définie par défaut.</translation>
    </message>
    <message>
        <source>No printer takes jobs at present. Choose one, or try again later.</source>
        <translation>Aucune imprimante n’accepte de travaux actuellement. Choisissez-en une, ou réessayez plus tard.</translation>
    </message>
    <message>
        <source>The print server has no printer to print to.</source>
        <translation>Le serveur d’impression n’a aucune imprimante.</translation>
    </message>
</context>
<context>
    <name>PrinterDoubts</name>
    <message>
        <source>The jobs of this queue go to printers of different models: %1. What is set for one of them may come out differently on another.</source>
        <translation>Les travaux de cette file d’attente vont à des imprimantes de modèles différents : %1. Ce qui est réglé pour l’une d’elles peut donner un autre résultat sur une autre.</translation>
    </message>
    <message>
        <source>The paper of this job is not loaded: %1. There is %2.</source>
        <translation>Le papier de ce travail n’est pas chargé : %1. Il y a %2.</translation>
    </message>
</context>
<context>
    <name>PrinterPopUp</name>
    <message>
        <source>No printer</source>
        <translation>Aucune imprimante</translation>
    </message>
    <message>
        <source>Searching for printers…</source>
        <translation>Recherche d’imprimantes…</translation>
    </message>
    <message>
        <source>The other printers cannot be listed</source>
        <translation>Les autres imprimantes ne peuvent pas être énumérées</translation>
    </message>
    <message>
        <source>No longer on the print server</source>
        <translation>N’est plus sur le serveur d’impression</translation>
    </message>
    <message>
        <source>Jobs in the queue: %1</source>
        <translation>Travaux en file d’attente : %1</translation>
    </message>
</context>
<context>
    <name>PrinterOpening</name>
    <message>
        <source>The plug-in could not attach its panels to this printer. Its rules and checks are missing.</source>
        <translation>Le module n’a pas pu associer ses volets à cette imprimante. Ses règles et ses vérifications sont absentes.</translation>
    </message>
</context>
<context>
    <name>PrinterReasons</name>
    <message>
        <source>An alert is over</source>
        <translation>Une alerte est levée</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Connexion en cours</translation>
    </message>
    <message>
        <source>The cover is open</source>
        <translation>Le capot est ouvert</translation>
    </message>
    <message>
        <source>A filter of the server is not safe to run</source>
        <translation>Un filtre du serveur n’est pas sûr</translation>
    </message>
    <message>
        <source>A filter is missing on the server</source>
        <translation>Il manque un filtre sur le serveur</translation>
    </message>
    <message>
        <source>Waiting for the end of a job</source>
        <translation>Attend la fin d’un travail</translation>
    </message>
    <message>
        <source>Deactivated</source>
        <translation>Désactivée</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Supprimée</translation>
    </message>
    <message>
        <source>The developer is used up</source>
        <translation>Le révélateur est épuisé</translation>
    </message>
    <message>
        <source>The developer is low</source>
        <translation>Le révélateur est presque épuisé</translation>
    </message>
    <message>
        <source>A door is open</source>
        <translation>Une porte est ouverte</translation>
    </message>
    <message>
        <source>The fuser is too hot</source>
        <translation>Le four est trop chaud</translation>
    </message>
    <message>
        <source>The fuser is too cold</source>
        <translation>Le four est trop froid</translation>
    </message>
    <message>
        <source>Hibernating</source>
        <translation>En hibernation</translation>
    </message>
    <message>
        <source>New jobs are held</source>
        <translation>Les nouveaux travaux sont retenus</translation>
    </message>
    <message>
        <source>Making itself known</source>
        <translation>Se signale</translation>
    </message>
    <message>
        <source>A paper tray is missing</source>
        <translation>Il manque un bac à papier</translation>
    </message>
    <message>
        <source>An interlock is open</source>
        <translation>Un verrouillage est ouvert</translation>
    </message>
    <message>
        <source>A font or form is missing</source>
        <translation>Il manque une police ou un formulaire</translation>
    </message>
    <message>
        <source>Ink or toner is used up</source>
        <translation>L’encre ou le toner est épuisé</translation>
    </message>
    <message>
        <source>Ink or toner is low</source>
        <translation>L’encre ou le toner est presque épuisé</translation>
    </message>
    <message>
        <source>An ink or toner cartridge is missing</source>
        <translation>Il manque une cartouche d’encre ou de toner</translation>
    </message>
    <message>
        <source>The waste container is almost full</source>
        <translation>Le bac de récupération est presque plein</translation>
    </message>
    <message>
        <source>The waste container is full</source>
        <translation>Le bac de récupération est plein</translation>
    </message>
    <message>
        <source>Out of paper</source>
        <translation>Plus de papier</translation>
    </message>
    <message>
        <source>Paper jam</source>
        <translation>Bourrage papier</translation>
    </message>
    <message>
        <source>Paper is low</source>
        <translation>Peu de papier</translation>
    </message>
    <message>
        <source>Waiting for paper</source>
        <translation>Attend du papier</translation>
    </message>
    <message>
        <source>Being stopped</source>
        <translation>Arrêt en cours</translation>
    </message>
    <message>
        <source>Not connected or switched off</source>
        <translation>Non connectée ou éteinte</translation>
    </message>
    <message>
        <source>The drum is worn out</source>
        <translation>Le tambour est usé</translation>
    </message>
    <message>
        <source>The drum is nearly worn out</source>
        <translation>Le tambour est presque usé</translation>
    </message>
    <message>
        <source>Something is wrong</source>
        <translation>Un problème est survenu</translation>
    </message>
    <message>
        <source>The output tray is almost full</source>
        <translation>Le bac de sortie est presque plein</translation>
    </message>
    <message>
        <source>The output tray is full</source>
        <translation>Le bac de sortie est plein</translation>
    </message>
    <message>
        <source>The output tray is missing</source>
        <translation>Le bac de sortie manque</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Arrêtée</translation>
    </message>
    <message>
        <source>Starting again</source>
        <translation>Redémarrage en cours</translation>
    </message>
    <message>
        <source>Switched off</source>
        <translation>Éteinte</translation>
    </message>
    <message>
        <source>The server has no room for jobs</source>
        <translation>Le serveur n’a plus de place pour les travaux</translation>
    </message>
    <message>
        <source>On standby</source>
        <translation>En veille</translation>
    </message>
    <message>
        <source>Stopped in part</source>
        <translation>Arrêtée en partie</translation>
    </message>
    <message>
        <source>Suspended</source>
        <translation>Suspendue</translation>
    </message>
    <message>
        <source>Testing itself</source>
        <translation>Test en cours</translation>
    </message>
    <message>
        <source>The printer does not answer</source>
        <translation>L’imprimante ne répond pas</translation>
    </message>
    <message>
        <source>Toner is used up</source>
        <translation>Le toner est épuisé</translation>
    </message>
    <message>
        <source>Toner is low</source>
        <translation>Le toner est presque épuisé</translation>
    </message>
    <message>
        <source>The state is not known</source>
        <translation>L’état n’est pas connu</translation>
    </message>
    <message>
        <source>Waiting for fonts</source>
        <translation>Attend des polices</translation>
    </message>
    <message>
        <source>Bander: %1</source>
        <translation>Banderoleuse : %1</translation>
    </message>
    <message>
        <source>Binder: %1</source>
        <translation>Relieuse : %1</translation>
    </message>
    <message>
        <source>Cleaner: %1</source>
        <translation>Nettoyeur : %1</translation>
    </message>
    <message>
        <source>Configuration: %1</source>
        <translation>Configuration : %1</translation>
    </message>
    <message>
        <source>Die cutter: %1</source>
        <translation>Découpeuse : %1</translation>
    </message>
    <message>
        <source>Folder: %1</source>
        <translation>Plieuse : %1</translation>
    </message>
    <message>
        <source>Imprinter: %1</source>
        <translation>Imprimeur : %1</translation>
    </message>
    <message>
        <source>Paper feed: %1</source>
        <translation>Alimentation papier : %1</translation>
    </message>
    <message>
        <source>Inserter: %1</source>
        <translation>Insertion : %1</translation>
    </message>
    <message>
        <source>Interpreter: %1</source>
        <translation>Interpréteur : %1</translation>
    </message>
    <message>
        <source>Envelope maker: %1</source>
        <translation>Façonnage d’enveloppes : %1</translation>
    </message>
    <message>
        <source>Print head: %1</source>
        <translation>Tête d’impression : %1</translation>
    </message>
    <message>
        <source>Paper path: %1</source>
        <translation>Trajet du papier : %1</translation>
    </message>
    <message>
        <source>Output tray: %1</source>
        <translation>Bac de sortie : %1</translation>
    </message>
    <message>
        <source>Perforator: %1</source>
        <translation>Perforateur : %1</translation>
    </message>
    <message>
        <source>Power: %1</source>
        <translation>Alimentation : %1</translation>
    </message>
    <message>
        <source>Hole punch: %1</source>
        <translation>Perforeuse : %1</translation>
    </message>
    <message>
        <source>Cutter: %1</source>
        <translation>Massicot : %1</translation>
    </message>
    <message>
        <source>Sheet rotator: %1</source>
        <translation>Rotation des feuilles : %1</translation>
    </message>
    <message>
        <source>Slitter: %1</source>
        <translation>Coupe longitudinale : %1</translation>
    </message>
    <message>
        <source>Stacker: %1</source>
        <translation>Empileur : %1</translation>
    </message>
    <message>
        <source>Stapler: %1</source>
        <translation>Agrafeuse : %1</translation>
    </message>
    <message>
        <source>Stitcher: %1</source>
        <translation>Piqueuse : %1</translation>
    </message>
    <message>
        <source>A part: %1</source>
        <translation>Un élément : %1</translation>
    </message>
    <message>
        <source>Trimmer: %1</source>
        <translation>Rogneuse : %1</translation>
    </message>
    <message>
        <source>Wrapper: %1</source>
        <translation>Emballage : %1</translation>
    </message>
    <message>
        <source>added</source>
        <translation>ajout</translation>
    </message>
    <message>
        <source>almost empty</source>
        <translation>presque vide</translation>
    </message>
    <message>
        <source>almost full</source>
        <translation>presque plein</translation>
    </message>
    <message>
        <source>at its limit</source>
        <translation>à sa limite</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>modification</translation>
    </message>
    <message>
        <source>closed</source>
        <translation>fermé</translation>
    </message>
    <message>
        <source>set up anew</source>
        <translation>reconfiguré</translation>
    </message>
    <message>
        <source>cover closed</source>
        <translation>capot fermé</translation>
    </message>
    <message>
        <source>cover open</source>
        <translation>capot ouvert</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>vide</translation>
    </message>
    <message>
        <source>full</source>
        <translation>plein</translation>
    </message>
    <message>
        <source>interlock closed</source>
        <translation>verrouillage fermé</translation>
    </message>
    <message>
        <source>interlock open</source>
        <translation>verrouillage ouvert</translation>
    </message>
    <message>
        <source>jammed</source>
        <translation>bourrage</translation>
    </message>
    <message>
        <source>nearly worn out</source>
        <translation>presque usé</translation>
    </message>
    <message>
        <source>worn out</source>
        <translation>usé</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>mémoire insuffisante</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>absent</translation>
    </message>
    <message>
        <source>motor failed</source>
        <translation>panne du moteur</translation>
    </message>
    <message>
        <source>near its limit</source>
        <translation>près de sa limite</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>hors ligne</translation>
    </message>
    <message>
        <source>opened</source>
        <translation>ouvert</translation>
    </message>
    <message>
        <source>too hot</source>
        <translation>trop chaud</translation>
    </message>
    <message>
        <source>saving power</source>
        <translation>économie d’énergie</translation>
    </message>
    <message>
        <source>failed for the moment</source>
        <translation>panne passagère</translation>
    </message>
    <message>
        <source>storage is short</source>
        <translation>stockage insuffisant</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>retrait</translation>
    </message>
    <message>
        <source>resource added</source>
        <translation>ressource ajoutée</translation>
    </message>
    <message>
        <source>resource removed</source>
        <translation>ressource retirée</translation>
    </message>
    <message>
        <source>thermistor failed</source>
        <translation>panne du thermistor</translation>
    </message>
    <message>
        <source>timing failed</source>
        <translation>défaut de synchronisation</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>éteint</translation>
    </message>
    <message>
        <source>switched on</source>
        <translation>allumé</translation>
    </message>
    <message>
        <source>too cold</source>
        <translation>trop froid</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>en panne</translation>
    </message>
    <message>
        <source>storage failed</source>
        <translation>panne de stockage</translation>
    </message>
    <message>
        <source>warming up</source>
        <translation>préchauffage</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>Avertissement : %1</translation>
    </message>
    <message>
        <source>Error: %1</source>
        <translation>Erreur : %1</translation>
    </message>
    <message>
        <source>Takes no jobs at present</source>
        <translation>N’accepte pas de travaux actuellement</translation>
    </message>
    <message>
        <source>Stopped: jobs wait</source>
        <translation>Arrêtée : les travaux attendent</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Imprime</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Prête</translation>
    </message>
</context>
<context>
    <name>PrinterSource</name>
    <message>
        <source>There are more settings saved for %1 than the %2 that can be used.</source>
        <translation>Plus de réglages sont enregistrés pour %1 que les %2 qui peuvent être utilisés.</translation>
    </message>
    <message>
        <source>The PPD of the queue %1 cannot be used. %2</source>
        <translation>Le fichier PPD de la file d’attente %1 ne peut pas être utilisé. %2</translation>
    </message>
    <message>
        <source>There is no printer to print to.</source>
        <translation>Il n’y a aucune imprimante.</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>The printer no longer has some of the settings that you used last: %1.</source>
        <translation>L’imprimante n’a plus certains des derniers réglages utilisés : %1.</translation>
    </message>
    <message>
        <source>The printer does not have some of the settings that are saved for %1: %2.</source>
        <translation>L’imprimante n’a pas certains des réglages enregistrés pour %1 : %2.</translation>
    </message>
</context>
<context>
    <name>ProgressStrip</name>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
</context>
<context>
    <name>Recorder</name>
    <message>
        <source>The PPD cannot be copied to %1: %2</source>
        <translation>Le fichier PPD ne peut pas être copié dans %1 : %2</translation>
    </message>
    <message>
        <source>no name is free</source>
        <translation>aucun nom n’est libre</translation>
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
        <translation>%1 et %2</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 et %2 autres</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>%1 is there for %2.</source>
        <translation>%1 est possible avec %2.</translation>
    </message>
    <message>
        <source>%1 is not there for %2. It is there for %3.</source>
        <translation>%1 n’est pas possible avec %2, mais avec %3.</translation>
    </message>
    <message>
        <source>%1 is not there for %2. It is there with %3.</source>
        <translation>%1 n’est pas possible avec %2. Il faut pour cela %3.</translation>
    </message>
    <message>
        <source>%1 can be chosen.</source>
        <translation>%1 peut être choisi.</translation>
    </message>
    <message>
        <source>No setting of this printer gives %1.</source>
        <translation>Aucun réglage de cette imprimante ne permet %1.</translation>
    </message>
    <message>
        <source>There are too many conditions to explain why %1 is not there.</source>
        <translation>Il y a trop de conditions pour expliquer pourquoi %1 n’est pas possible.</translation>
    </message>
    <message>
        <source>use %1</source>
        <translation>utiliser %1</translation>
    </message>
    <message>
        <source>turn on %1</source>
        <translation>activer %1</translation>
    </message>
    <message>
        <source>turn off %1</source>
        <translation>désactiver %1</translation>
    </message>
    <message>
        <source>use %1 and %2</source>
        <translation>utiliser %1 et %2</translation>
    </message>
    <message>
        <source>turn on %1 and %2</source>
        <translation>activer %1 et %2</translation>
    </message>
    <message>
        <source>turn off %1 and %2</source>
        <translation>désactiver %1 et %2</translation>
    </message>
</context>
<context>
    <name>RequestChecks</name>
    <message>
        <source>Page %1 is beyond the document's last page, %2.</source>
        <translation>La page %1 dépasse la dernière page du document, %2.</translation>
    </message>
    <message>
        <source>%1 is beyond the last side that is printed, %2.</source>
        <translation>%1 dépasse le dernier côté imprimé, %2.</translation>
    </message>
</context>
<context>
    <name>StandardKeywords</name>
    <message>
        <source>Color Mode</source>
        <translation>Mode couleur</translation>
    </message>
    <message>
        <source>Print Quality</source>
        <translation>Qualité d’impression</translation>
    </message>
    <message>
        <source>Two-Sided Printing</source>
        <translation>Impression recto verso</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Pliage</translation>
    </message>
    <message>
        <source>Paper Source</source>
        <translation>Source de papier</translation>
    </message>
    <message>
        <source>Media Type</source>
        <translation>Type de support</translation>
    </message>
    <message>
        <source>Output Bin</source>
        <translation>Bac de sortie</translation>
    </message>
    <message>
        <source>Paper Size</source>
        <translation>Format de papier</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Perforation</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Résolution</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>Agrafage</translation>
    </message>
    <message>
        <source>Fast Grayscale</source>
        <translation>Niveaux de gris, rapide</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>Niveaux de gris</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Brouillon</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Haute</translation>
    </message>
    <message>
        <source>Off (1-Sided)</source>
        <translation>Non (recto)</translation>
    </message>
    <message>
        <source>Long-Edge (Portrait)</source>
        <translation>Bord long (portrait)</translation>
    </message>
    <message>
        <source>Short-Edge (Landscape)</source>
        <translation>Bord court (paysage)</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>Main</source>
        <translation>Bac principal</translation>
    </message>
    <message>
        <source>Alternate</source>
        <translation>Autre bac</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manuelle</translation>
    </message>
    <message>
        <source>Plain Paper</source>
        <translation>Papier ordinaire</translation>
    </message>
    <message>
        <source>Photo Paper</source>
        <translation>Papier photo</translation>
    </message>
    <message>
        <source>Glossy Photo Paper</source>
        <translation>Papier photo brillant</translation>
    </message>
    <message>
        <source>Matte Photo Paper</source>
        <translation>Papier photo mat</translation>
    </message>
    <message>
        <source>Envelope</source>
        <translation>Enveloppe</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Étiquettes</translation>
    </message>
    <message>
        <source>Face Down</source>
        <translation>Face imprimée dessous</translation>
    </message>
    <message>
        <source>Face Up</source>
        <translation>Face imprimée dessus</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
</context>
<context>
    <name>SummaryPart</name>
    <message>
        <source>Only What Differs from the Printer's Defaults</source>
        <translation>Seulement ce qui diffère des valeurs par défaut de l’imprimante</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>Copier comme texte</translation>
    </message>
</context>
<context>
    <name>Supplies</name>
    <message>
        <source>Supply %1</source>
        <translation>Consommable %1</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Non connu</translation>
    </message>
    <message>
        <source>Some left</source>
        <translation>Il en reste</translation>
    </message>
    <message>
        <source>Some room left</source>
        <translation>Il reste de la place</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1% full</source>
        <translation>Plein à %1 %</translation>
    </message>
    <message>
        <source>Low: %1%</source>
        <translation>Bientôt vide : %1 %</translation>
    </message>
    <message>
        <source>Almost full: %1%</source>
        <translation>Bientôt plein : %1 %</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Vide</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Plein</translation>
    </message>
    <message>
        <source>Used up in the printer: %1.</source>
        <translation>Épuisé dans l’imprimante : %1.</translation>
    </message>
    <message>
        <source>Full in the printer: %1.</source>
        <translation>Plein dans l’imprimante : %1.</translation>
    </message>
    <message>
        <source>Running low in the printer: %1.</source>
        <translation>Bientôt épuisé dans l’imprimante : %1.</translation>
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
        <translation>Papier dans l’imprimante :</translation>
    </message>
</context>
<context>
    <name>WhyCommand</name>
    <message>
        <source>This cannot be explained.</source>
        <translation>Cela ne peut pas être expliqué.</translation>
    </message>
</context>
<context>
    <name>RequestedSettings</name>
    <message>
        <source>%1=%2 and %1=%3 cannot both be had: ask for one of them.</source>
        <translation>%1=%2 et %1=%3 s’excluent : n’en demandez qu’un seul.</translation>
    </message>
</context>
<context>
    <name>SavedJob</name>
    <message>
        <source>The printer does not have some of the settings that the job was saved with: %1.</source>
        <translation>L’imprimante n’a pas certains des réglages avec lesquels le travail a été enregistré : %1.</translation>
    </message>
    <message>
        <source>%1 is a saved job: it is sent as it was saved, without -o, --paper and --output.</source>
        <translation>%1 est un travail enregistré : il est envoyé tel qu’il a été enregistré, sans -o, --paper ni --output.</translation>
    </message>
    <message>
        <source>%1 is a saved job: it is sent alone, with no other document beside it.</source>
        <translation>%1 est un travail enregistré : il s’envoie seul, sans autre document.</translation>
    </message>
    <message>
        <source>%1 is not sent: it sets %2, which no saved job may.</source>
        <translation>%1 n’est pas envoyé : il définit %2, ce qu’un travail enregistré n’a pas le droit de faire.</translation>
    </message>
    <message>
        <source>%1 is not sent: it sets %2, which Velkaro Print does not write; --yes sends it all the same.</source>
        <translation>%1 n’est pas envoyé : il définit %2, que Velkaro Print n’écrit pas ; --yes l’envoie malgré tout.</translation>
    </message>
    <message>
        <source>The job in %1 can be looked at but not sent: it sets %2, which no saved job may. Remove that from the settings saved for the queue.</source>
        <translation>Le travail enregistré dans %1 peut être examiné mais pas envoyé : il définit %2, ce qu’un travail enregistré n’a pas le droit de faire. Retirez-le des réglages enregistrés pour la file d’attente.</translation>
    </message>
</context>
<context>
    <name>SearchList</name>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>What was found</source>
        <translation>Résultats</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>Aucun résultat.</translation>
    </message>
</context>
<context>
    <name>SavedOptions</name>
    <message>
        <source>There are no settings saved as &quot;%1&quot; for the printer %2.</source>
        <translation>Aucun réglage n’est enregistré sous « %1 » pour l’imprimante %2.</translation>
    </message>
</context>
<context>
    <name>ScalingSentences</name>
    <message>
        <source>Automatic</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>Actual Size</source>
        <translation>Taille réelle</translation>
    </message>
    <message>
        <source>Fit to the Printable Area</source>
        <translation>Ajuster à la zone imprimable</translation>
    </message>
    <message>
        <source>Fill the Sheet</source>
        <translation>Remplir la feuille</translation>
    </message>
    <message>
        <source>Fill the Printable Area</source>
        <translation>Remplir la zone imprimable</translation>
    </message>
    <message>
        <source>Pages that are larger than the paper are made just small enough to cover it, and what does not fit is cut off. All others keep their size.</source>
        <translation>Les pages plus grandes que le papier sont réduites juste assez pour le couvrir, et ce qui dépasse est coupé. Toutes les autres gardent leur taille.</translation>
    </message>
    <message>
        <source>Pictures that are larger than the printable area are made smaller. All others keep their size.</source>
        <translation>Les images plus grandes que la zone imprimable sont réduites. Toutes les autres gardent leur taille.</translation>
    </message>
    <message>
        <source>Pages that are larger than the paper are made smaller. All others keep their size.</source>
        <translation>Les pages plus grandes que le papier sont réduites. Toutes les autres gardent leur taille.</translation>
    </message>
    <message>
        <source>Every page keeps its size, in the middle of the paper. What does not fit is cut off.</source>
        <translation>Chaque page garde sa taille, au milieu du papier. Ce qui dépasse est coupé.</translation>
    </message>
    <message>
        <source>Every picture is made as large as fits as a whole. The print server leaves twice the paper&apos;s margins around it; borderless paper has none.</source>
        <translation>Chaque image est aussi grande que possible sans être coupée. Le serveur d’impression laisse autour d’elle le double des marges du papier ; le papier sans bordure n’en a pas.</translation>
    </message>
    <message>
        <source>Every page is made as large as fits on the paper as a whole.</source>
        <translation>Chaque page est aussi grande que possible sans être coupée.</translation>
    </message>
    <message>
        <source>Every page is made so large that no place stays white. What does not fit is cut off.</source>
        <translation>Chaque page est assez grande pour ne rien laisser en blanc. Ce qui dépasse est coupé.</translation>
    </message>
    <message>
        <source>Every picture is cut to the shape of the printable area. The print server leaves twice the paper&apos;s margins around it; borderless paper has none.</source>
        <translation>Chaque image est coupée à la forme de la zone imprimable. Le serveur d’impression laisse autour d’elle le double des marges du papier ; le papier sans bordure n’en a pas.</translation>
    </message>
    <message>
        <source>Every page is made so large that only the paper&apos;s margins stay white. What does not fit is cut off.</source>
        <translation>Chaque page est assez grande pour ne laisser en blanc que les marges du papier. Ce qui dépasse est coupé.</translation>
    </message>
</context>
<context>
    <name>Server</name>
    <message>
        <source>The queue %1 has no PPD.</source>
        <translation>La file d’attente %1 n’a pas de fichier PPD.</translation>
    </message>
    <message>
        <source>The PPD of the queue %1 is too large.</source>
        <translation>Le fichier PPD de la file d’attente %1 est trop volumineux.</translation>
    </message>
    <message>
        <source>The print server %1 sent only part of the PPD of the queue %2. Try again.</source>
        <translation>Le serveur d’impression %1 n’a envoyé qu’une partie du fichier PPD de la file d’attente %2. Réessayez.</translation>
    </message>
    <message>
        <source>The print server %1 cannot be reached.</source>
        <translation>Le serveur d’impression %1 est injoignable.</translation>
    </message>
    <message>
        <source>The print server %1 broke off: %2.</source>
        <translation>Le serveur d’impression %1 a interrompu la connexion : %2.</translation>
    </message>
    <message>
        <source>The print server %1 closed the connection without an answer.</source>
        <translation>Le serveur d’impression %1 a fermé la connexion sans répondre.</translation>
    </message>
    <message>
        <source>The print server %1 broke off in the middle of its answer.</source>
        <translation>Le serveur d’impression %1 s’est interrompu au milieu de sa réponse.</translation>
    </message>
    <message>
        <source>The answer of the print server %1 cannot be understood.</source>
        <translation>La réponse du serveur d’impression %1 est incompréhensible.</translation>
    </message>
    <message>
        <source>The answer of the print server %1 is too large.</source>
        <translation>La réponse du serveur d’impression %1 est trop volumineuse.</translation>
    </message>
    <message>
        <source>What the print server %1 sends cannot be kept in the temporary folder %2: %3.</source>
        <translation>Ce qu’envoie le serveur d’impression %1 ne peut pas être conservé dans le dossier temporaire %2 : %3.</translation>
    </message>
    <message>
        <source>Printing was cancelled.</source>
        <translation>L’impression a été annulée.</translation>
    </message>
    <message>
        <source>The print server %1 has no queue %2.</source>
        <translation>Le serveur d’impression %1 n’a pas de file d’attente %2.</translation>
    </message>
    <message>
        <source>The print server %1 does not know what it was asked for.</source>
        <translation>Le serveur d’impression %1 ne connaît pas ce qui lui est demandé.</translation>
    </message>
    <message>
        <source>The print server %1 lets nobody print to %2 without a password.</source>
        <translation>Le serveur d’impression %1 n’autorise pas l’impression sur %2 sans mot de passe.</translation>
    </message>
    <message>
        <source>The print server %1 answers nobody without a password.</source>
        <translation>Le serveur d’impression %1 ne répond pas sans mot de passe.</translation>
    </message>
    <message>
        <source>The print server %1 refused: %2</source>
        <translation>Le serveur d’impression %1 a refusé : %2</translation>
    </message>
    <message>
        <source>The print server %1 reports a fault: %2</source>
        <translation>Le serveur d’impression %1 signale une erreur : %2</translation>
    </message>
    <message>
        <source>The print server %1 does not allow this machine to print to %2.</source>
        <translation>Le serveur d’impression %1 n’autorise pas cet ordinateur à imprimer sur %2.</translation>
    </message>
    <message>
        <source>The print server %1 does not allow this machine to ask.</source>
        <translation>Le serveur d’impression %1 n’accepte pas de demandes de cet ordinateur.</translation>
    </message>
    <message>
        <source>The print server %1 answered with a redirection, which is not followed (%2).</source>
        <translation>Le serveur d’impression %1 a répondu par une redirection, qui n’est pas suivie (%2).</translation>
    </message>
    <message>
        <source>The print server %1 demands an encrypted connection, which cannot be made.</source>
        <translation>Le serveur d’impression %1 exige une connexion chiffrée, qui ne peut pas être établie.</translation>
    </message>
    <message>
        <source>The print server %1 has a fault (%2).</source>
        <translation>Le serveur d’impression %1 a rencontré une erreur (%2).</translation>
    </message>
    <message>
        <source>The print server %1 refused (%2).</source>
        <translation>Le serveur d’impression %1 a refusé (%2).</translation>
    </message>
    <message>
        <source>The print server %1 does not answer.</source>
        <translation>Le serveur d’impression %1 ne répond pas.</translation>
    </message>
    <message>
        <source>The print server %1 takes too long to answer.</source>
        <translation>Le serveur d’impression %1 met trop de temps à répondre.</translation>
    </message>
    <message>
        <source>The print server %1 does not accept the user name and the password.</source>
        <translation>Le serveur d’impression %1 n’accepte pas le nom d’utilisateur et le mot de passe.</translation>
    </message>
    <message>
        <source>The print server %1 shows another certificate than before, and may be another server: nothing was sent. The one before is in %2.</source>
        <translation>Le serveur d’impression %1 présente un autre certificat qu’auparavant, et peut être un autre serveur : rien n’a été envoyé. Le précédent se trouve dans %2.</translation>
    </message>
    <message>
        <source>The queue %1 was set up anew on the print server: it has another PPD, or other defaults.</source>
        <translation>La file d’attente %1 a été reconfigurée sur le serveur d’impression : elle a un autre fichier PPD ou d’autres valeurs par défaut.</translation>
    </message>
</context>
<context>
    <name>SettingRequests</name>
    <message>
        <source>It can be: %1.</source>
        <translation>Valeurs possibles : %1.</translation>
    </message>
    <message>
        <source>It can be: %1 and %2 more.</source>
        <translation>Valeurs possibles : %1 et %2 autres.</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>%2 is no value for %1.</source>
        <translation>%2 n’est pas une valeur pour %1.</translation>
    </message>
    <message>
        <source>%1 cannot be set: the queue has no PPD.</source>
        <translation>%1 ne peut pas être réglé : la file d’attente n’a pas de fichier PPD.</translation>
    </message>
    <message>
        <source>The printer has no setting %1.</source>
        <translation>L’imprimante n’a pas de réglage %1.</translation>
    </message>
    <message>
        <source>%1 stands for several choices of this printer.</source>
        <translation>%1 correspond à plusieurs choix de cette imprimante.</translation>
    </message>
    <message>
        <source>%1 cannot be chosen while the other settings are as they are.</source>
        <translation>%1 ne peut pas être choisi avec les autres réglages actuels.</translation>
    </message>
    <message>
        <source>The printer has no paper %1.</source>
        <translation>L’imprimante n’a pas de papier %1.</translation>
    </message>
    <message>
        <source>The printer takes no paper of a size of your own.</source>
        <translation>L’imprimante n’accepte pas de papier de format personnalisé.</translation>
    </message>
    <message>
        <source>The printer takes no paper of %1 × %2 mm: sizes of your own go from %3 × %4 mm to %5 × %6 mm.</source>
        <translation>L’imprimante n’accepte pas de papier de %1 × %2 mm : les formats personnalisés vont de %3 × %4 mm à %5 × %6 mm.</translation>
    </message>
    <message>
        <source>%1 cannot be chosen while the other settings are as they are. %2 is %3 instead.</source>
        <translation>%1 ne peut pas être choisi avec les autres réglages actuels. « %2 » est « %3 » à la place.</translation>
    </message>
    <message>
        <source>A paper of a size of your own needs that size, such as Custom.100x150mm.</source>
        <translation>Un papier de format personnalisé doit avoir ses dimensions, par exemple Custom.100x150mm.</translation>
    </message>
</context>
<context>
    <name>SettingTitle</name>
    <message>
        <source>Paper in the Printer</source>
        <translation>Papier dans l’imprimante</translation>
    </message>
    <message>
        <source>Document Page</source>
        <translation>Page du document</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>Mise à l’échelle</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientation</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Copies</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Color Management</source>
        <translation>Gestion des couleurs</translation>
    </message>
    <message>
        <source>Job Title</source>
        <translation>Titre du travail</translation>
    </message>
</context>
<context>
    <name>SummaryPane</name>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>%1: %2 (%3)</source>
        <translation>%1 : %2 (%3)</translation>
    </message>
</context>
<context>
    <name>ListAdvice</name>
    <message>
        <source>Not to be had now: %1</source>
        <translation>Pas disponible actuellement : %1</translation>
    </message>
</context>
<context>
    <name>YieldedSettings</name>
    <message>
        <source>%1 cannot be chosen together with what was asked for; it is sent as it was saved.</source>
        <translation>%1 ne peut pas être choisi avec ce qui a été demandé ; il est envoyé tel qu’il a été enregistré.</translation>
    </message>
    <message>
        <source>Saved for this printer: %1</source>
        <translation>Enregistré pour cette imprimante : %1</translation>
    </message>
</context>
<context>
    <name>KeptSettings</name>
    <message>
        <source>other changes: %1</source>
        <translation>autres changements : %1</translation>
    </message>
</context>
</TS>
