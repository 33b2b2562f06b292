<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko">
<context>
    <name>AccessibleBone</name>
    <message>
        <source>level %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1단계</translation>
    </message>
    <message>
        <source>linked</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>링크 있음</translation>
    </message>
    <message>
        <source>Select</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>선택</translation>
    </message>
    <message>
        <source>Contract</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>접기</translation>
    </message>
    <message>
        <source>Expand</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>펼치기</translation>
    </message>
    <message>
        <source>Selects this bone alone</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>이 뼈만 선택합니다</translation>
    </message>
    <message>
        <source>Hides the bones below</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>아래의 뼈를 숨깁니다</translation>
    </message>
    <message>
        <source>Shows the bones below</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>아래의 뼈를 표시합니다</translation>
    </message>
</context>
<context>
    <name>AccessibleDiagram</name>
    <message>
        <source>Diagram: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>특성요인도: %1</translation>
    </message>
    <message>
        <source>Diagram</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>특성요인도</translation>
    </message>
</context>
<context>
    <name>AccessibleSubject</name>
    <message>
        <source>level %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1단계</translation>
    </message>
    <message>
        <source>Contract</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>접기</translation>
    </message>
    <message>
        <source>Expand</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>펼치기</translation>
    </message>
    <message>
        <source>Select</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>선택</translation>
    </message>
</context>
<context>
    <name>ActionList</name>
    <message>
        <source>no date</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>기한 없음</translation>
    </message>
    <message>
        <source>Change who is responsible</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>담당자 변경</translation>
    </message>
    <message>
        <source>Change planned end</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>기한 변경</translation>
    </message>
    <message>
        <source>Change status</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>상태 변경</translation>
    </message>
    <message>
        <source>Rename</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>이름 바꾸기</translation>
    </message>
    <message>
        <source>Actions</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>조치</translation>
    </message>
    <message>
        <source>Cause</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>요인</translation>
    </message>
    <message>
        <source>Responsible</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>담당자</translation>
    </message>
    <message>
        <source>Until</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>기한</translation>
    </message>
    <message>
        <source>Status</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>상태</translation>
    </message>
    <message>
        <source>%1, overdue</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1(기한 초과)</translation>
    </message>
    <message>
        <source>Nobody yet</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>담당자 미정</translation>
    </message>
    <message>
        <source>No status</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>상태 없음</translation>
    </message>
</context>
<context>
    <name>ActionsPanel</name>
    <message>
        <source>Write to a file…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>파일로 쓰기…</translation>
    </message>
    <message>
        <source>Actions</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>조치</translation>
    </message>
    <message>
        <source>Ranked causes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>요인 순위</translation>
    </message>
    <message>
        <source>Grouped by</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>그룹화 기준</translation>
    </message>
    <message>
        <source>In one list</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>묶지 않음</translation>
    </message>
    <message>
        <source>By person</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>담당자별</translation>
    </message>
    <message>
        <source>By status</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>상태별</translation>
    </message>
    <message>
        <source>Print…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>인쇄…</translation>
    </message>
</context>
<context>
    <name>AutosaveStatus</name>
    <message>
        <source>Autosaved at %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1에 자동 저장됨</translation>
    </message>
    <message>
        <source>A copy of the changes that are not saved is kept in %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>저장하지 않은 변경 사항의 사본이 %1에 보관되어 있습니다</translation>
    </message>
    <message>
        <source>Autosave failed at %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1에 자동 저장하지 못함</translation>
    </message>
    <message>
        <source>%1 cannot be written. Changes that are not saved would be lost if the program did not end well.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1에 쓸 수 없습니다. 프로그램이 정상적으로 종료되지 않으면 저장하지 않은 변경 사항을 잃게 됩니다.</translation>
    </message>
</context>
<context>
    <name>BusyCursor</name>
    <message>
        <source>Working…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>처리 중…</translation>
    </message>
</context>
<context>
    <name>CanvasTheme</name>
    <message>
        <source>The style is not kept: %1 cannot be written</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>스타일을 저장하지 못했습니다: %1에 쓸 수 없습니다</translation>
    </message>
</context>
<context>
    <name>ClearContent</name>
    <message>
        <source>cancelled</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>취소됨</translation>
    </message>
    <message>
        <source>finished</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>완료</translation>
    </message>
    <message>
        <source>finished late</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>늦게 완료</translation>
    </message>
    <message>
        <source>postponed</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>연기됨</translation>
    </message>
    <message>
        <source>under way</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>진행 중</translation>
    </message>
    <message>
        <source>waiting</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>대기 중</translation>
    </message>
    <message>
        <source>waiting for approval</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>승인 대기</translation>
    </message>
    <message>
        <source>suspected</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>의심</translation>
    </message>
    <message>
        <source>being checked</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>검증 중</translation>
    </message>
    <message>
        <source>confirmed</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>확인됨</translation>
    </message>
    <message>
        <source>ruled out</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>배제됨</translation>
    </message>
    <message>
        <source>root cause</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>근본 원인</translation>
    </message>
    <message numerus="yes">
        <source>%n vote(s)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>%n표</numerusform>
        </translation>
    </message>
    <message>
        <source>votes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>득표수</translation>
    </message>
</context>
<context>
    <name>CloseQuestion</name>
    <message>
        <source>Close</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>닫기</translation>
    </message>
    <message numerus="yes">
        <source>%n document(s) have changes that were not saved. Save those that are checked?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>문서 %n개에 저장하지 않은 변경 사항이 있습니다. 선택한 문서를 저장하시겠습니까?</numerusform>
        </translation>
    </message>
    <message>
        <source>Documents with changes that were not saved</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>저장하지 않은 변경 사항이 있는 문서</translation>
    </message>
    <message>
        <source>&amp;Save checked</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>선택한 문서 저장(&amp;S)</translation>
    </message>
    <message>
        <source>Close &amp;without saving</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>저장하지 않고 닫기(&amp;W)</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>the ending names no format that can be read</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>확장자가 읽을 수 있는 형식이 아닙니다</translation>
    </message>
    <message>
        <source>--%1 takes %2, not &quot;%3&quot;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1에는 “%3”이(가) 아니라 다음을 지정해야 합니다: %2</translation>
    </message>
    <message>
        <source>--%1 needs convert, info, report or check</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1에는 convert, info, report 또는 check가 필요합니다</translation>
    </message>
    <message>
        <source>--%1 needs info</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1에는 info가 필요합니다</translation>
    </message>
    <message>
        <source>--%1 needs convert</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1에는 convert가 필요합니다</translation>
    </message>
    <message>
        <source>--%1 needs --export</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1에는 --export가 필요합니다</translation>
    </message>
    <message>
        <source>the format of &quot;%1&quot; is unknown: the name must end in .png, .svg, .pdf, .html or .pptx</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>“%1”의 형식을 알 수 없습니다: 이름이 .png, .svg, .pdf, .html 또는 .pptx로 끝나야 합니다</translation>
    </message>
    <message>
        <source>--export takes one document, not %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--export에는 문서를 %1개가 아니라 하나만 지정해야 합니다</translation>
    </message>
    <message>
        <source>--%1 does not go with convert</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1은(는) convert와 함께 쓸 수 없습니다</translation>
    </message>
    <message>
        <source>convert takes a file to read and a file to write</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>convert에는 읽을 파일과 쓸 파일이 필요합니다</translation>
    </message>
    <message>
        <source>--%1 needs a picture to write</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1은(는) 그림을 쓸 때만 사용할 수 있습니다</translation>
    </message>
    <message>
        <source>--%1 does not go with info</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1은(는) info와 함께 쓸 수 없습니다</translation>
    </message>
    <message>
        <source>info takes one file, not %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>info에는 파일을 %1개가 아니라 하나만 지정해야 합니다</translation>
    </message>
    <message>
        <source>--%1 does not go with report</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1은(는) report와 함께 쓸 수 없습니다</translation>
    </message>
    <message>
        <source>report takes a file to read and a file to write</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>report에는 읽을 파일과 쓸 파일이 필요합니다</translation>
    </message>
    <message>
        <source>the format of &quot;%1&quot; is unknown: the name must end in .html, .pdf or .md</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>“%1”의 형식을 알 수 없습니다: 이름이 .html, .pdf 또는 .md로 끝나야 합니다</translation>
    </message>
    <message>
        <source>--%1 does not go with check</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1은(는) check와 함께 쓸 수 없습니다</translation>
    </message>
    <message>
        <source>check takes the files to look at</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>check에는 검사할 파일이 필요합니다</translation>
    </message>
    <message>
        <source>--%1 does not go with merge</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1은(는) merge와 함께 쓸 수 없습니다</translation>
    </message>
    <message>
        <source>merge takes the files of the base, of ours and of theirs</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>merge에는 기준, 우리 쪽, 상대 쪽 파일이 필요합니다</translation>
    </message>
    <message>
        <source>--%1 does not go with a document from the network</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1은(는) 네트워크 문서와 함께 쓸 수 없습니다</translation>
    </message>
    <message>
        <source>%1 can only be written</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 형식은 쓰기만 가능합니다</translation>
    </message>
    <message>
        <source>%1 can only be read</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 형식은 읽기만 가능합니다</translation>
    </message>
    <message>
        <source>one of %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 중 하나</translation>
    </message>
    <message>
        <source>the format of &quot;%1&quot; is unknown: the name must end in one of %2, or --from tell one of %3</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>“%1”의 형식을 알 수 없습니다: 이름이 %2 중 하나로 끝나거나 --from으로 %3 중 하나를 지정해야 합니다</translation>
    </message>
    <message>
        <source>the format of &quot;%1&quot; is unknown: the name must end in one of %2, or in .png, .svg, .pdf, .html or .pptx for a picture, or --to tell one of %3</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>“%1”의 형식을 알 수 없습니다: 이름이 %2 중 하나로, 그림은 .png, .svg, .pdf, .html 또는 .pptx로 끝나거나 --to로 %3 중 하나를 지정해야 합니다</translation>
    </message>
    <message>
        <source>--size and --scale exclude each other</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--size와 --scale은 함께 쓸 수 없습니다</translation>
    </message>
    <message>
        <source>a page for the browser needs the clear look</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>브라우저용 페이지에는 “선명” 모양이 필요합니다</translation>
    </message>
    <message>
        <source>all, none or a number of levels</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>all, none 또는 단계 수</translation>
    </message>
    <message>
        <source>a size such as 1600x900</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>1600x900과 같은 크기</translation>
    </message>
    <message>
        <source>a number above 0</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>0보다 큰 수</translation>
    </message>
    <message>
        <source>the name of a colour, #rrggbb or transparent</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>색 이름, #rrggbb 또는 transparent</translation>
    </message>
    <message>
        <source>Show this help and quit.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>이 도움말을 표시하고 끝냅니다.</translation>
    </message>
    <message>
        <source>Show the version and quit.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>버전을 표시하고 끝냅니다.</translation>
    </message>
    <message>
        <source>Show texts in &lt;language&gt;, such as de or zh, instead of the system&apos;s.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>시스템 언어 대신 &lt;language&gt;(예: de 또는 zh)로 텍스트를 표시합니다.</translation>
    </message>
    <message>
        <source>Draw the diagram into the picture &lt;file&gt; and quit. The ending .png, .svg, .pdf, .html or, for a slide, .pptx tells the format. Needs no display.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>다이어그램을 그림 &lt;file&gt;에 그리고 끝냅니다. 확장자 .png, .svg, .pdf, .html 또는 슬라이드용 .pptx가 형식을 정합니다. 화면이 필요 없습니다.</translation>
    </message>
    <message>
        <source>How far to expand the bones of the picture: all (the default), none, or a number of levels below the main bones.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>그림에서 뼈를 펼칠 범위: all(모두, 기본값), none(펼치지 않음) 또는 큰 뼈 아래의 단계 수.</translation>
    </message>
    <message>
        <source>Make the picture &lt;width&gt;x&lt;height&gt; in size and fit the drawing in.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>그림 크기를 &lt;width&gt;x&lt;height&gt;로 하고 내용을 그 안에 맞춥니다.</translation>
    </message>
    <message>
        <source>Draw &lt;factor&gt; times as large as on the screen at 100 %.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>화면에서 100 %로 볼 때의 &lt;factor&gt;배 크기로 그립니다.</translation>
    </message>
    <message>
        <source>Fill the picture with &lt;colour&gt;, a name or #rrggbb, or leave it transparent. White is the default.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>그림을 &lt;colour&gt;(색 이름 또는 #rrggbb)로 채우거나 transparent로 투명하게 둡니다. 기본값은 흰색입니다.</translation>
    </message>
    <message>
        <source>Read the file as &lt;format&gt;, whatever its ending.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>확장자와 관계없이 &lt;format&gt; 형식으로 읽습니다.</translation>
    </message>
    <message>
        <source>Write &lt;format&gt;, whatever the ending.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>확장자와 관계없이 &lt;format&gt; 형식으로 씁니다.</translation>
    </message>
    <message>
        <source>Write nothing when that would leave content out.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>빠지는 내용이 있으면 아무것도 쓰지 않습니다.</translation>
    </message>
    <message>
        <source>Say it as JSON, for programs.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>프로그램에서 쓸 수 있도록 JSON으로 출력합니다.</translation>
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
        <translation>작업의 특성요인도를 편집합니다.

다음 명령에는 화면이 필요 없습니다:
  convert   다이어그램을 다른 형식이나 그림으로 쓰기
  info      다이어그램의 내용과 문제점 표시
  report    회의 후에 배포할 보고서 쓰기
  check     파일의 문제점을 한 줄씩 표시
  merge     다이어그램의 두 버전 병합(git용)
자세한 내용은 “fishbone convert --help”를 참조하십시오. 같은 이름의 파일은 ./convert와 같이 지정합니다.</translation>
    </message>
    <message>
        <source>Diagrams to open: files, or http and https URLs. Without one, a new diagram.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>열 다이어그램: 파일 또는 http, https URL. 지정하지 않으면 새 다이어그램을 엽니다.</translation>
    </message>
    <message>
        <source>Writes a diagram in another format, or as a picture.
The endings tell the formats. Read: %1.
Written: %2, and png, svg, pdf, html and pptx for pictures.
What is left out, or put where it can be kept, is listed on the error output.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>다이어그램을 다른 형식이나 그림으로 씁니다.
확장자가 형식을 정합니다. 읽기: %1.
쓰기: %2, 그림은 png, svg, pdf, html, pptx.
빠지거나 다른 곳에 옮겨진 내용은 오류 출력에 나열됩니다.</translation>
    </message>
    <message>
        <source>The command.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>명령.</translation>
    </message>
    <message>
        <source>The file to read.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>읽을 파일.</translation>
    </message>
    <message>
        <source>The file to write.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>쓸 파일.</translation>
    </message>
    <message>
        <source>Counts what is in a diagram and lists what is off in it.
The exit code is 3 when anything is.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>다이어그램의 내용을 세고 문제점을 나열합니다.
문제가 있으면 종료 코드는 3입니다.</translation>
    </message>
    <message>
        <source>Writes what is sent round after a meeting: the picture, the causes in the order of what was found out, what is to be done by whom, and a legend.
The ending .html, .pdf or .md tells the format; .md has its picture in a file beside it.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>회의 후에 배포할 보고서를 씁니다. 그림, 판정 순서에 따른 요인, 누가 무엇을 할지, 범례가 들어갑니다.
확장자 .html, .pdf 또는 .md가 형식을 정합니다. .md의 그림은 옆의 파일에 들어갑니다.</translation>
    </message>
    <message>
        <source>Names what is off in each file, and why one cannot be read, a line each.
The exit code is 1 when there is anything.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>각 파일의 문제점과 읽을 수 없는 이유를 한 줄씩 표시합니다.
문제가 있으면 종료 코드는 1입니다.</translation>
    </message>
    <message>
        <source>The files to look at.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>검사할 파일.</translation>
    </message>
    <message>
        <source>Merges what changed from the base to theirs into ours, subject by subject, as git asks a merge driver to.
What both changed differently is kept as in ours, with a cause that says so below it; the exit code is 1 then.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>git이 병합 드라이버에 요구하는 대로, 기준에서 상대 쪽으로 바뀐 내용을 항목별로 우리 쪽에 병합합니다.
양쪽이 서로 다르게 바꾼 내용은 우리 쪽 것을 유지하고 그 사실을 알리는 요인을 아래에 추가합니다. 이때 종료 코드는 1입니다.</translation>
    </message>
    <message>
        <source>The version that both come from.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>양쪽의 공통 원본 버전.</translation>
    </message>
    <message>
        <source>The version to merge into; it is replaced.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>병합 결과를 담을 버전. 결과로 바뀝니다.</translation>
    </message>
    <message>
        <source>The other version.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>다른 쪽 버전.</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1을(를) 쓸 수 없습니다: %2</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1을(를) 읽을 수 없습니다: %2</translation>
    </message>
    <message>
        <source>%1 was not written: something would be left out</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1을(를) 쓰지 않았습니다: 빠지는 내용이 있습니다</translation>
    </message>
    <message>
        <source>Format: %1
</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>형식: %1
</translation>
    </message>
    <message>
        <source>there are conflicts: look for the causes &quot;Merge conflict&quot;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>충돌이 있습니다: “병합 충돌” 요인을 찾아보십시오</translation>
    </message>
    <message>
        <source>there is no display to open a window on; --export needs none</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>창을 열 화면이 없습니다. --export에는 화면이 필요 없습니다</translation>
    </message>
    <message>
        <source>a folder</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>폴더</translation>
    </message>
    <message>
        <source>Show the texts that the files in &lt;folder&gt; have, and show them anew when these are changed. For translators.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&lt;folder&gt;에 있는 파일의 텍스트를 표시하고, 파일이 바뀌면 다시 표시합니다. 번역자용입니다.</translation>
    </message>
</context>
<context>
    <name>DetailsForm</name>
    <message>
        <source>Priority:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>우선순위:</translation>
    </message>
    <message>
        <source>Open</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>열기</translation>
    </message>
    <message>
        <source>Edit style…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>스타일 편집…</translation>
    </message>
    <message>
        <source>Has a planned end</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>기한 설정</translation>
    </message>
    <message>
        <source>Planned end</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>기한</translation>
    </message>
    <message>
        <source>What there is to say of it; of a cause, the evidence for its verdict</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>이 항목에 대한 설명. 요인이면 판정의 근거</translation>
    </message>
    <message>
        <source>Progress</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>진행률</translation>
    </message>
    <message>
        <source>Link</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>링크</translation>
    </message>
    <message>
        <source>Open the link</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>링크 열기</translation>
    </message>
    <message>
        <source>Followers</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>팔로워</translation>
    </message>
    <message>
        <source>New follower</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>새 팔로워</translation>
    </message>
    <message>
        <source>Origin</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>출처</translation>
    </message>
    <message>
        <source>several</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>여러 값</translation>
    </message>
    <message numerus="yes">
        <source>%n subjects</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>항목 %n개</numerusform>
        </translation>
    </message>
    <message>
        <source>Title:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>제목:</translation>
    </message>
    <message>
        <source>Number:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>번호:</translation>
    </message>
    <message>
        <source>Verdict:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>판정:</translation>
    </message>
    <message>
        <source>Votes:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>득표수:</translation>
    </message>
    <message>
        <source>Status:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>상태:</translation>
    </message>
    <message>
        <source>Progress:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>진행률:</translation>
    </message>
    <message>
        <source>Responsible:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>담당자:</translation>
    </message>
    <message>
        <source>Their id:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>담당자 ID:</translation>
    </message>
    <message>
        <source>Planned end:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>기한:</translation>
    </message>
    <message>
        <source>Link:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>링크:</translation>
    </message>
    <message>
        <source>Followers:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>팔로워:</translation>
    </message>
    <message>
        <source>Details:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>세부 정보:</translation>
    </message>
    <message>
        <source>Style:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>스타일:</translation>
    </message>
</context>
<context>
    <name>DetailsPanel</name>
    <message>
        <source>&amp;Apply</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>적용(&amp;A)</translation>
    </message>
    <message>
        <source>Re&amp;vert</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>되돌리기(&amp;R)</translation>
    </message>
    <message>
        <source>Created by: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>만든 사람: %1</translation>
    </message>
    <message>
        <source>Created on: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>만든 날짜: %1</translation>
    </message>
    <message>
        <source>Edit details</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>세부 정보 편집</translation>
    </message>
</context>
<context>
    <name>DiagramCounts</name>
    <message numerus="yes">
        <source>%n subject(s)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>항목 %n개</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>, %n selected</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>, %n개 선택됨</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DiagramExchange</name>
    <message>
        <source>the text is not encoded as UTF-8, nor in a code page that is known (Windows-1252, GB 18030)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>텍스트가 UTF-8이 아니며 알려진 코드 페이지(Windows-1252, GB 18030)도 아닙니다</translation>
    </message>
    <message>
        <source>the text as %1, since it is not encoded as UTF-8</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>UTF-8이 아니므로 텍스트를 %1(으)로</translation>
    </message>
    <message>
        <source>Table of tasks</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>작업 표</translation>
    </message>
    <message>
        <source>a quote is not closed</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>따옴표가 닫히지 않았습니다</translation>
    </message>
    <message>
        <source>there is text behind a closing quote</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>닫는 따옴표 뒤에 텍스트가 있습니다</translation>
    </message>
    <message>
        <source>it has more than %1 levels</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>단계가 %1개를 넘습니다</translation>
    </message>
    <message>
        <source>that format can only be read</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>이 형식은 읽기만 가능합니다</translation>
    </message>
    <message>
        <source>that format can only be written</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>이 형식은 쓰기만 가능합니다</translation>
    </message>
    <message>
        <source>draw.io diagram</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>draw.io 다이어그램</translation>
    </message>
    <message>
        <source>All formats</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>모든 형식</translation>
    </message>
    <message>
        <source>it is larger than %1 MiB</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 MiB보다 큽니다</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>비어 있습니다</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>폴더입니다</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>파일이 없습니다</translation>
    </message>
    <message>
        <source>a style</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>스타일</translation>
    </message>
    <message>
        <source>FreeMind mind map</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>FreeMind 마인드맵</translation>
    </message>
    <message>
        <source>what is encrypted</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>암호화된 내용</translation>
    </message>
    <message>
        <source>Icons</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>아이콘</translation>
    </message>
    <message>
        <source>the icon &quot;%1&quot; as %2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>아이콘 “%1”을(를) %2(으)로</translation>
    </message>
    <message>
        <source>an arrow</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>화살표</translation>
    </message>
    <message>
        <source>there are more than %1 levels</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>단계가 %1개를 넘습니다</translation>
    </message>
    <message>
        <source>there are more than %1 subjects</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>항목이 %1개를 넘습니다</translation>
    </message>
    <message>
        <source>Link</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>링크</translation>
    </message>
    <message>
        <source>Image</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>그림</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1번째 줄: %2</translation>
    </message>
    <message>
        <source>it holds no diagram</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>다이어그램이 들어 있지 않습니다</translation>
    </message>
    <message>
        <source>Imported diagram</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>가져온 다이어그램</translation>
    </message>
    <message>
        <source>Fishbone diagram</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>특성요인도</translation>
    </message>
    <message>
        <source>Markdown outline</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Markdown 개요</translation>
    </message>
    <message>
        <source>the front matter</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>머리말 메타데이터</translation>
    </message>
    <message>
        <source>the comment &quot;%1&quot;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>주석 “%1”</translation>
    </message>
    <message>
        <source>the language &quot;%1&quot; of a block of code</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>코드 블록의 언어 “%1”</translation>
    </message>
    <message>
        <source>Mermaid ishikawa diagram</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Mermaid 특성요인도(ishikawa)</translation>
    </message>
    <message>
        <source>the diagram does not begin with &quot;ishikawa&quot; or &quot;mindmap&quot;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>다이어그램이 “ishikawa” 또는 “mindmap”으로 시작하지 않습니다</translation>
    </message>
    <message>
        <source>settings</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>설정</translation>
    </message>
    <message>
        <source>OPML outline</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>OPML 개요</translation>
    </message>
    <message>
        <source>Org outline</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Org 개요</translation>
    </message>
    <message>
        <source>text above the outline</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>개요 앞의 텍스트</translation>
    </message>
    <message>
        <source>&quot;%1&quot; as %2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>“%1”을(를) %2(으)로</translation>
    </message>
    <message>
        <source>Labels</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>레이블</translation>
    </message>
    <message>
        <source>&quot;%1&quot; as a progress</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>“%1”을(를) 진행률로</translation>
    </message>
    <message>
        <source>a quotation</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>인용문</translation>
    </message>
    <message>
        <source>further cells</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>남는 셀</translation>
    </message>
    <message>
        <source>the diagram does not begin with &quot;@startmindmap&quot;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>다이어그램이 “@startmindmap”으로 시작하지 않습니다</translation>
    </message>
    <message>
        <source>text beside the drawing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>그림 밖의 텍스트</translation>
    </message>
    <message>
        <source>PlantUML mind map</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>PlantUML 마인드맵</translation>
    </message>
    <message>
        <source>dates of &quot;%1&quot; as day/month/year</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>“%1”의 날짜를 일/월/년으로</translation>
    </message>
    <message>
        <source>dates of &quot;%1&quot; as month/day/year</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>“%1”의 날짜를 월/일/년으로</translation>
    </message>
    <message>
        <source>cells without a heading</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>열 제목이 없는 셀</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of &quot;%2&quot; as %3</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>“%2”의 “%1”을(를) %3(으)로</translation>
    </message>
    <message>
        <source>headings that are repeated</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>중복된 열 제목</translation>
    </message>
    <message>
        <source>the uuid &quot;%1&quot; a second time</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>중복된 uuid “%1”</translation>
    </message>
    <message>
        <source>the subject lies below itself</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>항목이 자기 자신 아래에 있습니다</translation>
    </message>
    <message>
        <source>there is no column of titles, such as &quot;title&quot;, &quot;summary&quot; or &quot;name&quot;; the columns are %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>“title”, “summary”, “name”과 같은 제목 열이 없습니다. 현재 열: %1</translation>
    </message>
    <message>
        <source>Indented text</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>들여쓴 텍스트</translation>
    </message>
    <message>
        <source>the sheet &quot;%1&quot;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>시트 “%1”</translation>
    </message>
    <message>
        <source>Excel workbook</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Excel 통합 문서</translation>
    </message>
    <message>
        <source>the archive has no file &quot;%1&quot;, as workbooks do</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>압축 파일에 통합 문서에 있어야 할 파일 “%1”이(가) 없습니다</translation>
    </message>
    <message>
        <source>remarks at cells</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>셀 메모</translation>
    </message>
    <message>
        <source>drawings</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>그리기 개체</translation>
    </message>
    <message>
        <source>cells behind column %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1번째 열 뒤의 셀</translation>
    </message>
    <message>
        <source>there are too many cells</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>셀이 너무 많습니다</translation>
    </message>
    <message>
        <source>a link within the workbook</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>통합 문서 안의 링크</translation>
    </message>
    <message>
        <source>the file &quot;%1&quot;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>파일 “%1”</translation>
    </message>
    <message>
        <source>the archive has neither content.json nor content.xml, one of which holds the map</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>압축 파일에 맵이 들어 있어야 할 content.json도 content.xml도 없습니다</translation>
    </message>
    <message>
        <source>XMind map</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>XMind 맵</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>시트</translation>
    </message>
    <message>
        <source>Boundary</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>경계</translation>
    </message>
    <message>
        <source>a topic of the kind &quot;%1&quot; as a cause</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>“%1” 종류의 토픽을 요인으로</translation>
    </message>
    <message>
        <source>content.json: it is no list of sheets</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>content.json: 시트 목록이 아닙니다</translation>
    </message>
    <message>
        <source>the icon &quot;%1&quot;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>아이콘 “%1”</translation>
    </message>
    <message>
        <source>an arrow &quot;%1&quot; that joins no two topics</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>두 토픽을 잇지 않는 화살표 “%1”</translation>
    </message>
    <message>
        <source>declarations of entities are not accepted</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>엔터티 선언은 허용되지 않습니다</translation>
    </message>
    <message>
        <source>the document begins with &lt;%1&gt;, not with &lt;%2&gt;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>문서가 &lt;%2&gt;이(가) 아니라 &lt;%1&gt;(으)로 시작합니다</translation>
    </message>
    <message>
        <source>&lt;/%1&gt; is missing, the end of &lt;%1&gt; in line %2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%2번째 줄의 &lt;%1&gt;을(를) 닫는 &lt;/%1&gt;이(가) 없습니다</translation>
    </message>
    <message>
        <source>it is not a zip archive, as files of this format are (%1)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>이 형식의 파일은 zip 압축 파일이어야 하는데 그렇지 않습니다(%1)</translation>
    </message>
    <message>
        <source>the archive has more than %1 files</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>압축 파일에 든 파일이 %1개를 넘습니다</translation>
    </message>
    <message>
        <source>the archive has &quot;%1&quot; twice</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>압축 파일에 “%1”이(가) 두 번 있습니다</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>손상되었습니다</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>너무 큽니다</translation>
    </message>
    <message>
        <source>it expands to more than %1 times its size</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>압축을 풀면 원래 크기의 %1배를 넘습니다</translation>
    </message>
    <message>
        <source>the map is protected by a password</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>맵이 암호로 보호되어 있습니다</translation>
    </message>
</context>
<context>
    <name>DiagramMerge</name>
    <message>
        <source>It was changed in ours and deleted in theirs.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>우리 쪽에서 변경되고 상대 쪽에서 삭제되었습니다.</translation>
    </message>
    <message>
        <source>It was deleted in ours and changed in theirs.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>우리 쪽에서 삭제되고 상대 쪽에서 변경되었습니다.</translation>
    </message>
    <message>
        <source>Theirs has it below &quot;%1&quot;.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>상대 쪽에서는 “%1” 아래에 있습니다.</translation>
    </message>
    <message>
        <source>Its %1 is &quot;%2&quot; in ours and &quot;%3&quot; in theirs.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1이(가) 우리 쪽에서는 “%2”, 상대 쪽에서는 “%3”입니다.</translation>
    </message>
    <message>
        <source>It was deleted in theirs and has more below it in ours.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>상대 쪽에서 삭제되었지만 우리 쪽에서는 아래에 내용이 추가되었습니다.</translation>
    </message>
    <message>
        <source>It was deleted in ours and has more below it in theirs.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>우리 쪽에서 삭제되었지만 상대 쪽에서는 아래에 내용이 추가되었습니다.</translation>
    </message>
    <message>
        <source>It is a second head.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>두 번째 머리입니다.</translation>
    </message>
    <message>
        <source>What is below it has another order in theirs.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>상대 쪽에서는 아래 내용의 순서가 다릅니다.</translation>
    </message>
    <message>
        <source>Merge conflict</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>병합 충돌</translation>
    </message>
</context>
<context>
    <name>DiagramPicture</name>
    <message>
        <source>there is not enough memory for it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>메모리가 부족합니다</translation>
    </message>
    <message>
        <source>the scale, the size or the margin makes no picture</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>이 배율, 크기, 여백으로는 그림을 만들 수 없습니다</translation>
    </message>
    <message>
        <source>the file name must end in .png, .svg, .pdf or .html</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>파일 이름이 .png, .svg, .pdf 또는 .html로 끝나야 합니다</translation>
    </message>
    <message>
        <source>the page is too small or too large</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>페이지가 너무 작거나 너무 큽니다</translation>
    </message>
</context>
<context>
    <name>DocumentLoader</name>
    <message>
        <source>it holds no diagram</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>다이어그램이 들어 있지 않습니다</translation>
    </message>
    <message>
        <source>the program is closing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>프로그램을 끝내는 중입니다</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>파일이 없습니다</translation>
    </message>
</context>
<context>
    <name>DocumentReport</name>
    <message>
        <source>it has no uuid</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>uuid가 없습니다</translation>
    </message>
    <message>
        <source>another subject has the same uuid %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>다른 항목의 uuid도 %1입니다</translation>
    </message>
    <message>
        <source>it is the head and has the pid %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>머리인데 pid %1이(가) 있습니다</translation>
    </message>
    <message>
        <source>it has no pid</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>pid가 없습니다</translation>
    </message>
    <message>
        <source>its pid %1 does not name its parent</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>pid %1이(가) 상위 항목을 가리키지 않습니다</translation>
    </message>
    <message>
        <source>it has no title</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>제목이 없습니다</translation>
    </message>
    <message>
        <source>its status %1 is unknown</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>상태 %1을(를) 알 수 없습니다</translation>
    </message>
    <message>
        <source>its progress %1 is not within 0 and 100</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>진행률 %1이(가) 0에서 100 사이가 아닙니다</translation>
    </message>
    <message>
        <source>it is to end before it was created</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>기한이 만든 날짜보다 앞섭니다</translation>
    </message>
    <message>
        <source>its link %1 is no URL</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>링크 %1이(가) URL이 아닙니다</translation>
    </message>
    <message>
        <source>head</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>머리</translation>
    </message>
    <message>
        <source>Title: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>제목: %1</translation>
    </message>
    <message>
        <source>Subjects: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>항목: %1</translation>
    </message>
    <message>
        <source>Main bones: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>큰 뼈: %1</translation>
    </message>
    <message>
        <source>Levels: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>단계: %1</translation>
    </message>
    <message>
        <source>Links: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>링크: %1</translation>
    </message>
    <message>
        <source>Own styles: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>개별 스타일: %1</translation>
    </message>
    <message>
        <source>Nothing is off.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>문제가 없습니다.</translation>
    </message>
    <message>
        <source>Off: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>문제: %1</translation>
    </message>
</context>
<context>
    <name>DocumentSaver</name>
    <message>
        <source>Fishbone diagrams (*.json);;All files (*)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>특성요인도 (*.json);;모든 파일 (*)</translation>
    </message>
    <message>
        <source>Another program has changed %1 since it was opened or saved here. Replace it, so that those changes are lost?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1을(를) 여기서 열거나 저장한 뒤에 다른 프로그램이 변경했습니다. 이 파일을 바꾸어 그 변경 사항을 버리시겠습니까?</translation>
    </message>
    <message>
        <source>Save</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>저장</translation>
    </message>
    <message>
        <source>%1 would not be recognized as a diagram. Its name should end in .json; &quot;Export as&quot; writes other formats.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1은(는) 다이어그램으로 인식되지 않게 됩니다. 이름이 .json으로 끝나야 합니다. 다른 형식은 “다른 형식으로 내보내기”로 쓸 수 있습니다.</translation>
    </message>
    <message>
        <source>Save as</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>다른 이름으로 저장</translation>
    </message>
    <message>
        <source>Save a copy</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>사본 저장</translation>
    </message>
    <message>
        <source>Copy written to %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>사본을 %1에 저장했습니다</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1을(를) 쓸 수 없습니다: %2.</translation>
    </message>
    <message>
        <source>%1 saved</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1을(를) 저장했습니다</translation>
    </message>
</context>
<context>
    <name>DocumentTabs</name>
    <message>
        <source>Open documents</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>열린 문서</translation>
    </message>
    <message>
        <source>Close</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Not saved to a file yet</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>아직 파일로 저장하지 않음</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>닫기(&amp;C)</translation>
    </message>
    <message>
        <source>Close &amp;others</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>다른 탭 닫기(&amp;O)</translation>
    </message>
    <message>
        <source>Copy &amp;path</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>경로 복사(&amp;P)</translation>
    </message>
</context>
<context>
    <name>DrawingFilter</name>
    <message>
        <source>left out by the filter</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>필터에서 제외됨</translation>
    </message>
    <message>
        <source>leads to what the filter shows</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>필터 결과로 이어지는 항목</translation>
    </message>
</context>
<context>
    <name>DrawingPrinter</name>
    <message>
        <source>%1 – page %2 of %3</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 – %2/%3쪽</translation>
    </message>
</context>
<context>
    <name>EditAttributes</name>
    <message>
        <source>Edit attributes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>속성 편집</translation>
    </message>
</context>
<context>
    <name>EditCommands</name>
    <message>
        <source>&amp;Undo</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>실행 취소(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>다시 실행(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Find and replace…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>찾아 바꾸기(&amp;F)…</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>잘라내기(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>복사(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>붙여넣기(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>삭제(&amp;D)</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>모두 선택(&amp;A)</translation>
    </message>
    <message>
        <source>Select the &amp;branch</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>가지 선택(&amp;B)</translation>
    </message>
    <message>
        <source>Select the sib&amp;lings</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>형제 항목 선택(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Child subject</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>하위 항목 추가(&amp;C)</translation>
    </message>
    <message>
        <source>Subject &amp;before</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>앞에 항목 추가(&amp;B)</translation>
    </message>
    <message>
        <source>Subject &amp;after</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>뒤에 항목 추가(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Parent subject</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>상위 항목 추가(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Free subject (a new diagram)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>자유 항목 추가(새 다이어그램)(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Sub-task…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>하위 작업(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>이름 바꾸기(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Link to…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>링크 대상(&amp;L)…</translation>
    </message>
    <message>
        <source>&amp;Open link</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>링크 열기(&amp;O)</translation>
    </message>
    <message>
        <source>Remove l&amp;ink</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>링크 제거(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Style…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>스타일(&amp;Y)…</translation>
    </message>
    <message>
        <source>Remove s&amp;tyle</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>스타일 제거(&amp;T)</translation>
    </message>
    <message>
        <source>New sub-task</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>새 하위 작업</translation>
    </message>
    <message>
        <source>Title:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>제목:</translation>
    </message>
</context>
<context>
    <name>EditDelete</name>
    <message>
        <source>Delete selecteds</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>항목 삭제</translation>
    </message>
    <message>
        <source>Delete current selected</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>항목 삭제</translation>
    </message>
</context>
<context>
    <name>EditModify</name>
    <message>
        <source>Modify Item</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>항목 편집</translation>
    </message>
</context>
<context>
    <name>EditMove</name>
    <message>
        <source>Move subjects</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>항목 이동</translation>
    </message>
</context>
<context>
    <name>EditPaste</name>
    <message>
        <source>Paste from clipborad</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>클립보드에서 붙여넣기</translation>
    </message>
</context>
<context>
    <name>EmptyPage</name>
    <message>
        <source>No diagram is open</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>열린 다이어그램이 없습니다</translation>
    </message>
    <message>
        <source>Files can also be dragged into this window.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>파일을 이 창으로 끌어다 놓을 수도 있습니다.</translation>
    </message>
    <message>
        <source>Opened lately:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>최근에 연 파일:</translation>
    </message>
</context>
<context>
    <name>ExchangeReport</name>
    <message>
        <source>left out: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>생략: %1</translation>
    </message>
    <message>
        <source>put into the details: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>세부 정보에 넣음: %1</translation>
    </message>
    <message>
        <source>taken: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>바꾸어 읽음: %1</translation>
    </message>
    <message>
        <source>appearance left out: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>겉모양 생략: %1</translation>
    </message>
    <message>
        <source>%1 (%2 times, first in line %3)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1(%2회, 처음은 %3번째 줄)</translation>
    </message>
    <message>
        <source>%1 (%2 times)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1(%2회)</translation>
    </message>
    <message>
        <source>%1 (line %2)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1(%2번째 줄)</translation>
    </message>
    <message>
        <source>other things</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>그 밖의 내용</translation>
    </message>
</context>
<context>
    <name>ExportCommands</name>
    <message>
        <source>&amp;Export picture…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>그림 내보내기(&amp;E)…</translation>
    </message>
    <message>
        <source>E&amp;xport as…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>다른 형식으로 내보내기(&amp;X)…</translation>
    </message>
    <message>
        <source>Copy as p&amp;icture</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>그림으로 복사(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>인쇄(&amp;P)…</translation>
    </message>
    <message>
        <source>Print previe&amp;w…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>인쇄 미리 보기(&amp;W)…</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1을(를) 썼습니다</translation>
    </message>
    <message>
        <source>%1 was not written</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1을(를) 쓰지 않았습니다</translation>
    </message>
    <message>
        <source>Export picture</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>그림 내보내기</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1을(를) 쓸 수 없습니다: %2.</translation>
    </message>
    <message>
        <source>Writing %1…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1을(를) 쓰는 중…</translation>
    </message>
    <message>
        <source>Copied as a picture</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>그림으로 복사했습니다</translation>
    </message>
    <message>
        <source>Not copied as a picture: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>그림으로 복사하지 못했습니다: %1</translation>
    </message>
    <message>
        <source>PowerPoint slide (*.%1)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>PowerPoint 슬라이드 (*.%1)</translation>
    </message>
    <message>
        <source>Export as</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>다른 형식으로 내보내기</translation>
    </message>
    <message>
        <source>its ending tells none of the formats</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>확장자로 형식을 알 수 없습니다</translation>
    </message>
    <message>
        <source>Nothing was printed</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>아무것도 인쇄하지 않았습니다</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>&amp;Light, as on paper</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>밝게(종이와 같음)(&amp;L)</translation>
    </message>
    <message>
        <source>Export picture</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>그림 내보내기</translation>
    </message>
    <message>
        <source>B&amp;rowse…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>찾아보기(&amp;R)…</translation>
    </message>
    <message>
        <source>&amp;File:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>파일(&amp;F):</translation>
    </message>
    <message>
        <source>&amp;Background:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>배경(&amp;B):</translation>
    </message>
    <message>
        <source>Dark</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>어둡게</translation>
    </message>
    <message>
        <source>As on the screen</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>화면과 같음</translation>
    </message>
    <message>
        <source>White</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>흰색</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>투명</translation>
    </message>
    <message>
        <source>Pictures (*.png *.svg *.pdf *.html)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>그림 (*.png *.svg *.pdf *.html)</translation>
    </message>
    <message>
        <source>The file name must end in .png, .svg, .pdf or .html.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>파일 이름이 .png, .svg, .pdf 또는 .html로 끝나야 합니다.</translation>
    </message>
    <message>
        <source>A page for the browser needs the clear look.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>브라우저용 페이지에는 “선명” 모양이 필요합니다.</translation>
    </message>
    <message>
        <source>This cannot be exported: %1.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>내보낼 수 없습니다: %1.</translation>
    </message>
    <message>
        <source>%1 Use %2, which fits?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 크기에 맞는 %2을(를) 사용하시겠습니까?</translation>
    </message>
    <message>
        <source>%1 exists already. Replace it?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1이(가) 이미 있습니다. 바꾸시겠습니까?</translation>
    </message>
</context>
<context>
    <name>FileCommands</name>
    <message>
        <source>&amp;New</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>새로 만들기(&amp;N)</translation>
    </message>
    <message>
        <source>New from the &amp;example</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>예제로 새로 만들기(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Welcome diagram</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>환영 다이어그램(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>열기(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>가져오기(&amp;I)…</translation>
    </message>
    <message>
        <source>Open &amp;URL…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>URL 열기(&amp;U)…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>저장(&amp;S)</translation>
    </message>
    <message>
        <source>Save &amp;as…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>다른 이름으로 저장(&amp;A)…</translation>
    </message>
    <message>
        <source>Save a cop&amp;y…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>사본 저장(&amp;Y)…</translation>
    </message>
    <message>
        <source>Revert to &amp;file</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>파일 내용으로 되돌리기(&amp;F)</translation>
    </message>
    <message>
        <source>Save a&amp;ll</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>모두 저장(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>닫기(&amp;C)</translation>
    </message>
    <message>
        <source>Reopen &amp;documents at the start</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>시작할 때 문서 다시 열기(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>끝내기(&amp;Q)</translation>
    </message>
    <message>
        <source>%1 loaded</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1을(를) 불러왔습니다</translation>
    </message>
    <message>
        <source>cannot open %1: %2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1을(를) 열 수 없습니다: %2</translation>
    </message>
    <message>
        <source>%1 was not loaded</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1을(를) 불러오지 않았습니다</translation>
    </message>
    <message>
        <source>Open</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>열기</translation>
    </message>
    <message>
        <source>Revert</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>파일 내용으로 되돌리기</translation>
    </message>
    <message>
        <source>Give up all changes of %1 since it was saved?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1을(를) 저장한 뒤의 모든 변경 사항을 버리시겠습니까?</translation>
    </message>
</context>
<context>
    <name>FileConflict</name>
    <message>
        <source>Another program has changed %1.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>다른 프로그램이 %1을(를) 변경했습니다.</translation>
    </message>
    <message>
        <source>Re&amp;load</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>다시 불러오기(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Keep mine</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>내 변경 사항 유지(&amp;K)</translation>
    </message>
    <message>
        <source>Save &amp;under another name…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>다른 이름으로 저장(&amp;U)…</translation>
    </message>
    <message>
        <source>%1 was deleted, moved or renamed by another program.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>다른 프로그램이 %1을(를) 삭제하거나 옮기거나 이름을 바꾸었습니다.</translation>
    </message>
    <message>
        <source>Save agai&amp;n</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>다시 저장(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Hide</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>숨기기(&amp;H)</translation>
    </message>
</context>
<context>
    <name>FileName</name>
    <message>
        <source>Untitled</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>제목 없음</translation>
    </message>
</context>
<context>
    <name>FilterBar</name>
    <message>
        <source>Any status</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>모든 상태</translation>
    </message>
    <message>
        <source>Any verdict</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>모든 판정</translation>
    </message>
    <message>
        <source>Text</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>텍스트</translation>
    </message>
    <message>
        <source>Any votes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>득표수 무관</translation>
    </message>
    <message>
        <source>Votes ≥ </source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>득표수 ≥ </translation>
    </message>
    <message>
        <source>Overdue</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>기한 초과</translation>
    </message>
    <message>
        <source>Fold the others</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>나머지 접기</translation>
    </message>
    <message>
        <source>Close the filter</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>필터 닫기</translation>
    </message>
    <message>
        <source>Filter</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>필터</translation>
    </message>
    <message>
        <source>Text in title, number or details</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>제목, 번호, 세부 정보의 텍스트</translation>
    </message>
    <message>
        <source>Status</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>상태</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>판정</translation>
    </message>
    <message>
        <source>Responsible</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>담당자</translation>
    </message>
    <message>
        <source>Least number of votes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>최소 득표수</translation>
    </message>
    <message>
        <source>Anybody</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>누구나</translation>
    </message>
    <message>
        <source>Nobody</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>담당자 없음</translation>
    </message>
    <message numerus="yes">
        <source>%n found</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>%n개 찾음</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Finder</name>
    <message>
        <source>No match</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>찾은 내용 없음</translation>
    </message>
    <message>
        <source>Match %1 of %2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%2개 중 %1번째</translation>
    </message>
    <message numerus="yes">
        <source>Replace %n text(s)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>텍스트 %n곳 바꾸기</numerusform>
        </translation>
    </message>
    <message>
        <source>Only titles and numbers can be replaced.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>제목과 번호만 바꿀 수 있습니다.</translation>
    </message>
    <message numerus="yes">
        <source>%n text(s) replaced</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>텍스트 %n곳을 바꾸었습니다</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FishInfo</name>
    <message>
        <source>no model shows the document</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>문서를 표시하는 모델이 없습니다</translation>
    </message>
    <message>
        <source>the diagram nests too deep to be read again</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>다이어그램의 중첩이 너무 깊어 다시 읽을 수 없습니다</translation>
    </message>
    <message>
        <source>Save As</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>다른 이름으로 저장</translation>
    </message>
    <message>
        <source>&apos;%1&apos; has been modified.
Do you want to save your changes?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>“%1”이(가) 변경되었습니다.
변경 사항을 저장하시겠습니까?</translation>
    </message>
    <message>
        <source>FishInfo</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>저장하지 않은 변경 사항</translation>
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
        <translation>자유 항목</translation>
    </message>
    <message>
        <source>the reply took too long or was too large</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>응답이 너무 오래 걸리거나 너무 큽니다</translation>
    </message>
    <message>
        <source>there is no document to load it into</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>불러올 문서가 없습니다</translation>
    </message>
    <message>
        <source>个无父任务/共</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>개 상위 작업 없음/</translation>
    </message>
    <message>
        <source>个任务</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>개 작업</translation>
    </message>
</context>
<context>
    <name>HelpCommands</name>
    <message>
        <source>&amp;Keys…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>단축키(&amp;K)…</translation>
    </message>
    <message>
        <source>&amp;About Fishbone</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Fishbone 정보(&amp;A)</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Qt 정보(&amp;Q)</translation>
    </message>
    <message>
        <source>Version %1, library %2&lt;br&gt;Qt %3, built with %4&lt;br&gt;%5</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>버전 %1, 라이브러리 %2&lt;br&gt;Qt %3, 빌드 시 %4&lt;br&gt;%5</translation>
    </message>
    <message>
        <source>About Fishbone</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Fishbone 정보</translation>
    </message>
    <message>
        <source>Draws cause-and-effect diagrams of tasks.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>작업의 특성요인도를 그립니다.</translation>
    </message>
    <message>
        <source>Copyright © 2026 The Fishbone authors, under the MIT License</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Copyright © 2026 The Fishbone authors, MIT 라이선스</translation>
    </message>
</context>
<context>
    <name>HistoryPanel</name>
    <message>
        <source>History</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>작업 내역</translation>
    </message>
    <message>
        <source>(beginning)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>(처음 상태)</translation>
    </message>
    <message numerus="yes">
        <source>%1 (%2 of %n)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>%1(%n회 중 %2회)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (%n times)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>%1(%n회)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>HitList</name>
    <message>
        <source>Found</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>찾은 텍스트</translation>
    </message>
    <message>
        <source>Will be</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>바꾼 결과</translation>
    </message>
    <message>
        <source>In</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>위치</translation>
    </message>
</context>
<context>
    <name>HtmlPicture</name>
    <message>
        <source>Search</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>검색</translation>
    </message>
    <message>
        <source>Expand all</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>모두 펼치기</translation>
    </message>
    <message>
        <source>Fold</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>접기</translation>
    </message>
    <message>
        <source>Fold to the categories</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>큰 뼈까지 접기</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>축소</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>확대</translation>
    </message>
    <message>
        <source>Fit</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>맞춤</translation>
    </message>
    <message>
        <source>Show all</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>모두 표시</translation>
    </message>
    <message>
        <source>Close</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Fishbone diagram. Arrow keys move, Return shows details, the space bar folds.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>특성요인도. 화살표 키로 이동, Enter 키로 세부 정보 표시, 스페이스 바로 접기.</translation>
    </message>
</context>
<context>
    <name>ImportSummary</name>
    <message>
        <source>%1: %2 left out, %3 put into details.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1: %2개 생략, %3개를 세부 정보에 넣음.</translation>
    </message>
    <message>
        <source>Import</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>가져오기</translation>
    </message>
</context>
<context>
    <name>InsertBack</name>
    <message>
        <source>Insert subject back</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>뒤에 항목 추가</translation>
    </message>
</context>
<context>
    <name>InsertChild</name>
    <message>
        <source>Insert child subject</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>하위 항목 추가</translation>
    </message>
</context>
<context>
    <name>InsertFree</name>
    <message>
        <source>Insert free subject</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>자유 항목 추가</translation>
    </message>
</context>
<context>
    <name>InsertFront</name>
    <message>
        <source>Insert subject front</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>앞에 항목 추가</translation>
    </message>
</context>
<context>
    <name>InsertParent</name>
    <message>
        <source>Insert subject as parent</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>상위 항목 추가</translation>
    </message>
</context>
<context>
    <name>JsonDiagram</name>
    <message>
        <source>it is a JSON list, not a diagram, which is an object with a &quot;title&quot; and &quot;children&quot;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>JSON 목록입니다. 다이어그램은 “title”과 “children”이 있는 개체여야 합니다</translation>
    </message>
    <message>
        <source>it is JSON of another kind: a diagram has a &quot;title&quot; and &quot;children&quot;, this has %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>다른 종류의 JSON입니다: 다이어그램에는 “title”과 “children”이 있는데 여기에는 %1이(가) 있습니다</translation>
    </message>
    <message>
        <source>it is JSON of another kind: its &quot;title&quot; is no text</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>다른 종류의 JSON입니다: “title”이 텍스트가 아닙니다</translation>
    </message>
    <message>
        <source>it is JSON of another kind: its &quot;children&quot; are no list</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>다른 종류의 JSON입니다: “children”이 목록이 아닙니다</translation>
    </message>
</context>
<context>
    <name>JsonErrors</name>
    <message>
        <source>a name in quotes or } is missing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>따옴표로 묶은 이름 또는 }이(가) 없습니다</translation>
    </message>
    <message>
        <source>the colon behind a name is missing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>이름 뒤에 콜론이 없습니다</translation>
    </message>
    <message>
        <source>a comma or ] is missing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>쉼표 또는 ]이(가) 없습니다</translation>
    </message>
    <message>
        <source>the comma behind a value is missing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>값 뒤에 쉼표가 없습니다</translation>
    </message>
    <message>
        <source>a text in quotes, a number, true, false, null, { or [ is missing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>따옴표로 묶은 텍스트, 숫자, true, false, null, { 또는 [이(가) 없습니다</translation>
    </message>
    <message>
        <source>it ends with a number</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>숫자로 끝납니다</translation>
    </message>
    <message>
        <source>a backslash begins no escape sequence</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>백슬래시 뒤가 이스케이프 시퀀스가 아닙니다</translation>
    </message>
    <message>
        <source>a text is not encoded as UTF-8</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>UTF-8이 아닌 텍스트가 있습니다</translation>
    </message>
    <message>
        <source>the quote at the end of a text is missing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>텍스트 끝에 따옴표가 없습니다</translation>
    </message>
    <message>
        <source>a name or a value is missing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>이름 또는 값이 없습니다</translation>
    </message>
    <message>
        <source>it nests too deep</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>중첩이 너무 깊습니다</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>너무 큽니다</translation>
    </message>
    <message>
        <source>there is more behind its end</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>끝난 뒤에 내용이 더 있습니다</translation>
    </message>
    <message>
        <source>it is not a JSON document</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>JSON 문서가 아닙니다</translation>
    </message>
    <message>
        <source>it is not a JSON document (line %1: %2)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>JSON 문서가 아닙니다(%1번째 줄: %2)</translation>
    </message>
</context>
<context>
    <name>KeysDialog</name>
    <message>
        <source>Keys</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>단축키</translation>
    </message>
    <message>
        <source>Search</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>검색</translation>
    </message>
    <message>
        <source>Command</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>명령</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>Lang&amp;uage</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>언어 Language(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;System language</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>시스템 언어(&amp;S)</translation>
    </message>
</context>
<context>
    <name>LinkOpener</name>
    <message>
        <source>Open link</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>링크 열기</translation>
    </message>
    <message>
        <source>This link is neither a web page nor a mail address. Open it?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>이 링크는 웹 페이지도 메일 주소도 아닙니다. 여시겠습니까?</translation>
    </message>
</context>
<context>
    <name>LoadFailure</name>
    <message>
        <source>it is a folder</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>폴더입니다</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>파일이 없습니다</translation>
    </message>
    <message>
        <source>its ending is none of those that can be read: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>읽을 수 있는 확장자가 아닙니다: %1</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>비어 있습니다</translation>
    </message>
</context>
<context>
    <name>LoadProgress</name>
    <message>
        <source>Loading</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>불러오는 중</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>취소</translation>
    </message>
    <message>
        <source>%1 received</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 받음</translation>
    </message>
</context>
<context>
    <name>LookChoice</name>
    <message>
        <source>%1 or %2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 또는 %2</translation>
    </message>
    <message>
        <source>Draw in the &lt;look&gt; %1; the first one is the default.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&lt;look&gt; 모양으로 그립니다: %1. 첫 번째가 기본값입니다.</translation>
    </message>
    <message>
        <source>Arrange the drawing for &lt;page&gt;: 16:9, A4, A3, Letter, or a size such as 1920x1080 or 297x210mm. A PDF has a page of that size.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>그림을 &lt;page&gt;에 맞게 배치합니다: 16:9, A4, A3, Letter 또는 1920x1080이나 297x210mm와 같은 크기. PDF의 페이지는 그 크기가 됩니다.</translation>
    </message>
    <message>
        <source>Explain the icons below the drawing, which is the default.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>그림 아래에 아이콘을 설명합니다(기본값).</translation>
    </message>
    <message>
        <source>Leave out the explanation of the icons.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>아이콘 설명을 넣지 않습니다.</translation>
    </message>
    <message>
        <source>Draw in &lt;colours&gt;: colour (the default), warm, cool, gray or dark.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>&lt;colours&gt; 색상표로 그립니다: colour(기본값), warm, cool, gray 또는 dark.</translation>
    </message>
    <message>
        <source>Draw the head on the &lt;side&gt;: right (the default) or left.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>머리를 &lt;side&gt;에 그립니다: right(오른쪽, 기본값) 또는 left(왼쪽).</translation>
    </message>
    <message>
        <source>--%1 takes %2, not &quot;%3&quot;</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1에는 “%3”이(가) 아니라 다음을 지정해야 합니다: %2</translation>
    </message>
    <message>
        <source>--%1 needs the clear look</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>--%1에는 “선명” 모양이 필요합니다</translation>
    </message>
    <message>
        <source>colour, warm, cool, gray or dark</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>colour, warm, cool, gray 또는 dark</translation>
    </message>
    <message>
        <source>left or right</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>left 또는 right</translation>
    </message>
    <message>
        <source>16:9, A4, A3, Letter or a size such as 1920x1080 or 297x210mm</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>16:9, A4, A3, Letter 또는 1920x1080이나 297x210mm와 같은 크기</translation>
    </message>
</context>
<context>
    <name>LookCommands</name>
    <message>
        <source>Look: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>모양: %1</translation>
    </message>
    <message>
        <source>Loo&amp;k</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>모양(&amp;K)</translation>
    </message>
    <message>
        <source>Arrang&amp;e for page</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>페이지에 맞게 배치(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Screen</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>화면(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>색상표(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Take off all own colours and styles</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>모든 개별 색과 스타일 해제(&amp;T)</translation>
    </message>
    <message numerus="yes">
        <source>%n subject(s) changed</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>항목 %n개를 변경했습니다</numerusform>
        </translation>
    </message>
    <message>
        <source>No subject has a colour or a style of its own</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>개별 색이나 스타일이 있는 항목이 없습니다</translation>
    </message>
    <message>
        <source>Lines of &amp;titles</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>제목 줄(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Not broken</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>줄 바꿈 없음(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Long</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>길게(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Medium</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>보통(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Short</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>짧게(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Bones on both sides</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>뼈를 양쪽에(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Head on the left</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>머리를 왼쪽에(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Legend</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>범례(&amp;L)</translation>
    </message>
</context>
<context>
    <name>LookInfo</name>
    <message>
        <source>&amp;Clear</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>선명(&amp;C)</translation>
    </message>
    <message>
        <source>Cl&amp;assic</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>클래식(&amp;A)</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Float</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>분리</translation>
    </message>
    <message>
        <source>Takes the panel out of the window, or back into it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>패널을 창에서 떼어 내거나 창에 다시 넣습니다</translation>
    </message>
    <message>
        <source>Close</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Closes the panel</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>패널을 닫습니다</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>세부 정보(&amp;D)</translation>
    </message>
    <message>
        <source>Filt&amp;er…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>필터(&amp;E)…</translation>
    </message>
    <message>
        <source>Subjects</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>항목</translation>
    </message>
    <message>
        <source>Details</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>세부 정보</translation>
    </message>
    <message>
        <source>History</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>작업 내역</translation>
    </message>
    <message>
        <source>Overview</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>전체 보기</translation>
    </message>
    <message>
        <source>Actions</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>조치</translation>
    </message>
    <message>
        <source>Shown be&amp;fore</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>이전에 표시한 다이어그램(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Panels</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>패널(&amp;P)</translation>
    </message>
    <message>
        <source>Nothing opens %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1을(를) 열 수 있는 프로그램이 없습니다</translation>
    </message>
    <message numerus="yes">
        <source>%n task(s) moved to %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>작업 %n개를 %1(으)로 옮겼습니다</numerusform>
        </translation>
    </message>
    <message>
        <source>the top</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>최상위</translation>
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
        <translation>%1 가져오기</translation>
    </message>
    <message>
        <source>Read as</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>읽는 방법</translation>
    </message>
    <message>
        <source>What the columns stand for, with the first rows of the table:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>각 열의 의미와 표의 처음 몇 행:</translation>
    </message>
    <message>
        <source>Read &quot;%1&quot; as</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>“%1”을(를) 읽는 방법</translation>
    </message>
</context>
<context>
    <name>MarkCommands</name>
    <message>
        <source>&amp;Suspected</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>의심(&amp;S)</translation>
    </message>
    <message>
        <source>Being &amp;checked</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>검증 중(&amp;C)</translation>
    </message>
    <message>
        <source>Con&amp;firmed</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>확인됨(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Ruled out</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>배제됨(&amp;R)</translation>
    </message>
    <message>
        <source>R&amp;oot cause</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>근본 원인(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;No verdict</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>판정 없음(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Waiting</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>대기 중(&amp;W)</translation>
    </message>
    <message>
        <source>Waiting for &amp;approval</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>승인 대기(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Under way</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>진행 중(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Finished</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>완료(&amp;F)</translation>
    </message>
    <message>
        <source>Finished &amp;late</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>늦게 완료(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Postponed</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>연기됨(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Cancelled</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>취소됨(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;No status</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>상태 없음(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;1 (highest)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>1(가장 높음)(&amp;1)</translation>
    </message>
    <message>
        <source>&amp;2 (high)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>2(높음)(&amp;2)</translation>
    </message>
    <message>
        <source>&amp;3 (medium)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>3(보통)(&amp;3)</translation>
    </message>
    <message>
        <source>&amp;4 (low)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>4(낮음)(&amp;4)</translation>
    </message>
    <message>
        <source>&amp;5 (lowest)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>5(가장 낮음)(&amp;5)</translation>
    </message>
    <message>
        <source>&amp;No priority</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>우선순위 없음(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Blue</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>파랑(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Teal</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>청록(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Green</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>초록(&amp;G)</translation>
    </message>
    <message>
        <source>Bro&amp;wn</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>갈색(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Orange</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>주황(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Red</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>빨강(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Purple</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>보라(&amp;P)</translation>
    </message>
    <message>
        <source>Gr&amp;ey</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>회색(&amp;E)</translation>
    </message>
    <message>
        <source>Mar&amp;k</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>표시(&amp;K)</translation>
    </message>
    <message>
        <source>Mark at the bo&amp;ne</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>뼈 옆에서 표시(&amp;N)</translation>
    </message>
    <message>
        <source>R&amp;esponsible…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>담당자(&amp;E)…</translation>
    </message>
    <message>
        <source>Change verdict</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>판정 변경</translation>
    </message>
    <message>
        <source>Vote</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>투표</translation>
    </message>
    <message>
        <source>One vote &amp;more</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>한 표 더하기(&amp;M)</translation>
    </message>
    <message>
        <source>One vote &amp;less</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>한 표 빼기(&amp;L)</translation>
    </message>
    <message>
        <source>Sort it and its siblings &amp;by votes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>형제 항목을 득표순으로 정렬(&amp;B)</translation>
    </message>
    <message>
        <source>S&amp;tatus</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>상태(&amp;T)</translation>
    </message>
    <message>
        <source>Change status</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>상태 변경</translation>
    </message>
    <message>
        <source>&amp;Priority</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>우선순위(&amp;P)</translation>
    </message>
    <message>
        <source>Change priority</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>우선순위 변경</translation>
    </message>
    <message>
        <source>Colo&amp;ur</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>색(&amp;U)</translation>
    </message>
    <message>
        <source>Change colour</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>색 변경</translation>
    </message>
    <message>
        <source>That of the p&amp;alette</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>색상표의 색(&amp;A)</translation>
    </message>
    <message>
        <source>Ot&amp;her…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>기타(&amp;H)…</translation>
    </message>
    <message>
        <source>Colour of the bone</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>뼈의 색</translation>
    </message>
    <message>
        <source>Responsible</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>담당자</translation>
    </message>
    <message>
        <source>Who is responsible?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>누가 담당합니까?</translation>
    </message>
    <message>
        <source>Change who is responsible</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>담당자 변경</translation>
    </message>
    <message>
        <source>Sort by votes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>득표순 정렬</translation>
    </message>
    <message>
        <source>Sorted by votes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>득표순으로 정렬했습니다</translation>
    </message>
</context>
<context>
    <name>MarkNames</name>
    <message>
        <source>none</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>없음</translation>
    </message>
    <message>
        <source>unknown</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>알 수 없음</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>취소됨</translation>
    </message>
    <message>
        <source>finished</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>완료</translation>
    </message>
    <message>
        <source>finished late</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>늦게 완료</translation>
    </message>
    <message>
        <source>postponed</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>연기됨</translation>
    </message>
    <message>
        <source>under way</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>진행 중</translation>
    </message>
    <message>
        <source>waiting</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>대기 중</translation>
    </message>
    <message>
        <source>waiting for approval</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>승인 대기</translation>
    </message>
    <message>
        <source>suspected</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>의심</translation>
    </message>
    <message>
        <source>being checked</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>검증 중</translation>
    </message>
    <message>
        <source>confirmed</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>확인됨</translation>
    </message>
    <message>
        <source>ruled out</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>배제됨</translation>
    </message>
    <message>
        <source>root cause</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>근본 원인</translation>
    </message>
</context>
<context>
    <name>MeetingReport</name>
    <message>
        <source>it may be a cause</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>요인일 수 있음</translation>
    </message>
    <message>
        <source>somebody is looking into it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>조사하는 중</translation>
    </message>
    <message>
        <source>it contributes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>영향을 미침</translation>
    </message>
    <message>
        <source>it does not contribute</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>영향을 미치지 않음</translation>
    </message>
    <message>
        <source>all comes from it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>모든 문제가 여기에서 비롯됨</translation>
    </message>
    <message>
        <source>Ranked causes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>요인 순위</translation>
    </message>
    <message>
        <source>Cause</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>요인</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>판정</translation>
    </message>
    <message>
        <source>Votes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>득표수</translation>
    </message>
    <message>
        <source>Evidence</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>근거</translation>
    </message>
    <message>
        <source>No cause has a verdict or votes.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>판정이나 표가 있는 요인이 없습니다.</translation>
    </message>
    <message>
        <source>Nobody yet</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>담당자 미정</translation>
    </message>
    <message>
        <source>Action</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>조치</translation>
    </message>
    <message>
        <source>Status</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>상태</translation>
    </message>
    <message>
        <source>Progress</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>진행률</translation>
    </message>
    <message>
        <source>Until</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>기한</translation>
    </message>
    <message>
        <source>%1, overdue</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1(기한 초과)</translation>
    </message>
    <message>
        <source>Legend</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>범례</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>의미</translation>
    </message>
    <message>
        <source>Actions</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>조치</translation>
    </message>
    <message>
        <source>Nobody is to do anything.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>해야 할 조치가 없습니다.</translation>
    </message>
    <message>
        <source>In</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>위치</translation>
    </message>
    <message>
        <source>Responsible</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>담당자</translation>
    </message>
    <message>
        <source>Overdue</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>기한 초과</translation>
    </message>
    <message>
        <source>yes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>예</translation>
    </message>
    <message>
        <source>its name must end in .html, .pdf or .md</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>이름이 .html, .pdf 또는 .md로 끝나야 합니다</translation>
    </message>
    <message>
        <source>its name must end in .csv or .md</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>이름이 .csv 또는 .md로 끝나야 합니다</translation>
    </message>
</context>
<context>
    <name>Menus</name>
    <message>
        <source>&amp;File</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>파일(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>편집(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Subject</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>항목(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>이동(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>보기(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>도움말(&amp;H)</translation>
    </message>
    <message>
        <source>File</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>파일</translation>
    </message>
    <message>
        <source>Edit</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>편집</translation>
    </message>
    <message>
        <source>Subject</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>항목</translation>
    </message>
    <message>
        <source>View</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>보기</translation>
    </message>
</context>
<context>
    <name>Minimap</name>
    <message>
        <source>Overview of the drawing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>그림 전체 보기</translation>
    </message>
</context>
<context>
    <name>ModifyDelLink</name>
    <message>
        <source>Delete link</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>링크 제거</translation>
    </message>
</context>
<context>
    <name>ModifyLinkTo</name>
    <message>
        <source>Modify link to</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>링크 변경</translation>
    </message>
</context>
<context>
    <name>ModifyName</name>
    <message>
        <source>Modify subject name</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>항목 이름 바꾸기</translation>
    </message>
</context>
<context>
    <name>MoveCommands</name>
    <message>
        <source>Move &amp;up</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>위로 이동(&amp;U)</translation>
    </message>
    <message>
        <source>Move do&amp;wn</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>아래로 이동(&amp;W)</translation>
    </message>
    <message>
        <source>Pro&amp;mote (beside its parent)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>단계 올리기(상위 항목 옆으로)(&amp;M)</translation>
    </message>
    <message>
        <source>D&amp;emote (below the one before)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>단계 내리기(앞 항목 아래로)(&amp;E)</translation>
    </message>
</context>
<context>
    <name>Palettes</name>
    <message>
        <source>&amp;Colours</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>컬러(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Warm</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>따뜻한 색(&amp;W)</translation>
    </message>
    <message>
        <source>C&amp;ool</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>차가운 색(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Grey</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>회색(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>어두운 색(&amp;D)</translation>
    </message>
</context>
<context>
    <name>PasteDialog</name>
    <message>
        <source>Paste</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>붙여넣기</translation>
    </message>
    <message>
        <source>Lines</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>텍스트 줄</translation>
    </message>
    <message>
        <source>Lines with links and emphasis</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>링크와 강조가 있는 줄</translation>
    </message>
    <message>
        <source>Rows of a table</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>표의 행</translation>
    </message>
    <message>
        <source>Title</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>제목</translation>
    </message>
    <message>
        <source>Details</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>세부 정보</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>붙여넣기(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Read as:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>읽는 방법(&amp;R):</translation>
    </message>
</context>
<context>
    <name>PenSelect</name>
    <message>
        <source>NoPen</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>선 없음</translation>
    </message>
    <message>
        <source>SolidLine</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>실선</translation>
    </message>
    <message>
        <source>DashLine</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>파선</translation>
    </message>
    <message>
        <source>DotLine</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>점선</translation>
    </message>
    <message>
        <source>DashDotLine</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>일점쇄선</translation>
    </message>
    <message>
        <source>DashDotDotLine</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>이점쇄선</translation>
    </message>
    <message>
        <source>FlatCap</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>평평하게</translation>
    </message>
    <message>
        <source>SquareCap</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>사각형</translation>
    </message>
    <message>
        <source>RoundCap</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>둥글게</translation>
    </message>
    <message>
        <source>MiterJoin</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>뾰족하게</translation>
    </message>
    <message>
        <source>BevelJoin</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>비스듬하게</translation>
    </message>
    <message>
        <source>RoundJoin</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>둥글게</translation>
    </message>
    <message>
        <source>PenWidth</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>두께:</translation>
    </message>
    <message>
        <source>PenStyle</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>선 종류:</translation>
    </message>
    <message>
        <source>PenCapStyle</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>끝 모양:</translation>
    </message>
    <message>
        <source>PenJoinStyle</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>모서리:</translation>
    </message>
    <message>
        <source>PenColor</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>색:</translation>
    </message>
    <message>
        <source>Pen</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>펜</translation>
    </message>
    <message>
        <source>Color</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>선택…</translation>
    </message>
    <message>
        <source>Accept</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>확인</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>PictureExport</name>
    <message>
        <source>%1; it fits at a scale of %2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1. 배율 %2이면 맞습니다</translation>
    </message>
    <message>
        <source>the scale, the size or the margin makes no picture</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>이 배율, 크기, 여백으로는 그림을 만들 수 없습니다</translation>
    </message>
    <message>
        <source>there is nothing to draw</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>그릴 내용이 없습니다</translation>
    </message>
    <message>
        <source>a drawing without height or width needs a margin</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>높이나 너비가 없는 그림에는 여백이 필요합니다</translation>
    </message>
    <message>
        <source>the file name must end in .png, .svg or .pdf</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>파일 이름이 .png, .svg 또는 .pdf로 끝나야 합니다</translation>
    </message>
    <message>
        <source>a picture of %1 × %2 is too large: %3</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 × %2 그림은 너무 큽니다: %3</translation>
    </message>
    <message>
        <source>a PDF has at most %1 points (1/72 inch) on a side</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>PDF의 한 변은 최대 %1포인트(1/72인치)입니다</translation>
    </message>
    <message>
        <source>a PNG has at most %1 pixels on a side</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>PNG의 한 변은 최대 %1픽셀입니다</translation>
    </message>
    <message>
        <source>its pixels would take more than %1 MiB</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>픽셀 데이터가 %1 MiB를 넘습니다</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>메모리가 부족합니다</translation>
    </message>
    <message>
        <source>an SVG of it would have more than %1 MiB; a PDF is smaller</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>SVG로는 %1 MiB를 넘습니다. PDF가 더 작습니다</translation>
    </message>
    <message>
        <source>a side has at most %1 units</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>한 변은 최대 %1단위입니다</translation>
    </message>
    <message>
        <source>there is no such format</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>그런 형식이 없습니다</translation>
    </message>
    <message>
        <source>it was cancelled</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>취소되었습니다</translation>
    </message>
    <message>
        <source>the drawing cannot be encoded</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>그림을 인코딩할 수 없습니다</translation>
    </message>
</context>
<context>
    <name>PictureLevelFields</name>
    <message>
        <source>As shown</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>표시된 대로</translation>
    </message>
    <message>
        <source>All levels</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>모든 단계</translation>
    </message>
    <message>
        <source>Levels below the main bones:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>큰 뼈 아래의 단계 수:</translation>
    </message>
    <message>
        <source>Levels below the main bones</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>큰 뼈 아래의 단계 수</translation>
    </message>
    <message>
        <source>&amp;Expanded:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>펼치기(&amp;E):</translation>
    </message>
</context>
<context>
    <name>PictureLookFields</name>
    <message>
        <source>Le&amp;gend</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>범례(&amp;G)</translation>
    </message>
    <message>
        <source>Loo&amp;k:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>모양(&amp;K):</translation>
    </message>
    <message>
        <source>As on the screen</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>화면과 같음</translation>
    </message>
    <message>
        <source>&amp;Page:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>페이지(&amp;P):</translation>
    </message>
    <message>
        <source>On the right</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>오른쪽</translation>
    </message>
    <message>
        <source>On the left</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>왼쪽</translation>
    </message>
    <message>
        <source>Pale&amp;tte:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>색상표(&amp;T):</translation>
    </message>
    <message>
        <source>Hea&amp;d:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>머리(&amp;D):</translation>
    </message>
</context>
<context>
    <name>PicturePreview</name>
    <message>
        <source>Preview</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>미리 보기</translation>
    </message>
</context>
<context>
    <name>PictureSizeFields</name>
    <message>
        <source> px</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation> px</translation>
    </message>
    <message>
        <source>Sc&amp;ale:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>배율(&amp;A):</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>너비(&amp;W):</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>높이(&amp;H):</translation>
    </message>
    <message>
        <source>A page of %1 × %2 mm</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 × %2 mm 페이지</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1 × %2픽셀</translation>
    </message>
    <message>
        <source>&amp;Use %1, which fits</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>크기에 맞는 %1 사용(&amp;U)</translation>
    </message>
</context>
<context>
    <name>PrintPreview</name>
    <message>
        <source>Arranged for the paper</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>종이에 맞게 배치</translation>
    </message>
    <message>
        <source>Legend</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>범례</translation>
    </message>
    <message>
        <source>Print preview</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>인쇄 미리 보기</translation>
    </message>
    <message>
        <source>Size on paper</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>종이 위의 크기</translation>
    </message>
    <message>
        <source>Fit one page</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>한 쪽에 맞춤</translation>
    </message>
    <message>
        <source>Fit the width of the page</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>쪽 너비에 맞춤</translation>
    </message>
    <message>
        <source>Scale</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>배율</translation>
    </message>
    <message>
        <source>Scale in percent</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>배율(퍼센트)</translation>
    </message>
    <message>
        <source>Look</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>모양</translation>
    </message>
    <message>
        <source>Palette</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>색상표</translation>
    </message>
    <message>
        <source>Printing…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>인쇄 중…</translation>
    </message>
    <message numerus="yes">
        <source>%n page(s)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>%n쪽</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Nothing to print, or more than %n page(s)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>인쇄할 내용이 없거나 %n쪽을 넘습니다</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, at %2 % so that no title is cut</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1, 제목이 잘리지 않도록 %2 %로 축소</translation>
    </message>
</context>
<context>
    <name>PriorityBox</name>
    <message>
        <source>none</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>없음</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>新建子任务</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>새 하위 작업</translation>
    </message>
    <message>
        <source>查看详情</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>세부 정보 표시</translation>
    </message>
    <message>
        <source>用鱼骨图详细查看</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>별도의 다이어그램으로 표시</translation>
    </message>
    <message>
        <source>编辑节点</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>항목 편집</translation>
    </message>
    <message>
        <source>新建子节点</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>하위 항목 추가</translation>
    </message>
    <message>
        <source>删除节点</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>항목 삭제</translation>
    </message>
</context>
<context>
    <name>RankedList</name>
    <message>
        <source>Ranked causes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>요인 순위</translation>
    </message>
    <message>
        <source>Votes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>득표수</translation>
    </message>
    <message>
        <source>Cause</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>요인</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>판정</translation>
    </message>
    <message>
        <source>In</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>위치</translation>
    </message>
</context>
<context>
    <name>RecentFiles</name>
    <message>
        <source>&amp;Recent files</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>최근 파일(&amp;R)</translation>
    </message>
    <message>
        <source>(nothing yet)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>(아직 없음)</translation>
    </message>
    <message>
        <source>&amp;Clear the list</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>목록 지우기(&amp;C)</translation>
    </message>
</context>
<context>
    <name>RecoveryCommands</name>
    <message>
        <source>Reco&amp;ver documents…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>문서 복구(&amp;V)…</translation>
    </message>
    <message>
        <source>There is nothing to recover.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>복구할 내용이 없습니다.</translation>
    </message>
    <message>
        <source>%1 recovered</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1을(를) 복구했습니다</translation>
    </message>
    <message>
        <source>Recover documents</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>문서 복구</translation>
    </message>
    <message>
        <source>%1 cannot be recovered from %2: %3.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1을(를) %2에서 복구할 수 없습니다: %3.</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>Recover documents</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>문서 복구</translation>
    </message>
    <message>
        <source>The program did not end well the last time. These documents have changes that were not saved:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>지난번에 프로그램이 정상적으로 종료되지 않았습니다. 다음 문서에 저장하지 않은 변경 사항이 있습니다:</translation>
    </message>
    <message>
        <source>Documents with changes that were not saved</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>저장하지 않은 변경 사항이 있는 문서</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>열기(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>버리기(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>나중에(&amp;L)</translation>
    </message>
    <message>
        <source>Discard</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>버리기</translation>
    </message>
    <message numerus="yes">
        <source>Give up the changes of %n document(s) for good?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>문서 %n개의 변경 사항을 완전히 버리시겠습니까?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RecoveryModel</name>
    <message>
        <source>Document</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>문서</translation>
    </message>
    <message>
        <source>File</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>파일</translation>
    </message>
    <message>
        <source>Autosaved</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>자동 저장 시각</translation>
    </message>
    <message>
        <source>Size</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>크기</translation>
    </message>
    <message>
        <source>(never saved)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>(저장한 적 없음)</translation>
    </message>
</context>
<context>
    <name>ReplaceFindDialog</name>
    <message>
        <source>Finder</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>찾아 바꾸기</translation>
    </message>
    <message>
        <source>Find what:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>찾을 내용:</translation>
    </message>
    <message>
        <source>Replace with:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>바꿀 내용:</translation>
    </message>
    <message>
        <source>Case sensitive</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>대소문자 구분</translation>
    </message>
    <message>
        <source>Find</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>찾기</translation>
    </message>
    <message>
        <source>Replace</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>바꾸기</translation>
    </message>
    <message>
        <source>Replace All</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>모두 바꾸기</translation>
    </message>
    <message>
        <source>Column</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>찾을 대상</translation>
    </message>
    <message>
        <source>title</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>제목</translation>
    </message>
    <message>
        <source>uuid</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>UUID</translation>
    </message>
    <message>
        <source>showid</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>번호</translation>
    </message>
    <message>
        <source>pid</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>상위 작업의 UUID</translation>
    </message>
    <message>
        <source>Not found key word %1.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>“%1”을(를) 찾을 수 없습니다.</translation>
    </message>
</context>
<context>
    <name>ReportCommands</name>
    <message>
        <source>Meetin&amp;g report…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>회의 보고서(&amp;G)…</translation>
    </message>
    <message>
        <source>Meeting report</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>회의 보고서</translation>
    </message>
    <message>
        <source>Ta&amp;ble of actions…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>조치 표(&amp;B)…</translation>
    </message>
    <message>
        <source>Actions</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>조치</translation>
    </message>
    <message>
        <source>Page for the browser (*.html)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>브라우저용 페이지 (*.html)</translation>
    </message>
    <message>
        <source>Markdown and a picture (*.md)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Markdown과 그림 (*.md)</translation>
    </message>
    <message>
        <source>actions</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>조치</translation>
    </message>
    <message>
        <source>Table for spreadsheets (*.csv)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>스프레드시트용 표 (*.csv)</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1을(를) 썼습니다</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1을(를) 쓸 수 없습니다: %2.</translation>
    </message>
    <message>
        <source>Print act&amp;ions…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>조치 인쇄(&amp;Z)…</translation>
    </message>
</context>
<context>
    <name>SlideExport</name>
    <message>
        <source>Fishbone diagram &quot;%1&quot; with %2 causes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>특성요인도 “%1”, 요인 %2개</translation>
    </message>
    <message>
        <source>there is nothing to draw</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>그릴 내용이 없습니다</translation>
    </message>
    <message>
        <source>Actions</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>조치</translation>
    </message>
</context>
<context>
    <name>SourceDialogs</name>
    <message>
        <source>Fishbone diagrams (*.json);;%1;;All files (*)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>특성요인도 (*.json);;%1;;모든 파일 (*)</translation>
    </message>
    <message>
        <source>Open</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>열기</translation>
    </message>
    <message>
        <source>Import</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>가져오기</translation>
    </message>
    <message>
        <source>Loading %1…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1을(를) 불러오는 중…</translation>
    </message>
</context>
<context>
    <name>SpearStyleDialog</name>
    <message>
        <source>Spear style</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>스타일</translation>
    </message>
    <message>
        <source>InheritanceParent</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>상위 항목의 스타일 상속</translation>
    </message>
    <message>
        <source>Preview</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>미리 보기</translation>
    </message>
    <message>
        <source>ssNormal</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>보통</translation>
    </message>
    <message>
        <source>ssSelected</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>선택됨</translation>
    </message>
    <message>
        <source>ssHovered</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>포인터 아래</translation>
    </message>
    <message>
        <source>ssLinked</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>이동 대상</translation>
    </message>
    <message>
        <source>Preview 预览测试 ABC xyz</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>미리 보기 견본 ABC xyz</translation>
    </message>
    <message>
        <source>textCount</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>표시할 글자 수:</translation>
    </message>
    <message>
        <source>SpearState</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>상태:</translation>
    </message>
    <message>
        <source>Accept</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>확인</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>취소</translation>
    </message>
    <message>
        <source>Parent</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>상위 항목</translation>
    </message>
    <message>
        <source>Set TextFont</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>글꼴…</translation>
    </message>
    <message>
        <source>Set TextColor</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>글자색…</translation>
    </message>
    <message>
        <source>Set TextBkColor</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>글자 배경…</translation>
    </message>
    <message>
        <source>Set BroderPen</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>테두리 펜…</translation>
    </message>
</context>
<context>
    <name>StepNames</name>
    <message numerus="yes">
        <source>%1 “%2” and %n more</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>
            <numerusform>%1 “%2” 외 %n개</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StringListEditor</name>
    <message>
        <source>Add</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>추가</translation>
    </message>
    <message>
        <source>Remove</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>제거</translation>
    </message>
</context>
<context>
    <name>SubjectClipboard</name>
    <message>
        <source>cannot paste the text: %1</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>텍스트를 붙여넣을 수 없습니다: %1</translation>
    </message>
</context>
<context>
    <name>SubjectStyles</name>
    <message>
        <source>The subject looks as the one above it, also when the style of that is changed</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>항목이 위 항목과 같은 모양을 띠며 위 항목의 스타일이 바뀌면 함께 바뀝니다</translation>
    </message>
    <message>
        <source>Change style</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>스타일 변경</translation>
    </message>
    <message>
        <source>Remove style</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>스타일 제거</translation>
    </message>
    <message>
        <source>Take off own colours and styles</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>개별 색과 스타일 해제</translation>
    </message>
</context>
<context>
    <name>SubjectTree</name>
    <message>
        <source>Filter by title</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>제목으로 필터</translation>
    </message>
    <message>
        <source>Subjects</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>항목</translation>
    </message>
</context>
<context>
    <name>TabButtons</name>
    <message>
        <source>Scroll left</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>왼쪽으로 스크롤</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>오른쪽으로 스크롤</translation>
    </message>
</context>
<context>
    <name>TabCommands</name>
    <message>
        <source>Next &amp;tab</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>다음 탭(&amp;T)</translation>
    </message>
    <message>
        <source>Previous t&amp;ab</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>이전 탭(&amp;A)</translation>
    </message>
</context>
<context>
    <name>TableMapping</name>
    <message>
        <source>Details</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>세부 정보</translation>
    </message>
    <message>
        <source>Title</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>제목</translation>
    </message>
    <message>
        <source>Title of one level</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>한 단계의 제목</translation>
    </message>
    <message>
        <source>Id</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>ID</translation>
    </message>
    <message>
        <source>Uuid</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>UUID</translation>
    </message>
    <message>
        <source>Short id</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>짧은 ID</translation>
    </message>
    <message>
        <source>Parent</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>상위 항목</translation>
    </message>
    <message>
        <source>Level</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>단계</translation>
    </message>
    <message>
        <source>Outline number</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>개요 번호</translation>
    </message>
    <message>
        <source>Status</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>상태</translation>
    </message>
    <message>
        <source>Progress</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>진행률</translation>
    </message>
    <message>
        <source>Priority</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>우선순위</translation>
    </message>
    <message>
        <source>Manager</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>담당자</translation>
    </message>
    <message>
        <source>Manager&apos;s id</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>담당자 ID</translation>
    </message>
    <message>
        <source>Creator</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>만든 사람</translation>
    </message>
    <message>
        <source>Creator&apos;s id</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>만든 사람 ID</translation>
    </message>
    <message>
        <source>Followers</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>팔로워</translation>
    </message>
    <message>
        <source>Created</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>만든 날짜</translation>
    </message>
    <message>
        <source>Planned end</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>기한</translation>
    </message>
    <message>
        <source>Link</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>링크</translation>
    </message>
    <message>
        <source>Details text</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>세부 정보 텍스트</translation>
    </message>
    <message>
        <source>Type</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>종류</translation>
    </message>
    <message>
        <source>Completed on</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>완료 날짜</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>판정</translation>
    </message>
    <message>
        <source>Votes</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>득표수</translation>
    </message>
</context>
<context>
    <name>TemplateCommands</name>
    <message>
        <source>New from &amp;template…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>템플릿으로 새로 만들기(&amp;T)…</translation>
    </message>
    <message>
        <source>Save as te&amp;mplate…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>템플릿으로 저장(&amp;M)…</translation>
    </message>
    <message>
        <source>New from template</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>템플릿으로 새로 만들기</translation>
    </message>
    <message>
        <source>%1 is no template: %2.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1은(는) 템플릿이 아닙니다: %2.</translation>
    </message>
    <message>
        <source>Save as template</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>템플릿으로 저장</translation>
    </message>
    <message>
        <source>Name of the template:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>템플릿 이름:</translation>
    </message>
    <message>
        <source>There is a template %1 already. Replace it?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>템플릿 %1이(가) 이미 있습니다. 바꾸시겠습니까?</translation>
    </message>
    <message>
        <source>File &gt; New from template offers %1 now</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>이제 “파일 &gt; 템플릿으로 새로 만들기”에서 %1을(를) 고를 수 있습니다</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1을(를) 쓸 수 없습니다: %2.</translation>
    </message>
</context>
<context>
    <name>TemplateGallery</name>
    <message>
        <source>New from template</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>템플릿으로 새로 만들기</translation>
    </message>
    <message>
        <source>Templates</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>템플릿</translation>
    </message>
    <message>
        <source>C&amp;reate</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>만들기(&amp;R)</translation>
    </message>
    <message>
        <source>From a &amp;file…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>파일에서(&amp;F)…</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>삭제(&amp;D)</translation>
    </message>
    <message>
        <source>Delete the template %1?</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>템플릿 %1을(를) 삭제하시겠습니까?</translation>
    </message>
</context>
<context>
    <name>Templates</name>
    <message>
        <source>Empty</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>빈 다이어그램</translation>
    </message>
    <message>
        <source>6M: production</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>6M(5M1E): 생산</translation>
    </message>
    <message>
        <source>4S: services</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>4S: 서비스</translation>
    </message>
    <message>
        <source>8P: marketing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>8P: 마케팅</translation>
    </message>
    <message>
        <source>4P: administration</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>4P: 관리</translation>
    </message>
    <message>
        <source>5 whys</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>5 Why 분석</translation>
    </message>
    <message>
        <source>Incident review</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>사고 검토</translation>
    </message>
    <message>
        <source>Project risks</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>프로젝트 위험</translation>
    </message>
</context>
<context>
    <name>TitleEditor</name>
    <message>
        <source>Title</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>제목</translation>
    </message>
</context>
<context>
    <name>TreeItem</name>
    <message>
        <source>负责人:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>담당자: </translation>
    </message>
    <message>
        <source>创建时间:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>만든 날짜: </translation>
    </message>
    <message>
        <source>截止时间:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>기한: </translation>
    </message>
    <message>
        <source>子主题</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>하위 항목</translation>
    </message>
</context>
<context>
    <name>URLDialog</name>
    <message>
        <source>Input Url</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>URL 입력</translation>
    </message>
    <message>
        <source>Url:</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>URL:</translation>
    </message>
    <message>
        <source>Clean</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>기록 지우기</translation>
    </message>
    <message>
        <source>Open</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>확인</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>취소</translation>
    </message>
    <message>
        <source>Link to url</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>URL에 링크</translation>
    </message>
    <message>
        <source>Save url</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>URL에 저장</translation>
    </message>
    <message>
        <source>Open url</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>URL 열기</translation>
    </message>
    <message>
        <source>Error</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>오류</translation>
    </message>
    <message>
        <source>Failed to open %1
%2</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>%1을(를) 열 수 없습니다
%2</translation>
    </message>
</context>
<context>
    <name>ViewCommands</name>
    <message>
        <source>Zoom &amp;in</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>확대(&amp;I)</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>축소(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;100 %</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>100 %(&amp;1)</translation>
    </message>
    <message>
        <source>&amp;Fit all</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>모두 맞춤(&amp;F)</translation>
    </message>
    <message>
        <source>Fit &amp;selection</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>선택 항목 맞춤(&amp;S)</translation>
    </message>
    <message>
        <source>Rotate &amp;right</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>오른쪽으로 회전(&amp;R)</translation>
    </message>
    <message>
        <source>Rotate &amp;left</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>왼쪽으로 회전(&amp;L)</translation>
    </message>
    <message>
        <source>U&amp;pright</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>똑바로 세우기(&amp;P)</translation>
    </message>
    <message>
        <source>S&amp;how full screen</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>전체 화면(&amp;H)</translation>
    </message>
    <message>
        <source>E&amp;xpand</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>펼치기(&amp;X)</translation>
    </message>
    <message>
        <source>&amp;Contract</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>접기(&amp;C)</translation>
    </message>
    <message>
        <source>Expand &amp;all</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>모두 펼치기(&amp;A)</translation>
    </message>
    <message>
        <source>Con&amp;tract all</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>모두 접기(&amp;T)</translation>
    </message>
    <message>
        <source>Expanding all bones…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>모든 뼈를 펼치는 중…</translation>
    </message>
    <message>
        <source>Show as a &amp;diagram of its own</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>별도의 다이어그램으로 표시(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>뒤로(&amp;B)</translation>
    </message>
    <message>
        <source>Show the &amp;whole diagram</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>전체 다이어그램으로 돌아가기(&amp;W)</translation>
    </message>
    <message>
        <source>Style of &amp;all subjects…</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>모든 항목의 스타일(&amp;Y)…</translation>
    </message>
    <message>
        <source>&amp;Diagram mode</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>다이어그램 모드(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Task mode</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>작업 모드(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Just the drawing</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>그림만 표시(&amp;J)</translation>
    </message>
    <message>
        <source>(nothing yet)</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>(아직 없음)</translation>
    </message>
</context>
<context>
    <name>WalkCommands</name>
    <message>
        <source>To the &amp;left</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>왼쪽으로(&amp;L)</translation>
    </message>
    <message>
        <source>To the &amp;right</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>오른쪽으로(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>위로(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Down</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>아래로(&amp;D)</translation>
    </message>
    <message>
        <source>To the &amp;parent</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>상위 항목으로(&amp;P)</translation>
    </message>
    <message>
        <source>To the &amp;first child</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>첫 하위 항목으로(&amp;F)</translation>
    </message>
    <message>
        <source>To the one &amp;before</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>앞 항목으로(&amp;B)</translation>
    </message>
    <message>
        <source>To the &amp;next one</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>다음 항목으로(&amp;N)</translation>
    </message>
</context>
<context>
    <name>Welcome</name>
    <message>
        <source>Your first fishbone</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>나의 첫 특성요인도</translation>
    </message>
    <message>
        <source>Build it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>만들기</translation>
    </message>
    <message>
        <source>Tab: a child</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Tab: 하위 항목</translation>
    </message>
    <message>
        <source>Enter: one after it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Enter: 뒤에 추가</translation>
    </message>
    <message>
        <source>Shift+Enter: one before it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Shift+Enter: 앞에 추가</translation>
    </message>
    <message>
        <source>Ctrl+Enter: a parent</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ctrl+Enter: 상위 항목</translation>
    </message>
    <message>
        <source>Change it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>고치기</translation>
    </message>
    <message>
        <source>Just type: a new title</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>바로 입력: 새 제목</translation>
    </message>
    <message>
        <source>F2: edit the title</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>F2: 제목 편집</translation>
    </message>
    <message>
        <source>F4: details</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>F4: 세부 정보</translation>
    </message>
    <message>
        <source>Ctrl+Z: undo</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ctrl+Z: 실행 취소</translation>
    </message>
    <message>
        <source>Mark it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>표시하기</translation>
    </message>
    <message>
        <source>Space: all marks</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Space: 모든 표시</translation>
    </message>
    <message>
        <source>F7: a vote</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>F7: 한 표</translation>
    </message>
    <message>
        <source>Walk in it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>다니기</translation>
    </message>
    <message>
        <source>Arrows: as you see it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>화살표: 보이는 대로</translation>
    </message>
    <message>
        <source>Ctrl+arrows: by level</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ctrl+화살표: 단계별로</translation>
    </message>
    <message>
        <source>+ and −: expand, contract</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>+와 −: 펼치기, 접기</translation>
    </message>
    <message>
        <source>Rearrange it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>다시 배치하기</translation>
    </message>
    <message>
        <source>Drag a bone onto another</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>뼈를 다른 뼈로 끌기</translation>
    </message>
    <message>
        <source>Alt+arrows: move a bone</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Alt+화살표: 뼈 이동</translation>
    </message>
    <message>
        <source>Look at it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>살펴보기</translation>
    </message>
    <message>
        <source>Home: all of it</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Home: 전체</translation>
    </message>
    <message>
        <source>Ctrl+wheel: zoom</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ctrl+휠: 확대/축소</translation>
    </message>
    <message>
        <source>Take it with you</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>가져가기</translation>
    </message>
    <message>
        <source>Ctrl+S: save</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ctrl+S: 저장</translation>
    </message>
    <message>
        <source>Ctrl+E: a picture</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>Ctrl+E: 그림</translation>
    </message>
    <message>
        <source>F1: all keys</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>F1: 모든 단축키</translation>
    </message>
</context>
<context>
    <name>WorkProgress</name>
    <message>
        <source>Cancel</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>ZoomControls</name>
    <message>
        <source>Zoom</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>확대/축소</translation>
    </message>
    <message>
        <source>Show at 100 %</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>100 %로 표시</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translatorcomment>Not yet read by a native speaker</translatorcomment>
        <translation>회전</translation>
    </message>
</context>
</TS>
