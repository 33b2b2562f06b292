<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh">
<context>
    <name>AccessibleBone</name>
    <message>
        <source>level %1</source>
        <translation>第 %1 级</translation>
    </message>
    <message>
        <source>linked</source>
        <translation>有链接</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>选择</translation>
    </message>
    <message>
        <source>Contract</source>
        <translation>折叠</translation>
    </message>
    <message>
        <source>Expand</source>
        <translation>展开</translation>
    </message>
    <message>
        <source>Selects this bone alone</source>
        <translation>只选择这根鱼骨</translation>
    </message>
    <message>
        <source>Hides the bones below</source>
        <translation>隐藏下级鱼骨</translation>
    </message>
    <message>
        <source>Shows the bones below</source>
        <translation>显示下级鱼骨</translation>
    </message>
</context>
<context>
    <name>AccessibleDiagram</name>
    <message>
        <source>Diagram: %1</source>
        <translation>鱼骨图：%1</translation>
    </message>
    <message>
        <source>Diagram</source>
        <translation>鱼骨图</translation>
    </message>
</context>
<context>
    <name>AccessibleSubject</name>
    <message>
        <source>level %1</source>
        <translation>第 %1 级</translation>
    </message>
    <message>
        <source>Contract</source>
        <translation>折叠</translation>
    </message>
    <message>
        <source>Expand</source>
        <translation>展开</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>选择</translation>
    </message>
</context>
<context>
    <name>ActionList</name>
    <message>
        <source>no date</source>
        <translation>无日期</translation>
    </message>
    <message>
        <source>Change who is responsible</source>
        <translation>更改负责人</translation>
    </message>
    <message>
        <source>Change planned end</source>
        <translation>更改计划完成日期</translation>
    </message>
    <message>
        <source>Change status</source>
        <translation>更改状态</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>重命名</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>待办事项</translation>
    </message>
    <message>
        <source>Cause</source>
        <translation>原因</translation>
    </message>
    <message>
        <source>Responsible</source>
        <translation>负责人</translation>
    </message>
    <message>
        <source>Until</source>
        <translation>截止</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>%1, overdue</source>
        <translation>%1,已逾期</translation>
    </message>
    <message>
        <source>Nobody yet</source>
        <translation>尚无人负责</translation>
    </message>
    <message>
        <source>No status</source>
        <translation>无状态</translation>
    </message>
</context>
<context>
    <name>ActionsPanel</name>
    <message>
        <source>Write to a file…</source>
        <translation>写入文件…</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>待办事项</translation>
    </message>
    <message>
        <source>Ranked causes</source>
        <translation>原因排名</translation>
    </message>
    <message>
        <source>Grouped by</source>
        <translation>分组方式</translation>
    </message>
    <message>
        <source>In one list</source>
        <translation>不分组</translation>
    </message>
    <message>
        <source>By person</source>
        <translation>按人员</translation>
    </message>
    <message>
        <source>By status</source>
        <translation>按状态</translation>
    </message>
    <message>
        <source>Print…</source>
        <translation>打印…</translation>
    </message>
</context>
<context>
    <name>AutosaveStatus</name>
    <message>
        <source>Autosaved at %1</source>
        <translation>已于 %1 自动保存</translation>
    </message>
    <message>
        <source>A copy of the changes that are not saved is kept in %1</source>
        <translation>未保存更改的副本保存在 %1</translation>
    </message>
    <message>
        <source>Autosave failed at %1</source>
        <translation>%1 自动保存失败</translation>
    </message>
    <message>
        <source>%1 cannot be written. Changes that are not saved would be lost if the program did not end well.</source>
        <translation>无法写入 %1。如果程序异常结束，未保存的更改将会丢失。</translation>
    </message>
</context>
<context>
    <name>BusyCursor</name>
    <message>
        <source>Working…</source>
        <translation>正在处理…</translation>
    </message>
</context>
<context>
    <name>CanvasTheme</name>
    <message>
        <source>The style is not kept: %1 cannot be written</source>
        <translation>样式未保存：无法写入 %1</translation>
    </message>
</context>
<context>
    <name>ClearContent</name>
    <message>
        <source>cancelled</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>finished</source>
        <translation>已完成</translation>
    </message>
    <message>
        <source>finished late</source>
        <translation>逾期完成</translation>
    </message>
    <message>
        <source>postponed</source>
        <translation>已推迟</translation>
    </message>
    <message>
        <source>under way</source>
        <translation>进行中</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>等待中</translation>
    </message>
    <message>
        <source>waiting for approval</source>
        <translation>等待审批</translation>
    </message>
    <message>
        <source>suspected</source>
        <translation>怀疑</translation>
    </message>
    <message>
        <source>being checked</source>
        <translation>核查中</translation>
    </message>
    <message>
        <source>confirmed</source>
        <translation>已确认</translation>
    </message>
    <message>
        <source>ruled out</source>
        <translation>已排除</translation>
    </message>
    <message>
        <source>root cause</source>
        <translation>根本原因</translation>
    </message>
    <message numerus="yes">
        <source>%n vote(s)</source>
        <translation>
            <numerusform>%n 票</numerusform>
        </translation>
    </message>
    <message>
        <source>votes</source>
        <translation>票数</translation>
    </message>
</context>
<context>
    <name>CloseQuestion</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message numerus="yes">
        <source>%n document(s) have changes that were not saved. Save those that are checked?</source>
        <translation>
            <numerusform>有 %n 个文档的更改尚未保存。保存勾选的文档吗？</numerusform>
        </translation>
    </message>
    <message>
        <source>Documents with changes that were not saved</source>
        <translation>有未保存更改的文档</translation>
    </message>
    <message>
        <source>&amp;Save checked</source>
        <translation>保存所选(&amp;S)</translation>
    </message>
    <message>
        <source>Close &amp;without saving</source>
        <translation>不保存并关闭(&amp;W)</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Show this help and quit.</source>
        <translation>显示此帮助并退出。</translation>
    </message>
    <message>
        <source>Show the version and quit.</source>
        <translation>显示版本并退出。</translation>
    </message>
    <message>
        <source>How far to expand the bones of the picture: all (the default), none, or a number of levels below the main bones.</source>
        <translation>图片中鱼骨展开到何处：all（全部，默认）、none（不展开），或大骨以下的层数。</translation>
    </message>
    <message>
        <source>Make the picture &lt;width&gt;x&lt;height&gt; in size and fit the drawing in.</source>
        <translation>图片尺寸为 &lt;width&gt;x&lt;height&gt;，图形缩放到适合其中。</translation>
    </message>
    <message>
        <source>Draw &lt;factor&gt; times as large as on the screen at 100 %.</source>
        <translation>按屏幕上 100 % 显示时大小的 &lt;factor&gt; 倍绘制。</translation>
    </message>
    <message>
        <source>Fill the picture with &lt;colour&gt;, a name or #rrggbb, or leave it transparent. White is the default.</source>
        <translation>用 &lt;colour&gt;（颜色名称或 #rrggbb）填充图片，或以 transparent 保持透明。默认为白色。</translation>
    </message>
    <message>
        <source>Diagrams to open: files, or http and https URLs. Without one, a new diagram.</source>
        <translation>要打开的鱼骨图：文件，或 http、https 网址。不指定时新建一个。</translation>
    </message>
    <message>
        <source>--%1 takes %2, not &quot;%3&quot;</source>
        <translation>--%1 的值应为 %2，而不是“%3”</translation>
    </message>
    <message>
        <source>--%1 needs --export</source>
        <translation>--%1 只能与 --export 一起使用</translation>
    </message>
    <message>
        <source>--export takes one document, not %1</source>
        <translation>--export 需要一个文档，而不是 %1 个</translation>
    </message>
    <message>
        <source>--size and --scale exclude each other</source>
        <translation>--size 与 --scale 不能同时使用</translation>
    </message>
    <message>
        <source>all, none or a number of levels</source>
        <translation>all、none 或层数</translation>
    </message>
    <message>
        <source>a size such as 1600x900</source>
        <translation>1600x900 这样的尺寸</translation>
    </message>
    <message>
        <source>a number above 0</source>
        <translation>大于 0 的数</translation>
    </message>
    <message>
        <source>the name of a colour, #rrggbb or transparent</source>
        <translation>颜色名称、#rrggbb 或 transparent</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>无法读取 %1：%2</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
    <message>
        <source>there is no display to open a window on; --export needs none</source>
        <translation>没有可打开窗口的图形显示；--export 不需要图形显示</translation>
    </message>
    <message>
        <source>Read the file as &lt;format&gt;, whatever its ending.</source>
        <translation>按 &lt;format&gt; 格式读取文件，不论其扩展名。</translation>
    </message>
    <message>
        <source>Write &lt;format&gt;, whatever the ending.</source>
        <translation>写成 &lt;format&gt; 格式，不论扩展名。</translation>
    </message>
    <message>
        <source>The file to read.</source>
        <translation>要读取的文件。</translation>
    </message>
    <message>
        <source>The file to write.</source>
        <translation>要写入的文件。</translation>
    </message>
    <message>
        <source>Counts what is in a diagram and lists what is off in it.
The exit code is 3 when anything is.</source>
        <translation>统计鱼骨图的内容并列出其中的问题。
如有问题，退出码为 3。</translation>
    </message>
    <message>
        <source>--%1 does not go with convert</source>
        <translation>--%1 不能与 convert 一起使用</translation>
    </message>
    <message>
        <source>convert takes a file to read and a file to write</source>
        <translation>convert 需要一个要读取的文件和一个要写入的文件</translation>
    </message>
    <message>
        <source>--%1 needs a picture to write</source>
        <translation>--%1 仅在写入图片时可用</translation>
    </message>
    <message>
        <source>--%1 does not go with info</source>
        <translation>--%1 不能与 info 一起使用</translation>
    </message>
    <message>
        <source>info takes one file, not %1</source>
        <translation>info 需要一个文件，而不是 %1 个</translation>
    </message>
    <message>
        <source>one of %1</source>
        <translation>%1 之一</translation>
    </message>
    <message>
        <source>Format: %1
</source>
        <translation>格式：%1
</translation>
    </message>
    <message>
        <source>The command.</source>
        <translation>命令。</translation>
    </message>
    <message>
        <source>Write nothing when that would leave content out.</source>
        <translation>若会丢失内容，则不写入任何文件。</translation>
    </message>
    <message>
        <source>--%1 needs convert</source>
        <translation>--%1 需要 convert</translation>
    </message>
    <message>
        <source>%1 can only be written</source>
        <translation>%1 只能写入</translation>
    </message>
    <message>
        <source>%1 can only be read</source>
        <translation>%1 只能读取</translation>
    </message>
    <message>
        <source>the format of &quot;%1&quot; is unknown: the name must end in one of %2, or --from tell one of %3</source>
        <translation>“%1”的格式未知：名称须以 %2 之一结尾，或用 --from 指定 %3 之一</translation>
    </message>
    <message>
        <source>%1 was not written: something would be left out</source>
        <translation>未写入 %1：有内容会被省略</translation>
    </message>
    <message>
        <source>Writes a diagram in another format, or as a picture.
The endings tell the formats. Read: %1.
Written: %2, and png, svg, pdf, html and pptx for pictures.
What is left out, or put where it can be kept, is listed on the error output.</source>
        <translation>将图表写成另一种格式或图片。
扩展名决定格式。可读取：%1。
可写入：%2，图片为 png、svg、pdf、html 和 pptx。
被省略或另存别处的内容会列在错误输出中。</translation>
    </message>
    <message>
        <source>Draw the diagram into the picture &lt;file&gt; and quit. The ending .png, .svg, .pdf, .html or, for a slide, .pptx tells the format. Needs no display.</source>
        <translation>将鱼骨图绘制到图片 &lt;file&gt; 后退出。扩展名 .png、.svg、.pdf、.html 或（幻灯片）.pptx 决定格式。不需要显示器。</translation>
    </message>
    <message>
        <source>the format of &quot;%1&quot; is unknown: the name must end in .png, .svg, .pdf, .html or .pptx</source>
        <translation>“%1”的格式未知：文件名必须以 .png、.svg、.pdf、.html 或 .pptx 结尾</translation>
    </message>
    <message>
        <source>the format of &quot;%1&quot; is unknown: the name must end in one of %2, or in .png, .svg, .pdf, .html or .pptx for a picture, or --to tell one of %3</source>
        <translation>“%1”的格式未知：文件名必须以 %2 之一结尾，图片则以 .png、.svg、.pdf、.html 或 .pptx 结尾，或用 --to 指定 %3 之一</translation>
    </message>
    <message>
        <source>a page for the browser needs the clear look</source>
        <translation>浏览器页面需要清晰外观</translation>
    </message>
    <message>
        <source>Writes what is sent round after a meeting: the picture, the causes in the order of what was found out, what is to be done by whom, and a legend.
The ending .html, .pdf or .md tells the format; .md has its picture in a file beside it.</source>
        <translation>写出会后分发的报告：图片、按结论排序的原因、由谁做什么，以及图例。
扩展名 .html、.pdf 或 .md 决定格式；.md 的图片在旁边的文件中。</translation>
    </message>
    <message>
        <source>--%1 needs convert, info, report or check</source>
        <translation>--%1 需要 convert、info、report 或 check</translation>
    </message>
    <message>
        <source>--%1 does not go with report</source>
        <translation>--%1 不能与 report 一起使用</translation>
    </message>
    <message>
        <source>report takes a file to read and a file to write</source>
        <translation>report 需要一个要读取的文件和一个要写入的文件</translation>
    </message>
    <message>
        <source>the format of &quot;%1&quot; is unknown: the name must end in .html, .pdf or .md</source>
        <translation>“%1”的格式未知：名称必须以 .html、.pdf 或 .md 结尾</translation>
    </message>
    <message>
        <source>the ending names no format that can be read</source>
        <translation>文件后缀不是可以读取的格式</translation>
    </message>
    <message>
        <source>--%1 needs info</source>
        <translation>--%1 需要 info</translation>
    </message>
    <message>
        <source>--%1 does not go with check</source>
        <translation>--%1 不能与 check 一起使用</translation>
    </message>
    <message>
        <source>check takes the files to look at</source>
        <translation>check 需要要检查的文件</translation>
    </message>
    <message>
        <source>--%1 does not go with merge</source>
        <translation>--%1 不能与 merge 一起使用</translation>
    </message>
    <message>
        <source>merge takes the files of the base, of ours and of theirs</source>
        <translation>merge 需要基础版本、我方版本和对方版本的文件</translation>
    </message>
    <message>
        <source>Say it as JSON, for programs.</source>
        <translation>以 JSON 输出，供程序使用。</translation>
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
        <translation>编辑任务鱼骨图。

以下命令无需图形显示：
  convert   将鱼骨图写成另一种格式或图片
  info      说明鱼骨图的内容及其中的问题
  report    写出会后分发的报告
  check     逐行列出文件中的问题
  merge     合并鱼骨图的两个版本，供 git 使用
“fishbone convert --help”有更多说明。同名的文件请写作 ./convert。</translation>
    </message>
    <message>
        <source>Names what is off in each file, and why one cannot be read, a line each.
The exit code is 1 when there is anything.</source>
        <translation>逐行列出每个文件中的问题，以及文件无法读取的原因。
有任何问题时，退出码为 1。</translation>
    </message>
    <message>
        <source>The files to look at.</source>
        <translation>要检查的文件。</translation>
    </message>
    <message>
        <source>Merges what changed from the base to theirs into ours, subject by subject, as git asks a merge driver to.
What both changed differently is kept as in ours, with a cause that says so below it; the exit code is 1 then.</source>
        <translation>按 git 对合并驱动程序的要求，逐个主题地将对方版本相对基础版本的更改合并到我方版本中。
双方作了不同更改之处保持我方的内容，并在其下加一个说明此事的原因；此时退出码为 1。</translation>
    </message>
    <message>
        <source>The version that both come from.</source>
        <translation>双方共同的来源版本。</translation>
    </message>
    <message>
        <source>The version to merge into; it is replaced.</source>
        <translation>合并到的版本；它会被替换。</translation>
    </message>
    <message>
        <source>The other version.</source>
        <translation>另一个版本。</translation>
    </message>
    <message>
        <source>there are conflicts: look for the causes &quot;Merge conflict&quot;</source>
        <translation>存在冲突：请查找名为“合并冲突”的原因</translation>
    </message>
    <message>
        <source>--%1 does not go with a document from the network</source>
        <translation>--%1 不能用于来自网络的文档</translation>
    </message>
    <message>
        <source>Show texts in &lt;language&gt;, such as de or zh, instead of the system&apos;s.</source>
        <translation>用 &lt;language&gt; 显示文本（例如 de 或 zh），而不用系统的语言。</translation>
    </message>
    <message>
        <source>a folder</source>
        <translation>一个文件夹</translation>
    </message>
    <message>
        <source>Show the texts that the files in &lt;folder&gt; have, and show them anew when these are changed. For translators.</source>
        <translation>显示 &lt;folder&gt; 中文件里的文本，文件更改后重新显示。供翻译者使用。</translation>
    </message>
</context>
<context>
    <name>DetailsForm</name>
    <message>
        <source>Priority:</source>
        <translation>优先级：</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Edit style…</source>
        <translation>编辑样式…</translation>
    </message>
    <message>
        <source>Has a planned end</source>
        <translation>设有截止时间</translation>
    </message>
    <message>
        <source>Planned end</source>
        <translation>计划结束</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>链接</translation>
    </message>
    <message>
        <source>Open the link</source>
        <translation>打开链接</translation>
    </message>
    <message>
        <source>Followers</source>
        <translation>关注者</translation>
    </message>
    <message>
        <source>New follower</source>
        <translation>新关注人</translation>
    </message>
    <message>
        <source>Origin</source>
        <translation>来源</translation>
    </message>
    <message>
        <source>several</source>
        <translation>多个不同的值</translation>
    </message>
    <message numerus="yes">
        <source>%n subjects</source>
        <translation>
            <numerusform>%n 个主题</numerusform>
        </translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>标题：</translation>
    </message>
    <message>
        <source>Number:</source>
        <translation>编号：</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>状态：</translation>
    </message>
    <message>
        <source>Progress:</source>
        <translation>进度：</translation>
    </message>
    <message>
        <source>Responsible:</source>
        <translation>负责人：</translation>
    </message>
    <message>
        <source>Their id:</source>
        <translation>负责人 ID：</translation>
    </message>
    <message>
        <source>Planned end:</source>
        <translation>截止时间：</translation>
    </message>
    <message>
        <source>Link:</source>
        <translation>链接：</translation>
    </message>
    <message>
        <source>Followers:</source>
        <translation>关注人：</translation>
    </message>
    <message>
        <source>Details:</source>
        <translation>详情：</translation>
    </message>
    <message>
        <source>Style:</source>
        <translation>样式：</translation>
    </message>
    <message>
        <source>Verdict:</source>
        <translation>结论：</translation>
    </message>
    <message>
        <source>Votes:</source>
        <translation>票数：</translation>
    </message>
    <message>
        <source>What there is to say of it; of a cause, the evidence for its verdict</source>
        <translation>对该主题的说明；对于原因，则为其结论的依据</translation>
    </message>
</context>
<context>
    <name>DetailsPanel</name>
    <message>
        <source>&amp;Apply</source>
        <translation>应用(&amp;A)</translation>
    </message>
    <message>
        <source>Re&amp;vert</source>
        <translation>还原(&amp;R)</translation>
    </message>
    <message>
        <source>Created by: %1</source>
        <translation>创建人：%1</translation>
    </message>
    <message>
        <source>Created on: %1</source>
        <translation>创建时间：%1</translation>
    </message>
    <message>
        <source>Edit details</source>
        <translation>编辑详情</translation>
    </message>
</context>
<context>
    <name>DiagramCounts</name>
    <message numerus="yes">
        <source>%n subject(s)</source>
        <translation>
            <numerusform>%n 个主题</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>, %n selected</source>
        <translation>
            <numerusform>，选中 %n 个</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DiagramExchange</name>
    <message>
        <source>it holds no diagram</source>
        <translation>其中没有鱼骨图</translation>
    </message>
    <message>
        <source>the subject lies below itself</source>
        <translation>该主题位于其自身之下</translation>
    </message>
    <message>
        <source>a quote is not closed</source>
        <translation>引号没有闭合</translation>
    </message>
    <message>
        <source>there is text behind a closing quote</source>
        <translation>闭合引号之后还有文字</translation>
    </message>
    <message>
        <source>Fishbone diagram</source>
        <translation>鱼骨图</translation>
    </message>
    <message>
        <source>Markdown outline</source>
        <translation>Markdown 大纲</translation>
    </message>
    <message>
        <source>Indented text</source>
        <translation>缩进文本</translation>
    </message>
    <message>
        <source>OPML outline</source>
        <translation>OPML 大纲</translation>
    </message>
    <message>
        <source>FreeMind mind map</source>
        <translation>FreeMind 思维导图</translation>
    </message>
    <message>
        <source>Mermaid ishikawa diagram</source>
        <translation>Mermaid 鱼骨图（ishikawa）</translation>
    </message>
    <message>
        <source>Table of tasks</source>
        <translation>任务表格</translation>
    </message>
    <message>
        <source>it has more than %1 levels</source>
        <translation>其层数超过 %1</translation>
    </message>
    <message>
        <source>All formats</source>
        <translation>所有格式</translation>
    </message>
    <message>
        <source>it is larger than %1 MiB</source>
        <translation>它大于 %1 MiB</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>内容为空</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>这是一个文件夹</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>文件不存在</translation>
    </message>
    <message>
        <source>there are more than %1 levels</source>
        <translation>层数超过 %1</translation>
    </message>
    <message>
        <source>there are more than %1 subjects</source>
        <translation>主题数超过 %1</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>第 %1 行：%2</translation>
    </message>
    <message>
        <source>Imported diagram</source>
        <translation>导入的鱼骨图</translation>
    </message>
    <message>
        <source>declarations of entities are not accepted</source>
        <translation>不接受实体声明</translation>
    </message>
    <message>
        <source>the document begins with &lt;%1&gt;, not with &lt;%2&gt;</source>
        <translation>文档以 &lt;%1&gt; 而不是 &lt;%2&gt; 开头</translation>
    </message>
    <message>
        <source>the text is not encoded as UTF-8, nor in a code page that is known (Windows-1252, GB 18030)</source>
        <translation>文本不是 UTF-8 编码，也不是已知的代码页（Windows-1252、GB 18030）</translation>
    </message>
    <message>
        <source>the text as %1, since it is not encoded as UTF-8</source>
        <translation>文本按 %1 读取，因为它不是 UTF-8 编码</translation>
    </message>
    <message>
        <source>that format can only be read</source>
        <translation>该格式只能读取</translation>
    </message>
    <message>
        <source>that format can only be written</source>
        <translation>该格式只能写入</translation>
    </message>
    <message>
        <source>a style</source>
        <translation>样式</translation>
    </message>
    <message>
        <source>draw.io diagram</source>
        <translation>draw.io 图表</translation>
    </message>
    <message>
        <source>what is encrypted</source>
        <translation>加密的内容</translation>
    </message>
    <message>
        <source>Icons</source>
        <translation>图标</translation>
    </message>
    <message>
        <source>the icon &quot;%1&quot; as %2</source>
        <translation>图标“%1”读作 %2</translation>
    </message>
    <message>
        <source>an arrow</source>
        <translation>箭头</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>链接</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>the front matter</source>
        <translation>文档开头的元数据</translation>
    </message>
    <message>
        <source>the comment &quot;%1&quot;</source>
        <translation>注释“%1”</translation>
    </message>
    <message>
        <source>the language &quot;%1&quot; of a block of code</source>
        <translation>代码块的语言“%1”</translation>
    </message>
    <message>
        <source>the diagram does not begin with &quot;ishikawa&quot; or &quot;mindmap&quot;</source>
        <translation>图表不以“ishikawa”或“mindmap”开头</translation>
    </message>
    <message>
        <source>settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Org outline</source>
        <translation>Org 大纲</translation>
    </message>
    <message>
        <source>text above the outline</source>
        <translation>大纲之前的文本</translation>
    </message>
    <message>
        <source>&quot;%1&quot; as %2</source>
        <translation>“%1”读作 %2</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>标签</translation>
    </message>
    <message>
        <source>&quot;%1&quot; as a progress</source>
        <translation>“%1”读作进度</translation>
    </message>
    <message>
        <source>a quotation</source>
        <translation>引文</translation>
    </message>
    <message>
        <source>further cells</source>
        <translation>其余单元格</translation>
    </message>
    <message>
        <source>the diagram does not begin with &quot;@startmindmap&quot;</source>
        <translation>图表不以“@startmindmap”开头</translation>
    </message>
    <message>
        <source>text beside the drawing</source>
        <translation>图旁的文本</translation>
    </message>
    <message>
        <source>PlantUML mind map</source>
        <translation>PlantUML 思维导图</translation>
    </message>
    <message>
        <source>dates of &quot;%1&quot; as day/month/year</source>
        <translation>“%1”的日期按 日/月/年 读取</translation>
    </message>
    <message>
        <source>dates of &quot;%1&quot; as month/day/year</source>
        <translation>“%1”的日期按 月/日/年 读取</translation>
    </message>
    <message>
        <source>cells without a heading</source>
        <translation>没有列标题的单元格</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of &quot;%2&quot; as %3</source>
        <translation>“%2”的“%1”读作 %3</translation>
    </message>
    <message>
        <source>the uuid &quot;%1&quot; a second time</source>
        <translation>重复的 uuid“%1”</translation>
    </message>
    <message>
        <source>there is no column of titles, such as &quot;title&quot;, &quot;summary&quot; or &quot;name&quot;; the columns are %1</source>
        <translation>没有标题列（例如“title”、“summary”或“name”）；现有的列为 %1</translation>
    </message>
    <message>
        <source>the sheet &quot;%1&quot;</source>
        <translation>工作表“%1”</translation>
    </message>
    <message>
        <source>Excel workbook</source>
        <translation>Excel 工作簿</translation>
    </message>
    <message>
        <source>the archive has no file &quot;%1&quot;, as workbooks do</source>
        <translation>压缩包中没有工作簿应有的文件“%1”</translation>
    </message>
    <message>
        <source>remarks at cells</source>
        <translation>单元格批注</translation>
    </message>
    <message>
        <source>drawings</source>
        <translation>绘图</translation>
    </message>
    <message>
        <source>cells behind column %1</source>
        <translation>第 %1 列之后的单元格</translation>
    </message>
    <message>
        <source>there are too many cells</source>
        <translation>单元格过多</translation>
    </message>
    <message>
        <source>a link within the workbook</source>
        <translation>工作簿内部的链接</translation>
    </message>
    <message>
        <source>the file &quot;%1&quot;</source>
        <translation>文件“%1”</translation>
    </message>
    <message>
        <source>the archive has neither content.json nor content.xml, one of which holds the map</source>
        <translation>压缩包中既没有 content.json 也没有 content.xml，导图应在其一之中</translation>
    </message>
    <message>
        <source>XMind map</source>
        <translation>XMind 导图</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>画布</translation>
    </message>
    <message>
        <source>Boundary</source>
        <translation>外框</translation>
    </message>
    <message>
        <source>a topic of the kind &quot;%1&quot; as a cause</source>
        <translation>“%1”类主题作为原因</translation>
    </message>
    <message>
        <source>the icon &quot;%1&quot;</source>
        <translation>图标“%1”</translation>
    </message>
    <message>
        <source>an arrow &quot;%1&quot; that joins no two topics</source>
        <translation>没有连接两个主题的箭头“%1”</translation>
    </message>
    <message>
        <source>it is not a zip archive, as files of this format are (%1)</source>
        <translation>不是 zip 压缩包，而此格式的文件应当是（%1）</translation>
    </message>
    <message>
        <source>the archive has more than %1 files</source>
        <translation>压缩包中的文件超过 %1 个</translation>
    </message>
    <message>
        <source>the archive has &quot;%1&quot; twice</source>
        <translation>压缩包中有两个“%1”</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>已损坏</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>过大</translation>
    </message>
    <message>
        <source>it expands to more than %1 times its size</source>
        <translation>解压后超过原大小的 %1 倍</translation>
    </message>
    <message>
        <source>headings that are repeated</source>
        <translation>重复的表头</translation>
    </message>
    <message>
        <source>&lt;/%1&gt; is missing, the end of &lt;%1&gt; in line %2</source>
        <translation>缺少 &lt;/%1&gt;，即第 %2 行 &lt;%1&gt; 的结尾</translation>
    </message>
    <message>
        <source>content.json: it is no list of sheets</source>
        <translation>content.json：不是画布列表</translation>
    </message>
    <message>
        <source>the map is protected by a password</source>
        <translation>导图受密码保护</translation>
    </message>
</context>
<context>
    <name>DiagramMerge</name>
    <message>
        <source>It was changed in ours and deleted in theirs.</source>
        <translation>我方更改了它，对方删除了它。</translation>
    </message>
    <message>
        <source>It was deleted in ours and changed in theirs.</source>
        <translation>我方删除了它，对方更改了它。</translation>
    </message>
    <message>
        <source>Theirs has it below &quot;%1&quot;.</source>
        <translation>对方将它放在“%1”之下。</translation>
    </message>
    <message>
        <source>Its %1 is &quot;%2&quot; in ours and &quot;%3&quot; in theirs.</source>
        <translation>它的 %1 在我方为“%2”，在对方为“%3”。</translation>
    </message>
    <message>
        <source>It was deleted in theirs and has more below it in ours.</source>
        <translation>对方删除了它，而我方在其下有更多内容。</translation>
    </message>
    <message>
        <source>It was deleted in ours and has more below it in theirs.</source>
        <translation>我方删除了它，而对方在其下有更多内容。</translation>
    </message>
    <message>
        <source>It is a second head.</source>
        <translation>它是第二个鱼头。</translation>
    </message>
    <message>
        <source>What is below it has another order in theirs.</source>
        <translation>其下的内容在对方有不同的顺序。</translation>
    </message>
    <message>
        <source>Merge conflict</source>
        <translation>合并冲突</translation>
    </message>
</context>
<context>
    <name>DiagramPicture</name>
    <message>
        <source>the scale, the size or the margin makes no picture</source>
        <translation>以此比例、尺寸或边距无法生成图片</translation>
    </message>
    <message>
        <source>there is not enough memory for it</source>
        <translation>内存不足</translation>
    </message>
    <message>
        <source>the file name must end in .png, .svg, .pdf or .html</source>
        <translation>文件名必须以 .png、.svg、.pdf 或 .html 结尾</translation>
    </message>
    <message>
        <source>the page is too small or too large</source>
        <translation>页面太小或太大</translation>
    </message>
</context>
<context>
    <name>DocumentLoader</name>
    <message>
        <source>there is no such file</source>
        <translation>文件不存在</translation>
    </message>
    <message>
        <source>the program is closing</source>
        <translation>程序正在关闭</translation>
    </message>
    <message>
        <source>it holds no diagram</source>
        <translation>其中没有鱼骨图</translation>
    </message>
</context>
<context>
    <name>DocumentReport</name>
    <message>
        <source>it has no uuid</source>
        <translation>没有 uuid</translation>
    </message>
    <message>
        <source>another subject has the same uuid %1</source>
        <translation>另一主题有相同的 uuid %1</translation>
    </message>
    <message>
        <source>it is the head and has the pid %1</source>
        <translation>它是鱼头，却有 pid %1</translation>
    </message>
    <message>
        <source>it has no pid</source>
        <translation>没有 pid</translation>
    </message>
    <message>
        <source>its pid %1 does not name its parent</source>
        <translation>其 pid %1 不是其上级主题</translation>
    </message>
    <message>
        <source>it has no title</source>
        <translation>没有标题</translation>
    </message>
    <message>
        <source>its status %1 is unknown</source>
        <translation>其状态 %1 未知</translation>
    </message>
    <message>
        <source>its progress %1 is not within 0 and 100</source>
        <translation>其进度 %1 不在 0 到 100 之间</translation>
    </message>
    <message>
        <source>it is to end before it was created</source>
        <translation>其截止时间早于创建时间</translation>
    </message>
    <message>
        <source>its link %1 is no URL</source>
        <translation>其链接 %1 不是 URL</translation>
    </message>
    <message>
        <source>head</source>
        <translation>鱼头</translation>
    </message>
    <message>
        <source>Title: %1</source>
        <translation>标题：%1</translation>
    </message>
    <message>
        <source>Subjects: %1</source>
        <translation>主题数：%1</translation>
    </message>
    <message>
        <source>Main bones: %1</source>
        <translation>大骨数：%1</translation>
    </message>
    <message>
        <source>Levels: %1</source>
        <translation>层数：%1</translation>
    </message>
    <message>
        <source>Links: %1</source>
        <translation>链接数：%1</translation>
    </message>
    <message>
        <source>Own styles: %1</source>
        <translation>自有样式数：%1</translation>
    </message>
    <message>
        <source>Nothing is off.</source>
        <translation>没有问题。</translation>
    </message>
    <message>
        <source>Off: %1</source>
        <translation>问题数：%1</translation>
    </message>
</context>
<context>
    <name>DocumentSaver</name>
    <message>
        <source>Fishbone diagrams (*.json);;All files (*)</source>
        <translation>鱼骨图 (*.json);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>%1 would not be recognized as a diagram. Its name should end in .json; &quot;Export as&quot; writes other formats.</source>
        <translation>%1 不会被识别为鱼骨图。文件名应以 .json 结尾；其他格式请用“导出为其他格式”。</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>另存为</translation>
    </message>
    <message>
        <source>Save a copy</source>
        <translation>保存副本</translation>
    </message>
    <message>
        <source>Copy written to %1</source>
        <translation>副本已写入 %1</translation>
    </message>
    <message>
        <source>%1 saved</source>
        <translation>已保存 %1</translation>
    </message>
    <message>
        <source>Another program has changed %1 since it was opened or saved here. Replace it, so that those changes are lost?</source>
        <translation>自从在此处打开或保存以来，另一个程序更改了 %1。要替换它并丢失那些更改吗？</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>无法写入 %1：%2。</translation>
    </message>
</context>
<context>
    <name>DocumentTabs</name>
    <message>
        <source>Open documents</source>
        <translation>打开的文档</translation>
    </message>
    <message>
        <source>Not saved to a file yet</source>
        <translation>尚未保存到文件</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>Close &amp;others</source>
        <translation>关闭其他(&amp;O)</translation>
    </message>
    <message>
        <source>Copy &amp;path</source>
        <translation>复制路径(&amp;P)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>DrawingFilter</name>
    <message>
        <source>left out by the filter</source>
        <translation>被筛选排除</translation>
    </message>
    <message>
        <source>leads to what the filter shows</source>
        <translation>通向筛选显示的内容</translation>
    </message>
</context>
<context>
    <name>DrawingPrinter</name>
    <message>
        <source>%1 – page %2 of %3</source>
        <translation>%1 – 第 %2 页，共 %3 页</translation>
    </message>
</context>
<context>
    <name>EditAttributes</name>
    <message>
        <source>Edit attributes</source>
        <translation>编辑属性</translation>
    </message>
</context>
<context>
    <name>EditCommands</name>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Find and replace…</source>
        <translation>查找和替换(&amp;F)…</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>剪切(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>粘贴(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>全选(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Child subject</source>
        <translation>插入子主题(&amp;C)</translation>
    </message>
    <message>
        <source>Subject &amp;before</source>
        <translation>在前面插入主题(&amp;B)</translation>
    </message>
    <message>
        <source>Subject &amp;after</source>
        <translation>在后面插入主题(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Parent subject</source>
        <translation>插入父主题(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Free subject (a new diagram)</source>
        <translation>插入自由主题（新图）(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Sub-task…</source>
        <translation>新建子任务(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>重命名(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Link to…</source>
        <translation>链接到(&amp;L)…</translation>
    </message>
    <message>
        <source>&amp;Open link</source>
        <translation>打开链接(&amp;O)</translation>
    </message>
    <message>
        <source>Remove l&amp;ink</source>
        <translation>移除链接(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Style…</source>
        <translation>样式(&amp;Y)…</translation>
    </message>
    <message>
        <source>Remove s&amp;tyle</source>
        <translation>移除样式(&amp;T)</translation>
    </message>
    <message>
        <source>New sub-task</source>
        <translation>新建子任务</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>标题：</translation>
    </message>
    <message>
        <source>Select the &amp;branch</source>
        <translation>选择分支(&amp;B)</translation>
    </message>
    <message>
        <source>Select the sib&amp;lings</source>
        <translation>选择同级主题(&amp;L)</translation>
    </message>
</context>
<context>
    <name>EditDelete</name>
    <message>
        <source>Delete selecteds</source>
        <translation>删除所选主题</translation>
    </message>
    <message>
        <source>Delete current selected</source>
        <translation>删除当前主题</translation>
    </message>
</context>
<context>
    <name>EditModify</name>
    <message>
        <source>Modify Item</source>
        <translation>修改主题</translation>
    </message>
</context>
<context>
    <name>EditMove</name>
    <message>
        <source>Move subjects</source>
        <translation>移动主题</translation>
    </message>
</context>
<context>
    <name>EditPaste</name>
    <message>
        <source>Paste from clipborad</source>
        <translation>从剪贴板粘贴</translation>
    </message>
</context>
<context>
    <name>EmptyPage</name>
    <message>
        <source>Opened lately:</source>
        <translation>最近打开：</translation>
    </message>
    <message>
        <source>No diagram is open</source>
        <translation>没有打开的图</translation>
    </message>
    <message>
        <source>Files can also be dragged into this window.</source>
        <translation>也可以将文件拖入此窗口。</translation>
    </message>
</context>
<context>
    <name>ExchangeReport</name>
    <message>
        <source>left out: %1</source>
        <translation>已省略：%1</translation>
    </message>
    <message>
        <source>put into the details: %1</source>
        <translation>放入详情：%1</translation>
    </message>
    <message>
        <source>taken: %1</source>
        <translation>已转换：%1</translation>
    </message>
    <message>
        <source>appearance left out: %1</source>
        <translation>已省略外观：%1</translation>
    </message>
    <message>
        <source>%1 (%2 times, first in line %3)</source>
        <translation>%1（%2 次，首次在第 %3 行）</translation>
    </message>
    <message>
        <source>%1 (%2 times)</source>
        <translation>%1（%2 次）</translation>
    </message>
    <message>
        <source>%1 (line %2)</source>
        <translation>%1（第 %2 行）</translation>
    </message>
    <message>
        <source>other things</source>
        <translation>其他内容</translation>
    </message>
</context>
<context>
    <name>ExportCommands</name>
    <message>
        <source>&amp;Export picture…</source>
        <translation>导出图片(&amp;E)…</translation>
    </message>
    <message>
        <source>E&amp;xport as…</source>
        <translation>导出为其他格式(&amp;X)…</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>打印(&amp;P)…</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translation>已写入 %1</translation>
    </message>
    <message>
        <source>Export picture</source>
        <translation>导出图片</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>无法写入 %1：%2。</translation>
    </message>
    <message>
        <source>Export as</source>
        <translation>导出为其他格式</translation>
    </message>
    <message>
        <source>its ending tells none of the formats</source>
        <translation>无法从扩展名判断格式</translation>
    </message>
    <message>
        <source>Print previe&amp;w…</source>
        <translation>打印预览(&amp;W)…</translation>
    </message>
    <message>
        <source>%1 was not written</source>
        <translation>%1 未写入</translation>
    </message>
    <message>
        <source>Writing %1…</source>
        <translation>正在写入 %1…</translation>
    </message>
    <message>
        <source>PowerPoint slide (*.%1)</source>
        <translation>PowerPoint 幻灯片 (*.%1)</translation>
    </message>
    <message>
        <source>Copy as p&amp;icture</source>
        <translation>复制为图片(&amp;I)</translation>
    </message>
    <message>
        <source>Copied as a picture</source>
        <translation>已复制为图片</translation>
    </message>
    <message>
        <source>Not copied as a picture: %1</source>
        <translation>未能复制为图片：%1</translation>
    </message>
    <message>
        <source>Nothing was printed</source>
        <translation>没有打印任何内容</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>Export picture</source>
        <translation>导出图片</translation>
    </message>
    <message>
        <source>White</source>
        <translation>白色</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>透明</translation>
    </message>
    <message>
        <source>&amp;File:</source>
        <translation>文件(&amp;F)：</translation>
    </message>
    <message>
        <source>&amp;Background:</source>
        <translation>背景(&amp;B)：</translation>
    </message>
    <message>
        <source>%1 exists already. Replace it?</source>
        <translation>%1 已存在。要替换它吗？</translation>
    </message>
    <message>
        <source>&amp;Light, as on paper</source>
        <translation>浅色，与纸上相同(&amp;L)</translation>
    </message>
    <message>
        <source>B&amp;rowse…</source>
        <translation>浏览(&amp;R)…</translation>
    </message>
    <message>
        <source>As on the screen</source>
        <translation>与屏幕相同</translation>
    </message>
    <message>
        <source>This cannot be exported: %1.</source>
        <translation>无法导出：%1。</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>深色</translation>
    </message>
    <message>
        <source>Pictures (*.png *.svg *.pdf *.html)</source>
        <translation>图片 (*.png *.svg *.pdf *.html)</translation>
    </message>
    <message>
        <source>The file name must end in .png, .svg, .pdf or .html.</source>
        <translation>文件名须以 .png、.svg、.pdf 或 .html 结尾。</translation>
    </message>
    <message>
        <source>A page for the browser needs the clear look.</source>
        <translation>浏览器页面需要清晰外观。</translation>
    </message>
    <message>
        <source>%1 Use %2, which fits?</source>
        <translation>%1 改用可行的 %2？</translation>
    </message>
</context>
<context>
    <name>FileCommands</name>
    <message>
        <source>&amp;New</source>
        <translation>新建(&amp;N)</translation>
    </message>
    <message>
        <source>New from the &amp;example</source>
        <translation>从示例新建(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>打开(&amp;O)…</translation>
    </message>
    <message>
        <source>Open &amp;URL…</source>
        <translation>打开网址(&amp;U)…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Save &amp;as…</source>
        <translation>另存为(&amp;A)…</translation>
    </message>
    <message>
        <source>Save a&amp;ll</source>
        <translation>全部保存(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>%1 loaded</source>
        <translation>已加载 %1</translation>
    </message>
    <message>
        <source>cannot open %1: %2</source>
        <translation>无法打开 %1：%2</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>导入(&amp;I)…</translation>
    </message>
    <message>
        <source>Reopen &amp;documents at the start</source>
        <translation>启动时重新打开上次的文档(&amp;D)</translation>
    </message>
    <message>
        <source>Save a cop&amp;y…</source>
        <translation>保存副本(&amp;Y)…</translation>
    </message>
    <message>
        <source>Revert to &amp;file</source>
        <translation>恢复为文件内容(&amp;F)</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>恢复</translation>
    </message>
    <message>
        <source>Give up all changes of %1 since it was saved?</source>
        <translation>放弃 %1 自上次保存以来的所有更改吗？</translation>
    </message>
    <message>
        <source>%1 was not loaded</source>
        <translation>未加载 %1</translation>
    </message>
    <message>
        <source>&amp;Welcome diagram</source>
        <translation>欢迎图(&amp;W)</translation>
    </message>
</context>
<context>
    <name>FileConflict</name>
    <message>
        <source>Another program has changed %1.</source>
        <translation>另一个程序更改了 %1。</translation>
    </message>
    <message>
        <source>Re&amp;load</source>
        <translation>重新加载(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Keep mine</source>
        <translation>保留我的版本(&amp;K)</translation>
    </message>
    <message>
        <source>Save &amp;under another name…</source>
        <translation>另存为其他名称(&amp;U)…</translation>
    </message>
    <message>
        <source>%1 was deleted, moved or renamed by another program.</source>
        <translation>%1 已被另一个程序删除、移动或重命名。</translation>
    </message>
    <message>
        <source>Save agai&amp;n</source>
        <translation>再次保存(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Hide</source>
        <translation>隐藏(&amp;I)</translation>
    </message>
</context>
<context>
    <name>FileName</name>
    <message>
        <source>Untitled</source>
        <translation>未命名</translation>
    </message>
</context>
<context>
    <name>FilterBar</name>
    <message>
        <source>Any status</source>
        <translation>任意状态</translation>
    </message>
    <message>
        <source>Any verdict</source>
        <translation>任意结论</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>Any votes</source>
        <translation>任意票数</translation>
    </message>
    <message>
        <source>Votes ≥ </source>
        <translation>票数 ≥ </translation>
    </message>
    <message>
        <source>Overdue</source>
        <translation>已逾期</translation>
    </message>
    <message>
        <source>Fold the others</source>
        <translation>收起其他</translation>
    </message>
    <message>
        <source>Close the filter</source>
        <translation>关闭筛选</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>筛选</translation>
    </message>
    <message>
        <source>Text in title, number or details</source>
        <translation>标题、编号或详情中的文本</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>结论</translation>
    </message>
    <message>
        <source>Responsible</source>
        <translation>负责人</translation>
    </message>
    <message>
        <source>Least number of votes</source>
        <translation>最少票数</translation>
    </message>
    <message>
        <source>Anybody</source>
        <translation>任何人</translation>
    </message>
    <message>
        <source>Nobody</source>
        <translation>无人</translation>
    </message>
    <message numerus="yes">
        <source>%n found</source>
        <translation>
            <numerusform>找到 %n 个</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Finder</name>
    <message>
        <source>Match %1 of %2</source>
        <translation>第 %1 个匹配，共 %2 个</translation>
    </message>
    <message numerus="yes">
        <source>Replace %n text(s)</source>
        <translation>
            <numerusform>替换 %n 处文本</numerusform>
        </translation>
    </message>
    <message>
        <source>Only titles and numbers can be replaced.</source>
        <translation>只能替换标题和编号。</translation>
    </message>
    <message numerus="yes">
        <source>%n text(s) replaced</source>
        <translation>
            <numerusform>已替换 %n 处文本</numerusform>
        </translation>
    </message>
    <message>
        <source>No match</source>
        <translation>没有匹配项</translation>
    </message>
</context>
<context>
    <name>FishInfo</name>
    <message>
        <source>fish%1.json</source>
        <translation>fish%1.json</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>另存为</translation>
    </message>
    <message>
        <source>&apos;%1&apos; has been modified.
Do you want to save your changes?</source>
        <translation>“%1”已修改。
要保存所做的更改吗？</translation>
    </message>
    <message>
        <source>FishInfo</source>
        <translation>未保存的更改</translation>
    </message>
    <message>
        <source>no model shows the document</source>
        <translation>没有模型显示该文档</translation>
    </message>
    <message>
        <source>the diagram nests too deep to be read again</source>
        <translation>图的嵌套层次太深，无法再次读取</translation>
    </message>
</context>
<context>
    <name>FishModel</name>
    <message>
        <source>个无父任务/共</source>
        <translation>个无父任务/共</translation>
    </message>
    <message>
        <source>个任务</source>
        <translation>个任务</translation>
    </message>
    <message>
        <source>自由主题</source>
        <translation>自由主题</translation>
    </message>
    <message>
        <source>the reply took too long or was too large</source>
        <translation>等待返回的时间过长，或返回的内容过大</translation>
    </message>
    <message>
        <source>there is no document to load it into</source>
        <translation>没有可以装入的文档</translation>
    </message>
</context>
<context>
    <name>HelpCommands</name>
    <message>
        <source>&amp;Keys…</source>
        <translation>快捷键(&amp;K)…</translation>
    </message>
    <message>
        <source>&amp;About Fishbone</source>
        <translation>关于鱼骨图(&amp;A)</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translation>关于 Qt(&amp;Q)</translation>
    </message>
    <message>
        <source>Version %1, library %2&lt;br&gt;Qt %3, built with %4&lt;br&gt;%5</source>
        <translation>版本 %1，库 %2&lt;br&gt;Qt %3，编译时 %4&lt;br&gt;%5</translation>
    </message>
    <message>
        <source>About Fishbone</source>
        <translation>关于鱼骨图</translation>
    </message>
    <message>
        <source>Draws cause-and-effect diagrams of tasks.</source>
        <translation>绘制任务的因果图。</translation>
    </message>
    <message>
        <source>Copyright © 2026 The Fishbone authors, under the MIT License</source>
        <translation>版权所有 © 2026 The Fishbone authors，采用 MIT 许可证</translation>
    </message>
</context>
<context>
    <name>HistoryPanel</name>
    <message>
        <source>History</source>
        <translation>历史记录</translation>
    </message>
    <message>
        <source>(beginning)</source>
        <translation>（初始状态）</translation>
    </message>
    <message numerus="yes">
        <source>%1 (%2 of %n)</source>
        <translation>
            <numerusform>%1（第 %2 次，共 %n 次）</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (%n times)</source>
        <translation>
            <numerusform>%1（%n 次）</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>HitList</name>
    <message>
        <source>Found</source>
        <translation>找到的文本</translation>
    </message>
    <message>
        <source>Will be</source>
        <translation>将变为</translation>
    </message>
    <message>
        <source>In</source>
        <translation>所在位置</translation>
    </message>
</context>
<context>
    <name>HtmlPicture</name>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Expand all</source>
        <translation>全部展开</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>折叠</translation>
    </message>
    <message>
        <source>Fold to the categories</source>
        <translation>折叠到类别</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>缩小</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>适合</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>显示全部</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Fishbone diagram. Arrow keys move, Return shows details, the space bar folds.</source>
        <translation>鱼骨图。方向键移动，回车键显示详细信息，空格键折叠。</translation>
    </message>
</context>
<context>
    <name>ImportSummary</name>
    <message>
        <source>%1: %2 left out, %3 put into details.</source>
        <translation>%1：省略 %2 项，放入详情 %3 项。</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>导入</translation>
    </message>
</context>
<context>
    <name>InsertBack</name>
    <message>
        <source>Insert subject back</source>
        <translation>在后面插入主题</translation>
    </message>
</context>
<context>
    <name>InsertChild</name>
    <message>
        <source>Insert child subject</source>
        <translation>插入子主题</translation>
    </message>
</context>
<context>
    <name>InsertFree</name>
    <message>
        <source>Insert free subject</source>
        <translation>插入自由主题</translation>
    </message>
</context>
<context>
    <name>InsertFront</name>
    <message>
        <source>Insert subject front</source>
        <translation>在前面插入主题</translation>
    </message>
</context>
<context>
    <name>InsertParent</name>
    <message>
        <source>Insert subject as parent</source>
        <translation>插入父主题</translation>
    </message>
</context>
<context>
    <name>JsonDiagram</name>
    <message>
        <source>it is a JSON list, not a diagram, which is an object with a &quot;title&quot; and &quot;children&quot;</source>
        <translation>这是 JSON 列表，而不是图表；图表是带有“title”和“children”的对象</translation>
    </message>
    <message>
        <source>it is JSON of another kind: a diagram has a &quot;title&quot; and &quot;children&quot;, this has %1</source>
        <translation>这是另一种 JSON：图表有“title”和“children”，而这里有 %1</translation>
    </message>
    <message>
        <source>it is JSON of another kind: its &quot;title&quot; is no text</source>
        <translation>这是另一种 JSON：其“title”不是文本</translation>
    </message>
    <message>
        <source>it is JSON of another kind: its &quot;children&quot; are no list</source>
        <translation>这是另一种 JSON：其“children”不是列表</translation>
    </message>
</context>
<context>
    <name>JsonErrors</name>
    <message>
        <source>a name in quotes or } is missing</source>
        <translation>缺少带引号的名称或 }</translation>
    </message>
    <message>
        <source>the colon behind a name is missing</source>
        <translation>名称后缺少冒号</translation>
    </message>
    <message>
        <source>a comma or ] is missing</source>
        <translation>缺少逗号或 ]</translation>
    </message>
    <message>
        <source>the comma behind a value is missing</source>
        <translation>值后缺少逗号</translation>
    </message>
    <message>
        <source>a text in quotes, a number, true, false, null, { or [ is missing</source>
        <translation>缺少带引号的文本、数字、true、false、null、{ 或 [</translation>
    </message>
    <message>
        <source>it ends with a number</source>
        <translation>文档在数字处结束</translation>
    </message>
    <message>
        <source>a backslash begins no escape sequence</source>
        <translation>反斜杠后不是转义序列</translation>
    </message>
    <message>
        <source>a text is not encoded as UTF-8</source>
        <translation>有文本不是 UTF-8 编码</translation>
    </message>
    <message>
        <source>the quote at the end of a text is missing</source>
        <translation>文本末尾缺少引号</translation>
    </message>
    <message>
        <source>a name or a value is missing</source>
        <translation>缺少名称或值</translation>
    </message>
    <message>
        <source>it nests too deep</source>
        <translation>嵌套过深</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>过大</translation>
    </message>
    <message>
        <source>there is more behind its end</source>
        <translation>结尾之后还有内容</translation>
    </message>
    <message>
        <source>it is not a JSON document</source>
        <translation>不是 JSON 文档</translation>
    </message>
    <message>
        <source>it is not a JSON document (line %1: %2)</source>
        <translation>不是 JSON 文档（第 %1 行：%2）</translation>
    </message>
</context>
<context>
    <name>KeysDialog</name>
    <message>
        <source>Keys</source>
        <translation>快捷键</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>命令</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>Lang&amp;uage</source>
        <translation>语言 Language(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;System language</source>
        <translation>系统语言(&amp;S)</translation>
    </message>
</context>
<context>
    <name>LinkOpener</name>
    <message>
        <source>Open link</source>
        <translation>打开链接</translation>
    </message>
    <message>
        <source>This link is neither a web page nor a mail address. Open it?</source>
        <translation>此链接既不是网页，也不是邮件地址。要打开它吗？</translation>
    </message>
</context>
<context>
    <name>LoadFailure</name>
    <message>
        <source>it is a folder</source>
        <translation>这是一个文件夹</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>文件不存在</translation>
    </message>
    <message>
        <source>its ending is none of those that can be read: %1</source>
        <translation>其扩展名不在可读取的扩展名之列：%1</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>内容为空</translation>
    </message>
</context>
<context>
    <name>LoadProgress</name>
    <message>
        <source>Loading</source>
        <translation>正在加载</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>%1 received</source>
        <translation>已接收 %1</translation>
    </message>
</context>
<context>
    <name>LookChoice</name>
    <message>
        <source>Arrange the drawing for &lt;page&gt;: 16:9, A4, A3, Letter, or a size such as 1920x1080 or 297x210mm. A PDF has a page of that size.</source>
        <translation>按 &lt;page&gt; 排列：16:9、A4、A3、Letter，或如 1920x1080、297x210mm 的尺寸。PDF 的页面即为该尺寸。</translation>
    </message>
    <message>
        <source>Explain the icons below the drawing, which is the default.</source>
        <translation>在图下方说明图标（默认）。</translation>
    </message>
    <message>
        <source>Leave out the explanation of the icons.</source>
        <translation>不说明图标。</translation>
    </message>
    <message>
        <source>Draw the head on the &lt;side&gt;: right (the default) or left.</source>
        <translation>鱼头在 &lt;side&gt;：right（默认）或 left。</translation>
    </message>
    <message>
        <source>--%1 takes %2, not &quot;%3&quot;</source>
        <translation>--%1 需要%2，而不是“%3”</translation>
    </message>
    <message>
        <source>--%1 needs the clear look</source>
        <translation>--%1 需要清晰外观</translation>
    </message>
    <message>
        <source>left or right</source>
        <translation>left 或 right</translation>
    </message>
    <message>
        <source>16:9, A4, A3, Letter or a size such as 1920x1080 or 297x210mm</source>
        <translation>16:9、A4、A3、Letter，或如 1920x1080、297x210mm 的尺寸</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 或 %2</translation>
    </message>
    <message>
        <source>Draw in the &lt;look&gt; %1; the first one is the default.</source>
        <translation>以外观 &lt;look&gt; 绘制：%1；默认为第一个。</translation>
    </message>
    <message>
        <source>Draw in &lt;colours&gt;: colour (the default), warm, cool, gray or dark.</source>
        <translation>以 &lt;colours&gt; 绘制：colour（默认）、warm、cool、gray 或 dark。</translation>
    </message>
    <message>
        <source>colour, warm, cool, gray or dark</source>
        <translation>colour、warm、cool、gray 或 dark</translation>
    </message>
</context>
<context>
    <name>LookCommands</name>
    <message>
        <source>Loo&amp;k</source>
        <translation>外观(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Screen</source>
        <translation>屏幕(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation>配色(&amp;P)</translation>
    </message>
    <message>
        <source>Lines of &amp;titles</source>
        <translation>标题换行(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Not broken</source>
        <translation>不换行(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Long</source>
        <translation>长行(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Medium</source>
        <translation>中等(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Short</source>
        <translation>短行(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Bones on both sides</source>
        <translation>两侧分枝(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Head on the left</source>
        <translation>鱼头在左(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Legend</source>
        <translation>图例(&amp;L)</translation>
    </message>
    <message>
        <source>Arrang&amp;e for page</source>
        <translation>按页面排布(&amp;E)</translation>
    </message>
    <message>
        <source>Look: %1</source>
        <translation>外观：%1</translation>
    </message>
    <message>
        <source>&amp;Take off all own colours and styles</source>
        <translation>去除所有自有颜色和样式(&amp;T)</translation>
    </message>
    <message numerus="yes">
        <source>%n subject(s) changed</source>
        <translation>
            <numerusform>已更改 %n 个主题</numerusform>
        </translation>
    </message>
    <message>
        <source>No subject has a colour or a style of its own</source>
        <translation>没有主题带有自有颜色或样式</translation>
    </message>
</context>
<context>
    <name>LookInfo</name>
    <message>
        <source>&amp;Clear</source>
        <translation>清晰(&amp;C)</translation>
    </message>
    <message>
        <source>Cl&amp;assic</source>
        <translation>经典(&amp;A)</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;Details</source>
        <translation>详情(&amp;D)</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>详情</translation>
    </message>
    <message>
        <source>History</source>
        <translation>历史记录</translation>
    </message>
    <message>
        <source>Shown be&amp;fore</source>
        <translation>显示过的图(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Panels</source>
        <translation>面板(&amp;P)</translation>
    </message>
    <message>
        <source>Nothing opens %1</source>
        <translation>没有程序能打开 %1</translation>
    </message>
    <message numerus="yes">
        <source>%n task(s) moved to %1</source>
        <translation>
            <numerusform>已将 %n 个任务移至 %1</numerusform>
        </translation>
    </message>
    <message>
        <source>the top</source>
        <translation>顶层</translation>
    </message>
    <message>
        <source>%1[*] – Fishbone</source>
        <translation>%1[*] – Fishbone</translation>
    </message>
    <message>
        <source>Fishbone</source>
        <translation>Fishbone</translation>
    </message>
    <message>
        <source>Subjects</source>
        <translation>主题</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>概览</translation>
    </message>
    <message>
        <source>Float</source>
        <translation>浮动</translation>
    </message>
    <message>
        <source>Takes the panel out of the window, or back into it</source>
        <translation>把面板移出窗口，或放回窗口</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Closes the panel</source>
        <translation>关闭面板</translation>
    </message>
    <message>
        <source>Filt&amp;er…</source>
        <translation>筛选(&amp;E)…</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>待办事项</translation>
    </message>
</context>
<context>
    <name>MappingDialog</name>
    <message>
        <source>Import %1</source>
        <translation>导入 %1</translation>
    </message>
    <message>
        <source>Read as</source>
        <translation>读作</translation>
    </message>
    <message>
        <source>What the columns stand for, with the first rows of the table:</source>
        <translation>各列的含义，以及表格的前几行：</translation>
    </message>
    <message>
        <source>Read &quot;%1&quot; as</source>
        <translation>“%1”读作</translation>
    </message>
</context>
<context>
    <name>MarkCommands</name>
    <message>
        <source>&amp;Suspected</source>
        <translation>怀疑(&amp;S)</translation>
    </message>
    <message>
        <source>Being &amp;checked</source>
        <translation>核查中(&amp;C)</translation>
    </message>
    <message>
        <source>Con&amp;firmed</source>
        <translation>已确认(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Ruled out</source>
        <translation>已排除(&amp;R)</translation>
    </message>
    <message>
        <source>R&amp;oot cause</source>
        <translation>根本原因(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;No verdict</source>
        <translation>无结论(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Waiting</source>
        <translation>等待中(&amp;W)</translation>
    </message>
    <message>
        <source>Waiting for &amp;approval</source>
        <translation>等待审批(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Under way</source>
        <translation>进行中(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Finished</source>
        <translation>已完成(&amp;F)</translation>
    </message>
    <message>
        <source>Finished &amp;late</source>
        <translation>延期完成(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Postponed</source>
        <translation>已推迟(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Cancelled</source>
        <translation>已取消(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;No status</source>
        <translation>无状态(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;1 (highest)</source>
        <translation>1（最高）(&amp;1)</translation>
    </message>
    <message>
        <source>&amp;2 (high)</source>
        <translation>2（高）(&amp;2)</translation>
    </message>
    <message>
        <source>&amp;3 (medium)</source>
        <translation>3（中）(&amp;3)</translation>
    </message>
    <message>
        <source>&amp;4 (low)</source>
        <translation>4（低）(&amp;4)</translation>
    </message>
    <message>
        <source>&amp;5 (lowest)</source>
        <translation>5（最低）(&amp;5)</translation>
    </message>
    <message>
        <source>&amp;No priority</source>
        <translation>无优先级(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Blue</source>
        <translation>蓝色(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Teal</source>
        <translation>青色(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Green</source>
        <translation>绿色(&amp;G)</translation>
    </message>
    <message>
        <source>Bro&amp;wn</source>
        <translation>棕色(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Orange</source>
        <translation>橙色(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Red</source>
        <translation>红色(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Purple</source>
        <translation>紫色(&amp;P)</translation>
    </message>
    <message>
        <source>Gr&amp;ey</source>
        <translation>灰色(&amp;E)</translation>
    </message>
    <message>
        <source>R&amp;esponsible…</source>
        <translation>负责人(&amp;E)…</translation>
    </message>
    <message>
        <source>Change verdict</source>
        <translation>更改结论</translation>
    </message>
    <message>
        <source>Vote</source>
        <translation>投票</translation>
    </message>
    <message>
        <source>One vote &amp;more</source>
        <translation>加一票(&amp;M)</translation>
    </message>
    <message>
        <source>One vote &amp;less</source>
        <translation>减一票(&amp;L)</translation>
    </message>
    <message>
        <source>Sort it and its siblings &amp;by votes</source>
        <translation>按票数排序同级主题(&amp;B)</translation>
    </message>
    <message>
        <source>S&amp;tatus</source>
        <translation>状态(&amp;T)</translation>
    </message>
    <message>
        <source>Change status</source>
        <translation>更改状态</translation>
    </message>
    <message>
        <source>&amp;Priority</source>
        <translation>优先级(&amp;P)</translation>
    </message>
    <message>
        <source>Change priority</source>
        <translation>更改优先级</translation>
    </message>
    <message>
        <source>Colo&amp;ur</source>
        <translation>颜色(&amp;U)</translation>
    </message>
    <message>
        <source>Change colour</source>
        <translation>更改颜色</translation>
    </message>
    <message>
        <source>That of the p&amp;alette</source>
        <translation>调色板的颜色(&amp;A)</translation>
    </message>
    <message>
        <source>Ot&amp;her…</source>
        <translation>其他(&amp;H)…</translation>
    </message>
    <message>
        <source>Colour of the bone</source>
        <translation>鱼骨颜色</translation>
    </message>
    <message>
        <source>Responsible</source>
        <translation>负责人</translation>
    </message>
    <message>
        <source>Who is responsible?</source>
        <translation>由谁负责？</translation>
    </message>
    <message>
        <source>Change who is responsible</source>
        <translation>更改负责人</translation>
    </message>
    <message>
        <source>Sort by votes</source>
        <translation>按票数排序</translation>
    </message>
    <message>
        <source>Sorted by votes</source>
        <translation>已按票数排序</translation>
    </message>
    <message>
        <source>Mar&amp;k</source>
        <translation>标记(&amp;K)</translation>
    </message>
    <message>
        <source>Mark at the bo&amp;ne</source>
        <translation>在鱼骨处标记(&amp;N)</translation>
    </message>
</context>
<context>
    <name>MarkNames</name>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>finished</source>
        <translation>已完成</translation>
    </message>
    <message>
        <source>finished late</source>
        <translation>逾期完成</translation>
    </message>
    <message>
        <source>postponed</source>
        <translation>已推迟</translation>
    </message>
    <message>
        <source>under way</source>
        <translation>进行中</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>等待中</translation>
    </message>
    <message>
        <source>waiting for approval</source>
        <translation>等待审批</translation>
    </message>
    <message>
        <source>suspected</source>
        <translation>怀疑</translation>
    </message>
    <message>
        <source>being checked</source>
        <translation>核查中</translation>
    </message>
    <message>
        <source>confirmed</source>
        <translation>已确认</translation>
    </message>
    <message>
        <source>ruled out</source>
        <translation>已排除</translation>
    </message>
    <message>
        <source>root cause</source>
        <translation>根本原因</translation>
    </message>
</context>
<context>
    <name>MeetingReport</name>
    <message>
        <source>it may be a cause</source>
        <translation>可能是原因</translation>
    </message>
    <message>
        <source>somebody is looking into it</source>
        <translation>有人正在调查</translation>
    </message>
    <message>
        <source>it contributes</source>
        <translation>有影响</translation>
    </message>
    <message>
        <source>it does not contribute</source>
        <translation>没有影响</translation>
    </message>
    <message>
        <source>all comes from it</source>
        <translation>一切由此而来</translation>
    </message>
    <message>
        <source>Ranked causes</source>
        <translation>原因排序</translation>
    </message>
    <message>
        <source>Cause</source>
        <translation>原因</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>结论</translation>
    </message>
    <message>
        <source>Votes</source>
        <translation>票数</translation>
    </message>
    <message>
        <source>Evidence</source>
        <translation>依据</translation>
    </message>
    <message>
        <source>No cause has a verdict or votes.</source>
        <translation>没有原因有结论或票数。</translation>
    </message>
    <message>
        <source>Nobody yet</source>
        <translation>尚无负责人</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>待办事项</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>Until</source>
        <translation>截止</translation>
    </message>
    <message>
        <source>%1, overdue</source>
        <translation>%1，已逾期</translation>
    </message>
    <message>
        <source>Legend</source>
        <translation>图例</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>含义</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>待办事项</translation>
    </message>
    <message>
        <source>Nobody is to do anything.</source>
        <translation>没有待办事项。</translation>
    </message>
    <message>
        <source>its name must end in .html, .pdf or .md</source>
        <translation>名称必须以 .html、.pdf 或 .md 结尾</translation>
    </message>
    <message>
        <source>In</source>
        <translation>所在</translation>
    </message>
    <message>
        <source>Responsible</source>
        <translation>负责人</translation>
    </message>
    <message>
        <source>Overdue</source>
        <translation>逾期</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>its name must end in .csv or .md</source>
        <translation>文件名必须以 .csv 或 .md 结尾</translation>
    </message>
</context>
<context>
    <name>Menus</name>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Subject</source>
        <translation>主题(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>主题</translation>
    </message>
    <message>
        <source>View</source>
        <translation>视图</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>转到(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
</context>
<context>
    <name>Minimap</name>
    <message>
        <source>Overview of the drawing</source>
        <translation>图的概览</translation>
    </message>
</context>
<context>
    <name>ModifyDelLink</name>
    <message>
        <source>Delete link</source>
        <translation>删除链接</translation>
    </message>
</context>
<context>
    <name>ModifyLinkTo</name>
    <message>
        <source>Modify link to</source>
        <translation>修改链接</translation>
    </message>
</context>
<context>
    <name>ModifyName</name>
    <message>
        <source>Modify subject name</source>
        <translation>修改主题名称</translation>
    </message>
</context>
<context>
    <name>MoveCommands</name>
    <message>
        <source>Move &amp;up</source>
        <translation>上移(&amp;U)</translation>
    </message>
    <message>
        <source>Move do&amp;wn</source>
        <translation>下移(&amp;W)</translation>
    </message>
    <message>
        <source>Pro&amp;mote (beside its parent)</source>
        <translation>升级（与父主题并列）(&amp;M)</translation>
    </message>
    <message>
        <source>D&amp;emote (below the one before)</source>
        <translation>降级（移到前一主题之下）(&amp;E)</translation>
    </message>
</context>
<context>
    <name>Palettes</name>
    <message>
        <source>&amp;Colours</source>
        <translation>彩色(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Warm</source>
        <translation>暖色(&amp;W)</translation>
    </message>
    <message>
        <source>C&amp;ool</source>
        <translation>冷色(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Grey</source>
        <translation>灰色(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>深色(&amp;D)</translation>
    </message>
</context>
<context>
    <name>PasteDialog</name>
    <message>
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>文本行</translation>
    </message>
    <message>
        <source>Lines with links and emphasis</source>
        <translation>带链接和强调的文本行</translation>
    </message>
    <message>
        <source>Rows of a table</source>
        <translation>表格的行</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>详情</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>粘贴(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Read as:</source>
        <translation>读作(&amp;R)：</translation>
    </message>
</context>
<context>
    <name>PenSelect</name>
    <message>
        <source>NoPen</source>
        <translation>无线条</translation>
    </message>
    <message>
        <source>SolidLine</source>
        <translation>实线</translation>
    </message>
    <message>
        <source>DashLine</source>
        <translation>虚线</translation>
    </message>
    <message>
        <source>DotLine</source>
        <translation>点线</translation>
    </message>
    <message>
        <source>DashDotLine</source>
        <translation>点划线</translation>
    </message>
    <message>
        <source>DashDotDotLine</source>
        <translation>双点划线</translation>
    </message>
    <message>
        <source>FlatCap</source>
        <translation>平头</translation>
    </message>
    <message>
        <source>SquareCap</source>
        <translation>方头</translation>
    </message>
    <message>
        <source>RoundCap</source>
        <translation>圆头</translation>
    </message>
    <message>
        <source>MiterJoin</source>
        <translation>尖角</translation>
    </message>
    <message>
        <source>BevelJoin</source>
        <translation>斜角</translation>
    </message>
    <message>
        <source>RoundJoin</source>
        <translation>圆角</translation>
    </message>
    <message>
        <source>Pen</source>
        <translation>画笔</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>选择…</translation>
    </message>
    <message>
        <source>PenWidth</source>
        <translation>线宽：</translation>
    </message>
    <message>
        <source>PenStyle</source>
        <translation>线型：</translation>
    </message>
    <message>
        <source>PenCapStyle</source>
        <translation>端点：</translation>
    </message>
    <message>
        <source>PenJoinStyle</source>
        <translation>拐角：</translation>
    </message>
    <message>
        <source>PenColor</source>
        <translation>颜色：</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>PictureExport</name>
    <message>
        <source>a picture of %1 × %2 is too large: %3</source>
        <translation>%1 × %2 的图片过大：%3</translation>
    </message>
    <message>
        <source>the drawing cannot be encoded</source>
        <translation>无法对图形进行编码</translation>
    </message>
    <message>
        <source>a PNG has at most %1 pixels on a side</source>
        <translation>PNG 图片每边最多 %1 像素</translation>
    </message>
    <message>
        <source>its pixels would take more than %1 MiB</source>
        <translation>其像素数据将超过 %1 MiB</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>内存不足</translation>
    </message>
    <message>
        <source>a PDF has at most %1 points (1/72 inch) on a side</source>
        <translation>PDF 每边最多 %1 点（1/72 英寸）</translation>
    </message>
    <message>
        <source>the scale, the size or the margin makes no picture</source>
        <translation>以此比例、尺寸或边距无法生成图片</translation>
    </message>
    <message>
        <source>there is nothing to draw</source>
        <translation>没有可绘制的内容</translation>
    </message>
    <message>
        <source>a drawing without height or width needs a margin</source>
        <translation>高度或宽度为零的图形需要边距</translation>
    </message>
    <message>
        <source>a side has at most %1 units</source>
        <translation>每边最多 %1 个单位</translation>
    </message>
    <message>
        <source>the file name must end in .png, .svg or .pdf</source>
        <translation>文件名必须以 .png、.svg 或 .pdf 结尾</translation>
    </message>
    <message>
        <source>there is no such format</source>
        <translation>没有这种格式</translation>
    </message>
    <message>
        <source>it was cancelled</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>an SVG of it would have more than %1 MiB; a PDF is smaller</source>
        <translation>其 SVG 将超过 %1 MiB；PDF 更小</translation>
    </message>
    <message>
        <source>%1; it fits at a scale of %2</source>
        <translation>%1；比例为 %2 时可行</translation>
    </message>
</context>
<context>
    <name>PictureLevelFields</name>
    <message>
        <source>As shown</source>
        <translation>与显示相同</translation>
    </message>
    <message>
        <source>All levels</source>
        <translation>所有层级</translation>
    </message>
    <message>
        <source>Levels below the main bones:</source>
        <translation>大骨以下的层数：</translation>
    </message>
    <message>
        <source>Levels below the main bones</source>
        <translation>大骨以下的层数</translation>
    </message>
    <message>
        <source>&amp;Expanded:</source>
        <translation>展开(&amp;E)：</translation>
    </message>
</context>
<context>
    <name>PictureLookFields</name>
    <message>
        <source>Le&amp;gend</source>
        <translation>图例(&amp;G)</translation>
    </message>
    <message>
        <source>Loo&amp;k:</source>
        <translation>外观(&amp;K)：</translation>
    </message>
    <message>
        <source>As on the screen</source>
        <translation>与屏幕相同</translation>
    </message>
    <message>
        <source>&amp;Page:</source>
        <translation>页面(&amp;P)：</translation>
    </message>
    <message>
        <source>On the right</source>
        <translation>在右</translation>
    </message>
    <message>
        <source>On the left</source>
        <translation>在左</translation>
    </message>
    <message>
        <source>Pale&amp;tte:</source>
        <translation>配色(&amp;T)：</translation>
    </message>
    <message>
        <source>Hea&amp;d:</source>
        <translation>鱼头(&amp;D)：</translation>
    </message>
</context>
<context>
    <name>PicturePreview</name>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
</context>
<context>
    <name>PictureSizeFields</name>
    <message>
        <source> px</source>
        <translation> 像素</translation>
    </message>
    <message>
        <source>Sc&amp;ale:</source>
        <translation>比例(&amp;A)：</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>宽度(&amp;W)：</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>高度(&amp;H)：</translation>
    </message>
    <message>
        <source>A page of %1 × %2 mm</source>
        <translation>页面 %1 × %2 毫米</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 像素</translation>
    </message>
    <message>
        <source>&amp;Use %1, which fits</source>
        <translation>使用可行的 %1(&amp;U)</translation>
    </message>
</context>
<context>
    <name>PrintPreview</name>
    <message>
        <source>Print preview</source>
        <translation>打印预览</translation>
    </message>
    <message>
        <source>Size on paper</source>
        <translation>纸上大小</translation>
    </message>
    <message>
        <source>Fit one page</source>
        <translation>适合一页</translation>
    </message>
    <message>
        <source>Fit the width of the page</source>
        <translation>适合页宽</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>Scale in percent</source>
        <translation>缩放百分比</translation>
    </message>
    <message numerus="yes">
        <source>%n page(s)</source>
        <translation>
            <numerusform>%n 页</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Nothing to print, or more than %n page(s)</source>
        <translation>
            <numerusform>没有可打印的内容，或超过 %n 页</numerusform>
        </translation>
    </message>
    <message>
        <source>Arranged for the paper</source>
        <translation>按纸张排布</translation>
    </message>
    <message>
        <source>Legend</source>
        <translation>图例</translation>
    </message>
    <message>
        <source>Look</source>
        <translation>外观</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>配色</translation>
    </message>
    <message>
        <source>Printing…</source>
        <translation>正在打印…</translation>
    </message>
    <message>
        <source>%1, at %2 % so that no title is cut</source>
        <translation>%1，比例 %2 %，以免标题被截断</translation>
    </message>
</context>
<context>
    <name>PriorityBox</name>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>新建子任务</source>
        <translation>新建子任务</translation>
    </message>
    <message>
        <source>查看详情</source>
        <translation>查看详情</translation>
    </message>
    <message>
        <source>用鱼骨图详细查看</source>
        <translation>用鱼骨图详细查看</translation>
    </message>
    <message>
        <source>编辑节点</source>
        <translation>编辑节点</translation>
    </message>
    <message>
        <source>新建子节点</source>
        <translation>新建子节点</translation>
    </message>
    <message>
        <source>删除节点</source>
        <translation>删除节点</translation>
    </message>
</context>
<context>
    <name>RankedList</name>
    <message>
        <source>Ranked causes</source>
        <translation>原因排名</translation>
    </message>
    <message>
        <source>Votes</source>
        <translation>票数</translation>
    </message>
    <message>
        <source>Cause</source>
        <translation>原因</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>结论</translation>
    </message>
    <message>
        <source>In</source>
        <translation>所在</translation>
    </message>
</context>
<context>
    <name>RecentFiles</name>
    <message>
        <source>&amp;Recent files</source>
        <translation>最近的文件(&amp;R)</translation>
    </message>
    <message>
        <source>(nothing yet)</source>
        <translation>（暂无）</translation>
    </message>
    <message>
        <source>&amp;Clear the list</source>
        <translation>清空列表(&amp;C)</translation>
    </message>
</context>
<context>
    <name>RecoveryCommands</name>
    <message>
        <source>Reco&amp;ver documents…</source>
        <translation>恢复文档(&amp;V)…</translation>
    </message>
    <message>
        <source>There is nothing to recover.</source>
        <translation>没有可恢复的内容。</translation>
    </message>
    <message>
        <source>%1 recovered</source>
        <translation>已恢复 %1</translation>
    </message>
    <message>
        <source>Recover documents</source>
        <translation>恢复文档</translation>
    </message>
    <message>
        <source>%1 cannot be recovered from %2: %3.</source>
        <translation>无法从 %2 恢复 %1：%3。</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>Recover documents</source>
        <translation>恢复文档</translation>
    </message>
    <message>
        <source>The program did not end well the last time. These documents have changes that were not saved:</source>
        <translation>程序上次未正常结束。以下文档有未保存的更改：</translation>
    </message>
    <message>
        <source>Documents with changes that were not saved</source>
        <translation>有未保存更改的文档</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>打开(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>放弃(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>以后再说(&amp;L)</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>放弃</translation>
    </message>
    <message numerus="yes">
        <source>Give up the changes of %n document(s) for good?</source>
        <translation>
            <numerusform>永久放弃 %n 个文档的更改吗？</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RecoveryModel</name>
    <message>
        <source>Document</source>
        <translation>文档</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Autosaved</source>
        <translation>自动保存时间</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>(never saved)</source>
        <translation>（从未保存）</translation>
    </message>
</context>
<context>
    <name>ReplaceFindDialog</name>
    <message>
        <source>Case sensitive</source>
        <translation>区分大小写</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>替换</translation>
    </message>
    <message>
        <source>Replace All</source>
        <translation>全部替换</translation>
    </message>
    <message>
        <source>Finder</source>
        <translation>查找和替换</translation>
    </message>
    <message>
        <source>title</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>uuid</source>
        <translation>唯一标识 (uuid)</translation>
    </message>
    <message>
        <source>showid</source>
        <translation>编号</translation>
    </message>
    <message>
        <source>pid</source>
        <translation>父任务标识 (pid)</translation>
    </message>
    <message>
        <source>Find what:</source>
        <translation>查找内容：</translation>
    </message>
    <message>
        <source>Replace with:</source>
        <translation>替换为：</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>查找</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>查找范围</translation>
    </message>
    <message>
        <source>Not found key word %1.</source>
        <translation>未找到关键字“%1”。</translation>
    </message>
</context>
<context>
    <name>ReportCommands</name>
    <message>
        <source>Meetin&amp;g report…</source>
        <translation>会议报告(&amp;G)…</translation>
    </message>
    <message>
        <source>Meeting report</source>
        <translation>会议报告</translation>
    </message>
    <message>
        <source>Page for the browser (*.html)</source>
        <translation>浏览器页面 (*.html)</translation>
    </message>
    <message>
        <source>Markdown and a picture (*.md)</source>
        <translation>Markdown 和图片 (*.md)</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translation>已写入 %1</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>无法写入 %1：%2。</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>待办事项</translation>
    </message>
    <message>
        <source>actions</source>
        <translation>待办</translation>
    </message>
    <message>
        <source>Table for spreadsheets (*.csv)</source>
        <translation>电子表格 (*.csv)</translation>
    </message>
    <message>
        <source>Ta&amp;ble of actions…</source>
        <translation>待办事项表(&amp;B)…</translation>
    </message>
    <message>
        <source>Print act&amp;ions…</source>
        <translation>打印待办事项(&amp;Z)…</translation>
    </message>
</context>
<context>
    <name>SlideExport</name>
    <message>
        <source>Fishbone diagram &quot;%1&quot; with %2 causes</source>
        <translation>鱼骨图“%1”，共 %2 个原因</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>待办事项</translation>
    </message>
    <message>
        <source>there is nothing to draw</source>
        <translation>没有可绘制的内容</translation>
    </message>
</context>
<context>
    <name>SourceDialogs</name>
    <message>
        <source>Fishbone diagrams (*.json);;%1;;All files (*)</source>
        <translation>鱼骨图 (*.json);;%1;;所有文件 (*)</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>导入</translation>
    </message>
    <message>
        <source>Loading %1…</source>
        <translation>正在加载 %1…</translation>
    </message>
</context>
<context>
    <name>SpearStyleDialog</name>
    <message>
        <source>InheritanceParent</source>
        <translation>继承父主题的样式</translation>
    </message>
    <message>
        <source>Preview 预览测试 ABC xyz</source>
        <translation>预览测试 ABC xyz</translation>
    </message>
    <message>
        <source>Spear style</source>
        <translation>样式</translation>
    </message>
    <message>
        <source>textCount</source>
        <translation>显示字数：</translation>
    </message>
    <message>
        <source>ssNormal</source>
        <translation>普通</translation>
    </message>
    <message>
        <source>ssSelected</source>
        <translation>选中</translation>
    </message>
    <message>
        <source>ssHovered</source>
        <translation>鼠标悬停</translation>
    </message>
    <message>
        <source>ssLinked</source>
        <translation>移动目标</translation>
    </message>
    <message>
        <source>SpearState</source>
        <translation>状态：</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Parent</source>
        <translation>父主题</translation>
    </message>
    <message>
        <source>Set TextFont</source>
        <translation>文字字体…</translation>
    </message>
    <message>
        <source>Set TextColor</source>
        <translation>文字颜色…</translation>
    </message>
    <message>
        <source>Set TextBkColor</source>
        <translation>文字背景…</translation>
    </message>
    <message>
        <source>Set BroderPen</source>
        <translation>边框画笔…</translation>
    </message>
</context>
<context>
    <name>StepNames</name>
    <message numerus="yes">
        <source>%1 “%2” and %n more</source>
        <translation>
            <numerusform>%1“%2”等 %n 个其他主题</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StringListEditor</name>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
</context>
<context>
    <name>SubjectClipboard</name>
    <message>
        <source>cannot paste the text: %1</source>
        <translation>无法粘贴文本：%1</translation>
    </message>
</context>
<context>
    <name>SubjectStyles</name>
    <message>
        <source>The subject looks as the one above it, also when the style of that is changed</source>
        <translation>主题的外观与上级主题一致，上级样式更改时也随之更改</translation>
    </message>
    <message>
        <source>Change style</source>
        <translation>更改样式</translation>
    </message>
    <message>
        <source>Remove style</source>
        <translation>移除样式</translation>
    </message>
    <message>
        <source>Take off own colours and styles</source>
        <translation>去除自有颜色和样式</translation>
    </message>
</context>
<context>
    <name>SubjectTree</name>
    <message>
        <source>Filter by title</source>
        <translation>按标题筛选</translation>
    </message>
    <message>
        <source>Subjects</source>
        <translation>主题</translation>
    </message>
</context>
<context>
    <name>TabButtons</name>
    <message>
        <source>Scroll left</source>
        <translation>向左滚动</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>向右滚动</translation>
    </message>
</context>
<context>
    <name>TabCommands</name>
    <message>
        <source>Next &amp;tab</source>
        <translation>下一个标签页(&amp;T)</translation>
    </message>
    <message>
        <source>Previous t&amp;ab</source>
        <translation>上一个标签页(&amp;A)</translation>
    </message>
</context>
<context>
    <name>TableMapping</name>
    <message>
        <source>Details</source>
        <translation>详情</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>Title of one level</source>
        <translation>某一级的标题</translation>
    </message>
    <message>
        <source>Id</source>
        <translation>编号</translation>
    </message>
    <message>
        <source>Uuid</source>
        <translation>唯一编号 (uuid)</translation>
    </message>
    <message>
        <source>Short id</source>
        <translation>短编号</translation>
    </message>
    <message>
        <source>Parent</source>
        <translation>上级</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>层级</translation>
    </message>
    <message>
        <source>Outline number</source>
        <translation>大纲编号</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>优先级</translation>
    </message>
    <message>
        <source>Manager</source>
        <translation>负责人</translation>
    </message>
    <message>
        <source>Manager&apos;s id</source>
        <translation>负责人编号</translation>
    </message>
    <message>
        <source>Creator</source>
        <translation>创建人</translation>
    </message>
    <message>
        <source>Creator&apos;s id</source>
        <translation>创建人编号</translation>
    </message>
    <message>
        <source>Followers</source>
        <translation>关注者</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>创建时间</translation>
    </message>
    <message>
        <source>Planned end</source>
        <translation>计划结束</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>链接</translation>
    </message>
    <message>
        <source>Details text</source>
        <translation>详情文本</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Completed on</source>
        <translation>完成日期</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>结论</translation>
    </message>
    <message>
        <source>Votes</source>
        <translation>票数</translation>
    </message>
</context>
<context>
    <name>TemplateCommands</name>
    <message>
        <source>New from &amp;template…</source>
        <translation>从模板新建(&amp;T)…</translation>
    </message>
    <message>
        <source>Save as te&amp;mplate…</source>
        <translation>另存为模板(&amp;M)…</translation>
    </message>
    <message>
        <source>New from template</source>
        <translation>从模板新建</translation>
    </message>
    <message>
        <source>%1 is no template: %2.</source>
        <translation>%1 不是模板：%2。</translation>
    </message>
    <message>
        <source>Save as template</source>
        <translation>另存为模板</translation>
    </message>
    <message>
        <source>Name of the template:</source>
        <translation>模板名称：</translation>
    </message>
    <message>
        <source>There is a template %1 already. Replace it?</source>
        <translation>模板 %1 已存在。要替换吗？</translation>
    </message>
    <message>
        <source>File &gt; New from template offers %1 now</source>
        <translation>“文件 &gt; 从模板新建”中已有 %1</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>无法写入 %1：%2。</translation>
    </message>
</context>
<context>
    <name>TemplateGallery</name>
    <message>
        <source>New from template</source>
        <translation>从模板新建</translation>
    </message>
    <message>
        <source>Templates</source>
        <translation>模板</translation>
    </message>
    <message>
        <source>C&amp;reate</source>
        <translation>创建(&amp;R)</translation>
    </message>
    <message>
        <source>From a &amp;file…</source>
        <translation>从文件(&amp;F)…</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>Delete the template %1?</source>
        <translation>删除模板 %1？</translation>
    </message>
</context>
<context>
    <name>Templates</name>
    <message>
        <source>Empty</source>
        <translation>空白</translation>
    </message>
    <message>
        <source>6M: production</source>
        <translation>6M：生产</translation>
    </message>
    <message>
        <source>4S: services</source>
        <translation>4S：服务</translation>
    </message>
    <message>
        <source>8P: marketing</source>
        <translation>8P：营销</translation>
    </message>
    <message>
        <source>4P: administration</source>
        <translation>4P：管理</translation>
    </message>
    <message>
        <source>5 whys</source>
        <translation>5 个为什么</translation>
    </message>
    <message>
        <source>Incident review</source>
        <translation>事故复盘</translation>
    </message>
    <message>
        <source>Project risks</source>
        <translation>项目风险</translation>
    </message>
</context>
<context>
    <name>TitleEditor</name>
    <message>
        <source>Title</source>
        <translation>标题</translation>
    </message>
</context>
<context>
    <name>TreeItem</name>
    <message>
        <source>负责人:</source>
        <translation>负责人:</translation>
    </message>
    <message>
        <source>创建时间:</source>
        <translation>创建时间:</translation>
    </message>
    <message>
        <source>截止时间:</source>
        <translation>截止时间:</translation>
    </message>
    <message>
        <source>子主题</source>
        <translation>子主题</translation>
    </message>
</context>
<context>
    <name>URLDialog</name>
    <message>
        <source>Input Url</source>
        <translation>输入网址</translation>
    </message>
    <message>
        <source>Url:</source>
        <translation>网址：</translation>
    </message>
    <message>
        <source>Clean</source>
        <translation>清空历史记录</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Link to url</source>
        <translation>链接到网址</translation>
    </message>
    <message>
        <source>Save url</source>
        <translation>保存到网址</translation>
    </message>
    <message>
        <source>Open url</source>
        <translation>打开网址</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Failed to open %1
%2</source>
        <translation>无法打开 %1
%2</translation>
    </message>
</context>
<context>
    <name>ViewCommands</name>
    <message>
        <source>Zoom &amp;in</source>
        <translation>放大(&amp;I)</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>缩小(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;100 %</source>
        <translation>实际大小（100 %）(&amp;1)</translation>
    </message>
    <message>
        <source>&amp;Fit all</source>
        <translation>显示全部(&amp;F)</translation>
    </message>
    <message>
        <source>Fit &amp;selection</source>
        <translation>显示所选(&amp;S)</translation>
    </message>
    <message>
        <source>Rotate &amp;right</source>
        <translation>向右旋转(&amp;R)</translation>
    </message>
    <message>
        <source>Rotate &amp;left</source>
        <translation>向左旋转(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Contract</source>
        <translation>折叠(&amp;C)</translation>
    </message>
    <message>
        <source>Expand &amp;all</source>
        <translation>全部展开(&amp;A)</translation>
    </message>
    <message>
        <source>Con&amp;tract all</source>
        <translation>全部折叠(&amp;T)</translation>
    </message>
    <message>
        <source>Show as a &amp;diagram of its own</source>
        <translation>单独显示为鱼骨图(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>返回(&amp;B)</translation>
    </message>
    <message>
        <source>Show the &amp;whole diagram</source>
        <translation>显示整个鱼骨图(&amp;W)</translation>
    </message>
    <message>
        <source>Style of &amp;all subjects…</source>
        <translation>全部主题的样式(&amp;Y)…</translation>
    </message>
    <message>
        <source>&amp;Diagram mode</source>
        <translation>鱼骨图模式(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Task mode</source>
        <translation>任务模式(&amp;M)</translation>
    </message>
    <message>
        <source>(nothing yet)</source>
        <translation>（暂无）</translation>
    </message>
    <message>
        <source>S&amp;how full screen</source>
        <translation>全屏(&amp;H)</translation>
    </message>
    <message>
        <source>U&amp;pright</source>
        <translation>取消旋转(&amp;P)</translation>
    </message>
    <message>
        <source>E&amp;xpand</source>
        <translation>展开(&amp;X)</translation>
    </message>
    <message>
        <source>&amp;Just the drawing</source>
        <translation>仅显示图(&amp;J)</translation>
    </message>
    <message>
        <source>Expanding all bones…</source>
        <translation>正在展开所有鱼骨…</translation>
    </message>
</context>
<context>
    <name>WalkCommands</name>
    <message>
        <source>To the &amp;left</source>
        <translation>向左(&amp;L)</translation>
    </message>
    <message>
        <source>To the &amp;right</source>
        <translation>向右(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>向上(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Down</source>
        <translation>向下(&amp;D)</translation>
    </message>
    <message>
        <source>To the &amp;parent</source>
        <translation>到父主题(&amp;P)</translation>
    </message>
    <message>
        <source>To the &amp;first child</source>
        <translation>到第一个子主题(&amp;F)</translation>
    </message>
    <message>
        <source>To the one &amp;before</source>
        <translation>到前一主题(&amp;B)</translation>
    </message>
    <message>
        <source>To the &amp;next one</source>
        <translation>到后一主题(&amp;N)</translation>
    </message>
</context>
<context>
    <name>Welcome</name>
    <message>
        <source>Your first fishbone</source>
        <translation>您的第一张鱼骨图</translation>
    </message>
    <message>
        <source>Build it</source>
        <translation>创建</translation>
    </message>
    <message>
        <source>Tab: a child</source>
        <translation>Tab：子主题</translation>
    </message>
    <message>
        <source>Enter: one after it</source>
        <translation>Enter：之后插入</translation>
    </message>
    <message>
        <source>Shift+Enter: one before it</source>
        <translation>Shift+Enter：之前插入</translation>
    </message>
    <message>
        <source>Ctrl+Enter: a parent</source>
        <translation>Ctrl+Enter：父主题</translation>
    </message>
    <message>
        <source>Change it</source>
        <translation>修改</translation>
    </message>
    <message>
        <source>Just type: a new title</source>
        <translation>直接输入：新标题</translation>
    </message>
    <message>
        <source>F2: edit the title</source>
        <translation>F2：编辑标题</translation>
    </message>
    <message>
        <source>F4: details</source>
        <translation>F4：详细信息</translation>
    </message>
    <message>
        <source>Ctrl+Z: undo</source>
        <translation>Ctrl+Z：撤销</translation>
    </message>
    <message>
        <source>Mark it</source>
        <translation>标记</translation>
    </message>
    <message>
        <source>Space: all marks</source>
        <translation>空格：所有标记</translation>
    </message>
    <message>
        <source>F7: a vote</source>
        <translation>F7：投一票</translation>
    </message>
    <message>
        <source>Walk in it</source>
        <translation>移动选择</translation>
    </message>
    <message>
        <source>Arrows: as you see it</source>
        <translation>方向键：按画面移动</translation>
    </message>
    <message>
        <source>Ctrl+arrows: by level</source>
        <translation>Ctrl+方向键：按层级移动</translation>
    </message>
    <message>
        <source>+ and −: expand, contract</source>
        <translation>+ 和 −：展开、收起</translation>
    </message>
    <message>
        <source>Rearrange it</source>
        <translation>调整</translation>
    </message>
    <message>
        <source>Drag a bone onto another</source>
        <translation>把骨头拖到另一根上</translation>
    </message>
    <message>
        <source>Alt+arrows: move a bone</source>
        <translation>Alt+方向键：移动骨头</translation>
    </message>
    <message>
        <source>Look at it</source>
        <translation>查看</translation>
    </message>
    <message>
        <source>Home: all of it</source>
        <translation>Home：显示全部</translation>
    </message>
    <message>
        <source>Ctrl+wheel: zoom</source>
        <translation>Ctrl+滚轮：缩放</translation>
    </message>
    <message>
        <source>Take it with you</source>
        <translation>带走</translation>
    </message>
    <message>
        <source>Ctrl+S: save</source>
        <translation>Ctrl+S：保存</translation>
    </message>
    <message>
        <source>Ctrl+E: a picture</source>
        <translation>Ctrl+E：导出图片</translation>
    </message>
    <message>
        <source>F1: all keys</source>
        <translation>F1：所有快捷键</translation>
    </message>
</context>
<context>
    <name>WorkProgress</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>ZoomControls</name>
    <message>
        <source>Zoom</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>Show at 100 %</source>
        <translation>以 100 % 显示</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>旋转</translation>
    </message>
</context>
</TS>
