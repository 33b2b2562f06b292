<map version="0.8.1">
<node TEXT="&lt;html&gt;&lt;body&gt;&lt;p&gt;Cost &amp;amp; time&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;">
<node TEXT="&lt;html&gt;&lt;a href=&quot;https://example.org/p&quot;&gt;the plan&lt;/a&gt; and&lt;br&gt;the &lt;i&gt;map&lt;/i&gt;"/>
<node TEXT="a &lt; b &gt; c"/>
</node>
</map>
