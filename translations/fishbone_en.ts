<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>AccessibleBone</name>
    <message>
        <source>level %1</source>
        <translation>level %1</translation>
    </message>
    <message>
        <source>linked</source>
        <translation>linked</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Select</translation>
    </message>
    <message>
        <source>Contract</source>
        <translation>Contract</translation>
    </message>
    <message>
        <source>Expand</source>
        <translation>Expand</translation>
    </message>
    <message>
        <source>Selects this bone alone</source>
        <translation>Selects this bone alone</translation>
    </message>
    <message>
        <source>Hides the bones below</source>
        <translation>Hides the bones below</translation>
    </message>
    <message>
        <source>Shows the bones below</source>
        <translation>Shows the bones below</translation>
    </message>
</context>
<context>
    <name>AccessibleDiagram</name>
    <message>
        <source>Diagram: %1</source>
        <translation>Diagram: %1</translation>
    </message>
    <message>
        <source>Diagram</source>
        <translation>Diagram</translation>
    </message>
</context>
<context>
    <name>AccessibleSubject</name>
    <message>
        <source>level %1</source>
        <translation>level %1</translation>
    </message>
    <message>
        <source>Contract</source>
        <translation>Contract</translation>
    </message>
    <message>
        <source>Expand</source>
        <translation>Expand</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Select</translation>
    </message>
</context>
<context>
    <name>ActionList</name>
    <message>
        <source>no date</source>
        <translation>no date</translation>
    </message>
    <message>
        <source>Change who is responsible</source>
        <translation>Change who is responsible</translation>
    </message>
    <message>
        <source>Change planned end</source>
        <translation>Change planned end</translation>
    </message>
    <message>
        <source>Change status</source>
        <translation>Change status</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Rename</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Actions</translation>
    </message>
    <message>
        <source>Cause</source>
        <translation>Cause</translation>
    </message>
    <message>
        <source>Responsible</source>
        <translation>Responsible</translation>
    </message>
    <message>
        <source>Until</source>
        <translation>Until</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>%1, overdue</source>
        <translation>%1, overdue</translation>
    </message>
    <message>
        <source>Nobody yet</source>
        <translation>Nobody yet</translation>
    </message>
    <message>
        <source>No status</source>
        <translation>No status</translation>
    </message>
</context>
<context>
    <name>ActionsPanel</name>
    <message>
        <source>Write to a file…</source>
        <translation>Write to a file…</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Actions</translation>
    </message>
    <message>
        <source>Ranked causes</source>
        <translation>Ranked causes</translation>
    </message>
    <message>
        <source>Grouped by</source>
        <translation>Grouped by</translation>
    </message>
    <message>
        <source>In one list</source>
        <translation>In one list</translation>
    </message>
    <message>
        <source>By person</source>
        <translation>By person</translation>
    </message>
    <message>
        <source>By status</source>
        <translation>By status</translation>
    </message>
    <message>
        <source>Print…</source>
        <translation>Print…</translation>
    </message>
</context>
<context>
    <name>AutosaveStatus</name>
    <message>
        <source>Autosaved at %1</source>
        <translation>Autosaved at %1</translation>
    </message>
    <message>
        <source>A copy of the changes that are not saved is kept in %1</source>
        <translation>A copy of the changes that are not saved is kept in %1</translation>
    </message>
    <message>
        <source>Autosave failed at %1</source>
        <translation>Autosave failed at %1</translation>
    </message>
    <message>
        <source>%1 cannot be written. Changes that are not saved would be lost if the program did not end well.</source>
        <translation>%1 cannot be written. Changes that are not saved would be lost if the program did not end well.</translation>
    </message>
</context>
<context>
    <name>BusyCursor</name>
    <message>
        <source>Working…</source>
        <translation>Working…</translation>
    </message>
</context>
<context>
    <name>CanvasTheme</name>
    <message>
        <source>The style is not kept: %1 cannot be written</source>
        <translation>The style is not kept: %1 cannot be written</translation>
    </message>
</context>
<context>
    <name>ClearContent</name>
    <message>
        <source>cancelled</source>
        <translation>cancelled</translation>
    </message>
    <message>
        <source>finished</source>
        <translation>finished</translation>
    </message>
    <message>
        <source>finished late</source>
        <translation>finished late</translation>
    </message>
    <message>
        <source>postponed</source>
        <translation>postponed</translation>
    </message>
    <message>
        <source>under way</source>
        <translation>under way</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>waiting</translation>
    </message>
    <message>
        <source>waiting for approval</source>
        <translation>waiting for approval</translation>
    </message>
    <message>
        <source>suspected</source>
        <translation>suspected</translation>
    </message>
    <message>
        <source>being checked</source>
        <translation>being checked</translation>
    </message>
    <message>
        <source>confirmed</source>
        <translation>confirmed</translation>
    </message>
    <message>
        <source>ruled out</source>
        <translation>ruled out</translation>
    </message>
    <message>
        <source>root cause</source>
        <translation>root cause</translation>
    </message>
    <message numerus="yes">
        <source>%n vote(s)</source>
        <translation>
            <numerusform>%n vote</numerusform>
            <numerusform>%n votes</numerusform>
        </translation>
    </message>
    <message>
        <source>votes</source>
        <translation>votes</translation>
    </message>
</context>
<context>
    <name>CloseQuestion</name>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message numerus="yes">
        <source>%n document(s) have changes that were not saved. Save those that are checked?</source>
        <translation>
            <numerusform>%n document has changes that were not saved. Save it if it is checked?</numerusform>
            <numerusform>%n documents have changes that were not saved. Save those that are checked?</numerusform>
        </translation>
    </message>
    <message>
        <source>Documents with changes that were not saved</source>
        <translation>Documents with changes that were not saved</translation>
    </message>
    <message>
        <source>&amp;Save checked</source>
        <translation>&amp;Save checked</translation>
    </message>
    <message>
        <source>Close &amp;without saving</source>
        <translation>Close &amp;without saving</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Show this help and quit.</source>
        <translation>Show this help and quit.</translation>
    </message>
    <message>
        <source>Show the version and quit.</source>
        <translation>Show the version and quit.</translation>
    </message>
    <message>
        <source>How far to expand the bones of the picture: all (the default), none, or a number of levels below the main bones.</source>
        <translation>How far to expand the bones of the picture: all (the default), none, or a number of levels below the main bones.</translation>
    </message>
    <message>
        <source>Make the picture &lt;width&gt;x&lt;height&gt; in size and fit the drawing in.</source>
        <translation>Make the picture &lt;width&gt;x&lt;height&gt; in size and fit the drawing in.</translation>
    </message>
    <message>
        <source>Draw &lt;factor&gt; times as large as on the screen at 100 %.</source>
        <translation>Draw &lt;factor&gt; times as large as on the screen at 100 %.</translation>
    </message>
    <message>
        <source>Fill the picture with &lt;colour&gt;, a name or #rrggbb, or leave it transparent. White is the default.</source>
        <translation>Fill the picture with &lt;colour&gt;, a name or #rrggbb, or leave it transparent. White is the default.</translation>
    </message>
    <message>
        <source>Diagrams to open: files, or http and https URLs. Without one, a new diagram.</source>
        <translation>Diagrams to open: files, or http and https URLs. Without one, a new diagram.</translation>
    </message>
    <message>
        <source>--%1 takes %2, not &quot;%3&quot;</source>
        <translation>--%1 takes %2, not &quot;%3&quot;</translation>
    </message>
    <message>
        <source>--%1 needs --export</source>
        <translation>--%1 needs --export</translation>
    </message>
    <message>
        <source>--export takes one document, not %1</source>
        <translation>--export takes one document, not %1</translation>
    </message>
    <message>
        <source>--size and --scale exclude each other</source>
        <translation>--size and --scale exclude each other</translation>
    </message>
    <message>
        <source>all, none or a number of levels</source>
        <translation>all, none or a number of levels</translation>
    </message>
    <message>
        <source>a size such as 1600x900</source>
        <translation>a size such as 1600x900</translation>
    </message>
    <message>
        <source>a number above 0</source>
        <translation>a number above 0</translation>
    </message>
    <message>
        <source>the name of a colour, #rrggbb or transparent</source>
        <translation>the name of a colour, #rrggbb or transparent</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>cannot read %1: %2</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>cannot write %1: %2</translation>
    </message>
    <message>
        <source>there is no display to open a window on; --export needs none</source>
        <translation>there is no display to open a window on; --export needs none</translation>
    </message>
    <message>
        <source>Read the file as &lt;format&gt;, whatever its ending.</source>
        <translation>Read the file as &lt;format&gt;, whatever its ending.</translation>
    </message>
    <message>
        <source>Write &lt;format&gt;, whatever the ending.</source>
        <translation>Write &lt;format&gt;, whatever the ending.</translation>
    </message>
    <message>
        <source>The file to read.</source>
        <translation>The file to read.</translation>
    </message>
    <message>
        <source>The file to write.</source>
        <translation>The file to write.</translation>
    </message>
    <message>
        <source>Counts what is in a diagram and lists what is off in it.
The exit code is 3 when anything is.</source>
        <translation>Counts what is in a diagram and lists what is off in it.
The exit code is 3 when anything is.</translation>
    </message>
    <message>
        <source>--%1 does not go with convert</source>
        <translation>--%1 does not go with convert</translation>
    </message>
    <message>
        <source>convert takes a file to read and a file to write</source>
        <translation>convert takes a file to read and a file to write</translation>
    </message>
    <message>
        <source>--%1 needs a picture to write</source>
        <translation>--%1 needs a picture to write</translation>
    </message>
    <message>
        <source>--%1 does not go with info</source>
        <translation>--%1 does not go with info</translation>
    </message>
    <message>
        <source>info takes one file, not %1</source>
        <translation>info takes one file, not %1</translation>
    </message>
    <message>
        <source>one of %1</source>
        <translation>one of %1</translation>
    </message>
    <message>
        <source>Format: %1
</source>
        <translation>Format: %1
</translation>
    </message>
    <message>
        <source>The command.</source>
        <translation>The command.</translation>
    </message>
    <message>
        <source>Write nothing when that would leave content out.</source>
        <translation>Write nothing when that would leave content out.</translation>
    </message>
    <message>
        <source>--%1 needs convert</source>
        <translation>--%1 needs convert</translation>
    </message>
    <message>
        <source>%1 can only be written</source>
        <translation>%1 can only be written</translation>
    </message>
    <message>
        <source>%1 can only be read</source>
        <translation>%1 can only be read</translation>
    </message>
    <message>
        <source>the format of &quot;%1&quot; is unknown: the name must end in one of %2, or --from tell one of %3</source>
        <translation>the format of &quot;%1&quot; is unknown: the name must end in one of %2, or --from tell one of %3</translation>
    </message>
    <message>
        <source>%1 was not written: something would be left out</source>
        <translation>%1 was not written: something would be left out</translation>
    </message>
    <message>
        <source>Writes a diagram in another format, or as a picture.
The endings tell the formats. Read: %1.
Written: %2, and png, svg, pdf, html and pptx for pictures.
What is left out, or put where it can be kept, is listed on the error output.</source>
        <translation>Writes a diagram in another format, or as a picture.
The endings tell the formats. Read: %1.
Written: %2, and png, svg, pdf, html and pptx for pictures.
What is left out, or put where it can be kept, is listed on the error output.</translation>
    </message>
    <message>
        <source>Draw the diagram into the picture &lt;file&gt; and quit. The ending .png, .svg, .pdf, .html or, for a slide, .pptx tells the format. Needs no display.</source>
        <translation>Draw the diagram into the picture &lt;file&gt; and quit. The ending .png, .svg, .pdf, .html or, for a slide, .pptx tells the format. Needs no display.</translation>
    </message>
    <message>
        <source>the format of &quot;%1&quot; is unknown: the name must end in .png, .svg, .pdf, .html or .pptx</source>
        <translation>the format of &quot;%1&quot; is unknown: the name must end in .png, .svg, .pdf, .html or .pptx</translation>
    </message>
    <message>
        <source>the format of &quot;%1&quot; is unknown: the name must end in one of %2, or in .png, .svg, .pdf, .html or .pptx for a picture, or --to tell one of %3</source>
        <translation>the format of &quot;%1&quot; is unknown: the name must end in one of %2, or in .png, .svg, .pdf, .html or .pptx for a picture, or --to tell one of %3</translation>
    </message>
    <message>
        <source>a page for the browser needs the clear look</source>
        <translation>a page for the browser needs the clear look</translation>
    </message>
    <message>
        <source>Writes what is sent round after a meeting: the picture, the causes in the order of what was found out, what is to be done by whom, and a legend.
The ending .html, .pdf or .md tells the format; .md has its picture in a file beside it.</source>
        <translation>Writes what is sent round after a meeting: the picture, the causes in the order of what was found out, what is to be done by whom, and a legend.
The ending .html, .pdf or .md tells the format; .md has its picture in a file beside it.</translation>
    </message>
    <message>
        <source>--%1 needs convert, info, report or check</source>
        <translation>--%1 needs convert, info, report or check</translation>
    </message>
    <message>
        <source>--%1 does not go with report</source>
        <translation>--%1 does not go with report</translation>
    </message>
    <message>
        <source>report takes a file to read and a file to write</source>
        <translation>report takes a file to read and a file to write</translation>
    </message>
    <message>
        <source>the format of &quot;%1&quot; is unknown: the name must end in .html, .pdf or .md</source>
        <translation>the format of &quot;%1&quot; is unknown: the name must end in .html, .pdf or .md</translation>
    </message>
    <message>
        <source>the ending names no format that can be read</source>
        <translation>the ending names no format that can be read</translation>
    </message>
    <message>
        <source>--%1 needs info</source>
        <translation>--%1 needs info</translation>
    </message>
    <message>
        <source>--%1 does not go with check</source>
        <translation>--%1 does not go with check</translation>
    </message>
    <message>
        <source>check takes the files to look at</source>
        <translation>check takes the files to look at</translation>
    </message>
    <message>
        <source>--%1 does not go with merge</source>
        <translation>--%1 does not go with merge</translation>
    </message>
    <message>
        <source>merge takes the files of the base, of ours and of theirs</source>
        <translation>merge takes the files of the base, of ours and of theirs</translation>
    </message>
    <message>
        <source>Say it as JSON, for programs.</source>
        <translation>Say it as JSON, for programs.</translation>
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
        <translation>Edits fishbone diagrams of tasks.

These commands need no display:
  convert   write a diagram in another format, or as a picture
  info      say what is in a diagram, and what is off in it
  report    write what is sent round after a meeting
  check     name what is off in files, line by line
  merge     merge two versions of a diagram, for git
&quot;fishbone convert --help&quot; tells more. A file of such a name is ./convert.</translation>
    </message>
    <message>
        <source>Names what is off in each file, and why one cannot be read, a line each.
The exit code is 1 when there is anything.</source>
        <translation>Names what is off in each file, and why one cannot be read, a line each.
The exit code is 1 when there is anything.</translation>
    </message>
    <message>
        <source>The files to look at.</source>
        <translation>The files to look at.</translation>
    </message>
    <message>
        <source>Merges what changed from the base to theirs into ours, subject by subject, as git asks a merge driver to.
What both changed differently is kept as in ours, with a cause that says so below it; the exit code is 1 then.</source>
        <translation>Merges what changed from the base to theirs into ours, subject by subject, as git asks a merge driver to.
What both changed differently is kept as in ours, with a cause that says so below it; the exit code is 1 then.</translation>
    </message>
    <message>
        <source>The version that both come from.</source>
        <translation>The version that both come from.</translation>
    </message>
    <message>
        <source>The version to merge into; it is replaced.</source>
        <translation>The version to merge into; it is replaced.</translation>
    </message>
    <message>
        <source>The other version.</source>
        <translation>The other version.</translation>
    </message>
    <message>
        <source>there are conflicts: look for the causes &quot;Merge conflict&quot;</source>
        <translation>there are conflicts: look for the causes &quot;Merge conflict&quot;</translation>
    </message>
    <message>
        <source>--%1 does not go with a document from the network</source>
        <translation>--%1 does not go with a document from the network</translation>
    </message>
    <message>
        <source>Show texts in &lt;language&gt;, such as de or zh, instead of the system&apos;s.</source>
        <translation>Show texts in &lt;language&gt;, such as de or zh, instead of the system&apos;s.</translation>
    </message>
    <message>
        <source>a folder</source>
        <translation>a folder</translation>
    </message>
    <message>
        <source>Show the texts that the files in &lt;folder&gt; have, and show them anew when these are changed. For translators.</source>
        <translation>Show the texts that the files in &lt;folder&gt; have, and show them anew when these are changed. For translators.</translation>
    </message>
</context>
<context>
    <name>DetailsForm</name>
    <message>
        <source>Priority:</source>
        <translation>Priority:</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Edit style…</source>
        <translation>Edit style…</translation>
    </message>
    <message>
        <source>Has a planned end</source>
        <translation>Has a planned end</translation>
    </message>
    <message>
        <source>Planned end</source>
        <translation>Planned end</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progress</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Link</translation>
    </message>
    <message>
        <source>Open the link</source>
        <translation>Open the link</translation>
    </message>
    <message>
        <source>Followers</source>
        <translation>Followers</translation>
    </message>
    <message>
        <source>New follower</source>
        <translation>New follower</translation>
    </message>
    <message>
        <source>Origin</source>
        <translation>Origin</translation>
    </message>
    <message>
        <source>several</source>
        <translation>several</translation>
    </message>
    <message numerus="yes">
        <source>%n subjects</source>
        <translation>
            <numerusform>%n subject</numerusform>
            <numerusform>%n subjects</numerusform>
        </translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>Title:</translation>
    </message>
    <message>
        <source>Number:</source>
        <translation>Number:</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>Progress:</source>
        <translation>Progress:</translation>
    </message>
    <message>
        <source>Responsible:</source>
        <translation>Responsible:</translation>
    </message>
    <message>
        <source>Their id:</source>
        <translation>Their id:</translation>
    </message>
    <message>
        <source>Planned end:</source>
        <translation>Planned end:</translation>
    </message>
    <message>
        <source>Link:</source>
        <translation>Link:</translation>
    </message>
    <message>
        <source>Followers:</source>
        <translation>Followers:</translation>
    </message>
    <message>
        <source>Details:</source>
        <translation>Details:</translation>
    </message>
    <message>
        <source>Style:</source>
        <translation>Style:</translation>
    </message>
    <message>
        <source>Verdict:</source>
        <translation>Verdict:</translation>
    </message>
    <message>
        <source>Votes:</source>
        <translation>Votes:</translation>
    </message>
    <message>
        <source>What there is to say of it; of a cause, the evidence for its verdict</source>
        <translation>What there is to say of it; of a cause, the evidence for its verdict</translation>
    </message>
</context>
<context>
    <name>DetailsPanel</name>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Apply</translation>
    </message>
    <message>
        <source>Re&amp;vert</source>
        <translation>&amp;Revert</translation>
    </message>
    <message>
        <source>Created by: %1</source>
        <translation>Created by: %1</translation>
    </message>
    <message>
        <source>Created on: %1</source>
        <translation>Created on: %1</translation>
    </message>
    <message>
        <source>Edit details</source>
        <translation>Edit details</translation>
    </message>
</context>
<context>
    <name>DiagramCounts</name>
    <message numerus="yes">
        <source>%n subject(s)</source>
        <translation>
            <numerusform>%n subject</numerusform>
            <numerusform>%n subjects</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>, %n selected</source>
        <translation>
            <numerusform>, %n selected</numerusform>
            <numerusform>, %n selected</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DiagramExchange</name>
    <message>
        <source>it holds no diagram</source>
        <translation>it holds no diagram</translation>
    </message>
    <message>
        <source>the subject lies below itself</source>
        <translation>the subject lies below itself</translation>
    </message>
    <message>
        <source>a quote is not closed</source>
        <translation>a quote is not closed</translation>
    </message>
    <message>
        <source>there is text behind a closing quote</source>
        <translation>there is text behind a closing quote</translation>
    </message>
    <message>
        <source>Fishbone diagram</source>
        <translation>Fishbone diagram</translation>
    </message>
    <message>
        <source>Markdown outline</source>
        <translation>Markdown outline</translation>
    </message>
    <message>
        <source>Indented text</source>
        <translation>Indented text</translation>
    </message>
    <message>
        <source>OPML outline</source>
        <translation>OPML outline</translation>
    </message>
    <message>
        <source>FreeMind mind map</source>
        <translation>FreeMind mind map</translation>
    </message>
    <message>
        <source>Mermaid ishikawa diagram</source>
        <translation>Mermaid ishikawa diagram</translation>
    </message>
    <message>
        <source>Table of tasks</source>
        <translation>Table of tasks</translation>
    </message>
    <message>
        <source>it has more than %1 levels</source>
        <translation>it has more than %1 levels</translation>
    </message>
    <message>
        <source>All formats</source>
        <translation>All formats</translation>
    </message>
    <message>
        <source>it is larger than %1 MiB</source>
        <translation>it is larger than %1 MiB</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>it is empty</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>it is a folder</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>there is no such file</translation>
    </message>
    <message>
        <source>there are more than %1 levels</source>
        <translation>there are more than %1 levels</translation>
    </message>
    <message>
        <source>there are more than %1 subjects</source>
        <translation>there are more than %1 subjects</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>line %1: %2</translation>
    </message>
    <message>
        <source>Imported diagram</source>
        <translation>Imported diagram</translation>
    </message>
    <message>
        <source>declarations of entities are not accepted</source>
        <translation>declarations of entities are not accepted</translation>
    </message>
    <message>
        <source>the document begins with &lt;%1&gt;, not with &lt;%2&gt;</source>
        <translation>the document begins with &lt;%1&gt;, not with &lt;%2&gt;</translation>
    </message>
    <message>
        <source>the text is not encoded as UTF-8, nor in a code page that is known (Windows-1252, GB 18030)</source>
        <translation>the text is not encoded as UTF-8, nor in a code page that is known (Windows-1252, GB 18030)</translation>
    </message>
    <message>
        <source>the text as %1, since it is not encoded as UTF-8</source>
        <translation>the text as %1, since it is not encoded as UTF-8</translation>
    </message>
    <message>
        <source>that format can only be read</source>
        <translation>that format can only be read</translation>
    </message>
    <message>
        <source>that format can only be written</source>
        <translation>that format can only be written</translation>
    </message>
    <message>
        <source>a style</source>
        <translation>a style</translation>
    </message>
    <message>
        <source>draw.io diagram</source>
        <translation>draw.io diagram</translation>
    </message>
    <message>
        <source>what is encrypted</source>
        <translation>what is encrypted</translation>
    </message>
    <message>
        <source>Icons</source>
        <translation>Icons</translation>
    </message>
    <message>
        <source>the icon &quot;%1&quot; as %2</source>
        <translation>the icon &quot;%1&quot; as %2</translation>
    </message>
    <message>
        <source>an arrow</source>
        <translation>an arrow</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Link</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>the front matter</source>
        <translation>the front matter</translation>
    </message>
    <message>
        <source>the comment &quot;%1&quot;</source>
        <translation>the comment &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the language &quot;%1&quot; of a block of code</source>
        <translation>the language &quot;%1&quot; of a block of code</translation>
    </message>
    <message>
        <source>the diagram does not begin with &quot;ishikawa&quot; or &quot;mindmap&quot;</source>
        <translation>the diagram does not begin with &quot;ishikawa&quot; or &quot;mindmap&quot;</translation>
    </message>
    <message>
        <source>settings</source>
        <translation>settings</translation>
    </message>
    <message>
        <source>Org outline</source>
        <translation>Org outline</translation>
    </message>
    <message>
        <source>text above the outline</source>
        <translation>text above the outline</translation>
    </message>
    <message>
        <source>&quot;%1&quot; as %2</source>
        <translation>&quot;%1&quot; as %2</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Labels</translation>
    </message>
    <message>
        <source>&quot;%1&quot; as a progress</source>
        <translation>&quot;%1&quot; as a progress</translation>
    </message>
    <message>
        <source>a quotation</source>
        <translation>a quotation</translation>
    </message>
    <message>
        <source>further cells</source>
        <translation>further cells</translation>
    </message>
    <message>
        <source>the diagram does not begin with &quot;@startmindmap&quot;</source>
        <translation>the diagram does not begin with &quot;@startmindmap&quot;</translation>
    </message>
    <message>
        <source>text beside the drawing</source>
        <translation>text beside the drawing</translation>
    </message>
    <message>
        <source>PlantUML mind map</source>
        <translation>PlantUML mind map</translation>
    </message>
    <message>
        <source>dates of &quot;%1&quot; as day/month/year</source>
        <translation>dates of &quot;%1&quot; as day/month/year</translation>
    </message>
    <message>
        <source>dates of &quot;%1&quot; as month/day/year</source>
        <translation>dates of &quot;%1&quot; as month/day/year</translation>
    </message>
    <message>
        <source>cells without a heading</source>
        <translation>cells without a heading</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of &quot;%2&quot; as %3</source>
        <translation>&quot;%1&quot; of &quot;%2&quot; as %3</translation>
    </message>
    <message>
        <source>the uuid &quot;%1&quot; a second time</source>
        <translation>the uuid &quot;%1&quot; a second time</translation>
    </message>
    <message>
        <source>there is no column of titles, such as &quot;title&quot;, &quot;summary&quot; or &quot;name&quot;; the columns are %1</source>
        <translation>there is no column of titles, such as &quot;title&quot;, &quot;summary&quot; or &quot;name&quot;; the columns are %1</translation>
    </message>
    <message>
        <source>the sheet &quot;%1&quot;</source>
        <translation>the sheet &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Excel workbook</source>
        <translation>Excel workbook</translation>
    </message>
    <message>
        <source>the archive has no file &quot;%1&quot;, as workbooks do</source>
        <translation>the archive has no file &quot;%1&quot;, as workbooks do</translation>
    </message>
    <message>
        <source>remarks at cells</source>
        <translation>remarks at cells</translation>
    </message>
    <message>
        <source>drawings</source>
        <translation>drawings</translation>
    </message>
    <message>
        <source>cells behind column %1</source>
        <translation>cells behind column %1</translation>
    </message>
    <message>
        <source>there are too many cells</source>
        <translation>there are too many cells</translation>
    </message>
    <message>
        <source>a link within the workbook</source>
        <translation>a link within the workbook</translation>
    </message>
    <message>
        <source>the file &quot;%1&quot;</source>
        <translation>the file &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the archive has neither content.json nor content.xml, one of which holds the map</source>
        <translation>the archive has neither content.json nor content.xml, one of which holds the map</translation>
    </message>
    <message>
        <source>XMind map</source>
        <translation>XMind map</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>Sheet</translation>
    </message>
    <message>
        <source>Boundary</source>
        <translation>Boundary</translation>
    </message>
    <message>
        <source>a topic of the kind &quot;%1&quot; as a cause</source>
        <translation>a topic of the kind &quot;%1&quot; as a cause</translation>
    </message>
    <message>
        <source>the icon &quot;%1&quot;</source>
        <translation>the icon &quot;%1&quot;</translation>
    </message>
    <message>
        <source>an arrow &quot;%1&quot; that joins no two topics</source>
        <translation>an arrow &quot;%1&quot; that joins no two topics</translation>
    </message>
    <message>
        <source>it is not a zip archive, as files of this format are (%1)</source>
        <translation>it is not a zip archive, as files of this format are (%1)</translation>
    </message>
    <message>
        <source>the archive has more than %1 files</source>
        <translation>the archive has more than %1 files</translation>
    </message>
    <message>
        <source>the archive has &quot;%1&quot; twice</source>
        <translation>the archive has &quot;%1&quot; twice</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>it is damaged</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>it is too large</translation>
    </message>
    <message>
        <source>it expands to more than %1 times its size</source>
        <translation>it expands to more than %1 times its size</translation>
    </message>
    <message>
        <source>headings that are repeated</source>
        <translation>headings that are repeated</translation>
    </message>
    <message>
        <source>&lt;/%1&gt; is missing, the end of &lt;%1&gt; in line %2</source>
        <translation>&lt;/%1&gt; is missing, the end of &lt;%1&gt; in line %2</translation>
    </message>
    <message>
        <source>content.json: it is no list of sheets</source>
        <translation>content.json: it is no list of sheets</translation>
    </message>
    <message>
        <source>the map is protected by a password</source>
        <translation>the map is protected by a password</translation>
    </message>
</context>
<context>
    <name>DiagramMerge</name>
    <message>
        <source>It was changed in ours and deleted in theirs.</source>
        <translation>It was changed in ours and deleted in theirs.</translation>
    </message>
    <message>
        <source>It was deleted in ours and changed in theirs.</source>
        <translation>It was deleted in ours and changed in theirs.</translation>
    </message>
    <message>
        <source>Theirs has it below &quot;%1&quot;.</source>
        <translation>Theirs has it below &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Its %1 is &quot;%2&quot; in ours and &quot;%3&quot; in theirs.</source>
        <translation>Its %1 is &quot;%2&quot; in ours and &quot;%3&quot; in theirs.</translation>
    </message>
    <message>
        <source>It was deleted in theirs and has more below it in ours.</source>
        <translation>It was deleted in theirs and has more below it in ours.</translation>
    </message>
    <message>
        <source>It was deleted in ours and has more below it in theirs.</source>
        <translation>It was deleted in ours and has more below it in theirs.</translation>
    </message>
    <message>
        <source>It is a second head.</source>
        <translation>It is a second head.</translation>
    </message>
    <message>
        <source>What is below it has another order in theirs.</source>
        <translation>What is below it has another order in theirs.</translation>
    </message>
    <message>
        <source>Merge conflict</source>
        <translation>Merge conflict</translation>
    </message>
</context>
<context>
    <name>DiagramPicture</name>
    <message>
        <source>the scale, the size or the margin makes no picture</source>
        <translation>the scale, the size or the margin makes no picture</translation>
    </message>
    <message>
        <source>there is not enough memory for it</source>
        <translation>there is not enough memory for it</translation>
    </message>
    <message>
        <source>the file name must end in .png, .svg, .pdf or .html</source>
        <translation>the file name must end in .png, .svg, .pdf or .html</translation>
    </message>
    <message>
        <source>the page is too small or too large</source>
        <translation>the page is too small or too large</translation>
    </message>
</context>
<context>
    <name>DocumentLoader</name>
    <message>
        <source>there is no such file</source>
        <translation>there is no such file</translation>
    </message>
    <message>
        <source>the program is closing</source>
        <translation>the program is closing</translation>
    </message>
    <message>
        <source>it holds no diagram</source>
        <translation>it holds no diagram</translation>
    </message>
</context>
<context>
    <name>DocumentReport</name>
    <message>
        <source>it has no uuid</source>
        <translation>it has no uuid</translation>
    </message>
    <message>
        <source>another subject has the same uuid %1</source>
        <translation>another subject has the same uuid %1</translation>
    </message>
    <message>
        <source>it is the head and has the pid %1</source>
        <translation>it is the head and has the pid %1</translation>
    </message>
    <message>
        <source>it has no pid</source>
        <translation>it has no pid</translation>
    </message>
    <message>
        <source>its pid %1 does not name its parent</source>
        <translation>its pid %1 does not name its parent</translation>
    </message>
    <message>
        <source>it has no title</source>
        <translation>it has no title</translation>
    </message>
    <message>
        <source>its status %1 is unknown</source>
        <translation>its status %1 is unknown</translation>
    </message>
    <message>
        <source>its progress %1 is not within 0 and 100</source>
        <translation>its progress %1 is not within 0 and 100</translation>
    </message>
    <message>
        <source>it is to end before it was created</source>
        <translation>it is to end before it was created</translation>
    </message>
    <message>
        <source>its link %1 is no URL</source>
        <translation>its link %1 is no URL</translation>
    </message>
    <message>
        <source>head</source>
        <translation>head</translation>
    </message>
    <message>
        <source>Title: %1</source>
        <translation>Title: %1</translation>
    </message>
    <message>
        <source>Subjects: %1</source>
        <translation>Subjects: %1</translation>
    </message>
    <message>
        <source>Main bones: %1</source>
        <translation>Main bones: %1</translation>
    </message>
    <message>
        <source>Levels: %1</source>
        <translation>Levels: %1</translation>
    </message>
    <message>
        <source>Links: %1</source>
        <translation>Links: %1</translation>
    </message>
    <message>
        <source>Own styles: %1</source>
        <translation>Own styles: %1</translation>
    </message>
    <message>
        <source>Nothing is off.</source>
        <translation>Nothing is off.</translation>
    </message>
    <message>
        <source>Off: %1</source>
        <translation>Off: %1</translation>
    </message>
</context>
<context>
    <name>DocumentSaver</name>
    <message>
        <source>Fishbone diagrams (*.json);;All files (*)</source>
        <translation>Fishbone diagrams (*.json);;All files (*)</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>%1 would not be recognized as a diagram. Its name should end in .json; &quot;Export as&quot; writes other formats.</source>
        <translation>%1 would not be recognized as a diagram. Its name should end in .json; &quot;Export as&quot; writes other formats.</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Save as</translation>
    </message>
    <message>
        <source>Save a copy</source>
        <translation>Save a copy</translation>
    </message>
    <message>
        <source>Copy written to %1</source>
        <translation>Copy written to %1</translation>
    </message>
    <message>
        <source>%1 saved</source>
        <translation>%1 saved</translation>
    </message>
    <message>
        <source>Another program has changed %1 since it was opened or saved here. Replace it, so that those changes are lost?</source>
        <translation>Another program has changed %1 since it was opened or saved here. Replace it, so that those changes are lost?</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>%1 cannot be written: %2.</translation>
    </message>
</context>
<context>
    <name>DocumentTabs</name>
    <message>
        <source>Open documents</source>
        <translation>Open documents</translation>
    </message>
    <message>
        <source>Not saved to a file yet</source>
        <translation>Not saved to a file yet</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Close</translation>
    </message>
    <message>
        <source>Close &amp;others</source>
        <translation>Close &amp;others</translation>
    </message>
    <message>
        <source>Copy &amp;path</source>
        <translation>Copy &amp;path</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>DrawingFilter</name>
    <message>
        <source>left out by the filter</source>
        <translation>left out by the filter</translation>
    </message>
    <message>
        <source>leads to what the filter shows</source>
        <translation>leads to what the filter shows</translation>
    </message>
</context>
<context>
    <name>DrawingPrinter</name>
    <message>
        <source>%1 – page %2 of %3</source>
        <translation>%1 – page %2 of %3</translation>
    </message>
</context>
<context>
    <name>EditAttributes</name>
    <message>
        <source>Edit attributes</source>
        <translation>Edit attributes</translation>
    </message>
</context>
<context>
    <name>EditCommands</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Undo</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Redo</translation>
    </message>
    <message>
        <source>&amp;Find and replace…</source>
        <translation>&amp;Find and replace…</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cu&amp;t</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copy</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Paste</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Delete</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>Select &amp;all</translation>
    </message>
    <message>
        <source>&amp;Child subject</source>
        <translation>&amp;Child subject</translation>
    </message>
    <message>
        <source>Subject &amp;before</source>
        <translation>Subject &amp;before</translation>
    </message>
    <message>
        <source>Subject &amp;after</source>
        <translation>Subject &amp;after</translation>
    </message>
    <message>
        <source>&amp;Parent subject</source>
        <translation>&amp;Parent subject</translation>
    </message>
    <message>
        <source>&amp;Free subject (a new diagram)</source>
        <translation>&amp;Free subject (a new diagram)</translation>
    </message>
    <message>
        <source>&amp;Sub-task…</source>
        <translation>&amp;Sub-task…</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Rename</translation>
    </message>
    <message>
        <source>&amp;Link to…</source>
        <translation>&amp;Link to…</translation>
    </message>
    <message>
        <source>&amp;Open link</source>
        <translation>&amp;Open link</translation>
    </message>
    <message>
        <source>Remove l&amp;ink</source>
        <translation>Remove l&amp;ink</translation>
    </message>
    <message>
        <source>&amp;Style…</source>
        <translation>St&amp;yle…</translation>
    </message>
    <message>
        <source>Remove s&amp;tyle</source>
        <translation>Remove s&amp;tyle</translation>
    </message>
    <message>
        <source>New sub-task</source>
        <translation>New sub-task</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>Title:</translation>
    </message>
    <message>
        <source>Select the &amp;branch</source>
        <translation>Select the &amp;branch</translation>
    </message>
    <message>
        <source>Select the sib&amp;lings</source>
        <translation>Select the sib&amp;lings</translation>
    </message>
</context>
<context>
    <name>EditDelete</name>
    <message>
        <source>Delete selecteds</source>
        <translation>Delete subjects</translation>
    </message>
    <message>
        <source>Delete current selected</source>
        <translation>Delete subject</translation>
    </message>
</context>
<context>
    <name>EditModify</name>
    <message>
        <source>Modify Item</source>
        <translation>Edit subject</translation>
    </message>
</context>
<context>
    <name>EditMove</name>
    <message>
        <source>Move subjects</source>
        <translation>Move subjects</translation>
    </message>
</context>
<context>
    <name>EditPaste</name>
    <message>
        <source>Paste from clipborad</source>
        <translation>Paste from clipboard</translation>
    </message>
</context>
<context>
    <name>EmptyPage</name>
    <message>
        <source>Opened lately:</source>
        <translation>Opened lately:</translation>
    </message>
    <message>
        <source>No diagram is open</source>
        <translation>No diagram is open</translation>
    </message>
    <message>
        <source>Files can also be dragged into this window.</source>
        <translation>Files can also be dragged into this window.</translation>
    </message>
</context>
<context>
    <name>ExchangeReport</name>
    <message>
        <source>left out: %1</source>
        <translation>left out: %1</translation>
    </message>
    <message>
        <source>put into the details: %1</source>
        <translation>put into the details: %1</translation>
    </message>
    <message>
        <source>taken: %1</source>
        <translation>taken: %1</translation>
    </message>
    <message>
        <source>appearance left out: %1</source>
        <translation>appearance left out: %1</translation>
    </message>
    <message>
        <source>%1 (%2 times, first in line %3)</source>
        <translation>%1 (%2 times, first in line %3)</translation>
    </message>
    <message>
        <source>%1 (%2 times)</source>
        <translation>%1 (%2 times)</translation>
    </message>
    <message>
        <source>%1 (line %2)</source>
        <translation>%1 (line %2)</translation>
    </message>
    <message>
        <source>other things</source>
        <translation>other things</translation>
    </message>
</context>
<context>
    <name>ExportCommands</name>
    <message>
        <source>&amp;Export picture…</source>
        <translation>&amp;Export picture…</translation>
    </message>
    <message>
        <source>E&amp;xport as…</source>
        <translation>E&amp;xport as…</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Print…</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translation>%1 written</translation>
    </message>
    <message>
        <source>Export picture</source>
        <translation>Export picture</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>%1 cannot be written: %2.</translation>
    </message>
    <message>
        <source>Export as</source>
        <translation>Export as</translation>
    </message>
    <message>
        <source>its ending tells none of the formats</source>
        <translation>its ending tells none of the formats</translation>
    </message>
    <message>
        <source>Print previe&amp;w…</source>
        <translation>Print previe&amp;w…</translation>
    </message>
    <message>
        <source>%1 was not written</source>
        <translation>%1 was not written</translation>
    </message>
    <message>
        <source>Writing %1…</source>
        <translation>Writing %1…</translation>
    </message>
    <message>
        <source>PowerPoint slide (*.%1)</source>
        <translation>PowerPoint slide (*.%1)</translation>
    </message>
    <message>
        <source>Copy as p&amp;icture</source>
        <translation>Copy as p&amp;icture</translation>
    </message>
    <message>
        <source>Copied as a picture</source>
        <translation>Copied as a picture</translation>
    </message>
    <message>
        <source>Not copied as a picture: %1</source>
        <translation>Not copied as a picture: %1</translation>
    </message>
    <message>
        <source>Nothing was printed</source>
        <translation>Nothing was printed</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>Export picture</source>
        <translation>Export picture</translation>
    </message>
    <message>
        <source>White</source>
        <translation>White</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>Transparent</translation>
    </message>
    <message>
        <source>&amp;File:</source>
        <translation>&amp;File:</translation>
    </message>
    <message>
        <source>&amp;Background:</source>
        <translation>&amp;Background:</translation>
    </message>
    <message>
        <source>%1 exists already. Replace it?</source>
        <translation>%1 exists already. Replace it?</translation>
    </message>
    <message>
        <source>&amp;Light, as on paper</source>
        <translation>&amp;Light, as on paper</translation>
    </message>
    <message>
        <source>B&amp;rowse…</source>
        <translation>B&amp;rowse…</translation>
    </message>
    <message>
        <source>As on the screen</source>
        <translation>As on the screen</translation>
    </message>
    <message>
        <source>This cannot be exported: %1.</source>
        <translation>This cannot be exported: %1.</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dark</translation>
    </message>
    <message>
        <source>Pictures (*.png *.svg *.pdf *.html)</source>
        <translation>Pictures (*.png *.svg *.pdf *.html)</translation>
    </message>
    <message>
        <source>The file name must end in .png, .svg, .pdf or .html.</source>
        <translation>The file name must end in .png, .svg, .pdf or .html.</translation>
    </message>
    <message>
        <source>A page for the browser needs the clear look.</source>
        <translation>A page for the browser needs the clear look.</translation>
    </message>
    <message>
        <source>%1 Use %2, which fits?</source>
        <translation>%1 Use %2, which fits?</translation>
    </message>
</context>
<context>
    <name>FileCommands</name>
    <message>
        <source>&amp;New</source>
        <translation>&amp;New</translation>
    </message>
    <message>
        <source>New from the &amp;example</source>
        <translation>New from t&amp;he example</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Open…</translation>
    </message>
    <message>
        <source>Open &amp;URL…</source>
        <translation>Open &amp;URL…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Save</translation>
    </message>
    <message>
        <source>Save &amp;as…</source>
        <translation>Save &amp;as…</translation>
    </message>
    <message>
        <source>Save a&amp;ll</source>
        <translation>Save a&amp;ll</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Close</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quit</translation>
    </message>
    <message>
        <source>%1 loaded</source>
        <translation>%1 loaded</translation>
    </message>
    <message>
        <source>cannot open %1: %2</source>
        <translation>cannot open %1: %2</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>&amp;Import…</translation>
    </message>
    <message>
        <source>Reopen &amp;documents at the start</source>
        <translation>Reopen &amp;documents at the start</translation>
    </message>
    <message>
        <source>Save a cop&amp;y…</source>
        <translation>Save a cop&amp;y…</translation>
    </message>
    <message>
        <source>Revert to &amp;file</source>
        <translation>Revert to &amp;file</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>Revert</translation>
    </message>
    <message>
        <source>Give up all changes of %1 since it was saved?</source>
        <translation>Give up all changes of %1 since it was saved?</translation>
    </message>
    <message>
        <source>%1 was not loaded</source>
        <translation>%1 was not loaded</translation>
    </message>
    <message>
        <source>&amp;Welcome diagram</source>
        <translation>&amp;Welcome diagram</translation>
    </message>
</context>
<context>
    <name>FileConflict</name>
    <message>
        <source>Another program has changed %1.</source>
        <translation>Another program has changed %1.</translation>
    </message>
    <message>
        <source>Re&amp;load</source>
        <translation>Re&amp;load</translation>
    </message>
    <message>
        <source>&amp;Keep mine</source>
        <translation>&amp;Keep mine</translation>
    </message>
    <message>
        <source>Save &amp;under another name…</source>
        <translation>Save &amp;under another name…</translation>
    </message>
    <message>
        <source>%1 was deleted, moved or renamed by another program.</source>
        <translation>%1 was deleted, moved or renamed by another program.</translation>
    </message>
    <message>
        <source>Save agai&amp;n</source>
        <translation>Save agai&amp;n</translation>
    </message>
    <message>
        <source>&amp;Hide</source>
        <translation>&amp;Hide</translation>
    </message>
</context>
<context>
    <name>FileName</name>
    <message>
        <source>Untitled</source>
        <translation>Untitled</translation>
    </message>
</context>
<context>
    <name>FilterBar</name>
    <message>
        <source>Any status</source>
        <translation>Any status</translation>
    </message>
    <message>
        <source>Any verdict</source>
        <translation>Any verdict</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Any votes</source>
        <translation>Any votes</translation>
    </message>
    <message>
        <source>Votes ≥ </source>
        <translation>Votes ≥ </translation>
    </message>
    <message>
        <source>Overdue</source>
        <translation>Overdue</translation>
    </message>
    <message>
        <source>Fold the others</source>
        <translation>Fold the others</translation>
    </message>
    <message>
        <source>Close the filter</source>
        <translation>Close the filter</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Text in title, number or details</source>
        <translation>Text in title, number or details</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>Verdict</translation>
    </message>
    <message>
        <source>Responsible</source>
        <translation>Responsible</translation>
    </message>
    <message>
        <source>Least number of votes</source>
        <translation>Least number of votes</translation>
    </message>
    <message>
        <source>Anybody</source>
        <translation>Anybody</translation>
    </message>
    <message>
        <source>Nobody</source>
        <translation>Nobody</translation>
    </message>
    <message numerus="yes">
        <source>%n found</source>
        <translation>
            <numerusform>%n found</numerusform>
            <numerusform>%n found</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Finder</name>
    <message>
        <source>Match %1 of %2</source>
        <translation>Match %1 of %2</translation>
    </message>
    <message numerus="yes">
        <source>Replace %n text(s)</source>
        <translation>
            <numerusform>Replace %n text</numerusform>
            <numerusform>Replace %n texts</numerusform>
        </translation>
    </message>
    <message>
        <source>Only titles and numbers can be replaced.</source>
        <translation>Only titles and numbers can be replaced.</translation>
    </message>
    <message numerus="yes">
        <source>%n text(s) replaced</source>
        <translation>
            <numerusform>%n text replaced</numerusform>
            <numerusform>%n texts replaced</numerusform>
        </translation>
    </message>
    <message>
        <source>No match</source>
        <translation>No match</translation>
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
        <translation>Save as</translation>
    </message>
    <message>
        <source>&apos;%1&apos; has been modified.
Do you want to save your changes?</source>
        <translation>&apos;%1&apos; has been modified.
Do you want to save your changes?</translation>
    </message>
    <message>
        <source>FishInfo</source>
        <translation>Unsaved changes</translation>
    </message>
    <message>
        <source>no model shows the document</source>
        <translation>no model shows the document</translation>
    </message>
    <message>
        <source>the diagram nests too deep to be read again</source>
        <translation>the diagram nests too deep to be read again</translation>
    </message>
</context>
<context>
    <name>FishModel</name>
    <message>
        <source>个无父任务/共</source>
        <translation> without a parent task / </translation>
    </message>
    <message>
        <source>个任务</source>
        <translation> in all</translation>
    </message>
    <message>
        <source>自由主题</source>
        <translation>Free topic</translation>
    </message>
    <message>
        <source>the reply took too long or was too large</source>
        <translation>the reply took too long or was too large</translation>
    </message>
    <message>
        <source>there is no document to load it into</source>
        <translation>there is no document to load it into</translation>
    </message>
</context>
<context>
    <name>HelpCommands</name>
    <message>
        <source>&amp;Keys…</source>
        <translation>&amp;Keys…</translation>
    </message>
    <message>
        <source>&amp;About Fishbone</source>
        <translation>&amp;About Fishbone</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translation>About &amp;Qt</translation>
    </message>
    <message>
        <source>Version %1, library %2&lt;br&gt;Qt %3, built with %4&lt;br&gt;%5</source>
        <translation>Version %1, library %2&lt;br&gt;Qt %3, built with %4&lt;br&gt;%5</translation>
    </message>
    <message>
        <source>About Fishbone</source>
        <translation>About Fishbone</translation>
    </message>
    <message>
        <source>Draws cause-and-effect diagrams of tasks.</source>
        <translation>Draws cause-and-effect diagrams of tasks.</translation>
    </message>
    <message>
        <source>Copyright © 2026 The Fishbone authors, under the MIT License</source>
        <translation>Copyright © 2026 The Fishbone authors, under the MIT License</translation>
    </message>
</context>
<context>
    <name>HistoryPanel</name>
    <message>
        <source>History</source>
        <translation>History</translation>
    </message>
    <message>
        <source>(beginning)</source>
        <translation>(beginning)</translation>
    </message>
    <message numerus="yes">
        <source>%1 (%2 of %n)</source>
        <translation>
            <numerusform>%1 (%2 of %n)</numerusform>
            <numerusform>%1 (%2 of %n)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (%n times)</source>
        <translation>
            <numerusform>%1 (%n times)</numerusform>
            <numerusform>%1 (%n times)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>HitList</name>
    <message>
        <source>Found</source>
        <translation>Found</translation>
    </message>
    <message>
        <source>Will be</source>
        <translation>Will be</translation>
    </message>
    <message>
        <source>In</source>
        <translation>In</translation>
    </message>
</context>
<context>
    <name>HtmlPicture</name>
    <message>
        <source>Search</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>Expand all</source>
        <translation>Expand all</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Fold</translation>
    </message>
    <message>
        <source>Fold to the categories</source>
        <translation>Fold to the categories</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Zoom out</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Zoom in</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Fit</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Show all</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Fishbone diagram. Arrow keys move, Return shows details, the space bar folds.</source>
        <translation>Fishbone diagram. Arrow keys move, Return shows details, the space bar folds.</translation>
    </message>
</context>
<context>
    <name>ImportSummary</name>
    <message>
        <source>%1: %2 left out, %3 put into details.</source>
        <translation>%1: %2 left out, %3 put into details.</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Import</translation>
    </message>
</context>
<context>
    <name>InsertBack</name>
    <message>
        <source>Insert subject back</source>
        <translation>Insert subject after</translation>
    </message>
</context>
<context>
    <name>InsertChild</name>
    <message>
        <source>Insert child subject</source>
        <translation>Insert child subject</translation>
    </message>
</context>
<context>
    <name>InsertFree</name>
    <message>
        <source>Insert free subject</source>
        <translation>Insert free subject</translation>
    </message>
</context>
<context>
    <name>InsertFront</name>
    <message>
        <source>Insert subject front</source>
        <translation>Insert subject before</translation>
    </message>
</context>
<context>
    <name>InsertParent</name>
    <message>
        <source>Insert subject as parent</source>
        <translation>Insert parent subject</translation>
    </message>
</context>
<context>
    <name>JsonDiagram</name>
    <message>
        <source>it is a JSON list, not a diagram, which is an object with a &quot;title&quot; and &quot;children&quot;</source>
        <translation>it is a JSON list, not a diagram, which is an object with a &quot;title&quot; and &quot;children&quot;</translation>
    </message>
    <message>
        <source>it is JSON of another kind: a diagram has a &quot;title&quot; and &quot;children&quot;, this has %1</source>
        <translation>it is JSON of another kind: a diagram has a &quot;title&quot; and &quot;children&quot;, this has %1</translation>
    </message>
    <message>
        <source>it is JSON of another kind: its &quot;title&quot; is no text</source>
        <translation>it is JSON of another kind: its &quot;title&quot; is no text</translation>
    </message>
    <message>
        <source>it is JSON of another kind: its &quot;children&quot; are no list</source>
        <translation>it is JSON of another kind: its &quot;children&quot; are no list</translation>
    </message>
</context>
<context>
    <name>JsonErrors</name>
    <message>
        <source>a name in quotes or } is missing</source>
        <translation>a name in quotes or } is missing</translation>
    </message>
    <message>
        <source>the colon behind a name is missing</source>
        <translation>the colon behind a name is missing</translation>
    </message>
    <message>
        <source>a comma or ] is missing</source>
        <translation>a comma or ] is missing</translation>
    </message>
    <message>
        <source>the comma behind a value is missing</source>
        <translation>the comma behind a value is missing</translation>
    </message>
    <message>
        <source>a text in quotes, a number, true, false, null, { or [ is missing</source>
        <translation>a text in quotes, a number, true, false, null, { or [ is missing</translation>
    </message>
    <message>
        <source>it ends with a number</source>
        <translation>it ends with a number</translation>
    </message>
    <message>
        <source>a backslash begins no escape sequence</source>
        <translation>a backslash begins no escape sequence</translation>
    </message>
    <message>
        <source>a text is not encoded as UTF-8</source>
        <translation>a text is not encoded as UTF-8</translation>
    </message>
    <message>
        <source>the quote at the end of a text is missing</source>
        <translation>the quote at the end of a text is missing</translation>
    </message>
    <message>
        <source>a name or a value is missing</source>
        <translation>a name or a value is missing</translation>
    </message>
    <message>
        <source>it nests too deep</source>
        <translation>it nests too deep</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>it is too large</translation>
    </message>
    <message>
        <source>there is more behind its end</source>
        <translation>there is more behind its end</translation>
    </message>
    <message>
        <source>it is not a JSON document</source>
        <translation>it is not a JSON document</translation>
    </message>
    <message>
        <source>it is not a JSON document (line %1: %2)</source>
        <translation>it is not a JSON document (line %1: %2)</translation>
    </message>
</context>
<context>
    <name>KeysDialog</name>
    <message>
        <source>Keys</source>
        <translation>Keys</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Command</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>Lang&amp;uage</source>
        <translation>Lang&amp;uage</translation>
    </message>
    <message>
        <source>&amp;System language</source>
        <translation>&amp;System language</translation>
    </message>
</context>
<context>
    <name>LinkOpener</name>
    <message>
        <source>Open link</source>
        <translation>Open link</translation>
    </message>
    <message>
        <source>This link is neither a web page nor a mail address. Open it?</source>
        <translation>This link is neither a web page nor a mail address. Open it?</translation>
    </message>
</context>
<context>
    <name>LoadFailure</name>
    <message>
        <source>it is a folder</source>
        <translation>it is a folder</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>there is no such file</translation>
    </message>
    <message>
        <source>its ending is none of those that can be read: %1</source>
        <translation>its ending is none of those that can be read: %1</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>it is empty</translation>
    </message>
</context>
<context>
    <name>LoadProgress</name>
    <message>
        <source>Loading</source>
        <translation>Loading</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>%1 received</source>
        <translation>%1 received</translation>
    </message>
</context>
<context>
    <name>LookChoice</name>
    <message>
        <source>Arrange the drawing for &lt;page&gt;: 16:9, A4, A3, Letter, or a size such as 1920x1080 or 297x210mm. A PDF has a page of that size.</source>
        <translation>Arrange the drawing for &lt;page&gt;: 16:9, A4, A3, Letter, or a size such as 1920x1080 or 297x210mm. A PDF has a page of that size.</translation>
    </message>
    <message>
        <source>Explain the icons below the drawing, which is the default.</source>
        <translation>Explain the icons below the drawing, which is the default.</translation>
    </message>
    <message>
        <source>Leave out the explanation of the icons.</source>
        <translation>Leave out the explanation of the icons.</translation>
    </message>
    <message>
        <source>Draw the head on the &lt;side&gt;: right (the default) or left.</source>
        <translation>Draw the head on the &lt;side&gt;: right (the default) or left.</translation>
    </message>
    <message>
        <source>--%1 takes %2, not &quot;%3&quot;</source>
        <translation>--%1 takes %2, not &quot;%3&quot;</translation>
    </message>
    <message>
        <source>--%1 needs the clear look</source>
        <translation>--%1 needs the clear look</translation>
    </message>
    <message>
        <source>left or right</source>
        <translation>left or right</translation>
    </message>
    <message>
        <source>16:9, A4, A3, Letter or a size such as 1920x1080 or 297x210mm</source>
        <translation>16:9, A4, A3, Letter or a size such as 1920x1080 or 297x210mm</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 or %2</translation>
    </message>
    <message>
        <source>Draw in the &lt;look&gt; %1; the first one is the default.</source>
        <translation>Draw in the &lt;look&gt; %1; the first one is the default.</translation>
    </message>
    <message>
        <source>Draw in &lt;colours&gt;: colour (the default), warm, cool, gray or dark.</source>
        <translation>Draw in &lt;colours&gt;: colour (the default), warm, cool, gray or dark.</translation>
    </message>
    <message>
        <source>colour, warm, cool, gray or dark</source>
        <translation>colour, warm, cool, gray or dark</translation>
    </message>
</context>
<context>
    <name>LookCommands</name>
    <message>
        <source>Loo&amp;k</source>
        <translation>Loo&amp;k</translation>
    </message>
    <message>
        <source>&amp;Screen</source>
        <translation>&amp;Screen</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation>&amp;Palette</translation>
    </message>
    <message>
        <source>Lines of &amp;titles</source>
        <translation>Lines of &amp;titles</translation>
    </message>
    <message>
        <source>&amp;Not broken</source>
        <translation>&amp;Not broken</translation>
    </message>
    <message>
        <source>&amp;Long</source>
        <translation>&amp;Long</translation>
    </message>
    <message>
        <source>&amp;Medium</source>
        <translation>&amp;Medium</translation>
    </message>
    <message>
        <source>&amp;Short</source>
        <translation>&amp;Short</translation>
    </message>
    <message>
        <source>&amp;Bones on both sides</source>
        <translation>&amp;Bones on both sides</translation>
    </message>
    <message>
        <source>&amp;Head on the left</source>
        <translation>&amp;Head on the left</translation>
    </message>
    <message>
        <source>&amp;Legend</source>
        <translation>&amp;Legend</translation>
    </message>
    <message>
        <source>Arrang&amp;e for page</source>
        <translation>Arrang&amp;e for page</translation>
    </message>
    <message>
        <source>Look: %1</source>
        <translation>Look: %1</translation>
    </message>
    <message>
        <source>&amp;Take off all own colours and styles</source>
        <translation>&amp;Take off all own colours and styles</translation>
    </message>
    <message numerus="yes">
        <source>%n subject(s) changed</source>
        <translation>
            <numerusform>%n subject changed</numerusform>
            <numerusform>%n subjects changed</numerusform>
        </translation>
    </message>
    <message>
        <source>No subject has a colour or a style of its own</source>
        <translation>No subject has a colour or a style of its own</translation>
    </message>
</context>
<context>
    <name>LookInfo</name>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Clear</translation>
    </message>
    <message>
        <source>Cl&amp;assic</source>
        <translation>Cl&amp;assic</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;Details</source>
        <translation>&amp;Details</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>History</source>
        <translation>History</translation>
    </message>
    <message>
        <source>Shown be&amp;fore</source>
        <translation>Show&amp;n before</translation>
    </message>
    <message>
        <source>&amp;Panels</source>
        <translation>&amp;Panels</translation>
    </message>
    <message>
        <source>Nothing opens %1</source>
        <translation>Nothing opens %1</translation>
    </message>
    <message numerus="yes">
        <source>%n task(s) moved to %1</source>
        <translation>
            <numerusform>%n task moved to %1</numerusform>
            <numerusform>%n tasks moved to %1</numerusform>
        </translation>
    </message>
    <message>
        <source>the top</source>
        <translation>the top</translation>
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
        <translation>Subjects</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Overview</translation>
    </message>
    <message>
        <source>Float</source>
        <translation>Float</translation>
    </message>
    <message>
        <source>Takes the panel out of the window, or back into it</source>
        <translation>Takes the panel out of the window, or back into it</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Closes the panel</source>
        <translation>Closes the panel</translation>
    </message>
    <message>
        <source>Filt&amp;er…</source>
        <translation>Filt&amp;er…</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Actions</translation>
    </message>
</context>
<context>
    <name>MappingDialog</name>
    <message>
        <source>Import %1</source>
        <translation>Import %1</translation>
    </message>
    <message>
        <source>Read as</source>
        <translation>Read as</translation>
    </message>
    <message>
        <source>What the columns stand for, with the first rows of the table:</source>
        <translation>What the columns stand for, with the first rows of the table:</translation>
    </message>
    <message>
        <source>Read &quot;%1&quot; as</source>
        <translation>Read &quot;%1&quot; as</translation>
    </message>
</context>
<context>
    <name>MarkCommands</name>
    <message>
        <source>&amp;Suspected</source>
        <translation>&amp;Suspected</translation>
    </message>
    <message>
        <source>Being &amp;checked</source>
        <translation>Being &amp;checked</translation>
    </message>
    <message>
        <source>Con&amp;firmed</source>
        <translation>Con&amp;firmed</translation>
    </message>
    <message>
        <source>&amp;Ruled out</source>
        <translation>&amp;Ruled out</translation>
    </message>
    <message>
        <source>R&amp;oot cause</source>
        <translation>R&amp;oot cause</translation>
    </message>
    <message>
        <source>&amp;No verdict</source>
        <translation>&amp;No verdict</translation>
    </message>
    <message>
        <source>&amp;Waiting</source>
        <translation>&amp;Waiting</translation>
    </message>
    <message>
        <source>Waiting for &amp;approval</source>
        <translation>Waiting for &amp;approval</translation>
    </message>
    <message>
        <source>&amp;Under way</source>
        <translation>&amp;Under way</translation>
    </message>
    <message>
        <source>&amp;Finished</source>
        <translation>&amp;Finished</translation>
    </message>
    <message>
        <source>Finished &amp;late</source>
        <translation>Finished &amp;late</translation>
    </message>
    <message>
        <source>&amp;Postponed</source>
        <translation>&amp;Postponed</translation>
    </message>
    <message>
        <source>&amp;Cancelled</source>
        <translation>&amp;Cancelled</translation>
    </message>
    <message>
        <source>&amp;No status</source>
        <translation>&amp;No status</translation>
    </message>
    <message>
        <source>&amp;1 (highest)</source>
        <translation>&amp;1 (highest)</translation>
    </message>
    <message>
        <source>&amp;2 (high)</source>
        <translation>&amp;2 (high)</translation>
    </message>
    <message>
        <source>&amp;3 (medium)</source>
        <translation>&amp;3 (medium)</translation>
    </message>
    <message>
        <source>&amp;4 (low)</source>
        <translation>&amp;4 (low)</translation>
    </message>
    <message>
        <source>&amp;5 (lowest)</source>
        <translation>&amp;5 (lowest)</translation>
    </message>
    <message>
        <source>&amp;No priority</source>
        <translation>&amp;No priority</translation>
    </message>
    <message>
        <source>&amp;Blue</source>
        <translation>&amp;Blue</translation>
    </message>
    <message>
        <source>&amp;Teal</source>
        <translation>&amp;Teal</translation>
    </message>
    <message>
        <source>&amp;Green</source>
        <translation>&amp;Green</translation>
    </message>
    <message>
        <source>Bro&amp;wn</source>
        <translation>Bro&amp;wn</translation>
    </message>
    <message>
        <source>&amp;Orange</source>
        <translation>&amp;Orange</translation>
    </message>
    <message>
        <source>&amp;Red</source>
        <translation>&amp;Red</translation>
    </message>
    <message>
        <source>&amp;Purple</source>
        <translation>&amp;Purple</translation>
    </message>
    <message>
        <source>Gr&amp;ey</source>
        <translation>Gr&amp;ey</translation>
    </message>
    <message>
        <source>R&amp;esponsible…</source>
        <translation>R&amp;esponsible…</translation>
    </message>
    <message>
        <source>Change verdict</source>
        <translation>Change verdict</translation>
    </message>
    <message>
        <source>Vote</source>
        <translation>Vote</translation>
    </message>
    <message>
        <source>One vote &amp;more</source>
        <translation>One vote &amp;more</translation>
    </message>
    <message>
        <source>One vote &amp;less</source>
        <translation>One vote &amp;less</translation>
    </message>
    <message>
        <source>Sort it and its siblings &amp;by votes</source>
        <translation>Sort it and its siblings &amp;by votes</translation>
    </message>
    <message>
        <source>S&amp;tatus</source>
        <translation>S&amp;tatus</translation>
    </message>
    <message>
        <source>Change status</source>
        <translation>Change status</translation>
    </message>
    <message>
        <source>&amp;Priority</source>
        <translation>&amp;Priority</translation>
    </message>
    <message>
        <source>Change priority</source>
        <translation>Change priority</translation>
    </message>
    <message>
        <source>Colo&amp;ur</source>
        <translation>Colo&amp;ur</translation>
    </message>
    <message>
        <source>Change colour</source>
        <translation>Change colour</translation>
    </message>
    <message>
        <source>That of the p&amp;alette</source>
        <translation>That of the p&amp;alette</translation>
    </message>
    <message>
        <source>Ot&amp;her…</source>
        <translation>Ot&amp;her…</translation>
    </message>
    <message>
        <source>Colour of the bone</source>
        <translation>Colour of the bone</translation>
    </message>
    <message>
        <source>Responsible</source>
        <translation>Responsible</translation>
    </message>
    <message>
        <source>Who is responsible?</source>
        <translation>Who is responsible?</translation>
    </message>
    <message>
        <source>Change who is responsible</source>
        <translation>Change who is responsible</translation>
    </message>
    <message>
        <source>Sort by votes</source>
        <translation>Sort by votes</translation>
    </message>
    <message>
        <source>Sorted by votes</source>
        <translation>Sorted by votes</translation>
    </message>
    <message>
        <source>Mar&amp;k</source>
        <translation>Mar&amp;k</translation>
    </message>
    <message>
        <source>Mark at the bo&amp;ne</source>
        <translation>Mark at the bo&amp;ne</translation>
    </message>
</context>
<context>
    <name>MarkNames</name>
    <message>
        <source>none</source>
        <translation>none</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unknown</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>cancelled</translation>
    </message>
    <message>
        <source>finished</source>
        <translation>finished</translation>
    </message>
    <message>
        <source>finished late</source>
        <translation>finished late</translation>
    </message>
    <message>
        <source>postponed</source>
        <translation>postponed</translation>
    </message>
    <message>
        <source>under way</source>
        <translation>under way</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>waiting</translation>
    </message>
    <message>
        <source>waiting for approval</source>
        <translation>waiting for approval</translation>
    </message>
    <message>
        <source>suspected</source>
        <translation>suspected</translation>
    </message>
    <message>
        <source>being checked</source>
        <translation>being checked</translation>
    </message>
    <message>
        <source>confirmed</source>
        <translation>confirmed</translation>
    </message>
    <message>
        <source>ruled out</source>
        <translation>ruled out</translation>
    </message>
    <message>
        <source>root cause</source>
        <translation>root cause</translation>
    </message>
</context>
<context>
    <name>MeetingReport</name>
    <message>
        <source>it may be a cause</source>
        <translation>it may be a cause</translation>
    </message>
    <message>
        <source>somebody is looking into it</source>
        <translation>somebody is looking into it</translation>
    </message>
    <message>
        <source>it contributes</source>
        <translation>it contributes</translation>
    </message>
    <message>
        <source>it does not contribute</source>
        <translation>it does not contribute</translation>
    </message>
    <message>
        <source>all comes from it</source>
        <translation>all comes from it</translation>
    </message>
    <message>
        <source>Ranked causes</source>
        <translation>Ranked causes</translation>
    </message>
    <message>
        <source>Cause</source>
        <translation>Cause</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>Verdict</translation>
    </message>
    <message>
        <source>Votes</source>
        <translation>Votes</translation>
    </message>
    <message>
        <source>Evidence</source>
        <translation>Evidence</translation>
    </message>
    <message>
        <source>No cause has a verdict or votes.</source>
        <translation>No cause has a verdict or votes.</translation>
    </message>
    <message>
        <source>Nobody yet</source>
        <translation>Nobody yet</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progress</translation>
    </message>
    <message>
        <source>Until</source>
        <translation>Until</translation>
    </message>
    <message>
        <source>%1, overdue</source>
        <translation>%1, overdue</translation>
    </message>
    <message>
        <source>Legend</source>
        <translation>Legend</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>Meaning</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Actions</translation>
    </message>
    <message>
        <source>Nobody is to do anything.</source>
        <translation>Nobody is to do anything.</translation>
    </message>
    <message>
        <source>its name must end in .html, .pdf or .md</source>
        <translation>its name must end in .html, .pdf or .md</translation>
    </message>
    <message>
        <source>In</source>
        <translation>In</translation>
    </message>
    <message>
        <source>Responsible</source>
        <translation>Responsible</translation>
    </message>
    <message>
        <source>Overdue</source>
        <translation>Overdue</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>yes</translation>
    </message>
    <message>
        <source>its name must end in .csv or .md</source>
        <translation>its name must end in .csv or .md</translation>
    </message>
</context>
<context>
    <name>Menus</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edit</translation>
    </message>
    <message>
        <source>&amp;Subject</source>
        <translation>&amp;Subject</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;View</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Subject</translation>
    </message>
    <message>
        <source>View</source>
        <translation>View</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>&amp;Go</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Help</translation>
    </message>
</context>
<context>
    <name>Minimap</name>
    <message>
        <source>Overview of the drawing</source>
        <translation>Overview of the drawing</translation>
    </message>
</context>
<context>
    <name>ModifyDelLink</name>
    <message>
        <source>Delete link</source>
        <translation>Remove link</translation>
    </message>
</context>
<context>
    <name>ModifyLinkTo</name>
    <message>
        <source>Modify link to</source>
        <translation>Change link</translation>
    </message>
</context>
<context>
    <name>ModifyName</name>
    <message>
        <source>Modify subject name</source>
        <translation>Rename subject</translation>
    </message>
</context>
<context>
    <name>MoveCommands</name>
    <message>
        <source>Move &amp;up</source>
        <translation>Move &amp;up</translation>
    </message>
    <message>
        <source>Move do&amp;wn</source>
        <translation>Move do&amp;wn</translation>
    </message>
    <message>
        <source>Pro&amp;mote (beside its parent)</source>
        <translation>Pro&amp;mote (beside its parent)</translation>
    </message>
    <message>
        <source>D&amp;emote (below the one before)</source>
        <translation>D&amp;emote (below the one before)</translation>
    </message>
</context>
<context>
    <name>Palettes</name>
    <message>
        <source>&amp;Colours</source>
        <translation>&amp;Colours</translation>
    </message>
    <message>
        <source>&amp;Warm</source>
        <translation>&amp;Warm</translation>
    </message>
    <message>
        <source>C&amp;ool</source>
        <translation>C&amp;ool</translation>
    </message>
    <message>
        <source>&amp;Grey</source>
        <translation>&amp;Grey</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Dark</translation>
    </message>
</context>
<context>
    <name>PasteDialog</name>
    <message>
        <source>Paste</source>
        <translation>Paste</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Lines</translation>
    </message>
    <message>
        <source>Lines with links and emphasis</source>
        <translation>Lines with links and emphasis</translation>
    </message>
    <message>
        <source>Rows of a table</source>
        <translation>Rows of a table</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Title</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Paste</translation>
    </message>
    <message>
        <source>&amp;Read as:</source>
        <translation>&amp;Read as:</translation>
    </message>
</context>
<context>
    <name>PenSelect</name>
    <message>
        <source>NoPen</source>
        <translation>No line</translation>
    </message>
    <message>
        <source>SolidLine</source>
        <translation>Solid</translation>
    </message>
    <message>
        <source>DashLine</source>
        <translation>Dashed</translation>
    </message>
    <message>
        <source>DotLine</source>
        <translation>Dotted</translation>
    </message>
    <message>
        <source>DashDotLine</source>
        <translation>Dash, dot</translation>
    </message>
    <message>
        <source>DashDotDotLine</source>
        <translation>Dash, dot, dot</translation>
    </message>
    <message>
        <source>FlatCap</source>
        <translation>Flat</translation>
    </message>
    <message>
        <source>SquareCap</source>
        <translation>Square</translation>
    </message>
    <message>
        <source>RoundCap</source>
        <translation>Round</translation>
    </message>
    <message>
        <source>MiterJoin</source>
        <translation>Mitred</translation>
    </message>
    <message>
        <source>BevelJoin</source>
        <translation>Bevelled</translation>
    </message>
    <message>
        <source>RoundJoin</source>
        <translation>Round</translation>
    </message>
    <message>
        <source>Pen</source>
        <translation>Pen</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Choose…</translation>
    </message>
    <message>
        <source>PenWidth</source>
        <translation>Width:</translation>
    </message>
    <message>
        <source>PenStyle</source>
        <translation>Line:</translation>
    </message>
    <message>
        <source>PenCapStyle</source>
        <translation>Ends:</translation>
    </message>
    <message>
        <source>PenJoinStyle</source>
        <translation>Corners:</translation>
    </message>
    <message>
        <source>PenColor</source>
        <translation>Colour:</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>PictureExport</name>
    <message>
        <source>a picture of %1 × %2 is too large: %3</source>
        <translation>a picture of %1 × %2 is too large: %3</translation>
    </message>
    <message>
        <source>the drawing cannot be encoded</source>
        <translation>the drawing cannot be encoded</translation>
    </message>
    <message>
        <source>a PNG has at most %1 pixels on a side</source>
        <translation>a PNG has at most %1 pixels on a side</translation>
    </message>
    <message>
        <source>its pixels would take more than %1 MiB</source>
        <translation>its pixels would take more than %1 MiB</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>there is not enough memory</translation>
    </message>
    <message>
        <source>a PDF has at most %1 points (1/72 inch) on a side</source>
        <translation>a PDF has at most %1 points (1/72 inch) on a side</translation>
    </message>
    <message>
        <source>the scale, the size or the margin makes no picture</source>
        <translation>the scale, the size or the margin makes no picture</translation>
    </message>
    <message>
        <source>there is nothing to draw</source>
        <translation>there is nothing to draw</translation>
    </message>
    <message>
        <source>a drawing without height or width needs a margin</source>
        <translation>a drawing without height or width needs a margin</translation>
    </message>
    <message>
        <source>a side has at most %1 units</source>
        <translation>a side has at most %1 units</translation>
    </message>
    <message>
        <source>the file name must end in .png, .svg or .pdf</source>
        <translation>the file name must end in .png, .svg or .pdf</translation>
    </message>
    <message>
        <source>there is no such format</source>
        <translation>there is no such format</translation>
    </message>
    <message>
        <source>it was cancelled</source>
        <translation>it was cancelled</translation>
    </message>
    <message>
        <source>an SVG of it would have more than %1 MiB; a PDF is smaller</source>
        <translation>an SVG of it would have more than %1 MiB; a PDF is smaller</translation>
    </message>
    <message>
        <source>%1; it fits at a scale of %2</source>
        <translation>%1; it fits at a scale of %2</translation>
    </message>
</context>
<context>
    <name>PictureLevelFields</name>
    <message>
        <source>As shown</source>
        <translation>As shown</translation>
    </message>
    <message>
        <source>All levels</source>
        <translation>All levels</translation>
    </message>
    <message>
        <source>Levels below the main bones:</source>
        <translation>Levels below the main bones:</translation>
    </message>
    <message>
        <source>Levels below the main bones</source>
        <translation>Levels below the main bones</translation>
    </message>
    <message>
        <source>&amp;Expanded:</source>
        <translation>&amp;Expanded:</translation>
    </message>
</context>
<context>
    <name>PictureLookFields</name>
    <message>
        <source>Le&amp;gend</source>
        <translation>Le&amp;gend</translation>
    </message>
    <message>
        <source>Loo&amp;k:</source>
        <translation>Loo&amp;k:</translation>
    </message>
    <message>
        <source>As on the screen</source>
        <translation>As on the screen</translation>
    </message>
    <message>
        <source>&amp;Page:</source>
        <translation>&amp;Page:</translation>
    </message>
    <message>
        <source>On the right</source>
        <translation>On the right</translation>
    </message>
    <message>
        <source>On the left</source>
        <translation>On the left</translation>
    </message>
    <message>
        <source>Pale&amp;tte:</source>
        <translation>Pale&amp;tte:</translation>
    </message>
    <message>
        <source>Hea&amp;d:</source>
        <translation>Hea&amp;d:</translation>
    </message>
</context>
<context>
    <name>PicturePreview</name>
    <message>
        <source>Preview</source>
        <translation>Preview</translation>
    </message>
</context>
<context>
    <name>PictureSizeFields</name>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>Sc&amp;ale:</source>
        <translation>Sc&amp;ale:</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>&amp;Width:</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>&amp;Height:</translation>
    </message>
    <message>
        <source>A page of %1 × %2 mm</source>
        <translation>A page of %1 × %2 mm</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 pixels</translation>
    </message>
    <message>
        <source>&amp;Use %1, which fits</source>
        <translation>&amp;Use %1, which fits</translation>
    </message>
</context>
<context>
    <name>PrintPreview</name>
    <message>
        <source>Print preview</source>
        <translation>Print preview</translation>
    </message>
    <message>
        <source>Size on paper</source>
        <translation>Size on paper</translation>
    </message>
    <message>
        <source>Fit one page</source>
        <translation>Fit one page</translation>
    </message>
    <message>
        <source>Fit the width of the page</source>
        <translation>Fit the width of the page</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Scale</translation>
    </message>
    <message>
        <source>Scale in percent</source>
        <translation>Scale in percent</translation>
    </message>
    <message numerus="yes">
        <source>%n page(s)</source>
        <translation>
            <numerusform>%n page</numerusform>
            <numerusform>%n pages</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Nothing to print, or more than %n page(s)</source>
        <translation>
            <numerusform>Nothing to print, or more than %n page</numerusform>
            <numerusform>Nothing to print, or more than %n pages</numerusform>
        </translation>
    </message>
    <message>
        <source>Arranged for the paper</source>
        <translation>Arranged for the paper</translation>
    </message>
    <message>
        <source>Legend</source>
        <translation>Legend</translation>
    </message>
    <message>
        <source>Look</source>
        <translation>Look</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>Printing…</source>
        <translation>Printing…</translation>
    </message>
    <message>
        <source>%1, at %2 % so that no title is cut</source>
        <translation>%1, at %2 % so that no title is cut</translation>
    </message>
</context>
<context>
    <name>PriorityBox</name>
    <message>
        <source>none</source>
        <translation>none</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>新建子任务</source>
        <translation>New sub-task</translation>
    </message>
    <message>
        <source>查看详情</source>
        <translation>Show details</translation>
    </message>
    <message>
        <source>用鱼骨图详细查看</source>
        <translation>Show as a diagram of its own</translation>
    </message>
    <message>
        <source>编辑节点</source>
        <translation>Edit subject</translation>
    </message>
    <message>
        <source>新建子节点</source>
        <translation>New child subject</translation>
    </message>
    <message>
        <source>删除节点</source>
        <translation>Delete subject</translation>
    </message>
</context>
<context>
    <name>RankedList</name>
    <message>
        <source>Ranked causes</source>
        <translation>Ranked causes</translation>
    </message>
    <message>
        <source>Votes</source>
        <translation>Votes</translation>
    </message>
    <message>
        <source>Cause</source>
        <translation>Cause</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>Verdict</translation>
    </message>
    <message>
        <source>In</source>
        <translation>In</translation>
    </message>
</context>
<context>
    <name>RecentFiles</name>
    <message>
        <source>&amp;Recent files</source>
        <translation>&amp;Recent files</translation>
    </message>
    <message>
        <source>(nothing yet)</source>
        <translation>(nothing yet)</translation>
    </message>
    <message>
        <source>&amp;Clear the list</source>
        <translation>&amp;Clear the list</translation>
    </message>
</context>
<context>
    <name>RecoveryCommands</name>
    <message>
        <source>Reco&amp;ver documents…</source>
        <translation>Reco&amp;ver documents…</translation>
    </message>
    <message>
        <source>There is nothing to recover.</source>
        <translation>There is nothing to recover.</translation>
    </message>
    <message>
        <source>%1 recovered</source>
        <translation>%1 recovered</translation>
    </message>
    <message>
        <source>Recover documents</source>
        <translation>Recover documents</translation>
    </message>
    <message>
        <source>%1 cannot be recovered from %2: %3.</source>
        <translation>%1 cannot be recovered from %2: %3.</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>Recover documents</source>
        <translation>Recover documents</translation>
    </message>
    <message>
        <source>The program did not end well the last time. These documents have changes that were not saved:</source>
        <translation>The program did not end well the last time. These documents have changes that were not saved:</translation>
    </message>
    <message>
        <source>Documents with changes that were not saved</source>
        <translation>Documents with changes that were not saved</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Open</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Discard</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Later</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Discard</translation>
    </message>
    <message numerus="yes">
        <source>Give up the changes of %n document(s) for good?</source>
        <translation>
            <numerusform>Give up the changes of %n document for good?</numerusform>
            <numerusform>Give up the changes of %n documents for good?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RecoveryModel</name>
    <message>
        <source>Document</source>
        <translation>Document</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Autosaved</source>
        <translation>Autosaved</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>(never saved)</source>
        <translation>(never saved)</translation>
    </message>
</context>
<context>
    <name>ReplaceFindDialog</name>
    <message>
        <source>Case sensitive</source>
        <translation>Case sensitive</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Replace</translation>
    </message>
    <message>
        <source>Replace All</source>
        <translation>Replace all</translation>
    </message>
    <message>
        <source>Finder</source>
        <translation>Find and replace</translation>
    </message>
    <message>
        <source>title</source>
        <translation>Title</translation>
    </message>
    <message>
        <source>uuid</source>
        <translation>Uuid</translation>
    </message>
    <message>
        <source>showid</source>
        <translation>Number</translation>
    </message>
    <message>
        <source>pid</source>
        <translation>Parent task&apos;s uuid</translation>
    </message>
    <message>
        <source>Find what:</source>
        <translation>Find what:</translation>
    </message>
    <message>
        <source>Replace with:</source>
        <translation>Replace with:</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Find</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Column</translation>
    </message>
    <message>
        <source>Not found key word %1.</source>
        <translation>“%1” was not found.</translation>
    </message>
</context>
<context>
    <name>ReportCommands</name>
    <message>
        <source>Meetin&amp;g report…</source>
        <translation>Meetin&amp;g report…</translation>
    </message>
    <message>
        <source>Meeting report</source>
        <translation>Meeting report</translation>
    </message>
    <message>
        <source>Page for the browser (*.html)</source>
        <translation>Page for the browser (*.html)</translation>
    </message>
    <message>
        <source>Markdown and a picture (*.md)</source>
        <translation>Markdown and a picture (*.md)</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translation>%1 written</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>%1 cannot be written: %2.</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Actions</translation>
    </message>
    <message>
        <source>actions</source>
        <translation>actions</translation>
    </message>
    <message>
        <source>Table for spreadsheets (*.csv)</source>
        <translation>Table for spreadsheets (*.csv)</translation>
    </message>
    <message>
        <source>Ta&amp;ble of actions…</source>
        <translation>Ta&amp;ble of actions…</translation>
    </message>
    <message>
        <source>Print act&amp;ions…</source>
        <translation>Print actions (&amp;K)…</translation>
    </message>
</context>
<context>
    <name>SlideExport</name>
    <message>
        <source>Fishbone diagram &quot;%1&quot; with %2 causes</source>
        <translation>Fishbone diagram &quot;%1&quot; with %2 causes</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Actions</translation>
    </message>
    <message>
        <source>there is nothing to draw</source>
        <translation>there is nothing to draw</translation>
    </message>
</context>
<context>
    <name>SourceDialogs</name>
    <message>
        <source>Fishbone diagrams (*.json);;%1;;All files (*)</source>
        <translation>Fishbone diagrams (*.json);;%1;;All files (*)</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>Loading %1…</source>
        <translation>Loading %1…</translation>
    </message>
</context>
<context>
    <name>SpearStyleDialog</name>
    <message>
        <source>InheritanceParent</source>
        <translation>Inherit the parent&apos;s style</translation>
    </message>
    <message>
        <source>Preview 预览测试 ABC xyz</source>
        <translation>Preview ABC xyz 123</translation>
    </message>
    <message>
        <source>Spear style</source>
        <translation>Style</translation>
    </message>
    <message>
        <source>textCount</source>
        <translation>Characters shown:</translation>
    </message>
    <message>
        <source>ssNormal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>ssSelected</source>
        <translation>Selected</translation>
    </message>
    <message>
        <source>ssHovered</source>
        <translation>Under the mouse</translation>
    </message>
    <message>
        <source>ssLinked</source>
        <translation>Target of a move</translation>
    </message>
    <message>
        <source>SpearState</source>
        <translation>State:</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Preview</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Parent</source>
        <translation>Parent</translation>
    </message>
    <message>
        <source>Set TextFont</source>
        <translation>Text font…</translation>
    </message>
    <message>
        <source>Set TextColor</source>
        <translation>Text colour…</translation>
    </message>
    <message>
        <source>Set TextBkColor</source>
        <translation>Text background…</translation>
    </message>
    <message>
        <source>Set BroderPen</source>
        <translation>Border pen…</translation>
    </message>
</context>
<context>
    <name>StepNames</name>
    <message numerus="yes">
        <source>%1 “%2” and %n more</source>
        <translation>
            <numerusform>%1 “%2” and %n more</numerusform>
            <numerusform>%1 “%2” and %n more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StringListEditor</name>
    <message>
        <source>Add</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
</context>
<context>
    <name>SubjectClipboard</name>
    <message>
        <source>cannot paste the text: %1</source>
        <translation>cannot paste the text: %1</translation>
    </message>
</context>
<context>
    <name>SubjectStyles</name>
    <message>
        <source>The subject looks as the one above it, also when the style of that is changed</source>
        <translation>The subject looks as the one above it, also when the style of that is changed</translation>
    </message>
    <message>
        <source>Change style</source>
        <translation>Change style</translation>
    </message>
    <message>
        <source>Remove style</source>
        <translation>Remove style</translation>
    </message>
    <message>
        <source>Take off own colours and styles</source>
        <translation>Take off own colours and styles</translation>
    </message>
</context>
<context>
    <name>SubjectTree</name>
    <message>
        <source>Filter by title</source>
        <translation>Filter by title</translation>
    </message>
    <message>
        <source>Subjects</source>
        <translation>Subjects</translation>
    </message>
</context>
<context>
    <name>TabButtons</name>
    <message>
        <source>Scroll left</source>
        <translation>Scroll left</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Scroll right</translation>
    </message>
</context>
<context>
    <name>TabCommands</name>
    <message>
        <source>Next &amp;tab</source>
        <translation>Next &amp;tab</translation>
    </message>
    <message>
        <source>Previous t&amp;ab</source>
        <translation>Previous t&amp;ab</translation>
    </message>
</context>
<context>
    <name>TableMapping</name>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Title</translation>
    </message>
    <message>
        <source>Title of one level</source>
        <translation>Title of one level</translation>
    </message>
    <message>
        <source>Id</source>
        <translation>Id</translation>
    </message>
    <message>
        <source>Uuid</source>
        <translation>Uuid</translation>
    </message>
    <message>
        <source>Short id</source>
        <translation>Short id</translation>
    </message>
    <message>
        <source>Parent</source>
        <translation>Parent</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Level</translation>
    </message>
    <message>
        <source>Outline number</source>
        <translation>Outline number</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progress</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Priority</translation>
    </message>
    <message>
        <source>Manager</source>
        <translation>Manager</translation>
    </message>
    <message>
        <source>Manager&apos;s id</source>
        <translation>Manager&apos;s id</translation>
    </message>
    <message>
        <source>Creator</source>
        <translation>Creator</translation>
    </message>
    <message>
        <source>Creator&apos;s id</source>
        <translation>Creator&apos;s id</translation>
    </message>
    <message>
        <source>Followers</source>
        <translation>Followers</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Created</translation>
    </message>
    <message>
        <source>Planned end</source>
        <translation>Planned end</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Link</translation>
    </message>
    <message>
        <source>Details text</source>
        <translation>Details text</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Completed on</source>
        <translation>Completed on</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>Verdict</translation>
    </message>
    <message>
        <source>Votes</source>
        <translation>Votes</translation>
    </message>
</context>
<context>
    <name>TemplateCommands</name>
    <message>
        <source>New from &amp;template…</source>
        <translation>New from &amp;template…</translation>
    </message>
    <message>
        <source>Save as te&amp;mplate…</source>
        <translation>Save as te&amp;mplate…</translation>
    </message>
    <message>
        <source>New from template</source>
        <translation>New from template</translation>
    </message>
    <message>
        <source>%1 is no template: %2.</source>
        <translation>%1 is no template: %2.</translation>
    </message>
    <message>
        <source>Save as template</source>
        <translation>Save as template</translation>
    </message>
    <message>
        <source>Name of the template:</source>
        <translation>Name of the template:</translation>
    </message>
    <message>
        <source>There is a template %1 already. Replace it?</source>
        <translation>There is a template %1 already. Replace it?</translation>
    </message>
    <message>
        <source>File &gt; New from template offers %1 now</source>
        <translation>File &gt; New from template offers %1 now</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>%1 cannot be written: %2.</translation>
    </message>
</context>
<context>
    <name>TemplateGallery</name>
    <message>
        <source>New from template</source>
        <translation>New from template</translation>
    </message>
    <message>
        <source>Templates</source>
        <translation>Templates</translation>
    </message>
    <message>
        <source>C&amp;reate</source>
        <translation>C&amp;reate</translation>
    </message>
    <message>
        <source>From a &amp;file…</source>
        <translation>From a &amp;file…</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Delete</translation>
    </message>
    <message>
        <source>Delete the template %1?</source>
        <translation>Delete the template %1?</translation>
    </message>
</context>
<context>
    <name>Templates</name>
    <message>
        <source>Empty</source>
        <translation>Empty</translation>
    </message>
    <message>
        <source>6M: production</source>
        <translation>6M: production</translation>
    </message>
    <message>
        <source>4S: services</source>
        <translation>4S: services</translation>
    </message>
    <message>
        <source>8P: marketing</source>
        <translation>8P: marketing</translation>
    </message>
    <message>
        <source>4P: administration</source>
        <translation>4P: administration</translation>
    </message>
    <message>
        <source>5 whys</source>
        <translation>5 whys</translation>
    </message>
    <message>
        <source>Incident review</source>
        <translation>Incident review</translation>
    </message>
    <message>
        <source>Project risks</source>
        <translation>Project risks</translation>
    </message>
</context>
<context>
    <name>TitleEditor</name>
    <message>
        <source>Title</source>
        <translation>Title</translation>
    </message>
</context>
<context>
    <name>TreeItem</name>
    <message>
        <source>负责人:</source>
        <translation>Responsible: </translation>
    </message>
    <message>
        <source>创建时间:</source>
        <translation>Created on: </translation>
    </message>
    <message>
        <source>截止时间:</source>
        <translation>Planned end: </translation>
    </message>
    <message>
        <source>子主题</source>
        <translation>Subtopic</translation>
    </message>
</context>
<context>
    <name>URLDialog</name>
    <message>
        <source>Input Url</source>
        <translation>Enter a URL</translation>
    </message>
    <message>
        <source>Url:</source>
        <translation>URL:</translation>
    </message>
    <message>
        <source>Clean</source>
        <translation>Clear history</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Link to url</source>
        <translation>Link to a URL</translation>
    </message>
    <message>
        <source>Save url</source>
        <translation>Save to a URL</translation>
    </message>
    <message>
        <source>Open url</source>
        <translation>Open a URL</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Failed to open %1
%2</source>
        <translation>Cannot open %1
%2</translation>
    </message>
</context>
<context>
    <name>ViewCommands</name>
    <message>
        <source>Zoom &amp;in</source>
        <translation>Zoom &amp;in</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>Zoom &amp;out</translation>
    </message>
    <message>
        <source>&amp;100 %</source>
        <translation>&amp;100 %</translation>
    </message>
    <message>
        <source>&amp;Fit all</source>
        <translation>&amp;Fit all</translation>
    </message>
    <message>
        <source>Fit &amp;selection</source>
        <translation>Fit &amp;selection</translation>
    </message>
    <message>
        <source>Rotate &amp;right</source>
        <translation>Rotate &amp;right</translation>
    </message>
    <message>
        <source>Rotate &amp;left</source>
        <translation>Rotate &amp;left</translation>
    </message>
    <message>
        <source>&amp;Contract</source>
        <translation>&amp;Contract</translation>
    </message>
    <message>
        <source>Expand &amp;all</source>
        <translation>Expand &amp;all</translation>
    </message>
    <message>
        <source>Con&amp;tract all</source>
        <translation>Con&amp;tract all</translation>
    </message>
    <message>
        <source>Show as a &amp;diagram of its own</source>
        <translation>Show as a &amp;diagram of its own</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Back</translation>
    </message>
    <message>
        <source>Show the &amp;whole diagram</source>
        <translation>Show the &amp;whole diagram</translation>
    </message>
    <message>
        <source>Style of &amp;all subjects…</source>
        <translation>St&amp;yle of all subjects…</translation>
    </message>
    <message>
        <source>&amp;Diagram mode</source>
        <translation>Dia&amp;gram mode</translation>
    </message>
    <message>
        <source>&amp;Task mode</source>
        <translation>Task &amp;mode</translation>
    </message>
    <message>
        <source>(nothing yet)</source>
        <translation>(nothing yet)</translation>
    </message>
    <message>
        <source>S&amp;how full screen</source>
        <translation>S&amp;how full screen</translation>
    </message>
    <message>
        <source>U&amp;pright</source>
        <translation>U&amp;pright</translation>
    </message>
    <message>
        <source>E&amp;xpand</source>
        <translation>E&amp;xpand</translation>
    </message>
    <message>
        <source>&amp;Just the drawing</source>
        <translation>&amp;Just the drawing</translation>
    </message>
    <message>
        <source>Expanding all bones…</source>
        <translation>Expanding all bones…</translation>
    </message>
</context>
<context>
    <name>WalkCommands</name>
    <message>
        <source>To the &amp;left</source>
        <translation>To the &amp;left</translation>
    </message>
    <message>
        <source>To the &amp;right</source>
        <translation>To the &amp;right</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>&amp;Up</translation>
    </message>
    <message>
        <source>&amp;Down</source>
        <translation>&amp;Down</translation>
    </message>
    <message>
        <source>To the &amp;parent</source>
        <translation>To the &amp;parent</translation>
    </message>
    <message>
        <source>To the &amp;first child</source>
        <translation>To the &amp;first child</translation>
    </message>
    <message>
        <source>To the one &amp;before</source>
        <translation>To the one &amp;before</translation>
    </message>
    <message>
        <source>To the &amp;next one</source>
        <translation>To the &amp;next one</translation>
    </message>
</context>
<context>
    <name>Welcome</name>
    <message>
        <source>Your first fishbone</source>
        <translation>Your first fishbone</translation>
    </message>
    <message>
        <source>Build it</source>
        <translation>Build it</translation>
    </message>
    <message>
        <source>Tab: a child</source>
        <translation>Tab: a child</translation>
    </message>
    <message>
        <source>Enter: one after it</source>
        <translation>Enter: one after it</translation>
    </message>
    <message>
        <source>Shift+Enter: one before it</source>
        <translation>Shift+Enter: one before it</translation>
    </message>
    <message>
        <source>Ctrl+Enter: a parent</source>
        <translation>Ctrl+Enter: a parent</translation>
    </message>
    <message>
        <source>Change it</source>
        <translation>Change it</translation>
    </message>
    <message>
        <source>Just type: a new title</source>
        <translation>Just type: a new title</translation>
    </message>
    <message>
        <source>F2: edit the title</source>
        <translation>F2: edit the title</translation>
    </message>
    <message>
        <source>F4: details</source>
        <translation>F4: details</translation>
    </message>
    <message>
        <source>Ctrl+Z: undo</source>
        <translation>Ctrl+Z: undo</translation>
    </message>
    <message>
        <source>Mark it</source>
        <translation>Mark it</translation>
    </message>
    <message>
        <source>Space: all marks</source>
        <translation>Space: all marks</translation>
    </message>
    <message>
        <source>F7: a vote</source>
        <translation>F7: a vote</translation>
    </message>
    <message>
        <source>Walk in it</source>
        <translation>Walk in it</translation>
    </message>
    <message>
        <source>Arrows: as you see it</source>
        <translation>Arrows: as you see it</translation>
    </message>
    <message>
        <source>Ctrl+arrows: by level</source>
        <translation>Ctrl+arrows: by level</translation>
    </message>
    <message>
        <source>+ and −: expand, contract</source>
        <translation>+ and −: expand, contract</translation>
    </message>
    <message>
        <source>Rearrange it</source>
        <translation>Rearrange it</translation>
    </message>
    <message>
        <source>Drag a bone onto another</source>
        <translation>Drag a bone onto another</translation>
    </message>
    <message>
        <source>Alt+arrows: move a bone</source>
        <translation>Alt+arrows: move a bone</translation>
    </message>
    <message>
        <source>Look at it</source>
        <translation>Look at it</translation>
    </message>
    <message>
        <source>Home: all of it</source>
        <translation>Home: all of it</translation>
    </message>
    <message>
        <source>Ctrl+wheel: zoom</source>
        <translation>Ctrl+wheel: zoom</translation>
    </message>
    <message>
        <source>Take it with you</source>
        <translation>Take it with you</translation>
    </message>
    <message>
        <source>Ctrl+S: save</source>
        <translation>Ctrl+S: save</translation>
    </message>
    <message>
        <source>Ctrl+E: a picture</source>
        <translation>Ctrl+E: a picture</translation>
    </message>
    <message>
        <source>F1: all keys</source>
        <translation>F1: all keys</translation>
    </message>
</context>
<context>
    <name>WorkProgress</name>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>ZoomControls</name>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Show at 100 %</source>
        <translation>Show at 100 %</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Rotation</translation>
    </message>
</context>
</TS>
