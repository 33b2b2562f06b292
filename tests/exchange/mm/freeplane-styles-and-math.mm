<map version="freeplane 1.8.11">
<node TEXT="\latex $E=mc^2$" FORMAT="latexPatternFormat" ID="ID_1" LINK="#ID_3">
<node TEXT="12.5" ID="ID_2" OBJECT="org.freeplane.features.format.FormattedNumber|12.5|#0.0" FORMAT="#0.0"/>
<node ID="ID_3" LOCALIZED_STYLE_REF="default" TEXT="=ID_2 * 2"><icon BUILTIN="full-3"/><icon BUILTIN="75%"/></node>
<node ID="ID_4"><richcontent TYPE="NODE">
<html><head/><body><ol><li>first</li><li>second</li></ol></body></html>
</richcontent><richcontent TYPE="DETAILS"><html><head/><body><p>in order</p></body></html></richcontent></node>
</node>
</map>
