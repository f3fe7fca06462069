<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>CallConfirmation</name>
    <message>
        <source>Select</source>
        <translation>Sélectionner</translation>
    </message>
    <message>
        <source>Operate</source>
        <translation>Exécuter</translation>
    </message>
    <message>
        <source>Write a value</source>
        <translation>Écrire une valeur</translation>
    </message>
    <message>
        <source>Create a data set</source>
        <translation>Créer un ensemble de données</translation>
    </message>
    <message>
        <source>Delete a data set</source>
        <translation>Supprimer un ensemble de données</translation>
    </message>
    <message>
        <source>Delete a file</source>
        <translation>Supprimer un fichier</translation>
    </message>
    <message>
        <source>Send a file</source>
        <translation>Envoyer un fichier</translation>
    </message>
    <message>
        <source>Configure a report control block</source>
        <translation>Configurer un bloc de contrôle de rapport</translation>
    </message>
    <message>
        <source>Write settings</source>
        <translation>Écrire des réglages</translation>
    </message>
    <message>
        <source>Choose a setting group to edit</source>
        <translation>Choisir un groupe de réglages à modifier</translation>
    </message>
    <message>
        <source>Make a setting group the active one</source>
        <translation>Rendre actif un groupe de réglages</translation>
    </message>
    <message>
        <source>not supported</source>
        <translation>non prise en charge</translation>
    </message>
    <message>
        <source>bay control</source>
        <translation>commande de travée</translation>
    </message>
    <message>
        <source>station control</source>
        <translation>commande de poste</translation>
    </message>
    <message>
        <source>remote control</source>
        <translation>commande à distance</translation>
    </message>
    <message>
        <source>automatic bay</source>
        <translation>automatisme de travée</translation>
    </message>
    <message>
        <source>automatic station</source>
        <translation>automatisme de poste</translation>
    </message>
    <message>
        <source>automatic remote</source>
        <translation>automatisme à distance</translation>
    </message>
    <message>
        <source>maintenance</source>
        <translation>maintenance</translation>
    </message>
    <message>
        <source>process</source>
        <translation>processus</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucune</translation>
    </message>
    <message>
        <source>interlocking</source>
        <translation>interverrouillage</translation>
    </message>
    <message>
        <source>synchrocheck</source>
        <translation>contrôle de synchronisme</translation>
    </message>
    <message>
        <source>synchrocheck and interlocking</source>
        <translation>contrôle de synchronisme et interverrouillage</translation>
    </message>
    <message>
        <source>Device:</source>
        <translation>Équipement :</translation>
    </message>
    <message>
        <source>Logical device:</source>
        <translation>Dispositif logique :</translation>
    </message>
    <message>
        <source>Object:</source>
        <translation>Objet :</translation>
    </message>
    <message>
        <source>Value:</source>
        <translation>Valeur :</translation>
    </message>
    <message>
        <source>Current value:</source>
        <translation>Valeur actuelle :</translation>
    </message>
    <message>
        <source>as selected</source>
        <translation>comme à la sélection</translation>
    </message>
    <message>
        <source>Originator category:</source>
        <translation>Catégorie de l&apos;émetteur :</translation>
    </message>
    <message>
        <source>Checks:</source>
        <translation>Vérifications :</translation>
    </message>
    <message>
        <source>Test:</source>
        <translation>Test :</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>oui</translation>
    </message>
    <message>
        <source>no</source>
        <translation>non</translation>
    </message>
    <message>
        <source>Nothing was sent, since it was not confirmed.</source>
        <translation>Rien n&apos;a été envoyé, faute de confirmation.</translation>
    </message>
</context>
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
        <translation>Dire, en JSON, ce que contient un fichier SCL, puis terminer : avec 0 s&apos;il est sans erreur, 1 s&apos;il a des erreurs, 2 s&apos;il est inutilisable. N&apos;a pas besoin d&apos;écran.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>FICHIER</translation>
    </message>
    <message>
        <source>Take this IED of the file. The default asks when there are several; --check takes all.</source>
        <translation>Prendre cet IED du fichier. Par défaut, la question est posée s&apos;il y en a plusieurs ; --check les prend tous.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOM</translation>
    </message>
    <message>
        <source>Open each tool on the demonstration device, save a picture of it in DIR, exit.</source>
        <translation>Ouvrir chaque outil sur l&apos;équipement de démonstration, en enregistrer une image dans DOSSIER, puis terminer.</translation>
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
        <translation>Ouvrir l&apos;équipement de démonstration.</translation>
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
        <translation>--check demande le nom d&apos;un fichier.</translation>
    </message>
    <message>
        <source>--tour needs the name of a folder.</source>
        <translation>--tour demande le nom d&apos;un dossier.</translation>
    </message>
    <message>
        <source>--check takes one file, and nothing else can be done at the same time.</source>
        <translation>--check prend un seul fichier, et rien d&apos;autre ne peut être fait en même temps.</translation>
    </message>
    <message>
        <source>--tour shows the demonstration device and opens no other file.</source>
        <translation>--tour montre l&apos;équipement de démonstration et n&apos;ouvre aucun autre fichier.</translation>
    </message>
</context>
<context>
    <name>ConfirmationDialog</name>
    <message>
        <source>Confirm</source>
        <translation>Confirmer</translation>
    </message>
    <message>
        <source>&amp;Send to the device</source>
        <translation>&amp;Envoyer à l&apos;équipement</translation>
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
        <translation>Titre AP (%2) : « %1 » n&apos;est pas un identificateur d&apos;objet tel que 1.1.1.999.1.</translation>
    </message>
    <message>
        <source>The AE qualifier of the %1 does not fit 32 bits.</source>
        <translation>Qualificateur AE (%1) : ne tient pas sur 32 bits.</translation>
    </message>
    <message>
        <source>The time-out for %1 must be from %2 to %3 milliseconds.</source>
        <translation>Le délai d&apos;attente pour %1 doit être compris entre %2 et %3 millisecondes.</translation>
    </message>
    <message>
        <source>The %1 &quot;%2&quot; does not exist.</source>
        <translation>Le %1 « %2 » n&apos;existe pas.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has the wrong form.</source>
        <translation>« %1 » a une forme incorrecte.</translation>
    </message>
    <message>
        <source>The device&apos;s number must be from 1 to %1.</source>
        <translation>Le numéro de l&apos;équipement doit être compris entre 1 et %1.</translation>
    </message>
    <message>
        <source>The device needs a name.</source>
        <translation>L&apos;équipement doit avoir un nom.</translation>
    </message>
    <message>
        <source>The device needs an address or an SCL file.</source>
        <translation>L&apos;équipement doit avoir une adresse ou un fichier SCL.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no address or host name.</source>
        <translation>« %1 » n&apos;est ni une adresse ni un nom d&apos;hôte.</translation>
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
        <translation>Le délai d&apos;attente pour les opérations ne doit pas être plus court que celui des requêtes.</translation>
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
        <translation>L&apos;intervalle de scrutation doit être 0 (aucune) ou compris entre %1 et %2 millisecondes.</translation>
    </message>
    <message>
        <source>From 1 to %1 outstanding file reads are possible.</source>
        <translation>De 1 à %1 lectures de fichier en attente sont possibles.</translation>
    </message>
    <message>
        <source>The originator category must be from 0 to %1.</source>
        <translation>La catégorie de l&apos;émetteur doit être comprise entre 0 et %1.</translation>
    </message>
    <message>
        <source>The originator identification has %1 octets; at most %2 are possible.</source>
        <translation>L&apos;identification de l&apos;émetteur a %1 octets ; %2 au plus sont possibles.</translation>
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
        <translation>Nom d&apos;hôte, adresse IPv4 ou IPv6</translation>
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
        <translation>Délai d&apos;attente pour la &amp;connexion :</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>Time-out for &amp;requests:</source>
        <translation>Délai d&apos;attente pour les &amp;requêtes :</translation>
    </message>
    <message>
        <source>Time-out for &amp;operations:</source>
        <translation>Délai d&apos;attente pour les &amp;opérations :</translation>
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
        <translation>Les sélecteurs sont des octets en hexadécimal, par exemple 00&#xa0;01. Un titre AP est un identificateur d&apos;objet, par exemple 1.1.1.999.1 ; les champs vides ne sont pas envoyés.</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Sécurité</translation>
    </message>
    <message>
        <source>&amp;Password of the association:</source>
        <translation>Mot de &amp;passe de l&apos;association :</translation>
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
        <translation>&amp;Catégorie de l&apos;émetteur :</translation>
    </message>
    <message>
        <source>Originator &amp;identification:</source>
        <translation>&amp;Identification de l&apos;émetteur :</translation>
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
        <translation>Modifier l&apos;équipement %1</translation>
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
        <translation>L&apos;équipement n&apos;a pas d&apos;adresse.</translation>
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
        <translation>un équipement qui ne dit pas ce qu&apos;il est</translation>
    </message>
</context>
<context>
    <name>DeviceListModel</name>
    <message>
        <source>The demonstration device, a part of the workbench</source>
        <translation>L&apos;équipement de démonstration, qui fait partie du banc de travail</translation>
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
        <translation>Objets que l&apos;équipement n&apos;a pas décrits : %1</translation>
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
    <message>
        <source>Connected, values not current: %1</source>
        <translation>Connecté, valeurs pas à jour : %1</translation>
    </message>
    <message>
        <source>Away since %1</source>
        <translation>Injoignable depuis %1</translation>
    </message>
    <message>
        <source>Values that are not current: %1, the oldest of %2</source>
        <translation>Valeurs pas à jour : %1, la plus ancienne de %2</translation>
    </message>
    <message>
        <source>Values that the device denies: %1</source>
        <translation>Valeurs que l&apos;équipement refuse : %1</translation>
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
        <translation>L&apos;IED « %1 » n&apos;a aucun dispositif logique ; il n&apos;y a rien à parcourir.</translation>
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
        <translation>Le dossier du plug-in n&apos;existe pas.</translation>
    </message>
    <message>
        <source>Install the plug-in there, or start the workbench with --plugin-dir and the folder that holds it.</source>
        <translation>Installez-y le plug-in, ou démarrez le banc de travail avec --plugin-dir et le dossier qui le contient.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>Le fichier n&apos;existe pas.</translation>
    </message>
    <message>
        <source>Put the plug-in there, or start the workbench with --plugin-dir and the folder that holds it.</source>
        <translation>Placez-y le plug-in, ou démarrez le banc de travail avec --plugin-dir et le dossier qui le contient.</translation>
    </message>
    <message>
        <source>The file is not a plug-in that this Qt can load: %1</source>
        <translation>Le fichier n&apos;est pas un plug-in que ce Qt peut charger : %1</translation>
    </message>
    <message>
        <source>The plug-in is of another kind: it offers &quot;%1&quot; where &quot;%2&quot; is needed.</source>
        <translation>Le plug-in est d&apos;un autre type : il offre « %1 » alors que « %2 » est nécessaire.</translation>
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
        <source>The plug-in&apos;s object does not have the promised interface.</source>
        <translation>L&apos;objet du plug-in n&apos;a pas l&apos;interface promise.</translation>
    </message>
    <message>
        <source>The plug-in does not serve IEC 61850 (protocol %1).</source>
        <translation>Le plug-in ne sert pas IEC 61850 (protocole %1).</translation>
    </message>
    <message>
        <source>The plug-in says that it is not available.</source>
        <translation>Le plug-in indique qu&apos;il n&apos;est pas disponible.</translation>
    </message>
    <message>
        <source>Try again later, or ask whoever supplied the plug-in.</source>
        <translation>Réessayez plus tard, ou adressez-vous au fournisseur du plug-in.</translation>
    </message>
    <message>
        <source>The plug-in offers no action.</source>
        <translation>Le plug-in n&apos;offre aucune action.</translation>
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
        <translation>Choisir l&apos;IED</translation>
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
        <translation>Cet IED n&apos;a aucun dispositif logique ; il n&apos;y a rien à parcourir.</translation>
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
        <translation>Interrompu par l&apos;opérateur.</translation>
    </message>
    <message>
        <source>The operation was cancelled.</source>
        <translation>L&apos;opération a été annulée.</translation>
    </message>
    <message>
        <source>%1 has not finished the operation within %2 seconds.</source>
        <translation>%1 n&apos;a pas terminé l&apos;opération en %2 secondes.</translation>
    </message>
    <message>
        <source>%1 is not connected.</source>
        <translation>%1 n&apos;est pas connecté.</translation>
    </message>
    <message>
        <source>%1 is not connected: %2.</source>
        <translation>%1 n&apos;est pas connecté : %2.</translation>
    </message>
    <message>
        <source>The model of %1 is being read: %2 of %3.</source>
        <translation>Le modèle est en cours de lecture : %1, %2 sur %3.</translation>
    </message>
    <message>
        <source>The device has not answered for %1 seconds.</source>
        <translation>L&apos;équipement ne répond pas depuis %1 secondes.</translation>
    </message>
    <message>
        <source>The SCL file is not used: %1</source>
        <translation>Le fichier SCL n&apos;est pas utilisé : %1</translation>
    </message>
    <message>
        <source>Reading the model was cancelled.</source>
        <translation>La lecture du modèle a été annulée.</translation>
    </message>
    <message>
        <source>the value does not have the form of its type</source>
        <translation>la valeur n&apos;a pas la forme de son type</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no kind of report control block.</source>
        <translation>« %1 » n&apos;est pas un type de bloc de contrôle de rapport.</translation>
    </message>
    <message>
        <source>A data set needs at least one member.</source>
        <translation>Un ensemble de données doit avoir au moins un membre.</translation>
    </message>
    <message>
        <source>There is no reference to be listed.</source>
        <translation>Il n&apos;y a aucune référence à lister.</translation>
    </message>
    <message>
        <source>Not connected to the device</source>
        <translation>Pas de connexion à l&apos;équipement</translation>
    </message>
    <message>
        <source>There is no device %1 on this driver.</source>
        <translation>Il n&apos;y a pas d&apos;équipement %1 sur ce pilote.</translation>
    </message>
    <message>
        <source>The driver is read-only: nothing on %1 was changed.</source>
        <translation>Le pilote est en lecture seule : rien n&apos;a été modifié sur %1.</translation>
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
        <translation>L&apos;équipement n&apos;a pas d&apos;adresse.</translation>
    </message>
    <message>
        <source>There is nothing to read.</source>
        <translation>Il n&apos;y a rien à lire.</translation>
    </message>
    <message>
        <source>The data set has %1 members, but %2 values came.</source>
        <translation>L&apos;ensemble de données a %1 membres, mais %2 valeurs sont arrivées.</translation>
    </message>
    <message>
        <source>%1: the value does not have the form of its type</source>
        <translation>%1 : la valeur n&apos;a pas la forme de son type</translation>
    </message>
    <message>
        <source>The device has no %1.</source>
        <translation>L&apos;équipement n&apos;a pas %1.</translation>
    </message>
    <message>
        <source>The value to be written cannot be read.</source>
        <translation>La valeur à écrire ne peut pas être lue.</translation>
    </message>
    <message>
        <source>Select the object first</source>
        <translation>Sélectionnez d&apos;abord l&apos;objet</translation>
    </message>
    <message>
        <source>%1 has the control model %2, but the command was made for %3: read the model of the device again.</source>
        <translation>%1 a le modèle de commande %2, mais la commande a été faite pour %3 : relisez le modèle de l&apos;équipement.</translation>
    </message>
    <message>
        <source>The command is not the one that was selected.</source>
        <translation>La commande n&apos;est pas celle qui a été sélectionnée.</translation>
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
        <translation>La valeur de commande n&apos;est pas un nombre fini.</translation>
    </message>
    <message>
        <source>%1 is no code of the check conditions.</source>
        <translation>%1 n&apos;est pas un code des conditions de vérification.</translation>
    </message>
    <message>
        <source>The test flag is 0 or 1, not %1.</source>
        <translation>L&apos;indicateur de test est 0 ou 1, pas %1.</translation>
    </message>
    <message>
        <source>interlock check</source>
        <translation>vérification de l&apos;interverrouillage</translation>
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
        <translation>Le pilote n&apos;a pas attendu la fin de la manœuvre.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not name a report control block.</source>
        <translation>« %1 » ne désigne pas un bloc de contrôle de rapport.</translation>
    </message>
    <message>
        <source>The attribute &quot;%1&quot; of a report control block cannot be written.</source>
        <translation>L&apos;attribut « %1 » d&apos;un bloc de contrôle de rapport ne peut pas être écrit.</translation>
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
        <translation>Le temps de tampon et la période d&apos;intégrité ne peuvent pas être négatifs.</translation>
    </message>
    <message>
        <source>enabled again after the association was lost</source>
        <translation>réactivation après la perte de l&apos;association</translation>
    </message>
    <message>
        <source>The report control block %1 has no data set.</source>
        <translation>Le bloc de contrôle de rapport %1 n&apos;a pas d&apos;ensemble de données.</translation>
    </message>
    <message>
        <source>The device has not enabled %1 although it said so.</source>
        <translation>L&apos;équipement n&apos;a pas activé %1 alors qu&apos;il l&apos;a confirmé.</translation>
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
        <translation>L&apos;équipement a désactivé %1 de lui-même.</translation>
    </message>
    <message>
        <source>enabled again</source>
        <translation>réactivation</translation>
    </message>
    <message>
        <source>A report of the device could not be read: %1</source>
        <translation>Un rapport de l&apos;équipement n&apos;a pas pu être lu : %1</translation>
    </message>
    <message>
        <source>The reports of %1 have no value for %2: %3.</source>
        <translation>Les rapports de %1 n&apos;ont pas de valeur pour %2 : %3.</translation>
    </message>
    <message>
        <source>A value of %1 in the reports of %2 does not have the form of its type.</source>
        <translation>Une valeur de %1 dans les rapports de %2 n&apos;a pas la forme de son type.</translation>
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
        <source>The member %1 of the data set of %2 is no data of the device&apos;s model.</source>
        <translation>Le membre %1 de l&apos;ensemble de données de %2 n&apos;est pas une donnée du modèle de l&apos;équipement.</translation>
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
        <translation>Il n&apos;y a pas de nom de fichier.</translation>
    </message>
    <message>
        <source>There is no file to send.</source>
        <translation>Il n&apos;y a pas de fichier à envoyer.</translation>
    </message>
    <message>
        <source>There is no file &quot;%1&quot; on this computer.</source>
        <translation>Il n&apos;y a pas de fichier « %1 » sur cet ordinateur.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: %2.</source>
        <translation>« %1 » ne peut pas être lu : %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large for a file of a device.</source>
        <translation>« %1 » est trop grand pour un fichier d&apos;équipement.</translation>
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
        <translation>L&apos;équipement n&apos;a pas de dispositif logique « %1 ».</translation>
    </message>
    <message>
        <source>%1 has no setting group control block.</source>
        <translation>%1 n&apos;a pas de bloc de contrôle de groupe de réglages.</translation>
    </message>
    <message>
        <source>%1 has more setting groups than can be counted: %2.</source>
        <translation>%1 a plus de groupes de réglages que ce qui peut être compté : %2.</translation>
    </message>
    <message>
        <source>No setting group of %1 is being edited: select the group to edit first.</source>
        <translation>Aucun groupe de réglages de %1 n&apos;est en cours de modification : sélectionnez d&apos;abord le groupe à modifier.</translation>
    </message>
    <message>
        <source>Settings are read under SG or SE, not under &quot;%1&quot;.</source>
        <translation>Les réglages sont lus sous SG ou SE, pas sous « %1 ».</translation>
    </message>
    <message>
        <source>%1 has no setting %2.</source>
        <translation>%1 n&apos;a pas de réglage %2.</translation>
    </message>
    <message>
        <source>%1. The changes are not confirmed.</source>
        <translation>%1. Les modifications ne sont pas confirmées.</translation>
    </message>
    <message>
        <source>%1 has the setting groups 1 to %2; there is no group %3.</source>
        <translation>%1 a les groupes de réglages 1 à %2 ; il n&apos;y a pas de groupe %3.</translation>
    </message>
    <message>
        <source>Another window has selected the object since: select it here first.</source>
        <translation>Une autre fenêtre a sélectionné l&apos;objet depuis : sélectionnez-le d&apos;abord ici.</translation>
    </message>
    <message>
        <source>The object was selected for different commands; which one is meant is not known: cancel the selection and select it again.</source>
        <translation>L&apos;objet a été sélectionné pour des commandes différentes ; on ne sait pas laquelle est voulue : annulez la sélection et sélectionnez-le de nouveau.</translation>
    </message>
    <message>
        <source>%1 is no originator category; they go from 0 to 8.</source>
        <translation>%1 n&apos;est pas une catégorie de l&apos;émetteur ; elles vont de 0 à 8.</translation>
    </message>
    <message>
        <source>category %1</source>
        <translation>catégorie %1</translation>
    </message>
    <message>
        <source>It is not known whether the object was selected.</source>
        <translation>On ne sait pas si l&apos;objet a été sélectionné.</translation>
    </message>
    <message>
        <source>It is not known whether the command was carried out; look at the position.</source>
        <translation>On ne sait pas si la commande a été exécutée ; regardez la position.</translation>
    </message>
    <message>
        <source>It is not known whether the command was cancelled; look at the position.</source>
        <translation>On ne sait pas si la commande a été annulée ; regardez la position.</translation>
    </message>
    <message>
        <source>%1 (told late)</source>
        <translation>%1 (annoncé tardivement)</translation>
    </message>
    <message>
        <source>%1: the command that was not answered in time was carried out.</source>
        <translation>%1 : la commande à laquelle il n&apos;a pas été répondu à temps a été exécutée.</translation>
    </message>
    <message>
        <source>An internal error of the driver ended the association.</source>
        <translation>Une erreur interne du pilote a mis fin à l&apos;association.</translation>
    </message>
    <message>
        <source>An internal error of the driver ended the association: %1.</source>
        <translation>Une erreur interne du pilote a mis fin à l&apos;association : %1.</translation>
    </message>
    <message>
        <source>The device has not answered earlier requests; the question whether it is there waits for a place behind them.</source>
        <translation>L&apos;équipement n&apos;a pas répondu à des demandes antérieures ; la question de savoir s&apos;il est présent attend une place derrière elles.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has %2 characters; the name of a data set has at most %3.</source>
        <translation>« %1 » a %2 caractères ; le nom d&apos;un jeu de données en a au plus %3.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names no functional constraint, which each member of a data set needs.</source>
        <translation>« %1 » ne nomme aucune contrainte fonctionnelle, dont chaque membre d&apos;un jeu de données a besoin.</translation>
    </message>
    <message>
        <source>This is not the device that the window was opened for: open it again.</source>
        <translation>Ce n&apos;est pas l&apos;équipement pour lequel la fenêtre a été ouverte : ouvrez-la de nouveau.</translation>
    </message>
    <message>
        <source>The IED %1 of the file has no access point &quot;%2&quot; with a server.</source>
        <translation>L&apos;IED %1 du fichier n&apos;a pas de point d&apos;accès « %2 » avec un serveur.</translation>
    </message>
    <message>
        <source>The device has none of the logical devices that the file describes for %1, such as %2.</source>
        <translation>L&apos;équipement n&apos;a aucun des dispositifs logiques que le fichier décrit pour %1, par exemple %2.</translation>
    </message>
    <message>
        <source>%1 stays open on the device, which has few open files: %2</source>
        <translation>%1 reste ouvert sur l&apos;équipement, qui n&apos;admet que peu de fichiers ouverts : %2</translation>
    </message>
    <message>
        <source>%1 comes too slowly: %2 octets so far, less than %3 in a second.</source>
        <translation>%1 arrive trop lentement : %2 octets jusqu&apos;ici, moins de %3 par seconde.</translation>
    </message>
    <message>
        <source>%1 events of the device were dropped, because they were not taken in time.</source>
        <translation>%1 événements de l&apos;équipement ont été abandonnés, car ils n&apos;ont pas été pris à temps.</translation>
    </message>
    <message>
        <source>The configuration of the device reserves %1; that cannot be changed.</source>
        <translation>La configuration de l&apos;équipement réserve %1 ; cela ne peut pas être modifié.</translation>
    </message>
    <message>
        <source>%1 was not enabled in time.</source>
        <translation>%1 n&apos;a pas été activé à temps.</translation>
    </message>
    <message>
        <source>%1 It was left alone.</source>
        <translation>%1 Rien n&apos;y a été modifié.</translation>
    </message>
    <message>
        <source>without sequence numbers lost reports cannot be noticed</source>
        <translation>sans numéros de séquence, les rapports perdus ne peuvent pas être remarqués</translation>
    </message>
    <message>
        <source>%1 could not be enabled, and this was left behind as it was written: %2.</source>
        <translation>%1 n&apos;a pas pu être activé, et ceci est resté tel qu&apos;il a été écrit : %2.</translation>
    </message>
    <message>
        <source>no longer waited for</source>
        <translation>n&apos;est plus attendu</translation>
    </message>
    <message>
        <source>member %1</source>
        <translation>membre %1</translation>
    </message>
    <message>
        <source>Reports of %1 are missing; its data set is read whole.</source>
        <translation>Des rapports de %1 manquent ; son ensemble de données est lu en entier.</translation>
    </message>
    <message>
        <source>Parts of a report of %1 are missing; its data set is read whole.</source>
        <translation>Des parties d&apos;un rapport de %1 manquent ; son ensemble de données est lu en entier.</translation>
    </message>
    <message>
        <source>The device does not know the last entry of %1 any more: changes since then may be lost, or come again.</source>
        <translation>L&apos;équipement ne connaît plus la dernière entrée de %1 : les changements depuis lors peuvent être perdus ou revenir.</translation>
    </message>
    <message>
        <source>A report of %1 is of another data set than the block had when it was enabled.</source>
        <translation>Un rapport de %1 concerne un autre ensemble de données que celui que le bloc avait lors de son activation.</translation>
    </message>
    <message>
        <source>A report of the device may be of %1 or of another block with other data; it was not taken.</source>
        <translation>Un rapport de l&apos;équipement peut être de %1 ou d&apos;un autre bloc avec d&apos;autres données ; il n&apos;a pas été pris.</translation>
    </message>
    <message>
        <source>The device described %1 in parts only, so what the reports of %2 say of it cannot be understood; it is polled.</source>
        <translation>L&apos;équipement n&apos;a décrit %1 qu&apos;en partie ; ce que les rapports de %2 en disent ne peut donc pas être compris, et la valeur est lue par scrutation.</translation>
    </message>
    <message>
        <source>The data set of %1 cannot be read: %2</source>
        <translation>L&apos;ensemble de données de %1 ne peut pas être lu : %2</translation>
    </message>
    <message>
        <source>The data set of %1 has %2 members instead of %3.</source>
        <translation>L&apos;ensemble de données de %1 a %2 membres au lieu de %3.</translation>
    </message>
    <message>
        <source>The data set of %1 has no value for %2: %3.</source>
        <translation>L&apos;ensemble de données de %1 n&apos;a pas de valeur pour %2 : %3.</translation>
    </message>
    <message>
        <source>A value of %1 in the data set of %2 does not have the form of its type.</source>
        <translation>Une valeur de %1 dans l&apos;ensemble de données de %2 n&apos;a pas la forme de son type.</translation>
    </message>
    <message>
        <source>%1 is enabled by another client, which the device does not name.</source>
        <translation>%1 est activé par un autre client, que l&apos;équipement ne nomme pas.</translation>
    </message>
    <message>
        <source>%1 is reserved by another client, which the device does not name.</source>
        <translation>%1 est réservé par un autre client, que l&apos;équipement ne nomme pas.</translation>
    </message>
    <message>
        <source>%1 is enabled by the client %2.</source>
        <translation>%1 est activé par le client %2.</translation>
    </message>
    <message>
        <source>%1 is reserved by the client %2.</source>
        <translation>%1 est réservé par le client %2.</translation>
    </message>
    <message>
        <source>%1 is enabled by another association of this computer (%2).</source>
        <translation>%1 est activé par une autre association de cet ordinateur (%2).</translation>
    </message>
    <message>
        <source>%1 is reserved by another association of this computer (%2).</source>
        <translation>%1 est réservé par une autre association de cet ordinateur (%2).</translation>
    </message>
    <message>
        <source>Another client is editing group %1 of %2.</source>
        <translation>Un autre client est en train de modifier le groupe %1 de %2.</translation>
    </message>
    <message>
        <source>Group %1 of %2 was chosen for editing in another window: select the group to edit first.</source>
        <translation>Le groupe %1 de %2 a été choisi pour modification dans une autre fenêtre : sélectionnez d&apos;abord le groupe à modifier.</translation>
    </message>
    <message>
        <source>The device has given up the edit of group %1 of %2: select the group to edit again.</source>
        <translation>L&apos;équipement a abandonné la modification du groupe %1 de %2 : sélectionnez de nouveau le groupe à modifier.</translation>
    </message>
    <message>
        <source>%1 has no settings that can be edited: the device describes none under SE.</source>
        <translation>%1 n&apos;a pas de réglages modifiables : l&apos;équipement n&apos;en décrit aucun sous SE.</translation>
    </message>
    <message>
        <source>%1 It is not known whether the changes of group %2 were taken over: select the group and look.</source>
        <translation>%1 On ne sait pas si les modifications du groupe %2 ont été prises en compte : sélectionnez le groupe et regardez.</translation>
    </message>
    <message>
        <source>These are the settings of the active group; choose the group to edit first.</source>
        <translation>Ce sont les réglages du groupe actif ; choisissez d&apos;abord le groupe à modifier.</translation>
    </message>
    <message>
        <source>%1 has accepted group %2, but group %3 is still the active one.</source>
        <translation>%1 a accepté le groupe %2, mais le groupe %3 est toujours le groupe actif.</translation>
    </message>
    <message>
        <source>%1 Group %2 is the active one.</source>
        <translation>%1 Le groupe %2 est le groupe actif.</translation>
    </message>
    <message>
        <source>%1 It is not known whether group %2 became active: look at the active group.</source>
        <translation>%1 On ne sait pas si le groupe %2 est devenu actif : regardez le groupe actif.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1 It is not known whether the device is editing group %2: select the group to edit again.</source>
        <translation>%1 On ne sait pas si le groupe %2 est en cours de modification dans l&apos;équipement : sélectionnez de nouveau le groupe à modifier.</translation>
    </message>
    <message>
        <source>%1; it is not known whether the setting was written.</source>
        <translation>%1 ; on ne sait pas si le réglage a été écrit.</translation>
    </message>
    <message>
        <source>Values that are not current since %1: %2. The device does not answer when it is asked for %3.</source>
        <translation>Valeurs qui ne sont pas à jour depuis %1 : %2. L&apos;équipement ne répond pas lorsqu&apos;on lui demande %3.</translation>
    </message>
    <message>
        <source>Values that are not current since %1: %2. The device cannot give %3 for the moment.</source>
        <translation>Valeurs qui ne sont pas à jour depuis %1 : %2. L&apos;équipement ne peut pas donner %3 pour le moment.</translation>
    </message>
    <message>
        <source>Values that the device refuses and that are not asked for again: %1 (%2).</source>
        <translation>Valeurs que l&apos;équipement refuse et qui ne sont plus demandées : %1 (%2).</translation>
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
        <translation>Ouvrir l&apos;équipement de dé&amp;monstration</translation>
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
        <translation>Barre d&apos;outils</translation>
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
        <translation>Ouvrir l&apos;équipement de &amp;démonstration</translation>
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
        <translation>Aucun appel au pilote pour l&apos;instant. Chaque requête d&apos;un outil est notée ici.</translation>
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
Relisez-le avec %2, ou retirez l&apos;équipement de la liste.</translation>
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
        <translation>Ajouter un équipement à partir d&apos;un fichier SCL, sans connexion</translation>
    </message>
    <message>
        <source>&amp;Start Simulated Device…</source>
        <translation>Démarrer un équipement &amp;simulé…</translation>
    </message>
    <message>
        <source>Simulate a device of an SCL file and connect to it</source>
        <translation>Simuler un équipement d&apos;un fichier SCL et s&apos;y connecter</translation>
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
        <translation>&amp;Modifier l&apos;équipement…</translation>
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
        <translation>Se connecter à l&apos;équipement sélectionné, maintenant et au prochain démarrage</translation>
    </message>
    <message>
        <source>Leave the selected device, until it is connected again</source>
        <translation>Quitter l&apos;équipement sélectionné, jusqu&apos;à la prochaine connexion</translation>
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
        <translation>Arrêter l&apos;équipement simulé, comme s&apos;il avait perdu son alimentation</translation>
    </message>
    <message>
        <source>&amp;PDU Trace…</source>
        <translation>Trace des &amp;PDU…</translation>
    </message>
    <message>
        <source>Show what is exchanged with the selected device</source>
        <translation>Montrer les échanges avec l&apos;équipement sélectionné</translation>
    </message>
    <message>
        <source>Sa&amp;ve Capture…</source>
        <translation>Enregistrer la capt&amp;ure…</translation>
    </message>
    <message>
        <source>Save what was exchanged with the selected device for a protocol analyser</source>
        <translation>Enregistrer les échanges avec l&apos;équipement sélectionné pour un analyseur de protocole</translation>
    </message>
    <message>
        <source>E&amp;xport Values…</source>
        <translation>E&amp;xporter les valeurs…</translation>
    </message>
    <message>
        <source>Save the values of the selected device as a table</source>
        <translation>Enregistrer les valeurs de l&apos;équipement sélectionné sous forme de tableau</translation>
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
        <translation>Rien n&apos;a encore été modifié sur un équipement. Tout ce qui est écrit, commandé ou transféré est noté ici%1.</translation>
    </message>
    <message>
        <source> and kept in
%1</source>
        <translation> et conservé dans
%1</translation>
    </message>
    <message>
        <source>Read-only: nothing is changed on devices</source>
        <translation>Lecture seule : rien n&apos;est modifié sur les équipements</translation>
    </message>
    <message>
        <source>Reading the model of %1</source>
        <translation>Lecture du modèle de %1</translation>
    </message>
    <message>
        <source>This device has no SCL file; its model is read from the device itself.</source>
        <translation>Cet équipement n&apos;a pas de fichier SCL ; son modèle est lu dans l&apos;équipement lui-même.</translation>
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
        <translation>Le fichier SCL de cet équipement a seulement été comparé avec l&apos;équipement. Ouvrez-le comme fichier SCL pour voir ses constats.</translation>
    </message>
    <message>
        <source>Con&amp;firm</source>
        <translation>C&amp;onfirmer</translation>
    </message>
    <message>
        <source>&amp;Commands before they are sent</source>
        <translation>&amp;Commandes avant leur envoi</translation>
    </message>
    <message>
        <source>&amp;Everything that changes a device</source>
        <translation>&amp;Tout ce qui modifie quelque chose sur un équipement</translation>
    </message>
    <message>
        <source>&amp;Nothing</source>
        <translation>&amp;Rien</translation>
    </message>
    <message>
        <source>%1 is away since %2</source>
        <translation>%1 est injoignable depuis %2</translation>
    </message>
    <message>
        <source>Devices away: %1, the first since %2</source>
        <translation>Équipements injoignables : %1, le premier depuis %2</translation>
    </message>
</context>
<context>
    <name>OfflineDriverService</name>
    <message>
        <source>Not connected to the device</source>
        <translation>Pas de connexion à l&apos;équipement</translation>
    </message>
    <message>
        <source>There is no device %1 on this driver.</source>
        <translation>Il n&apos;y a pas d&apos;équipement %1 sur ce pilote.</translation>
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
        <translation>Il n&apos;y a pas d&apos;IED « %1 » dans le fichier.</translation>
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
        <translation>Les fichiers de l&apos;équipement simulé ne peuvent pas être écrits dans « %1 ».</translation>
    </message>
    <message>
        <source>The device cannot be simulated: %1</source>
        <translation>L&apos;équipement ne peut pas être simulé : %1</translation>
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
        <translation>Le plug-in « %1 » n&apos;est pas disponible : %2</translation>
    </message>
    <message>
        <source>The demonstration device was not read in time.</source>
        <translation>L&apos;équipement de démonstration n&apos;a pas été lu à temps.</translation>
    </message>
    <message>
        <source>The demonstration device cannot be read.</source>
        <translation>L&apos;équipement de démonstration ne peut pas être lu.</translation>
    </message>
    <message>
        <source>The second device cannot be read.</source>
        <translation>Le deuxième équipement ne peut pas être lu.</translation>
    </message>
    <message>
        <source>The plug-in offers no tool number %1 for the demonstration device.</source>
        <translation>Le plug-in n&apos;offre pas d&apos;outil numéro %1 pour l&apos;équipement de démonstration.</translation>
    </message>
    <message>
        <source>Instead of the IED browser came %1.</source>
        <translation>Au lieu du navigateur IED est apparu : %1.</translation>
    </message>
    <message>
        <source>The IED browser did not appear.</source>
        <translation>Le navigateur IED n&apos;est pas apparu.</translation>
    </message>
    <message>
        <source>The IED browser has no tree.</source>
        <translation>Le navigateur IED n&apos;a pas d&apos;arborescence.</translation>
    </message>
    <message>
        <source>The demonstration device has no switch.</source>
        <translation>L&apos;équipement de démonstration n&apos;a pas d&apos;appareil de coupure.</translation>
    </message>
    <message>
        <source>The context menu did not appear.</source>
        <translation>Le menu contextuel n&apos;est pas apparu.</translation>
    </message>
    <message>
        <source>The window &quot;%1&quot; did not appear.</source>
        <translation>La fenêtre « %1 » n&apos;est pas apparue.</translation>
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
        <translation>Le navigateur IED n&apos;a pas d&apos;entrée « %1 ».</translation>
    </message>
    <message>
        <source>The picture &quot;%1&quot; cannot be saved.</source>
        <translation>L&apos;image « %1 » ne peut pas être enregistrée.</translation>
    </message>
    <message>
        <source>The simulated device was not connected in time.</source>
        <translation>L&apos;équipement simulé n&apos;a pas été connecté à temps.</translation>
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
        <translation>Rien n&apos;a encore été échangé avec cet équipement.</translation>
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
        <translation>%1 n&apos;est pas un nombre fini.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds characters that %2 does not have.</source>
        <translation>« %1 » contient des caractères que %2 n&apos;admet pas.</translation>
    </message>
    <message>
        <source>There is no value to write.</source>
        <translation>Il n&apos;y a pas de valeur à écrire.</translation>
    </message>
    <message>
        <source>A value of type %1 cannot be written as a whole.</source>
        <translation>Une valeur de type %1 ne peut pas être écrite en entier.</translation>
    </message>
    <message>
        <source>The text of %1 is longer than can be shown, so it can only be read.</source>
        <translation>Le texte de %1 est trop long pour être affiché en entier ; il peut donc seulement être lu.</translation>
    </message>
    <message>
        <source>%1 holds octets that are no text, so it can only be read.</source>
        <translation>%1 contient des octets qui ne sont pas du texte ; il peut donc seulement être lu.</translation>
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
    <message>
        <source>Another workbench uses the list of devices in &quot;%1&quot;: what is changed in this one is not kept.</source>
        <translation>Un autre banc de travail utilise la liste des équipements dans « %1 » : ce qui est modifié dans celui-ci n&apos;est pas conservé.</translation>
    </message>
    <message>
        <source>The list of devices in &quot;%1&quot; cannot be locked: what is changed is not kept.</source>
        <translation>La liste des équipements dans « %1 » ne peut pas être verrouillée : ce qui est modifié n&apos;est pas conservé.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>The standard output cannot be written.</source>
        <translation>Impossible d&apos;écrire sur la sortie standard.</translation>
    </message>
</context>
</TS>
