<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en_US">
<context>
    <name>CallConfirmation</name>
    <message>
        <source>Select</source>
        <translation>Selecionar</translation>
    </message>
    <message>
        <source>Operate</source>
        <translation>Operar</translation>
    </message>
    <message>
        <source>Write a value</source>
        <translation>Escrever um valor</translation>
    </message>
    <message>
        <source>Create a data set</source>
        <translation>Criar um conjunto de dados</translation>
    </message>
    <message>
        <source>Delete a data set</source>
        <translation>Excluir um conjunto de dados</translation>
    </message>
    <message>
        <source>Delete a file</source>
        <translation>Excluir um arquivo</translation>
    </message>
    <message>
        <source>Send a file</source>
        <translation>Enviar um arquivo</translation>
    </message>
    <message>
        <source>Configure a report control block</source>
        <translation>Configurar um bloco de controle de relatório</translation>
    </message>
    <message>
        <source>Write settings</source>
        <translation>Escrever ajustes</translation>
    </message>
    <message>
        <source>Choose a setting group to edit</source>
        <translation>Escolher um grupo de ajustes para edição</translation>
    </message>
    <message>
        <source>Make a setting group the active one</source>
        <translation>Tornar ativo um grupo de ajustes</translation>
    </message>
    <message>
        <source>not supported</source>
        <translation>não suportada</translation>
    </message>
    <message>
        <source>bay control</source>
        <translation>comando do vão</translation>
    </message>
    <message>
        <source>station control</source>
        <translation>comando da subestação</translation>
    </message>
    <message>
        <source>remote control</source>
        <translation>comando remoto</translation>
    </message>
    <message>
        <source>automatic bay</source>
        <translation>automático do vão</translation>
    </message>
    <message>
        <source>automatic station</source>
        <translation>automático da subestação</translation>
    </message>
    <message>
        <source>automatic remote</source>
        <translation>automático remoto</translation>
    </message>
    <message>
        <source>maintenance</source>
        <translation>manutenção</translation>
    </message>
    <message>
        <source>process</source>
        <translation>processo</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nenhuma</translation>
    </message>
    <message>
        <source>interlocking</source>
        <translation>intertravamento</translation>
    </message>
    <message>
        <source>synchrocheck</source>
        <translation>verificação de sincronismo</translation>
    </message>
    <message>
        <source>synchrocheck and interlocking</source>
        <translation>verificação de sincronismo e intertravamento</translation>
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
        <translation>Valor atual:</translation>
    </message>
    <message>
        <source>as selected</source>
        <translation>como na seleção</translation>
    </message>
    <message>
        <source>Originator category:</source>
        <translation>Categoria do originador:</translation>
    </message>
    <message>
        <source>Checks:</source>
        <translation>Verificações:</translation>
    </message>
    <message>
        <source>Test:</source>
        <translation>Teste:</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>sim</translation>
    </message>
    <message>
        <source>no</source>
        <translation>não</translation>
    </message>
    <message>
        <source>Nothing was sent, since it was not confirmed.</source>
        <translation>Nada foi enviado, pois não houve confirmação.</translation>
    </message>
</context>
<context>
    <name>ChangeJournal</name>
    <message>
        <source>The journal &quot;%1&quot; cannot be written: %2</source>
        <translation>O registro “%1” não pode ser gravado: %2</translation>
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
        <translation>Hora</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Operação</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Referência</translation>
    </message>
    <message>
        <source>Old value</source>
        <translation>Valor anterior</translation>
    </message>
    <message>
        <source>New value</source>
        <translation>Valor novo</translation>
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
        <translation>Informar em JSON o que há em um arquivo SCL e terminar: com 0 se não houver erros, 1 se houver erros, 2 se não puder ser usado. Não precisa de tela.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>ARQUIVO</translation>
    </message>
    <message>
        <source>Take this IED of the file. The default asks when there are several; --check takes all.</source>
        <translation>Usar este IED do arquivo. Por padrão, pergunta-se quando há vários; --check usa todos.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOME</translation>
    </message>
    <message>
        <source>Open each tool on the demonstration device, save a picture of it in DIR, exit.</source>
        <translation>Abrir cada ferramenta com o dispositivo de demonstração, salvar uma imagem em PASTA e terminar.</translation>
    </message>
    <message>
        <source>DIR</source>
        <translation>PASTA</translation>
    </message>
    <message>
        <source>Load the plug-in from DIR instead of the folder &quot;plugins&quot; beside the program.</source>
        <translation>Carregar o plug-in de PASTA em vez da pasta “plugins” ao lado do programa.</translation>
    </message>
    <message>
        <source>Open the demonstration device.</source>
        <translation>Abrir o dispositivo de demonstração.</translation>
    </message>
    <message>
        <source>A small host for the IEC 61850 tools: opens devices from SCL files.</source>
        <translation>Um pequeno hospedeiro para as ferramentas IEC 61850: abre dispositivos a partir de arquivos SCL.</translation>
    </message>
    <message>
        <source>SCL files to open.</source>
        <translation>Arquivos SCL a abrir.</translation>
    </message>
    <message>
        <source>--check needs the name of a file.</source>
        <translation>--check precisa do nome de um arquivo.</translation>
    </message>
    <message>
        <source>--tour needs the name of a folder.</source>
        <translation>--tour precisa do nome de uma pasta.</translation>
    </message>
    <message>
        <source>--check takes one file, and nothing else can be done at the same time.</source>
        <translation>--check aceita um arquivo, e nada mais pode ser feito ao mesmo tempo.</translation>
    </message>
    <message>
        <source>--tour shows the demonstration device and opens no other file.</source>
        <translation>--tour mostra o dispositivo de demonstração e não abre nenhum outro arquivo.</translation>
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
        <translation>&amp;Enviar ao dispositivo</translation>
    </message>
</context>
<context>
    <name>DeviceConfiguration</name>
    <message>
        <source>The %1 has %2 octets; at most %3 are possible.</source>
        <translation>%1: tem %2 octetos; são possíveis no máximo %3.</translation>
    </message>
    <message>
        <source>transport selector of the %1</source>
        <translation>Seletor de transporte (%1)</translation>
    </message>
    <message>
        <source>session selector of the %1</source>
        <translation>Seletor de sessão (%1)</translation>
    </message>
    <message>
        <source>presentation selector of the %1</source>
        <translation>Seletor de apresentação (%1)</translation>
    </message>
    <message>
        <source>The AP title &quot;%1&quot; of the %2 is no object identifier such as 1.1.1.999.1.</source>
        <translation>Título AP (%2): “%1” não é um identificador de objeto como 1.1.1.999.1.</translation>
    </message>
    <message>
        <source>The AE qualifier of the %1 does not fit 32 bits.</source>
        <translation>Qualificador AE (%1): não cabe em 32 bits.</translation>
    </message>
    <message>
        <source>The time-out for %1 must be from %2 to %3 milliseconds.</source>
        <translation>O tempo limite para %1 deve estar entre %2 e %3 milissegundos.</translation>
    </message>
    <message>
        <source>The %1 &quot;%2&quot; does not exist.</source>
        <translation>O %1 “%2” não existe.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has the wrong form.</source>
        <translation>“%1” tem a forma incorreta.</translation>
    </message>
    <message>
        <source>The device&apos;s number must be from 1 to %1.</source>
        <translation>O número do dispositivo deve estar entre 1 e %1.</translation>
    </message>
    <message>
        <source>The device needs a name.</source>
        <translation>O dispositivo precisa de um nome.</translation>
    </message>
    <message>
        <source>The device needs an address or an SCL file.</source>
        <translation>O dispositivo precisa de um endereço ou de um arquivo SCL.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no address or host name.</source>
        <translation>“%1” não é um endereço nem um nome de host.</translation>
    </message>
    <message>
        <source>The port must be from 1 to 65535.</source>
        <translation>A porta deve estar entre 1 e 65535.</translation>
    </message>
    <message>
        <source>SCL file</source>
        <translation>arquivo SCL</translation>
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
        <translation>a conexão</translation>
    </message>
    <message>
        <source>requests</source>
        <translation>as requisições</translation>
    </message>
    <message>
        <source>operations</source>
        <translation>as operações</translation>
    </message>
    <message>
        <source>The time-out for operations must not be shorter than the one for requests.</source>
        <translation>O tempo limite para as operações não deve ser menor que o das requisições.</translation>
    </message>
    <message>
        <source>From 1 to %1 outstanding calls are possible.</source>
        <translation>São possíveis de 1 a %1 requisições pendentes.</translation>
    </message>
    <message>
        <source>The PDU size must be from %1 to %2 octets.</source>
        <translation>O tamanho da PDU deve estar entre %1 e %2 octetos.</translation>
    </message>
    <message>
        <source>The polling interval must be 0 for none, or from %1 to %2 milliseconds.</source>
        <translation>O intervalo de varredura deve ser 0 (nenhuma) ou estar entre %1 e %2 milissegundos.</translation>
    </message>
    <message>
        <source>From 1 to %1 outstanding file reads are possible.</source>
        <translation>São possíveis de 1 a %1 leituras de arquivo pendentes.</translation>
    </message>
    <message>
        <source>The originator category must be from 0 to %1.</source>
        <translation>A categoria do originador deve estar entre 0 e %1.</translation>
    </message>
    <message>
        <source>The originator identification has %1 octets; at most %2 are possible.</source>
        <translation>A identificação do originador tem %1 octetos; são possíveis no máximo %2.</translation>
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
        <translation>&amp;Nome:</translation>
    </message>
    <message>
        <source>&amp;Address:</source>
        <translation>&amp;Endereço:</translation>
    </message>
    <message>
        <source>Host name, IPv4 or IPv6 address</source>
        <translation>Nome de host, endereço IPv4 ou IPv6</translation>
    </message>
    <message>
        <source>&amp;Port:</source>
        <translation>&amp;Porta:</translation>
    </message>
    <message>
        <source>&amp;SCL file:</source>
        <translation>Arquivo &amp;SCL:</translation>
    </message>
    <message>
        <source>Browse…</source>
        <translation>Procurar…</translation>
    </message>
    <message>
        <source>&amp;IED of the file:</source>
        <translation>&amp;IED do arquivo:</translation>
    </message>
    <message>
        <source>&amp;Connect when the workbench starts</source>
        <translation>&amp;Conectar ao iniciar a bancada</translation>
    </message>
    <message>
        <source>Timing and Sizes</source>
        <translation>Tempos e tamanhos</translation>
    </message>
    <message>
        <source>Time-out for &amp;connecting:</source>
        <translation>Tempo limite para a &amp;conexão:</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>Time-out for &amp;requests:</source>
        <translation>Tempo limite para as &amp;requisições:</translation>
    </message>
    <message>
        <source>Time-out for &amp;operations:</source>
        <translation>Tempo limite para as &amp;operações:</translation>
    </message>
    <message>
        <source>Re&amp;ad values without reports every:</source>
        <translation>&amp;Ler os valores sem relatórios a cada:</translation>
    </message>
    <message>
        <source>never</source>
        <translation>nunca</translation>
    </message>
    <message>
        <source>Outstanding ca&amp;lls:</source>
        <translation>Requisições pe&amp;ndentes:</translation>
    </message>
    <message>
        <source>Largest P&amp;DU:</source>
        <translation>Maior P&amp;DU:</translation>
    </message>
    <message>
        <source> octets</source>
        <translation> octetos</translation>
    </message>
    <message>
        <source>Outstanding &amp;file reads:</source>
        <translation>Leituras de &amp;arquivo pendentes:</translation>
    </message>
    <message>
        <source>Addressing</source>
        <translation>Endereçamento</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Cliente</translation>
    </message>
    <message>
        <source>Transport selector:</source>
        <translation>Seletor de transporte:</translation>
    </message>
    <message>
        <source>Session selector:</source>
        <translation>Seletor de sessão:</translation>
    </message>
    <message>
        <source>Presentation selector:</source>
        <translation>Seletor de apresentação:</translation>
    </message>
    <message>
        <source>AP title:</source>
        <translation>Título AP:</translation>
    </message>
    <message>
        <source>AE qualifier:</source>
        <translation>Qualificador AE:</translation>
    </message>
    <message>
        <source>Selectors are octets in hexadecimal, for example 00 01. An AP title is an object identifier, for example 1.1.1.999.1; empty fields are not sent.</source>
        <translation>Os seletores são octetos em hexadecimal, por exemplo 00&#xa0;01. Um título AP é um identificador de objeto, por exemplo 1.1.1.999.1; campos vazios não são enviados.</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Segurança</translation>
    </message>
    <message>
        <source>&amp;Password of the association:</source>
        <translation>&amp;Senha da associação:</translation>
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
        <translation>C&amp;have privada:</translation>
    </message>
    <message>
        <source>Pa&amp;ssword of the key:</source>
        <translation>Senha da cha&amp;ve:</translation>
    </message>
    <message>
        <source>&amp;Authorities:</source>
        <translation>&amp;Autoridades certificadoras:</translation>
    </message>
    <message>
        <source>&amp;Revocation lists:</source>
        <translation>Listas de &amp;revogação:</translation>
    </message>
    <message>
        <source>&amp;Fingerprints (SHA-256):</source>
        <translation>&amp;Impressões digitais (SHA-256):</translation>
    </message>
    <message>
        <source>&amp;Name in the certificate:</source>
        <translation>&amp;Nome no certificado:</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>Comando</translation>
    </message>
    <message>
        <source>Originator &amp;category:</source>
        <translation>&amp;Categoria do originador:</translation>
    </message>
    <message>
        <source>Originator &amp;identification:</source>
        <translation>&amp;Identificação do originador:</translation>
    </message>
    <message>
        <source>&amp;Test Connection</source>
        <translation>Testar a cone&amp;xão</translation>
    </message>
    <message>
        <source>Add Device</source>
        <translation>Adicionar dispositivo</translation>
    </message>
    <message>
        <source>Edit Device %1</source>
        <translation>Editar o dispositivo %1</translation>
    </message>
    <message>
        <source>SCL File</source>
        <translation>Arquivo SCL</translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation>Certificado</translation>
    </message>
    <message>
        <source>Private Key</source>
        <translation>Chave privada</translation>
    </message>
    <message>
        <source>Authorities</source>
        <translation>Autoridades certificadoras</translation>
    </message>
    <message>
        <source>Revocation Lists</source>
        <translation>Listas de revogação</translation>
    </message>
    <message>
        <source>the only one</source>
        <translation>o único</translation>
    </message>
    <message>
        <source>The %1 of the %2 is not hexadecimal.</source>
        <translation>%1 (%2): não é hexadecimal.</translation>
    </message>
    <message>
        <source>transport selector</source>
        <translation>Seletor de transporte</translation>
    </message>
    <message>
        <source>session selector</source>
        <translation>Seletor de sessão</translation>
    </message>
    <message>
        <source>presentation selector</source>
        <translation>Seletor de apresentação</translation>
    </message>
    <message>
        <source>The AE qualifier of the %1 is not a number.</source>
        <translation>Qualificador AE (%1): não é um número.</translation>
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
        <translation>O dispositivo não tem endereço.</translation>
    </message>
    <message>
        <source>Connecting to %1…</source>
        <translation>Conectando a %1…</translation>
    </message>
    <message>
        <source>Connected to %1. Round trip: %2 ms; logical devices: %3</source>
        <translation>Conectado a %1. Ida e volta: %2 ms; dispositivos lógicos: %3</translation>
    </message>
    <message>
        <source>a device that does not say what it is</source>
        <translation>um dispositivo que não diz o que é</translation>
    </message>
</context>
<context>
    <name>DeviceListModel</name>
    <message>
        <source>The demonstration device, a part of the workbench</source>
        <translation>O dispositivo de demonstração, parte da bancada</translation>
    </message>
    <message>
        <source>Demonstration</source>
        <translation>Demonstração</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>Carregando…</translation>
    </message>
    <message>
        <source>Offline model</source>
        <translation>Modelo offline</translation>
    </message>
    <message>
        <source>Model cannot be read: %1</source>
        <translation>O modelo não pode ser lido: %1</translation>
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
        <translation>Iniciando a simulação…</translation>
    </message>
    <message>
        <source>Cannot be used: %1</source>
        <translation>Não pode ser usado: %1</translation>
    </message>
    <message>
        <source>Simulation stopped</source>
        <translation>Simulação parada</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Não conectado</translation>
    </message>
    <message>
        <source>Not connected: %1</source>
        <translation>Não conectado: %1</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Conectando…</translation>
    </message>
    <message>
        <source>Reading the model (%1 %)…</source>
        <translation>Lendo o modelo (%1 %)…</translation>
    </message>
    <message>
        <source>Reading the model…</source>
        <translation>Lendo o modelo…</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Conectado</translation>
    </message>
    <message>
        <source>Trying again: %1</source>
        <translation>Nova tentativa: %1</translation>
    </message>
    <message>
        <source>Simulated demonstration</source>
        <translation>Demonstração simulada</translation>
    </message>
    <message>
        <source>Simulated: %1</source>
        <translation>Simulado: %1</translation>
    </message>
    <message>
        <source>Reached at %1, port %2</source>
        <translation>Acessível em %1, porta %2</translation>
    </message>
    <message>
        <source>Since %1</source>
        <translation>Desde %1</translation>
    </message>
    <message>
        <source>Objects that the device did not describe: %1</source>
        <translation>Objetos que o dispositivo não descreveu: %1</translation>
    </message>
    <message>
        <source>Vendor: %1
Model: %2
Revision: %3</source>
        <translation>Fabricante: %1
Modelo: %2
Revisão: %3</translation>
    </message>
    <message>
        <source>Time from a request to its answer, measured last</source>
        <translation>Tempo entre uma requisição e a resposta, última medição</translation>
    </message>
    <message>
        <source>PDUs sent: %1
PDUs received: %2
Reports: %3
Published values: %4
Connections: %5</source>
        <translation>PDUs enviadas: %1
PDUs recebidas: %2
Relatórios: %3
Valores publicados: %4
Conexões: %5</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Origem</translation>
    </message>
    <message>
        <source>Identity</source>
        <translation>Identidade</translation>
    </message>
    <message>
        <source>Round trip</source>
        <translation>Ida e volta</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>Relatórios</translation>
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
        <translation>Conectado, valores desatualizados: %1</translation>
    </message>
    <message>
        <source>Away since %1</source>
        <translation>Sem conexão desde %1</translation>
    </message>
    <message>
        <source>Values that are not current: %1, the oldest of %2</source>
        <translation>Valores desatualizados: %1, o mais antigo de %2</translation>
    </message>
    <message>
        <source>Values that the device denies: %1</source>
        <translation>Valores que o dispositivo recusa: %1</translation>
    </message>
</context>
<context>
    <name>DeviceStore</name>
    <message>
        <source>The list of devices in &quot;%1&quot; cannot be read completely.</source>
        <translation>A lista de dispositivos em “%1” não pode ser lida por completo.</translation>
    </message>
    <message>
        <source>The list of devices cannot be saved in &quot;%1&quot; and will be as before at the next start.</source>
        <translation>A lista de dispositivos não pode ser salva em “%1” e estará como antes na próxima inicialização.</translation>
    </message>
</context>
<context>
    <name>EmbeddedDriver</name>
    <message>
        <source>The IED &quot;%1&quot; has no logical devices, so there is nothing to browse.</source>
        <translation>O IED “%1” não tem dispositivos lógicos, portanto não há nada a explorar.</translation>
    </message>
</context>
<context>
    <name>ExtensionLoader</name>
    <message>
        <source>Replace the file by the one that was built together with this workbench.</source>
        <translation>Substitua o arquivo pelo que foi compilado junto com esta bancada.</translation>
    </message>
    <message>
        <source>The plug-in folder does not exist.</source>
        <translation>A pasta do plug-in não existe.</translation>
    </message>
    <message>
        <source>Install the plug-in there, or start the workbench with --plugin-dir and the folder that holds it.</source>
        <translation>Instale o plug-in nessa pasta ou inicie a bancada com --plugin-dir e a pasta que o contém.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>O arquivo não existe.</translation>
    </message>
    <message>
        <source>Put the plug-in there, or start the workbench with --plugin-dir and the folder that holds it.</source>
        <translation>Coloque o plug-in nessa pasta ou inicie a bancada com --plugin-dir e a pasta que o contém.</translation>
    </message>
    <message>
        <source>The file is not a plug-in that this Qt can load: %1</source>
        <translation>O arquivo não é um plug-in que este Qt possa carregar: %1</translation>
    </message>
    <message>
        <source>The plug-in is of another kind: it offers &quot;%1&quot; where &quot;%2&quot; is needed.</source>
        <translation>O plug-in é de outro tipo: oferece “%1” onde é necessário “%2”.</translation>
    </message>
    <message>
        <source>The plug-in does not carry the key &quot;%1&quot;.</source>
        <translation>O plug-in não traz a chave “%1”.</translation>
    </message>
    <message>
        <source>The plug-in cannot be loaded: %1</source>
        <translation>O plug-in não pode ser carregado: %1</translation>
    </message>
    <message>
        <source>Make sure that the libraries it needs are installed and belong to the same version.</source>
        <translation>Verifique se as bibliotecas necessárias estão instaladas e são da mesma versão.</translation>
    </message>
    <message>
        <source>The plug-in&apos;s object does not have the promised interface.</source>
        <translation>O objeto do plug-in não tem a interface prometida.</translation>
    </message>
    <message>
        <source>The plug-in does not serve IEC 61850 (protocol %1).</source>
        <translation>O plug-in não atende IEC 61850 (protocolo %1).</translation>
    </message>
    <message>
        <source>The plug-in says that it is not available.</source>
        <translation>O plug-in informa que não está disponível.</translation>
    </message>
    <message>
        <source>Try again later, or ask whoever supplied the plug-in.</source>
        <translation>Tente mais tarde ou consulte quem forneceu o plug-in.</translation>
    </message>
    <message>
        <source>The plug-in offers no action.</source>
        <translation>O plug-in não oferece nenhuma ação.</translation>
    </message>
</context>
<context>
    <name>FindingsModel</name>
    <message>
        <source>1 error</source>
        <translation>1 erro</translation>
    </message>
    <message>
        <source>%1 errors</source>
        <translation>%1 erros</translation>
    </message>
    <message>
        <source>1 warning</source>
        <translation>1 aviso</translation>
    </message>
    <message>
        <source>%1 warnings</source>
        <translation>%1 avisos</translation>
    </message>
    <message>
        <source>1 note</source>
        <translation>1 observação</translation>
    </message>
    <message>
        <source>%1 notes</source>
        <translation>%1 observações</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Observação</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>Gravidade</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linha</translation>
    </message>
    <message>
        <source>Element</source>
        <translation>Elemento</translation>
    </message>
    <message>
        <source>Finding</source>
        <translation>Constatação</translation>
    </message>
</context>
<context>
    <name>GuideViewer</name>
    <message>
        <source>Operator Guide</source>
        <translation>Guia do operador</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Find in the guide</source>
        <translation>Localizar no guia</translation>
    </message>
</context>
<context>
    <name>IedChooser</name>
    <message>
        <source>Choose the IED</source>
        <translation>Escolher o IED</translation>
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
        <translation>Descrição</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds %2 IEDs. Which of them do you want to open?</source>
        <translation>“%1” contém %2 IEDs. Quais deles deseja abrir?</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nenhum</translation>
    </message>
    <message>
        <source>This IED has no logical devices, so there is nothing to browse.</source>
        <translation>Este IED não tem dispositivos lógicos, portanto não há nada a explorar.</translation>
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
        <translation>%1; e mais %2</translation>
    </message>
    <message>
        <source>Aborted by the operator.</source>
        <translation>Interrompido pelo operador.</translation>
    </message>
    <message>
        <source>The operation was cancelled.</source>
        <translation>A operação foi cancelada.</translation>
    </message>
    <message>
        <source>%1 has not finished the operation within %2 seconds.</source>
        <translation>%1 não concluiu a operação em %2 segundos.</translation>
    </message>
    <message>
        <source>%1 is not connected.</source>
        <translation>%1 não está conectado.</translation>
    </message>
    <message>
        <source>%1 is not connected: %2.</source>
        <translation>%1 não está conectado: %2.</translation>
    </message>
    <message>
        <source>The model of %1 is being read: %2 of %3.</source>
        <translation>O modelo está sendo lido: %1, %2 de %3.</translation>
    </message>
    <message>
        <source>The device has not answered for %1 seconds.</source>
        <translation>O dispositivo não responde há %1 segundos.</translation>
    </message>
    <message>
        <source>The SCL file is not used: %1</source>
        <translation>O arquivo SCL não é usado: %1</translation>
    </message>
    <message>
        <source>Reading the model was cancelled.</source>
        <translation>A leitura do modelo foi cancelada.</translation>
    </message>
    <message>
        <source>the value does not have the form of its type</source>
        <translation>o valor não tem a forma do seu tipo</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no kind of report control block.</source>
        <translation>“%1” não é um tipo de bloco de controle de relatório.</translation>
    </message>
    <message>
        <source>A data set needs at least one member.</source>
        <translation>Um conjunto de dados precisa de pelo menos um membro.</translation>
    </message>
    <message>
        <source>There is no reference to be listed.</source>
        <translation>Não há referência a listar.</translation>
    </message>
    <message>
        <source>Not connected to the device</source>
        <translation>Sem conexão com o dispositivo</translation>
    </message>
    <message>
        <source>There is no device %1 on this driver.</source>
        <translation>Não há dispositivo %1 neste driver.</translation>
    </message>
    <message>
        <source>The driver is read-only: nothing on %1 was changed.</source>
        <translation>O driver está em modo somente leitura: nada foi alterado em %1.</translation>
    </message>
    <message>
        <source>Device %1</source>
        <translation>Dispositivo %1</translation>
    </message>
    <message>
        <source>Its logical device &quot;%1&quot; is online already as part of %2; live values could not be told apart.</source>
        <translation>O seu dispositivo lógico “%1” já está online como parte de %2; os valores ao vivo não poderiam ser distinguidos.</translation>
    </message>
    <message>
        <source>The capture cannot be written: %1</source>
        <translation>A captura não pode ser gravada: %1</translation>
    </message>
    <message>
        <source>The values cannot be written: %1</source>
        <translation>Os valores não podem ser gravados: %1</translation>
    </message>
    <message>
        <source>The device has no address.</source>
        <translation>O dispositivo não tem endereço.</translation>
    </message>
    <message>
        <source>There is nothing to read.</source>
        <translation>Não há nada a ler.</translation>
    </message>
    <message>
        <source>The data set has %1 members, but %2 values came.</source>
        <translation>O conjunto de dados tem %1 membros, mas chegaram %2 valores.</translation>
    </message>
    <message>
        <source>%1: the value does not have the form of its type</source>
        <translation>%1: o valor não tem a forma do seu tipo</translation>
    </message>
    <message>
        <source>The device has no %1.</source>
        <translation>O dispositivo não tem %1.</translation>
    </message>
    <message>
        <source>The value to be written cannot be read.</source>
        <translation>O valor a escrever não pode ser lido.</translation>
    </message>
    <message>
        <source>Select the object first</source>
        <translation>Selecione primeiro o objeto</translation>
    </message>
    <message>
        <source>%1 has the control model %2, but the command was made for %3: read the model of the device again.</source>
        <translation>%1 tem o modelo de controle %2, mas o comando foi feito para %3: leia novamente o modelo do dispositivo.</translation>
    </message>
    <message>
        <source>The command is not the one that was selected.</source>
        <translation>O comando não é o que foi selecionado.</translation>
    </message>
    <message>
        <source>The control request cannot be read.</source>
        <translation>A requisição de comando não pode ser lida.</translation>
    </message>
    <message>
        <source>The control request is for %1, not for %2.</source>
        <translation>A requisição de comando é para %1, não para %2.</translation>
    </message>
    <message>
        <source>The control value is no finite number.</source>
        <translation>O valor de comando não é um número finito.</translation>
    </message>
    <message>
        <source>%1 is no code of the check conditions.</source>
        <translation>%1 não é um código das condições de verificação.</translation>
    </message>
    <message>
        <source>The test flag is 0 or 1, not %1.</source>
        <translation>O indicador de teste é 0 ou 1, não %1.</translation>
    </message>
    <message>
        <source>interlock check</source>
        <translation>verificação de intertravamento</translation>
    </message>
    <message>
        <source>synchrocheck</source>
        <translation>verificação de sincronismo</translation>
    </message>
    <message>
        <source>test</source>
        <translation>teste</translation>
    </message>
    <message>
        <source>The driver has not waited for the end of the operation.</source>
        <translation>O driver não esperou o fim da operação.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not name a report control block.</source>
        <translation>“%1” não designa um bloco de controle de relatório.</translation>
    </message>
    <message>
        <source>The attribute &quot;%1&quot; of a report control block cannot be written.</source>
        <translation>O atributo “%1” de um bloco de controle de relatório não pode ser escrito.</translation>
    </message>
    <message>
        <source>The value for %1 has %2 bytes instead of %3.</source>
        <translation>O valor para %1 tem %2 bytes em vez de %3.</translation>
    </message>
    <message>
        <source>%1 cannot be negative.</source>
        <translation>%1 não pode ser negativo.</translation>
    </message>
    <message>
        <source>Buffer time and integrity period cannot be negative.</source>
        <translation>O tempo de buffer e o período de integridade não podem ser negativos.</translation>
    </message>
    <message>
        <source>enabled again after the association was lost</source>
        <translation>habilitar novamente após a perda da associação</translation>
    </message>
    <message>
        <source>The report control block %1 has no data set.</source>
        <translation>O bloco de controle de relatório %1 não tem conjunto de dados.</translation>
    </message>
    <message>
        <source>The device has not enabled %1 although it said so.</source>
        <translation>O dispositivo não habilitou %1, embora o tenha confirmado.</translation>
    </message>
    <message>
        <source>disabled</source>
        <translation>desabilitado</translation>
    </message>
    <message>
        <source>the driver is read-only.</source>
        <translation>o driver está em modo somente leitura.</translation>
    </message>
    <message>
        <source>The report control block %1 could not be %2: %3</source>
        <translation>Bloco de controle de relatório %1: não foi possível %2: %3</translation>
    </message>
    <message>
        <source>The device has disabled %1 by itself.</source>
        <translation>O dispositivo desabilitou %1 por conta própria.</translation>
    </message>
    <message>
        <source>enabled again</source>
        <translation>habilitar novamente</translation>
    </message>
    <message>
        <source>A report of the device could not be read: %1</source>
        <translation>Não foi possível ler um relatório do dispositivo: %1</translation>
    </message>
    <message>
        <source>The reports of %1 have no value for %2: %3.</source>
        <translation>Os relatórios de %1 não têm valor para %2: %3.</translation>
    </message>
    <message>
        <source>A value of %1 in the reports of %2 does not have the form of its type.</source>
        <translation>Um valor de %1 nos relatórios de %2 não tem a forma do seu tipo.</translation>
    </message>
    <message>
        <source>The buffer of %1 has overflown: older changes are lost.</source>
        <translation>O buffer de %1 estourou: as mudanças mais antigas foram perdidas.</translation>
    </message>
    <message>
        <source>enabled</source>
        <translation>habilitado</translation>
    </message>
    <message>
        <source>The member %1 of the data set of %2 is no data of the device&apos;s model.</source>
        <translation>O membro %1 do conjunto de dados de %2 não é um dado do modelo do dispositivo.</translation>
    </message>
    <message>
        <source>%1 is busy with another file: %2.</source>
        <translation>%1 está ocupado com outro arquivo: %2.</translation>
    </message>
    <message>
        <source>listing &quot;%1&quot;</source>
        <translation>listando “%1”</translation>
    </message>
    <message>
        <source>fetching &quot;%1&quot;</source>
        <translation>baixando “%1”</translation>
    </message>
    <message>
        <source>%1 is too large: at most %2 octets can be fetched.</source>
        <translation>%1 é grande demais: no máximo %2 octetos podem ser baixados.</translation>
    </message>
    <message>
        <source>deleting &quot;%1&quot;</source>
        <translation>excluindo “%1”</translation>
    </message>
    <message>
        <source>There is no name of a file.</source>
        <translation>Não há nome de arquivo.</translation>
    </message>
    <message>
        <source>There is no file to send.</source>
        <translation>Não há arquivo a enviar.</translation>
    </message>
    <message>
        <source>There is no file &quot;%1&quot; on this computer.</source>
        <translation>Não há arquivo “%1” neste computador.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: %2.</source>
        <translation>“%1” não pode ser lido: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large for a file of a device.</source>
        <translation>“%1” é grande demais para um arquivo de um dispositivo.</translation>
    </message>
    <message>
        <source>sending &quot;%1&quot;</source>
        <translation>enviando “%1”</translation>
    </message>
    <message>
        <source>%1 (%2 octets)</source>
        <translation>%1 (%2 octetos)</translation>
    </message>
    <message>
        <source>The device has no logical device &quot;%1&quot;.</source>
        <translation>O dispositivo não tem o dispositivo lógico “%1”.</translation>
    </message>
    <message>
        <source>%1 has no setting group control block.</source>
        <translation>%1 não tem bloco de controle de grupos de ajustes.</translation>
    </message>
    <message>
        <source>%1 has more setting groups than can be counted: %2.</source>
        <translation>%1 tem mais grupos de ajustes do que se pode contar: %2.</translation>
    </message>
    <message>
        <source>No setting group of %1 is being edited: select the group to edit first.</source>
        <translation>Nenhum grupo de ajustes de %1 está em edição: selecione primeiro o grupo em edição.</translation>
    </message>
    <message>
        <source>Settings are read under SG or SE, not under &quot;%1&quot;.</source>
        <translation>Os ajustes são lidos sob SG ou SE, não sob “%1”.</translation>
    </message>
    <message>
        <source>%1 has no setting %2.</source>
        <translation>%1 não tem o ajuste %2.</translation>
    </message>
    <message>
        <source>%1. The changes are not confirmed.</source>
        <translation>%1. As alterações não foram confirmadas.</translation>
    </message>
    <message>
        <source>%1 has the setting groups 1 to %2; there is no group %3.</source>
        <translation>%1 tem os grupos de ajustes 1 a %2; não há grupo %3.</translation>
    </message>
    <message>
        <source>Another window has selected the object since: select it here first.</source>
        <translation>Outra janela selecionou o objeto nesse meio-tempo: selecione-o primeiro aqui.</translation>
    </message>
    <message>
        <source>The object was selected for different commands; which one is meant is not known: cancel the selection and select it again.</source>
        <translation>O objeto foi selecionado para comandos diferentes; não se sabe qual deles se pretende: cancele a seleção e selecione-o novamente.</translation>
    </message>
    <message>
        <source>%1 is no originator category; they go from 0 to 8.</source>
        <translation>%1 não é uma categoria do originador; elas vão de 0 a 8.</translation>
    </message>
    <message>
        <source>category %1</source>
        <translation>categoria %1</translation>
    </message>
    <message>
        <source>It is not known whether the object was selected.</source>
        <translation>Não se sabe se o objeto foi selecionado.</translation>
    </message>
    <message>
        <source>It is not known whether the command was carried out; look at the position.</source>
        <translation>Não se sabe se o comando foi executado; verifique a posição.</translation>
    </message>
    <message>
        <source>It is not known whether the command was cancelled; look at the position.</source>
        <translation>Não se sabe se o comando foi cancelado; verifique a posição.</translation>
    </message>
    <message>
        <source>%1 (told late)</source>
        <translation>%1 (informado com atraso)</translation>
    </message>
    <message>
        <source>%1: the command that was not answered in time was carried out.</source>
        <translation>%1: o comando que não foi respondido a tempo foi executado.</translation>
    </message>
    <message>
        <source>An internal error of the driver ended the association.</source>
        <translation>Um erro interno do driver encerrou a associação.</translation>
    </message>
    <message>
        <source>An internal error of the driver ended the association: %1.</source>
        <translation>Um erro interno do driver encerrou a associação: %1.</translation>
    </message>
    <message>
        <source>The device has not answered earlier requests; the question whether it is there waits for a place behind them.</source>
        <translation>O dispositivo não respondeu a pedidos anteriores; a pergunta se ele está presente espera um lugar atrás deles.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has %2 characters; the name of a data set has at most %3.</source>
        <translation>&quot;%1&quot; tem %2 caracteres; o nome de um conjunto de dados tem no máximo %3.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names no functional constraint, which each member of a data set needs.</source>
        <translation>&quot;%1&quot; não nomeia uma restrição funcional, de que cada membro de um conjunto de dados precisa.</translation>
    </message>
    <message>
        <source>This is not the device that the window was opened for: open it again.</source>
        <translation>Este não é o dispositivo para o qual a janela foi aberta: abra-a novamente.</translation>
    </message>
    <message>
        <source>The IED %1 of the file has no access point &quot;%2&quot; with a server.</source>
        <translation>O IED %1 do arquivo não tem ponto de acesso “%2” com um servidor.</translation>
    </message>
    <message>
        <source>The device has none of the logical devices that the file describes for %1, such as %2.</source>
        <translation>O dispositivo não tem nenhum dos dispositivos lógicos que o arquivo descreve para %1, como %2.</translation>
    </message>
    <message>
        <source>%1 stays open on the device, which has few open files: %2</source>
        <translation>%1 continua aberto no dispositivo, que admite poucos arquivos abertos: %2</translation>
    </message>
    <message>
        <source>%1 comes too slowly: %2 octets so far, less than %3 in a second.</source>
        <translation>%1 chega devagar demais: %2 octetos até agora, menos de %3 por segundo.</translation>
    </message>
    <message>
        <source>%1 events of the device were dropped, because they were not taken in time.</source>
        <translation>Eventos do dispositivo descartados: %1, porque não foram retirados a tempo.</translation>
    </message>
    <message>
        <source>The configuration of the device reserves %1; that cannot be changed.</source>
        <translation>A configuração do dispositivo reserva %1; isso não pode ser alterado.</translation>
    </message>
    <message>
        <source>%1 was not enabled in time.</source>
        <translation>%1 não foi habilitado a tempo.</translation>
    </message>
    <message>
        <source>%1 It was left alone.</source>
        <translation>%1 Ele foi deixado como estava.</translation>
    </message>
    <message>
        <source>without sequence numbers lost reports cannot be noticed</source>
        <translation>sem números de sequência não é possível notar relatórios perdidos</translation>
    </message>
    <message>
        <source>%1 could not be enabled, and this was left behind as it was written: %2.</source>
        <translation>Não foi possível habilitar %1, e isto ficou como foi escrito: %2.</translation>
    </message>
    <message>
        <source>no longer waited for</source>
        <translation>não é mais aguardado</translation>
    </message>
    <message>
        <source>member %1</source>
        <translation>membro %1</translation>
    </message>
    <message>
        <source>Reports of %1 are missing; its data set is read whole.</source>
        <translation>Faltam relatórios de %1; o seu conjunto de dados é lido inteiro.</translation>
    </message>
    <message>
        <source>Parts of a report of %1 are missing; its data set is read whole.</source>
        <translation>Faltam partes de um relatório de %1; o seu conjunto de dados é lido inteiro.</translation>
    </message>
    <message>
        <source>The device does not know the last entry of %1 any more: changes since then may be lost, or come again.</source>
        <translation>O dispositivo não conhece mais a última entrada de %1: as mudanças desde então podem estar perdidas ou chegar novamente.</translation>
    </message>
    <message>
        <source>A report of %1 is of another data set than the block had when it was enabled.</source>
        <translation>Um relatório de %1 é de um conjunto de dados diferente do que o bloco tinha quando foi habilitado.</translation>
    </message>
    <message>
        <source>A report of the device may be of %1 or of another block with other data; it was not taken.</source>
        <translation>Um relatório do dispositivo pode ser de %1 ou de outro bloco com outros dados; ele não foi aceito.</translation>
    </message>
    <message>
        <source>The device described %1 in parts only, so what the reports of %2 say of it cannot be understood; it is polled.</source>
        <translation>O dispositivo descreveu %1 apenas em parte, por isso não é possível compreender o que os relatórios de %2 dizem a respeito; a leitura é feita por varredura.</translation>
    </message>
    <message>
        <source>The data set of %1 cannot be read: %2</source>
        <translation>O conjunto de dados de %1 não pode ser lido: %2</translation>
    </message>
    <message>
        <source>The data set of %1 has %2 members instead of %3.</source>
        <translation>O conjunto de dados de %1 tem %2 membros em vez de %3.</translation>
    </message>
    <message>
        <source>The data set of %1 has no value for %2: %3.</source>
        <translation>O conjunto de dados de %1 não tem valor para %2: %3.</translation>
    </message>
    <message>
        <source>A value of %1 in the data set of %2 does not have the form of its type.</source>
        <translation>Um valor de %1 no conjunto de dados de %2 não tem a forma do seu tipo.</translation>
    </message>
    <message>
        <source>%1 is enabled by another client, which the device does not name.</source>
        <translation>%1 está habilitado por outro cliente, que o dispositivo não identifica.</translation>
    </message>
    <message>
        <source>%1 is reserved by another client, which the device does not name.</source>
        <translation>%1 está reservado por outro cliente, que o dispositivo não identifica.</translation>
    </message>
    <message>
        <source>%1 is enabled by the client %2.</source>
        <translation>%1 está habilitado pelo cliente %2.</translation>
    </message>
    <message>
        <source>%1 is reserved by the client %2.</source>
        <translation>%1 está reservado pelo cliente %2.</translation>
    </message>
    <message>
        <source>%1 is enabled by another association of this computer (%2).</source>
        <translation>%1 está habilitado por outra associação deste computador (%2).</translation>
    </message>
    <message>
        <source>%1 is reserved by another association of this computer (%2).</source>
        <translation>%1 está reservado por outra associação deste computador (%2).</translation>
    </message>
    <message>
        <source>Another client is editing group %1 of %2.</source>
        <translation>Outro cliente está editando o grupo %1 de %2.</translation>
    </message>
    <message>
        <source>Group %1 of %2 was chosen for editing in another window: select the group to edit first.</source>
        <translation>O grupo %1 de %2 foi escolhido para edição em outra janela: selecione primeiro o grupo em edição.</translation>
    </message>
    <message>
        <source>The device has given up the edit of group %1 of %2: select the group to edit again.</source>
        <translation>O dispositivo abandonou a edição do grupo %1 de %2: selecione novamente o grupo em edição.</translation>
    </message>
    <message>
        <source>%1 has no settings that can be edited: the device describes none under SE.</source>
        <translation>%1 não tem ajustes que possam ser editados: o dispositivo não descreve nenhum sob SE.</translation>
    </message>
    <message>
        <source>%1 It is not known whether the changes of group %2 were taken over: select the group and look.</source>
        <translation>%1 Não se sabe se as alterações do grupo %2 foram assumidas: selecione o grupo e verifique.</translation>
    </message>
    <message>
        <source>These are the settings of the active group; choose the group to edit first.</source>
        <translation>Estes são os ajustes do grupo ativo; escolha primeiro o grupo em edição.</translation>
    </message>
    <message>
        <source>%1 has accepted group %2, but group %3 is still the active one.</source>
        <translation>%1 aceitou o grupo %2, mas o grupo %3 ainda é o ativo.</translation>
    </message>
    <message>
        <source>%1 Group %2 is the active one.</source>
        <translation>%1 O grupo %2 é o ativo.</translation>
    </message>
    <message>
        <source>%1 It is not known whether group %2 became active: look at the active group.</source>
        <translation>%1 Não se sabe se o grupo %2 se tornou ativo: verifique o grupo ativo.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1 It is not known whether the device is editing group %2: select the group to edit again.</source>
        <translation>%1 Não se sabe se o dispositivo está editando o grupo %2: selecione novamente o grupo em edição.</translation>
    </message>
    <message>
        <source>%1; it is not known whether the setting was written.</source>
        <translation>%1; não se sabe se o ajuste foi escrito.</translation>
    </message>
    <message>
        <source>Values that are not current since %1: %2. The device does not answer when it is asked for %3.</source>
        <translation>Valores não atuais desde %1: %2. O dispositivo não responde quando lhe é pedido %3.</translation>
    </message>
    <message>
        <source>Values that are not current since %1: %2. The device cannot give %3 for the moment.</source>
        <translation>Valores não atuais desde %1: %2. O dispositivo não pode dar %3 no momento.</translation>
    </message>
    <message>
        <source>Values that the device refuses and that are not asked for again: %1 (%2).</source>
        <translation>Valores que o dispositivo recusa e que não são pedidos de novo: %1 (%2).</translation>
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
        <translation>Falha (%1)</translation>
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
        <translation>Operação</translation>
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
        <translation>Duração</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>IEC 61850 Workbench</source>
        <translation>Bancada IEC 61850</translation>
    </message>
    <message>
        <source>T&amp;ry Again</source>
        <translation>&amp;Tentar novamente</translation>
    </message>
    <message>
        <source>&amp;Open SCL File…</source>
        <translation>A&amp;brir arquivo SCL…</translation>
    </message>
    <message>
        <source>Open De&amp;monstration Device</source>
        <translation>Abrir o dispositivo de de&amp;monstração</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Arquivo</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>&amp;Dispositivo</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Ferramentas</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Exibir</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aj&amp;uda</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Barra de ferramentas</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Constatações</translation>
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
        <translation>Abrir o dispositivo de &amp;demonstração</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Sair</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>Read Model &amp;Again</source>
        <translation>Ler o modelo &amp;novamente</translation>
    </message>
    <message>
        <source>F5</source>
        <translation>F5</translation>
    </message>
    <message>
        <source>&amp;Remove from List</source>
        <translation>&amp;Remover da lista</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Del</translation>
    </message>
    <message>
        <source>&amp;Clear Journal</source>
        <translation>&amp;Limpar o registro</translation>
    </message>
    <message>
        <source>&amp;Operator Guide</source>
        <translation>&amp;Guia do operador</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Sobre</translation>
    </message>
    <message>
        <source>Loading was cancelled.</source>
        <translation>O carregamento foi cancelado.</translation>
    </message>
    <message>
        <source>No call to the driver yet. Every request that a tool makes is listed here.</source>
        <translation>Ainda não houve chamada ao driver. Cada requisição de uma ferramenta é listada aqui.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Reading %1 (%2 files left)</source>
        <translation>Lendo %1 (restam %2 arquivos)</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>Lendo %1</translation>
    </message>
    <message>
        <source>The IEC 61850 tools are not available.
%1
%2 %3</source>
        <translation>As ferramentas IEC 61850 não estão disponíveis.
%1
%2 %3</translation>
    </message>
    <message>
        <source>Select a device to see what was noticed while its file was read.</source>
        <translation>Selecione um dispositivo para ver o que foi notado na leitura do seu arquivo.</translation>
    </message>
    <message>
        <source>Findings: %1</source>
        <translation>Constatações: %1</translation>
    </message>
    <message>
        <source>Findings: %1 (%2)</source>
        <translation>Constatações: %1 (%2)</translation>
    </message>
    <message>
        <source>No findings: everything in the file of this device was understood.</source>
        <translation>Nenhuma constatação: tudo no arquivo deste dispositivo foi compreendido.</translation>
    </message>
    <message>
        <source>The model cannot be read. %1
Read it again with %2, or remove the device from the list.</source>
        <translation>O modelo não pode ser lido. %1
Leia-o novamente com %2 ou remova o dispositivo da lista.</translation>
    </message>
    <message>
        <source>Open SCL File</source>
        <translation>Abrir arquivo SCL</translation>
    </message>
    <message>
        <source>SCL files (*.icd *.cid *.iid *.scd *.sed *.ssd *.ICD *.CID *.IID *.SCD *.SED *.SSD *.xml)</source>
        <translation>Arquivos SCL (*.icd *.cid *.iid *.scd *.sed *.ssd *.ICD *.CID *.IID *.SCD *.SED *.SSD *.xml)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos os arquivos (*)</translation>
    </message>
    <message>
        <source>Further files that cannot be used: %1</source>
        <translation>Outros arquivos que não podem ser usados: %1</translation>
    </message>
    <message>
        <source>%1 was taken off the list; its file stays where it is.</source>
        <translation>%1 foi removido da lista; o arquivo permanece onde está.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Sobre</translation>
    </message>
    <message>
        <source>IEC 61850 Workbench %1

A small host for the IEC 61850 tools: it lists devices, loads the plug-in and shows every request that its tools make.

Apache License 2.0</source>
        <translation>Bancada IEC 61850 %1

Um pequeno hospedeiro para as ferramentas IEC 61850: lista os dispositivos, carrega o plug-in e mostra cada requisição das suas ferramentas.

Apache License 2.0</translation>
    </message>
    <message>
        <source>No device yet: add one, or open an SCL file</source>
        <translation>Ainda não há dispositivo: adicione um ou abra um arquivo SCL</translation>
    </message>
    <message>
        <source>&amp;Add Device…</source>
        <translation>Adi&amp;cionar dispositivo…</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Alterações</translation>
    </message>
    <message>
        <source>Add a device from an SCL file, without a connection</source>
        <translation>Adicionar um dispositivo a partir de um arquivo SCL, sem conexão</translation>
    </message>
    <message>
        <source>&amp;Start Simulated Device…</source>
        <translation>Iniciar dispositivo si&amp;mulado…</translation>
    </message>
    <message>
        <source>Simulate a device of an SCL file and connect to it</source>
        <translation>Simular um dispositivo de um arquivo SCL e conectar-se a ele</translation>
    </message>
    <message>
        <source>Add &amp;Device…</source>
        <translation>&amp;Adicionar dispositivo…</translation>
    </message>
    <message>
        <source>Add Device</source>
        <translation>Adicionar dispositivo</translation>
    </message>
    <message>
        <source>Add a device that is reached over the network</source>
        <translation>Adicionar um dispositivo acessível pela rede</translation>
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
        <translation>Conectar ao dispositivo selecionado, agora e na próxima inicialização</translation>
    </message>
    <message>
        <source>Leave the selected device, until it is connected again</source>
        <translation>Deixar o dispositivo selecionado até ser conectado novamente</translation>
    </message>
    <message>
        <source>&amp;Start Simulation</source>
        <translation>&amp;Iniciar a simulação</translation>
    </message>
    <message>
        <source>S&amp;top Simulation</source>
        <translation>&amp;Parar a simulação</translation>
    </message>
    <message>
        <source>End the simulated device, as if it had lost its power</source>
        <translation>Encerrar o dispositivo simulado, como se tivesse perdido a alimentação</translation>
    </message>
    <message>
        <source>&amp;PDU Trace…</source>
        <translation>Rastreamento de PD&amp;Us…</translation>
    </message>
    <message>
        <source>Show what is exchanged with the selected device</source>
        <translation>Mostrar o que é trocado com o dispositivo selecionado</translation>
    </message>
    <message>
        <source>Sa&amp;ve Capture…</source>
        <translation>Sal&amp;var captura…</translation>
    </message>
    <message>
        <source>Save what was exchanged with the selected device for a protocol analyser</source>
        <translation>Salvar o que foi trocado com o dispositivo selecionado para um analisador de protocolo</translation>
    </message>
    <message>
        <source>E&amp;xport Values…</source>
        <translation>E&amp;xportar valores…</translation>
    </message>
    <message>
        <source>Save the values of the selected device as a table</source>
        <translation>Salvar os valores do dispositivo selecionado como tabela</translation>
    </message>
    <message>
        <source>Refuse everything that changes something on a device</source>
        <translation>Recusar tudo o que altere algo em um dispositivo</translation>
    </message>
    <message>
        <source>Open &amp;Folder of the Change Journal</source>
        <translation>Abrir a &amp;pasta do registro de alterações</translation>
    </message>
    <message>
        <source>Nothing was changed on a device yet. Every write, command and transfer is listed here%1.</source>
        <translation>Nada foi alterado em um dispositivo ainda. Cada escrita, comando e transferência é listada aqui%1.</translation>
    </message>
    <message>
        <source> and kept in
%1</source>
        <translation> e guardada em
%1</translation>
    </message>
    <message>
        <source>Read-only: nothing is changed on devices</source>
        <translation>Somente leitura: nada é alterado nos dispositivos</translation>
    </message>
    <message>
        <source>Reading the model of %1</source>
        <translation>Lendo o modelo de %1</translation>
    </message>
    <message>
        <source>This device has no SCL file; its model is read from the device itself.</source>
        <translation>Este dispositivo não tem arquivo SCL; o seu modelo é lido do próprio dispositivo.</translation>
    </message>
    <message>
        <source>Start Simulated Device</source>
        <translation>Iniciar dispositivo simulado</translation>
    </message>
    <message>
        <source>%1 was taken off the list.</source>
        <translation>%1 foi removido da lista.</translation>
    </message>
    <message>
        <source>Disco&amp;nnect</source>
        <translation>&amp;Desconectar</translation>
    </message>
    <message>
        <source>Read-On&amp;ly</source>
        <translation>&amp;Somente leitura</translation>
    </message>
    <message>
        <source>Save Capture</source>
        <translation>Salvar captura</translation>
    </message>
    <message>
        <source>Captures (*.pcapng)</source>
        <translation>Capturas (*.pcapng)</translation>
    </message>
    <message>
        <source>Export Values</source>
        <translation>Exportar valores</translation>
    </message>
    <message>
        <source>Tables (*.csv)</source>
        <translation>Tabelas (*.csv)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2</source>
        <translation>“%1” não pode ser gravado: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was written.</source>
        <translation>“%1” foi gravado.</translation>
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
        <translation>Somente leitura</translation>
    </message>
    <message>
        <source>The SCL file of this device was only compared with the device. Open it as an SCL file to see its findings.</source>
        <translation>O arquivo SCL deste dispositivo foi apenas comparado com o dispositivo. Abra-o como arquivo SCL para ver as suas constatações.</translation>
    </message>
    <message>
        <source>Con&amp;firm</source>
        <translation>Con&amp;firmar</translation>
    </message>
    <message>
        <source>&amp;Commands before they are sent</source>
        <translation>&amp;Comandos antes do envio</translation>
    </message>
    <message>
        <source>&amp;Everything that changes a device</source>
        <translation>&amp;Tudo o que altera um dispositivo</translation>
    </message>
    <message>
        <source>&amp;Nothing</source>
        <translation>&amp;Nada</translation>
    </message>
    <message>
        <source>%1 is away since %2</source>
        <translation>%1 está sem conexão desde %2</translation>
    </message>
    <message>
        <source>Devices away: %1, the first since %2</source>
        <translation>Dispositivos sem conexão: %1, o primeiro desde %2</translation>
    </message>
</context>
<context>
    <name>OfflineDriverService</name>
    <message>
        <source>Not connected to the device</source>
        <translation>Sem conexão com o dispositivo</translation>
    </message>
    <message>
        <source>There is no device %1 on this driver.</source>
        <translation>Não há dispositivo %1 neste driver.</translation>
    </message>
</context>
<context>
    <name>SclImport</name>
    <message>
        <source>The file &quot;%1&quot; cannot be opened: %2.</source>
        <translation>O arquivo “%1” não pode ser aberto: %2.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Linha %1: %2</translation>
    </message>
    <message>
        <source>The file describes no IED.</source>
        <translation>O arquivo não descreve nenhum IED.</translation>
    </message>
    <message>
        <source>There is no IED &quot;%1&quot; in the file.</source>
        <translation>Não há IED “%1” no arquivo.</translation>
    </message>
    <message>
        <source>The file describes several IEDs; one must be chosen.</source>
        <translation>O arquivo descreve vários IEDs; é preciso escolher um.</translation>
    </message>
</context>
<context>
    <name>SimulatedDevice</name>
    <message>
        <source>The files of the simulated device cannot be written to &quot;%1&quot;.</source>
        <translation>Os arquivos do dispositivo simulado não podem ser gravados em “%1”.</translation>
    </message>
    <message>
        <source>The device cannot be simulated: %1</source>
        <translation>O dispositivo não pode ser simulado: %1</translation>
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
        <translation>uma mensagem: “%1: %2”</translation>
    </message>
    <message>
        <source>the window &quot;%1&quot;</source>
        <translation>a janela “%1”</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be made.</source>
        <translation>A pasta “%1” não pode ser criada.</translation>
    </message>
    <message>
        <source>The plug-in &quot;%1&quot; is not available: %2</source>
        <translation>O plug-in “%1” não está disponível: %2</translation>
    </message>
    <message>
        <source>The demonstration device was not read in time.</source>
        <translation>O dispositivo de demonstração não foi lido a tempo.</translation>
    </message>
    <message>
        <source>The demonstration device cannot be read.</source>
        <translation>O dispositivo de demonstração não pode ser lido.</translation>
    </message>
    <message>
        <source>The second device cannot be read.</source>
        <translation>O segundo dispositivo não pode ser lido.</translation>
    </message>
    <message>
        <source>The plug-in offers no tool number %1 for the demonstration device.</source>
        <translation>O plug-in não oferece a ferramenta número %1 para o dispositivo de demonstração.</translation>
    </message>
    <message>
        <source>Instead of the IED browser came %1.</source>
        <translation>Em vez do navegador do IED apareceu %1.</translation>
    </message>
    <message>
        <source>The IED browser did not appear.</source>
        <translation>O navegador do IED não apareceu.</translation>
    </message>
    <message>
        <source>The IED browser has no tree.</source>
        <translation>O navegador do IED não tem árvore.</translation>
    </message>
    <message>
        <source>The demonstration device has no switch.</source>
        <translation>O dispositivo de demonstração não tem equipamento de manobra.</translation>
    </message>
    <message>
        <source>The context menu did not appear.</source>
        <translation>O menu de contexto não apareceu.</translation>
    </message>
    <message>
        <source>The window &quot;%1&quot; did not appear.</source>
        <translation>A janela “%1” não apareceu.</translation>
    </message>
    <message>
        <source>The journal stayed empty.</source>
        <translation>O registro ficou vazio.</translation>
    </message>
    <message>
        <source>Instead of &quot;%1&quot; came %2.</source>
        <translation>Em vez de “%1” apareceu %2.</translation>
    </message>
    <message>
        <source>The IED browser has no entry &quot;%1&quot;.</source>
        <translation>O navegador do IED não tem a entrada “%1”.</translation>
    </message>
    <message>
        <source>The picture &quot;%1&quot; cannot be saved.</source>
        <translation>A imagem “%1” não pode ser salva.</translation>
    </message>
    <message>
        <source>The simulated device was not connected in time.</source>
        <translation>O dispositivo simulado não foi conectado a tempo.</translation>
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
        <translation>Rastreamento de PDUs: %1</translation>
    </message>
    <message>
        <source>Nothing was exchanged with this device yet.</source>
        <translation>Nada foi trocado com este dispositivo ainda.</translation>
    </message>
    <message>
        <source>&amp;Save Capture…</source>
        <translation>&amp;Salvar captura…</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>&amp;Limpar</translation>
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
        <translation>recebida</translation>
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
        <translation>%1 não cabe em %2.</translation>
    </message>
    <message>
        <source>%1 is no finite number.</source>
        <translation>%1 não é um número finito.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds characters that %2 does not have.</source>
        <translation>“%1” contém caracteres que %2 não admite.</translation>
    </message>
    <message>
        <source>There is no value to write.</source>
        <translation>Não há valor a escrever.</translation>
    </message>
    <message>
        <source>A value of type %1 cannot be written as a whole.</source>
        <translation>Um valor do tipo %1 não pode ser escrito inteiro.</translation>
    </message>
    <message>
        <source>The text of %1 is longer than can be shown, so it can only be read.</source>
        <translation>O texto de %1 é mais longo do que se pode mostrar, por isso só pode ser lido.</translation>
    </message>
    <message>
        <source>%1 holds octets that are no text, so it can only be read.</source>
        <translation>%1 contém octetos que não são texto, por isso só pode ser lido.</translation>
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
        <translation>“%1” não pode ser usado: %2</translation>
    </message>
    <message>
        <source>Logical devices: %1, logical nodes: %2, data attributes: %3</source>
        <translation>Dispositivos lógicos: %1, nós lógicos: %2, atributos de dados: %3</translation>
    </message>
    <message>
        <source>Loading was cancelled.</source>
        <translation>O carregamento foi cancelado.</translation>
    </message>
    <message>
        <source>Another workbench uses the list of devices in &quot;%1&quot;: what is changed in this one is not kept.</source>
        <translation>Outra bancada usa a lista de dispositivos em “%1”: o que for alterado nesta não será mantido.</translation>
    </message>
    <message>
        <source>The list of devices in &quot;%1&quot; cannot be locked: what is changed is not kept.</source>
        <translation>A lista de dispositivos em “%1” não pode ser bloqueada: o que for alterado não será mantido.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>The standard output cannot be written.</source>
        <translation>Não é possível escrever na saída padrão.</translation>
    </message>
</context>
</TS>
