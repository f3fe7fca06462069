<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>CallConfirmation</name>
    <message>
        <source>Select</source>
        <translation>Anwählen</translation>
    </message>
    <message>
        <source>Operate</source>
        <translation>Schalten</translation>
    </message>
    <message>
        <source>Write a value</source>
        <translation>Wert schreiben</translation>
    </message>
    <message>
        <source>Create a data set</source>
        <translation>Datensatz anlegen</translation>
    </message>
    <message>
        <source>Delete a data set</source>
        <translation>Datensatz löschen</translation>
    </message>
    <message>
        <source>Delete a file</source>
        <translation>Datei löschen</translation>
    </message>
    <message>
        <source>Send a file</source>
        <translation>Datei senden</translation>
    </message>
    <message>
        <source>Configure a report control block</source>
        <translation>Report-Steuerblock konfigurieren</translation>
    </message>
    <message>
        <source>Write settings</source>
        <translation>Parameter schreiben</translation>
    </message>
    <message>
        <source>Choose a setting group to edit</source>
        <translation>Zu ändernden Parametersatz wählen</translation>
    </message>
    <message>
        <source>Make a setting group the active one</source>
        <translation>Parametersatz zum aktiven machen</translation>
    </message>
    <message>
        <source>not supported</source>
        <translation>nicht unterstützt</translation>
    </message>
    <message>
        <source>bay control</source>
        <translation>Feldsteuerung</translation>
    </message>
    <message>
        <source>station control</source>
        <translation>Stationssteuerung</translation>
    </message>
    <message>
        <source>remote control</source>
        <translation>Fernsteuerung</translation>
    </message>
    <message>
        <source>automatic bay</source>
        <translation>Feldautomatik</translation>
    </message>
    <message>
        <source>automatic station</source>
        <translation>Stationsautomatik</translation>
    </message>
    <message>
        <source>automatic remote</source>
        <translation>Fernautomatik</translation>
    </message>
    <message>
        <source>maintenance</source>
        <translation>Wartung</translation>
    </message>
    <message>
        <source>process</source>
        <translation>Prozess</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>interlocking</source>
        <translation>Verriegelung</translation>
    </message>
    <message>
        <source>synchrocheck</source>
        <translation>Synchrocheck</translation>
    </message>
    <message>
        <source>synchrocheck and interlocking</source>
        <translation>Synchrocheck und Verriegelung</translation>
    </message>
    <message>
        <source>Device:</source>
        <translation>Gerät:</translation>
    </message>
    <message>
        <source>Logical device:</source>
        <translation>Logisches Gerät:</translation>
    </message>
    <message>
        <source>Object:</source>
        <translation>Objekt:</translation>
    </message>
    <message>
        <source>Value:</source>
        <translation>Wert:</translation>
    </message>
    <message>
        <source>Current value:</source>
        <translation>Aktueller Wert:</translation>
    </message>
    <message>
        <source>as selected</source>
        <translation>wie angewählt</translation>
    </message>
    <message>
        <source>Originator category:</source>
        <translation>Kategorie des Auslösers:</translation>
    </message>
    <message>
        <source>Checks:</source>
        <translation>Prüfungen:</translation>
    </message>
    <message>
        <source>Test:</source>
        <translation>Test:</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>Nothing was sent, since it was not confirmed.</source>
        <translation>Es wurde nichts gesendet, weil nicht bestätigt wurde.</translation>
    </message>
</context>
<context>
    <name>ChangeJournal</name>
    <message>
        <source>The journal &quot;%1&quot; cannot be written: %2</source>
        <translation>Das Journal „%1“ kann nicht geschrieben werden: %2</translation>
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
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Operation</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Referenz</translation>
    </message>
    <message>
        <source>Old value</source>
        <translation>Alter Wert</translation>
    </message>
    <message>
        <source>New value</source>
        <translation>Neuer Wert</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Additional cause</source>
        <translation>Zusatzursache</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Say what is in an SCL file, as JSON, and exit: with 0 when it is without errors, 1 with errors, 2 when it cannot be used. Needs no display.</source>
        <translation>Sagen, was in einer SCL-Datei steht, als JSON, und enden: mit 0, wenn sie fehlerfrei ist, 1 bei Fehlern, 2, wenn sie nicht zu verwenden ist. Braucht keinen Bildschirm.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>DATEI</translation>
    </message>
    <message>
        <source>Take this IED of the file. The default asks when there are several; --check takes all.</source>
        <translation>Dieses IED der Datei nehmen. Ohne Angabe wird bei mehreren gefragt; --check nimmt alle.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NAME</translation>
    </message>
    <message>
        <source>Open each tool on the demonstration device, save a picture of it in DIR, exit.</source>
        <translation>Jedes Werkzeug am Demonstrationsgerät öffnen, ein Bild davon in ORDNER ablegen, enden.</translation>
    </message>
    <message>
        <source>DIR</source>
        <translation>ORDNER</translation>
    </message>
    <message>
        <source>Load the plug-in from DIR instead of the folder &quot;plugins&quot; beside the program.</source>
        <translation>Das Plug-in aus ORDNER laden statt aus dem Ordner „plugins“ neben dem Programm.</translation>
    </message>
    <message>
        <source>Open the demonstration device.</source>
        <translation>Das Demonstrationsgerät öffnen.</translation>
    </message>
    <message>
        <source>A small host for the IEC 61850 tools: opens devices from SCL files.</source>
        <translation>Eine kleine Umgebung für die IEC-61850-Werkzeuge: öffnet Geräte aus SCL-Dateien.</translation>
    </message>
    <message>
        <source>SCL files to open.</source>
        <translation>Zu öffnende SCL-Dateien.</translation>
    </message>
    <message>
        <source>--check needs the name of a file.</source>
        <translation>--check braucht den Namen einer Datei.</translation>
    </message>
    <message>
        <source>--tour needs the name of a folder.</source>
        <translation>--tour braucht den Namen eines Ordners.</translation>
    </message>
    <message>
        <source>--check takes one file, and nothing else can be done at the same time.</source>
        <translation>--check nimmt eine Datei, und sonst kann gleichzeitig nichts getan werden.</translation>
    </message>
    <message>
        <source>--tour shows the demonstration device and opens no other file.</source>
        <translation>--tour zeigt das Demonstrationsgerät und öffnet keine andere Datei.</translation>
    </message>
</context>
<context>
    <name>ConfirmationDialog</name>
    <message>
        <source>Confirm</source>
        <translation>Bestätigen</translation>
    </message>
    <message>
        <source>&amp;Send to the device</source>
        <translation>An das Gerät &amp;senden</translation>
    </message>
</context>
<context>
    <name>DeviceConfiguration</name>
    <message>
        <source>The %1 has %2 octets; at most %3 are possible.</source>
        <translation>%1: %2 Oktette sind zu viel, möglich sind höchstens %3.</translation>
    </message>
    <message>
        <source>transport selector of the %1</source>
        <translation>Transport-Selektor (%1)</translation>
    </message>
    <message>
        <source>session selector of the %1</source>
        <translation>Session-Selektor (%1)</translation>
    </message>
    <message>
        <source>presentation selector of the %1</source>
        <translation>Presentation-Selektor (%1)</translation>
    </message>
    <message>
        <source>The AP title &quot;%1&quot; of the %2 is no object identifier such as 1.1.1.999.1.</source>
        <translation>AP-Titel (%2): „%1“ ist kein Objektbezeichner wie 1.1.1.999.1.</translation>
    </message>
    <message>
        <source>The AE qualifier of the %1 does not fit 32 bits.</source>
        <translation>AE-Qualifier (%1): passt nicht in 32 Bit.</translation>
    </message>
    <message>
        <source>The time-out for %1 must be from %2 to %3 milliseconds.</source>
        <translation>Die Zeitgrenze für %1 muss zwischen %2 und %3 Millisekunden liegen.</translation>
    </message>
    <message>
        <source>The %1 &quot;%2&quot; does not exist.</source>
        <translation>%1 „%2“ existiert nicht.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has the wrong form.</source>
        <translation>„%1“ hat die falsche Form.</translation>
    </message>
    <message>
        <source>The device&apos;s number must be from 1 to %1.</source>
        <translation>Die Nummer des Geräts muss zwischen 1 und %1 liegen.</translation>
    </message>
    <message>
        <source>The device needs a name.</source>
        <translation>Das Gerät braucht einen Namen.</translation>
    </message>
    <message>
        <source>The device needs an address or an SCL file.</source>
        <translation>Das Gerät braucht eine Adresse oder eine SCL-Datei.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no address or host name.</source>
        <translation>„%1“ ist weder eine Adresse noch ein Rechnername.</translation>
    </message>
    <message>
        <source>The port must be from 1 to 65535.</source>
        <translation>Der Port muss zwischen 1 und 65535 liegen.</translation>
    </message>
    <message>
        <source>SCL file</source>
        <translation>SCL-Datei</translation>
    </message>
    <message>
        <source>client</source>
        <translation>Client</translation>
    </message>
    <message>
        <source>device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>den Verbindungsaufbau</translation>
    </message>
    <message>
        <source>requests</source>
        <translation>Anfragen</translation>
    </message>
    <message>
        <source>operations</source>
        <translation>Bedienvorgänge</translation>
    </message>
    <message>
        <source>The time-out for operations must not be shorter than the one for requests.</source>
        <translation>Die Zeitgrenze für Bedienvorgänge darf nicht kürzer sein als die für Anfragen.</translation>
    </message>
    <message>
        <source>From 1 to %1 outstanding calls are possible.</source>
        <translation>Möglich sind 1 bis %1 gleichzeitig ausstehende Anfragen.</translation>
    </message>
    <message>
        <source>The PDU size must be from %1 to %2 octets.</source>
        <translation>Die PDU-Größe muss zwischen %1 und %2 Oktetten liegen.</translation>
    </message>
    <message>
        <source>The polling interval must be 0 for none, or from %1 to %2 milliseconds.</source>
        <translation>Das Abfrageintervall muss 0 (keine Abfrage) sein oder zwischen %1 und %2 Millisekunden liegen.</translation>
    </message>
    <message>
        <source>From 1 to %1 outstanding file reads are possible.</source>
        <translation>Möglich sind 1 bis %1 gleichzeitig ausstehende Dateilesevorgänge.</translation>
    </message>
    <message>
        <source>The originator category must be from 0 to %1.</source>
        <translation>Die Kategorie des Auslösers muss zwischen 0 und %1 liegen.</translation>
    </message>
    <message>
        <source>The originator identification has %1 octets; at most %2 are possible.</source>
        <translation>Die Kennung des Auslösers hat %1 Oktette; möglich sind höchstens %2.</translation>
    </message>
    <message>
        <source>Device %1 (%2)</source>
        <translation>Gerät %1 (%2)</translation>
    </message>
</context>
<context>
    <name>DeviceDialog</name>
    <message>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>&amp;Address:</source>
        <translation>&amp;Adresse:</translation>
    </message>
    <message>
        <source>Host name, IPv4 or IPv6 address</source>
        <translation>Rechnername, IPv4- oder IPv6-Adresse</translation>
    </message>
    <message>
        <source>&amp;Port:</source>
        <translation>&amp;Port:</translation>
    </message>
    <message>
        <source>&amp;SCL file:</source>
        <translation>&amp;SCL-Datei:</translation>
    </message>
    <message>
        <source>Browse…</source>
        <translation>Durchsuchen …</translation>
    </message>
    <message>
        <source>&amp;IED of the file:</source>
        <translation>&amp;IED der Datei:</translation>
    </message>
    <message>
        <source>&amp;Connect when the workbench starts</source>
        <translation>Beim Start der Workbench &amp;verbinden</translation>
    </message>
    <message>
        <source>Timing and Sizes</source>
        <translation>Zeiten und Größen</translation>
    </message>
    <message>
        <source>Time-out for &amp;connecting:</source>
        <translation>Zeitgrenze für den &amp;Verbindungsaufbau:</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>Time-out for &amp;requests:</source>
        <translation>Zeitgrenze für &amp;Anfragen:</translation>
    </message>
    <message>
        <source>Time-out for &amp;operations:</source>
        <translation>Zeitgrenze für &amp;Bedienvorgänge:</translation>
    </message>
    <message>
        <source>Re&amp;ad values without reports every:</source>
        <translation>Werte ohne Reports &amp;lesen alle:</translation>
    </message>
    <message>
        <source>never</source>
        <translation>nie</translation>
    </message>
    <message>
        <source>Outstanding ca&amp;lls:</source>
        <translation>A&amp;usstehende Anfragen:</translation>
    </message>
    <message>
        <source>Largest P&amp;DU:</source>
        <translation>Größte &amp;PDU:</translation>
    </message>
    <message>
        <source> octets</source>
        <translation> Oktette</translation>
    </message>
    <message>
        <source>Outstanding &amp;file reads:</source>
        <translation>Ausstehende &amp;Dateilesevorgänge:</translation>
    </message>
    <message>
        <source>Addressing</source>
        <translation>Adressierung</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Client</translation>
    </message>
    <message>
        <source>Transport selector:</source>
        <translation>Transport-Selektor:</translation>
    </message>
    <message>
        <source>Session selector:</source>
        <translation>Session-Selektor:</translation>
    </message>
    <message>
        <source>Presentation selector:</source>
        <translation>Presentation-Selektor:</translation>
    </message>
    <message>
        <source>AP title:</source>
        <translation>AP-Titel:</translation>
    </message>
    <message>
        <source>AE qualifier:</source>
        <translation>AE-Qualifier:</translation>
    </message>
    <message>
        <source>Selectors are octets in hexadecimal, for example 00 01. An AP title is an object identifier, for example 1.1.1.999.1; empty fields are not sent.</source>
        <translation>Selektoren sind Oktette in hexadezimaler Schreibweise, zum Beispiel 00&#xa0;01. Ein AP-Titel ist ein Objektbezeichner, zum Beispiel 1.1.1.999.1; leere Felder werden nicht gesendet.</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Sicherheit</translation>
    </message>
    <message>
        <source>&amp;Password of the association:</source>
        <translation>&amp;Passwort der Assoziation:</translation>
    </message>
    <message>
        <source>&amp;TLS (IEC 62351-3)</source>
        <translation>&amp;TLS (IEC 62351-3)</translation>
    </message>
    <message>
        <source>&amp;Certificate:</source>
        <translation>Zertifi&amp;kat:</translation>
    </message>
    <message>
        <source>Private &amp;key:</source>
        <translation>Privater &amp;Schlüssel:</translation>
    </message>
    <message>
        <source>Pa&amp;ssword of the key:</source>
        <translation>Pass&amp;wort des Schlüssels:</translation>
    </message>
    <message>
        <source>&amp;Authorities:</source>
        <translation>&amp;Zertifizierungsstellen:</translation>
    </message>
    <message>
        <source>&amp;Revocation lists:</source>
        <translation>Sperr&amp;listen:</translation>
    </message>
    <message>
        <source>&amp;Fingerprints (SHA-256):</source>
        <translation>&amp;Fingerabdrücke (SHA-256):</translation>
    </message>
    <message>
        <source>&amp;Name in the certificate:</source>
        <translation>&amp;Name im Zertifikat:</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>Steuern</translation>
    </message>
    <message>
        <source>Originator &amp;category:</source>
        <translation>&amp;Kategorie des Auslösers:</translation>
    </message>
    <message>
        <source>Originator &amp;identification:</source>
        <translation>K&amp;ennung des Auslösers:</translation>
    </message>
    <message>
        <source>&amp;Test Connection</source>
        <translation>Verbindun&amp;g testen</translation>
    </message>
    <message>
        <source>Add Device</source>
        <translation>Gerät hinzufügen</translation>
    </message>
    <message>
        <source>Edit Device %1</source>
        <translation>Gerät %1 bearbeiten</translation>
    </message>
    <message>
        <source>SCL File</source>
        <translation>SCL-Datei</translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation>Zertifikat</translation>
    </message>
    <message>
        <source>Private Key</source>
        <translation>Privater Schlüssel</translation>
    </message>
    <message>
        <source>Authorities</source>
        <translation>Zertifizierungsstellen</translation>
    </message>
    <message>
        <source>Revocation Lists</source>
        <translation>Sperrlisten</translation>
    </message>
    <message>
        <source>the only one</source>
        <translation>das einzige</translation>
    </message>
    <message>
        <source>The %1 of the %2 is not hexadecimal.</source>
        <translation>%1 (%2): nicht hexadezimal.</translation>
    </message>
    <message>
        <source>transport selector</source>
        <translation>Transport-Selektor</translation>
    </message>
    <message>
        <source>session selector</source>
        <translation>Session-Selektor</translation>
    </message>
    <message>
        <source>presentation selector</source>
        <translation>Presentation-Selektor</translation>
    </message>
    <message>
        <source>The AE qualifier of the %1 is not a number.</source>
        <translation>AE-Qualifier (%1): keine Zahl.</translation>
    </message>
    <message>
        <source>client</source>
        <translation>Client</translation>
    </message>
    <message>
        <source>device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>The device has no address.</source>
        <translation>Das Gerät hat keine Adresse.</translation>
    </message>
    <message>
        <source>Connecting to %1…</source>
        <translation>Verbindung mit %1 wird aufgebaut …</translation>
    </message>
    <message>
        <source>Connected to %1. Round trip: %2 ms; logical devices: %3</source>
        <translation>Verbunden mit %1. Umlaufzeit: %2 ms; logische Geräte: %3</translation>
    </message>
    <message>
        <source>a device that does not say what it is</source>
        <translation>einem Gerät, das nicht sagt, was es ist</translation>
    </message>
</context>
<context>
    <name>DeviceListModel</name>
    <message>
        <source>The demonstration device, a part of the workbench</source>
        <translation>Das Demonstrationsgerät, ein Teil der Workbench</translation>
    </message>
    <message>
        <source>Demonstration</source>
        <translation>Demonstration</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>Wird geladen …</translation>
    </message>
    <message>
        <source>Offline model</source>
        <translation>Offline-Modell</translation>
    </message>
    <message>
        <source>Model cannot be read: %1</source>
        <translation>Modell nicht lesbar: %1</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Starting the simulation…</source>
        <translation>Simulation wird gestartet …</translation>
    </message>
    <message>
        <source>Cannot be used: %1</source>
        <translation>Nicht zu verwenden: %1</translation>
    </message>
    <message>
        <source>Simulation stopped</source>
        <translation>Simulation beendet</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Nicht verbunden</translation>
    </message>
    <message>
        <source>Not connected: %1</source>
        <translation>Nicht verbunden: %1</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Wird verbunden …</translation>
    </message>
    <message>
        <source>Reading the model (%1 %)…</source>
        <translation>Modell wird gelesen (%1 %) …</translation>
    </message>
    <message>
        <source>Reading the model…</source>
        <translation>Modell wird gelesen …</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Verbunden</translation>
    </message>
    <message>
        <source>Trying again: %1</source>
        <translation>Neuer Versuch folgt: %1</translation>
    </message>
    <message>
        <source>Simulated demonstration</source>
        <translation>Simulierte Demonstration</translation>
    </message>
    <message>
        <source>Simulated: %1</source>
        <translation>Simuliert: %1</translation>
    </message>
    <message>
        <source>Reached at %1, port %2</source>
        <translation>Erreichbar unter %1, Port %2</translation>
    </message>
    <message>
        <source>Since %1</source>
        <translation>Seit %1</translation>
    </message>
    <message>
        <source>Objects that the device did not describe: %1</source>
        <translation>Objekte, die das Gerät nicht beschrieben hat: %1</translation>
    </message>
    <message>
        <source>Vendor: %1
Model: %2
Revision: %3</source>
        <translation>Hersteller: %1
Modell: %2
Revision: %3</translation>
    </message>
    <message>
        <source>Time from a request to its answer, measured last</source>
        <translation>Zeit von einer Anfrage bis zur Antwort, zuletzt gemessen</translation>
    </message>
    <message>
        <source>PDUs sent: %1
PDUs received: %2
Reports: %3
Published values: %4
Connections: %5</source>
        <translation>Gesendete PDUs: %1
Empfangene PDUs: %2
Reports: %3
Veröffentlichte Werte: %4
Verbindungen: %5</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>Identity</source>
        <translation>Identität</translation>
    </message>
    <message>
        <source>Round trip</source>
        <translation>Umlaufzeit</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>Reports</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Werte</translation>
    </message>
    <message>
        <source>Connected: %1</source>
        <translation>Verbunden: %1</translation>
    </message>
    <message>
        <source>Connected, values not current: %1</source>
        <translation>Verbunden, nicht aktuelle Werte: %1</translation>
    </message>
    <message>
        <source>Away since %1</source>
        <translation>Nicht erreichbar seit %1</translation>
    </message>
    <message>
        <source>Values that are not current: %1, the oldest of %2</source>
        <translation>Nicht aktuelle Werte: %1, der älteste von %2</translation>
    </message>
    <message>
        <source>Values that the device denies: %1</source>
        <translation>Werte, die das Gerät verweigert: %1</translation>
    </message>
</context>
<context>
    <name>DeviceStore</name>
    <message>
        <source>The list of devices in &quot;%1&quot; cannot be read completely.</source>
        <translation>Die Geräteliste in „%1“ kann nicht vollständig gelesen werden.</translation>
    </message>
    <message>
        <source>The list of devices cannot be saved in &quot;%1&quot; and will be as before at the next start.</source>
        <translation>Die Geräteliste kann nicht in „%1“ gespeichert werden; beim nächsten Start ist sie wie zuvor.</translation>
    </message>
</context>
<context>
    <name>EmbeddedDriver</name>
    <message>
        <source>The IED &quot;%1&quot; has no logical devices, so there is nothing to browse.</source>
        <translation>Das IED „%1“ hat keine logischen Geräte, es gibt also nichts anzuzeigen.</translation>
    </message>
</context>
<context>
    <name>ExtensionLoader</name>
    <message>
        <source>Replace the file by the one that was built together with this workbench.</source>
        <translation>Ersetzen Sie die Datei durch diejenige, die mit dieser Workbench gebaut wurde.</translation>
    </message>
    <message>
        <source>The plug-in folder does not exist.</source>
        <translation>Der Plug-in-Ordner existiert nicht.</translation>
    </message>
    <message>
        <source>Install the plug-in there, or start the workbench with --plugin-dir and the folder that holds it.</source>
        <translation>Installieren Sie das Plug-in dort, oder starten Sie die Workbench mit --plugin-dir und dem Ordner, der es enthält.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>Die Datei existiert nicht.</translation>
    </message>
    <message>
        <source>Put the plug-in there, or start the workbench with --plugin-dir and the folder that holds it.</source>
        <translation>Legen Sie das Plug-in dort ab, oder starten Sie die Workbench mit --plugin-dir und dem Ordner, der es enthält.</translation>
    </message>
    <message>
        <source>The file is not a plug-in that this Qt can load: %1</source>
        <translation>Die Datei ist kein Plug-in, das dieses Qt laden kann: %1</translation>
    </message>
    <message>
        <source>The plug-in is of another kind: it offers &quot;%1&quot; where &quot;%2&quot; is needed.</source>
        <translation>Das Plug-in ist von anderer Art: Es bietet „%1“, benötigt wird „%2“.</translation>
    </message>
    <message>
        <source>The plug-in does not carry the key &quot;%1&quot;.</source>
        <translation>Das Plug-in trägt nicht den Schlüssel „%1“.</translation>
    </message>
    <message>
        <source>The plug-in cannot be loaded: %1</source>
        <translation>Das Plug-in kann nicht geladen werden: %1</translation>
    </message>
    <message>
        <source>Make sure that the libraries it needs are installed and belong to the same version.</source>
        <translation>Stellen Sie sicher, dass die nötigen Bibliotheken installiert sind und zur selben Version gehören.</translation>
    </message>
    <message>
        <source>The plug-in&apos;s object does not have the promised interface.</source>
        <translation>Das Objekt des Plug-ins hat nicht die zugesagte Schnittstelle.</translation>
    </message>
    <message>
        <source>The plug-in does not serve IEC 61850 (protocol %1).</source>
        <translation>Das Plug-in bedient IEC 61850 nicht (Protokoll %1).</translation>
    </message>
    <message>
        <source>The plug-in says that it is not available.</source>
        <translation>Das Plug-in meldet, dass es nicht verfügbar ist.</translation>
    </message>
    <message>
        <source>Try again later, or ask whoever supplied the plug-in.</source>
        <translation>Versuchen Sie es später noch einmal, oder fragen Sie den Lieferanten des Plug-ins.</translation>
    </message>
    <message>
        <source>The plug-in offers no action.</source>
        <translation>Das Plug-in bietet keine Aktion.</translation>
    </message>
</context>
<context>
    <name>FindingsModel</name>
    <message>
        <source>1 error</source>
        <translation>1 Fehler</translation>
    </message>
    <message>
        <source>%1 errors</source>
        <translation>%1 Fehler</translation>
    </message>
    <message>
        <source>1 warning</source>
        <translation>1 Warnung</translation>
    </message>
    <message>
        <source>%1 warnings</source>
        <translation>%1 Warnungen</translation>
    </message>
    <message>
        <source>1 note</source>
        <translation>1 Hinweis</translation>
    </message>
    <message>
        <source>%1 notes</source>
        <translation>%1 Hinweise</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>Schwere</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Element</source>
        <translation>Element</translation>
    </message>
    <message>
        <source>Finding</source>
        <translation>Befund</translation>
    </message>
</context>
<context>
    <name>GuideViewer</name>
    <message>
        <source>Operator Guide</source>
        <translation>Bedienungsanleitung</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Find in the guide</source>
        <translation>In der Anleitung suchen</translation>
    </message>
</context>
<context>
    <name>IedChooser</name>
    <message>
        <source>Choose the IED</source>
        <translation>IED auswählen</translation>
    </message>
    <message>
        <source>IED</source>
        <translation>IED</translation>
    </message>
    <message>
        <source>Logical devices</source>
        <translation>Logische Geräte</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds %2 IEDs. Which of them do you want to open?</source>
        <translation>„%1“ enthält %2 IEDs. Welche davon möchten Sie öffnen?</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>This IED has no logical devices, so there is nothing to browse.</source>
        <translation>Dieses IED hat keine logischen Geräte, es gibt also nichts anzuzeigen.</translation>
    </message>
</context>
<context>
    <name>IedDriver</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1; and %2 more</source>
        <translation>%1; und %2 weitere</translation>
    </message>
    <message>
        <source>Aborted by the operator.</source>
        <translation>Vom Bediener abgebrochen.</translation>
    </message>
    <message>
        <source>The operation was cancelled.</source>
        <translation>Der Vorgang wurde abgebrochen.</translation>
    </message>
    <message>
        <source>%1 has not finished the operation within %2 seconds.</source>
        <translation>%1 hat den Vorgang nicht innerhalb von %2 Sekunden beendet.</translation>
    </message>
    <message>
        <source>%1 is not connected.</source>
        <translation>%1 ist nicht verbunden.</translation>
    </message>
    <message>
        <source>%1 is not connected: %2.</source>
        <translation>%1 ist nicht verbunden: %2.</translation>
    </message>
    <message>
        <source>The model of %1 is being read: %2 of %3.</source>
        <translation>Das Modell wird gelesen: %1, %2 von %3.</translation>
    </message>
    <message>
        <source>The device has not answered for %1 seconds.</source>
        <translation>Das Gerät hat seit %1 Sekunden nicht geantwortet.</translation>
    </message>
    <message>
        <source>The SCL file is not used: %1</source>
        <translation>Die SCL-Datei wird nicht verwendet: %1</translation>
    </message>
    <message>
        <source>Reading the model was cancelled.</source>
        <translation>Das Lesen des Modells wurde abgebrochen.</translation>
    </message>
    <message>
        <source>the value does not have the form of its type</source>
        <translation>der Wert hat nicht die Form seines Typs</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no kind of report control block.</source>
        <translation>„%1“ ist keine Art von Report-Steuerblock.</translation>
    </message>
    <message>
        <source>A data set needs at least one member.</source>
        <translation>Ein Datensatz braucht mindestens ein Element.</translation>
    </message>
    <message>
        <source>There is no reference to be listed.</source>
        <translation>Es ist keine Referenz zum Auflisten angegeben.</translation>
    </message>
    <message>
        <source>Not connected to the device</source>
        <translation>Keine Verbindung zum Gerät</translation>
    </message>
    <message>
        <source>There is no device %1 on this driver.</source>
        <translation>Auf diesem Treiber gibt es kein Gerät %1.</translation>
    </message>
    <message>
        <source>The driver is read-only: nothing on %1 was changed.</source>
        <translation>Der Treiber ist schreibgeschützt: Auf %1 wurde nichts geändert.</translation>
    </message>
    <message>
        <source>Device %1</source>
        <translation>Gerät %1</translation>
    </message>
    <message>
        <source>Its logical device &quot;%1&quot; is online already as part of %2; live values could not be told apart.</source>
        <translation>Sein logisches Gerät „%1“ ist bereits als Teil von %2 online; die laufenden Werte wären nicht zu unterscheiden.</translation>
    </message>
    <message>
        <source>The capture cannot be written: %1</source>
        <translation>Die Aufzeichnung kann nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>The values cannot be written: %1</source>
        <translation>Die Werte können nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>The device has no address.</source>
        <translation>Das Gerät hat keine Adresse.</translation>
    </message>
    <message>
        <source>There is nothing to read.</source>
        <translation>Es gibt nichts zu lesen.</translation>
    </message>
    <message>
        <source>The data set has %1 members, but %2 values came.</source>
        <translation>Der Datensatz hat %1 Elemente, es kamen aber %2 Werte.</translation>
    </message>
    <message>
        <source>%1: the value does not have the form of its type</source>
        <translation>%1: der Wert hat nicht die Form seines Typs</translation>
    </message>
    <message>
        <source>The device has no %1.</source>
        <translation>Das Gerät hat kein %1.</translation>
    </message>
    <message>
        <source>The value to be written cannot be read.</source>
        <translation>Der zu schreibende Wert ist nicht lesbar.</translation>
    </message>
    <message>
        <source>Select the object first</source>
        <translation>Wählen Sie das Objekt zuerst an</translation>
    </message>
    <message>
        <source>%1 has the control model %2, but the command was made for %3: read the model of the device again.</source>
        <translation>%1 hat das Steuermodell %2, der Befehl ist aber für %3: Lesen Sie das Modell des Geräts erneut.</translation>
    </message>
    <message>
        <source>The command is not the one that was selected.</source>
        <translation>Der Befehl ist nicht derjenige, für den angewählt wurde.</translation>
    </message>
    <message>
        <source>The control request cannot be read.</source>
        <translation>Die Steueranforderung kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The control request is for %1, not for %2.</source>
        <translation>Die Steueranforderung gilt für %1, nicht für %2.</translation>
    </message>
    <message>
        <source>The control value is no finite number.</source>
        <translation>Der Steuerwert ist keine endliche Zahl.</translation>
    </message>
    <message>
        <source>%1 is no code of the check conditions.</source>
        <translation>%1 ist kein Code der Prüfbedingungen.</translation>
    </message>
    <message>
        <source>The test flag is 0 or 1, not %1.</source>
        <translation>Das Test-Flag ist 0 oder 1, nicht %1.</translation>
    </message>
    <message>
        <source>interlock check</source>
        <translation>Verriegelungsprüfung</translation>
    </message>
    <message>
        <source>synchrocheck</source>
        <translation>Synchrocheck</translation>
    </message>
    <message>
        <source>test</source>
        <translation>Test</translation>
    </message>
    <message>
        <source>The driver has not waited for the end of the operation.</source>
        <translation>Der Treiber hat das Ende des Schaltvorgangs nicht abgewartet.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not name a report control block.</source>
        <translation>„%1“ benennt keinen Report-Steuerblock.</translation>
    </message>
    <message>
        <source>The attribute &quot;%1&quot; of a report control block cannot be written.</source>
        <translation>Das Attribut „%1“ eines Report-Steuerblocks kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The value for %1 has %2 bytes instead of %3.</source>
        <translation>Der Wert für %1 hat %2 Bytes statt %3.</translation>
    </message>
    <message>
        <source>%1 cannot be negative.</source>
        <translation>%1 kann nicht negativ sein.</translation>
    </message>
    <message>
        <source>Buffer time and integrity period cannot be negative.</source>
        <translation>Pufferzeit und Integritätsperiode können nicht negativ sein.</translation>
    </message>
    <message>
        <source>enabled again after the association was lost</source>
        <translation>erneute Freigabe nach dem Verlust der Assoziation</translation>
    </message>
    <message>
        <source>The report control block %1 has no data set.</source>
        <translation>Der Report-Steuerblock %1 hat keinen Datensatz.</translation>
    </message>
    <message>
        <source>The device has not enabled %1 although it said so.</source>
        <translation>Das Gerät hat %1 nicht freigegeben, obwohl es dies bestätigt hat.</translation>
    </message>
    <message>
        <source>disabled</source>
        <translation>gesperrt</translation>
    </message>
    <message>
        <source>the driver is read-only.</source>
        <translation>der Treiber ist schreibgeschützt.</translation>
    </message>
    <message>
        <source>The report control block %1 could not be %2: %3</source>
        <translation>Report-Steuerblock %1: %2 nicht gelungen: %3</translation>
    </message>
    <message>
        <source>The device has disabled %1 by itself.</source>
        <translation>Das Gerät hat %1 von sich aus gesperrt.</translation>
    </message>
    <message>
        <source>enabled again</source>
        <translation>erneute Freigabe</translation>
    </message>
    <message>
        <source>A report of the device could not be read: %1</source>
        <translation>Ein Report des Geräts war nicht lesbar: %1</translation>
    </message>
    <message>
        <source>The reports of %1 have no value for %2: %3.</source>
        <translation>Die Reports von %1 haben keinen Wert für %2: %3.</translation>
    </message>
    <message>
        <source>A value of %1 in the reports of %2 does not have the form of its type.</source>
        <translation>Ein Wert von %1 in den Reports von %2 hat nicht die Form seines Typs.</translation>
    </message>
    <message>
        <source>The buffer of %1 has overflown: older changes are lost.</source>
        <translation>Der Puffer von %1 ist übergelaufen: Ältere Änderungen sind verloren.</translation>
    </message>
    <message>
        <source>enabled</source>
        <translation>freigegeben</translation>
    </message>
    <message>
        <source>The member %1 of the data set of %2 is no data of the device&apos;s model.</source>
        <translation>Das Element %1 des Datensatzes von %2 gehört nicht zum Modell des Geräts.</translation>
    </message>
    <message>
        <source>%1 is busy with another file: %2.</source>
        <translation>%1 ist mit einer anderen Datei beschäftigt: %2.</translation>
    </message>
    <message>
        <source>listing &quot;%1&quot;</source>
        <translation>Auflisten von „%1“</translation>
    </message>
    <message>
        <source>fetching &quot;%1&quot;</source>
        <translation>Holen von „%1“</translation>
    </message>
    <message>
        <source>%1 is too large: at most %2 octets can be fetched.</source>
        <translation>%1 ist zu groß: Höchstens %2 Oktette können geholt werden.</translation>
    </message>
    <message>
        <source>deleting &quot;%1&quot;</source>
        <translation>Löschen von „%1“</translation>
    </message>
    <message>
        <source>There is no name of a file.</source>
        <translation>Es ist kein Dateiname angegeben.</translation>
    </message>
    <message>
        <source>There is no file to send.</source>
        <translation>Es ist keine zu sendende Datei angegeben.</translation>
    </message>
    <message>
        <source>There is no file &quot;%1&quot; on this computer.</source>
        <translation>Auf diesem Rechner gibt es keine Datei „%1“.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: %2.</source>
        <translation>„%1“ kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large for a file of a device.</source>
        <translation>„%1“ ist zu groß für eine Datei eines Geräts.</translation>
    </message>
    <message>
        <source>sending &quot;%1&quot;</source>
        <translation>Senden von „%1“</translation>
    </message>
    <message>
        <source>%1 (%2 octets)</source>
        <translation>%1 (%2 Oktette)</translation>
    </message>
    <message>
        <source>The device has no logical device &quot;%1&quot;.</source>
        <translation>Das Gerät hat kein logisches Gerät „%1“.</translation>
    </message>
    <message>
        <source>%1 has no setting group control block.</source>
        <translation>%1 hat keinen Parametersatz-Steuerblock.</translation>
    </message>
    <message>
        <source>%1 has more setting groups than can be counted: %2.</source>
        <translation>%1 hat mehr Parametersätze, als gezählt werden können: %2.</translation>
    </message>
    <message>
        <source>No setting group of %1 is being edited: select the group to edit first.</source>
        <translation>Von %1 wird kein Parametersatz geändert: Wählen Sie zuerst den zu ändernden Parametersatz.</translation>
    </message>
    <message>
        <source>Settings are read under SG or SE, not under &quot;%1&quot;.</source>
        <translation>Parameter werden unter SG oder SE gelesen, nicht unter „%1“.</translation>
    </message>
    <message>
        <source>%1 has no setting %2.</source>
        <translation>%1 hat keinen Parameter %2.</translation>
    </message>
    <message>
        <source>%1. The changes are not confirmed.</source>
        <translation>%1. Die Änderungen sind nicht bestätigt.</translation>
    </message>
    <message>
        <source>%1 has the setting groups 1 to %2; there is no group %3.</source>
        <translation>%1 hat die Parametersätze 1 bis %2; einen Parametersatz %3 gibt es nicht.</translation>
    </message>
    <message>
        <source>Another window has selected the object since: select it here first.</source>
        <translation>Ein anderes Fenster hat das Objekt inzwischen angewählt: Wählen Sie es zuerst hier an.</translation>
    </message>
    <message>
        <source>The object was selected for different commands; which one is meant is not known: cancel the selection and select it again.</source>
        <translation>Das Objekt wurde für verschiedene Befehle angewählt; welcher gemeint ist, ist nicht bekannt: Wählen Sie das Objekt ab und erneut an.</translation>
    </message>
    <message>
        <source>%1 is no originator category; they go from 0 to 8.</source>
        <translation>%1 ist keine Kategorie des Auslösers; die Kategorien gehen von 0 bis 8.</translation>
    </message>
    <message>
        <source>category %1</source>
        <translation>Kategorie %1</translation>
    </message>
    <message>
        <source>It is not known whether the object was selected.</source>
        <translation>Es ist nicht bekannt, ob das Objekt angewählt wurde.</translation>
    </message>
    <message>
        <source>It is not known whether the command was carried out; look at the position.</source>
        <translation>Es ist nicht bekannt, ob der Befehl ausgeführt wurde; prüfen Sie die Stellung.</translation>
    </message>
    <message>
        <source>It is not known whether the command was cancelled; look at the position.</source>
        <translation>Es ist nicht bekannt, ob der Befehl abgebrochen wurde; prüfen Sie die Stellung.</translation>
    </message>
    <message>
        <source>%1 (told late)</source>
        <translation>%1 (verspätet gemeldet)</translation>
    </message>
    <message>
        <source>%1: the command that was not answered in time was carried out.</source>
        <translation>%1: Der Befehl, der nicht rechtzeitig beantwortet wurde, wurde ausgeführt.</translation>
    </message>
    <message>
        <source>An internal error of the driver ended the association.</source>
        <translation>Ein interner Fehler des Treibers hat die Assoziation beendet.</translation>
    </message>
    <message>
        <source>An internal error of the driver ended the association: %1.</source>
        <translation>Ein interner Fehler des Treibers hat die Assoziation beendet: %1.</translation>
    </message>
    <message>
        <source>The device has not answered earlier requests; the question whether it is there waits for a place behind them.</source>
        <translation>Das Gerät hat frühere Anfragen nicht beantwortet; die Frage, ob es noch da ist, wartet hinter ihnen auf einen Platz.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has %2 characters; the name of a data set has at most %3.</source>
        <translation>„%1“ hat %2 Zeichen; der Name eines Datensatzes hat höchstens %3.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names no functional constraint, which each member of a data set needs.</source>
        <translation>„%1“ nennt keinen Functional Constraint, den jedes Element eines Datensatzes braucht.</translation>
    </message>
    <message>
        <source>This is not the device that the window was opened for: open it again.</source>
        <translation>Das ist nicht das Gerät, für das das Fenster geöffnet wurde: Öffnen Sie es erneut.</translation>
    </message>
    <message>
        <source>The IED %1 of the file has no access point &quot;%2&quot; with a server.</source>
        <translation>Das IED %1 der Datei hat keinen Zugangspunkt „%2“ mit einem Server.</translation>
    </message>
    <message>
        <source>The device has none of the logical devices that the file describes for %1, such as %2.</source>
        <translation>Das Gerät hat keines der logischen Geräte, die die Datei für %1 beschreibt, etwa %2.</translation>
    </message>
    <message>
        <source>%1 stays open on the device, which has few open files: %2</source>
        <translation>%1 bleibt auf dem Gerät geöffnet, das nur wenige offene Dateien zulässt: %2</translation>
    </message>
    <message>
        <source>%1 comes too slowly: %2 octets so far, less than %3 in a second.</source>
        <translation>%1 kommt zu langsam: bisher %2 Oktette, weniger als %3 in einer Sekunde.</translation>
    </message>
    <message>
        <source>%1 events of the device were dropped, because they were not taken in time.</source>
        <translation>%1 Ereignisse des Geräts wurden verworfen, weil sie nicht rechtzeitig abgeholt wurden.</translation>
    </message>
    <message>
        <source>The configuration of the device reserves %1; that cannot be changed.</source>
        <translation>Die Konfiguration des Geräts reserviert %1; das kann nicht geändert werden.</translation>
    </message>
    <message>
        <source>%1 was not enabled in time.</source>
        <translation>%1 wurde nicht rechtzeitig freigegeben.</translation>
    </message>
    <message>
        <source>%1 It was left alone.</source>
        <translation>%1 Daran wurde nichts geändert.</translation>
    </message>
    <message>
        <source>without sequence numbers lost reports cannot be noticed</source>
        <translation>ohne Folgenummern sind verlorene Reports nicht zu bemerken</translation>
    </message>
    <message>
        <source>%1 could not be enabled, and this was left behind as it was written: %2.</source>
        <translation>%1 konnte nicht freigegeben werden, und Folgendes blieb so stehen, wie es geschrieben wurde: %2.</translation>
    </message>
    <message>
        <source>no longer waited for</source>
        <translation>darauf wird nicht mehr gewartet</translation>
    </message>
    <message>
        <source>member %1</source>
        <translation>Element %1</translation>
    </message>
    <message>
        <source>Reports of %1 are missing; its data set is read whole.</source>
        <translation>Es fehlen Reports von %1; sein Datensatz wird ganz gelesen.</translation>
    </message>
    <message>
        <source>Parts of a report of %1 are missing; its data set is read whole.</source>
        <translation>Es fehlen Teile eines Reports von %1; sein Datensatz wird ganz gelesen.</translation>
    </message>
    <message>
        <source>The device does not know the last entry of %1 any more: changes since then may be lost, or come again.</source>
        <translation>Das Gerät kennt den letzten Eintrag von %1 nicht mehr: Änderungen seitdem können verloren sein oder noch einmal kommen.</translation>
    </message>
    <message>
        <source>A report of %1 is of another data set than the block had when it was enabled.</source>
        <translation>Ein Report von %1 gehört zu einem anderen Datensatz, als der Block bei seiner Freigabe hatte.</translation>
    </message>
    <message>
        <source>A report of the device may be of %1 or of another block with other data; it was not taken.</source>
        <translation>Ein Report des Geräts kann von %1 oder von einem anderen Block mit anderen Daten stammen; er wurde nicht übernommen.</translation>
    </message>
    <message>
        <source>The device described %1 in parts only, so what the reports of %2 say of it cannot be understood; it is polled.</source>
        <translation>Das Gerät hat %1 nur in Teilen beschrieben, daher ist nicht zu verstehen, was die Reports von %2 darüber sagen; der Wert wird abgefragt.</translation>
    </message>
    <message>
        <source>The data set of %1 cannot be read: %2</source>
        <translation>Der Datensatz von %1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>The data set of %1 has %2 members instead of %3.</source>
        <translation>Der Datensatz von %1 hat %2 Elemente statt %3.</translation>
    </message>
    <message>
        <source>The data set of %1 has no value for %2: %3.</source>
        <translation>Der Datensatz von %1 hat keinen Wert für %2: %3.</translation>
    </message>
    <message>
        <source>A value of %1 in the data set of %2 does not have the form of its type.</source>
        <translation>Ein Wert von %1 im Datensatz von %2 hat nicht die Form seines Typs.</translation>
    </message>
    <message>
        <source>%1 is enabled by another client, which the device does not name.</source>
        <translation>%1 ist von einem anderen Client freigegeben, den das Gerät nicht nennt.</translation>
    </message>
    <message>
        <source>%1 is reserved by another client, which the device does not name.</source>
        <translation>%1 ist von einem anderen Client reserviert, den das Gerät nicht nennt.</translation>
    </message>
    <message>
        <source>%1 is enabled by the client %2.</source>
        <translation>%1 ist vom Client %2 freigegeben.</translation>
    </message>
    <message>
        <source>%1 is reserved by the client %2.</source>
        <translation>%1 ist vom Client %2 reserviert.</translation>
    </message>
    <message>
        <source>%1 is enabled by another association of this computer (%2).</source>
        <translation>%1 ist von einer anderen Assoziation dieses Rechners (%2) freigegeben.</translation>
    </message>
    <message>
        <source>%1 is reserved by another association of this computer (%2).</source>
        <translation>%1 ist von einer anderen Assoziation dieses Rechners (%2) reserviert.</translation>
    </message>
    <message>
        <source>Another client is editing group %1 of %2.</source>
        <translation>Ein anderer Client ändert gerade Parametersatz %1 von %2.</translation>
    </message>
    <message>
        <source>Group %1 of %2 was chosen for editing in another window: select the group to edit first.</source>
        <translation>Parametersatz %1 von %2 wurde in einem anderen Fenster zum Ändern gewählt: Wählen Sie zuerst den zu ändernden Parametersatz.</translation>
    </message>
    <message>
        <source>The device has given up the edit of group %1 of %2: select the group to edit again.</source>
        <translation>Das Gerät hat das Ändern von Parametersatz %1 von %2 aufgegeben: Wählen Sie den zu ändernden Parametersatz erneut.</translation>
    </message>
    <message>
        <source>%1 has no settings that can be edited: the device describes none under SE.</source>
        <translation>%1 hat keine Parameter, die geändert werden können: Das Gerät beschreibt keine unter SE.</translation>
    </message>
    <message>
        <source>%1 It is not known whether the changes of group %2 were taken over: select the group and look.</source>
        <translation>%1 Es ist nicht bekannt, ob die Änderungen von Parametersatz %2 übernommen wurden: Wählen Sie den Parametersatz und sehen Sie nach.</translation>
    </message>
    <message>
        <source>These are the settings of the active group; choose the group to edit first.</source>
        <translation>Dies sind die Parameter des aktiven Parametersatzes; wählen Sie zuerst den zu ändernden Parametersatz.</translation>
    </message>
    <message>
        <source>%1 has accepted group %2, but group %3 is still the active one.</source>
        <translation>%1 hat Parametersatz %2 angenommen, aber aktiv ist immer noch Parametersatz %3.</translation>
    </message>
    <message>
        <source>%1 Group %2 is the active one.</source>
        <translation>%1 Aktiv ist Parametersatz %2.</translation>
    </message>
    <message>
        <source>%1 It is not known whether group %2 became active: look at the active group.</source>
        <translation>%1 Es ist nicht bekannt, ob Parametersatz %2 aktiv geworden ist: Sehen Sie nach, welcher Parametersatz aktiv ist.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1 It is not known whether the device is editing group %2: select the group to edit again.</source>
        <translation>%1 Es ist nicht bekannt, ob auf dem Gerät Parametersatz %2 zum Ändern gewählt ist: Wählen Sie den zu ändernden Parametersatz erneut.</translation>
    </message>
    <message>
        <source>%1; it is not known whether the setting was written.</source>
        <translation>%1; es ist nicht bekannt, ob der Parameter geschrieben wurde.</translation>
    </message>
    <message>
        <source>Values that are not current since %1: %2. The device does not answer when it is asked for %3.</source>
        <translation>Nicht aktuelle Werte seit %1: %2. Das Gerät antwortet nicht, wenn es nach %3 gefragt wird.</translation>
    </message>
    <message>
        <source>Values that are not current since %1: %2. The device cannot give %3 for the moment.</source>
        <translation>Nicht aktuelle Werte seit %1: %2. Das Gerät kann %3 im Moment nicht geben.</translation>
    </message>
    <message>
        <source>Values that the device refuses and that are not asked for again: %1 (%2).</source>
        <translation>Werte, die das Gerät verweigert und nach denen nicht mehr gefragt wird: %1 (%2).</translation>
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
        <translation>Fehlgeschlagen (%1)</translation>
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
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Operation</translation>
    </message>
    <message>
        <source>Arguments</source>
        <translation>Argumente</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>IEC 61850 Workbench</source>
        <translation>IEC-61850-Workbench</translation>
    </message>
    <message>
        <source>T&amp;ry Again</source>
        <translation>Erneut &amp;versuchen</translation>
    </message>
    <message>
        <source>&amp;Open SCL File…</source>
        <translation>SCL-Datei ö&amp;ffnen …</translation>
    </message>
    <message>
        <source>Open De&amp;monstration Device</source>
        <translation>De&amp;monstrationsgerät öffnen</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>&amp;Gerät</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Werkzeuge</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Werkzeugleiste</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Befunde</translation>
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
        <translation>&amp;Demonstrationsgerät öffnen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>Read Model &amp;Again</source>
        <translation>Modell &amp;erneut lesen</translation>
    </message>
    <message>
        <source>F5</source>
        <translation>F5</translation>
    </message>
    <message>
        <source>&amp;Remove from List</source>
        <translation>Aus der &amp;Liste entfernen</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Del</translation>
    </message>
    <message>
        <source>&amp;Clear Journal</source>
        <translation>&amp;Journal leeren</translation>
    </message>
    <message>
        <source>&amp;Operator Guide</source>
        <translation>&amp;Bedienungsanleitung</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Info</translation>
    </message>
    <message>
        <source>Loading was cancelled.</source>
        <translation>Das Laden wurde abgebrochen.</translation>
    </message>
    <message>
        <source>No call to the driver yet. Every request that a tool makes is listed here.</source>
        <translation>Noch kein Aufruf an den Treiber. Jede Anforderung eines Werkzeugs wird hier aufgeführt.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Reading %1 (%2 files left)</source>
        <translation>%1 wird gelesen (noch %2 Dateien)</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>%1 wird gelesen</translation>
    </message>
    <message>
        <source>The IEC 61850 tools are not available.
%1
%2 %3</source>
        <translation>Die IEC-61850-Werkzeuge sind nicht verfügbar.
%1
%2 %3</translation>
    </message>
    <message>
        <source>Select a device to see what was noticed while its file was read.</source>
        <translation>Wählen Sie ein Gerät aus, um zu sehen, was beim Lesen seiner Datei aufgefallen ist.</translation>
    </message>
    <message>
        <source>Findings: %1</source>
        <translation>Befunde: %1</translation>
    </message>
    <message>
        <source>Findings: %1 (%2)</source>
        <translation>Befunde: %1 (%2)</translation>
    </message>
    <message>
        <source>No findings: everything in the file of this device was understood.</source>
        <translation>Keine Befunde: Alles in der Datei dieses Geräts wurde verstanden.</translation>
    </message>
    <message>
        <source>The model cannot be read. %1
Read it again with %2, or remove the device from the list.</source>
        <translation>Das Modell kann nicht gelesen werden. %1
Lesen Sie es mit %2 erneut, oder entfernen Sie das Gerät aus der Liste.</translation>
    </message>
    <message>
        <source>Open SCL File</source>
        <translation>SCL-Datei öffnen</translation>
    </message>
    <message>
        <source>SCL files (*.icd *.cid *.iid *.scd *.sed *.ssd *.ICD *.CID *.IID *.SCD *.SED *.SSD *.xml)</source>
        <translation>SCL-Dateien (*.icd *.cid *.iid *.scd *.sed *.ssd *.ICD *.CID *.IID *.SCD *.SED *.SSD *.xml)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Further files that cannot be used: %1</source>
        <translation>Weitere Dateien, die nicht zu verwenden sind: %1</translation>
    </message>
    <message>
        <source>%1 was taken off the list; its file stays where it is.</source>
        <translation>%1 wurde aus der Liste genommen; die Datei bleibt, wo sie ist.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>IEC 61850 Workbench %1

A small host for the IEC 61850 tools: it lists devices, loads the plug-in and shows every request that its tools make.

Apache License 2.0</source>
        <translation>IEC-61850-Workbench %1

Eine kleine Umgebung für die IEC-61850-Werkzeuge: Sie führt Geräte auf, lädt das Plug-in und zeigt jede Anforderung seiner Werkzeuge.

Apache License 2.0</translation>
    </message>
    <message>
        <source>No device yet: add one, or open an SCL file</source>
        <translation>Noch kein Gerät: Fügen Sie eines hinzu, oder öffnen Sie eine SCL-Datei</translation>
    </message>
    <message>
        <source>&amp;Add Device…</source>
        <translation>Gerät hin&amp;zufügen …</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Änderungen</translation>
    </message>
    <message>
        <source>Add a device from an SCL file, without a connection</source>
        <translation>Ein Gerät aus einer SCL-Datei hinzufügen, ohne Verbindung</translation>
    </message>
    <message>
        <source>&amp;Start Simulated Device…</source>
        <translation>&amp;Simuliertes Gerät starten …</translation>
    </message>
    <message>
        <source>Simulate a device of an SCL file and connect to it</source>
        <translation>Ein Gerät einer SCL-Datei simulieren und mit ihm verbinden</translation>
    </message>
    <message>
        <source>Add &amp;Device…</source>
        <translation>Gerät &amp;hinzufügen …</translation>
    </message>
    <message>
        <source>Add Device</source>
        <translation>Gerät hinzufügen</translation>
    </message>
    <message>
        <source>Add a device that is reached over the network</source>
        <translation>Ein Gerät hinzufügen, das über das Netz erreicht wird</translation>
    </message>
    <message>
        <source>Ctrl+N</source>
        <translation>Ctrl+N</translation>
    </message>
    <message>
        <source>&amp;Edit Device…</source>
        <translation>Gerät &amp;bearbeiten …</translation>
    </message>
    <message>
        <source>F2</source>
        <translation>F2</translation>
    </message>
    <message>
        <source>&amp;Connect</source>
        <translation>&amp;Verbinden</translation>
    </message>
    <message>
        <source>Connect to the selected device, now and at the next start</source>
        <translation>Mit dem gewählten Gerät verbinden, jetzt und beim nächsten Start</translation>
    </message>
    <message>
        <source>Leave the selected device, until it is connected again</source>
        <translation>Das gewählte Gerät verlassen, bis es wieder verbunden wird</translation>
    </message>
    <message>
        <source>&amp;Start Simulation</source>
        <translation>&amp;Simulation starten</translation>
    </message>
    <message>
        <source>S&amp;top Simulation</source>
        <translation>Si&amp;mulation beenden</translation>
    </message>
    <message>
        <source>End the simulated device, as if it had lost its power</source>
        <translation>Das simulierte Gerät beenden, als hätte es seine Versorgung verloren</translation>
    </message>
    <message>
        <source>&amp;PDU Trace…</source>
        <translation>&amp;PDU-Mitschnitt …</translation>
    </message>
    <message>
        <source>Show what is exchanged with the selected device</source>
        <translation>Den Datenverkehr mit dem gewählten Gerät zeigen</translation>
    </message>
    <message>
        <source>Sa&amp;ve Capture…</source>
        <translation>Auf&amp;zeichnung speichern …</translation>
    </message>
    <message>
        <source>Save what was exchanged with the selected device for a protocol analyser</source>
        <translation>Den Datenverkehr mit dem gewählten Gerät für einen Protokollanalysator speichern</translation>
    </message>
    <message>
        <source>E&amp;xport Values…</source>
        <translation>&amp;Werte exportieren …</translation>
    </message>
    <message>
        <source>Save the values of the selected device as a table</source>
        <translation>Die Werte des gewählten Geräts als Tabelle speichern</translation>
    </message>
    <message>
        <source>Refuse everything that changes something on a device</source>
        <translation>Alles ablehnen, was auf einem Gerät etwas ändert</translation>
    </message>
    <message>
        <source>Open &amp;Folder of the Change Journal</source>
        <translation>&amp;Ordner des Änderungsjournals öffnen</translation>
    </message>
    <message>
        <source>Nothing was changed on a device yet. Every write, command and transfer is listed here%1.</source>
        <translation>Noch wurde auf keinem Gerät etwas geändert. Was geschrieben, geschaltet oder übertragen wird, wird hier aufgeführt%1.</translation>
    </message>
    <message>
        <source> and kept in
%1</source>
        <translation> und abgelegt in
%1</translation>
    </message>
    <message>
        <source>Read-only: nothing is changed on devices</source>
        <translation>Schreibschutz: Auf Geräten wird nichts geändert</translation>
    </message>
    <message>
        <source>Reading the model of %1</source>
        <translation>Das Modell von %1 wird gelesen</translation>
    </message>
    <message>
        <source>This device has no SCL file; its model is read from the device itself.</source>
        <translation>Dieses Gerät hat keine SCL-Datei; sein Modell wird vom Gerät selbst gelesen.</translation>
    </message>
    <message>
        <source>Start Simulated Device</source>
        <translation>Simuliertes Gerät starten</translation>
    </message>
    <message>
        <source>%1 was taken off the list.</source>
        <translation>%1 wurde aus der Liste genommen.</translation>
    </message>
    <message>
        <source>Disco&amp;nnect</source>
        <translation>&amp;Trennen</translation>
    </message>
    <message>
        <source>Read-On&amp;ly</source>
        <translation>Schreibsch&amp;utz</translation>
    </message>
    <message>
        <source>Save Capture</source>
        <translation>Aufzeichnung speichern</translation>
    </message>
    <message>
        <source>Captures (*.pcapng)</source>
        <translation>Aufzeichnungen (*.pcapng)</translation>
    </message>
    <message>
        <source>Export Values</source>
        <translation>Werte exportieren</translation>
    </message>
    <message>
        <source>Tables (*.csv)</source>
        <translation>Tabellen (*.csv)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2</source>
        <translation>„%1“ kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was written.</source>
        <translation>„%1“ wurde geschrieben.</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Trennen</translation>
    </message>
    <message>
        <source>Read-Only</source>
        <translation>Schreibschutz</translation>
    </message>
    <message>
        <source>The SCL file of this device was only compared with the device. Open it as an SCL file to see its findings.</source>
        <translation>Die SCL-Datei dieses Geräts wurde nur mit dem Gerät verglichen. Ihre Befunde zeigt „SCL-Datei öffnen“.</translation>
    </message>
    <message>
        <source>Con&amp;firm</source>
        <translation>Bestäti&amp;gen</translation>
    </message>
    <message>
        <source>&amp;Commands before they are sent</source>
        <translation>&amp;Befehle vor dem Senden</translation>
    </message>
    <message>
        <source>&amp;Everything that changes a device</source>
        <translation>&amp;Alles, was auf einem Gerät etwas ändert</translation>
    </message>
    <message>
        <source>&amp;Nothing</source>
        <translation>&amp;Nichts</translation>
    </message>
    <message>
        <source>%1 is away since %2</source>
        <translation>%1 ist seit %2 nicht erreichbar</translation>
    </message>
    <message>
        <source>Devices away: %1, the first since %2</source>
        <translation>Nicht erreichbare Geräte: %1, das erste seit %2</translation>
    </message>
</context>
<context>
    <name>OfflineDriverService</name>
    <message>
        <source>Not connected to the device</source>
        <translation>Keine Verbindung zum Gerät</translation>
    </message>
    <message>
        <source>There is no device %1 on this driver.</source>
        <translation>Auf diesem Treiber gibt es kein Gerät %1.</translation>
    </message>
</context>
<context>
    <name>SclImport</name>
    <message>
        <source>The file &quot;%1&quot; cannot be opened: %2.</source>
        <translation>Die Datei „%1“ kann nicht geöffnet werden: %2.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>The file describes no IED.</source>
        <translation>Die Datei beschreibt kein IED.</translation>
    </message>
    <message>
        <source>There is no IED &quot;%1&quot; in the file.</source>
        <translation>Es gibt kein IED „%1“ in der Datei.</translation>
    </message>
    <message>
        <source>The file describes several IEDs; one must be chosen.</source>
        <translation>Die Datei beschreibt mehrere IEDs; eines muss gewählt werden.</translation>
    </message>
</context>
<context>
    <name>SimulatedDevice</name>
    <message>
        <source>The files of the simulated device cannot be written to &quot;%1&quot;.</source>
        <translation>Die Dateien des simulierten Geräts können nicht in „%1“ geschrieben werden.</translation>
    </message>
    <message>
        <source>The device cannot be simulated: %1</source>
        <translation>Das Gerät kann nicht simuliert werden: %1</translation>
    </message>
</context>
<context>
    <name>TableView</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
</context>
<context>
    <name>Tour</name>
    <message>
        <source>a message: &quot;%1: %2&quot;</source>
        <translation>eine Meldung: „%1: %2“</translation>
    </message>
    <message>
        <source>the window &quot;%1&quot;</source>
        <translation>das Fenster „%1“</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be made.</source>
        <translation>Der Ordner „%1“ kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>The plug-in &quot;%1&quot; is not available: %2</source>
        <translation>Das Plug-in „%1“ ist nicht verfügbar: %2</translation>
    </message>
    <message>
        <source>The demonstration device was not read in time.</source>
        <translation>Das Demonstrationsgerät wurde nicht rechtzeitig gelesen.</translation>
    </message>
    <message>
        <source>The demonstration device cannot be read.</source>
        <translation>Das Demonstrationsgerät kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The second device cannot be read.</source>
        <translation>Das zweite Gerät kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The plug-in offers no tool number %1 for the demonstration device.</source>
        <translation>Das Plug-in bietet kein Werkzeug Nummer %1 für das Demonstrationsgerät.</translation>
    </message>
    <message>
        <source>Instead of the IED browser came %1.</source>
        <translation>Statt des IED-Browsers kam %1.</translation>
    </message>
    <message>
        <source>The IED browser did not appear.</source>
        <translation>Der IED-Browser ist nicht erschienen.</translation>
    </message>
    <message>
        <source>The IED browser has no tree.</source>
        <translation>Der IED-Browser hat keinen Baum.</translation>
    </message>
    <message>
        <source>The demonstration device has no switch.</source>
        <translation>Das Demonstrationsgerät hat kein Schaltgerät.</translation>
    </message>
    <message>
        <source>The context menu did not appear.</source>
        <translation>Das Kontextmenü ist nicht erschienen.</translation>
    </message>
    <message>
        <source>The window &quot;%1&quot; did not appear.</source>
        <translation>Das Fenster „%1“ ist nicht erschienen.</translation>
    </message>
    <message>
        <source>The journal stayed empty.</source>
        <translation>Das Journal blieb leer.</translation>
    </message>
    <message>
        <source>Instead of &quot;%1&quot; came %2.</source>
        <translation>Statt „%1“ kam %2.</translation>
    </message>
    <message>
        <source>The IED browser has no entry &quot;%1&quot;.</source>
        <translation>Der IED-Browser hat keinen Eintrag „%1“.</translation>
    </message>
    <message>
        <source>The picture &quot;%1&quot; cannot be saved.</source>
        <translation>Das Bild „%1“ kann nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>The simulated device was not connected in time.</source>
        <translation>Die Verbindung mit dem simulierten Gerät kam nicht rechtzeitig zustande.</translation>
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
        <translation>PDU-Mitschnitt: %1</translation>
    </message>
    <message>
        <source>Nothing was exchanged with this device yet.</source>
        <translation>Mit diesem Gerät wurde noch nichts ausgetauscht.</translation>
    </message>
    <message>
        <source>&amp;Save Capture…</source>
        <translation>Aufzeichnung &amp;speichern …</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>&amp;Leeren</translation>
    </message>
</context>
<context>
    <name>TraceModel</name>
    <message>
        <source>sent</source>
        <translation>gesendet</translation>
    </message>
    <message>
        <source>received</source>
        <translation>empfangen</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Richtung</translation>
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
        <translation>%1 passt nicht in %2.</translation>
    </message>
    <message>
        <source>%1 is no finite number.</source>
        <translation>%1 ist keine endliche Zahl.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds characters that %2 does not have.</source>
        <translation>„%1“ enthält Zeichen, die %2 nicht kennt.</translation>
    </message>
    <message>
        <source>There is no value to write.</source>
        <translation>Es gibt keinen Wert zum Schreiben.</translation>
    </message>
    <message>
        <source>A value of type %1 cannot be written as a whole.</source>
        <translation>Ein Wert vom Typ %1 kann nicht als Ganzes geschrieben werden.</translation>
    </message>
    <message>
        <source>The text of %1 is longer than can be shown, so it can only be read.</source>
        <translation>Der Text von %1 ist länger, als angezeigt werden kann; er kann daher nur gelesen werden.</translation>
    </message>
    <message>
        <source>%1 holds octets that are no text, so it can only be read.</source>
        <translation>%1 enthält Oktette, die kein Text sind, und kann daher nur gelesen werden.</translation>
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
        <translation>„%1“ ist nicht zu verwenden: %2</translation>
    </message>
    <message>
        <source>Logical devices: %1, logical nodes: %2, data attributes: %3</source>
        <translation>Logische Geräte: %1, logische Knoten: %2, Datenattribute: %3</translation>
    </message>
    <message>
        <source>Loading was cancelled.</source>
        <translation>Das Laden wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Another workbench uses the list of devices in &quot;%1&quot;: what is changed in this one is not kept.</source>
        <translation>Eine andere Workbench verwendet die Geräteliste in „%1“: Was in dieser hier geändert wird, bleibt nicht erhalten.</translation>
    </message>
    <message>
        <source>The list of devices in &quot;%1&quot; cannot be locked: what is changed is not kept.</source>
        <translation>Die Geräteliste in „%1“ kann nicht gesperrt werden: Was geändert wird, bleibt nicht erhalten.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>The standard output cannot be written.</source>
        <translation>In die Standardausgabe kann nicht geschrieben werden.</translation>
    </message>
</context>
</TS>
