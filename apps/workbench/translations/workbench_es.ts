<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
<context>
    <name>CallConfirmation</name>
    <message>
        <source>Select</source>
        <translation>Seleccionar</translation>
    </message>
    <message>
        <source>Operate</source>
        <translation>Ejecutar</translation>
    </message>
    <message>
        <source>Write a value</source>
        <translation>Escribir un valor</translation>
    </message>
    <message>
        <source>Create a data set</source>
        <translation>Crear un conjunto de datos</translation>
    </message>
    <message>
        <source>Delete a data set</source>
        <translation>Eliminar un conjunto de datos</translation>
    </message>
    <message>
        <source>Delete a file</source>
        <translation>Eliminar un archivo</translation>
    </message>
    <message>
        <source>Send a file</source>
        <translation>Enviar un archivo</translation>
    </message>
    <message>
        <source>Configure a report control block</source>
        <translation>Configurar un bloque de control de informes</translation>
    </message>
    <message>
        <source>Write settings</source>
        <translation>Escribir ajustes</translation>
    </message>
    <message>
        <source>Choose a setting group to edit</source>
        <translation>Elegir un grupo de ajustes para editarlo</translation>
    </message>
    <message>
        <source>Make a setting group the active one</source>
        <translation>Hacer activo un grupo de ajustes</translation>
    </message>
    <message>
        <source>not supported</source>
        <translation>no admitida</translation>
    </message>
    <message>
        <source>bay control</source>
        <translation>mando de bahía</translation>
    </message>
    <message>
        <source>station control</source>
        <translation>mando de subestación</translation>
    </message>
    <message>
        <source>remote control</source>
        <translation>mando remoto</translation>
    </message>
    <message>
        <source>automatic bay</source>
        <translation>automático de bahía</translation>
    </message>
    <message>
        <source>automatic station</source>
        <translation>automático de subestación</translation>
    </message>
    <message>
        <source>automatic remote</source>
        <translation>automático remoto</translation>
    </message>
    <message>
        <source>maintenance</source>
        <translation>mantenimiento</translation>
    </message>
    <message>
        <source>process</source>
        <translation>proceso</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguna</translation>
    </message>
    <message>
        <source>interlocking</source>
        <translation>enclavamiento</translation>
    </message>
    <message>
        <source>synchrocheck</source>
        <translation>comprobación de sincronismo</translation>
    </message>
    <message>
        <source>synchrocheck and interlocking</source>
        <translation>comprobación de sincronismo y enclavamiento</translation>
    </message>
    <message>
        <source>Device:</source>
        <translation>Dispositivo:</translation>
    </message>
    <message>
        <source>Logical device:</source>
        <translation>Dispositivo lógico:</translation>
    </message>
    <message>
        <source>Object:</source>
        <translation>Objeto:</translation>
    </message>
    <message>
        <source>Value:</source>
        <translation>Valor:</translation>
    </message>
    <message>
        <source>Current value:</source>
        <translation>Valor actual:</translation>
    </message>
    <message>
        <source>as selected</source>
        <translation>como se seleccionó</translation>
    </message>
    <message>
        <source>Originator category:</source>
        <translation>Categoría del originador:</translation>
    </message>
    <message>
        <source>Checks:</source>
        <translation>Comprobaciones:</translation>
    </message>
    <message>
        <source>Test:</source>
        <translation>Prueba:</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>sí</translation>
    </message>
    <message>
        <source>no</source>
        <translation>no</translation>
    </message>
    <message>
        <source>Nothing was sent, since it was not confirmed.</source>
        <translation>No se ha enviado nada, porque no se confirmó.</translation>
    </message>
</context>
<context>
    <name>ChangeJournal</name>
    <message>
        <source>The journal &quot;%1&quot; cannot be written: %2</source>
        <translation>No se puede escribir el registro «%1»: %2</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Correcto</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Operación</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Referencia</translation>
    </message>
    <message>
        <source>Old value</source>
        <translation>Valor anterior</translation>
    </message>
    <message>
        <source>New value</source>
        <translation>Valor nuevo</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>Additional cause</source>
        <translation>Causa adicional</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Say what is in an SCL file, as JSON, and exit: with 0 when it is without errors, 1 with errors, 2 when it cannot be used. Needs no display.</source>
        <translation>Indicar en JSON qué contiene un archivo SCL y terminar: con 0 si no tiene errores, 1 si los tiene, 2 si no se puede usar. No necesita pantalla.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>ARCHIVO</translation>
    </message>
    <message>
        <source>Take this IED of the file. The default asks when there are several; --check takes all.</source>
        <translation>Tomar este IED del archivo. De forma predeterminada se pregunta cuando hay varios; --check los toma todos.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOMBRE</translation>
    </message>
    <message>
        <source>Open each tool on the demonstration device, save a picture of it in DIR, exit.</source>
        <translation>Abrir cada herramienta con el dispositivo de demostración, guardar una imagen en CARPETA y terminar.</translation>
    </message>
    <message>
        <source>DIR</source>
        <translation>CARPETA</translation>
    </message>
    <message>
        <source>Load the plug-in from DIR instead of the folder &quot;plugins&quot; beside the program.</source>
        <translation>Cargar el complemento desde CARPETA en vez de la carpeta «plugins» junto al programa.</translation>
    </message>
    <message>
        <source>Open the demonstration device.</source>
        <translation>Abrir el dispositivo de demostración.</translation>
    </message>
    <message>
        <source>A small host for the IEC 61850 tools: opens devices from SCL files.</source>
        <translation>Un pequeño anfitrión para las herramientas IEC 61850: abre dispositivos a partir de archivos SCL.</translation>
    </message>
    <message>
        <source>SCL files to open.</source>
        <translation>Archivos SCL que se van a abrir.</translation>
    </message>
    <message>
        <source>--check needs the name of a file.</source>
        <translation>--check necesita el nombre de un archivo.</translation>
    </message>
    <message>
        <source>--tour needs the name of a folder.</source>
        <translation>--tour necesita el nombre de una carpeta.</translation>
    </message>
    <message>
        <source>--check takes one file, and nothing else can be done at the same time.</source>
        <translation>--check toma un solo archivo y no se puede hacer nada más al mismo tiempo.</translation>
    </message>
    <message>
        <source>--tour shows the demonstration device and opens no other file.</source>
        <translation>--tour muestra el dispositivo de demostración y no abre ningún otro archivo.</translation>
    </message>
</context>
<context>
    <name>ConfirmationDialog</name>
    <message>
        <source>Confirm</source>
        <translation>Confirmar</translation>
    </message>
    <message>
        <source>&amp;Send to the device</source>
        <translation>&amp;Enviar al dispositivo</translation>
    </message>
</context>
<context>
    <name>DeviceConfiguration</name>
    <message>
        <source>The %1 has %2 octets; at most %3 are possible.</source>
        <translation>%1: tiene %2 octetos; son posibles %3 como máximo.</translation>
    </message>
    <message>
        <source>transport selector of the %1</source>
        <translation>Selector de transporte (%1)</translation>
    </message>
    <message>
        <source>session selector of the %1</source>
        <translation>Selector de sesión (%1)</translation>
    </message>
    <message>
        <source>presentation selector of the %1</source>
        <translation>Selector de presentación (%1)</translation>
    </message>
    <message>
        <source>The AP title &quot;%1&quot; of the %2 is no object identifier such as 1.1.1.999.1.</source>
        <translation>Título AP (%2): «%1» no es un identificador de objeto como 1.1.1.999.1.</translation>
    </message>
    <message>
        <source>The AE qualifier of the %1 does not fit 32 bits.</source>
        <translation>Calificador AE (%1): no cabe en 32 bits.</translation>
    </message>
    <message>
        <source>The time-out for %1 must be from %2 to %3 milliseconds.</source>
        <translation>El tiempo de espera para %1 debe estar entre %2 y %3 milisegundos.</translation>
    </message>
    <message>
        <source>The %1 &quot;%2&quot; does not exist.</source>
        <translation>El %1 «%2» no existe.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has the wrong form.</source>
        <translation>«%1» tiene una forma incorrecta.</translation>
    </message>
    <message>
        <source>The device&apos;s number must be from 1 to %1.</source>
        <translation>El número del dispositivo debe estar entre 1 y %1.</translation>
    </message>
    <message>
        <source>The device needs a name.</source>
        <translation>El dispositivo necesita un nombre.</translation>
    </message>
    <message>
        <source>The device needs an address or an SCL file.</source>
        <translation>El dispositivo necesita una dirección o un archivo SCL.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no address or host name.</source>
        <translation>«%1» no es una dirección ni un nombre de equipo.</translation>
    </message>
    <message>
        <source>The port must be from 1 to 65535.</source>
        <translation>El puerto debe estar entre 1 y 65535.</translation>
    </message>
    <message>
        <source>SCL file</source>
        <translation>archivo SCL</translation>
    </message>
    <message>
        <source>client</source>
        <translation>cliente</translation>
    </message>
    <message>
        <source>device</source>
        <translation>dispositivo</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>la conexión</translation>
    </message>
    <message>
        <source>requests</source>
        <translation>las peticiones</translation>
    </message>
    <message>
        <source>operations</source>
        <translation>las operaciones</translation>
    </message>
    <message>
        <source>The time-out for operations must not be shorter than the one for requests.</source>
        <translation>El tiempo de espera para las operaciones no debe ser más corto que el de las peticiones.</translation>
    </message>
    <message>
        <source>From 1 to %1 outstanding calls are possible.</source>
        <translation>Son posibles de 1 a %1 peticiones pendientes.</translation>
    </message>
    <message>
        <source>The PDU size must be from %1 to %2 octets.</source>
        <translation>El tamaño de PDU debe estar entre %1 y %2 octetos.</translation>
    </message>
    <message>
        <source>The polling interval must be 0 for none, or from %1 to %2 milliseconds.</source>
        <translation>El intervalo de sondeo debe ser 0 (ninguno) o estar entre %1 y %2 milisegundos.</translation>
    </message>
    <message>
        <source>From 1 to %1 outstanding file reads are possible.</source>
        <translation>Son posibles de 1 a %1 lecturas de archivo pendientes.</translation>
    </message>
    <message>
        <source>The originator category must be from 0 to %1.</source>
        <translation>La categoría del originador debe estar entre 0 y %1.</translation>
    </message>
    <message>
        <source>The originator identification has %1 octets; at most %2 are possible.</source>
        <translation>La identificación del originador tiene %1 octetos; son posibles %2 como máximo.</translation>
    </message>
    <message>
        <source>Device %1 (%2)</source>
        <translation>Dispositivo %1 (%2)</translation>
    </message>
</context>
<context>
    <name>DeviceDialog</name>
    <message>
        <source>Device</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nombre:</translation>
    </message>
    <message>
        <source>&amp;Address:</source>
        <translation>&amp;Dirección:</translation>
    </message>
    <message>
        <source>Host name, IPv4 or IPv6 address</source>
        <translation>Nombre de equipo, dirección IPv4 o IPv6</translation>
    </message>
    <message>
        <source>&amp;Port:</source>
        <translation>&amp;Puerto:</translation>
    </message>
    <message>
        <source>&amp;SCL file:</source>
        <translation>Archivo &amp;SCL:</translation>
    </message>
    <message>
        <source>Browse…</source>
        <translation>Examinar…</translation>
    </message>
    <message>
        <source>&amp;IED of the file:</source>
        <translation>&amp;IED del archivo:</translation>
    </message>
    <message>
        <source>&amp;Connect when the workbench starts</source>
        <translation>&amp;Conectar al iniciar el banco de trabajo</translation>
    </message>
    <message>
        <source>Timing and Sizes</source>
        <translation>Tiempos y tamaños</translation>
    </message>
    <message>
        <source>Time-out for &amp;connecting:</source>
        <translation>Tiempo de espera para la &amp;conexión:</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>Time-out for &amp;requests:</source>
        <translation>Tiempo de espera para las &amp;peticiones:</translation>
    </message>
    <message>
        <source>Time-out for &amp;operations:</source>
        <translation>Tiempo de espera para las &amp;operaciones:</translation>
    </message>
    <message>
        <source>Re&amp;ad values without reports every:</source>
        <translation>&amp;Leer los valores sin informes cada:</translation>
    </message>
    <message>
        <source>never</source>
        <translation>nunca</translation>
    </message>
    <message>
        <source>Outstanding ca&amp;lls:</source>
        <translation>Peticiones pe&amp;ndientes:</translation>
    </message>
    <message>
        <source>Largest P&amp;DU:</source>
        <translation>PDU más &amp;grande:</translation>
    </message>
    <message>
        <source> octets</source>
        <translation> octetos</translation>
    </message>
    <message>
        <source>Outstanding &amp;file reads:</source>
        <translation>Lecturas de &amp;archivo pendientes:</translation>
    </message>
    <message>
        <source>Addressing</source>
        <translation>Direccionamiento</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Cliente</translation>
    </message>
    <message>
        <source>Transport selector:</source>
        <translation>Selector de transporte:</translation>
    </message>
    <message>
        <source>Session selector:</source>
        <translation>Selector de sesión:</translation>
    </message>
    <message>
        <source>Presentation selector:</source>
        <translation>Selector de presentación:</translation>
    </message>
    <message>
        <source>AP title:</source>
        <translation>Título AP:</translation>
    </message>
    <message>
        <source>AE qualifier:</source>
        <translation>Calificador AE:</translation>
    </message>
    <message>
        <source>Selectors are octets in hexadecimal, for example 00 01. An AP title is an object identifier, for example 1.1.1.999.1; empty fields are not sent.</source>
        <translation>Los selectores son octetos en hexadecimal, por ejemplo 00&#xa0;01. Un título AP es un identificador de objeto, por ejemplo 1.1.1.999.1; los campos vacíos no se envían.</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Seguridad</translation>
    </message>
    <message>
        <source>&amp;Password of the association:</source>
        <translation>Contrase&amp;ña de la asociación:</translation>
    </message>
    <message>
        <source>&amp;TLS (IEC 62351-3)</source>
        <translation>&amp;TLS (IEC 62351-3)</translation>
    </message>
    <message>
        <source>&amp;Certificate:</source>
        <translation>&amp;Certificado:</translation>
    </message>
    <message>
        <source>Private &amp;key:</source>
        <translation>C&amp;lave privada:</translation>
    </message>
    <message>
        <source>Pa&amp;ssword of the key:</source>
        <translation>Contraseña de la cla&amp;ve:</translation>
    </message>
    <message>
        <source>&amp;Authorities:</source>
        <translation>&amp;Autoridades de certificación:</translation>
    </message>
    <message>
        <source>&amp;Revocation lists:</source>
        <translation>Listas de &amp;revocación:</translation>
    </message>
    <message>
        <source>&amp;Fingerprints (SHA-256):</source>
        <translation>&amp;Huellas (SHA-256):</translation>
    </message>
    <message>
        <source>&amp;Name in the certificate:</source>
        <translation>&amp;Nombre en el certificado:</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>Mando</translation>
    </message>
    <message>
        <source>Originator &amp;category:</source>
        <translation>&amp;Categoría del originador:</translation>
    </message>
    <message>
        <source>Originator &amp;identification:</source>
        <translation>&amp;Identificación del originador:</translation>
    </message>
    <message>
        <source>&amp;Test Connection</source>
        <translation>Pro&amp;bar la conexión</translation>
    </message>
    <message>
        <source>Add Device</source>
        <translation>Añadir dispositivo</translation>
    </message>
    <message>
        <source>Edit Device %1</source>
        <translation>Editar el dispositivo %1</translation>
    </message>
    <message>
        <source>SCL File</source>
        <translation>Archivo SCL</translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation>Certificado</translation>
    </message>
    <message>
        <source>Private Key</source>
        <translation>Clave privada</translation>
    </message>
    <message>
        <source>Authorities</source>
        <translation>Autoridades de certificación</translation>
    </message>
    <message>
        <source>Revocation Lists</source>
        <translation>Listas de revocación</translation>
    </message>
    <message>
        <source>the only one</source>
        <translation>el único</translation>
    </message>
    <message>
        <source>The %1 of the %2 is not hexadecimal.</source>
        <translation>%1 (%2): no es hexadecimal.</translation>
    </message>
    <message>
        <source>transport selector</source>
        <translation>Selector de transporte</translation>
    </message>
    <message>
        <source>session selector</source>
        <translation>Selector de sesión</translation>
    </message>
    <message>
        <source>presentation selector</source>
        <translation>Selector de presentación</translation>
    </message>
    <message>
        <source>The AE qualifier of the %1 is not a number.</source>
        <translation>Calificador AE (%1): no es un número.</translation>
    </message>
    <message>
        <source>client</source>
        <translation>cliente</translation>
    </message>
    <message>
        <source>device</source>
        <translation>dispositivo</translation>
    </message>
    <message>
        <source>The device has no address.</source>
        <translation>El dispositivo no tiene dirección.</translation>
    </message>
    <message>
        <source>Connecting to %1…</source>
        <translation>Conectando con %1…</translation>
    </message>
    <message>
        <source>Connected to %1. Round trip: %2 ms; logical devices: %3</source>
        <translation>Conectado con %1. Ida y vuelta: %2 ms; dispositivos lógicos: %3</translation>
    </message>
    <message>
        <source>a device that does not say what it is</source>
        <translation>un dispositivo que no dice qué es</translation>
    </message>
    <message>
        <source>Acc&amp;ess point of the IED:</source>
        <translation>P&amp;unto de acceso del IED:</translation>
    </message>
    <message>
        <source>Which of the IED&apos;s access points the device is, where the file describes several</source>
        <translation>Cuál de los puntos de acceso del IED es el dispositivo, si el archivo describe varios</translation>
    </message>
    <message>
        <source>Accept certificates that are made out to &amp;others</source>
        <translation>Aceptar certificados emitidos para &amp;otros</translation>
    </message>
    <message>
        <source>Unsafe: whoever holds the key of any certificate of these authorities can pose as this device. Better enter the name that its certificate has, or its fingerprint.</source>
        <translation>Inseguro: quien tenga la clave de cualquier certificado de estas autoridades puede hacerse pasar por este dispositivo. Es mejor indicar el nombre que figura en su certificado, o su huella.</translation>
    </message>
    <message>
        <source>the one with the device&apos;s address</source>
        <translation>el que tiene la dirección del dispositivo</translation>
    </message>
</context>
<context>
    <name>DeviceListModel</name>
    <message>
        <source>The demonstration device, a part of the workbench</source>
        <translation>El dispositivo de demostración, parte del banco de trabajo</translation>
    </message>
    <message>
        <source>Demonstration</source>
        <translation>Demostración</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>Cargando…</translation>
    </message>
    <message>
        <source>Offline model</source>
        <translation>Modelo sin conexión</translation>
    </message>
    <message>
        <source>Model cannot be read: %1</source>
        <translation>No se puede leer el modelo: %1</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N.º</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Starting the simulation…</source>
        <translation>Iniciando la simulación…</translation>
    </message>
    <message>
        <source>Cannot be used: %1</source>
        <translation>No se puede usar: %1</translation>
    </message>
    <message>
        <source>Simulation stopped</source>
        <translation>Simulación detenida</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Sin conexión</translation>
    </message>
    <message>
        <source>Not connected: %1</source>
        <translation>Sin conexión: %1</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Conectando…</translation>
    </message>
    <message>
        <source>Reading the model (%1 %)…</source>
        <translation>Leyendo el modelo (%1 %)…</translation>
    </message>
    <message>
        <source>Reading the model…</source>
        <translation>Leyendo el modelo…</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Conectado</translation>
    </message>
    <message>
        <source>Trying again: %1</source>
        <translation>Se volverá a intentar: %1</translation>
    </message>
    <message>
        <source>Simulated demonstration</source>
        <translation>Demostración simulada</translation>
    </message>
    <message>
        <source>Simulated: %1</source>
        <translation>Simulado: %1</translation>
    </message>
    <message>
        <source>Reached at %1, port %2</source>
        <translation>Accesible en %1, puerto %2</translation>
    </message>
    <message>
        <source>Since %1</source>
        <translation>Desde %1</translation>
    </message>
    <message>
        <source>Objects that the device did not describe: %1</source>
        <translation>Objetos que el dispositivo no ha descrito: %1</translation>
    </message>
    <message>
        <source>Vendor: %1
Model: %2
Revision: %3</source>
        <translation>Fabricante: %1
Modelo: %2
Revisión: %3</translation>
    </message>
    <message>
        <source>Time from a request to its answer, measured last</source>
        <translation>Tiempo de una petición a su respuesta, última medida</translation>
    </message>
    <message>
        <source>PDUs sent: %1
PDUs received: %2
Reports: %3
Published values: %4
Connections: %5</source>
        <translation>PDU enviadas: %1
PDU recibidas: %2
Informes: %3
Valores publicados: %4
Conexiones: %5</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Origen</translation>
    </message>
    <message>
        <source>Identity</source>
        <translation>Identidad</translation>
    </message>
    <message>
        <source>Round trip</source>
        <translation>Ida y vuelta</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>Informes</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Valores</translation>
    </message>
    <message>
        <source>Connected: %1</source>
        <translation>Conectado: %1</translation>
    </message>
    <message>
        <source>Connected, values not current: %1</source>
        <translation>Conectado, valores no actuales: %1</translation>
    </message>
    <message>
        <source>Away since %1</source>
        <translation>Sin contacto desde %1</translation>
    </message>
    <message>
        <source>Values that are not current: %1, the oldest of %2</source>
        <translation>Valores no actuales: %1, el más antiguo de %2</translation>
    </message>
    <message>
        <source>Values that the device denies: %1</source>
        <translation>Valores que el dispositivo deniega: %1</translation>
    </message>
</context>
<context>
    <name>DeviceStore</name>
    <message>
        <source>The list of devices in &quot;%1&quot; cannot be read completely.</source>
        <translation>La lista de dispositivos en «%1» no se puede leer por completo.</translation>
    </message>
    <message>
        <source>The list of devices cannot be saved in &quot;%1&quot; and will be as before at the next start.</source>
        <translation>La lista de dispositivos no se puede guardar en «%1» y en el próximo inicio será como antes.</translation>
    </message>
</context>
<context>
    <name>EmbeddedDriver</name>
    <message>
        <source>The IED &quot;%1&quot; has no logical devices, so there is nothing to browse.</source>
        <translation>El IED «%1» no tiene dispositivos lógicos, así que no hay nada que explorar.</translation>
    </message>
</context>
<context>
    <name>ExtensionLoader</name>
    <message>
        <source>Replace the file by the one that was built together with this workbench.</source>
        <translation>Sustituya el archivo por el que se compiló junto con este banco de trabajo.</translation>
    </message>
    <message>
        <source>The plug-in folder does not exist.</source>
        <translation>La carpeta del complemento no existe.</translation>
    </message>
    <message>
        <source>Install the plug-in there, or start the workbench with --plugin-dir and the folder that holds it.</source>
        <translation>Instale allí el complemento o inicie el banco de trabajo con --plugin-dir y la carpeta que lo contiene.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>El archivo no existe.</translation>
    </message>
    <message>
        <source>Put the plug-in there, or start the workbench with --plugin-dir and the folder that holds it.</source>
        <translation>Ponga allí el complemento o inicie el banco de trabajo con --plugin-dir y la carpeta que lo contiene.</translation>
    </message>
    <message>
        <source>The file is not a plug-in that this Qt can load: %1</source>
        <translation>El archivo no es un complemento que este Qt pueda cargar: %1</translation>
    </message>
    <message>
        <source>The plug-in is of another kind: it offers &quot;%1&quot; where &quot;%2&quot; is needed.</source>
        <translation>El complemento es de otro tipo: ofrece «%1» donde se necesita «%2».</translation>
    </message>
    <message>
        <source>The plug-in does not carry the key &quot;%1&quot;.</source>
        <translation>El complemento no lleva la clave «%1».</translation>
    </message>
    <message>
        <source>The plug-in cannot be loaded: %1</source>
        <translation>El complemento no se puede cargar: %1</translation>
    </message>
    <message>
        <source>Make sure that the libraries it needs are installed and belong to the same version.</source>
        <translation>Compruebe que las bibliotecas que necesita están instaladas y son de la misma versión.</translation>
    </message>
    <message>
        <source>The plug-in&apos;s object does not have the promised interface.</source>
        <translation>El objeto del complemento no tiene la interfaz prometida.</translation>
    </message>
    <message>
        <source>The plug-in does not serve IEC 61850 (protocol %1).</source>
        <translation>El complemento no atiende IEC 61850 (protocolo %1).</translation>
    </message>
    <message>
        <source>The plug-in says that it is not available.</source>
        <translation>El complemento indica que no está disponible.</translation>
    </message>
    <message>
        <source>Try again later, or ask whoever supplied the plug-in.</source>
        <translation>Inténtelo más tarde o consulte a quien suministró el complemento.</translation>
    </message>
    <message>
        <source>The plug-in offers no action.</source>
        <translation>El complemento no ofrece ninguna acción.</translation>
    </message>
</context>
<context>
    <name>FindingsModel</name>
    <message>
        <source>1 error</source>
        <translation>1 error</translation>
    </message>
    <message>
        <source>%1 errors</source>
        <translation>%1 errores</translation>
    </message>
    <message>
        <source>1 warning</source>
        <translation>1 advertencia</translation>
    </message>
    <message>
        <source>%1 warnings</source>
        <translation>%1 advertencias</translation>
    </message>
    <message>
        <source>1 note</source>
        <translation>1 nota</translation>
    </message>
    <message>
        <source>%1 notes</source>
        <translation>%1 notas</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>Gravedad</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Línea</translation>
    </message>
    <message>
        <source>Element</source>
        <translation>Elemento</translation>
    </message>
    <message>
        <source>Finding</source>
        <translation>Observación</translation>
    </message>
</context>
<context>
    <name>GuideViewer</name>
    <message>
        <source>Operator Guide</source>
        <translation>Guía del operador</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Find in the guide</source>
        <translation>Buscar en la guía</translation>
    </message>
</context>
<context>
    <name>IedChooser</name>
    <message>
        <source>Choose the IED</source>
        <translation>Elegir el IED</translation>
    </message>
    <message>
        <source>IED</source>
        <translation>IED</translation>
    </message>
    <message>
        <source>Logical devices</source>
        <translation>Dispositivos lógicos</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds %2 IEDs. Which of them do you want to open?</source>
        <translation>«%1» contiene %2 IED. ¿Cuáles desea abrir?</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>This IED has no logical devices, so there is nothing to browse.</source>
        <translation>Este IED no tiene dispositivos lógicos, así que no hay nada que explorar.</translation>
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
        <translation>%1; y %2 más</translation>
    </message>
    <message>
        <source>Aborted by the operator.</source>
        <translation>Interrumpido por el operador.</translation>
    </message>
    <message>
        <source>The operation was cancelled.</source>
        <translation>Se ha cancelado la operación.</translation>
    </message>
    <message>
        <source>%1 has not finished the operation within %2 seconds.</source>
        <translation>%1 no ha terminado la operación en %2 segundos.</translation>
    </message>
    <message>
        <source>%1 is not connected.</source>
        <translation>%1 no está conectado.</translation>
    </message>
    <message>
        <source>%1 is not connected: %2.</source>
        <translation>%1 no está conectado: %2.</translation>
    </message>
    <message>
        <source>The model of %1 is being read: %2 of %3.</source>
        <translation>Se está leyendo el modelo: %1, %2 de %3.</translation>
    </message>
    <message>
        <source>The device has not answered for %1 seconds.</source>
        <translation>El dispositivo no responde desde hace %1 segundos.</translation>
    </message>
    <message>
        <source>The SCL file is not used: %1</source>
        <translation>El archivo SCL no se usa: %1</translation>
    </message>
    <message>
        <source>Reading the model was cancelled.</source>
        <translation>Se ha cancelado la lectura del modelo.</translation>
    </message>
    <message>
        <source>the value does not have the form of its type</source>
        <translation>el valor no tiene la forma de su tipo</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no kind of report control block.</source>
        <translation>«%1» no es un tipo de bloque de control de informes.</translation>
    </message>
    <message>
        <source>A data set needs at least one member.</source>
        <translation>Un conjunto de datos necesita al menos un miembro.</translation>
    </message>
    <message>
        <source>There is no reference to be listed.</source>
        <translation>No hay ninguna referencia que listar.</translation>
    </message>
    <message>
        <source>Not connected to the device</source>
        <translation>Sin conexión con el dispositivo</translation>
    </message>
    <message>
        <source>There is no device %1 on this driver.</source>
        <translation>No hay ningún dispositivo %1 en este controlador.</translation>
    </message>
    <message>
        <source>The driver is read-only: nothing on %1 was changed.</source>
        <translation>El controlador está en solo lectura: no se ha cambiado nada en %1.</translation>
    </message>
    <message>
        <source>Device %1</source>
        <translation>Dispositivo %1</translation>
    </message>
    <message>
        <source>Its logical device &quot;%1&quot; is online already as part of %2; live values could not be told apart.</source>
        <translation>Su dispositivo lógico «%1» ya está en línea como parte de %2; los valores en directo no se podrían distinguir.</translation>
    </message>
    <message>
        <source>The capture cannot be written: %1</source>
        <translation>No se puede escribir la captura: %1</translation>
    </message>
    <message>
        <source>The values cannot be written: %1</source>
        <translation>No se pueden escribir los valores: %1</translation>
    </message>
    <message>
        <source>The device has no address.</source>
        <translation>El dispositivo no tiene dirección.</translation>
    </message>
    <message>
        <source>There is nothing to read.</source>
        <translation>No hay nada que leer.</translation>
    </message>
    <message>
        <source>The data set has %1 members, but %2 values came.</source>
        <translation>El conjunto de datos tiene %1 miembros, pero han llegado %2 valores.</translation>
    </message>
    <message>
        <source>The device has no %1.</source>
        <translation>El dispositivo no tiene %1.</translation>
    </message>
    <message>
        <source>The value to be written cannot be read.</source>
        <translation>No se puede leer el valor que se va a escribir.</translation>
    </message>
    <message>
        <source>Select the object first</source>
        <translation>Seleccione primero el objeto</translation>
    </message>
    <message>
        <source>%1 has the control model %2, but the command was made for %3: read the model of the device again.</source>
        <translation>%1 tiene el modelo de control %2, pero el mando se hizo para %3: lea de nuevo el modelo del dispositivo.</translation>
    </message>
    <message>
        <source>The command is not the one that was selected.</source>
        <translation>El mando no es el que se seleccionó.</translation>
    </message>
    <message>
        <source>The control request cannot be read.</source>
        <translation>No se puede leer la petición de mando.</translation>
    </message>
    <message>
        <source>The control request is for %1, not for %2.</source>
        <translation>La petición de mando es para %1, no para %2.</translation>
    </message>
    <message>
        <source>The control value is no finite number.</source>
        <translation>El valor de mando no es un número finito.</translation>
    </message>
    <message>
        <source>%1 is no code of the check conditions.</source>
        <translation>%1 no es un código de las condiciones de comprobación.</translation>
    </message>
    <message>
        <source>The test flag is 0 or 1, not %1.</source>
        <translation>El indicador de prueba es 0 o 1, no %1.</translation>
    </message>
    <message>
        <source>interlock check</source>
        <translation>comprobación de enclavamiento</translation>
    </message>
    <message>
        <source>synchrocheck</source>
        <translation>comprobación de sincronismo</translation>
    </message>
    <message>
        <source>test</source>
        <translation>prueba</translation>
    </message>
    <message>
        <source>The driver has not waited for the end of the operation.</source>
        <translation>El controlador no ha esperado el final de la maniobra.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not name a report control block.</source>
        <translation>«%1» no nombra ningún bloque de control de informes.</translation>
    </message>
    <message>
        <source>The attribute &quot;%1&quot; of a report control block cannot be written.</source>
        <translation>El atributo «%1» de un bloque de control de informes no se puede escribir.</translation>
    </message>
    <message>
        <source>The value for %1 has %2 bytes instead of %3.</source>
        <translation>El valor para %1 tiene %2 bytes en vez de %3.</translation>
    </message>
    <message>
        <source>%1 cannot be negative.</source>
        <translation>%1 no puede ser negativo.</translation>
    </message>
    <message>
        <source>Buffer time and integrity period cannot be negative.</source>
        <translation>El tiempo de búfer y el período de integridad no pueden ser negativos.</translation>
    </message>
    <message>
        <source>enabled again after the association was lost</source>
        <translation>nueva habilitación tras la pérdida de la asociación</translation>
    </message>
    <message>
        <source>The report control block %1 has no data set.</source>
        <translation>El bloque de control de informes %1 no tiene conjunto de datos.</translation>
    </message>
    <message>
        <source>The device has not enabled %1 although it said so.</source>
        <translation>El dispositivo no ha habilitado %1 aunque lo confirmó.</translation>
    </message>
    <message>
        <source>disabled</source>
        <translation>deshabilitado</translation>
    </message>
    <message>
        <source>the driver is read-only.</source>
        <translation>el controlador está en solo lectura.</translation>
    </message>
    <message>
        <source>The report control block %1 could not be %2: %3</source>
        <translation>Bloque de control de informes %1: no fue posible la %2: %3</translation>
    </message>
    <message>
        <source>The device has disabled %1 by itself.</source>
        <translation>El dispositivo ha deshabilitado %1 por sí mismo.</translation>
    </message>
    <message>
        <source>enabled again</source>
        <translation>nueva habilitación</translation>
    </message>
    <message>
        <source>A report of the device could not be read: %1</source>
        <translation>No se ha podido leer un informe del dispositivo: %1</translation>
    </message>
    <message>
        <source>The reports of %1 have no value for %2: %3.</source>
        <translation>Los informes de %1 no traen valor para %2: %3.</translation>
    </message>
    <message>
        <source>A value of %1 in the reports of %2 does not have the form of its type.</source>
        <translation>Un valor de %1 en los informes de %2 no tiene la forma de su tipo.</translation>
    </message>
    <message>
        <source>The buffer of %1 has overflown: older changes are lost.</source>
        <translation>El búfer de %1 se ha desbordado: se han perdido los cambios más antiguos.</translation>
    </message>
    <message>
        <source>enabled</source>
        <translation>habilitado</translation>
    </message>
    <message>
        <source>The member %1 of the data set of %2 is no data of the device&apos;s model.</source>
        <translation>El miembro %1 del conjunto de datos de %2 no es un dato del modelo del dispositivo.</translation>
    </message>
    <message>
        <source>%1 is busy with another file: %2.</source>
        <translation>%1 está ocupado con otro archivo: %2.</translation>
    </message>
    <message>
        <source>listing &quot;%1&quot;</source>
        <translation>listando «%1»</translation>
    </message>
    <message>
        <source>fetching &quot;%1&quot;</source>
        <translation>descargando «%1»</translation>
    </message>
    <message>
        <source>%1 is too large: at most %2 octets can be fetched.</source>
        <translation>%1 es demasiado grande: se pueden descargar %2 octetos como máximo.</translation>
    </message>
    <message>
        <source>deleting &quot;%1&quot;</source>
        <translation>eliminando «%1»</translation>
    </message>
    <message>
        <source>There is no name of a file.</source>
        <translation>No hay nombre de archivo.</translation>
    </message>
    <message>
        <source>There is no file to send.</source>
        <translation>No hay ningún archivo que enviar.</translation>
    </message>
    <message>
        <source>There is no file &quot;%1&quot; on this computer.</source>
        <translation>No hay ningún archivo «%1» en este equipo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: %2.</source>
        <translation>«%1» no se puede leer: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large for a file of a device.</source>
        <translation>«%1» es demasiado grande para un archivo de un dispositivo.</translation>
    </message>
    <message>
        <source>sending &quot;%1&quot;</source>
        <translation>enviando «%1»</translation>
    </message>
    <message>
        <source>%1 (%2 octets)</source>
        <translation>%1 (%2 octetos)</translation>
    </message>
    <message>
        <source>The device has no logical device &quot;%1&quot;.</source>
        <translation>El dispositivo no tiene ningún dispositivo lógico «%1».</translation>
    </message>
    <message>
        <source>%1 has no setting group control block.</source>
        <translation>%1 no tiene bloque de control de grupos de ajustes.</translation>
    </message>
    <message>
        <source>%1 has more setting groups than can be counted: %2.</source>
        <translation>%1 tiene más grupos de ajustes de los que se pueden contar: %2.</translation>
    </message>
    <message>
        <source>No setting group of %1 is being edited: select the group to edit first.</source>
        <translation>Ningún grupo de ajustes de %1 está en edición: seleccione primero el grupo en edición.</translation>
    </message>
    <message>
        <source>Settings are read under SG or SE, not under &quot;%1&quot;.</source>
        <translation>Los ajustes se leen bajo SG o SE, no bajo «%1».</translation>
    </message>
    <message>
        <source>%1 has no setting %2.</source>
        <translation>%1 no tiene el ajuste %2.</translation>
    </message>
    <message>
        <source>%1. The changes are not confirmed.</source>
        <translation>%1. Los cambios no se han confirmado.</translation>
    </message>
    <message>
        <source>%1 has the setting groups 1 to %2; there is no group %3.</source>
        <translation>%1 tiene los grupos de ajustes 1 a %2; no hay grupo %3.</translation>
    </message>
    <message>
        <source>Another window has selected the object since: select it here first.</source>
        <translation>Otra ventana ha seleccionado el objeto entretanto: selecciónelo primero aquí.</translation>
    </message>
    <message>
        <source>The object was selected for different commands; which one is meant is not known: cancel the selection and select it again.</source>
        <translation>El objeto se seleccionó para mandos distintos; no se sabe cuál se quiere: cancele la selección y selecciónelo de nuevo.</translation>
    </message>
    <message>
        <source>%1 is no originator category; they go from 0 to 8.</source>
        <translation>%1 no es una categoría del originador; las categorías van de 0 a 8.</translation>
    </message>
    <message>
        <source>category %1</source>
        <translation>categoría %1</translation>
    </message>
    <message>
        <source>It is not known whether the object was selected.</source>
        <translation>No se sabe si el objeto se seleccionó.</translation>
    </message>
    <message>
        <source>It is not known whether the command was carried out; look at the position.</source>
        <translation>No se sabe si el mando se ejecutó; mire la posición.</translation>
    </message>
    <message>
        <source>It is not known whether the command was cancelled; look at the position.</source>
        <translation>No se sabe si el mando se canceló; mire la posición.</translation>
    </message>
    <message>
        <source>%1 (told late)</source>
        <translation>%1 (comunicado con retraso)</translation>
    </message>
    <message>
        <source>%1: the command that was not answered in time was carried out.</source>
        <translation>%1: el mando que no se respondió a tiempo se ha ejecutado.</translation>
    </message>
    <message>
        <source>An internal error of the driver ended the association.</source>
        <translation>Un error interno del controlador ha terminado la asociación.</translation>
    </message>
    <message>
        <source>An internal error of the driver ended the association: %1.</source>
        <translation>Un error interno del controlador ha terminado la asociación: %1.</translation>
    </message>
    <message>
        <source>The device has not answered earlier requests; the question whether it is there waits for a place behind them.</source>
        <translation>El dispositivo no ha respondido a peticiones anteriores; la pregunta de si está presente espera un lugar detrás de ellas.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has %2 characters; the name of a data set has at most %3.</source>
        <translation>«%1» tiene %2 caracteres; el nombre de un conjunto de datos tiene como máximo %3.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names no functional constraint, which each member of a data set needs.</source>
        <translation>«%1» no nombra ninguna restricción funcional, que cada miembro de un conjunto de datos necesita.</translation>
    </message>
    <message>
        <source>This is not the device that the window was opened for: open it again.</source>
        <translation>Este no es el dispositivo para el que se abrió la ventana: ábrala de nuevo.</translation>
    </message>
    <message>
        <source>The IED %1 of the file has no access point &quot;%2&quot; with a server.</source>
        <translation>El IED %1 del archivo no tiene ningún punto de acceso «%2» con un servidor.</translation>
    </message>
    <message>
        <source>The device has none of the logical devices that the file describes for %1, such as %2.</source>
        <translation>El dispositivo no tiene ninguno de los dispositivos lógicos que el archivo describe para %1, por ejemplo %2.</translation>
    </message>
    <message>
        <source>%1 stays open on the device, which has few open files: %2</source>
        <translation>%1 queda abierto en el dispositivo, que admite pocos archivos abiertos: %2</translation>
    </message>
    <message>
        <source>%1 comes too slowly: %2 octets so far, less than %3 in a second.</source>
        <translation>%1 llega demasiado despacio: %2 octetos hasta ahora, menos de %3 por segundo.</translation>
    </message>
    <message>
        <source>%1 events of the device were dropped, because they were not taken in time.</source>
        <translation>Se han descartado %1 eventos del dispositivo, porque no se recogieron a tiempo.</translation>
    </message>
    <message>
        <source>The configuration of the device reserves %1; that cannot be changed.</source>
        <translation>La configuración del dispositivo reserva %1; eso no se puede cambiar.</translation>
    </message>
    <message>
        <source>%1 was not enabled in time.</source>
        <translation>%1 no se ha habilitado a tiempo.</translation>
    </message>
    <message>
        <source>%1 It was left alone.</source>
        <translation>%1 Se ha dejado como estaba.</translation>
    </message>
    <message>
        <source>without sequence numbers lost reports cannot be noticed</source>
        <translation>sin números de secuencia no se pueden notar los informes perdidos</translation>
    </message>
    <message>
        <source>%1 could not be enabled, and this was left behind as it was written: %2.</source>
        <translation>%1 no se ha podido habilitar y esto ha quedado tal como se escribió: %2.</translation>
    </message>
    <message>
        <source>no longer waited for</source>
        <translation>ya no se espera</translation>
    </message>
    <message>
        <source>member %1</source>
        <translation>miembro %1</translation>
    </message>
    <message>
        <source>Reports of %1 are missing; its data set is read whole.</source>
        <translation>Faltan informes de %1; su conjunto de datos se lee entero.</translation>
    </message>
    <message>
        <source>Parts of a report of %1 are missing; its data set is read whole.</source>
        <translation>Faltan partes de un informe de %1; su conjunto de datos se lee entero.</translation>
    </message>
    <message>
        <source>The device does not know the last entry of %1 any more: changes since then may be lost, or come again.</source>
        <translation>El dispositivo ya no conoce la última entrada de %1: los cambios desde entonces pueden haberse perdido o llegar otra vez.</translation>
    </message>
    <message>
        <source>A report of %1 is of another data set than the block had when it was enabled.</source>
        <translation>Un informe de %1 es de otro conjunto de datos que el que tenía el bloque al habilitarse.</translation>
    </message>
    <message>
        <source>A report of the device may be of %1 or of another block with other data; it was not taken.</source>
        <translation>Un informe del dispositivo puede ser de %1 o de otro bloque con otros datos; no se ha tomado.</translation>
    </message>
    <message>
        <source>The device described %1 in parts only, so what the reports of %2 say of it cannot be understood; it is polled.</source>
        <translation>El dispositivo ha descrito %1 solo en parte, así que no se puede entender lo que dicen de ello los informes de %2; se lee por sondeo.</translation>
    </message>
    <message>
        <source>The data set of %1 cannot be read: %2</source>
        <translation>No se puede leer el conjunto de datos de %1: %2</translation>
    </message>
    <message>
        <source>The data set of %1 has %2 members instead of %3.</source>
        <translation>El conjunto de datos de %1 tiene %2 miembros en vez de %3.</translation>
    </message>
    <message>
        <source>The data set of %1 has no value for %2: %3.</source>
        <translation>El conjunto de datos de %1 no trae valor para %2: %3.</translation>
    </message>
    <message>
        <source>A value of %1 in the data set of %2 does not have the form of its type.</source>
        <translation>Un valor de %1 en el conjunto de datos de %2 no tiene la forma de su tipo.</translation>
    </message>
    <message>
        <source>%1 is enabled by another client, which the device does not name.</source>
        <translation>%1 está habilitado por otro cliente, que el dispositivo no nombra.</translation>
    </message>
    <message>
        <source>%1 is reserved by another client, which the device does not name.</source>
        <translation>%1 está reservado por otro cliente, que el dispositivo no nombra.</translation>
    </message>
    <message>
        <source>%1 is enabled by the client %2.</source>
        <translation>%1 está habilitado por el cliente %2.</translation>
    </message>
    <message>
        <source>%1 is reserved by the client %2.</source>
        <translation>%1 está reservado por el cliente %2.</translation>
    </message>
    <message>
        <source>%1 is enabled by another association of this computer (%2).</source>
        <translation>%1 está habilitado por otra asociación de este equipo (%2).</translation>
    </message>
    <message>
        <source>%1 is reserved by another association of this computer (%2).</source>
        <translation>%1 está reservado por otra asociación de este equipo (%2).</translation>
    </message>
    <message>
        <source>Another client is editing group %1 of %2.</source>
        <translation>Otro cliente está editando el grupo %1 de %2.</translation>
    </message>
    <message>
        <source>Group %1 of %2 was chosen for editing in another window: select the group to edit first.</source>
        <translation>El grupo %1 de %2 se eligió para editarlo en otra ventana: seleccione primero el grupo en edición.</translation>
    </message>
    <message>
        <source>The device has given up the edit of group %1 of %2: select the group to edit again.</source>
        <translation>El dispositivo ha abandonado la edición del grupo %1 de %2: seleccione de nuevo el grupo en edición.</translation>
    </message>
    <message>
        <source>%1 has no settings that can be edited: the device describes none under SE.</source>
        <translation>%1 no tiene ajustes que se puedan editar: el dispositivo no describe ninguno bajo SE.</translation>
    </message>
    <message>
        <source>%1 It is not known whether the changes of group %2 were taken over: select the group and look.</source>
        <translation>%1 No se sabe si los cambios del grupo %2 se han aplicado: seleccione el grupo y compruébelo.</translation>
    </message>
    <message>
        <source>These are the settings of the active group; choose the group to edit first.</source>
        <translation>Estos son los ajustes del grupo activo; elija primero el grupo en edición.</translation>
    </message>
    <message>
        <source>%1 has accepted group %2, but group %3 is still the active one.</source>
        <translation>%1 ha aceptado el grupo %2, pero el grupo %3 sigue siendo el activo.</translation>
    </message>
    <message>
        <source>%1 Group %2 is the active one.</source>
        <translation>%1 El grupo %2 es el activo.</translation>
    </message>
    <message>
        <source>%1 It is not known whether group %2 became active: look at the active group.</source>
        <translation>%1 No se sabe si el grupo %2 ha pasado a ser el activo: mire el grupo activo.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1 It is not known whether the device is editing group %2: select the group to edit again.</source>
        <translation>%1 No se sabe si el grupo %2 está en edición en el dispositivo: seleccione de nuevo el grupo en edición.</translation>
    </message>
    <message>
        <source>%1; it is not known whether the setting was written.</source>
        <translation>%1; no se sabe si el ajuste se escribió.</translation>
    </message>
    <message>
        <source>Values that are not current since %1: %2. The device does not answer when it is asked for %3.</source>
        <translation>Valores no actuales desde %1: %2. El dispositivo no responde cuando se le pide %3.</translation>
    </message>
    <message>
        <source>Values that are not current since %1: %2. The device cannot give %3 for the moment.</source>
        <translation>Valores no actuales desde %1: %2. El dispositivo no puede dar %3 por el momento.</translation>
    </message>
    <message>
        <source>Values that the device refuses and that are not asked for again: %1 (%2).</source>
        <translation>Valores que el dispositivo rechaza y que no se vuelven a pedir: %1 (%2).</translation>
    </message>
    <message>
        <source>A report control block could not be %1: %2</source>
        <translation>Un bloque de control de informes: no fue posible la %1: %2</translation>
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
        <translation>%1 lleva el nombre del emisor «%2», pero no su firma.</translation>
    </message>
    <message>
        <source>%1 cannot be checked: the revocation list of its issuer &quot;%2&quot; does not bear its signature.</source>
        <translation>%1 no se puede comprobar: la lista de revocación de su emisor «%2» no lleva la firma de ese emisor.</translation>
    </message>
    <message>
        <source>%1 cannot be checked: the revocation list of its issuer &quot;%2&quot; is not valid yet.</source>
        <translation>%1 no se puede comprobar: la lista de revocación de su emisor «%2» todavía no es válida.</translation>
    </message>
    <message>
        <source>%1 cannot be checked: the revocation list of its issuer &quot;%2&quot; is out of date.</source>
        <translation>%1 no se puede comprobar: la lista de revocación de su emisor «%2» está caducada.</translation>
    </message>
    <message>
        <source>%1 cannot be checked: there is no revocation list of its issuer &quot;%2&quot;.</source>
        <translation>%1 no se puede comprobar: no hay lista de revocación de su emisor «%2».</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>%1 no se puede leer: %2.</translation>
    </message>
    <message>
        <source>%1 expired on %2.</source>
        <translation>%1 caducó el %2.</translation>
    </message>
    <message>
        <source>%1 has a key that is too short to be safe.</source>
        <translation>%1 tiene una clave demasiado corta para ser segura.</translation>
    </message>
    <message>
        <source>%1 has a name that is none, or that something else has; it is left out.</source>
        <translation>%1 tiene un nombre no válido o que ya tiene otro elemento; se omite.</translation>
    </message>
    <message>
        <source>%1 has been revoked.</source>
        <translation>%1 ha sido revocado.</translation>
    </message>
    <message>
        <source>%1 has no %2.</source>
        <translation>%1 no tiene el atributo %2.</translation>
    </message>
    <message>
        <source>%1 is enabled already.</source>
        <translation>%1 ya está habilitado.</translation>
    </message>
    <message>
        <source>%1 is in the device already, perhaps the only whole version that an upload before this one has left: save or delete it first. Nothing was changed on the device.</source>
        <translation>%1 ya está en el dispositivo; quizá sea la única versión completa que dejó un envío anterior: guarde o elimine primero ese archivo. No se ha cambiado nada en el dispositivo.</translation>
    </message>
    <message>
        <source>%1 is in the device and may be incomplete.</source>
        <translation>%1 está en el dispositivo y puede estar incompleto.</translation>
    </message>
    <message>
        <source>%1 is larger, or nested deeper, than what is taken; it is left out.</source>
        <translation>%1 es más grande, o está anidado a más profundidad, de lo que se admite; se omite.</translation>
    </message>
    <message>
        <source>%1 is no functional constraint.</source>
        <translation>%1 no es una restricción funcional.</translation>
    </message>
    <message>
        <source>%1 is no name of data.</source>
        <translation>%1 no es un nombre de datos.</translation>
    </message>
    <message>
        <source>%1 is not a reference: %2.</source>
        <translation>%1 no es una referencia: %2.</translation>
    </message>
    <message>
        <source>%1 is not accepted: %2.</source>
        <translation>%1 no se acepta: %2.</translation>
    </message>
    <message>
        <source>%1 is not in the device.</source>
        <translation>%1 no está en el dispositivo.</translation>
    </message>
    <message>
        <source>%1 is not made out to the host that was asked for.</source>
        <translation>%1 no está emitido para el equipo solicitado.</translation>
    </message>
    <message>
        <source>%1 is not meant for this side of a TLS connection.</source>
        <translation>%1 no está previsto para este lado de una conexión TLS.</translation>
    </message>
    <message>
        <source>%1 is not the name of a data object that can be controlled.</source>
        <translation>%1 no es el nombre de un objeto de datos que admita mando.</translation>
    </message>
    <message>
        <source>%1 is not the name of a data set.</source>
        <translation>%1 no es el nombre de un conjunto de datos.</translation>
    </message>
    <message>
        <source>%1 is valid only from %2 on.</source>
        <translation>%1 solo es válido a partir del %2.</translation>
    </message>
    <message>
        <source>%1 may be in the device, incomplete.</source>
        <translation>%1 puede estar en el dispositivo, incompleto.</translation>
    </message>
    <message>
        <source>%1 may be incomplete.</source>
        <translation>%1 puede estar incompleto.</translation>
    </message>
    <message>
        <source>%1 of %2 cannot be written: %3.</source>
        <translation>%1 de %2 no se puede escribir: %3.</translation>
    </message>
    <message>
        <source>%1 of %2: %3.</source>
        <translation>%1 de %2: %3.</translation>
    </message>
    <message>
        <source>%1 of the control block cannot be %2.</source>
        <translation>%1 del bloque de control no puede valer %2.</translation>
    </message>
    <message>
        <source>%1 of the member %2</source>
        <translation>%1 del miembro %2</translation>
    </message>
    <message>
        <source>%1 was issued by &quot;%2&quot;, which is not trusted here.</source>
        <translation>%1 fue emitido por «%2», en el que aquí no se confía.</translation>
    </message>
    <message>
        <source>%1 was issued by itself and is not trusted here.</source>
        <translation>%1 fue emitido por sí mismo y aquí no se confía en él.</translation>
    </message>
    <message>
        <source>%1 was not touched.</source>
        <translation>%1 no se ha modificado.</translation>
    </message>
    <message>
        <source>%1 was replaced, but %2, a second copy of it, is left: delete it.</source>
        <translation>%1 se ha sustituido, pero queda una segunda copia, %2: elimínela.</translation>
    </message>
    <message>
        <source>%1 was replaced, but %2, a second copy of it, may be in the device still: delete it.</source>
        <translation>%1 se ha sustituido, pero puede que siga en el dispositivo una segunda copia, %2: elimínela.</translation>
    </message>
    <message>
        <source>%1, so the member &quot;%2&quot; does not exist.</source>
        <translation>%1, así que el miembro «%2» no existe.</translation>
    </message>
    <message>
        <source>%1: %2 got an answer that does not match the question.</source>
        <translation>%1: la respuesta a %2 no corresponde a la pregunta.</translation>
    </message>
    <message>
        <source>%1: %2 got no answer within %3.</source>
        <translation>%1: sin respuesta a %2 en %3.</translation>
    </message>
    <message>
        <source>%1: %2 got no answer: %3.</source>
        <translation>%1: sin respuesta a %2: %3.</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation>%1: %2.</translation>
    </message>
    <message>
        <source>%1: a command of it cannot be cancelled.</source>
        <translation>%1: un mando de este objeto no se puede cancelar.</translation>
    </message>
    <message>
        <source>%1: it shows its status and cannot be operated.</source>
        <translation>%1: este objeto muestra su estado y no admite mando.</translation>
    </message>
    <message>
        <source>%1: its control model knows no selection.</source>
        <translation>%1: su modelo de control no conoce la selección.</translation>
    </message>
    <message>
        <source>%1: the command ended without success: %2.</source>
        <translation>%1: el mando terminó sin éxito: %2.</translation>
    </message>
    <message>
        <source>%1: the command ended without success: the device does not say why.</source>
        <translation>%1: el mando terminó sin éxito: el dispositivo no dice por qué.</translation>
    </message>
    <message>
        <source>%1: the device accepted the command late.</source>
        <translation>%1: el dispositivo aceptó el mando tarde.</translation>
    </message>
    <message>
        <source>%1: the device accepted the command, but has not told within %2 how it ended.</source>
        <translation>%1: el dispositivo aceptó el mando, pero no ha comunicado en %2 cómo terminó.</translation>
    </message>
    <message>
        <source>%1: the device accepted the command, but the association ended before the command: %2.</source>
        <translation>%1: el dispositivo aceptó el mando, pero la asociación terminó antes que el mando: %2.</translation>
    </message>
    <message>
        <source>%1: the device refuses %2: %3.</source>
        <translation>%1: el dispositivo rechaza %2: %3.</translation>
    </message>
    <message>
        <source>%1: the file ended after %2 of %3 octets.</source>
        <translation>%1: el archivo terminó tras %2 de %3 octetos.</translation>
    </message>
    <message>
        <source>A UTC time has not 8 octets.</source>
        <translation>Una hora UTC no tiene 8 octetos.</translation>
    </message>
    <message>
        <source>A binary time has neither 4 nor 6 octets.</source>
        <translation>Un tiempo binario no tiene ni 4 ni 6 octetos.</translation>
    </message>
    <message>
        <source>A bit string does not say how many of its bits count.</source>
        <translation>Una cadena de bits no dice cuántos de sus bits cuentan.</translation>
    </message>
    <message>
        <source>A boolean has not one octet.</source>
        <translation>Un booleano no tiene exactamente un octeto.</translation>
    </message>
    <message>
        <source>A certificate in the file &quot;%1&quot; cannot be read.</source>
        <translation>No se puede leer un certificado del archivo «%1».</translation>
    </message>
    <message>
        <source>A character is not allowed here, or does not belong to the file&apos;s encoding.</source>
        <translation>Un carácter no está permitido aquí, o no pertenece a la codificación del archivo.</translation>
    </message>
    <message>
        <source>A command is a structure, not %1.</source>
        <translation>Un mando es una estructura, no %1.</translation>
    </message>
    <message>
        <source>A constraint of the object does not allow this.</source>
        <translation>Una restricción del objeto no lo permite.</translation>
    </message>
    <message>
        <source>A data unit of transport class 0 has a header of another length than 3.</source>
        <translation>Una unidad de datos de la clase de transporte 0 tiene una cabecera de longitud distinta de 3.</translation>
    </message>
    <message>
        <source>A file of this name exists already.</source>
        <translation>Ya existe un archivo con este nombre.</translation>
    </message>
    <message>
        <source>A floating-point number has neither 32 nor 64 bits.</source>
        <translation>Un número de coma flotante no tiene ni 32 ni 64 bits.</translation>
    </message>
    <message>
        <source>A number of an object identifier is too large.</source>
        <translation>Un número de un identificador de objeto es demasiado grande.</translation>
    </message>
    <message>
        <source>A parameter of a transport unit is longer than the unit&apos;s header.</source>
        <translation>Un parámetro de una unidad de transporte es más largo que la cabecera de la unidad.</translation>
    </message>
    <message>
        <source>A presentation unit has no parameters of normal mode.</source>
        <translation>Una unidad de presentación no tiene parámetros del modo normal.</translation>
    </message>
    <message>
        <source>A presentation unit has no user data.</source>
        <translation>Una unidad de presentación no tiene datos de usuario.</translation>
    </message>
    <message>
        <source>A presentation unit has too many values.</source>
        <translation>Una unidad de presentación tiene demasiados valores.</translation>
    </message>
    <message>
        <source>A presentation value belongs to a context that was not agreed.</source>
        <translation>Un valor de presentación pertenece a un contexto que no se acordó.</translation>
    </message>
    <message>
        <source>A presentation value is encoded by rules that were not agreed.</source>
        <translation>Un valor de presentación está codificado con reglas que no se acordaron.</translation>
    </message>
    <message>
        <source>A presentation value is in a form that is not supported.</source>
        <translation>Un valor de presentación tiene una forma que no se admite.</translation>
    </message>
    <message>
        <source>A primitive element has no definite length.</source>
        <translation>Un elemento primitivo no tiene longitud definida.</translation>
    </message>
    <message>
        <source>A primitive element stands where a group belongs.</source>
        <translation>Hay un elemento primitivo donde se espera un grupo.</translation>
    </message>
    <message>
        <source>A session parameter group holds itself.</source>
        <translation>Un grupo de parámetros de sesión se contiene a sí mismo.</translation>
    </message>
    <message>
        <source>A session parameter is longer than the unit around it.</source>
        <translation>Un parámetro de sesión es más largo que la unidad que lo contiene.</translation>
    </message>
    <message>
        <source>A session unit ends within a header.</source>
        <translation>Una unidad de sesión termina dentro de una cabecera.</translation>
    </message>
    <message>
        <source>A session unit ends within a length.</source>
        <translation>Una unidad de sesión termina dentro de una longitud.</translation>
    </message>
    <message>
        <source>A session unit has the unknown code %1.</source>
        <translation>Una unidad de sesión tiene el código desconocido %1.</translation>
    </message>
    <message>
        <source>A session unit is followed by octets that belong to nothing.</source>
        <translation>A una unidad de sesión le siguen octetos que no pertenecen a nada.</translation>
    </message>
    <message>
        <source>A setting group control stands in &quot;%1&quot; instead of the LLN0.</source>
        <translation>Hay un control de grupos de ajustes en «%1» en vez de en el LLN0.</translation>
    </message>
    <message>
        <source>A tag number is too large.</source>
        <translation>Un número de etiqueta es demasiado grande.</translation>
    </message>
    <message>
        <source>A token unit is not followed by a data transfer.</source>
        <translation>A una unidad de testigos no le sigue una transferencia de datos.</translation>
    </message>
    <message>
        <source>A transport packet says that it is %1 octets long, which leaves no room for its content.</source>
        <translation>Un paquete de transporte indica una longitud de %1 octetos, que no deja lugar para su contenido.</translation>
    </message>
    <message>
        <source>A transport unit has the unknown code %1.</source>
        <translation>Una unidad de transporte tiene el código desconocido %1.</translation>
    </message>
    <message>
        <source>A transport unit is followed by octets that belong to nothing.</source>
        <translation>A una unidad de transporte le siguen octetos que no pertenecen a nada.</translation>
    </message>
    <message>
        <source>A transport unit needs at least two octets.</source>
        <translation>Una unidad de transporte necesita al menos dos octetos.</translation>
    </message>
    <message>
        <source>A unit of association control has an unknown tag.</source>
        <translation>Una unidad del control de asociación tiene una etiqueta desconocida.</translation>
    </message>
    <message>
        <source>Access to the file is denied.</source>
        <translation>El acceso al archivo está denegado.</translation>
    </message>
    <message>
        <source>Access to the object is denied.</source>
        <translation>El acceso al objeto está denegado.</translation>
    </message>
    <message>
        <source>Address already in use</source>
        <translation>La dirección ya está en uso</translation>
    </message>
    <message>
        <source>An association request has no application context name.</source>
        <translation>Una petición de asociación no tiene nombre de contexto de aplicación.</translation>
    </message>
    <message>
        <source>An association response has no result.</source>
        <translation>Una respuesta de asociación no tiene resultado.</translation>
    </message>
    <message>
        <source>An element is longer than the group that it is in.</source>
        <translation>Un elemento es más largo que el grupo que lo contiene.</translation>
    </message>
    <message>
        <source>An element is longer than the message.</source>
        <translation>Un elemento es más largo que el mensaje.</translation>
    </message>
    <message>
        <source>An element stands where a service belongs.</source>
        <translation>Hay un elemento donde se espera un servicio.</translation>
    </message>
    <message>
        <source>An element that is empty by definition has content.</source>
        <translation>Un elemento que es vacío por definición tiene contenido.</translation>
    </message>
    <message>
        <source>An element that is no type stands where a type belongs.</source>
        <translation>Hay un elemento que no es un tipo donde se espera un tipo.</translation>
    </message>
    <message>
        <source>An element that is no value stands where a value belongs.</source>
        <translation>Hay un elemento que no es un valor donde se espera un valor.</translation>
    </message>
    <message>
        <source>An incomplete %1 is left in the device.</source>
        <translation>Queda un archivo %1 incompleto en el dispositivo.</translation>
    </message>
    <message>
        <source>An integer has no octet or more than 8.</source>
        <translation>Un entero no tiene ningún octeto o tiene más de 8.</translation>
    </message>
    <message>
        <source>An integer is out of its range.</source>
        <translation>Un entero está fuera de su rango.</translation>
    </message>
    <message>
        <source>An internal error ended the association.</source>
        <translation>Un error interno ha terminado la asociación.</translation>
    </message>
    <message>
        <source>An internal error ended the association: %1.</source>
        <translation>Un error interno ha terminado la asociación: %1.</translation>
    </message>
    <message>
        <source>An issuer&apos;s certificate in the file &quot;%1&quot; cannot be used (%2).</source>
        <translation>Un certificado de emisor del archivo «%1» no se puede usar (%2).</translation>
    </message>
    <message>
        <source>An object identifier ends within a number.</source>
        <translation>Un identificador de objeto termina dentro de un número.</translation>
    </message>
    <message>
        <source>An object of this name exists already.</source>
        <translation>Ya existe un objeto con este nombre.</translation>
    </message>
    <message>
        <source>An unsigned integer has no octet or more than 64 bits.</source>
        <translation>Un entero sin signo no tiene ningún octeto o tiene más de 64 bits.</translation>
    </message>
    <message>
        <source>An unsigned integer is out of its range.</source>
        <translation>Un entero sin signo está fuera de su rango.</translation>
    </message>
    <message>
        <source>Broken pipe</source>
        <translation>Tubería rota</translation>
    </message>
    <message>
        <source>Cannot allocate memory</source>
        <translation>Memoria insuficiente</translation>
    </message>
    <message>
        <source>Cannot assign requested address</source>
        <translation>La dirección solicitada no está disponible</translation>
    </message>
    <message>
        <source>Cannot listen on %1 port %2: %3.</source>
        <translation>No se puede escuchar en %1, puerto %2: %3.</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>Conexión rechazada</translation>
    </message>
    <message>
        <source>Connection reset by peer</source>
        <translation>Conexión reiniciada por el sistema remoto</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>Tiempo de espera de la conexión agotado</translation>
    </message>
    <message>
        <source>Each variable needs one value to write.</source>
        <translation>Cada variable necesita un valor que escribir.</translation>
    </message>
    <message>
        <source>Elements are nested deeper than %1 levels.</source>
        <translation>Los elementos están anidados en más de %1 niveles.</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>Error de entrada/salida</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>Es un directorio</translation>
    </message>
    <message>
        <source>It is not a logical node.</source>
        <translation>No es un nodo lógico.</translation>
    </message>
    <message>
        <source>It is not known whether %1 is in the device.</source>
        <translation>No se sabe si %1 está en el dispositivo.</translation>
    </message>
    <message>
        <source>It is not known whether an incomplete %1 is left in the device.</source>
        <translation>No se sabe si queda un archivo %1 incompleto en el dispositivo.</translation>
    </message>
    <message>
        <source>It is not known whether the device has a part of the file: look at %1.</source>
        <translation>No se sabe si el dispositivo tiene una parte del archivo: mire %1.</translation>
    </message>
    <message>
        <source>It is not known whether the file has its name: look at %1 and %2.</source>
        <translation>No se sabe si el archivo ha recibido su nombre: mire %1 y %2.</translation>
    </message>
    <message>
        <source>It is not known whether the file was replaced: look at %1.</source>
        <translation>No se sabe si el archivo se ha sustituido: mire %1.</translation>
    </message>
    <message>
        <source>It is not known whether the old %1 is still there.</source>
        <translation>No se sabe si el archivo anterior %1 sigue allí.</translation>
    </message>
    <message>
        <source>It is not known whether the old file is still there: look at %1.</source>
        <translation>No se sabe si el archivo anterior sigue allí: mire %1.</translation>
    </message>
    <message>
        <source>It is not known whether the old file is still whole: look at %1.</source>
        <translation>No se sabe si el archivo anterior sigue completo: mire %1.</translation>
    </message>
    <message>
        <source>It is not known whether there is an old %1.</source>
        <translation>No se sabe si hay un archivo anterior %1.</translation>
    </message>
    <message>
        <source>It was not sent.</source>
        <translation>No se ha enviado.</translation>
    </message>
    <message>
        <source>Modifiers of a request are not supported.</source>
        <translation>No se admiten modificadores de una petición.</translation>
    </message>
    <message>
        <source>More than %1 name spaces are declared.</source>
        <translation>Se declaran más de %1 espacios de nombres.</translation>
    </message>
    <message>
        <source>Neither an authority nor a fingerprint says which peers are trusted.</source>
        <translation>Ni una autoridad de certificación ni una huella indica en qué sistemas remotos se confía.</translation>
    </message>
    <message>
        <source>Network is down</source>
        <translation>La red está caída</translation>
    </message>
    <message>
        <source>Network is unreachable</source>
        <translation>La red es inaccesible</translation>
    </message>
    <message>
        <source>No connection to %1 port %2: %3.</source>
        <translation>No hay conexión con %1, puerto %2: %3.</translation>
    </message>
    <message>
        <source>No file is given for %1.</source>
        <translation>No se indica ningún archivo para %1.</translation>
    </message>
    <message>
        <source>No route to host</source>
        <translation>No hay ruta hasta el equipo</translation>
    </message>
    <message>
        <source>No session entity is attached to the transport selector.</source>
        <translation>No hay ninguna entidad de sesión unida al selector de transporte.</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>No queda espacio de almacenamiento</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>No existe el archivo o el directorio</translation>
    </message>
    <message>
        <source>Nobody wants the association any more.</source>
        <translation>Ya nadie necesita la asociación.</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>No es un directorio</translation>
    </message>
    <message>
        <source>Nothing is attached to the peer&apos;s presentation selector.</source>
        <translation>No hay nada unido al selector de presentación del sistema remoto.</translation>
    </message>
    <message>
        <source>Nothing is attached to the peer&apos;s session selector.</source>
        <translation>No hay nada unido al selector de sesión del sistema remoto.</translation>
    </message>
    <message>
        <source>Nothing was changed on the device.</source>
        <translation>No se ha cambiado nada en el dispositivo.</translation>
    </message>
    <message>
        <source>Operation canceled</source>
        <translation>Operación cancelada</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>Operación no permitida</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Permiso denegado</translation>
    </message>
    <message>
        <source>Presentation user data is simply encoded, which is not supported.</source>
        <translation>Los datos de usuario de presentación están codificados en la forma simple, que no se admite.</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>Sistema de archivos de solo lectura</translation>
    </message>
    <message>
        <source>Reading the file was cancelled.</source>
        <translation>Se ha cancelado la lectura del archivo.</translation>
    </message>
    <message>
        <source>Reading the file was stopped.</source>
        <translation>Se ha detenido la lectura del archivo.</translation>
    </message>
    <message>
        <source>Revocation lists are of no use without the authorities that issued them.</source>
        <translation>Las listas de revocación no sirven sin las autoridades que las emitieron.</translation>
    </message>
    <message>
        <source>Setting groups are counted from 1; 0 cannot become the active group.</source>
        <translation>Los grupos de ajustes se cuentan a partir de 1; 0 no puede pasar a ser el grupo activo.</translation>
    </message>
    <message>
        <source>Software caused connection abort</source>
        <translation>Conexión interrumpida por el software</translation>
    </message>
    <message>
        <source>Something stands behind the end of %1.</source>
        <translation>Hay algo después del final de %1.</translation>
    </message>
    <message>
        <source>TLS cannot be set up (%1).</source>
        <translation>No se puede establecer TLS (%1).</translation>
    </message>
    <message>
        <source>TLS failed for an unknown reason.</source>
        <translation>TLS ha fallado por una razón desconocida.</translation>
    </message>
    <message>
        <source>TLS failed: %1.</source>
        <translation>TLS ha fallado: %1.</translation>
    </message>
    <message>
        <source>The %1 &quot;%2&quot; contains itself; this element is left out.</source>
        <translation>El %1 «%2» se contiene a sí mismo; este elemento se omite.</translation>
    </message>
    <message>
        <source>The %1 &quot;%2&quot; does not exist.</source>
        <translation>El %1 «%2» no existe.</translation>
    </message>
    <message>
        <source>The %1 &quot;%2&quot; is defined again; the definition in line %3 is used.</source>
        <translation>El %1 «%2» se define otra vez; se usa la definición de la línea %3.</translation>
    </message>
    <message>
        <source>The %1 has no id and cannot be used.</source>
        <translation>El %1 no tiene id y no se puede usar.</translation>
    </message>
    <message>
        <source>The DOType has no common data class (attribute cdc).</source>
        <translation>El DOType no tiene clase de datos común (atributo cdc).</translation>
    </message>
    <message>
        <source>The EnumType &quot;%1&quot; does not exist.</source>
        <translation>El EnumType «%1» no existe.</translation>
    </message>
    <message>
        <source>The IED &quot;%1&quot; has more than %2 nodes of data.</source>
        <translation>El IED «%1» tiene más de %2 nodos de datos.</translation>
    </message>
    <message>
        <source>The IED &quot;%1&quot; has no access point &quot;%2&quot;.</source>
        <translation>El IED «%1» no tiene ningún punto de acceso «%2».</translation>
    </message>
    <message>
        <source>The IED &quot;%1&quot; is not in this file.</source>
        <translation>El IED «%1» no está en este archivo.</translation>
    </message>
    <message>
        <source>The IED has no name.</source>
        <translation>El IED no tiene nombre.</translation>
    </message>
    <message>
        <source>The LNodeType &quot;%1&quot; does not exist.</source>
        <translation>El LNodeType «%1» no existe.</translation>
    </message>
    <message>
        <source>The LNodeType has no class (attribute lnClass).</source>
        <translation>El LNodeType no tiene clase (atributo lnClass).</translation>
    </message>
    <message>
        <source>The access point &quot;%1&quot; whose server is shared does not exist or has none.</source>
        <translation>El punto de acceso «%1», cuyo servidor se comparte, no existe o no tiene servidor.</translation>
    </message>
    <message>
        <source>The active setting group is %1, but there are %2; group 1 is used.</source>
        <translation>El grupo de ajustes activo es %1, pero solo hay %2; se usa el grupo 1.</translation>
    </message>
    <message>
        <source>The address is not valid.</source>
        <translation>La dirección no es válida.</translation>
    </message>
    <message>
        <source>The answer cannot be read: %1.</source>
        <translation>No se puede leer la respuesta: %1.</translation>
    </message>
    <message>
        <source>The answer does not fit a message.</source>
        <translation>La respuesta no cabe en un mensaje.</translation>
    </message>
    <message>
        <source>The answer does not match the question.</source>
        <translation>La respuesta no corresponde a la pregunta.</translation>
    </message>
    <message>
        <source>The association is being concluded.</source>
        <translation>La asociación se está cerrando.</translation>
    </message>
    <message>
        <source>The association was refused.</source>
        <translation>La asociación fue rechazada.</translation>
    </message>
    <message>
        <source>The association was released.</source>
        <translation>La asociación fue liberada.</translation>
    </message>
    <message>
        <source>The attribute &quot;%1&quot; that holds the number of elements of &quot;%2&quot; has no value; the array is empty.</source>
        <translation>El atributo «%1», que contiene el número de elementos de «%2», no tiene valor; la matriz está vacía.</translation>
    </message>
    <message>
        <source>The attribute &quot;%1&quot; that should hold the number of array elements does not exist; the array is empty.</source>
        <translation>El atributo «%1», que debería contener el número de elementos de la matriz, no existe; la matriz está vacía.</translation>
    </message>
    <message>
        <source>The attribute has no basic type (attribute bType).</source>
        <translation>El atributo no tiene tipo básico (atributo bType).</translation>
    </message>
    <message>
        <source>The attribute has no functional constraint (attribute fc) and cannot be addressed.</source>
        <translation>El atributo no tiene restricción funcional (atributo fc) y no se puede direccionar.</translation>
    </message>
    <message>
        <source>The attribute is an enumeration without a type (attribute type).</source>
        <translation>El atributo es una enumeración sin tipo (atributo type).</translation>
    </message>
    <message>
        <source>The attributes of the object contradict each other.</source>
        <translation>Los atributos del objeto se contradicen.</translation>
    </message>
    <message>
        <source>The authority in the file &quot;%1&quot; cannot be used (%2).</source>
        <translation>La autoridad de certificación del archivo «%1» no se puede usar (%2).</translation>
    </message>
    <message>
        <source>The basic type is written &quot;%1&quot; instead of &quot;%2&quot;.</source>
        <translation>El tipo básico está escrito «%1» en vez de «%2».</translation>
    </message>
    <message>
        <source>The block belongs to another association of this computer, %1.</source>
        <translation>El bloque pertenece a otra asociación de este equipo, %1.</translation>
    </message>
    <message>
        <source>The block belongs to the client %1.</source>
        <translation>El bloque pertenece al cliente %1.</translation>
    </message>
    <message>
        <source>The call can no longer be cancelled.</source>
        <translation>La petición ya no se puede cancelar.</translation>
    </message>
    <message>
        <source>The call cannot be cancelled.</source>
        <translation>La petición no se puede cancelar.</translation>
    </message>
    <message>
        <source>The call was cancelled.</source>
        <translation>Se ha cancelado la petición.</translation>
    </message>
    <message>
        <source>The certificate &quot;%1&quot; in the file &quot;%2&quot;</source>
        <translation>El certificado «%1» del archivo «%2»</translation>
    </message>
    <message>
        <source>The certificate in the file &quot;%1&quot; cannot be used (%2).</source>
        <translation>El certificado del archivo «%1» no se puede usar (%2).</translation>
    </message>
    <message>
        <source>The class is &quot;%1&quot;, but the LNodeType &quot;%2&quot; is of class &quot;%3&quot;.</source>
        <translation>La clase es «%1», pero el LNodeType «%2» es de la clase «%3».</translation>
    </message>
    <message>
        <source>The class of an LN0 is &quot;%1&quot; instead of &quot;LLN0&quot;.</source>
        <translation>La clase de un LN0 es «%1» en vez de «LLN0».</translation>
    </message>
    <message>
        <source>The client is gone.</source>
        <translation>El cliente ya no está.</translation>
    </message>
    <message>
        <source>The connection to the other application is lost.</source>
        <translation>Se ha perdido la conexión con la otra aplicación.</translation>
    </message>
    <message>
        <source>The content type of the file is not valid.</source>
        <translation>El tipo de contenido del archivo no es válido.</translation>
    </message>
    <message>
        <source>The control block has no name.</source>
        <translation>El bloque de control no tiene nombre.</translation>
    </message>
    <message>
        <source>The control model of %1 cannot be read: %2.</source>
        <translation>No se puede leer el modelo de control de %1: %2.</translation>
    </message>
    <message>
        <source>The control model of %1 is %2, which is none.</source>
        <translation>El modelo de control de %1 es %2, un valor que no existe.</translation>
    </message>
    <message>
        <source>The data below this element are nested deeper than %1 levels; the element is left out.</source>
        <translation>Los datos bajo este elemento están anidados en más de %1 niveles; el elemento se omite.</translation>
    </message>
    <message>
        <source>The data set &quot;%1&quot; of the control block does not exist in its logical node.</source>
        <translation>El conjunto de datos «%1» del bloque de control no existe en su nodo lógico.</translation>
    </message>
    <message>
        <source>The data set has no members.</source>
        <translation>El conjunto de datos no tiene miembros.</translation>
    </message>
    <message>
        <source>The data set has no name.</source>
        <translation>El conjunto de datos no tiene nombre.</translation>
    </message>
    <message>
        <source>The definition of the object does not allow this.</source>
        <translation>La definición del objeto no lo permite.</translation>
    </message>
    <message>
        <source>The device answered another service.</source>
        <translation>El dispositivo ha respondido a otro servicio.</translation>
    </message>
    <message>
        <source>The device cannot carry out the service.</source>
        <translation>El dispositivo no puede ejecutar el servicio.</translation>
    </message>
    <message>
        <source>The device cannot check interlocking.</source>
        <translation>El dispositivo no puede comprobar el enclavamiento.</translation>
    </message>
    <message>
        <source>The device cannot check synchronism.</source>
        <translation>El dispositivo no puede comprobar el sincronismo.</translation>
    </message>
    <message>
        <source>The device cannot operate at a given time.</source>
        <translation>El dispositivo no puede ejecutar un mando a una hora dada.</translation>
    </message>
    <message>
        <source>The device cannot test a command.</source>
        <translation>El dispositivo no puede probar un mando.</translation>
    </message>
    <message>
        <source>The device cannot transfer the domain.</source>
        <translation>El dispositivo no puede transferir el dominio.</translation>
    </message>
    <message>
        <source>The device describes more than the %1 values in %2 octets that are taken; the rest is left out.</source>
        <translation>El dispositivo describe más de lo que se admite (%1 valores en %2 octetos); el resto se omite.</translation>
    </message>
    <message>
        <source>The device describes the originator as %1.</source>
        <translation>El dispositivo describe el originador como %1.</translation>
    </message>
    <message>
        <source>The device does not accept the syntax of the file name.</source>
        <translation>El dispositivo no acepta la sintaxis del nombre de archivo.</translation>
    </message>
    <message>
        <source>The device does not answer any more.</source>
        <translation>El dispositivo ya no responde.</translation>
    </message>
    <message>
        <source>The device does not know the call to cancel.</source>
        <translation>El dispositivo no conoce la petición que se quiere cancelar.</translation>
    </message>
    <message>
        <source>The device does not know the capability.</source>
        <translation>El dispositivo no conoce la capacidad.</translation>
    </message>
    <message>
        <source>The device does not know the state machine.</source>
        <translation>El dispositivo no conoce la máquina de estados.</translation>
    </message>
    <message>
        <source>The device does not let the data set %1 be deleted.</source>
        <translation>El dispositivo no permite eliminar el conjunto de datos %1.</translation>
    </message>
    <message>
        <source>The device does not list its logical devices: %1.</source>
        <translation>El dispositivo no da la lista de sus dispositivos lógicos: %1.</translation>
    </message>
    <message>
        <source>The device does not say what belongs to the command.</source>
        <translation>El dispositivo no dice qué forma parte del mando.</translation>
    </message>
    <message>
        <source>The device does not support the time resolution.</source>
        <translation>El dispositivo no admite la resolución de tiempo.</translation>
    </message>
    <message>
        <source>The device gave a reason for refusing a command that cannot be read: %1.</source>
        <translation>El dispositivo dio una razón para rechazar un mando, pero no se puede leer: %1.</translation>
    </message>
    <message>
        <source>The device gave up after its own time limit.</source>
        <translation>El dispositivo abandonó la petición tras su propio límite de tiempo.</translation>
    </message>
    <message>
        <source>The device gave up because of a deadlock.</source>
        <translation>El dispositivo abandonó la petición a causa de un bloqueo mutuo.</translation>
    </message>
    <message>
        <source>The device gave up the call.</source>
        <translation>El dispositivo abandonó la petición.</translation>
    </message>
    <message>
        <source>The device gives names without end.</source>
        <translation>El dispositivo da nombres sin fin.</translation>
    </message>
    <message>
        <source>The device has an operational problem.</source>
        <translation>El dispositivo tiene un problema de funcionamiento.</translation>
    </message>
    <message>
        <source>The device has more names than the %1 names and %2 octets that are taken; the others are left out.</source>
        <translation>El dispositivo tiene más nombres de los que se admiten (%1 nombres y %2 octetos); los demás se omiten.</translation>
    </message>
    <message>
        <source>The device has more than %1 logical devices; the others are left out.</source>
        <translation>El dispositivo tiene más de %1 dispositivos lógicos; los demás se omiten.</translation>
    </message>
    <message>
        <source>The device has more than %1 logical nodes; the others are left out.</source>
        <translation>El dispositivo tiene más de %1 nodos lógicos; los demás se omiten.</translation>
    </message>
    <message>
        <source>The device has neither %1 nor %2 any more.</source>
        <translation>El dispositivo ya no tiene ni %1 ni %2.</translation>
    </message>
    <message>
        <source>The device has no free capability for this.</source>
        <translation>El dispositivo no tiene ninguna capacidad libre para esto.</translation>
    </message>
    <message>
        <source>The device has not enough computing time.</source>
        <translation>El dispositivo no tiene suficiente tiempo de cálculo.</translation>
    </message>
    <message>
        <source>The device has not enough memory.</source>
        <translation>El dispositivo no tiene suficiente memoria.</translation>
    </message>
    <message>
        <source>The device has not enough storage.</source>
        <translation>El dispositivo no tiene suficiente espacio de almacenamiento.</translation>
    </message>
    <message>
        <source>The device has not the resources for this.</source>
        <translation>El dispositivo no tiene los recursos para esto.</translation>
    </message>
    <message>
        <source>The device has something to finish first.</source>
        <translation>El dispositivo tiene que terminar algo primero.</translation>
    </message>
    <message>
        <source>The device has stopped fetching the file after %1 of %2 octets.</source>
        <translation>El dispositivo ha dejado de leer el archivo tras %1 de %2 octetos.</translation>
    </message>
    <message>
        <source>The device is in a state that does not allow this.</source>
        <translation>El dispositivo está en un estado que no lo permite.</translation>
    </message>
    <message>
        <source>The device lists its files without an end.</source>
        <translation>El dispositivo da una lista de archivos sin fin.</translation>
    </message>
    <message>
        <source>The device refuses the association.</source>
        <translation>El dispositivo rechaza la asociación.</translation>
    </message>
    <message>
        <source>The device refuses the file operation.</source>
        <translation>El dispositivo rechaza la operación con el archivo.</translation>
    </message>
    <message>
        <source>The device refuses to conclude the association.</source>
        <translation>El dispositivo se niega a cerrar la asociación.</translation>
    </message>
    <message>
        <source>The device refuses without giving a reason.</source>
        <translation>El dispositivo rechaza la petición sin dar una razón.</translation>
    </message>
    <message>
        <source>The device rejects a cancel (%1).</source>
        <translation>El dispositivo rechaza una cancelación (%1).</translation>
    </message>
    <message>
        <source>The device rejects a conclude (%1).</source>
        <translation>El dispositivo rechaza un cierre (%1).</translation>
    </message>
    <message>
        <source>The device rejects a message that it cannot read (%1).</source>
        <translation>El dispositivo rechaza un mensaje que no puede leer (%1).</translation>
    </message>
    <message>
        <source>The device rejects a request (%1).</source>
        <translation>El dispositivo rechaza una petición (%1).</translation>
    </message>
    <message>
        <source>The device rejects an answer (%1).</source>
        <translation>El dispositivo rechaza una respuesta (%1).</translation>
    </message>
    <message>
        <source>The device rejects an error (%1).</source>
        <translation>El dispositivo rechaza un error (%1).</translation>
    </message>
    <message>
        <source>The device rejects an unconfirmed message (%1).</source>
        <translation>El dispositivo rechaza un mensaje no confirmado (%1).</translation>
    </message>
    <message>
        <source>The device rejects the answer to a cancel (%1).</source>
        <translation>El dispositivo rechaza la respuesta a una cancelación (%1).</translation>
    </message>
    <message>
        <source>The device rejects the answer to a conclude (%1).</source>
        <translation>El dispositivo rechaza la respuesta a un cierre (%1).</translation>
    </message>
    <message>
        <source>The device rejects the refusal of a cancel (%1).</source>
        <translation>El dispositivo rechaza la negativa a una cancelación (%1).</translation>
    </message>
    <message>
        <source>The device rejects the refusal of a conclude (%1).</source>
        <translation>El dispositivo rechaza la negativa a un cierre (%1).</translation>
    </message>
    <message>
        <source>The device repeats the same page of names.</source>
        <translation>El dispositivo repite la misma página de nombres.</translation>
    </message>
    <message>
        <source>The device reports a hardware fault.</source>
        <translation>El dispositivo comunica un fallo de hardware.</translation>
    </message>
    <message>
        <source>The device reports the unknown data access error %1.</source>
        <translation>El dispositivo comunica el error desconocido de acceso a datos %1.</translation>
    </message>
    <message>
        <source>The device says that it has the file, but it has fetched only %1 of %2 octets.</source>
        <translation>El dispositivo dice que tiene el archivo, pero solo ha leído %1 de %2 octetos.</translation>
    </message>
    <message>
        <source>The device sends empty blocks of the file without an end.</source>
        <translation>El dispositivo envía sin fin bloques vacíos del archivo.</translation>
    </message>
    <message>
        <source>The device took longer than %1 minutes to describe itself; what it had not told by then is left out.</source>
        <translation>El dispositivo ha tardado más de %1 minutos en describirse; lo que no había comunicado hasta entonces se omite.</translation>
    </message>
    <message>
        <source>The device uses another version of the protocol.</source>
        <translation>El dispositivo usa otra versión del protocolo.</translation>
    </message>
    <message>
        <source>The device wants %1 also as a whole number, but does not say by which scale (sVC).</source>
        <translation>El dispositivo quiere %1 también como número entero, pero no dice con qué escala (sVC).</translation>
    </message>
    <message>
        <source>The device wants a part %1 in the command, which is not known.</source>
        <translation>El dispositivo quiere en el mando una parte %1 que no se conoce.</translation>
    </message>
    <message>
        <source>The device wants an unknown part %1 of the originator.</source>
        <translation>El dispositivo quiere una parte desconocida %1 del originador.</translation>
    </message>
    <message>
        <source>The device&apos;s answer does not match the question.</source>
        <translation>La respuesta del dispositivo no corresponde a la pregunta.</translation>
    </message>
    <message>
        <source>The device&apos;s answer does not match the request.</source>
        <translation>La respuesta del dispositivo no corresponde a la petición.</translation>
    </message>
    <message>
        <source>The directory &quot;%1&quot; cannot be served: %2.</source>
        <translation>El directorio «%1» no se puede poner a disposición: %2.</translation>
    </message>
    <message>
        <source>The discovery was cancelled.</source>
        <translation>Se ha cancelado la exploración del dispositivo.</translation>
    </message>
    <message>
        <source>The element %1 is missing or of an unknown kind.</source>
        <translation>El elemento %1 falta o es de un tipo desconocido.</translation>
    </message>
    <message>
        <source>The element %1 is missing.</source>
        <translation>Falta el elemento %1.</translation>
    </message>
    <message>
        <source>The element %1 is not where it belongs.</source>
        <translation>El elemento %1 no está en su lugar.</translation>
    </message>
    <message>
        <source>The element does not name an access point.</source>
        <translation>El elemento no nombra ningún punto de acceso.</translation>
    </message>
    <message>
        <source>The element has no name and is left out.</source>
        <translation>El elemento no tiene nombre y se omite.</translation>
    </message>
    <message>
        <source>The element has no type (attribute type).</source>
        <translation>El elemento no tiene tipo (atributo type).</translation>
    </message>
    <message>
        <source>The elements are nested too deeply.</source>
        <translation>Los elementos están anidados a demasiada profundidad.</translation>
    </message>
    <message>
        <source>The encoding is declared as &quot;%1&quot;, but the file holds single bytes; it is read as UTF-8.</source>
        <translation>La codificación se declara como «%1», pero el archivo contiene bytes simples; se lee como UTF-8.</translation>
    </message>
    <message>
        <source>The encoding is written &quot;%1&quot; instead of &quot;ISO-8859-1&quot;.</source>
        <translation>La codificación está escrita «%1» en vez de «ISO-8859-1».</translation>
    </message>
    <message>
        <source>The encoding is written &quot;%1&quot; instead of &quot;UTF-8&quot;; it is read as UTF-8.</source>
        <translation>La codificación está escrita «%1» en vez de «UTF-8»; el archivo se lee como UTF-8.</translation>
    </message>
    <message>
        <source>The entity &quot;%1&quot; is not declared.</source>
        <translation>La entidad «%1» no está declarada.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be opened: %2.</source>
        <translation>No se puede abrir el archivo «%1»: %2.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; holds no certificate in PEM.</source>
        <translation>El archivo «%1» no contiene ningún certificado en formato PEM.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; holds no private key in PEM.</source>
        <translation>El archivo «%1» no contiene ninguna clave privada en formato PEM.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; holds no revocation list in PEM.</source>
        <translation>El archivo «%1» no contiene ninguna lista de revocación en formato PEM.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; with %2 cannot be opened: %3.</source>
        <translation>No se puede abrir el archivo «%1» (%2): %3.</translation>
    </message>
    <message>
        <source>The file became shorter while it was read.</source>
        <translation>El archivo se ha acortado mientras se leía.</translation>
    </message>
    <message>
        <source>The file cannot be read to its end.</source>
        <translation>El archivo no se puede leer hasta el final.</translation>
    </message>
    <message>
        <source>The file declares an entity, which is not accepted.</source>
        <translation>El archivo declara una entidad, lo que no se acepta.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>El archivo no existe.</translation>
    </message>
    <message>
        <source>The file ends before its root element is complete.</source>
        <translation>El archivo termina antes de que su elemento raíz esté completo.</translation>
    </message>
    <message>
        <source>The file ends within a character.</source>
        <translation>El archivo termina dentro de un carácter.</translation>
    </message>
    <message>
        <source>The file in the device may be incomplete: look at %1.</source>
        <translation>El archivo del dispositivo puede estar incompleto: mire %1.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>El archivo está vacío.</translation>
    </message>
    <message>
        <source>The file is in use.</source>
        <translation>El archivo está en uso.</translation>
    </message>
    <message>
        <source>The file is larger than %1 bytes.</source>
        <translation>El archivo tiene más de %1 bytes.</translation>
    </message>
    <message>
        <source>The file is not well-formed XML: %1.</source>
        <translation>El archivo no es XML bien formado: %1.</translation>
    </message>
    <message>
        <source>The file name is ambiguous.</source>
        <translation>El nombre del archivo es ambiguo.</translation>
    </message>
    <message>
        <source>The file refers to an external document type, which is not accepted.</source>
        <translation>El archivo remite a un tipo de documento externo, lo que no se acepta.</translation>
    </message>
    <message>
        <source>The file&apos;s encoding is not the one declared, or it is not known.</source>
        <translation>La codificación del archivo no es la declarada, o no se conoce.</translation>
    </message>
    <message>
        <source>The header of a transport unit is longer than the packet.</source>
        <translation>La cabecera de una unidad de transporte es más larga que el paquete.</translation>
    </message>
    <message>
        <source>The import was cancelled.</source>
        <translation>Se ha cancelado la importación.</translation>
    </message>
    <message>
        <source>The instance has no name and is left out.</source>
        <translation>La instancia no tiene nombre y se omite.</translation>
    </message>
    <message>
        <source>The instance is given twice; the first is used.</source>
        <translation>La instancia está indicada dos veces; se usa la primera.</translation>
    </message>
    <message>
        <source>The issuer&apos;s certificate &quot;%1&quot;</source>
        <translation>El certificado del emisor «%1»</translation>
    </message>
    <message>
        <source>The length of an element is too large.</source>
        <translation>La longitud de un elemento es demasiado grande.</translation>
    </message>
    <message>
        <source>The list cannot be continued after the given name.</source>
        <translation>La lista no puede continuar después del nombre indicado.</translation>
    </message>
    <message>
        <source>The literal &quot;%1&quot; begins or ends with a blank.</source>
        <translation>El literal «%1» empieza o termina con un espacio.</translation>
    </message>
    <message>
        <source>The logical device has no LN0.</source>
        <translation>El dispositivo lógico no tiene LN0.</translation>
    </message>
    <message>
        <source>The logical device has no instance name (attribute inst).</source>
        <translation>El dispositivo lógico no tiene nombre de instancia (atributo inst).</translation>
    </message>
    <message>
        <source>The logical node has another setting group control; the first is used.</source>
        <translation>El nodo lógico tiene otro control de grupos de ajustes; se usa el primero.</translation>
    </message>
    <message>
        <source>The logical node has no class (attribute lnClass).</source>
        <translation>El nodo lógico no tiene clase (atributo lnClass).</translation>
    </message>
    <message>
        <source>The logical node has no instance number (attribute inst).</source>
        <translation>El nodo lógico no tiene número de instancia (atributo inst).</translation>
    </message>
    <message>
        <source>The logical node has no type (attribute lnType).</source>
        <translation>El nodo lógico no tiene tipo (atributo lnType).</translation>
    </message>
    <message>
        <source>The lowest version of TLS that is allowed is above the highest one.</source>
        <translation>La versión mínima permitida de TLS es superior a la máxima.</translation>
    </message>
    <message>
        <source>The message ends within an element.</source>
        <translation>El mensaje termina dentro de un elemento.</translation>
    </message>
    <message>
        <source>The message holds more elements than allowed.</source>
        <translation>El mensaje contiene más elementos de los permitidos.</translation>
    </message>
    <message>
        <source>The message is empty.</source>
        <translation>El mensaje está vacío.</translation>
    </message>
    <message>
        <source>The message is longer than allowed.</source>
        <translation>El mensaje es más largo de lo permitido.</translation>
    </message>
    <message>
        <source>The message is no MMS PDU.</source>
        <translation>El mensaje no es una PDU de MMS.</translation>
    </message>
    <message>
        <source>The message size is too small for the device.</source>
        <translation>El tamaño de los mensajes es demasiado pequeño para el dispositivo.</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; cannot be resolved: %2.</source>
        <translation>No se puede resolver el nombre «%1»: %2.</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; was not resolved in time.</source>
        <translation>El nombre «%1» no se ha resuelto a tiempo.</translation>
    </message>
    <message>
        <source>The name of the other application is not valid.</source>
        <translation>El nombre de la otra aplicación no es válido.</translation>
    </message>
    <message>
        <source>The name space prefix &quot;%1&quot; is not declared; its elements are skipped.</source>
        <translation>El prefijo de espacio de nombres «%1» no está declarado; sus elementos se omiten.</translation>
    </message>
    <message>
        <source>The names</source>
        <translation>Los nombres</translation>
    </message>
    <message>
        <source>The names of %1</source>
        <translation>Los nombres de %1</translation>
    </message>
    <message>
        <source>The names of the data</source>
        <translation>Los nombres de los datos</translation>
    </message>
    <message>
        <source>The names of the data of %1</source>
        <translation>Los nombres de los datos de %1</translation>
    </message>
    <message>
        <source>The names of the data sets</source>
        <translation>Los nombres de los conjuntos de datos</translation>
    </message>
    <message>
        <source>The names of the data sets of %1</source>
        <translation>Los nombres de los conjuntos de datos de %1</translation>
    </message>
    <message>
        <source>The nesting level does not suit the device.</source>
        <translation>El nivel de anidamiento no es adecuado para el dispositivo.</translation>
    </message>
    <message>
        <source>The network connection broke during the TLS handshake: %1.</source>
        <translation>La conexión de red se ha interrumpido durante el establecimiento de TLS: %1.</translation>
    </message>
    <message>
        <source>The network connection broke: %1.</source>
        <translation>La conexión de red se ha interrumpido: %1.</translation>
    </message>
    <message>
        <source>The new file is in the device as %1.</source>
        <translation>El archivo nuevo está en el dispositivo con el nombre %1.</translation>
    </message>
    <message>
        <source>The number of instances is %1; %2 is used.</source>
        <translation>El número de instancias es %1; se usa %2.</translation>
    </message>
    <message>
        <source>The number of outstanding calls does not suit the device.</source>
        <translation>El número de peticiones pendientes no es adecuado para el dispositivo.</translation>
    </message>
    <message>
        <source>The number of outstanding calls of the device does not suit it.</source>
        <translation>El número de peticiones pendientes del dispositivo no es adecuado para él.</translation>
    </message>
    <message>
        <source>The number of setting groups is 0; 1 is used.</source>
        <translation>El número de grupos de ajustes es 0; se usa 1.</translation>
    </message>
    <message>
        <source>The object cannot be accessed in this way.</source>
        <translation>No se puede acceder al objeto de esta manera.</translation>
    </message>
    <message>
        <source>The object cannot be accessed.</source>
        <translation>No se puede acceder al objeto.</translation>
    </message>
    <message>
        <source>The object does not exist.</source>
        <translation>El objeto no existe.</translation>
    </message>
    <message>
        <source>The object is in a state that does not allow this.</source>
        <translation>El objeto está en un estado que no lo permite.</translation>
    </message>
    <message>
        <source>The object is no longer valid.</source>
        <translation>El objeto ya no es válido.</translation>
    </message>
    <message>
        <source>The object is not available at the moment.</source>
        <translation>El objeto no está disponible en este momento.</translation>
    </message>
    <message>
        <source>The object is not defined.</source>
        <translation>El objeto no está definido.</translation>
    </message>
    <message>
        <source>The old file had to be deleted before and is lost.</source>
        <translation>El archivo anterior tuvo que eliminarse antes y se ha perdido.</translation>
    </message>
    <message>
        <source>The old file is still there.</source>
        <translation>El archivo anterior sigue allí.</translation>
    </message>
    <message>
        <source>The old file was deleted before.</source>
        <translation>El archivo anterior se eliminó antes.</translation>
    </message>
    <message>
        <source>The options offered do not suit the device.</source>
        <translation>Las opciones ofrecidas no son adecuadas para el dispositivo.</translation>
    </message>
    <message>
        <source>The ordinal %1 is given twice; the first literal is used.</source>
        <translation>El ordinal %1 está indicado dos veces; se usa el primer literal.</translation>
    </message>
    <message>
        <source>The originator identification has %1 octets; at most %2 are allowed.</source>
        <translation>La identificación del originador tiene %1 octetos; se permiten %2 como máximo.</translation>
    </message>
    <message>
        <source>The other application cannot be reached.</source>
        <translation>No se puede llegar a la otra aplicación.</translation>
    </message>
    <message>
        <source>The other application does not support the context.</source>
        <translation>La otra aplicación no admite el contexto.</translation>
    </message>
    <message>
        <source>The part %1 of the command cannot be %2.</source>
        <translation>La parte %1 del mando no puede valer %2.</translation>
    </message>
    <message>
        <source>The peer %1 has %2 connections that are no associations yet, which is the limit.</source>
        <translation>El sistema remoto %1 tiene %2 conexiones que todavía no son asociaciones; es el límite.</translation>
    </message>
    <message>
        <source>The peer aborted the association.</source>
        <translation>El sistema remoto ha interrumpido la asociación.</translation>
    </message>
    <message>
        <source>The peer aborted the session.</source>
        <translation>El sistema remoto ha interrumpido la sesión.</translation>
    </message>
    <message>
        <source>The peer accepted the session with an unsuitable version.</source>
        <translation>El sistema remoto aceptó la sesión con una versión inadecuada.</translation>
    </message>
    <message>
        <source>The peer and this side have no cipher suite in common, or no certificate fits it.</source>
        <translation>El sistema remoto y este lado no tienen ningún conjunto de cifrado en común, o ningún certificado le corresponde.</translation>
    </message>
    <message>
        <source>The peer and this side have no version of TLS in common.</source>
        <translation>El sistema remoto y este lado no tienen ninguna versión de TLS en común.</translation>
    </message>
    <message>
        <source>The peer answered the initiate request with something else.</source>
        <translation>El sistema remoto respondió otra cosa a la petición initiate.</translation>
    </message>
    <message>
        <source>The peer answers for too many presentation contexts.</source>
        <translation>El sistema remoto responde por demasiados contextos de presentación.</translation>
    </message>
    <message>
        <source>The peer asked for a transport class other than 0.</source>
        <translation>El sistema remoto pidió una clase de transporte distinta de 0.</translation>
    </message>
    <message>
        <source>The peer asked for an application context other than MMS.</source>
        <translation>El sistema remoto pidió un contexto de aplicación distinto de MMS.</translation>
    </message>
    <message>
        <source>The peer asked for an unknown presentation selector.</source>
        <translation>El sistema remoto pidió un selector de presentación desconocido.</translation>
    </message>
    <message>
        <source>The peer asked for an unknown transport selector.</source>
        <translation>El sistema remoto pidió un selector de transporte desconocido.</translation>
    </message>
    <message>
        <source>The peer asks for a certificate, and this side has none that it trusts.</source>
        <translation>El sistema remoto pide un certificado en el que confíe, y este lado no tiene ninguno.</translation>
    </message>
    <message>
        <source>The peer asks for a presentation mode other than normal mode.</source>
        <translation>El sistema remoto pide un modo de presentación distinto del modo normal.</translation>
    </message>
    <message>
        <source>The peer asks for too many presentation contexts.</source>
        <translation>El sistema remoto pide demasiados contextos de presentación.</translation>
    </message>
    <message>
        <source>The peer cannot read the presentation user data.</source>
        <translation>El sistema remoto no puede leer los datos de usuario de presentación.</translation>
    </message>
    <message>
        <source>The peer closed the network connection instead of a TLS handshake.</source>
        <translation>El sistema remoto cerró la conexión de red en vez de establecer TLS.</translation>
    </message>
    <message>
        <source>The peer closed the network connection instead of a TLS handshake; it may not speak TLS on this port.</source>
        <translation>El sistema remoto cerró la conexión de red en vez de establecer TLS; quizá no use TLS en este puerto.</translation>
    </message>
    <message>
        <source>The peer closed the network connection.</source>
        <translation>El sistema remoto cerró la conexión de red.</translation>
    </message>
    <message>
        <source>The peer confirmed a transport class other than 0.</source>
        <translation>El sistema remoto confirmó una clase de transporte distinta de 0.</translation>
    </message>
    <message>
        <source>The peer cuts session data into segments, which was not agreed.</source>
        <translation>El sistema remoto divide los datos de sesión en segmentos, lo que no se acordó.</translation>
    </message>
    <message>
        <source>The peer did not accept the presentation contexts of ACSE and MMS.</source>
        <translation>El sistema remoto no aceptó los contextos de presentación de ACSE y MMS.</translation>
    </message>
    <message>
        <source>The peer did not answer in time.</source>
        <translation>El sistema remoto no respondió a tiempo.</translation>
    </message>
    <message>
        <source>The peer did not answer the release in time.</source>
        <translation>El sistema remoto no respondió a tiempo a la liberación.</translation>
    </message>
    <message>
        <source>The peer did not ask for the presentation contexts of ACSE and MMS.</source>
        <translation>El sistema remoto no pidió los contextos de presentación de ACSE y MMS.</translation>
    </message>
    <message>
        <source>The peer did not complete the TLS handshake in time.</source>
        <translation>El sistema remoto no completó a tiempo el establecimiento de TLS.</translation>
    </message>
    <message>
        <source>The peer did not complete the association in time.</source>
        <translation>El sistema remoto no completó a tiempo la asociación.</translation>
    </message>
    <message>
        <source>The peer does not conclude the association: %1.</source>
        <translation>El sistema remoto no cierra la asociación: %1.</translation>
    </message>
    <message>
        <source>The peer does not know the presentation selector.</source>
        <translation>El sistema remoto no conoce el selector de presentación.</translation>
    </message>
    <message>
        <source>The peer does not know the session selector.</source>
        <translation>El sistema remoto no conoce el selector de sesión.</translation>
    </message>
    <message>
        <source>The peer does not know the transport selector.</source>
        <translation>El sistema remoto no conoce el selector de transporte.</translation>
    </message>
    <message>
        <source>The peer does not read what it is sent.</source>
        <translation>El sistema remoto no lee lo que se le envía.</translation>
    </message>
    <message>
        <source>The peer does not speak ISO transport over TCP: a packet begins with %1 instead of 3.</source>
        <translation>El sistema remoto no usa el transporte ISO sobre TCP: un paquete empieza con %1 en vez de 3.</translation>
    </message>
    <message>
        <source>The peer does not speak TLS, which is required here.</source>
        <translation>El sistema remoto no usa TLS, que aquí se exige.</translation>
    </message>
    <message>
        <source>The peer does not speak TLS.</source>
        <translation>El sistema remoto no usa TLS.</translation>
    </message>
    <message>
        <source>The peer does not support the default context.</source>
        <translation>El sistema remoto no admite el contexto predeterminado.</translation>
    </message>
    <message>
        <source>The peer does not support the proposed version of the session protocol.</source>
        <translation>El sistema remoto no admite la versión propuesta del protocolo de sesión.</translation>
    </message>
    <message>
        <source>The peer does not support the version of the presentation protocol.</source>
        <translation>El sistema remoto no admite la versión del protocolo de presentación.</translation>
    </message>
    <message>
        <source>The peer ended the transport connection normally.</source>
        <translation>El sistema remoto terminó la conexión de transporte normalmente.</translation>
    </message>
    <message>
        <source>The peer ended the transport connection with reason %1.</source>
        <translation>El sistema remoto terminó la conexión de transporte con la razón %1.</translation>
    </message>
    <message>
        <source>The peer ended the transport connection without a reason.</source>
        <translation>El sistema remoto terminó la conexión de transporte sin dar una razón.</translation>
    </message>
    <message>
        <source>The peer has shown no certificate.</source>
        <translation>El sistema remoto no ha mostrado ningún certificado.</translation>
    </message>
    <message>
        <source>The peer knows the certificate of this side and denies it access.</source>
        <translation>El sistema remoto conoce el certificado de este lado y le deniega el acceso.</translation>
    </message>
    <message>
        <source>The peer refuses a parameter code of the transport unit.</source>
        <translation>El sistema remoto rechaza un código de parámetro de la unidad de transporte.</translation>
    </message>
    <message>
        <source>The peer refuses a parameter value of the transport unit.</source>
        <translation>El sistema remoto rechaza un valor de parámetro de la unidad de transporte.</translation>
    </message>
    <message>
        <source>The peer refuses a transport unit without a reason.</source>
        <translation>El sistema remoto rechaza una unidad de transporte sin dar una razón.</translation>
    </message>
    <message>
        <source>The peer refuses the association for the time being.</source>
        <translation>El sistema remoto rechaza la asociación por el momento.</translation>
    </message>
    <message>
        <source>The peer refuses the association for the time being: %1.</source>
        <translation>El sistema remoto rechaza la asociación por el momento: %1.</translation>
    </message>
    <message>
        <source>The peer refuses the association.</source>
        <translation>El sistema remoto rechaza la asociación.</translation>
    </message>
    <message>
        <source>The peer refuses the association: %1.</source>
        <translation>El sistema remoto rechaza la asociación: %1.</translation>
    </message>
    <message>
        <source>The peer refuses the certificate of this side because it does not trust its issuer.</source>
        <translation>El sistema remoto rechaza el certificado de este lado porque no confía en su emisor.</translation>
    </message>
    <message>
        <source>The peer refuses the certificate of this side because it has been revoked.</source>
        <translation>El sistema remoto rechaza el certificado de este lado porque ha sido revocado.</translation>
    </message>
    <message>
        <source>The peer refuses the certificate of this side because it has expired or is not valid yet.</source>
        <translation>El sistema remoto rechaza el certificado de este lado porque ha caducado o todavía no es válido.</translation>
    </message>
    <message>
        <source>The peer refuses the certificate of this side because it is not of a kind that it takes.</source>
        <translation>El sistema remoto rechaza el certificado de este lado porque no acepta esa clase de certificado.</translation>
    </message>
    <message>
        <source>The peer refuses the certificate of this side.</source>
        <translation>El sistema remoto rechaza el certificado de este lado.</translation>
    </message>
    <message>
        <source>The peer refuses the handshake because a signature of this side does not fit.</source>
        <translation>El sistema remoto rechaza el establecimiento de TLS porque una firma de este lado no es correcta.</translation>
    </message>
    <message>
        <source>The peer refuses the initiate request.</source>
        <translation>El sistema remoto rechaza la petición initiate.</translation>
    </message>
    <message>
        <source>The peer refuses the presentation connection with reason %1.</source>
        <translation>El sistema remoto rechaza la conexión de presentación con la razón %1.</translation>
    </message>
    <message>
        <source>The peer refuses the presentation connection.</source>
        <translation>El sistema remoto rechaza la conexión de presentación.</translation>
    </message>
    <message>
        <source>The peer refuses the request on this network connection.</source>
        <translation>El sistema remoto rechaza la petición en esta conexión de red.</translation>
    </message>
    <message>
        <source>The peer refuses the session because it is busy.</source>
        <translation>El sistema remoto rechaza la sesión porque está ocupado.</translation>
    </message>
    <message>
        <source>The peer refuses the session with reason %1.</source>
        <translation>El sistema remoto rechaza la sesión con la razón %1.</translation>
    </message>
    <message>
        <source>The peer refuses the session without a reason.</source>
        <translation>El sistema remoto rechaza la sesión sin dar una razón.</translation>
    </message>
    <message>
        <source>The peer refuses the session.</source>
        <translation>El sistema remoto rechaza la sesión.</translation>
    </message>
    <message>
        <source>The peer refuses the type of the transport unit.</source>
        <translation>El sistema remoto rechaza el tipo de la unidad de transporte.</translation>
    </message>
    <message>
        <source>The peer refuses to end the session.</source>
        <translation>El sistema remoto se niega a terminar la sesión.</translation>
    </message>
    <message>
        <source>The peer reports an error in the transport protocol.</source>
        <translation>El sistema remoto comunica un error en el protocolo de transporte.</translation>
    </message>
    <message>
        <source>The peer reports an invalid header or parameter length.</source>
        <translation>El sistema remoto comunica una longitud de cabecera o de parámetro no válida.</translation>
    </message>
    <message>
        <source>The peer said nothing for %1 ms.</source>
        <translation>El sistema remoto no ha enviado nada durante %1 ms.</translation>
    </message>
    <message>
        <source>The peer saw a duplicate transport reference.</source>
        <translation>El sistema remoto encontró una referencia de transporte duplicada.</translation>
    </message>
    <message>
        <source>The peer saw mismatched transport references.</source>
        <translation>El sistema remoto encontró referencias de transporte que no concuerdan.</translation>
    </message>
    <message>
        <source>The peer sent a message of more than %1 octets.</source>
        <translation>El sistema remoto envió un mensaje de más de %1 octetos.</translation>
    </message>
    <message>
        <source>The peer sent a transport unit that does not belong here.</source>
        <translation>El sistema remoto envió una unidad de transporte que no corresponde aquí.</translation>
    </message>
    <message>
        <source>The peer sent a unit of association control that does not belong here.</source>
        <translation>El sistema remoto envió una unidad del control de asociación que no corresponde aquí.</translation>
    </message>
    <message>
        <source>The peer sent a wrong password.</source>
        <translation>El sistema remoto envió una contraseña incorrecta.</translation>
    </message>
    <message>
        <source>The peer sent no password.</source>
        <translation>El sistema remoto no envió ninguna contraseña.</translation>
    </message>
    <message>
        <source>The peer sent the session unit &quot;%1&quot;, which does not belong here.</source>
        <translation>El sistema remoto envió la unidad de sesión «%1», que no corresponde aquí.</translation>
    </message>
    <message>
        <source>The peer speaks TLS, which is not configured here.</source>
        <translation>El sistema remoto usa TLS, que aquí no está configurado.</translation>
    </message>
    <message>
        <source>The peer&apos;s PDU size of %1 octets is too small.</source>
        <translation>El tamaño de PDU del sistema remoto, %1 octetos, es demasiado pequeño.</translation>
    </message>
    <message>
        <source>The peer&apos;s association control aborted the association.</source>
        <translation>El control de asociación del sistema remoto interrumpió la asociación.</translation>
    </message>
    <message>
        <source>The peer&apos;s certificate &quot;%1&quot;</source>
        <translation>El certificado del sistema remoto «%1»</translation>
    </message>
    <message>
        <source>The peer&apos;s certificate &quot;%1&quot; is not one of those that are pinned; its fingerprint is %2.</source>
        <translation>El certificado del sistema remoto «%1» no es uno de aquellos cuya huella está registrada; su huella es %2.</translation>
    </message>
    <message>
        <source>The peer&apos;s initiate answer cannot be read: %1.</source>
        <translation>No se puede leer la respuesta initiate del sistema remoto: %1.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer aborted without a reason.</source>
        <translation>La capa de presentación del sistema remoto interrumpió la conexión sin dar una razón.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer aborted.</source>
        <translation>La capa de presentación del sistema remoto interrumpió la conexión.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer did not expect a parameter and aborted.</source>
        <translation>La capa de presentación del sistema remoto no esperaba un parámetro e interrumpió la conexión.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer did not expect a session service and aborted.</source>
        <translation>La capa de presentación del sistema remoto no esperaba un servicio de sesión e interrumpió la conexión.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer did not expect a unit and aborted.</source>
        <translation>La capa de presentación del sistema remoto no esperaba una unidad e interrumpió la conexión.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer does not recognise a parameter and aborted.</source>
        <translation>La capa de presentación del sistema remoto no reconoce un parámetro e interrumpió la conexión.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer does not recognise a unit and aborted.</source>
        <translation>La capa de presentación del sistema remoto no reconoce una unidad e interrumpió la conexión.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer found an invalid parameter value and aborted.</source>
        <translation>La capa de presentación del sistema remoto encontró un valor de parámetro no válido e interrumpió la conexión.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer has reached a limit of its own.</source>
        <translation>La capa de presentación del sistema remoto ha alcanzado un límite propio.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer is congested.</source>
        <translation>La capa de presentación del sistema remoto está saturada.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer refuses the connection without a reason.</source>
        <translation>La capa de presentación del sistema remoto rechaza la conexión sin dar una razón.</translation>
    </message>
    <message>
        <source>The peer&apos;s session layer aborted the session.</source>
        <translation>La capa de sesión del sistema remoto interrumpió la sesión.</translation>
    </message>
    <message>
        <source>The peer&apos;s session layer is congested.</source>
        <translation>La capa de sesión del sistema remoto está saturada.</translation>
    </message>
    <message>
        <source>The peer&apos;s session layer refuses the session because of a restriction of its own.</source>
        <translation>La capa de sesión del sistema remoto rechaza la sesión por una restricción propia.</translation>
    </message>
    <message>
        <source>The peer&apos;s session layer refuses the session.</source>
        <translation>La capa de sesión del sistema remoto rechaza la sesión.</translation>
    </message>
    <message>
        <source>The peer&apos;s session layer reports an error in the protocol and aborted the session.</source>
        <translation>La capa de sesión del sistema remoto comunica un error de protocolo e interrumpió la sesión.</translation>
    </message>
    <message>
        <source>The peer&apos;s session request cannot be accepted.</source>
        <translation>La petición de sesión del sistema remoto no se puede aceptar.</translation>
    </message>
    <message>
        <source>The peer&apos;s transport layer is congested.</source>
        <translation>La capa de transporte del sistema remoto está saturada.</translation>
    </message>
    <message>
        <source>The peer&apos;s transport references have overflowed.</source>
        <translation>Las referencias de transporte del sistema remoto se han desbordado.</translation>
    </message>
    <message>
        <source>The peer&apos;s transport selector is congested.</source>
        <translation>El selector de transporte del sistema remoto está saturado.</translation>
    </message>
    <message>
        <source>The position is not within the file.</source>
        <translation>La posición no está dentro del archivo.</translation>
    </message>
    <message>
        <source>The private key in the file &quot;%1&quot; cannot be used (%2).</source>
        <translation>La clave privada del archivo «%1» no se puede usar (%2).</translation>
    </message>
    <message>
        <source>The private key in the file &quot;%1&quot; does not fit the certificate in the file &quot;%2&quot;.</source>
        <translation>La clave privada del archivo «%1» no corresponde al certificado del archivo «%2».</translation>
    </message>
    <message>
        <source>The private key in the file &quot;%1&quot; does not open with the password that is given.</source>
        <translation>La clave privada del archivo «%1» no se abre con la contraseña indicada.</translation>
    </message>
    <message>
        <source>The private key in the file &quot;%1&quot; is encrypted, and no password is given.</source>
        <translation>La clave privada del archivo «%1» está cifrada, y no se indica ninguna contraseña.</translation>
    </message>
    <message>
        <source>The report ends before its %1.</source>
        <translation>El informe termina antes de su campo %1.</translation>
    </message>
    <message>
        <source>The report has no value for its %1: %2.</source>
        <translation>El informe no trae valor para su campo %1: %2.</translation>
    </message>
    <message>
        <source>The report says that it brings %1 members, which are %2 values, but it has %3.</source>
        <translation>El informe anuncia %1 miembros, que son %2 valores, pero tiene %3.</translation>
    </message>
    <message>
        <source>The report&apos;s %1 is neither true nor false.</source>
        <translation>El campo %1 del informe no es ni verdadero ni falso.</translation>
    </message>
    <message>
        <source>The report&apos;s %1 is not a binary time.</source>
        <translation>El campo %1 del informe no es un tiempo binario.</translation>
    </message>
    <message>
        <source>The report&apos;s %1 is not a bit string.</source>
        <translation>El campo %1 del informe no es una cadena de bits.</translation>
    </message>
    <message>
        <source>The report&apos;s %1 is not a number of 32 bits without sign.</source>
        <translation>El campo %1 del informe no es un número de 32 bits sin signo.</translation>
    </message>
    <message>
        <source>The report&apos;s %1 is not a string of octets.</source>
        <translation>El campo %1 del informe no es una cadena de octetos.</translation>
    </message>
    <message>
        <source>The report&apos;s %1 is not a text.</source>
        <translation>El campo %1 del informe no es un texto.</translation>
    </message>
    <message>
        <source>The request is longer than the negotiated PDU size of %1 octets.</source>
        <translation>La petición es más larga que el tamaño de PDU negociado de %1 octetos.</translation>
    </message>
    <message>
        <source>The request was not sent: it waited for a place behind calls that the peer has not answered.</source>
        <translation>La petición no se ha enviado: esperaba un lugar detrás de peticiones que el sistema remoto no ha respondido.</translation>
    </message>
    <message>
        <source>The revocation list in the file &quot;%1&quot; cannot be used (%2).</source>
        <translation>La lista de revocación del archivo «%1» no se puede usar (%2).</translation>
    </message>
    <message>
        <source>The root element is in no name space; it should be in &quot;%1&quot;.</source>
        <translation>El elemento raíz no está en ningún espacio de nombres; debería estar en «%1».</translation>
    </message>
    <message>
        <source>The root element is in the name space &quot;%1&quot; instead of &quot;%2&quot;.</source>
        <translation>El elemento raíz está en el espacio de nombres «%1» en vez de en «%2».</translation>
    </message>
    <message>
        <source>The server was stopped.</source>
        <translation>El servidor se ha detenido.</translation>
    </message>
    <message>
        <source>The service was called out of sequence.</source>
        <translation>El servicio se ha llamado fuera de secuencia.</translation>
    </message>
    <message>
        <source>The services offered do not suit the device.</source>
        <translation>Los servicios ofrecidos no son adecuados para el dispositivo.</translation>
    </message>
    <message>
        <source>The session parameter %1 has a wrong length.</source>
        <translation>El parámetro de sesión %1 tiene una longitud incorrecta.</translation>
    </message>
    <message>
        <source>The size of transport units is not one of 128 to 8,192 octets.</source>
        <translation>El tamaño de las unidades de transporte no es uno de los tamaños de 128 a 8192 octetos.</translation>
    </message>
    <message>
        <source>The state of the device does not allow this.</source>
        <translation>El estado del dispositivo no lo permite.</translation>
    </message>
    <message>
        <source>The transport classes of both sides do not match.</source>
        <translation>Las clases de transporte de los dos lados no concuerdan.</translation>
    </message>
    <message>
        <source>The transport unit &quot;%1&quot; is shorter than its fixed part.</source>
        <translation>La unidad de transporte «%1» es más corta que su parte fija.</translation>
    </message>
    <message>
        <source>The truth value is written &quot;%1&quot; instead of &quot;true&quot; or &quot;false&quot;.</source>
        <translation>El valor lógico está escrito «%1» en vez de «true» o «false».</translation>
    </message>
    <message>
        <source>The type is not supported.</source>
        <translation>El tipo no se admite.</translation>
    </message>
    <message>
        <source>The type of %1 cannot be read: %2.</source>
        <translation>No se puede leer el tipo de %1: %2.</translation>
    </message>
    <message>
        <source>The types do not agree.</source>
        <translation>Los tipos no concuerdan.</translation>
    </message>
    <message>
        <source>The value %1 does not fit the type %2 of the device.</source>
        <translation>El valor %1 no corresponde al tipo %2 del dispositivo.</translation>
    </message>
    <message>
        <source>The value &quot;%1&quot; differs in blanks or capitals from what is expected.</source>
        <translation>El valor «%1» difiere de lo esperado en espacios o mayúsculas.</translation>
    </message>
    <message>
        <source>The value has not the type of the object.</source>
        <translation>El valor no tiene el tipo del objeto.</translation>
    </message>
    <message>
        <source>The value is empty, so the attribute has none.</source>
        <translation>El valor está vacío, así que el atributo no tiene valor.</translation>
    </message>
    <message>
        <source>The value is given by its number &quot;%1&quot; instead of its text.</source>
        <translation>El valor está indicado por su número «%1» en vez de por su texto.</translation>
    </message>
    <message>
        <source>The value is not allowed for the object.</source>
        <translation>El valor no está permitido para el objeto.</translation>
    </message>
    <message>
        <source>The value of the control block does not match its type %1.</source>
        <translation>El valor del bloque de control no corresponde a su tipo %1.</translation>
    </message>
    <message>
        <source>There are %1 associations already, which is the limit.</source>
        <translation>Ya hay %1 asociaciones; es el límite.</translation>
    </message>
    <message>
        <source>There is a problem with the other application.</source>
        <translation>Hay un problema con la otra aplicación.</translation>
    </message>
    <message>
        <source>There is another IED of the name &quot;%1&quot;.</source>
        <translation>Hay otro IED con el nombre «%1».</translation>
    </message>
    <message>
        <source>There is another control block &quot;%1&quot;.</source>
        <translation>Hay otro bloque de control «%1».</translation>
    </message>
    <message>
        <source>There is another data set &quot;%1&quot;.</source>
        <translation>Hay otro conjunto de datos «%1».</translation>
    </message>
    <message>
        <source>There is another logical device &quot;%1&quot;.</source>
        <translation>Hay otro dispositivo lógico «%1».</translation>
    </message>
    <message>
        <source>There is another logical node &quot;%1&quot;.</source>
        <translation>Hay otro nodo lógico «%1».</translation>
    </message>
    <message>
        <source>There is no &quot;%1&quot;</source>
        <translation>No existe «%1»</translation>
    </message>
    <message>
        <source>There is no association.</source>
        <translation>No hay ninguna asociación.</translation>
    </message>
    <message>
        <source>There is no data set %1.</source>
        <translation>No hay ningún conjunto de datos %1.</translation>
    </message>
    <message>
        <source>There is no functional constraint (attribute fc)</source>
        <translation>No hay restricción funcional (atributo fc)</translation>
    </message>
    <message>
        <source>There is no logical device &quot;%1&quot;</source>
        <translation>No hay ningún dispositivo lógico «%1»</translation>
    </message>
    <message>
        <source>There is no logical node &quot;%1&quot; in &quot;%2&quot;</source>
        <translation>No hay ningún nodo lógico «%1» en «%2»</translation>
    </message>
    <message>
        <source>There is not enough memory to read the file.</source>
        <translation>No hay suficiente memoria para leer el archivo.</translation>
    </message>
    <message>
        <source>There is not enough room for the file.</source>
        <translation>No hay suficiente espacio para el archivo.</translation>
    </message>
    <message>
        <source>There is nothing of functional constraint &quot;%1&quot; in &quot;%2&quot;</source>
        <translation>No hay nada de la restricción funcional «%1» en «%2»</translation>
    </message>
    <message>
        <source>This is no report control block: it has no RptEna.</source>
        <translation>Este no es un bloque de control de informes: no tiene RptEna.</translation>
    </message>
    <message>
        <source>This is no setting group control block: NumOfSG or ActSG is missing.</source>
        <translation>Este no es un bloque de control de grupos de ajustes: falta NumOfSG o ActSG.</translation>
    </message>
    <message>
        <source>This is not a report but %1.</source>
        <translation>Esto no es un informe, sino %1.</translation>
    </message>
    <message>
        <source>This is not an SCL file: its root element is &quot;%1&quot;.</source>
        <translation>Este no es un archivo SCL: su elemento raíz es «%1».</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Demasiados archivos abiertos</translation>
    </message>
    <message>
        <source>User information is in a form that is not supported.</source>
        <translation>La información de usuario tiene una forma que no se admite.</translation>
    </message>
    <message>
        <source>What the peer sent cannot be read: %1.</source>
        <translation>No se puede leer lo que envió el sistema remoto: %1.</translation>
    </message>
    <message>
        <source>XML or text declaration not at start of entity</source>
        <translation>Declaración XML o de texto que no está al principio de la entidad</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not exist in type &quot;%2&quot;; what is given for it is left out.</source>
        <translation>«%1» no existe en el tipo «%2»; lo que se indica para este elemento se omite.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a value, but it is a structure.</source>
        <translation>«%1» tiene un valor, pero es una estructura.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no element %2</source>
        <translation>«%1» no tiene el elemento %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no element %2; what is given for it is left out.</source>
        <translation>«%1» no tiene el elemento %2; lo que se indica para él se omite.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a directory, not a file.</source>
        <translation>«%1» es un directorio, no un archivo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is an array, and no element is given</source>
        <translation>«%1» es una matriz, y no se indica ningún elemento</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is defined twice in its type; the first is used.</source>
        <translation>«%1» está definido dos veces en su tipo; se usa la primera definición.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither &quot;true&quot; nor &quot;false&quot;; %2 is used.</source>
        <translation>«%1» no es ni «true» ni «false»; se usa %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a SHA-256 fingerprint of 64 hexadecimal digits.</source>
        <translation>«%1» no es una huella SHA-256 de 64 cifras hexadecimales.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a basic type of the standard; values are kept as texts.</source>
        <translation>«%1» no es un tipo básico de la norma; los valores se conservan como textos.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a directory.</source>
        <translation>«%1» no es un directorio.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a functional constraint.</source>
        <translation>«%1» no es una restricción funcional.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a host name that a certificate can have.</source>
        <translation>«%1» no es un nombre de equipo que un certificado pueda tener.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number of array elements; the element is taken as a single one.</source>
        <translation>«%1» no es un número de elementos de matriz; el elemento se trata como un elemento simple.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number of milliseconds.</source>
        <translation>«%1» no es un número de milisegundos.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a value of %2 &quot;%3&quot;; the attribute has no value.</source>
        <translation>«%1» no es un valor de %2 «%3»; el atributo no tiene valor.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a value of %2; %3 is used.</source>
        <translation>«%1» no es un valor de %2; se usa %3.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a value of %2; the attribute has no value.</source>
        <translation>«%1» no es un valor de %2; el atributo no tiene valor.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a value of its type; the attribute has no value.</source>
        <translation>«%1» no es un valor de su tipo; el atributo no tiene valor.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an address of a network interface.</source>
        <translation>«%1» no es una dirección de una interfaz de red.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an array</source>
        <translation>«%1» no es una matriz</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an array; the element number is ignored.</source>
        <translation>«%1» no es una matriz; el número de elemento se ignora.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an ordinal; the literal is left out.</source>
        <translation>«%1» no es un ordinal; el literal se omite.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the number of an array element.</source>
        <translation>«%1» no es el número de un elemento de matriz.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names an attribute, which takes a DAI.</source>
        <translation>«%1» nombra un atributo, que necesita un DAI.</translation>
    </message>
    <message>
        <source>a certificate</source>
        <translation>un certificado</translation>
    </message>
    <message>
        <source>a command is being executed already</source>
        <translation>ya se está ejecutando un mando</translation>
    </message>
    <message>
        <source>a parameter is being changed</source>
        <translation>se está cambiando un parámetro</translation>
    </message>
    <message>
        <source>a revocation list</source>
        <translation>una lista de revocación</translation>
    </message>
    <message>
        <source>additional cause %1</source>
        <translation>causa adicional %1</translation>
    </message>
    <message>
        <source>additional code %1</source>
        <translation>código adicional %1</translation>
    </message>
    <message>
        <source>an authentication is required</source>
        <translation>se exige una autenticación</translation>
    </message>
    <message>
        <source>an authentication mechanism is required</source>
        <translation>se exige un mecanismo de autenticación</translation>
    </message>
    <message>
        <source>an authority</source>
        <translation>una autoridad de certificación</translation>
    </message>
    <message>
        <source>an unknown date</source>
        <translation>una fecha desconocida</translation>
    </message>
    <message>
        <source>another object of the domain is being controlled</source>
        <translation>otro objeto del dominio tiene un mando en curso</translation>
    </message>
    <message>
        <source>blocked because the switching authority lies elsewhere (local or remote)</source>
        <translation>bloqueo porque la autoridad de mando está en otro lugar (local o remoto)</translation>
    </message>
    <message>
        <source>blocked by an event of the process</source>
        <translation>bloqueo por un evento del proceso</translation>
    </message>
    <message>
        <source>blocked by interlocking</source>
        <translation>bloqueo por enclavamiento</translation>
    </message>
    <message>
        <source>blocked by synchrocheck</source>
        <translation>bloqueo por comprobación de sincronismo</translation>
    </message>
    <message>
        <source>blocked by the data object that blocks commands</source>
        <translation>bloqueo por el objeto de datos que bloquea los mandos</translation>
    </message>
    <message>
        <source>blocked by the health of the logical node</source>
        <translation>bloqueo por el estado de salud del nodo lógico</translation>
    </message>
    <message>
        <source>blocked by the mode of the logical node</source>
        <translation>bloqueo por el modo del nodo lógico</translation>
    </message>
    <message>
        <source>control error %1</source>
        <translation>error de mando %1</translation>
    </message>
    <message>
        <source>duplicate attribute</source>
        <translation>atributo duplicado</translation>
    </message>
    <message>
        <source>ended because the position deviates from the command</source>
        <translation>terminado porque la posición se desvía del mando</translation>
    </message>
    <message>
        <source>ended beyond the wanted position</source>
        <translation>terminado más allá de la posición deseada</translation>
    </message>
    <message>
        <source>ended by a cancel</source>
        <translation>terminado por una cancelación</translation>
    </message>
    <message>
        <source>ended by a trip</source>
        <translation>terminado por un disparo</translation>
    </message>
    <message>
        <source>ended by the loss of the connection with the client that issued it</source>
        <translation>terminado por la pérdida de la conexión con el cliente que dio el mando</translation>
    </message>
    <message>
        <source>error %1</source>
        <translation>error %1</translation>
    </message>
    <message>
        <source>it gives no reason; another client may have selected the object.</source>
        <translation>no da ninguna razón; puede que otro cliente haya seleccionado el objeto.</translation>
    </message>
    <message>
        <source>it has no address</source>
        <translation>no tiene dirección</translation>
    </message>
    <message>
        <source>it is not in a logical device.</source>
        <translation>no está en un dispositivo lógico.</translation>
    </message>
    <message>
        <source>it names more than one element of one array.</source>
        <translation>nombra más de un elemento de una misma matriz.</translation>
    </message>
    <message>
        <source>it names several parts.</source>
        <translation>nombra varias partes.</translation>
    </message>
    <message>
        <source>junk after document element</source>
        <translation>contenido sobrante después del elemento raíz del documento</translation>
    </message>
    <message>
        <source>locked by another client</source>
        <translation>bloqueo por otro cliente</translation>
    </message>
    <message>
        <source>mismatched tag</source>
        <translation>la etiqueta de cierre no corresponde a la de apertura</translation>
    </message>
    <message>
        <source>no cause</source>
        <translation>ninguna causa</translation>
    </message>
    <message>
        <source>no error</source>
        <translation>ningún error</translation>
    </message>
    <message>
        <source>no reason given</source>
        <translation>no se da ninguna razón</translation>
    </message>
    <message>
        <source>nobody answers who knows names</source>
        <translation>ningún servidor de nombres responde</translation>
    </message>
    <message>
        <source>nobody knows it</source>
        <translation>nadie lo conoce</translation>
    </message>
    <message>
        <source>reason %1</source>
        <translation>razón %1</translation>
    </message>
    <message>
        <source>syntax error</source>
        <translation>error de sintaxis</translation>
    </message>
    <message>
        <source>the application context is not supported</source>
        <translation>el contexto de aplicación no se admite</translation>
    </message>
    <message>
        <source>the authentication failed</source>
        <translation>la autenticación ha fallado</translation>
    </message>
    <message>
        <source>the authentication mechanism is not recognised</source>
        <translation>el mecanismo de autenticación no se reconoce</translation>
    </message>
    <message>
        <source>the called AE invocation identifier is not recognised</source>
        <translation>el identificador de invocación AE llamado no se reconoce</translation>
    </message>
    <message>
        <source>the called AE qualifier is not recognised</source>
        <translation>el calificador AE llamado no se reconoce</translation>
    </message>
    <message>
        <source>the called AP invocation identifier is not recognised</source>
        <translation>el identificador de invocación AP llamado no se reconoce</translation>
    </message>
    <message>
        <source>the called AP title is not recognised</source>
        <translation>el título AP llamado no se reconoce</translation>
    </message>
    <message>
        <source>the calling AE invocation identifier is not recognised</source>
        <translation>el identificador de invocación AE llamante no se reconoce</translation>
    </message>
    <message>
        <source>the calling AE qualifier is not recognised</source>
        <translation>el calificador AE llamante no se reconoce</translation>
    </message>
    <message>
        <source>the calling AP invocation identifier is not recognised</source>
        <translation>el identificador de invocación AP llamante no se reconoce</translation>
    </message>
    <message>
        <source>the calling AP title is not recognised</source>
        <translation>el título AP llamante no se reconoce</translation>
    </message>
    <message>
        <source>the client has no authority for it</source>
        <translation>el cliente no está autorizado para ello</translation>
    </message>
    <message>
        <source>the functional constraint is missing.</source>
        <translation>falta la restricción funcional.</translation>
    </message>
    <message>
        <source>the name of the logical device is missing or wrong.</source>
        <translation>el nombre del dispositivo lógico falta o es incorrecto.</translation>
    </message>
    <message>
        <source>the name of the logical node is missing or wrong.</source>
        <translation>el nombre del nodo lógico falta o es incorrecto.</translation>
    </message>
    <message>
        <source>the object is not selected</source>
        <translation>el objeto no está seleccionado</translation>
    </message>
    <message>
        <source>the object is selected already</source>
        <translation>el objeto ya está seleccionado</translation>
    </message>
    <message>
        <source>the operator test failed</source>
        <translation>la comprobación del operador ha fallado</translation>
    </message>
    <message>
        <source>the own certificate</source>
        <translation>el certificado de este lado</translation>
    </message>
    <message>
        <source>the parameters of the service contradict those of the selection</source>
        <translation>los parámetros del servicio contradicen los de la selección</translation>
    </message>
    <message>
        <source>the position has been reached already</source>
        <translation>la posición ya se ha alcanzado</translation>
    </message>
    <message>
        <source>the position is not valid</source>
        <translation>la posición no es válida</translation>
    </message>
    <message>
        <source>the private key</source>
        <translation>la clave privada</translation>
    </message>
    <message>
        <source>the selection failed</source>
        <translation>la selección ha fallado</translation>
    </message>
    <message>
        <source>the service is not supported</source>
        <translation>el servicio no se admite</translation>
    </message>
    <message>
        <source>the tap changer is at the end of its range</source>
        <translation>el cambiador de tomas está en el final de su recorrido</translation>
    </message>
    <message>
        <source>the time for it is over</source>
        <translation>el tiempo para ello ha transcurrido</translation>
    </message>
    <message>
        <source>the time-out test failed</source>
        <translation>la comprobación del tiempo de espera ha fallado</translation>
    </message>
    <message>
        <source>there is no common version of association control</source>
        <translation>no hay ninguna versión común del control de asociación</translation>
    </message>
    <message>
        <source>unclosed CDATA section</source>
        <translation>sección CDATA sin cerrar</translation>
    </message>
    <message>
        <source>unclosed token</source>
        <translation>elemento léxico sin terminar</translation>
    </message>
    <message>
        <source>unknown cause</source>
        <translation>causa desconocida</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>error desconocido</translation>
    </message>
    <message>
        <source>%1: the value does not have the form of its type.</source>
        <translation>%1: el valor no tiene la forma de su tipo.</translation>
    </message>
</context>
<context>
    <name>JournalModel</name>
    <message>
        <source>OK</source>
        <translation>Correcto</translation>
    </message>
    <message>
        <source>Failed (%1)</source>
        <translation>Error (%1)</translation>
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
        <translation>Hora</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Operación</translation>
    </message>
    <message>
        <source>Arguments</source>
        <translation>Argumentos</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duración</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>IEC 61850 Workbench</source>
        <translation>Banco de trabajo IEC 61850</translation>
    </message>
    <message>
        <source>T&amp;ry Again</source>
        <translation>&amp;Reintentar</translation>
    </message>
    <message>
        <source>&amp;Open SCL File…</source>
        <translation>A&amp;brir archivo SCL…</translation>
    </message>
    <message>
        <source>Open De&amp;monstration Device</source>
        <translation>Abrir el dispositivo de de&amp;mostración</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>&amp;Dispositivo</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Herramientas</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Barra de herramientas</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Observaciones</translation>
    </message>
    <message>
        <source>Journal</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Ctrl+O</source>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <source>Open &amp;Demonstration Device</source>
        <translation>Abrir el dispositivo de &amp;demostración</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>Read Model &amp;Again</source>
        <translation>Leer el modelo de &amp;nuevo</translation>
    </message>
    <message>
        <source>F5</source>
        <translation>F5</translation>
    </message>
    <message>
        <source>&amp;Remove from List</source>
        <translation>&amp;Quitar de la lista</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Del</translation>
    </message>
    <message>
        <source>&amp;Clear Journal</source>
        <translation>&amp;Vaciar el registro</translation>
    </message>
    <message>
        <source>&amp;Operator Guide</source>
        <translation>&amp;Guía del operador</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Acerca de</translation>
    </message>
    <message>
        <source>Loading was cancelled.</source>
        <translation>Se ha cancelado la carga.</translation>
    </message>
    <message>
        <source>No call to the driver yet. Every request that a tool makes is listed here.</source>
        <translation>Todavía no hay llamadas al controlador. Aquí se anota cada petición de una herramienta.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Reading %1 (%2 files left)</source>
        <translation>Leyendo %1 (quedan %2 archivos)</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>Leyendo %1</translation>
    </message>
    <message>
        <source>The IEC 61850 tools are not available.
%1
%2 %3</source>
        <translation>Las herramientas IEC 61850 no están disponibles.
%1
%2 %3</translation>
    </message>
    <message>
        <source>Select a device to see what was noticed while its file was read.</source>
        <translation>Seleccione un dispositivo para ver lo que se observó al leer su archivo.</translation>
    </message>
    <message>
        <source>Findings: %1</source>
        <translation>Observaciones: %1</translation>
    </message>
    <message>
        <source>Findings: %1 (%2)</source>
        <translation>Observaciones: %1 (%2)</translation>
    </message>
    <message>
        <source>No findings: everything in the file of this device was understood.</source>
        <translation>Sin observaciones: se ha entendido todo el archivo de este dispositivo.</translation>
    </message>
    <message>
        <source>The model cannot be read. %1
Read it again with %2, or remove the device from the list.</source>
        <translation>No se puede leer el modelo. %1
Léalo de nuevo con %2 o quite el dispositivo de la lista.</translation>
    </message>
    <message>
        <source>Open SCL File</source>
        <translation>Abrir archivo SCL</translation>
    </message>
    <message>
        <source>SCL files (*.icd *.cid *.iid *.scd *.sed *.ssd *.ICD *.CID *.IID *.SCD *.SED *.SSD *.xml)</source>
        <translation>Archivos SCL (*.icd *.cid *.iid *.scd *.sed *.ssd *.ICD *.CID *.IID *.SCD *.SED *.SSD *.xml)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Further files that cannot be used: %1</source>
        <translation>Otros archivos que no se pueden usar: %1</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>IEC 61850 Workbench %1

A small host for the IEC 61850 tools: it lists devices, loads the plug-in and shows every request that its tools make.

Apache License 2.0</source>
        <translation>Banco de trabajo IEC 61850 %1

Un pequeño anfitrión para las herramientas IEC 61850: enumera los dispositivos, carga el complemento y muestra cada petición de sus herramientas.

Apache License 2.0</translation>
    </message>
    <message>
        <source>No device yet: add one, or open an SCL file</source>
        <translation>Todavía no hay ningún dispositivo: añada uno o abra un archivo SCL</translation>
    </message>
    <message>
        <source>&amp;Add Device…</source>
        <translation>Añad&amp;ir dispositivo…</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Cambios</translation>
    </message>
    <message>
        <source>Add a device from an SCL file, without a connection</source>
        <translation>Añadir un dispositivo a partir de un archivo SCL, sin conexión</translation>
    </message>
    <message>
        <source>&amp;Start Simulated Device…</source>
        <translation>Iniciar dispositivo si&amp;mulado…</translation>
    </message>
    <message>
        <source>Simulate a device of an SCL file and connect to it</source>
        <translation>Simular un dispositivo de un archivo SCL y conectarse a él</translation>
    </message>
    <message>
        <source>Add &amp;Device…</source>
        <translation>&amp;Añadir dispositivo…</translation>
    </message>
    <message>
        <source>Add Device</source>
        <translation>Añadir dispositivo</translation>
    </message>
    <message>
        <source>Add a device that is reached over the network</source>
        <translation>Añadir un dispositivo accesible por la red</translation>
    </message>
    <message>
        <source>Ctrl+N</source>
        <translation>Ctrl+N</translation>
    </message>
    <message>
        <source>&amp;Edit Device…</source>
        <translation>&amp;Editar dispositivo…</translation>
    </message>
    <message>
        <source>F2</source>
        <translation>F2</translation>
    </message>
    <message>
        <source>&amp;Connect</source>
        <translation>&amp;Conectar</translation>
    </message>
    <message>
        <source>Connect to the selected device, now and at the next start</source>
        <translation>Conectar con el dispositivo seleccionado, ahora y en el próximo inicio</translation>
    </message>
    <message>
        <source>Leave the selected device, until it is connected again</source>
        <translation>Dejar el dispositivo seleccionado hasta que se conecte de nuevo</translation>
    </message>
    <message>
        <source>&amp;Start Simulation</source>
        <translation>&amp;Iniciar la simulación</translation>
    </message>
    <message>
        <source>S&amp;top Simulation</source>
        <translation>De&amp;tener la simulación</translation>
    </message>
    <message>
        <source>End the simulated device, as if it had lost its power</source>
        <translation>Detener el dispositivo simulado, como si hubiera perdido la alimentación</translation>
    </message>
    <message>
        <source>&amp;PDU Trace…</source>
        <translation>Traza de &amp;PDU…</translation>
    </message>
    <message>
        <source>Show what is exchanged with the selected device</source>
        <translation>Mostrar lo que se intercambia con el dispositivo seleccionado</translation>
    </message>
    <message>
        <source>Sa&amp;ve Capture…</source>
        <translation>&amp;Guardar la captura…</translation>
    </message>
    <message>
        <source>Save what was exchanged with the selected device for a protocol analyser</source>
        <translation>Guardar lo intercambiado con el dispositivo seleccionado para un analizador de protocolo</translation>
    </message>
    <message>
        <source>E&amp;xport Values…</source>
        <translation>E&amp;xportar los valores…</translation>
    </message>
    <message>
        <source>Save the values of the selected device as a table</source>
        <translation>Guardar los valores del dispositivo seleccionado como tabla</translation>
    </message>
    <message>
        <source>Refuse everything that changes something on a device</source>
        <translation>Rechazar todo lo que cambie algo en un dispositivo</translation>
    </message>
    <message>
        <source>Open &amp;Folder of the Change Journal</source>
        <translation>Abrir la &amp;carpeta del registro de cambios</translation>
    </message>
    <message>
        <source>Nothing was changed on a device yet. Every write, command and transfer is listed here%1.</source>
        <translation>Todavía no se ha cambiado nada en ningún dispositivo. Todo lo que se escribe, manda o transfiere se anota aquí%1.</translation>
    </message>
    <message>
        <source> and kept in
%1</source>
        <translation> y se guarda en
%1</translation>
    </message>
    <message>
        <source>Read-only: nothing is changed on devices</source>
        <translation>Solo lectura: no se cambia nada en los dispositivos</translation>
    </message>
    <message>
        <source>Reading the model of %1</source>
        <translation>Leyendo el modelo de %1</translation>
    </message>
    <message>
        <source>This device has no SCL file; its model is read from the device itself.</source>
        <translation>Este dispositivo no tiene archivo SCL; su modelo se lee del propio dispositivo.</translation>
    </message>
    <message>
        <source>Start Simulated Device</source>
        <translation>Iniciar dispositivo simulado</translation>
    </message>
    <message>
        <source>Disco&amp;nnect</source>
        <translation>&amp;Desconectar</translation>
    </message>
    <message>
        <source>Read-On&amp;ly</source>
        <translation>&amp;Solo lectura</translation>
    </message>
    <message>
        <source>Save Capture</source>
        <translation>Guardar la captura</translation>
    </message>
    <message>
        <source>Captures (*.pcapng)</source>
        <translation>Capturas (*.pcapng)</translation>
    </message>
    <message>
        <source>Export Values</source>
        <translation>Exportar los valores</translation>
    </message>
    <message>
        <source>Tables (*.csv)</source>
        <translation>Tablas (*.csv)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2</source>
        <translation>No se puede escribir «%1»: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was written.</source>
        <translation>Se ha escrito «%1».</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Conectar</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Desconectar</translation>
    </message>
    <message>
        <source>Read-Only</source>
        <translation>Solo lectura</translation>
    </message>
    <message>
        <source>The SCL file of this device was only compared with the device. Open it as an SCL file to see its findings.</source>
        <translation>El archivo SCL de este dispositivo solo se ha comparado con el dispositivo. Ábralo como archivo SCL para ver sus observaciones.</translation>
    </message>
    <message>
        <source>Con&amp;firm</source>
        <translation>C&amp;onfirmar</translation>
    </message>
    <message>
        <source>&amp;Commands before they are sent</source>
        <translation>&amp;Mandos antes de enviarlos</translation>
    </message>
    <message>
        <source>&amp;Everything that changes a device</source>
        <translation>&amp;Todo lo que cambie algo en un dispositivo</translation>
    </message>
    <message>
        <source>&amp;Nothing</source>
        <translation>&amp;Nada</translation>
    </message>
    <message>
        <source>%1 is away since %2</source>
        <translation>%1 está sin contacto desde %2</translation>
    </message>
    <message>
        <source>Devices away: %1, the first since %2</source>
        <translation>Dispositivos sin contacto: %1, el primero desde %2</translation>
    </message>
    <message>
        <source>&amp;Undo Remove</source>
        <translation>Des&amp;hacer la retirada</translation>
    </message>
    <message>
        <source>Ctrl+Z</source>
        <translation>Ctrl+Z</translation>
    </message>
    <message>
        <source>Remove Device</source>
        <translation>Quitar dispositivo</translation>
    </message>
    <message>
        <source>Take %1 off the list?</source>
        <translation>¿Quitar %1 de la lista?</translation>
    </message>
    <message>
        <source>Its connection ends, and windows that are open for it are no longer served.</source>
        <translation>Su conexión termina, y las ventanas abiertas para él dejan de funcionar.</translation>
    </message>
    <message>
        <source>Windows that are open for it are no longer served.</source>
        <translation>Las ventanas abiertas para él dejan de funcionar.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>%1 was taken off the list; %2 puts it back.</source>
        <translation>%1 se ha quitado de la lista; %2 lo devuelve a ella.</translation>
    </message>
    <message>
        <source>%1 was taken off the list; its file stays where it is, and %2 puts it back.</source>
        <translation>%1 se ha quitado de la lista; su archivo permanece donde está, y %2 devuelve el dispositivo a la lista.</translation>
    </message>
    <message>
        <source>&amp;Undo Remove of %1</source>
        <translation>Des&amp;hacer la retirada de %1</translation>
    </message>
</context>
<context>
    <name>OfflineDriverService</name>
    <message>
        <source>Not connected to the device</source>
        <translation>Sin conexión con el dispositivo</translation>
    </message>
    <message>
        <source>There is no device %1 on this driver.</source>
        <translation>No hay ningún dispositivo %1 en este controlador.</translation>
    </message>
</context>
<context>
    <name>SclImport</name>
    <message>
        <source>Line %1: %2</source>
        <translation>Línea %1: %2</translation>
    </message>
    <message>
        <source>The file describes no IED.</source>
        <translation>El archivo no describe ningún IED.</translation>
    </message>
    <message>
        <source>There is no IED &quot;%1&quot; in the file.</source>
        <translation>No hay ningún IED «%1» en el archivo.</translation>
    </message>
    <message>
        <source>The file describes several IEDs; one must be chosen.</source>
        <translation>El archivo describe varios IED; hay que elegir uno.</translation>
    </message>
</context>
<context>
    <name>SimulatedDevice</name>
    <message>
        <source>The files of the simulated device cannot be written to &quot;%1&quot;.</source>
        <translation>Los archivos del dispositivo simulado no se pueden escribir en «%1».</translation>
    </message>
    <message>
        <source>The device cannot be simulated: %1</source>
        <translation>No se puede simular el dispositivo: %1</translation>
    </message>
</context>
<context>
    <name>TableView</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
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
        <translation>un mensaje: «%1: %2»</translation>
    </message>
    <message>
        <source>the window &quot;%1&quot;</source>
        <translation>la ventana «%1»</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be made.</source>
        <translation>No se puede crear la carpeta «%1».</translation>
    </message>
    <message>
        <source>The plug-in &quot;%1&quot; is not available: %2</source>
        <translation>El complemento «%1» no está disponible: %2</translation>
    </message>
    <message>
        <source>The demonstration device was not read in time.</source>
        <translation>El dispositivo de demostración no se ha leído a tiempo.</translation>
    </message>
    <message>
        <source>The demonstration device cannot be read.</source>
        <translation>No se puede leer el dispositivo de demostración.</translation>
    </message>
    <message>
        <source>The second device cannot be read.</source>
        <translation>No se puede leer el segundo dispositivo.</translation>
    </message>
    <message>
        <source>The plug-in offers no tool number %1 for the demonstration device.</source>
        <translation>El complemento no ofrece la herramienta número %1 para el dispositivo de demostración.</translation>
    </message>
    <message>
        <source>Instead of the IED browser came %1.</source>
        <translation>En lugar del explorador del IED ha aparecido %1.</translation>
    </message>
    <message>
        <source>The IED browser did not appear.</source>
        <translation>El explorador del IED no ha aparecido.</translation>
    </message>
    <message>
        <source>The IED browser has no tree.</source>
        <translation>El explorador del IED no tiene árbol.</translation>
    </message>
    <message>
        <source>The demonstration device has no switch.</source>
        <translation>El dispositivo de demostración no tiene ningún aparato de maniobra.</translation>
    </message>
    <message>
        <source>The context menu did not appear.</source>
        <translation>El menú contextual no ha aparecido.</translation>
    </message>
    <message>
        <source>The window &quot;%1&quot; did not appear.</source>
        <translation>La ventana «%1» no ha aparecido.</translation>
    </message>
    <message>
        <source>The journal stayed empty.</source>
        <translation>El registro ha quedado vacío.</translation>
    </message>
    <message>
        <source>The trace stayed empty.</source>
        <translation>La traza ha quedado vacía.</translation>
    </message>
    <message>
        <source>Instead of &quot;%1&quot; came %2.</source>
        <translation>En lugar de «%1» ha aparecido %2.</translation>
    </message>
    <message>
        <source>The IED browser has no entry &quot;%1&quot;.</source>
        <translation>El explorador del IED no tiene la entrada «%1».</translation>
    </message>
    <message>
        <source>The picture &quot;%1&quot; cannot be saved.</source>
        <translation>No se puede guardar la imagen «%1».</translation>
    </message>
    <message>
        <source>The simulated device was not connected in time.</source>
        <translation>El dispositivo simulado no se ha conectado a tiempo.</translation>
    </message>
</context>
<context>
    <name>TraceDialog</name>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Pausa</translation>
    </message>
    <message>
        <source>PDU Trace: %1</source>
        <translation>Traza de PDU: %1</translation>
    </message>
    <message>
        <source>Nothing was exchanged with this device yet.</source>
        <translation>Todavía no se ha intercambiado nada con este dispositivo.</translation>
    </message>
    <message>
        <source>&amp;Save Capture…</source>
        <translation>&amp;Guardar la captura…</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>&amp;Vaciar</translation>
    </message>
</context>
<context>
    <name>TraceModel</name>
    <message>
        <source>sent</source>
        <translation>enviada</translation>
    </message>
    <message>
        <source>received</source>
        <translation>recibida</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Sentido</translation>
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
        <translation>%1 no cabe en %2.</translation>
    </message>
    <message>
        <source>%1 is no finite number.</source>
        <translation>%1 no es un número finito.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds characters that %2 does not have.</source>
        <translation>«%1» contiene caracteres que %2 no admite.</translation>
    </message>
    <message>
        <source>There is no value to write.</source>
        <translation>No hay ningún valor que escribir.</translation>
    </message>
    <message>
        <source>A value of type %1 cannot be written as a whole.</source>
        <translation>Un valor de tipo %1 no se puede escribir entero.</translation>
    </message>
    <message>
        <source>The text of %1 is longer than can be shown, so it can only be read.</source>
        <translation>El texto de %1 es más largo de lo que se puede mostrar, así que solo se puede leer.</translation>
    </message>
    <message>
        <source>%1 holds octets that are no text, so it can only be read.</source>
        <translation>%1 contiene octetos que no son texto, así que solo se puede leer.</translation>
    </message>
</context>
<context>
    <name>WaitingCalls</name>
    <message>
        <source>Waiting for %1</source>
        <translation>Esperando a %1</translation>
    </message>
    <message>
        <source>%1 has not answered yet (%2).</source>
        <translation>%1 no ha respondido todavía (%2).</translation>
    </message>
    <message>
        <source>Cancelling. What the device was asked before may still be done.</source>
        <translation>Cancelando. Lo que se pidió antes al dispositivo puede ejecutarse todavía.</translation>
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
        <translation>«%1» no se puede usar: %2</translation>
    </message>
    <message>
        <source>Logical devices: %1, logical nodes: %2, data attributes: %3</source>
        <translation>Dispositivos lógicos: %1, nodos lógicos: %2, atributos de datos: %3</translation>
    </message>
    <message>
        <source>Loading was cancelled.</source>
        <translation>Se ha cancelado la carga.</translation>
    </message>
    <message>
        <source>Another workbench uses the list of devices in &quot;%1&quot;: what is changed in this one is not kept.</source>
        <translation>Otro banco de trabajo usa la lista de dispositivos en «%1»: lo que se cambie en este no se conserva.</translation>
    </message>
    <message>
        <source>The list of devices in &quot;%1&quot; cannot be locked: what is changed is not kept.</source>
        <translation>La lista de dispositivos en «%1» no se puede bloquear: lo que se cambie no se conserva.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>The standard output cannot be written.</source>
        <translation>No se puede escribir en la salida estándar.</translation>
    </message>
</context>
</TS>
