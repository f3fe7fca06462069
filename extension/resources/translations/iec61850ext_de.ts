<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>ControlCo</name>
    <message>
        <source>Control</source>
        <translation>Steuern</translation>
    </message>
    <message>
        <source>Control Object</source>
        <translation>Steuerobjekt</translation>
    </message>
    <message>
        <source>Data Obj :</source>
        <translation>Datenobjekt:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Current Value :</source>
        <translation>Aktueller Wert:</translation>
    </message>
    <message>
        <source>Current value</source>
        <translation>Aktueller Wert</translation>
    </message>
    <message>
        <source>Control Value :</source>
        <translation>Stellwert:</translation>
    </message>
    <message>
        <source>Control value</source>
        <translation>Stellwert</translation>
    </message>
    <message>
        <source>Test :</source>
        <translation>Test:</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Test</translation>
    </message>
    <message>
        <source>Category :</source>
        <translation>Kategorie:</translation>
    </message>
    <message>
        <source>Originator category</source>
        <translation>Kategorie des Auslösers</translation>
    </message>
    <message>
        <source>Check :</source>
        <translation>Prüfung:</translation>
    </message>
    <message>
        <source>Check conditions</source>
        <translation>Prüfbedingungen</translation>
    </message>
</context>
<context>
    <name>DatasetSelectWidget</name>
    <message>
        <source>Selete Datas</source>
        <translation>Daten auswählen</translation>
    </message>
    <message>
        <source>DataSet Name : </source>
        <translation>Name des Datensatzes: </translation>
    </message>
    <message>
        <source>Data set name</source>
        <translation>Name des Datensatzes</translation>
    </message>
    <message>
        <source>Data set members</source>
        <translation>Mitglieder des Datensatzes</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>No data selected. can`t create dataset</source>
        <translation>Keine Daten ausgewählt. Der Datensatz kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>Please input dataset name</source>
        <translation>Bitte einen Namen für den Datensatz eingeben.</translation>
    </message>
</context>
<context>
    <name>ExplanationTips</name>
    <message>
        <source>Data type:</source>
        <translation>Datentyp:</translation>
    </message>
    <message>
        <source>Enumeration:</source>
        <translation>Aufzählung:</translation>
    </message>
    <message>
        <source>Functional constraint:</source>
        <translation>Functional Constraint:</translation>
    </message>
    <message>
        <source>Presence:</source>
        <translation>Vorhandensein:</translation>
    </message>
    <message>
        <source>Transient:</source>
        <translation>Transient:</translation>
    </message>
    <message>
        <source>Values:</source>
        <translation>Werte:</translation>
    </message>
    <message>
        <source>conditional (%1)</source>
        <translation>bedingt (%1)</translation>
    </message>
    <message>
        <source>mandatory</source>
        <translation>obligatorisch</translation>
    </message>
    <message>
        <source>optional</source>
        <translation>optional</translation>
    </message>
    <message>
        <source>true only for a moment</source>
        <translation>nur für einen Augenblick wahr</translation>
    </message>
</context>
<context>
    <name>FailureReport</name>
    <message>
        <source>The whole text, %1 lines:</source>
        <translation>Der ganze Text, %1 Zeilen:</translation>
    </message>
</context>
<context>
    <name>FileModel</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
</context>
<context>
    <name>FileServiceDialog</name>
    <message>
        <source>IED File Service</source>
        <translation>IED-Dateidienst</translation>
    </message>
    <message>
        <source>Server Directory : </source>
        <translation>Verzeichnis auf dem IED: </translation>
    </message>
    <message>
        <source>Server directory</source>
        <translation>Verzeichnis auf dem IED</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>IED Directory</source>
        <translation>IED-Verzeichnis</translation>
    </message>
    <message>
        <source>IED directory</source>
        <translation>IED-Verzeichnis</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Herunterladen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Upload File</source>
        <translation>Datei hochladen</translation>
    </message>
    <message>
        <source>Select File : </source>
        <translation>Datei: </translation>
    </message>
    <message>
        <source>File to upload</source>
        <translation>Hochzuladende Datei</translation>
    </message>
    <message>
        <source>Select file</source>
        <translation>Datei auswählen</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Target File Name :</source>
        <translation>Name auf dem IED:</translation>
    </message>
    <message>
        <source>Target file name</source>
        <translation>Name auf dem IED</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>Hochladen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>All Files(*.*)</source>
        <translation>Alle Dateien(*.*)</translation>
    </message>
    <message>
        <source>Fail to Read File: %1 error:%2</source>
        <translation>Die Datei %1 konnte nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Erfolg</translation>
    </message>
    <message>
        <source>Download Finished</source>
        <translation>Herunterladen beendet</translation>
    </message>
    <message>
        <source>Fail to Delete %1 %2</source>
        <translation>%1 konnte nicht gelöscht werden: %2</translation>
    </message>
    <message>
        <source>Delete Finished</source>
        <translation>Löschen beendet</translation>
    </message>
    <message>
        <source>Fail to Upload File: %1 error:%2</source>
        <translation>Die Datei %1 konnte nicht hochgeladen werden: %2</translation>
    </message>
    <message>
        <source>Upload Finished</source>
        <translation>Hochladen beendet</translation>
    </message>
    <message>
        <source>Fail to readDirectory: Cannot connect to driver</source>
        <translation>Das Verzeichnis konnte nicht gelesen werden: keine Verbindung zum Treiber</translation>
    </message>
    <message>
        <source>Cannot connect to driver</source>
        <translation>Keine Verbindung zum Treiber</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Download File</source>
        <translation>Datei herunterladen</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 besteht bereits.
Möchten Sie die Datei ersetzen?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2</source>
        <translation>„%1“ kann nicht geschrieben werden: %2</translation>
    </message>
</context>
<context>
    <name>IEC61850TaskExtention</name>
    <message>
        <source>IED Browser</source>
        <translation>IED-Browser</translation>
    </message>
    <message>
        <source>IED File Service</source>
        <translation>IED-Dateidienst</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Report Control</source>
        <translation>Report-Steuerung</translation>
    </message>
</context>
<context>
    <name>IEDModel</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>(Deletable)</source>
        <translation>(löschbar)</translation>
    </message>
</context>
<context>
    <name>IEDModelView</name>
    <message>
        <source>IED Browser</source>
        <translation>IED-Browser</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Lesen</translation>
    </message>
    <message>
        <source>Write...</source>
        <translation>Schreiben...</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Anwählen</translation>
    </message>
    <message>
        <source>Operate</source>
        <translation>Schalten</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abwählen</translation>
    </message>
    <message>
        <source>Expand All</source>
        <translation>Alles aufklappen</translation>
    </message>
    <message>
        <source>Collapse All</source>
        <translation>Alles zuklappen</translation>
    </message>
    <message>
        <source>Open Report Control</source>
        <translation>Report-Steuerblock öffnen</translation>
    </message>
    <message>
        <source>Open Setting Group Control</source>
        <translation>Parametersatz-Steuerblock öffnen</translation>
    </message>
    <message>
        <source>Locate</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Create Persistent DataSet</source>
        <translation>Dauerhaften Datensatz anlegen</translation>
    </message>
    <message>
        <source>Create Non-Persistent DataSet</source>
        <translation>Nicht dauerhaften Datensatz anlegen</translation>
    </message>
    <message>
        <source>Delete DataSet</source>
        <translation>Datensatz löschen</translation>
    </message>
    <message>
        <source>GetDataSet List</source>
        <translation>Liste der Datensätze</translation>
    </message>
    <message>
        <source>GetDataSet Directory</source>
        <translation>Verzeichnis des Datensatzes</translation>
    </message>
    <message>
        <source>Get BRCB</source>
        <translation>Gepufferte Reports (BRCB)</translation>
    </message>
    <message>
        <source>Get URCB</source>
        <translation>Ungepufferte Reports (URCB)</translation>
    </message>
    <message>
        <source>Get SGCB</source>
        <translation>Parametersatz-Steuerblock (SGCB)</translation>
    </message>
    <message>
        <source>GetServer Directory</source>
        <translation>Verzeichnis des Servers</translation>
    </message>
    <message>
        <source>GetLogicalDevice Directory</source>
        <translation>Verzeichnis des logischen Geräts</translation>
    </message>
    <message>
        <source>GetLogicalNode Directory</source>
        <translation>Verzeichnis des logischen Knotens</translation>
    </message>
    <message>
        <source>GetData Directory</source>
        <translation>Verzeichnis der Daten</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Cannot connect to driver</source>
        <translation>Keine Verbindung zum Treiber</translation>
    </message>
    <message>
        <source>The description of this device is not whole: the tree shows what could be read of it.</source>
        <translation>Die Beschreibung dieses Geräts ist unvollständig: Der Baum zeigt, was davon zu lesen war.</translation>
    </message>
</context>
<context>
    <name>OfflineSGCB</name>
    <message>
        <source>OfflineSGCB</source>
        <translation>Parametersätze (offline)</translation>
    </message>
    <message>
        <source>Num of Setting Group : </source>
        <translation>Anzahl der Parametersätze: </translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Active Group : </source>
        <translation>Aktiver Parametersatz: </translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>PropertyDelegate</name>
    <message>
        <source>%1 &quot;%2&quot; keeps its value.</source>
        <translation>%1 „%2“ behält seinen Wert.</translation>
    </message>
</context>
<context>
    <name>PropertyEditor</name>
    <message>
        <source>A whole number from %1 to %2 is needed.</source>
        <translation>Eine ganze Zahl von %1 bis %2 ist nötig.</translation>
    </message>
    <message>
        <source>A number with a decimal point is needed, such as 0.25 or 1e-3.</source>
        <translation>Eine Zahl mit Dezimalpunkt ist nötig, etwa 0.25 oder 1e-3.</translation>
    </message>
    <message>
        <source>One character is needed.</source>
        <translation>Genau ein Zeichen ist nötig.</translation>
    </message>
    <message>
        <source>True</source>
        <translation>Wahr</translation>
    </message>
    <message>
        <source>False</source>
        <translation>Falsch</translation>
    </message>
    <message>
        <source>The number is too large: the data type ends at %1.</source>
        <translation>Die Zahl ist zu groß: Der Datentyp endet bei %1.</translation>
    </message>
    <message>
        <source>The number is too small: in this data type it would become 0.</source>
        <translation>Die Zahl ist zu klein: In diesem Datentyp würde sie zu 0.</translation>
    </message>
    <message>
        <source>Not all that was typed was taken. Press Enter again if %1 is meant.</source>
        <translation>Nicht alles Eingegebene wurde übernommen. Drücken Sie noch einmal die Eingabetaste, wenn %1 gemeint ist.</translation>
    </message>
    <message>
        <source>The point in %1 is read as the decimal point. Press Enter again if this is meant.</source>
        <translation>Der Punkt in %1 wird als Dezimalpunkt gelesen. Drücken Sie noch einmal die Eingabetaste, wenn das gemeint ist.</translation>
    </message>
</context>
<context>
    <name>QtTreePropertyBrowser</name>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Eigenschaft</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>ReportControl</name>
    <message>
        <source>Report Control Block</source>
        <translation>Report-Steuerblock</translation>
    </message>
    <message>
        <source>Report Name : </source>
        <translation>Name des Reports: </translation>
    </message>
    <message>
        <source>....</source>
        <translation>....</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Freigeben</translation>
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
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Report Id :</source>
        <translation>Report-ID:</translation>
    </message>
    <message>
        <source>Change the report id</source>
        <translation>Report-ID ändern</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Ändern</translation>
    </message>
    <message>
        <source>Client: </source>
        <translation>Client: </translation>
    </message>
    <message>
        <source>DataSet :</source>
        <translation>Datensatz:</translation>
    </message>
    <message>
        <source>Data set</source>
        <translation>Datensatz</translation>
    </message>
    <message>
        <source>Change the data set</source>
        <translation>Datensatz ändern</translation>
    </message>
    <message>
        <source>Trigger Option</source>
        <translation>Auslöseoptionen</translation>
    </message>
    <message>
        <source>Data Change</source>
        <translation>Datenänderung</translation>
    </message>
    <message>
        <source>Quality Change</source>
        <translation>Qualitätsänderung</translation>
    </message>
    <message>
        <source>Data Update</source>
        <translation>Datenaktualisierung</translation>
    </message>
    <message>
        <source>Integrity </source>
        <translation>Integrität </translation>
    </message>
    <message>
        <source>Change the trigger options</source>
        <translation>Auslöseoptionen ändern</translation>
    </message>
    <message>
        <source>Optional Items</source>
        <translation>Optionale Felder</translation>
    </message>
    <message>
        <source>Entry ID</source>
        <translation>Eintragskennung</translation>
    </message>
    <message>
        <source>Configuration Revision</source>
        <translation>Konfigurationsrevision</translation>
    </message>
    <message>
        <source>Time Stamp</source>
        <translation>Zeitstempel</translation>
    </message>
    <message>
        <source>Data Reference</source>
        <translation>Datenreferenz</translation>
    </message>
    <message>
        <source>Buffer Overflow</source>
        <translation>Pufferüberlauf</translation>
    </message>
    <message>
        <source>Data Set Name</source>
        <translation>Name des Datensatzes</translation>
    </message>
    <message>
        <source>Reason for Inclusion</source>
        <translation>Übertragungsgrund</translation>
    </message>
    <message>
        <source>Sub Sequence</source>
        <translation>Teilfolge</translation>
    </message>
    <message>
        <source>Sequence Number</source>
        <translation>Folgenummer</translation>
    </message>
    <message>
        <source>Change the optional items</source>
        <translation>Optionale Felder ändern</translation>
    </message>
    <message>
        <source>Etc</source>
        <translation>Weiteres</translation>
    </message>
    <message>
        <source>Integrity Period:</source>
        <translation>Integritätsperiode:</translation>
    </message>
    <message>
        <source>msec</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>Change the integrity period</source>
        <translation>Integritätsperiode ändern</translation>
    </message>
    <message>
        <source>Buffer Time:</source>
        <translation>Pufferzeit:</translation>
    </message>
    <message>
        <source>Change the buffer time</source>
        <translation>Pufferzeit ändern</translation>
    </message>
    <message>
        <source>Configuration Revision:</source>
        <translation>Konfigurationsrevision:</translation>
    </message>
    <message>
        <source>Reserved</source>
        <translation>Reserviert</translation>
    </message>
    <message>
        <source>Change the reservation</source>
        <translation>Reservierung ändern</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>Sperren</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Cannot connect to driver</source>
        <translation>Keine Verbindung zum Treiber</translation>
    </message>
</context>
<context>
    <name>SGCBDialog</name>
    <message>
        <source>SGCB</source>
        <translation>Parametersätze (SGCB)</translation>
    </message>
    <message>
        <source>Name: </source>
        <translation>Name: </translation>
    </message>
    <message>
        <source>Name of the setting group control block</source>
        <translation>Name des Parametersatz-Steuerblocks</translation>
    </message>
    <message>
        <source>Select Group</source>
        <translation>Parametersatz wählen</translation>
    </message>
    <message>
        <source>Active Group:</source>
        <translation>Aktiver Parametersatz:</translation>
    </message>
    <message>
        <source>Active group</source>
        <translation>Aktiver Parametersatz</translation>
    </message>
    <message>
        <source>   Edit Group:</source>
        <translation>   Zu ändernder Parametersatz:</translation>
    </message>
    <message>
        <source>Edit group</source>
        <translation>Zu ändernder Parametersatz</translation>
    </message>
    <message>
        <source>Setting Value</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>Execute</source>
        <translation>Ausführen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Unsupported Type</source>
        <translation>Nicht unterstützter Typ</translation>
    </message>
    <message>
        <source>Cannot connect to driver</source>
        <translation>Keine Verbindung zum Treiber</translation>
    </message>
</context>
<context>
    <name>SelectFCDialog</name>
    <message>
        <source>GetAllDataValues</source>
        <translation>Alle Werte lesen</translation>
    </message>
    <message>
        <source>Select FC : </source>
        <translation>Functional Constraint: </translation>
    </message>
    <message>
        <source>Functional constraint</source>
        <translation>Functional Constraint</translation>
    </message>
</context>
<context>
    <name>TreeFinder</name>
    <message>
        <source>Not found</source>
        <translation>Nicht gefunden</translation>
    </message>
    <message>
        <source>Find by name or reference</source>
        <translation>Nach Name oder Referenz suchen</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
</context>
</TS>
