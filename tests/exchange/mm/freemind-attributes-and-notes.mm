<map version="1.0.0">
<attribute_registry><attribute_name NAME="cost"/><attribute_name NAME="owner"/></attribute_registry>
<node ID="ID_1" TEXT="Shop">
<node ID="ID_2" POSITION="right" TEXT="Till">
<richcontent TYPE="NOTE"><html>
  <head>

  </head>
  <body>
    <p>
      Third from the <b>left</b>
    </p>
    <p>
      asks for a <i>code</i>
    </p>
  </body>
</html>
</richcontent>
<attribute_layout VALUE_WIDTH="120"/>
<attribute NAME="cost" VALUE="300 &#8364;"/>
<attribute NAME="owner" VALUE="Bo"/>
</node>
</node>
</map>
