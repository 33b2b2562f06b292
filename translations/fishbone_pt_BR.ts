<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
<context>
    <name>AccessibleBone</name>
    <message>
        <source>level %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>nível %1</translation>
    </message>
    <message>
        <source>linked</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>com link</translation>
    </message>
    <message>
        <source>Select</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Selecionar</translation>
    </message>
    <message>
        <source>Contract</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Recolher</translation>
    </message>
    <message>
        <source>Expand</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Expandir</translation>
    </message>
    <message>
        <source>Selects this bone alone</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Seleciona somente esta espinha</translation>
    </message>
    <message>
        <source>Hides the bones below</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Oculta as espinhas abaixo</translation>
    </message>
    <message>
        <source>Shows the bones below</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Mostra as espinhas abaixo</translation>
    </message>
</context>
<context>
    <name>AccessibleDiagram</name>
    <message>
        <source>Diagram: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Diagrama: %1</translation>
    </message>
    <message>
        <source>Diagram</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Diagrama</translation>
    </message>
</context>
<context>
    <name>AccessibleSubject</name>
    <message>
        <source>level %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>nível %1</translation>
    </message>
    <message>
        <source>Contract</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Recolher</translation>
    </message>
    <message>
        <source>Expand</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Expandir</translation>
    </message>
    <message>
        <source>Select</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Selecionar</translation>
    </message>
</context>
<context>
    <name>ActionList</name>
    <message>
        <source>no date</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>sem data</translation>
    </message>
    <message>
        <source>Change who is responsible</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Alterar responsável</translation>
    </message>
    <message>
        <source>Change planned end</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Alterar fim previsto</translation>
    </message>
    <message>
        <source>Change status</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Alterar status</translation>
    </message>
    <message>
        <source>Rename</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Renomear</translation>
    </message>
    <message>
        <source>Actions</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ações</translation>
    </message>
    <message>
        <source>Cause</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Causa</translation>
    </message>
    <message>
        <source>Responsible</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Responsável</translation>
    </message>
    <message>
        <source>Until</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Prazo</translation>
    </message>
    <message>
        <source>Status</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Status</translation>
    </message>
    <message>
        <source>%1, overdue</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1, atrasado</translation>
    </message>
    <message>
        <source>Nobody yet</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ninguém ainda</translation>
    </message>
    <message>
        <source>No status</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Sem status</translation>
    </message>
</context>
<context>
    <name>ActionsPanel</name>
    <message>
        <source>Write to a file…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Gravar em arquivo…</translation>
    </message>
    <message>
        <source>Actions</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ações</translation>
    </message>
    <message>
        <source>Ranked causes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Causas por relevância</translation>
    </message>
    <message>
        <source>Grouped by</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Agrupar por</translation>
    </message>
    <message>
        <source>In one list</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Em uma só lista</translation>
    </message>
    <message>
        <source>By person</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Por pessoa</translation>
    </message>
    <message>
        <source>By status</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Por status</translation>
    </message>
    <message>
        <source>Print…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Imprimir…</translation>
    </message>
</context>
<context>
    <name>AutosaveStatus</name>
    <message>
        <source>Autosaved at %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Salvo automaticamente às %1</translation>
    </message>
    <message>
        <source>A copy of the changes that are not saved is kept in %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Uma cópia das alterações não salvas é mantida em %1</translation>
    </message>
    <message>
        <source>Autosave failed at %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Falha no salvamento automático às %1</translation>
    </message>
    <message>
        <source>%1 cannot be written. Changes that are not saved would be lost if the program did not end well.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Não é possível gravar %1. As alterações não salvas seriam perdidas se o programa terminasse de forma anormal.</translation>
    </message>
</context>
<context>
    <name>BusyCursor</name>
    <message>
        <source>Working…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Processando…</translation>
    </message>
</context>
<context>
    <name>CanvasTheme</name>
    <message>
        <source>The style is not kept: %1 cannot be written</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>O estilo não foi guardado: não é possível gravar %1</translation>
    </message>
</context>
<context>
    <name>ClearContent</name>
    <message>
        <source>cancelled</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>cancelado</translation>
    </message>
    <message>
        <source>finished</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>concluído</translation>
    </message>
    <message>
        <source>finished late</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>concluído com atraso</translation>
    </message>
    <message>
        <source>postponed</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>adiado</translation>
    </message>
    <message>
        <source>under way</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>em andamento</translation>
    </message>
    <message>
        <source>waiting</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>aguardando</translation>
    </message>
    <message>
        <source>waiting for approval</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>aguardando aprovação</translation>
    </message>
    <message>
        <source>suspected</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>suspeita</translation>
    </message>
    <message>
        <source>being checked</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>em verificação</translation>
    </message>
    <message>
        <source>confirmed</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>confirmada</translation>
    </message>
    <message>
        <source>ruled out</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>descartada</translation>
    </message>
    <message>
        <source>root cause</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>causa raiz</translation>
    </message>
    <message numerus="yes">
        <source>%n vote(s)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>%n voto</numerusform>
            <numerusform>%n votos</numerusform>
        </translation>
    </message>
    <message>
        <source>votes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>votos</translation>
    </message>
</context>
<context>
    <name>CloseQuestion</name>
    <message>
        <source>Close</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Fechar</translation>
    </message>
    <message numerus="yes">
        <source>%n document(s) have changes that were not saved. Save those that are checked?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>%n documento tem alterações não salvas. Salvá-lo se estiver marcado?</numerusform>
            <numerusform>%n documentos têm alterações não salvas. Salvar os que estão marcados?</numerusform>
        </translation>
    </message>
    <message>
        <source>Documents with changes that were not saved</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Documentos com alterações não salvas</translation>
    </message>
    <message>
        <source>&amp;Save checked</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Salvar marcados</translation>
    </message>
    <message>
        <source>Close &amp;without saving</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Fechar s&amp;em salvar</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>the ending names no format that can be read</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>a extensão não indica nenhum formato que possa ser lido</translation>
    </message>
    <message>
        <source>--%1 takes %2, not &quot;%3&quot;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1 aceita %2, não “%3”</translation>
    </message>
    <message>
        <source>--%1 needs convert, info, report or check</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1 exige convert, info, report ou check</translation>
    </message>
    <message>
        <source>--%1 needs info</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1 exige info</translation>
    </message>
    <message>
        <source>--%1 needs convert</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1 exige convert</translation>
    </message>
    <message>
        <source>--%1 needs --export</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1 exige --export</translation>
    </message>
    <message>
        <source>the format of &quot;%1&quot; is unknown: the name must end in .png, .svg, .pdf, .html or .pptx</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>o formato de “%1” é desconhecido: o nome deve terminar em .png, .svg, .pdf, .html ou .pptx</translation>
    </message>
    <message>
        <source>--export takes one document, not %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--export aceita um documento, não %1</translation>
    </message>
    <message>
        <source>--%1 does not go with convert</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1 não pode ser usado com convert</translation>
    </message>
    <message>
        <source>convert takes a file to read and a file to write</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>convert exige um arquivo a ler e um arquivo a gravar</translation>
    </message>
    <message>
        <source>--%1 needs a picture to write</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1 exige uma imagem a gravar</translation>
    </message>
    <message>
        <source>--%1 does not go with info</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1 não pode ser usado com info</translation>
    </message>
    <message>
        <source>info takes one file, not %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>info aceita um arquivo, não %1</translation>
    </message>
    <message>
        <source>--%1 does not go with report</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1 não pode ser usado com report</translation>
    </message>
    <message>
        <source>report takes a file to read and a file to write</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>report exige um arquivo a ler e um arquivo a gravar</translation>
    </message>
    <message>
        <source>the format of &quot;%1&quot; is unknown: the name must end in .html, .pdf or .md</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>o formato de “%1” é desconhecido: o nome deve terminar em .html, .pdf ou .md</translation>
    </message>
    <message>
        <source>--%1 does not go with check</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1 não pode ser usado com check</translation>
    </message>
    <message>
        <source>check takes the files to look at</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>check exige os arquivos a verificar</translation>
    </message>
    <message>
        <source>--%1 does not go with merge</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1 não pode ser usado com merge</translation>
    </message>
    <message>
        <source>merge takes the files of the base, of ours and of theirs</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>merge exige os arquivos da base, da nossa versão e da versão deles</translation>
    </message>
    <message>
        <source>--%1 does not go with a document from the network</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1 não pode ser usado com um documento da rede</translation>
    </message>
    <message>
        <source>%1 can only be written</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 só pode ser gravado</translation>
    </message>
    <message>
        <source>%1 can only be read</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 só pode ser lido</translation>
    </message>
    <message>
        <source>one of %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>um destes: %1</translation>
    </message>
    <message>
        <source>the format of &quot;%1&quot; is unknown: the name must end in one of %2, or --from tell one of %3</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>o formato de “%1” é desconhecido: o nome deve terminar em um destes: %2, ou --from deve indicar um destes: %3</translation>
    </message>
    <message>
        <source>the format of &quot;%1&quot; is unknown: the name must end in one of %2, or in .png, .svg, .pdf, .html or .pptx for a picture, or --to tell one of %3</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>o formato de “%1” é desconhecido: o nome deve terminar em um destes: %2, ou em .png, .svg, .pdf, .html ou .pptx para uma imagem, ou --to deve indicar um destes: %3</translation>
    </message>
    <message>
        <source>--size and --scale exclude each other</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--size e --scale excluem-se mutuamente</translation>
    </message>
    <message>
        <source>a page for the browser needs the clear look</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>uma página para o navegador exige a aparência limpa</translation>
    </message>
    <message>
        <source>all, none or a number of levels</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>all, none ou um número de níveis</translation>
    </message>
    <message>
        <source>a size such as 1600x900</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>um tamanho como 1600x900</translation>
    </message>
    <message>
        <source>a number above 0</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>um número maior que 0</translation>
    </message>
    <message>
        <source>the name of a colour, #rrggbb or transparent</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>o nome de uma cor, #rrggbb ou transparent</translation>
    </message>
    <message>
        <source>Show this help and quit.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Mostra esta ajuda e sai.</translation>
    </message>
    <message>
        <source>Show the version and quit.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Mostra a versão e sai.</translation>
    </message>
    <message>
        <source>Show texts in &lt;language&gt;, such as de or zh, instead of the system&apos;s.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Mostrar os textos em &lt;language&gt;, por exemplo de ou zh, em vez do idioma do sistema.</translation>
    </message>
    <message>
        <source>Draw the diagram into the picture &lt;file&gt; and quit. The ending .png, .svg, .pdf, .html or, for a slide, .pptx tells the format. Needs no display.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Desenha o diagrama na imagem &lt;file&gt; e sai. A extensão .png, .svg, .pdf, .html ou, para um slide, .pptx indica o formato. Não precisa de tela.</translation>
    </message>
    <message>
        <source>How far to expand the bones of the picture: all (the default), none, or a number of levels below the main bones.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Até onde expandir as espinhas da imagem: all (o padrão), none ou um número de níveis abaixo das espinhas principais.</translation>
    </message>
    <message>
        <source>Make the picture &lt;width&gt;x&lt;height&gt; in size and fit the drawing in.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Cria a imagem com o tamanho &lt;width&gt;x&lt;height&gt; e ajusta o desenho a ela.</translation>
    </message>
    <message>
        <source>Draw &lt;factor&gt; times as large as on the screen at 100 %.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Desenha &lt;factor&gt; vezes maior que na tela a 100%.</translation>
    </message>
    <message>
        <source>Fill the picture with &lt;colour&gt;, a name or #rrggbb, or leave it transparent. White is the default.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Preenche a imagem com &lt;colour&gt;, um nome ou #rrggbb, ou a deixa transparente com transparent. O padrão é branco.</translation>
    </message>
    <message>
        <source>Read the file as &lt;format&gt;, whatever its ending.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Lê o arquivo como &lt;format&gt;, qualquer que seja a extensão.</translation>
    </message>
    <message>
        <source>Write &lt;format&gt;, whatever the ending.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Grava em &lt;format&gt;, qualquer que seja a extensão.</translation>
    </message>
    <message>
        <source>Write nothing when that would leave content out.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Não grava nada se algum conteúdo fosse omitido.</translation>
    </message>
    <message>
        <source>Say it as JSON, for programs.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Apresenta o resultado em JSON, para programas.</translation>
    </message>
    <message>
        <source>Edits fishbone diagrams of tasks.

These commands need no display:
  convert   write a diagram in another format, or as a picture
  info      say what is in a diagram, and what is off in it
  report    write what is sent round after a meeting
  check     name what is off in files, line by line
  merge     merge two versions of a diagram, for git
&quot;fishbone convert --help&quot; tells more. A file of such a name is ./convert.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Edita diagramas de espinha de peixe de tarefas.

Estes comandos não precisam de tela:
  convert   grava um diagrama em outro formato ou como imagem
  info      diz o que há em um diagrama e que problemas ele tem
  report    grava o que se distribui depois de uma reunião
  check     aponta os problemas em arquivos, linha por linha
  merge     mescla duas versões de um diagrama, para o git
“fishbone convert --help” diz mais. Um arquivo com um nome desses é ./convert.</translation>
    </message>
    <message>
        <source>Diagrams to open: files, or http and https URLs. Without one, a new diagram.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Diagramas a abrir: arquivos ou URLs http e https. Sem nenhum, um novo diagrama.</translation>
    </message>
    <message>
        <source>Writes a diagram in another format, or as a picture.
The endings tell the formats. Read: %1.
Written: %2, and png, svg, pdf, html and pptx for pictures.
What is left out, or put where it can be kept, is listed on the error output.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Grava um diagrama em outro formato ou como imagem.
As extensões indicam os formatos. Leitura: %1.
Gravação: %2, além de png, svg, pdf, html e pptx para imagens.
O que é omitido, ou colocado onde pode ser mantido, é listado na saída de erros.</translation>
    </message>
    <message>
        <source>The command.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>O comando.</translation>
    </message>
    <message>
        <source>The file to read.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>O arquivo a ler.</translation>
    </message>
    <message>
        <source>The file to write.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>O arquivo a gravar.</translation>
    </message>
    <message>
        <source>Counts what is in a diagram and lists what is off in it.
The exit code is 3 when anything is.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Conta o que há em um diagrama e lista os problemas nele.
O código de saída é 3 quando há algum.</translation>
    </message>
    <message>
        <source>Writes what is sent round after a meeting: the picture, the causes in the order of what was found out, what is to be done by whom, and a legend.
The ending .html, .pdf or .md tells the format; .md has its picture in a file beside it.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Grava o que se distribui depois de uma reunião: a imagem, as causas na ordem do que foi constatado, o que deve ser feito e por quem, e uma legenda.
A extensão .html, .pdf ou .md indica o formato; com .md, a imagem fica em um arquivo ao lado.</translation>
    </message>
    <message>
        <source>Names what is off in each file, and why one cannot be read, a line each.
The exit code is 1 when there is anything.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Aponta os problemas de cada arquivo, e por que um deles não pode ser lido, uma linha para cada.
O código de saída é 1 quando há algum.</translation>
    </message>
    <message>
        <source>The files to look at.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Os arquivos a verificar.</translation>
    </message>
    <message>
        <source>Merges what changed from the base to theirs into ours, subject by subject, as git asks a merge driver to.
What both changed differently is kept as in ours, with a cause that says so below it; the exit code is 1 then.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Mescla na nossa versão o que mudou da base para a deles, tópico por tópico, como o git pede a um driver de mesclagem.
O que ambos mudaram de forma diferente fica como na nossa, com uma causa abaixo que informa isso; o código de saída é então 1.</translation>
    </message>
    <message>
        <source>The version that both come from.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>A versão da qual ambas provêm.</translation>
    </message>
    <message>
        <source>The version to merge into; it is replaced.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>A versão em que mesclar; ela é substituída.</translation>
    </message>
    <message>
        <source>The other version.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>A outra versão.</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>não é possível gravar %1: %2</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>não é possível ler %1: %2</translation>
    </message>
    <message>
        <source>%1 was not written: something would be left out</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 não foi gravado: algo seria omitido</translation>
    </message>
    <message>
        <source>Format: %1
</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Formato: %1
</translation>
    </message>
    <message>
        <source>there are conflicts: look for the causes &quot;Merge conflict&quot;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>há conflitos: procure as causas “Conflito de mesclagem”</translation>
    </message>
    <message>
        <source>there is no display to open a window on; --export needs none</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>não há tela em que abrir uma janela; --export não precisa de nenhuma</translation>
    </message>
    <message>
        <source>a folder</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>uma pasta</translation>
    </message>
    <message>
        <source>Show the texts that the files in &lt;folder&gt; have, and show them anew when these are changed. For translators.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Mostrar os textos dos arquivos em &lt;folder&gt; e mostrá-los de novo quando estes mudam. Para tradutores.</translation>
    </message>
</context>
<context>
    <name>DetailsForm</name>
    <message>
        <source>Priority:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Prioridade:</translation>
    </message>
    <message>
        <source>Open</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Edit style…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Editar estilo…</translation>
    </message>
    <message>
        <source>Has a planned end</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Tem fim previsto</translation>
    </message>
    <message>
        <source>Planned end</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Fim previsto</translation>
    </message>
    <message>
        <source>What there is to say of it; of a cause, the evidence for its verdict</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>O que há a dizer sobre ele; no caso de uma causa, as evidências do veredito</translation>
    </message>
    <message>
        <source>Progress</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Progresso</translation>
    </message>
    <message>
        <source>Link</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Link</translation>
    </message>
    <message>
        <source>Open the link</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Abrir o link</translation>
    </message>
    <message>
        <source>Followers</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Seguidores</translation>
    </message>
    <message>
        <source>New follower</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Novo seguidor</translation>
    </message>
    <message>
        <source>Origin</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Origem</translation>
    </message>
    <message>
        <source>several</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>vários</translation>
    </message>
    <message numerus="yes">
        <source>%n subjects</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>%n tópico</numerusform>
            <numerusform>%n tópicos</numerusform>
        </translation>
    </message>
    <message>
        <source>Title:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Título:</translation>
    </message>
    <message>
        <source>Number:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Número:</translation>
    </message>
    <message>
        <source>Verdict:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Veredito:</translation>
    </message>
    <message>
        <source>Votes:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Votos:</translation>
    </message>
    <message>
        <source>Status:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Status:</translation>
    </message>
    <message>
        <source>Progress:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Progresso:</translation>
    </message>
    <message>
        <source>Responsible:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Responsável:</translation>
    </message>
    <message>
        <source>Their id:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ID do responsável:</translation>
    </message>
    <message>
        <source>Planned end:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Fim previsto:</translation>
    </message>
    <message>
        <source>Link:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Link:</translation>
    </message>
    <message>
        <source>Followers:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Seguidores:</translation>
    </message>
    <message>
        <source>Details:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Detalhes:</translation>
    </message>
    <message>
        <source>Style:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Estilo:</translation>
    </message>
</context>
<context>
    <name>DetailsPanel</name>
    <message>
        <source>&amp;Apply</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ap&amp;licar</translation>
    </message>
    <message>
        <source>Re&amp;vert</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Re&amp;verter</translation>
    </message>
    <message>
        <source>Created by: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Criado por: %1</translation>
    </message>
    <message>
        <source>Created on: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Criado em: %1</translation>
    </message>
    <message>
        <source>Edit details</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Editar detalhes</translation>
    </message>
</context>
<context>
    <name>DiagramCounts</name>
    <message numerus="yes">
        <source>%n subject(s)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>%n tópico</numerusform>
            <numerusform>%n tópicos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>, %n selected</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>, %n selecionado</numerusform>
            <numerusform>, %n selecionados</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DiagramExchange</name>
    <message>
        <source>the text is not encoded as UTF-8, nor in a code page that is known (Windows-1252, GB 18030)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>o texto não está codificado em UTF-8 nem em uma página de código conhecida (Windows-1252, GB 18030)</translation>
    </message>
    <message>
        <source>the text as %1, since it is not encoded as UTF-8</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>o texto como %1, pois não está codificado em UTF-8</translation>
    </message>
    <message>
        <source>Table of tasks</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Tabela de tarefas</translation>
    </message>
    <message>
        <source>a quote is not closed</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>há aspas que não foram fechadas</translation>
    </message>
    <message>
        <source>there is text behind a closing quote</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>há texto depois das aspas de fechamento</translation>
    </message>
    <message>
        <source>it has more than %1 levels</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>tem mais de %1 níveis</translation>
    </message>
    <message>
        <source>that format can only be read</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>esse formato só pode ser lido</translation>
    </message>
    <message>
        <source>that format can only be written</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>esse formato só pode ser gravado</translation>
    </message>
    <message>
        <source>draw.io diagram</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Diagrama do draw.io</translation>
    </message>
    <message>
        <source>All formats</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Todos os formatos</translation>
    </message>
    <message>
        <source>it is larger than %1 MiB</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>tem mais de %1 MiB</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>está vazio</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>é uma pasta</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>esse arquivo não existe</translation>
    </message>
    <message>
        <source>a style</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>um estilo</translation>
    </message>
    <message>
        <source>FreeMind mind map</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Mapa mental do FreeMind</translation>
    </message>
    <message>
        <source>what is encrypted</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>o que está criptografado</translation>
    </message>
    <message>
        <source>Icons</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ícones</translation>
    </message>
    <message>
        <source>the icon &quot;%1&quot; as %2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>o ícone “%1” como %2</translation>
    </message>
    <message>
        <source>an arrow</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>uma seta</translation>
    </message>
    <message>
        <source>there are more than %1 levels</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>há mais de %1 níveis</translation>
    </message>
    <message>
        <source>there are more than %1 subjects</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>há mais de %1 tópicos</translation>
    </message>
    <message>
        <source>Link</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Link</translation>
    </message>
    <message>
        <source>Image</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Imagem</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>linha %1: %2</translation>
    </message>
    <message>
        <source>it holds no diagram</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>não contém nenhum diagrama</translation>
    </message>
    <message>
        <source>Imported diagram</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Diagrama importado</translation>
    </message>
    <message>
        <source>Fishbone diagram</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Diagrama de espinha de peixe</translation>
    </message>
    <message>
        <source>Markdown outline</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Estrutura de tópicos em Markdown</translation>
    </message>
    <message>
        <source>the front matter</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>o cabeçalho de metadados</translation>
    </message>
    <message>
        <source>the comment &quot;%1&quot;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>o comentário “%1”</translation>
    </message>
    <message>
        <source>the language &quot;%1&quot; of a block of code</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>a linguagem “%1” de um bloco de código</translation>
    </message>
    <message>
        <source>Mermaid ishikawa diagram</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Diagrama ishikawa do Mermaid</translation>
    </message>
    <message>
        <source>the diagram does not begin with &quot;ishikawa&quot; or &quot;mindmap&quot;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>o diagrama não começa com “ishikawa” nem com “mindmap”</translation>
    </message>
    <message>
        <source>settings</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>configurações</translation>
    </message>
    <message>
        <source>OPML outline</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Estrutura de tópicos OPML</translation>
    </message>
    <message>
        <source>Org outline</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Estrutura de tópicos do Org</translation>
    </message>
    <message>
        <source>text above the outline</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>texto acima da estrutura de tópicos</translation>
    </message>
    <message>
        <source>&quot;%1&quot; as %2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>“%1” como %2</translation>
    </message>
    <message>
        <source>Labels</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Etiquetas</translation>
    </message>
    <message>
        <source>&quot;%1&quot; as a progress</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>“%1” como progresso</translation>
    </message>
    <message>
        <source>a quotation</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>uma citação</translation>
    </message>
    <message>
        <source>further cells</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>outras células</translation>
    </message>
    <message>
        <source>the diagram does not begin with &quot;@startmindmap&quot;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>o diagrama não começa com “@startmindmap”</translation>
    </message>
    <message>
        <source>text beside the drawing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>texto ao lado do desenho</translation>
    </message>
    <message>
        <source>PlantUML mind map</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Mapa mental do PlantUML</translation>
    </message>
    <message>
        <source>dates of &quot;%1&quot; as day/month/year</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>datas de “%1” como dia/mês/ano</translation>
    </message>
    <message>
        <source>dates of &quot;%1&quot; as month/day/year</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>datas de “%1” como mês/dia/ano</translation>
    </message>
    <message>
        <source>cells without a heading</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>células sem cabeçalho</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of &quot;%2&quot; as %3</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>“%1” de “%2” como %3</translation>
    </message>
    <message>
        <source>headings that are repeated</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>cabeçalhos repetidos</translation>
    </message>
    <message>
        <source>the uuid &quot;%1&quot; a second time</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>o uuid “%1” pela segunda vez</translation>
    </message>
    <message>
        <source>the subject lies below itself</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>o tópico está abaixo de si mesmo</translation>
    </message>
    <message>
        <source>there is no column of titles, such as &quot;title&quot;, &quot;summary&quot; or &quot;name&quot;; the columns are %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>não há coluna de títulos, como “title”, “summary” ou “name”; as colunas são %1</translation>
    </message>
    <message>
        <source>Indented text</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Texto recuado</translation>
    </message>
    <message>
        <source>the sheet &quot;%1&quot;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>a planilha “%1”</translation>
    </message>
    <message>
        <source>Excel workbook</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Pasta de trabalho do Excel</translation>
    </message>
    <message>
        <source>the archive has no file &quot;%1&quot;, as workbooks do</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>o arquivo compactado não tem o arquivo “%1”, como as pastas de trabalho têm</translation>
    </message>
    <message>
        <source>remarks at cells</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>comentários em células</translation>
    </message>
    <message>
        <source>drawings</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>desenhos</translation>
    </message>
    <message>
        <source>cells behind column %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>células depois da coluna %1</translation>
    </message>
    <message>
        <source>there are too many cells</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>há células demais</translation>
    </message>
    <message>
        <source>a link within the workbook</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>um link dentro da pasta de trabalho</translation>
    </message>
    <message>
        <source>the file &quot;%1&quot;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>o arquivo “%1”</translation>
    </message>
    <message>
        <source>the archive has neither content.json nor content.xml, one of which holds the map</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>o arquivo compactado não tem content.json nem content.xml, um dos quais contém o mapa</translation>
    </message>
    <message>
        <source>XMind map</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Mapa do XMind</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Folha</translation>
    </message>
    <message>
        <source>Boundary</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Contorno</translation>
    </message>
    <message>
        <source>a topic of the kind &quot;%1&quot; as a cause</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>um tópico do tipo “%1” como causa</translation>
    </message>
    <message>
        <source>content.json: it is no list of sheets</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>content.json: não é uma lista de folhas</translation>
    </message>
    <message>
        <source>the icon &quot;%1&quot;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>o ícone “%1”</translation>
    </message>
    <message>
        <source>an arrow &quot;%1&quot; that joins no two topics</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>uma seta “%1” que não liga dois tópicos</translation>
    </message>
    <message>
        <source>declarations of entities are not accepted</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>declarações de entidades não são aceitas</translation>
    </message>
    <message>
        <source>the document begins with &lt;%1&gt;, not with &lt;%2&gt;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>o documento começa com &lt;%1&gt;, não com &lt;%2&gt;</translation>
    </message>
    <message>
        <source>&lt;/%1&gt; is missing, the end of &lt;%1&gt; in line %2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>falta &lt;/%1&gt;, o fim de &lt;%1&gt; na linha %2</translation>
    </message>
    <message>
        <source>it is not a zip archive, as files of this format are (%1)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>não é um arquivo zip, como são os arquivos deste formato (%1)</translation>
    </message>
    <message>
        <source>the archive has more than %1 files</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>o arquivo compactado tem mais de %1 arquivos</translation>
    </message>
    <message>
        <source>the archive has &quot;%1&quot; twice</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>o arquivo compactado tem “%1” duas vezes</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>está danificado</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>é grande demais</translation>
    </message>
    <message>
        <source>it expands to more than %1 times its size</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>descompactado, passa de %1 vezes o seu tamanho</translation>
    </message>
    <message>
        <source>the map is protected by a password</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>o mapa está protegido por uma senha</translation>
    </message>
</context>
<context>
    <name>DiagramMerge</name>
    <message>
        <source>It was changed in ours and deleted in theirs.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Foi alterado na nossa versão e excluído na deles.</translation>
    </message>
    <message>
        <source>It was deleted in ours and changed in theirs.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Foi excluído na nossa versão e alterado na deles.</translation>
    </message>
    <message>
        <source>Theirs has it below &quot;%1&quot;.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Na versão deles, está abaixo de “%1”.</translation>
    </message>
    <message>
        <source>Its %1 is &quot;%2&quot; in ours and &quot;%3&quot; in theirs.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>O campo %1 é “%2” na nossa versão e “%3” na deles.</translation>
    </message>
    <message>
        <source>It was deleted in theirs and has more below it in ours.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Foi excluído na versão deles e tem mais abaixo dele na nossa.</translation>
    </message>
    <message>
        <source>It was deleted in ours and has more below it in theirs.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Foi excluído na nossa versão e tem mais abaixo dele na deles.</translation>
    </message>
    <message>
        <source>It is a second head.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>É uma segunda cabeça.</translation>
    </message>
    <message>
        <source>What is below it has another order in theirs.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>O que está abaixo dele tem outra ordem na versão deles.</translation>
    </message>
    <message>
        <source>Merge conflict</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Conflito de mesclagem</translation>
    </message>
</context>
<context>
    <name>DiagramPicture</name>
    <message>
        <source>there is not enough memory for it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>não há memória suficiente para isso</translation>
    </message>
    <message>
        <source>the scale, the size or the margin makes no picture</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>a escala, o tamanho ou a margem não resulta em imagem</translation>
    </message>
    <message>
        <source>the file name must end in .png, .svg, .pdf or .html</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>o nome do arquivo deve terminar em .png, .svg, .pdf ou .html</translation>
    </message>
    <message>
        <source>the page is too small or too large</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>a página é pequena ou grande demais</translation>
    </message>
</context>
<context>
    <name>DocumentLoader</name>
    <message>
        <source>it holds no diagram</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>não contém nenhum diagrama</translation>
    </message>
    <message>
        <source>the program is closing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>o programa está sendo fechado</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>esse arquivo não existe</translation>
    </message>
</context>
<context>
    <name>DocumentReport</name>
    <message>
        <source>it has no uuid</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>não tem uuid</translation>
    </message>
    <message>
        <source>another subject has the same uuid %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>outro tópico tem o mesmo uuid %1</translation>
    </message>
    <message>
        <source>it is the head and has the pid %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>é a cabeça e tem o pid %1</translation>
    </message>
    <message>
        <source>it has no pid</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>não tem pid</translation>
    </message>
    <message>
        <source>its pid %1 does not name its parent</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>seu pid %1 não é o do pai</translation>
    </message>
    <message>
        <source>it has no title</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>não tem título</translation>
    </message>
    <message>
        <source>its status %1 is unknown</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>seu status %1 é desconhecido</translation>
    </message>
    <message>
        <source>its progress %1 is not within 0 and 100</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>seu progresso %1 não está entre 0 e 100</translation>
    </message>
    <message>
        <source>it is to end before it was created</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>deve terminar antes de ter sido criado</translation>
    </message>
    <message>
        <source>its link %1 is no URL</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>seu link %1 não é um URL</translation>
    </message>
    <message>
        <source>head</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>cabeça</translation>
    </message>
    <message>
        <source>Title: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Título: %1</translation>
    </message>
    <message>
        <source>Subjects: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Tópicos: %1</translation>
    </message>
    <message>
        <source>Main bones: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Espinhas principais: %1</translation>
    </message>
    <message>
        <source>Levels: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Níveis: %1</translation>
    </message>
    <message>
        <source>Links: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Links: %1</translation>
    </message>
    <message>
        <source>Own styles: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Estilos próprios: %1</translation>
    </message>
    <message>
        <source>Nothing is off.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Nenhum problema.</translation>
    </message>
    <message>
        <source>Off: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Problemas: %1</translation>
    </message>
</context>
<context>
    <name>DocumentSaver</name>
    <message>
        <source>Fishbone diagrams (*.json);;All files (*)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Diagramas de espinha de peixe (*.json);;Todos os arquivos (*)</translation>
    </message>
    <message>
        <source>Another program has changed %1 since it was opened or saved here. Replace it, so that those changes are lost?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Outro programa alterou %1 desde que foi aberto ou salvo aqui. Substituí-lo e perder essas alterações?</translation>
    </message>
    <message>
        <source>Save</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>%1 would not be recognized as a diagram. Its name should end in .json; &quot;Export as&quot; writes other formats.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 não seria reconhecido como diagrama. O nome deve terminar em .json; “Exportar em outro formato” grava outros formatos.</translation>
    </message>
    <message>
        <source>Save as</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Salvar como</translation>
    </message>
    <message>
        <source>Save a copy</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Salvar uma cópia</translation>
    </message>
    <message>
        <source>Copy written to %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Cópia gravada em %1</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Não é possível gravar %1: %2.</translation>
    </message>
    <message>
        <source>%1 saved</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 salvo</translation>
    </message>
</context>
<context>
    <name>DocumentTabs</name>
    <message>
        <source>Open documents</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Documentos abertos</translation>
    </message>
    <message>
        <source>Close</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Not saved to a file yet</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ainda não salvo em arquivo</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Fechar</translation>
    </message>
    <message>
        <source>Close &amp;others</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Fechar &amp;outras</translation>
    </message>
    <message>
        <source>Copy &amp;path</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Copiar &amp;caminho</translation>
    </message>
</context>
<context>
    <name>DrawingFilter</name>
    <message>
        <source>left out by the filter</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>deixado de fora pelo filtro</translation>
    </message>
    <message>
        <source>leads to what the filter shows</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>leva ao que o filtro mostra</translation>
    </message>
</context>
<context>
    <name>DrawingPrinter</name>
    <message>
        <source>%1 – page %2 of %3</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 – página %2 de %3</translation>
    </message>
</context>
<context>
    <name>EditAttributes</name>
    <message>
        <source>Edit attributes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Editar atributos</translation>
    </message>
</context>
<context>
    <name>EditCommands</name>
    <message>
        <source>&amp;Undo</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Desfazer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Refazer</translation>
    </message>
    <message>
        <source>&amp;Find and replace…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Localizar e &amp;substituir…</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Recor&amp;tar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Co&amp;lar</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Excluir</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Selecionar t&amp;udo</translation>
    </message>
    <message>
        <source>Select the &amp;branch</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Selecionar o ram&amp;o</translation>
    </message>
    <message>
        <source>Select the sib&amp;lings</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Selecionar os &amp;irmãos</translation>
    </message>
    <message>
        <source>&amp;Child subject</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Tópico &amp;filho</translation>
    </message>
    <message>
        <source>Subject &amp;before</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Tópico &amp;antes</translation>
    </message>
    <message>
        <source>Subject &amp;after</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Tópico &amp;depois</translation>
    </message>
    <message>
        <source>&amp;Parent subject</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Tópico &amp;pai</translation>
    </message>
    <message>
        <source>&amp;Free subject (a new diagram)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Tópico li&amp;vre (novo diagrama)</translation>
    </message>
    <message>
        <source>&amp;Sub-task…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>S&amp;ubtarefa…</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Renomear</translation>
    </message>
    <message>
        <source>&amp;Link to…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Link para…</translation>
    </message>
    <message>
        <source>&amp;Open link</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Abrir lin&amp;k</translation>
    </message>
    <message>
        <source>Remove l&amp;ink</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>R&amp;emover link</translation>
    </message>
    <message>
        <source>&amp;Style…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Es&amp;tilo…</translation>
    </message>
    <message>
        <source>Remove s&amp;tyle</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Remover e&amp;stilo</translation>
    </message>
    <message>
        <source>New sub-task</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Nova subtarefa</translation>
    </message>
    <message>
        <source>Title:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Título:</translation>
    </message>
</context>
<context>
    <name>EditDelete</name>
    <message>
        <source>Delete selecteds</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Excluir tópicos</translation>
    </message>
    <message>
        <source>Delete current selected</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Excluir tópico</translation>
    </message>
</context>
<context>
    <name>EditModify</name>
    <message>
        <source>Modify Item</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Editar tópico</translation>
    </message>
</context>
<context>
    <name>EditMove</name>
    <message>
        <source>Move subjects</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Mover tópicos</translation>
    </message>
</context>
<context>
    <name>EditPaste</name>
    <message>
        <source>Paste from clipborad</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Colar da área de transferência</translation>
    </message>
</context>
<context>
    <name>EmptyPage</name>
    <message>
        <source>No diagram is open</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Nenhum diagrama aberto</translation>
    </message>
    <message>
        <source>Files can also be dragged into this window.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Também é possível arrastar arquivos para esta janela.</translation>
    </message>
    <message>
        <source>Opened lately:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Abertos recentemente:</translation>
    </message>
</context>
<context>
    <name>ExchangeReport</name>
    <message>
        <source>left out: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>omitido: %1</translation>
    </message>
    <message>
        <source>put into the details: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>colocado nos detalhes: %1</translation>
    </message>
    <message>
        <source>taken: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>interpretado: %1</translation>
    </message>
    <message>
        <source>appearance left out: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>aparência omitida: %1</translation>
    </message>
    <message>
        <source>%1 (%2 times, first in line %3)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 (%2 vezes, a primeira na linha %3)</translation>
    </message>
    <message>
        <source>%1 (%2 times)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 (%2 vezes)</translation>
    </message>
    <message>
        <source>%1 (line %2)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 (linha %2)</translation>
    </message>
    <message>
        <source>other things</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>outras coisas</translation>
    </message>
</context>
<context>
    <name>ExportCommands</name>
    <message>
        <source>&amp;Export picture…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Exportar ima&amp;gem…</translation>
    </message>
    <message>
        <source>E&amp;xport as…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Exportar em outro &amp;formato…</translation>
    </message>
    <message>
        <source>Copy as p&amp;icture</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Copiar como i&amp;magem</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Imprimir…</translation>
    </message>
    <message>
        <source>Print previe&amp;w…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Visualizar impressão…</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 gravado</translation>
    </message>
    <message>
        <source>%1 was not written</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 não foi gravado</translation>
    </message>
    <message>
        <source>Export picture</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Exportar imagem</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Não é possível gravar %1: %2.</translation>
    </message>
    <message>
        <source>Writing %1…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Gravando %1…</translation>
    </message>
    <message>
        <source>Copied as a picture</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Copiado como imagem</translation>
    </message>
    <message>
        <source>Not copied as a picture: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Não copiado como imagem: %1</translation>
    </message>
    <message>
        <source>PowerPoint slide (*.%1)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Slide do PowerPoint (*.%1)</translation>
    </message>
    <message>
        <source>Export as</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Exportar em outro formato</translation>
    </message>
    <message>
        <source>its ending tells none of the formats</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>a extensão não indica nenhum dos formatos</translation>
    </message>
    <message>
        <source>Nothing was printed</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Nada foi impresso</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>&amp;Light, as on paper</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Claro, como no papel</translation>
    </message>
    <message>
        <source>Export picture</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Exportar imagem</translation>
    </message>
    <message>
        <source>B&amp;rowse…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Procurar…</translation>
    </message>
    <message>
        <source>&amp;File:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Arquivo:</translation>
    </message>
    <message>
        <source>&amp;Background:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Fundo:</translation>
    </message>
    <message>
        <source>Dark</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Escuro</translation>
    </message>
    <message>
        <source>As on the screen</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Como na tela</translation>
    </message>
    <message>
        <source>White</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Branco</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Transparente</translation>
    </message>
    <message>
        <source>Pictures (*.png *.svg *.pdf *.html)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Imagens (*.png *.svg *.pdf *.html)</translation>
    </message>
    <message>
        <source>The file name must end in .png, .svg, .pdf or .html.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>O nome do arquivo deve terminar em .png, .svg, .pdf ou .html.</translation>
    </message>
    <message>
        <source>A page for the browser needs the clear look.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Uma página para o navegador exige a aparência limpa.</translation>
    </message>
    <message>
        <source>This cannot be exported: %1.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Não é possível exportar: %1.</translation>
    </message>
    <message>
        <source>%1 Use %2, which fits?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 Usar %2, que cabe?</translation>
    </message>
    <message>
        <source>%1 exists already. Replace it?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 já existe. Substituí-lo?</translation>
    </message>
</context>
<context>
    <name>FileCommands</name>
    <message>
        <source>&amp;New</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Novo</translation>
    </message>
    <message>
        <source>New from the &amp;example</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Novo a partir do e&amp;xemplo</translation>
    </message>
    <message>
        <source>&amp;Welcome diagram</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Diagrama de &amp;boas-vindas</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>A&amp;brir…</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Imp&amp;ortar…</translation>
    </message>
    <message>
        <source>Open &amp;URL…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Abrir da &amp;Web (URL)…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Salvar</translation>
    </message>
    <message>
        <source>Save &amp;as…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Salvar &amp;como…</translation>
    </message>
    <message>
        <source>Save a cop&amp;y…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Salvar uma có&amp;pia…</translation>
    </message>
    <message>
        <source>Revert to &amp;file</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Reverter para o ar&amp;quivo</translation>
    </message>
    <message>
        <source>Save a&amp;ll</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Salvar &amp;tudo</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Fec&amp;har</translation>
    </message>
    <message>
        <source>Reopen &amp;documents at the start</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Reabrir documentos na iniciali&amp;zação</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Sai&amp;r</translation>
    </message>
    <message>
        <source>%1 loaded</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 carregado</translation>
    </message>
    <message>
        <source>cannot open %1: %2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>não é possível abrir %1: %2</translation>
    </message>
    <message>
        <source>%1 was not loaded</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 não foi carregado</translation>
    </message>
    <message>
        <source>Open</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Revert</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Reverter</translation>
    </message>
    <message>
        <source>Give up all changes of %1 since it was saved?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Descartar todas as alterações de %1 desde que foi salvo?</translation>
    </message>
</context>
<context>
    <name>FileConflict</name>
    <message>
        <source>Another program has changed %1.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Outro programa alterou %1.</translation>
    </message>
    <message>
        <source>Re&amp;load</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Recarregar</translation>
    </message>
    <message>
        <source>&amp;Keep mine</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Manter o meu</translation>
    </message>
    <message>
        <source>Save &amp;under another name…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Salvar com &amp;outro nome…</translation>
    </message>
    <message>
        <source>%1 was deleted, moved or renamed by another program.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 foi excluído, movido ou renomeado por outro programa.</translation>
    </message>
    <message>
        <source>Save agai&amp;n</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Salvar de &amp;novo</translation>
    </message>
    <message>
        <source>&amp;Hide</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>O&amp;cultar</translation>
    </message>
</context>
<context>
    <name>FileName</name>
    <message>
        <source>Untitled</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Sem título</translation>
    </message>
</context>
<context>
    <name>FilterBar</name>
    <message>
        <source>Any status</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Qualquer status</translation>
    </message>
    <message>
        <source>Any verdict</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Qualquer veredito</translation>
    </message>
    <message>
        <source>Text</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Any votes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Qualquer nº de votos</translation>
    </message>
    <message>
        <source>Votes ≥ </source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Votos ≥ </translation>
    </message>
    <message>
        <source>Overdue</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Atrasado</translation>
    </message>
    <message>
        <source>Fold the others</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Recolher os demais</translation>
    </message>
    <message>
        <source>Close the filter</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Fechar o filtro</translation>
    </message>
    <message>
        <source>Filter</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Text in title, number or details</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Texto no título, número ou detalhes</translation>
    </message>
    <message>
        <source>Status</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Status</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Veredito</translation>
    </message>
    <message>
        <source>Responsible</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Responsável</translation>
    </message>
    <message>
        <source>Least number of votes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Número mínimo de votos</translation>
    </message>
    <message>
        <source>Anybody</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Qualquer pessoa</translation>
    </message>
    <message>
        <source>Nobody</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ninguém</translation>
    </message>
    <message numerus="yes">
        <source>%n found</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>%n encontrado</numerusform>
            <numerusform>%n encontrados</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Finder</name>
    <message>
        <source>No match</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Nenhuma ocorrência</translation>
    </message>
    <message>
        <source>Match %1 of %2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ocorrência %1 de %2</translation>
    </message>
    <message numerus="yes">
        <source>Replace %n text(s)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>Substituir %n texto</numerusform>
            <numerusform>Substituir %n textos</numerusform>
        </translation>
    </message>
    <message>
        <source>Only titles and numbers can be replaced.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Só é possível substituir títulos e números.</translation>
    </message>
    <message numerus="yes">
        <source>%n text(s) replaced</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>%n texto substituído</numerusform>
            <numerusform>%n textos substituídos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FishInfo</name>
    <message>
        <source>no model shows the document</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>nenhum modelo de dados mostra o documento</translation>
    </message>
    <message>
        <source>the diagram nests too deep to be read again</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>o diagrama tem níveis demais para ser lido novamente</translation>
    </message>
    <message>
        <source>Save As</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Salvar como</translation>
    </message>
    <message>
        <source>&apos;%1&apos; has been modified.
Do you want to save your changes?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>“%1” foi modificado.
Deseja salvar as alterações?</translation>
    </message>
    <message>
        <source>FishInfo</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Alterações não salvas</translation>
    </message>
    <message>
        <source>fish%1.json</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>fish%1.json</translation>
    </message>
</context>
<context>
    <name>FishModel</name>
    <message>
        <source>自由主题</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Tópico livre</translation>
    </message>
    <message>
        <source>the reply took too long or was too large</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>a resposta demorou demais ou era grande demais</translation>
    </message>
    <message>
        <source>there is no document to load it into</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>não há documento em que carregá-lo</translation>
    </message>
    <message>
        <source>个无父任务/共</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation> sem tarefa pai / </translation>
    </message>
    <message>
        <source>个任务</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation> no total</translation>
    </message>
</context>
<context>
    <name>HelpCommands</name>
    <message>
        <source>&amp;Keys…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Teclas de atalho…</translation>
    </message>
    <message>
        <source>&amp;About Fishbone</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Sobre o Fishbone</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Sobre o &amp;Qt</translation>
    </message>
    <message>
        <source>Version %1, library %2&lt;br&gt;Qt %3, built with %4&lt;br&gt;%5</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Versão %1, biblioteca %2&lt;br&gt;Qt %3, compilado com %4&lt;br&gt;%5</translation>
    </message>
    <message>
        <source>About Fishbone</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Sobre o Fishbone</translation>
    </message>
    <message>
        <source>Draws cause-and-effect diagrams of tasks.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Desenha diagramas de causa e efeito de tarefas.</translation>
    </message>
    <message>
        <source>Copyright © 2026 The Fishbone authors, under the MIT License</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Copyright © 2026 The Fishbone authors, sob a licença MIT</translation>
    </message>
</context>
<context>
    <name>HistoryPanel</name>
    <message>
        <source>History</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Histórico</translation>
    </message>
    <message>
        <source>(beginning)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>(início)</translation>
    </message>
    <message numerus="yes">
        <source>%1 (%2 of %n)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>%1 (%2 de %n)</numerusform>
            <numerusform>%1 (%2 de %n)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (%n times)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>%1 (%n vez)</numerusform>
            <numerusform>%1 (%n vezes)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>HitList</name>
    <message>
        <source>Found</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Encontrado</translation>
    </message>
    <message>
        <source>Will be</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ficará</translation>
    </message>
    <message>
        <source>In</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Em</translation>
    </message>
</context>
<context>
    <name>HtmlPicture</name>
    <message>
        <source>Search</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Pesquisar</translation>
    </message>
    <message>
        <source>Expand all</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Expandir tudo</translation>
    </message>
    <message>
        <source>Fold</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Recolher</translation>
    </message>
    <message>
        <source>Fold to the categories</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Recolher até as categorias</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Reduzir</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ampliar</translation>
    </message>
    <message>
        <source>Fit</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ajustar</translation>
    </message>
    <message>
        <source>Show all</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Mostrar tudo</translation>
    </message>
    <message>
        <source>Close</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Fishbone diagram. Arrow keys move, Return shows details, the space bar folds.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Diagrama de espinha de peixe. As setas movem, Enter mostra os detalhes, a barra de espaço recolhe.</translation>
    </message>
</context>
<context>
    <name>ImportSummary</name>
    <message>
        <source>%1: %2 left out, %3 put into details.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1: %2 omitidos, %3 colocados nos detalhes.</translation>
    </message>
    <message>
        <source>Import</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Importar</translation>
    </message>
</context>
<context>
    <name>InsertBack</name>
    <message>
        <source>Insert subject back</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Inserir tópico depois</translation>
    </message>
</context>
<context>
    <name>InsertChild</name>
    <message>
        <source>Insert child subject</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Inserir tópico filho</translation>
    </message>
</context>
<context>
    <name>InsertFree</name>
    <message>
        <source>Insert free subject</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Inserir tópico livre</translation>
    </message>
</context>
<context>
    <name>InsertFront</name>
    <message>
        <source>Insert subject front</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Inserir tópico antes</translation>
    </message>
</context>
<context>
    <name>InsertParent</name>
    <message>
        <source>Insert subject as parent</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Inserir tópico pai</translation>
    </message>
</context>
<context>
    <name>JsonDiagram</name>
    <message>
        <source>it is a JSON list, not a diagram, which is an object with a &quot;title&quot; and &quot;children&quot;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>é uma lista JSON, não um diagrama, que é um objeto com “title” e “children”</translation>
    </message>
    <message>
        <source>it is JSON of another kind: a diagram has a &quot;title&quot; and &quot;children&quot;, this has %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>é JSON de outro tipo: um diagrama tem “title” e “children”, este tem %1</translation>
    </message>
    <message>
        <source>it is JSON of another kind: its &quot;title&quot; is no text</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>é JSON de outro tipo: o “title” não é um texto</translation>
    </message>
    <message>
        <source>it is JSON of another kind: its &quot;children&quot; are no list</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>é JSON de outro tipo: os “children” não são uma lista</translation>
    </message>
</context>
<context>
    <name>JsonErrors</name>
    <message>
        <source>a name in quotes or } is missing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>falta um nome entre aspas ou }</translation>
    </message>
    <message>
        <source>the colon behind a name is missing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>faltam os dois-pontos depois de um nome</translation>
    </message>
    <message>
        <source>a comma or ] is missing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>falta uma vírgula ou ]</translation>
    </message>
    <message>
        <source>the comma behind a value is missing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>falta a vírgula depois de um valor</translation>
    </message>
    <message>
        <source>a text in quotes, a number, true, false, null, { or [ is missing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>falta um texto entre aspas, um número, true, false, null, { ou [</translation>
    </message>
    <message>
        <source>it ends with a number</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>termina com um número</translation>
    </message>
    <message>
        <source>a backslash begins no escape sequence</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>uma barra invertida não inicia uma sequência de escape</translation>
    </message>
    <message>
        <source>a text is not encoded as UTF-8</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>um texto não está codificado em UTF-8</translation>
    </message>
    <message>
        <source>the quote at the end of a text is missing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>faltam as aspas no fim de um texto</translation>
    </message>
    <message>
        <source>a name or a value is missing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>falta um nome ou um valor</translation>
    </message>
    <message>
        <source>it nests too deep</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>tem níveis de aninhamento demais</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>é grande demais</translation>
    </message>
    <message>
        <source>there is more behind its end</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>há mais alguma coisa depois do fim</translation>
    </message>
    <message>
        <source>it is not a JSON document</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>não é um documento JSON</translation>
    </message>
    <message>
        <source>it is not a JSON document (line %1: %2)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>não é um documento JSON (linha %1: %2)</translation>
    </message>
</context>
<context>
    <name>KeysDialog</name>
    <message>
        <source>Keys</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Teclas de atalho</translation>
    </message>
    <message>
        <source>Search</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Pesquisar</translation>
    </message>
    <message>
        <source>Command</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Comando</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>Lang&amp;uage</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Idioma (Lang&amp;uage)</translation>
    </message>
    <message>
        <source>&amp;System language</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Idioma do &amp;sistema</translation>
    </message>
</context>
<context>
    <name>LinkOpener</name>
    <message>
        <source>Open link</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Abrir link</translation>
    </message>
    <message>
        <source>This link is neither a web page nor a mail address. Open it?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Este link não é uma página da Web nem um endereço de e-mail. Abri-lo?</translation>
    </message>
</context>
<context>
    <name>LoadFailure</name>
    <message>
        <source>it is a folder</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>é uma pasta</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>esse arquivo não existe</translation>
    </message>
    <message>
        <source>its ending is none of those that can be read: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>a extensão não é uma das que podem ser lidas: %1</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>está vazio</translation>
    </message>
</context>
<context>
    <name>LoadProgress</name>
    <message>
        <source>Loading</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Carregando</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>%1 received</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 recebidos</translation>
    </message>
</context>
<context>
    <name>LookChoice</name>
    <message>
        <source>%1 or %2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 ou %2</translation>
    </message>
    <message>
        <source>Draw in the &lt;look&gt; %1; the first one is the default.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Desenha com a aparência &lt;look&gt;: %1; a primeira é o padrão.</translation>
    </message>
    <message>
        <source>Arrange the drawing for &lt;page&gt;: 16:9, A4, A3, Letter, or a size such as 1920x1080 or 297x210mm. A PDF has a page of that size.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Dispõe o desenho para &lt;page&gt;: 16:9, A4, A3, Letter ou um tamanho como 1920x1080 ou 297x210mm. Um PDF tem uma página desse tamanho.</translation>
    </message>
    <message>
        <source>Explain the icons below the drawing, which is the default.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Explica os ícones abaixo do desenho, o que é o padrão.</translation>
    </message>
    <message>
        <source>Leave out the explanation of the icons.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Omite a explicação dos ícones.</translation>
    </message>
    <message>
        <source>Draw in &lt;colours&gt;: colour (the default), warm, cool, gray or dark.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Desenha em &lt;colours&gt;: colour (o padrão), warm, cool, gray ou dark.</translation>
    </message>
    <message>
        <source>Draw the head on the &lt;side&gt;: right (the default) or left.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Desenha a cabeça no lado &lt;side&gt;: right (o padrão) ou left.</translation>
    </message>
    <message>
        <source>--%1 takes %2, not &quot;%3&quot;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1 aceita %2, não “%3”</translation>
    </message>
    <message>
        <source>--%1 needs the clear look</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1 exige a aparência limpa</translation>
    </message>
    <message>
        <source>colour, warm, cool, gray or dark</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>colour, warm, cool, gray ou dark</translation>
    </message>
    <message>
        <source>left or right</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>left ou right</translation>
    </message>
    <message>
        <source>16:9, A4, A3, Letter or a size such as 1920x1080 or 297x210mm</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>16:9, A4, A3, Letter ou um tamanho como 1920x1080 ou 297x210mm</translation>
    </message>
</context>
<context>
    <name>LookCommands</name>
    <message>
        <source>Look: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Aparência: %1</translation>
    </message>
    <message>
        <source>Loo&amp;k</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Aparê&amp;ncia</translation>
    </message>
    <message>
        <source>Arrang&amp;e for page</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Organi&amp;zar para a página</translation>
    </message>
    <message>
        <source>&amp;Screen</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Tela</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Paleta</translation>
    </message>
    <message>
        <source>&amp;Take off all own colours and styles</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Remover todas as cores e estilos próprios</translation>
    </message>
    <message numerus="yes">
        <source>%n subject(s) changed</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>%n tópico alterado</numerusform>
            <numerusform>%n tópicos alterados</numerusform>
        </translation>
    </message>
    <message>
        <source>No subject has a colour or a style of its own</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Nenhum tópico tem cor ou estilo próprio</translation>
    </message>
    <message>
        <source>Lines of &amp;titles</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Linhas dos &amp;títulos</translation>
    </message>
    <message>
        <source>&amp;Not broken</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Sem quebra</translation>
    </message>
    <message>
        <source>&amp;Long</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Longas</translation>
    </message>
    <message>
        <source>&amp;Medium</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Médias</translation>
    </message>
    <message>
        <source>&amp;Short</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Curtas</translation>
    </message>
    <message>
        <source>&amp;Bones on both sides</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Espinhas dos dois lados</translation>
    </message>
    <message>
        <source>&amp;Head on the left</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ca&amp;beça à esquerda</translation>
    </message>
    <message>
        <source>&amp;Legend</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Le&amp;genda</translation>
    </message>
</context>
<context>
    <name>LookInfo</name>
    <message>
        <source>&amp;Clear</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Limpa</translation>
    </message>
    <message>
        <source>Cl&amp;assic</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Clássica</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Float</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Flutuar</translation>
    </message>
    <message>
        <source>Takes the panel out of the window, or back into it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Tira o painel da janela ou o devolve a ela</translation>
    </message>
    <message>
        <source>Close</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Closes the panel</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Fecha o painel</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Detal&amp;hes</translation>
    </message>
    <message>
        <source>Filt&amp;er…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Filtro…</translation>
    </message>
    <message>
        <source>Subjects</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Tópicos</translation>
    </message>
    <message>
        <source>Details</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Detalhes</translation>
    </message>
    <message>
        <source>History</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Histórico</translation>
    </message>
    <message>
        <source>Overview</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Visão geral</translation>
    </message>
    <message>
        <source>Actions</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ações</translation>
    </message>
    <message>
        <source>Shown be&amp;fore</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Exi&amp;bidos antes</translation>
    </message>
    <message>
        <source>&amp;Panels</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Painéis</translation>
    </message>
    <message>
        <source>Nothing opens %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Nada abre %1</translation>
    </message>
    <message numerus="yes">
        <source>%n task(s) moved to %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>%n tarefa movida para %1</numerusform>
            <numerusform>%n tarefas movidas para %1</numerusform>
        </translation>
    </message>
    <message>
        <source>the top</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>o nível superior</translation>
    </message>
    <message>
        <source>%1[*] – Fishbone</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1[*] – Fishbone</translation>
    </message>
    <message>
        <source>Fishbone</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Fishbone</translation>
    </message>
</context>
<context>
    <name>MappingDialog</name>
    <message>
        <source>Import %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Importar %1</translation>
    </message>
    <message>
        <source>Read as</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ler como</translation>
    </message>
    <message>
        <source>What the columns stand for, with the first rows of the table:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>O que as colunas representam, com as primeiras linhas da tabela:</translation>
    </message>
    <message>
        <source>Read &quot;%1&quot; as</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ler “%1” como</translation>
    </message>
</context>
<context>
    <name>MarkCommands</name>
    <message>
        <source>&amp;Suspected</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Suspeita</translation>
    </message>
    <message>
        <source>Being &amp;checked</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Em &amp;verificação</translation>
    </message>
    <message>
        <source>Con&amp;firmed</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Con&amp;firmada</translation>
    </message>
    <message>
        <source>&amp;Ruled out</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Descartada</translation>
    </message>
    <message>
        <source>R&amp;oot cause</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Causa &amp;raiz</translation>
    </message>
    <message>
        <source>&amp;No verdict</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Sem v&amp;eredito</translation>
    </message>
    <message>
        <source>&amp;Waiting</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Aguardando</translation>
    </message>
    <message>
        <source>Waiting for &amp;approval</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Aguardando a&amp;provação</translation>
    </message>
    <message>
        <source>&amp;Under way</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Em andamento</translation>
    </message>
    <message>
        <source>&amp;Finished</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Concluído</translation>
    </message>
    <message>
        <source>Finished &amp;late</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Concluído com atra&amp;so</translation>
    </message>
    <message>
        <source>&amp;Postponed</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>A&amp;diado</translation>
    </message>
    <message>
        <source>&amp;Cancelled</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Cance&amp;lado</translation>
    </message>
    <message>
        <source>&amp;No status</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Sem s&amp;tatus</translation>
    </message>
    <message>
        <source>&amp;1 (highest)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;1 (máxima)</translation>
    </message>
    <message>
        <source>&amp;2 (high)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;2 (alta)</translation>
    </message>
    <message>
        <source>&amp;3 (medium)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;3 (média)</translation>
    </message>
    <message>
        <source>&amp;4 (low)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;4 (baixa)</translation>
    </message>
    <message>
        <source>&amp;5 (lowest)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;5 (mínima)</translation>
    </message>
    <message>
        <source>&amp;No priority</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Sem prioridade</translation>
    </message>
    <message>
        <source>&amp;Blue</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Azul</translation>
    </message>
    <message>
        <source>&amp;Teal</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Azul-&amp;petróleo</translation>
    </message>
    <message>
        <source>&amp;Green</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Verde</translation>
    </message>
    <message>
        <source>Bro&amp;wn</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Marrom</translation>
    </message>
    <message>
        <source>&amp;Orange</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Laranja</translation>
    </message>
    <message>
        <source>&amp;Red</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>V&amp;ermelho</translation>
    </message>
    <message>
        <source>&amp;Purple</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Roxo</translation>
    </message>
    <message>
        <source>Gr&amp;ey</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Cinza</translation>
    </message>
    <message>
        <source>Mar&amp;k</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Marcar</translation>
    </message>
    <message>
        <source>Mark at the bo&amp;ne</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Marcar &amp;na espinha</translation>
    </message>
    <message>
        <source>R&amp;esponsible…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Respo&amp;nsável…</translation>
    </message>
    <message>
        <source>Change verdict</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Alterar veredito</translation>
    </message>
    <message>
        <source>Vote</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Votar</translation>
    </message>
    <message>
        <source>One vote &amp;more</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Mais um voto</translation>
    </message>
    <message>
        <source>One vote &amp;less</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Men&amp;os um voto</translation>
    </message>
    <message>
        <source>Sort it and its siblings &amp;by votes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ordenar com os &amp;irmãos por votos</translation>
    </message>
    <message>
        <source>S&amp;tatus</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>S&amp;tatus</translation>
    </message>
    <message>
        <source>Change status</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Alterar status</translation>
    </message>
    <message>
        <source>&amp;Priority</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Prioridade</translation>
    </message>
    <message>
        <source>Change priority</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Alterar prioridade</translation>
    </message>
    <message>
        <source>Colo&amp;ur</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Cor</translation>
    </message>
    <message>
        <source>Change colour</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Alterar cor</translation>
    </message>
    <message>
        <source>That of the p&amp;alette</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>A da pale&amp;ta</translation>
    </message>
    <message>
        <source>Ot&amp;her…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Outra…</translation>
    </message>
    <message>
        <source>Colour of the bone</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Cor da espinha</translation>
    </message>
    <message>
        <source>Responsible</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Responsável</translation>
    </message>
    <message>
        <source>Who is responsible?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Quem é o responsável?</translation>
    </message>
    <message>
        <source>Change who is responsible</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Alterar responsável</translation>
    </message>
    <message>
        <source>Sort by votes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ordenar por votos</translation>
    </message>
    <message>
        <source>Sorted by votes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ordenado por votos</translation>
    </message>
</context>
<context>
    <name>MarkNames</name>
    <message>
        <source>none</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>nenhum</translation>
    </message>
    <message>
        <source>unknown</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>desconhecido</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>cancelado</translation>
    </message>
    <message>
        <source>finished</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>concluído</translation>
    </message>
    <message>
        <source>finished late</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>concluído com atraso</translation>
    </message>
    <message>
        <source>postponed</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>adiado</translation>
    </message>
    <message>
        <source>under way</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>em andamento</translation>
    </message>
    <message>
        <source>waiting</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>aguardando</translation>
    </message>
    <message>
        <source>waiting for approval</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>aguardando aprovação</translation>
    </message>
    <message>
        <source>suspected</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>suspeita</translation>
    </message>
    <message>
        <source>being checked</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>em verificação</translation>
    </message>
    <message>
        <source>confirmed</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>confirmada</translation>
    </message>
    <message>
        <source>ruled out</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>descartada</translation>
    </message>
    <message>
        <source>root cause</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>causa raiz</translation>
    </message>
</context>
<context>
    <name>MeetingReport</name>
    <message>
        <source>it may be a cause</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>pode ser uma causa</translation>
    </message>
    <message>
        <source>somebody is looking into it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>alguém está verificando</translation>
    </message>
    <message>
        <source>it contributes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>contribui</translation>
    </message>
    <message>
        <source>it does not contribute</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>não contribui</translation>
    </message>
    <message>
        <source>all comes from it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>tudo decorre dela</translation>
    </message>
    <message>
        <source>Ranked causes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Causas por relevância</translation>
    </message>
    <message>
        <source>Cause</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Causa</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Veredito</translation>
    </message>
    <message>
        <source>Votes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Votos</translation>
    </message>
    <message>
        <source>Evidence</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Evidências</translation>
    </message>
    <message>
        <source>No cause has a verdict or votes.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Nenhuma causa tem veredito ou votos.</translation>
    </message>
    <message>
        <source>Nobody yet</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ninguém ainda</translation>
    </message>
    <message>
        <source>Action</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ação</translation>
    </message>
    <message>
        <source>Status</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Status</translation>
    </message>
    <message>
        <source>Progress</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Progresso</translation>
    </message>
    <message>
        <source>Until</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Prazo</translation>
    </message>
    <message>
        <source>%1, overdue</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1, atrasado</translation>
    </message>
    <message>
        <source>Legend</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Legenda</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Significado</translation>
    </message>
    <message>
        <source>Actions</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ações</translation>
    </message>
    <message>
        <source>Nobody is to do anything.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ninguém tem nada a fazer.</translation>
    </message>
    <message>
        <source>In</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Em</translation>
    </message>
    <message>
        <source>Responsible</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Responsável</translation>
    </message>
    <message>
        <source>Overdue</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Atrasado</translation>
    </message>
    <message>
        <source>yes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>sim</translation>
    </message>
    <message>
        <source>its name must end in .html, .pdf or .md</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>o nome deve terminar em .html, .pdf ou .md</translation>
    </message>
    <message>
        <source>its name must end in .csv or .md</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>o nome deve terminar em .csv ou .md</translation>
    </message>
</context>
<context>
    <name>Menus</name>
    <message>
        <source>&amp;File</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Arquivo</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Subject</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Tópico</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Ir</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>E&amp;xibir</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Aj&amp;uda</translation>
    </message>
    <message>
        <source>File</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Arquivo</translation>
    </message>
    <message>
        <source>Edit</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Subject</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Tópico</translation>
    </message>
    <message>
        <source>View</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Exibir</translation>
    </message>
</context>
<context>
    <name>Minimap</name>
    <message>
        <source>Overview of the drawing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Visão geral do desenho</translation>
    </message>
</context>
<context>
    <name>ModifyDelLink</name>
    <message>
        <source>Delete link</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Remover link</translation>
    </message>
</context>
<context>
    <name>ModifyLinkTo</name>
    <message>
        <source>Modify link to</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Alterar link</translation>
    </message>
</context>
<context>
    <name>ModifyName</name>
    <message>
        <source>Modify subject name</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Renomear tópico</translation>
    </message>
</context>
<context>
    <name>MoveCommands</name>
    <message>
        <source>Move &amp;up</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Mover para &amp;cima</translation>
    </message>
    <message>
        <source>Move do&amp;wn</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Mover para &amp;baixo</translation>
    </message>
    <message>
        <source>Pro&amp;mote (beside its parent)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Pr&amp;omover (ao lado do pai)</translation>
    </message>
    <message>
        <source>D&amp;emote (below the one before)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Reba&amp;ixar (abaixo do anterior)</translation>
    </message>
</context>
<context>
    <name>Palettes</name>
    <message>
        <source>&amp;Colours</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Colorida</translation>
    </message>
    <message>
        <source>&amp;Warm</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Quente</translation>
    </message>
    <message>
        <source>C&amp;ool</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Fria</translation>
    </message>
    <message>
        <source>&amp;Grey</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Cin&amp;za</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Escura</translation>
    </message>
</context>
<context>
    <name>PasteDialog</name>
    <message>
        <source>Paste</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Colar</translation>
    </message>
    <message>
        <source>Lines</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Linhas</translation>
    </message>
    <message>
        <source>Lines with links and emphasis</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Linhas com links e ênfase</translation>
    </message>
    <message>
        <source>Rows of a table</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Linhas de uma tabela</translation>
    </message>
    <message>
        <source>Title</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Título</translation>
    </message>
    <message>
        <source>Details</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Detalhes</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Colar</translation>
    </message>
    <message>
        <source>&amp;Read as:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Ler como:</translation>
    </message>
</context>
<context>
    <name>PenSelect</name>
    <message>
        <source>NoPen</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Sem linha</translation>
    </message>
    <message>
        <source>SolidLine</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Contínua</translation>
    </message>
    <message>
        <source>DashLine</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Tracejada</translation>
    </message>
    <message>
        <source>DotLine</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Pontilhada</translation>
    </message>
    <message>
        <source>DashDotLine</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Traço e ponto</translation>
    </message>
    <message>
        <source>DashDotDotLine</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Traço e dois pontos</translation>
    </message>
    <message>
        <source>FlatCap</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Reta</translation>
    </message>
    <message>
        <source>SquareCap</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Quadrada</translation>
    </message>
    <message>
        <source>RoundCap</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Arredondada</translation>
    </message>
    <message>
        <source>MiterJoin</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Em ângulo</translation>
    </message>
    <message>
        <source>BevelJoin</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Chanfrado</translation>
    </message>
    <message>
        <source>RoundJoin</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Arredondado</translation>
    </message>
    <message>
        <source>PenWidth</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Largura:</translation>
    </message>
    <message>
        <source>PenStyle</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Linha:</translation>
    </message>
    <message>
        <source>PenCapStyle</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Pontas:</translation>
    </message>
    <message>
        <source>PenJoinStyle</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Cantos:</translation>
    </message>
    <message>
        <source>PenColor</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Cor:</translation>
    </message>
    <message>
        <source>Pen</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Caneta</translation>
    </message>
    <message>
        <source>Color</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Escolher…</translation>
    </message>
    <message>
        <source>Accept</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>PictureExport</name>
    <message>
        <source>%1; it fits at a scale of %2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1; cabe com a escala %2</translation>
    </message>
    <message>
        <source>the scale, the size or the margin makes no picture</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>a escala, o tamanho ou a margem não resulta em imagem</translation>
    </message>
    <message>
        <source>there is nothing to draw</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>não há nada a desenhar</translation>
    </message>
    <message>
        <source>a drawing without height or width needs a margin</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>um desenho sem altura ou largura precisa de margem</translation>
    </message>
    <message>
        <source>the file name must end in .png, .svg or .pdf</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>o nome do arquivo deve terminar em .png, .svg ou .pdf</translation>
    </message>
    <message>
        <source>a picture of %1 × %2 is too large: %3</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>uma imagem de %1 × %2 é grande demais: %3</translation>
    </message>
    <message>
        <source>a PDF has at most %1 points (1/72 inch) on a side</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>um PDF tem no máximo %1 pontos (1/72 de polegada) de lado</translation>
    </message>
    <message>
        <source>a PNG has at most %1 pixels on a side</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>um PNG tem no máximo %1 pixels de lado</translation>
    </message>
    <message>
        <source>its pixels would take more than %1 MiB</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>os pixels ocupariam mais de %1 MiB</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>não há memória suficiente</translation>
    </message>
    <message>
        <source>an SVG of it would have more than %1 MiB; a PDF is smaller</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>um SVG teria mais de %1 MiB; um PDF é menor</translation>
    </message>
    <message>
        <source>a side has at most %1 units</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>um lado tem no máximo %1 unidades</translation>
    </message>
    <message>
        <source>there is no such format</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>esse formato não existe</translation>
    </message>
    <message>
        <source>it was cancelled</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>foi cancelado</translation>
    </message>
    <message>
        <source>the drawing cannot be encoded</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>não é possível codificar o desenho</translation>
    </message>
</context>
<context>
    <name>PictureLevelFields</name>
    <message>
        <source>As shown</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Como exibido</translation>
    </message>
    <message>
        <source>All levels</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Todos os níveis</translation>
    </message>
    <message>
        <source>Levels below the main bones:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Níveis abaixo das espinhas principais:</translation>
    </message>
    <message>
        <source>Levels below the main bones</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Níveis abaixo das espinhas principais</translation>
    </message>
    <message>
        <source>&amp;Expanded:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>E&amp;xpandido:</translation>
    </message>
</context>
<context>
    <name>PictureLookFields</name>
    <message>
        <source>Le&amp;gend</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Le&amp;genda</translation>
    </message>
    <message>
        <source>Loo&amp;k:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Aparê&amp;ncia:</translation>
    </message>
    <message>
        <source>As on the screen</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Como na tela</translation>
    </message>
    <message>
        <source>&amp;Page:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Pág&amp;ina:</translation>
    </message>
    <message>
        <source>On the right</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>À direita</translation>
    </message>
    <message>
        <source>On the left</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>À esquerda</translation>
    </message>
    <message>
        <source>Pale&amp;tte:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Pale&amp;ta:</translation>
    </message>
    <message>
        <source>Hea&amp;d:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ca&amp;beça:</translation>
    </message>
</context>
<context>
    <name>PicturePreview</name>
    <message>
        <source>Preview</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Visualização</translation>
    </message>
</context>
<context>
    <name>PictureSizeFields</name>
    <message>
        <source> px</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation> px</translation>
    </message>
    <message>
        <source>Sc&amp;ale:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Escala:</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Largura:</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Alt&amp;ura:</translation>
    </message>
    <message>
        <source>A page of %1 × %2 mm</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Uma página de %1 × %2 mm</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 × %2 pixels</translation>
    </message>
    <message>
        <source>&amp;Use %1, which fits</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Usa&amp;r %1, que cabe</translation>
    </message>
</context>
<context>
    <name>PrintPreview</name>
    <message>
        <source>Arranged for the paper</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Organizado para o papel</translation>
    </message>
    <message>
        <source>Legend</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Legenda</translation>
    </message>
    <message>
        <source>Print preview</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Visualizar impressão</translation>
    </message>
    <message>
        <source>Size on paper</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Tamanho no papel</translation>
    </message>
    <message>
        <source>Fit one page</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ajustar a uma página</translation>
    </message>
    <message>
        <source>Fit the width of the page</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ajustar à largura da página</translation>
    </message>
    <message>
        <source>Scale</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Escala</translation>
    </message>
    <message>
        <source>Scale in percent</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Escala em porcentagem</translation>
    </message>
    <message>
        <source>Look</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Aparência</translation>
    </message>
    <message>
        <source>Palette</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Paleta</translation>
    </message>
    <message>
        <source>Printing…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Imprimindo…</translation>
    </message>
    <message numerus="yes">
        <source>%n page(s)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>%n página</numerusform>
            <numerusform>%n páginas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Nothing to print, or more than %n page(s)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>Nada a imprimir, ou mais de %n página</numerusform>
            <numerusform>Nada a imprimir, ou mais de %n páginas</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, at %2 % so that no title is cut</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1, a %2% para que nenhum título seja cortado</translation>
    </message>
</context>
<context>
    <name>PriorityBox</name>
    <message>
        <source>none</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>nenhuma</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>新建子任务</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Nova subtarefa</translation>
    </message>
    <message>
        <source>查看详情</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Mostrar detalhes</translation>
    </message>
    <message>
        <source>用鱼骨图详细查看</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Mostrar como diagrama próprio</translation>
    </message>
    <message>
        <source>编辑节点</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Editar tópico</translation>
    </message>
    <message>
        <source>新建子节点</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Novo tópico filho</translation>
    </message>
    <message>
        <source>删除节点</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Excluir tópico</translation>
    </message>
</context>
<context>
    <name>RankedList</name>
    <message>
        <source>Ranked causes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Causas por relevância</translation>
    </message>
    <message>
        <source>Votes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Votos</translation>
    </message>
    <message>
        <source>Cause</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Causa</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Veredito</translation>
    </message>
    <message>
        <source>In</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Em</translation>
    </message>
</context>
<context>
    <name>RecentFiles</name>
    <message>
        <source>&amp;Recent files</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Abertos recentemente</translation>
    </message>
    <message>
        <source>(nothing yet)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>(nada ainda)</translation>
    </message>
    <message>
        <source>&amp;Clear the list</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Limpar a lista</translation>
    </message>
</context>
<context>
    <name>RecoveryCommands</name>
    <message>
        <source>Reco&amp;ver documents…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Rec&amp;uperar documentos…</translation>
    </message>
    <message>
        <source>There is nothing to recover.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Não há nada a recuperar.</translation>
    </message>
    <message>
        <source>%1 recovered</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 recuperado</translation>
    </message>
    <message>
        <source>Recover documents</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Recuperar documentos</translation>
    </message>
    <message>
        <source>%1 cannot be recovered from %2: %3.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Não é possível recuperar %1 de %2: %3.</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>Recover documents</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Recuperar documentos</translation>
    </message>
    <message>
        <source>The program did not end well the last time. These documents have changes that were not saved:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>O programa não terminou normalmente da última vez. Estes documentos têm alterações não salvas:</translation>
    </message>
    <message>
        <source>Documents with changes that were not saved</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Documentos com alterações não salvas</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Descartar</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Mais tarde</translation>
    </message>
    <message>
        <source>Discard</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Descartar</translation>
    </message>
    <message numerus="yes">
        <source>Give up the changes of %n document(s) for good?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>Descartar definitivamente as alterações de %n documento?</numerusform>
            <numerusform>Descartar definitivamente as alterações de %n documentos?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RecoveryModel</name>
    <message>
        <source>Document</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Documento</translation>
    </message>
    <message>
        <source>File</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Arquivo</translation>
    </message>
    <message>
        <source>Autosaved</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Salvo automaticamente</translation>
    </message>
    <message>
        <source>Size</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>(never saved)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>(nunca salvo)</translation>
    </message>
</context>
<context>
    <name>ReplaceFindDialog</name>
    <message>
        <source>Finder</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Localizar e substituir</translation>
    </message>
    <message>
        <source>Find what:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Localizar:</translation>
    </message>
    <message>
        <source>Replace with:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Substituir por:</translation>
    </message>
    <message>
        <source>Case sensitive</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Diferenciar maiúsculas de minúsculas</translation>
    </message>
    <message>
        <source>Find</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Localizar</translation>
    </message>
    <message>
        <source>Replace</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Substituir</translation>
    </message>
    <message>
        <source>Replace All</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Substituir tudo</translation>
    </message>
    <message>
        <source>Column</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Coluna</translation>
    </message>
    <message>
        <source>title</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Título</translation>
    </message>
    <message>
        <source>uuid</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Uuid</translation>
    </message>
    <message>
        <source>showid</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Número</translation>
    </message>
    <message>
        <source>pid</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Uuid da tarefa pai</translation>
    </message>
    <message>
        <source>Not found key word %1.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>“%1” não foi encontrado.</translation>
    </message>
</context>
<context>
    <name>ReportCommands</name>
    <message>
        <source>Meetin&amp;g report…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Re&amp;latório da reunião…</translation>
    </message>
    <message>
        <source>Meeting report</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Relatório da reunião</translation>
    </message>
    <message>
        <source>Ta&amp;ble of actions…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Tabela &amp;de ações…</translation>
    </message>
    <message>
        <source>Actions</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ações</translation>
    </message>
    <message>
        <source>Page for the browser (*.html)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Página para o navegador (*.html)</translation>
    </message>
    <message>
        <source>Markdown and a picture (*.md)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Markdown e uma imagem (*.md)</translation>
    </message>
    <message>
        <source>actions</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ações</translation>
    </message>
    <message>
        <source>Table for spreadsheets (*.csv)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Tabela para planilhas (*.csv)</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 gravado</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Não é possível gravar %1: %2.</translation>
    </message>
    <message>
        <source>Print act&amp;ions…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Imprimir a&amp;ções…</translation>
    </message>
</context>
<context>
    <name>SlideExport</name>
    <message>
        <source>Fishbone diagram &quot;%1&quot; with %2 causes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Diagrama de espinha de peixe “%1” com %2 causas</translation>
    </message>
    <message>
        <source>there is nothing to draw</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>não há nada a desenhar</translation>
    </message>
    <message>
        <source>Actions</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ações</translation>
    </message>
</context>
<context>
    <name>SourceDialogs</name>
    <message>
        <source>Fishbone diagrams (*.json);;%1;;All files (*)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Diagramas de espinha de peixe (*.json);;%1;;Todos os arquivos (*)</translation>
    </message>
    <message>
        <source>Open</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Import</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Importar</translation>
    </message>
    <message>
        <source>Loading %1…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Carregando %1…</translation>
    </message>
</context>
<context>
    <name>SpearStyleDialog</name>
    <message>
        <source>Spear style</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Estilo</translation>
    </message>
    <message>
        <source>InheritanceParent</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Herdar o estilo do pai</translation>
    </message>
    <message>
        <source>Preview</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Visualização</translation>
    </message>
    <message>
        <source>ssNormal</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Normal</translation>
    </message>
    <message>
        <source>ssSelected</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Selecionado</translation>
    </message>
    <message>
        <source>ssHovered</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Sob o mouse</translation>
    </message>
    <message>
        <source>ssLinked</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Destino de uma movimentação</translation>
    </message>
    <message>
        <source>Preview 预览测试 ABC xyz</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Visualização ABC xyz 123</translation>
    </message>
    <message>
        <source>textCount</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Caracteres exibidos:</translation>
    </message>
    <message>
        <source>SpearState</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Estado:</translation>
    </message>
    <message>
        <source>Accept</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Parent</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Pai</translation>
    </message>
    <message>
        <source>Set TextFont</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Fonte do texto…</translation>
    </message>
    <message>
        <source>Set TextColor</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Cor do texto…</translation>
    </message>
    <message>
        <source>Set TextBkColor</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Fundo do texto…</translation>
    </message>
    <message>
        <source>Set BroderPen</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Caneta da borda…</translation>
    </message>
</context>
<context>
    <name>StepNames</name>
    <message numerus="yes">
        <source>%1 “%2” and %n more</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>%1 “%2” e mais %n</numerusform>
            <numerusform>%1 “%2” e mais %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StringListEditor</name>
    <message>
        <source>Add</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Adicionar</translation>
    </message>
    <message>
        <source>Remove</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Remover</translation>
    </message>
</context>
<context>
    <name>SubjectClipboard</name>
    <message>
        <source>cannot paste the text: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>não é possível colar o texto: %1</translation>
    </message>
</context>
<context>
    <name>SubjectStyles</name>
    <message>
        <source>The subject looks as the one above it, also when the style of that is changed</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>O tópico tem a aparência do que está acima dele, mesmo quando o estilo deste é alterado</translation>
    </message>
    <message>
        <source>Change style</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Alterar estilo</translation>
    </message>
    <message>
        <source>Remove style</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Remover estilo</translation>
    </message>
    <message>
        <source>Take off own colours and styles</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Remover cores e estilos próprios</translation>
    </message>
</context>
<context>
    <name>SubjectTree</name>
    <message>
        <source>Filter by title</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Filtrar por título</translation>
    </message>
    <message>
        <source>Subjects</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Tópicos</translation>
    </message>
</context>
<context>
    <name>TabButtons</name>
    <message>
        <source>Scroll left</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Rolar para a esquerda</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Rolar para a direita</translation>
    </message>
</context>
<context>
    <name>TabCommands</name>
    <message>
        <source>Next &amp;tab</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Pró&amp;xima aba</translation>
    </message>
    <message>
        <source>Previous t&amp;ab</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Aba an&amp;terior</translation>
    </message>
</context>
<context>
    <name>TableMapping</name>
    <message>
        <source>Details</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Detalhes</translation>
    </message>
    <message>
        <source>Title</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Título</translation>
    </message>
    <message>
        <source>Title of one level</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Título de um nível</translation>
    </message>
    <message>
        <source>Id</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ID</translation>
    </message>
    <message>
        <source>Uuid</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Uuid</translation>
    </message>
    <message>
        <source>Short id</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ID curto</translation>
    </message>
    <message>
        <source>Parent</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Pai</translation>
    </message>
    <message>
        <source>Level</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Nível</translation>
    </message>
    <message>
        <source>Outline number</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Número na estrutura</translation>
    </message>
    <message>
        <source>Status</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Status</translation>
    </message>
    <message>
        <source>Progress</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Progresso</translation>
    </message>
    <message>
        <source>Priority</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Prioridade</translation>
    </message>
    <message>
        <source>Manager</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Responsável</translation>
    </message>
    <message>
        <source>Manager&apos;s id</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ID do responsável</translation>
    </message>
    <message>
        <source>Creator</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Criador</translation>
    </message>
    <message>
        <source>Creator&apos;s id</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ID do criador</translation>
    </message>
    <message>
        <source>Followers</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Seguidores</translation>
    </message>
    <message>
        <source>Created</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Criado</translation>
    </message>
    <message>
        <source>Planned end</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Fim previsto</translation>
    </message>
    <message>
        <source>Link</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Link</translation>
    </message>
    <message>
        <source>Details text</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Texto dos detalhes</translation>
    </message>
    <message>
        <source>Type</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Completed on</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Concluído em</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Veredito</translation>
    </message>
    <message>
        <source>Votes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Votos</translation>
    </message>
</context>
<context>
    <name>TemplateCommands</name>
    <message>
        <source>New from &amp;template…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Novo a partir de &amp;modelo…</translation>
    </message>
    <message>
        <source>Save as te&amp;mplate…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Salvar como mod&amp;elo…</translation>
    </message>
    <message>
        <source>New from template</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Novo a partir de modelo</translation>
    </message>
    <message>
        <source>%1 is no template: %2.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 não é um modelo: %2.</translation>
    </message>
    <message>
        <source>Save as template</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Salvar como modelo</translation>
    </message>
    <message>
        <source>Name of the template:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Nome do modelo:</translation>
    </message>
    <message>
        <source>There is a template %1 already. Replace it?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Já existe um modelo %1. Substituí-lo?</translation>
    </message>
    <message>
        <source>File &gt; New from template offers %1 now</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Agora Arquivo &gt; Novo a partir de modelo oferece %1</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Não é possível gravar %1: %2.</translation>
    </message>
</context>
<context>
    <name>TemplateGallery</name>
    <message>
        <source>New from template</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Novo a partir de modelo</translation>
    </message>
    <message>
        <source>Templates</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Modelos</translation>
    </message>
    <message>
        <source>C&amp;reate</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>C&amp;riar</translation>
    </message>
    <message>
        <source>From a &amp;file…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>De um &amp;arquivo…</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Excluir</translation>
    </message>
    <message>
        <source>Delete the template %1?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Excluir o modelo %1?</translation>
    </message>
</context>
<context>
    <name>Templates</name>
    <message>
        <source>Empty</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Vazio</translation>
    </message>
    <message>
        <source>6M: production</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>6M: produção</translation>
    </message>
    <message>
        <source>4S: services</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>4S: serviços</translation>
    </message>
    <message>
        <source>8P: marketing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>8P: marketing</translation>
    </message>
    <message>
        <source>4P: administration</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>4P: administração</translation>
    </message>
    <message>
        <source>5 whys</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>5 porquês</translation>
    </message>
    <message>
        <source>Incident review</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Análise de incidente</translation>
    </message>
    <message>
        <source>Project risks</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Riscos do projeto</translation>
    </message>
</context>
<context>
    <name>TitleEditor</name>
    <message>
        <source>Title</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Título</translation>
    </message>
</context>
<context>
    <name>TreeItem</name>
    <message>
        <source>负责人:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Responsável: </translation>
    </message>
    <message>
        <source>创建时间:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Criado em: </translation>
    </message>
    <message>
        <source>截止时间:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Fim previsto: </translation>
    </message>
    <message>
        <source>子主题</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Subtópico</translation>
    </message>
</context>
<context>
    <name>URLDialog</name>
    <message>
        <source>Input Url</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Inserir um URL</translation>
    </message>
    <message>
        <source>Url:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>URL:</translation>
    </message>
    <message>
        <source>Clean</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Limpar histórico</translation>
    </message>
    <message>
        <source>Open</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Link to url</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Vincular a um URL</translation>
    </message>
    <message>
        <source>Save url</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Salvar em um URL</translation>
    </message>
    <message>
        <source>Open url</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Abrir um URL</translation>
    </message>
    <message>
        <source>Error</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Erro</translation>
    </message>
    <message>
        <source>Failed to open %1
%2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Não é possível abrir %1
%2</translation>
    </message>
</context>
<context>
    <name>ViewCommands</name>
    <message>
        <source>Zoom &amp;in</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Ampliar</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Reduzir</translation>
    </message>
    <message>
        <source>&amp;100 %</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;100%</translation>
    </message>
    <message>
        <source>&amp;Fit all</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>A&amp;justar tudo</translation>
    </message>
    <message>
        <source>Fit &amp;selection</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ajustar à &amp;seleção</translation>
    </message>
    <message>
        <source>Rotate &amp;right</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Girar à &amp;direita</translation>
    </message>
    <message>
        <source>Rotate &amp;left</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Girar à es&amp;querda</translation>
    </message>
    <message>
        <source>U&amp;pright</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Sem rotaçã&amp;o</translation>
    </message>
    <message>
        <source>S&amp;how full screen</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>T&amp;ela cheia</translation>
    </message>
    <message>
        <source>E&amp;xpand</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>E&amp;xpandir</translation>
    </message>
    <message>
        <source>&amp;Contract</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Reco&amp;lher</translation>
    </message>
    <message>
        <source>Expand &amp;all</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Expandir &amp;tudo</translation>
    </message>
    <message>
        <source>Con&amp;tract all</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Recol&amp;her tudo</translation>
    </message>
    <message>
        <source>Expanding all bones…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Expandindo todas as espinhas…</translation>
    </message>
    <message>
        <source>Show as a &amp;diagram of its own</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Mostrar como diagrama &amp;próprio</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Voltar</translation>
    </message>
    <message>
        <source>Show the &amp;whole diagram</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Mostrar o diagrama &amp;inteiro</translation>
    </message>
    <message>
        <source>Style of &amp;all subjects…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Estilo de todos os tópi&amp;cos…</translation>
    </message>
    <message>
        <source>&amp;Diagram mode</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Modo dia&amp;grama</translation>
    </message>
    <message>
        <source>&amp;Task mode</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;Modo tarefa</translation>
    </message>
    <message>
        <source>&amp;Just the drawing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Só o desenho (&amp;foco)</translation>
    </message>
    <message>
        <source>(nothing yet)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>(nada ainda)</translation>
    </message>
</context>
<context>
    <name>WalkCommands</name>
    <message>
        <source>To the &amp;left</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Para a &amp;esquerda</translation>
    </message>
    <message>
        <source>To the &amp;right</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Para a &amp;direita</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Para &amp;cima</translation>
    </message>
    <message>
        <source>&amp;Down</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Para &amp;baixo</translation>
    </message>
    <message>
        <source>To the &amp;parent</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ao tópico &amp;pai</translation>
    </message>
    <message>
        <source>To the &amp;first child</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ao primeiro &amp;filho</translation>
    </message>
    <message>
        <source>To the one &amp;before</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ao &amp;anterior</translation>
    </message>
    <message>
        <source>To the &amp;next one</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ao &amp;seguinte</translation>
    </message>
</context>
<context>
    <name>Welcome</name>
    <message>
        <source>Your first fishbone</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Sua primeira espinha de peixe</translation>
    </message>
    <message>
        <source>Build it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Construa</translation>
    </message>
    <message>
        <source>Tab: a child</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Tab: um filho</translation>
    </message>
    <message>
        <source>Enter: one after it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Enter: um tópico depois</translation>
    </message>
    <message>
        <source>Shift+Enter: one before it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Shift+Enter: um tópico antes</translation>
    </message>
    <message>
        <source>Ctrl+Enter: a parent</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ctrl+Enter: um pai</translation>
    </message>
    <message>
        <source>Change it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Altere</translation>
    </message>
    <message>
        <source>Just type: a new title</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Basta digitar: um novo título</translation>
    </message>
    <message>
        <source>F2: edit the title</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>F2: editar o título</translation>
    </message>
    <message>
        <source>F4: details</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>F4: detalhes</translation>
    </message>
    <message>
        <source>Ctrl+Z: undo</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ctrl+Z: desfazer</translation>
    </message>
    <message>
        <source>Mark it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Marque</translation>
    </message>
    <message>
        <source>Space: all marks</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Espaço: todas as marcas</translation>
    </message>
    <message>
        <source>F7: a vote</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>F7: um voto</translation>
    </message>
    <message>
        <source>Walk in it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Percorra</translation>
    </message>
    <message>
        <source>Arrows: as you see it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Setas: como se vê</translation>
    </message>
    <message>
        <source>Ctrl+arrows: by level</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ctrl+setas: por nível</translation>
    </message>
    <message>
        <source>+ and −: expand, contract</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>+ e −: expandir, recolher</translation>
    </message>
    <message>
        <source>Rearrange it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Reorganize</translation>
    </message>
    <message>
        <source>Drag a bone onto another</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Arraste uma espinha sobre outra</translation>
    </message>
    <message>
        <source>Alt+arrows: move a bone</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Alt+setas: mover uma espinha</translation>
    </message>
    <message>
        <source>Look at it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Observe</translation>
    </message>
    <message>
        <source>Home: all of it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Home: tudo</translation>
    </message>
    <message>
        <source>Ctrl+wheel: zoom</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ctrl+roda: zoom</translation>
    </message>
    <message>
        <source>Take it with you</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Leve com você</translation>
    </message>
    <message>
        <source>Ctrl+S: save</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ctrl+S: salvar</translation>
    </message>
    <message>
        <source>Ctrl+E: a picture</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ctrl+E: uma imagem</translation>
    </message>
    <message>
        <source>F1: all keys</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>F1: todas as teclas</translation>
    </message>
</context>
<context>
    <name>WorkProgress</name>
    <message>
        <source>Cancel</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>ZoomControls</name>
    <message>
        <source>Zoom</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Show at 100 %</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Mostrar em 100%</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Rotação</translation>
    </message>
</context>
</TS>
