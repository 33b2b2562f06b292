<map version="freeplane 1.11.5">
<!--To view this file, download free mind mapping software Freeplane from https://www.freeplane.org -->
<bookmarks><bookmark nodeId="ID_2" name="bm" opensAsRoot="false"/></bookmarks>
<node TEXT="Late trains" FOLDED="false" ID="ID_696401721" CREATED="1610381621824" MODIFIED="1704273300000" LINK="menuitem:_ExternalImageAddAction" STYLE="oval" UNIQUE="x">
<font SIZE="18"/>
<hook NAME="MapStyle"><properties edgeColorConfiguration="#808080ff,#ff0000ff" fit_to_viewport="false"/>
<map_styles><stylenode LOCALIZED_TEXT="styles.root_node" STYLE="oval"><font SIZE="24"/></stylenode></map_styles></hook>
<hook NAME="AutomaticEdgeColor" COUNTER="5" RULE="ON_BRANCH_CREATION"/>
<node TEXT="Signal" POSITION="bottom_or_right" ID="ID_2" OBJECT="org.freeplane.features.format.FormattedNumber|5.5|#.#" MAX_WIDTH="3 cm" COLOR="#ff0000" TAGS="rail&#xa;delay" ALIAS="sig"><edge COLOR="#ff0000"/>
<richcontent CONTENT-TYPE="xml/" TYPE="DETAILS" HIDDEN="true"><html><head></head><body><p>detail <b>text</b></p></body></html></richcontent>
<richcontent TYPE="NOTE" CONTENT-TYPE="plain/markdown"><text># note
- x</text></richcontent>
<icon BUILTIN="stop-sign"/>
<icon BUILTIN="emoji-1F600"/>
<attribute_layout NAME_WIDTH="100"/>
<attribute NAME="Owner" VALUE="Li"/>
<attribute NAME="Due" VALUE="1/31/24" OBJECT="org.freeplane.features.format.FormattedDate|2024-01-31T00:00+0100|date"/>
<arrowlink SHAPE="CUBIC_CURVE" DESTINATION="ID_3" MIDDLE_LABEL="causes" SOURCE_LABEL="s" TARGET_LABEL="t"/>
<hook NAME="plugins/TimeManagementReminder.xml"><Parameters REMINDUSERAT="1706659200000"/></hook>
<hook URI="pic.png" SIZE="0.5" NAME="ExternalObject"/>
<hook EQUATION="\sum x" NAME="plugins/latex/LatexNodeHook.properties"/>
<hook NAME="FreeNode"/>
<cloud COLOR="#f0f0f0" SHAPE="ARC"/>
</node>
<node TEXT="= 1 + 2" POSITION="left" ID="ID_3"><richcontent TYPE="NODE"><html><body><table><tr><td>a</td><td>b</td></tr></table><ul><li>x</li><li>y</li></ul></body></html></richcontent></node>
<node ID="ID_4" POSITION="left" TYPE="summary" CONTENT_ID="ID_2"/>
<node LOCALIZED_STYLE_REF="AutomaticLayout.level,1" ID="ID_5"><richcontent TYPE="NODE"><html><head/><body><p>Line&#160;one<br/>two &lt;x&gt; <a href="http://e.org">link</a></p><pre>  code
   more</pre><p>after</p></body></html></richcontent>
<node TEXT="$x^2$" FORMAT="latexPatternFormat"/><node TEXT="\latex $y$"/></node>
<node ENCRYPTED_CONTENT="abc" TEXT="Locked"/>
</node>
</map>
