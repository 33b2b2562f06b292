<map version="1.0.1">
<node TEXT="Outage">
<richcontent TYPE="NOTE"><html>
  <head>
  </head>
  <body>
    <p>Seen in the log:</p>
    <pre>error 500
  at line 3</pre>
    <p>every <b>hour</b></p>
  </body>
</html></richcontent>
<node><richcontent TYPE="NODE"><html><body><p>Config</p><pre>a = 1</pre><p>is wrong</p></body></html></richcontent></node>
</node>
</map>
