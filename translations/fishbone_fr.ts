<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>AccessibleBone</name>
    <message>
        <source>level %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>niveau %1</translation>
    </message>
    <message>
        <source>linked</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>avec lien</translation>
    </message>
    <message>
        <source>Select</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Sélectionner</translation>
    </message>
    <message>
        <source>Contract</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Replier</translation>
    </message>
    <message>
        <source>Expand</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Déplier</translation>
    </message>
    <message>
        <source>Selects this bone alone</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Sélectionne cette arête seule</translation>
    </message>
    <message>
        <source>Hides the bones below</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Masque les arêtes en dessous</translation>
    </message>
    <message>
        <source>Shows the bones below</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Montre les arêtes en dessous</translation>
    </message>
</context>
<context>
    <name>AccessibleDiagram</name>
    <message>
        <source>Diagram: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Diagramme&#x202f;: %1</translation>
    </message>
    <message>
        <source>Diagram</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Diagramme</translation>
    </message>
</context>
<context>
    <name>AccessibleSubject</name>
    <message>
        <source>level %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>niveau %1</translation>
    </message>
    <message>
        <source>Contract</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Replier</translation>
    </message>
    <message>
        <source>Expand</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Déplier</translation>
    </message>
    <message>
        <source>Select</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Sélectionner</translation>
    </message>
</context>
<context>
    <name>ActionList</name>
    <message>
        <source>no date</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>sans date</translation>
    </message>
    <message>
        <source>Change who is responsible</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Changer le responsable</translation>
    </message>
    <message>
        <source>Change planned end</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Changer la fin prévue</translation>
    </message>
    <message>
        <source>Change status</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Changer le statut</translation>
    </message>
    <message>
        <source>Rename</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>Actions</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Actions</translation>
    </message>
    <message>
        <source>Cause</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Cause</translation>
    </message>
    <message>
        <source>Responsible</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Responsable</translation>
    </message>
    <message>
        <source>Until</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Échéance</translation>
    </message>
    <message>
        <source>Status</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Statut</translation>
    </message>
    <message>
        <source>%1, overdue</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1, en retard</translation>
    </message>
    <message>
        <source>Nobody yet</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Encore personne</translation>
    </message>
    <message>
        <source>No status</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Sans statut</translation>
    </message>
</context>
<context>
    <name>ActionsPanel</name>
    <message>
        <source>Write to a file…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Écrire dans un fichier…</translation>
    </message>
    <message>
        <source>Actions</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Actions</translation>
    </message>
    <message>
        <source>Ranked causes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Classement des causes</translation>
    </message>
    <message>
        <source>Grouped by</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Regroupement</translation>
    </message>
    <message>
        <source>In one list</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>En une seule liste</translation>
    </message>
    <message>
        <source>By person</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Par personne</translation>
    </message>
    <message>
        <source>By status</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Par statut</translation>
    </message>
    <message>
        <source>Print…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Imprimer…</translation>
    </message>
</context>
<context>
    <name>AutosaveStatus</name>
    <message>
        <source>Autosaved at %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Enregistré automatiquement à %1</translation>
    </message>
    <message>
        <source>A copy of the changes that are not saved is kept in %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Une copie des modifications non enregistrées est conservée dans %1</translation>
    </message>
    <message>
        <source>Autosave failed at %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Échec de l’enregistrement automatique à %1</translation>
    </message>
    <message>
        <source>%1 cannot be written. Changes that are not saved would be lost if the program did not end well.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Impossible d’écrire %1. Les modifications non enregistrées seraient perdues si le programme se terminait anormalement.</translation>
    </message>
</context>
<context>
    <name>BusyCursor</name>
    <message>
        <source>Working…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Traitement en cours…</translation>
    </message>
</context>
<context>
    <name>CanvasTheme</name>
    <message>
        <source>The style is not kept: %1 cannot be written</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Le style n’est pas conservé&#x202f;: impossible d’écrire %1</translation>
    </message>
</context>
<context>
    <name>ClearContent</name>
    <message>
        <source>cancelled</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>annulée</translation>
    </message>
    <message>
        <source>finished</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>terminée</translation>
    </message>
    <message>
        <source>finished late</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>terminée en retard</translation>
    </message>
    <message>
        <source>postponed</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>reportée</translation>
    </message>
    <message>
        <source>under way</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>en cours</translation>
    </message>
    <message>
        <source>waiting</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>en attente</translation>
    </message>
    <message>
        <source>waiting for approval</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>en attente d’approbation</translation>
    </message>
    <message>
        <source>suspected</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>soupçonnée</translation>
    </message>
    <message>
        <source>being checked</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>en vérification</translation>
    </message>
    <message>
        <source>confirmed</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>confirmée</translation>
    </message>
    <message>
        <source>ruled out</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>écartée</translation>
    </message>
    <message>
        <source>root cause</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>cause racine</translation>
    </message>
    <message numerus="yes">
        <source>%n vote(s)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>%n vote</numerusform>
            <numerusform>%n votes</numerusform>
        </translation>
    </message>
    <message>
        <source>votes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>votes</translation>
    </message>
</context>
<context>
    <name>CloseQuestion</name>
    <message>
        <source>Close</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Fermer</translation>
    </message>
    <message numerus="yes">
        <source>%n document(s) have changes that were not saved. Save those that are checked?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>%n document contient des modifications non enregistrées. L’enregistrer s’il est coché&#x202f;?</numerusform>
            <numerusform>%n documents contiennent des modifications non enregistrées. Enregistrer ceux qui sont cochés&#x202f;?</numerusform>
        </translation>
    </message>
    <message>
        <source>Documents with changes that were not saved</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Documents avec des modifications non enregistrées</translation>
    </message>
    <message>
        <source>&amp;Save checked</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Enregistrer les documents cochés</translation>
    </message>
    <message>
        <source>Close &amp;without saving</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Fermer sans enregistrer</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>the ending names no format that can be read</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>l’extension ne désigne aucun format lisible</translation>
    </message>
    <message>
        <source>--%1 takes %2, not &quot;%3&quot;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1 attend %2, et non «&#x202f;%3&#x202f;»</translation>
    </message>
    <message>
        <source>--%1 needs convert, info, report or check</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1 nécessite convert, info, report ou check</translation>
    </message>
    <message>
        <source>--%1 needs info</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1 nécessite info</translation>
    </message>
    <message>
        <source>--%1 needs convert</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1 nécessite convert</translation>
    </message>
    <message>
        <source>--%1 needs --export</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1 nécessite --export</translation>
    </message>
    <message>
        <source>the format of &quot;%1&quot; is unknown: the name must end in .png, .svg, .pdf, .html or .pptx</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>le format de «&#x202f;%1&#x202f;» est inconnu&#x202f;: le nom doit se terminer par .png, .svg, .pdf, .html ou .pptx</translation>
    </message>
    <message>
        <source>--export takes one document, not %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--export accepte un seul document, et non %1</translation>
    </message>
    <message>
        <source>--%1 does not go with convert</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1 ne va pas avec convert</translation>
    </message>
    <message>
        <source>convert takes a file to read and a file to write</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>convert attend un fichier à lire et un fichier à écrire</translation>
    </message>
    <message>
        <source>--%1 needs a picture to write</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1 ne sert que pour écrire une image</translation>
    </message>
    <message>
        <source>--%1 does not go with info</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1 ne va pas avec info</translation>
    </message>
    <message>
        <source>info takes one file, not %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>info accepte un seul fichier, et non %1</translation>
    </message>
    <message>
        <source>--%1 does not go with report</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1 ne va pas avec report</translation>
    </message>
    <message>
        <source>report takes a file to read and a file to write</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>report attend un fichier à lire et un fichier à écrire</translation>
    </message>
    <message>
        <source>the format of &quot;%1&quot; is unknown: the name must end in .html, .pdf or .md</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>le format de «&#x202f;%1&#x202f;» est inconnu&#x202f;: le nom doit se terminer par .html, .pdf ou .md</translation>
    </message>
    <message>
        <source>--%1 does not go with check</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1 ne va pas avec check</translation>
    </message>
    <message>
        <source>check takes the files to look at</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>check attend les fichiers à examiner</translation>
    </message>
    <message>
        <source>--%1 does not go with merge</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1 ne va pas avec merge</translation>
    </message>
    <message>
        <source>merge takes the files of the base, of ours and of theirs</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>merge attend les fichiers de la base, de notre version et de l’autre version</translation>
    </message>
    <message>
        <source>--%1 does not go with a document from the network</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1 ne va pas avec un document du réseau</translation>
    </message>
    <message>
        <source>%1 can only be written</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 ne peut être qu’écrit</translation>
    </message>
    <message>
        <source>%1 can only be read</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 ne peut être que lu</translation>
    </message>
    <message>
        <source>one of %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>une valeur parmi %1</translation>
    </message>
    <message>
        <source>the format of &quot;%1&quot; is unknown: the name must end in one of %2, or --from tell one of %3</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>le format de «&#x202f;%1&#x202f;» est inconnu&#x202f;: le nom doit se terminer par l’une des extensions %2, ou --from indiquer l’un des formats %3</translation>
    </message>
    <message>
        <source>the format of &quot;%1&quot; is unknown: the name must end in one of %2, or in .png, .svg, .pdf, .html or .pptx for a picture, or --to tell one of %3</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>le format de «&#x202f;%1&#x202f;» est inconnu&#x202f;: le nom doit se terminer par l’une des extensions %2, ou par .png, .svg, .pdf, .html ou .pptx pour une image, ou --to indiquer l’un des formats %3</translation>
    </message>
    <message>
        <source>--size and --scale exclude each other</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--size et --scale s’excluent</translation>
    </message>
    <message>
        <source>a page for the browser needs the clear look</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>une page pour le navigateur nécessite l’aspect épuré (clear)</translation>
    </message>
    <message>
        <source>all, none or a number of levels</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>all, none ou un nombre de niveaux</translation>
    </message>
    <message>
        <source>a size such as 1600x900</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>une taille telle que 1600x900</translation>
    </message>
    <message>
        <source>a number above 0</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>un nombre supérieur à 0</translation>
    </message>
    <message>
        <source>the name of a colour, #rrggbb or transparent</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>le nom d’une couleur, #rrggbb ou transparent</translation>
    </message>
    <message>
        <source>Show this help and quit.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Afficher cette aide et quitter.</translation>
    </message>
    <message>
        <source>Show the version and quit.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Afficher la version et quitter.</translation>
    </message>
    <message>
        <source>Show texts in &lt;language&gt;, such as de or zh, instead of the system&apos;s.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Afficher les textes en &lt;language&gt;, par exemple de ou zh, au lieu de la langue du système.</translation>
    </message>
    <message>
        <source>Draw the diagram into the picture &lt;file&gt; and quit. The ending .png, .svg, .pdf, .html or, for a slide, .pptx tells the format. Needs no display.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Dessiner le diagramme dans l’image &lt;file&gt; et quitter. L’extension .png, .svg, .pdf, .html ou, pour une diapositive, .pptx indique le format. Ne nécessite pas d’écran.</translation>
    </message>
    <message>
        <source>How far to expand the bones of the picture: all (the default), none, or a number of levels below the main bones.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Jusqu’où déplier les arêtes de l’image&#x202f;: all (toutes, par défaut), none (aucune) ou un nombre de niveaux sous les arêtes principales.</translation>
    </message>
    <message>
        <source>Make the picture &lt;width&gt;x&lt;height&gt; in size and fit the drawing in.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Donner à l’image la taille &lt;width&gt;x&lt;height&gt; et y ajuster le dessin.</translation>
    </message>
    <message>
        <source>Draw &lt;factor&gt; times as large as on the screen at 100 %.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Dessiner &lt;factor&gt; fois plus grand qu’à l’écran à 100&#x202f;%.</translation>
    </message>
    <message>
        <source>Fill the picture with &lt;colour&gt;, a name or #rrggbb, or leave it transparent. White is the default.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Remplir l’image avec &lt;colour&gt;, un nom ou #rrggbb, ou la laisser transparente avec transparent. Blanc par défaut.</translation>
    </message>
    <message>
        <source>Read the file as &lt;format&gt;, whatever its ending.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Lire le fichier au format &lt;format&gt;, quelle que soit son extension.</translation>
    </message>
    <message>
        <source>Write &lt;format&gt;, whatever the ending.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Écrire au format &lt;format&gt;, quelle que soit l’extension.</translation>
    </message>
    <message>
        <source>Write nothing when that would leave content out.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ne rien écrire si du contenu devait être omis.</translation>
    </message>
    <message>
        <source>Say it as JSON, for programs.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Répondre en JSON, pour les programmes.</translation>
    </message>
    <message>
        <source>Edits fishbone diagrams of tasks.

These commands need no display:
  convert   write a diagram in another format, or as a picture
  info      say what is in a diagram, and what is off in it
  report    write what is sent round after a meeting
  check     name what is off in files, line by line
  merge     merge two versions of a diagram, for git
&quot;fishbone convert --help&quot; tells more. A file of such a name is ./convert.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Édite des diagrammes en arêtes de poisson composés de tâches.

Ces commandes ne nécessitent pas d’écran&#x202f;:
  convert   écrire un diagramme dans un autre format ou en image
  info      dire ce que contient un diagramme et ses anomalies
  report    écrire ce que l’on diffuse après une réunion
  check     nommer les anomalies des fichiers, ligne par ligne
  merge     fusionner deux versions d’un diagramme, pour git
«&#x202f;fishbone convert --help&#x202f;» en dit plus. Un fichier portant un tel nom s’écrit ./convert.</translation>
    </message>
    <message>
        <source>Diagrams to open: files, or http and https URLs. Without one, a new diagram.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Diagrammes à ouvrir&#x202f;: fichiers ou URL http et https. Si aucun n’est donné, un nouveau diagramme.</translation>
    </message>
    <message>
        <source>Writes a diagram in another format, or as a picture.
The endings tell the formats. Read: %1.
Written: %2, and png, svg, pdf, html and pptx for pictures.
What is left out, or put where it can be kept, is listed on the error output.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Écrit un diagramme dans un autre format ou en image.
Les extensions indiquent les formats. En lecture&#x202f;: %1.
En écriture&#x202f;: %2, ainsi que png, svg, pdf, html et pptx pour les images.
Ce qui est omis, ou placé là où il peut être conservé, est indiqué sur la sortie d’erreur.</translation>
    </message>
    <message>
        <source>The command.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>La commande.</translation>
    </message>
    <message>
        <source>The file to read.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Le fichier à lire.</translation>
    </message>
    <message>
        <source>The file to write.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Le fichier à écrire.</translation>
    </message>
    <message>
        <source>Counts what is in a diagram and lists what is off in it.
The exit code is 3 when anything is.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Compte ce que contient un diagramme et énumère ses anomalies.
Le code de retour est 3 s’il y en a.</translation>
    </message>
    <message>
        <source>Writes what is sent round after a meeting: the picture, the causes in the order of what was found out, what is to be done by whom, and a legend.
The ending .html, .pdf or .md tells the format; .md has its picture in a file beside it.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Écrit ce que l’on diffuse après une réunion&#x202f;: l’image, les causes dans l’ordre des conclusions, qui doit faire quoi, et une légende.
L’extension .html, .pdf ou .md indique le format&#x202f;; l’image d’un .md est dans un fichier à côté.</translation>
    </message>
    <message>
        <source>Names what is off in each file, and why one cannot be read, a line each.
The exit code is 1 when there is anything.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Nomme les anomalies de chaque fichier, et pourquoi un fichier est illisible, une par ligne.
Le code de retour est 1 s’il y en a.</translation>
    </message>
    <message>
        <source>The files to look at.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Les fichiers à examiner.</translation>
    </message>
    <message>
        <source>Merges what changed from the base to theirs into ours, subject by subject, as git asks a merge driver to.
What both changed differently is kept as in ours, with a cause that says so below it; the exit code is 1 then.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Fusionne dans notre version, sujet par sujet, ce qui a changé entre la base et l’autre version, comme git le demande à un pilote de fusion.
Ce que les deux ont changé différemment reste comme dans notre version, avec en dessous une cause qui le signale&#x202f;; le code de retour est alors 1.</translation>
    </message>
    <message>
        <source>The version that both come from.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>La version dont les deux sont issues.</translation>
    </message>
    <message>
        <source>The version to merge into; it is replaced.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>La version qui reçoit la fusion&#x202f;; elle est remplacée.</translation>
    </message>
    <message>
        <source>The other version.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>L’autre version.</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>impossible d’écrire %1&#x202f;: %2</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>impossible de lire %1&#x202f;: %2</translation>
    </message>
    <message>
        <source>%1 was not written: something would be left out</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 n’a pas été écrit&#x202f;: du contenu serait omis</translation>
    </message>
    <message>
        <source>Format: %1
</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Format&#x202f;: %1
</translation>
    </message>
    <message>
        <source>there are conflicts: look for the causes &quot;Merge conflict&quot;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>il y a des conflits&#x202f;: cherchez les causes «&#x202f;Conflit de fusion&#x202f;»</translation>
    </message>
    <message>
        <source>there is no display to open a window on; --export needs none</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>il n’y a pas d’écran où ouvrir une fenêtre&#x202f;; --export n’en a pas besoin</translation>
    </message>
    <message>
        <source>a folder</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>un dossier</translation>
    </message>
    <message>
        <source>Show the texts that the files in &lt;folder&gt; have, and show them anew when these are changed. For translators.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Afficher les textes des fichiers de &lt;folder&gt;, et les afficher à nouveau quand ces fichiers changent. Pour les traducteurs.</translation>
    </message>
</context>
<context>
    <name>DetailsForm</name>
    <message>
        <source>Priority:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Priorité&#x202f;:</translation>
    </message>
    <message>
        <source>Open</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Edit style…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Modifier le style…</translation>
    </message>
    <message>
        <source>Has a planned end</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>A une fin prévue</translation>
    </message>
    <message>
        <source>Planned end</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Fin prévue</translation>
    </message>
    <message>
        <source>What there is to say of it; of a cause, the evidence for its verdict</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ce qu’il y a à en dire&#x202f;; pour une cause, les preuves de son verdict</translation>
    </message>
    <message>
        <source>Progress</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Avancement</translation>
    </message>
    <message>
        <source>Link</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Lien</translation>
    </message>
    <message>
        <source>Open the link</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ouvrir le lien</translation>
    </message>
    <message>
        <source>Followers</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Observateurs</translation>
    </message>
    <message>
        <source>New follower</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Nouvel observateur</translation>
    </message>
    <message>
        <source>Origin</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Origine</translation>
    </message>
    <message>
        <source>several</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>plusieurs</translation>
    </message>
    <message numerus="yes">
        <source>%n subjects</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>%n sujet</numerusform>
            <numerusform>%n sujets</numerusform>
        </translation>
    </message>
    <message>
        <source>Title:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Titre&#x202f;:</translation>
    </message>
    <message>
        <source>Number:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Numéro&#x202f;:</translation>
    </message>
    <message>
        <source>Verdict:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Verdict&#x202f;:</translation>
    </message>
    <message>
        <source>Votes:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Votes&#x202f;:</translation>
    </message>
    <message>
        <source>Status:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Statut&#x202f;:</translation>
    </message>
    <message>
        <source>Progress:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Avancement&#x202f;:</translation>
    </message>
    <message>
        <source>Responsible:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Responsable&#x202f;:</translation>
    </message>
    <message>
        <source>Their id:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Son identifiant&#x202f;:</translation>
    </message>
    <message>
        <source>Planned end:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Fin prévue&#x202f;:</translation>
    </message>
    <message>
        <source>Link:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Lien&#x202f;:</translation>
    </message>
    <message>
        <source>Followers:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Observateurs&#x202f;:</translation>
    </message>
    <message>
        <source>Details:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Détails&#x202f;:</translation>
    </message>
    <message>
        <source>Style:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Style&#x202f;:</translation>
    </message>
</context>
<context>
    <name>DetailsPanel</name>
    <message>
        <source>&amp;Apply</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Appli&amp;quer</translation>
    </message>
    <message>
        <source>Re&amp;vert</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Created by: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Créé par&#x202f;: %1</translation>
    </message>
    <message>
        <source>Created on: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Créé le&#x202f;: %1</translation>
    </message>
    <message>
        <source>Edit details</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Modifier les détails</translation>
    </message>
</context>
<context>
    <name>DiagramCounts</name>
    <message numerus="yes">
        <source>%n subject(s)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>%n sujet</numerusform>
            <numerusform>%n sujets</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>, %n selected</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>, %n sélectionné</numerusform>
            <numerusform>, %n sélectionnés</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DiagramExchange</name>
    <message>
        <source>the text is not encoded as UTF-8, nor in a code page that is known (Windows-1252, GB 18030)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>le texte n’est pas codé en UTF-8, ni dans une page de codes connue (Windows-1252, GB 18030)</translation>
    </message>
    <message>
        <source>the text as %1, since it is not encoded as UTF-8</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>le texte comme %1, car il n’est pas codé en UTF-8</translation>
    </message>
    <message>
        <source>Table of tasks</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Tableau de tâches</translation>
    </message>
    <message>
        <source>a quote is not closed</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>un guillemet n’est pas fermé</translation>
    </message>
    <message>
        <source>there is text behind a closing quote</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>il y a du texte après un guillemet fermant</translation>
    </message>
    <message>
        <source>it has more than %1 levels</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>il a plus de %1 niveaux</translation>
    </message>
    <message>
        <source>that format can only be read</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ce format ne peut être que lu</translation>
    </message>
    <message>
        <source>that format can only be written</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ce format ne peut être qu’écrit</translation>
    </message>
    <message>
        <source>draw.io diagram</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Diagramme draw.io</translation>
    </message>
    <message>
        <source>All formats</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Tous les formats</translation>
    </message>
    <message>
        <source>it is larger than %1 MiB</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>il dépasse %1 Mio</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>il est vide</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>c’est un dossier</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ce fichier n’existe pas</translation>
    </message>
    <message>
        <source>a style</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>un style</translation>
    </message>
    <message>
        <source>FreeMind mind map</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Carte mentale FreeMind</translation>
    </message>
    <message>
        <source>what is encrypted</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ce qui est chiffré</translation>
    </message>
    <message>
        <source>Icons</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Icônes</translation>
    </message>
    <message>
        <source>the icon &quot;%1&quot; as %2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>l’icône «&#x202f;%1&#x202f;» comme %2</translation>
    </message>
    <message>
        <source>an arrow</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>une flèche</translation>
    </message>
    <message>
        <source>there are more than %1 levels</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>il y a plus de %1 niveaux</translation>
    </message>
    <message>
        <source>there are more than %1 subjects</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>il y a plus de %1 sujets</translation>
    </message>
    <message>
        <source>Link</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Lien</translation>
    </message>
    <message>
        <source>Image</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Image</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ligne %1&#x202f;: %2</translation>
    </message>
    <message>
        <source>it holds no diagram</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>il ne contient pas de diagramme</translation>
    </message>
    <message>
        <source>Imported diagram</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Diagramme importé</translation>
    </message>
    <message>
        <source>Fishbone diagram</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Diagramme en arêtes de poisson</translation>
    </message>
    <message>
        <source>Markdown outline</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Plan Markdown</translation>
    </message>
    <message>
        <source>the front matter</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>l’en-tête de métadonnées (front matter)</translation>
    </message>
    <message>
        <source>the comment &quot;%1&quot;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>le commentaire «&#x202f;%1&#x202f;»</translation>
    </message>
    <message>
        <source>the language &quot;%1&quot; of a block of code</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>le langage «&#x202f;%1&#x202f;» d’un bloc de code</translation>
    </message>
    <message>
        <source>Mermaid ishikawa diagram</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Diagramme Mermaid (ishikawa)</translation>
    </message>
    <message>
        <source>the diagram does not begin with &quot;ishikawa&quot; or &quot;mindmap&quot;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>le diagramme ne commence pas par «&#x202f;ishikawa&#x202f;» ou «&#x202f;mindmap&#x202f;»</translation>
    </message>
    <message>
        <source>settings</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>paramètres</translation>
    </message>
    <message>
        <source>OPML outline</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Plan OPML</translation>
    </message>
    <message>
        <source>Org outline</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Plan Org</translation>
    </message>
    <message>
        <source>text above the outline</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>le texte au-dessus du plan</translation>
    </message>
    <message>
        <source>&quot;%1&quot; as %2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>«&#x202f;%1&#x202f;» comme %2</translation>
    </message>
    <message>
        <source>Labels</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Étiquettes</translation>
    </message>
    <message>
        <source>&quot;%1&quot; as a progress</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>«&#x202f;%1&#x202f;» comme avancement</translation>
    </message>
    <message>
        <source>a quotation</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>une citation</translation>
    </message>
    <message>
        <source>further cells</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>autres cellules</translation>
    </message>
    <message>
        <source>the diagram does not begin with &quot;@startmindmap&quot;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>le diagramme ne commence pas par «&#x202f;@startmindmap&#x202f;»</translation>
    </message>
    <message>
        <source>text beside the drawing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>le texte à côté du dessin</translation>
    </message>
    <message>
        <source>PlantUML mind map</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Carte mentale PlantUML</translation>
    </message>
    <message>
        <source>dates of &quot;%1&quot; as day/month/year</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>les dates de «&#x202f;%1&#x202f;» comme jour/mois/année</translation>
    </message>
    <message>
        <source>dates of &quot;%1&quot; as month/day/year</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>les dates de «&#x202f;%1&#x202f;» comme mois/jour/année</translation>
    </message>
    <message>
        <source>cells without a heading</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>les cellules sans en-tête</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of &quot;%2&quot; as %3</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>«&#x202f;%1&#x202f;» de «&#x202f;%2&#x202f;» comme %3</translation>
    </message>
    <message>
        <source>headings that are repeated</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>en-têtes répétés</translation>
    </message>
    <message>
        <source>the uuid &quot;%1&quot; a second time</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>l’uuid «&#x202f;%1&#x202f;» une seconde fois</translation>
    </message>
    <message>
        <source>the subject lies below itself</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>le sujet se trouve sous lui-même</translation>
    </message>
    <message>
        <source>there is no column of titles, such as &quot;title&quot;, &quot;summary&quot; or &quot;name&quot;; the columns are %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>il n’y a pas de colonne de titres, telle que «&#x202f;title&#x202f;», «&#x202f;summary&#x202f;» ou «&#x202f;name&#x202f;»&#x202f;; les colonnes sont %1</translation>
    </message>
    <message>
        <source>Indented text</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Texte indenté</translation>
    </message>
    <message>
        <source>the sheet &quot;%1&quot;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>la feuille «&#x202f;%1&#x202f;»</translation>
    </message>
    <message>
        <source>Excel workbook</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Classeur Excel</translation>
    </message>
    <message>
        <source>the archive has no file &quot;%1&quot;, as workbooks do</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>l’archive ne contient pas de fichier «&#x202f;%1&#x202f;», comme en ont les classeurs</translation>
    </message>
    <message>
        <source>remarks at cells</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>les commentaires de cellules</translation>
    </message>
    <message>
        <source>drawings</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>les dessins</translation>
    </message>
    <message>
        <source>cells behind column %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>les cellules après la colonne %1</translation>
    </message>
    <message>
        <source>there are too many cells</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>il y a trop de cellules</translation>
    </message>
    <message>
        <source>a link within the workbook</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>un lien interne au classeur</translation>
    </message>
    <message>
        <source>the file &quot;%1&quot;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>le fichier «&#x202f;%1&#x202f;»</translation>
    </message>
    <message>
        <source>the archive has neither content.json nor content.xml, one of which holds the map</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>l’archive ne contient ni content.json ni content.xml, dont l’un renferme la carte</translation>
    </message>
    <message>
        <source>XMind map</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Carte XMind</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Feuille</translation>
    </message>
    <message>
        <source>Boundary</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Contour</translation>
    </message>
    <message>
        <source>a topic of the kind &quot;%1&quot; as a cause</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>un thème de type «&#x202f;%1&#x202f;» comme cause</translation>
    </message>
    <message>
        <source>content.json: it is no list of sheets</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>content.json&#x202f;: ce n’est pas une liste de feuilles</translation>
    </message>
    <message>
        <source>the icon &quot;%1&quot;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>l’icône «&#x202f;%1&#x202f;»</translation>
    </message>
    <message>
        <source>an arrow &quot;%1&quot; that joins no two topics</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>une flèche «&#x202f;%1&#x202f;» qui ne relie pas deux thèmes</translation>
    </message>
    <message>
        <source>declarations of entities are not accepted</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>les déclarations d’entités ne sont pas acceptées</translation>
    </message>
    <message>
        <source>the document begins with &lt;%1&gt;, not with &lt;%2&gt;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>le document commence par &lt;%1&gt;, et non par &lt;%2&gt;</translation>
    </message>
    <message>
        <source>&lt;/%1&gt; is missing, the end of &lt;%1&gt; in line %2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>il manque &lt;/%1&gt;, la fin de &lt;%1&gt; à la ligne %2</translation>
    </message>
    <message>
        <source>it is not a zip archive, as files of this format are (%1)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ce n’est pas une archive zip, comme le sont les fichiers de ce format (%1)</translation>
    </message>
    <message>
        <source>the archive has more than %1 files</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>l’archive contient plus de %1 fichiers</translation>
    </message>
    <message>
        <source>the archive has &quot;%1&quot; twice</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>l’archive contient deux fois «&#x202f;%1&#x202f;»</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>il est endommagé</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>il est trop volumineux</translation>
    </message>
    <message>
        <source>it expands to more than %1 times its size</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>décompressé, il dépasse %1 fois sa taille</translation>
    </message>
    <message>
        <source>the map is protected by a password</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>la carte est protégée par un mot de passe</translation>
    </message>
</context>
<context>
    <name>DiagramMerge</name>
    <message>
        <source>It was changed in ours and deleted in theirs.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Modifié dans notre version et supprimé dans l’autre.</translation>
    </message>
    <message>
        <source>It was deleted in ours and changed in theirs.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Supprimé dans notre version et modifié dans l’autre.</translation>
    </message>
    <message>
        <source>Theirs has it below &quot;%1&quot;.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>L’autre version le place sous «&#x202f;%1&#x202f;».</translation>
    </message>
    <message>
        <source>Its %1 is &quot;%2&quot; in ours and &quot;%3&quot; in theirs.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Son champ %1 vaut «&#x202f;%2&#x202f;» dans notre version et «&#x202f;%3&#x202f;» dans l’autre.</translation>
    </message>
    <message>
        <source>It was deleted in theirs and has more below it in ours.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Supprimé dans l’autre version, alors que la nôtre a davantage en dessous.</translation>
    </message>
    <message>
        <source>It was deleted in ours and has more below it in theirs.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Supprimé dans notre version, alors que l’autre a davantage en dessous.</translation>
    </message>
    <message>
        <source>It is a second head.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>C’est une seconde tête.</translation>
    </message>
    <message>
        <source>What is below it has another order in theirs.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ce qui est en dessous est dans un autre ordre dans l’autre version.</translation>
    </message>
    <message>
        <source>Merge conflict</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Conflit de fusion</translation>
    </message>
</context>
<context>
    <name>DiagramPicture</name>
    <message>
        <source>there is not enough memory for it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>il n’y a pas assez de mémoire</translation>
    </message>
    <message>
        <source>the scale, the size or the margin makes no picture</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>l’échelle, la taille ou la marge ne donnent pas d’image</translation>
    </message>
    <message>
        <source>the file name must end in .png, .svg, .pdf or .html</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>le nom du fichier doit se terminer par .png, .svg, .pdf ou .html</translation>
    </message>
    <message>
        <source>the page is too small or too large</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>la page est trop petite ou trop grande</translation>
    </message>
</context>
<context>
    <name>DocumentLoader</name>
    <message>
        <source>it holds no diagram</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>il ne contient pas de diagramme</translation>
    </message>
    <message>
        <source>the program is closing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>le programme se ferme</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ce fichier n’existe pas</translation>
    </message>
</context>
<context>
    <name>DocumentReport</name>
    <message>
        <source>it has no uuid</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>n’a pas d’uuid</translation>
    </message>
    <message>
        <source>another subject has the same uuid %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>un autre sujet a le même uuid %1</translation>
    </message>
    <message>
        <source>it is the head and has the pid %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>est la tête et a le pid %1</translation>
    </message>
    <message>
        <source>it has no pid</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>n’a pas de pid</translation>
    </message>
    <message>
        <source>its pid %1 does not name its parent</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>son pid %1 ne désigne pas son parent</translation>
    </message>
    <message>
        <source>it has no title</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>n’a pas de titre</translation>
    </message>
    <message>
        <source>its status %1 is unknown</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>son statut %1 est inconnu</translation>
    </message>
    <message>
        <source>its progress %1 is not within 0 and 100</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>son avancement %1 n’est pas compris entre 0 et 100</translation>
    </message>
    <message>
        <source>it is to end before it was created</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>devrait finir avant d’avoir été créé</translation>
    </message>
    <message>
        <source>its link %1 is no URL</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>son lien %1 n’est pas une URL</translation>
    </message>
    <message>
        <source>head</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>tête</translation>
    </message>
    <message>
        <source>Title: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Titre&#x202f;: %1</translation>
    </message>
    <message>
        <source>Subjects: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Sujets&#x202f;: %1</translation>
    </message>
    <message>
        <source>Main bones: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Arêtes principales&#x202f;: %1</translation>
    </message>
    <message>
        <source>Levels: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Niveaux&#x202f;: %1</translation>
    </message>
    <message>
        <source>Links: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Liens&#x202f;: %1</translation>
    </message>
    <message>
        <source>Own styles: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Styles propres&#x202f;: %1</translation>
    </message>
    <message>
        <source>Nothing is off.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Aucune anomalie.</translation>
    </message>
    <message>
        <source>Off: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Anomalies&#x202f;: %1</translation>
    </message>
</context>
<context>
    <name>DocumentSaver</name>
    <message>
        <source>Fishbone diagrams (*.json);;All files (*)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Diagrammes en arêtes de poisson (*.json);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Another program has changed %1 since it was opened or saved here. Replace it, so that those changes are lost?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Un autre programme a modifié %1 depuis son ouverture ou son enregistrement ici. Le remplacer et perdre ces modifications&#x202f;?</translation>
    </message>
    <message>
        <source>Save</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>%1 would not be recognized as a diagram. Its name should end in .json; &quot;Export as&quot; writes other formats.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 ne serait pas reconnu comme un diagramme. Son nom devrait se terminer par .json&#x202f;; «&#x202f;Exporter vers&#x202f;» écrit d’autres formats.</translation>
    </message>
    <message>
        <source>Save as</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Enregistrer sous</translation>
    </message>
    <message>
        <source>Save a copy</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Enregistrer une copie</translation>
    </message>
    <message>
        <source>Copy written to %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Copie écrite dans %1</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Impossible d’écrire %1&#x202f;: %2.</translation>
    </message>
    <message>
        <source>%1 saved</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 enregistré</translation>
    </message>
</context>
<context>
    <name>DocumentTabs</name>
    <message>
        <source>Open documents</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Documents ouverts</translation>
    </message>
    <message>
        <source>Close</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Not saved to a file yet</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Pas encore enregistré dans un fichier</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Close &amp;others</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Fermer les &amp;autres</translation>
    </message>
    <message>
        <source>Copy &amp;path</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Copier le &amp;chemin</translation>
    </message>
</context>
<context>
    <name>DrawingFilter</name>
    <message>
        <source>left out by the filter</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>exclu par le filtre</translation>
    </message>
    <message>
        <source>leads to what the filter shows</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>mène à ce que montre le filtre</translation>
    </message>
</context>
<context>
    <name>DrawingPrinter</name>
    <message>
        <source>%1 – page %2 of %3</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 – page %2 sur %3</translation>
    </message>
</context>
<context>
    <name>EditAttributes</name>
    <message>
        <source>Edit attributes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Modifier les attributs</translation>
    </message>
</context>
<context>
    <name>EditCommands</name>
    <message>
        <source>&amp;Undo</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>&amp;Find and replace…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Rec&amp;hercher et remplacer…</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Co&amp;uper</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>C&amp;oller</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message>
        <source>Select the &amp;branch</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Sélectionner la &amp;branche</translation>
    </message>
    <message>
        <source>Select the sib&amp;lings</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Sélectionner &amp;les frères</translation>
    </message>
    <message>
        <source>&amp;Child subject</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Sujet &amp;enfant</translation>
    </message>
    <message>
        <source>Subject &amp;before</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Sujet a&amp;vant</translation>
    </message>
    <message>
        <source>Subject &amp;after</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Su&amp;jet après</translation>
    </message>
    <message>
        <source>&amp;Parent subject</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Sujet &amp;parent</translation>
    </message>
    <message>
        <source>&amp;Free subject (a new diagram)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Sujet libre (&amp;nouveau diagramme)</translation>
    </message>
    <message>
        <source>&amp;Sub-task…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Sous-&amp;tâche…</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Renommer</translation>
    </message>
    <message>
        <source>&amp;Link to…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Lien vers…</translation>
    </message>
    <message>
        <source>&amp;Open link</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Ouvrir le lien</translation>
    </message>
    <message>
        <source>Remove l&amp;ink</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Enlever le l&amp;ien</translation>
    </message>
    <message>
        <source>&amp;Style…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Style…</translation>
    </message>
    <message>
        <source>Remove s&amp;tyle</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Enlever le st&amp;yle</translation>
    </message>
    <message>
        <source>New sub-task</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Nouvelle sous-tâche</translation>
    </message>
    <message>
        <source>Title:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Titre&#x202f;:</translation>
    </message>
</context>
<context>
    <name>EditDelete</name>
    <message>
        <source>Delete selecteds</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Supprimer les sujets</translation>
    </message>
    <message>
        <source>Delete current selected</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Supprimer le sujet</translation>
    </message>
</context>
<context>
    <name>EditModify</name>
    <message>
        <source>Modify Item</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Modifier le sujet</translation>
    </message>
</context>
<context>
    <name>EditMove</name>
    <message>
        <source>Move subjects</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Déplacer les sujets</translation>
    </message>
</context>
<context>
    <name>EditPaste</name>
    <message>
        <source>Paste from clipborad</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Coller depuis le presse-papiers</translation>
    </message>
</context>
<context>
    <name>EmptyPage</name>
    <message>
        <source>No diagram is open</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Aucun diagramme n’est ouvert</translation>
    </message>
    <message>
        <source>Files can also be dragged into this window.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>On peut aussi glisser des fichiers dans cette fenêtre.</translation>
    </message>
    <message>
        <source>Opened lately:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ouverts récemment&#x202f;:</translation>
    </message>
</context>
<context>
    <name>ExchangeReport</name>
    <message>
        <source>left out: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>omis&#x202f;: %1</translation>
    </message>
    <message>
        <source>put into the details: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>mis dans les détails&#x202f;: %1</translation>
    </message>
    <message>
        <source>taken: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>repris&#x202f;: %1</translation>
    </message>
    <message>
        <source>appearance left out: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>mise en forme omise&#x202f;: %1</translation>
    </message>
    <message>
        <source>%1 (%2 times, first in line %3)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 (%2 fois, d’abord à la ligne %3)</translation>
    </message>
    <message>
        <source>%1 (%2 times)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 (%2 fois)</translation>
    </message>
    <message>
        <source>%1 (line %2)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 (ligne %2)</translation>
    </message>
    <message>
        <source>other things</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>autres éléments</translation>
    </message>
</context>
<context>
    <name>ExportCommands</name>
    <message>
        <source>&amp;Export picture…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>E&amp;xporter une image…</translation>
    </message>
    <message>
        <source>E&amp;xport as…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Exporter &amp;vers…</translation>
    </message>
    <message>
        <source>Copy as p&amp;icture</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Copier comme &amp;image</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Imprimer…</translation>
    </message>
    <message>
        <source>Print previe&amp;w…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Aperçu avant im&amp;pression…</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 écrit</translation>
    </message>
    <message>
        <source>%1 was not written</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 n’a pas été écrit</translation>
    </message>
    <message>
        <source>Export picture</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Exporter une image</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Impossible d’écrire %1&#x202f;: %2.</translation>
    </message>
    <message>
        <source>Writing %1…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Écriture de %1…</translation>
    </message>
    <message>
        <source>Copied as a picture</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Copié comme image</translation>
    </message>
    <message>
        <source>Not copied as a picture: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Non copié comme image&#x202f;: %1</translation>
    </message>
    <message>
        <source>PowerPoint slide (*.%1)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Diapositive PowerPoint (*.%1)</translation>
    </message>
    <message>
        <source>Export as</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Exporter vers</translation>
    </message>
    <message>
        <source>its ending tells none of the formats</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>l’extension n’indique aucun des formats</translation>
    </message>
    <message>
        <source>Nothing was printed</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Rien n’a été imprimé</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>&amp;Light, as on paper</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Clair, comme &amp;sur papier</translation>
    </message>
    <message>
        <source>Export picture</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Exporter une image</translation>
    </message>
    <message>
        <source>B&amp;rowse…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Pa&amp;rcourir…</translation>
    </message>
    <message>
        <source>&amp;File:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Fichier&#x202f;:</translation>
    </message>
    <message>
        <source>&amp;Background:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Arrière-pla&amp;n&#x202f;:</translation>
    </message>
    <message>
        <source>Dark</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>As on the screen</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Comme à l’écran</translation>
    </message>
    <message>
        <source>White</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Blanc</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Transparent</translation>
    </message>
    <message>
        <source>Pictures (*.png *.svg *.pdf *.html)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Images (*.png *.svg *.pdf *.html)</translation>
    </message>
    <message>
        <source>The file name must end in .png, .svg, .pdf or .html.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Le nom du fichier doit se terminer par .png, .svg, .pdf ou .html.</translation>
    </message>
    <message>
        <source>A page for the browser needs the clear look.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Une page pour le navigateur nécessite l’aspect épuré.</translation>
    </message>
    <message>
        <source>This cannot be exported: %1.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Exportation impossible&#x202f;: %1.</translation>
    </message>
    <message>
        <source>%1 Use %2, which fits?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 Utiliser %2, qui convient&#x202f;?</translation>
    </message>
    <message>
        <source>%1 exists already. Replace it?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 existe déjà. Le remplacer&#x202f;?</translation>
    </message>
</context>
<context>
    <name>FileCommands</name>
    <message>
        <source>&amp;New</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Nouveau</translation>
    </message>
    <message>
        <source>New from the &amp;example</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Nouve&amp;au depuis l’exemple</translation>
    </message>
    <message>
        <source>&amp;Welcome diagram</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Diagramme de &amp;bienvenue</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Ouvrir…</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>I&amp;mporter…</translation>
    </message>
    <message>
        <source>Open &amp;URL…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ouvrir une adresse &amp;web…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Save &amp;as…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Enregistrer &amp;sous…</translation>
    </message>
    <message>
        <source>Save a cop&amp;y…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Enre&amp;gistrer une copie…</translation>
    </message>
    <message>
        <source>Revert to &amp;file</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Re&amp;jeter les modifications</translation>
    </message>
    <message>
        <source>Save a&amp;ll</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Tout enregistrer</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Reopen &amp;documents at the start</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ro&amp;uvrir les documents au démarrage</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>%1 loaded</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 chargé</translation>
    </message>
    <message>
        <source>cannot open %1: %2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>impossible d’ouvrir %1&#x202f;: %2</translation>
    </message>
    <message>
        <source>%1 was not loaded</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 n’a pas été chargé</translation>
    </message>
    <message>
        <source>Open</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Revert</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Rejeter les modifications</translation>
    </message>
    <message>
        <source>Give up all changes of %1 since it was saved?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Abandonner toutes les modifications de %1 depuis son enregistrement&#x202f;?</translation>
    </message>
</context>
<context>
    <name>FileConflict</name>
    <message>
        <source>Another program has changed %1.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Un autre programme a modifié %1.</translation>
    </message>
    <message>
        <source>Re&amp;load</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Re&amp;charger</translation>
    </message>
    <message>
        <source>&amp;Keep mine</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Garder ma version</translation>
    </message>
    <message>
        <source>Save &amp;under another name…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Enregistrer sous un autre &amp;nom…</translation>
    </message>
    <message>
        <source>%1 was deleted, moved or renamed by another program.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 a été supprimé, déplacé ou renommé par un autre programme.</translation>
    </message>
    <message>
        <source>Save agai&amp;n</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Enregistrer à nouveau</translation>
    </message>
    <message>
        <source>&amp;Hide</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Masquer</translation>
    </message>
</context>
<context>
    <name>FileName</name>
    <message>
        <source>Untitled</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Sans titre</translation>
    </message>
</context>
<context>
    <name>FilterBar</name>
    <message>
        <source>Any status</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Tout statut</translation>
    </message>
    <message>
        <source>Any verdict</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Tout verdict</translation>
    </message>
    <message>
        <source>Text</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Any votes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Votes&#x202f;: tous</translation>
    </message>
    <message>
        <source>Votes ≥ </source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Votes ≥ </translation>
    </message>
    <message>
        <source>Overdue</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>En retard</translation>
    </message>
    <message>
        <source>Fold the others</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Replier les autres</translation>
    </message>
    <message>
        <source>Close the filter</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Fermer le filtre</translation>
    </message>
    <message>
        <source>Filter</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>Text in title, number or details</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Texte du titre, du numéro ou des détails</translation>
    </message>
    <message>
        <source>Status</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Statut</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Verdict</translation>
    </message>
    <message>
        <source>Responsible</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Responsable</translation>
    </message>
    <message>
        <source>Least number of votes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Nombre minimal de votes</translation>
    </message>
    <message>
        <source>Anybody</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>N’importe qui</translation>
    </message>
    <message>
        <source>Nobody</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Personne</translation>
    </message>
    <message numerus="yes">
        <source>%n found</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>%n trouvé</numerusform>
            <numerusform>%n trouvés</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Finder</name>
    <message>
        <source>No match</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Aucune occurrence</translation>
    </message>
    <message>
        <source>Match %1 of %2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Occurrence %1 sur %2</translation>
    </message>
    <message numerus="yes">
        <source>Replace %n text(s)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>Remplacer %n texte</numerusform>
            <numerusform>Remplacer %n textes</numerusform>
        </translation>
    </message>
    <message>
        <source>Only titles and numbers can be replaced.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Seuls les titres et les numéros peuvent être remplacés.</translation>
    </message>
    <message numerus="yes">
        <source>%n text(s) replaced</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>%n texte remplacé</numerusform>
            <numerusform>%n textes remplacés</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FishInfo</name>
    <message>
        <source>no model shows the document</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>aucun modèle n’affiche le document</translation>
    </message>
    <message>
        <source>the diagram nests too deep to be read again</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>l’imbrication du diagramme est trop profonde pour qu’il soit relu</translation>
    </message>
    <message>
        <source>Save As</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Enregistrer sous</translation>
    </message>
    <message>
        <source>&apos;%1&apos; has been modified.
Do you want to save your changes?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>«&#x202f;%1&#x202f;» a été modifié.
Voulez-vous enregistrer vos modifications&#x202f;?</translation>
    </message>
    <message>
        <source>FishInfo</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Modifications non enregistrées</translation>
    </message>
    <message>
        <source>fish%1.json</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>fish%1.json</translation>
    </message>
</context>
<context>
    <name>FishModel</name>
    <message>
        <source>自由主题</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Sujet libre</translation>
    </message>
    <message>
        <source>the reply took too long or was too large</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>la réponse a pris trop de temps ou était trop volumineuse</translation>
    </message>
    <message>
        <source>there is no document to load it into</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>il n’y a pas de document où la charger</translation>
    </message>
    <message>
        <source>个无父任务/共</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation> sans tâche parente / </translation>
    </message>
    <message>
        <source>个任务</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation> en tout</translation>
    </message>
</context>
<context>
    <name>HelpCommands</name>
    <message>
        <source>&amp;Keys…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Raccourcis clavier…</translation>
    </message>
    <message>
        <source>&amp;About Fishbone</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>À &amp;propos de Fishbone</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>À propos de &amp;Qt</translation>
    </message>
    <message>
        <source>Version %1, library %2&lt;br&gt;Qt %3, built with %4&lt;br&gt;%5</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Version %1, bibliothèque %2&lt;br&gt;Qt %3, compilé avec %4&lt;br&gt;%5</translation>
    </message>
    <message>
        <source>About Fishbone</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>À propos de Fishbone</translation>
    </message>
    <message>
        <source>Draws cause-and-effect diagrams of tasks.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Dessine des diagrammes de causes et effets composés de tâches.</translation>
    </message>
    <message>
        <source>Copyright © 2026 The Fishbone authors, under the MIT License</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Copyright © 2026 The Fishbone authors, sous licence MIT</translation>
    </message>
</context>
<context>
    <name>HistoryPanel</name>
    <message>
        <source>History</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Historique</translation>
    </message>
    <message>
        <source>(beginning)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>(début)</translation>
    </message>
    <message numerus="yes">
        <source>%1 (%2 of %n)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>%1 (%2 sur %n)</numerusform>
            <numerusform>%1 (%2 sur %n)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (%n times)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>%1 (%n fois)</numerusform>
            <numerusform>%1 (%n fois)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>HitList</name>
    <message>
        <source>Found</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Trouvé</translation>
    </message>
    <message>
        <source>Will be</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Deviendra</translation>
    </message>
    <message>
        <source>In</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Dans</translation>
    </message>
</context>
<context>
    <name>HtmlPicture</name>
    <message>
        <source>Search</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Expand all</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Tout déplier</translation>
    </message>
    <message>
        <source>Fold</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Replier</translation>
    </message>
    <message>
        <source>Fold to the categories</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Replier jusqu’aux catégories</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Zoom arrière</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Zoom avant</translation>
    </message>
    <message>
        <source>Fit</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ajuster</translation>
    </message>
    <message>
        <source>Show all</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Tout afficher</translation>
    </message>
    <message>
        <source>Close</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Fishbone diagram. Arrow keys move, Return shows details, the space bar folds.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Diagramme en arêtes de poisson. Les flèches déplacent la sélection, Entrée affiche les détails, la barre d’espace replie.</translation>
    </message>
</context>
<context>
    <name>ImportSummary</name>
    <message>
        <source>%1: %2 left out, %3 put into details.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1&#x202f;: %2 omis, %3 mis dans les détails.</translation>
    </message>
    <message>
        <source>Import</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Importer</translation>
    </message>
</context>
<context>
    <name>InsertBack</name>
    <message>
        <source>Insert subject back</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Insérer un sujet après</translation>
    </message>
</context>
<context>
    <name>InsertChild</name>
    <message>
        <source>Insert child subject</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Insérer un sujet enfant</translation>
    </message>
</context>
<context>
    <name>InsertFree</name>
    <message>
        <source>Insert free subject</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Insérer un sujet libre</translation>
    </message>
</context>
<context>
    <name>InsertFront</name>
    <message>
        <source>Insert subject front</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Insérer un sujet avant</translation>
    </message>
</context>
<context>
    <name>InsertParent</name>
    <message>
        <source>Insert subject as parent</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Insérer un sujet parent</translation>
    </message>
</context>
<context>
    <name>JsonDiagram</name>
    <message>
        <source>it is a JSON list, not a diagram, which is an object with a &quot;title&quot; and &quot;children&quot;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>c’est une liste JSON et non un diagramme, qui est un objet avec «&#x202f;title&#x202f;» et «&#x202f;children&#x202f;»</translation>
    </message>
    <message>
        <source>it is JSON of another kind: a diagram has a &quot;title&quot; and &quot;children&quot;, this has %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>c’est du JSON d’une autre sorte&#x202f;: un diagramme a «&#x202f;title&#x202f;» et «&#x202f;children&#x202f;», celui-ci a %1</translation>
    </message>
    <message>
        <source>it is JSON of another kind: its &quot;title&quot; is no text</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>c’est du JSON d’une autre sorte&#x202f;: son «&#x202f;title&#x202f;» n’est pas un texte</translation>
    </message>
    <message>
        <source>it is JSON of another kind: its &quot;children&quot; are no list</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>c’est du JSON d’une autre sorte&#x202f;: son «&#x202f;children&#x202f;» n’est pas une liste</translation>
    </message>
</context>
<context>
    <name>JsonErrors</name>
    <message>
        <source>a name in quotes or } is missing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>il manque un nom entre guillemets ou }</translation>
    </message>
    <message>
        <source>the colon behind a name is missing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>il manque le deux-points après un nom</translation>
    </message>
    <message>
        <source>a comma or ] is missing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>il manque une virgule ou ]</translation>
    </message>
    <message>
        <source>the comma behind a value is missing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>il manque la virgule après une valeur</translation>
    </message>
    <message>
        <source>a text in quotes, a number, true, false, null, { or [ is missing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>il manque un texte entre guillemets, un nombre, true, false, null, { ou [</translation>
    </message>
    <message>
        <source>it ends with a number</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>il se termine par un nombre</translation>
    </message>
    <message>
        <source>a backslash begins no escape sequence</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>une barre oblique inverse n’introduit pas de séquence d’échappement</translation>
    </message>
    <message>
        <source>a text is not encoded as UTF-8</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>un texte n’est pas codé en UTF-8</translation>
    </message>
    <message>
        <source>the quote at the end of a text is missing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>il manque le guillemet à la fin d’un texte</translation>
    </message>
    <message>
        <source>a name or a value is missing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>il manque un nom ou une valeur</translation>
    </message>
    <message>
        <source>it nests too deep</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>l’imbrication est trop profonde</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>il est trop volumineux</translation>
    </message>
    <message>
        <source>there is more behind its end</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>il y a encore quelque chose après la fin</translation>
    </message>
    <message>
        <source>it is not a JSON document</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ce n’est pas un document JSON</translation>
    </message>
    <message>
        <source>it is not a JSON document (line %1: %2)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ce n’est pas un document JSON (ligne %1&#x202f;: %2)</translation>
    </message>
</context>
<context>
    <name>KeysDialog</name>
    <message>
        <source>Keys</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>Search</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Command</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Commande</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>Lang&amp;uage</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Langue</translation>
    </message>
    <message>
        <source>&amp;System language</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Langue du &amp;système</translation>
    </message>
</context>
<context>
    <name>LinkOpener</name>
    <message>
        <source>Open link</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ouvrir le lien</translation>
    </message>
    <message>
        <source>This link is neither a web page nor a mail address. Open it?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ce lien n’est ni une page web ni une adresse électronique. L’ouvrir&#x202f;?</translation>
    </message>
</context>
<context>
    <name>LoadFailure</name>
    <message>
        <source>it is a folder</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>c’est un dossier</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ce fichier n’existe pas</translation>
    </message>
    <message>
        <source>its ending is none of those that can be read: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>son extension n’est pas de celles qui peuvent être lues&#x202f;: %1</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>il est vide</translation>
    </message>
</context>
<context>
    <name>LoadProgress</name>
    <message>
        <source>Loading</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Chargement</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>%1 received</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 reçus</translation>
    </message>
</context>
<context>
    <name>LookChoice</name>
    <message>
        <source>%1 or %2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 ou %2</translation>
    </message>
    <message>
        <source>Draw in the &lt;look&gt; %1; the first one is the default.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Dessiner avec l’aspect &lt;look&gt;&#x202f;: %1&#x202f;; le premier est celui par défaut.</translation>
    </message>
    <message>
        <source>Arrange the drawing for &lt;page&gt;: 16:9, A4, A3, Letter, or a size such as 1920x1080 or 297x210mm. A PDF has a page of that size.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Disposer le dessin pour &lt;page&gt;&#x202f;: 16:9, A4, A3, Letter ou une taille telle que 1920x1080 ou 297x210mm. Un PDF a une page de cette taille.</translation>
    </message>
    <message>
        <source>Explain the icons below the drawing, which is the default.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Expliquer les icônes sous le dessin (par défaut).</translation>
    </message>
    <message>
        <source>Leave out the explanation of the icons.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Omettre l’explication des icônes.</translation>
    </message>
    <message>
        <source>Draw in &lt;colours&gt;: colour (the default), warm, cool, gray or dark.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Dessiner avec les couleurs &lt;colours&gt;&#x202f;: colour (en couleurs, par défaut), warm (chaudes), cool (froides), gray (gris) ou dark (sombre).</translation>
    </message>
    <message>
        <source>Draw the head on the &lt;side&gt;: right (the default) or left.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Dessiner la tête du côté &lt;side&gt;&#x202f;: right (à droite, par défaut) ou left (à gauche).</translation>
    </message>
    <message>
        <source>--%1 takes %2, not &quot;%3&quot;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1 attend %2, et non «&#x202f;%3&#x202f;»</translation>
    </message>
    <message>
        <source>--%1 needs the clear look</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1 nécessite l’aspect épuré (clear)</translation>
    </message>
    <message>
        <source>colour, warm, cool, gray or dark</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>colour, warm, cool, gray ou dark</translation>
    </message>
    <message>
        <source>left or right</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>left ou right</translation>
    </message>
    <message>
        <source>16:9, A4, A3, Letter or a size such as 1920x1080 or 297x210mm</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>16:9, A4, A3, Letter ou une taille telle que 1920x1080 ou 297x210mm</translation>
    </message>
</context>
<context>
    <name>LookCommands</name>
    <message>
        <source>Look: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Aspect&#x202f;: %1</translation>
    </message>
    <message>
        <source>Loo&amp;k</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>A&amp;spect</translation>
    </message>
    <message>
        <source>Arrang&amp;e for page</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>D&amp;isposer pour la page</translation>
    </message>
    <message>
        <source>&amp;Screen</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>É&amp;cran</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Palette</translation>
    </message>
    <message>
        <source>&amp;Take off all own colours and styles</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Enlever toutes les couleurs et tous les styles propres</translation>
    </message>
    <message numerus="yes">
        <source>%n subject(s) changed</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>%n sujet modifié</numerusform>
            <numerusform>%n sujets modifiés</numerusform>
        </translation>
    </message>
    <message>
        <source>No subject has a colour or a style of its own</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Aucun sujet n’a de couleur ni de style propres</translation>
    </message>
    <message>
        <source>Lines of &amp;titles</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Lignes des &amp;titres</translation>
    </message>
    <message>
        <source>&amp;Not broken</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Sans coupure</translation>
    </message>
    <message>
        <source>&amp;Long</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Longues</translation>
    </message>
    <message>
        <source>&amp;Medium</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Moyennes</translation>
    </message>
    <message>
        <source>&amp;Short</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Courtes</translation>
    </message>
    <message>
        <source>&amp;Bones on both sides</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Arêtes des &amp;deux côtés</translation>
    </message>
    <message>
        <source>&amp;Head on the left</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Tête à &amp;gauche</translation>
    </message>
    <message>
        <source>&amp;Legend</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Légende</translation>
    </message>
</context>
<context>
    <name>LookInfo</name>
    <message>
        <source>&amp;Clear</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Épu&amp;ré</translation>
    </message>
    <message>
        <source>Cl&amp;assic</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Classique</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Float</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Détacher</translation>
    </message>
    <message>
        <source>Takes the panel out of the window, or back into it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Sort le panneau de la fenêtre ou l’y remet</translation>
    </message>
    <message>
        <source>Close</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Closes the panel</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ferme le panneau</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Détails</translation>
    </message>
    <message>
        <source>Filt&amp;er…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Filtrer…</translation>
    </message>
    <message>
        <source>Subjects</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Sujets</translation>
    </message>
    <message>
        <source>Details</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Détails</translation>
    </message>
    <message>
        <source>History</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Historique</translation>
    </message>
    <message>
        <source>Overview</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Vue d’ensemble</translation>
    </message>
    <message>
        <source>Actions</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Actions</translation>
    </message>
    <message>
        <source>Shown be&amp;fore</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Déjà a&amp;ffichés</translation>
    </message>
    <message>
        <source>&amp;Panels</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Panneaux</translation>
    </message>
    <message>
        <source>Nothing opens %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Rien n’ouvre %1</translation>
    </message>
    <message numerus="yes">
        <source>%n task(s) moved to %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>%n tâche déplacée vers %1</numerusform>
            <numerusform>%n tâches déplacées vers %1</numerusform>
        </translation>
    </message>
    <message>
        <source>the top</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>le sommet</translation>
    </message>
    <message>
        <source>%1[*] – Fishbone</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1[*] – Fishbone</translation>
    </message>
    <message>
        <source>Fishbone</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Fishbone</translation>
    </message>
</context>
<context>
    <name>MappingDialog</name>
    <message>
        <source>Import %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Importer %1</translation>
    </message>
    <message>
        <source>Read as</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Lire comme</translation>
    </message>
    <message>
        <source>What the columns stand for, with the first rows of the table:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ce que représentent les colonnes, avec les premières lignes du tableau&#x202f;:</translation>
    </message>
    <message>
        <source>Read &quot;%1&quot; as</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Lire «&#x202f;%1&#x202f;» comme</translation>
    </message>
</context>
<context>
    <name>MarkCommands</name>
    <message>
        <source>&amp;Suspected</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Soupçonnée</translation>
    </message>
    <message>
        <source>Being &amp;checked</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>En &amp;vérification</translation>
    </message>
    <message>
        <source>Con&amp;firmed</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Co&amp;nfirmée</translation>
    </message>
    <message>
        <source>&amp;Ruled out</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>É&amp;cartée</translation>
    </message>
    <message>
        <source>R&amp;oot cause</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Cause &amp;racine</translation>
    </message>
    <message>
        <source>&amp;No verdict</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Sans ver&amp;dict</translation>
    </message>
    <message>
        <source>&amp;Waiting</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>En &amp;attente</translation>
    </message>
    <message>
        <source>Waiting for &amp;approval</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>En attente d’appro&amp;bation</translation>
    </message>
    <message>
        <source>&amp;Under way</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>En &amp;cours</translation>
    </message>
    <message>
        <source>&amp;Finished</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Terminée</translation>
    </message>
    <message>
        <source>Finished &amp;late</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Terminée en &amp;retard</translation>
    </message>
    <message>
        <source>&amp;Postponed</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Re&amp;portée</translation>
    </message>
    <message>
        <source>&amp;Cancelled</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>A&amp;nnulée</translation>
    </message>
    <message>
        <source>&amp;No status</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Sans statut</translation>
    </message>
    <message>
        <source>&amp;1 (highest)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;1 (la plus haute)</translation>
    </message>
    <message>
        <source>&amp;2 (high)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;2 (haute)</translation>
    </message>
    <message>
        <source>&amp;3 (medium)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;3 (moyenne)</translation>
    </message>
    <message>
        <source>&amp;4 (low)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;4 (basse)</translation>
    </message>
    <message>
        <source>&amp;5 (lowest)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;5 (la plus basse)</translation>
    </message>
    <message>
        <source>&amp;No priority</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Sans priorité</translation>
    </message>
    <message>
        <source>&amp;Blue</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Bleu</translation>
    </message>
    <message>
        <source>&amp;Teal</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Turquoise</translation>
    </message>
    <message>
        <source>&amp;Green</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Vert</translation>
    </message>
    <message>
        <source>Bro&amp;wn</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Marron</translation>
    </message>
    <message>
        <source>&amp;Orange</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Orange</translation>
    </message>
    <message>
        <source>&amp;Red</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Rouge</translation>
    </message>
    <message>
        <source>&amp;Purple</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Vio&amp;let</translation>
    </message>
    <message>
        <source>Gr&amp;ey</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Gris</translation>
    </message>
    <message>
        <source>Mar&amp;k</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Marquer</translation>
    </message>
    <message>
        <source>Mark at the bo&amp;ne</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Mar&amp;quer sur l’arête</translation>
    </message>
    <message>
        <source>R&amp;esponsible…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Responsa&amp;ble…</translation>
    </message>
    <message>
        <source>Change verdict</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Changer le verdict</translation>
    </message>
    <message>
        <source>Vote</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Voter</translation>
    </message>
    <message>
        <source>One vote &amp;more</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Un vote de p&amp;lus</translation>
    </message>
    <message>
        <source>One vote &amp;less</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Un vote de &amp;moins</translation>
    </message>
    <message>
        <source>Sort it and its siblings &amp;by votes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Trier avec ses &amp;frères par votes</translation>
    </message>
    <message>
        <source>S&amp;tatus</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>S&amp;tatut</translation>
    </message>
    <message>
        <source>Change status</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Changer le statut</translation>
    </message>
    <message>
        <source>&amp;Priority</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Priorité</translation>
    </message>
    <message>
        <source>Change priority</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Changer la priorité</translation>
    </message>
    <message>
        <source>Colo&amp;ur</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Coule&amp;ur</translation>
    </message>
    <message>
        <source>Change colour</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Changer la couleur</translation>
    </message>
    <message>
        <source>That of the p&amp;alette</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Celle de la palette</translation>
    </message>
    <message>
        <source>Ot&amp;her…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Autre…</translation>
    </message>
    <message>
        <source>Colour of the bone</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Couleur de l’arête</translation>
    </message>
    <message>
        <source>Responsible</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Responsable</translation>
    </message>
    <message>
        <source>Who is responsible?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Qui est responsable&#x202f;?</translation>
    </message>
    <message>
        <source>Change who is responsible</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Changer le responsable</translation>
    </message>
    <message>
        <source>Sort by votes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Trier par votes</translation>
    </message>
    <message>
        <source>Sorted by votes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Trié par votes</translation>
    </message>
</context>
<context>
    <name>MarkNames</name>
    <message>
        <source>none</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>aucun</translation>
    </message>
    <message>
        <source>unknown</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>inconnu</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>annulée</translation>
    </message>
    <message>
        <source>finished</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>terminée</translation>
    </message>
    <message>
        <source>finished late</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>terminée en retard</translation>
    </message>
    <message>
        <source>postponed</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>reportée</translation>
    </message>
    <message>
        <source>under way</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>en cours</translation>
    </message>
    <message>
        <source>waiting</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>en attente</translation>
    </message>
    <message>
        <source>waiting for approval</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>en attente d’approbation</translation>
    </message>
    <message>
        <source>suspected</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>soupçonnée</translation>
    </message>
    <message>
        <source>being checked</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>en vérification</translation>
    </message>
    <message>
        <source>confirmed</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>confirmée</translation>
    </message>
    <message>
        <source>ruled out</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>écartée</translation>
    </message>
    <message>
        <source>root cause</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>cause racine</translation>
    </message>
</context>
<context>
    <name>MeetingReport</name>
    <message>
        <source>it may be a cause</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>c’est peut-être une cause</translation>
    </message>
    <message>
        <source>somebody is looking into it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>quelqu’un l’examine</translation>
    </message>
    <message>
        <source>it contributes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>elle y contribue</translation>
    </message>
    <message>
        <source>it does not contribute</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>elle n’y contribue pas</translation>
    </message>
    <message>
        <source>all comes from it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>tout en découle</translation>
    </message>
    <message>
        <source>Ranked causes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Classement des causes</translation>
    </message>
    <message>
        <source>Cause</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Cause</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Verdict</translation>
    </message>
    <message>
        <source>Votes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Votes</translation>
    </message>
    <message>
        <source>Evidence</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Preuves</translation>
    </message>
    <message>
        <source>No cause has a verdict or votes.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Aucune cause n’a de verdict ni de votes.</translation>
    </message>
    <message>
        <source>Nobody yet</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Encore personne</translation>
    </message>
    <message>
        <source>Action</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Action</translation>
    </message>
    <message>
        <source>Status</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Statut</translation>
    </message>
    <message>
        <source>Progress</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Avancement</translation>
    </message>
    <message>
        <source>Until</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Échéance</translation>
    </message>
    <message>
        <source>%1, overdue</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1, en retard</translation>
    </message>
    <message>
        <source>Legend</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Légende</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Signification</translation>
    </message>
    <message>
        <source>Actions</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Actions</translation>
    </message>
    <message>
        <source>Nobody is to do anything.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Personne n’a rien à faire.</translation>
    </message>
    <message>
        <source>In</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Dans</translation>
    </message>
    <message>
        <source>Responsible</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Responsable</translation>
    </message>
    <message>
        <source>Overdue</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>En retard</translation>
    </message>
    <message>
        <source>yes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>oui</translation>
    </message>
    <message>
        <source>its name must end in .html, .pdf or .md</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>son nom doit se terminer par .html, .pdf ou .md</translation>
    </message>
    <message>
        <source>its name must end in .csv or .md</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>son nom doit se terminer par .csv ou .md</translation>
    </message>
</context>
<context>
    <name>Menus</name>
    <message>
        <source>&amp;File</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Édi&amp;tion</translation>
    </message>
    <message>
        <source>&amp;Subject</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Sujet</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>A&amp;ller</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>A&amp;ide</translation>
    </message>
    <message>
        <source>File</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Edit</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Édition</translation>
    </message>
    <message>
        <source>Subject</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Sujet</translation>
    </message>
    <message>
        <source>View</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Affichage</translation>
    </message>
</context>
<context>
    <name>Minimap</name>
    <message>
        <source>Overview of the drawing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Vue d’ensemble du dessin</translation>
    </message>
</context>
<context>
    <name>ModifyDelLink</name>
    <message>
        <source>Delete link</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Enlever le lien</translation>
    </message>
</context>
<context>
    <name>ModifyLinkTo</name>
    <message>
        <source>Modify link to</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Changer le lien</translation>
    </message>
</context>
<context>
    <name>ModifyName</name>
    <message>
        <source>Modify subject name</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Renommer le sujet</translation>
    </message>
</context>
<context>
    <name>MoveCommands</name>
    <message>
        <source>Move &amp;up</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Vers le &amp;haut</translation>
    </message>
    <message>
        <source>Move do&amp;wn</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Vers le &amp;bas</translation>
    </message>
    <message>
        <source>Pro&amp;mote (beside its parent)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Promouvoir (à &amp;côté de son parent)</translation>
    </message>
    <message>
        <source>D&amp;emote (below the one before)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Abaisser (sous le précédent)</translation>
    </message>
</context>
<context>
    <name>Palettes</name>
    <message>
        <source>&amp;Colours</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Couleurs</translation>
    </message>
    <message>
        <source>&amp;Warm</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>C&amp;haudes</translation>
    </message>
    <message>
        <source>C&amp;ool</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Froides</translation>
    </message>
    <message>
        <source>&amp;Grey</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Gris</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Sombre</translation>
    </message>
</context>
<context>
    <name>PasteDialog</name>
    <message>
        <source>Paste</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Coller</translation>
    </message>
    <message>
        <source>Lines</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Lignes</translation>
    </message>
    <message>
        <source>Lines with links and emphasis</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Lignes avec liens et mises en évidence</translation>
    </message>
    <message>
        <source>Rows of a table</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Lignes d’un tableau</translation>
    </message>
    <message>
        <source>Title</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Details</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Détails</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Coller</translation>
    </message>
    <message>
        <source>&amp;Read as:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Lire comme&#x202f;:</translation>
    </message>
</context>
<context>
    <name>PenSelect</name>
    <message>
        <source>NoPen</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Sans trait</translation>
    </message>
    <message>
        <source>SolidLine</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Continu</translation>
    </message>
    <message>
        <source>DashLine</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Tirets</translation>
    </message>
    <message>
        <source>DotLine</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Pointillés</translation>
    </message>
    <message>
        <source>DashDotLine</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Tiret, point</translation>
    </message>
    <message>
        <source>DashDotDotLine</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Tiret, point, point</translation>
    </message>
    <message>
        <source>FlatCap</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Plates</translation>
    </message>
    <message>
        <source>SquareCap</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Carrées</translation>
    </message>
    <message>
        <source>RoundCap</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Rondes</translation>
    </message>
    <message>
        <source>MiterJoin</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Vifs</translation>
    </message>
    <message>
        <source>BevelJoin</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Biseautés</translation>
    </message>
    <message>
        <source>RoundJoin</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ronds</translation>
    </message>
    <message>
        <source>PenWidth</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Largeur&#x202f;:</translation>
    </message>
    <message>
        <source>PenStyle</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Trait&#x202f;:</translation>
    </message>
    <message>
        <source>PenCapStyle</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Extrémités&#x202f;:</translation>
    </message>
    <message>
        <source>PenJoinStyle</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Angles&#x202f;:</translation>
    </message>
    <message>
        <source>PenColor</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Couleur&#x202f;:</translation>
    </message>
    <message>
        <source>Pen</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Crayon</translation>
    </message>
    <message>
        <source>Color</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Choisir…</translation>
    </message>
    <message>
        <source>Accept</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>PictureExport</name>
    <message>
        <source>%1; it fits at a scale of %2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1&#x202f;; cela convient à l’échelle %2</translation>
    </message>
    <message>
        <source>the scale, the size or the margin makes no picture</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>l’échelle, la taille ou la marge ne donnent pas d’image</translation>
    </message>
    <message>
        <source>there is nothing to draw</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>il n’y a rien à dessiner</translation>
    </message>
    <message>
        <source>a drawing without height or width needs a margin</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>un dessin sans hauteur ou sans largeur a besoin d’une marge</translation>
    </message>
    <message>
        <source>the file name must end in .png, .svg or .pdf</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>le nom du fichier doit se terminer par .png, .svg ou .pdf</translation>
    </message>
    <message>
        <source>a picture of %1 × %2 is too large: %3</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>une image de %1 × %2 est trop grande&#x202f;: %3</translation>
    </message>
    <message>
        <source>a PDF has at most %1 points (1/72 inch) on a side</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>un PDF a au plus %1 points (1/72 pouce) par côté</translation>
    </message>
    <message>
        <source>a PNG has at most %1 pixels on a side</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>un PNG a au plus %1 pixels par côté</translation>
    </message>
    <message>
        <source>its pixels would take more than %1 MiB</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ses pixels occuperaient plus de %1 Mio</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>il n’y a pas assez de mémoire</translation>
    </message>
    <message>
        <source>an SVG of it would have more than %1 MiB; a PDF is smaller</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>un SVG dépasserait %1 Mio&#x202f;; un PDF est plus petit</translation>
    </message>
    <message>
        <source>a side has at most %1 units</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>un côté a au plus %1 unités</translation>
    </message>
    <message>
        <source>there is no such format</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ce format n’existe pas</translation>
    </message>
    <message>
        <source>it was cancelled</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>opération annulée</translation>
    </message>
    <message>
        <source>the drawing cannot be encoded</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>le dessin ne peut pas être codé</translation>
    </message>
</context>
<context>
    <name>PictureLevelFields</name>
    <message>
        <source>As shown</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Comme affiché</translation>
    </message>
    <message>
        <source>All levels</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Tous les niveaux</translation>
    </message>
    <message>
        <source>Levels below the main bones:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Niveaux sous les arêtes principales&#x202f;:</translation>
    </message>
    <message>
        <source>Levels below the main bones</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Niveaux sous les arêtes principales</translation>
    </message>
    <message>
        <source>&amp;Expanded:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Dépliage&#x202f;:</translation>
    </message>
</context>
<context>
    <name>PictureLookFields</name>
    <message>
        <source>Le&amp;gend</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Légende</translation>
    </message>
    <message>
        <source>Loo&amp;k:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Aspect&#x202f;:</translation>
    </message>
    <message>
        <source>As on the screen</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Comme à l’écran</translation>
    </message>
    <message>
        <source>&amp;Page:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Pag&amp;e&#x202f;:</translation>
    </message>
    <message>
        <source>On the right</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>À droite</translation>
    </message>
    <message>
        <source>On the left</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>À gauche</translation>
    </message>
    <message>
        <source>Pale&amp;tte:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Palette&#x202f;:</translation>
    </message>
    <message>
        <source>Hea&amp;d:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Tê&amp;te&#x202f;:</translation>
    </message>
</context>
<context>
    <name>PicturePreview</name>
    <message>
        <source>Preview</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Aperçu</translation>
    </message>
</context>
<context>
    <name>PictureSizeFields</name>
    <message>
        <source> px</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation> px</translation>
    </message>
    <message>
        <source>Sc&amp;ale:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>É&amp;chelle&#x202f;:</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Lar&amp;geur&#x202f;:</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Hauteur&#x202f;:</translation>
    </message>
    <message>
        <source>A page of %1 × %2 mm</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Une page de %1 × %2 mm</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 × %2 pixels</translation>
    </message>
    <message>
        <source>&amp;Use %1, which fits</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Utiliser %1, qui convient</translation>
    </message>
</context>
<context>
    <name>PrintPreview</name>
    <message>
        <source>Arranged for the paper</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Disposé pour le papier</translation>
    </message>
    <message>
        <source>Legend</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Légende</translation>
    </message>
    <message>
        <source>Print preview</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Aperçu avant impression</translation>
    </message>
    <message>
        <source>Size on paper</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Taille sur le papier</translation>
    </message>
    <message>
        <source>Fit one page</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ajuster à une page</translation>
    </message>
    <message>
        <source>Fit the width of the page</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ajuster à la largeur</translation>
    </message>
    <message>
        <source>Scale</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Échelle</translation>
    </message>
    <message>
        <source>Scale in percent</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Échelle en pourcentage</translation>
    </message>
    <message>
        <source>Look</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Aspect</translation>
    </message>
    <message>
        <source>Palette</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Palette</translation>
    </message>
    <message>
        <source>Printing…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Impression…</translation>
    </message>
    <message numerus="yes">
        <source>%n page(s)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>%n page</numerusform>
            <numerusform>%n pages</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Nothing to print, or more than %n page(s)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>Rien à imprimer, ou plus de %n page</numerusform>
            <numerusform>Rien à imprimer, ou plus de %n pages</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, at %2 % so that no title is cut</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1, à %2&#x202f;% pour ne couper aucun titre</translation>
    </message>
</context>
<context>
    <name>PriorityBox</name>
    <message>
        <source>none</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>aucune</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>新建子任务</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Nouvelle sous-tâche</translation>
    </message>
    <message>
        <source>查看详情</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Afficher les détails</translation>
    </message>
    <message>
        <source>用鱼骨图详细查看</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Afficher comme diagramme à part</translation>
    </message>
    <message>
        <source>编辑节点</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Modifier le sujet</translation>
    </message>
    <message>
        <source>新建子节点</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Nouveau sujet enfant</translation>
    </message>
    <message>
        <source>删除节点</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Supprimer le sujet</translation>
    </message>
</context>
<context>
    <name>RankedList</name>
    <message>
        <source>Ranked causes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Classement des causes</translation>
    </message>
    <message>
        <source>Votes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Votes</translation>
    </message>
    <message>
        <source>Cause</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Cause</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Verdict</translation>
    </message>
    <message>
        <source>In</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Dans</translation>
    </message>
</context>
<context>
    <name>RecentFiles</name>
    <message>
        <source>&amp;Recent files</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Fic&amp;hiers récents</translation>
    </message>
    <message>
        <source>(nothing yet)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>(rien encore)</translation>
    </message>
    <message>
        <source>&amp;Clear the list</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Vider la liste</translation>
    </message>
</context>
<context>
    <name>RecoveryCommands</name>
    <message>
        <source>Reco&amp;ver documents…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>R&amp;écupérer des documents…</translation>
    </message>
    <message>
        <source>There is nothing to recover.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Il n’y a rien à récupérer.</translation>
    </message>
    <message>
        <source>%1 recovered</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 récupéré</translation>
    </message>
    <message>
        <source>Recover documents</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Récupérer des documents</translation>
    </message>
    <message>
        <source>%1 cannot be recovered from %2: %3.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 ne peut pas être récupéré depuis %2&#x202f;: %3.</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>Recover documents</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Récupérer des documents</translation>
    </message>
    <message>
        <source>The program did not end well the last time. These documents have changes that were not saved:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Le programme ne s’est pas terminé normalement la dernière fois. Ces documents contiennent des modifications non enregistrées&#x202f;:</translation>
    </message>
    <message>
        <source>Documents with changes that were not saved</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Documents avec des modifications non enregistrées</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Abandonner</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Plus tard</translation>
    </message>
    <message>
        <source>Discard</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Abandonner</translation>
    </message>
    <message numerus="yes">
        <source>Give up the changes of %n document(s) for good?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>Abandonner définitivement les modifications de %n document&#x202f;?</numerusform>
            <numerusform>Abandonner définitivement les modifications de %n documents&#x202f;?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RecoveryModel</name>
    <message>
        <source>Document</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Document</translation>
    </message>
    <message>
        <source>File</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Autosaved</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Enregistré automatiquement</translation>
    </message>
    <message>
        <source>Size</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Taille</translation>
    </message>
    <message>
        <source>(never saved)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>(jamais enregistré)</translation>
    </message>
</context>
<context>
    <name>ReplaceFindDialog</name>
    <message>
        <source>Finder</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Rechercher et remplacer</translation>
    </message>
    <message>
        <source>Find what:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Rechercher&#x202f;:</translation>
    </message>
    <message>
        <source>Replace with:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Remplacer par&#x202f;:</translation>
    </message>
    <message>
        <source>Case sensitive</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Respecter la casse</translation>
    </message>
    <message>
        <source>Find</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Replace</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Replace All</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Tout remplacer</translation>
    </message>
    <message>
        <source>Column</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Colonne</translation>
    </message>
    <message>
        <source>title</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Titre</translation>
    </message>
    <message>
        <source>uuid</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Uuid</translation>
    </message>
    <message>
        <source>showid</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Numéro</translation>
    </message>
    <message>
        <source>pid</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Uuid de la tâche parente</translation>
    </message>
    <message>
        <source>Not found key word %1.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>«&#x202f;%1&#x202f;» est introuvable.</translation>
    </message>
</context>
<context>
    <name>ReportCommands</name>
    <message>
        <source>Meetin&amp;g report…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Compte rendu de réunion…</translation>
    </message>
    <message>
        <source>Meeting report</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Compte rendu de réunion</translation>
    </message>
    <message>
        <source>Ta&amp;ble of actions…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ta&amp;bleau des actions…</translation>
    </message>
    <message>
        <source>Actions</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Actions</translation>
    </message>
    <message>
        <source>Page for the browser (*.html)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Page pour le navigateur (*.html)</translation>
    </message>
    <message>
        <source>Markdown and a picture (*.md)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Markdown et une image (*.md)</translation>
    </message>
    <message>
        <source>actions</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>actions</translation>
    </message>
    <message>
        <source>Table for spreadsheets (*.csv)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Tableau pour tableurs (*.csv)</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 écrit</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Impossible d’écrire %1&#x202f;: %2.</translation>
    </message>
    <message>
        <source>Print act&amp;ions…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Imp&amp;rimer les actions…</translation>
    </message>
</context>
<context>
    <name>SlideExport</name>
    <message>
        <source>Fishbone diagram &quot;%1&quot; with %2 causes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Diagramme en arêtes de poisson «&#x202f;%1&#x202f;» avec %2 causes</translation>
    </message>
    <message>
        <source>there is nothing to draw</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>il n’y a rien à dessiner</translation>
    </message>
    <message>
        <source>Actions</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Actions</translation>
    </message>
</context>
<context>
    <name>SourceDialogs</name>
    <message>
        <source>Fishbone diagrams (*.json);;%1;;All files (*)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Diagrammes en arêtes de poisson (*.json);;%1;;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Open</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Import</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Importer</translation>
    </message>
    <message>
        <source>Loading %1…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Chargement de %1…</translation>
    </message>
</context>
<context>
    <name>SpearStyleDialog</name>
    <message>
        <source>Spear style</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Style</translation>
    </message>
    <message>
        <source>InheritanceParent</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Hériter du style du parent</translation>
    </message>
    <message>
        <source>Preview</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>ssNormal</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Normal</translation>
    </message>
    <message>
        <source>ssSelected</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Sélectionné</translation>
    </message>
    <message>
        <source>ssHovered</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Sous la souris</translation>
    </message>
    <message>
        <source>ssLinked</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Cible d’un déplacement</translation>
    </message>
    <message>
        <source>Preview 预览测试 ABC xyz</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Aperçu Éàçœ ABC xyz 123</translation>
    </message>
    <message>
        <source>textCount</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Caractères affichés&#x202f;:</translation>
    </message>
    <message>
        <source>SpearState</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>État&#x202f;:</translation>
    </message>
    <message>
        <source>Accept</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Parent</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Parent</translation>
    </message>
    <message>
        <source>Set TextFont</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Police du texte…</translation>
    </message>
    <message>
        <source>Set TextColor</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Couleur du texte…</translation>
    </message>
    <message>
        <source>Set TextBkColor</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Fond du texte…</translation>
    </message>
    <message>
        <source>Set BroderPen</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Crayon du bord…</translation>
    </message>
</context>
<context>
    <name>StepNames</name>
    <message numerus="yes">
        <source>%1 “%2” and %n more</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>%1 «&#x202f;%2&#x202f;» et %n autre</numerusform>
            <numerusform>%1 «&#x202f;%2&#x202f;» et %n autres</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StringListEditor</name>
    <message>
        <source>Add</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Remove</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Enlever</translation>
    </message>
</context>
<context>
    <name>SubjectClipboard</name>
    <message>
        <source>cannot paste the text: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>impossible de coller le texte&#x202f;: %1</translation>
    </message>
</context>
<context>
    <name>SubjectStyles</name>
    <message>
        <source>The subject looks as the one above it, also when the style of that is changed</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Le sujet a la même apparence que celui du dessus, même quand le style de ce dernier change</translation>
    </message>
    <message>
        <source>Change style</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Changer le style</translation>
    </message>
    <message>
        <source>Remove style</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Enlever le style</translation>
    </message>
    <message>
        <source>Take off own colours and styles</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Enlever les couleurs et styles propres</translation>
    </message>
</context>
<context>
    <name>SubjectTree</name>
    <message>
        <source>Filter by title</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Filtrer par titre</translation>
    </message>
    <message>
        <source>Subjects</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Sujets</translation>
    </message>
</context>
<context>
    <name>TabButtons</name>
    <message>
        <source>Scroll left</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Défiler à gauche</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Défiler à droite</translation>
    </message>
</context>
<context>
    <name>TabCommands</name>
    <message>
        <source>Next &amp;tab</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Onglet su&amp;ivant</translation>
    </message>
    <message>
        <source>Previous t&amp;ab</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Onglet pré&amp;cédent</translation>
    </message>
</context>
<context>
    <name>TableMapping</name>
    <message>
        <source>Details</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Détails</translation>
    </message>
    <message>
        <source>Title</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Title of one level</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Titre d’un niveau</translation>
    </message>
    <message>
        <source>Id</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Identifiant</translation>
    </message>
    <message>
        <source>Uuid</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Uuid</translation>
    </message>
    <message>
        <source>Short id</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Identifiant court</translation>
    </message>
    <message>
        <source>Parent</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Parent</translation>
    </message>
    <message>
        <source>Level</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Niveau</translation>
    </message>
    <message>
        <source>Outline number</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Numéro de plan</translation>
    </message>
    <message>
        <source>Status</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Statut</translation>
    </message>
    <message>
        <source>Progress</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Avancement</translation>
    </message>
    <message>
        <source>Priority</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Priorité</translation>
    </message>
    <message>
        <source>Manager</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Responsable</translation>
    </message>
    <message>
        <source>Manager&apos;s id</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Identifiant du responsable</translation>
    </message>
    <message>
        <source>Creator</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Créateur</translation>
    </message>
    <message>
        <source>Creator&apos;s id</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Identifiant du créateur</translation>
    </message>
    <message>
        <source>Followers</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Observateurs</translation>
    </message>
    <message>
        <source>Created</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Créé le</translation>
    </message>
    <message>
        <source>Planned end</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Fin prévue</translation>
    </message>
    <message>
        <source>Link</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Lien</translation>
    </message>
    <message>
        <source>Details text</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Texte des détails</translation>
    </message>
    <message>
        <source>Type</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Type</translation>
    </message>
    <message>
        <source>Completed on</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Terminé le</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Verdict</translation>
    </message>
    <message>
        <source>Votes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Votes</translation>
    </message>
</context>
<context>
    <name>TemplateCommands</name>
    <message>
        <source>New from &amp;template…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Nouveau &amp;depuis un modèle…</translation>
    </message>
    <message>
        <source>Save as te&amp;mplate…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Enregistrer comme modè&amp;le…</translation>
    </message>
    <message>
        <source>New from template</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Nouveau depuis un modèle</translation>
    </message>
    <message>
        <source>%1 is no template: %2.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 n’est pas un modèle&#x202f;: %2.</translation>
    </message>
    <message>
        <source>Save as template</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Enregistrer comme modèle</translation>
    </message>
    <message>
        <source>Name of the template:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Nom du modèle&#x202f;:</translation>
    </message>
    <message>
        <source>There is a template %1 already. Replace it?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Il existe déjà un modèle %1. Le remplacer&#x202f;?</translation>
    </message>
    <message>
        <source>File &gt; New from template offers %1 now</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Fichier &gt; Nouveau depuis un modèle propose maintenant %1</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Impossible d’écrire %1&#x202f;: %2.</translation>
    </message>
</context>
<context>
    <name>TemplateGallery</name>
    <message>
        <source>New from template</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Nouveau depuis un modèle</translation>
    </message>
    <message>
        <source>Templates</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Modèles</translation>
    </message>
    <message>
        <source>C&amp;reate</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Créer</translation>
    </message>
    <message>
        <source>From a &amp;file…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Depuis un &amp;fichier…</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Delete the template %1?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Supprimer le modèle %1&#x202f;?</translation>
    </message>
</context>
<context>
    <name>Templates</name>
    <message>
        <source>Empty</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Vide</translation>
    </message>
    <message>
        <source>6M: production</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>6M&#x202f;: production</translation>
    </message>
    <message>
        <source>4S: services</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>4S&#x202f;: services</translation>
    </message>
    <message>
        <source>8P: marketing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>8P&#x202f;: marketing</translation>
    </message>
    <message>
        <source>4P: administration</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>4P&#x202f;: administration</translation>
    </message>
    <message>
        <source>5 whys</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>5 pourquoi</translation>
    </message>
    <message>
        <source>Incident review</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Analyse d’incident</translation>
    </message>
    <message>
        <source>Project risks</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Risques du projet</translation>
    </message>
</context>
<context>
    <name>TitleEditor</name>
    <message>
        <source>Title</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Titre</translation>
    </message>
</context>
<context>
    <name>TreeItem</name>
    <message>
        <source>负责人:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Responsable&#x202f;: </translation>
    </message>
    <message>
        <source>创建时间:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Créé le&#x202f;: </translation>
    </message>
    <message>
        <source>截止时间:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Fin prévue&#x202f;: </translation>
    </message>
    <message>
        <source>子主题</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Sous-sujet</translation>
    </message>
</context>
<context>
    <name>URLDialog</name>
    <message>
        <source>Input Url</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Saisir une URL</translation>
    </message>
    <message>
        <source>Url:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>URL&#x202f;:</translation>
    </message>
    <message>
        <source>Clean</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Vider l’historique</translation>
    </message>
    <message>
        <source>Open</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Link to url</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Lien vers une URL</translation>
    </message>
    <message>
        <source>Save url</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Enregistrer vers une URL</translation>
    </message>
    <message>
        <source>Open url</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ouvrir une adresse web</translation>
    </message>
    <message>
        <source>Error</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Failed to open %1
%2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Impossible d’ouvrir %1
%2</translation>
    </message>
</context>
<context>
    <name>ViewCommands</name>
    <message>
        <source>Zoom &amp;in</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Zoom a&amp;vant</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Zoom arrière</translation>
    </message>
    <message>
        <source>&amp;100 %</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;100&#x202f;%</translation>
    </message>
    <message>
        <source>&amp;Fit all</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ajuster l’ensem&amp;ble</translation>
    </message>
    <message>
        <source>Fit &amp;selection</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>A&amp;juster à la sélection</translation>
    </message>
    <message>
        <source>Rotate &amp;right</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>T&amp;ourner à droite</translation>
    </message>
    <message>
        <source>Rotate &amp;left</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Tourner à gauche</translation>
    </message>
    <message>
        <source>U&amp;pright</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Remettre à &amp;0°</translation>
    </message>
    <message>
        <source>S&amp;how full screen</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Plein écra&amp;n</translation>
    </message>
    <message>
        <source>E&amp;xpand</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Déplier</translation>
    </message>
    <message>
        <source>&amp;Contract</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Replier</translation>
    </message>
    <message>
        <source>Expand &amp;all</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Tout dé&amp;plier</translation>
    </message>
    <message>
        <source>Con&amp;tract all</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>To&amp;ut replier</translation>
    </message>
    <message>
        <source>Expanding all bones…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Dépliage de toutes les arêtes…</translation>
    </message>
    <message>
        <source>Show as a &amp;diagram of its own</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Afficher comme diagramme à part</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Pré&amp;cédent</translation>
    </message>
    <message>
        <source>Show the &amp;whole diagram</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Afficher tout le diagra&amp;mme</translation>
    </message>
    <message>
        <source>Style of &amp;all subjects…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>St&amp;yle de tous les sujets…</translation>
    </message>
    <message>
        <source>&amp;Diagram mode</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Mode dia&amp;gramme</translation>
    </message>
    <message>
        <source>&amp;Task mode</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Mode tâc&amp;hes</translation>
    </message>
    <message>
        <source>&amp;Just the drawing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Le dessin s&amp;eul</translation>
    </message>
    <message>
        <source>(nothing yet)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>(rien encore)</translation>
    </message>
</context>
<context>
    <name>WalkCommands</name>
    <message>
        <source>To the &amp;left</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>À &amp;gauche</translation>
    </message>
    <message>
        <source>To the &amp;right</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>À &amp;droite</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Vers le &amp;haut</translation>
    </message>
    <message>
        <source>&amp;Down</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Vers le &amp;bas</translation>
    </message>
    <message>
        <source>To the &amp;parent</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Au &amp;parent</translation>
    </message>
    <message>
        <source>To the &amp;first child</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Au premier &amp;enfant</translation>
    </message>
    <message>
        <source>To the one &amp;before</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Au précéden&amp;t</translation>
    </message>
    <message>
        <source>To the &amp;next one</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Au &amp;suivant</translation>
    </message>
</context>
<context>
    <name>Welcome</name>
    <message>
        <source>Your first fishbone</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Votre première arête</translation>
    </message>
    <message>
        <source>Build it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Construire</translation>
    </message>
    <message>
        <source>Tab: a child</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Tab&#x202f;: un enfant</translation>
    </message>
    <message>
        <source>Enter: one after it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Entrée&#x202f;: un sujet après</translation>
    </message>
    <message>
        <source>Shift+Enter: one before it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Maj+Entrée&#x202f;: un sujet avant</translation>
    </message>
    <message>
        <source>Ctrl+Enter: a parent</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ctrl+Entrée&#x202f;: un parent</translation>
    </message>
    <message>
        <source>Change it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Just type: a new title</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Taper&#x202f;: nouveau titre</translation>
    </message>
    <message>
        <source>F2: edit the title</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>F2&#x202f;: modifier le titre</translation>
    </message>
    <message>
        <source>F4: details</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>F4&#x202f;: détails</translation>
    </message>
    <message>
        <source>Ctrl+Z: undo</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ctrl+Z&#x202f;: annuler</translation>
    </message>
    <message>
        <source>Mark it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Marquer</translation>
    </message>
    <message>
        <source>Space: all marks</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Espace&#x202f;: toutes les marques</translation>
    </message>
    <message>
        <source>F7: a vote</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>F7&#x202f;: un vote</translation>
    </message>
    <message>
        <source>Walk in it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Se déplacer</translation>
    </message>
    <message>
        <source>Arrows: as you see it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Flèches&#x202f;: comme on le voit</translation>
    </message>
    <message>
        <source>Ctrl+arrows: by level</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ctrl+flèches&#x202f;: par niveau</translation>
    </message>
    <message>
        <source>+ and −: expand, contract</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>+ et −&#x202f;: déplier, replier</translation>
    </message>
    <message>
        <source>Rearrange it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Réorganiser</translation>
    </message>
    <message>
        <source>Drag a bone onto another</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Glisser une arête sur une autre</translation>
    </message>
    <message>
        <source>Alt+arrows: move a bone</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Alt+flèches&#x202f;: déplacer l’arête</translation>
    </message>
    <message>
        <source>Look at it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Regarder</translation>
    </message>
    <message>
        <source>Home: all of it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Début&#x202f;: tout voir</translation>
    </message>
    <message>
        <source>Ctrl+wheel: zoom</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ctrl+molette&#x202f;: zoom</translation>
    </message>
    <message>
        <source>Take it with you</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Emporter</translation>
    </message>
    <message>
        <source>Ctrl+S: save</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ctrl+S&#x202f;: enregistrer</translation>
    </message>
    <message>
        <source>Ctrl+E: a picture</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ctrl+E&#x202f;: une image</translation>
    </message>
    <message>
        <source>F1: all keys</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>F1&#x202f;: tous les raccourcis</translation>
    </message>
</context>
<context>
    <name>WorkProgress</name>
    <message>
        <source>Cancel</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>ZoomControls</name>
    <message>
        <source>Zoom</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Show at 100 %</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Afficher à 100&#x202f;%</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Rotation</translation>
    </message>
</context>
</TS>
