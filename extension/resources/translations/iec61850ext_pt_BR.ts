<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en_US">
<context>
    <name>ControlCo</name>
    <message>
        <source>Control</source>
        <translation>Comando</translation>
    </message>
    <message>
        <source>Control Object</source>
        <translation>Objeto de comando</translation>
    </message>
    <message>
        <source>Data Obj :</source>
        <translation>Objeto de dados:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Current Value :</source>
        <translation>Valor atual:</translation>
    </message>
    <message>
        <source>Current value</source>
        <translation>Valor atual</translation>
    </message>
    <message>
        <source>Control Value :</source>
        <translation>Valor do comando:</translation>
    </message>
    <message>
        <source>Control value</source>
        <translation>Valor do comando</translation>
    </message>
    <message>
        <source>Test :</source>
        <translation>Teste:</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Teste</translation>
    </message>
    <message>
        <source>Category :</source>
        <translation>Categoria:</translation>
    </message>
    <message>
        <source>Originator category</source>
        <translation>Categoria do originador</translation>
    </message>
    <message>
        <source>Check :</source>
        <translation>Verificação:</translation>
    </message>
    <message>
        <source>Check conditions</source>
        <translation>Condições de verificação</translation>
    </message>
</context>
<context>
    <name>DatasetSelectWidget</name>
    <message>
        <source>Selete Datas</source>
        <translation>Selecionar dados</translation>
    </message>
    <message>
        <source>DataSet Name : </source>
        <translation>Nome do conjunto de dados: </translation>
    </message>
    <message>
        <source>Data set name</source>
        <translation>Nome do conjunto de dados</translation>
    </message>
    <message>
        <source>Data set members</source>
        <translation>Membros do conjunto de dados</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>Falha</translation>
    </message>
    <message>
        <source>No data selected. can`t create dataset</source>
        <translation>Nenhum dado selecionado. O conjunto de dados não pode ser criado.</translation>
    </message>
    <message>
        <source>Please input dataset name</source>
        <translation>Informe um nome para o conjunto de dados.</translation>
    </message>
</context>
<context>
    <name>ExplanationTips</name>
    <message>
        <source>Data type:</source>
        <translation>Tipo de dados:</translation>
    </message>
    <message>
        <source>Enumeration:</source>
        <translation>Enumeração:</translation>
    </message>
    <message>
        <source>Functional constraint:</source>
        <translation>Restrição funcional:</translation>
    </message>
    <message>
        <source>Presence:</source>
        <translation>Presença:</translation>
    </message>
    <message>
        <source>Transient:</source>
        <translation>Transitório:</translation>
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
        <translation>obrigatório</translation>
    </message>
    <message>
        <source>optional</source>
        <translation>opcional</translation>
    </message>
    <message>
        <source>true only for a moment</source>
        <translation>verdadeiro apenas por um instante</translation>
    </message>
</context>
<context>
    <name>FailureReport</name>
    <message>
        <source>The whole text, %1 lines:</source>
        <translation>O texto completo, %1 linhas:</translation>
    </message>
</context>
<context>
    <name>FileModel</name>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
</context>
<context>
    <name>FileServiceDialog</name>
    <message>
        <source>IED File Service</source>
        <translation>Serviço de arquivos do IED</translation>
    </message>
    <message>
        <source>Server Directory : </source>
        <translation>Diretório no IED: </translation>
    </message>
    <message>
        <source>Server directory</source>
        <translation>Diretório no IED</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Atualizar</translation>
    </message>
    <message>
        <source>IED Directory</source>
        <translation>Diretório do IED</translation>
    </message>
    <message>
        <source>IED directory</source>
        <translation>Diretório do IED</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Baixar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Excluir</translation>
    </message>
    <message>
        <source>Upload File</source>
        <translation>Enviar arquivo</translation>
    </message>
    <message>
        <source>Select File : </source>
        <translation>Arquivo: </translation>
    </message>
    <message>
        <source>File to upload</source>
        <translation>Arquivo a enviar</translation>
    </message>
    <message>
        <source>Select file</source>
        <translation>Selecionar arquivo</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Target File Name :</source>
        <translation>Nome no IED:</translation>
    </message>
    <message>
        <source>Target file name</source>
        <translation>Nome no IED</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>Enviar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>All Files(*.*)</source>
        <translation>Todos os arquivos(*.*)</translation>
    </message>
    <message>
        <source>Fail to Read File: %1 error:%2</source>
        <translation>Não foi possível ler o arquivo %1: %2</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Sucesso</translation>
    </message>
    <message>
        <source>Download Finished</source>
        <translation>Download concluído</translation>
    </message>
    <message>
        <source>Fail to Delete %1 %2</source>
        <translation>Não foi possível excluir %1: %2</translation>
    </message>
    <message>
        <source>Delete Finished</source>
        <translation>Exclusão concluída</translation>
    </message>
    <message>
        <source>Fail to Upload File: %1 error:%2</source>
        <translation>Não foi possível enviar o arquivo %1: %2</translation>
    </message>
    <message>
        <source>Upload Finished</source>
        <translation>Envio concluído</translation>
    </message>
    <message>
        <source>Fail to readDirectory: Cannot connect to driver</source>
        <translation>Não foi possível ler o diretório: sem conexão com o driver</translation>
    </message>
    <message>
        <source>Cannot connect to driver</source>
        <translation>Sem conexão com o driver</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>Falha</translation>
    </message>
    <message>
        <source>Download File</source>
        <translation>Baixar arquivo</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Todos os arquivos (*)</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 já existe.
Deseja substituí-lo?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2</source>
        <translation>“%1” não pode ser gravado: %2</translation>
    </message>
</context>
<context>
    <name>IEC61850TaskExtention</name>
    <message>
        <source>IED Browser</source>
        <translation>Navegador do IED</translation>
    </message>
    <message>
        <source>IED File Service</source>
        <translation>Serviço de arquivos do IED</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Interromper</translation>
    </message>
    <message>
        <source>Report Control</source>
        <translation>Controle de relatório</translation>
    </message>
</context>
<context>
    <name>IEDModel</name>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
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
        <translation>(excluível)</translation>
    </message>
</context>
<context>
    <name>IEDModelView</name>
    <message>
        <source>IED Browser</source>
        <translation>Navegador do IED</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Ler</translation>
    </message>
    <message>
        <source>Write...</source>
        <translation>Escrever...</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Selecionar</translation>
    </message>
    <message>
        <source>Operate</source>
        <translation>Operar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Expand All</source>
        <translation>Expandir tudo</translation>
    </message>
    <message>
        <source>Collapse All</source>
        <translation>Recolher tudo</translation>
    </message>
    <message>
        <source>Open Report Control</source>
        <translation>Abrir o bloco de controle de relatório</translation>
    </message>
    <message>
        <source>Open Setting Group Control</source>
        <translation>Abrir o bloco de controle de grupos de ajustes</translation>
    </message>
    <message>
        <source>Locate</source>
        <translation>Localizar</translation>
    </message>
    <message>
        <source>Create Persistent DataSet</source>
        <translation>Criar conjunto de dados persistente</translation>
    </message>
    <message>
        <source>Create Non-Persistent DataSet</source>
        <translation>Criar conjunto de dados não persistente</translation>
    </message>
    <message>
        <source>Delete DataSet</source>
        <translation>Excluir conjunto de dados</translation>
    </message>
    <message>
        <source>GetDataSet List</source>
        <translation>Lista de conjuntos de dados</translation>
    </message>
    <message>
        <source>GetDataSet Directory</source>
        <translation>Diretório do conjunto de dados</translation>
    </message>
    <message>
        <source>Get BRCB</source>
        <translation>Ler bloco de relatório com buffer (BRCB)</translation>
    </message>
    <message>
        <source>Get URCB</source>
        <translation>Ler bloco de relatório sem buffer (URCB)</translation>
    </message>
    <message>
        <source>Get SGCB</source>
        <translation>Ler bloco de grupos de ajustes (SGCB)</translation>
    </message>
    <message>
        <source>GetServer Directory</source>
        <translation>Diretório do servidor</translation>
    </message>
    <message>
        <source>GetLogicalDevice Directory</source>
        <translation>Diretório do dispositivo lógico</translation>
    </message>
    <message>
        <source>GetLogicalNode Directory</source>
        <translation>Diretório do nó lógico</translation>
    </message>
    <message>
        <source>GetData Directory</source>
        <translation>Diretório dos dados</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>Falha</translation>
    </message>
    <message>
        <source>Cannot connect to driver</source>
        <translation>Sem conexão com o driver</translation>
    </message>
    <message>
        <source>The description of this device is not whole: the tree shows what could be read of it.</source>
        <translation>A descrição deste dispositivo não está completa: a árvore mostra o que foi possível ler dela.</translation>
    </message>
</context>
<context>
    <name>OfflineSGCB</name>
    <message>
        <source>OfflineSGCB</source>
        <translation>Grupos de ajustes (offline)</translation>
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
        <translation>Grupo ativo: </translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>PropertyDelegate</name>
    <message>
        <source>%1 &quot;%2&quot; keeps its value.</source>
        <translation>%1 “%2” mantém o seu valor.</translation>
    </message>
</context>
<context>
    <name>PropertyEditor</name>
    <message>
        <source>A whole number from %1 to %2 is needed.</source>
        <translation>É necessário um número inteiro de %1 a %2.</translation>
    </message>
    <message>
        <source>A number with a decimal point is needed, such as 0.25 or 1e-3.</source>
        <translation>É necessário um número com ponto decimal, por exemplo 0.25 ou 1e-3.</translation>
    </message>
    <message>
        <source>One character is needed.</source>
        <translation>É necessário um único caractere.</translation>
    </message>
    <message>
        <source>True</source>
        <translation>Verdadeiro</translation>
    </message>
    <message>
        <source>False</source>
        <translation>Falso</translation>
    </message>
    <message>
        <source>The number is too large: the data type ends at %1.</source>
        <translation>O número é grande demais: o tipo de dados termina em %1.</translation>
    </message>
    <message>
        <source>The number is too small: in this data type it would become 0.</source>
        <translation>O número é pequeno demais: neste tipo de dados ele se tornaria 0.</translation>
    </message>
    <message>
        <source>Not all that was typed was taken. Press Enter again if %1 is meant.</source>
        <translation>Nem tudo o que foi digitado foi aceito. Pressione Enter novamente se a intenção for %1.</translation>
    </message>
    <message>
        <source>The point in %1 is read as the decimal point. Press Enter again if this is meant.</source>
        <translation>O ponto em %1 é lido como ponto decimal. Pressione Enter novamente se essa for a intenção.</translation>
    </message>
</context>
<context>
    <name>QtTreePropertyBrowser</name>
    <message>
        <source>Properties</source>
        <translation>Propriedades</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Propriedade</translation>
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
        <translation>Bloco de controle de relatório</translation>
    </message>
    <message>
        <source>Report Name : </source>
        <translation>Nome do relatório: </translation>
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
        <translation>Geral</translation>
    </message>
    <message>
        <source>Report Id :</source>
        <translation>ID do relatório:</translation>
    </message>
    <message>
        <source>Change the report id</source>
        <translation>Alterar o ID do relatório</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Alterar</translation>
    </message>
    <message>
        <source>Client: </source>
        <translation>Cliente: </translation>
    </message>
    <message>
        <source>DataSet :</source>
        <translation>Conjunto de dados:</translation>
    </message>
    <message>
        <source>Data set</source>
        <translation>Conjunto de dados</translation>
    </message>
    <message>
        <source>Change the data set</source>
        <translation>Alterar o conjunto de dados</translation>
    </message>
    <message>
        <source>Trigger Option</source>
        <translation>Opções de disparo</translation>
    </message>
    <message>
        <source>Data Change</source>
        <translation>Mudança de dado</translation>
    </message>
    <message>
        <source>Quality Change</source>
        <translation>Mudança de qualidade</translation>
    </message>
    <message>
        <source>Data Update</source>
        <translation>Atualização de dado</translation>
    </message>
    <message>
        <source>Integrity </source>
        <translation>Integridade </translation>
    </message>
    <message>
        <source>Change the trigger options</source>
        <translation>Alterar as opções de disparo</translation>
    </message>
    <message>
        <source>Optional Items</source>
        <translation>Campos opcionais</translation>
    </message>
    <message>
        <source>Entry ID</source>
        <translation>ID da entrada</translation>
    </message>
    <message>
        <source>Configuration Revision</source>
        <translation>Revisão da configuração</translation>
    </message>
    <message>
        <source>Time Stamp</source>
        <translation>Estampa de tempo</translation>
    </message>
    <message>
        <source>Data Reference</source>
        <translation>Referência dos dados</translation>
    </message>
    <message>
        <source>Buffer Overflow</source>
        <translation>Estouro do buffer</translation>
    </message>
    <message>
        <source>Data Set Name</source>
        <translation>Nome do conjunto de dados</translation>
    </message>
    <message>
        <source>Reason for Inclusion</source>
        <translation>Motivo da inclusão</translation>
    </message>
    <message>
        <source>Sub Sequence</source>
        <translation>Subsequência</translation>
    </message>
    <message>
        <source>Sequence Number</source>
        <translation>Número de sequência</translation>
    </message>
    <message>
        <source>Change the optional items</source>
        <translation>Alterar os campos opcionais</translation>
    </message>
    <message>
        <source>Etc</source>
        <translation>Outros</translation>
    </message>
    <message>
        <source>Integrity Period:</source>
        <translation>Período de integridade:</translation>
    </message>
    <message>
        <source>msec</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>Change the integrity period</source>
        <translation>Alterar o período de integridade</translation>
    </message>
    <message>
        <source>Buffer Time:</source>
        <translation>Tempo de buffer:</translation>
    </message>
    <message>
        <source>Change the buffer time</source>
        <translation>Alterar o tempo de buffer</translation>
    </message>
    <message>
        <source>Configuration Revision:</source>
        <translation>Revisão da configuração:</translation>
    </message>
    <message>
        <source>Reserved</source>
        <translation>Reservado</translation>
    </message>
    <message>
        <source>Change the reservation</source>
        <translation>Alterar a reserva</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>Desabilitar</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>Falha</translation>
    </message>
    <message>
        <source>Cannot connect to driver</source>
        <translation>Sem conexão com o driver</translation>
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
        <translation>Nome: </translation>
    </message>
    <message>
        <source>Name of the setting group control block</source>
        <translation>Nome do bloco de controle de grupos de ajustes</translation>
    </message>
    <message>
        <source>Select Group</source>
        <translation>Seleção do grupo</translation>
    </message>
    <message>
        <source>Active Group:</source>
        <translation>Grupo ativo:</translation>
    </message>
    <message>
        <source>Active group</source>
        <translation>Grupo ativo</translation>
    </message>
    <message>
        <source>   Edit Group:</source>
        <translation>   Grupo em edição:</translation>
    </message>
    <message>
        <source>Edit group</source>
        <translation>Grupo em edição</translation>
    </message>
    <message>
        <source>Setting Value</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Execute</source>
        <translation>Executar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>Falha</translation>
    </message>
    <message>
        <source>Unsupported Type</source>
        <translation>Tipo não suportado</translation>
    </message>
    <message>
        <source>Cannot connect to driver</source>
        <translation>Sem conexão com o driver</translation>
    </message>
</context>
<context>
    <name>SelectFCDialog</name>
    <message>
        <source>GetAllDataValues</source>
        <translation>Ler todos os valores</translation>
    </message>
    <message>
        <source>Select FC : </source>
        <translation>Restrição funcional: </translation>
    </message>
    <message>
        <source>Functional constraint</source>
        <translation>Restrição funcional</translation>
    </message>
</context>
<context>
    <name>TreeFinder</name>
    <message>
        <source>Not found</source>
        <translation>Não encontrado</translation>
    </message>
    <message>
        <source>Find by name or reference</source>
        <translation>Buscar por nome ou referência</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
</context>
</TS>
