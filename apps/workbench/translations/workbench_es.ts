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
        <source>%1: the value does not have the form of its type</source>
        <translation>%1: el valor no tiene la forma de su tipo</translation>
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
        <source>%1 was taken off the list; its file stays where it is.</source>
        <translation>%1 se ha quitado de la lista; su archivo permanece donde está.</translation>
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
        <source>%1 was taken off the list.</source>
        <translation>%1 se ha quitado de la lista.</translation>
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
        <source>The file &quot;%1&quot; cannot be opened: %2.</source>
        <translation>No se puede abrir el archivo «%1»: %2.</translation>
    </message>
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
