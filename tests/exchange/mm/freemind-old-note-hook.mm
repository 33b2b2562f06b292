<map version="0.8.0">
<node TEXT="Plan">
<node TEXT="Step">
<hook NAME="accessories/plugins/NodeNote.properties">
<text>first line
second line</text>
</hook>
</node>
<node TEXT="Later">
<hook NAME="plugins/TimeManagementReminder.xml">
<Parameters REMINDUSERAT="1500000000000"/>
</hook>
</node>
</node>
</map>
