<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
<context>
    <name>ControlCo</name>
    <message>
        <source>Control</source>
        <translation>Mando</translation>
    </message>
    <message>
        <source>Control Object</source>
        <translation>Objeto de mando</translation>
    </message>
    <message>
        <source>Data Obj :</source>
        <translation>Objeto de datos:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Current Value :</source>
        <translation>Valor actual:</translation>
    </message>
    <message>
        <source>Current value</source>
        <translation>Valor actual</translation>
    </message>
    <message>
        <source>Control Value :</source>
        <translation>Valor de mando:</translation>
    </message>
    <message>
        <source>Control value</source>
        <translation>Valor de mando</translation>
    </message>
    <message>
        <source>Test :</source>
        <translation>Prueba:</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Prueba</translation>
    </message>
    <message>
        <source>Category :</source>
        <translation>Categoría:</translation>
    </message>
    <message>
        <source>Originator category</source>
        <translation>Categoría del originador</translation>
    </message>
    <message>
        <source>Check :</source>
        <translation>Comprobación:</translation>
    </message>
    <message>
        <source>Check conditions</source>
        <translation>Condiciones de comprobación</translation>
    </message>
</context>
<context>
    <name>DatasetSelectWidget</name>
    <message>
        <source>Selete Datas</source>
        <translation>Seleccionar datos</translation>
    </message>
    <message>
        <source>DataSet Name : </source>
        <translation>Nombre del conjunto de datos: </translation>
    </message>
    <message>
        <source>Data set name</source>
        <translation>Nombre del conjunto de datos</translation>
    </message>
    <message>
        <source>Data set members</source>
        <translation>Miembros del conjunto de datos</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>No data selected. can`t create dataset</source>
        <translation>No se ha seleccionado ningún dato. No se puede crear el conjunto de datos.</translation>
    </message>
    <message>
        <source>Please input dataset name</source>
        <translation>Introduzca un nombre para el conjunto de datos.</translation>
    </message>
</context>
<context>
    <name>ExplanationTips</name>
    <message>
        <source>Data type:</source>
        <translation>Tipo de datos:</translation>
    </message>
    <message>
        <source>Enumeration:</source>
        <translation>Enumeración:</translation>
    </message>
    <message>
        <source>Functional constraint:</source>
        <translation>Restricción funcional:</translation>
    </message>
    <message>
        <source>Presence:</source>
        <translation>Presencia:</translation>
    </message>
    <message>
        <source>Transient:</source>
        <translation>Transitorio:</translation>
    </message>
    <message>
        <source>Values:</source>
        <translation>Valores:</translation>
    </message>
    <message>
        <source>conditional (%1)</source>
        <translation>condicional (%1)</translation>
    </message>
    <message>
        <source>mandatory</source>
        <translation>obligatorio</translation>
    </message>
    <message>
        <source>optional</source>
        <translation>opcional</translation>
    </message>
    <message>
        <source>true only for a moment</source>
        <translation>verdadero solo por un instante</translation>
    </message>
</context>
<context>
    <name>FailureReport</name>
    <message>
        <source>The whole text, %1 lines:</source>
        <translation>El texto completo, %1 líneas:</translation>
    </message>
</context>
<context>
    <name>FileModel</name>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
</context>
<context>
    <name>FileServiceDialog</name>
    <message>
        <source>IED File Service</source>
        <translation>Servicio de archivos del IED</translation>
    </message>
    <message>
        <source>Server Directory : </source>
        <translation>Directorio en el IED: </translation>
    </message>
    <message>
        <source>Server directory</source>
        <translation>Directorio en el IED</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>IED Directory</source>
        <translation>Directorio del IED</translation>
    </message>
    <message>
        <source>IED directory</source>
        <translation>Directorio del IED</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Descargar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Upload File</source>
        <translation>Subir archivo</translation>
    </message>
    <message>
        <source>Select File : </source>
        <translation>Archivo: </translation>
    </message>
    <message>
        <source>File to upload</source>
        <translation>Archivo que se va a subir</translation>
    </message>
    <message>
        <source>Select file</source>
        <translation>Seleccionar archivo</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Target File Name :</source>
        <translation>Nombre en el IED:</translation>
    </message>
    <message>
        <source>Target file name</source>
        <translation>Nombre en el IED</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>All Files(*.*)</source>
        <translation>Todos los archivos(*.*)</translation>
    </message>
    <message>
        <source>Fail to Read File: %1 error:%2</source>
        <translation>No se ha podido leer el archivo %1: %2</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Correcto</translation>
    </message>
    <message>
        <source>Download Finished</source>
        <translation>Descarga terminada</translation>
    </message>
    <message>
        <source>Fail to Delete %1 %2</source>
        <translation>No se ha podido eliminar %1: %2</translation>
    </message>
    <message>
        <source>Delete Finished</source>
        <translation>Eliminación terminada</translation>
    </message>
    <message>
        <source>Fail to Upload File: %1 error:%2</source>
        <translation>No se ha podido subir el archivo %1: %2</translation>
    </message>
    <message>
        <source>Upload Finished</source>
        <translation>Subida terminada</translation>
    </message>
    <message>
        <source>Fail to readDirectory: Cannot connect to driver</source>
        <translation>No se ha podido leer el directorio: no hay conexión con el controlador</translation>
    </message>
    <message>
        <source>Cannot connect to driver</source>
        <translation>No hay conexión con el controlador</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Download File</source>
        <translation>Descargar archivo</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 ya existe.
¿Desea reemplazarlo?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2</source>
        <translation>No se puede escribir «%1»: %2</translation>
    </message>
</context>
<context>
    <name>IEC61850TaskExtention</name>
    <message>
        <source>IED Browser</source>
        <translation>Explorador del IED</translation>
    </message>
    <message>
        <source>IED File Service</source>
        <translation>Servicio de archivos del IED</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Interrumpir</translation>
    </message>
    <message>
        <source>Report Control</source>
        <translation>Control de informes</translation>
    </message>
</context>
<context>
    <name>IEDModel</name>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>(Deletable)</source>
        <translation>(eliminable)</translation>
    </message>
</context>
<context>
    <name>IEDModelView</name>
    <message>
        <source>IED Browser</source>
        <translation>Explorador del IED</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Leer</translation>
    </message>
    <message>
        <source>Write...</source>
        <translation>Escribir...</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Seleccionar</translation>
    </message>
    <message>
        <source>Operate</source>
        <translation>Ejecutar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Expand All</source>
        <translation>Expandir todo</translation>
    </message>
    <message>
        <source>Collapse All</source>
        <translation>Contraer todo</translation>
    </message>
    <message>
        <source>Open Report Control</source>
        <translation>Abrir el bloque de control de informes</translation>
    </message>
    <message>
        <source>Open Setting Group Control</source>
        <translation>Abrir el bloque de control de grupos de ajustes</translation>
    </message>
    <message>
        <source>Locate</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Create Persistent DataSet</source>
        <translation>Crear conjunto de datos persistente</translation>
    </message>
    <message>
        <source>Create Non-Persistent DataSet</source>
        <translation>Crear conjunto de datos no persistente</translation>
    </message>
    <message>
        <source>Delete DataSet</source>
        <translation>Eliminar conjunto de datos</translation>
    </message>
    <message>
        <source>GetDataSet List</source>
        <translation>Lista de conjuntos de datos</translation>
    </message>
    <message>
        <source>GetDataSet Directory</source>
        <translation>Directorio del conjunto de datos</translation>
    </message>
    <message>
        <source>Get BRCB</source>
        <translation>Leer bloque de informes con búfer (BRCB)</translation>
    </message>
    <message>
        <source>Get URCB</source>
        <translation>Leer bloque de informes sin búfer (URCB)</translation>
    </message>
    <message>
        <source>Get SGCB</source>
        <translation>Leer bloque de grupos de ajustes (SGCB)</translation>
    </message>
    <message>
        <source>GetServer Directory</source>
        <translation>Directorio del servidor</translation>
    </message>
    <message>
        <source>GetLogicalDevice Directory</source>
        <translation>Directorio del dispositivo lógico</translation>
    </message>
    <message>
        <source>GetLogicalNode Directory</source>
        <translation>Directorio del nodo lógico</translation>
    </message>
    <message>
        <source>GetData Directory</source>
        <translation>Directorio de los datos</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Cannot connect to driver</source>
        <translation>No hay conexión con el controlador</translation>
    </message>
    <message>
        <source>The description of this device is not whole: the tree shows what could be read of it.</source>
        <translation>La descripción de este dispositivo no está completa: el árbol muestra lo que se pudo leer de ella.</translation>
    </message>
</context>
<context>
    <name>OfflineSGCB</name>
    <message>
        <source>OfflineSGCB</source>
        <translation>Grupos de ajustes (sin conexión)</translation>
    </message>
    <message>
        <source>Num of Setting Group : </source>
        <translation>Número de grupos de ajustes: </translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Active Group : </source>
        <translation>Grupo activo: </translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>PropertyDelegate</name>
    <message>
        <source>%1 &quot;%2&quot; keeps its value.</source>
        <translation>%1 «%2» conserva su valor.</translation>
    </message>
</context>
<context>
    <name>PropertyEditor</name>
    <message>
        <source>A whole number from %1 to %2 is needed.</source>
        <translation>Se necesita un número entero de %1 a %2.</translation>
    </message>
    <message>
        <source>A number with a decimal point is needed, such as 0.25 or 1e-3.</source>
        <translation>Se necesita un número con punto decimal, por ejemplo 0.25 o 1e-3.</translation>
    </message>
    <message>
        <source>One character is needed.</source>
        <translation>Se necesita un solo carácter.</translation>
    </message>
    <message>
        <source>True</source>
        <translation>Verdadero</translation>
    </message>
    <message>
        <source>False</source>
        <translation>Falso</translation>
    </message>
    <message>
        <source>The number is too large: the data type ends at %1.</source>
        <translation>El número es demasiado grande: el tipo de datos termina en %1.</translation>
    </message>
    <message>
        <source>The number is too small: in this data type it would become 0.</source>
        <translation>El número es demasiado pequeño: en este tipo de datos se convertiría en 0.</translation>
    </message>
    <message>
        <source>Not all that was typed was taken. Press Enter again if %1 is meant.</source>
        <translation>No se ha tomado todo lo que se escribió. Pulse Intro otra vez si quiere decir %1.</translation>
    </message>
    <message>
        <source>The point in %1 is read as the decimal point. Press Enter again if this is meant.</source>
        <translation>El punto de %1 se lee como punto decimal. Pulse Intro otra vez si es lo que quiere decir.</translation>
    </message>
</context>
<context>
    <name>QtTreePropertyBrowser</name>
    <message>
        <source>Properties</source>
        <translation>Propiedades</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Propiedad</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
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
        <translation>Bloque de control de informes</translation>
    </message>
    <message>
        <source>Report Name : </source>
        <translation>Nombre del informe: </translation>
    </message>
    <message>
        <source>....</source>
        <translation>....</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Habilitar</translation>
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
        <translation>General</translation>
    </message>
    <message>
        <source>Report Id :</source>
        <translation>ID del informe:</translation>
    </message>
    <message>
        <source>Change the report id</source>
        <translation>Cambiar el ID del informe</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Cambiar</translation>
    </message>
    <message>
        <source>Client: </source>
        <translation>Cliente: </translation>
    </message>
    <message>
        <source>DataSet :</source>
        <translation>Conjunto de datos:</translation>
    </message>
    <message>
        <source>Data set</source>
        <translation>Conjunto de datos</translation>
    </message>
    <message>
        <source>Change the data set</source>
        <translation>Cambiar el conjunto de datos</translation>
    </message>
    <message>
        <source>Trigger Option</source>
        <translation>Opciones de disparo</translation>
    </message>
    <message>
        <source>Data Change</source>
        <translation>Cambio de dato</translation>
    </message>
    <message>
        <source>Quality Change</source>
        <translation>Cambio de calidad</translation>
    </message>
    <message>
        <source>Data Update</source>
        <translation>Actualización de dato</translation>
    </message>
    <message>
        <source>Integrity </source>
        <translation>Integridad </translation>
    </message>
    <message>
        <source>Change the trigger options</source>
        <translation>Cambiar las opciones de disparo</translation>
    </message>
    <message>
        <source>Optional Items</source>
        <translation>Campos opcionales</translation>
    </message>
    <message>
        <source>Entry ID</source>
        <translation>ID de entrada</translation>
    </message>
    <message>
        <source>Configuration Revision</source>
        <translation>Revisión de configuración</translation>
    </message>
    <message>
        <source>Time Stamp</source>
        <translation>Marca de tiempo</translation>
    </message>
    <message>
        <source>Data Reference</source>
        <translation>Referencia de datos</translation>
    </message>
    <message>
        <source>Buffer Overflow</source>
        <translation>Desbordamiento del búfer</translation>
    </message>
    <message>
        <source>Data Set Name</source>
        <translation>Nombre del conjunto de datos</translation>
    </message>
    <message>
        <source>Reason for Inclusion</source>
        <translation>Motivo de inclusión</translation>
    </message>
    <message>
        <source>Sub Sequence</source>
        <translation>Subsecuencia</translation>
    </message>
    <message>
        <source>Sequence Number</source>
        <translation>Número de secuencia</translation>
    </message>
    <message>
        <source>Change the optional items</source>
        <translation>Cambiar los campos opcionales</translation>
    </message>
    <message>
        <source>Etc</source>
        <translation>Varios</translation>
    </message>
    <message>
        <source>Integrity Period:</source>
        <translation>Período de integridad:</translation>
    </message>
    <message>
        <source>msec</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>Change the integrity period</source>
        <translation>Cambiar el período de integridad</translation>
    </message>
    <message>
        <source>Buffer Time:</source>
        <translation>Tiempo de búfer:</translation>
    </message>
    <message>
        <source>Change the buffer time</source>
        <translation>Cambiar el tiempo de búfer</translation>
    </message>
    <message>
        <source>Configuration Revision:</source>
        <translation>Revisión de configuración:</translation>
    </message>
    <message>
        <source>Reserved</source>
        <translation>Reservado</translation>
    </message>
    <message>
        <source>Change the reservation</source>
        <translation>Cambiar la reserva</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>Deshabilitar</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Cannot connect to driver</source>
        <translation>No hay conexión con el controlador</translation>
    </message>
</context>
<context>
    <name>SGCBDialog</name>
    <message>
        <source>SGCB</source>
        <translation>Grupos de ajustes (SGCB)</translation>
    </message>
    <message>
        <source>Name: </source>
        <translation>Nombre: </translation>
    </message>
    <message>
        <source>Name of the setting group control block</source>
        <translation>Nombre del bloque de control de grupos de ajustes</translation>
    </message>
    <message>
        <source>Select Group</source>
        <translation>Selección del grupo</translation>
    </message>
    <message>
        <source>Active Group:</source>
        <translation>Grupo activo:</translation>
    </message>
    <message>
        <source>Active group</source>
        <translation>Grupo activo</translation>
    </message>
    <message>
        <source>   Edit Group:</source>
        <translation>   Grupo en edición:</translation>
    </message>
    <message>
        <source>Edit group</source>
        <translation>Grupo en edición</translation>
    </message>
    <message>
        <source>Setting Value</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Execute</source>
        <translation>Ejecutar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Unsupported Type</source>
        <translation>Tipo no admitido</translation>
    </message>
    <message>
        <source>Cannot connect to driver</source>
        <translation>No hay conexión con el controlador</translation>
    </message>
</context>
<context>
    <name>SelectFCDialog</name>
    <message>
        <source>GetAllDataValues</source>
        <translation>Leer todos los valores</translation>
    </message>
    <message>
        <source>Select FC : </source>
        <translation>Restricción funcional: </translation>
    </message>
    <message>
        <source>Functional constraint</source>
        <translation>Restricción funcional</translation>
    </message>
</context>
<context>
    <name>TreeFinder</name>
    <message>
        <source>Not found</source>
        <translation>No encontrado</translation>
    </message>
    <message>
        <source>Find by name or reference</source>
        <translation>Buscar por nombre o referencia</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
</context>
</TS>
