<map version="freeplane 1.8.0">
<node TEXT="Work">
<node TEXT="Half"><icon BUILTIN="50%"/></node>
<node TEXT="Ticked"><icon BUILTIN="checked"/><icon BUILTIN="full-7"/></node>
<node TEXT="Open"><icon BUILTIN="unchecked"/></node>
<node TEXT="Off"><icon BUILTIN="button_cancel"/><icon BUILTIN="help"/><icon BUILTIN="flag-red"/></node>
</node>
</map>
