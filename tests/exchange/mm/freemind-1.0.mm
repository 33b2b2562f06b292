<map version="1.0.1">
<!-- To view this file, download free mind mapping software FreeMind -->
<attribute_registry SHOW_ATTRIBUTES="hide"><attribute_name VISIBLE="true" NAME="Owner"/></attribute_registry>
<node CREATED="1124560950701" ID="Freemind_Link_784043927" MODIFIED="1124560950701" TEXT="&lt;html&gt;Late &lt;b&gt;trains&lt;/b&gt;&lt;br&gt;two">
<node CREATED="1" ID="_" MODIFIED="2" POSITION="right" TEXT="A&#xa;B" STYLE="bubble" VGAP="2"><arrowlink DESTINATION="x" ENDARROW="Default" ID="Arrow_ID_1" STARTARROW="None"/><linktarget/>
<icon BUILTIN="full-3"/><icon BUILTIN="help"/><icon BUILTIN="flag"/><icon BUILTIN="button_cancel"/>
<hook NAME="accessories/plugins/NodeNote.properties"><text>old note</text></hook>
<hook NAME="accessories/plugins/RevisionPlugin.properties"/></node>
<node TEXT=""/><node/>
<node POSITION="left"><richcontent TYPE="NODE"><html><body><img src="a.png" /></body></html></richcontent></node>
</node></map>
