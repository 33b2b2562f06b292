<map version="0.8.1">
<node COLOR="#000000" ID="Freemind_Link_1" TEXT="Looks"><font BOLD="true" NAME="SansSerif" SIZE="20"/>
<edge STYLE="sharp_bezier" WIDTH="8"/>
<node BACKGROUND_COLOR="#ffff00" COLOR="#0033ff" ID="Freemind_Link_2" POSITION="left" STYLE="fork" TEXT="Cloudy"><cloud COLOR="#ccffcc"/>
<font ITALIC="true" NAME="Serif" SIZE="12"/>
<node ID="Freemind_Link_3" TEXT="Below the cloud" HGAP="40" VSHIFT="-12"/>
</node>
</node>
</map>
