<map version="freeplane 1.9.13">
<!--To view this file, download free mind mapping software Freeplane from https://www.freeplane.org -->
<node TEXT="Shop" FOLDED="false" ID="ID_100" CREATED="1500000000000" MODIFIED="1500000000000" STYLE="oval">
<hook NAME="MapStyle"><properties fit_to_viewport="false"/><map_styles><stylenode LOCALIZED_TEXT="styles.root_node"/></map_styles></hook>
<hook NAME="AutomaticEdgeColor" COUNTER="3" RULE="ON_BRANCH_CREATION"/>
<node TEXT="Till" ID="ID_101" STYLE_REF="Important">
<richcontent TYPE="DETAILS" CONTENT-TYPE="xml/">
<html><head/><body><p>Third from the left</p></body></html>
</richcontent>
<richcontent TYPE="NOTE" CONTENT-TYPE="xml/">
<html><head/><body><p>Ask <a href="mailto:bo@acme.io">Bo</a></p></body></html>
</richcontent>
<attribute NAME="cost" VALUE="300"/>
<attribute_layout NAME_WIDTH="40"/>
</node>
</node>
</map>
