<map version="freeplane 1.11.1">
<node TEXT="Root" ID="ID_1" VGAP_QUANTITY="3 pt">
<font FORMAT="x"/>
<node TEXT="Encrypted" ID="ID_2" ENCRYPTED_CONTENT="abc="/>
<node TEXT="Formula" ID="ID_3"><hook EQUATION="x^2" NAME="plugins/latex/LatexNodeHook.properties"/></node>
<node TEXT="Plain" ID="ID_4"><richcontent TYPE="NOTE" CONTENT-TYPE="plain/auto"><text>kept
  as is</text></richcontent></node>
</node>
</map>
