// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/slidepackage.h>

#include <fishbone/exchange/xmlsupport.h>

namespace {

const QByteArray declaration = "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n";
const QByteArray spaces =
    "xmlns:a=\"http://schemas.openxmlformats.org/drawingml/2006/main\" "
    "xmlns:r=\"http://schemas.openxmlformats.org/officeDocument/2006/relationships\" "
    "xmlns:p=\"http://schemas.openxmlformats.org/presentationml/2006/main\"";
const QByteArray office = "http://schemas.openxmlformats.org/officeDocument/2006/relationships/";

QByteArray relation(const QByteArray &id, const QByteArray &type, const QByteArray &target)
{
    return "<Relationship Id=\"" + id + "\" Type=\"" + office + type + "\" Target=\"" + target +
           "\"/>";
}

QByteArray relations(const QByteArray &content)
{
    return declaration +
           "<Relationships "
           "xmlns=\"http://schemas.openxmlformats.org/package/2006/relationships\">" +
           content + "</Relationships>";
}

QByteArray contentTypes()
{
    const QByteArray presentation = "application/vnd.openxmlformats-officedocument.presentationml.";
    const auto part = [](const QByteArray &name, const QByteArray &type) {
        return "<Override PartName=\"/" + name + "\" ContentType=\"" + type + "+xml\"/>";
    };
    const QByteArray theme = "application/vnd.openxmlformats-officedocument.theme";
    return declaration +
           "<Types xmlns=\"http://schemas.openxmlformats.org/package/2006/content-types\">"
           "<Default Extension=\"rels\" "
           "ContentType=\"application/vnd.openxmlformats-package.relationships+xml\"/>"
           "<Default Extension=\"xml\" ContentType=\"application/xml\"/>" +
           part("ppt/presentation.xml", presentation + "presentation.main") +
           part("ppt/slideMasters/slideMaster1.xml", presentation + "slideMaster") +
           part("ppt/slideLayouts/slideLayout1.xml", presentation + "slideLayout") +
           part("ppt/slides/slide1.xml", presentation + "slide") +
           part("ppt/notesMasters/notesMaster1.xml", presentation + "notesMaster") +
           part("ppt/notesSlides/notesSlide1.xml", presentation + "notesSlide") +
           part("ppt/theme/theme1.xml", theme) + part("ppt/theme/theme2.xml", theme) +
           part("ppt/tableStyles.xml", presentation + "tableStyles") +
           part("docProps/core.xml", "application/vnd.openxmlformats-package.core-properties") +
           "</Types>";
}

QByteArray packageRelations()
{
    return relations(relation("rId1", "officeDocument", "ppt/presentation.xml") +
                     "<Relationship Id=\"rId2\" "
                     "Type=\"http://schemas.openxmlformats.org/package/2006/relationships/metadata/"
                     "core-properties\" Target=\"docProps/core.xml\"/>");
}

QByteArray core(const QString &title)
{
    return declaration +
           "<cp:coreProperties "
           "xmlns:cp=\"http://schemas.openxmlformats.org/package/2006/metadata/core-properties\" "
           "xmlns:dc=\"http://purl.org/dc/elements/1.1/\"><dc:title>" +
           SlidePackage::escaped(title) + "</dc:title></cp:coreProperties>";
}

QByteArray presentation(const SlidePackage::Content &content)
{
    return declaration + "<p:presentation " + spaces +
           "><p:sldMasterIdLst><p:sldMasterId id=\"2147483648\" r:id=\"rId1\"/></p:sldMasterIdLst>"
           "<p:notesMasterIdLst><p:notesMasterId r:id=\"rId3\"/></p:notesMasterIdLst>"
           "<p:sldIdLst><p:sldId id=\"256\" r:id=\"rId2\"/></p:sldIdLst><p:sldSz cx=\"" +
           QByteArray::number(content.width) + "\" cy=\"" + QByteArray::number(content.height) +
           "\"/><p:notesSz cx=\"6858000\" cy=\"9144000\"/></p:presentation>";
}

/** The beginning of a tree of shapes, with the group that is the whole page. */
QByteArray treeBegin()
{
    return "<p:spTree><p:nvGrpSpPr><p:cNvPr id=\"1\" name=\"\"/><p:cNvGrpSpPr/><p:nvPr/>"
           "</p:nvGrpSpPr><p:grpSpPr><a:xfrm><a:off x=\"0\" y=\"0\"/><a:ext cx=\"0\" cy=\"0\"/>"
           "<a:chOff x=\"0\" y=\"0\"/><a:chExt cx=\"0\" cy=\"0\"/></a:xfrm></p:grpSpPr>";
}

const QByteArray colourMap =
    "<p:clrMap bg1=\"lt1\" tx1=\"dk1\" bg2=\"lt2\" tx2=\"dk2\" accent1=\"accent1\" "
    "accent2=\"accent2\" accent3=\"accent3\" accent4=\"accent4\" accent5=\"accent5\" "
    "accent6=\"accent6\" hlink=\"hlink\" folHlink=\"folHlink\"/>";

const QByteArray background =
    "<p:bg><p:bgRef idx=\"1001\"><a:schemeClr val=\"bg1\"/></p:bgRef></p:bg>";

QByteArray slideMaster()
{
    return declaration + "<p:sldMaster " + spaces + "><p:cSld>" + background + treeBegin() +
           "</p:spTree></p:cSld>" + colourMap +
           "<p:sldLayoutIdLst><p:sldLayoutId id=\"2147483649\" r:id=\"rId1\"/></p:sldLayoutIdLst>"
           "<p:txStyles><p:titleStyle/><p:bodyStyle/><p:otherStyle/></p:txStyles></p:sldMaster>";
}

QByteArray slideLayout()
{
    return declaration + "<p:sldLayout " + spaces + " type=\"blank\"><p:cSld name=\"Blank\">" +
           treeBegin() +
           "</p:spTree></p:cSld><p:clrMapOvr><a:masterClrMapping/></p:clrMapOvr></p:sldLayout>";
}

QByteArray notesMaster()
{
    return declaration + "<p:notesMaster " + spaces + "><p:cSld>" + background + treeBegin() +
           "</p:spTree></p:cSld>" + colourMap + "</p:notesMaster>";
}

QByteArray notesSlide(const QByteArray &paragraphs)
{
    return declaration + "<p:notes " + spaces + "><p:cSld>" + treeBegin() +
           "<p:sp><p:nvSpPr><p:cNvPr id=\"2\" name=\"Slide\"/>"
           "<p:cNvSpPr><a:spLocks noGrp=\"1\" noRot=\"1\" noChangeAspect=\"1\"/></p:cNvSpPr>"
           "<p:nvPr><p:ph type=\"sldImg\"/></p:nvPr></p:nvSpPr><p:spPr/></p:sp>"
           "<p:sp><p:nvSpPr><p:cNvPr id=\"3\" name=\"Notes\"/>"
           "<p:cNvSpPr><a:spLocks noGrp=\"1\"/></p:cNvSpPr>"
           "<p:nvPr><p:ph type=\"body\" idx=\"1\"/></p:nvPr></p:nvSpPr><p:spPr/>"
           "<p:txBody><a:bodyPr/><a:lstStyle/>" +
           paragraphs +
           "</p:txBody></p:sp></p:spTree></p:cSld>"
           "<p:clrMapOvr><a:masterClrMapping/></p:clrMapOvr></p:notes>";
}

QByteArray accentList(const QStringList &accents)
{
    QByteArray list;
    for (int i = 0; i < accents.size(); ++i) {
        const QByteArray name = "a:accent" + QByteArray::number(i + 1);
        list +=
            "<" + name + "><a:srgbClr val=\"" + accents.at(i).toLatin1() + "\"/></" + name + ">";
    }
    return list;
}

QByteArray theme(const QStringList &accents)
{
    const QByteArray fill = "<a:solidFill><a:schemeClr val=\"phClr\"/></a:solidFill>";
    const QByteArray line = "<a:ln w=\"9525\">" + fill + "</a:ln>";
    const QByteArray effect = "<a:effectStyle><a:effectLst/></a:effectStyle>";
    const QByteArray font =
        "<a:latin typeface=\"Calibri\"/><a:ea typeface=\"\"/><a:cs typeface=\"\"/>";
    return declaration +
           "<a:theme xmlns:a=\"http://schemas.openxmlformats.org/drawingml/2006/main\" "
           "name=\"Fishbone\"><a:themeElements><a:clrScheme name=\"Fishbone\">"
           "<a:dk1><a:srgbClr val=\"000000\"/></a:dk1><a:lt1><a:srgbClr val=\"FFFFFF\"/></a:lt1>"
           "<a:dk2><a:srgbClr val=\"44546A\"/></a:dk2><a:lt2><a:srgbClr val=\"E7E6E6\"/></a:lt2>" +
           accentList(accents) +
           "<a:hlink><a:srgbClr val=\"0563C1\"/></a:hlink>"
           "<a:folHlink><a:srgbClr val=\"954F72\"/></a:folHlink></a:clrScheme>"
           "<a:fontScheme name=\"Fishbone\"><a:majorFont>" +
           font + "</a:majorFont><a:minorFont>" + font +
           "</a:minorFont></a:fontScheme><a:fmtScheme name=\"Fishbone\"><a:fillStyleLst>" + fill +
           fill + fill + "</a:fillStyleLst><a:lnStyleLst>" + line + line + line +
           "</a:lnStyleLst><a:effectStyleLst>" + effect + effect + effect +
           "</a:effectStyleLst><a:bgFillStyleLst>" + fill + fill + fill +
           "</a:bgFillStyleLst></a:fmtScheme></a:themeElements></a:theme>";
}

/** No styles; readers warn where there is no such part, though there are no tables. */
QByteArray tableStyles()
{
    return declaration + "<a:tblStyleLst "
                         "xmlns:a=\"http://schemas.openxmlformats.org/drawingml/2006/main\" "
                         "def=\"{5C22544A-7EE6-4342-B048-85BDC9FD1C3A}\"/>";
}

} // namespace

namespace SlidePackage {

QByteArray escaped(const QString &text)
{
    return XmlSupport::storable(text).toHtmlEscaped().toUtf8();
}

std::vector<ZipWriter::File> parts(const Content &content)
{
    const auto file = [](const char *name, const QByteArray &bytes) {
        return ZipWriter::File(QString::fromLatin1(name), bytes);
    };
    const QByteArray master = relation("rId1", "slideMaster", "../slideMasters/slideMaster1.xml");
    return {
        file("[Content_Types].xml", contentTypes()),
        file("_rels/.rels", packageRelations()),
        file("docProps/core.xml", core(content.title)),
        file("ppt/presentation.xml", presentation(content)),
        file("ppt/_rels/presentation.xml.rels",
             relations(relation("rId1", "slideMaster", "slideMasters/slideMaster1.xml") +
                       relation("rId2", "slide", "slides/slide1.xml") +
                       relation("rId3", "notesMaster", "notesMasters/notesMaster1.xml") +
                       relation("rId4", "theme", "theme/theme1.xml") +
                       relation("rId5", "tableStyles", "tableStyles.xml"))),
        file("ppt/slideMasters/slideMaster1.xml", slideMaster()),
        file("ppt/slideMasters/_rels/slideMaster1.xml.rels",
             relations(relation("rId1", "slideLayout", "../slideLayouts/slideLayout1.xml") +
                       relation("rId2", "theme", "../theme/theme1.xml"))),
        file("ppt/slideLayouts/slideLayout1.xml", slideLayout()),
        file("ppt/slideLayouts/_rels/slideLayout1.xml.rels", relations(master)),
        file("ppt/slides/slide1.xml", content.slide),
        file("ppt/slides/_rels/slide1.xml.rels",
             relations(relation("rId1", "slideLayout", "../slideLayouts/slideLayout1.xml") +
                       relation("rId2", "notesSlide", "../notesSlides/notesSlide1.xml") +
                       content.slideRelations)),
        file("ppt/notesMasters/notesMaster1.xml", notesMaster()),
        file("ppt/notesMasters/_rels/notesMaster1.xml.rels",
             relations(relation("rId1", "theme", "../theme/theme2.xml"))),
        file("ppt/notesSlides/notesSlide1.xml", notesSlide(content.notes)),
        file("ppt/notesSlides/_rels/notesSlide1.xml.rels",
             relations(relation("rId1", "notesMaster", "../notesMasters/notesMaster1.xml") +
                       relation("rId2", "slide", "../slides/slide1.xml"))),
        file("ppt/theme/theme1.xml", theme(content.accents)),
        file("ppt/theme/theme2.xml", theme(content.accents)),
        file("ppt/tableStyles.xml", tableStyles()),
    };
}

} // namespace SlidePackage
