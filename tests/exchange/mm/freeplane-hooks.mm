<map version="1.0.1">
<attribute_registry SHOW_ATTRIBUTES="hide"><attribute_name NAME="Cost" MANUAL="true" VISIBLE="true"><attribute_value VALUE="10"/></attribute_name></attribute_registry>
<node TEXT="Late" ID="ID_1" CREATED="1704272400000" MODIFIED="1704272400001" HGAP="10" VGAP="2" VSHIFT="3" STYLE="bubble" BACKGROUND_COLOR="#ffffff">
<hook NAME="MapStyle" max_node_width="600" zoom="1.0"/>
<node LOCALIZED_TEXT="new_mindmap" ID="ID_2" POSITION="right"/>
<node TEXT="Formula" ID="ID_3"><hook NAME="plugins/latex/LatexNodeHook.properties" EQUATION="x^2"/></node>
<node TEXT="Picture" ID="ID_4"><hook NAME="ExternalObject" URI="a.png" SIZE="1.0"/></node>
<node TEXT="Arrow" ID="ID_5"><arrowlink DESTINATION="ID_4" SOURCE_LABEL="s" MIDDLE_LABEL="m" TARGET_LABEL="t" EDGE_LIKE="false"/></node>
<node TEXT="Place" ID="ID_6"><hook NAME="plugins/map/MapNodePositionHolder.properties"><Parameters XML_STORAGE_MAP_LAT="1.0" XML_STORAGE_MAP_LON="2.0" XML_STORAGE_MAP_TOOLTIP_LOCATION="false" XML_STORAGE_POS_LAT="48.1" XML_STORAGE_POS_LON="11.5"/></hook></node>
<node TEXT="Reminder" ID="ID_7"><hook NAME="plugins/TimeManagementReminder.xml"><Parameters REMINDUSERAT="1704272400000"/></hook></node>
<node TEXT="Clone" ID="ID_8"><hook NAME="accessories/plugins/ClonePlugin.properties"><Parameters CLONE_ID="CLONE_1" ORIGINAL_ID="ID_3"/></hook></node>
<node TEXT="Typed" ID="ID_9"><attribute NAME="Cost" VALUE="10" TYPE="http://x" OBJECT="org.freeplane.features.format.FormattedNumber|10"/><attribute_layout NAME_WIDTH="10" VALUE_WIDTH="20"/></node>
<node ENCRYPTED_CONTENT="abc" TEXT="Secret" ID="ID_10"/>
</node>
</map>
