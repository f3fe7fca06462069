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
    <message>
        <source>Acc&amp;ess point of the IED:</source>
        <translation>&amp;Zugangspunkt des IED:</translation>
    </message>
    <message>
        <source>Which of the IED&apos;s access points the device is, where the file describes several</source>
        <translation>Welcher Zugangspunkt des IED das Gerät ist, wenn die Datei mehrere beschreibt</translation>
    </message>
    <message>
        <source>Accept certificates that are made out to &amp;others</source>
        <translation>Auch Zertifikate annehmen, die auf an&amp;dere ausgestellt sind</translation>
    </message>
    <message>
        <source>Unsafe: whoever holds the key of any certificate of these authorities can pose as this device. Better enter the name that its certificate has, or its fingerprint.</source>
        <translation>Unsicher: Wer den Schlüssel irgendeines Zertifikats dieser Zertifizierungsstellen besitzt, kann sich als dieses Gerät ausgeben. Geben Sie besser den Namen, der in seinem Zertifikat steht, oder seinen Fingerabdruck ein.</translation>
    </message>
    <message>
        <source>the one with the device&apos;s address</source>
        <translation>der mit der Adresse des Geräts</translation>
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
    <message>
        <source>A report control block could not be %1: %2</source>
        <translation>Report-Steuerblock: %1 nicht gelungen: %2</translation>
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
        <translation>%1 trägt den Namen des Ausstellers „%2“, aber nicht dessen Signatur.</translation>
    </message>
    <message>
        <source>%1 cannot be checked: the revocation list of its issuer &quot;%2&quot; does not bear its signature.</source>
        <translation>%1 kann nicht geprüft werden: Die Sperrliste des Ausstellers „%2“ trägt nicht dessen Signatur.</translation>
    </message>
    <message>
        <source>%1 cannot be checked: the revocation list of its issuer &quot;%2&quot; is not valid yet.</source>
        <translation>%1 kann nicht geprüft werden: Die Sperrliste des Ausstellers „%2“ ist noch nicht gültig.</translation>
    </message>
    <message>
        <source>%1 cannot be checked: the revocation list of its issuer &quot;%2&quot; is out of date.</source>
        <translation>%1 kann nicht geprüft werden: Die Sperrliste des Ausstellers „%2“ ist veraltet.</translation>
    </message>
    <message>
        <source>%1 cannot be checked: there is no revocation list of its issuer &quot;%2&quot;.</source>
        <translation>%1 kann nicht geprüft werden: Vom Aussteller „%2“ gibt es keine Sperrliste.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>%1 kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>%1 expired on %2.</source>
        <translation>%1 ist seit %2 abgelaufen.</translation>
    </message>
    <message>
        <source>%1 has a key that is too short to be safe.</source>
        <translation>%1 hat einen Schlüssel, der zu kurz ist, um sicher zu sein.</translation>
    </message>
    <message>
        <source>%1 has a name that is none, or that something else has; it is left out.</source>
        <translation>%1 hat einen Namen, der keiner ist oder den etwas anderes schon hat; es wird ausgelassen.</translation>
    </message>
    <message>
        <source>%1 has been revoked.</source>
        <translation>%1 wurde gesperrt.</translation>
    </message>
    <message>
        <source>%1 has no %2.</source>
        <translation>%1 hat kein Attribut %2.</translation>
    </message>
    <message>
        <source>%1 is enabled already.</source>
        <translation>%1 ist bereits freigegeben.</translation>
    </message>
    <message>
        <source>%1 is in the device already, perhaps the only whole version that an upload before this one has left: save or delete it first. Nothing was changed on the device.</source>
        <translation>%1 ist bereits auf dem Gerät, vielleicht als einzige vollständige Fassung, die ein früheres Hochladen hinterlassen hat: Speichern oder löschen Sie diese Datei zuerst. Auf dem Gerät wurde nichts geändert.</translation>
    </message>
    <message>
        <source>%1 is in the device and may be incomplete.</source>
        <translation>%1 ist auf dem Gerät und kann unvollständig sein.</translation>
    </message>
    <message>
        <source>%1 is larger, or nested deeper, than what is taken; it is left out.</source>
        <translation>%1 ist größer oder tiefer geschachtelt als zugelassen und wird weggelassen.</translation>
    </message>
    <message>
        <source>%1 is no functional constraint.</source>
        <translation>%1 ist kein Functional Constraint.</translation>
    </message>
    <message>
        <source>%1 is no name of data.</source>
        <translation>%1 ist kein Name von Daten.</translation>
    </message>
    <message>
        <source>%1 is not a reference: %2.</source>
        <translation>%1 ist keine Referenz: %2.</translation>
    </message>
    <message>
        <source>%1 is not accepted: %2.</source>
        <translation>%1 wird nicht angenommen: %2.</translation>
    </message>
    <message>
        <source>%1 is not in the device.</source>
        <translation>%1 ist nicht auf dem Gerät.</translation>
    </message>
    <message>
        <source>%1 is not made out to the host that was asked for.</source>
        <translation>%1 ist nicht auf den Rechner ausgestellt, nach dem gefragt wurde.</translation>
    </message>
    <message>
        <source>%1 is not meant for this side of a TLS connection.</source>
        <translation>%1 ist nicht für diese Seite einer TLS-Verbindung bestimmt.</translation>
    </message>
    <message>
        <source>%1 is not the name of a data object that can be controlled.</source>
        <translation>%1 ist nicht der Name eines Datenobjekts, das gesteuert werden kann.</translation>
    </message>
    <message>
        <source>%1 is not the name of a data set.</source>
        <translation>%1 ist nicht der Name eines Datensatzes.</translation>
    </message>
    <message>
        <source>%1 is valid only from %2 on.</source>
        <translation>%1 ist erst ab %2 gültig.</translation>
    </message>
    <message>
        <source>%1 may be in the device, incomplete.</source>
        <translation>%1 ist vielleicht auf dem Gerät, aber unvollständig.</translation>
    </message>
    <message>
        <source>%1 may be incomplete.</source>
        <translation>%1 kann unvollständig sein.</translation>
    </message>
    <message>
        <source>%1 of %2 cannot be written: %3.</source>
        <translation>%1 von %2 kann nicht geschrieben werden: %3.</translation>
    </message>
    <message>
        <source>%1 of %2: %3.</source>
        <translation>%1 von %2: %3.</translation>
    </message>
    <message>
        <source>%1 of the control block cannot be %2.</source>
        <translation>Attribut %1 des Steuerblocks: %2 ist nicht möglich.</translation>
    </message>
    <message>
        <source>%1 of the member %2</source>
        <translation>%1 von Element %2</translation>
    </message>
    <message>
        <source>%1 was issued by &quot;%2&quot;, which is not trusted here.</source>
        <translation>%1 wurde von „%2“ ausgestellt; diesem Aussteller wird hier nicht vertraut.</translation>
    </message>
    <message>
        <source>%1 was issued by itself and is not trusted here.</source>
        <translation>%1 ist selbst ausgestellt, und ihm wird hier nicht vertraut.</translation>
    </message>
    <message>
        <source>%1 was not touched.</source>
        <translation>%1 wurde nicht angetastet.</translation>
    </message>
    <message>
        <source>%1 was replaced, but %2, a second copy of it, is left: delete it.</source>
        <translation>%1 wurde ersetzt, aber eine zweite Kopie bleibt als %2 zurück: Löschen Sie diese.</translation>
    </message>
    <message>
        <source>%1 was replaced, but %2, a second copy of it, may be in the device still: delete it.</source>
        <translation>%1 wurde ersetzt, aber eine zweite Kopie ist vielleicht noch als %2 auf dem Gerät: Löschen Sie diese.</translation>
    </message>
    <message>
        <source>%1, so the member &quot;%2&quot; does not exist.</source>
        <translation>%1, daher existiert das Element „%2“ nicht.</translation>
    </message>
    <message>
        <source>%1: %2 got an answer that does not match the question.</source>
        <translation>%1: Die Antwort auf %2 passt nicht zur Frage.</translation>
    </message>
    <message>
        <source>%1: %2 got no answer within %3.</source>
        <translation>%1: Keine Antwort auf %2 innerhalb von %3.</translation>
    </message>
    <message>
        <source>%1: %2 got no answer: %3.</source>
        <translation>%1: Keine Antwort auf %2: %3.</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation>%1: %2.</translation>
    </message>
    <message>
        <source>%1: a command of it cannot be cancelled.</source>
        <translation>%1: Ein Befehl kann hier nicht abgebrochen werden.</translation>
    </message>
    <message>
        <source>%1: it shows its status and cannot be operated.</source>
        <translation>%1: Zeigt nur seinen Zustand und kann nicht gesteuert werden.</translation>
    </message>
    <message>
        <source>%1: its control model knows no selection.</source>
        <translation>%1: Das Steuermodell kennt keine Anwahl.</translation>
    </message>
    <message>
        <source>%1: the command ended without success: %2.</source>
        <translation>%1: Der Befehl endete ohne Erfolg: %2.</translation>
    </message>
    <message>
        <source>%1: the command ended without success: the device does not say why.</source>
        <translation>%1: Der Befehl endete ohne Erfolg; das Gerät sagt nicht, warum.</translation>
    </message>
    <message>
        <source>%1: the device accepted the command late.</source>
        <translation>%1: Das Gerät hat den Befehl verspätet angenommen.</translation>
    </message>
    <message>
        <source>%1: the device accepted the command, but has not told within %2 how it ended.</source>
        <translation>%1: Das Gerät hat den Befehl angenommen, aber innerhalb von %2 nicht gemeldet, wie er endete.</translation>
    </message>
    <message>
        <source>%1: the device accepted the command, but the association ended before the command: %2.</source>
        <translation>%1: Das Gerät hat den Befehl angenommen, aber die Assoziation endete vor dem Befehl: %2.</translation>
    </message>
    <message>
        <source>%1: the device refuses %2: %3.</source>
        <translation>%1: Das Gerät lehnt %2 ab: %3.</translation>
    </message>
    <message>
        <source>%1: the file ended after %2 of %3 octets.</source>
        <translation>%1: Die Datei endete nach %2 von %3 Oktetten.</translation>
    </message>
    <message>
        <source>A UTC time has not 8 octets.</source>
        <translation>Eine UTC-Zeit hat nicht 8 Oktette.</translation>
    </message>
    <message>
        <source>A binary time has neither 4 nor 6 octets.</source>
        <translation>Eine Binärzeit hat weder 4 noch 6 Oktette.</translation>
    </message>
    <message>
        <source>A bit string does not say how many of its bits count.</source>
        <translation>Eine Bitfolge sagt nicht, wie viele ihrer Bits zählen.</translation>
    </message>
    <message>
        <source>A boolean has not one octet.</source>
        <translation>Ein boolescher Wert hat nicht genau ein Oktett.</translation>
    </message>
    <message>
        <source>A certificate in the file &quot;%1&quot; cannot be read.</source>
        <translation>Ein Zertifikat in der Datei „%1“ kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>A character is not allowed here, or does not belong to the file&apos;s encoding.</source>
        <translation>Ein Zeichen ist hier nicht erlaubt oder gehört nicht zur Kodierung der Datei.</translation>
    </message>
    <message>
        <source>A command is a structure, not %1.</source>
        <translation>Ein Befehl ist eine Struktur, nicht vom Typ %1.</translation>
    </message>
    <message>
        <source>A constraint of the object does not allow this.</source>
        <translation>Eine Einschränkung des Objekts lässt dies nicht zu.</translation>
    </message>
    <message>
        <source>A data unit of transport class 0 has a header of another length than 3.</source>
        <translation>Eine Dateneinheit der Transportklasse 0 hat einen Kopf, dessen Länge nicht 3 ist.</translation>
    </message>
    <message>
        <source>A file of this name exists already.</source>
        <translation>Eine Datei dieses Namens existiert bereits.</translation>
    </message>
    <message>
        <source>A floating-point number has neither 32 nor 64 bits.</source>
        <translation>Eine Gleitkommazahl hat weder 32 noch 64 Bit.</translation>
    </message>
    <message>
        <source>A number of an object identifier is too large.</source>
        <translation>Eine Zahl eines Objektbezeichners ist zu groß.</translation>
    </message>
    <message>
        <source>A parameter of a transport unit is longer than the unit&apos;s header.</source>
        <translation>Ein Parameter einer Transporteinheit ist länger als der Kopf der Einheit.</translation>
    </message>
    <message>
        <source>A presentation unit has no parameters of normal mode.</source>
        <translation>Eine Presentation-Einheit hat keine Parameter des Normalmodus.</translation>
    </message>
    <message>
        <source>A presentation unit has no user data.</source>
        <translation>Eine Presentation-Einheit hat keine Nutzdaten.</translation>
    </message>
    <message>
        <source>A presentation unit has too many values.</source>
        <translation>Eine Presentation-Einheit hat zu viele Werte.</translation>
    </message>
    <message>
        <source>A presentation value belongs to a context that was not agreed.</source>
        <translation>Ein Presentation-Wert gehört zu einem Kontext, der nicht vereinbart wurde.</translation>
    </message>
    <message>
        <source>A presentation value is encoded by rules that were not agreed.</source>
        <translation>Ein Presentation-Wert ist nach Regeln kodiert, die nicht vereinbart wurden.</translation>
    </message>
    <message>
        <source>A presentation value is in a form that is not supported.</source>
        <translation>Ein Presentation-Wert hat eine Form, die nicht unterstützt wird.</translation>
    </message>
    <message>
        <source>A primitive element has no definite length.</source>
        <translation>Ein einfaches Element hat keine bestimmte Länge.</translation>
    </message>
    <message>
        <source>A primitive element stands where a group belongs.</source>
        <translation>Ein einfaches Element steht, wo eine Gruppe hingehört.</translation>
    </message>
    <message>
        <source>A session parameter group holds itself.</source>
        <translation>Eine Session-Parametergruppe enthält sich selbst.</translation>
    </message>
    <message>
        <source>A session parameter is longer than the unit around it.</source>
        <translation>Ein Session-Parameter ist länger als die Einheit, in der er steht.</translation>
    </message>
    <message>
        <source>A session unit ends within a header.</source>
        <translation>Eine Session-Einheit endet innerhalb eines Kopfes.</translation>
    </message>
    <message>
        <source>A session unit ends within a length.</source>
        <translation>Eine Session-Einheit endet innerhalb einer Länge.</translation>
    </message>
    <message>
        <source>A session unit has the unknown code %1.</source>
        <translation>Eine Session-Einheit hat den unbekannten Code %1.</translation>
    </message>
    <message>
        <source>A session unit is followed by octets that belong to nothing.</source>
        <translation>Auf eine Session-Einheit folgen Oktette, die zu nichts gehören.</translation>
    </message>
    <message>
        <source>A setting group control stands in &quot;%1&quot; instead of the LLN0.</source>
        <translation>Eine Parametersatz-Steuerung steht in „%1“ statt im LLN0.</translation>
    </message>
    <message>
        <source>A tag number is too large.</source>
        <translation>Eine Tag-Nummer ist zu groß.</translation>
    </message>
    <message>
        <source>A token unit is not followed by a data transfer.</source>
        <translation>Auf eine Token-Einheit folgt keine Datenübertragung.</translation>
    </message>
    <message>
        <source>A transport packet says that it is %1 octets long, which leaves no room for its content.</source>
        <translation>Ein Transportpaket gibt als Länge %1 Oktette an; das lässt keinen Platz für seinen Inhalt.</translation>
    </message>
    <message>
        <source>A transport unit has the unknown code %1.</source>
        <translation>Eine Transporteinheit hat den unbekannten Code %1.</translation>
    </message>
    <message>
        <source>A transport unit is followed by octets that belong to nothing.</source>
        <translation>Auf eine Transporteinheit folgen Oktette, die zu nichts gehören.</translation>
    </message>
    <message>
        <source>A transport unit needs at least two octets.</source>
        <translation>Eine Transporteinheit braucht mindestens zwei Oktette.</translation>
    </message>
    <message>
        <source>A unit of association control has an unknown tag.</source>
        <translation>Eine Einheit der Assoziationssteuerung hat einen unbekannten Tag.</translation>
    </message>
    <message>
        <source>Access to the file is denied.</source>
        <translation>Der Zugriff auf die Datei wird verweigert.</translation>
    </message>
    <message>
        <source>Access to the object is denied.</source>
        <translation>Der Zugriff auf das Objekt wird verweigert.</translation>
    </message>
    <message>
        <source>Address already in use</source>
        <translation>Adresse wird bereits verwendet</translation>
    </message>
    <message>
        <source>An association request has no application context name.</source>
        <translation>Eine Assoziationsanforderung hat keinen Namen des Anwendungskontexts.</translation>
    </message>
    <message>
        <source>An association response has no result.</source>
        <translation>Eine Assoziationsantwort hat kein Ergebnis.</translation>
    </message>
    <message>
        <source>An element is longer than the group that it is in.</source>
        <translation>Ein Element ist länger als die Gruppe, in der es steht.</translation>
    </message>
    <message>
        <source>An element is longer than the message.</source>
        <translation>Ein Element ist länger als die Nachricht.</translation>
    </message>
    <message>
        <source>An element stands where a service belongs.</source>
        <translation>Ein Element steht, wo ein Dienst hingehört.</translation>
    </message>
    <message>
        <source>An element that is empty by definition has content.</source>
        <translation>Ein Element, das leer sein muss, hat einen Inhalt.</translation>
    </message>
    <message>
        <source>An element that is no type stands where a type belongs.</source>
        <translation>Ein Element, das kein Typ ist, steht, wo ein Typ hingehört.</translation>
    </message>
    <message>
        <source>An element that is no value stands where a value belongs.</source>
        <translation>Ein Element, das kein Wert ist, steht, wo ein Wert hingehört.</translation>
    </message>
    <message>
        <source>An incomplete %1 is left in the device.</source>
        <translation>%1 bleibt unvollständig auf dem Gerät zurück.</translation>
    </message>
    <message>
        <source>An integer has no octet or more than 8.</source>
        <translation>Eine Ganzzahl hat kein Oktett oder mehr als 8.</translation>
    </message>
    <message>
        <source>An integer is out of its range.</source>
        <translation>Eine Ganzzahl liegt außerhalb ihres Bereichs.</translation>
    </message>
    <message>
        <source>An internal error ended the association.</source>
        <translation>Ein interner Fehler hat die Assoziation beendet.</translation>
    </message>
    <message>
        <source>An internal error ended the association: %1.</source>
        <translation>Ein interner Fehler hat die Assoziation beendet: %1.</translation>
    </message>
    <message>
        <source>An issuer&apos;s certificate in the file &quot;%1&quot; cannot be used (%2).</source>
        <translation>Das Zertifikat eines Ausstellers in der Datei „%1“ kann nicht verwendet werden (%2).</translation>
    </message>
    <message>
        <source>An object identifier ends within a number.</source>
        <translation>Ein Objektbezeichner endet innerhalb einer Zahl.</translation>
    </message>
    <message>
        <source>An object of this name exists already.</source>
        <translation>Ein Objekt dieses Namens existiert bereits.</translation>
    </message>
    <message>
        <source>An unsigned integer has no octet or more than 64 bits.</source>
        <translation>Eine vorzeichenlose Ganzzahl hat kein Oktett oder mehr als 64 Bit.</translation>
    </message>
    <message>
        <source>An unsigned integer is out of its range.</source>
        <translation>Eine vorzeichenlose Ganzzahl liegt außerhalb ihres Bereichs.</translation>
    </message>
    <message>
        <source>Broken pipe</source>
        <translation>Verbindung unterbrochen (Broken pipe)</translation>
    </message>
    <message>
        <source>Cannot allocate memory</source>
        <translation>Kein Speicher verfügbar</translation>
    </message>
    <message>
        <source>Cannot assign requested address</source>
        <translation>Die angeforderte Adresse kann nicht zugewiesen werden</translation>
    </message>
    <message>
        <source>Cannot listen on %1 port %2: %3.</source>
        <translation>Auf %1, Port %2, kann nicht auf Verbindungen gewartet werden: %3.</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>Verbindung abgelehnt</translation>
    </message>
    <message>
        <source>Connection reset by peer</source>
        <translation>Verbindung von der Gegenstelle zurückgesetzt</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>Zeitüberschreitung der Verbindung</translation>
    </message>
    <message>
        <source>Each variable needs one value to write.</source>
        <translation>Jede Variable braucht einen Wert, der geschrieben werden soll.</translation>
    </message>
    <message>
        <source>Elements are nested deeper than %1 levels.</source>
        <translation>Elemente sind tiefer als %1 Ebenen geschachtelt.</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>Eingabe-/Ausgabefehler</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>Ist ein Verzeichnis</translation>
    </message>
    <message>
        <source>It is not a logical node.</source>
        <translation>Dies ist kein logischer Knoten.</translation>
    </message>
    <message>
        <source>It is not known whether %1 is in the device.</source>
        <translation>Es ist nicht bekannt, ob %1 auf dem Gerät ist.</translation>
    </message>
    <message>
        <source>It is not known whether an incomplete %1 is left in the device.</source>
        <translation>Es ist nicht bekannt, ob %1 unvollständig auf dem Gerät zurückbleibt.</translation>
    </message>
    <message>
        <source>It is not known whether the device has a part of the file: look at %1.</source>
        <translation>Es ist nicht bekannt, ob das Gerät einen Teil der Datei hat: Prüfen Sie %1.</translation>
    </message>
    <message>
        <source>It is not known whether the file has its name: look at %1 and %2.</source>
        <translation>Es ist nicht bekannt, ob die Datei ihren Namen hat: Prüfen Sie %1 und %2.</translation>
    </message>
    <message>
        <source>It is not known whether the file was replaced: look at %1.</source>
        <translation>Es ist nicht bekannt, ob die Datei ersetzt wurde: Prüfen Sie %1.</translation>
    </message>
    <message>
        <source>It is not known whether the old %1 is still there.</source>
        <translation>Es ist nicht bekannt, ob die alte Datei %1 noch da ist.</translation>
    </message>
    <message>
        <source>It is not known whether the old file is still there: look at %1.</source>
        <translation>Es ist nicht bekannt, ob die alte Datei noch da ist: Prüfen Sie %1.</translation>
    </message>
    <message>
        <source>It is not known whether the old file is still whole: look at %1.</source>
        <translation>Es ist nicht bekannt, ob die alte Datei noch vollständig ist: Prüfen Sie %1.</translation>
    </message>
    <message>
        <source>It is not known whether there is an old %1.</source>
        <translation>Es ist nicht bekannt, ob es eine alte Datei %1 gibt.</translation>
    </message>
    <message>
        <source>It was not sent.</source>
        <translation>Nicht gesendet.</translation>
    </message>
    <message>
        <source>Modifiers of a request are not supported.</source>
        <translation>Modifikatoren einer Anfrage werden nicht unterstützt.</translation>
    </message>
    <message>
        <source>More than %1 name spaces are declared.</source>
        <translation>Es sind mehr als %1 Namensräume deklariert.</translation>
    </message>
    <message>
        <source>Neither an authority nor a fingerprint says which peers are trusted.</source>
        <translation>Weder eine Zertifizierungsstelle noch ein Fingerabdruck sagt, welchen Gegenstellen vertraut wird.</translation>
    </message>
    <message>
        <source>Network is down</source>
        <translation>Netzwerk ist nicht aktiv</translation>
    </message>
    <message>
        <source>Network is unreachable</source>
        <translation>Netzwerk ist nicht erreichbar</translation>
    </message>
    <message>
        <source>No connection to %1 port %2: %3.</source>
        <translation>Keine Verbindung zu %1, Port %2: %3.</translation>
    </message>
    <message>
        <source>No file is given for %1.</source>
        <translation>Keine Datei angegeben für: %1.</translation>
    </message>
    <message>
        <source>No route to host</source>
        <translation>Kein Weg zum Zielrechner</translation>
    </message>
    <message>
        <source>No session entity is attached to the transport selector.</source>
        <translation>Am Transport-Selektor hängt keine Session-Instanz.</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>Kein Speicherplatz mehr auf dem Datenträger</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>Datei oder Verzeichnis existiert nicht</translation>
    </message>
    <message>
        <source>Nobody wants the association any more.</source>
        <translation>Die Assoziation wird nicht mehr gebraucht.</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>Ist kein Verzeichnis</translation>
    </message>
    <message>
        <source>Nothing is attached to the peer&apos;s presentation selector.</source>
        <translation>Am Presentation-Selektor der Gegenstelle hängt nichts.</translation>
    </message>
    <message>
        <source>Nothing is attached to the peer&apos;s session selector.</source>
        <translation>Am Session-Selektor der Gegenstelle hängt nichts.</translation>
    </message>
    <message>
        <source>Nothing was changed on the device.</source>
        <translation>Auf dem Gerät wurde nichts geändert.</translation>
    </message>
    <message>
        <source>Operation canceled</source>
        <translation>Vorgang abgebrochen</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>Vorgang nicht erlaubt</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Keine Berechtigung</translation>
    </message>
    <message>
        <source>Presentation user data is simply encoded, which is not supported.</source>
        <translation>Presentation-Nutzdaten sind einfach kodiert; das wird nicht unterstützt.</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>Dateisystem ist schreibgeschützt</translation>
    </message>
    <message>
        <source>Reading the file was cancelled.</source>
        <translation>Das Lesen der Datei wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Reading the file was stopped.</source>
        <translation>Das Lesen der Datei wurde angehalten.</translation>
    </message>
    <message>
        <source>Revocation lists are of no use without the authorities that issued them.</source>
        <translation>Sperrlisten nützen nichts ohne die Zertifizierungsstellen, die sie ausgestellt haben.</translation>
    </message>
    <message>
        <source>Setting groups are counted from 1; 0 cannot become the active group.</source>
        <translation>Parametersätze werden ab 1 gezählt; 0 kann nicht zum aktiven Parametersatz werden.</translation>
    </message>
    <message>
        <source>Software caused connection abort</source>
        <translation>Die eigene Software hat die Verbindung abgebrochen</translation>
    </message>
    <message>
        <source>Something stands behind the end of %1.</source>
        <translation>Hinter dem Ende von %1 steht noch etwas.</translation>
    </message>
    <message>
        <source>TLS cannot be set up (%1).</source>
        <translation>TLS kann nicht eingerichtet werden (%1).</translation>
    </message>
    <message>
        <source>TLS failed for an unknown reason.</source>
        <translation>TLS ist aus unbekanntem Grund gescheitert.</translation>
    </message>
    <message>
        <source>TLS failed: %1.</source>
        <translation>TLS ist gescheitert: %1.</translation>
    </message>
    <message>
        <source>The %1 &quot;%2&quot; contains itself; this element is left out.</source>
        <translation>%1 „%2“ enthält sich selbst; dieses Element wird weggelassen.</translation>
    </message>
    <message>
        <source>The %1 &quot;%2&quot; does not exist.</source>
        <translation>%1 „%2“ existiert nicht.</translation>
    </message>
    <message>
        <source>The %1 &quot;%2&quot; is defined again; the definition in line %3 is used.</source>
        <translation>%1 „%2“ ist noch einmal definiert; verwendet wird die Definition in Zeile %3.</translation>
    </message>
    <message>
        <source>The %1 has no id and cannot be used.</source>
        <translation>%1 hat keine id und kann nicht verwendet werden.</translation>
    </message>
    <message>
        <source>The DOType has no common data class (attribute cdc).</source>
        <translation>Der DOType hat keine Common Data Class (Attribut cdc).</translation>
    </message>
    <message>
        <source>The EnumType &quot;%1&quot; does not exist.</source>
        <translation>Der EnumType „%1“ existiert nicht.</translation>
    </message>
    <message>
        <source>The IED &quot;%1&quot; has more than %2 nodes of data.</source>
        <translation>Das IED „%1“ hat mehr als %2 Datenknoten.</translation>
    </message>
    <message>
        <source>The IED &quot;%1&quot; has no access point &quot;%2&quot;.</source>
        <translation>Das IED „%1“ hat keinen Zugangspunkt „%2“.</translation>
    </message>
    <message>
        <source>The IED &quot;%1&quot; is not in this file.</source>
        <translation>Das IED „%1“ ist nicht in dieser Datei.</translation>
    </message>
    <message>
        <source>The IED has no name.</source>
        <translation>Das IED hat keinen Namen.</translation>
    </message>
    <message>
        <source>The LNodeType &quot;%1&quot; does not exist.</source>
        <translation>Der LNodeType „%1“ existiert nicht.</translation>
    </message>
    <message>
        <source>The LNodeType has no class (attribute lnClass).</source>
        <translation>Der LNodeType hat keine Klasse (Attribut lnClass).</translation>
    </message>
    <message>
        <source>The access point &quot;%1&quot; whose server is shared does not exist or has none.</source>
        <translation>Der Zugangspunkt „%1“, dessen Server mitbenutzt wird, existiert nicht oder hat keinen Server.</translation>
    </message>
    <message>
        <source>The active setting group is %1, but there are %2; group 1 is used.</source>
        <translation>Als aktiver Parametersatz ist %1 angegeben, die Anzahl ist aber %2; verwendet wird Parametersatz 1.</translation>
    </message>
    <message>
        <source>The address is not valid.</source>
        <translation>Die Adresse ist nicht gültig.</translation>
    </message>
    <message>
        <source>The answer cannot be read: %1.</source>
        <translation>Die Antwort kann nicht gelesen werden: %1.</translation>
    </message>
    <message>
        <source>The answer does not fit a message.</source>
        <translation>Die Antwort passt nicht in eine Nachricht.</translation>
    </message>
    <message>
        <source>The answer does not match the question.</source>
        <translation>Die Antwort passt nicht zur Frage.</translation>
    </message>
    <message>
        <source>The association is being concluded.</source>
        <translation>Die Assoziation wird gerade beendet.</translation>
    </message>
    <message>
        <source>The association was refused.</source>
        <translation>Die Assoziation wurde abgelehnt.</translation>
    </message>
    <message>
        <source>The association was released.</source>
        <translation>Die Assoziation wurde abgebaut.</translation>
    </message>
    <message>
        <source>The attribute &quot;%1&quot; that holds the number of elements of &quot;%2&quot; has no value; the array is empty.</source>
        <translation>Das Attribut „%1“ mit der Anzahl der Elemente von „%2“ hat keinen Wert; das Array ist leer.</translation>
    </message>
    <message>
        <source>The attribute &quot;%1&quot; that should hold the number of array elements does not exist; the array is empty.</source>
        <translation>Das Attribut „%1“, das die Anzahl der Array-Elemente enthalten soll, existiert nicht; das Array ist leer.</translation>
    </message>
    <message>
        <source>The attribute has no basic type (attribute bType).</source>
        <translation>Das Attribut hat keinen Basistyp (Attribut bType).</translation>
    </message>
    <message>
        <source>The attribute has no functional constraint (attribute fc) and cannot be addressed.</source>
        <translation>Das Attribut hat keinen Functional Constraint (Attribut fc) und kann nicht adressiert werden.</translation>
    </message>
    <message>
        <source>The attribute is an enumeration without a type (attribute type).</source>
        <translation>Das Attribut ist eine Aufzählung ohne Typ (Attribut type).</translation>
    </message>
    <message>
        <source>The attributes of the object contradict each other.</source>
        <translation>Die Attribute des Objekts widersprechen einander.</translation>
    </message>
    <message>
        <source>The authority in the file &quot;%1&quot; cannot be used (%2).</source>
        <translation>Die Zertifizierungsstelle in der Datei „%1“ kann nicht verwendet werden (%2).</translation>
    </message>
    <message>
        <source>The basic type is written &quot;%1&quot; instead of &quot;%2&quot;.</source>
        <translation>Der Basistyp ist „%1“ statt „%2“ geschrieben.</translation>
    </message>
    <message>
        <source>The block belongs to another association of this computer, %1.</source>
        <translation>Der Block gehört einer anderen Assoziation dieses Rechners, %1.</translation>
    </message>
    <message>
        <source>The block belongs to the client %1.</source>
        <translation>Der Block gehört dem Client %1.</translation>
    </message>
    <message>
        <source>The call can no longer be cancelled.</source>
        <translation>Die Anfrage kann nicht mehr abgebrochen werden.</translation>
    </message>
    <message>
        <source>The call cannot be cancelled.</source>
        <translation>Die Anfrage kann nicht abgebrochen werden.</translation>
    </message>
    <message>
        <source>The call was cancelled.</source>
        <translation>Die Anfrage wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The certificate &quot;%1&quot; in the file &quot;%2&quot;</source>
        <translation>Das Zertifikat „%1“ in der Datei „%2“</translation>
    </message>
    <message>
        <source>The certificate in the file &quot;%1&quot; cannot be used (%2).</source>
        <translation>Das Zertifikat in der Datei „%1“ kann nicht verwendet werden (%2).</translation>
    </message>
    <message>
        <source>The class is &quot;%1&quot;, but the LNodeType &quot;%2&quot; is of class &quot;%3&quot;.</source>
        <translation>Die Klasse ist „%1“, der LNodeType „%2“ hat aber die Klasse „%3“.</translation>
    </message>
    <message>
        <source>The class of an LN0 is &quot;%1&quot; instead of &quot;LLN0&quot;.</source>
        <translation>Die Klasse eines LN0 ist „%1“ statt „LLN0“.</translation>
    </message>
    <message>
        <source>The client is gone.</source>
        <translation>Der Client ist nicht mehr da.</translation>
    </message>
    <message>
        <source>The connection to the other application is lost.</source>
        <translation>Die Verbindung zur anderen Anwendung ist verloren.</translation>
    </message>
    <message>
        <source>The content type of the file is not valid.</source>
        <translation>Die Art des Inhalts der Datei ist nicht gültig.</translation>
    </message>
    <message>
        <source>The control block has no name.</source>
        <translation>Der Steuerblock hat keinen Namen.</translation>
    </message>
    <message>
        <source>The control model of %1 cannot be read: %2.</source>
        <translation>Das Steuermodell von %1 kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>The control model of %1 is %2, which is none.</source>
        <translation>Das Steuermodell von %1 ist %2; ein solches gibt es nicht.</translation>
    </message>
    <message>
        <source>The data below this element are nested deeper than %1 levels; the element is left out.</source>
        <translation>Die Daten unter diesem Element sind tiefer als %1 Ebenen geschachtelt; das Element wird weggelassen.</translation>
    </message>
    <message>
        <source>The data set &quot;%1&quot; of the control block does not exist in its logical node.</source>
        <translation>Der Datensatz „%1“ des Steuerblocks existiert nicht in dessen logischem Knoten.</translation>
    </message>
    <message>
        <source>The data set has no members.</source>
        <translation>Der Datensatz hat keine Elemente.</translation>
    </message>
    <message>
        <source>The data set has no name.</source>
        <translation>Der Datensatz hat keinen Namen.</translation>
    </message>
    <message>
        <source>The definition of the object does not allow this.</source>
        <translation>Die Definition des Objekts lässt dies nicht zu.</translation>
    </message>
    <message>
        <source>The device answered another service.</source>
        <translation>Das Gerät hat auf einen anderen Dienst geantwortet.</translation>
    </message>
    <message>
        <source>The device cannot carry out the service.</source>
        <translation>Das Gerät kann den Dienst nicht ausführen.</translation>
    </message>
    <message>
        <source>The device cannot check interlocking.</source>
        <translation>Das Gerät kann die Verriegelung nicht prüfen.</translation>
    </message>
    <message>
        <source>The device cannot check synchronism.</source>
        <translation>Das Gerät kann den Synchronismus nicht prüfen.</translation>
    </message>
    <message>
        <source>The device cannot operate at a given time.</source>
        <translation>Das Gerät kann nicht zu einer vorgegebenen Zeit schalten.</translation>
    </message>
    <message>
        <source>The device cannot test a command.</source>
        <translation>Das Gerät unterstützt keine Befehle im Testbetrieb.</translation>
    </message>
    <message>
        <source>The device cannot transfer the domain.</source>
        <translation>Das Gerät kann die Domain nicht übertragen.</translation>
    </message>
    <message>
        <source>The device describes more than the %1 values in %2 octets that are taken; the rest is left out.</source>
        <translation>Das Gerät beschreibt mehr als die zugelassenen %1 Werte in %2 Oktetten; der Rest wird weggelassen.</translation>
    </message>
    <message>
        <source>The device describes the originator as %1.</source>
        <translation>Das Gerät beschreibt den Auslöser des Befehls als %1.</translation>
    </message>
    <message>
        <source>The device does not accept the syntax of the file name.</source>
        <translation>Das Gerät nimmt die Syntax des Dateinamens nicht an.</translation>
    </message>
    <message>
        <source>The device does not answer any more.</source>
        <translation>Das Gerät antwortet nicht mehr.</translation>
    </message>
    <message>
        <source>The device does not know the call to cancel.</source>
        <translation>Das Gerät kennt die Anfrage nicht, die abgebrochen werden soll.</translation>
    </message>
    <message>
        <source>The device does not know the capability.</source>
        <translation>Das Gerät kennt die Fähigkeit (Capability) nicht.</translation>
    </message>
    <message>
        <source>The device does not know the state machine.</source>
        <translation>Das Gerät kennt den Zustandsautomaten nicht.</translation>
    </message>
    <message>
        <source>The device does not let the data set %1 be deleted.</source>
        <translation>Das Gerät lässt nicht zu, dass der Datensatz %1 gelöscht wird.</translation>
    </message>
    <message>
        <source>The device does not list its logical devices: %1.</source>
        <translation>Das Gerät führt seine logischen Geräte nicht auf: %1.</translation>
    </message>
    <message>
        <source>The device does not say what belongs to the command.</source>
        <translation>Das Gerät sagt nicht, was zum Befehl gehört.</translation>
    </message>
    <message>
        <source>The device does not support the time resolution.</source>
        <translation>Das Gerät unterstützt die Zeitauflösung nicht.</translation>
    </message>
    <message>
        <source>The device gave a reason for refusing a command that cannot be read: %1.</source>
        <translation>Das Gerät hat einen Befehl mit einem Grund abgelehnt, der nicht lesbar ist: %1.</translation>
    </message>
    <message>
        <source>The device gave up after its own time limit.</source>
        <translation>Das Gerät hat nach seiner eigenen Zeitgrenze aufgegeben.</translation>
    </message>
    <message>
        <source>The device gave up because of a deadlock.</source>
        <translation>Das Gerät hat wegen einer gegenseitigen Blockierung (Deadlock) aufgegeben.</translation>
    </message>
    <message>
        <source>The device gave up the call.</source>
        <translation>Das Gerät hat die Anfrage aufgegeben.</translation>
    </message>
    <message>
        <source>The device gives names without end.</source>
        <translation>Das Gerät liefert Namen ohne Ende.</translation>
    </message>
    <message>
        <source>The device has an operational problem.</source>
        <translation>Das Gerät hat ein Betriebsproblem.</translation>
    </message>
    <message>
        <source>The device has more names than the %1 names and %2 octets that are taken; the others are left out.</source>
        <translation>Das Gerät hat mehr Namen als die zugelassenen %1 Namen in %2 Oktetten; die übrigen werden weggelassen.</translation>
    </message>
    <message>
        <source>The device has more than %1 logical devices; the others are left out.</source>
        <translation>Das Gerät hat mehr als %1 logische Geräte; die übrigen werden weggelassen.</translation>
    </message>
    <message>
        <source>The device has more than %1 logical nodes; the others are left out.</source>
        <translation>Das Gerät hat mehr als %1 logische Knoten; die übrigen werden weggelassen.</translation>
    </message>
    <message>
        <source>The device has neither %1 nor %2 any more.</source>
        <translation>Das Gerät hat %1 nicht mehr, und auch %2 nicht mehr.</translation>
    </message>
    <message>
        <source>The device has no free capability for this.</source>
        <translation>Das Gerät hat dafür keine Fähigkeit (Capability) mehr frei.</translation>
    </message>
    <message>
        <source>The device has not enough computing time.</source>
        <translation>Das Gerät hat nicht genug Rechenzeit.</translation>
    </message>
    <message>
        <source>The device has not enough memory.</source>
        <translation>Das Gerät hat nicht genug Arbeitsspeicher.</translation>
    </message>
    <message>
        <source>The device has not enough storage.</source>
        <translation>Das Gerät hat nicht genug Speicherplatz.</translation>
    </message>
    <message>
        <source>The device has not the resources for this.</source>
        <translation>Das Gerät hat nicht die Mittel dafür.</translation>
    </message>
    <message>
        <source>The device has something to finish first.</source>
        <translation>Das Gerät muss zuerst etwas anderes beenden.</translation>
    </message>
    <message>
        <source>The device has stopped fetching the file after %1 of %2 octets.</source>
        <translation>Das Gerät hat nach %1 von %2 Oktetten aufgehört, die Datei abzuholen.</translation>
    </message>
    <message>
        <source>The device is in a state that does not allow this.</source>
        <translation>Das Gerät ist in einem Zustand, der dies nicht zulässt.</translation>
    </message>
    <message>
        <source>The device lists its files without an end.</source>
        <translation>Das Gerät führt seine Dateien ohne Ende auf.</translation>
    </message>
    <message>
        <source>The device refuses the association.</source>
        <translation>Das Gerät lehnt die Assoziation ab.</translation>
    </message>
    <message>
        <source>The device refuses the file operation.</source>
        <translation>Das Gerät lehnt den Dateivorgang ab.</translation>
    </message>
    <message>
        <source>The device refuses to conclude the association.</source>
        <translation>Das Gerät lehnt es ab, die Assoziation zu beenden.</translation>
    </message>
    <message>
        <source>The device refuses without giving a reason.</source>
        <translation>Das Gerät lehnt ab, ohne einen Grund zu nennen.</translation>
    </message>
    <message>
        <source>The device rejects a cancel (%1).</source>
        <translation>Das Gerät weist einen Abbruch (Cancel) zurück (%1).</translation>
    </message>
    <message>
        <source>The device rejects a conclude (%1).</source>
        <translation>Das Gerät weist ein Beenden (Conclude) zurück (%1).</translation>
    </message>
    <message>
        <source>The device rejects a message that it cannot read (%1).</source>
        <translation>Das Gerät weist eine Nachricht zurück, die es nicht lesen kann (%1).</translation>
    </message>
    <message>
        <source>The device rejects a request (%1).</source>
        <translation>Das Gerät weist eine Anfrage zurück (%1).</translation>
    </message>
    <message>
        <source>The device rejects an answer (%1).</source>
        <translation>Das Gerät weist eine Antwort zurück (%1).</translation>
    </message>
    <message>
        <source>The device rejects an error (%1).</source>
        <translation>Das Gerät weist eine Fehlermeldung zurück (%1).</translation>
    </message>
    <message>
        <source>The device rejects an unconfirmed message (%1).</source>
        <translation>Das Gerät weist eine unbestätigte Nachricht zurück (%1).</translation>
    </message>
    <message>
        <source>The device rejects the answer to a cancel (%1).</source>
        <translation>Das Gerät weist die Antwort auf einen Abbruch (Cancel) zurück (%1).</translation>
    </message>
    <message>
        <source>The device rejects the answer to a conclude (%1).</source>
        <translation>Das Gerät weist die Antwort auf ein Beenden (Conclude) zurück (%1).</translation>
    </message>
    <message>
        <source>The device rejects the refusal of a cancel (%1).</source>
        <translation>Das Gerät weist die Ablehnung eines Abbruchs (Cancel) zurück (%1).</translation>
    </message>
    <message>
        <source>The device rejects the refusal of a conclude (%1).</source>
        <translation>Das Gerät weist die Ablehnung eines Beendens (Conclude) zurück (%1).</translation>
    </message>
    <message>
        <source>The device repeats the same page of names.</source>
        <translation>Das Gerät wiederholt dieselbe Seite mit Namen.</translation>
    </message>
    <message>
        <source>The device reports a hardware fault.</source>
        <translation>Das Gerät meldet einen Hardwarefehler.</translation>
    </message>
    <message>
        <source>The device reports the unknown data access error %1.</source>
        <translation>Das Gerät meldet den unbekannten Datenzugriffsfehler %1.</translation>
    </message>
    <message>
        <source>The device says that it has the file, but it has fetched only %1 of %2 octets.</source>
        <translation>Das Gerät sagt, dass es die Datei hat, hat aber nur %1 von %2 Oktetten abgeholt.</translation>
    </message>
    <message>
        <source>The device sends empty blocks of the file without an end.</source>
        <translation>Das Gerät sendet ohne Ende leere Blöcke der Datei.</translation>
    </message>
    <message>
        <source>The device took longer than %1 minutes to describe itself; what it had not told by then is left out.</source>
        <translation>Das Gerät hat länger als %1 Minuten gebraucht, um sich zu beschreiben; was es bis dahin nicht mitgeteilt hat, wird weggelassen.</translation>
    </message>
    <message>
        <source>The device uses another version of the protocol.</source>
        <translation>Das Gerät verwendet eine andere Version des Protokolls.</translation>
    </message>
    <message>
        <source>The device wants %1 also as a whole number, but does not say by which scale (sVC).</source>
        <translation>Das Gerät verlangt den Wert %1 auch als ganze Zahl, sagt aber nicht, mit welcher Skalierung (sVC).</translation>
    </message>
    <message>
        <source>The device wants a part %1 in the command, which is not known.</source>
        <translation>Das Gerät verlangt im Befehl den Teil %1, der nicht bekannt ist.</translation>
    </message>
    <message>
        <source>The device wants an unknown part %1 of the originator.</source>
        <translation>Das Gerät verlangt beim Auslöser des Befehls den unbekannten Teil %1.</translation>
    </message>
    <message>
        <source>The device&apos;s answer does not match the question.</source>
        <translation>Die Antwort des Geräts passt nicht zur Frage.</translation>
    </message>
    <message>
        <source>The device&apos;s answer does not match the request.</source>
        <translation>Die Antwort des Geräts passt nicht zur Anfrage.</translation>
    </message>
    <message>
        <source>The directory &quot;%1&quot; cannot be served: %2.</source>
        <translation>Das Verzeichnis „%1“ kann nicht bereitgestellt werden: %2.</translation>
    </message>
    <message>
        <source>The discovery was cancelled.</source>
        <translation>Das Lesen des Modells wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The element %1 is missing or of an unknown kind.</source>
        <translation>Das Element %1 fehlt oder ist von unbekannter Art.</translation>
    </message>
    <message>
        <source>The element %1 is missing.</source>
        <translation>Das Element %1 fehlt.</translation>
    </message>
    <message>
        <source>The element %1 is not where it belongs.</source>
        <translation>Das Element %1 steht nicht an seinem Platz.</translation>
    </message>
    <message>
        <source>The element does not name an access point.</source>
        <translation>Das Element benennt keinen Zugangspunkt.</translation>
    </message>
    <message>
        <source>The element has no name and is left out.</source>
        <translation>Das Element hat keinen Namen und wird weggelassen.</translation>
    </message>
    <message>
        <source>The element has no type (attribute type).</source>
        <translation>Das Element hat keinen Typ (Attribut type).</translation>
    </message>
    <message>
        <source>The elements are nested too deeply.</source>
        <translation>Die Elemente sind zu tief geschachtelt.</translation>
    </message>
    <message>
        <source>The encoding is declared as &quot;%1&quot;, but the file holds single bytes; it is read as UTF-8.</source>
        <translation>Als Kodierung ist „%1“ deklariert, die Datei enthält aber einzelne Bytes; sie wird als UTF-8 gelesen.</translation>
    </message>
    <message>
        <source>The encoding is written &quot;%1&quot; instead of &quot;ISO-8859-1&quot;.</source>
        <translation>Die Kodierung ist „%1“ statt „ISO-8859-1“ geschrieben.</translation>
    </message>
    <message>
        <source>The encoding is written &quot;%1&quot; instead of &quot;UTF-8&quot;; it is read as UTF-8.</source>
        <translation>Die Kodierung ist „%1“ statt „UTF-8“ geschrieben; die Datei wird als UTF-8 gelesen.</translation>
    </message>
    <message>
        <source>The entity &quot;%1&quot; is not declared.</source>
        <translation>Die Entität „%1“ ist nicht deklariert.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be opened: %2.</source>
        <translation>Die Datei „%1“ kann nicht geöffnet werden: %2.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; holds no certificate in PEM.</source>
        <translation>Die Datei „%1“ enthält kein Zertifikat im Format PEM.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; holds no private key in PEM.</source>
        <translation>Die Datei „%1“ enthält keinen privaten Schlüssel im Format PEM.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; holds no revocation list in PEM.</source>
        <translation>Die Datei „%1“ enthält keine Sperrliste im Format PEM.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; with %2 cannot be opened: %3.</source>
        <translation>Die Datei „%1“ (%2) kann nicht geöffnet werden: %3.</translation>
    </message>
    <message>
        <source>The file became shorter while it was read.</source>
        <translation>Die Datei wurde kürzer, während sie gelesen wurde.</translation>
    </message>
    <message>
        <source>The file cannot be read to its end.</source>
        <translation>Die Datei kann nicht bis zum Ende gelesen werden.</translation>
    </message>
    <message>
        <source>The file declares an entity, which is not accepted.</source>
        <translation>Die Datei deklariert eine Entität; das wird nicht angenommen.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>Die Datei existiert nicht.</translation>
    </message>
    <message>
        <source>The file ends before its root element is complete.</source>
        <translation>Die Datei endet, bevor ihr Wurzelelement vollständig ist.</translation>
    </message>
    <message>
        <source>The file ends within a character.</source>
        <translation>Die Datei endet innerhalb eines Zeichens.</translation>
    </message>
    <message>
        <source>The file in the device may be incomplete: look at %1.</source>
        <translation>Die Datei auf dem Gerät kann unvollständig sein: Prüfen Sie %1.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Die Datei ist leer.</translation>
    </message>
    <message>
        <source>The file is in use.</source>
        <translation>Die Datei wird gerade verwendet.</translation>
    </message>
    <message>
        <source>The file is larger than %1 bytes.</source>
        <translation>Die Datei ist größer als %1 Byte.</translation>
    </message>
    <message>
        <source>The file is not well-formed XML: %1.</source>
        <translation>Die Datei ist kein wohlgeformtes XML: %1.</translation>
    </message>
    <message>
        <source>The file name is ambiguous.</source>
        <translation>Der Dateiname ist mehrdeutig.</translation>
    </message>
    <message>
        <source>The file refers to an external document type, which is not accepted.</source>
        <translation>Die Datei verweist auf einen externen Dokumenttyp; das wird nicht angenommen.</translation>
    </message>
    <message>
        <source>The file&apos;s encoding is not the one declared, or it is not known.</source>
        <translation>Die Kodierung der Datei ist nicht die deklarierte, oder sie ist nicht bekannt.</translation>
    </message>
    <message>
        <source>The header of a transport unit is longer than the packet.</source>
        <translation>Der Kopf einer Transporteinheit ist länger als das Paket.</translation>
    </message>
    <message>
        <source>The import was cancelled.</source>
        <translation>Der Import wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The instance has no name and is left out.</source>
        <translation>Die Instanz hat keinen Namen und wird weggelassen.</translation>
    </message>
    <message>
        <source>The instance is given twice; the first is used.</source>
        <translation>Die Instanz ist zweimal angegeben; verwendet wird die erste.</translation>
    </message>
    <message>
        <source>The issuer&apos;s certificate &quot;%1&quot;</source>
        <translation>Das Ausstellerzertifikat „%1“</translation>
    </message>
    <message>
        <source>The length of an element is too large.</source>
        <translation>Die Länge eines Elements ist zu groß.</translation>
    </message>
    <message>
        <source>The list cannot be continued after the given name.</source>
        <translation>Die Liste kann nach dem angegebenen Namen nicht fortgesetzt werden.</translation>
    </message>
    <message>
        <source>The literal &quot;%1&quot; begins or ends with a blank.</source>
        <translation>Das Literal „%1“ beginnt oder endet mit einem Leerzeichen.</translation>
    </message>
    <message>
        <source>The logical device has no LN0.</source>
        <translation>Das logische Gerät hat keinen LN0.</translation>
    </message>
    <message>
        <source>The logical device has no instance name (attribute inst).</source>
        <translation>Das logische Gerät hat keinen Instanznamen (Attribut inst).</translation>
    </message>
    <message>
        <source>The logical node has another setting group control; the first is used.</source>
        <translation>Der logische Knoten hat eine weitere Parametersatz-Steuerung; verwendet wird die erste.</translation>
    </message>
    <message>
        <source>The logical node has no class (attribute lnClass).</source>
        <translation>Der logische Knoten hat keine Klasse (Attribut lnClass).</translation>
    </message>
    <message>
        <source>The logical node has no instance number (attribute inst).</source>
        <translation>Der logische Knoten hat keine Instanznummer (Attribut inst).</translation>
    </message>
    <message>
        <source>The logical node has no type (attribute lnType).</source>
        <translation>Der logische Knoten hat keinen Typ (Attribut lnType).</translation>
    </message>
    <message>
        <source>The lowest version of TLS that is allowed is above the highest one.</source>
        <translation>Die niedrigste zugelassene TLS-Version liegt über der höchsten.</translation>
    </message>
    <message>
        <source>The message ends within an element.</source>
        <translation>Die Nachricht endet innerhalb eines Elements.</translation>
    </message>
    <message>
        <source>The message holds more elements than allowed.</source>
        <translation>Die Nachricht enthält mehr Elemente als zugelassen.</translation>
    </message>
    <message>
        <source>The message is empty.</source>
        <translation>Die Nachricht ist leer.</translation>
    </message>
    <message>
        <source>The message is longer than allowed.</source>
        <translation>Die Nachricht ist länger als zugelassen.</translation>
    </message>
    <message>
        <source>The message is no MMS PDU.</source>
        <translation>Die Nachricht ist keine MMS-PDU.</translation>
    </message>
    <message>
        <source>The message size is too small for the device.</source>
        <translation>Die Nachrichtengröße ist für das Gerät zu klein.</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; cannot be resolved: %2.</source>
        <translation>Der Name „%1“ kann nicht aufgelöst werden: %2.</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; was not resolved in time.</source>
        <translation>Der Name „%1“ wurde nicht rechtzeitig aufgelöst.</translation>
    </message>
    <message>
        <source>The name of the other application is not valid.</source>
        <translation>Der Name der anderen Anwendung ist nicht gültig.</translation>
    </message>
    <message>
        <source>The name space prefix &quot;%1&quot; is not declared; its elements are skipped.</source>
        <translation>Das Namensraumpräfix „%1“ ist nicht deklariert; seine Elemente werden übergangen.</translation>
    </message>
    <message>
        <source>The names</source>
        <translation>Die Namen</translation>
    </message>
    <message>
        <source>The names of %1</source>
        <translation>Die Namen von %1</translation>
    </message>
    <message>
        <source>The names of the data</source>
        <translation>Die Namen der Daten</translation>
    </message>
    <message>
        <source>The names of the data of %1</source>
        <translation>Die Namen der Daten von %1</translation>
    </message>
    <message>
        <source>The names of the data sets</source>
        <translation>Die Namen der Datensätze</translation>
    </message>
    <message>
        <source>The names of the data sets of %1</source>
        <translation>Die Namen der Datensätze von %1</translation>
    </message>
    <message>
        <source>The nesting level does not suit the device.</source>
        <translation>Die Schachtelungstiefe ist für das Gerät nicht annehmbar.</translation>
    </message>
    <message>
        <source>The network connection broke during the TLS handshake: %1.</source>
        <translation>Die Netzwerkverbindung brach beim TLS-Handshake ab: %1.</translation>
    </message>
    <message>
        <source>The network connection broke: %1.</source>
        <translation>Die Netzwerkverbindung brach ab: %1.</translation>
    </message>
    <message>
        <source>The new file is in the device as %1.</source>
        <translation>Die neue Datei ist als %1 auf dem Gerät.</translation>
    </message>
    <message>
        <source>The number of instances is %1; %2 is used.</source>
        <translation>Die Anzahl der Instanzen ist %1; verwendet wird %2.</translation>
    </message>
    <message>
        <source>The number of outstanding calls does not suit the device.</source>
        <translation>Die Anzahl der ausstehenden Anfragen ist für das Gerät nicht annehmbar.</translation>
    </message>
    <message>
        <source>The number of outstanding calls of the device does not suit it.</source>
        <translation>Die Anzahl der ausstehenden Anfragen des Geräts selbst ist für das Gerät nicht annehmbar.</translation>
    </message>
    <message>
        <source>The number of setting groups is 0; 1 is used.</source>
        <translation>Die Anzahl der Parametersätze ist 0; verwendet wird 1.</translation>
    </message>
    <message>
        <source>The object cannot be accessed in this way.</source>
        <translation>Auf das Objekt kann auf diese Weise nicht zugegriffen werden.</translation>
    </message>
    <message>
        <source>The object cannot be accessed.</source>
        <translation>Auf das Objekt kann nicht zugegriffen werden.</translation>
    </message>
    <message>
        <source>The object does not exist.</source>
        <translation>Das Objekt existiert nicht.</translation>
    </message>
    <message>
        <source>The object is in a state that does not allow this.</source>
        <translation>Das Objekt ist in einem Zustand, der dies nicht zulässt.</translation>
    </message>
    <message>
        <source>The object is no longer valid.</source>
        <translation>Das Objekt ist nicht mehr gültig.</translation>
    </message>
    <message>
        <source>The object is not available at the moment.</source>
        <translation>Das Objekt ist zurzeit nicht verfügbar.</translation>
    </message>
    <message>
        <source>The object is not defined.</source>
        <translation>Das Objekt ist nicht definiert.</translation>
    </message>
    <message>
        <source>The old file had to be deleted before and is lost.</source>
        <translation>Die alte Datei musste vorher gelöscht werden und ist verloren.</translation>
    </message>
    <message>
        <source>The old file is still there.</source>
        <translation>Die alte Datei ist noch da.</translation>
    </message>
    <message>
        <source>The old file was deleted before.</source>
        <translation>Die alte Datei wurde vorher gelöscht.</translation>
    </message>
    <message>
        <source>The options offered do not suit the device.</source>
        <translation>Die angebotenen Optionen sind für das Gerät nicht annehmbar.</translation>
    </message>
    <message>
        <source>The ordinal %1 is given twice; the first literal is used.</source>
        <translation>Die Ordnungszahl %1 ist zweimal angegeben; verwendet wird das erste Literal.</translation>
    </message>
    <message>
        <source>The originator identification has %1 octets; at most %2 are allowed.</source>
        <translation>Die Kennung des Auslösers hat %1 Oktette; zugelassen sind höchstens %2.</translation>
    </message>
    <message>
        <source>The other application cannot be reached.</source>
        <translation>Die andere Anwendung ist nicht erreichbar.</translation>
    </message>
    <message>
        <source>The other application does not support the context.</source>
        <translation>Die andere Anwendung unterstützt den Kontext nicht.</translation>
    </message>
    <message>
        <source>The part %1 of the command cannot be %2.</source>
        <translation>Teil %1 des Befehls: %2 ist nicht möglich.</translation>
    </message>
    <message>
        <source>The peer %1 has %2 connections that are no associations yet, which is the limit.</source>
        <translation>Die Gegenstelle %1 hat bereits %2 Verbindungen, die noch keine Assoziationen sind; mehr sind nicht zugelassen.</translation>
    </message>
    <message>
        <source>The peer aborted the association.</source>
        <translation>Die Gegenstelle hat die Assoziation abgebrochen.</translation>
    </message>
    <message>
        <source>The peer aborted the session.</source>
        <translation>Die Gegenstelle hat die Session abgebrochen.</translation>
    </message>
    <message>
        <source>The peer accepted the session with an unsuitable version.</source>
        <translation>Die Gegenstelle hat die Session mit einer unpassenden Version angenommen.</translation>
    </message>
    <message>
        <source>The peer and this side have no cipher suite in common, or no certificate fits it.</source>
        <translation>Die Gegenstelle und diese Seite haben keine gemeinsame Cipher-Suite, oder kein Zertifikat passt dazu.</translation>
    </message>
    <message>
        <source>The peer and this side have no version of TLS in common.</source>
        <translation>Die Gegenstelle und diese Seite haben keine gemeinsame TLS-Version.</translation>
    </message>
    <message>
        <source>The peer answered the initiate request with something else.</source>
        <translation>Die Gegenstelle hat die Initiate-Anfrage mit etwas anderem beantwortet.</translation>
    </message>
    <message>
        <source>The peer answers for too many presentation contexts.</source>
        <translation>Die Gegenstelle antwortet für zu viele Presentation-Kontexte.</translation>
    </message>
    <message>
        <source>The peer asked for a transport class other than 0.</source>
        <translation>Die Gegenstelle hat eine andere Transportklasse als 0 verlangt.</translation>
    </message>
    <message>
        <source>The peer asked for an application context other than MMS.</source>
        <translation>Die Gegenstelle hat einen anderen Anwendungskontext als MMS verlangt.</translation>
    </message>
    <message>
        <source>The peer asked for an unknown presentation selector.</source>
        <translation>Die Gegenstelle hat einen unbekannten Presentation-Selektor verlangt.</translation>
    </message>
    <message>
        <source>The peer asked for an unknown transport selector.</source>
        <translation>Die Gegenstelle hat einen unbekannten Transport-Selektor verlangt.</translation>
    </message>
    <message>
        <source>The peer asks for a certificate, and this side has none that it trusts.</source>
        <translation>Die Gegenstelle verlangt ein Zertifikat, und diese Seite hat keines, dem die Gegenstelle vertraut.</translation>
    </message>
    <message>
        <source>The peer asks for a presentation mode other than normal mode.</source>
        <translation>Die Gegenstelle verlangt einen anderen Presentation-Modus als den Normalmodus.</translation>
    </message>
    <message>
        <source>The peer asks for too many presentation contexts.</source>
        <translation>Die Gegenstelle verlangt zu viele Presentation-Kontexte.</translation>
    </message>
    <message>
        <source>The peer cannot read the presentation user data.</source>
        <translation>Die Gegenstelle kann die Presentation-Nutzdaten nicht lesen.</translation>
    </message>
    <message>
        <source>The peer closed the network connection instead of a TLS handshake.</source>
        <translation>Die Gegenstelle hat die Netzwerkverbindung geschlossen, statt den TLS-Handshake zu beginnen.</translation>
    </message>
    <message>
        <source>The peer closed the network connection instead of a TLS handshake; it may not speak TLS on this port.</source>
        <translation>Die Gegenstelle hat die Netzwerkverbindung geschlossen, statt den TLS-Handshake zu beginnen; vielleicht spricht sie auf diesem Port kein TLS.</translation>
    </message>
    <message>
        <source>The peer closed the network connection.</source>
        <translation>Die Gegenstelle hat die Netzwerkverbindung geschlossen.</translation>
    </message>
    <message>
        <source>The peer confirmed a transport class other than 0.</source>
        <translation>Die Gegenstelle hat eine andere Transportklasse als 0 bestätigt.</translation>
    </message>
    <message>
        <source>The peer cuts session data into segments, which was not agreed.</source>
        <translation>Die Gegenstelle zerlegt Session-Daten in Segmente; das wurde nicht vereinbart.</translation>
    </message>
    <message>
        <source>The peer did not accept the presentation contexts of ACSE and MMS.</source>
        <translation>Die Gegenstelle hat die Presentation-Kontexte von ACSE und MMS nicht angenommen.</translation>
    </message>
    <message>
        <source>The peer did not answer in time.</source>
        <translation>Die Gegenstelle hat nicht rechtzeitig geantwortet.</translation>
    </message>
    <message>
        <source>The peer did not answer the release in time.</source>
        <translation>Die Gegenstelle hat auf den Abbau der Assoziation nicht rechtzeitig geantwortet.</translation>
    </message>
    <message>
        <source>The peer did not ask for the presentation contexts of ACSE and MMS.</source>
        <translation>Die Gegenstelle hat die Presentation-Kontexte von ACSE und MMS nicht verlangt.</translation>
    </message>
    <message>
        <source>The peer did not complete the TLS handshake in time.</source>
        <translation>Die Gegenstelle hat den TLS-Handshake nicht rechtzeitig abgeschlossen.</translation>
    </message>
    <message>
        <source>The peer did not complete the association in time.</source>
        <translation>Die Gegenstelle hat den Aufbau der Assoziation nicht rechtzeitig abgeschlossen.</translation>
    </message>
    <message>
        <source>The peer does not conclude the association: %1.</source>
        <translation>Die Gegenstelle beendet die Assoziation nicht: %1.</translation>
    </message>
    <message>
        <source>The peer does not know the presentation selector.</source>
        <translation>Die Gegenstelle kennt den Presentation-Selektor nicht.</translation>
    </message>
    <message>
        <source>The peer does not know the session selector.</source>
        <translation>Die Gegenstelle kennt den Session-Selektor nicht.</translation>
    </message>
    <message>
        <source>The peer does not know the transport selector.</source>
        <translation>Die Gegenstelle kennt den Transport-Selektor nicht.</translation>
    </message>
    <message>
        <source>The peer does not read what it is sent.</source>
        <translation>Die Gegenstelle liest nicht, was ihr gesendet wird.</translation>
    </message>
    <message>
        <source>The peer does not speak ISO transport over TCP: a packet begins with %1 instead of 3.</source>
        <translation>Die Gegenstelle spricht kein ISO-Transport über TCP: Ein Paket beginnt mit %1 statt 3.</translation>
    </message>
    <message>
        <source>The peer does not speak TLS, which is required here.</source>
        <translation>Die Gegenstelle spricht kein TLS; hier ist es vorgeschrieben.</translation>
    </message>
    <message>
        <source>The peer does not speak TLS.</source>
        <translation>Die Gegenstelle spricht kein TLS.</translation>
    </message>
    <message>
        <source>The peer does not support the default context.</source>
        <translation>Die Gegenstelle unterstützt den Standardkontext nicht.</translation>
    </message>
    <message>
        <source>The peer does not support the proposed version of the session protocol.</source>
        <translation>Die Gegenstelle unterstützt die vorgeschlagene Version des Session-Protokolls nicht.</translation>
    </message>
    <message>
        <source>The peer does not support the version of the presentation protocol.</source>
        <translation>Die Gegenstelle unterstützt die Version des Presentation-Protokolls nicht.</translation>
    </message>
    <message>
        <source>The peer ended the transport connection normally.</source>
        <translation>Die Gegenstelle hat die Transportverbindung normal beendet.</translation>
    </message>
    <message>
        <source>The peer ended the transport connection with reason %1.</source>
        <translation>Die Gegenstelle hat die Transportverbindung mit Grund %1 beendet.</translation>
    </message>
    <message>
        <source>The peer ended the transport connection without a reason.</source>
        <translation>Die Gegenstelle hat die Transportverbindung ohne Grund beendet.</translation>
    </message>
    <message>
        <source>The peer has shown no certificate.</source>
        <translation>Die Gegenstelle hat kein Zertifikat vorgelegt.</translation>
    </message>
    <message>
        <source>The peer knows the certificate of this side and denies it access.</source>
        <translation>Die Gegenstelle kennt das Zertifikat dieser Seite und verweigert ihr den Zugang.</translation>
    </message>
    <message>
        <source>The peer refuses a parameter code of the transport unit.</source>
        <translation>Die Gegenstelle lehnt einen Parametercode der Transporteinheit ab.</translation>
    </message>
    <message>
        <source>The peer refuses a parameter value of the transport unit.</source>
        <translation>Die Gegenstelle lehnt einen Parameterwert der Transporteinheit ab.</translation>
    </message>
    <message>
        <source>The peer refuses a transport unit without a reason.</source>
        <translation>Die Gegenstelle lehnt eine Transporteinheit ohne Grund ab.</translation>
    </message>
    <message>
        <source>The peer refuses the association for the time being.</source>
        <translation>Die Gegenstelle lehnt die Assoziation vorerst ab.</translation>
    </message>
    <message>
        <source>The peer refuses the association for the time being: %1.</source>
        <translation>Die Gegenstelle lehnt die Assoziation vorerst ab: %1.</translation>
    </message>
    <message>
        <source>The peer refuses the association.</source>
        <translation>Die Gegenstelle lehnt die Assoziation ab.</translation>
    </message>
    <message>
        <source>The peer refuses the association: %1.</source>
        <translation>Die Gegenstelle lehnt die Assoziation ab: %1.</translation>
    </message>
    <message>
        <source>The peer refuses the certificate of this side because it does not trust its issuer.</source>
        <translation>Die Gegenstelle lehnt das Zertifikat dieser Seite ab, weil sie dessen Aussteller nicht vertraut.</translation>
    </message>
    <message>
        <source>The peer refuses the certificate of this side because it has been revoked.</source>
        <translation>Die Gegenstelle lehnt das Zertifikat dieser Seite ab, weil es gesperrt wurde.</translation>
    </message>
    <message>
        <source>The peer refuses the certificate of this side because it has expired or is not valid yet.</source>
        <translation>Die Gegenstelle lehnt das Zertifikat dieser Seite ab, weil es abgelaufen oder noch nicht gültig ist.</translation>
    </message>
    <message>
        <source>The peer refuses the certificate of this side because it is not of a kind that it takes.</source>
        <translation>Die Gegenstelle lehnt das Zertifikat dieser Seite ab, weil sie Zertifikate dieser Art nicht annimmt.</translation>
    </message>
    <message>
        <source>The peer refuses the certificate of this side.</source>
        <translation>Die Gegenstelle lehnt das Zertifikat dieser Seite ab.</translation>
    </message>
    <message>
        <source>The peer refuses the handshake because a signature of this side does not fit.</source>
        <translation>Die Gegenstelle lehnt den Handshake ab, weil eine Signatur dieser Seite nicht passt.</translation>
    </message>
    <message>
        <source>The peer refuses the initiate request.</source>
        <translation>Die Gegenstelle lehnt die Initiate-Anfrage ab.</translation>
    </message>
    <message>
        <source>The peer refuses the presentation connection with reason %1.</source>
        <translation>Die Gegenstelle lehnt die Presentation-Verbindung mit Grund %1 ab.</translation>
    </message>
    <message>
        <source>The peer refuses the presentation connection.</source>
        <translation>Die Gegenstelle lehnt die Presentation-Verbindung ab.</translation>
    </message>
    <message>
        <source>The peer refuses the request on this network connection.</source>
        <translation>Die Gegenstelle lehnt die Anfrage auf dieser Netzwerkverbindung ab.</translation>
    </message>
    <message>
        <source>The peer refuses the session because it is busy.</source>
        <translation>Die Gegenstelle lehnt die Session ab, weil sie ausgelastet ist.</translation>
    </message>
    <message>
        <source>The peer refuses the session with reason %1.</source>
        <translation>Die Gegenstelle lehnt die Session mit Grund %1 ab.</translation>
    </message>
    <message>
        <source>The peer refuses the session without a reason.</source>
        <translation>Die Gegenstelle lehnt die Session ohne Grund ab.</translation>
    </message>
    <message>
        <source>The peer refuses the session.</source>
        <translation>Die Gegenstelle lehnt die Session ab.</translation>
    </message>
    <message>
        <source>The peer refuses the type of the transport unit.</source>
        <translation>Die Gegenstelle lehnt die Art der Transporteinheit ab.</translation>
    </message>
    <message>
        <source>The peer refuses to end the session.</source>
        <translation>Die Gegenstelle lehnt es ab, die Session zu beenden.</translation>
    </message>
    <message>
        <source>The peer reports an error in the transport protocol.</source>
        <translation>Die Gegenstelle meldet einen Fehler im Transportprotokoll.</translation>
    </message>
    <message>
        <source>The peer reports an invalid header or parameter length.</source>
        <translation>Die Gegenstelle meldet eine ungültige Länge des Kopfes oder eines Parameters.</translation>
    </message>
    <message>
        <source>The peer said nothing for %1 ms.</source>
        <translation>Die Gegenstelle hat %1 ms lang nichts gesendet.</translation>
    </message>
    <message>
        <source>The peer saw a duplicate transport reference.</source>
        <translation>Die Gegenstelle hat eine doppelte Transportreferenz festgestellt.</translation>
    </message>
    <message>
        <source>The peer saw mismatched transport references.</source>
        <translation>Die Gegenstelle hat Transportreferenzen festgestellt, die nicht zueinander passen.</translation>
    </message>
    <message>
        <source>The peer sent a message of more than %1 octets.</source>
        <translation>Die Gegenstelle hat eine Nachricht von mehr als %1 Oktetten gesendet.</translation>
    </message>
    <message>
        <source>The peer sent a transport unit that does not belong here.</source>
        <translation>Die Gegenstelle hat eine Transporteinheit gesendet, die nicht hierher gehört.</translation>
    </message>
    <message>
        <source>The peer sent a unit of association control that does not belong here.</source>
        <translation>Die Gegenstelle hat eine Einheit der Assoziationssteuerung gesendet, die nicht hierher gehört.</translation>
    </message>
    <message>
        <source>The peer sent a wrong password.</source>
        <translation>Die Gegenstelle hat ein falsches Passwort gesendet.</translation>
    </message>
    <message>
        <source>The peer sent no password.</source>
        <translation>Die Gegenstelle hat kein Passwort gesendet.</translation>
    </message>
    <message>
        <source>The peer sent the session unit &quot;%1&quot;, which does not belong here.</source>
        <translation>Die Gegenstelle hat die Session-Einheit „%1“ gesendet, die nicht hierher gehört.</translation>
    </message>
    <message>
        <source>The peer speaks TLS, which is not configured here.</source>
        <translation>Die Gegenstelle spricht TLS; hier ist es nicht eingerichtet.</translation>
    </message>
    <message>
        <source>The peer&apos;s PDU size of %1 octets is too small.</source>
        <translation>Die PDU-Größe der Gegenstelle von %1 Oktetten ist zu klein.</translation>
    </message>
    <message>
        <source>The peer&apos;s association control aborted the association.</source>
        <translation>Die Assoziationssteuerung der Gegenstelle hat die Assoziation abgebrochen.</translation>
    </message>
    <message>
        <source>The peer&apos;s certificate &quot;%1&quot;</source>
        <translation>Das Zertifikat „%1“ der Gegenstelle</translation>
    </message>
    <message>
        <source>The peer&apos;s certificate &quot;%1&quot; is not one of those that are pinned; its fingerprint is %2.</source>
        <translation>Das Zertifikat „%1“ der Gegenstelle ist keines der festgelegten; sein Fingerabdruck ist %2.</translation>
    </message>
    <message>
        <source>The peer&apos;s initiate answer cannot be read: %1.</source>
        <translation>Die Initiate-Antwort der Gegenstelle kann nicht gelesen werden: %1.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer aborted without a reason.</source>
        <translation>Die Presentation-Schicht der Gegenstelle hat ohne Grund abgebrochen.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer aborted.</source>
        <translation>Die Presentation-Schicht der Gegenstelle hat abgebrochen.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer did not expect a parameter and aborted.</source>
        <translation>Die Presentation-Schicht der Gegenstelle hat einen Parameter nicht erwartet und abgebrochen.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer did not expect a session service and aborted.</source>
        <translation>Die Presentation-Schicht der Gegenstelle hat einen Session-Dienst nicht erwartet und abgebrochen.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer did not expect a unit and aborted.</source>
        <translation>Die Presentation-Schicht der Gegenstelle hat eine Einheit nicht erwartet und abgebrochen.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer does not recognise a parameter and aborted.</source>
        <translation>Die Presentation-Schicht der Gegenstelle erkennt einen Parameter nicht und hat abgebrochen.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer does not recognise a unit and aborted.</source>
        <translation>Die Presentation-Schicht der Gegenstelle erkennt eine Einheit nicht und hat abgebrochen.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer found an invalid parameter value and aborted.</source>
        <translation>Die Presentation-Schicht der Gegenstelle hat einen ungültigen Parameterwert gefunden und abgebrochen.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer has reached a limit of its own.</source>
        <translation>Die Presentation-Schicht der Gegenstelle hat eine eigene Grenze erreicht.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer is congested.</source>
        <translation>Die Presentation-Schicht der Gegenstelle ist überlastet.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer refuses the connection without a reason.</source>
        <translation>Die Presentation-Schicht der Gegenstelle lehnt die Verbindung ohne Grund ab.</translation>
    </message>
    <message>
        <source>The peer&apos;s session layer aborted the session.</source>
        <translation>Die Session-Schicht der Gegenstelle hat die Session abgebrochen.</translation>
    </message>
    <message>
        <source>The peer&apos;s session layer is congested.</source>
        <translation>Die Session-Schicht der Gegenstelle ist überlastet.</translation>
    </message>
    <message>
        <source>The peer&apos;s session layer refuses the session because of a restriction of its own.</source>
        <translation>Die Session-Schicht der Gegenstelle lehnt die Session wegen einer eigenen Beschränkung ab.</translation>
    </message>
    <message>
        <source>The peer&apos;s session layer refuses the session.</source>
        <translation>Die Session-Schicht der Gegenstelle lehnt die Session ab.</translation>
    </message>
    <message>
        <source>The peer&apos;s session layer reports an error in the protocol and aborted the session.</source>
        <translation>Die Session-Schicht der Gegenstelle meldet einen Protokollfehler und hat die Session abgebrochen.</translation>
    </message>
    <message>
        <source>The peer&apos;s session request cannot be accepted.</source>
        <translation>Die Session-Anforderung der Gegenstelle kann nicht angenommen werden.</translation>
    </message>
    <message>
        <source>The peer&apos;s transport layer is congested.</source>
        <translation>Die Transportschicht der Gegenstelle ist überlastet.</translation>
    </message>
    <message>
        <source>The peer&apos;s transport references have overflowed.</source>
        <translation>Der Gegenstelle sind die Transportreferenzen ausgegangen.</translation>
    </message>
    <message>
        <source>The peer&apos;s transport selector is congested.</source>
        <translation>Der Transport-Selektor der Gegenstelle ist überlastet.</translation>
    </message>
    <message>
        <source>The position is not within the file.</source>
        <translation>Die Position liegt nicht innerhalb der Datei.</translation>
    </message>
    <message>
        <source>The private key in the file &quot;%1&quot; cannot be used (%2).</source>
        <translation>Der private Schlüssel in der Datei „%1“ kann nicht verwendet werden (%2).</translation>
    </message>
    <message>
        <source>The private key in the file &quot;%1&quot; does not fit the certificate in the file &quot;%2&quot;.</source>
        <translation>Der private Schlüssel in der Datei „%1“ passt nicht zum Zertifikat in der Datei „%2“.</translation>
    </message>
    <message>
        <source>The private key in the file &quot;%1&quot; does not open with the password that is given.</source>
        <translation>Der private Schlüssel in der Datei „%1“ lässt sich mit dem angegebenen Passwort nicht öffnen.</translation>
    </message>
    <message>
        <source>The private key in the file &quot;%1&quot; is encrypted, and no password is given.</source>
        <translation>Der private Schlüssel in der Datei „%1“ ist verschlüsselt, und es ist kein Passwort angegeben.</translation>
    </message>
    <message>
        <source>The report ends before its %1.</source>
        <translation>Der Report endet vor dem Feld %1.</translation>
    </message>
    <message>
        <source>The report has no value for its %1: %2.</source>
        <translation>Der Report hat keinen Wert für das Feld %1: %2.</translation>
    </message>
    <message>
        <source>The report says that it brings %1 members, which are %2 values, but it has %3.</source>
        <translation>Der Report gibt an, %1 Elemente zu bringen, also %2 Werte, hat aber %3.</translation>
    </message>
    <message>
        <source>The report&apos;s %1 is neither true nor false.</source>
        <translation>Das Feld %1 des Reports ist weder wahr noch falsch.</translation>
    </message>
    <message>
        <source>The report&apos;s %1 is not a binary time.</source>
        <translation>Das Feld %1 des Reports ist keine Binärzeit.</translation>
    </message>
    <message>
        <source>The report&apos;s %1 is not a bit string.</source>
        <translation>Das Feld %1 des Reports ist keine Bitfolge.</translation>
    </message>
    <message>
        <source>The report&apos;s %1 is not a number of 32 bits without sign.</source>
        <translation>Das Feld %1 des Reports ist keine vorzeichenlose Zahl mit 32 Bit.</translation>
    </message>
    <message>
        <source>The report&apos;s %1 is not a string of octets.</source>
        <translation>Das Feld %1 des Reports ist keine Oktettfolge.</translation>
    </message>
    <message>
        <source>The report&apos;s %1 is not a text.</source>
        <translation>Das Feld %1 des Reports ist kein Text.</translation>
    </message>
    <message>
        <source>The request is longer than the negotiated PDU size of %1 octets.</source>
        <translation>Die Anfrage ist länger als die vereinbarte PDU-Größe von %1 Oktetten.</translation>
    </message>
    <message>
        <source>The request was not sent: it waited for a place behind calls that the peer has not answered.</source>
        <translation>Die Anfrage wurde nicht gesendet: Sie wartete auf einen Platz hinter Anfragen, die die Gegenstelle nicht beantwortet hat.</translation>
    </message>
    <message>
        <source>The revocation list in the file &quot;%1&quot; cannot be used (%2).</source>
        <translation>Die Sperrliste in der Datei „%1“ kann nicht verwendet werden (%2).</translation>
    </message>
    <message>
        <source>The root element is in no name space; it should be in &quot;%1&quot;.</source>
        <translation>Das Wurzelelement ist in keinem Namensraum; es sollte in „%1“ sein.</translation>
    </message>
    <message>
        <source>The root element is in the name space &quot;%1&quot; instead of &quot;%2&quot;.</source>
        <translation>Das Wurzelelement ist im Namensraum „%1“ statt „%2“.</translation>
    </message>
    <message>
        <source>The server was stopped.</source>
        <translation>Der Server wurde angehalten.</translation>
    </message>
    <message>
        <source>The service was called out of sequence.</source>
        <translation>Der Dienst wurde außer der Reihe aufgerufen.</translation>
    </message>
    <message>
        <source>The services offered do not suit the device.</source>
        <translation>Die angebotenen Dienste sind für das Gerät nicht annehmbar.</translation>
    </message>
    <message>
        <source>The session parameter %1 has a wrong length.</source>
        <translation>Der Session-Parameter %1 hat eine falsche Länge.</translation>
    </message>
    <message>
        <source>The size of transport units is not one of 128 to 8,192 octets.</source>
        <translation>Die Größe der Transporteinheiten ist keine der Größen von 128 bis 8.192 Oktetten.</translation>
    </message>
    <message>
        <source>The state of the device does not allow this.</source>
        <translation>Der Zustand des Geräts lässt dies nicht zu.</translation>
    </message>
    <message>
        <source>The transport classes of both sides do not match.</source>
        <translation>Die Transportklassen beider Seiten passen nicht zueinander.</translation>
    </message>
    <message>
        <source>The transport unit &quot;%1&quot; is shorter than its fixed part.</source>
        <translation>Die Transporteinheit „%1“ ist kürzer als ihr fester Teil.</translation>
    </message>
    <message>
        <source>The truth value is written &quot;%1&quot; instead of &quot;true&quot; or &quot;false&quot;.</source>
        <translation>Der Wahrheitswert ist „%1“ statt „true“ oder „false“ geschrieben.</translation>
    </message>
    <message>
        <source>The type is not supported.</source>
        <translation>Der Typ wird nicht unterstützt.</translation>
    </message>
    <message>
        <source>The type of %1 cannot be read: %2.</source>
        <translation>Der Typ von %1 kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>The types do not agree.</source>
        <translation>Die Typen stimmen nicht überein.</translation>
    </message>
    <message>
        <source>The value %1 does not fit the type %2 of the device.</source>
        <translation>Der Wert %1 passt nicht in den Typ %2 des Geräts.</translation>
    </message>
    <message>
        <source>The value &quot;%1&quot; differs in blanks or capitals from what is expected.</source>
        <translation>Der Wert „%1“ weicht in Leerzeichen oder Großschreibung vom erwarteten ab.</translation>
    </message>
    <message>
        <source>The value has not the type of the object.</source>
        <translation>Der Wert hat nicht den Typ des Objekts.</translation>
    </message>
    <message>
        <source>The value is empty, so the attribute has none.</source>
        <translation>Der Wert ist leer; das Attribut hat daher keinen Wert.</translation>
    </message>
    <message>
        <source>The value is given by its number &quot;%1&quot; instead of its text.</source>
        <translation>Der Wert ist durch seine Nummer „%1“ statt durch seinen Text angegeben.</translation>
    </message>
    <message>
        <source>The value is not allowed for the object.</source>
        <translation>Der Wert ist für das Objekt nicht zugelassen.</translation>
    </message>
    <message>
        <source>The value of the control block does not match its type %1.</source>
        <translation>Der Wert des Steuerblocks passt nicht zu dessen Typ %1.</translation>
    </message>
    <message>
        <source>There are %1 associations already, which is the limit.</source>
        <translation>Es gibt bereits %1 Assoziationen; mehr sind nicht zugelassen.</translation>
    </message>
    <message>
        <source>There is a problem with the other application.</source>
        <translation>Es gibt ein Problem mit der anderen Anwendung.</translation>
    </message>
    <message>
        <source>There is another IED of the name &quot;%1&quot;.</source>
        <translation>Es gibt ein weiteres IED mit dem Namen „%1“.</translation>
    </message>
    <message>
        <source>There is another control block &quot;%1&quot;.</source>
        <translation>Es gibt einen weiteren Steuerblock „%1“.</translation>
    </message>
    <message>
        <source>There is another data set &quot;%1&quot;.</source>
        <translation>Es gibt einen weiteren Datensatz „%1“.</translation>
    </message>
    <message>
        <source>There is another logical device &quot;%1&quot;.</source>
        <translation>Es gibt ein weiteres logisches Gerät „%1“.</translation>
    </message>
    <message>
        <source>There is another logical node &quot;%1&quot;.</source>
        <translation>Es gibt einen weiteren logischen Knoten „%1“.</translation>
    </message>
    <message>
        <source>There is no &quot;%1&quot;</source>
        <translation>Es gibt kein „%1“</translation>
    </message>
    <message>
        <source>There is no association.</source>
        <translation>Es besteht keine Assoziation.</translation>
    </message>
    <message>
        <source>There is no data set %1.</source>
        <translation>Es gibt keinen Datensatz %1.</translation>
    </message>
    <message>
        <source>There is no functional constraint (attribute fc)</source>
        <translation>Es fehlt der Functional Constraint (Attribut fc)</translation>
    </message>
    <message>
        <source>There is no logical device &quot;%1&quot;</source>
        <translation>Es gibt kein logisches Gerät „%1“</translation>
    </message>
    <message>
        <source>There is no logical node &quot;%1&quot; in &quot;%2&quot;</source>
        <translation>Es gibt keinen logischen Knoten „%1“ in „%2“</translation>
    </message>
    <message>
        <source>There is not enough memory to read the file.</source>
        <translation>Der Arbeitsspeicher reicht nicht, um die Datei zu lesen.</translation>
    </message>
    <message>
        <source>There is not enough room for the file.</source>
        <translation>Es ist nicht genug Platz für die Datei.</translation>
    </message>
    <message>
        <source>There is nothing of functional constraint &quot;%1&quot; in &quot;%2&quot;</source>
        <translation>Zum Functional Constraint „%1“ gibt es nichts in „%2“</translation>
    </message>
    <message>
        <source>This is no report control block: it has no RptEna.</source>
        <translation>Dies ist kein Report-Steuerblock: Er hat kein RptEna.</translation>
    </message>
    <message>
        <source>This is no setting group control block: NumOfSG or ActSG is missing.</source>
        <translation>Dies ist kein Parametersatz-Steuerblock: NumOfSG oder ActSG fehlt.</translation>
    </message>
    <message>
        <source>This is not a report but %1.</source>
        <translation>Dies ist kein Report, sondern %1.</translation>
    </message>
    <message>
        <source>This is not an SCL file: its root element is &quot;%1&quot;.</source>
        <translation>Dies ist keine SCL-Datei: Ihr Wurzelelement ist „%1“.</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Zu viele offene Dateien</translation>
    </message>
    <message>
        <source>User information is in a form that is not supported.</source>
        <translation>Benutzerinformationen haben eine Form, die nicht unterstützt wird.</translation>
    </message>
    <message>
        <source>What the peer sent cannot be read: %1.</source>
        <translation>Was die Gegenstelle gesendet hat, kann nicht gelesen werden: %1.</translation>
    </message>
    <message>
        <source>XML or text declaration not at start of entity</source>
        <translation>XML- oder Textdeklaration nicht am Anfang der Entität</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not exist in type &quot;%2&quot;; what is given for it is left out.</source>
        <translation>„%1“ existiert nicht im Typ „%2“; was dafür angegeben ist, wird weggelassen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a value, but it is a structure.</source>
        <translation>„%1“ hat einen Wert, ist aber eine Struktur.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no element %2</source>
        <translation>„%1“ hat kein Element %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no element %2; what is given for it is left out.</source>
        <translation>„%1“ hat kein Element %2; was dafür angegeben ist, wird weggelassen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a directory, not a file.</source>
        <translation>„%1“ ist ein Verzeichnis, keine Datei.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is an array, and no element is given</source>
        <translation>„%1“ ist ein Array, und es ist kein Element angegeben</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is defined twice in its type; the first is used.</source>
        <translation>„%1“ ist in seinem Typ zweimal definiert; verwendet wird das erste.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither &quot;true&quot; nor &quot;false&quot;; %2 is used.</source>
        <translation>„%1“ ist weder „true“ noch „false“; verwendet wird %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a SHA-256 fingerprint of 64 hexadecimal digits.</source>
        <translation>„%1“ ist kein SHA-256-Fingerabdruck aus 64 Hexadezimalziffern.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a basic type of the standard; values are kept as texts.</source>
        <translation>„%1“ ist kein Basistyp der Norm; Werte werden als Text behalten.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a directory.</source>
        <translation>„%1“ ist kein Verzeichnis.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a functional constraint.</source>
        <translation>„%1“ ist kein Functional Constraint.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a host name that a certificate can have.</source>
        <translation>„%1“ ist kein Rechnername, den ein Zertifikat haben kann.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number of array elements; the element is taken as a single one.</source>
        <translation>„%1“ ist keine Anzahl von Array-Elementen; das Element gilt als ein einzelnes.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number of milliseconds.</source>
        <translation>„%1“ ist keine Anzahl von Millisekunden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a value of %2 &quot;%3&quot;; the attribute has no value.</source>
        <translation>„%1“ ist kein Wert von %2 „%3“; das Attribut hat keinen Wert.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a value of %2; %3 is used.</source>
        <translation>„%1“ ist kein Wert von %2; verwendet wird %3.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a value of %2; the attribute has no value.</source>
        <translation>„%1“ ist kein Wert von %2; das Attribut hat keinen Wert.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a value of its type; the attribute has no value.</source>
        <translation>„%1“ ist kein Wert des Typs; das Attribut hat keinen Wert.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an address of a network interface.</source>
        <translation>„%1“ ist keine Adresse einer Netzwerkschnittstelle.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an array</source>
        <translation>„%1“ ist kein Array</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an array; the element number is ignored.</source>
        <translation>„%1“ ist kein Array; die Elementnummer wird nicht beachtet.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an ordinal; the literal is left out.</source>
        <translation>„%1“ ist keine Ordnungszahl; das Literal wird weggelassen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the number of an array element.</source>
        <translation>„%1“ ist keine Nummer eines Array-Elements.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names an attribute, which takes a DAI.</source>
        <translation>„%1“ benennt ein Attribut; dafür ist ein DAI nötig.</translation>
    </message>
    <message>
        <source>a certificate</source>
        <translation>Zertifikat</translation>
    </message>
    <message>
        <source>a command is being executed already</source>
        <translation>ein Befehl wird bereits ausgeführt</translation>
    </message>
    <message>
        <source>a parameter is being changed</source>
        <translation>ein Parameter wird gerade geändert</translation>
    </message>
    <message>
        <source>a revocation list</source>
        <translation>Sperrliste</translation>
    </message>
    <message>
        <source>additional cause %1</source>
        <translation>Zusatzursache %1</translation>
    </message>
    <message>
        <source>additional code %1</source>
        <translation>Zusatzcode %1</translation>
    </message>
    <message>
        <source>an authentication is required</source>
        <translation>eine Authentifizierung ist erforderlich</translation>
    </message>
    <message>
        <source>an authentication mechanism is required</source>
        <translation>ein Authentifizierungsverfahren ist erforderlich</translation>
    </message>
    <message>
        <source>an authority</source>
        <translation>Zertifizierungsstelle</translation>
    </message>
    <message>
        <source>an unknown date</source>
        <translation>unbekanntem Datum</translation>
    </message>
    <message>
        <source>another object of the domain is being controlled</source>
        <translation>ein anderes Objekt desselben Schaltbereichs wird gerade gesteuert</translation>
    </message>
    <message>
        <source>blocked because the switching authority lies elsewhere (local or remote)</source>
        <translation>gesperrt, weil die Schalthoheit woanders liegt (Ort oder Fern)</translation>
    </message>
    <message>
        <source>blocked by an event of the process</source>
        <translation>gesperrt durch ein Prozessereignis</translation>
    </message>
    <message>
        <source>blocked by interlocking</source>
        <translation>gesperrt durch Verriegelung</translation>
    </message>
    <message>
        <source>blocked by synchrocheck</source>
        <translation>gesperrt durch Synchrocheck</translation>
    </message>
    <message>
        <source>blocked by the data object that blocks commands</source>
        <translation>gesperrt durch das Datenobjekt für die Befehlssperre</translation>
    </message>
    <message>
        <source>blocked by the health of the logical node</source>
        <translation>gesperrt durch den Zustand (Health) des logischen Knotens</translation>
    </message>
    <message>
        <source>blocked by the mode of the logical node</source>
        <translation>gesperrt durch die Betriebsart (Mode) des logischen Knotens</translation>
    </message>
    <message>
        <source>control error %1</source>
        <translation>Steuerfehler %1</translation>
    </message>
    <message>
        <source>duplicate attribute</source>
        <translation>doppeltes Attribut</translation>
    </message>
    <message>
        <source>ended because the position deviates from the command</source>
        <translation>beendet, weil die Stellung vom Befehl abweicht</translation>
    </message>
    <message>
        <source>ended beyond the wanted position</source>
        <translation>beendet, weil die gewünschte Stellung überfahren wurde</translation>
    </message>
    <message>
        <source>ended by a cancel</source>
        <translation>durch einen Abbruch (Cancel) beendet</translation>
    </message>
    <message>
        <source>ended by a trip</source>
        <translation>durch eine Auslösung beendet</translation>
    </message>
    <message>
        <source>ended by the loss of the connection with the client that issued it</source>
        <translation>beendet, weil die Verbindung zum Client verloren ging, der den Befehl gab</translation>
    </message>
    <message>
        <source>error %1</source>
        <translation>Fehler %1</translation>
    </message>
    <message>
        <source>it gives no reason; another client may have selected the object.</source>
        <translation>es nennt keinen Grund; vielleicht hat ein anderer Client das Objekt angewählt.</translation>
    </message>
    <message>
        <source>it has no address</source>
        <translation>er hat keine Adresse</translation>
    </message>
    <message>
        <source>it is not in a logical device.</source>
        <translation>sie liegt nicht in einem logischen Gerät.</translation>
    </message>
    <message>
        <source>it names more than one element of one array.</source>
        <translation>sie nennt mehr als ein Element eines Arrays.</translation>
    </message>
    <message>
        <source>it names several parts.</source>
        <translation>sie nennt mehrere Teile.</translation>
    </message>
    <message>
        <source>junk after document element</source>
        <translation>überflüssiger Inhalt nach dem Wurzelelement</translation>
    </message>
    <message>
        <source>locked by another client</source>
        <translation>von einem anderen Client gesperrt</translation>
    </message>
    <message>
        <source>mismatched tag</source>
        <translation>Anfangs- und Endtag passen nicht zusammen</translation>
    </message>
    <message>
        <source>no cause</source>
        <translation>keine Ursache</translation>
    </message>
    <message>
        <source>no error</source>
        <translation>kein Fehler</translation>
    </message>
    <message>
        <source>no reason given</source>
        <translation>kein Grund angegeben</translation>
    </message>
    <message>
        <source>nobody answers who knows names</source>
        <translation>kein Namensdienst antwortet</translation>
    </message>
    <message>
        <source>nobody knows it</source>
        <translation>niemand kennt ihn</translation>
    </message>
    <message>
        <source>reason %1</source>
        <translation>Grund %1</translation>
    </message>
    <message>
        <source>syntax error</source>
        <translation>Syntaxfehler</translation>
    </message>
    <message>
        <source>the application context is not supported</source>
        <translation>der Anwendungskontext wird nicht unterstützt</translation>
    </message>
    <message>
        <source>the authentication failed</source>
        <translation>die Authentifizierung ist gescheitert</translation>
    </message>
    <message>
        <source>the authentication mechanism is not recognised</source>
        <translation>das Authentifizierungsverfahren ist nicht bekannt</translation>
    </message>
    <message>
        <source>the called AE invocation identifier is not recognised</source>
        <translation>der gerufene AE-Invocation-Identifier ist nicht bekannt</translation>
    </message>
    <message>
        <source>the called AE qualifier is not recognised</source>
        <translation>der gerufene AE-Qualifier ist nicht bekannt</translation>
    </message>
    <message>
        <source>the called AP invocation identifier is not recognised</source>
        <translation>der gerufene AP-Invocation-Identifier ist nicht bekannt</translation>
    </message>
    <message>
        <source>the called AP title is not recognised</source>
        <translation>der gerufene AP-Titel ist nicht bekannt</translation>
    </message>
    <message>
        <source>the calling AE invocation identifier is not recognised</source>
        <translation>der rufende AE-Invocation-Identifier ist nicht bekannt</translation>
    </message>
    <message>
        <source>the calling AE qualifier is not recognised</source>
        <translation>der rufende AE-Qualifier ist nicht bekannt</translation>
    </message>
    <message>
        <source>the calling AP invocation identifier is not recognised</source>
        <translation>der rufende AP-Invocation-Identifier ist nicht bekannt</translation>
    </message>
    <message>
        <source>the calling AP title is not recognised</source>
        <translation>der rufende AP-Titel ist nicht bekannt</translation>
    </message>
    <message>
        <source>the client has no authority for it</source>
        <translation>der Client hat keine Berechtigung dafür</translation>
    </message>
    <message>
        <source>the functional constraint is missing.</source>
        <translation>der Functional Constraint fehlt.</translation>
    </message>
    <message>
        <source>the name of the logical device is missing or wrong.</source>
        <translation>der Name des logischen Geräts fehlt oder ist falsch.</translation>
    </message>
    <message>
        <source>the name of the logical node is missing or wrong.</source>
        <translation>der Name des logischen Knotens fehlt oder ist falsch.</translation>
    </message>
    <message>
        <source>the object is not selected</source>
        <translation>das Objekt ist nicht angewählt</translation>
    </message>
    <message>
        <source>the object is selected already</source>
        <translation>das Objekt ist bereits angewählt</translation>
    </message>
    <message>
        <source>the operator test failed</source>
        <translation>die Prüfung des Bedieners ist gescheitert</translation>
    </message>
    <message>
        <source>the own certificate</source>
        <translation>eigenes Zertifikat</translation>
    </message>
    <message>
        <source>the parameters of the service contradict those of the selection</source>
        <translation>die Parameter des Dienstes widersprechen denen der Anwahl</translation>
    </message>
    <message>
        <source>the position has been reached already</source>
        <translation>die Stellung ist bereits erreicht</translation>
    </message>
    <message>
        <source>the position is not valid</source>
        <translation>die Stellung ist nicht gültig</translation>
    </message>
    <message>
        <source>the private key</source>
        <translation>privater Schlüssel</translation>
    </message>
    <message>
        <source>the selection failed</source>
        <translation>die Anwahl ist gescheitert</translation>
    </message>
    <message>
        <source>the service is not supported</source>
        <translation>der Dienst wird nicht unterstützt</translation>
    </message>
    <message>
        <source>the tap changer is at the end of its range</source>
        <translation>der Stufenschalter ist am Ende seines Bereichs</translation>
    </message>
    <message>
        <source>the time for it is over</source>
        <translation>die Zeit dafür ist abgelaufen</translation>
    </message>
    <message>
        <source>the time-out test failed</source>
        <translation>die Prüfung der Zeitgrenze ist gescheitert</translation>
    </message>
    <message>
        <source>there is no common version of association control</source>
        <translation>es gibt keine gemeinsame Version der Assoziationssteuerung</translation>
    </message>
    <message>
        <source>unclosed CDATA section</source>
        <translation>nicht geschlossener CDATA-Abschnitt</translation>
    </message>
    <message>
        <source>unclosed token</source>
        <translation>nicht geschlossenes Token</translation>
    </message>
    <message>
        <source>unknown cause</source>
        <translation>unbekannte Ursache</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>unbekannter Fehler</translation>
    </message>
    <message>
        <source>%1: the value does not have the form of its type.</source>
        <translation>%1: Der Wert hat nicht die Form seines Typs.</translation>
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
    <message>
        <source>&amp;Undo Remove</source>
        <translation>Entfernen &amp;rückgängig machen</translation>
    </message>
    <message>
        <source>Ctrl+Z</source>
        <translation>Ctrl+Z</translation>
    </message>
    <message>
        <source>Remove Device</source>
        <translation>Gerät entfernen</translation>
    </message>
    <message>
        <source>Take %1 off the list?</source>
        <translation>%1 aus der Liste nehmen?</translation>
    </message>
    <message>
        <source>Its connection ends, and windows that are open for it are no longer served.</source>
        <translation>Die Verbindung wird beendet, und die dafür geöffneten Fenster werden nicht mehr bedient.</translation>
    </message>
    <message>
        <source>Windows that are open for it are no longer served.</source>
        <translation>Die dafür geöffneten Fenster werden nicht mehr bedient.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>%1 was taken off the list; %2 puts it back.</source>
        <translation>%1 wurde aus der Liste genommen; %2 macht es rückgängig.</translation>
    </message>
    <message>
        <source>%1 was taken off the list; its file stays where it is, and %2 puts it back.</source>
        <translation>%1 wurde aus der Liste genommen; die Datei bleibt, wo sie ist, und %2 macht es rückgängig.</translation>
    </message>
    <message>
        <source>&amp;Undo Remove of %1</source>
        <translation>Entfernen von %1 &amp;rückgängig machen</translation>
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
        <source>The trace stayed empty.</source>
        <translation>Der PDU-Mitschnitt blieb leer.</translation>
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
    <name>WaitingCalls</name>
    <message>
        <source>Waiting for %1</source>
        <translation>Warten auf %1</translation>
    </message>
    <message>
        <source>%1 has not answered yet (%2).</source>
        <translation>%1 hat noch nicht geantwortet (%2).</translation>
    </message>
    <message>
        <source>Cancelling. What the device was asked before may still be done.</source>
        <translation>Es wird abgebrochen. Was vom Gerät schon verlangt wurde, kann noch ausgeführt werden.</translation>
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
