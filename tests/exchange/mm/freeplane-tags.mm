<map version="freeplane 1.12.1">
<tags category_separator="::"/>
<node TEXT="Late trains" FOLDED="false" ID="ID_1" CREATED="1704273300000" MODIFIED="1704273300000" STYLE="oval">
<hook NAME="MapStyle" background="#ffffff" zoom="1.5"><properties show_icon_for_attributes="true" show_tags="UNDER_NODES"/></hook>
<node TEXT="Signal" POSITION="bottom_or_right" ID="ID_2" TAGS="rail::north&#xa;urgent"/>
<node TEXT="Crew" POSITION="top_or_left" ID="ID_3" ICON_SIZE="24 px"/>
</node>
</map>
