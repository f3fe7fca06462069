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
    <message>
        <source>Acc&amp;ess point of the IED:</source>
        <translation>P&amp;oint d&apos;accès de l&apos;IED :</translation>
    </message>
    <message>
        <source>Which of the IED&apos;s access points the device is, where the file describes several</source>
        <translation>Lequel des points d&apos;accès de l&apos;IED est l&apos;équipement, si le fichier en décrit plusieurs</translation>
    </message>
    <message>
        <source>Accept certificates that are made out to &amp;others</source>
        <translation>Accepter les certificats établis pour d&apos;a&amp;utres</translation>
    </message>
    <message>
        <source>Unsafe: whoever holds the key of any certificate of these authorities can pose as this device. Better enter the name that its certificate has, or its fingerprint.</source>
        <translation>Dangereux : quiconque possède la clé d&apos;un certificat quelconque de ces autorités peut se faire passer pour cet équipement. Indiquez plutôt le nom que porte son certificat, ou son empreinte.</translation>
    </message>
    <message>
        <source>the one with the device&apos;s address</source>
        <translation>celui qui a l&apos;adresse de l&apos;équipement</translation>
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
    <message>
        <source>A report control block could not be %1: %2</source>
        <translation>Un bloc de contrôle de rapport : %1 impossible : %2</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 (%2).</source>
        <translation>%1 (%2).</translation>
    </message>
    <message>
        <source>%1 (%2, %3).</source>
        <translation>%1 (%2, %3).</translation>
    </message>
    <message>
        <source>%1 (%2, %3, %4).</source>
        <translation>%1 (%2, %3, %4).</translation>
    </message>
    <message>
        <source>%1 bears the name of the issuer &quot;%2&quot;, but not its signature.</source>
        <translation>%1 porte le nom de l&apos;émetteur « %2 », mais pas sa signature.</translation>
    </message>
    <message>
        <source>%1 cannot be checked: the revocation list of its issuer &quot;%2&quot; does not bear its signature.</source>
        <translation>%1 ne peut pas être vérifié : la liste de révocation de son émetteur « %2 » ne porte pas la signature de celui-ci.</translation>
    </message>
    <message>
        <source>%1 cannot be checked: the revocation list of its issuer &quot;%2&quot; is not valid yet.</source>
        <translation>%1 ne peut pas être vérifié : la liste de révocation de son émetteur « %2 » n&apos;est pas encore valide.</translation>
    </message>
    <message>
        <source>%1 cannot be checked: the revocation list of its issuer &quot;%2&quot; is out of date.</source>
        <translation>%1 ne peut pas être vérifié : la liste de révocation de son émetteur « %2 » est périmée.</translation>
    </message>
    <message>
        <source>%1 cannot be checked: there is no revocation list of its issuer &quot;%2&quot;.</source>
        <translation>%1 ne peut pas être vérifié : il n&apos;y a pas de liste de révocation de son émetteur « %2 ».</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>%1 ne peut pas être lu : %2.</translation>
    </message>
    <message>
        <source>%1 expired on %2.</source>
        <translation>%1 a expiré le %2.</translation>
    </message>
    <message>
        <source>%1 has a key that is too short to be safe.</source>
        <translation>%1 a une clé trop courte pour être sûre.</translation>
    </message>
    <message>
        <source>%1 has a name that is none, or that something else has; it is left out.</source>
        <translation>%1 a un nom non valable ou déjà porté par un autre élément ; il est omis.</translation>
    </message>
    <message>
        <source>%1 has been revoked.</source>
        <translation>%1 a été révoqué.</translation>
    </message>
    <message>
        <source>%1 has no %2.</source>
        <translation>%1 n&apos;a pas d&apos;attribut %2.</translation>
    </message>
    <message>
        <source>%1 is enabled already.</source>
        <translation>%1 est déjà activé.</translation>
    </message>
    <message>
        <source>%1 is in the device already, perhaps the only whole version that an upload before this one has left: save or delete it first. Nothing was changed on the device.</source>
        <translation>%1 est déjà dans l&apos;équipement ; c&apos;est peut-être la seule version complète laissée par un envoi précédent : sauvegardez ou supprimez d&apos;abord ce fichier. Rien n&apos;a été modifié sur l&apos;équipement.</translation>
    </message>
    <message>
        <source>%1 is in the device and may be incomplete.</source>
        <translation>%1 est dans l&apos;équipement et peut être incomplet.</translation>
    </message>
    <message>
        <source>%1 is larger, or nested deeper, than what is taken; it is left out.</source>
        <translation>%1 est plus grand, ou imbriqué plus profondément, que ce qui est accepté ; il est omis.</translation>
    </message>
    <message>
        <source>%1 is no functional constraint.</source>
        <translation>%1 n&apos;est pas une contrainte fonctionnelle.</translation>
    </message>
    <message>
        <source>%1 is no name of data.</source>
        <translation>%1 n&apos;est pas un nom de données.</translation>
    </message>
    <message>
        <source>%1 is not a reference: %2.</source>
        <translation>%1 n&apos;est pas une référence : %2.</translation>
    </message>
    <message>
        <source>%1 is not accepted: %2.</source>
        <translation>%1 n&apos;est pas accepté : %2.</translation>
    </message>
    <message>
        <source>%1 is not in the device.</source>
        <translation>%1 n&apos;est pas dans l&apos;équipement.</translation>
    </message>
    <message>
        <source>%1 is not made out to the host that was asked for.</source>
        <translation>%1 n&apos;est pas établi pour l&apos;hôte demandé.</translation>
    </message>
    <message>
        <source>%1 is not meant for this side of a TLS connection.</source>
        <translation>%1 n&apos;est pas prévu pour ce côté d&apos;une connexion TLS.</translation>
    </message>
    <message>
        <source>%1 is not the name of a data object that can be controlled.</source>
        <translation>%1 n&apos;est pas le nom d&apos;un objet de données qui peut être commandé.</translation>
    </message>
    <message>
        <source>%1 is not the name of a data set.</source>
        <translation>%1 n&apos;est pas le nom d&apos;un ensemble de données.</translation>
    </message>
    <message>
        <source>%1 is valid only from %2 on.</source>
        <translation>%1 n&apos;est valide qu&apos;à partir du %2.</translation>
    </message>
    <message>
        <source>%1 may be in the device, incomplete.</source>
        <translation>%1 est peut-être dans l&apos;équipement, incomplet.</translation>
    </message>
    <message>
        <source>%1 may be incomplete.</source>
        <translation>%1 peut être incomplet.</translation>
    </message>
    <message>
        <source>%1 of %2 cannot be written: %3.</source>
        <translation>%1 de %2 ne peut pas être écrit : %3.</translation>
    </message>
    <message>
        <source>%1 of %2: %3.</source>
        <translation>%1 de %2 : %3.</translation>
    </message>
    <message>
        <source>%1 of the control block cannot be %2.</source>
        <translation>%1 du bloc de contrôle ne peut pas valoir %2.</translation>
    </message>
    <message>
        <source>%1 of the member %2</source>
        <translation>%1 du membre %2</translation>
    </message>
    <message>
        <source>%1 was issued by &quot;%2&quot;, which is not trusted here.</source>
        <translation>%1 a été émis par « %2 », auquel on ne fait pas confiance ici.</translation>
    </message>
    <message>
        <source>%1 was issued by itself and is not trusted here.</source>
        <translation>%1 a été émis par lui-même, et on ne lui fait pas confiance ici.</translation>
    </message>
    <message>
        <source>%1 was not touched.</source>
        <translation>%1 n&apos;a pas été modifié.</translation>
    </message>
    <message>
        <source>%1 was replaced, but %2, a second copy of it, is left: delete it.</source>
        <translation>%1 a été remplacé, mais il en reste un second exemplaire, %2 : supprimez-le.</translation>
    </message>
    <message>
        <source>%1 was replaced, but %2, a second copy of it, may be in the device still: delete it.</source>
        <translation>%1 a été remplacé, mais un second exemplaire, %2, est peut-être encore dans l&apos;équipement : supprimez-le.</translation>
    </message>
    <message>
        <source>%1, so the member &quot;%2&quot; does not exist.</source>
        <translation>%1 ; le membre « %2 » n&apos;existe donc pas.</translation>
    </message>
    <message>
        <source>%1: %2 got an answer that does not match the question.</source>
        <translation>%1 : la réponse à %2 ne correspond pas à la demande.</translation>
    </message>
    <message>
        <source>%1: %2 got no answer within %3.</source>
        <translation>%1 : pas de réponse à %2 en %3.</translation>
    </message>
    <message>
        <source>%1: %2 got no answer: %3.</source>
        <translation>%1 : pas de réponse à %2 : %3.</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation>%1 : %2.</translation>
    </message>
    <message>
        <source>%1: a command of it cannot be cancelled.</source>
        <translation>%1 : une commande de cet objet ne peut pas être annulée.</translation>
    </message>
    <message>
        <source>%1: it shows its status and cannot be operated.</source>
        <translation>%1 : cet objet montre son état et ne peut pas être commandé.</translation>
    </message>
    <message>
        <source>%1: its control model knows no selection.</source>
        <translation>%1 : son modèle de commande ne connaît pas de sélection.</translation>
    </message>
    <message>
        <source>%1: the command ended without success: %2.</source>
        <translation>%1 : la commande s&apos;est terminée sans succès : %2.</translation>
    </message>
    <message>
        <source>%1: the command ended without success: the device does not say why.</source>
        <translation>%1 : la commande s&apos;est terminée sans succès : l&apos;équipement ne dit pas pourquoi.</translation>
    </message>
    <message>
        <source>%1: the device accepted the command late.</source>
        <translation>%1 : l&apos;équipement a accepté la commande tardivement.</translation>
    </message>
    <message>
        <source>%1: the device accepted the command, but has not told within %2 how it ended.</source>
        <translation>%1 : l&apos;équipement a accepté la commande, mais n&apos;a pas indiqué en %2 comment elle s&apos;est terminée.</translation>
    </message>
    <message>
        <source>%1: the device accepted the command, but the association ended before the command: %2.</source>
        <translation>%1 : l&apos;équipement a accepté la commande, mais l&apos;association s&apos;est terminée avant la commande : %2.</translation>
    </message>
    <message>
        <source>%1: the device refuses %2: %3.</source>
        <translation>%1 : l&apos;équipement refuse %2 : %3.</translation>
    </message>
    <message>
        <source>%1: the file ended after %2 of %3 octets.</source>
        <translation>%1 : le fichier s&apos;est terminé après %2 octets sur %3.</translation>
    </message>
    <message>
        <source>A UTC time has not 8 octets.</source>
        <translation>Une heure UTC n&apos;a pas 8 octets.</translation>
    </message>
    <message>
        <source>A binary time has neither 4 nor 6 octets.</source>
        <translation>Un temps binaire n&apos;a ni 4 ni 6 octets.</translation>
    </message>
    <message>
        <source>A bit string does not say how many of its bits count.</source>
        <translation>Une chaîne de bits n&apos;indique pas combien de ses bits comptent.</translation>
    </message>
    <message>
        <source>A boolean has not one octet.</source>
        <translation>Un booléen n&apos;a pas exactement un octet.</translation>
    </message>
    <message>
        <source>A certificate in the file &quot;%1&quot; cannot be read.</source>
        <translation>Un certificat du fichier « %1 » ne peut pas être lu.</translation>
    </message>
    <message>
        <source>A character is not allowed here, or does not belong to the file&apos;s encoding.</source>
        <translation>Un caractère n&apos;est pas permis ici, ou n&apos;appartient pas au codage du fichier.</translation>
    </message>
    <message>
        <source>A command is a structure, not %1.</source>
        <translation>Une commande est une structure, pas %1.</translation>
    </message>
    <message>
        <source>A constraint of the object does not allow this.</source>
        <translation>Une contrainte de l&apos;objet ne le permet pas.</translation>
    </message>
    <message>
        <source>A data unit of transport class 0 has a header of another length than 3.</source>
        <translation>Une unité de données de la classe de transport 0 a un en-tête d&apos;une longueur autre que 3.</translation>
    </message>
    <message>
        <source>A file of this name exists already.</source>
        <translation>Un fichier de ce nom existe déjà.</translation>
    </message>
    <message>
        <source>A floating-point number has neither 32 nor 64 bits.</source>
        <translation>Un nombre à virgule flottante n&apos;a ni 32 ni 64 bits.</translation>
    </message>
    <message>
        <source>A number of an object identifier is too large.</source>
        <translation>Un nombre d&apos;un identificateur d&apos;objet est trop grand.</translation>
    </message>
    <message>
        <source>A parameter of a transport unit is longer than the unit&apos;s header.</source>
        <translation>Un paramètre d&apos;une unité de transport est plus long que l&apos;en-tête de l&apos;unité.</translation>
    </message>
    <message>
        <source>A presentation unit has no parameters of normal mode.</source>
        <translation>Une unité de présentation n&apos;a pas de paramètres du mode normal.</translation>
    </message>
    <message>
        <source>A presentation unit has no user data.</source>
        <translation>Une unité de présentation n&apos;a pas de données utilisateur.</translation>
    </message>
    <message>
        <source>A presentation unit has too many values.</source>
        <translation>Une unité de présentation a trop de valeurs.</translation>
    </message>
    <message>
        <source>A presentation value belongs to a context that was not agreed.</source>
        <translation>Une valeur de présentation appartient à un contexte qui n&apos;a pas été convenu.</translation>
    </message>
    <message>
        <source>A presentation value is encoded by rules that were not agreed.</source>
        <translation>Une valeur de présentation est codée selon des règles qui n&apos;ont pas été convenues.</translation>
    </message>
    <message>
        <source>A presentation value is in a form that is not supported.</source>
        <translation>Une valeur de présentation a une forme qui n&apos;est pas prise en charge.</translation>
    </message>
    <message>
        <source>A primitive element has no definite length.</source>
        <translation>Un élément primitif n&apos;a pas de longueur définie.</translation>
    </message>
    <message>
        <source>A primitive element stands where a group belongs.</source>
        <translation>Un élément primitif se trouve là où un groupe est attendu.</translation>
    </message>
    <message>
        <source>A session parameter group holds itself.</source>
        <translation>Un groupe de paramètres de session se contient lui-même.</translation>
    </message>
    <message>
        <source>A session parameter is longer than the unit around it.</source>
        <translation>Un paramètre de session est plus long que l&apos;unité qui le contient.</translation>
    </message>
    <message>
        <source>A session unit ends within a header.</source>
        <translation>Une unité de session se termine au milieu d&apos;un en-tête.</translation>
    </message>
    <message>
        <source>A session unit ends within a length.</source>
        <translation>Une unité de session se termine au milieu d&apos;une longueur.</translation>
    </message>
    <message>
        <source>A session unit has the unknown code %1.</source>
        <translation>Une unité de session a le code inconnu %1.</translation>
    </message>
    <message>
        <source>A session unit is followed by octets that belong to nothing.</source>
        <translation>Une unité de session est suivie d&apos;octets qui n&apos;appartiennent à rien.</translation>
    </message>
    <message>
        <source>A setting group control stands in &quot;%1&quot; instead of the LLN0.</source>
        <translation>Un contrôle de groupe de réglages se trouve dans « %1 » au lieu du LLN0.</translation>
    </message>
    <message>
        <source>A tag number is too large.</source>
        <translation>Un numéro d&apos;étiquette est trop grand.</translation>
    </message>
    <message>
        <source>A token unit is not followed by a data transfer.</source>
        <translation>Une unité de jetons n&apos;est pas suivie d&apos;un transfert de données.</translation>
    </message>
    <message>
        <source>A transport packet says that it is %1 octets long, which leaves no room for its content.</source>
        <translation>Un paquet de transport indique une longueur de %1 octets, ce qui ne laisse pas de place à son contenu.</translation>
    </message>
    <message>
        <source>A transport unit has the unknown code %1.</source>
        <translation>Une unité de transport a le code inconnu %1.</translation>
    </message>
    <message>
        <source>A transport unit is followed by octets that belong to nothing.</source>
        <translation>Une unité de transport est suivie d&apos;octets qui n&apos;appartiennent à rien.</translation>
    </message>
    <message>
        <source>A transport unit needs at least two octets.</source>
        <translation>Une unité de transport doit avoir au moins deux octets.</translation>
    </message>
    <message>
        <source>A unit of association control has an unknown tag.</source>
        <translation>Une unité du contrôle d&apos;association a une étiquette inconnue.</translation>
    </message>
    <message>
        <source>Access to the file is denied.</source>
        <translation>L&apos;accès au fichier est refusé.</translation>
    </message>
    <message>
        <source>Access to the object is denied.</source>
        <translation>L&apos;accès à l&apos;objet est refusé.</translation>
    </message>
    <message>
        <source>Address already in use</source>
        <translation>Adresse déjà utilisée</translation>
    </message>
    <message>
        <source>An association request has no application context name.</source>
        <translation>Une demande d&apos;association n&apos;a pas de nom de contexte d&apos;application.</translation>
    </message>
    <message>
        <source>An association response has no result.</source>
        <translation>Une réponse d&apos;association n&apos;a pas de résultat.</translation>
    </message>
    <message>
        <source>An element is longer than the group that it is in.</source>
        <translation>Un élément est plus long que le groupe qui le contient.</translation>
    </message>
    <message>
        <source>An element is longer than the message.</source>
        <translation>Un élément est plus long que le message.</translation>
    </message>
    <message>
        <source>An element stands where a service belongs.</source>
        <translation>Un élément se trouve là où un service est attendu.</translation>
    </message>
    <message>
        <source>An element that is empty by definition has content.</source>
        <translation>Un élément vide par définition a un contenu.</translation>
    </message>
    <message>
        <source>An element that is no type stands where a type belongs.</source>
        <translation>Un élément qui n&apos;est pas un type se trouve là où un type est attendu.</translation>
    </message>
    <message>
        <source>An element that is no value stands where a value belongs.</source>
        <translation>Un élément qui n&apos;est pas une valeur se trouve là où une valeur est attendue.</translation>
    </message>
    <message>
        <source>An incomplete %1 is left in the device.</source>
        <translation>Un fichier %1 incomplet reste dans l&apos;équipement.</translation>
    </message>
    <message>
        <source>An integer has no octet or more than 8.</source>
        <translation>Un entier n&apos;a aucun octet ou en a plus de 8.</translation>
    </message>
    <message>
        <source>An integer is out of its range.</source>
        <translation>Un entier est hors de sa plage.</translation>
    </message>
    <message>
        <source>An internal error ended the association.</source>
        <translation>Une erreur interne a mis fin à l&apos;association.</translation>
    </message>
    <message>
        <source>An internal error ended the association: %1.</source>
        <translation>Une erreur interne a mis fin à l&apos;association : %1.</translation>
    </message>
    <message>
        <source>An issuer&apos;s certificate in the file &quot;%1&quot; cannot be used (%2).</source>
        <translation>Un certificat d&apos;émetteur du fichier « %1 » ne peut pas être utilisé (%2).</translation>
    </message>
    <message>
        <source>An object identifier ends within a number.</source>
        <translation>Un identificateur d&apos;objet se termine au milieu d&apos;un nombre.</translation>
    </message>
    <message>
        <source>An object of this name exists already.</source>
        <translation>Un objet de ce nom existe déjà.</translation>
    </message>
    <message>
        <source>An unsigned integer has no octet or more than 64 bits.</source>
        <translation>Un entier non signé n&apos;a aucun octet ou a plus de 64 bits.</translation>
    </message>
    <message>
        <source>An unsigned integer is out of its range.</source>
        <translation>Un entier non signé est hors de sa plage.</translation>
    </message>
    <message>
        <source>Broken pipe</source>
        <translation>Tube de communication rompu</translation>
    </message>
    <message>
        <source>Cannot allocate memory</source>
        <translation>Mémoire insuffisante</translation>
    </message>
    <message>
        <source>Cannot assign requested address</source>
        <translation>Adresse demandée non disponible</translation>
    </message>
    <message>
        <source>Cannot listen on %1 port %2: %3.</source>
        <translation>Écoute impossible sur %1, port %2 : %3.</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>Connexion refusée</translation>
    </message>
    <message>
        <source>Connection reset by peer</source>
        <translation>Connexion réinitialisée par le système distant</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>Délai de connexion dépassé</translation>
    </message>
    <message>
        <source>Each variable needs one value to write.</source>
        <translation>Chaque variable a besoin d&apos;une valeur à écrire.</translation>
    </message>
    <message>
        <source>Elements are nested deeper than %1 levels.</source>
        <translation>Les éléments sont imbriqués sur plus de %1 niveaux.</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>Erreur d&apos;entrée/sortie</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>Est un répertoire</translation>
    </message>
    <message>
        <source>It is not a logical node.</source>
        <translation>Ce n&apos;est pas un nœud logique.</translation>
    </message>
    <message>
        <source>It is not known whether %1 is in the device.</source>
        <translation>On ne sait pas si %1 est dans l&apos;équipement.</translation>
    </message>
    <message>
        <source>It is not known whether an incomplete %1 is left in the device.</source>
        <translation>On ne sait pas si un fichier %1 incomplet reste dans l&apos;équipement.</translation>
    </message>
    <message>
        <source>It is not known whether the device has a part of the file: look at %1.</source>
        <translation>On ne sait pas si l&apos;équipement a une partie du fichier : regardez %1.</translation>
    </message>
    <message>
        <source>It is not known whether the file has its name: look at %1 and %2.</source>
        <translation>On ne sait pas si le fichier a reçu son nom : regardez %1 et %2.</translation>
    </message>
    <message>
        <source>It is not known whether the file was replaced: look at %1.</source>
        <translation>On ne sait pas si le fichier a été remplacé : regardez %1.</translation>
    </message>
    <message>
        <source>It is not known whether the old %1 is still there.</source>
        <translation>On ne sait pas si l&apos;ancien fichier %1 est encore là.</translation>
    </message>
    <message>
        <source>It is not known whether the old file is still there: look at %1.</source>
        <translation>On ne sait pas si l&apos;ancien fichier est encore là : regardez %1.</translation>
    </message>
    <message>
        <source>It is not known whether the old file is still whole: look at %1.</source>
        <translation>On ne sait pas si l&apos;ancien fichier est encore complet : regardez %1.</translation>
    </message>
    <message>
        <source>It is not known whether there is an old %1.</source>
        <translation>On ne sait pas s&apos;il y a un ancien fichier %1.</translation>
    </message>
    <message>
        <source>It was not sent.</source>
        <translation>Rien n&apos;a été envoyé.</translation>
    </message>
    <message>
        <source>Modifiers of a request are not supported.</source>
        <translation>Les modificateurs d&apos;une requête ne sont pas pris en charge.</translation>
    </message>
    <message>
        <source>More than %1 name spaces are declared.</source>
        <translation>Plus de %1 espaces de noms sont déclarés.</translation>
    </message>
    <message>
        <source>Neither an authority nor a fingerprint says which peers are trusted.</source>
        <translation>Ni autorité de certification ni empreinte n&apos;indique à quels systèmes distants faire confiance.</translation>
    </message>
    <message>
        <source>Network is down</source>
        <translation>Réseau arrêté</translation>
    </message>
    <message>
        <source>Network is unreachable</source>
        <translation>Réseau inaccessible</translation>
    </message>
    <message>
        <source>No connection to %1 port %2: %3.</source>
        <translation>Pas de connexion à %1, port %2 : %3.</translation>
    </message>
    <message>
        <source>No file is given for %1.</source>
        <translation>Aucun fichier n&apos;est indiqué pour %1.</translation>
    </message>
    <message>
        <source>No route to host</source>
        <translation>Aucune route vers l&apos;hôte</translation>
    </message>
    <message>
        <source>No session entity is attached to the transport selector.</source>
        <translation>Aucune entité de session n&apos;est rattachée au sélecteur de transport.</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>Plus de place sur le support de stockage</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>Aucun fichier ou répertoire de ce nom</translation>
    </message>
    <message>
        <source>Nobody wants the association any more.</source>
        <translation>Plus personne n&apos;a besoin de l&apos;association.</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>N&apos;est pas un répertoire</translation>
    </message>
    <message>
        <source>Nothing is attached to the peer&apos;s presentation selector.</source>
        <translation>Rien n&apos;est rattaché au sélecteur de présentation du système distant.</translation>
    </message>
    <message>
        <source>Nothing is attached to the peer&apos;s session selector.</source>
        <translation>Rien n&apos;est rattaché au sélecteur de session du système distant.</translation>
    </message>
    <message>
        <source>Nothing was changed on the device.</source>
        <translation>Rien n&apos;a été modifié sur l&apos;équipement.</translation>
    </message>
    <message>
        <source>Operation canceled</source>
        <translation>Opération annulée</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>Opération non permise</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Permission refusée</translation>
    </message>
    <message>
        <source>Presentation user data is simply encoded, which is not supported.</source>
        <translation>Les données utilisateur de présentation sont codées sous la forme simple, qui n&apos;est pas prise en charge.</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>Système de fichiers en lecture seule</translation>
    </message>
    <message>
        <source>Reading the file was cancelled.</source>
        <translation>La lecture du fichier a été annulée.</translation>
    </message>
    <message>
        <source>Reading the file was stopped.</source>
        <translation>La lecture du fichier a été arrêtée.</translation>
    </message>
    <message>
        <source>Revocation lists are of no use without the authorities that issued them.</source>
        <translation>Les listes de révocation ne servent à rien sans les autorités qui les ont émises.</translation>
    </message>
    <message>
        <source>Setting groups are counted from 1; 0 cannot become the active group.</source>
        <translation>Les groupes de réglages sont comptés à partir de 1 ; 0 ne peut pas devenir le groupe actif.</translation>
    </message>
    <message>
        <source>Software caused connection abort</source>
        <translation>Connexion interrompue par le logiciel</translation>
    </message>
    <message>
        <source>Something stands behind the end of %1.</source>
        <translation>Il y a quelque chose après la fin de %1.</translation>
    </message>
    <message>
        <source>TLS cannot be set up (%1).</source>
        <translation>TLS ne peut pas être mis en place (%1).</translation>
    </message>
    <message>
        <source>TLS failed for an unknown reason.</source>
        <translation>TLS a échoué pour une raison inconnue.</translation>
    </message>
    <message>
        <source>TLS failed: %1.</source>
        <translation>TLS a échoué : %1.</translation>
    </message>
    <message>
        <source>The %1 &quot;%2&quot; contains itself; this element is left out.</source>
        <translation>Le %1 « %2 » se contient lui-même ; cet élément est omis.</translation>
    </message>
    <message>
        <source>The %1 &quot;%2&quot; does not exist.</source>
        <translation>Le %1 « %2 » n&apos;existe pas.</translation>
    </message>
    <message>
        <source>The %1 &quot;%2&quot; is defined again; the definition in line %3 is used.</source>
        <translation>Le %1 « %2 » est défini une nouvelle fois ; la définition de la ligne %3 est utilisée.</translation>
    </message>
    <message>
        <source>The %1 has no id and cannot be used.</source>
        <translation>Le %1 n&apos;a pas d&apos;id et ne peut pas être utilisé.</translation>
    </message>
    <message>
        <source>The DOType has no common data class (attribute cdc).</source>
        <translation>Le DOType n&apos;a pas de classe de données commune (attribut cdc).</translation>
    </message>
    <message>
        <source>The EnumType &quot;%1&quot; does not exist.</source>
        <translation>L&apos;EnumType « %1 » n&apos;existe pas.</translation>
    </message>
    <message>
        <source>The IED &quot;%1&quot; has more than %2 nodes of data.</source>
        <translation>L&apos;IED « %1 » a plus de %2 nœuds de données.</translation>
    </message>
    <message>
        <source>The IED &quot;%1&quot; has no access point &quot;%2&quot;.</source>
        <translation>L&apos;IED « %1 » n&apos;a pas de point d&apos;accès « %2 ».</translation>
    </message>
    <message>
        <source>The IED &quot;%1&quot; is not in this file.</source>
        <translation>L&apos;IED « %1 » n&apos;est pas dans ce fichier.</translation>
    </message>
    <message>
        <source>The IED has no name.</source>
        <translation>L&apos;IED n&apos;a pas de nom.</translation>
    </message>
    <message>
        <source>The LNodeType &quot;%1&quot; does not exist.</source>
        <translation>Le LNodeType « %1 » n&apos;existe pas.</translation>
    </message>
    <message>
        <source>The LNodeType has no class (attribute lnClass).</source>
        <translation>Le LNodeType n&apos;a pas de classe (attribut lnClass).</translation>
    </message>
    <message>
        <source>The access point &quot;%1&quot; whose server is shared does not exist or has none.</source>
        <translation>Le point d&apos;accès « %1 », dont le serveur est partagé, n&apos;existe pas ou n&apos;a pas de serveur.</translation>
    </message>
    <message>
        <source>The active setting group is %1, but there are %2; group 1 is used.</source>
        <translation>Le groupe de réglages actif est %1, mais il n&apos;y en a que %2 ; le groupe 1 est utilisé.</translation>
    </message>
    <message>
        <source>The address is not valid.</source>
        <translation>L&apos;adresse n&apos;est pas valide.</translation>
    </message>
    <message>
        <source>The answer cannot be read: %1.</source>
        <translation>La réponse ne peut pas être lue : %1.</translation>
    </message>
    <message>
        <source>The answer does not fit a message.</source>
        <translation>La réponse ne tient pas dans un message.</translation>
    </message>
    <message>
        <source>The answer does not match the question.</source>
        <translation>La réponse ne correspond pas à la demande.</translation>
    </message>
    <message>
        <source>The association is being concluded.</source>
        <translation>L&apos;association est en cours de clôture.</translation>
    </message>
    <message>
        <source>The association was refused.</source>
        <translation>L&apos;association a été refusée.</translation>
    </message>
    <message>
        <source>The association was released.</source>
        <translation>L&apos;association a été libérée.</translation>
    </message>
    <message>
        <source>The attribute &quot;%1&quot; that holds the number of elements of &quot;%2&quot; has no value; the array is empty.</source>
        <translation>L&apos;attribut « %1 », qui contient le nombre d&apos;éléments de « %2 », n&apos;a pas de valeur ; le tableau est vide.</translation>
    </message>
    <message>
        <source>The attribute &quot;%1&quot; that should hold the number of array elements does not exist; the array is empty.</source>
        <translation>L&apos;attribut « %1 », qui devrait contenir le nombre d&apos;éléments du tableau, n&apos;existe pas ; le tableau est vide.</translation>
    </message>
    <message>
        <source>The attribute has no basic type (attribute bType).</source>
        <translation>L&apos;attribut n&apos;a pas de type de base (attribut bType).</translation>
    </message>
    <message>
        <source>The attribute has no functional constraint (attribute fc) and cannot be addressed.</source>
        <translation>L&apos;attribut n&apos;a pas de contrainte fonctionnelle (attribut fc) et ne peut pas être adressé.</translation>
    </message>
    <message>
        <source>The attribute is an enumeration without a type (attribute type).</source>
        <translation>L&apos;attribut est une énumération sans type (attribut type).</translation>
    </message>
    <message>
        <source>The attributes of the object contradict each other.</source>
        <translation>Les attributs de l&apos;objet se contredisent.</translation>
    </message>
    <message>
        <source>The authority in the file &quot;%1&quot; cannot be used (%2).</source>
        <translation>L&apos;autorité de certification du fichier « %1 » ne peut pas être utilisée (%2).</translation>
    </message>
    <message>
        <source>The basic type is written &quot;%1&quot; instead of &quot;%2&quot;.</source>
        <translation>Le type de base est écrit « %1 » au lieu de « %2 ».</translation>
    </message>
    <message>
        <source>The block belongs to another association of this computer, %1.</source>
        <translation>Le bloc appartient à une autre association de cet ordinateur, %1.</translation>
    </message>
    <message>
        <source>The block belongs to the client %1.</source>
        <translation>Le bloc appartient au client %1.</translation>
    </message>
    <message>
        <source>The call can no longer be cancelled.</source>
        <translation>La requête ne peut plus être annulée.</translation>
    </message>
    <message>
        <source>The call cannot be cancelled.</source>
        <translation>La requête ne peut pas être annulée.</translation>
    </message>
    <message>
        <source>The call was cancelled.</source>
        <translation>La requête a été annulée.</translation>
    </message>
    <message>
        <source>The certificate &quot;%1&quot; in the file &quot;%2&quot;</source>
        <translation>Le certificat « %1 » du fichier « %2 »</translation>
    </message>
    <message>
        <source>The certificate in the file &quot;%1&quot; cannot be used (%2).</source>
        <translation>Le certificat du fichier « %1 » ne peut pas être utilisé (%2).</translation>
    </message>
    <message>
        <source>The class is &quot;%1&quot;, but the LNodeType &quot;%2&quot; is of class &quot;%3&quot;.</source>
        <translation>La classe est « %1 », mais le LNodeType « %2 » est de la classe « %3 ».</translation>
    </message>
    <message>
        <source>The class of an LN0 is &quot;%1&quot; instead of &quot;LLN0&quot;.</source>
        <translation>La classe d&apos;un LN0 est « %1 » au lieu de « LLN0 ».</translation>
    </message>
    <message>
        <source>The client is gone.</source>
        <translation>Le client n&apos;est plus là.</translation>
    </message>
    <message>
        <source>The connection to the other application is lost.</source>
        <translation>La connexion avec l&apos;autre application est perdue.</translation>
    </message>
    <message>
        <source>The content type of the file is not valid.</source>
        <translation>Le type de contenu du fichier n&apos;est pas valide.</translation>
    </message>
    <message>
        <source>The control block has no name.</source>
        <translation>Le bloc de contrôle n&apos;a pas de nom.</translation>
    </message>
    <message>
        <source>The control model of %1 cannot be read: %2.</source>
        <translation>Le modèle de commande de %1 ne peut pas être lu : %2.</translation>
    </message>
    <message>
        <source>The control model of %1 is %2, which is none.</source>
        <translation>Le modèle de commande de %1 est %2, une valeur qui n&apos;existe pas.</translation>
    </message>
    <message>
        <source>The data below this element are nested deeper than %1 levels; the element is left out.</source>
        <translation>Les données sous cet élément sont imbriquées sur plus de %1 niveaux ; l&apos;élément est omis.</translation>
    </message>
    <message>
        <source>The data set &quot;%1&quot; of the control block does not exist in its logical node.</source>
        <translation>L&apos;ensemble de données « %1 » du bloc de contrôle n&apos;existe pas dans son nœud logique.</translation>
    </message>
    <message>
        <source>The data set has no members.</source>
        <translation>L&apos;ensemble de données n&apos;a pas de membres.</translation>
    </message>
    <message>
        <source>The data set has no name.</source>
        <translation>L&apos;ensemble de données n&apos;a pas de nom.</translation>
    </message>
    <message>
        <source>The definition of the object does not allow this.</source>
        <translation>La définition de l&apos;objet ne le permet pas.</translation>
    </message>
    <message>
        <source>The device answered another service.</source>
        <translation>L&apos;équipement a répondu à un autre service.</translation>
    </message>
    <message>
        <source>The device cannot carry out the service.</source>
        <translation>L&apos;équipement ne peut pas exécuter le service.</translation>
    </message>
    <message>
        <source>The device cannot check interlocking.</source>
        <translation>L&apos;équipement ne peut pas vérifier l&apos;interverrouillage.</translation>
    </message>
    <message>
        <source>The device cannot check synchronism.</source>
        <translation>L&apos;équipement ne peut pas contrôler le synchronisme.</translation>
    </message>
    <message>
        <source>The device cannot operate at a given time.</source>
        <translation>L&apos;équipement ne peut pas exécuter une commande à une heure donnée.</translation>
    </message>
    <message>
        <source>The device cannot test a command.</source>
        <translation>L&apos;équipement ne peut pas tester une commande.</translation>
    </message>
    <message>
        <source>The device cannot transfer the domain.</source>
        <translation>L&apos;équipement ne peut pas transférer le domaine.</translation>
    </message>
    <message>
        <source>The device describes more than the %1 values in %2 octets that are taken; the rest is left out.</source>
        <translation>L&apos;équipement décrit plus que ce qui est accepté (%1 valeurs en %2 octets) ; le reste est omis.</translation>
    </message>
    <message>
        <source>The device describes the originator as %1.</source>
        <translation>L&apos;équipement décrit l&apos;émetteur comme %1.</translation>
    </message>
    <message>
        <source>The device does not accept the syntax of the file name.</source>
        <translation>L&apos;équipement n&apos;accepte pas la syntaxe du nom de fichier.</translation>
    </message>
    <message>
        <source>The device does not answer any more.</source>
        <translation>L&apos;équipement ne répond plus.</translation>
    </message>
    <message>
        <source>The device does not know the call to cancel.</source>
        <translation>L&apos;équipement ne connaît pas la requête à annuler.</translation>
    </message>
    <message>
        <source>The device does not know the capability.</source>
        <translation>L&apos;équipement ne connaît pas la capacité.</translation>
    </message>
    <message>
        <source>The device does not know the state machine.</source>
        <translation>L&apos;équipement ne connaît pas la machine à états.</translation>
    </message>
    <message>
        <source>The device does not let the data set %1 be deleted.</source>
        <translation>L&apos;équipement ne permet pas de supprimer l&apos;ensemble de données %1.</translation>
    </message>
    <message>
        <source>The device does not list its logical devices: %1.</source>
        <translation>L&apos;équipement ne liste pas ses dispositifs logiques : %1.</translation>
    </message>
    <message>
        <source>The device does not say what belongs to the command.</source>
        <translation>L&apos;équipement ne dit pas ce qui fait partie de la commande.</translation>
    </message>
    <message>
        <source>The device does not support the time resolution.</source>
        <translation>L&apos;équipement ne prend pas en charge la résolution temporelle.</translation>
    </message>
    <message>
        <source>The device gave a reason for refusing a command that cannot be read: %1.</source>
        <translation>L&apos;équipement a donné une raison de refuser une commande, mais elle ne peut pas être lue : %1.</translation>
    </message>
    <message>
        <source>The device gave up after its own time limit.</source>
        <translation>L&apos;équipement a abandonné la requête après son propre délai.</translation>
    </message>
    <message>
        <source>The device gave up because of a deadlock.</source>
        <translation>L&apos;équipement a abandonné la requête à cause d&apos;un blocage mutuel.</translation>
    </message>
    <message>
        <source>The device gave up the call.</source>
        <translation>L&apos;équipement a abandonné la requête.</translation>
    </message>
    <message>
        <source>The device gives names without end.</source>
        <translation>L&apos;équipement donne des noms sans fin.</translation>
    </message>
    <message>
        <source>The device has an operational problem.</source>
        <translation>L&apos;équipement a un problème de fonctionnement.</translation>
    </message>
    <message>
        <source>The device has more names than the %1 names and %2 octets that are taken; the others are left out.</source>
        <translation>L&apos;équipement a plus de noms que ce qui est accepté (%1 noms et %2 octets) ; les autres sont omis.</translation>
    </message>
    <message>
        <source>The device has more than %1 logical devices; the others are left out.</source>
        <translation>L&apos;équipement a plus de %1 dispositifs logiques ; les autres sont omis.</translation>
    </message>
    <message>
        <source>The device has more than %1 logical nodes; the others are left out.</source>
        <translation>L&apos;équipement a plus de %1 nœuds logiques ; les autres sont omis.</translation>
    </message>
    <message>
        <source>The device has neither %1 nor %2 any more.</source>
        <translation>L&apos;équipement n&apos;a plus ni %1 ni %2.</translation>
    </message>
    <message>
        <source>The device has no free capability for this.</source>
        <translation>L&apos;équipement n&apos;a pas de capacité libre pour cela.</translation>
    </message>
    <message>
        <source>The device has not enough computing time.</source>
        <translation>L&apos;équipement n&apos;a pas assez de temps de calcul.</translation>
    </message>
    <message>
        <source>The device has not enough memory.</source>
        <translation>L&apos;équipement n&apos;a pas assez de mémoire.</translation>
    </message>
    <message>
        <source>The device has not enough storage.</source>
        <translation>L&apos;équipement n&apos;a pas assez d&apos;espace de stockage.</translation>
    </message>
    <message>
        <source>The device has not the resources for this.</source>
        <translation>L&apos;équipement n&apos;a pas les ressources nécessaires.</translation>
    </message>
    <message>
        <source>The device has something to finish first.</source>
        <translation>L&apos;équipement doit d&apos;abord terminer quelque chose.</translation>
    </message>
    <message>
        <source>The device has stopped fetching the file after %1 of %2 octets.</source>
        <translation>L&apos;équipement a cessé de lire le fichier après %1 octets sur %2.</translation>
    </message>
    <message>
        <source>The device is in a state that does not allow this.</source>
        <translation>L&apos;équipement est dans un état qui ne le permet pas.</translation>
    </message>
    <message>
        <source>The device lists its files without an end.</source>
        <translation>L&apos;équipement liste ses fichiers sans fin.</translation>
    </message>
    <message>
        <source>The device refuses the association.</source>
        <translation>L&apos;équipement refuse l&apos;association.</translation>
    </message>
    <message>
        <source>The device refuses the file operation.</source>
        <translation>L&apos;équipement refuse l&apos;opération sur le fichier.</translation>
    </message>
    <message>
        <source>The device refuses to conclude the association.</source>
        <translation>L&apos;équipement refuse de clore l&apos;association.</translation>
    </message>
    <message>
        <source>The device refuses without giving a reason.</source>
        <translation>L&apos;équipement refuse la requête sans donner de raison.</translation>
    </message>
    <message>
        <source>The device rejects a cancel (%1).</source>
        <translation>L&apos;équipement rejette une annulation (%1).</translation>
    </message>
    <message>
        <source>The device rejects a conclude (%1).</source>
        <translation>L&apos;équipement rejette une clôture (%1).</translation>
    </message>
    <message>
        <source>The device rejects a message that it cannot read (%1).</source>
        <translation>L&apos;équipement rejette un message qu&apos;il ne peut pas lire (%1).</translation>
    </message>
    <message>
        <source>The device rejects a request (%1).</source>
        <translation>L&apos;équipement rejette une requête (%1).</translation>
    </message>
    <message>
        <source>The device rejects an answer (%1).</source>
        <translation>L&apos;équipement rejette une réponse (%1).</translation>
    </message>
    <message>
        <source>The device rejects an error (%1).</source>
        <translation>L&apos;équipement rejette une erreur (%1).</translation>
    </message>
    <message>
        <source>The device rejects an unconfirmed message (%1).</source>
        <translation>L&apos;équipement rejette un message non confirmé (%1).</translation>
    </message>
    <message>
        <source>The device rejects the answer to a cancel (%1).</source>
        <translation>L&apos;équipement rejette la réponse à une annulation (%1).</translation>
    </message>
    <message>
        <source>The device rejects the answer to a conclude (%1).</source>
        <translation>L&apos;équipement rejette la réponse à une clôture (%1).</translation>
    </message>
    <message>
        <source>The device rejects the refusal of a cancel (%1).</source>
        <translation>L&apos;équipement rejette le refus d&apos;une annulation (%1).</translation>
    </message>
    <message>
        <source>The device rejects the refusal of a conclude (%1).</source>
        <translation>L&apos;équipement rejette le refus d&apos;une clôture (%1).</translation>
    </message>
    <message>
        <source>The device repeats the same page of names.</source>
        <translation>L&apos;équipement répète la même page de noms.</translation>
    </message>
    <message>
        <source>The device reports a hardware fault.</source>
        <translation>L&apos;équipement signale un défaut matériel.</translation>
    </message>
    <message>
        <source>The device reports the unknown data access error %1.</source>
        <translation>L&apos;équipement signale l&apos;erreur d&apos;accès aux données inconnue %1.</translation>
    </message>
    <message>
        <source>The device says that it has the file, but it has fetched only %1 of %2 octets.</source>
        <translation>L&apos;équipement dit avoir le fichier, mais il n&apos;en a lu que %1 octets sur %2.</translation>
    </message>
    <message>
        <source>The device sends empty blocks of the file without an end.</source>
        <translation>L&apos;équipement envoie sans fin des blocs vides du fichier.</translation>
    </message>
    <message>
        <source>The device took longer than %1 minutes to describe itself; what it had not told by then is left out.</source>
        <translation>L&apos;équipement a mis plus de %1 minutes à se décrire ; ce qu&apos;il n&apos;avait pas encore indiqué est omis.</translation>
    </message>
    <message>
        <source>The device uses another version of the protocol.</source>
        <translation>L&apos;équipement utilise une autre version du protocole.</translation>
    </message>
    <message>
        <source>The device wants %1 also as a whole number, but does not say by which scale (sVC).</source>
        <translation>L&apos;équipement veut %1 aussi comme nombre entier, mais ne dit pas selon quelle échelle (sVC).</translation>
    </message>
    <message>
        <source>The device wants a part %1 in the command, which is not known.</source>
        <translation>L&apos;équipement veut dans la commande une partie %1 qui n&apos;est pas connue.</translation>
    </message>
    <message>
        <source>The device wants an unknown part %1 of the originator.</source>
        <translation>L&apos;équipement veut une partie inconnue %1 de l&apos;émetteur.</translation>
    </message>
    <message>
        <source>The device&apos;s answer does not match the question.</source>
        <translation>La réponse de l&apos;équipement ne correspond pas à la demande.</translation>
    </message>
    <message>
        <source>The device&apos;s answer does not match the request.</source>
        <translation>La réponse de l&apos;équipement ne correspond pas à la requête.</translation>
    </message>
    <message>
        <source>The directory &quot;%1&quot; cannot be served: %2.</source>
        <translation>Le répertoire « %1 » ne peut pas être mis à disposition : %2.</translation>
    </message>
    <message>
        <source>The discovery was cancelled.</source>
        <translation>L&apos;exploration de l&apos;équipement a été annulée.</translation>
    </message>
    <message>
        <source>The element %1 is missing or of an unknown kind.</source>
        <translation>L&apos;élément %1 manque ou est d&apos;un type inconnu.</translation>
    </message>
    <message>
        <source>The element %1 is missing.</source>
        <translation>L&apos;élément %1 manque.</translation>
    </message>
    <message>
        <source>The element %1 is not where it belongs.</source>
        <translation>L&apos;élément %1 n&apos;est pas à sa place.</translation>
    </message>
    <message>
        <source>The element does not name an access point.</source>
        <translation>L&apos;élément ne désigne pas de point d&apos;accès.</translation>
    </message>
    <message>
        <source>The element has no name and is left out.</source>
        <translation>L&apos;élément n&apos;a pas de nom et est omis.</translation>
    </message>
    <message>
        <source>The element has no type (attribute type).</source>
        <translation>L&apos;élément n&apos;a pas de type (attribut type).</translation>
    </message>
    <message>
        <source>The elements are nested too deeply.</source>
        <translation>Les éléments sont imbriqués trop profondément.</translation>
    </message>
    <message>
        <source>The encoding is declared as &quot;%1&quot;, but the file holds single bytes; it is read as UTF-8.</source>
        <translation>Le codage déclaré est « %1 », mais le fichier contient des octets simples ; il est lu en UTF-8.</translation>
    </message>
    <message>
        <source>The encoding is written &quot;%1&quot; instead of &quot;ISO-8859-1&quot;.</source>
        <translation>Le codage est écrit « %1 » au lieu de « ISO-8859-1 ».</translation>
    </message>
    <message>
        <source>The encoding is written &quot;%1&quot; instead of &quot;UTF-8&quot;; it is read as UTF-8.</source>
        <translation>Le codage est écrit « %1 » au lieu de « UTF-8 » ; le fichier est lu en UTF-8.</translation>
    </message>
    <message>
        <source>The entity &quot;%1&quot; is not declared.</source>
        <translation>L&apos;entité « %1 » n&apos;est pas déclarée.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be opened: %2.</source>
        <translation>Le fichier « %1 » ne peut pas être ouvert : %2.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; holds no certificate in PEM.</source>
        <translation>Le fichier « %1 » ne contient pas de certificat au format PEM.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; holds no private key in PEM.</source>
        <translation>Le fichier « %1 » ne contient pas de clé privée au format PEM.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; holds no revocation list in PEM.</source>
        <translation>Le fichier « %1 » ne contient pas de liste de révocation au format PEM.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; with %2 cannot be opened: %3.</source>
        <translation>Le fichier « %1 » (%2) ne peut pas être ouvert : %3.</translation>
    </message>
    <message>
        <source>The file became shorter while it was read.</source>
        <translation>Le fichier est devenu plus court pendant sa lecture.</translation>
    </message>
    <message>
        <source>The file cannot be read to its end.</source>
        <translation>Le fichier ne peut pas être lu jusqu&apos;à la fin.</translation>
    </message>
    <message>
        <source>The file declares an entity, which is not accepted.</source>
        <translation>Le fichier déclare une entité, ce qui n&apos;est pas accepté.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>Le fichier n&apos;existe pas.</translation>
    </message>
    <message>
        <source>The file ends before its root element is complete.</source>
        <translation>Le fichier se termine avant que son élément racine soit complet.</translation>
    </message>
    <message>
        <source>The file ends within a character.</source>
        <translation>Le fichier se termine au milieu d&apos;un caractère.</translation>
    </message>
    <message>
        <source>The file in the device may be incomplete: look at %1.</source>
        <translation>Le fichier dans l&apos;équipement peut être incomplet : regardez %1.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Le fichier est vide.</translation>
    </message>
    <message>
        <source>The file is in use.</source>
        <translation>Le fichier est en cours d&apos;utilisation.</translation>
    </message>
    <message>
        <source>The file is larger than %1 bytes.</source>
        <translation>Le fichier a plus de %1 octets.</translation>
    </message>
    <message>
        <source>The file is not well-formed XML: %1.</source>
        <translation>Le fichier n&apos;est pas du XML bien formé : %1.</translation>
    </message>
    <message>
        <source>The file name is ambiguous.</source>
        <translation>Le nom du fichier est ambigu.</translation>
    </message>
    <message>
        <source>The file refers to an external document type, which is not accepted.</source>
        <translation>Le fichier renvoie à un type de document externe, ce qui n&apos;est pas accepté.</translation>
    </message>
    <message>
        <source>The file&apos;s encoding is not the one declared, or it is not known.</source>
        <translation>Le codage du fichier n&apos;est pas celui qui est déclaré, ou il n&apos;est pas connu.</translation>
    </message>
    <message>
        <source>The header of a transport unit is longer than the packet.</source>
        <translation>L&apos;en-tête d&apos;une unité de transport est plus long que le paquet.</translation>
    </message>
    <message>
        <source>The import was cancelled.</source>
        <translation>L&apos;importation a été annulée.</translation>
    </message>
    <message>
        <source>The instance has no name and is left out.</source>
        <translation>L&apos;instance n&apos;a pas de nom et est omise.</translation>
    </message>
    <message>
        <source>The instance is given twice; the first is used.</source>
        <translation>L&apos;instance est indiquée deux fois ; la première est utilisée.</translation>
    </message>
    <message>
        <source>The issuer&apos;s certificate &quot;%1&quot;</source>
        <translation>Le certificat de l&apos;émetteur « %1 »</translation>
    </message>
    <message>
        <source>The length of an element is too large.</source>
        <translation>La longueur d&apos;un élément est trop grande.</translation>
    </message>
    <message>
        <source>The list cannot be continued after the given name.</source>
        <translation>La liste ne peut pas être continuée après le nom indiqué.</translation>
    </message>
    <message>
        <source>The literal &quot;%1&quot; begins or ends with a blank.</source>
        <translation>Le littéral « %1 » commence ou se termine par un espace.</translation>
    </message>
    <message>
        <source>The logical device has no LN0.</source>
        <translation>Le dispositif logique n&apos;a pas de LN0.</translation>
    </message>
    <message>
        <source>The logical device has no instance name (attribute inst).</source>
        <translation>Le dispositif logique n&apos;a pas de nom d&apos;instance (attribut inst).</translation>
    </message>
    <message>
        <source>The logical node has another setting group control; the first is used.</source>
        <translation>Le nœud logique a un autre contrôle de groupe de réglages ; le premier est utilisé.</translation>
    </message>
    <message>
        <source>The logical node has no class (attribute lnClass).</source>
        <translation>Le nœud logique n&apos;a pas de classe (attribut lnClass).</translation>
    </message>
    <message>
        <source>The logical node has no instance number (attribute inst).</source>
        <translation>Le nœud logique n&apos;a pas de numéro d&apos;instance (attribut inst).</translation>
    </message>
    <message>
        <source>The logical node has no type (attribute lnType).</source>
        <translation>Le nœud logique n&apos;a pas de type (attribut lnType).</translation>
    </message>
    <message>
        <source>The lowest version of TLS that is allowed is above the highest one.</source>
        <translation>La version minimale de TLS permise est supérieure à la version maximale.</translation>
    </message>
    <message>
        <source>The message ends within an element.</source>
        <translation>Le message se termine au milieu d&apos;un élément.</translation>
    </message>
    <message>
        <source>The message holds more elements than allowed.</source>
        <translation>Le message contient plus d&apos;éléments que permis.</translation>
    </message>
    <message>
        <source>The message is empty.</source>
        <translation>Le message est vide.</translation>
    </message>
    <message>
        <source>The message is longer than allowed.</source>
        <translation>Le message est plus long que permis.</translation>
    </message>
    <message>
        <source>The message is no MMS PDU.</source>
        <translation>Le message n&apos;est pas une PDU MMS.</translation>
    </message>
    <message>
        <source>The message size is too small for the device.</source>
        <translation>La taille des messages est trop petite pour l&apos;équipement.</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; cannot be resolved: %2.</source>
        <translation>Le nom « %1 » ne peut pas être résolu : %2.</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; was not resolved in time.</source>
        <translation>Le nom « %1 » n&apos;a pas été résolu à temps.</translation>
    </message>
    <message>
        <source>The name of the other application is not valid.</source>
        <translation>Le nom de l&apos;autre application n&apos;est pas valide.</translation>
    </message>
    <message>
        <source>The name space prefix &quot;%1&quot; is not declared; its elements are skipped.</source>
        <translation>Le préfixe d&apos;espace de noms « %1 » n&apos;est pas déclaré ; ses éléments sont ignorés.</translation>
    </message>
    <message>
        <source>The names</source>
        <translation>Les noms</translation>
    </message>
    <message>
        <source>The names of %1</source>
        <translation>Les noms de %1</translation>
    </message>
    <message>
        <source>The names of the data</source>
        <translation>Les noms des données</translation>
    </message>
    <message>
        <source>The names of the data of %1</source>
        <translation>Les noms des données de %1</translation>
    </message>
    <message>
        <source>The names of the data sets</source>
        <translation>Les noms des ensembles de données</translation>
    </message>
    <message>
        <source>The names of the data sets of %1</source>
        <translation>Les noms des ensembles de données de %1</translation>
    </message>
    <message>
        <source>The nesting level does not suit the device.</source>
        <translation>Le niveau d&apos;imbrication ne convient pas à l&apos;équipement.</translation>
    </message>
    <message>
        <source>The network connection broke during the TLS handshake: %1.</source>
        <translation>La connexion réseau a été interrompue pendant l&apos;établissement TLS : %1.</translation>
    </message>
    <message>
        <source>The network connection broke: %1.</source>
        <translation>La connexion réseau a été interrompue : %1.</translation>
    </message>
    <message>
        <source>The new file is in the device as %1.</source>
        <translation>Le nouveau fichier est dans l&apos;équipement sous le nom %1.</translation>
    </message>
    <message>
        <source>The number of instances is %1; %2 is used.</source>
        <translation>Le nombre d&apos;instances est %1 ; %2 est utilisé.</translation>
    </message>
    <message>
        <source>The number of outstanding calls does not suit the device.</source>
        <translation>Le nombre de requêtes en attente ne convient pas à l&apos;équipement.</translation>
    </message>
    <message>
        <source>The number of outstanding calls of the device does not suit it.</source>
        <translation>Le nombre de requêtes en attente de l&apos;équipement ne lui convient pas.</translation>
    </message>
    <message>
        <source>The number of setting groups is 0; 1 is used.</source>
        <translation>Le nombre de groupes de réglages est 0 ; 1 est utilisé.</translation>
    </message>
    <message>
        <source>The object cannot be accessed in this way.</source>
        <translation>L&apos;accès à l&apos;objet n&apos;est pas possible de cette manière.</translation>
    </message>
    <message>
        <source>The object cannot be accessed.</source>
        <translation>L&apos;accès à l&apos;objet n&apos;est pas possible.</translation>
    </message>
    <message>
        <source>The object does not exist.</source>
        <translation>L&apos;objet n&apos;existe pas.</translation>
    </message>
    <message>
        <source>The object is in a state that does not allow this.</source>
        <translation>L&apos;objet est dans un état qui ne le permet pas.</translation>
    </message>
    <message>
        <source>The object is no longer valid.</source>
        <translation>L&apos;objet n&apos;est plus valide.</translation>
    </message>
    <message>
        <source>The object is not available at the moment.</source>
        <translation>L&apos;objet n&apos;est pas disponible pour le moment.</translation>
    </message>
    <message>
        <source>The object is not defined.</source>
        <translation>L&apos;objet n&apos;est pas défini.</translation>
    </message>
    <message>
        <source>The old file had to be deleted before and is lost.</source>
        <translation>L&apos;ancien fichier a dû être supprimé auparavant et est perdu.</translation>
    </message>
    <message>
        <source>The old file is still there.</source>
        <translation>L&apos;ancien fichier est encore là.</translation>
    </message>
    <message>
        <source>The old file was deleted before.</source>
        <translation>L&apos;ancien fichier a été supprimé auparavant.</translation>
    </message>
    <message>
        <source>The options offered do not suit the device.</source>
        <translation>Les options proposées ne conviennent pas à l&apos;équipement.</translation>
    </message>
    <message>
        <source>The ordinal %1 is given twice; the first literal is used.</source>
        <translation>L&apos;ordinal %1 est indiqué deux fois ; le premier littéral est utilisé.</translation>
    </message>
    <message>
        <source>The originator identification has %1 octets; at most %2 are allowed.</source>
        <translation>L&apos;identification de l&apos;émetteur a %1 octets ; %2 au plus sont permis.</translation>
    </message>
    <message>
        <source>The other application cannot be reached.</source>
        <translation>L&apos;autre application est injoignable.</translation>
    </message>
    <message>
        <source>The other application does not support the context.</source>
        <translation>L&apos;autre application ne prend pas en charge le contexte.</translation>
    </message>
    <message>
        <source>The part %1 of the command cannot be %2.</source>
        <translation>La partie %1 de la commande ne peut pas valoir %2.</translation>
    </message>
    <message>
        <source>The peer %1 has %2 connections that are no associations yet, which is the limit.</source>
        <translation>Le système distant %1 a %2 connexions qui ne sont pas encore des associations ; c&apos;est la limite.</translation>
    </message>
    <message>
        <source>The peer aborted the association.</source>
        <translation>Le système distant a interrompu l&apos;association.</translation>
    </message>
    <message>
        <source>The peer aborted the session.</source>
        <translation>Le système distant a interrompu la session.</translation>
    </message>
    <message>
        <source>The peer accepted the session with an unsuitable version.</source>
        <translation>Le système distant a accepté la session avec une version qui ne convient pas.</translation>
    </message>
    <message>
        <source>The peer and this side have no cipher suite in common, or no certificate fits it.</source>
        <translation>Le système distant et ce côté n&apos;ont aucune suite cryptographique en commun, ou aucun certificat n&apos;y convient.</translation>
    </message>
    <message>
        <source>The peer and this side have no version of TLS in common.</source>
        <translation>Le système distant et ce côté n&apos;ont aucune version de TLS en commun.</translation>
    </message>
    <message>
        <source>The peer answered the initiate request with something else.</source>
        <translation>Le système distant a répondu autre chose à la requête initiate.</translation>
    </message>
    <message>
        <source>The peer answers for too many presentation contexts.</source>
        <translation>Le système distant répond pour trop de contextes de présentation.</translation>
    </message>
    <message>
        <source>The peer asked for a transport class other than 0.</source>
        <translation>Le système distant a demandé une classe de transport autre que 0.</translation>
    </message>
    <message>
        <source>The peer asked for an application context other than MMS.</source>
        <translation>Le système distant a demandé un contexte d&apos;application autre que MMS.</translation>
    </message>
    <message>
        <source>The peer asked for an unknown presentation selector.</source>
        <translation>Le système distant a demandé un sélecteur de présentation inconnu.</translation>
    </message>
    <message>
        <source>The peer asked for an unknown transport selector.</source>
        <translation>Le système distant a demandé un sélecteur de transport inconnu.</translation>
    </message>
    <message>
        <source>The peer asks for a certificate, and this side has none that it trusts.</source>
        <translation>Le système distant demande un certificat auquel il fait confiance, et ce côté n&apos;en a aucun.</translation>
    </message>
    <message>
        <source>The peer asks for a presentation mode other than normal mode.</source>
        <translation>Le système distant demande un mode de présentation autre que le mode normal.</translation>
    </message>
    <message>
        <source>The peer asks for too many presentation contexts.</source>
        <translation>Le système distant demande trop de contextes de présentation.</translation>
    </message>
    <message>
        <source>The peer cannot read the presentation user data.</source>
        <translation>Le système distant ne peut pas lire les données utilisateur de présentation.</translation>
    </message>
    <message>
        <source>The peer closed the network connection instead of a TLS handshake.</source>
        <translation>Le système distant a fermé la connexion réseau au lieu d&apos;établir TLS.</translation>
    </message>
    <message>
        <source>The peer closed the network connection instead of a TLS handshake; it may not speak TLS on this port.</source>
        <translation>Le système distant a fermé la connexion réseau au lieu d&apos;établir TLS ; il n&apos;utilise peut-être pas TLS sur ce port.</translation>
    </message>
    <message>
        <source>The peer closed the network connection.</source>
        <translation>Le système distant a fermé la connexion réseau.</translation>
    </message>
    <message>
        <source>The peer confirmed a transport class other than 0.</source>
        <translation>Le système distant a confirmé une classe de transport autre que 0.</translation>
    </message>
    <message>
        <source>The peer cuts session data into segments, which was not agreed.</source>
        <translation>Le système distant découpe les données de session en segments, ce qui n&apos;a pas été convenu.</translation>
    </message>
    <message>
        <source>The peer did not accept the presentation contexts of ACSE and MMS.</source>
        <translation>Le système distant n&apos;a pas accepté les contextes de présentation d&apos;ACSE et de MMS.</translation>
    </message>
    <message>
        <source>The peer did not answer in time.</source>
        <translation>Le système distant n&apos;a pas répondu à temps.</translation>
    </message>
    <message>
        <source>The peer did not answer the release in time.</source>
        <translation>Le système distant n&apos;a pas répondu à temps à la libération.</translation>
    </message>
    <message>
        <source>The peer did not ask for the presentation contexts of ACSE and MMS.</source>
        <translation>Le système distant n&apos;a pas demandé les contextes de présentation d&apos;ACSE et de MMS.</translation>
    </message>
    <message>
        <source>The peer did not complete the TLS handshake in time.</source>
        <translation>Le système distant n&apos;a pas terminé à temps l&apos;établissement TLS.</translation>
    </message>
    <message>
        <source>The peer did not complete the association in time.</source>
        <translation>Le système distant n&apos;a pas terminé à temps l&apos;établissement de l&apos;association.</translation>
    </message>
    <message>
        <source>The peer does not conclude the association: %1.</source>
        <translation>Le système distant ne clôt pas l&apos;association : %1.</translation>
    </message>
    <message>
        <source>The peer does not know the presentation selector.</source>
        <translation>Le système distant ne connaît pas le sélecteur de présentation.</translation>
    </message>
    <message>
        <source>The peer does not know the session selector.</source>
        <translation>Le système distant ne connaît pas le sélecteur de session.</translation>
    </message>
    <message>
        <source>The peer does not know the transport selector.</source>
        <translation>Le système distant ne connaît pas le sélecteur de transport.</translation>
    </message>
    <message>
        <source>The peer does not read what it is sent.</source>
        <translation>Le système distant ne lit pas ce qui lui est envoyé.</translation>
    </message>
    <message>
        <source>The peer does not speak ISO transport over TCP: a packet begins with %1 instead of 3.</source>
        <translation>Le système distant n&apos;utilise pas le transport ISO sur TCP : un paquet commence par %1 au lieu de 3.</translation>
    </message>
    <message>
        <source>The peer does not speak TLS, which is required here.</source>
        <translation>Le système distant n&apos;utilise pas TLS, qui est exigé ici.</translation>
    </message>
    <message>
        <source>The peer does not speak TLS.</source>
        <translation>Le système distant n&apos;utilise pas TLS.</translation>
    </message>
    <message>
        <source>The peer does not support the default context.</source>
        <translation>Le système distant ne prend pas en charge le contexte par défaut.</translation>
    </message>
    <message>
        <source>The peer does not support the proposed version of the session protocol.</source>
        <translation>Le système distant ne prend pas en charge la version proposée du protocole de session.</translation>
    </message>
    <message>
        <source>The peer does not support the version of the presentation protocol.</source>
        <translation>Le système distant ne prend pas en charge la version du protocole de présentation.</translation>
    </message>
    <message>
        <source>The peer ended the transport connection normally.</source>
        <translation>Le système distant a mis fin normalement à la connexion de transport.</translation>
    </message>
    <message>
        <source>The peer ended the transport connection with reason %1.</source>
        <translation>Le système distant a mis fin à la connexion de transport avec la raison %1.</translation>
    </message>
    <message>
        <source>The peer ended the transport connection without a reason.</source>
        <translation>Le système distant a mis fin à la connexion de transport sans donner de raison.</translation>
    </message>
    <message>
        <source>The peer has shown no certificate.</source>
        <translation>Le système distant n&apos;a pas présenté de certificat.</translation>
    </message>
    <message>
        <source>The peer knows the certificate of this side and denies it access.</source>
        <translation>Le système distant connaît le certificat de ce côté et lui refuse l&apos;accès.</translation>
    </message>
    <message>
        <source>The peer refuses a parameter code of the transport unit.</source>
        <translation>Le système distant refuse un code de paramètre de l&apos;unité de transport.</translation>
    </message>
    <message>
        <source>The peer refuses a parameter value of the transport unit.</source>
        <translation>Le système distant refuse une valeur de paramètre de l&apos;unité de transport.</translation>
    </message>
    <message>
        <source>The peer refuses a transport unit without a reason.</source>
        <translation>Le système distant refuse une unité de transport sans donner de raison.</translation>
    </message>
    <message>
        <source>The peer refuses the association for the time being.</source>
        <translation>Le système distant refuse l&apos;association pour le moment.</translation>
    </message>
    <message>
        <source>The peer refuses the association for the time being: %1.</source>
        <translation>Le système distant refuse l&apos;association pour le moment : %1.</translation>
    </message>
    <message>
        <source>The peer refuses the association.</source>
        <translation>Le système distant refuse l&apos;association.</translation>
    </message>
    <message>
        <source>The peer refuses the association: %1.</source>
        <translation>Le système distant refuse l&apos;association : %1.</translation>
    </message>
    <message>
        <source>The peer refuses the certificate of this side because it does not trust its issuer.</source>
        <translation>Le système distant refuse le certificat de ce côté, car il ne fait pas confiance à son émetteur.</translation>
    </message>
    <message>
        <source>The peer refuses the certificate of this side because it has been revoked.</source>
        <translation>Le système distant refuse le certificat de ce côté, car ce certificat a été révoqué.</translation>
    </message>
    <message>
        <source>The peer refuses the certificate of this side because it has expired or is not valid yet.</source>
        <translation>Le système distant refuse le certificat de ce côté, car ce certificat a expiré ou n&apos;est pas encore valide.</translation>
    </message>
    <message>
        <source>The peer refuses the certificate of this side because it is not of a kind that it takes.</source>
        <translation>Le système distant refuse le certificat de ce côté, car il n&apos;accepte pas ce type de certificat.</translation>
    </message>
    <message>
        <source>The peer refuses the certificate of this side.</source>
        <translation>Le système distant refuse le certificat de ce côté.</translation>
    </message>
    <message>
        <source>The peer refuses the handshake because a signature of this side does not fit.</source>
        <translation>Le système distant refuse l&apos;établissement TLS, car une signature de ce côté ne convient pas.</translation>
    </message>
    <message>
        <source>The peer refuses the initiate request.</source>
        <translation>Le système distant refuse la requête initiate.</translation>
    </message>
    <message>
        <source>The peer refuses the presentation connection with reason %1.</source>
        <translation>Le système distant refuse la connexion de présentation avec la raison %1.</translation>
    </message>
    <message>
        <source>The peer refuses the presentation connection.</source>
        <translation>Le système distant refuse la connexion de présentation.</translation>
    </message>
    <message>
        <source>The peer refuses the request on this network connection.</source>
        <translation>Le système distant refuse la demande sur cette connexion réseau.</translation>
    </message>
    <message>
        <source>The peer refuses the session because it is busy.</source>
        <translation>Le système distant refuse la session, car il est occupé.</translation>
    </message>
    <message>
        <source>The peer refuses the session with reason %1.</source>
        <translation>Le système distant refuse la session avec la raison %1.</translation>
    </message>
    <message>
        <source>The peer refuses the session without a reason.</source>
        <translation>Le système distant refuse la session sans donner de raison.</translation>
    </message>
    <message>
        <source>The peer refuses the session.</source>
        <translation>Le système distant refuse la session.</translation>
    </message>
    <message>
        <source>The peer refuses the type of the transport unit.</source>
        <translation>Le système distant refuse le type de l&apos;unité de transport.</translation>
    </message>
    <message>
        <source>The peer refuses to end the session.</source>
        <translation>Le système distant refuse de terminer la session.</translation>
    </message>
    <message>
        <source>The peer reports an error in the transport protocol.</source>
        <translation>Le système distant signale une erreur dans le protocole de transport.</translation>
    </message>
    <message>
        <source>The peer reports an invalid header or parameter length.</source>
        <translation>Le système distant signale une longueur d&apos;en-tête ou de paramètre non valide.</translation>
    </message>
    <message>
        <source>The peer said nothing for %1 ms.</source>
        <translation>Le système distant n&apos;a rien envoyé pendant %1 ms.</translation>
    </message>
    <message>
        <source>The peer saw a duplicate transport reference.</source>
        <translation>Le système distant a constaté une référence de transport en double.</translation>
    </message>
    <message>
        <source>The peer saw mismatched transport references.</source>
        <translation>Le système distant a constaté des références de transport qui ne concordent pas.</translation>
    </message>
    <message>
        <source>The peer sent a message of more than %1 octets.</source>
        <translation>Le système distant a envoyé un message de plus de %1 octets.</translation>
    </message>
    <message>
        <source>The peer sent a transport unit that does not belong here.</source>
        <translation>Le système distant a envoyé une unité de transport qui n&apos;a pas sa place ici.</translation>
    </message>
    <message>
        <source>The peer sent a unit of association control that does not belong here.</source>
        <translation>Le système distant a envoyé une unité du contrôle d&apos;association qui n&apos;a pas sa place ici.</translation>
    </message>
    <message>
        <source>The peer sent a wrong password.</source>
        <translation>Le système distant a envoyé un mot de passe erroné.</translation>
    </message>
    <message>
        <source>The peer sent no password.</source>
        <translation>Le système distant n&apos;a pas envoyé de mot de passe.</translation>
    </message>
    <message>
        <source>The peer sent the session unit &quot;%1&quot;, which does not belong here.</source>
        <translation>Le système distant a envoyé l&apos;unité de session « %1 », qui n&apos;a pas sa place ici.</translation>
    </message>
    <message>
        <source>The peer speaks TLS, which is not configured here.</source>
        <translation>Le système distant utilise TLS, qui n&apos;est pas configuré ici.</translation>
    </message>
    <message>
        <source>The peer&apos;s PDU size of %1 octets is too small.</source>
        <translation>La taille de PDU du système distant, %1 octets, est trop petite.</translation>
    </message>
    <message>
        <source>The peer&apos;s association control aborted the association.</source>
        <translation>Le contrôle d&apos;association du système distant a interrompu l&apos;association.</translation>
    </message>
    <message>
        <source>The peer&apos;s certificate &quot;%1&quot;</source>
        <translation>Le certificat du système distant « %1 »</translation>
    </message>
    <message>
        <source>The peer&apos;s certificate &quot;%1&quot; is not one of those that are pinned; its fingerprint is %2.</source>
        <translation>Le certificat du système distant « %1 » n&apos;est pas l&apos;un de ceux dont l&apos;empreinte est enregistrée ; son empreinte est %2.</translation>
    </message>
    <message>
        <source>The peer&apos;s initiate answer cannot be read: %1.</source>
        <translation>La réponse initiate du système distant ne peut pas être lue : %1.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer aborted without a reason.</source>
        <translation>La couche présentation du système distant a interrompu la connexion sans donner de raison.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer aborted.</source>
        <translation>La couche présentation du système distant a interrompu la connexion.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer did not expect a parameter and aborted.</source>
        <translation>La couche présentation du système distant n&apos;attendait pas un paramètre et a interrompu la connexion.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer did not expect a session service and aborted.</source>
        <translation>La couche présentation du système distant n&apos;attendait pas un service de session et a interrompu la connexion.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer did not expect a unit and aborted.</source>
        <translation>La couche présentation du système distant n&apos;attendait pas une unité et a interrompu la connexion.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer does not recognise a parameter and aborted.</source>
        <translation>La couche présentation du système distant ne reconnaît pas un paramètre et a interrompu la connexion.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer does not recognise a unit and aborted.</source>
        <translation>La couche présentation du système distant ne reconnaît pas une unité et a interrompu la connexion.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer found an invalid parameter value and aborted.</source>
        <translation>La couche présentation du système distant a trouvé une valeur de paramètre non valide et a interrompu la connexion.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer has reached a limit of its own.</source>
        <translation>La couche présentation du système distant a atteint une limite qui lui est propre.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer is congested.</source>
        <translation>La couche présentation du système distant est saturée.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer refuses the connection without a reason.</source>
        <translation>La couche présentation du système distant refuse la connexion sans donner de raison.</translation>
    </message>
    <message>
        <source>The peer&apos;s session layer aborted the session.</source>
        <translation>La couche session du système distant a interrompu la session.</translation>
    </message>
    <message>
        <source>The peer&apos;s session layer is congested.</source>
        <translation>La couche session du système distant est saturée.</translation>
    </message>
    <message>
        <source>The peer&apos;s session layer refuses the session because of a restriction of its own.</source>
        <translation>La couche session du système distant refuse la session à cause d&apos;une restriction qui lui est propre.</translation>
    </message>
    <message>
        <source>The peer&apos;s session layer refuses the session.</source>
        <translation>La couche session du système distant refuse la session.</translation>
    </message>
    <message>
        <source>The peer&apos;s session layer reports an error in the protocol and aborted the session.</source>
        <translation>La couche session du système distant signale une erreur de protocole et a interrompu la session.</translation>
    </message>
    <message>
        <source>The peer&apos;s session request cannot be accepted.</source>
        <translation>La demande de session du système distant ne peut pas être acceptée.</translation>
    </message>
    <message>
        <source>The peer&apos;s transport layer is congested.</source>
        <translation>La couche transport du système distant est saturée.</translation>
    </message>
    <message>
        <source>The peer&apos;s transport references have overflowed.</source>
        <translation>Les références de transport du système distant ont débordé.</translation>
    </message>
    <message>
        <source>The peer&apos;s transport selector is congested.</source>
        <translation>Le sélecteur de transport du système distant est saturé.</translation>
    </message>
    <message>
        <source>The position is not within the file.</source>
        <translation>La position n&apos;est pas dans le fichier.</translation>
    </message>
    <message>
        <source>The private key in the file &quot;%1&quot; cannot be used (%2).</source>
        <translation>La clé privée du fichier « %1 » ne peut pas être utilisée (%2).</translation>
    </message>
    <message>
        <source>The private key in the file &quot;%1&quot; does not fit the certificate in the file &quot;%2&quot;.</source>
        <translation>La clé privée du fichier « %1 » ne correspond pas au certificat du fichier « %2 ».</translation>
    </message>
    <message>
        <source>The private key in the file &quot;%1&quot; does not open with the password that is given.</source>
        <translation>La clé privée du fichier « %1 » ne s&apos;ouvre pas avec le mot de passe indiqué.</translation>
    </message>
    <message>
        <source>The private key in the file &quot;%1&quot; is encrypted, and no password is given.</source>
        <translation>La clé privée du fichier « %1 » est chiffrée, et aucun mot de passe n&apos;est indiqué.</translation>
    </message>
    <message>
        <source>The report ends before its %1.</source>
        <translation>Le rapport se termine avant son champ %1.</translation>
    </message>
    <message>
        <source>The report has no value for its %1: %2.</source>
        <translation>Le rapport n&apos;a pas de valeur pour son champ %1 : %2.</translation>
    </message>
    <message>
        <source>The report says that it brings %1 members, which are %2 values, but it has %3.</source>
        <translation>Le rapport annonce %1 membres, soit %2 valeurs, mais il en a %3.</translation>
    </message>
    <message>
        <source>The report&apos;s %1 is neither true nor false.</source>
        <translation>Le champ %1 du rapport n&apos;est ni vrai ni faux.</translation>
    </message>
    <message>
        <source>The report&apos;s %1 is not a binary time.</source>
        <translation>Le champ %1 du rapport n&apos;est pas un temps binaire.</translation>
    </message>
    <message>
        <source>The report&apos;s %1 is not a bit string.</source>
        <translation>Le champ %1 du rapport n&apos;est pas une chaîne de bits.</translation>
    </message>
    <message>
        <source>The report&apos;s %1 is not a number of 32 bits without sign.</source>
        <translation>Le champ %1 du rapport n&apos;est pas un nombre de 32 bits sans signe.</translation>
    </message>
    <message>
        <source>The report&apos;s %1 is not a string of octets.</source>
        <translation>Le champ %1 du rapport n&apos;est pas une chaîne d&apos;octets.</translation>
    </message>
    <message>
        <source>The report&apos;s %1 is not a text.</source>
        <translation>Le champ %1 du rapport n&apos;est pas un texte.</translation>
    </message>
    <message>
        <source>The request is longer than the negotiated PDU size of %1 octets.</source>
        <translation>La requête est plus longue que la taille de PDU négociée de %1 octets.</translation>
    </message>
    <message>
        <source>The request was not sent: it waited for a place behind calls that the peer has not answered.</source>
        <translation>La requête n&apos;a pas été envoyée : elle attendait une place derrière des requêtes auxquelles le système distant n&apos;a pas répondu.</translation>
    </message>
    <message>
        <source>The revocation list in the file &quot;%1&quot; cannot be used (%2).</source>
        <translation>La liste de révocation du fichier « %1 » ne peut pas être utilisée (%2).</translation>
    </message>
    <message>
        <source>The root element is in no name space; it should be in &quot;%1&quot;.</source>
        <translation>L&apos;élément racine n&apos;est dans aucun espace de noms ; il devrait être dans « %1 ».</translation>
    </message>
    <message>
        <source>The root element is in the name space &quot;%1&quot; instead of &quot;%2&quot;.</source>
        <translation>L&apos;élément racine est dans l&apos;espace de noms « %1 » au lieu de « %2 ».</translation>
    </message>
    <message>
        <source>The server was stopped.</source>
        <translation>Le serveur a été arrêté.</translation>
    </message>
    <message>
        <source>The service was called out of sequence.</source>
        <translation>Le service a été appelé hors séquence.</translation>
    </message>
    <message>
        <source>The services offered do not suit the device.</source>
        <translation>Les services proposés ne conviennent pas à l&apos;équipement.</translation>
    </message>
    <message>
        <source>The session parameter %1 has a wrong length.</source>
        <translation>Le paramètre de session %1 a une longueur incorrecte.</translation>
    </message>
    <message>
        <source>The size of transport units is not one of 128 to 8,192 octets.</source>
        <translation>La taille des unités de transport n&apos;est pas l&apos;une des tailles de 128 à 8 192 octets.</translation>
    </message>
    <message>
        <source>The state of the device does not allow this.</source>
        <translation>L&apos;état de l&apos;équipement ne le permet pas.</translation>
    </message>
    <message>
        <source>The transport classes of both sides do not match.</source>
        <translation>Les classes de transport des deux côtés ne concordent pas.</translation>
    </message>
    <message>
        <source>The transport unit &quot;%1&quot; is shorter than its fixed part.</source>
        <translation>L&apos;unité de transport « %1 » est plus courte que sa partie fixe.</translation>
    </message>
    <message>
        <source>The truth value is written &quot;%1&quot; instead of &quot;true&quot; or &quot;false&quot;.</source>
        <translation>La valeur logique est écrite « %1 » au lieu de « true » ou « false ».</translation>
    </message>
    <message>
        <source>The type is not supported.</source>
        <translation>Le type n&apos;est pas pris en charge.</translation>
    </message>
    <message>
        <source>The type of %1 cannot be read: %2.</source>
        <translation>Le type de %1 ne peut pas être lu : %2.</translation>
    </message>
    <message>
        <source>The types do not agree.</source>
        <translation>Les types ne concordent pas.</translation>
    </message>
    <message>
        <source>The value %1 does not fit the type %2 of the device.</source>
        <translation>La valeur %1 ne correspond pas au type %2 de l&apos;équipement.</translation>
    </message>
    <message>
        <source>The value &quot;%1&quot; differs in blanks or capitals from what is expected.</source>
        <translation>La valeur « %1 » diffère de ce qui est attendu par des espaces ou des majuscules.</translation>
    </message>
    <message>
        <source>The value has not the type of the object.</source>
        <translation>La valeur n&apos;a pas le type de l&apos;objet.</translation>
    </message>
    <message>
        <source>The value is empty, so the attribute has none.</source>
        <translation>La valeur est vide ; l&apos;attribut n&apos;en a donc pas.</translation>
    </message>
    <message>
        <source>The value is given by its number &quot;%1&quot; instead of its text.</source>
        <translation>La valeur est indiquée par son numéro « %1 » au lieu de son texte.</translation>
    </message>
    <message>
        <source>The value is not allowed for the object.</source>
        <translation>La valeur n&apos;est pas permise pour l&apos;objet.</translation>
    </message>
    <message>
        <source>The value of the control block does not match its type %1.</source>
        <translation>La valeur du bloc de contrôle ne correspond pas à son type %1.</translation>
    </message>
    <message>
        <source>There are %1 associations already, which is the limit.</source>
        <translation>Il y a déjà %1 associations ; c&apos;est la limite.</translation>
    </message>
    <message>
        <source>There is a problem with the other application.</source>
        <translation>Il y a un problème avec l&apos;autre application.</translation>
    </message>
    <message>
        <source>There is another IED of the name &quot;%1&quot;.</source>
        <translation>Il y a un autre IED du nom « %1 ».</translation>
    </message>
    <message>
        <source>There is another control block &quot;%1&quot;.</source>
        <translation>Il y a un autre bloc de contrôle « %1 ».</translation>
    </message>
    <message>
        <source>There is another data set &quot;%1&quot;.</source>
        <translation>Il y a un autre ensemble de données « %1 ».</translation>
    </message>
    <message>
        <source>There is another logical device &quot;%1&quot;.</source>
        <translation>Il y a un autre dispositif logique « %1 ».</translation>
    </message>
    <message>
        <source>There is another logical node &quot;%1&quot;.</source>
        <translation>Il y a un autre nœud logique « %1 ».</translation>
    </message>
    <message>
        <source>There is no &quot;%1&quot;</source>
        <translation>Il n&apos;y a pas de « %1 »</translation>
    </message>
    <message>
        <source>There is no association.</source>
        <translation>Il n&apos;y a pas d&apos;association.</translation>
    </message>
    <message>
        <source>There is no data set %1.</source>
        <translation>Il n&apos;y a pas d&apos;ensemble de données %1.</translation>
    </message>
    <message>
        <source>There is no functional constraint (attribute fc)</source>
        <translation>Il n&apos;y a pas de contrainte fonctionnelle (attribut fc)</translation>
    </message>
    <message>
        <source>There is no logical device &quot;%1&quot;</source>
        <translation>Il n&apos;y a pas de dispositif logique « %1 »</translation>
    </message>
    <message>
        <source>There is no logical node &quot;%1&quot; in &quot;%2&quot;</source>
        <translation>Il n&apos;y a pas de nœud logique « %1 » dans « %2 »</translation>
    </message>
    <message>
        <source>There is not enough memory to read the file.</source>
        <translation>Il n&apos;y a pas assez de mémoire pour lire le fichier.</translation>
    </message>
    <message>
        <source>There is not enough room for the file.</source>
        <translation>Il n&apos;y a pas assez de place pour le fichier.</translation>
    </message>
    <message>
        <source>There is nothing of functional constraint &quot;%1&quot; in &quot;%2&quot;</source>
        <translation>Il n&apos;y a rien de la contrainte fonctionnelle « %1 » dans « %2 »</translation>
    </message>
    <message>
        <source>This is no report control block: it has no RptEna.</source>
        <translation>Ce n&apos;est pas un bloc de contrôle de rapport : il n&apos;a pas de RptEna.</translation>
    </message>
    <message>
        <source>This is no setting group control block: NumOfSG or ActSG is missing.</source>
        <translation>Ce n&apos;est pas un bloc de contrôle de groupe de réglages : NumOfSG ou ActSG manque.</translation>
    </message>
    <message>
        <source>This is not a report but %1.</source>
        <translation>Ce n&apos;est pas un rapport, mais %1.</translation>
    </message>
    <message>
        <source>This is not an SCL file: its root element is &quot;%1&quot;.</source>
        <translation>Ce n&apos;est pas un fichier SCL : son élément racine est « %1 ».</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Trop de fichiers ouverts</translation>
    </message>
    <message>
        <source>User information is in a form that is not supported.</source>
        <translation>Les informations utilisateur ont une forme qui n&apos;est pas prise en charge.</translation>
    </message>
    <message>
        <source>What the peer sent cannot be read: %1.</source>
        <translation>Ce que le système distant a envoyé ne peut pas être lu : %1.</translation>
    </message>
    <message>
        <source>XML or text declaration not at start of entity</source>
        <translation>Déclaration XML ou de texte ailleurs qu&apos;au début de l&apos;entité</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not exist in type &quot;%2&quot;; what is given for it is left out.</source>
        <translation>« %1 » n&apos;existe pas dans le type « %2 » ; ce qui est indiqué pour cet élément est omis.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a value, but it is a structure.</source>
        <translation>« %1 » a une valeur, alors que c&apos;est une structure.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no element %2</source>
        <translation>« %1 » n&apos;a pas d&apos;élément %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no element %2; what is given for it is left out.</source>
        <translation>« %1 » n&apos;a pas d&apos;élément %2 ; ce qui est indiqué pour cet élément est omis.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a directory, not a file.</source>
        <translation>« %1 » est un répertoire, pas un fichier.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is an array, and no element is given</source>
        <translation>« %1 » est un tableau, et aucun élément n&apos;est indiqué</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is defined twice in its type; the first is used.</source>
        <translation>« %1 » est défini deux fois dans son type ; la première définition est utilisée.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither &quot;true&quot; nor &quot;false&quot;; %2 is used.</source>
        <translation>« %1 » n&apos;est ni « true » ni « false » ; %2 est utilisé.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a SHA-256 fingerprint of 64 hexadecimal digits.</source>
        <translation>« %1 » n&apos;est pas une empreinte SHA-256 de 64 chiffres hexadécimaux.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a basic type of the standard; values are kept as texts.</source>
        <translation>« %1 » n&apos;est pas un type de base de la norme ; les valeurs sont conservées comme textes.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a directory.</source>
        <translation>« %1 » n&apos;est pas un répertoire.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a functional constraint.</source>
        <translation>« %1 » n&apos;est pas une contrainte fonctionnelle.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a host name that a certificate can have.</source>
        <translation>« %1 » n&apos;est pas un nom d&apos;hôte qu&apos;un certificat peut avoir.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number of array elements; the element is taken as a single one.</source>
        <translation>« %1 » n&apos;est pas un nombre d&apos;éléments de tableau ; l&apos;élément est traité comme un élément simple.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number of milliseconds.</source>
        <translation>« %1 » n&apos;est pas un nombre de millisecondes.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a value of %2 &quot;%3&quot;; the attribute has no value.</source>
        <translation>« %1 » n&apos;est pas une valeur de %2 « %3 » ; l&apos;attribut n&apos;a pas de valeur.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a value of %2; %3 is used.</source>
        <translation>« %1 » n&apos;est pas une valeur de %2 ; %3 est utilisé.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a value of %2; the attribute has no value.</source>
        <translation>« %1 » n&apos;est pas une valeur de %2 ; l&apos;attribut n&apos;a pas de valeur.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a value of its type; the attribute has no value.</source>
        <translation>« %1 » n&apos;est pas une valeur de son type ; l&apos;attribut n&apos;a pas de valeur.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an address of a network interface.</source>
        <translation>« %1 » n&apos;est pas une adresse d&apos;une interface réseau.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an array</source>
        <translation>« %1 » n&apos;est pas un tableau</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an array; the element number is ignored.</source>
        <translation>« %1 » n&apos;est pas un tableau ; le numéro d&apos;élément est ignoré.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an ordinal; the literal is left out.</source>
        <translation>« %1 » n&apos;est pas un ordinal ; le littéral est omis.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the number of an array element.</source>
        <translation>« %1 » n&apos;est pas le numéro d&apos;un élément de tableau.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names an attribute, which takes a DAI.</source>
        <translation>« %1 » désigne un attribut, qui demande un DAI.</translation>
    </message>
    <message>
        <source>a certificate</source>
        <translation>un certificat</translation>
    </message>
    <message>
        <source>a command is being executed already</source>
        <translation>une commande est déjà en cours d&apos;exécution</translation>
    </message>
    <message>
        <source>a parameter is being changed</source>
        <translation>un paramètre est en cours de modification</translation>
    </message>
    <message>
        <source>a revocation list</source>
        <translation>une liste de révocation</translation>
    </message>
    <message>
        <source>additional cause %1</source>
        <translation>cause additionnelle %1</translation>
    </message>
    <message>
        <source>additional code %1</source>
        <translation>code additionnel %1</translation>
    </message>
    <message>
        <source>an authentication is required</source>
        <translation>une authentification est exigée</translation>
    </message>
    <message>
        <source>an authentication mechanism is required</source>
        <translation>un mécanisme d&apos;authentification est exigé</translation>
    </message>
    <message>
        <source>an authority</source>
        <translation>une autorité de certification</translation>
    </message>
    <message>
        <source>an unknown date</source>
        <translation>une date inconnue</translation>
    </message>
    <message>
        <source>another object of the domain is being controlled</source>
        <translation>un autre objet du domaine est en cours de commande</translation>
    </message>
    <message>
        <source>blocked because the switching authority lies elsewhere (local or remote)</source>
        <translation>blocage, car l&apos;autorité de commande se trouve ailleurs (local ou distance)</translation>
    </message>
    <message>
        <source>blocked by an event of the process</source>
        <translation>blocage par un événement du processus</translation>
    </message>
    <message>
        <source>blocked by interlocking</source>
        <translation>blocage par l&apos;interverrouillage</translation>
    </message>
    <message>
        <source>blocked by synchrocheck</source>
        <translation>blocage par le contrôle de synchronisme</translation>
    </message>
    <message>
        <source>blocked by the data object that blocks commands</source>
        <translation>blocage par l&apos;objet de données qui bloque les commandes</translation>
    </message>
    <message>
        <source>blocked by the health of the logical node</source>
        <translation>blocage par l&apos;état de santé du nœud logique</translation>
    </message>
    <message>
        <source>blocked by the mode of the logical node</source>
        <translation>blocage par le mode du nœud logique</translation>
    </message>
    <message>
        <source>control error %1</source>
        <translation>erreur de commande %1</translation>
    </message>
    <message>
        <source>duplicate attribute</source>
        <translation>attribut en double</translation>
    </message>
    <message>
        <source>ended because the position deviates from the command</source>
        <translation>arrêt, car la position s&apos;écarte de la commande</translation>
    </message>
    <message>
        <source>ended beyond the wanted position</source>
        <translation>arrêt au-delà de la position voulue</translation>
    </message>
    <message>
        <source>ended by a cancel</source>
        <translation>arrêt par une annulation</translation>
    </message>
    <message>
        <source>ended by a trip</source>
        <translation>arrêt par un déclenchement</translation>
    </message>
    <message>
        <source>ended by the loss of the connection with the client that issued it</source>
        <translation>arrêt par la perte de la connexion avec le client qui a émis la commande</translation>
    </message>
    <message>
        <source>error %1</source>
        <translation>erreur %1</translation>
    </message>
    <message>
        <source>it gives no reason; another client may have selected the object.</source>
        <translation>il ne donne pas de raison ; un autre client a peut-être sélectionné l&apos;objet.</translation>
    </message>
    <message>
        <source>it has no address</source>
        <translation>il n&apos;a pas d&apos;adresse</translation>
    </message>
    <message>
        <source>it is not in a logical device.</source>
        <translation>elle n&apos;est pas dans un dispositif logique.</translation>
    </message>
    <message>
        <source>it names more than one element of one array.</source>
        <translation>elle désigne plus d&apos;un élément d&apos;un même tableau.</translation>
    </message>
    <message>
        <source>it names several parts.</source>
        <translation>elle désigne plusieurs parties.</translation>
    </message>
    <message>
        <source>junk after document element</source>
        <translation>contenu superflu après l&apos;élément racine du document</translation>
    </message>
    <message>
        <source>locked by another client</source>
        <translation>verrouillage par un autre client</translation>
    </message>
    <message>
        <source>mismatched tag</source>
        <translation>balise non concordante</translation>
    </message>
    <message>
        <source>no cause</source>
        <translation>aucune cause</translation>
    </message>
    <message>
        <source>no error</source>
        <translation>aucune erreur</translation>
    </message>
    <message>
        <source>no reason given</source>
        <translation>aucune raison donnée</translation>
    </message>
    <message>
        <source>nobody answers who knows names</source>
        <translation>aucun serveur de noms ne répond</translation>
    </message>
    <message>
        <source>nobody knows it</source>
        <translation>personne ne le connaît</translation>
    </message>
    <message>
        <source>reason %1</source>
        <translation>raison %1</translation>
    </message>
    <message>
        <source>syntax error</source>
        <translation>erreur de syntaxe</translation>
    </message>
    <message>
        <source>the application context is not supported</source>
        <translation>le contexte d&apos;application n&apos;est pas pris en charge</translation>
    </message>
    <message>
        <source>the authentication failed</source>
        <translation>l&apos;authentification a échoué</translation>
    </message>
    <message>
        <source>the authentication mechanism is not recognised</source>
        <translation>le mécanisme d&apos;authentification n&apos;est pas reconnu</translation>
    </message>
    <message>
        <source>the called AE invocation identifier is not recognised</source>
        <translation>l&apos;identificateur d&apos;invocation AE appelé n&apos;est pas reconnu</translation>
    </message>
    <message>
        <source>the called AE qualifier is not recognised</source>
        <translation>le qualificateur AE appelé n&apos;est pas reconnu</translation>
    </message>
    <message>
        <source>the called AP invocation identifier is not recognised</source>
        <translation>l&apos;identificateur d&apos;invocation AP appelé n&apos;est pas reconnu</translation>
    </message>
    <message>
        <source>the called AP title is not recognised</source>
        <translation>le titre AP appelé n&apos;est pas reconnu</translation>
    </message>
    <message>
        <source>the calling AE invocation identifier is not recognised</source>
        <translation>l&apos;identificateur d&apos;invocation AE appelant n&apos;est pas reconnu</translation>
    </message>
    <message>
        <source>the calling AE qualifier is not recognised</source>
        <translation>le qualificateur AE appelant n&apos;est pas reconnu</translation>
    </message>
    <message>
        <source>the calling AP invocation identifier is not recognised</source>
        <translation>l&apos;identificateur d&apos;invocation AP appelant n&apos;est pas reconnu</translation>
    </message>
    <message>
        <source>the calling AP title is not recognised</source>
        <translation>le titre AP appelant n&apos;est pas reconnu</translation>
    </message>
    <message>
        <source>the client has no authority for it</source>
        <translation>le client n&apos;y est pas autorisé</translation>
    </message>
    <message>
        <source>the functional constraint is missing.</source>
        <translation>la contrainte fonctionnelle manque.</translation>
    </message>
    <message>
        <source>the name of the logical device is missing or wrong.</source>
        <translation>le nom du dispositif logique manque ou est incorrect.</translation>
    </message>
    <message>
        <source>the name of the logical node is missing or wrong.</source>
        <translation>le nom du nœud logique manque ou est incorrect.</translation>
    </message>
    <message>
        <source>the object is not selected</source>
        <translation>l&apos;objet n&apos;est pas sélectionné</translation>
    </message>
    <message>
        <source>the object is selected already</source>
        <translation>l&apos;objet est déjà sélectionné</translation>
    </message>
    <message>
        <source>the operator test failed</source>
        <translation>le contrôle de l&apos;opérateur a échoué</translation>
    </message>
    <message>
        <source>the own certificate</source>
        <translation>le certificat de ce côté</translation>
    </message>
    <message>
        <source>the parameters of the service contradict those of the selection</source>
        <translation>les paramètres du service contredisent ceux de la sélection</translation>
    </message>
    <message>
        <source>the position has been reached already</source>
        <translation>la position est déjà atteinte</translation>
    </message>
    <message>
        <source>the position is not valid</source>
        <translation>la position n&apos;est pas valide</translation>
    </message>
    <message>
        <source>the private key</source>
        <translation>la clé privée</translation>
    </message>
    <message>
        <source>the selection failed</source>
        <translation>la sélection a échoué</translation>
    </message>
    <message>
        <source>the service is not supported</source>
        <translation>le service n&apos;est pas pris en charge</translation>
    </message>
    <message>
        <source>the tap changer is at the end of its range</source>
        <translation>le changeur de prises est en fin de course</translation>
    </message>
    <message>
        <source>the time for it is over</source>
        <translation>le délai imparti est écoulé</translation>
    </message>
    <message>
        <source>the time-out test failed</source>
        <translation>le contrôle du délai d&apos;attente a échoué</translation>
    </message>
    <message>
        <source>there is no common version of association control</source>
        <translation>il n&apos;y a pas de version commune du contrôle d&apos;association</translation>
    </message>
    <message>
        <source>unclosed CDATA section</source>
        <translation>section CDATA non fermée</translation>
    </message>
    <message>
        <source>unclosed token</source>
        <translation>élément lexical non terminé</translation>
    </message>
    <message>
        <source>unknown cause</source>
        <translation>cause inconnue</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>erreur inconnue</translation>
    </message>
    <message>
        <source>%1: the value does not have the form of its type.</source>
        <translation>%1 : la valeur n&apos;a pas la forme de son type.</translation>
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
    <message>
        <source>&amp;Undo Remove</source>
        <translation>A&amp;nnuler le retrait</translation>
    </message>
    <message>
        <source>Ctrl+Z</source>
        <translation>Ctrl+Z</translation>
    </message>
    <message>
        <source>Remove Device</source>
        <translation>Retirer l&apos;équipement</translation>
    </message>
    <message>
        <source>Take %1 off the list?</source>
        <translation>Retirer %1 de la liste ?</translation>
    </message>
    <message>
        <source>Its connection ends, and windows that are open for it are no longer served.</source>
        <translation>Sa connexion prend fin, et les fenêtres ouvertes pour lui ne fonctionnent plus.</translation>
    </message>
    <message>
        <source>Windows that are open for it are no longer served.</source>
        <translation>Les fenêtres ouvertes pour lui ne fonctionnent plus.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Retirer</translation>
    </message>
    <message>
        <source>%1 was taken off the list; %2 puts it back.</source>
        <translation>%1 a été retiré de la liste ; %2 l&apos;y remet.</translation>
    </message>
    <message>
        <source>%1 was taken off the list; its file stays where it is, and %2 puts it back.</source>
        <translation>%1 a été retiré de la liste ; son fichier reste à sa place, et %2 remet l&apos;équipement dans la liste.</translation>
    </message>
    <message>
        <source>&amp;Undo Remove of %1</source>
        <translation>A&amp;nnuler le retrait de %1</translation>
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
    <name>ToolWindows</name>
    <message>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
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
        <source>The trace stayed empty.</source>
        <translation>La trace est restée vide.</translation>
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
    <name>WaitingCalls</name>
    <message>
        <source>Waiting for %1</source>
        <translation>En attente de %1</translation>
    </message>
    <message>
        <source>%1 has not answered yet (%2).</source>
        <translation>%1 n&apos;a pas encore répondu (%2).</translation>
    </message>
    <message>
        <source>Cancelling. What the device was asked before may still be done.</source>
        <translation>Annulation en cours. Ce qui a été demandé à l&apos;équipement auparavant peut encore être exécuté.</translation>
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
