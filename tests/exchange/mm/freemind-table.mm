<map version="0.9.0">
<node CREATED="1704273300000" ID="ID_1" MODIFIED="1704273300000" TEXT="Late trains">
<node ID="ID_2" POSITION="right">
<richcontent TYPE="NODE"><html>
  <head>

  </head>
  <body>
    <p>
      Signal <i>fault</i>
    </p>
    <ol><li>rain</li><li>rust</li></ol>
  </body>
</html></richcontent>
<richcontent TYPE="NOTE"><html><head></head><body><p>See <a href="https://example.org">this</a></p><table><tr><td>a</td><td>b</td></tr><tr><td>c</td><td>d</td></tr></table></body></html></richcontent>
</node>
</node>
</map>
