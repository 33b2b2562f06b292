<map version="freeplane 1.9.13">
<node TEXT="Photos" ID="ID_1">
<node ID="ID_2"><hook NAME="ExternalObject" URI="images/crack.png" SIZE="1.0"/></node>
<node ID="ID_3"><richcontent TYPE="NODE"><html><body><img src="pump.jpg"/></body></html></richcontent></node>
<node TEXT="Known" ID="ID_4"><richcontent TYPE="NOTE"><html><body><p>see <img src="x.png" alt="drawing"/></p></body></html></richcontent></node>
</node>
</map>
