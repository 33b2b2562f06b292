<map version="0.9.0">
<!-- To view this file, download free mind mapping software FreeMind from http://freemind.sourceforge.net -->
<node CREATED="1500000000000" ID="ID_1" MODIFIED="1500000001000" TEXT="Late deliveries">
<node CREATED="1500000000000" ID="ID_2" MODIFIED="1500000001000" POSITION="right" TEXT="Carrier">
<edge WIDTH="thin"/>
<font BOLD="true" NAME="SansSerif" SIZE="12"/>
<icon BUILTIN="full-1"/>
<icon BUILTIN="button_ok"/>
<icon BUILTIN="idea"/>
</node>
<node ID="ID_3" MODIFIED="1500000001000" POSITION="left" TEXT="Warehouse" LINK="https://example.org/w">
<arrowlink DESTINATION="ID_2" ENDARROW="Default" ID="Arrow_1" STARTARROW="None"/>
</node>
</node>
</map>
