<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>ChangeJournal</name>
    <message>
        <source>The journal &quot;%1&quot; cannot be written: %2</source>
        <translation>Le journal « %1 » ne peut pas être écrit : %2</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Équipement</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Opération</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Référence</translation>
    </message>
    <message>
        <source>Old value</source>
        <translation>Ancienne valeur</translation>
    </message>
    <message>
        <source>New value</source>
        <translation>Nouvelle valeur</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>Additional cause</source>
        <translation>Cause additionnelle</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Say what is in an SCL file, as JSON, and exit: with 0 when it is without errors, 1 with errors, 2 when it cannot be used. Needs no display.</source>
        <translation>Dire, en JSON, ce que contient un fichier SCL, puis terminer : avec 0 s'il est sans erreur, 1 s'il a des erreurs, 2 s'il est inutilisable. N'a pas besoin d'écran.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>FICHIER</translation>
    </message>
    <message>
        <source>Take this IED of the file. The default asks when there are several; --check takes all.</source>
        <translation>Prendre cet IED du fichier. Par défaut, la question est posée s'il y en a plusieurs ; --check les prend tous.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOM</translation>
    </message>
    <message>
        <source>Open each tool on the demonstration device, save a picture of it in DIR, exit.</source>
        <translation>Ouvrir chaque outil sur l'équipement de démonstration, en enregistrer une image dans DOSSIER, puis terminer.</translation>
    </message>
    <message>
        <source>DIR</source>
        <translation>DOSSIER</translation>
    </message>
    <message>
        <source>Load the plug-in from DIR instead of the folder &quot;plugins&quot; beside the program.</source>
        <translation>Charger le plug-in depuis DOSSIER au lieu du dossier « plugins » à côté du programme.</translation>
    </message>
    <message>
        <source>Open the demonstration device.</source>
        <translation>Ouvrir l'équipement de démonstration.</translation>
    </message>
    <message>
        <source>A small host for the IEC 61850 tools: opens devices from SCL files.</source>
        <translation>Un petit hôte pour les outils IEC 61850 : ouvre des équipements à partir de fichiers SCL.</translation>
    </message>
    <message>
        <source>SCL files to open.</source>
        <translation>Fichiers SCL à ouvrir.</translation>
    </message>
    <message>
        <source>--check needs the name of a file.</source>
        <translation>--check demande le nom d'un fichier.</translation>
    </message>
    <message>
        <source>--tour needs the name of a folder.</source>
        <translation>--tour demande le nom d'un dossier.</translation>
    </message>
    <message>
        <source>--check takes one file, and nothing else can be done at the same time.</source>
        <translation>--check prend un seul fichier, et rien d'autre ne peut être fait en même temps.</translation>
    </message>
    <message>
        <source>--tour shows the demonstration device and opens no other file.</source>
        <translation>--tour montre l'équipement de démonstration et n'ouvre aucun autre fichier.</translation>
    </message>
</context>
<context>
    <name>DeviceConfiguration</name>
    <message>
        <source>The %1 has %2 octets; at most %3 are possible.</source>
        <translation>%1 : %2 octets, %3 au plus sont possibles.</translation>
    </message>
    <message>
        <source>transport selector of the %1</source>
        <translation>Sélecteur de transport (%1)</translation>
    </message>
    <message>
        <source>session selector of the %1</source>
        <translation>Sélecteur de session (%1)</translation>
    </message>
    <message>
        <source>presentation selector of the %1</source>
        <translation>Sélecteur de présentation (%1)</translation>
    </message>
    <message>
        <source>The AP title &quot;%1&quot; of the %2 is no object identifier such as 1.1.1.999.1.</source>
        <translation>Titre AP (%2) : « %1 » n'est pas un identificateur d'objet tel que 1.1.1.999.1.</translation>
    </message>
    <message>
        <source>The AE qualifier of the %1 does not fit 32 bits.</source>
        <translation>Qualificateur AE (%1) : ne tient pas sur 32 bits.</translation>
    </message>
    <message>
        <source>The time-out for %1 must be from %2 to %3 milliseconds.</source>
        <translation>Le délai d'attente pour %1 doit être compris entre %2 et %3 millisecondes.</translation>
    </message>
    <message>
        <source>The %1 &quot;%2&quot; does not exist.</source>
        <translation>Le %1 « %2 » n'existe pas.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has the wrong form.</source>
        <translation>« %1 » a une forme incorrecte.</translation>
    </message>
    <message>
        <source>The device's number must be from 1 to %1.</source>
        <translation>Le numéro de l'équipement doit être compris entre 1 et %1.</translation>
    </message>
    <message>
        <source>The device needs a name.</source>
        <translation>L'équipement doit avoir un nom.</translation>
    </message>
    <message>
        <source>The device needs an address or an SCL file.</source>
        <translation>L'équipement doit avoir une adresse ou un fichier SCL.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no address or host name.</source>
        <translation>« %1 » n'est ni une adresse ni un nom d'hôte.</translation>
    </message>
    <message>
        <source>The port must be from 1 to 65535.</source>
        <translation>Le port doit être compris entre 1 et 65535.</translation>
    </message>
    <message>
        <source>SCL file</source>
        <translation>fichier SCL</translation>
    </message>
    <message>
        <source>client</source>
        <translation>client</translation>
    </message>
    <message>
        <source>device</source>
        <translation>équipement</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>la connexion</translation>
    </message>
    <message>
        <source>requests</source>
        <translation>les requêtes</translation>
    </message>
    <message>
        <source>operations</source>
        <translation>les opérations</translation>
    </message>
    <message>
        <source>The time-out for operations must not be shorter than the one for requests.</source>
        <translation>Le délai d'attente pour les opérations ne doit pas être plus court que celui des requêtes.</translation>
    </message>
    <message>
        <source>From 1 to %1 outstanding calls are possible.</source>
        <translation>De 1 à %1 requêtes en attente sont possibles.</translation>
    </message>
    <message>
        <source>The PDU size must be from %1 to %2 octets.</source>
        <translation>La taille de PDU doit être comprise entre %1 et %2 octets.</translation>
    </message>
    <message>
        <source>The polling interval must be 0 for none, or from %1 to %2 milliseconds.</source>
        <translation>L'intervalle de scrutation doit être 0 (aucune) ou compris entre %1 et %2 millisecondes.</translation>
    </message>
    <message>
        <source>From 1 to %1 outstanding file reads are possible.</source>
        <translation>De 1 à %1 lectures de fichier en attente sont possibles.</translation>
    </message>
    <message>
        <source>The originator category must be from 0 to %1.</source>
        <translation>La catégorie de l'émetteur doit être comprise entre 0 et %1.</translation>
    </message>
    <message>
        <source>The originator identification has %1 octets; at most %2 are possible.</source>
        <translation>L'identification de l'émetteur a %1 octets ; %2 au plus sont possibles.</translation>
    </message>
    <message>
        <source>Device %1 (%2)</source>
        <translation>Équipement %1 (%2)</translation>
    </message>
</context>
<context>
    <name>DeviceDialog</name>
    <message>
        <source>Device</source>
        <translation>Équipement</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nom :</translation>
    </message>
    <message>
        <source>&amp;Address:</source>
        <translation>&amp;Adresse :</translation>
    </message>
    <message>
        <source>Host name, IPv4 or IPv6 address</source>
        <translation>Nom d'hôte, adresse IPv4 ou IPv6</translation>
    </message>
    <message>
        <source>&amp;Port:</source>
        <translation>&amp;Port :</translation>
    </message>
    <message>
        <source>&amp;SCL file:</source>
        <translation>Fichier &amp;SCL :</translation>
    </message>
    <message>
        <source>Browse…</source>
        <translation>Parcourir…</translation>
    </message>
    <message>
        <source>&amp;IED of the file:</source>
        <translation>&amp;IED du fichier :</translation>
    </message>
    <message>
        <source>&amp;Connect when the workbench starts</source>
        <translation>Se &amp;connecter au démarrage du banc de travail</translation>
    </message>
    <message>
        <source>Timing and Sizes</source>
        <translation>Temps et tailles</translation>
    </message>
    <message>
        <source>Time-out for &amp;connecting:</source>
        <translation>Délai d'attente pour la &amp;connexion :</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>Time-out for &amp;requests:</source>
        <translation>Délai d'attente pour les &amp;requêtes :</translation>
    </message>
    <message>
        <source>Time-out for &amp;operations:</source>
        <translation>Délai d'attente pour les &amp;opérations :</translation>
    </message>
    <message>
        <source>Re&amp;ad values without reports every:</source>
        <translation>&amp;Lire les valeurs sans rapport toutes les :</translation>
    </message>
    <message>
        <source>never</source>
        <translation>jamais</translation>
    </message>
    <message>
        <source>Outstanding ca&amp;lls:</source>
        <translation>Requêtes en a&amp;ttente :</translation>
    </message>
    <message>
        <source>Largest P&amp;DU:</source>
        <translation>Plus grande P&amp;DU :</translation>
    </message>
    <message>
        <source> octets</source>
        <translation> octets</translation>
    </message>
    <message>
        <source>Outstanding &amp;file reads:</source>
        <translation>Lectures de &amp;fichier en attente :</translation>
    </message>
    <message>
        <source>Addressing</source>
        <translation>Adressage</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Client</translation>
    </message>
    <message>
        <source>Transport selector:</source>
        <translation>Sélecteur de transport :</translation>
    </message>
    <message>
        <source>Session selector:</source>
        <translation>Sélecteur de session :</translation>
    </message>
    <message>
        <source>Presentation selector:</source>
        <translation>Sélecteur de présentation :</translation>
    </message>
    <message>
        <source>AP title:</source>
        <translation>Titre AP :</translation>
    </message>
    <message>
        <source>AE qualifier:</source>
        <translation>Qualificateur AE :</translation>
    </message>
    <message>
        <source>Selectors are octets in hexadecimal, for example 00 01. An AP title is an object identifier, for example 1.1.1.999.1; empty fields are not sent.</source>
        <translation>Les sélecteurs sont des octets en hexadécimal, par exemple 00 01. Un titre AP est un identificateur d'objet, par exemple 1.1.1.999.1 ; les champs vides ne sont pas envoyés.</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Sécurité</translation>
    </message>
    <message>
        <source>&amp;Password of the association:</source>
        <translation>Mot de &amp;passe de l'association :</translation>
    </message>
    <message>
        <source>&amp;TLS (IEC 62351-3)</source>
        <translation>&amp;TLS (IEC 62351-3)</translation>
    </message>
    <message>
        <source>&amp;Certificate:</source>
        <translation>&amp;Certificat :</translation>
    </message>
    <message>
        <source>Private &amp;key:</source>
        <translation>C&amp;lé privée :</translation>
    </message>
    <message>
        <source>Pa&amp;ssword of the key:</source>
        <translation>Mot de pa&amp;sse de la clé :</translation>
    </message>
    <message>
        <source>&amp;Authorities:</source>
        <translation>&amp;Autorités de certification :</translation>
    </message>
    <message>
        <source>&amp;Revocation lists:</source>
        <translation>Listes de &amp;révocation :</translation>
    </message>
    <message>
        <source>&amp;Fingerprints (SHA-256):</source>
        <translation>&amp;Empreintes (SHA-256) :</translation>
    </message>
    <message>
        <source>&amp;Name in the certificate:</source>
        <translation>&amp;Nom dans le certificat :</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Originator &amp;category:</source>
        <translation>&amp;Catégorie de l'émetteur :</translation>
    </message>
    <message>
        <source>Originator &amp;identification:</source>
        <translation>&amp;Identification de l'émetteur :</translation>
    </message>
    <message>
        <source>&amp;Test Connection</source>
        <translation>Tester la conne&amp;xion</translation>
    </message>
    <message>
        <source>Add Device</source>
        <translation>Ajouter un équipement</translation>
    </message>
    <message>
        <source>Edit Device %1</source>
        <translation>Modifier l'équipement %1</translation>
    </message>
    <message>
        <source>SCL File</source>
        <translation>Fichier SCL</translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation>Certificat</translation>
    </message>
    <message>
        <source>Private Key</source>
        <translation>Clé privée</translation>
    </message>
    <message>
        <source>Authorities</source>
        <translation>Autorités de certification</translation>
    </message>
    <message>
        <source>Revocation Lists</source>
        <translation>Listes de révocation</translation>
    </message>
    <message>
        <source>the only one</source>
        <translation>le seul</translation>
    </message>
    <message>
        <source>The %1 of the %2 is not hexadecimal.</source>
        <translation>%1 (%2) : pas en hexadécimal.</translation>
    </message>
    <message>
        <source>transport selector</source>
        <translation>Sélecteur de transport</translation>
    </message>
    <message>
        <source>session selector</source>
        <translation>Sélecteur de session</translation>
    </message>
    <message>
        <source>presentation selector</source>
        <translation>Sélecteur de présentation</translation>
    </message>
    <message>
        <source>The AE qualifier of the %1 is not a number.</source>
        <translation>Qualificateur AE (%1) : pas un nombre.</translation>
    </message>
    <message>
        <source>client</source>
        <translation>client</translation>
    </message>
    <message>
        <source>device</source>
        <translation>équipement</translation>
    </message>
    <message>
        <source>The device has no address.</source>
        <translation>L'équipement n'a pas d'adresse.</translation>
    </message>
    <message>
        <source>Connecting to %1…</source>
        <translation>Connexion à %1…</translation>
    </message>
    <message>
        <source>Connected to %1. Round trip: %2 ms; logical devices: %3</source>
        <translation>Connecté à %1. Aller-retour : %2 ms ; dispositifs logiques : %3</translation>
    </message>
    <message>
        <source>a device that does not say what it is</source>
        <translation>un équipement qui ne dit pas ce qu'il est</translation>
    </message>
</context>
<context>
    <name>DeviceListModel</name>
    <message>
        <source>The demonstration device, a part of the workbench</source>
        <translation>L'équipement de démonstration, qui fait partie du banc de travail</translation>
    </message>
    <message>
        <source>Demonstration</source>
        <translation>Démonstration</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>Chargement…</translation>
    </message>
    <message>
        <source>Offline model</source>
        <translation>Modèle hors ligne</translation>
    </message>
    <message>
        <source>Model cannot be read: %1</source>
        <translation>Modèle illisible : %1</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Équipement</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N°</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Starting the simulation…</source>
        <translation>Démarrage de la simulation…</translation>
    </message>
    <message>
        <source>Cannot be used: %1</source>
        <translation>Inutilisable : %1</translation>
    </message>
    <message>
        <source>Simulation stopped</source>
        <translation>Simulation arrêtée</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Non connecté</translation>
    </message>
    <message>
        <source>Not connected: %1</source>
        <translation>Non connecté : %1</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Connexion…</translation>
    </message>
    <message>
        <source>Reading the model (%1 %)…</source>
        <translation>Lecture du modèle (%1 %)…</translation>
    </message>
    <message>
        <source>Reading the model…</source>
        <translation>Lecture du modèle…</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Connecté</translation>
    </message>
    <message>
        <source>Trying again: %1</source>
        <translation>Nouvel essai à venir : %1</translation>
    </message>
    <message>
        <source>Simulated demonstration</source>
        <translation>Démonstration simulée</translation>
    </message>
    <message>
        <source>Simulated: %1</source>
        <translation>Simulé : %1</translation>
    </message>
    <message>
        <source>Reached at %1, port %2</source>
        <translation>Accessible à %1, port %2</translation>
    </message>
    <message>
        <source>Since %1</source>
        <translation>Depuis %1</translation>
    </message>
    <message>
        <source>Objects that the device did not describe: %1</source>
        <translation>Objets que l'équipement n'a pas décrits : %1</translation>
    </message>
    <message>
        <source>Vendor: %1
Model: %2
Revision: %3</source>
        <translation>Fabricant : %1
Modèle : %2
Révision : %3</translation>
    </message>
    <message>
        <source>Time from a request to its answer, measured last</source>
        <translation>Temps entre une requête et sa réponse, dernière mesure</translation>
    </message>
    <message>
        <source>PDUs sent: %1
PDUs received: %2
Reports: %3
Published values: %4
Connections: %5</source>
        <translation>PDU envoyées : %1
PDU reçues : %2
Rapports : %3
Valeurs publiées : %4
Connexions : %5</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Source</translation>
    </message>
    <message>
        <source>Identity</source>
        <translation>Identité</translation>
    </message>
    <message>
        <source>Round trip</source>
        <translation>Aller-retour</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>Rapports</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Valeurs</translation>
    </message>
    <message>
        <source>Connected: %1</source>
        <translation>Connecté : %1</translation>
    </message>
</context>
<context>
    <name>DeviceStore</name>
    <message>
        <source>The list of devices in &quot;%1&quot; cannot be read completely.</source>
        <translation>La liste des équipements dans « %1 » ne peut pas être lue entièrement.</translation>
    </message>
    <message>
        <source>The list of devices cannot be saved in &quot;%1&quot; and will be as before at the next start.</source>
        <translation>La liste des équipements ne peut pas être enregistrée dans « %1 » et sera comme avant au prochain démarrage.</translation>
    </message>
</context>
<context>
    <name>EmbeddedDriver</name>
    <message>
        <source>The IED &quot;%1&quot; has no logical devices, so there is nothing to browse.</source>
        <translation>L'IED « %1 » n'a aucun dispositif logique ; il n'y a rien à parcourir.</translation>
    </message>
</context>
<context>
    <name>ExtensionLoader</name>
    <message>
        <source>Replace the file by the one that was built together with this workbench.</source>
        <translation>Remplacez le fichier par celui qui a été construit avec ce banc de travail.</translation>
    </message>
    <message>
        <source>The plug-in folder does not exist.</source>
        <translation>Le dossier du plug-in n'existe pas.</translation>
    </message>
    <message>
        <source>Install the plug-in there, or start the workbench with --plugin-dir and the folder that holds it.</source>
        <translation>Installez-y le plug-in, ou démarrez le banc de travail avec --plugin-dir et le dossier qui le contient.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>Le fichier n'existe pas.</translation>
    </message>
    <message>
        <source>Put the plug-in there, or start the workbench with --plugin-dir and the folder that holds it.</source>
        <translation>Placez-y le plug-in, ou démarrez le banc de travail avec --plugin-dir et le dossier qui le contient.</translation>
    </message>
    <message>
        <source>The file is not a plug-in that this Qt can load: %1</source>
        <translation>Le fichier n'est pas un plug-in que ce Qt peut charger : %1</translation>
    </message>
    <message>
        <source>The plug-in is of another kind: it offers &quot;%1&quot; where &quot;%2&quot; is needed.</source>
        <translation>Le plug-in est d'un autre type : il offre « %1 » alors que « %2 » est nécessaire.</translation>
    </message>
    <message>
        <source>The plug-in does not carry the key &quot;%1&quot;.</source>
        <translation>Le plug-in ne porte pas la clé « %1 ».</translation>
    </message>
    <message>
        <source>The plug-in cannot be loaded: %1</source>
        <translation>Le plug-in ne peut pas être chargé : %1</translation>
    </message>
    <message>
        <source>Make sure that the libraries it needs are installed and belong to the same version.</source>
        <translation>Assurez-vous que les bibliothèques nécessaires sont installées et de la même version.</translation>
    </message>
    <message>
        <source>The plug-in's object does not have the promised interface.</source>
        <translation>L'objet du plug-in n'a pas l'interface promise.</translation>
    </message>
    <message>
        <source>The plug-in does not serve IEC 61850 (protocol %1).</source>
        <translation>Le plug-in ne sert pas IEC 61850 (protocole %1).</translation>
    </message>
    <message>
        <source>The plug-in says that it is not available.</source>
        <translation>Le plug-in indique qu'il n'est pas disponible.</translation>
    </message>
    <message>
        <source>Try again later, or ask whoever supplied the plug-in.</source>
        <translation>Réessayez plus tard, ou adressez-vous au fournisseur du plug-in.</translation>
    </message>
    <message>
        <source>The plug-in offers no action.</source>
        <translation>Le plug-in n'offre aucune action.</translation>
    </message>
</context>
<context>
    <name>FindingsModel</name>
    <message>
        <source>1 error</source>
        <translation>1 erreur</translation>
    </message>
    <message>
        <source>%1 errors</source>
        <translation>%1 erreurs</translation>
    </message>
    <message>
        <source>1 warning</source>
        <translation>1 avertissement</translation>
    </message>
    <message>
        <source>%1 warnings</source>
        <translation>%1 avertissements</translation>
    </message>
    <message>
        <source>1 note</source>
        <translation>1 remarque</translation>
    </message>
    <message>
        <source>%1 notes</source>
        <translation>%1 remarques</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Remarque</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>Gravité</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Element</source>
        <translation>Élément</translation>
    </message>
    <message>
        <source>Finding</source>
        <translation>Constat</translation>
    </message>
</context>
<context>
    <name>GuideViewer</name>
    <message>
        <source>Operator Guide</source>
        <translation>Guide de l’opérateur</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Find in the guide</source>
        <translation>Rechercher dans le guide</translation>
    </message>
</context>
<context>
    <name>IedChooser</name>
    <message>
        <source>Choose the IED</source>
        <translation>Choisir l'IED</translation>
    </message>
    <message>
        <source>IED</source>
        <translation>IED</translation>
    </message>
    <message>
        <source>Logical devices</source>
        <translation>Dispositifs logiques</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds %2 IEDs. Which of them do you want to open?</source>
        <translation>« %1 » contient %2 IED. Lesquels voulez-vous ouvrir ?</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>This IED has no logical devices, so there is nothing to browse.</source>
        <translation>Cet IED n'a aucun dispositif logique ; il n'y a rien à parcourir.</translation>
    </message>
</context>
<context>
    <name>IedDriver</name>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>%1; and %2 more</source>
        <translation>%1 ; et %2 autres</translation>
    </message>
    <message>
        <source>Aborted by the operator.</source>
        <translation>Interrompu par l'opérateur.</translation>
    </message>
    <message>
        <source>The operation was cancelled.</source>
        <translation>L'opération a été annulée.</translation>
    </message>
    <message>
        <source>%1 has not finished the operation within %2 seconds.</source>
        <translation>%1 n'a pas terminé l'opération en %2 secondes.</translation>
    </message>
    <message>
        <source>%1 is not connected.</source>
        <translation>%1 n'est pas connecté.</translation>
    </message>
    <message>
        <source>%1 is not connected: %2.</source>
        <translation>%1 n'est pas connecté : %2.</translation>
    </message>
    <message>
        <source>The model of %1 is being read: %2 of %3.</source>
        <translation>Le modèle est en cours de lecture : %1, %2 sur %3.</translation>
    </message>
    <message>
        <source>The device has not answered for %1 seconds.</source>
        <translation>L'équipement ne répond pas depuis %1 secondes.</translation>
    </message>
    <message>
        <source>The SCL file is not used: %1</source>
        <translation>Le fichier SCL n'est pas utilisé : %1</translation>
    </message>
    <message>
        <source>Reading the model was cancelled.</source>
        <translation>La lecture du modèle a été annulée.</translation>
    </message>
    <message>
        <source>the value does not have the form of its type</source>
        <translation>la valeur n'a pas la forme de son type</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no kind of report control block.</source>
        <translation>« %1 » n'est pas un type de bloc de contrôle de rapport.</translation>
    </message>
    <message>
        <source>A data set needs at least one member.</source>
        <translation>Un ensemble de données doit avoir au moins un membre.</translation>
    </message>
    <message>
        <source>There is no reference to be listed.</source>
        <translation>Il n'y a aucune référence à lister.</translation>
    </message>
    <message>
        <source>Not connected to the device</source>
        <translation>Pas de connexion à l'équipement</translation>
    </message>
    <message>
        <source>There is no device %1 on this driver.</source>
        <translation>Il n'y a pas d'équipement %1 sur ce pilote.</translation>
    </message>
    <message>
        <source>The driver is read-only: nothing on %1 was changed.</source>
        <translation>Le pilote est en lecture seule : rien n'a été modifié sur %1.</translation>
    </message>
    <message>
        <source>Device %1</source>
        <translation>Équipement %1</translation>
    </message>
    <message>
        <source>Its logical device &quot;%1&quot; is online already as part of %2; live values could not be told apart.</source>
        <translation>Son dispositif logique « %1 » est déjà en ligne dans %2 ; les valeurs en direct ne pourraient pas être distinguées.</translation>
    </message>
    <message>
        <source>The capture cannot be written: %1</source>
        <translation>La capture ne peut pas être écrite : %1</translation>
    </message>
    <message>
        <source>The values cannot be written: %1</source>
        <translation>Les valeurs ne peuvent pas être écrites : %1</translation>
    </message>
    <message>
        <source>The device has no address.</source>
        <translation>L'équipement n'a pas d'adresse.</translation>
    </message>
    <message>
        <source>There is nothing to read.</source>
        <translation>Il n'y a rien à lire.</translation>
    </message>
    <message>
        <source>The data set has %1 members, but %2 values came.</source>
        <translation>L'ensemble de données a %1 membres, mais %2 valeurs sont arrivées.</translation>
    </message>
    <message>
        <source>%1: the value does not have the form of its type</source>
        <translation>%1 : la valeur n'a pas la forme de son type</translation>
    </message>
    <message>
        <source>The device has no %1.</source>
        <translation>L'équipement n'a pas %1.</translation>
    </message>
    <message>
        <source>The value to be written cannot be read.</source>
        <translation>La valeur à écrire ne peut pas être lue.</translation>
    </message>
    <message>
        <source>Select the object first</source>
        <translation>Sélectionnez d'abord l'objet</translation>
    </message>
    <message>
        <source>%1 has the control model %2, but the command was made for %3: read the model of the device again.</source>
        <translation>%1 a le modèle de commande %2, mais la commande a été faite pour %3 : relisez le modèle de l'équipement.</translation>
    </message>
    <message>
        <source>The command is not the one that was selected.</source>
        <translation>La commande n'est pas celle qui a été sélectionnée.</translation>
    </message>
    <message>
        <source>The control request cannot be read.</source>
        <translation>La requête de commande ne peut pas être lue.</translation>
    </message>
    <message>
        <source>The control request is for %1, not for %2.</source>
        <translation>La requête de commande est pour %1, pas pour %2.</translation>
    </message>
    <message>
        <source>The control value is no finite number.</source>
        <translation>La valeur de commande n'est pas un nombre fini.</translation>
    </message>
    <message>
        <source>%1 is no code of the check conditions.</source>
        <translation>%1 n'est pas un code des conditions de vérification.</translation>
    </message>
    <message>
        <source>The test flag is 0 or 1, not %1.</source>
        <translation>L'indicateur de test est 0 ou 1, pas %1.</translation>
    </message>
    <message>
        <source>interlock check</source>
        <translation>vérification de l'interverrouillage</translation>
    </message>
    <message>
        <source>synchrocheck</source>
        <translation>contrôle de synchronisme</translation>
    </message>
    <message>
        <source>test</source>
        <translation>test</translation>
    </message>
    <message>
        <source>The driver has not waited for the end of the operation.</source>
        <translation>Le pilote n'a pas attendu la fin de la manœuvre.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not name a report control block.</source>
        <translation>« %1 » ne désigne pas un bloc de contrôle de rapport.</translation>
    </message>
    <message>
        <source>The attribute &quot;%1&quot; of a report control block cannot be written.</source>
        <translation>L'attribut « %1 » d'un bloc de contrôle de rapport ne peut pas être écrit.</translation>
    </message>
    <message>
        <source>The value for %1 has %2 bytes instead of %3.</source>
        <translation>La valeur pour %1 a %2 octets au lieu de %3.</translation>
    </message>
    <message>
        <source>%1 cannot be negative.</source>
        <translation>%1 ne peut pas être négatif.</translation>
    </message>
    <message>
        <source>Buffer time and integrity period cannot be negative.</source>
        <translation>Le temps de tampon et la période d'intégrité ne peuvent pas être négatifs.</translation>
    </message>
    <message>
        <source>enabled again after the association was lost</source>
        <translation>réactivation après la perte de l'association</translation>
    </message>
    <message>
        <source>The report control block %1 has no data set.</source>
        <translation>Le bloc de contrôle de rapport %1 n'a pas d'ensemble de données.</translation>
    </message>
    <message>
        <source>The device has not enabled %1 although it said so.</source>
        <translation>L'équipement n'a pas activé %1 alors qu'il l'a confirmé.</translation>
    </message>
    <message>
        <source>disabled</source>
        <translation>désactivé</translation>
    </message>
    <message>
        <source>the driver is read-only.</source>
        <translation>le pilote est en lecture seule.</translation>
    </message>
    <message>
        <source>The report control block %1 could not be %2: %3</source>
        <translation>Bloc de contrôle de rapport %1 : %2 impossible : %3</translation>
    </message>
    <message>
        <source>The device has disabled %1 by itself.</source>
        <translation>L'équipement a désactivé %1 de lui-même.</translation>
    </message>
    <message>
        <source>enabled again</source>
        <translation>réactivation</translation>
    </message>
    <message>
        <source>A report of the device could not be read: %1</source>
        <translation>Un rapport de l'équipement n'a pas pu être lu : %1</translation>
    </message>
    <message>
        <source>A report of %1 has %2 members, but its data set has %3.</source>
        <translation>Un rapport de %1 a %2 membres, mais son ensemble de données en a %3.</translation>
    </message>
    <message>
        <source>The reports of %1 have no value for %2: %3.</source>
        <translation>Les rapports de %1 n'ont pas de valeur pour %2 : %3.</translation>
    </message>
    <message>
        <source>A value of %1 in the reports of %2 does not have the form of its type.</source>
        <translation>Une valeur de %1 dans les rapports de %2 n'a pas la forme de son type.</translation>
    </message>
    <message>
        <source>The buffer of %1 has overflown: older changes are lost.</source>
        <translation>Le tampon de %1 a débordé : des changements anciens sont perdus.</translation>
    </message>
    <message>
        <source>enabled</source>
        <translation>activé</translation>
    </message>
    <message>
        <source>The member %1 of the data set of %2 is no data of the device's model.</source>
        <translation>Le membre %1 de l'ensemble de données de %2 n'est pas une donnée du modèle de l'équipement.</translation>
    </message>
    <message>
        <source>%1 is busy with another file: %2.</source>
        <translation>%1 est occupé par un autre fichier : %2.</translation>
    </message>
    <message>
        <source>listing &quot;%1&quot;</source>
        <translation>liste de « %1 »</translation>
    </message>
    <message>
        <source>fetching &quot;%1&quot;</source>
        <translation>lecture de « %1 »</translation>
    </message>
    <message>
        <source>%1 is too large: at most %2 octets can be fetched.</source>
        <translation>%1 est trop grand : %2 octets au plus peuvent être lus.</translation>
    </message>
    <message>
        <source>deleting &quot;%1&quot;</source>
        <translation>suppression de « %1 »</translation>
    </message>
    <message>
        <source>There is no name of a file.</source>
        <translation>Il n'y a pas de nom de fichier.</translation>
    </message>
    <message>
        <source>There is no file to send.</source>
        <translation>Il n'y a pas de fichier à envoyer.</translation>
    </message>
    <message>
        <source>There is no file &quot;%1&quot; on this computer.</source>
        <translation>Il n'y a pas de fichier « %1 » sur cet ordinateur.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: %2.</source>
        <translation>« %1 » ne peut pas être lu : %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large for a file of a device.</source>
        <translation>« %1 » est trop grand pour un fichier d'équipement.</translation>
    </message>
    <message>
        <source>sending &quot;%1&quot;</source>
        <translation>envoi de « %1 »</translation>
    </message>
    <message>
        <source>%1 (%2 octets)</source>
        <translation>%1 (%2 octets)</translation>
    </message>
    <message>
        <source>The device has no logical device &quot;%1&quot;.</source>
        <translation>L'équipement n'a pas de dispositif logique « %1 ».</translation>
    </message>
    <message>
        <source>%1 has no setting group control block.</source>
        <translation>%1 n'a pas de bloc de contrôle de groupe de réglages.</translation>
    </message>
    <message>
        <source>%1 has more setting groups than can be counted: %2.</source>
        <translation>%1 a plus de groupes de réglages que ce qui peut être compté : %2.</translation>
    </message>
    <message>
        <source>No setting group of %1 is being edited: select the group to edit first.</source>
        <translation>Aucun groupe de réglages de %1 n'est en cours de modification : sélectionnez d'abord le groupe à modifier.</translation>
    </message>
    <message>
        <source>Settings are read under SG or SE, not under &quot;%1&quot;.</source>
        <translation>Les réglages sont lus sous SG ou SE, pas sous « %1 ».</translation>
    </message>
    <message>
        <source>%1 has no setting %2.</source>
        <translation>%1 n'a pas de réglage %2.</translation>
    </message>
    <message>
        <source>The device has not answered.</source>
        <translation>L'équipement n'a pas répondu.</translation>
    </message>
    <message>
        <source>%1. The changes are not confirmed.</source>
        <translation>%1. Les modifications ne sont pas confirmées.</translation>
    </message>
    <message>
        <source>%1 has the setting groups 1 to %2; there is no group %3.</source>
        <translation>%1 a les groupes de réglages 1 à %2 ; il n'y a pas de groupe %3.</translation>
    </message>
</context>
<context>
    <name>JournalModel</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Failed (%1)</source>
        <translation>Échec (%1)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Équipement</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Opération</translation>
    </message>
    <message>
        <source>Arguments</source>
        <translation>Arguments</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>IEC 61850 Workbench</source>
        <translation>Banc de travail IEC 61850</translation>
    </message>
    <message>
        <source>T&amp;ry Again</source>
        <translation>&amp;Réessayer</translation>
    </message>
    <message>
        <source>&amp;Open SCL File…</source>
        <translation>Ou&amp;vrir un fichier SCL…</translation>
    </message>
    <message>
        <source>Open De&amp;monstration Device</source>
        <translation>Ouvrir l'équipement de dé&amp;monstration</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>É&amp;quipement</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Outils</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ai&amp;de</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Barre d'outils</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Constats</translation>
    </message>
    <message>
        <source>Journal</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>Ctrl+O</source>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <source>Open &amp;Demonstration Device</source>
        <translation>Ouvrir l'équipement de &amp;démonstration</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>Read Model &amp;Again</source>
        <translation>R&amp;elire le modèle</translation>
    </message>
    <message>
        <source>F5</source>
        <translation>F5</translation>
    </message>
    <message>
        <source>&amp;Remove from List</source>
        <translation>&amp;Retirer de la liste</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Del</translation>
    </message>
    <message>
        <source>&amp;Clear Journal</source>
        <translation>&amp;Vider le journal</translation>
    </message>
    <message>
        <source>&amp;Operator Guide</source>
        <translation>&amp;Guide de l’opérateur</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>À &amp;propos</translation>
    </message>
    <message>
        <source>Loading was cancelled.</source>
        <translation>Le chargement a été annulé.</translation>
    </message>
    <message>
        <source>No call to the driver yet. Every request that a tool makes is listed here.</source>
        <translation>Aucun appel au pilote pour l'instant. Chaque requête d'un outil est notée ici.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Reading %1 (%2 files left)</source>
        <translation>Lecture de %1 (encore %2 fichiers)</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>Lecture de %1</translation>
    </message>
    <message>
        <source>The IEC 61850 tools are not available.
%1
%2 %3</source>
        <translation>Les outils IEC 61850 ne sont pas disponibles.
%1
%2 %3</translation>
    </message>
    <message>
        <source>Select a device to see what was noticed while its file was read.</source>
        <translation>Sélectionnez un équipement pour voir ce qui a été relevé à la lecture de son fichier.</translation>
    </message>
    <message>
        <source>Findings: %1</source>
        <translation>Constats : %1</translation>
    </message>
    <message>
        <source>Findings: %1 (%2)</source>
        <translation>Constats : %1 (%2)</translation>
    </message>
    <message>
        <source>No findings: everything in the file of this device was understood.</source>
        <translation>Aucun constat : tout le fichier de cet équipement a été compris.</translation>
    </message>
    <message>
        <source>The model cannot be read. %1
Read it again with %2, or remove the device from the list.</source>
        <translation>Le modèle ne peut pas être lu. %1
Relisez-le avec %2, ou retirez l'équipement de la liste.</translation>
    </message>
    <message>
        <source>Open SCL File</source>
        <translation>Ouvrir un fichier SCL</translation>
    </message>
    <message>
        <source>SCL files (*.icd *.cid *.iid *.scd *.sed *.ssd *.ICD *.CID *.IID *.SCD *.SED *.SSD *.xml)</source>
        <translation>Fichiers SCL (*.icd *.cid *.iid *.scd *.sed *.ssd *.ICD *.CID *.IID *.SCD *.SED *.SSD *.xml)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Further files that cannot be used: %1</source>
        <translation>Autres fichiers inutilisables : %1</translation>
    </message>
    <message>
        <source>%1 was taken off the list; its file stays where it is.</source>
        <translation>%1 a été retiré de la liste ; son fichier reste à sa place.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>IEC 61850 Workbench %1

A small host for the IEC 61850 tools: it lists devices, loads the plug-in and shows every request that its tools make.

Apache License 2.0</source>
        <translation>Banc de travail IEC 61850 %1

Un petit hôte pour les outils IEC 61850 : il dresse la liste des équipements, charge le plug-in et montre chaque requête de ses outils.

Apache License 2.0</translation>
    </message>
    <message>
        <source>No device yet: add one, or open an SCL file</source>
        <translation>Aucun équipement : ajoutez-en un, ou ouvrez un fichier SCL</translation>
    </message>
    <message>
        <source>&amp;Add Device…</source>
        <translation>A&amp;jouter un équipement…</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Modifications</translation>
    </message>
    <message>
        <source>Add a device from an SCL file, without a connection</source>
        <translation>Ajouter un équipement à partir d'un fichier SCL, sans connexion</translation>
    </message>
    <message>
        <source>&amp;Start Simulated Device…</source>
        <translation>Démarrer un équipement &amp;simulé…</translation>
    </message>
    <message>
        <source>Simulate a device of an SCL file and connect to it</source>
        <translation>Simuler un équipement d'un fichier SCL et s'y connecter</translation>
    </message>
    <message>
        <source>Add &amp;Device…</source>
        <translation>&amp;Ajouter un équipement…</translation>
    </message>
    <message>
        <source>Add Device</source>
        <translation>Ajouter un équipement</translation>
    </message>
    <message>
        <source>Add a device that is reached over the network</source>
        <translation>Ajouter un équipement accessible par le réseau</translation>
    </message>
    <message>
        <source>Ctrl+N</source>
        <translation>Ctrl+N</translation>
    </message>
    <message>
        <source>&amp;Edit Device…</source>
        <translation>&amp;Modifier l'équipement…</translation>
    </message>
    <message>
        <source>F2</source>
        <translation>F2</translation>
    </message>
    <message>
        <source>&amp;Connect</source>
        <translation>&amp;Connecter</translation>
    </message>
    <message>
        <source>Connect to the selected device, now and at the next start</source>
        <translation>Se connecter à l'équipement sélectionné, maintenant et au prochain démarrage</translation>
    </message>
    <message>
        <source>Leave the selected device, until it is connected again</source>
        <translation>Quitter l'équipement sélectionné, jusqu'à la prochaine connexion</translation>
    </message>
    <message>
        <source>&amp;Start Simulation</source>
        <translation>Démarrer la &amp;simulation</translation>
    </message>
    <message>
        <source>S&amp;top Simulation</source>
        <translation>Arrêter la s&amp;imulation</translation>
    </message>
    <message>
        <source>End the simulated device, as if it had lost its power</source>
        <translation>Arrêter l'équipement simulé, comme s'il avait perdu son alimentation</translation>
    </message>
    <message>
        <source>&amp;PDU Trace…</source>
        <translation>Trace des &amp;PDU…</translation>
    </message>
    <message>
        <source>Show what is exchanged with the selected device</source>
        <translation>Montrer les échanges avec l'équipement sélectionné</translation>
    </message>
    <message>
        <source>Sa&amp;ve Capture…</source>
        <translation>Enregistrer la capt&amp;ure…</translation>
    </message>
    <message>
        <source>Save what was exchanged with the selected device for a protocol analyser</source>
        <translation>Enregistrer les échanges avec l'équipement sélectionné pour un analyseur de protocole</translation>
    </message>
    <message>
        <source>E&amp;xport Values…</source>
        <translation>E&amp;xporter les valeurs…</translation>
    </message>
    <message>
        <source>Save the values of the selected device as a table</source>
        <translation>Enregistrer les valeurs de l'équipement sélectionné sous forme de tableau</translation>
    </message>
    <message>
        <source>Refuse everything that changes something on a device</source>
        <translation>Refuser tout ce qui modifie quelque chose sur un équipement</translation>
    </message>
    <message>
        <source>Open &amp;Folder of the Change Journal</source>
        <translation>Ouvrir le &amp;dossier du journal des modifications</translation>
    </message>
    <message>
        <source>Nothing was changed on a device yet. Every write, command and transfer is listed here%1.</source>
        <translation>Rien n'a encore été modifié sur un équipement. Tout ce qui est écrit, commandé ou transféré est noté ici%1.</translation>
    </message>
    <message>
        <source> and kept in
%1</source>
        <translation> et conservé dans
%1</translation>
    </message>
    <message>
        <source>Read-only: nothing is changed on devices</source>
        <translation>Lecture seule : rien n'est modifié sur les équipements</translation>
    </message>
    <message>
        <source>Reading the model of %1</source>
        <translation>Lecture du modèle de %1</translation>
    </message>
    <message>
        <source>This device has no SCL file; its model is read from the device itself.</source>
        <translation>Cet équipement n'a pas de fichier SCL ; son modèle est lu dans l'équipement lui-même.</translation>
    </message>
    <message>
        <source>Start Simulated Device</source>
        <translation>Démarrer un équipement simulé</translation>
    </message>
    <message>
        <source>%1 was taken off the list.</source>
        <translation>%1 a été retiré de la liste.</translation>
    </message>
    <message>
        <source>Disco&amp;nnect</source>
        <translation>&amp;Déconnecter</translation>
    </message>
    <message>
        <source>Read-On&amp;ly</source>
        <translation>&amp;Lecture seule</translation>
    </message>
    <message>
        <source>Save Capture</source>
        <translation>Enregistrer la capture</translation>
    </message>
    <message>
        <source>Captures (*.pcapng)</source>
        <translation>Captures (*.pcapng)</translation>
    </message>
    <message>
        <source>Export Values</source>
        <translation>Exporter les valeurs</translation>
    </message>
    <message>
        <source>Tables (*.csv)</source>
        <translation>Tableaux (*.csv)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2</source>
        <translation>« %1 » ne peut pas être écrit : %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was written.</source>
        <translation>« %1 » a été écrit.</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Connecter</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Déconnecter</translation>
    </message>
    <message>
        <source>Read-Only</source>
        <translation>Lecture seule</translation>
    </message>
    <message>
        <source>The SCL file of this device was only compared with the device. Open it as an SCL file to see its findings.</source>
        <translation>Le fichier SCL de cet équipement a seulement été comparé avec l'équipement. Ouvrez-le comme fichier SCL pour voir ses constats.</translation>
    </message>
</context>
<context>
    <name>OfflineDriverService</name>
    <message>
        <source>Not connected to the device</source>
        <translation>Pas de connexion à l'équipement</translation>
    </message>
    <message>
        <source>There is no device %1 on this driver.</source>
        <translation>Il n'y a pas d'équipement %1 sur ce pilote.</translation>
    </message>
</context>
<context>
    <name>SclImport</name>
    <message>
        <source>The file &quot;%1&quot; cannot be opened: %2.</source>
        <translation>Le fichier « %1 » ne peut pas être ouvert : %2.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Ligne %1 : %2</translation>
    </message>
    <message>
        <source>The file describes no IED.</source>
        <translation>Le fichier ne décrit aucun IED.</translation>
    </message>
    <message>
        <source>There is no IED &quot;%1&quot; in the file.</source>
        <translation>Il n'y a pas d'IED « %1 » dans le fichier.</translation>
    </message>
    <message>
        <source>The file describes several IEDs; one must be chosen.</source>
        <translation>Le fichier décrit plusieurs IED ; il faut en choisir un.</translation>
    </message>
</context>
<context>
    <name>SimulatedDevice</name>
    <message>
        <source>The files of the simulated device cannot be written to &quot;%1&quot;.</source>
        <translation>Les fichiers de l'équipement simulé ne peuvent pas être écrits dans « %1 ».</translation>
    </message>
    <message>
        <source>The device cannot be simulated: %1</source>
        <translation>L'équipement ne peut pas être simulé : %1</translation>
    </message>
</context>
<context>
    <name>TableView</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
</context>
<context>
    <name>Tour</name>
    <message>
        <source>a message: &quot;%1: %2&quot;</source>
        <translation>un message : « %1 : %2 »</translation>
    </message>
    <message>
        <source>the window &quot;%1&quot;</source>
        <translation>la fenêtre « %1 »</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be made.</source>
        <translation>Le dossier « %1 » ne peut pas être créé.</translation>
    </message>
    <message>
        <source>The plug-in &quot;%1&quot; is not available: %2</source>
        <translation>Le plug-in « %1 » n'est pas disponible : %2</translation>
    </message>
    <message>
        <source>The demonstration device was not read in time.</source>
        <translation>L'équipement de démonstration n'a pas été lu à temps.</translation>
    </message>
    <message>
        <source>The demonstration device cannot be read.</source>
        <translation>L'équipement de démonstration ne peut pas être lu.</translation>
    </message>
    <message>
        <source>The second device cannot be read.</source>
        <translation>Le deuxième équipement ne peut pas être lu.</translation>
    </message>
    <message>
        <source>The plug-in offers no tool number %1 for the demonstration device.</source>
        <translation>Le plug-in n'offre pas d'outil numéro %1 pour l'équipement de démonstration.</translation>
    </message>
    <message>
        <source>Instead of the IED browser came %1.</source>
        <translation>Au lieu du navigateur IED est apparu : %1.</translation>
    </message>
    <message>
        <source>The IED browser did not appear.</source>
        <translation>Le navigateur IED n'est pas apparu.</translation>
    </message>
    <message>
        <source>The IED browser has no tree.</source>
        <translation>Le navigateur IED n'a pas d'arborescence.</translation>
    </message>
    <message>
        <source>The demonstration device has no switch.</source>
        <translation>L'équipement de démonstration n'a pas d'appareil de coupure.</translation>
    </message>
    <message>
        <source>The context menu did not appear.</source>
        <translation>Le menu contextuel n'est pas apparu.</translation>
    </message>
    <message>
        <source>The window &quot;%1&quot; did not appear.</source>
        <translation>La fenêtre « %1 » n'est pas apparue.</translation>
    </message>
    <message>
        <source>The journal stayed empty.</source>
        <translation>Le journal est resté vide.</translation>
    </message>
    <message>
        <source>Instead of &quot;%1&quot; came %2.</source>
        <translation>Au lieu de « %1 » est apparu : %2.</translation>
    </message>
    <message>
        <source>The IED browser has no entry &quot;%1&quot;.</source>
        <translation>Le navigateur IED n'a pas d'entrée « %1 ».</translation>
    </message>
    <message>
        <source>The picture &quot;%1&quot; cannot be saved.</source>
        <translation>L'image « %1 » ne peut pas être enregistrée.</translation>
    </message>
    <message>
        <source>The simulated device was not connected in time.</source>
        <translation>L'équipement simulé n'a pas été connecté à temps.</translation>
    </message>
</context>
<context>
    <name>TraceDialog</name>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Pause</translation>
    </message>
    <message>
        <source>PDU Trace: %1</source>
        <translation>Trace des PDU : %1</translation>
    </message>
    <message>
        <source>Nothing was exchanged with this device yet.</source>
        <translation>Rien n'a encore été échangé avec cet équipement.</translation>
    </message>
    <message>
        <source>&amp;Save Capture…</source>
        <translation>&amp;Enregistrer la capture…</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>&amp;Vider</translation>
    </message>
</context>
<context>
    <name>TraceModel</name>
    <message>
        <source>sent</source>
        <translation>envoyée</translation>
    </message>
    <message>
        <source>received</source>
        <translation>reçue</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Sens</translation>
    </message>
    <message>
        <source>PDU</source>
        <translation>PDU</translation>
    </message>
</context>
<context>
    <name>ValueConversion</name>
    <message>
        <source>%1 does not fit %2.</source>
        <translation>%1 ne tient pas dans %2.</translation>
    </message>
    <message>
        <source>%1 is no finite number.</source>
        <translation>%1 n'est pas un nombre fini.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds characters that %2 does not have.</source>
        <translation>« %1 » contient des caractères que %2 n'admet pas.</translation>
    </message>
    <message>
        <source>There is no value to write.</source>
        <translation>Il n'y a pas de valeur à écrire.</translation>
    </message>
    <message>
        <source>A value of type %1 cannot be written as a whole.</source>
        <translation>Une valeur de type %1 ne peut pas être écrite en entier.</translation>
    </message>
</context>
<context>
    <name>Workbench</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be used: %2</source>
        <translation>« %1 » est inutilisable : %2</translation>
    </message>
    <message>
        <source>Logical devices: %1, logical nodes: %2, data attributes: %3</source>
        <translation>Dispositifs logiques : %1, nœuds logiques : %2, attributs de données : %3</translation>
    </message>
    <message>
        <source>Loading was cancelled.</source>
        <translation>Le chargement a été annulé.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>The standard output cannot be written.</source>
        <translation>Impossible d'écrire sur la sortie standard.</translation>
    </message>
</context>
</TS>
