<map version="1.0.1">
<node TEXT="Own" ID="u1">
<attribute NAME="status" VALUE="5"/>
<attribute NAME="progress" VALUE="40"/>
<attribute NAME="mgrname" VALUE="Li"/>
<attribute NAME="uuid" VALUE="older"/>
<attribute NAME="priority" VALUE="soon"/>
</node>
</map>
