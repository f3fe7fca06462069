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
    <message>
        <source>Acc&amp;ess point of the IED:</source>
        <translation>Pon&amp;to de acesso do IED:</translation>
    </message>
    <message>
        <source>Which of the IED&apos;s access points the device is, where the file describes several</source>
        <translation>Qual dos pontos de acesso do IED é o dispositivo, se o arquivo descrever vários</translation>
    </message>
    <message>
        <source>Accept certificates that are made out to &amp;others</source>
        <translation>Aceitar certificados emitidos para &amp;outros</translation>
    </message>
    <message>
        <source>Unsafe: whoever holds the key of any certificate of these authorities can pose as this device. Better enter the name that its certificate has, or its fingerprint.</source>
        <translation>Inseguro: quem tiver a chave de qualquer certificado destas autoridades pode se passar por este dispositivo. É melhor indicar o nome que consta no certificado dele, ou a impressão digital.</translation>
    </message>
    <message>
        <source>the one with the device&apos;s address</source>
        <translation>o que tem o endereço do dispositivo</translation>
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
    <message>
        <source>A report control block could not be %1: %2</source>
        <translation>Um bloco de controle de relatório: não foi possível %1: %2</translation>
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
        <translation>%1 traz o nome do emissor “%2”, mas não a assinatura dele.</translation>
    </message>
    <message>
        <source>%1 cannot be checked: the revocation list of its issuer &quot;%2&quot; does not bear its signature.</source>
        <translation>%1 não pode ser verificado: a lista de revogação do emissor “%2” não traz a assinatura desse emissor.</translation>
    </message>
    <message>
        <source>%1 cannot be checked: the revocation list of its issuer &quot;%2&quot; is not valid yet.</source>
        <translation>%1 não pode ser verificado: a lista de revogação do emissor “%2” ainda não é válida.</translation>
    </message>
    <message>
        <source>%1 cannot be checked: the revocation list of its issuer &quot;%2&quot; is out of date.</source>
        <translation>%1 não pode ser verificado: a lista de revogação do emissor “%2” está vencida.</translation>
    </message>
    <message>
        <source>%1 cannot be checked: there is no revocation list of its issuer &quot;%2&quot;.</source>
        <translation>%1 não pode ser verificado: não há lista de revogação do emissor “%2”.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>Não é possível ler %1: %2.</translation>
    </message>
    <message>
        <source>%1 expired on %2.</source>
        <translation>%1 expirou em %2.</translation>
    </message>
    <message>
        <source>%1 has a key that is too short to be safe.</source>
        <translation>%1 tem uma chave curta demais para ser segura.</translation>
    </message>
    <message>
        <source>%1 has a name that is none, or that something else has; it is left out.</source>
        <translation>%1 tem um nome que não é válido ou que outro elemento já tem; é omitido.</translation>
    </message>
    <message>
        <source>%1 has been revoked.</source>
        <translation>%1 foi revogado.</translation>
    </message>
    <message>
        <source>%1 has no %2.</source>
        <translation>%1 não tem o atributo %2.</translation>
    </message>
    <message>
        <source>%1 is enabled already.</source>
        <translation>%1 já está habilitado.</translation>
    </message>
    <message>
        <source>%1 is in the device already, perhaps the only whole version that an upload before this one has left: save or delete it first. Nothing was changed on the device.</source>
        <translation>%1 já está no dispositivo; talvez seja a única versão completa deixada por um envio anterior: salve ou exclua primeiro esse arquivo. Nada foi alterado no dispositivo.</translation>
    </message>
    <message>
        <source>%1 is in the device and may be incomplete.</source>
        <translation>%1 está no dispositivo e pode estar incompleto.</translation>
    </message>
    <message>
        <source>%1 is larger, or nested deeper, than what is taken; it is left out.</source>
        <translation>%1 excede o tamanho ou a profundidade de aninhamento que se aceita e foi omitido.</translation>
    </message>
    <message>
        <source>%1 is no functional constraint.</source>
        <translation>%1 não é uma restrição funcional.</translation>
    </message>
    <message>
        <source>%1 is no name of data.</source>
        <translation>%1 não é um nome de dados.</translation>
    </message>
    <message>
        <source>%1 is not a reference: %2.</source>
        <translation>%1 não é uma referência: %2.</translation>
    </message>
    <message>
        <source>%1 is not accepted: %2.</source>
        <translation>%1 não é aceito: %2.</translation>
    </message>
    <message>
        <source>%1 is not in the device.</source>
        <translation>%1 não está no dispositivo.</translation>
    </message>
    <message>
        <source>%1 is not made out to the host that was asked for.</source>
        <translation>%1 não foi emitido para o host solicitado.</translation>
    </message>
    <message>
        <source>%1 is not meant for this side of a TLS connection.</source>
        <translation>%1 não se destina a este lado de uma conexão TLS.</translation>
    </message>
    <message>
        <source>%1 is not the name of a data object that can be controlled.</source>
        <translation>%1 não é o nome de um objeto de dados que possa ser comandado.</translation>
    </message>
    <message>
        <source>%1 is not the name of a data set.</source>
        <translation>%1 não é o nome de um conjunto de dados.</translation>
    </message>
    <message>
        <source>%1 is valid only from %2 on.</source>
        <translation>%1 só é válido a partir de %2.</translation>
    </message>
    <message>
        <source>%1 may be in the device, incomplete.</source>
        <translation>%1 pode estar no dispositivo, incompleto.</translation>
    </message>
    <message>
        <source>%1 may be incomplete.</source>
        <translation>%1 pode estar incompleto.</translation>
    </message>
    <message>
        <source>%1 of %2 cannot be written: %3.</source>
        <translation>Não é possível escrever %1 de %2: %3.</translation>
    </message>
    <message>
        <source>%1 of %2: %3.</source>
        <translation>%1 de %2: %3.</translation>
    </message>
    <message>
        <source>%1 of the control block cannot be %2.</source>
        <translation>%1 do bloco de controle não pode ter o valor %2.</translation>
    </message>
    <message>
        <source>%1 of the member %2</source>
        <translation>%1 do membro %2</translation>
    </message>
    <message>
        <source>%1 was issued by &quot;%2&quot;, which is not trusted here.</source>
        <translation>%1 foi emitido por “%2”, que não é confiável aqui.</translation>
    </message>
    <message>
        <source>%1 was issued by itself and is not trusted here.</source>
        <translation>%1 foi emitido por si mesmo e não é confiável aqui.</translation>
    </message>
    <message>
        <source>%1 was not touched.</source>
        <translation>%1 não foi alterado.</translation>
    </message>
    <message>
        <source>%1 was replaced, but %2, a second copy of it, is left: delete it.</source>
        <translation>%1 foi substituído, mas restou uma segunda cópia, %2: exclua-a.</translation>
    </message>
    <message>
        <source>%1 was replaced, but %2, a second copy of it, may be in the device still: delete it.</source>
        <translation>%1 foi substituído, mas uma segunda cópia, %2, ainda pode estar no dispositivo: exclua-a.</translation>
    </message>
    <message>
        <source>%1, so the member &quot;%2&quot; does not exist.</source>
        <translation>%1, portanto o membro “%2” não existe.</translation>
    </message>
    <message>
        <source>%1: %2 got an answer that does not match the question.</source>
        <translation>%1: a resposta a %2 não corresponde à pergunta.</translation>
    </message>
    <message>
        <source>%1: %2 got no answer within %3.</source>
        <translation>%1: sem resposta a %2 em %3.</translation>
    </message>
    <message>
        <source>%1: %2 got no answer: %3.</source>
        <translation>%1: sem resposta a %2: %3.</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation>%1: %2.</translation>
    </message>
    <message>
        <source>%1: a command of it cannot be cancelled.</source>
        <translation>%1: um comando deste objeto não pode ser cancelado.</translation>
    </message>
    <message>
        <source>%1: it shows its status and cannot be operated.</source>
        <translation>%1: este objeto mostra o seu estado e não pode ser comandado.</translation>
    </message>
    <message>
        <source>%1: its control model knows no selection.</source>
        <translation>%1: o modelo de controle não prevê seleção.</translation>
    </message>
    <message>
        <source>%1: the command ended without success: %2.</source>
        <translation>%1: o comando terminou sem sucesso: %2.</translation>
    </message>
    <message>
        <source>%1: the command ended without success: the device does not say why.</source>
        <translation>%1: o comando terminou sem sucesso: o dispositivo não informa o motivo.</translation>
    </message>
    <message>
        <source>%1: the device accepted the command late.</source>
        <translation>%1: o dispositivo aceitou o comando com atraso.</translation>
    </message>
    <message>
        <source>%1: the device accepted the command, but has not told within %2 how it ended.</source>
        <translation>%1: o dispositivo aceitou o comando, mas não informou em %2 como ele terminou.</translation>
    </message>
    <message>
        <source>%1: the device accepted the command, but the association ended before the command: %2.</source>
        <translation>%1: o dispositivo aceitou o comando, mas a associação terminou antes do comando: %2.</translation>
    </message>
    <message>
        <source>%1: the device refuses %2: %3.</source>
        <translation>%1: o dispositivo recusa %2: %3.</translation>
    </message>
    <message>
        <source>%1: the file ended after %2 of %3 octets.</source>
        <translation>%1: o arquivo terminou após %2 de %3 octetos.</translation>
    </message>
    <message>
        <source>A UTC time has not 8 octets.</source>
        <translation>Uma hora UTC não tem 8 octetos.</translation>
    </message>
    <message>
        <source>A binary time has neither 4 nor 6 octets.</source>
        <translation>Um tempo binário não tem 4 nem 6 octetos.</translation>
    </message>
    <message>
        <source>A bit string does not say how many of its bits count.</source>
        <translation>Uma cadeia de bits não informa quantos dos seus bits contam.</translation>
    </message>
    <message>
        <source>A boolean has not one octet.</source>
        <translation>Um booleano não tem exatamente um octeto.</translation>
    </message>
    <message>
        <source>A certificate in the file &quot;%1&quot; cannot be read.</source>
        <translation>Não é possível ler um certificado do arquivo “%1”.</translation>
    </message>
    <message>
        <source>A character is not allowed here, or does not belong to the file&apos;s encoding.</source>
        <translation>Um caractere não é permitido aqui ou não pertence à codificação do arquivo.</translation>
    </message>
    <message>
        <source>A command is a structure, not %1.</source>
        <translation>Um comando é uma estrutura, não %1.</translation>
    </message>
    <message>
        <source>A constraint of the object does not allow this.</source>
        <translation>Uma restrição do objeto não permite isto.</translation>
    </message>
    <message>
        <source>A data unit of transport class 0 has a header of another length than 3.</source>
        <translation>Uma unidade de dados da classe de transporte 0 tem um cabeçalho de comprimento diferente de 3.</translation>
    </message>
    <message>
        <source>A file of this name exists already.</source>
        <translation>Já existe um arquivo com este nome.</translation>
    </message>
    <message>
        <source>A floating-point number has neither 32 nor 64 bits.</source>
        <translation>Um número de ponto flutuante não tem 32 nem 64 bits.</translation>
    </message>
    <message>
        <source>A number of an object identifier is too large.</source>
        <translation>Um número de um identificador de objeto é grande demais.</translation>
    </message>
    <message>
        <source>A parameter of a transport unit is longer than the unit&apos;s header.</source>
        <translation>Um parâmetro de uma unidade de transporte é mais longo que o cabeçalho da unidade.</translation>
    </message>
    <message>
        <source>A presentation unit has no parameters of normal mode.</source>
        <translation>Uma unidade de apresentação não tem parâmetros do modo normal.</translation>
    </message>
    <message>
        <source>A presentation unit has no user data.</source>
        <translation>Uma unidade de apresentação não tem dados do usuário.</translation>
    </message>
    <message>
        <source>A presentation unit has too many values.</source>
        <translation>Uma unidade de apresentação tem valores demais.</translation>
    </message>
    <message>
        <source>A presentation value belongs to a context that was not agreed.</source>
        <translation>Um valor de apresentação pertence a um contexto que não foi acordado.</translation>
    </message>
    <message>
        <source>A presentation value is encoded by rules that were not agreed.</source>
        <translation>Um valor de apresentação está codificado por regras que não foram acordadas.</translation>
    </message>
    <message>
        <source>A presentation value is in a form that is not supported.</source>
        <translation>Um valor de apresentação está em uma forma não suportada.</translation>
    </message>
    <message>
        <source>A primitive element has no definite length.</source>
        <translation>Um elemento primitivo não tem comprimento definido.</translation>
    </message>
    <message>
        <source>A primitive element stands where a group belongs.</source>
        <translation>Há um elemento primitivo onde se espera um grupo.</translation>
    </message>
    <message>
        <source>A session parameter group holds itself.</source>
        <translation>Um grupo de parâmetros de sessão contém a si mesmo.</translation>
    </message>
    <message>
        <source>A session parameter is longer than the unit around it.</source>
        <translation>Um parâmetro de sessão é mais longo que a unidade que o contém.</translation>
    </message>
    <message>
        <source>A session unit ends within a header.</source>
        <translation>Uma unidade de sessão termina dentro de um cabeçalho.</translation>
    </message>
    <message>
        <source>A session unit ends within a length.</source>
        <translation>Uma unidade de sessão termina dentro de um comprimento.</translation>
    </message>
    <message>
        <source>A session unit has the unknown code %1.</source>
        <translation>Uma unidade de sessão tem o código desconhecido %1.</translation>
    </message>
    <message>
        <source>A session unit is followed by octets that belong to nothing.</source>
        <translation>Depois de uma unidade de sessão há octetos que não pertencem a nada.</translation>
    </message>
    <message>
        <source>A setting group control stands in &quot;%1&quot; instead of the LLN0.</source>
        <translation>Há um controle de grupos de ajustes em “%1” em vez de no LLN0.</translation>
    </message>
    <message>
        <source>A tag number is too large.</source>
        <translation>Um número de tag é grande demais.</translation>
    </message>
    <message>
        <source>A token unit is not followed by a data transfer.</source>
        <translation>Uma unidade de tokens não é seguida de uma transferência de dados.</translation>
    </message>
    <message>
        <source>A transport packet says that it is %1 octets long, which leaves no room for its content.</source>
        <translation>Um pacote de transporte indica um comprimento de %1 octetos, que não deixa espaço para o seu conteúdo.</translation>
    </message>
    <message>
        <source>A transport unit has the unknown code %1.</source>
        <translation>Uma unidade de transporte tem o código desconhecido %1.</translation>
    </message>
    <message>
        <source>A transport unit is followed by octets that belong to nothing.</source>
        <translation>Depois de uma unidade de transporte há octetos que não pertencem a nada.</translation>
    </message>
    <message>
        <source>A transport unit needs at least two octets.</source>
        <translation>Uma unidade de transporte precisa de pelo menos dois octetos.</translation>
    </message>
    <message>
        <source>A unit of association control has an unknown tag.</source>
        <translation>Uma unidade do controle de associação tem uma tag desconhecida.</translation>
    </message>
    <message>
        <source>Access to the file is denied.</source>
        <translation>O acesso ao arquivo foi negado.</translation>
    </message>
    <message>
        <source>Access to the object is denied.</source>
        <translation>O acesso ao objeto foi negado.</translation>
    </message>
    <message>
        <source>Address already in use</source>
        <translation>Endereço já em uso</translation>
    </message>
    <message>
        <source>An association request has no application context name.</source>
        <translation>Uma requisição de associação não tem nome de contexto de aplicação.</translation>
    </message>
    <message>
        <source>An association response has no result.</source>
        <translation>Uma resposta de associação não tem resultado.</translation>
    </message>
    <message>
        <source>An element is longer than the group that it is in.</source>
        <translation>Um elemento é mais longo que o grupo que o contém.</translation>
    </message>
    <message>
        <source>An element is longer than the message.</source>
        <translation>Um elemento é mais longo que a mensagem.</translation>
    </message>
    <message>
        <source>An element stands where a service belongs.</source>
        <translation>Há um elemento onde se espera um serviço.</translation>
    </message>
    <message>
        <source>An element that is empty by definition has content.</source>
        <translation>Um elemento vazio por definição tem conteúdo.</translation>
    </message>
    <message>
        <source>An element that is no type stands where a type belongs.</source>
        <translation>Há um elemento que não é um tipo onde se espera um tipo.</translation>
    </message>
    <message>
        <source>An element that is no value stands where a value belongs.</source>
        <translation>Há um elemento que não é um valor onde se espera um valor.</translation>
    </message>
    <message>
        <source>An incomplete %1 is left in the device.</source>
        <translation>Restou um arquivo %1 incompleto no dispositivo.</translation>
    </message>
    <message>
        <source>An integer has no octet or more than 8.</source>
        <translation>Um inteiro não tem nenhum octeto ou tem mais de 8.</translation>
    </message>
    <message>
        <source>An integer is out of its range.</source>
        <translation>Um inteiro está fora da sua faixa.</translation>
    </message>
    <message>
        <source>An internal error ended the association.</source>
        <translation>Um erro interno encerrou a associação.</translation>
    </message>
    <message>
        <source>An internal error ended the association: %1.</source>
        <translation>Um erro interno encerrou a associação: %1.</translation>
    </message>
    <message>
        <source>An issuer&apos;s certificate in the file &quot;%1&quot; cannot be used (%2).</source>
        <translation>Um certificado de emissor do arquivo “%1” não pode ser usado (%2).</translation>
    </message>
    <message>
        <source>An object identifier ends within a number.</source>
        <translation>Um identificador de objeto termina dentro de um número.</translation>
    </message>
    <message>
        <source>An object of this name exists already.</source>
        <translation>Já existe um objeto com este nome.</translation>
    </message>
    <message>
        <source>An unsigned integer has no octet or more than 64 bits.</source>
        <translation>Um inteiro sem sinal não tem nenhum octeto ou tem mais de 64 bits.</translation>
    </message>
    <message>
        <source>An unsigned integer is out of its range.</source>
        <translation>Um inteiro sem sinal está fora da sua faixa.</translation>
    </message>
    <message>
        <source>Broken pipe</source>
        <translation>Pipe rompido</translation>
    </message>
    <message>
        <source>Cannot allocate memory</source>
        <translation>Memória insuficiente</translation>
    </message>
    <message>
        <source>Cannot assign requested address</source>
        <translation>O endereço solicitado não está disponível</translation>
    </message>
    <message>
        <source>Cannot listen on %1 port %2: %3.</source>
        <translation>Não é possível escutar em %1, porta %2: %3.</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>Conexão recusada</translation>
    </message>
    <message>
        <source>Connection reset by peer</source>
        <translation>Conexão redefinida pelo sistema remoto</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>Tempo limite da conexão esgotado</translation>
    </message>
    <message>
        <source>Each variable needs one value to write.</source>
        <translation>Cada variável precisa de um valor a escrever.</translation>
    </message>
    <message>
        <source>Elements are nested deeper than %1 levels.</source>
        <translation>Os elementos estão aninhados em mais de %1 níveis.</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>Erro de entrada/saída</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>É um diretório</translation>
    </message>
    <message>
        <source>It is not a logical node.</source>
        <translation>Não é um nó lógico.</translation>
    </message>
    <message>
        <source>It is not known whether %1 is in the device.</source>
        <translation>Não se sabe se %1 está no dispositivo.</translation>
    </message>
    <message>
        <source>It is not known whether an incomplete %1 is left in the device.</source>
        <translation>Não se sabe se restou um arquivo %1 incompleto no dispositivo.</translation>
    </message>
    <message>
        <source>It is not known whether the device has a part of the file: look at %1.</source>
        <translation>Não se sabe se o dispositivo tem uma parte do arquivo: verifique %1.</translation>
    </message>
    <message>
        <source>It is not known whether the file has its name: look at %1 and %2.</source>
        <translation>Não se sabe se o arquivo recebeu o seu nome: verifique %1 e %2.</translation>
    </message>
    <message>
        <source>It is not known whether the file was replaced: look at %1.</source>
        <translation>Não se sabe se o arquivo foi substituído: verifique %1.</translation>
    </message>
    <message>
        <source>It is not known whether the old %1 is still there.</source>
        <translation>Não se sabe se o arquivo anterior %1 ainda existe.</translation>
    </message>
    <message>
        <source>It is not known whether the old file is still there: look at %1.</source>
        <translation>Não se sabe se o arquivo anterior ainda existe: verifique %1.</translation>
    </message>
    <message>
        <source>It is not known whether the old file is still whole: look at %1.</source>
        <translation>Não se sabe se o arquivo anterior ainda está completo: verifique %1.</translation>
    </message>
    <message>
        <source>It is not known whether there is an old %1.</source>
        <translation>Não se sabe se há um arquivo anterior %1.</translation>
    </message>
    <message>
        <source>It was not sent.</source>
        <translation>Não foi enviado.</translation>
    </message>
    <message>
        <source>Modifiers of a request are not supported.</source>
        <translation>Não há suporte a modificadores de uma requisição.</translation>
    </message>
    <message>
        <source>More than %1 name spaces are declared.</source>
        <translation>São declarados mais de %1 espaços de nomes.</translation>
    </message>
    <message>
        <source>Neither an authority nor a fingerprint says which peers are trusted.</source>
        <translation>Nem uma autoridade certificadora nem uma impressão digital indica quais sistemas remotos são confiáveis.</translation>
    </message>
    <message>
        <source>Network is down</source>
        <translation>A rede está fora do ar</translation>
    </message>
    <message>
        <source>Network is unreachable</source>
        <translation>A rede está inacessível</translation>
    </message>
    <message>
        <source>No connection to %1 port %2: %3.</source>
        <translation>Sem conexão com %1, porta %2: %3.</translation>
    </message>
    <message>
        <source>No file is given for %1.</source>
        <translation>Nenhum arquivo foi indicado para %1.</translation>
    </message>
    <message>
        <source>No route to host</source>
        <translation>Não há rota para o host</translation>
    </message>
    <message>
        <source>No session entity is attached to the transport selector.</source>
        <translation>Nenhuma entidade de sessão está ligada ao seletor de transporte.</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>Não há espaço de armazenamento livre</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>O arquivo ou diretório não existe</translation>
    </message>
    <message>
        <source>Nobody wants the association any more.</source>
        <translation>Ninguém mais precisa da associação.</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>Não é um diretório</translation>
    </message>
    <message>
        <source>Nothing is attached to the peer&apos;s presentation selector.</source>
        <translation>Nada está ligado ao seletor de apresentação do sistema remoto.</translation>
    </message>
    <message>
        <source>Nothing is attached to the peer&apos;s session selector.</source>
        <translation>Nada está ligado ao seletor de sessão do sistema remoto.</translation>
    </message>
    <message>
        <source>Nothing was changed on the device.</source>
        <translation>Nada foi alterado no dispositivo.</translation>
    </message>
    <message>
        <source>Operation canceled</source>
        <translation>Operação cancelada</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>Operação não permitida</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Permissão negada</translation>
    </message>
    <message>
        <source>Presentation user data is simply encoded, which is not supported.</source>
        <translation>Os dados do usuário de apresentação estão codificados na forma simples, que não é suportada.</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>Sistema de arquivos somente leitura</translation>
    </message>
    <message>
        <source>Reading the file was cancelled.</source>
        <translation>A leitura do arquivo foi cancelada.</translation>
    </message>
    <message>
        <source>Reading the file was stopped.</source>
        <translation>A leitura do arquivo foi interrompida.</translation>
    </message>
    <message>
        <source>Revocation lists are of no use without the authorities that issued them.</source>
        <translation>As listas de revogação não servem sem as autoridades que as emitiram.</translation>
    </message>
    <message>
        <source>Setting groups are counted from 1; 0 cannot become the active group.</source>
        <translation>Os grupos de ajustes são contados a partir de 1; 0 não pode se tornar o grupo ativo.</translation>
    </message>
    <message>
        <source>Software caused connection abort</source>
        <translation>Conexão interrompida pelo software</translation>
    </message>
    <message>
        <source>Something stands behind the end of %1.</source>
        <translation>Há algo depois do fim de %1.</translation>
    </message>
    <message>
        <source>TLS cannot be set up (%1).</source>
        <translation>Não é possível configurar o TLS (%1).</translation>
    </message>
    <message>
        <source>TLS failed for an unknown reason.</source>
        <translation>O TLS falhou por um motivo desconhecido.</translation>
    </message>
    <message>
        <source>TLS failed: %1.</source>
        <translation>O TLS falhou: %1.</translation>
    </message>
    <message>
        <source>The %1 &quot;%2&quot; contains itself; this element is left out.</source>
        <translation>O %1 “%2” contém a si mesmo; este elemento foi omitido.</translation>
    </message>
    <message>
        <source>The %1 &quot;%2&quot; does not exist.</source>
        <translation>O %1 “%2” não existe.</translation>
    </message>
    <message>
        <source>The %1 &quot;%2&quot; is defined again; the definition in line %3 is used.</source>
        <translation>O %1 “%2” é definido outra vez; usa-se a definição da linha %3.</translation>
    </message>
    <message>
        <source>The %1 has no id and cannot be used.</source>
        <translation>O %1 não tem id e não pode ser usado.</translation>
    </message>
    <message>
        <source>The DOType has no common data class (attribute cdc).</source>
        <translation>O DOType não tem classe de dados comum (atributo cdc).</translation>
    </message>
    <message>
        <source>The EnumType &quot;%1&quot; does not exist.</source>
        <translation>O EnumType “%1” não existe.</translation>
    </message>
    <message>
        <source>The IED &quot;%1&quot; has more than %2 nodes of data.</source>
        <translation>O IED “%1” tem mais de %2 nós de dados.</translation>
    </message>
    <message>
        <source>The IED &quot;%1&quot; has no access point &quot;%2&quot;.</source>
        <translation>O IED “%1” não tem ponto de acesso “%2”.</translation>
    </message>
    <message>
        <source>The IED &quot;%1&quot; is not in this file.</source>
        <translation>O IED “%1” não está neste arquivo.</translation>
    </message>
    <message>
        <source>The IED has no name.</source>
        <translation>O IED não tem nome.</translation>
    </message>
    <message>
        <source>The LNodeType &quot;%1&quot; does not exist.</source>
        <translation>O LNodeType “%1” não existe.</translation>
    </message>
    <message>
        <source>The LNodeType has no class (attribute lnClass).</source>
        <translation>O LNodeType não tem classe (atributo lnClass).</translation>
    </message>
    <message>
        <source>The access point &quot;%1&quot; whose server is shared does not exist or has none.</source>
        <translation>O ponto de acesso “%1”, cujo servidor é compartilhado, não existe ou não tem servidor.</translation>
    </message>
    <message>
        <source>The active setting group is %1, but there are %2; group 1 is used.</source>
        <translation>O grupo de ajustes ativo é %1, mas só há %2; usa-se o grupo 1.</translation>
    </message>
    <message>
        <source>The address is not valid.</source>
        <translation>O endereço não é válido.</translation>
    </message>
    <message>
        <source>The answer cannot be read: %1.</source>
        <translation>Não é possível ler a resposta: %1.</translation>
    </message>
    <message>
        <source>The answer does not fit a message.</source>
        <translation>A resposta não cabe em uma mensagem.</translation>
    </message>
    <message>
        <source>The answer does not match the question.</source>
        <translation>A resposta não corresponde à pergunta.</translation>
    </message>
    <message>
        <source>The association is being concluded.</source>
        <translation>A associação está sendo encerrada.</translation>
    </message>
    <message>
        <source>The association was refused.</source>
        <translation>A associação foi recusada.</translation>
    </message>
    <message>
        <source>The association was released.</source>
        <translation>A associação foi liberada.</translation>
    </message>
    <message>
        <source>The attribute &quot;%1&quot; that holds the number of elements of &quot;%2&quot; has no value; the array is empty.</source>
        <translation>O atributo “%1”, que contém o número de elementos de “%2”, não tem valor; a matriz está vazia.</translation>
    </message>
    <message>
        <source>The attribute &quot;%1&quot; that should hold the number of array elements does not exist; the array is empty.</source>
        <translation>O atributo “%1”, que deveria conter o número de elementos da matriz, não existe; a matriz está vazia.</translation>
    </message>
    <message>
        <source>The attribute has no basic type (attribute bType).</source>
        <translation>O atributo não tem tipo básico (atributo bType).</translation>
    </message>
    <message>
        <source>The attribute has no functional constraint (attribute fc) and cannot be addressed.</source>
        <translation>O atributo não tem restrição funcional (atributo fc) e não pode ser endereçado.</translation>
    </message>
    <message>
        <source>The attribute is an enumeration without a type (attribute type).</source>
        <translation>O atributo é uma enumeração sem tipo (atributo type).</translation>
    </message>
    <message>
        <source>The attributes of the object contradict each other.</source>
        <translation>Os atributos do objeto se contradizem.</translation>
    </message>
    <message>
        <source>The authority in the file &quot;%1&quot; cannot be used (%2).</source>
        <translation>A autoridade certificadora do arquivo “%1” não pode ser usada (%2).</translation>
    </message>
    <message>
        <source>The basic type is written &quot;%1&quot; instead of &quot;%2&quot;.</source>
        <translation>O tipo básico está escrito “%1” em vez de “%2”.</translation>
    </message>
    <message>
        <source>The block belongs to another association of this computer, %1.</source>
        <translation>O bloco pertence a outra associação deste computador, %1.</translation>
    </message>
    <message>
        <source>The block belongs to the client %1.</source>
        <translation>O bloco pertence ao cliente %1.</translation>
    </message>
    <message>
        <source>The call can no longer be cancelled.</source>
        <translation>A requisição não pode mais ser cancelada.</translation>
    </message>
    <message>
        <source>The call cannot be cancelled.</source>
        <translation>A requisição não pode ser cancelada.</translation>
    </message>
    <message>
        <source>The call was cancelled.</source>
        <translation>A requisição foi cancelada.</translation>
    </message>
    <message>
        <source>The certificate &quot;%1&quot; in the file &quot;%2&quot;</source>
        <translation>O certificado “%1” do arquivo “%2”</translation>
    </message>
    <message>
        <source>The certificate in the file &quot;%1&quot; cannot be used (%2).</source>
        <translation>O certificado do arquivo “%1” não pode ser usado (%2).</translation>
    </message>
    <message>
        <source>The class is &quot;%1&quot;, but the LNodeType &quot;%2&quot; is of class &quot;%3&quot;.</source>
        <translation>A classe é “%1”, mas o LNodeType “%2” é da classe “%3”.</translation>
    </message>
    <message>
        <source>The class of an LN0 is &quot;%1&quot; instead of &quot;LLN0&quot;.</source>
        <translation>A classe de um LN0 é “%1” em vez de “LLN0”.</translation>
    </message>
    <message>
        <source>The client is gone.</source>
        <translation>O cliente não está mais presente.</translation>
    </message>
    <message>
        <source>The connection to the other application is lost.</source>
        <translation>A conexão com a outra aplicação foi perdida.</translation>
    </message>
    <message>
        <source>The content type of the file is not valid.</source>
        <translation>O tipo de conteúdo do arquivo não é válido.</translation>
    </message>
    <message>
        <source>The control block has no name.</source>
        <translation>O bloco de controle não tem nome.</translation>
    </message>
    <message>
        <source>The control model of %1 cannot be read: %2.</source>
        <translation>Não é possível ler o modelo de controle de %1: %2.</translation>
    </message>
    <message>
        <source>The control model of %1 is %2, which is none.</source>
        <translation>O modelo de controle de %1 é %2, um valor que não existe.</translation>
    </message>
    <message>
        <source>The data below this element are nested deeper than %1 levels; the element is left out.</source>
        <translation>Os dados abaixo deste elemento estão aninhados em mais de %1 níveis; o elemento foi omitido.</translation>
    </message>
    <message>
        <source>The data set &quot;%1&quot; of the control block does not exist in its logical node.</source>
        <translation>O conjunto de dados “%1” do bloco de controle não existe no seu nó lógico.</translation>
    </message>
    <message>
        <source>The data set has no members.</source>
        <translation>O conjunto de dados não tem membros.</translation>
    </message>
    <message>
        <source>The data set has no name.</source>
        <translation>O conjunto de dados não tem nome.</translation>
    </message>
    <message>
        <source>The definition of the object does not allow this.</source>
        <translation>A definição do objeto não permite isto.</translation>
    </message>
    <message>
        <source>The device answered another service.</source>
        <translation>O dispositivo respondeu a outro serviço.</translation>
    </message>
    <message>
        <source>The device cannot carry out the service.</source>
        <translation>O dispositivo não pode executar o serviço.</translation>
    </message>
    <message>
        <source>The device cannot check interlocking.</source>
        <translation>O dispositivo não pode verificar o intertravamento.</translation>
    </message>
    <message>
        <source>The device cannot check synchronism.</source>
        <translation>O dispositivo não pode verificar o sincronismo.</translation>
    </message>
    <message>
        <source>The device cannot operate at a given time.</source>
        <translation>O dispositivo não pode executar um comando em uma hora determinada.</translation>
    </message>
    <message>
        <source>The device cannot test a command.</source>
        <translation>O dispositivo não pode testar um comando.</translation>
    </message>
    <message>
        <source>The device cannot transfer the domain.</source>
        <translation>O dispositivo não pode transferir o domínio.</translation>
    </message>
    <message>
        <source>The device describes more than the %1 values in %2 octets that are taken; the rest is left out.</source>
        <translation>O dispositivo descreve mais do que se aceita (%1 valores em %2 octetos); o resto foi omitido.</translation>
    </message>
    <message>
        <source>The device describes the originator as %1.</source>
        <translation>O dispositivo descreve o originador como %1.</translation>
    </message>
    <message>
        <source>The device does not accept the syntax of the file name.</source>
        <translation>O dispositivo não aceita a sintaxe do nome do arquivo.</translation>
    </message>
    <message>
        <source>The device does not answer any more.</source>
        <translation>O dispositivo não responde mais.</translation>
    </message>
    <message>
        <source>The device does not know the call to cancel.</source>
        <translation>O dispositivo não conhece a requisição a cancelar.</translation>
    </message>
    <message>
        <source>The device does not know the capability.</source>
        <translation>O dispositivo não conhece a capacidade.</translation>
    </message>
    <message>
        <source>The device does not know the state machine.</source>
        <translation>O dispositivo não conhece a máquina de estados.</translation>
    </message>
    <message>
        <source>The device does not let the data set %1 be deleted.</source>
        <translation>O dispositivo não permite excluir o conjunto de dados %1.</translation>
    </message>
    <message>
        <source>The device does not list its logical devices: %1.</source>
        <translation>O dispositivo não fornece a lista dos seus dispositivos lógicos: %1.</translation>
    </message>
    <message>
        <source>The device does not say what belongs to the command.</source>
        <translation>O dispositivo não informa o que faz parte do comando.</translation>
    </message>
    <message>
        <source>The device does not support the time resolution.</source>
        <translation>O dispositivo não suporta a resolução de tempo.</translation>
    </message>
    <message>
        <source>The device gave a reason for refusing a command that cannot be read: %1.</source>
        <translation>O dispositivo deu um motivo para recusar um comando, mas não é possível lê-lo: %1.</translation>
    </message>
    <message>
        <source>The device gave up after its own time limit.</source>
        <translation>O dispositivo desistiu após o seu próprio limite de tempo.</translation>
    </message>
    <message>
        <source>The device gave up because of a deadlock.</source>
        <translation>O dispositivo desistiu por causa de um impasse (deadlock).</translation>
    </message>
    <message>
        <source>The device gave up the call.</source>
        <translation>O dispositivo desistiu da requisição.</translation>
    </message>
    <message>
        <source>The device gives names without end.</source>
        <translation>O dispositivo fornece nomes sem fim.</translation>
    </message>
    <message>
        <source>The device has an operational problem.</source>
        <translation>O dispositivo tem um problema de operação.</translation>
    </message>
    <message>
        <source>The device has more names than the %1 names and %2 octets that are taken; the others are left out.</source>
        <translation>O dispositivo tem mais nomes do que se aceita (%1 nomes e %2 octetos); os demais foram omitidos.</translation>
    </message>
    <message>
        <source>The device has more than %1 logical devices; the others are left out.</source>
        <translation>O dispositivo tem mais de %1 dispositivos lógicos; os demais foram omitidos.</translation>
    </message>
    <message>
        <source>The device has more than %1 logical nodes; the others are left out.</source>
        <translation>O dispositivo tem mais de %1 nós lógicos; os demais foram omitidos.</translation>
    </message>
    <message>
        <source>The device has neither %1 nor %2 any more.</source>
        <translation>O dispositivo não tem mais nem %1 nem %2.</translation>
    </message>
    <message>
        <source>The device has no free capability for this.</source>
        <translation>O dispositivo não tem capacidade livre para isto.</translation>
    </message>
    <message>
        <source>The device has not enough computing time.</source>
        <translation>O dispositivo não tem tempo de processamento suficiente.</translation>
    </message>
    <message>
        <source>The device has not enough memory.</source>
        <translation>O dispositivo não tem memória suficiente.</translation>
    </message>
    <message>
        <source>The device has not enough storage.</source>
        <translation>O dispositivo não tem espaço de armazenamento suficiente.</translation>
    </message>
    <message>
        <source>The device has not the resources for this.</source>
        <translation>O dispositivo não tem os recursos para isto.</translation>
    </message>
    <message>
        <source>The device has something to finish first.</source>
        <translation>O dispositivo precisa terminar algo primeiro.</translation>
    </message>
    <message>
        <source>The device has stopped fetching the file after %1 of %2 octets.</source>
        <translation>O dispositivo parou de ler o arquivo após %1 de %2 octetos.</translation>
    </message>
    <message>
        <source>The device is in a state that does not allow this.</source>
        <translation>O dispositivo está em um estado que não permite isto.</translation>
    </message>
    <message>
        <source>The device lists its files without an end.</source>
        <translation>O dispositivo fornece uma lista de arquivos sem fim.</translation>
    </message>
    <message>
        <source>The device refuses the association.</source>
        <translation>O dispositivo recusa a associação.</translation>
    </message>
    <message>
        <source>The device refuses the file operation.</source>
        <translation>O dispositivo recusa a operação com o arquivo.</translation>
    </message>
    <message>
        <source>The device refuses to conclude the association.</source>
        <translation>O dispositivo se recusa a encerrar a associação.</translation>
    </message>
    <message>
        <source>The device refuses without giving a reason.</source>
        <translation>O dispositivo recusa sem dar um motivo.</translation>
    </message>
    <message>
        <source>The device rejects a cancel (%1).</source>
        <translation>O dispositivo rejeita um cancelamento (%1).</translation>
    </message>
    <message>
        <source>The device rejects a conclude (%1).</source>
        <translation>O dispositivo rejeita um encerramento (%1).</translation>
    </message>
    <message>
        <source>The device rejects a message that it cannot read (%1).</source>
        <translation>O dispositivo rejeita uma mensagem que não consegue ler (%1).</translation>
    </message>
    <message>
        <source>The device rejects a request (%1).</source>
        <translation>O dispositivo rejeita uma requisição (%1).</translation>
    </message>
    <message>
        <source>The device rejects an answer (%1).</source>
        <translation>O dispositivo rejeita uma resposta (%1).</translation>
    </message>
    <message>
        <source>The device rejects an error (%1).</source>
        <translation>O dispositivo rejeita um erro (%1).</translation>
    </message>
    <message>
        <source>The device rejects an unconfirmed message (%1).</source>
        <translation>O dispositivo rejeita uma mensagem não confirmada (%1).</translation>
    </message>
    <message>
        <source>The device rejects the answer to a cancel (%1).</source>
        <translation>O dispositivo rejeita a resposta a um cancelamento (%1).</translation>
    </message>
    <message>
        <source>The device rejects the answer to a conclude (%1).</source>
        <translation>O dispositivo rejeita a resposta a um encerramento (%1).</translation>
    </message>
    <message>
        <source>The device rejects the refusal of a cancel (%1).</source>
        <translation>O dispositivo rejeita a recusa de um cancelamento (%1).</translation>
    </message>
    <message>
        <source>The device rejects the refusal of a conclude (%1).</source>
        <translation>O dispositivo rejeita a recusa de um encerramento (%1).</translation>
    </message>
    <message>
        <source>The device repeats the same page of names.</source>
        <translation>O dispositivo repete a mesma página de nomes.</translation>
    </message>
    <message>
        <source>The device reports a hardware fault.</source>
        <translation>O dispositivo informa uma falha de hardware.</translation>
    </message>
    <message>
        <source>The device reports the unknown data access error %1.</source>
        <translation>O dispositivo informa o erro desconhecido de acesso a dados %1.</translation>
    </message>
    <message>
        <source>The device says that it has the file, but it has fetched only %1 of %2 octets.</source>
        <translation>O dispositivo diz que tem o arquivo, mas leu apenas %1 de %2 octetos.</translation>
    </message>
    <message>
        <source>The device sends empty blocks of the file without an end.</source>
        <translation>O dispositivo envia sem fim blocos vazios do arquivo.</translation>
    </message>
    <message>
        <source>The device took longer than %1 minutes to describe itself; what it had not told by then is left out.</source>
        <translation>O dispositivo levou mais de %1 minutos para se descrever; o que não havia informado até então foi omitido.</translation>
    </message>
    <message>
        <source>The device uses another version of the protocol.</source>
        <translation>O dispositivo usa outra versão do protocolo.</translation>
    </message>
    <message>
        <source>The device wants %1 also as a whole number, but does not say by which scale (sVC).</source>
        <translation>O dispositivo quer %1 também como número inteiro, mas não informa com qual escala (sVC).</translation>
    </message>
    <message>
        <source>The device wants a part %1 in the command, which is not known.</source>
        <translation>O dispositivo quer no comando uma parte %1 que não é conhecida.</translation>
    </message>
    <message>
        <source>The device wants an unknown part %1 of the originator.</source>
        <translation>O dispositivo quer uma parte desconhecida %1 do originador.</translation>
    </message>
    <message>
        <source>The device&apos;s answer does not match the question.</source>
        <translation>A resposta do dispositivo não corresponde à pergunta.</translation>
    </message>
    <message>
        <source>The device&apos;s answer does not match the request.</source>
        <translation>A resposta do dispositivo não corresponde à requisição.</translation>
    </message>
    <message>
        <source>The directory &quot;%1&quot; cannot be served: %2.</source>
        <translation>Não é possível disponibilizar o diretório “%1”: %2.</translation>
    </message>
    <message>
        <source>The discovery was cancelled.</source>
        <translation>A exploração do dispositivo foi cancelada.</translation>
    </message>
    <message>
        <source>The element %1 is missing or of an unknown kind.</source>
        <translation>O elemento %1 falta ou é de um tipo desconhecido.</translation>
    </message>
    <message>
        <source>The element %1 is missing.</source>
        <translation>Falta o elemento %1.</translation>
    </message>
    <message>
        <source>The element %1 is not where it belongs.</source>
        <translation>O elemento %1 não está no seu lugar.</translation>
    </message>
    <message>
        <source>The element does not name an access point.</source>
        <translation>O elemento não nomeia um ponto de acesso.</translation>
    </message>
    <message>
        <source>The element has no name and is left out.</source>
        <translation>O elemento não tem nome e foi omitido.</translation>
    </message>
    <message>
        <source>The element has no type (attribute type).</source>
        <translation>O elemento não tem tipo (atributo type).</translation>
    </message>
    <message>
        <source>The elements are nested too deeply.</source>
        <translation>Os elementos estão aninhados em níveis demais.</translation>
    </message>
    <message>
        <source>The encoding is declared as &quot;%1&quot;, but the file holds single bytes; it is read as UTF-8.</source>
        <translation>A codificação é declarada como “%1”, mas o arquivo contém bytes simples; ele é lido como UTF-8.</translation>
    </message>
    <message>
        <source>The encoding is written &quot;%1&quot; instead of &quot;ISO-8859-1&quot;.</source>
        <translation>A codificação está escrita “%1” em vez de “ISO-8859-1”.</translation>
    </message>
    <message>
        <source>The encoding is written &quot;%1&quot; instead of &quot;UTF-8&quot;; it is read as UTF-8.</source>
        <translation>A codificação está escrita “%1” em vez de “UTF-8”; o arquivo é lido como UTF-8.</translation>
    </message>
    <message>
        <source>The entity &quot;%1&quot; is not declared.</source>
        <translation>A entidade “%1” não está declarada.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be opened: %2.</source>
        <translation>Não é possível abrir o arquivo “%1”: %2.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; holds no certificate in PEM.</source>
        <translation>O arquivo “%1” não contém certificado em formato PEM.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; holds no private key in PEM.</source>
        <translation>O arquivo “%1” não contém chave privada em formato PEM.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; holds no revocation list in PEM.</source>
        <translation>O arquivo “%1” não contém lista de revogação em formato PEM.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; with %2 cannot be opened: %3.</source>
        <translation>Não é possível abrir o arquivo “%1” (%2): %3.</translation>
    </message>
    <message>
        <source>The file became shorter while it was read.</source>
        <translation>O arquivo ficou mais curto enquanto era lido.</translation>
    </message>
    <message>
        <source>The file cannot be read to its end.</source>
        <translation>O arquivo não pode ser lido até o fim.</translation>
    </message>
    <message>
        <source>The file declares an entity, which is not accepted.</source>
        <translation>O arquivo declara uma entidade, o que não é aceito.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>O arquivo não existe.</translation>
    </message>
    <message>
        <source>The file ends before its root element is complete.</source>
        <translation>O arquivo termina antes que o seu elemento raiz esteja completo.</translation>
    </message>
    <message>
        <source>The file ends within a character.</source>
        <translation>O arquivo termina dentro de um caractere.</translation>
    </message>
    <message>
        <source>The file in the device may be incomplete: look at %1.</source>
        <translation>O arquivo no dispositivo pode estar incompleto: verifique %1.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>O arquivo está vazio.</translation>
    </message>
    <message>
        <source>The file is in use.</source>
        <translation>O arquivo está em uso.</translation>
    </message>
    <message>
        <source>The file is larger than %1 bytes.</source>
        <translation>O arquivo tem mais de %1 bytes.</translation>
    </message>
    <message>
        <source>The file is not well-formed XML: %1.</source>
        <translation>O arquivo não é XML bem formado: %1.</translation>
    </message>
    <message>
        <source>The file name is ambiguous.</source>
        <translation>O nome do arquivo é ambíguo.</translation>
    </message>
    <message>
        <source>The file refers to an external document type, which is not accepted.</source>
        <translation>O arquivo remete a um tipo de documento externo, o que não é aceito.</translation>
    </message>
    <message>
        <source>The file&apos;s encoding is not the one declared, or it is not known.</source>
        <translation>A codificação do arquivo não é a declarada, ou não é conhecida.</translation>
    </message>
    <message>
        <source>The header of a transport unit is longer than the packet.</source>
        <translation>O cabeçalho de uma unidade de transporte é mais longo que o pacote.</translation>
    </message>
    <message>
        <source>The import was cancelled.</source>
        <translation>A importação foi cancelada.</translation>
    </message>
    <message>
        <source>The instance has no name and is left out.</source>
        <translation>A instância não tem nome e foi omitida.</translation>
    </message>
    <message>
        <source>The instance is given twice; the first is used.</source>
        <translation>A instância está indicada duas vezes; usa-se a primeira.</translation>
    </message>
    <message>
        <source>The issuer&apos;s certificate &quot;%1&quot;</source>
        <translation>O certificado do emissor “%1”</translation>
    </message>
    <message>
        <source>The length of an element is too large.</source>
        <translation>O comprimento de um elemento é grande demais.</translation>
    </message>
    <message>
        <source>The list cannot be continued after the given name.</source>
        <translation>A lista não pode continuar depois do nome indicado.</translation>
    </message>
    <message>
        <source>The literal &quot;%1&quot; begins or ends with a blank.</source>
        <translation>O literal “%1” começa ou termina com um espaço.</translation>
    </message>
    <message>
        <source>The logical device has no LN0.</source>
        <translation>O dispositivo lógico não tem LN0.</translation>
    </message>
    <message>
        <source>The logical device has no instance name (attribute inst).</source>
        <translation>O dispositivo lógico não tem nome de instância (atributo inst).</translation>
    </message>
    <message>
        <source>The logical node has another setting group control; the first is used.</source>
        <translation>O nó lógico tem outro controle de grupos de ajustes; usa-se o primeiro.</translation>
    </message>
    <message>
        <source>The logical node has no class (attribute lnClass).</source>
        <translation>O nó lógico não tem classe (atributo lnClass).</translation>
    </message>
    <message>
        <source>The logical node has no instance number (attribute inst).</source>
        <translation>O nó lógico não tem número de instância (atributo inst).</translation>
    </message>
    <message>
        <source>The logical node has no type (attribute lnType).</source>
        <translation>O nó lógico não tem tipo (atributo lnType).</translation>
    </message>
    <message>
        <source>The lowest version of TLS that is allowed is above the highest one.</source>
        <translation>A versão mínima permitida do TLS é superior à máxima.</translation>
    </message>
    <message>
        <source>The message ends within an element.</source>
        <translation>A mensagem termina dentro de um elemento.</translation>
    </message>
    <message>
        <source>The message holds more elements than allowed.</source>
        <translation>A mensagem contém mais elementos que o permitido.</translation>
    </message>
    <message>
        <source>The message is empty.</source>
        <translation>A mensagem está vazia.</translation>
    </message>
    <message>
        <source>The message is longer than allowed.</source>
        <translation>A mensagem é mais longa que o permitido.</translation>
    </message>
    <message>
        <source>The message is no MMS PDU.</source>
        <translation>A mensagem não é uma PDU MMS.</translation>
    </message>
    <message>
        <source>The message size is too small for the device.</source>
        <translation>O tamanho das mensagens é pequeno demais para o dispositivo.</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; cannot be resolved: %2.</source>
        <translation>Não é possível resolver o nome “%1”: %2.</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; was not resolved in time.</source>
        <translation>O nome “%1” não foi resolvido a tempo.</translation>
    </message>
    <message>
        <source>The name of the other application is not valid.</source>
        <translation>O nome da outra aplicação não é válido.</translation>
    </message>
    <message>
        <source>The name space prefix &quot;%1&quot; is not declared; its elements are skipped.</source>
        <translation>O prefixo de espaço de nomes “%1” não está declarado; os seus elementos são ignorados.</translation>
    </message>
    <message>
        <source>The names</source>
        <translation>Os nomes</translation>
    </message>
    <message>
        <source>The names of %1</source>
        <translation>Os nomes de %1</translation>
    </message>
    <message>
        <source>The names of the data</source>
        <translation>Os nomes dos dados</translation>
    </message>
    <message>
        <source>The names of the data of %1</source>
        <translation>Os nomes dos dados de %1</translation>
    </message>
    <message>
        <source>The names of the data sets</source>
        <translation>Os nomes dos conjuntos de dados</translation>
    </message>
    <message>
        <source>The names of the data sets of %1</source>
        <translation>Os nomes dos conjuntos de dados de %1</translation>
    </message>
    <message>
        <source>The nesting level does not suit the device.</source>
        <translation>O nível de aninhamento não é adequado ao dispositivo.</translation>
    </message>
    <message>
        <source>The network connection broke during the TLS handshake: %1.</source>
        <translation>A conexão de rede foi interrompida durante a negociação TLS: %1.</translation>
    </message>
    <message>
        <source>The network connection broke: %1.</source>
        <translation>A conexão de rede foi interrompida: %1.</translation>
    </message>
    <message>
        <source>The new file is in the device as %1.</source>
        <translation>O novo arquivo está no dispositivo com o nome %1.</translation>
    </message>
    <message>
        <source>The number of instances is %1; %2 is used.</source>
        <translation>O número de instâncias é %1; usa-se %2.</translation>
    </message>
    <message>
        <source>The number of outstanding calls does not suit the device.</source>
        <translation>O número de requisições pendentes não é adequado ao dispositivo.</translation>
    </message>
    <message>
        <source>The number of outstanding calls of the device does not suit it.</source>
        <translation>O número de requisições pendentes do dispositivo não é adequado a ele.</translation>
    </message>
    <message>
        <source>The number of setting groups is 0; 1 is used.</source>
        <translation>O número de grupos de ajustes é 0; usa-se 1.</translation>
    </message>
    <message>
        <source>The object cannot be accessed in this way.</source>
        <translation>O objeto não pode ser acessado desta maneira.</translation>
    </message>
    <message>
        <source>The object cannot be accessed.</source>
        <translation>O objeto não pode ser acessado.</translation>
    </message>
    <message>
        <source>The object does not exist.</source>
        <translation>O objeto não existe.</translation>
    </message>
    <message>
        <source>The object is in a state that does not allow this.</source>
        <translation>O objeto está em um estado que não permite isto.</translation>
    </message>
    <message>
        <source>The object is no longer valid.</source>
        <translation>O objeto não é mais válido.</translation>
    </message>
    <message>
        <source>The object is not available at the moment.</source>
        <translation>O objeto não está disponível no momento.</translation>
    </message>
    <message>
        <source>The object is not defined.</source>
        <translation>O objeto não está definido.</translation>
    </message>
    <message>
        <source>The old file had to be deleted before and is lost.</source>
        <translation>O arquivo anterior teve de ser excluído antes e foi perdido.</translation>
    </message>
    <message>
        <source>The old file is still there.</source>
        <translation>O arquivo anterior ainda existe.</translation>
    </message>
    <message>
        <source>The old file was deleted before.</source>
        <translation>O arquivo anterior foi excluído antes.</translation>
    </message>
    <message>
        <source>The options offered do not suit the device.</source>
        <translation>As opções oferecidas não são adequadas ao dispositivo.</translation>
    </message>
    <message>
        <source>The ordinal %1 is given twice; the first literal is used.</source>
        <translation>O ordinal %1 está indicado duas vezes; usa-se o primeiro literal.</translation>
    </message>
    <message>
        <source>The originator identification has %1 octets; at most %2 are allowed.</source>
        <translation>A identificação do originador tem %1 octetos; são permitidos no máximo %2.</translation>
    </message>
    <message>
        <source>The other application cannot be reached.</source>
        <translation>Não é possível alcançar a outra aplicação.</translation>
    </message>
    <message>
        <source>The other application does not support the context.</source>
        <translation>A outra aplicação não suporta o contexto.</translation>
    </message>
    <message>
        <source>The part %1 of the command cannot be %2.</source>
        <translation>A parte %1 do comando não pode ter o valor %2.</translation>
    </message>
    <message>
        <source>The peer %1 has %2 connections that are no associations yet, which is the limit.</source>
        <translation>O sistema remoto %1 tem %2 conexões que ainda não são associações; esse é o limite.</translation>
    </message>
    <message>
        <source>The peer aborted the association.</source>
        <translation>O sistema remoto abortou a associação.</translation>
    </message>
    <message>
        <source>The peer aborted the session.</source>
        <translation>O sistema remoto abortou a sessão.</translation>
    </message>
    <message>
        <source>The peer accepted the session with an unsuitable version.</source>
        <translation>O sistema remoto aceitou a sessão com uma versão inadequada.</translation>
    </message>
    <message>
        <source>The peer and this side have no cipher suite in common, or no certificate fits it.</source>
        <translation>O sistema remoto e este lado não têm nenhum conjunto de cifras em comum, ou nenhum certificado serve para esse conjunto.</translation>
    </message>
    <message>
        <source>The peer and this side have no version of TLS in common.</source>
        <translation>O sistema remoto e este lado não têm nenhuma versão do TLS em comum.</translation>
    </message>
    <message>
        <source>The peer answered the initiate request with something else.</source>
        <translation>O sistema remoto respondeu outra coisa à requisição initiate.</translation>
    </message>
    <message>
        <source>The peer answers for too many presentation contexts.</source>
        <translation>O sistema remoto responde por contextos de apresentação demais.</translation>
    </message>
    <message>
        <source>The peer asked for a transport class other than 0.</source>
        <translation>O sistema remoto pediu uma classe de transporte diferente de 0.</translation>
    </message>
    <message>
        <source>The peer asked for an application context other than MMS.</source>
        <translation>O sistema remoto pediu um contexto de aplicação diferente de MMS.</translation>
    </message>
    <message>
        <source>The peer asked for an unknown presentation selector.</source>
        <translation>O sistema remoto pediu um seletor de apresentação desconhecido.</translation>
    </message>
    <message>
        <source>The peer asked for an unknown transport selector.</source>
        <translation>O sistema remoto pediu um seletor de transporte desconhecido.</translation>
    </message>
    <message>
        <source>The peer asks for a certificate, and this side has none that it trusts.</source>
        <translation>O sistema remoto pede um certificado em que confie, e este lado não tem nenhum.</translation>
    </message>
    <message>
        <source>The peer asks for a presentation mode other than normal mode.</source>
        <translation>O sistema remoto pede um modo de apresentação diferente do modo normal.</translation>
    </message>
    <message>
        <source>The peer asks for too many presentation contexts.</source>
        <translation>O sistema remoto pede contextos de apresentação demais.</translation>
    </message>
    <message>
        <source>The peer cannot read the presentation user data.</source>
        <translation>O sistema remoto não consegue ler os dados do usuário de apresentação.</translation>
    </message>
    <message>
        <source>The peer closed the network connection instead of a TLS handshake.</source>
        <translation>O sistema remoto fechou a conexão de rede em vez de fazer a negociação TLS.</translation>
    </message>
    <message>
        <source>The peer closed the network connection instead of a TLS handshake; it may not speak TLS on this port.</source>
        <translation>O sistema remoto fechou a conexão de rede em vez de fazer a negociação TLS; talvez não use TLS nesta porta.</translation>
    </message>
    <message>
        <source>The peer closed the network connection.</source>
        <translation>O sistema remoto fechou a conexão de rede.</translation>
    </message>
    <message>
        <source>The peer confirmed a transport class other than 0.</source>
        <translation>O sistema remoto confirmou uma classe de transporte diferente de 0.</translation>
    </message>
    <message>
        <source>The peer cuts session data into segments, which was not agreed.</source>
        <translation>O sistema remoto divide os dados de sessão em segmentos, o que não foi acordado.</translation>
    </message>
    <message>
        <source>The peer did not accept the presentation contexts of ACSE and MMS.</source>
        <translation>O sistema remoto não aceitou os contextos de apresentação de ACSE e MMS.</translation>
    </message>
    <message>
        <source>The peer did not answer in time.</source>
        <translation>O sistema remoto não respondeu a tempo.</translation>
    </message>
    <message>
        <source>The peer did not answer the release in time.</source>
        <translation>O sistema remoto não respondeu a tempo à liberação.</translation>
    </message>
    <message>
        <source>The peer did not ask for the presentation contexts of ACSE and MMS.</source>
        <translation>O sistema remoto não pediu os contextos de apresentação de ACSE e MMS.</translation>
    </message>
    <message>
        <source>The peer did not complete the TLS handshake in time.</source>
        <translation>O sistema remoto não concluiu a negociação TLS a tempo.</translation>
    </message>
    <message>
        <source>The peer did not complete the association in time.</source>
        <translation>O sistema remoto não concluiu a associação a tempo.</translation>
    </message>
    <message>
        <source>The peer does not conclude the association: %1.</source>
        <translation>O sistema remoto não encerra a associação: %1.</translation>
    </message>
    <message>
        <source>The peer does not know the presentation selector.</source>
        <translation>O sistema remoto não conhece o seletor de apresentação.</translation>
    </message>
    <message>
        <source>The peer does not know the session selector.</source>
        <translation>O sistema remoto não conhece o seletor de sessão.</translation>
    </message>
    <message>
        <source>The peer does not know the transport selector.</source>
        <translation>O sistema remoto não conhece o seletor de transporte.</translation>
    </message>
    <message>
        <source>The peer does not read what it is sent.</source>
        <translation>O sistema remoto não lê o que lhe é enviado.</translation>
    </message>
    <message>
        <source>The peer does not speak ISO transport over TCP: a packet begins with %1 instead of 3.</source>
        <translation>O sistema remoto não usa o transporte ISO sobre TCP: um pacote começa com %1 em vez de 3.</translation>
    </message>
    <message>
        <source>The peer does not speak TLS, which is required here.</source>
        <translation>O sistema remoto não usa TLS, que é exigido aqui.</translation>
    </message>
    <message>
        <source>The peer does not speak TLS.</source>
        <translation>O sistema remoto não usa TLS.</translation>
    </message>
    <message>
        <source>The peer does not support the default context.</source>
        <translation>O sistema remoto não suporta o contexto padrão.</translation>
    </message>
    <message>
        <source>The peer does not support the proposed version of the session protocol.</source>
        <translation>O sistema remoto não suporta a versão proposta do protocolo de sessão.</translation>
    </message>
    <message>
        <source>The peer does not support the version of the presentation protocol.</source>
        <translation>O sistema remoto não suporta a versão do protocolo de apresentação.</translation>
    </message>
    <message>
        <source>The peer ended the transport connection normally.</source>
        <translation>O sistema remoto encerrou a conexão de transporte normalmente.</translation>
    </message>
    <message>
        <source>The peer ended the transport connection with reason %1.</source>
        <translation>O sistema remoto encerrou a conexão de transporte com o motivo %1.</translation>
    </message>
    <message>
        <source>The peer ended the transport connection without a reason.</source>
        <translation>O sistema remoto encerrou a conexão de transporte sem dar um motivo.</translation>
    </message>
    <message>
        <source>The peer has shown no certificate.</source>
        <translation>O sistema remoto não apresentou nenhum certificado.</translation>
    </message>
    <message>
        <source>The peer knows the certificate of this side and denies it access.</source>
        <translation>O sistema remoto conhece o certificado deste lado e lhe nega o acesso.</translation>
    </message>
    <message>
        <source>The peer refuses a parameter code of the transport unit.</source>
        <translation>O sistema remoto recusa um código de parâmetro da unidade de transporte.</translation>
    </message>
    <message>
        <source>The peer refuses a parameter value of the transport unit.</source>
        <translation>O sistema remoto recusa um valor de parâmetro da unidade de transporte.</translation>
    </message>
    <message>
        <source>The peer refuses a transport unit without a reason.</source>
        <translation>O sistema remoto recusa uma unidade de transporte sem dar um motivo.</translation>
    </message>
    <message>
        <source>The peer refuses the association for the time being.</source>
        <translation>O sistema remoto recusa a associação por enquanto.</translation>
    </message>
    <message>
        <source>The peer refuses the association for the time being: %1.</source>
        <translation>O sistema remoto recusa a associação por enquanto: %1.</translation>
    </message>
    <message>
        <source>The peer refuses the association.</source>
        <translation>O sistema remoto recusa a associação.</translation>
    </message>
    <message>
        <source>The peer refuses the association: %1.</source>
        <translation>O sistema remoto recusa a associação: %1.</translation>
    </message>
    <message>
        <source>The peer refuses the certificate of this side because it does not trust its issuer.</source>
        <translation>O sistema remoto recusa o certificado deste lado porque não confia no seu emissor.</translation>
    </message>
    <message>
        <source>The peer refuses the certificate of this side because it has been revoked.</source>
        <translation>O sistema remoto recusa o certificado deste lado porque ele foi revogado.</translation>
    </message>
    <message>
        <source>The peer refuses the certificate of this side because it has expired or is not valid yet.</source>
        <translation>O sistema remoto recusa o certificado deste lado porque ele expirou ou ainda não é válido.</translation>
    </message>
    <message>
        <source>The peer refuses the certificate of this side because it is not of a kind that it takes.</source>
        <translation>O sistema remoto recusa o certificado deste lado porque não aceita certificados desse tipo.</translation>
    </message>
    <message>
        <source>The peer refuses the certificate of this side.</source>
        <translation>O sistema remoto recusa o certificado deste lado.</translation>
    </message>
    <message>
        <source>The peer refuses the handshake because a signature of this side does not fit.</source>
        <translation>O sistema remoto recusa a negociação TLS porque uma assinatura deste lado não confere.</translation>
    </message>
    <message>
        <source>The peer refuses the initiate request.</source>
        <translation>O sistema remoto recusa a requisição initiate.</translation>
    </message>
    <message>
        <source>The peer refuses the presentation connection with reason %1.</source>
        <translation>O sistema remoto recusa a conexão de apresentação com o motivo %1.</translation>
    </message>
    <message>
        <source>The peer refuses the presentation connection.</source>
        <translation>O sistema remoto recusa a conexão de apresentação.</translation>
    </message>
    <message>
        <source>The peer refuses the request on this network connection.</source>
        <translation>O sistema remoto recusa a requisição nesta conexão de rede.</translation>
    </message>
    <message>
        <source>The peer refuses the session because it is busy.</source>
        <translation>O sistema remoto recusa a sessão porque está ocupado.</translation>
    </message>
    <message>
        <source>The peer refuses the session with reason %1.</source>
        <translation>O sistema remoto recusa a sessão com o motivo %1.</translation>
    </message>
    <message>
        <source>The peer refuses the session without a reason.</source>
        <translation>O sistema remoto recusa a sessão sem dar um motivo.</translation>
    </message>
    <message>
        <source>The peer refuses the session.</source>
        <translation>O sistema remoto recusa a sessão.</translation>
    </message>
    <message>
        <source>The peer refuses the type of the transport unit.</source>
        <translation>O sistema remoto recusa o tipo da unidade de transporte.</translation>
    </message>
    <message>
        <source>The peer refuses to end the session.</source>
        <translation>O sistema remoto se recusa a encerrar a sessão.</translation>
    </message>
    <message>
        <source>The peer reports an error in the transport protocol.</source>
        <translation>O sistema remoto informa um erro no protocolo de transporte.</translation>
    </message>
    <message>
        <source>The peer reports an invalid header or parameter length.</source>
        <translation>O sistema remoto informa um comprimento inválido de cabeçalho ou de parâmetro.</translation>
    </message>
    <message>
        <source>The peer said nothing for %1 ms.</source>
        <translation>O sistema remoto não enviou nada durante %1 ms.</translation>
    </message>
    <message>
        <source>The peer saw a duplicate transport reference.</source>
        <translation>O sistema remoto encontrou uma referência de transporte duplicada.</translation>
    </message>
    <message>
        <source>The peer saw mismatched transport references.</source>
        <translation>O sistema remoto encontrou referências de transporte que não coincidem.</translation>
    </message>
    <message>
        <source>The peer sent a message of more than %1 octets.</source>
        <translation>O sistema remoto enviou uma mensagem de mais de %1 octetos.</translation>
    </message>
    <message>
        <source>The peer sent a transport unit that does not belong here.</source>
        <translation>O sistema remoto enviou uma unidade de transporte que não cabe neste ponto.</translation>
    </message>
    <message>
        <source>The peer sent a unit of association control that does not belong here.</source>
        <translation>O sistema remoto enviou uma unidade do controle de associação que não cabe neste ponto.</translation>
    </message>
    <message>
        <source>The peer sent a wrong password.</source>
        <translation>O sistema remoto enviou uma senha incorreta.</translation>
    </message>
    <message>
        <source>The peer sent no password.</source>
        <translation>O sistema remoto não enviou nenhuma senha.</translation>
    </message>
    <message>
        <source>The peer sent the session unit &quot;%1&quot;, which does not belong here.</source>
        <translation>O sistema remoto enviou a unidade de sessão “%1”, que não cabe neste ponto.</translation>
    </message>
    <message>
        <source>The peer speaks TLS, which is not configured here.</source>
        <translation>O sistema remoto usa TLS, que não está configurado aqui.</translation>
    </message>
    <message>
        <source>The peer&apos;s PDU size of %1 octets is too small.</source>
        <translation>O tamanho de PDU do sistema remoto, %1 octetos, é pequeno demais.</translation>
    </message>
    <message>
        <source>The peer&apos;s association control aborted the association.</source>
        <translation>O controle de associação do sistema remoto abortou a associação.</translation>
    </message>
    <message>
        <source>The peer&apos;s certificate &quot;%1&quot;</source>
        <translation>O certificado do sistema remoto “%1”</translation>
    </message>
    <message>
        <source>The peer&apos;s certificate &quot;%1&quot; is not one of those that are pinned; its fingerprint is %2.</source>
        <translation>O certificado do sistema remoto “%1” não é um daqueles cuja impressão digital está registrada; a impressão digital dele é %2.</translation>
    </message>
    <message>
        <source>The peer&apos;s initiate answer cannot be read: %1.</source>
        <translation>Não é possível ler a resposta initiate do sistema remoto: %1.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer aborted without a reason.</source>
        <translation>A camada de apresentação do sistema remoto abortou a conexão sem dar um motivo.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer aborted.</source>
        <translation>A camada de apresentação do sistema remoto abortou a conexão.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer did not expect a parameter and aborted.</source>
        <translation>A camada de apresentação do sistema remoto não esperava um parâmetro e abortou a conexão.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer did not expect a session service and aborted.</source>
        <translation>A camada de apresentação do sistema remoto não esperava um serviço de sessão e abortou a conexão.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer did not expect a unit and aborted.</source>
        <translation>A camada de apresentação do sistema remoto não esperava uma unidade e abortou a conexão.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer does not recognise a parameter and aborted.</source>
        <translation>A camada de apresentação do sistema remoto não reconhece um parâmetro e abortou a conexão.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer does not recognise a unit and aborted.</source>
        <translation>A camada de apresentação do sistema remoto não reconhece uma unidade e abortou a conexão.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer found an invalid parameter value and aborted.</source>
        <translation>A camada de apresentação do sistema remoto encontrou um valor de parâmetro inválido e abortou a conexão.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer has reached a limit of its own.</source>
        <translation>A camada de apresentação do sistema remoto atingiu um limite próprio.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer is congested.</source>
        <translation>A camada de apresentação do sistema remoto está congestionada.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer refuses the connection without a reason.</source>
        <translation>A camada de apresentação do sistema remoto recusa a conexão sem dar um motivo.</translation>
    </message>
    <message>
        <source>The peer&apos;s session layer aborted the session.</source>
        <translation>A camada de sessão do sistema remoto abortou a sessão.</translation>
    </message>
    <message>
        <source>The peer&apos;s session layer is congested.</source>
        <translation>A camada de sessão do sistema remoto está congestionada.</translation>
    </message>
    <message>
        <source>The peer&apos;s session layer refuses the session because of a restriction of its own.</source>
        <translation>A camada de sessão do sistema remoto recusa a sessão por causa de uma restrição própria.</translation>
    </message>
    <message>
        <source>The peer&apos;s session layer refuses the session.</source>
        <translation>A camada de sessão do sistema remoto recusa a sessão.</translation>
    </message>
    <message>
        <source>The peer&apos;s session layer reports an error in the protocol and aborted the session.</source>
        <translation>A camada de sessão do sistema remoto informa um erro de protocolo e abortou a sessão.</translation>
    </message>
    <message>
        <source>The peer&apos;s session request cannot be accepted.</source>
        <translation>A requisição de sessão do sistema remoto não pode ser aceita.</translation>
    </message>
    <message>
        <source>The peer&apos;s transport layer is congested.</source>
        <translation>A camada de transporte do sistema remoto está congestionada.</translation>
    </message>
    <message>
        <source>The peer&apos;s transport references have overflowed.</source>
        <translation>As referências de transporte do sistema remoto se esgotaram.</translation>
    </message>
    <message>
        <source>The peer&apos;s transport selector is congested.</source>
        <translation>O seletor de transporte do sistema remoto está congestionado.</translation>
    </message>
    <message>
        <source>The position is not within the file.</source>
        <translation>A posição não está dentro do arquivo.</translation>
    </message>
    <message>
        <source>The private key in the file &quot;%1&quot; cannot be used (%2).</source>
        <translation>A chave privada do arquivo “%1” não pode ser usada (%2).</translation>
    </message>
    <message>
        <source>The private key in the file &quot;%1&quot; does not fit the certificate in the file &quot;%2&quot;.</source>
        <translation>A chave privada do arquivo “%1” não corresponde ao certificado do arquivo “%2”.</translation>
    </message>
    <message>
        <source>The private key in the file &quot;%1&quot; does not open with the password that is given.</source>
        <translation>A chave privada do arquivo “%1” não se abre com a senha indicada.</translation>
    </message>
    <message>
        <source>The private key in the file &quot;%1&quot; is encrypted, and no password is given.</source>
        <translation>A chave privada do arquivo “%1” está criptografada, e nenhuma senha foi indicada.</translation>
    </message>
    <message>
        <source>The report ends before its %1.</source>
        <translation>O relatório termina antes do seu campo %1.</translation>
    </message>
    <message>
        <source>The report has no value for its %1: %2.</source>
        <translation>O relatório não tem valor para o seu campo %1: %2.</translation>
    </message>
    <message>
        <source>The report says that it brings %1 members, which are %2 values, but it has %3.</source>
        <translation>O relatório anuncia %1 membros, que são %2 valores, mas tem %3.</translation>
    </message>
    <message>
        <source>The report&apos;s %1 is neither true nor false.</source>
        <translation>O campo %1 do relatório não é verdadeiro nem falso.</translation>
    </message>
    <message>
        <source>The report&apos;s %1 is not a binary time.</source>
        <translation>O campo %1 do relatório não é um tempo binário.</translation>
    </message>
    <message>
        <source>The report&apos;s %1 is not a bit string.</source>
        <translation>O campo %1 do relatório não é uma cadeia de bits.</translation>
    </message>
    <message>
        <source>The report&apos;s %1 is not a number of 32 bits without sign.</source>
        <translation>O campo %1 do relatório não é um número de 32 bits sem sinal.</translation>
    </message>
    <message>
        <source>The report&apos;s %1 is not a string of octets.</source>
        <translation>O campo %1 do relatório não é uma cadeia de octetos.</translation>
    </message>
    <message>
        <source>The report&apos;s %1 is not a text.</source>
        <translation>O campo %1 do relatório não é um texto.</translation>
    </message>
    <message>
        <source>The request is longer than the negotiated PDU size of %1 octets.</source>
        <translation>A requisição é mais longa que o tamanho de PDU negociado de %1 octetos.</translation>
    </message>
    <message>
        <source>The request was not sent: it waited for a place behind calls that the peer has not answered.</source>
        <translation>A requisição não foi enviada: esperava um lugar atrás de requisições a que o sistema remoto não respondeu.</translation>
    </message>
    <message>
        <source>The revocation list in the file &quot;%1&quot; cannot be used (%2).</source>
        <translation>A lista de revogação do arquivo “%1” não pode ser usada (%2).</translation>
    </message>
    <message>
        <source>The root element is in no name space; it should be in &quot;%1&quot;.</source>
        <translation>O elemento raiz não está em nenhum espaço de nomes; deveria estar em “%1”.</translation>
    </message>
    <message>
        <source>The root element is in the name space &quot;%1&quot; instead of &quot;%2&quot;.</source>
        <translation>O elemento raiz está no espaço de nomes “%1” em vez de em “%2”.</translation>
    </message>
    <message>
        <source>The server was stopped.</source>
        <translation>O servidor foi parado.</translation>
    </message>
    <message>
        <source>The service was called out of sequence.</source>
        <translation>O serviço foi chamado fora de sequência.</translation>
    </message>
    <message>
        <source>The services offered do not suit the device.</source>
        <translation>Os serviços oferecidos não são adequados ao dispositivo.</translation>
    </message>
    <message>
        <source>The session parameter %1 has a wrong length.</source>
        <translation>O parâmetro de sessão %1 tem um comprimento incorreto.</translation>
    </message>
    <message>
        <source>The size of transport units is not one of 128 to 8,192 octets.</source>
        <translation>O tamanho das unidades de transporte não é um dos tamanhos de 128 a 8192 octetos.</translation>
    </message>
    <message>
        <source>The state of the device does not allow this.</source>
        <translation>O estado do dispositivo não permite isto.</translation>
    </message>
    <message>
        <source>The transport classes of both sides do not match.</source>
        <translation>As classes de transporte dos dois lados não coincidem.</translation>
    </message>
    <message>
        <source>The transport unit &quot;%1&quot; is shorter than its fixed part.</source>
        <translation>A unidade de transporte “%1” é mais curta que a sua parte fixa.</translation>
    </message>
    <message>
        <source>The truth value is written &quot;%1&quot; instead of &quot;true&quot; or &quot;false&quot;.</source>
        <translation>O valor lógico está escrito “%1” em vez de “true” ou “false”.</translation>
    </message>
    <message>
        <source>The type is not supported.</source>
        <translation>O tipo não é suportado.</translation>
    </message>
    <message>
        <source>The type of %1 cannot be read: %2.</source>
        <translation>Não é possível ler o tipo de %1: %2.</translation>
    </message>
    <message>
        <source>The types do not agree.</source>
        <translation>Os tipos não coincidem.</translation>
    </message>
    <message>
        <source>The value %1 does not fit the type %2 of the device.</source>
        <translation>O valor %1 não é adequado ao tipo %2 do dispositivo.</translation>
    </message>
    <message>
        <source>The value &quot;%1&quot; differs in blanks or capitals from what is expected.</source>
        <translation>O valor “%1” difere do esperado em espaços ou maiúsculas.</translation>
    </message>
    <message>
        <source>The value has not the type of the object.</source>
        <translation>O valor não tem o tipo do objeto.</translation>
    </message>
    <message>
        <source>The value is empty, so the attribute has none.</source>
        <translation>O valor está vazio, portanto o atributo não tem valor.</translation>
    </message>
    <message>
        <source>The value is given by its number &quot;%1&quot; instead of its text.</source>
        <translation>O valor é indicado pelo seu número “%1” em vez do seu texto.</translation>
    </message>
    <message>
        <source>The value is not allowed for the object.</source>
        <translation>O valor não é permitido para o objeto.</translation>
    </message>
    <message>
        <source>The value of the control block does not match its type %1.</source>
        <translation>O valor do bloco de controle não corresponde ao seu tipo %1.</translation>
    </message>
    <message>
        <source>There are %1 associations already, which is the limit.</source>
        <translation>Já há %1 associações; esse é o limite.</translation>
    </message>
    <message>
        <source>There is a problem with the other application.</source>
        <translation>Há um problema com a outra aplicação.</translation>
    </message>
    <message>
        <source>There is another IED of the name &quot;%1&quot;.</source>
        <translation>Há outro IED com o nome “%1”.</translation>
    </message>
    <message>
        <source>There is another control block &quot;%1&quot;.</source>
        <translation>Há outro bloco de controle “%1”.</translation>
    </message>
    <message>
        <source>There is another data set &quot;%1&quot;.</source>
        <translation>Há outro conjunto de dados “%1”.</translation>
    </message>
    <message>
        <source>There is another logical device &quot;%1&quot;.</source>
        <translation>Há outro dispositivo lógico “%1”.</translation>
    </message>
    <message>
        <source>There is another logical node &quot;%1&quot;.</source>
        <translation>Há outro nó lógico “%1”.</translation>
    </message>
    <message>
        <source>There is no &quot;%1&quot;</source>
        <translation>Não há “%1”</translation>
    </message>
    <message>
        <source>There is no association.</source>
        <translation>Não há associação.</translation>
    </message>
    <message>
        <source>There is no data set %1.</source>
        <translation>Não há conjunto de dados %1.</translation>
    </message>
    <message>
        <source>There is no functional constraint (attribute fc)</source>
        <translation>Não há restrição funcional (atributo fc)</translation>
    </message>
    <message>
        <source>There is no logical device &quot;%1&quot;</source>
        <translation>Não há dispositivo lógico “%1”</translation>
    </message>
    <message>
        <source>There is no logical node &quot;%1&quot; in &quot;%2&quot;</source>
        <translation>Não há nó lógico “%1” em “%2”</translation>
    </message>
    <message>
        <source>There is not enough memory to read the file.</source>
        <translation>Não há memória suficiente para ler o arquivo.</translation>
    </message>
    <message>
        <source>There is not enough room for the file.</source>
        <translation>Não há espaço suficiente para o arquivo.</translation>
    </message>
    <message>
        <source>There is nothing of functional constraint &quot;%1&quot; in &quot;%2&quot;</source>
        <translation>Não há nada da restrição funcional “%1” em “%2”</translation>
    </message>
    <message>
        <source>This is no report control block: it has no RptEna.</source>
        <translation>Este não é um bloco de controle de relatório: não tem RptEna.</translation>
    </message>
    <message>
        <source>This is no setting group control block: NumOfSG or ActSG is missing.</source>
        <translation>Este não é um bloco de controle de grupos de ajustes: falta NumOfSG ou ActSG.</translation>
    </message>
    <message>
        <source>This is not a report but %1.</source>
        <translation>Isto não é um relatório, mas %1.</translation>
    </message>
    <message>
        <source>This is not an SCL file: its root element is &quot;%1&quot;.</source>
        <translation>Este não é um arquivo SCL: o seu elemento raiz é “%1”.</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Arquivos abertos demais</translation>
    </message>
    <message>
        <source>User information is in a form that is not supported.</source>
        <translation>As informações do usuário estão em uma forma não suportada.</translation>
    </message>
    <message>
        <source>What the peer sent cannot be read: %1.</source>
        <translation>O que o sistema remoto enviou não pode ser lido: %1.</translation>
    </message>
    <message>
        <source>XML or text declaration not at start of entity</source>
        <translation>Declaração XML ou de texto fora do início da entidade</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not exist in type &quot;%2&quot;; what is given for it is left out.</source>
        <translation>“%1” não existe no tipo “%2”; o que se indica para ele foi omitido.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a value, but it is a structure.</source>
        <translation>“%1” tem um valor, mas é uma estrutura.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no element %2</source>
        <translation>“%1” não tem o elemento %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no element %2; what is given for it is left out.</source>
        <translation>“%1” não tem o elemento %2; o que se indica para ele foi omitido.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a directory, not a file.</source>
        <translation>“%1” é um diretório, não um arquivo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is an array, and no element is given</source>
        <translation>“%1” é uma matriz, e nenhum elemento foi indicado</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is defined twice in its type; the first is used.</source>
        <translation>“%1” está definido duas vezes no seu tipo; usa-se a primeira definição.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither &quot;true&quot; nor &quot;false&quot;; %2 is used.</source>
        <translation>“%1” não é “true” nem “false”; usa-se %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a SHA-256 fingerprint of 64 hexadecimal digits.</source>
        <translation>“%1” não é uma impressão digital SHA-256 de 64 dígitos hexadecimais.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a basic type of the standard; values are kept as texts.</source>
        <translation>“%1” não é um tipo básico da norma; os valores são mantidos como textos.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a directory.</source>
        <translation>“%1” não é um diretório.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a functional constraint.</source>
        <translation>“%1” não é uma restrição funcional.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a host name that a certificate can have.</source>
        <translation>“%1” não é um nome de host que um certificado possa ter.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number of array elements; the element is taken as a single one.</source>
        <translation>“%1” não é um número de elementos de matriz; o elemento é tratado como elemento simples.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number of milliseconds.</source>
        <translation>“%1” não é um número de milissegundos.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a value of %2 &quot;%3&quot;; the attribute has no value.</source>
        <translation>“%1” não é um valor de %2 “%3”; o atributo não tem valor.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a value of %2; %3 is used.</source>
        <translation>“%1” não é um valor de %2; usa-se %3.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a value of %2; the attribute has no value.</source>
        <translation>“%1” não é um valor de %2; o atributo não tem valor.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a value of its type; the attribute has no value.</source>
        <translation>“%1” não é um valor do seu tipo; o atributo não tem valor.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an address of a network interface.</source>
        <translation>“%1” não é um endereço de uma interface de rede.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an array</source>
        <translation>“%1” não é uma matriz</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an array; the element number is ignored.</source>
        <translation>“%1” não é uma matriz; o número do elemento é ignorado.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an ordinal; the literal is left out.</source>
        <translation>“%1” não é um ordinal; o literal foi omitido.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the number of an array element.</source>
        <translation>“%1” não é o número de um elemento de matriz.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names an attribute, which takes a DAI.</source>
        <translation>“%1” nomeia um atributo, que precisa de um DAI.</translation>
    </message>
    <message>
        <source>a certificate</source>
        <translation>um certificado</translation>
    </message>
    <message>
        <source>a command is being executed already</source>
        <translation>um comando já está em execução</translation>
    </message>
    <message>
        <source>a parameter is being changed</source>
        <translation>um parâmetro está sendo alterado</translation>
    </message>
    <message>
        <source>a revocation list</source>
        <translation>uma lista de revogação</translation>
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
        <translation>exige-se uma autenticação</translation>
    </message>
    <message>
        <source>an authentication mechanism is required</source>
        <translation>exige-se um mecanismo de autenticação</translation>
    </message>
    <message>
        <source>an authority</source>
        <translation>uma autoridade certificadora</translation>
    </message>
    <message>
        <source>an unknown date</source>
        <translation>uma data desconhecida</translation>
    </message>
    <message>
        <source>another object of the domain is being controlled</source>
        <translation>outro objeto do domínio está sendo comandado</translation>
    </message>
    <message>
        <source>blocked because the switching authority lies elsewhere (local or remote)</source>
        <translation>bloqueio porque a autoridade de comando está em outro lugar (local ou remoto)</translation>
    </message>
    <message>
        <source>blocked by an event of the process</source>
        <translation>bloqueio por um evento do processo</translation>
    </message>
    <message>
        <source>blocked by interlocking</source>
        <translation>bloqueio por intertravamento</translation>
    </message>
    <message>
        <source>blocked by synchrocheck</source>
        <translation>bloqueio pela verificação de sincronismo</translation>
    </message>
    <message>
        <source>blocked by the data object that blocks commands</source>
        <translation>bloqueio pelo objeto de dados que bloqueia os comandos</translation>
    </message>
    <message>
        <source>blocked by the health of the logical node</source>
        <translation>bloqueio pelo estado de saúde do nó lógico</translation>
    </message>
    <message>
        <source>blocked by the mode of the logical node</source>
        <translation>bloqueio pelo modo do nó lógico</translation>
    </message>
    <message>
        <source>control error %1</source>
        <translation>erro de comando %1</translation>
    </message>
    <message>
        <source>duplicate attribute</source>
        <translation>atributo duplicado</translation>
    </message>
    <message>
        <source>ended because the position deviates from the command</source>
        <translation>encerrado porque a posição diverge do comando</translation>
    </message>
    <message>
        <source>ended beyond the wanted position</source>
        <translation>encerrado além da posição desejada</translation>
    </message>
    <message>
        <source>ended by a cancel</source>
        <translation>encerrado por um cancelamento</translation>
    </message>
    <message>
        <source>ended by a trip</source>
        <translation>encerrado por um trip</translation>
    </message>
    <message>
        <source>ended by the loss of the connection with the client that issued it</source>
        <translation>encerrado pela perda da conexão com o cliente que deu o comando</translation>
    </message>
    <message>
        <source>error %1</source>
        <translation>erro %1</translation>
    </message>
    <message>
        <source>it gives no reason; another client may have selected the object.</source>
        <translation>não informa o motivo; outro cliente pode ter selecionado o objeto.</translation>
    </message>
    <message>
        <source>it has no address</source>
        <translation>não tem endereço</translation>
    </message>
    <message>
        <source>it is not in a logical device.</source>
        <translation>não está em um dispositivo lógico.</translation>
    </message>
    <message>
        <source>it names more than one element of one array.</source>
        <translation>nomeia mais de um elemento de uma mesma matriz.</translation>
    </message>
    <message>
        <source>it names several parts.</source>
        <translation>nomeia várias partes.</translation>
    </message>
    <message>
        <source>junk after document element</source>
        <translation>conteúdo excedente após o elemento raiz do documento</translation>
    </message>
    <message>
        <source>locked by another client</source>
        <translation>bloqueio por outro cliente</translation>
    </message>
    <message>
        <source>mismatched tag</source>
        <translation>a tag de fechamento não corresponde à de abertura</translation>
    </message>
    <message>
        <source>no cause</source>
        <translation>nenhuma causa</translation>
    </message>
    <message>
        <source>no error</source>
        <translation>nenhum erro</translation>
    </message>
    <message>
        <source>no reason given</source>
        <translation>nenhum motivo informado</translation>
    </message>
    <message>
        <source>nobody answers who knows names</source>
        <translation>nenhum servidor de nomes responde</translation>
    </message>
    <message>
        <source>nobody knows it</source>
        <translation>ninguém o conhece</translation>
    </message>
    <message>
        <source>reason %1</source>
        <translation>motivo %1</translation>
    </message>
    <message>
        <source>syntax error</source>
        <translation>erro de sintaxe</translation>
    </message>
    <message>
        <source>the application context is not supported</source>
        <translation>o contexto de aplicação não é suportado</translation>
    </message>
    <message>
        <source>the authentication failed</source>
        <translation>a autenticação falhou</translation>
    </message>
    <message>
        <source>the authentication mechanism is not recognised</source>
        <translation>o mecanismo de autenticação não é reconhecido</translation>
    </message>
    <message>
        <source>the called AE invocation identifier is not recognised</source>
        <translation>o identificador de invocação AE chamado não é reconhecido</translation>
    </message>
    <message>
        <source>the called AE qualifier is not recognised</source>
        <translation>o qualificador AE chamado não é reconhecido</translation>
    </message>
    <message>
        <source>the called AP invocation identifier is not recognised</source>
        <translation>o identificador de invocação AP chamado não é reconhecido</translation>
    </message>
    <message>
        <source>the called AP title is not recognised</source>
        <translation>o título AP chamado não é reconhecido</translation>
    </message>
    <message>
        <source>the calling AE invocation identifier is not recognised</source>
        <translation>o identificador de invocação AE chamador não é reconhecido</translation>
    </message>
    <message>
        <source>the calling AE qualifier is not recognised</source>
        <translation>o qualificador AE chamador não é reconhecido</translation>
    </message>
    <message>
        <source>the calling AP invocation identifier is not recognised</source>
        <translation>o identificador de invocação AP chamador não é reconhecido</translation>
    </message>
    <message>
        <source>the calling AP title is not recognised</source>
        <translation>o título AP chamador não é reconhecido</translation>
    </message>
    <message>
        <source>the client has no authority for it</source>
        <translation>o cliente não tem autorização para isto</translation>
    </message>
    <message>
        <source>the functional constraint is missing.</source>
        <translation>falta a restrição funcional.</translation>
    </message>
    <message>
        <source>the name of the logical device is missing or wrong.</source>
        <translation>o nome do dispositivo lógico falta ou está incorreto.</translation>
    </message>
    <message>
        <source>the name of the logical node is missing or wrong.</source>
        <translation>o nome do nó lógico falta ou está incorreto.</translation>
    </message>
    <message>
        <source>the object is not selected</source>
        <translation>o objeto não está selecionado</translation>
    </message>
    <message>
        <source>the object is selected already</source>
        <translation>o objeto já está selecionado</translation>
    </message>
    <message>
        <source>the operator test failed</source>
        <translation>o teste do operador falhou</translation>
    </message>
    <message>
        <source>the own certificate</source>
        <translation>o certificado deste lado</translation>
    </message>
    <message>
        <source>the parameters of the service contradict those of the selection</source>
        <translation>os parâmetros do serviço contradizem os da seleção</translation>
    </message>
    <message>
        <source>the position has been reached already</source>
        <translation>a posição já foi atingida</translation>
    </message>
    <message>
        <source>the position is not valid</source>
        <translation>a posição não é válida</translation>
    </message>
    <message>
        <source>the private key</source>
        <translation>a chave privada</translation>
    </message>
    <message>
        <source>the selection failed</source>
        <translation>a seleção falhou</translation>
    </message>
    <message>
        <source>the service is not supported</source>
        <translation>o serviço não é suportado</translation>
    </message>
    <message>
        <source>the tap changer is at the end of its range</source>
        <translation>o comutador de tap está no fim do seu curso</translation>
    </message>
    <message>
        <source>the time for it is over</source>
        <translation>o tempo para isto já passou</translation>
    </message>
    <message>
        <source>the time-out test failed</source>
        <translation>o teste do tempo limite falhou</translation>
    </message>
    <message>
        <source>there is no common version of association control</source>
        <translation>não há versão comum do controle de associação</translation>
    </message>
    <message>
        <source>unclosed CDATA section</source>
        <translation>seção CDATA não fechada</translation>
    </message>
    <message>
        <source>unclosed token</source>
        <translation>elemento léxico não fechado</translation>
    </message>
    <message>
        <source>unknown cause</source>
        <translation>causa desconhecida</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>erro desconhecido</translation>
    </message>
    <message>
        <source>%1: the value does not have the form of its type.</source>
        <translation>%1: o valor não tem a forma do seu tipo.</translation>
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
    <message>
        <source>&amp;Undo Remove</source>
        <translation>Desfa&amp;zer a remoção</translation>
    </message>
    <message>
        <source>Ctrl+Z</source>
        <translation>Ctrl+Z</translation>
    </message>
    <message>
        <source>Remove Device</source>
        <translation>Remover dispositivo</translation>
    </message>
    <message>
        <source>Take %1 off the list?</source>
        <translation>Remover %1 da lista?</translation>
    </message>
    <message>
        <source>Its connection ends, and windows that are open for it are no longer served.</source>
        <translation>A conexão dele será encerrada, e as janelas abertas para ele deixarão de funcionar.</translation>
    </message>
    <message>
        <source>Windows that are open for it are no longer served.</source>
        <translation>As janelas abertas para ele deixarão de funcionar.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Remover</translation>
    </message>
    <message>
        <source>%1 was taken off the list; %2 puts it back.</source>
        <translation>%1 foi removido da lista; %2 o traz de volta.</translation>
    </message>
    <message>
        <source>%1 was taken off the list; its file stays where it is, and %2 puts it back.</source>
        <translation>%1 foi removido da lista; o arquivo permanece onde está, e %2 traz o dispositivo de volta.</translation>
    </message>
    <message>
        <source>&amp;Undo Remove of %1</source>
        <translation>Desfa&amp;zer a remoção de %1</translation>
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
        <source>The trace stayed empty.</source>
        <translation>O rastreamento ficou vazio.</translation>
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
    <name>WaitingCalls</name>
    <message>
        <source>Waiting for %1</source>
        <translation>Aguardando %1</translation>
    </message>
    <message>
        <source>%1 has not answered yet (%2).</source>
        <translation>%1 ainda não respondeu (%2).</translation>
    </message>
    <message>
        <source>Cancelling. What the device was asked before may still be done.</source>
        <translation>Cancelando. O que foi pedido antes ao dispositivo ainda pode ser executado.</translation>
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
