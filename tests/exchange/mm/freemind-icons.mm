<map version="0.9.0">
<node ID="ID_1" TEXT="Icons">
<node ID="ID_2" POSITION="right" TEXT="Urgent"><icon BUILTIN="full-1"/><icon BUILTIN="messagebox_warning"/></node>
<node ID="ID_3" POSITION="right" TEXT="Ready"><icon BUILTIN="button_ok"/><icon BUILTIN="ksmiletris"/><icon BUILTIN="idea"/></node>
<node ID="ID_4" POSITION="left" TEXT="Wait"><icon BUILTIN="hourglass"/><icon BUILTIN="stop"/></node>
</node>
</map>
