// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/taskwords.h>

#include <fishbone/exchange/tablemapping.h>

namespace {

using Role = TableMapping::Role;

/** The words of one language. */
class Headings
{
public:
    Headings(TaskWords::Table &table, const char *language)
        : m_table(table)
        , m_language(language)
    {
    }

    Headings &add(Role role, const char *words)
    {
        m_table.push_back({m_language, int(role), words});
        return *this;
    }

private:
    TaskWords::Table &m_table;
    const char *const m_language;
};

void addEnglish(TaskWords::Table &table)
{
    Headings(table, "en")
        .add(Role::Title,
             "title|summary|subject|short desc|short description|short summary|task name|issue "
             "title|issue summary|card name|card title|story title|bug title|name|task|to do|topic|"
             "heading|headline|work item|item|story|issue|action|action item|what|cause|problem|"
             "finding|text|content")
        .add(Role::Path, "level|title|cause|task|topic|subtopic|heading|why|summary|name")
        .add(Role::Id,
             "id|key|issue key|issue id|task id|card id|story id|bug id|item id|gid|iid|"
             "issue iid|work item id|ticket|ticket id|number|issue number|no|nr|#|unique id")
        .add(Role::Uuid, "uuid")
        .add(Role::ShortId, "short id|showid")
        .add(Role::Parent,
             "parent|parent id|parent key|parent issue|parent task|parent task id|parentid|parent "
             "title|parent name|parent item|parent card|parent link|parent work item|parent ticket|"
             "subtask of|sub task of|epic link|epic key|epic id|epic")
        .add(Role::Level,
             "level|outline level|indent|indentation|indent level|depth|hierarchy level")
        .add(Role::Outline, "wbs|outline number|wbs code|outline")
        .add(Role::Status, "status|state|current state|issue state|task status|bug status|status "
                           "name|list name|section/column")
        .add(Role::Progress,
             "progress|% done|% complete|%done|%complete|percent complete|percent done|percentage|"
             "done ratio|completion|percentage complete")
        .add(Role::Priority, "priority|priority name")
        .add(Role::Manager,
             "manager|assignee|assigned to|assignees|owner|owned by|responsible|assignee name|"
             "assign|responsible person|action owner|resource names|resource|person|people|who")
        .add(Role::ManagerId,
             "manager id|assignee id|assignee username|assignee email|assignee e mail")
        .add(Role::Creator,
             "creator|author|reporter|creator name|author name|reporter name|requested by|created "
             "by|reported by|raised by|requester|submitter|opened by")
        .add(Role::CreatorId, "creator id|author id|author username|reporter id|author email")
        .add(Role::Followers,
             "followers|watchers|collaborators|members|participants|subscribers|cc|"
             "cc list")
        .add(Role::Created, "created|created at|created on|creation date|date created|created date|"
                            "created time|opened at|opened|date raised")
        .add(Role::PlannedEnd,
             "planned end|due date|due|due on|due at|due by|deadline|target date|target completion|"
             "planned finish|finish|end date|end|finish date|by when")
        .add(Role::Url, "url|link|issue url|card url|web url|links|href|html url|permalink")
        .add(Role::Detail,
             "detail|details|description|card description|task content|notes|note|body")
        .add(Role::Type, "type")
        .add(Role::CompletedAt, "completed at|completed|closed at|date completed|completed date|"
                                "completed on|resolved|resolved at|accepted at|closed")
        .add(Role::Verdict, "verdict")
        .add(Role::Votes, "votes|vote|vote count|number of votes|upvotes");
}

void addChinese(TaskWords::Table &table)
{
    Headings(table, "zh")
        .add(Role::Title,
             "标题|主题|概要|摘要|任务名称|任务标题|需求名称|需求标题|缺陷标题|bug标题|"
             "工作项|事项|事项名称|名称|任务|卡片名称|卡片|待办|待办事项|问题|原因|措施|"
             "对策")
        .add(Role::Path, "层级|标题|级别|原因")
        .add(Role::Id, "编号|序号|问题关键字|关键字|键值|任务编号|任务id|问题id|需求id|需求编号|"
                       "缺陷id|bug编号|事项编号|工单号|号码")
        .add(Role::Parent, "父任务|上级任务|父级|父项|上级|父编号|父任务id|父id|父工作项|父问题|"
                           "父需求|父缺陷|父事项|史诗链接|史诗|所属任务")
        .add(Role::Level, "层级|级别|大纲级别|缩进|层次")
        .add(Role::Outline, "大纲数字|大纲编号|wbs编号")
        .add(Role::Status,
             "状态|任务状态|当前状态|需求状态|缺陷状态|bug状态|处理状态|看板列|所属列表")
        .add(Role::Progress, "进度|完成度|完成百分比|% 完成|%完成|完成率|完成比例")
        .add(Role::Priority, "优先级|优先度|优先级别|紧急程度")
        .add(Role::Manager, "负责人|经办人|处理人|当前处理人|指派给|执行人|责任人|受理人|执行者|"
                            "承办人|跟进人")
        .add(Role::ManagerId, "经办人id|负责人id")
        .add(Role::Creator, "创建人|创建者|由谁创建|作者|报告人|提出人|发起人|提交人")
        .add(Role::CreatorId, "创建人id|报告人id")
        .add(Role::Followers, "关注者|关注人|参与人|参与者|协作者|成员|抄送|抄送给")
        .add(Role::Created, "创建时间|创建日期|创建于|创建|提出时间|提出日期|提交时间")
        .add(Role::PlannedEnd, "到期日|截止日期|截止时间|截至日期|计划完成|计划完成时间|"
                               "计划完成日期|计划结束|计划结束时间|预计结束|预计完成时间|结束日期|"
                               "结束时间|完成期限|期限|截止|完成时间")
        .add(Role::Url, "链接|网址|地址|超链接|链接地址")
        .add(Role::Detail, "描述|详情|说明|备注|详细信息|内容|详细描述|任务描述|需求描述|问题描述")
        .add(Role::CompletedAt, "完成日期|实际完成|实际完成时间|关闭时间|关闭日期|解决时间")
        .add(Role::Verdict, "结论|判定|验证结果")
        .add(Role::Votes, "投票|票数|投票数|得票");
}

void addTaiwanese(TaskWords::Table &table)
{
    Headings(table, "zh_TW")
        .add(Role::Title, "標題|主題|主旨|摘要|概要|任務名稱|工作名稱|議題|名稱|任務|工作|待辦事項|"
                          "卡片名稱|問題|原因|對策")
        .add(Role::Path, "層級|階層|標題|原因")
        .add(Role::Id, "編號|序號|議題金鑰|議題代碼|問題金鑰|識別碼|任務編號|工作識別碼|金鑰|號碼")
        .add(Role::Parent, "父議題|父任務|父工作|父項|上層|上層任務|父系|上層議題|主要任務")
        .add(Role::Level, "層級|階層|大綱階層|縮排")
        .add(Role::Outline, "大綱編號|wbs編號")
        .add(Role::Status, "狀態|任務狀態|目前狀態")
        .add(Role::Progress, "進度|完成百分比|完成率|% 完成|完成度|% 完工")
        .add(Role::Priority, "優先權|優先順序|優先等級|優先級")
        .add(Role::Manager, "負責人|被分派者|受託人|指派給|分派給|受指派人|經辦人|承辦人|資源名稱|"
                            "擁有者")
        .add(Role::Creator, "建立者|建立人|報告人|回報者|作者|提出人")
        .add(Role::Followers, "監看者|關注者|參與者|成員|副本")
        .add(Role::Created, "建立日期|建立時間|已建立|建立於|建立")
        .add(Role::PlannedEnd, "到期日|截止日期|到期日期|截止時間|期限|完成期限|完成時間|結束日期|"
                               "預計完成日期")
        .add(Role::Url, "連結|網址|超連結")
        .add(Role::Detail, "描述|說明|備註|附註|詳細資料|內容|概述")
        .add(Role::CompletedAt, "實際完成日期|結束時間戳記|關閉日期|已解決日期|已解決|已關閉")
        .add(Role::Verdict, "結論|判定")
        .add(Role::Votes, "投票|票數|得票數");
}

void addJapanese(TaskWords::Table &table)
{
    Headings(table, "ja")
        .add(Role::Title, "題名|件名|要約|タイトル|概要|タスク名|課題名|作業名|項目名|名前|名称|"
                          "タスク|課題|作業|項目|要因|原因|問題|対策|表題")
        .add(Role::Path, "レベル|階層|要因|原因|なぜ|見出し|タイトル|項目")
        .add(Role::Id, "キー|課題キー|課題id|番号|チケット番号|チケット|タスクid|管理番号|識別子")
        .add(Role::Parent, "親|親課題|親チケット|親タスク|親キー|親id|親項目|エピック|"
                           "エピックリンク|エピック リンク|上位タスク")
        .add(Role::Level, "レベル|アウトラインレベル|アウトライン レベル|階層|インデント|深さ")
        .add(Role::Outline, "アウトライン番号|wbs番号")
        .add(Role::Status, "ステータス|状態|状況|進捗状況")
        .add(Role::Progress, "進捗率|進捗|達成率|完了率|進捗度|進捗 %")
        .add(Role::Priority, "優先度|優先順位")
        .add(Role::Manager, "担当者|担当|責任者|割り当て先|割当先|リソース名|所有者|実施者")
        .add(Role::Creator, "作成者|報告者|登録者|起票者|投稿者|著者")
        .add(Role::Followers, "ウォッチャー|参加者|メンバー|フォロワー|関係者")
        .add(Role::Created, "作成日|作成日時|登録日|登録日時|起票日|作成")
        .add(Role::PlannedEnd, "期日|期限|期限日|締切|締切日|締め切り|終了予定日|完了予定日|終了日|"
                               "納期|終了")
        .add(Role::Url, "リンク|アドレス")
        .add(Role::Detail, "説明|詳細|備考|メモ|内容|コメント|本文")
        .add(Role::CompletedAt, "完了日|完了日時|解決日|解決日時|実終了日|クローズ日")
        .add(Role::Verdict, "判定|結論")
        .add(Role::Votes, "投票|投票数|票数");
}

void addKorean(TaskWords::Table &table)
{
    Headings(table, "ko")
        .add(Role::Title, "제목|요약|작업 이름|작업 명|작업명|일감 제목|이슈 제목|업무명|이름|작업|"
                          "업무|할 일|항목|이슈|원인|문제|대책|주제")
        .add(Role::Path, "수준|레벨|단계|원인|제목")
        .add(Role::Id, "키|이슈 키|이슈 id|번호|일감 번호|작업 id|순번|식별자")
        .add(Role::Parent, "상위|상위 작업|상위 일감|상위 이슈|상위 항목|부모|부모 작업|에픽|"
                           "에픽 링크|상위 키")
        .add(Role::Level, "수준|레벨|개요 수준|단계|들여쓰기")
        .add(Role::Outline, "개요 번호|wbs 번호")
        .add(Role::Status, "상태|작업 상태|진행 상태")
        .add(Role::Progress, "진척도|진행률|완료율|진척률|진행도|% 완료")
        .add(Role::Priority, "우선순위|우선 순위|중요도")
        .add(Role::Manager, "담당자|담당|책임자|할당 대상|자원 이름|소유자|수행자")
        .add(Role::Creator, "작성자|보고자|만든이|만든 사람|생성자|등록자|저자")
        .add(Role::Followers, "관찰자|참여자|멤버|구성원|팔로워|일감 관람자")
        .add(Role::Created, "만듦|생성일|작성일|등록일|만든 날짜|생성 날짜|등록|생성됨")
        .add(Role::PlannedEnd, "기한|마감일|완료기한|완료 기한|마감 기한|종료일|만료일|완료 예정일|"
                               "완료 날짜|종료 날짜|기한 날짜")
        .add(Role::Url, "링크|주소")
        .add(Role::Detail, "설명|상세|내용|비고|메모|세부 정보|본문")
        .add(Role::CompletedAt, "완료일|해결됨|해결일|닫힌 날짜|실제 완료일|완료됨")
        .add(Role::Verdict, "판정|결론")
        .add(Role::Votes, "투표|득표|투표 수|득표수");
}

void addGerman(TaskWords::Table &table)
{
    Headings(table, "de")
        .add(Role::Title,
             "titel|zusammenfassung|thema|betreff|vorgangsname|aufgabenname|name der aufgabe|"
             "bezeichnung|kurzbeschreibung|aufgabe|vorgang|überschrift|ursache|maßnahme|massnahme|"
             "problem|benennung|kartenname|name")
        .add(Role::Path, "ebene|stufe|titel|ursache|warum|überschrift|thema")
        .add(Role::Id, "schlüssel|vorgangsschlüssel|vorgangs id|vorgangsnummer|nummer|kennung|"
                       "lfd nr|ticketnummer|aufgaben id|eindeutige nr|nr")
        .add(Role::Parent,
             "übergeordnet|übergeordnetes ticket|übergeordneter vorgang|übergeordnete aufgabe|"
             "übergeordnetes element|eltern id|hauptaufgabe|elternaufgabe|epos|epos link|"
             "epos verknüpfung|übergeordneter schlüssel|sammelvorgang")
        .add(Role::Level, "ebene|gliederungsebene|einzug|einrückung|tiefe|hierarchieebene")
        .add(Role::Outline, "gliederungsnummer|psp code|psp|gliederungspunkt")
        .add(Role::Status, "status|zustand|bearbeitungsstand|stand")
        .add(Role::Progress, "fortschritt|% erledigt|% abgeschlossen|erledigt in %|% fertig|"
                             "fertigstellungsgrad|prozent abgeschlossen|erfüllungsgrad")
        .add(Role::Priority, "priorität|dringlichkeit|prio")
        .add(Role::Manager,
             "zugewiesen an|bearbeiter|zugewiesene person|verantwortlich|verantwortlicher|"
             "zuständig|zuständiger|beauftragter|ressourcennamen|eigentümer|besitzer|wer")
        .add(Role::Creator, "autor|ersteller|melder|erstellt von|angelegt von|gemeldet von|"
                            "antragsteller|verfasser")
        .add(Role::Followers, "beobachter|teilnehmer|mitglieder|beteiligte")
        .add(Role::Created, "erstellt|angelegt|erstellt am|erstellungsdatum|angelegt am|"
                            "erstelldatum|eröffnet am")
        .add(Role::PlannedEnd,
             "fälligkeitsdatum|abgabedatum|fällig|fällig am|fälligkeit|termin|frist|stichtag|"
             "enddatum|ende|fertig stellen|zieldatum|bis wann|geplantes ende|zu erledigen bis")
        .add(Role::Url, "verknüpfung|adresse|hyperlink|weblink")
        .add(Role::Detail, "beschreibung|notizen|notiz|bemerkung|bemerkungen|anmerkungen|"
                           "einzelheiten|inhalt|kommentar|details")
        .add(Role::CompletedAt, "erledigt am|abgeschlossen am|geschlossen|geschlossen am|"
                                "tatsächliches ende|gelöst|gelöst am|abschlussdatum")
        .add(Role::Verdict, "befund|urteil|bewertung der ursache")
        .add(Role::Votes, "stimmen|anzahl stimmen|abstimmungen");
}

void addFrench(TaskWords::Table &table)
{
    Headings(table, "fr")
        .add(Role::Title, "titre|résumé|sujet|objet|nom de la tâche|intitulé|libellé|nom|tâche|"
                          "ticket résumé|problème|cause|action corrective|désignation")
        .add(Role::Path, "niveau|titre|cause|pourquoi|rang")
        .add(Role::Id, "clé|clé de ticket|clé du ticket|identifiant|numéro|n°|id de ticket|"
                       "numéro du ticket|clé de la demande|n° unique|réf|référence")
        .add(Role::Parent, "tâche parente|tâche mère|demande parente|ticket parent|"
                           "élément parent|lien d'epic|lien d'épopée|clé parente|parente")
        .add(Role::Level, "niveau|niveau hiérarchique|retrait|profondeur|niveau de plan")
        .add(Role::Outline, "numéro hiérarchique|n° hiérarchique|n° wbs|code wbs|numéro de plan")
        .add(Role::Status, "statut|état|avancement du ticket")
        .add(Role::Progress, "avancement|% réalisé|% achevé|progression|% terminé|% d'avancement|"
                             "pourcentage achevé|taux d'avancement")
        .add(Role::Priority, "priorité|urgence")
        .add(Role::Manager, "assigné à|responsable|attribué à|personne assignée|affecté à|"
                            "assigné|noms ressources|noms des ressources|propriétaire|attribution|"
                            "pilote|porteur|qui")
        .add(Role::Creator, "auteur|créateur|rapporteur|créé par|demandeur|signalé par|émetteur")
        .add(Role::Followers, "observateurs|participants à la demande|membres|abonnés")
        .add(Role::Created, "créé|créée|créé le|créée le|date de création|création")
        .add(Role::PlannedEnd,
             "date d'échéance|échéance|echéance|date limite|date de fin|fin|délai|"
             "date prévue|fin prévue|pour le|date butoir")
        .add(Role::Url, "lien|liens|adresse web|lien hypertexte")
        .add(Role::Detail, "description|détails|détail|remarques|remarque|commentaire|contenu")
        .add(Role::CompletedAt, "terminé le|fermé|fermé le|date de clôture|fin réelle|résolu|"
                                "résolu le|date de résolution|achevé le|clôturé le")
        .add(Role::Verdict, "conclusion|constat")
        .add(Role::Votes, "nombre de votes|voix");
}

void addSpanish(TaskWords::Table &table)
{
    Headings(table, "es")
        .add(Role::Title, "título|resumen|asunto|nombre de tarea|nombre de la tarea|tema|nombre|"
                          "tarea|problema|causa|acción|concepto|nombre de la tarjeta|incidencia")
        .add(Role::Path, "nivel|título|causa|por qué|tema")
        .add(Role::Id, "clave|clave de incidencia|clave de la incidencia|identificador|número|nº|"
                       "id de la incidencia|id de incidencia|código|núm")
        .add(Role::Parent, "tarea padre|padre|principal|tarea principal|incidencia principal|"
                           "elemento principal|enlace de épica|enlace a epic|épica|tarea superior")
        .add(Role::Level, "nivel|nivel de esquema|sangría|profundidad")
        .add(Role::Outline, "número de esquema|edt|código edt")
        .add(Role::Status, "estado|situación|estado actual")
        .add(Role::Progress, "progreso|% realizado|% completado|avance|porcentaje completado|"
                             "% de avance|% avance")
        .add(Role::Priority, "prioridad|urgencia")
        .add(Role::Manager, "asignado a|responsable|persona asignada|asignado|encargado|"
                            "nombres de los recursos|nombres de recursos|propietario|quién")
        .add(Role::Creator, "autor|creador|informador|creado por|reportado por|solicitante|"
                            "informante|notificado por")
        .add(Role::Followers, "observadores|participantes|miembros|seguidores")
        .add(Role::Created, "creado|creada|creado el|fecha de creación|creación|creada el")
        .add(Role::PlannedEnd, "fecha de vencimiento|vencimiento|fecha límite|fecha fin|fin|"
                               "fecha de fin|plazo|fecha de entrega|fecha prevista|fecha final")
        .add(Role::Url, "enlace|vínculo|enlaces|hipervínculo|dirección web")
        .add(Role::Detail, "descripción|notas|detalles|observaciones|comentario|contenido|detalle")
        .add(Role::CompletedAt, "cerrado|cerrada|fecha de cierre|fin real|resuelta|resuelto|"
                                "completado el|finalizado el|fecha de resolución")
        .add(Role::Verdict, "veredicto|conclusión")
        .add(Role::Votes, "votos|número de votos");
}

void addPortuguese(TaskWords::Table &table)
{
    Headings(table, "pt_BR")
        .add(Role::Title, "título|resumo|assunto|nome da tarefa|nome|tarefa|item|problema|causa|"
                          "ação|tema|nome do cartão|atividade|demanda")
        .add(Role::Path, "nível|título|causa|por que|por quê")
        .add(Role::Id, "chave|chave da item|chave do item|chave da ocorrência|identificador|"
                       "número|nº|id do item|id da ocorrência|código")
        .add(Role::Parent, "tarefa pai|pai|item pai|principal|tarefa principal|ocorrência pai|"
                           "link do épico|épico|chave do pai|tarefa mãe")
        .add(Role::Level, "nível|nível da estrutura de tópicos|nível de tópico|recuo|"
                          "profundidade|nível hierárquico")
        .add(Role::Outline, "número da estrutura de tópicos|edt|número do tópico|eap")
        .add(Role::Status, "situação|estado|status")
        .add(Role::Progress, "progresso|% terminado|% concluída|% concluído|percentual concluído|"
                             "andamento|porcentagem concluída|% completo")
        .add(Role::Priority, "prioridade|urgência")
        .add(Role::Manager, "atribuído para|responsável|atribuído a|encarregado|"
                            "nomes dos recursos|proprietário|dono|pessoa atribuída|quem")
        .add(Role::Creator, "autor|criador|relator|criado por|solicitante|reportado por")
        .add(Role::Followers, "observadores|participantes|membros|seguidores")
        .add(Role::Created, "criado|criada|criado em|data de criação|criada em|criação")
        .add(Role::PlannedEnd,
             "data prevista|data limite|prazo|vencimento|data de vencimento|"
             "data de entrega|término|data de término|fim|data final|data para conclusão|"
             "data fim|data de conclusão prevista")
        .add(Role::Url, "vínculo|hiperlink|endereço")
        .add(Role::Detail, "descrição|notas|detalhes|observações|anotações|comentário|conteúdo")
        .add(Role::CompletedAt, "fechado|fechado em|concluído em|data de conclusão|término real|"
                                "resolvido|resolvido em|encerrado em|data de resolução")
        .add(Role::Verdict, "veredito|conclusão")
        .add(Role::Votes, "votos|número de votos");
}

void addItalian(TaskWords::Table &table)
{
    Headings(table, "it")
        .add(Role::Title, "titolo|riepilogo|oggetto|nome attività|riassunto|nome|attività|tema|"
                          "problema|causa|azione|argomento|nome della scheda|descrizione breve")
        .add(Role::Path, "livello|titolo|causa|perché")
        .add(Role::Id, "chiave|chiave ticket|chiave della segnalazione|identificativo|numero|n°|"
                       "id attività|id ticket|codice|chiave segnalazione")
        .add(Role::Parent, "attività principale|attività padre|segnalazione principale|padre|"
                           "elemento padre|principale|elemento principale|link epic|"
                           "attività superiore|segnalazione padre")
        .add(Role::Level, "livello|livello struttura|livello di struttura|rientro|profondità")
        .add(Role::Outline, "numero struttura|numero di struttura|codice wbs")
        .add(Role::Status, "stato|stato attuale|stato attività")
        .add(Role::Progress, "avanzamento|% completato|% completamento|completamento|"
                             "percentuale completamento|percentuale completata|% avanzamento")
        .add(Role::Priority, "priorità|urgenza")
        .add(Role::Manager, "assegnato a|assegnatario|responsabile|incaricato|nomi risorse|"
                            "proprietario|chi|assegnata a|nome risorsa")
        .add(Role::Creator, "autore|creatore|segnalatore|creato da|richiedente|segnalato da")
        .add(Role::Followers, "osservatori|partecipanti|membri")
        .add(Role::Created, "creato|creata|creato il|data di creazione|data creazione|creata il")
        .add(Role::PlannedEnd, "scadenza|data di scadenza|data scadenza|data di fine|data fine|"
                               "fine|termine|fine prevista|entro il|data prevista di fine")
        .add(Role::Url, "collegamento|collegamenti|indirizzo web|collegamento ipertestuale")
        .add(Role::Detail, "descrizione|note|dettagli|commento|osservazioni|contenuto|dettaglio")
        .add(Role::CompletedAt,
             "chiuso|chiuso il|data di chiusura|fine effettiva|risolto|"
             "risolto il|completato il|data di completamento|data di risoluzione")
        .add(Role::Verdict, "verdetto|conclusione|esito")
        .add(Role::Votes, "voti|numero di voti");
}

void addPolish(TaskWords::Table &table)
{
    Headings(table, "pl")
        .add(Role::Title, "tytuł|podsumowanie|temat|nazwa zadania|streszczenie|nazwa|zadanie|"
                          "zagadnienie|problem|przyczyna|działanie|nazwa karty|tytuł zadania")
        .add(Role::Path, "poziom|tytuł|przyczyna|dlaczego|temat")
        .add(Role::Id, "klucz|klucz zgłoszenia|klucz zagadnienia|identyfikator|numer|"
                       "id zgłoszenia|id zadania|lp|nr zadania")
        .add(Role::Parent, "zagadnienie nadrzędne|zadanie nadrzędne|nadrzędne|nadrzędny|rodzic|"
                           "element nadrzędny|zgłoszenie nadrzędne|łącze do epika|epik|"
                           "klucz nadrzędny")
        .add(Role::Level, "poziom|poziom konspektu|wcięcie|głębokość")
        .add(Role::Outline, "numer konspektu|kod spp|spp|kod wbs")
        .add(Role::Status, "stan|stan zadania|status zadania")
        .add(Role::Progress, "postęp|% wykonania|% wykonane|% ukończenia|% wykonano|"
                             "procent wykonania|postęp prac|stopień realizacji")
        .add(Role::Priority, "priorytet|pilność")
        .add(Role::Manager, "przypisany do|przypisane do|osoba przypisana|odpowiedzialny|"
                            "odpowiedzialna osoba|osoba odpowiedzialna|nazwy zasobów|wykonawca|"
                            "właściciel|przydzielony|kto|przypisano do")
        .add(Role::Creator, "twórca|zgłaszający|utworzone przez|utworzył|reporter zgłoszenia|"
                            "osoba zgłaszająca")
        .add(Role::Followers, "obserwatorzy|uczestnicy|członkowie|obserwujący")
        .add(Role::Created, "utworzono|data utworzenia|utworzone|utworzony|zgłoszono|"
                            "data zgłoszenia")
        .add(Role::PlannedEnd,
             "data oddania|termin|termin wykonania|termin realizacji|termin ukończenia|"
             "zakończenie|data zakończenia|planowane zakończenie|koniec|termin końcowy")
        .add(Role::Url, "łącze|odnośnik|hiperłącze|adres")
        .add(Role::Detail, "opis|notatki|uwagi|szczegóły|komentarz|treść|notatka")
        .add(Role::CompletedAt, "zamknięto|zamknięte|data zamknięcia|rozwiązano|ukończono|"
                                "zakończono|rzeczywiste zakończenie|data rozwiązania")
        .add(Role::Verdict, "werdykt|wniosek")
        .add(Role::Votes, "głosy|liczba głosów");
}

void addRussian(TaskWords::Table &table)
{
    Headings(table, "ru")
        .add(Role::Title, "тема|название|заголовок|резюме|название задачи|наименование|"
                          "краткое описание|имя|задача|проблема|причина|мероприятие|действие|"
                          "название карточки|запрос|наименование задачи")
        .add(Role::Path, "уровень|заголовок|причина|почему|тема")
        .add(Role::Id, "ключ|ключ проблемы|ключ задачи|код задачи|идентификатор|номер|№|"
                       "ид|код запроса|ключ запроса|№ п/п|ид задачи|номер задачи")
        .add(Role::Parent, "родительская задача|родитель|родительский|родительский запрос|"
                           "родительский элемент|ссылка на эпик|эпик|вышестоящая задача|"
                           "суммарная задача")
        .add(Role::Level, "уровень|уровень структуры|отступ|глубина|уровень вложенности")
        .add(Role::Outline, "номер в структуре|сдр|код сдр|номер структуры")
        .add(Role::Status, "статус|состояние|текущее состояние|статус задачи")
        .add(Role::Progress, "готовность|% завершения|прогресс|% готовности|процент завершения|"
                             "% выполнения|выполнение|% выполнено|ход выполнения|готовность, %")
        .add(Role::Priority, "приоритет|срочность|важность")
        .add(Role::Manager, "назначена|исполнитель|ответственный|назначено|назначен|"
                            "названия ресурсов|владелец|кто|кому назначено|ответственное лицо")
        .add(Role::Creator, "автор|создатель|инициатор|кем создано|постановщик|докладчик|"
                            "создал|заявитель")
        .add(Role::Followers, "наблюдатели|участники|соисполнители")
        .add(Role::Created, "создано|дата создания|создана|создан|создание")
        .add(Role::PlannedEnd,
             "срок завершения|срок исполнения|крайний срок|срок|дата выполнения|"
             "срок выполнения|окончание|дата окончания|планируемое окончание|дата завершения")
        .add(Role::Url, "ссылка|адрес|гиперссылка|ссылки")
        .add(Role::Detail, "описание|примечание|примечания|заметки|комментарий|подробности|"
                           "содержание|детали")
        .add(Role::CompletedAt, "закрыта|закрыто|дата закрытия|дата решения|решено|завершено|"
                                "фактическое окончание|завершена")
        .add(Role::Verdict, "вердикт|заключение|вывод")
        .add(Role::Votes, "голоса|число голосов|количество голосов");
}

void addArabic(TaskWords::Table &table)
{
    Headings(table, "ar")
        .add(Role::Title, "العنوان|الموضوع|الملخص|ملخص|اسم المهمة|الاسم|المهمة|المشكلة|السبب|"
                          "عنوان|الإجراء|البند|اسم البطاقة")
        .add(Role::Path, "المستوى|السبب|العنوان|لماذا")
        .add(Role::Id, "المعرف|الرقم|المفتاح|مفتاح المشكلة|رقم المهمة|معرف المهمة|رقم|معرّف|"
                       "المعرّف|معرف")
        .add(Role::Parent, "المهمة الأم|المهمة الرئيسية|الأصل|المهمة الأصل|العنصر الرئيسي|الأب|"
                           "المهمة الأصلية|مهمة أصلية|المشكلة الأصلية")
        .add(Role::Level, "المستوى|مستوى المخطط التفصيلي|المسافة البادئة|العمق")
        .add(Role::Outline, "رقم المخطط التفصيلي|رقم المخطط")
        .add(Role::Status, "الحالة|حالة المهمة|حالة|الوضع")
        .add(Role::Progress, "التقدم|نسبة الإنجاز|نسبة الإكمال|نسبة الاكتمال|% مكتمل|% الإنجاز|"
                             "النسبة المئوية للإنجاز|% تم")
        .add(Role::Priority, "الأولوية|أولوية|الاولوية|درجة الأولوية")
        .add(Role::Manager, "المسؤول|المكلف|المسند إليه|معين إلى|أسماء الموارد|المالك|"
                            "الشخص المسؤول|المحال إليه|مسند إلى|المعين|المكلّف|تعيين إلى")
        .add(Role::Creator, "المؤلف|المنشئ|أنشأه|مقدم البلاغ|المبلغ|أنشئت بواسطة|الكاتب|"
                            "تم الإنشاء بواسطة")
        .add(Role::Followers, "المراقبون|المتابعون|المشاركون|الأعضاء")
        .add(Role::Created, "تاريخ الإنشاء|أنشئ في|أنشئت|تم الإنشاء|تم إنشاؤه|تاريخ الانشاء")
        .add(Role::PlannedEnd, "تاريخ الاستحقاق|الموعد النهائي|تاريخ الانتهاء|تاريخ التسليم|"
                               "الانتهاء|النهاية|تاريخ النهاية|آخر موعد|إنهاء")
        .add(Role::Url, "الرابط|رابط|الارتباط|ارتباط تشعبي|الروابط")
        .add(Role::Detail, "الوصف|التفاصيل|ملاحظات|الملاحظات|وصف|التعليق|المحتوى")
        .add(Role::CompletedAt, "تاريخ الإكمال|تاريخ الإغلاق|أغلقت|اكتملت في|تاريخ الحل|"
                                "الانتهاء الفعلي|تاريخ الإنجاز")
        .add(Role::Verdict, "الحكم|الاستنتاج")
        .add(Role::Votes, "الأصوات|عدد الأصوات");
}

} // namespace

const TaskWords::Table &TaskWords::headings()
{
    static const Table table = [] {
        Table words;
        for (const auto add :
             {addEnglish, addChinese, addTaiwanese, addJapanese, addKorean, addGerman, addFrench,
              addSpanish, addPortuguese, addItalian, addPolish, addRussian, addArabic})
            add(words);
        return words;
    }();
    return table;
}
