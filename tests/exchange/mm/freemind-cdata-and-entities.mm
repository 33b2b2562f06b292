<map version="1.0.1">
<!-- To view this file, download free mind mapping software FreeMind from http://freemind.sourceforge.net -->
<node CREATED="1704273300000" ID="ID_1" MODIFIED="1704273300000" TEXT="&#x8fdf;&#x5230; &quot;late&quot; &lt;5 min&gt; &amp; more">
<node CREATED="1704273300000" ID="ID_2" LINK="https://example.org/?a=1&amp;b=2" MODIFIED="1704273300000" POSITION="right" TEXT="Link"/>
<node CREATED="1704273300000" FOLDED="true" ID="ID_3" LINK="plans/other%20map.mm" MODIFIED="1704273300000" POSITION="left" TEXT="Other map"/>
</node>
</map>
