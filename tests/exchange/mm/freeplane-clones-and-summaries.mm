<map version="freeplane 1.9.0">
<node TEXT="Plan" ID="ID_1">
<node TEXT="Original" ID="ID_2"><node TEXT="Twice" ID="ID_3"/></node>
<node TEXT="Second" ID="ID_4"><hook NAME="FirstGroupNode"/></node>
<node TEXT="Both of them" ID="ID_5"><hook NAME="SummaryNode"/><hook NAME="AlwaysUnfoldedNode"/></node>
<node TEXT="Free" ID="ID_6" HGAP_QUANTITY="-40 pt" VSHIFT_QUANTITY="90 pt"><hook NAME="FreeNode"/></node>
</node>
</map>
