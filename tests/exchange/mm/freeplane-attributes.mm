<map version="freeplane 1.9.13">
<node TEXT="Late trains" ID="ID_1">
<node TEXT="Signal fault" ID="ID_2" LINK="#ID_3"><icon BUILTIN="full-1"/><icon BUILTIN="50%"/>
<attribute NAME="Owner" VALUE="Li"/><attribute NAME="Costs" VALUE="12.50 €"/>
</node>
<node TEXT="Crew" ID="ID_3"><icon BUILTIN="button_ok"/><icon BUILTIN="yes"/><node TEXT="&lt;b&gt;not html&lt;/b&gt;"/></node>
</node>
</map>
