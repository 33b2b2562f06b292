<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar">
<context>
    <name>AccessibleBone</name>
    <message>
        <source>level %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>المستوى %1</translation>
    </message>
    <message>
        <source>linked</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>به رابط</translation>
    </message>
    <message>
        <source>Select</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تحديد</translation>
    </message>
    <message>
        <source>Contract</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>طي</translation>
    </message>
    <message>
        <source>Expand</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>توسيع</translation>
    </message>
    <message>
        <source>Selects this bone alone</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>يحدد هذه العظمة وحدها</translation>
    </message>
    <message>
        <source>Hides the bones below</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>يخفي العظام التي تحتها</translation>
    </message>
    <message>
        <source>Shows the bones below</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>يظهر العظام التي تحتها</translation>
    </message>
</context>
<context>
    <name>AccessibleDiagram</name>
    <message>
        <source>Diagram: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>المخطط: %1</translation>
    </message>
    <message>
        <source>Diagram</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>المخطط</translation>
    </message>
</context>
<context>
    <name>AccessibleSubject</name>
    <message>
        <source>level %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>المستوى %1</translation>
    </message>
    <message>
        <source>Contract</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>طي</translation>
    </message>
    <message>
        <source>Expand</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>توسيع</translation>
    </message>
    <message>
        <source>Select</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تحديد</translation>
    </message>
</context>
<context>
    <name>ActionList</name>
    <message>
        <source>no date</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>بلا تاريخ</translation>
    </message>
    <message>
        <source>Change who is responsible</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تغيير المسؤول</translation>
    </message>
    <message>
        <source>Change planned end</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تغيير الانتهاء المخطط</translation>
    </message>
    <message>
        <source>Change status</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تغيير الحالة</translation>
    </message>
    <message>
        <source>Rename</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إعادة التسمية</translation>
    </message>
    <message>
        <source>Actions</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الإجراءات</translation>
    </message>
    <message>
        <source>Cause</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>السبب</translation>
    </message>
    <message>
        <source>Responsible</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>المسؤول</translation>
    </message>
    <message>
        <source>Until</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الموعد</translation>
    </message>
    <message>
        <source>Status</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الحالة</translation>
    </message>
    <message>
        <source>%1, overdue</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1، متأخر</translation>
    </message>
    <message>
        <source>Nobody yet</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لا أحد بعد</translation>
    </message>
    <message>
        <source>No status</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>بلا حالة</translation>
    </message>
</context>
<context>
    <name>ActionsPanel</name>
    <message>
        <source>Write to a file…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>كتابة في ملف…</translation>
    </message>
    <message>
        <source>Actions</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الإجراءات</translation>
    </message>
    <message>
        <source>Ranked causes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ترتيب الأسباب</translation>
    </message>
    <message>
        <source>Grouped by</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>التجميع حسب</translation>
    </message>
    <message>
        <source>In one list</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>في قائمة واحدة</translation>
    </message>
    <message>
        <source>By person</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>حسب الشخص</translation>
    </message>
    <message>
        <source>By status</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>حسب الحالة</translation>
    </message>
    <message>
        <source>Print…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>طباعة…</translation>
    </message>
</context>
<context>
    <name>AutosaveStatus</name>
    <message>
        <source>Autosaved at %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>حُفظ تلقائيًا في %1</translation>
    </message>
    <message>
        <source>A copy of the changes that are not saved is kept in %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تُحفظ نسخة من التغييرات غير المحفوظة في %1</translation>
    </message>
    <message>
        <source>Autosave failed at %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>فشل الحفظ التلقائي في %1</translation>
    </message>
    <message>
        <source>%1 cannot be written. Changes that are not saved would be lost if the program did not end well.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تتعذر الكتابة في %1. ستُفقد التغييرات غير المحفوظة إذا لم ينتهِ البرنامج على نحو سليم.</translation>
    </message>
</context>
<context>
    <name>BusyCursor</name>
    <message>
        <source>Working…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>جارٍ العمل…</translation>
    </message>
</context>
<context>
    <name>CanvasTheme</name>
    <message>
        <source>The style is not kept: %1 cannot be written</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لم يُحفظ النمط: تتعذر الكتابة في %1</translation>
    </message>
</context>
<context>
    <name>ClearContent</name>
    <message>
        <source>cancelled</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ملغى</translation>
    </message>
    <message>
        <source>finished</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مكتمل</translation>
    </message>
    <message>
        <source>finished late</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مكتمل بعد الموعد</translation>
    </message>
    <message>
        <source>postponed</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مؤجل</translation>
    </message>
    <message>
        <source>under way</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>جارٍ</translation>
    </message>
    <message>
        <source>waiting</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>قيد الانتظار</translation>
    </message>
    <message>
        <source>waiting for approval</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>بانتظار الموافقة</translation>
    </message>
    <message>
        <source>suspected</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مشتبه به</translation>
    </message>
    <message>
        <source>being checked</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>قيد التحقق</translation>
    </message>
    <message>
        <source>confirmed</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مؤكد</translation>
    </message>
    <message>
        <source>ruled out</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مستبعد</translation>
    </message>
    <message>
        <source>root cause</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>سبب جذري</translation>
    </message>
    <message numerus="yes">
        <source>%n vote(s)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>%n صوت</numerusform>
            <numerusform>%n صوت</numerusform>
            <numerusform>%n صوتان</numerusform>
            <numerusform>%n أصوات</numerusform>
            <numerusform>%n صوتًا</numerusform>
            <numerusform>%n صوت</numerusform>
        </translation>
    </message>
    <message>
        <source>votes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>أصوات</translation>
    </message>
</context>
<context>
    <name>CloseQuestion</name>
    <message>
        <source>Close</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إغلاق</translation>
    </message>
    <message numerus="yes">
        <source>%n document(s) have changes that were not saved. Save those that are checked?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>في %n مستند تغييرات غير محفوظة. هل تريد حفظ المؤشر عليه؟</numerusform>
            <numerusform>في %n مستند تغييرات غير محفوظة. هل تريد حفظه إن كان مؤشرًا عليه؟</numerusform>
            <numerusform>في %n مستندين تغييرات غير محفوظة. هل تريد حفظ المؤشر عليه منهما؟</numerusform>
            <numerusform>في %n مستندات تغييرات غير محفوظة. هل تريد حفظ المؤشر عليها؟</numerusform>
            <numerusform>في %n مستندًا تغييرات غير محفوظة. هل تريد حفظ المؤشر عليها؟</numerusform>
            <numerusform>في %n مستند تغييرات غير محفوظة. هل تريد حفظ المؤشر عليها؟</numerusform>
        </translation>
    </message>
    <message>
        <source>Documents with changes that were not saved</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مستندات فيها تغييرات غير محفوظة</translation>
    </message>
    <message>
        <source>&amp;Save checked</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>حفظ المؤشر عليها (&amp;ح)</translation>
    </message>
    <message>
        <source>Close &amp;without saving</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إغلاق دون حفظ (&amp;د)</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>the ending names no format that can be read</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الامتداد لا يدل على تنسيق يمكن قراءته</translation>
    </message>
    <message>
        <source>--%1 takes %2, not &quot;%3&quot;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الخيار --%1 يقبل %2 وليس «%3»</translation>
    </message>
    <message>
        <source>--%1 needs convert, info, report or check</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الخيار --%1 يتطلب convert أو info أو report أو check</translation>
    </message>
    <message>
        <source>--%1 needs info</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الخيار --%1 يتطلب info</translation>
    </message>
    <message>
        <source>--%1 needs convert</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الخيار --%1 يتطلب convert</translation>
    </message>
    <message>
        <source>--%1 needs --export</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الخيار --%1 يتطلب --export</translation>
    </message>
    <message>
        <source>the format of &quot;%1&quot; is unknown: the name must end in .png, .svg, .pdf, .html or .pptx</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تنسيق «%1» غير معروف: يجب أن ينتهي الاسم بواحد من .png أو .svg أو .pdf أو .html أو .pptx</translation>
    </message>
    <message>
        <source>--export takes one document, not %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الخيار --export يقبل مستندًا واحدًا وليس %1</translation>
    </message>
    <message>
        <source>--%1 does not go with convert</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لا يُستخدم --%1 مع convert</translation>
    </message>
    <message>
        <source>convert takes a file to read and a file to write</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>يتطلب convert ملفًا للقراءة وملفًا للكتابة</translation>
    </message>
    <message>
        <source>--%1 needs a picture to write</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الخيار --%1 يتطلب صورة للكتابة</translation>
    </message>
    <message>
        <source>--%1 does not go with info</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لا يُستخدم --%1 مع info</translation>
    </message>
    <message>
        <source>info takes one file, not %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>يقبل info ملفًا واحدًا وليس %1</translation>
    </message>
    <message>
        <source>--%1 does not go with report</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لا يُستخدم --%1 مع report</translation>
    </message>
    <message>
        <source>report takes a file to read and a file to write</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>يتطلب report ملفًا للقراءة وملفًا للكتابة</translation>
    </message>
    <message>
        <source>the format of &quot;%1&quot; is unknown: the name must end in .html, .pdf or .md</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تنسيق «%1» غير معروف: يجب أن ينتهي الاسم بواحد من .html أو .pdf أو .md</translation>
    </message>
    <message>
        <source>--%1 does not go with check</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لا يُستخدم --%1 مع check</translation>
    </message>
    <message>
        <source>check takes the files to look at</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>يتطلب check الملفات المراد فحصها</translation>
    </message>
    <message>
        <source>--%1 does not go with merge</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لا يُستخدم --%1 مع merge</translation>
    </message>
    <message>
        <source>merge takes the files of the base, of ours and of theirs</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>يتطلب merge ملفات الأساس ونسختنا ونسختهم</translation>
    </message>
    <message>
        <source>--%1 does not go with a document from the network</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لا يُستخدم --%1 مع مستند من الشبكة</translation>
    </message>
    <message>
        <source>%1 can only be written</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>التنسيق «%1» للكتابة فقط</translation>
    </message>
    <message>
        <source>%1 can only be read</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>التنسيق «%1» للقراءة فقط</translation>
    </message>
    <message>
        <source>one of %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>واحد من %1</translation>
    </message>
    <message>
        <source>the format of &quot;%1&quot; is unknown: the name must end in one of %2, or --from tell one of %3</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تنسيق «%1» غير معروف: يجب أن ينتهي الاسم بواحد من %2، أو أن يحدد --from واحدًا من %3</translation>
    </message>
    <message>
        <source>the format of &quot;%1&quot; is unknown: the name must end in one of %2, or in .png, .svg, .pdf, .html or .pptx for a picture, or --to tell one of %3</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تنسيق «%1» غير معروف: يجب أن ينتهي الاسم بواحد من %2، أو للصورة بواحد من .png أو .svg أو .pdf أو .html أو .pptx، أو أن يحدد --to واحدًا من %3</translation>
    </message>
    <message>
        <source>--size and --scale exclude each other</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لا يجتمع --size و --scale</translation>
    </message>
    <message>
        <source>a page for the browser needs the clear look</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>صفحة المتصفح تتطلب المظهر الواضح</translation>
    </message>
    <message>
        <source>all, none or a number of levels</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>all أو none أو عدد المستويات</translation>
    </message>
    <message>
        <source>a size such as 1600x900</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>حجم مثل 1600x900</translation>
    </message>
    <message>
        <source>a number above 0</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>عدد أكبر من 0</translation>
    </message>
    <message>
        <source>the name of a colour, #rrggbb or transparent</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>اسم لون أو #rrggbb أو transparent</translation>
    </message>
    <message>
        <source>Show this help and quit.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إظهار هذه المساعدة ثم الإنهاء.</translation>
    </message>
    <message>
        <source>Show the version and quit.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إظهار الإصدار ثم الإنهاء.</translation>
    </message>
    <message>
        <source>Show texts in &lt;language&gt;, such as de or zh, instead of the system&apos;s.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>عرض النصوص باللغة &lt;language&gt;، مثل de أو zh، بدلاً من لغة النظام.</translation>
    </message>
    <message>
        <source>Draw the diagram into the picture &lt;file&gt; and quit. The ending .png, .svg, .pdf, .html or, for a slide, .pptx tells the format. Needs no display.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>رسم المخطط في الصورة &lt;file&gt; ثم الإنهاء. يحدد الامتداد التنسيق: .png أو .svg أو .pdf أو .html، أو .pptx للشرائح. لا يحتاج إلى شاشة عرض.</translation>
    </message>
    <message>
        <source>How far to expand the bones of the picture: all (the default), none, or a number of levels below the main bones.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مدى توسيع عظام الصورة: all (الافتراضي) أو none أو عدد المستويات تحت العظام الرئيسية.</translation>
    </message>
    <message>
        <source>Make the picture &lt;width&gt;x&lt;height&gt; in size and fit the drawing in.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إنشاء الصورة بالحجم &lt;width&gt;x&lt;height&gt; وملاءمة الرسم داخلها.</translation>
    </message>
    <message>
        <source>Draw &lt;factor&gt; times as large as on the screen at 100 %.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الرسم بحجم أكبر &lt;factor&gt; مرة من حجمه على الشاشة عند 100%.</translation>
    </message>
    <message>
        <source>Fill the picture with &lt;colour&gt;, a name or #rrggbb, or leave it transparent. White is the default.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ملء الصورة باللون &lt;colour&gt;، وهو اسم أو #rrggbb، أو تركها شفافة باستخدام transparent. الأبيض هو الافتراضي.</translation>
    </message>
    <message>
        <source>Read the file as &lt;format&gt;, whatever its ending.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>قراءة الملف بالتنسيق &lt;format&gt; مهما كان امتداده.</translation>
    </message>
    <message>
        <source>Write &lt;format&gt;, whatever the ending.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الكتابة بالتنسيق &lt;format&gt; مهما كان الامتداد.</translation>
    </message>
    <message>
        <source>Write nothing when that would leave content out.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>عدم كتابة أي شيء إذا كان ذلك سيُسقط جزءًا من المحتوى.</translation>
    </message>
    <message>
        <source>Say it as JSON, for programs.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الإخراج بصيغة JSON، للبرامج.</translation>
    </message>
    <message>
        <source>Edits fishbone diagrams of tasks.

These commands need no display:
  convert   write a diagram in another format, or as a picture
  info      say what is in a diagram, and what is off in it
  report    write what is sent round after a meeting
  check     name what is off in files, line by line
  merge     merge two versions of a diagram, for git
&quot;fishbone convert --help&quot; tells more. A file of such a name is ./convert.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>يحرر مخططات عظم السمكة الخاصة بالمهام.

لا تحتاج هذه الأوامر إلى شاشة عرض:
  convert   كتابة مخطط بتنسيق آخر أو كصورة
  info      ذكر ما في المخطط وما فيه من مشكلات
  report    كتابة ما يُوزع بعد الاجتماع
  check     ذكر المشكلات في الملفات سطرًا سطرًا
  merge     دمج نسختين من مخطط، من أجل git
للمزيد: «fishbone convert --help». يُكتب الملف الذي له اسم كهذا ./convert.</translation>
    </message>
    <message>
        <source>Diagrams to open: files, or http and https URLs. Without one, a new diagram.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>المخططات المراد فتحها: ملفات أو عناوين http و https. وبدونها يُنشأ مخطط جديد.</translation>
    </message>
    <message>
        <source>Writes a diagram in another format, or as a picture.
The endings tell the formats. Read: %1.
Written: %2, and png, svg, pdf, html and pptx for pictures.
What is left out, or put where it can be kept, is listed on the error output.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>يكتب المخطط بتنسيق آخر أو كصورة.
تحدد الامتدادات التنسيقات. للقراءة: %1.
للكتابة: %2، ومعها png و svg و pdf و html و pptx للصور.
ما يُسقط، أو يوضع حيث يمكن الاحتفاظ به، يُسرد في مخرج الأخطاء.</translation>
    </message>
    <message>
        <source>The command.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الأمر.</translation>
    </message>
    <message>
        <source>The file to read.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الملف المراد قراءته.</translation>
    </message>
    <message>
        <source>The file to write.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الملف المراد كتابته.</translation>
    </message>
    <message>
        <source>Counts what is in a diagram and lists what is off in it.
The exit code is 3 when anything is.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>يعدّ ما في المخطط ويسرد ما فيه من مشكلات.
رمز الإنهاء هو 3 عند وجود أي منها.</translation>
    </message>
    <message>
        <source>Writes what is sent round after a meeting: the picture, the causes in the order of what was found out, what is to be done by whom, and a legend.
The ending .html, .pdf or .md tells the format; .md has its picture in a file beside it.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>يكتب ما يُوزع بعد الاجتماع: الصورة، والأسباب بترتيب ما تبيّن، وما على كل شخص أن يفعله، ووسيلة الإيضاح.
يحدد الامتداد .html أو .pdf أو .md التنسيق؛ وتكون صورة .md في ملف بجانبه.</translation>
    </message>
    <message>
        <source>Names what is off in each file, and why one cannot be read, a line each.
The exit code is 1 when there is anything.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>يذكر مشكلات كل ملف، وسبب تعذر قراءة أي منها، كلًا منها في سطر.
رمز الإنهاء هو 1 عند وجود أي منها.</translation>
    </message>
    <message>
        <source>The files to look at.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الملفات المراد فحصها.</translation>
    </message>
    <message>
        <source>Merges what changed from the base to theirs into ours, subject by subject, as git asks a merge driver to.
What both changed differently is kept as in ours, with a cause that says so below it; the exit code is 1 then.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>يدمج في نسختنا ما تغيّر من الأساس إلى نسختهم، موضوعًا موضوعًا، كما يطلب git من برنامج الدمج.
ما غيّره الطرفان على نحو مختلف يبقى كما في نسختنا، وتحته سبب يذكر ذلك؛ ويكون رمز الإنهاء عندئذ 1.</translation>
    </message>
    <message>
        <source>The version that both come from.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>النسخة التي جاءت منها النسختان.</translation>
    </message>
    <message>
        <source>The version to merge into; it is replaced.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>النسخة التي يُدمج فيها؛ وسيتم استبدالها.</translation>
    </message>
    <message>
        <source>The other version.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>النسخة الأخرى.</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تتعذر كتابة %1: %2</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تتعذر قراءة %1: %2</translation>
    </message>
    <message>
        <source>%1 was not written: something would be left out</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لم يُكتب %1: كان سيسقط جزء من المحتوى</translation>
    </message>
    <message>
        <source>Format: %1
</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>التنسيق: %1
</translation>
    </message>
    <message>
        <source>there are conflicts: look for the causes &quot;Merge conflict&quot;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>توجد تعارضات: ابحث عن الأسباب «تعارض في الدمج»</translation>
    </message>
    <message>
        <source>there is no display to open a window on; --export needs none</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لا توجد شاشة عرض لفتح نافذة عليها؛ ولا يحتاج --export إلى واحدة</translation>
    </message>
    <message>
        <source>a folder</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مجلدًا</translation>
    </message>
    <message>
        <source>Show the texts that the files in &lt;folder&gt; have, and show them anew when these are changed. For translators.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>عرض النصوص الموجودة في ملفات &lt;folder&gt;، وعرضها من جديد عند تغيّرها. للمترجمين.</translation>
    </message>
</context>
<context>
    <name>DetailsForm</name>
    <message>
        <source>Priority:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الأولوية:</translation>
    </message>
    <message>
        <source>Open</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>فتح</translation>
    </message>
    <message>
        <source>Edit style…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تحرير النمط…</translation>
    </message>
    <message>
        <source>Has a planned end</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>له انتهاء مخطط</translation>
    </message>
    <message>
        <source>Planned end</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الانتهاء المخطط</translation>
    </message>
    <message>
        <source>What there is to say of it; of a cause, the evidence for its verdict</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ما يقال عن الموضوع؛ وإذا كان سببًا فأدلة الحكم عليه</translation>
    </message>
    <message>
        <source>Progress</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>التقدم</translation>
    </message>
    <message>
        <source>Link</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الرابط</translation>
    </message>
    <message>
        <source>Open the link</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>فتح الرابط</translation>
    </message>
    <message>
        <source>Followers</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>المتابعون</translation>
    </message>
    <message>
        <source>New follower</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>متابع جديد</translation>
    </message>
    <message>
        <source>Origin</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>المنشأ</translation>
    </message>
    <message>
        <source>several</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>متعدد</translation>
    </message>
    <message numerus="yes">
        <source>%n subjects</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>%n موضوع</numerusform>
            <numerusform>%n موضوع</numerusform>
            <numerusform>%n موضوعان</numerusform>
            <numerusform>%n مواضيع</numerusform>
            <numerusform>%n موضوعًا</numerusform>
            <numerusform>%n موضوع</numerusform>
        </translation>
    </message>
    <message>
        <source>Title:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>العنوان:</translation>
    </message>
    <message>
        <source>Number:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الرقم:</translation>
    </message>
    <message>
        <source>Verdict:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الحكم:</translation>
    </message>
    <message>
        <source>Votes:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الأصوات:</translation>
    </message>
    <message>
        <source>Status:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الحالة:</translation>
    </message>
    <message>
        <source>Progress:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>التقدم:</translation>
    </message>
    <message>
        <source>Responsible:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>المسؤول:</translation>
    </message>
    <message>
        <source>Their id:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>معرّف المسؤول:</translation>
    </message>
    <message>
        <source>Planned end:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الانتهاء المخطط:</translation>
    </message>
    <message>
        <source>Link:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الرابط:</translation>
    </message>
    <message>
        <source>Followers:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>المتابعون:</translation>
    </message>
    <message>
        <source>Details:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>التفاصيل:</translation>
    </message>
    <message>
        <source>Style:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>النمط:</translation>
    </message>
</context>
<context>
    <name>DetailsPanel</name>
    <message>
        <source>&amp;Apply</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تطبيق (&amp;ت)</translation>
    </message>
    <message>
        <source>Re&amp;vert</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>استرجاع (&amp;ر)</translation>
    </message>
    <message>
        <source>Created by: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>أنشأه: %1</translation>
    </message>
    <message>
        <source>Created on: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>أُنشئ في: %1</translation>
    </message>
    <message>
        <source>Edit details</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تحرير التفاصيل</translation>
    </message>
</context>
<context>
    <name>DiagramCounts</name>
    <message numerus="yes">
        <source>%n subject(s)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>%n موضوع</numerusform>
            <numerusform>%n موضوع</numerusform>
            <numerusform>%n موضوعان</numerusform>
            <numerusform>%n مواضيع</numerusform>
            <numerusform>%n موضوعًا</numerusform>
            <numerusform>%n موضوع</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>, %n selected</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>، المحدد %n</numerusform>
            <numerusform>، المحدد %n</numerusform>
            <numerusform>، المحدد %n</numerusform>
            <numerusform>، المحدد %n</numerusform>
            <numerusform>، المحدد %n</numerusform>
            <numerusform>، المحدد %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DiagramExchange</name>
    <message>
        <source>the text is not encoded as UTF-8, nor in a code page that is known (Windows-1252, GB 18030)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>النص غير مرمّز بـ UTF-8 ولا بصفحة ترميز معروفة (Windows-1252 أو GB 18030)</translation>
    </message>
    <message>
        <source>the text as %1, since it is not encoded as UTF-8</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>النص على أنه %1، لأنه غير مرمّز بـ UTF-8</translation>
    </message>
    <message>
        <source>Table of tasks</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>جدول مهام</translation>
    </message>
    <message>
        <source>a quote is not closed</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>توجد علامة اقتباس غير مغلقة</translation>
    </message>
    <message>
        <source>there is text behind a closing quote</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>يوجد نص بعد علامة الاقتباس الختامية</translation>
    </message>
    <message>
        <source>it has more than %1 levels</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مستوياته أكثر من %1</translation>
    </message>
    <message>
        <source>that format can only be read</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>هذا التنسيق للقراءة فقط</translation>
    </message>
    <message>
        <source>that format can only be written</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>هذا التنسيق للكتابة فقط</translation>
    </message>
    <message>
        <source>draw.io diagram</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مخطط draw.io</translation>
    </message>
    <message>
        <source>All formats</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>كل التنسيقات</translation>
    </message>
    <message>
        <source>it is larger than %1 MiB</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>حجمه أكبر من %1 ميبيبايت</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إنه فارغ</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إنه مجلد</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لا يوجد ملف كهذا</translation>
    </message>
    <message>
        <source>a style</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>نمط</translation>
    </message>
    <message>
        <source>FreeMind mind map</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>خريطة ذهنية FreeMind</translation>
    </message>
    <message>
        <source>what is encrypted</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ما هو مشفّر</translation>
    </message>
    <message>
        <source>Icons</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>أيقونات</translation>
    </message>
    <message>
        <source>the icon &quot;%1&quot; as %2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الأيقونة «%1» على أنها %2</translation>
    </message>
    <message>
        <source>an arrow</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>سهم</translation>
    </message>
    <message>
        <source>there are more than %1 levels</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>المستويات أكثر من %1</translation>
    </message>
    <message>
        <source>there are more than %1 subjects</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>المواضيع أكثر من %1</translation>
    </message>
    <message>
        <source>Link</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الرابط</translation>
    </message>
    <message>
        <source>Image</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>صورة</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>السطر %1: %2</translation>
    </message>
    <message>
        <source>it holds no diagram</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لا يحتوي على مخطط</translation>
    </message>
    <message>
        <source>Imported diagram</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مخطط مستورد</translation>
    </message>
    <message>
        <source>Fishbone diagram</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مخطط عظم السمكة</translation>
    </message>
    <message>
        <source>Markdown outline</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مخطط تفصيلي Markdown</translation>
    </message>
    <message>
        <source>the front matter</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>البيانات الوصفية في أول المستند</translation>
    </message>
    <message>
        <source>the comment &quot;%1&quot;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>التعليق «%1»</translation>
    </message>
    <message>
        <source>the language &quot;%1&quot; of a block of code</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لغة كتلة الشيفرة «%1»</translation>
    </message>
    <message>
        <source>Mermaid ishikawa diagram</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مخطط ishikawa من Mermaid</translation>
    </message>
    <message>
        <source>the diagram does not begin with &quot;ishikawa&quot; or &quot;mindmap&quot;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لا يبدأ المخطط بـ «ishikawa» أو «mindmap»</translation>
    </message>
    <message>
        <source>settings</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إعدادات</translation>
    </message>
    <message>
        <source>OPML outline</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مخطط تفصيلي OPML</translation>
    </message>
    <message>
        <source>Org outline</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مخطط تفصيلي Org</translation>
    </message>
    <message>
        <source>text above the outline</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>نص فوق المخطط التفصيلي</translation>
    </message>
    <message>
        <source>&quot;%1&quot; as %2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>«%1» على أنه %2</translation>
    </message>
    <message>
        <source>Labels</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تسميات</translation>
    </message>
    <message>
        <source>&quot;%1&quot; as a progress</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>«%1» على أنه تقدم</translation>
    </message>
    <message>
        <source>a quotation</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>اقتباس</translation>
    </message>
    <message>
        <source>further cells</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>خلايا أخرى</translation>
    </message>
    <message>
        <source>the diagram does not begin with &quot;@startmindmap&quot;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لا يبدأ المخطط بـ «@startmindmap»</translation>
    </message>
    <message>
        <source>text beside the drawing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>نص بجانب الرسم</translation>
    </message>
    <message>
        <source>PlantUML mind map</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>خريطة ذهنية PlantUML</translation>
    </message>
    <message>
        <source>dates of &quot;%1&quot; as day/month/year</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تواريخ «%1» على أنها يوم/شهر/سنة</translation>
    </message>
    <message>
        <source>dates of &quot;%1&quot; as month/day/year</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تواريخ «%1» على أنها شهر/يوم/سنة</translation>
    </message>
    <message>
        <source>cells without a heading</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>خلايا بلا عنوان عمود</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of &quot;%2&quot; as %3</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>«%1» في «%2» على أنه %3</translation>
    </message>
    <message>
        <source>headings that are repeated</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>عناوين أعمدة مكررة</translation>
    </message>
    <message>
        <source>the uuid &quot;%1&quot; a second time</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>المعرّف uuid «%1» مكررًا</translation>
    </message>
    <message>
        <source>the subject lies below itself</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الموضوع يقع تحت نفسه</translation>
    </message>
    <message>
        <source>there is no column of titles, such as &quot;title&quot;, &quot;summary&quot; or &quot;name&quot;; the columns are %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لا يوجد عمود للعناوين مثل «title» أو «summary» أو «name»؛ الأعمدة هي %1</translation>
    </message>
    <message>
        <source>Indented text</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>نص بمسافات بادئة</translation>
    </message>
    <message>
        <source>the sheet &quot;%1&quot;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الورقة «%1»</translation>
    </message>
    <message>
        <source>Excel workbook</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مصنف Excel</translation>
    </message>
    <message>
        <source>the archive has no file &quot;%1&quot;, as workbooks do</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ليس في الأرشيف ملف «%1» كما في المصنفات</translation>
    </message>
    <message>
        <source>remarks at cells</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ملاحظات على الخلايا</translation>
    </message>
    <message>
        <source>drawings</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>رسومات</translation>
    </message>
    <message>
        <source>cells behind column %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الخلايا بعد العمود %1</translation>
    </message>
    <message>
        <source>there are too many cells</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>عدد الخلايا أكبر من اللازم</translation>
    </message>
    <message>
        <source>a link within the workbook</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>رابط داخل المصنف</translation>
    </message>
    <message>
        <source>the file &quot;%1&quot;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الملف «%1»</translation>
    </message>
    <message>
        <source>the archive has neither content.json nor content.xml, one of which holds the map</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ليس في الأرشيف content.json ولا content.xml، وأحدهما يحتوي على الخريطة</translation>
    </message>
    <message>
        <source>XMind map</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>خريطة XMind</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ورقة</translation>
    </message>
    <message>
        <source>Boundary</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إطار</translation>
    </message>
    <message>
        <source>a topic of the kind &quot;%1&quot; as a cause</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>موضوع من النوع «%1» على أنه سبب</translation>
    </message>
    <message>
        <source>content.json: it is no list of sheets</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>content.json: ليس قائمة أوراق</translation>
    </message>
    <message>
        <source>the icon &quot;%1&quot;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الأيقونة «%1»</translation>
    </message>
    <message>
        <source>an arrow &quot;%1&quot; that joins no two topics</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>سهم «%1» لا يصل بين موضوعين</translation>
    </message>
    <message>
        <source>declarations of entities are not accepted</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تعريفات الكيانات غير مقبولة</translation>
    </message>
    <message>
        <source>the document begins with &lt;%1&gt;, not with &lt;%2&gt;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>يبدأ المستند بـ &lt;%1&gt; وليس بـ &lt;%2&gt;</translation>
    </message>
    <message>
        <source>&lt;/%1&gt; is missing, the end of &lt;%1&gt; in line %2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ينقص &lt;/%1&gt;، نهاية &lt;%1&gt; في السطر %2</translation>
    </message>
    <message>
        <source>it is not a zip archive, as files of this format are (%1)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ليس أرشيف zip كما هي الملفات بهذا التنسيق (%1)</translation>
    </message>
    <message>
        <source>the archive has more than %1 files</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>عدد الملفات في الأرشيف أكثر من %1</translation>
    </message>
    <message>
        <source>the archive has &quot;%1&quot; twice</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>في الأرشيف «%1» مرتين</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إنه تالف</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إنه أكبر من اللازم</translation>
    </message>
    <message>
        <source>it expands to more than %1 times its size</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>يتضخم عند فك الضغط أكثر من %1 مرة</translation>
    </message>
    <message>
        <source>the map is protected by a password</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الخريطة محمية بكلمة مرور</translation>
    </message>
</context>
<context>
    <name>DiagramMerge</name>
    <message>
        <source>It was changed in ours and deleted in theirs.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تغيّر في نسختنا وحُذف في نسختهم.</translation>
    </message>
    <message>
        <source>It was deleted in ours and changed in theirs.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>حُذف في نسختنا وتغيّر في نسختهم.</translation>
    </message>
    <message>
        <source>Theirs has it below &quot;%1&quot;.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>في نسختهم يقع تحت «%1».</translation>
    </message>
    <message>
        <source>Its %1 is &quot;%2&quot; in ours and &quot;%3&quot; in theirs.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الحقل %1 هو «%2» في نسختنا و«%3» في نسختهم.</translation>
    </message>
    <message>
        <source>It was deleted in theirs and has more below it in ours.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>حُذف في نسختهم وتحته المزيد في نسختنا.</translation>
    </message>
    <message>
        <source>It was deleted in ours and has more below it in theirs.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>حُذف في نسختنا وتحته المزيد في نسختهم.</translation>
    </message>
    <message>
        <source>It is a second head.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إنه رأس ثانٍ.</translation>
    </message>
    <message>
        <source>What is below it has another order in theirs.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لما تحته ترتيب آخر في نسختهم.</translation>
    </message>
    <message>
        <source>Merge conflict</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تعارض في الدمج</translation>
    </message>
</context>
<context>
    <name>DiagramPicture</name>
    <message>
        <source>there is not enough memory for it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لا توجد ذاكرة كافية لذلك</translation>
    </message>
    <message>
        <source>the scale, the size or the margin makes no picture</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>المقياس أو الحجم أو الهامش لا ينتج صورة</translation>
    </message>
    <message>
        <source>the file name must end in .png, .svg, .pdf or .html</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>يجب أن ينتهي اسم الملف بواحد من .png أو .svg أو .pdf أو .html</translation>
    </message>
    <message>
        <source>the page is too small or too large</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الصفحة أصغر أو أكبر من اللازم</translation>
    </message>
</context>
<context>
    <name>DocumentLoader</name>
    <message>
        <source>it holds no diagram</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لا يحتوي على مخطط</translation>
    </message>
    <message>
        <source>the program is closing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>البرنامج قيد الإغلاق</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لا يوجد ملف كهذا</translation>
    </message>
</context>
<context>
    <name>DocumentReport</name>
    <message>
        <source>it has no uuid</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ليس له uuid</translation>
    </message>
    <message>
        <source>another subject has the same uuid %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لموضوع آخر المعرّف uuid نفسه %1</translation>
    </message>
    <message>
        <source>it is the head and has the pid %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إنه الرأس وله المعرّف pid %1</translation>
    </message>
    <message>
        <source>it has no pid</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ليس له pid</translation>
    </message>
    <message>
        <source>its pid %1 does not name its parent</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>معرّفه pid %1 لا يدل على الموضوع الأب</translation>
    </message>
    <message>
        <source>it has no title</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ليس له عنوان</translation>
    </message>
    <message>
        <source>its status %1 is unknown</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>حالته %1 غير معروفة</translation>
    </message>
    <message>
        <source>its progress %1 is not within 0 and 100</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تقدمه %1 ليس بين 0 و100</translation>
    </message>
    <message>
        <source>it is to end before it was created</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>انتهاؤه يسبق إنشاءه</translation>
    </message>
    <message>
        <source>its link %1 is no URL</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>رابطه %1 ليس عنوان URL</translation>
    </message>
    <message>
        <source>head</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الرأس</translation>
    </message>
    <message>
        <source>Title: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>العنوان: %1</translation>
    </message>
    <message>
        <source>Subjects: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>المواضيع: %1</translation>
    </message>
    <message>
        <source>Main bones: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>العظام الرئيسية: %1</translation>
    </message>
    <message>
        <source>Levels: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>المستويات: %1</translation>
    </message>
    <message>
        <source>Links: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الروابط: %1</translation>
    </message>
    <message>
        <source>Own styles: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الأنماط الخاصة: %1</translation>
    </message>
    <message>
        <source>Nothing is off.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لا توجد مشكلات.</translation>
    </message>
    <message>
        <source>Off: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>المشكلات: %1</translation>
    </message>
</context>
<context>
    <name>DocumentSaver</name>
    <message>
        <source>Fishbone diagrams (*.json);;All files (*)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مخططات عظم السمكة (*.json);;كل الملفات (*)</translation>
    </message>
    <message>
        <source>Another program has changed %1 since it was opened or saved here. Replace it, so that those changes are lost?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>غيّر برنامج آخر %1 منذ فتحه أو حفظه هنا. هل تريد استبداله وفقدان تلك التغييرات؟</translation>
    </message>
    <message>
        <source>Save</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>حفظ</translation>
    </message>
    <message>
        <source>%1 would not be recognized as a diagram. Its name should end in .json; &quot;Export as&quot; writes other formats.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لن يُعرف %1 على أنه مخطط. يجب أن ينتهي اسمه بـ .json؛ ويكتب «تصدير بتنسيق آخر» التنسيقات الأخرى.</translation>
    </message>
    <message>
        <source>Save as</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>حفظ باسم</translation>
    </message>
    <message>
        <source>Save a copy</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>حفظ نسخة</translation>
    </message>
    <message>
        <source>Copy written to %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>كُتبت النسخة في %1</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تتعذر كتابة %1: %2.</translation>
    </message>
    <message>
        <source>%1 saved</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>حُفظ %1</translation>
    </message>
</context>
<context>
    <name>DocumentTabs</name>
    <message>
        <source>Open documents</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>المستندات المفتوحة</translation>
    </message>
    <message>
        <source>Close</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>Not saved to a file yet</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لم يُحفظ في ملف بعد</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إغلاق (&amp;غ)</translation>
    </message>
    <message>
        <source>Close &amp;others</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إغلاق الأخرى (&amp;خ)</translation>
    </message>
    <message>
        <source>Copy &amp;path</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>نسخ المسار (&amp;م)</translation>
    </message>
</context>
<context>
    <name>DrawingFilter</name>
    <message>
        <source>left out by the filter</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>استبعدته التصفية</translation>
    </message>
    <message>
        <source>leads to what the filter shows</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>يؤدي إلى ما تظهره التصفية</translation>
    </message>
</context>
<context>
    <name>DrawingPrinter</name>
    <message>
        <source>%1 – page %2 of %3</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 – الصفحة %2 من %3</translation>
    </message>
</context>
<context>
    <name>EditAttributes</name>
    <message>
        <source>Edit attributes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تحرير السمات</translation>
    </message>
</context>
<context>
    <name>EditCommands</name>
    <message>
        <source>&amp;Undo</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تراجع (&amp;ر)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إعادة (&amp;ع)</translation>
    </message>
    <message>
        <source>&amp;Find and replace…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>بحث واستبدال (&amp;ب)…</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>قص (&amp;ق)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>نسخ (&amp;ن)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لصق (&amp;ل)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>حذف (&amp;ح)</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تحديد الكل (&amp;ك)</translation>
    </message>
    <message>
        <source>Select the &amp;branch</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تحديد الفرع (&amp;ف)</translation>
    </message>
    <message>
        <source>Select the sib&amp;lings</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تحديد الأشقاء (&amp;ش)</translation>
    </message>
    <message>
        <source>&amp;Child subject</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>موضوع فرعي (&amp;ف)</translation>
    </message>
    <message>
        <source>Subject &amp;before</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>موضوع قبله (&amp;ق)</translation>
    </message>
    <message>
        <source>Subject &amp;after</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>موضوع بعده (&amp;ب)</translation>
    </message>
    <message>
        <source>&amp;Parent subject</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>موضوع أب (&amp;م)</translation>
    </message>
    <message>
        <source>&amp;Free subject (a new diagram)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>موضوع حر (مخطط جديد) (&amp;ح)</translation>
    </message>
    <message>
        <source>&amp;Sub-task…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مهمة فرعية (&amp;ع)…</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إعادة التسمية (&amp;ت)</translation>
    </message>
    <message>
        <source>&amp;Link to…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>رابط إلى (&amp;ر)…</translation>
    </message>
    <message>
        <source>&amp;Open link</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>فتح الرابط (&amp;ط)</translation>
    </message>
    <message>
        <source>Remove l&amp;ink</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إزالة الرابط (&amp;ز)</translation>
    </message>
    <message>
        <source>&amp;Style…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>النمط (&amp;ل)…</translation>
    </message>
    <message>
        <source>Remove s&amp;tyle</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إزالة النمط (&amp;ا)</translation>
    </message>
    <message>
        <source>New sub-task</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مهمة فرعية جديدة</translation>
    </message>
    <message>
        <source>Title:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>العنوان:</translation>
    </message>
</context>
<context>
    <name>EditDelete</name>
    <message>
        <source>Delete selecteds</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>حذف المواضيع</translation>
    </message>
    <message>
        <source>Delete current selected</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>حذف الموضوع</translation>
    </message>
</context>
<context>
    <name>EditModify</name>
    <message>
        <source>Modify Item</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تحرير الموضوع</translation>
    </message>
</context>
<context>
    <name>EditMove</name>
    <message>
        <source>Move subjects</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>نقل المواضيع</translation>
    </message>
</context>
<context>
    <name>EditPaste</name>
    <message>
        <source>Paste from clipborad</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لصق من الحافظة</translation>
    </message>
</context>
<context>
    <name>EmptyPage</name>
    <message>
        <source>No diagram is open</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لا يوجد مخطط مفتوح</translation>
    </message>
    <message>
        <source>Files can also be dragged into this window.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>يمكن أيضًا سحب الملفات إلى هذه النافذة.</translation>
    </message>
    <message>
        <source>Opened lately:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>المفتوحة مؤخرًا:</translation>
    </message>
</context>
<context>
    <name>ExchangeReport</name>
    <message>
        <source>left out: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>أُسقط: %1</translation>
    </message>
    <message>
        <source>put into the details: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>وُضع في التفاصيل: %1</translation>
    </message>
    <message>
        <source>taken: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>قُرئ: %1</translation>
    </message>
    <message>
        <source>appearance left out: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>أُسقط من المظهر: %1</translation>
    </message>
    <message>
        <source>%1 (%2 times, first in line %3)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 (عدد المرات %2، أولها في السطر %3)</translation>
    </message>
    <message>
        <source>%1 (%2 times)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 (عدد المرات %2)</translation>
    </message>
    <message>
        <source>%1 (line %2)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 (السطر %2)</translation>
    </message>
    <message>
        <source>other things</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>أشياء أخرى</translation>
    </message>
</context>
<context>
    <name>ExportCommands</name>
    <message>
        <source>&amp;Export picture…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تصدير صورة (&amp;ت)…</translation>
    </message>
    <message>
        <source>E&amp;xport as…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تصدير بتنسيق آخر (&amp;ص)…</translation>
    </message>
    <message>
        <source>Copy as p&amp;icture</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>نسخ كصورة (&amp;ص)</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>طباعة (&amp;ط)…</translation>
    </message>
    <message>
        <source>Print previe&amp;w…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>معاينة الطباعة (&amp;م)…</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>كُتب %1</translation>
    </message>
    <message>
        <source>%1 was not written</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لم يُكتب %1</translation>
    </message>
    <message>
        <source>Export picture</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تصدير صورة</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تتعذر كتابة %1: %2.</translation>
    </message>
    <message>
        <source>Writing %1…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>جارٍ كتابة %1…</translation>
    </message>
    <message>
        <source>Copied as a picture</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>نُسخ كصورة</translation>
    </message>
    <message>
        <source>Not copied as a picture: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لم يُنسخ كصورة: %1</translation>
    </message>
    <message>
        <source>PowerPoint slide (*.%1)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>شريحة PowerPoint (*.%1)</translation>
    </message>
    <message>
        <source>Export as</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تصدير بتنسيق آخر</translation>
    </message>
    <message>
        <source>its ending tells none of the formats</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>امتداده لا يدل على أي من التنسيقات</translation>
    </message>
    <message>
        <source>Nothing was printed</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لم يُطبع شيء</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>&amp;Light, as on paper</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>فاتح، كما على الورق (&amp;ف)</translation>
    </message>
    <message>
        <source>Export picture</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تصدير صورة</translation>
    </message>
    <message>
        <source>B&amp;rowse…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>استعراض (&amp;س)…</translation>
    </message>
    <message>
        <source>&amp;File:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الملف (&amp;م):</translation>
    </message>
    <message>
        <source>&amp;Background:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الخلفية (&amp;خ):</translation>
    </message>
    <message>
        <source>Dark</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>داكن</translation>
    </message>
    <message>
        <source>As on the screen</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>كما على الشاشة</translation>
    </message>
    <message>
        <source>White</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>أبيض</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>شفاف</translation>
    </message>
    <message>
        <source>Pictures (*.png *.svg *.pdf *.html)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>صور (*.png *.svg *.pdf *.html)</translation>
    </message>
    <message>
        <source>The file name must end in .png, .svg, .pdf or .html.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>يجب أن ينتهي اسم الملف بواحد من .png أو .svg أو .pdf أو .html.</translation>
    </message>
    <message>
        <source>A page for the browser needs the clear look.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>صفحة المتصفح تتطلب المظهر الواضح.</translation>
    </message>
    <message>
        <source>This cannot be exported: %1.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>يتعذر التصدير: %1.</translation>
    </message>
    <message>
        <source>%1 Use %2, which fits?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 هل تريد استخدام %2 المناسب؟</translation>
    </message>
    <message>
        <source>%1 exists already. Replace it?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 موجود بالفعل. هل تريد استبداله؟</translation>
    </message>
</context>
<context>
    <name>FileCommands</name>
    <message>
        <source>&amp;New</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>جديد (&amp;ج)</translation>
    </message>
    <message>
        <source>New from the &amp;example</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>جديد من المثال (&amp;ث)</translation>
    </message>
    <message>
        <source>&amp;Welcome diagram</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مخطط الترحيب (&amp;ت)</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>فتح (&amp;ف)…</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>استيراد (&amp;س)…</translation>
    </message>
    <message>
        <source>Open &amp;URL…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>فتح عنوان &amp;URL…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>حفظ (&amp;ح)</translation>
    </message>
    <message>
        <source>Save &amp;as…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>حفظ باسم (&amp;ب)…</translation>
    </message>
    <message>
        <source>Save a cop&amp;y…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>حفظ نسخة (&amp;ن)…</translation>
    </message>
    <message>
        <source>Revert to &amp;file</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الرجوع إلى الملف (&amp;و)</translation>
    </message>
    <message>
        <source>Save a&amp;ll</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>حفظ الكل (&amp;ل)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إغلاق (&amp;غ)</translation>
    </message>
    <message>
        <source>Reopen &amp;documents at the start</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إعادة فتح المستندات عند بدء التشغيل (&amp;ش)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إنهاء (&amp;ه)</translation>
    </message>
    <message>
        <source>%1 loaded</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>حُمّل %1</translation>
    </message>
    <message>
        <source>cannot open %1: %2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>يتعذر فتح %1: %2</translation>
    </message>
    <message>
        <source>%1 was not loaded</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لم يُحمّل %1</translation>
    </message>
    <message>
        <source>Open</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>فتح</translation>
    </message>
    <message>
        <source>Revert</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الرجوع</translation>
    </message>
    <message>
        <source>Give up all changes of %1 since it was saved?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>هل تريد التخلي عن كل تغييرات %1 منذ حفظه؟</translation>
    </message>
</context>
<context>
    <name>FileConflict</name>
    <message>
        <source>Another program has changed %1.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>غيّر برنامج آخر %1.</translation>
    </message>
    <message>
        <source>Re&amp;load</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إعادة التحميل (&amp;د)</translation>
    </message>
    <message>
        <source>&amp;Keep mine</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إبقاء نسختي (&amp;ب)</translation>
    </message>
    <message>
        <source>Save &amp;under another name…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الحفظ باسم آخر (&amp;ظ)…</translation>
    </message>
    <message>
        <source>%1 was deleted, moved or renamed by another program.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>حذف برنامج آخر %1 أو نقله أو غيّر اسمه.</translation>
    </message>
    <message>
        <source>Save agai&amp;n</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الحفظ مجددًا (&amp;ج)</translation>
    </message>
    <message>
        <source>&amp;Hide</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إخفاء (&amp;خ)</translation>
    </message>
</context>
<context>
    <name>FileName</name>
    <message>
        <source>Untitled</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>بلا عنوان</translation>
    </message>
</context>
<context>
    <name>FilterBar</name>
    <message>
        <source>Any status</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>أي حالة</translation>
    </message>
    <message>
        <source>Any verdict</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>أي حكم</translation>
    </message>
    <message>
        <source>Text</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>نص</translation>
    </message>
    <message>
        <source>Any votes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>أي عدد أصوات</translation>
    </message>
    <message>
        <source>Votes ≥ </source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الأصوات ≥ </translation>
    </message>
    <message>
        <source>Overdue</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>متأخر</translation>
    </message>
    <message>
        <source>Fold the others</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>طي البقية</translation>
    </message>
    <message>
        <source>Close the filter</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إغلاق التصفية</translation>
    </message>
    <message>
        <source>Filter</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>التصفية</translation>
    </message>
    <message>
        <source>Text in title, number or details</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>نص في العنوان أو الرقم أو التفاصيل</translation>
    </message>
    <message>
        <source>Status</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الحالة</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الحكم</translation>
    </message>
    <message>
        <source>Responsible</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>المسؤول</translation>
    </message>
    <message>
        <source>Least number of votes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>أقل عدد من الأصوات</translation>
    </message>
    <message>
        <source>Anybody</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>أي شخص</translation>
    </message>
    <message>
        <source>Nobody</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لا أحد</translation>
    </message>
    <message numerus="yes">
        <source>%n found</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>عُثر على %n</numerusform>
            <numerusform>عُثر على %n</numerusform>
            <numerusform>عُثر على %n</numerusform>
            <numerusform>عُثر على %n</numerusform>
            <numerusform>عُثر على %n</numerusform>
            <numerusform>عُثر على %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Finder</name>
    <message>
        <source>No match</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لا توجد مطابقات</translation>
    </message>
    <message>
        <source>Match %1 of %2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>المطابقة %1 من %2</translation>
    </message>
    <message numerus="yes">
        <source>Replace %n text(s)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>استبدال %n نص</numerusform>
            <numerusform>استبدال %n نص</numerusform>
            <numerusform>استبدال %n نصين</numerusform>
            <numerusform>استبدال %n نصوص</numerusform>
            <numerusform>استبدال %n نصًا</numerusform>
            <numerusform>استبدال %n نص</numerusform>
        </translation>
    </message>
    <message>
        <source>Only titles and numbers can be replaced.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لا يمكن استبدال غير العناوين والأرقام.</translation>
    </message>
    <message numerus="yes">
        <source>%n text(s) replaced</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>استُبدل %n نص</numerusform>
            <numerusform>استُبدل %n نص</numerusform>
            <numerusform>استُبدل %n نصان</numerusform>
            <numerusform>استُبدلت %n نصوص</numerusform>
            <numerusform>استُبدل %n نصًا</numerusform>
            <numerusform>استُبدل %n نص</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FishInfo</name>
    <message>
        <source>no model shows the document</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لا يوجد نموذج بيانات يعرض المستند</translation>
    </message>
    <message>
        <source>the diagram nests too deep to be read again</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تداخل المخطط أعمق من أن يُقرأ ثانية</translation>
    </message>
    <message>
        <source>Save As</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>حفظ باسم</translation>
    </message>
    <message>
        <source>&apos;%1&apos; has been modified.
Do you want to save your changes?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تم تعديل «%1».
هل تريد حفظ التغييرات؟</translation>
    </message>
    <message>
        <source>FishInfo</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تغييرات غير محفوظة</translation>
    </message>
    <message>
        <source>fish%1.json</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>fish%1.json</translation>
    </message>
</context>
<context>
    <name>FishModel</name>
    <message>
        <source>自由主题</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>موضوع حر</translation>
    </message>
    <message>
        <source>the reply took too long or was too large</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>استغرق الرد وقتًا أطول أو كان أكبر من اللازم</translation>
    </message>
    <message>
        <source>there is no document to load it into</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لا يوجد مستند للتحميل فيه</translation>
    </message>
    <message>
        <source>个无父任务/共</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation> بلا مهمة أب / </translation>
    </message>
    <message>
        <source>个任务</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation> في المجموع</translation>
    </message>
</context>
<context>
    <name>HelpCommands</name>
    <message>
        <source>&amp;Keys…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مفاتيح الاختصار (&amp;ف)…</translation>
    </message>
    <message>
        <source>&amp;About Fishbone</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>حول Fishbone (&amp;ح)</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>حول مكتبة Qt (&amp;ك)</translation>
    </message>
    <message>
        <source>Version %1, library %2&lt;br&gt;Qt %3, built with %4&lt;br&gt;%5</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الإصدار %1، المكتبة %2&lt;br&gt;Qt %3، بُني باستخدام %4&lt;br&gt;%5</translation>
    </message>
    <message>
        <source>About Fishbone</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>حول Fishbone</translation>
    </message>
    <message>
        <source>Draws cause-and-effect diagrams of tasks.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>يرسم مخططات السبب والنتيجة للمهام.</translation>
    </message>
    <message>
        <source>Copyright © 2026 The Fishbone authors, under the MIT License</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>حقوق النشر © 2026 The Fishbone authors، بموجب رخصة MIT</translation>
    </message>
</context>
<context>
    <name>HistoryPanel</name>
    <message>
        <source>History</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>السجل</translation>
    </message>
    <message>
        <source>(beginning)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>(البداية)</translation>
    </message>
    <message numerus="yes">
        <source>%1 (%2 of %n)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>%1 (%2 من %n)</numerusform>
            <numerusform>%1 (%2 من %n)</numerusform>
            <numerusform>%1 (%2 من %n)</numerusform>
            <numerusform>%1 (%2 من %n)</numerusform>
            <numerusform>%1 (%2 من %n)</numerusform>
            <numerusform>%1 (%2 من %n)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (%n times)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>%1 (%n مرة)</numerusform>
            <numerusform>%1 (%n مرة)</numerusform>
            <numerusform>%1 (%n مرتان)</numerusform>
            <numerusform>%1 (%n مرات)</numerusform>
            <numerusform>%1 (%n مرة)</numerusform>
            <numerusform>%1 (%n مرة)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>HitList</name>
    <message>
        <source>Found</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الموجود</translation>
    </message>
    <message>
        <source>Will be</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>سيصبح</translation>
    </message>
    <message>
        <source>In</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الموضع</translation>
    </message>
</context>
<context>
    <name>HtmlPicture</name>
    <message>
        <source>Search</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>بحث</translation>
    </message>
    <message>
        <source>Expand all</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>توسيع الكل</translation>
    </message>
    <message>
        <source>Fold</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>طي</translation>
    </message>
    <message>
        <source>Fold to the categories</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>طي حتى الفئات</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تصغير</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تكبير</translation>
    </message>
    <message>
        <source>Fit</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ملاءمة</translation>
    </message>
    <message>
        <source>Show all</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إظهار الكل</translation>
    </message>
    <message>
        <source>Close</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>Fishbone diagram. Arrow keys move, Return shows details, the space bar folds.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مخطط عظم السمكة. مفاتيح الأسهم للتنقل، ومفتاح الإدخال لإظهار التفاصيل، ومفتاح المسافة للطي.</translation>
    </message>
</context>
<context>
    <name>ImportSummary</name>
    <message>
        <source>%1: %2 left out, %3 put into details.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1: أُسقط %2، ووُضع في التفاصيل %3.</translation>
    </message>
    <message>
        <source>Import</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>استيراد</translation>
    </message>
</context>
<context>
    <name>InsertBack</name>
    <message>
        <source>Insert subject back</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إدراج موضوع بعده</translation>
    </message>
</context>
<context>
    <name>InsertChild</name>
    <message>
        <source>Insert child subject</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إدراج موضوع فرعي</translation>
    </message>
</context>
<context>
    <name>InsertFree</name>
    <message>
        <source>Insert free subject</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إدراج موضوع حر</translation>
    </message>
</context>
<context>
    <name>InsertFront</name>
    <message>
        <source>Insert subject front</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إدراج موضوع قبله</translation>
    </message>
</context>
<context>
    <name>InsertParent</name>
    <message>
        <source>Insert subject as parent</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إدراج موضوع أب</translation>
    </message>
</context>
<context>
    <name>JsonDiagram</name>
    <message>
        <source>it is a JSON list, not a diagram, which is an object with a &quot;title&quot; and &quot;children&quot;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إنه قائمة JSON وليس مخططًا، والمخطط كائن فيه «title» و«children»</translation>
    </message>
    <message>
        <source>it is JSON of another kind: a diagram has a &quot;title&quot; and &quot;children&quot;, this has %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إنه JSON من نوع آخر: في المخطط «title» و«children»، وفي هذا %1</translation>
    </message>
    <message>
        <source>it is JSON of another kind: its &quot;title&quot; is no text</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إنه JSON من نوع آخر: «title» فيه ليس نصًا</translation>
    </message>
    <message>
        <source>it is JSON of another kind: its &quot;children&quot; are no list</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إنه JSON من نوع آخر: «children» فيه ليست قائمة</translation>
    </message>
</context>
<context>
    <name>JsonErrors</name>
    <message>
        <source>a name in quotes or } is missing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ينقص اسم بين علامتي اقتباس أو }</translation>
    </message>
    <message>
        <source>the colon behind a name is missing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تنقص النقطتان بعد اسم</translation>
    </message>
    <message>
        <source>a comma or ] is missing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تنقص فاصلة أو ]</translation>
    </message>
    <message>
        <source>the comma behind a value is missing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تنقص الفاصلة بعد قيمة</translation>
    </message>
    <message>
        <source>a text in quotes, a number, true, false, null, { or [ is missing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ينقص نص بين علامتي اقتباس أو عدد أو true أو false أو null أو { أو [</translation>
    </message>
    <message>
        <source>it ends with a number</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ينتهي بعدد</translation>
    </message>
    <message>
        <source>a backslash begins no escape sequence</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>شرطة مائلة عكسية لا تبدأ تسلسل هروب</translation>
    </message>
    <message>
        <source>a text is not encoded as UTF-8</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>يوجد نص غير مرمّز بـ UTF-8</translation>
    </message>
    <message>
        <source>the quote at the end of a text is missing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تنقص علامة الاقتباس في نهاية نص</translation>
    </message>
    <message>
        <source>a name or a value is missing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ينقص اسم أو قيمة</translation>
    </message>
    <message>
        <source>it nests too deep</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تداخله أعمق من اللازم</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إنه أكبر من اللازم</translation>
    </message>
    <message>
        <source>there is more behind its end</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>يوجد المزيد بعد نهايته</translation>
    </message>
    <message>
        <source>it is not a JSON document</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ليس مستند JSON</translation>
    </message>
    <message>
        <source>it is not a JSON document (line %1: %2)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ليس مستند JSON (السطر %1: %2)</translation>
    </message>
</context>
<context>
    <name>KeysDialog</name>
    <message>
        <source>Keys</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مفاتيح الاختصار</translation>
    </message>
    <message>
        <source>Search</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>بحث</translation>
    </message>
    <message>
        <source>Command</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الأمر</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>Lang&amp;uage</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>اللغة (Language) (&amp;غ)</translation>
    </message>
    <message>
        <source>&amp;System language</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لغة النظام (&amp;ن)</translation>
    </message>
</context>
<context>
    <name>LinkOpener</name>
    <message>
        <source>Open link</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>فتح الرابط</translation>
    </message>
    <message>
        <source>This link is neither a web page nor a mail address. Open it?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>هذا الرابط ليس صفحة ويب ولا عنوان بريد. هل تريد فتحه؟</translation>
    </message>
</context>
<context>
    <name>LoadFailure</name>
    <message>
        <source>it is a folder</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إنه مجلد</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لا يوجد ملف كهذا</translation>
    </message>
    <message>
        <source>its ending is none of those that can be read: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>امتداده ليس من الامتدادات التي يمكن قراءتها: %1</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إنه فارغ</translation>
    </message>
</context>
<context>
    <name>LoadProgress</name>
    <message>
        <source>Loading</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>جارٍ التحميل</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>%1 received</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>استُلم %1</translation>
    </message>
</context>
<context>
    <name>LookChoice</name>
    <message>
        <source>%1 or %2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 أو %2</translation>
    </message>
    <message>
        <source>Draw in the &lt;look&gt; %1; the first one is the default.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الرسم بالمظهر &lt;look&gt; وهو %1؛ والأول هو الافتراضي.</translation>
    </message>
    <message>
        <source>Arrange the drawing for &lt;page&gt;: 16:9, A4, A3, Letter, or a size such as 1920x1080 or 297x210mm. A PDF has a page of that size.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ترتيب الرسم للصفحة &lt;page&gt;: 16:9 أو A4 أو A3 أو Letter أو حجم مثل 1920x1080 أو 297x210mm. وتكون صفحة PDF بهذا الحجم.</translation>
    </message>
    <message>
        <source>Explain the icons below the drawing, which is the default.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>شرح الأيقونات أسفل الرسم، وهو الافتراضي.</translation>
    </message>
    <message>
        <source>Leave out the explanation of the icons.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إسقاط شرح الأيقونات.</translation>
    </message>
    <message>
        <source>Draw in &lt;colours&gt;: colour (the default), warm, cool, gray or dark.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الرسم بالألوان &lt;colours&gt;: colour (الافتراضي) أو warm أو cool أو gray أو dark.</translation>
    </message>
    <message>
        <source>Draw the head on the &lt;side&gt;: right (the default) or left.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>رسم الرأس في الجانب &lt;side&gt;: right (الافتراضي) أو left.</translation>
    </message>
    <message>
        <source>--%1 takes %2, not &quot;%3&quot;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الخيار --%1 يقبل %2 وليس «%3»</translation>
    </message>
    <message>
        <source>--%1 needs the clear look</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الخيار --%1 يتطلب المظهر الواضح</translation>
    </message>
    <message>
        <source>colour, warm, cool, gray or dark</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>colour أو warm أو cool أو gray أو dark</translation>
    </message>
    <message>
        <source>left or right</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>left أو right</translation>
    </message>
    <message>
        <source>16:9, A4, A3, Letter or a size such as 1920x1080 or 297x210mm</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>16:9 أو A4 أو A3 أو Letter أو حجم مثل 1920x1080 أو 297x210mm</translation>
    </message>
</context>
<context>
    <name>LookCommands</name>
    <message>
        <source>Look: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>المظهر: %1</translation>
    </message>
    <message>
        <source>Loo&amp;k</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>المظهر (&amp;ظ)</translation>
    </message>
    <message>
        <source>Arrang&amp;e for page</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الترتيب حسب الصفحة (&amp;ف)</translation>
    </message>
    <message>
        <source>&amp;Screen</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الشاشة (&amp;ش)</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لوحة الألوان (&amp;ل)</translation>
    </message>
    <message>
        <source>&amp;Take off all own colours and styles</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إزالة كل الألوان والأنماط الخاصة (&amp;ز)</translation>
    </message>
    <message numerus="yes">
        <source>%n subject(s) changed</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>تغيّر %n موضوع</numerusform>
            <numerusform>تغيّر %n موضوع</numerusform>
            <numerusform>تغيّر %n موضوعان</numerusform>
            <numerusform>تغيّرت %n مواضيع</numerusform>
            <numerusform>تغيّر %n موضوعًا</numerusform>
            <numerusform>تغيّر %n موضوع</numerusform>
        </translation>
    </message>
    <message>
        <source>No subject has a colour or a style of its own</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ليس لأي موضوع لون أو نمط خاص</translation>
    </message>
    <message>
        <source>Lines of &amp;titles</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>أسطر العناوين (&amp;س)</translation>
    </message>
    <message>
        <source>&amp;Not broken</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>بلا تقسيم (&amp;ت)</translation>
    </message>
    <message>
        <source>&amp;Long</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>طويلة (&amp;ط)</translation>
    </message>
    <message>
        <source>&amp;Medium</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>متوسطة (&amp;م)</translation>
    </message>
    <message>
        <source>&amp;Short</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>قصيرة (&amp;ق)</translation>
    </message>
    <message>
        <source>&amp;Bones on both sides</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>العظام على الجانبين (&amp;ج)</translation>
    </message>
    <message>
        <source>&amp;Head on the left</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الرأس على اليسار (&amp;ر)</translation>
    </message>
    <message>
        <source>&amp;Legend</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>وسيلة الإيضاح (&amp;و)</translation>
    </message>
</context>
<context>
    <name>LookInfo</name>
    <message>
        <source>&amp;Clear</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>واضح (&amp;ض)</translation>
    </message>
    <message>
        <source>Cl&amp;assic</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>كلاسيكي (&amp;ك)</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Float</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تعويم</translation>
    </message>
    <message>
        <source>Takes the panel out of the window, or back into it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>يُخرج اللوحة من النافذة أو يعيدها إليها</translation>
    </message>
    <message>
        <source>Close</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>Closes the panel</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>يغلق اللوحة</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>التفاصيل (&amp;ص)</translation>
    </message>
    <message>
        <source>Filt&amp;er…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تصفية (&amp;ت)…</translation>
    </message>
    <message>
        <source>Subjects</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>المواضيع</translation>
    </message>
    <message>
        <source>Details</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>التفاصيل</translation>
    </message>
    <message>
        <source>History</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>السجل</translation>
    </message>
    <message>
        <source>Overview</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>نظرة عامة</translation>
    </message>
    <message>
        <source>Actions</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الإجراءات</translation>
    </message>
    <message>
        <source>Shown be&amp;fore</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>المعروض سابقًا (&amp;ب)</translation>
    </message>
    <message>
        <source>&amp;Panels</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>اللوحات (&amp;ل)</translation>
    </message>
    <message>
        <source>Nothing opens %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لا يوجد برنامج يفتح %1</translation>
    </message>
    <message numerus="yes">
        <source>%n task(s) moved to %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>نُقلت %n مهمة إلى %1</numerusform>
            <numerusform>نُقلت %n مهمة إلى %1</numerusform>
            <numerusform>نُقلت %n مهمتان إلى %1</numerusform>
            <numerusform>نُقلت %n مهام إلى %1</numerusform>
            <numerusform>نُقلت %n مهمة إلى %1</numerusform>
            <numerusform>نُقلت %n مهمة إلى %1</numerusform>
        </translation>
    </message>
    <message>
        <source>the top</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>المستوى الأعلى</translation>
    </message>
    <message>
        <source>%1[*] – Fishbone</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1[*] – Fishbone</translation>
    </message>
    <message>
        <source>Fishbone</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Fishbone</translation>
    </message>
</context>
<context>
    <name>MappingDialog</name>
    <message>
        <source>Import %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>استيراد %1</translation>
    </message>
    <message>
        <source>Read as</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>القراءة على أنها</translation>
    </message>
    <message>
        <source>What the columns stand for, with the first rows of the table:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ما تمثله الأعمدة، مع الصفوف الأولى من الجدول:</translation>
    </message>
    <message>
        <source>Read &quot;%1&quot; as</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>قراءة «%1» على أنه</translation>
    </message>
</context>
<context>
    <name>MarkCommands</name>
    <message>
        <source>&amp;Suspected</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مشتبه به (&amp;ش)</translation>
    </message>
    <message>
        <source>Being &amp;checked</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>قيد التحقق (&amp;ح)</translation>
    </message>
    <message>
        <source>Con&amp;firmed</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مؤكد (&amp;ك)</translation>
    </message>
    <message>
        <source>&amp;Ruled out</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مستبعد (&amp;س)</translation>
    </message>
    <message>
        <source>R&amp;oot cause</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>سبب جذري (&amp;ج)</translation>
    </message>
    <message>
        <source>&amp;No verdict</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>بلا حكم (&amp;ب)</translation>
    </message>
    <message>
        <source>&amp;Waiting</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>قيد الانتظار (&amp;ق)</translation>
    </message>
    <message>
        <source>Waiting for &amp;approval</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>بانتظار الموافقة (&amp;ب)</translation>
    </message>
    <message>
        <source>&amp;Under way</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>جارٍ (&amp;ج)</translation>
    </message>
    <message>
        <source>&amp;Finished</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مكتمل (&amp;ك)</translation>
    </message>
    <message>
        <source>Finished &amp;late</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مكتمل بعد الموعد (&amp;ع)</translation>
    </message>
    <message>
        <source>&amp;Postponed</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مؤجل (&amp;م)</translation>
    </message>
    <message>
        <source>&amp;Cancelled</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ملغى (&amp;ل)</translation>
    </message>
    <message>
        <source>&amp;No status</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>بلا حالة (&amp;ح)</translation>
    </message>
    <message>
        <source>&amp;1 (highest)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;1 (الأعلى)</translation>
    </message>
    <message>
        <source>&amp;2 (high)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;2 (عالية)</translation>
    </message>
    <message>
        <source>&amp;3 (medium)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;3 (متوسطة)</translation>
    </message>
    <message>
        <source>&amp;4 (low)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;4 (منخفضة)</translation>
    </message>
    <message>
        <source>&amp;5 (lowest)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;5 (الأدنى)</translation>
    </message>
    <message>
        <source>&amp;No priority</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>بلا أولوية (&amp;و)</translation>
    </message>
    <message>
        <source>&amp;Blue</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>أزرق (&amp;ز)</translation>
    </message>
    <message>
        <source>&amp;Teal</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>أزرق مخضر (&amp;خ)</translation>
    </message>
    <message>
        <source>&amp;Green</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>أخضر (&amp;ض)</translation>
    </message>
    <message>
        <source>Bro&amp;wn</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>بني (&amp;ب)</translation>
    </message>
    <message>
        <source>&amp;Orange</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>برتقالي (&amp;ت)</translation>
    </message>
    <message>
        <source>&amp;Red</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>أحمر (&amp;ح)</translation>
    </message>
    <message>
        <source>&amp;Purple</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>بنفسجي (&amp;ج)</translation>
    </message>
    <message>
        <source>Gr&amp;ey</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>رمادي (&amp;م)</translation>
    </message>
    <message>
        <source>Mar&amp;k</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>وضع علامة (&amp;و)</translation>
    </message>
    <message>
        <source>Mark at the bo&amp;ne</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>وضع علامة عند العظمة (&amp;د)</translation>
    </message>
    <message>
        <source>R&amp;esponsible…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>المسؤول (&amp;م)…</translation>
    </message>
    <message>
        <source>Change verdict</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تغيير الحكم</translation>
    </message>
    <message>
        <source>Vote</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>التصويت</translation>
    </message>
    <message>
        <source>One vote &amp;more</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>زيادة صوت (&amp;ز)</translation>
    </message>
    <message>
        <source>One vote &amp;less</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إنقاص صوت (&amp;ق)</translation>
    </message>
    <message>
        <source>Sort it and its siblings &amp;by votes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ترتيب مع الأشقاء حسب الأصوات (&amp;ت)</translation>
    </message>
    <message>
        <source>S&amp;tatus</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الحالة (&amp;ل)</translation>
    </message>
    <message>
        <source>Change status</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تغيير الحالة</translation>
    </message>
    <message>
        <source>&amp;Priority</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الأولوية (&amp;و)</translation>
    </message>
    <message>
        <source>Change priority</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تغيير الأولوية</translation>
    </message>
    <message>
        <source>Colo&amp;ur</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>اللون (&amp;ن)</translation>
    </message>
    <message>
        <source>Change colour</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تغيير اللون</translation>
    </message>
    <message>
        <source>That of the p&amp;alette</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>من لوحة الألوان (&amp;ل)</translation>
    </message>
    <message>
        <source>Ot&amp;her…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لون آخر (&amp;ن)…</translation>
    </message>
    <message>
        <source>Colour of the bone</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لون العظمة</translation>
    </message>
    <message>
        <source>Responsible</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>المسؤول</translation>
    </message>
    <message>
        <source>Who is responsible?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>من المسؤول؟</translation>
    </message>
    <message>
        <source>Change who is responsible</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تغيير المسؤول</translation>
    </message>
    <message>
        <source>Sort by votes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ترتيب حسب الأصوات</translation>
    </message>
    <message>
        <source>Sorted by votes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>رُتّب حسب الأصوات</translation>
    </message>
</context>
<context>
    <name>MarkNames</name>
    <message>
        <source>none</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لا يوجد</translation>
    </message>
    <message>
        <source>unknown</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>غير معروف</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ملغى</translation>
    </message>
    <message>
        <source>finished</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مكتمل</translation>
    </message>
    <message>
        <source>finished late</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مكتمل بعد الموعد</translation>
    </message>
    <message>
        <source>postponed</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مؤجل</translation>
    </message>
    <message>
        <source>under way</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>جارٍ</translation>
    </message>
    <message>
        <source>waiting</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>قيد الانتظار</translation>
    </message>
    <message>
        <source>waiting for approval</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>بانتظار الموافقة</translation>
    </message>
    <message>
        <source>suspected</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مشتبه به</translation>
    </message>
    <message>
        <source>being checked</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>قيد التحقق</translation>
    </message>
    <message>
        <source>confirmed</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مؤكد</translation>
    </message>
    <message>
        <source>ruled out</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مستبعد</translation>
    </message>
    <message>
        <source>root cause</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>سبب جذري</translation>
    </message>
</context>
<context>
    <name>MeetingReport</name>
    <message>
        <source>it may be a cause</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>قد يكون سببًا</translation>
    </message>
    <message>
        <source>somebody is looking into it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>هناك من يتحقق منه</translation>
    </message>
    <message>
        <source>it contributes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>له أثر</translation>
    </message>
    <message>
        <source>it does not contribute</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ليس له أثر</translation>
    </message>
    <message>
        <source>all comes from it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>كل شيء ناتج عنه</translation>
    </message>
    <message>
        <source>Ranked causes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ترتيب الأسباب</translation>
    </message>
    <message>
        <source>Cause</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>السبب</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الحكم</translation>
    </message>
    <message>
        <source>Votes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الأصوات</translation>
    </message>
    <message>
        <source>Evidence</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الأدلة</translation>
    </message>
    <message>
        <source>No cause has a verdict or votes.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ليس لأي سبب حكم أو أصوات.</translation>
    </message>
    <message>
        <source>Nobody yet</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لا أحد بعد</translation>
    </message>
    <message>
        <source>Action</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الإجراء</translation>
    </message>
    <message>
        <source>Status</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الحالة</translation>
    </message>
    <message>
        <source>Progress</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>التقدم</translation>
    </message>
    <message>
        <source>Until</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الموعد</translation>
    </message>
    <message>
        <source>%1, overdue</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1، متأخر</translation>
    </message>
    <message>
        <source>Legend</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>وسيلة الإيضاح</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>المعنى</translation>
    </message>
    <message>
        <source>Actions</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الإجراءات</translation>
    </message>
    <message>
        <source>Nobody is to do anything.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لا يوجد ما يجب على أحد فعله.</translation>
    </message>
    <message>
        <source>In</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الموضع</translation>
    </message>
    <message>
        <source>Responsible</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>المسؤول</translation>
    </message>
    <message>
        <source>Overdue</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>متأخر</translation>
    </message>
    <message>
        <source>yes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>نعم</translation>
    </message>
    <message>
        <source>its name must end in .html, .pdf or .md</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>يجب أن ينتهي اسمه بواحد من .html أو .pdf أو .md</translation>
    </message>
    <message>
        <source>its name must end in .csv or .md</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>يجب أن ينتهي اسمه بـ .csv أو .md</translation>
    </message>
</context>
<context>
    <name>Menus</name>
    <message>
        <source>&amp;File</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ملف (&amp;م)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تحرير (&amp;ح)</translation>
    </message>
    <message>
        <source>&amp;Subject</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>موضوع (&amp;ض)</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>انتقال (&amp;ا)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>عرض (&amp;ع)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مساعدة (&amp;س)</translation>
    </message>
    <message>
        <source>File</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ملف</translation>
    </message>
    <message>
        <source>Edit</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تحرير</translation>
    </message>
    <message>
        <source>Subject</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>موضوع</translation>
    </message>
    <message>
        <source>View</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>عرض</translation>
    </message>
</context>
<context>
    <name>Minimap</name>
    <message>
        <source>Overview of the drawing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>نظرة عامة على الرسم</translation>
    </message>
</context>
<context>
    <name>ModifyDelLink</name>
    <message>
        <source>Delete link</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إزالة الرابط</translation>
    </message>
</context>
<context>
    <name>ModifyLinkTo</name>
    <message>
        <source>Modify link to</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تغيير الرابط</translation>
    </message>
</context>
<context>
    <name>ModifyName</name>
    <message>
        <source>Modify subject name</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إعادة تسمية الموضوع</translation>
    </message>
</context>
<context>
    <name>MoveCommands</name>
    <message>
        <source>Move &amp;up</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>نقل لأعلى (&amp;ن)</translation>
    </message>
    <message>
        <source>Move do&amp;wn</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>نقل لأسفل (&amp;س)</translation>
    </message>
    <message>
        <source>Pro&amp;mote (beside its parent)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ترقية (بجانب الأب) (&amp;ج)</translation>
    </message>
    <message>
        <source>D&amp;emote (below the one before)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>خفض (تحت السابق) (&amp;خ)</translation>
    </message>
</context>
<context>
    <name>Palettes</name>
    <message>
        <source>&amp;Colours</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ملونة (&amp;م)</translation>
    </message>
    <message>
        <source>&amp;Warm</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>دافئة (&amp;د)</translation>
    </message>
    <message>
        <source>C&amp;ool</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>باردة (&amp;ب)</translation>
    </message>
    <message>
        <source>&amp;Grey</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>رمادية (&amp;ر)</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>داكنة (&amp;ك)</translation>
    </message>
</context>
<context>
    <name>PasteDialog</name>
    <message>
        <source>Paste</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لصق</translation>
    </message>
    <message>
        <source>Lines</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>أسطر</translation>
    </message>
    <message>
        <source>Lines with links and emphasis</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>أسطر فيها روابط وتشديد</translation>
    </message>
    <message>
        <source>Rows of a table</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>صفوف جدول</translation>
    </message>
    <message>
        <source>Title</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>Details</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>التفاصيل</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لصق (&amp;ل)</translation>
    </message>
    <message>
        <source>&amp;Read as:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>القراءة على أنها (&amp;ق):</translation>
    </message>
</context>
<context>
    <name>PenSelect</name>
    <message>
        <source>NoPen</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>بلا خط</translation>
    </message>
    <message>
        <source>SolidLine</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>متصل</translation>
    </message>
    <message>
        <source>DashLine</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>شرطات</translation>
    </message>
    <message>
        <source>DotLine</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>نقاط</translation>
    </message>
    <message>
        <source>DashDotLine</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>شرطة ونقطة</translation>
    </message>
    <message>
        <source>DashDotDotLine</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>شرطة ونقطتان</translation>
    </message>
    <message>
        <source>FlatCap</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مسطح</translation>
    </message>
    <message>
        <source>SquareCap</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مربع</translation>
    </message>
    <message>
        <source>RoundCap</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مستدير</translation>
    </message>
    <message>
        <source>MiterJoin</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>حاد</translation>
    </message>
    <message>
        <source>BevelJoin</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مشطوف</translation>
    </message>
    <message>
        <source>RoundJoin</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مستدير</translation>
    </message>
    <message>
        <source>PenWidth</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>السُمك:</translation>
    </message>
    <message>
        <source>PenStyle</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الخط:</translation>
    </message>
    <message>
        <source>PenCapStyle</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الأطراف:</translation>
    </message>
    <message>
        <source>PenJoinStyle</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الزوايا:</translation>
    </message>
    <message>
        <source>PenColor</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>اللون:</translation>
    </message>
    <message>
        <source>Pen</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>القلم</translation>
    </message>
    <message>
        <source>Color</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>اختيار…</translation>
    </message>
    <message>
        <source>Accept</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>موافق</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إلغاء</translation>
    </message>
</context>
<context>
    <name>PictureExport</name>
    <message>
        <source>%1; it fits at a scale of %2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1؛ يتسع عند المقياس %2</translation>
    </message>
    <message>
        <source>the scale, the size or the margin makes no picture</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>المقياس أو الحجم أو الهامش لا ينتج صورة</translation>
    </message>
    <message>
        <source>there is nothing to draw</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لا يوجد ما يُرسم</translation>
    </message>
    <message>
        <source>a drawing without height or width needs a margin</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الرسم الذي بلا ارتفاع أو عرض يحتاج إلى هامش</translation>
    </message>
    <message>
        <source>the file name must end in .png, .svg or .pdf</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>يجب أن ينتهي اسم الملف بواحد من .png أو .svg أو .pdf</translation>
    </message>
    <message>
        <source>a picture of %1 × %2 is too large: %3</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>صورة بحجم %1 × %2 أكبر من اللازم: %3</translation>
    </message>
    <message>
        <source>a PDF has at most %1 points (1/72 inch) on a side</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>أقصى طول لضلع PDF هو %1 نقطة (1/72 بوصة)</translation>
    </message>
    <message>
        <source>a PNG has at most %1 pixels on a side</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>أقصى طول لضلع PNG هو %1 بكسل</translation>
    </message>
    <message>
        <source>its pixels would take more than %1 MiB</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ستأخذ بكسلاتها أكثر من %1 ميبيبايت</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لا توجد ذاكرة كافية</translation>
    </message>
    <message>
        <source>an SVG of it would have more than %1 MiB; a PDF is smaller</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>حجم SVG منه سيتجاوز %1 ميبيبايت؛ و PDF أصغر</translation>
    </message>
    <message>
        <source>a side has at most %1 units</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>أقصى طول للضلع هو %1 وحدة</translation>
    </message>
    <message>
        <source>there is no such format</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لا يوجد تنسيق كهذا</translation>
    </message>
    <message>
        <source>it was cancelled</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>أُلغي</translation>
    </message>
    <message>
        <source>the drawing cannot be encoded</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>يتعذر ترميز الرسم</translation>
    </message>
</context>
<context>
    <name>PictureLevelFields</name>
    <message>
        <source>As shown</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>كما هو معروض</translation>
    </message>
    <message>
        <source>All levels</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>كل المستويات</translation>
    </message>
    <message>
        <source>Levels below the main bones:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>المستويات تحت العظام الرئيسية:</translation>
    </message>
    <message>
        <source>Levels below the main bones</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>المستويات تحت العظام الرئيسية</translation>
    </message>
    <message>
        <source>&amp;Expanded:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>التوسيع (&amp;ت):</translation>
    </message>
</context>
<context>
    <name>PictureLookFields</name>
    <message>
        <source>Le&amp;gend</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>وسيلة الإيضاح (&amp;و)</translation>
    </message>
    <message>
        <source>Loo&amp;k:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>المظهر (&amp;ظ):</translation>
    </message>
    <message>
        <source>As on the screen</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>كما على الشاشة</translation>
    </message>
    <message>
        <source>&amp;Page:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الصفحة (&amp;ص):</translation>
    </message>
    <message>
        <source>On the right</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>على اليمين</translation>
    </message>
    <message>
        <source>On the left</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>على اليسار</translation>
    </message>
    <message>
        <source>Pale&amp;tte:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لوحة الألوان (&amp;ل):</translation>
    </message>
    <message>
        <source>Hea&amp;d:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الرأس (&amp;ر):</translation>
    </message>
</context>
<context>
    <name>PicturePreview</name>
    <message>
        <source>Preview</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>معاينة</translation>
    </message>
</context>
<context>
    <name>PictureSizeFields</name>
    <message>
        <source> px</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation> بكسل</translation>
    </message>
    <message>
        <source>Sc&amp;ale:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>المقياس (&amp;ق):</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>العرض (&amp;ع):</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الارتفاع (&amp;ا):</translation>
    </message>
    <message>
        <source>A page of %1 × %2 mm</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>صفحة بحجم %1 × %2 مم</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 × %2 بكسل</translation>
    </message>
    <message>
        <source>&amp;Use %1, which fits</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>استخدام %1 المناسب (&amp;د)</translation>
    </message>
</context>
<context>
    <name>PrintPreview</name>
    <message>
        <source>Arranged for the paper</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مرتب للورق</translation>
    </message>
    <message>
        <source>Legend</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>وسيلة الإيضاح</translation>
    </message>
    <message>
        <source>Print preview</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>معاينة الطباعة</translation>
    </message>
    <message>
        <source>Size on paper</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الحجم على الورق</translation>
    </message>
    <message>
        <source>Fit one page</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ملاءمة صفحة واحدة</translation>
    </message>
    <message>
        <source>Fit the width of the page</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ملاءمة عرض الصفحة</translation>
    </message>
    <message>
        <source>Scale</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مقياس</translation>
    </message>
    <message>
        <source>Scale in percent</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>المقياس بالنسبة المئوية</translation>
    </message>
    <message>
        <source>Look</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>المظهر</translation>
    </message>
    <message>
        <source>Palette</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لوحة الألوان</translation>
    </message>
    <message>
        <source>Printing…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>جارٍ الطباعة…</translation>
    </message>
    <message numerus="yes">
        <source>%n page(s)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>%n صفحة</numerusform>
            <numerusform>%n صفحة</numerusform>
            <numerusform>%n صفحتان</numerusform>
            <numerusform>%n صفحات</numerusform>
            <numerusform>%n صفحة</numerusform>
            <numerusform>%n صفحة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Nothing to print, or more than %n page(s)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>لا يوجد ما يُطبع، أو أكثر من %n صفحة</numerusform>
            <numerusform>لا يوجد ما يُطبع، أو أكثر من %n صفحة</numerusform>
            <numerusform>لا يوجد ما يُطبع، أو أكثر من %n صفحتين</numerusform>
            <numerusform>لا يوجد ما يُطبع، أو أكثر من %n صفحات</numerusform>
            <numerusform>لا يوجد ما يُطبع، أو أكثر من %n صفحة</numerusform>
            <numerusform>لا يوجد ما يُطبع، أو أكثر من %n صفحة</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, at %2 % so that no title is cut</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1، بمقياس %2% كيلا يُقطع أي عنوان</translation>
    </message>
</context>
<context>
    <name>PriorityBox</name>
    <message>
        <source>none</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لا يوجد</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>新建子任务</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مهمة فرعية جديدة</translation>
    </message>
    <message>
        <source>查看详情</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إظهار التفاصيل</translation>
    </message>
    <message>
        <source>用鱼骨图详细查看</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>عرض كمخطط مستقل</translation>
    </message>
    <message>
        <source>编辑节点</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تحرير الموضوع</translation>
    </message>
    <message>
        <source>新建子节点</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>موضوع فرعي جديد</translation>
    </message>
    <message>
        <source>删除节点</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>حذف الموضوع</translation>
    </message>
</context>
<context>
    <name>RankedList</name>
    <message>
        <source>Ranked causes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ترتيب الأسباب</translation>
    </message>
    <message>
        <source>Votes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الأصوات</translation>
    </message>
    <message>
        <source>Cause</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>السبب</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الحكم</translation>
    </message>
    <message>
        <source>In</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الموضع</translation>
    </message>
</context>
<context>
    <name>RecentFiles</name>
    <message>
        <source>&amp;Recent files</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الملفات الأخيرة (&amp;خ)</translation>
    </message>
    <message>
        <source>(nothing yet)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>(لا شيء بعد)</translation>
    </message>
    <message>
        <source>&amp;Clear the list</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مسح القائمة (&amp;م)</translation>
    </message>
</context>
<context>
    <name>RecoveryCommands</name>
    <message>
        <source>Reco&amp;ver documents…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>استرداد المستندات (&amp;د)…</translation>
    </message>
    <message>
        <source>There is nothing to recover.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لا يوجد ما يُسترد.</translation>
    </message>
    <message>
        <source>%1 recovered</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>استُرد %1</translation>
    </message>
    <message>
        <source>Recover documents</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>استرداد المستندات</translation>
    </message>
    <message>
        <source>%1 cannot be recovered from %2: %3.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>يتعذر استرداد %1 من %2: %3.</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>Recover documents</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>استرداد المستندات</translation>
    </message>
    <message>
        <source>The program did not end well the last time. These documents have changes that were not saved:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لم ينتهِ البرنامج في المرة السابقة على نحو سليم. في هذه المستندات تغييرات غير محفوظة:</translation>
    </message>
    <message>
        <source>Documents with changes that were not saved</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مستندات فيها تغييرات غير محفوظة</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>فتح (&amp;ف)</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تجاهل (&amp;ت)</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لاحقًا (&amp;ل)</translation>
    </message>
    <message>
        <source>Discard</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تجاهل</translation>
    </message>
    <message numerus="yes">
        <source>Give up the changes of %n document(s) for good?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>هل تريد التخلي نهائيًا عن تغييرات %n مستند؟</numerusform>
            <numerusform>هل تريد التخلي نهائيًا عن تغييرات %n مستند؟</numerusform>
            <numerusform>هل تريد التخلي نهائيًا عن تغييرات %n مستندين؟</numerusform>
            <numerusform>هل تريد التخلي نهائيًا عن تغييرات %n مستندات؟</numerusform>
            <numerusform>هل تريد التخلي نهائيًا عن تغييرات %n مستندًا؟</numerusform>
            <numerusform>هل تريد التخلي نهائيًا عن تغييرات %n مستند؟</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RecoveryModel</name>
    <message>
        <source>Document</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>المستند</translation>
    </message>
    <message>
        <source>File</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الملف</translation>
    </message>
    <message>
        <source>Autosaved</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>وقت الحفظ التلقائي</translation>
    </message>
    <message>
        <source>Size</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الحجم</translation>
    </message>
    <message>
        <source>(never saved)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>(لم يُحفظ قط)</translation>
    </message>
</context>
<context>
    <name>ReplaceFindDialog</name>
    <message>
        <source>Finder</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>بحث واستبدال</translation>
    </message>
    <message>
        <source>Find what:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>البحث عن:</translation>
    </message>
    <message>
        <source>Replace with:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الاستبدال بـ:</translation>
    </message>
    <message>
        <source>Case sensitive</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مطابقة حالة الأحرف</translation>
    </message>
    <message>
        <source>Find</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>بحث</translation>
    </message>
    <message>
        <source>Replace</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>استبدال</translation>
    </message>
    <message>
        <source>Replace All</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>استبدال الكل</translation>
    </message>
    <message>
        <source>Column</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>العمود</translation>
    </message>
    <message>
        <source>title</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>uuid</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Uuid</translation>
    </message>
    <message>
        <source>showid</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الرقم</translation>
    </message>
    <message>
        <source>pid</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Uuid المهمة الأب</translation>
    </message>
    <message>
        <source>Not found key word %1.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لم يُعثر على «%1».</translation>
    </message>
</context>
<context>
    <name>ReportCommands</name>
    <message>
        <source>Meetin&amp;g report…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تقرير الاجتماع (&amp;ر)…</translation>
    </message>
    <message>
        <source>Meeting report</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تقرير الاجتماع</translation>
    </message>
    <message>
        <source>Ta&amp;ble of actions…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>جدول الإجراءات (&amp;ا)…</translation>
    </message>
    <message>
        <source>Actions</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الإجراءات</translation>
    </message>
    <message>
        <source>Page for the browser (*.html)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>صفحة للمتصفح (*.html)</translation>
    </message>
    <message>
        <source>Markdown and a picture (*.md)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ملف Markdown وصورة (*.md)</translation>
    </message>
    <message>
        <source>actions</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الإجراءات</translation>
    </message>
    <message>
        <source>Table for spreadsheets (*.csv)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>جدول لبرامج الجداول (*.csv)</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>كُتب %1</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تتعذر كتابة %1: %2.</translation>
    </message>
    <message>
        <source>Print act&amp;ions…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>طباعة الإجراءات (&amp;ع)…</translation>
    </message>
</context>
<context>
    <name>SlideExport</name>
    <message>
        <source>Fishbone diagram &quot;%1&quot; with %2 causes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مخطط عظم السمكة «%1»، عدد الأسباب %2</translation>
    </message>
    <message>
        <source>there is nothing to draw</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لا يوجد ما يُرسم</translation>
    </message>
    <message>
        <source>Actions</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الإجراءات</translation>
    </message>
</context>
<context>
    <name>SourceDialogs</name>
    <message>
        <source>Fishbone diagrams (*.json);;%1;;All files (*)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مخططات عظم السمكة (*.json);;%1;;كل الملفات (*)</translation>
    </message>
    <message>
        <source>Open</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>فتح</translation>
    </message>
    <message>
        <source>Import</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>استيراد</translation>
    </message>
    <message>
        <source>Loading %1…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>جارٍ تحميل %1…</translation>
    </message>
</context>
<context>
    <name>SpearStyleDialog</name>
    <message>
        <source>Spear style</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>النمط</translation>
    </message>
    <message>
        <source>InheritanceParent</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>وراثة نمط الأب</translation>
    </message>
    <message>
        <source>Preview</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>معاينة</translation>
    </message>
    <message>
        <source>ssNormal</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>عادي</translation>
    </message>
    <message>
        <source>ssSelected</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>محدد</translation>
    </message>
    <message>
        <source>ssHovered</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تحت الفأرة</translation>
    </message>
    <message>
        <source>ssLinked</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>وجهة النقل</translation>
    </message>
    <message>
        <source>Preview 预览测试 ABC xyz</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>معاينة ABC xyz 123</translation>
    </message>
    <message>
        <source>textCount</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>عدد الأحرف المعروضة:</translation>
    </message>
    <message>
        <source>SpearState</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الحالة:</translation>
    </message>
    <message>
        <source>Accept</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>موافق</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Parent</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الأب</translation>
    </message>
    <message>
        <source>Set TextFont</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>خط النص…</translation>
    </message>
    <message>
        <source>Set TextColor</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>لون النص…</translation>
    </message>
    <message>
        <source>Set TextBkColor</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>خلفية النص…</translation>
    </message>
    <message>
        <source>Set BroderPen</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>قلم الإطار…</translation>
    </message>
</context>
<context>
    <name>StepNames</name>
    <message numerus="yes">
        <source>%1 “%2” and %n more</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>%1 «%2» و%n غيره</numerusform>
            <numerusform>%1 «%2» و%n غيره</numerusform>
            <numerusform>%1 «%2» و%n غيره</numerusform>
            <numerusform>%1 «%2» و%n غيره</numerusform>
            <numerusform>%1 «%2» و%n غيره</numerusform>
            <numerusform>%1 «%2» و%n غيره</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StringListEditor</name>
    <message>
        <source>Add</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إضافة</translation>
    </message>
    <message>
        <source>Remove</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إزالة</translation>
    </message>
</context>
<context>
    <name>SubjectClipboard</name>
    <message>
        <source>cannot paste the text: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>يتعذر لصق النص: %1</translation>
    </message>
</context>
<context>
    <name>SubjectStyles</name>
    <message>
        <source>The subject looks as the one above it, also when the style of that is changed</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>يبدو الموضوع كالذي فوقه، حتى عند تغيير نمط ذاك</translation>
    </message>
    <message>
        <source>Change style</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تغيير النمط</translation>
    </message>
    <message>
        <source>Remove style</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إزالة النمط</translation>
    </message>
    <message>
        <source>Take off own colours and styles</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إزالة الألوان والأنماط الخاصة</translation>
    </message>
</context>
<context>
    <name>SubjectTree</name>
    <message>
        <source>Filter by title</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تصفية حسب العنوان</translation>
    </message>
    <message>
        <source>Subjects</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>المواضيع</translation>
    </message>
</context>
<context>
    <name>TabButtons</name>
    <message>
        <source>Scroll left</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تمرير لليسار</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تمرير لليمين</translation>
    </message>
</context>
<context>
    <name>TabCommands</name>
    <message>
        <source>Next &amp;tab</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>علامة التبويب التالية (&amp;ل)</translation>
    </message>
    <message>
        <source>Previous t&amp;ab</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>علامة التبويب السابقة (&amp;م)</translation>
    </message>
</context>
<context>
    <name>TableMapping</name>
    <message>
        <source>Details</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>التفاصيل</translation>
    </message>
    <message>
        <source>Title</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>Title of one level</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>عنوان مستوى واحد</translation>
    </message>
    <message>
        <source>Id</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>المعرّف</translation>
    </message>
    <message>
        <source>Uuid</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Uuid</translation>
    </message>
    <message>
        <source>Short id</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>المعرّف القصير</translation>
    </message>
    <message>
        <source>Parent</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الأب</translation>
    </message>
    <message>
        <source>Level</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>المستوى</translation>
    </message>
    <message>
        <source>Outline number</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الرقم في المخطط التفصيلي</translation>
    </message>
    <message>
        <source>Status</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الحالة</translation>
    </message>
    <message>
        <source>Progress</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>التقدم</translation>
    </message>
    <message>
        <source>Priority</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الأولوية</translation>
    </message>
    <message>
        <source>Manager</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>المسؤول</translation>
    </message>
    <message>
        <source>Manager&apos;s id</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>معرّف المسؤول</translation>
    </message>
    <message>
        <source>Creator</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>المنشئ</translation>
    </message>
    <message>
        <source>Creator&apos;s id</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>معرّف المنشئ</translation>
    </message>
    <message>
        <source>Followers</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>المتابعون</translation>
    </message>
    <message>
        <source>Created</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تاريخ الإنشاء</translation>
    </message>
    <message>
        <source>Planned end</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الانتهاء المخطط</translation>
    </message>
    <message>
        <source>Link</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الرابط</translation>
    </message>
    <message>
        <source>Details text</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>نص التفاصيل</translation>
    </message>
    <message>
        <source>Type</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>النوع</translation>
    </message>
    <message>
        <source>Completed on</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تاريخ الاكتمال</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الحكم</translation>
    </message>
    <message>
        <source>Votes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الأصوات</translation>
    </message>
</context>
<context>
    <name>TemplateCommands</name>
    <message>
        <source>New from &amp;template…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>جديد من قالب (&amp;ق)…</translation>
    </message>
    <message>
        <source>Save as te&amp;mplate…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>حفظ كقالب (&amp;ك)…</translation>
    </message>
    <message>
        <source>New from template</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>جديد من قالب</translation>
    </message>
    <message>
        <source>%1 is no template: %2.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 ليس قالبًا: %2.</translation>
    </message>
    <message>
        <source>Save as template</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>حفظ كقالب</translation>
    </message>
    <message>
        <source>Name of the template:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>اسم القالب:</translation>
    </message>
    <message>
        <source>There is a template %1 already. Replace it?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>يوجد قالب %1 بالفعل. هل تريد استبداله؟</translation>
    </message>
    <message>
        <source>File &gt; New from template offers %1 now</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>أصبح «ملف &gt; جديد من قالب» يقدم %1</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تتعذر كتابة %1: %2.</translation>
    </message>
</context>
<context>
    <name>TemplateGallery</name>
    <message>
        <source>New from template</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>جديد من قالب</translation>
    </message>
    <message>
        <source>Templates</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>القوالب</translation>
    </message>
    <message>
        <source>C&amp;reate</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إنشاء (&amp;ن)</translation>
    </message>
    <message>
        <source>From a &amp;file…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>من ملف (&amp;م)…</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>حذف (&amp;ح)</translation>
    </message>
    <message>
        <source>Delete the template %1?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>هل تريد حذف القالب %1؟</translation>
    </message>
</context>
<context>
    <name>Templates</name>
    <message>
        <source>Empty</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>فارغ</translation>
    </message>
    <message>
        <source>6M: production</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>6M: الإنتاج</translation>
    </message>
    <message>
        <source>4S: services</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>4S: الخدمات</translation>
    </message>
    <message>
        <source>8P: marketing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>8P: التسويق</translation>
    </message>
    <message>
        <source>4P: administration</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>4P: الإدارة</translation>
    </message>
    <message>
        <source>5 whys</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>5 لماذا</translation>
    </message>
    <message>
        <source>Incident review</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مراجعة حادث</translation>
    </message>
    <message>
        <source>Project risks</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مخاطر المشروع</translation>
    </message>
</context>
<context>
    <name>TitleEditor</name>
    <message>
        <source>Title</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>العنوان</translation>
    </message>
</context>
<context>
    <name>TreeItem</name>
    <message>
        <source>负责人:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>المسؤول: </translation>
    </message>
    <message>
        <source>创建时间:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>أُنشئ في: </translation>
    </message>
    <message>
        <source>截止时间:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الانتهاء المخطط: </translation>
    </message>
    <message>
        <source>子主题</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>موضوع فرعي</translation>
    </message>
</context>
<context>
    <name>URLDialog</name>
    <message>
        <source>Input Url</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إدخال عنوان URL</translation>
    </message>
    <message>
        <source>Url:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>العنوان:</translation>
    </message>
    <message>
        <source>Clean</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>مسح السجل</translation>
    </message>
    <message>
        <source>Open</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>موافق</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Link to url</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>رابط إلى عنوان URL</translation>
    </message>
    <message>
        <source>Save url</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>حفظ في عنوان URL</translation>
    </message>
    <message>
        <source>Open url</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>فتح عنوان URL</translation>
    </message>
    <message>
        <source>Error</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>خطأ</translation>
    </message>
    <message>
        <source>Failed to open %1
%2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>يتعذر فتح %1
%2</translation>
    </message>
</context>
<context>
    <name>ViewCommands</name>
    <message>
        <source>Zoom &amp;in</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تكبير (&amp;ك)</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تصغير (&amp;ص)</translation>
    </message>
    <message>
        <source>&amp;100 %</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&amp;100%</translation>
    </message>
    <message>
        <source>&amp;Fit all</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ملاءمة الكل (&amp;م)</translation>
    </message>
    <message>
        <source>Fit &amp;selection</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ملاءمة التحديد (&amp;ح)</translation>
    </message>
    <message>
        <source>Rotate &amp;right</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تدوير لليمين (&amp;ن)</translation>
    </message>
    <message>
        <source>Rotate &amp;left</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تدوير لليسار (&amp;ي)</translation>
    </message>
    <message>
        <source>U&amp;pright</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>بلا تدوير (&amp;ل)</translation>
    </message>
    <message>
        <source>S&amp;how full screen</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ملء الشاشة (&amp;ش)</translation>
    </message>
    <message>
        <source>E&amp;xpand</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>توسيع (&amp;ت)</translation>
    </message>
    <message>
        <source>&amp;Contract</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>طي (&amp;ط)</translation>
    </message>
    <message>
        <source>Expand &amp;all</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>توسيع الكل (&amp;س)</translation>
    </message>
    <message>
        <source>Con&amp;tract all</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>طي الكل (&amp;ا)</translation>
    </message>
    <message>
        <source>Expanding all bones…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>جارٍ توسيع كل العظام…</translation>
    </message>
    <message>
        <source>Show as a &amp;diagram of its own</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>عرض كمخطط مستقل (&amp;ع)</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>رجوع (&amp;ر)</translation>
    </message>
    <message>
        <source>Show the &amp;whole diagram</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>عرض المخطط كاملًا (&amp;خ)</translation>
    </message>
    <message>
        <source>Style of &amp;all subjects…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>نمط كل المواضيع (&amp;ض)…</translation>
    </message>
    <message>
        <source>&amp;Diagram mode</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>وضع المخطط (&amp;و)</translation>
    </message>
    <message>
        <source>&amp;Task mode</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>وضع المهام (&amp;ه)</translation>
    </message>
    <message>
        <source>&amp;Just the drawing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الرسم فقط (&amp;ق)</translation>
    </message>
    <message>
        <source>(nothing yet)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>(لا شيء بعد)</translation>
    </message>
</context>
<context>
    <name>WalkCommands</name>
    <message>
        <source>To the &amp;left</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إلى اليسار (&amp;ي)</translation>
    </message>
    <message>
        <source>To the &amp;right</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إلى اليمين (&amp;ن)</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إلى الأعلى (&amp;ع)</translation>
    </message>
    <message>
        <source>&amp;Down</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إلى الأسفل (&amp;س)</translation>
    </message>
    <message>
        <source>To the &amp;parent</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إلى الأب (&amp;ب)</translation>
    </message>
    <message>
        <source>To the &amp;first child</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إلى أول فرعي (&amp;ف)</translation>
    </message>
    <message>
        <source>To the one &amp;before</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إلى السابق (&amp;ق)</translation>
    </message>
    <message>
        <source>To the &amp;next one</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إلى التالي (&amp;ت)</translation>
    </message>
</context>
<context>
    <name>Welcome</name>
    <message>
        <source>Your first fishbone</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>أول مخطط عظم سمكة لك</translation>
    </message>
    <message>
        <source>Build it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ابنِ المخطط</translation>
    </message>
    <message>
        <source>Tab: a child</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Tab: موضوع فرعي</translation>
    </message>
    <message>
        <source>Enter: one after it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Enter: موضوع بعده</translation>
    </message>
    <message>
        <source>Shift+Enter: one before it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Shift+Enter: موضوع قبله</translation>
    </message>
    <message>
        <source>Ctrl+Enter: a parent</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ctrl+Enter: موضوع أب</translation>
    </message>
    <message>
        <source>Change it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>غيّره</translation>
    </message>
    <message>
        <source>Just type: a new title</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>اكتب فحسب: عنوان جديد</translation>
    </message>
    <message>
        <source>F2: edit the title</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>F2: تحرير العنوان</translation>
    </message>
    <message>
        <source>F4: details</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>F4: التفاصيل</translation>
    </message>
    <message>
        <source>Ctrl+Z: undo</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ctrl+Z: تراجع</translation>
    </message>
    <message>
        <source>Mark it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>علّمه</translation>
    </message>
    <message>
        <source>Space: all marks</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Space: كل العلامات</translation>
    </message>
    <message>
        <source>F7: a vote</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>F7: صوت واحد</translation>
    </message>
    <message>
        <source>Walk in it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تنقّل فيه</translation>
    </message>
    <message>
        <source>Arrows: as you see it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>الأسهم: كما تراه</translation>
    </message>
    <message>
        <source>Ctrl+arrows: by level</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ctrl+الأسهم: حسب المستوى</translation>
    </message>
    <message>
        <source>+ and −: expand, contract</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>+ و −: توسيع وطي</translation>
    </message>
    <message>
        <source>Rearrange it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>أعد ترتيبه</translation>
    </message>
    <message>
        <source>Drag a bone onto another</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>اسحب عظمة إلى أخرى</translation>
    </message>
    <message>
        <source>Alt+arrows: move a bone</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Alt+الأسهم: نقل عظمة</translation>
    </message>
    <message>
        <source>Look at it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>تأمّله</translation>
    </message>
    <message>
        <source>Home: all of it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Home: المخطط كله</translation>
    </message>
    <message>
        <source>Ctrl+wheel: zoom</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ctrl+العجلة: تكبير وتصغير</translation>
    </message>
    <message>
        <source>Take it with you</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>خذه معك</translation>
    </message>
    <message>
        <source>Ctrl+S: save</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ctrl+S: حفظ</translation>
    </message>
    <message>
        <source>Ctrl+E: a picture</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ctrl+E: صورة</translation>
    </message>
    <message>
        <source>F1: all keys</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>F1: كل المفاتيح</translation>
    </message>
</context>
<context>
    <name>WorkProgress</name>
    <message>
        <source>Cancel</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>إلغاء</translation>
    </message>
</context>
<context>
    <name>ZoomControls</name>
    <message>
        <source>Zoom</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>التكبير</translation>
    </message>
    <message>
        <source>Show at 100 %</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>عرض بنسبة 100%</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>التدوير</translation>
    </message>
</context>
</TS>
