<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <!-- Panel names -->
    <message>
        <source>Print Setting</source>
        <translation>Réglages d’impression</translation>
    </message>
    <message>
        <source>Color Setting</source>
        <translation>Réglages de couleur</translation>
    </message>
    <!-- Buttons and switches -->
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Suppression</source>
        <translation>Ne plus afficher ce message</translation>
    </message>
    <!-- Summary -->
    <message>
        <source>Model</source>
        <translation>Modèle d’imprimante</translation>
    </message>
    <!-- Advanced sections -->
    <message>
        <source>advancedItem</source>
        <translation>Réglages avancés</translation>
    </message>
    <message>
        <source>advancedcolorItem</source>
        <translation>Correction des couleurs</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Section : %1</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Disposition</translation>
    </message>
    <message>
        <source>OtherOption</source>
        <translation>Autres options</translation>
    </message>
    <!-- Paper names, as the page setup's menu has them -->
    <message>
        <source>A4</source>
        <translation>A4</translation>
    </message>
    <!-- Why a choice is not there -->
    <message>
        <source>Why Not VKBiDir=ON</source>
        <translation>Certains supports et certaines qualités sont imprimés à dessein dans un seul sens, pour que les lignes et les aplats restent réguliers.</translation>
    </message>
    <!-- Paper that the printer cannot take -->
    <message>
        <source>Unsupported Paper Title</source>
        <translation>Ce format de papier ne peut pas être utilisé</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG1</source>
        <translation>Le papier choisi est trop grand ou trop petit pour cette imprimante. Le document n’a donc pas été imprimé.</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG2</source>
        <translation>1. Ouvrez la mise en page.</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG3</source>
        <translation>2. Choisissez l’un des formats de papier de l’imprimante ou saisissez un format personnalisé dans les limites de l’imprimante.</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG4</source>
        <translation>3. Relancez l’impression.</translation>
    </message>
    <!-- Best quality on special paper -->
    <message>
        <source>Best Alert</source>
        <translation>La qualité supérieure demande plus de temps</translation>
    </message>
    <message>
        <source>Highest Alert2</source>
        <translation>Sur ce type de support, l’imprimante dépose l’encre en de nombreux passages très fins. Pour imprimer plus vite, choisissez une qualité d’impression inférieure. Votre choix est conservé.</translation>
    </message>
    <!-- Borderless paper -->
    <message>
        <source>Borderless Alert</source>
        <translation>L’impression sans bordure n’accepte pas ce réglage</translation>
    </message>
    <message>
        <source>Borderless Alert2</source>
        <translation>Les transparents et la qualité d’impression la plus rapide ne sont pas disponibles sur papier sans bordure. Le type de support ou la qualité d’impression sera remplacé par un autre qui convient. Pour conserver votre réglage, choisissez un format de papier avec bordure.</translation>
    </message>
    <!-- Printable discs -->
    <message>
        <source>DiscPrint Alert</source>
        <translation>Le disque est-il dans le plateau à disque ?</translation>
    </message>
    <message>
        <source>DiscPrint Alert2</source>
        <translation>Placez un disque imprimable dans le plateau à disque, face imprimable vers le haut, et insérez le plateau jusqu’aux repères de l’imprimante. Cliquez ensuite sur « OK ». Pour modifier d’abord les réglages, cliquez sur « Annuler ».</translation>
    </message>
    <!-- Japanese envelopes -->
    <message>
        <source>Envelope Alert Title</source>
        <translation>Chargement des enveloppes</translation>
    </message>
    <message>
        <source>Envelope Alert1</source>
        <translation>Avant d’imprimer, aplatissez les enveloppes et rabattez les pattes comme sur l’illustration.</translation>
    </message>
    <message>
        <source>Envelope Alert2 Lark22</source>
        <translation>Chargez-les dans le bac à papier, face à imprimer vers le bas et pattes vers vous. Poussez les guides papier contre les enveloppes.</translation>
    </message>
    <message>
        <source>Envelope Alert2 Lark22 MP</source>
        <translation>Chargez-les dans le bac multifonction, face à imprimer vers le haut et pattes vers vous, et choisissez le bac multifonction comme source de papier. Poussez les guides papier contre les enveloppes.</translation>
    </message>
    <message>
        <source>Envelope Caution</source>
        <translation>N’utilisez pas d’enveloppes à fenêtre, à bande adhésive découverte ou à patte déjà collée : elles peuvent provoquer un bourrage.</translation>
    </message>
    <!-- Two-sided printing -->
    <message>
        <source>Duplex Alert</source>
        <translation>Ce papier ne peut pas être imprimé en recto verso</translation>
    </message>
    <message>
        <source>Duplex Alert2</source>
        <translation>Désactivez l’impression recto verso ou choisissez un format de papier que l’imprimante peut retourner, par exemple A4, A3 ou Letter.</translation>
    </message>
    <!-- Paper orientation -->
    <message>
        <source>Paper Orientation Title</source>
        <translation>Vérifiez l’orientation du papier</translation>
    </message>
    <!-- What a look at a PPD finds: keyword, choice, and how the panels spell it -->
    <message>
        <source>PPD Choice Unknown</source>
        <translation>Les volets ne connaissent pas le choix %2 de %1.</translation>
    </message>
    <message>
        <source>PPD Choice Missing</source>
        <translation>Il manque à %1 le choix %2, que les volets définissent d’eux-mêmes.</translation>
    </message>
    <message>
        <source>PPD Letters</source>
        <translation>Le choix %2 de %1 s’écrit %3 pour les volets : utilisez cette graphie, sinon ils le prennent pour un autre.</translation>
    </message>
    <message>
        <source>PPD Default</source>
        <translation>%2, la valeur par défaut de %1, ne correspond à aucun de ses choix tels qu’ils sont écrits.</translation>
    </message>
    <message>
        <source>PPD Partner Missing</source>
        <translation>%1 nécessite %2, qui manque dans le fichier PPD.</translation>
    </message>
    <message>
        <source>PPD Picture</source>
        <translation>L’aperçu n’a pas d’image pour le choix %2 de %1.</translation>
    </message>
</context>
</TS>
