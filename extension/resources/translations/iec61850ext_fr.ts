<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>ControlCo</name>
    <message>
        <source>Control</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Control Object</source>
        <translation>Objet commandé</translation>
    </message>
    <message>
        <source>Data Obj :</source>
        <translation>Objet de données :</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Current Value :</source>
        <translation>Valeur actuelle :</translation>
    </message>
    <message>
        <source>Current value</source>
        <translation>Valeur actuelle</translation>
    </message>
    <message>
        <source>Control Value :</source>
        <translation>Valeur de commande :</translation>
    </message>
    <message>
        <source>Control value</source>
        <translation>Valeur de commande</translation>
    </message>
    <message>
        <source>Test :</source>
        <translation>Test :</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Test</translation>
    </message>
    <message>
        <source>Category :</source>
        <translation>Catégorie :</translation>
    </message>
    <message>
        <source>Originator category</source>
        <translation>Catégorie de l&apos;émetteur</translation>
    </message>
    <message>
        <source>Check :</source>
        <translation>Vérification :</translation>
    </message>
    <message>
        <source>Check conditions</source>
        <translation>Conditions de vérification</translation>
    </message>
</context>
<context>
    <name>DatasetSelectWidget</name>
    <message>
        <source>Selete Datas</source>
        <translation>Sélection des données</translation>
    </message>
    <message>
        <source>DataSet Name : </source>
        <translation>Nom de l&apos;ensemble de données : </translation>
    </message>
    <message>
        <source>Data set name</source>
        <translation>Nom de l&apos;ensemble de données</translation>
    </message>
    <message>
        <source>Data set members</source>
        <translation>Membres de l&apos;ensemble de données</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>Échec</translation>
    </message>
    <message>
        <source>No data selected. can`t create dataset</source>
        <translation>Aucune donnée sélectionnée. L&apos;ensemble de données ne peut pas être créé.</translation>
    </message>
    <message>
        <source>Please input dataset name</source>
        <translation>Veuillez saisir un nom pour l&apos;ensemble de données.</translation>
    </message>
</context>
<context>
    <name>ExplanationTips</name>
    <message>
        <source>Data type:</source>
        <translation>Type de données :</translation>
    </message>
    <message>
        <source>Enumeration:</source>
        <translation>Énumération :</translation>
    </message>
    <message>
        <source>Functional constraint:</source>
        <translation>Contrainte fonctionnelle :</translation>
    </message>
    <message>
        <source>Presence:</source>
        <translation>Présence :</translation>
    </message>
    <message>
        <source>Transient:</source>
        <translation>Transitoire :</translation>
    </message>
    <message>
        <source>Values:</source>
        <translation>Valeurs :</translation>
    </message>
    <message>
        <source>conditional (%1)</source>
        <translation>conditionnel (%1)</translation>
    </message>
    <message>
        <source>mandatory</source>
        <translation>obligatoire</translation>
    </message>
    <message>
        <source>optional</source>
        <translation>facultatif</translation>
    </message>
    <message>
        <source>true only for a moment</source>
        <translation>vrai seulement un instant</translation>
    </message>
</context>
<context>
    <name>FailureReport</name>
    <message>
        <source>The whole text, %1 lines:</source>
        <translation>Le texte complet, %1 lignes :</translation>
    </message>
</context>
<context>
    <name>FileModel</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
</context>
<context>
    <name>FileServiceDialog</name>
    <message>
        <source>IED File Service</source>
        <translation>Service de fichiers de l&apos;IED</translation>
    </message>
    <message>
        <source>Server Directory : </source>
        <translation>Répertoire sur l&apos;IED : </translation>
    </message>
    <message>
        <source>Server directory</source>
        <translation>Répertoire sur l&apos;IED</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>IED Directory</source>
        <translation>Répertoire de l&apos;IED</translation>
    </message>
    <message>
        <source>IED directory</source>
        <translation>Répertoire de l&apos;IED</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Télécharger</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Upload File</source>
        <translation>Envoyer un fichier</translation>
    </message>
    <message>
        <source>Select File : </source>
        <translation>Fichier : </translation>
    </message>
    <message>
        <source>File to upload</source>
        <translation>Fichier à envoyer</translation>
    </message>
    <message>
        <source>Select file</source>
        <translation>Sélectionner un fichier</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Target File Name :</source>
        <translation>Nom sur l&apos;IED :</translation>
    </message>
    <message>
        <source>Target file name</source>
        <translation>Nom sur l&apos;IED</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>Envoyer</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>All Files(*.*)</source>
        <translation>Tous les fichiers(*.*)</translation>
    </message>
    <message>
        <source>Fail to Read File: %1 error:%2</source>
        <translation>Le fichier %1 n&apos;a pas pu être lu : %2</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Succès</translation>
    </message>
    <message>
        <source>Download Finished</source>
        <translation>Téléchargement terminé</translation>
    </message>
    <message>
        <source>Fail to Delete %1 %2</source>
        <translation>%1 n&apos;a pas pu être supprimé : %2</translation>
    </message>
    <message>
        <source>Delete Finished</source>
        <translation>Suppression terminée</translation>
    </message>
    <message>
        <source>Fail to Upload File: %1 error:%2</source>
        <translation>Le fichier %1 n&apos;a pas pu être envoyé : %2</translation>
    </message>
    <message>
        <source>Upload Finished</source>
        <translation>Envoi terminé</translation>
    </message>
    <message>
        <source>Fail to readDirectory: Cannot connect to driver</source>
        <translation>Le répertoire n&apos;a pas pu être lu : connexion au pilote impossible</translation>
    </message>
    <message>
        <source>Cannot connect to driver</source>
        <translation>Connexion au pilote impossible</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>Échec</translation>
    </message>
    <message>
        <source>Download File</source>
        <translation>Télécharger le fichier</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 existe déjà.
Voulez-vous le remplacer ?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2</source>
        <translation>« %1 » ne peut pas être écrit : %2</translation>
    </message>
</context>
<context>
    <name>IEC61850TaskExtention</name>
    <message>
        <source>IED Browser</source>
        <translation>Navigateur IED</translation>
    </message>
    <message>
        <source>IED File Service</source>
        <translation>Service de fichiers de l&apos;IED</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Interrompre</translation>
    </message>
    <message>
        <source>Report Control</source>
        <translation>Contrôle de rapport</translation>
    </message>
</context>
<context>
    <name>IEDModel</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>(Deletable)</source>
        <translation>(supprimable)</translation>
    </message>
</context>
<context>
    <name>IEDModelView</name>
    <message>
        <source>IED Browser</source>
        <translation>Navigateur IED</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Lire</translation>
    </message>
    <message>
        <source>Write...</source>
        <translation>Écrire...</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Sélectionner</translation>
    </message>
    <message>
        <source>Operate</source>
        <translation>Exécuter</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Expand All</source>
        <translation>Tout développer</translation>
    </message>
    <message>
        <source>Collapse All</source>
        <translation>Tout réduire</translation>
    </message>
    <message>
        <source>Open Report Control</source>
        <translation>Ouvrir le bloc de contrôle de rapport</translation>
    </message>
    <message>
        <source>Open Setting Group Control</source>
        <translation>Ouvrir le bloc de contrôle de groupe de réglages</translation>
    </message>
    <message>
        <source>Locate</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Create Persistent DataSet</source>
        <translation>Créer un ensemble de données persistant</translation>
    </message>
    <message>
        <source>Create Non-Persistent DataSet</source>
        <translation>Créer un ensemble de données non persistant</translation>
    </message>
    <message>
        <source>Delete DataSet</source>
        <translation>Supprimer l&apos;ensemble de données</translation>
    </message>
    <message>
        <source>GetDataSet List</source>
        <translation>Liste des ensembles de données</translation>
    </message>
    <message>
        <source>GetDataSet Directory</source>
        <translation>Répertoire de l&apos;ensemble de données</translation>
    </message>
    <message>
        <source>Get BRCB</source>
        <translation>Lire le bloc de rapport bufférisé (BRCB)</translation>
    </message>
    <message>
        <source>Get URCB</source>
        <translation>Lire le bloc de rapport non bufférisé (URCB)</translation>
    </message>
    <message>
        <source>Get SGCB</source>
        <translation>Lire le bloc de groupe de réglages (SGCB)</translation>
    </message>
    <message>
        <source>GetServer Directory</source>
        <translation>Répertoire du serveur</translation>
    </message>
    <message>
        <source>GetLogicalDevice Directory</source>
        <translation>Répertoire du dispositif logique</translation>
    </message>
    <message>
        <source>GetLogicalNode Directory</source>
        <translation>Répertoire du nœud logique</translation>
    </message>
    <message>
        <source>GetData Directory</source>
        <translation>Répertoire des données</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>Échec</translation>
    </message>
    <message>
        <source>Cannot connect to driver</source>
        <translation>Connexion au pilote impossible</translation>
    </message>
    <message>
        <source>The description of this device is not whole: the tree shows what could be read of it.</source>
        <translation>La description de cet équipement n&apos;est pas complète : l&apos;arborescence montre ce qui a pu en être lu.</translation>
    </message>
</context>
<context>
    <name>OfflineSGCB</name>
    <message>
        <source>OfflineSGCB</source>
        <translation>Groupes de réglages (hors ligne)</translation>
    </message>
    <message>
        <source>Num of Setting Group : </source>
        <translation>Nombre de groupes de réglages : </translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Active Group : </source>
        <translation>Groupe actif : </translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>PropertyDelegate</name>
    <message>
        <source>%1 &quot;%2&quot; keeps its value.</source>
        <translation>%1 « %2 » garde sa valeur.</translation>
    </message>
</context>
<context>
    <name>PropertyEditor</name>
    <message>
        <source>A whole number from %1 to %2 is needed.</source>
        <translation>Un nombre entier de %1 à %2 est attendu.</translation>
    </message>
    <message>
        <source>A number with a decimal point is needed, such as 0.25 or 1e-3.</source>
        <translation>Un nombre avec un point décimal est attendu, par exemple 0.25 ou 1e-3.</translation>
    </message>
    <message>
        <source>One character is needed.</source>
        <translation>Un seul caractère est attendu.</translation>
    </message>
    <message>
        <source>True</source>
        <translation>Vrai</translation>
    </message>
    <message>
        <source>False</source>
        <translation>Faux</translation>
    </message>
    <message>
        <source>The number is too large: the data type ends at %1.</source>
        <translation>Le nombre est trop grand : le type de données s&apos;arrête à %1.</translation>
    </message>
    <message>
        <source>The number is too small: in this data type it would become 0.</source>
        <translation>Le nombre est trop petit : dans ce type de données, il deviendrait 0.</translation>
    </message>
    <message>
        <source>Not all that was typed was taken. Press Enter again if %1 is meant.</source>
        <translation>Une partie de la saisie n&apos;a pas été prise en compte. Appuyez de nouveau sur Entrée si c&apos;est bien %1 que vous voulez.</translation>
    </message>
    <message>
        <source>The point in %1 is read as the decimal point. Press Enter again if this is meant.</source>
        <translation>Le point dans %1 est lu comme point décimal. Appuyez de nouveau sur Entrée si c&apos;est bien ce que vous voulez.</translation>
    </message>
</context>
<context>
    <name>QtTreePropertyBrowser</name>
    <message>
        <source>Properties</source>
        <translation>Propriétés</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Propriété</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
</context>
<context>
    <name>ReportControl</name>
    <message>
        <source>Report Control Block</source>
        <translation>Bloc de contrôle de rapport</translation>
    </message>
    <message>
        <source>Report Name : </source>
        <translation>Nom du rapport : </translation>
    </message>
    <message>
        <source>....</source>
        <translation>....</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Activer</translation>
    </message>
    <message>
        <source>PurgeBuf</source>
        <translation>PurgeBuf</translation>
    </message>
    <message>
        <source>GI</source>
        <translation>GI</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Report Id :</source>
        <translation>ID du rapport :</translation>
    </message>
    <message>
        <source>Change the report id</source>
        <translation>Modifier l&apos;ID du rapport</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Client: </source>
        <translation>Client : </translation>
    </message>
    <message>
        <source>DataSet :</source>
        <translation>Ensemble de données :</translation>
    </message>
    <message>
        <source>Data set</source>
        <translation>Ensemble de données</translation>
    </message>
    <message>
        <source>Change the data set</source>
        <translation>Modifier l&apos;ensemble de données</translation>
    </message>
    <message>
        <source>Trigger Option</source>
        <translation>Options de déclenchement</translation>
    </message>
    <message>
        <source>Data Change</source>
        <translation>Changement de donnée</translation>
    </message>
    <message>
        <source>Quality Change</source>
        <translation>Changement de qualité</translation>
    </message>
    <message>
        <source>Data Update</source>
        <translation>Mise à jour de donnée</translation>
    </message>
    <message>
        <source>Integrity </source>
        <translation>Intégrité </translation>
    </message>
    <message>
        <source>Change the trigger options</source>
        <translation>Modifier les options de déclenchement</translation>
    </message>
    <message>
        <source>Optional Items</source>
        <translation>Champs optionnels</translation>
    </message>
    <message>
        <source>Entry ID</source>
        <translation>Identifiant d&apos;entrée</translation>
    </message>
    <message>
        <source>Configuration Revision</source>
        <translation>Révision de configuration</translation>
    </message>
    <message>
        <source>Time Stamp</source>
        <translation>Horodatage</translation>
    </message>
    <message>
        <source>Data Reference</source>
        <translation>Référence des données</translation>
    </message>
    <message>
        <source>Buffer Overflow</source>
        <translation>Débordement du tampon</translation>
    </message>
    <message>
        <source>Data Set Name</source>
        <translation>Nom de l&apos;ensemble de données</translation>
    </message>
    <message>
        <source>Reason for Inclusion</source>
        <translation>Raison de l&apos;inclusion</translation>
    </message>
    <message>
        <source>Sub Sequence</source>
        <translation>Sous-séquence</translation>
    </message>
    <message>
        <source>Sequence Number</source>
        <translation>Numéro de séquence</translation>
    </message>
    <message>
        <source>Change the optional items</source>
        <translation>Modifier les champs optionnels</translation>
    </message>
    <message>
        <source>Etc</source>
        <translation>Divers</translation>
    </message>
    <message>
        <source>Integrity Period:</source>
        <translation>Période d&apos;intégrité :</translation>
    </message>
    <message>
        <source>msec</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>Change the integrity period</source>
        <translation>Modifier la période d&apos;intégrité</translation>
    </message>
    <message>
        <source>Buffer Time:</source>
        <translation>Temps de tampon :</translation>
    </message>
    <message>
        <source>Change the buffer time</source>
        <translation>Modifier le temps de tampon</translation>
    </message>
    <message>
        <source>Configuration Revision:</source>
        <translation>Révision de configuration :</translation>
    </message>
    <message>
        <source>Reserved</source>
        <translation>Réservé</translation>
    </message>
    <message>
        <source>Change the reservation</source>
        <translation>Modifier la réservation</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>Désactiver</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>Échec</translation>
    </message>
    <message>
        <source>Cannot connect to driver</source>
        <translation>Connexion au pilote impossible</translation>
    </message>
</context>
<context>
    <name>SGCBDialog</name>
    <message>
        <source>SGCB</source>
        <translation>Groupes de réglages (SGCB)</translation>
    </message>
    <message>
        <source>Name: </source>
        <translation>Nom : </translation>
    </message>
    <message>
        <source>Name of the setting group control block</source>
        <translation>Nom du bloc de contrôle de groupe de réglages</translation>
    </message>
    <message>
        <source>Select Group</source>
        <translation>Choix du groupe</translation>
    </message>
    <message>
        <source>Active Group:</source>
        <translation>Groupe actif :</translation>
    </message>
    <message>
        <source>Active group</source>
        <translation>Groupe actif</translation>
    </message>
    <message>
        <source>   Edit Group:</source>
        <translation>   Groupe à modifier :</translation>
    </message>
    <message>
        <source>Edit group</source>
        <translation>Groupe à modifier</translation>
    </message>
    <message>
        <source>Setting Value</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Execute</source>
        <translation>Exécuter</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>Échec</translation>
    </message>
    <message>
        <source>Unsupported Type</source>
        <translation>Type non pris en charge</translation>
    </message>
    <message>
        <source>Cannot connect to driver</source>
        <translation>Connexion au pilote impossible</translation>
    </message>
</context>
<context>
    <name>SelectFCDialog</name>
    <message>
        <source>GetAllDataValues</source>
        <translation>Lire toutes les valeurs</translation>
    </message>
    <message>
        <source>Select FC : </source>
        <translation>Contrainte fonctionnelle : </translation>
    </message>
    <message>
        <source>Functional constraint</source>
        <translation>Contrainte fonctionnelle</translation>
    </message>
</context>
<context>
    <name>TreeFinder</name>
    <message>
        <source>Not found</source>
        <translation>Introuvable</translation>
    </message>
    <message>
        <source>Find by name or reference</source>
        <translation>Rechercher par nom ou référence</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
</context>
</TS>
