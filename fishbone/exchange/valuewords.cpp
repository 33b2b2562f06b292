// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/taskwords.h>

#include <fishbone/exchange/taskstatuses.h>
#include <fishbone/model/subjectmarks.h>

namespace {

using namespace TaskStatuses;

constexpr int suspected = int(Verdict::Suspected);
constexpr int checking = int(Verdict::Checking);
constexpr int confirmed = int(Verdict::Confirmed);
constexpr int ruledOut = int(Verdict::RuledOut);
constexpr int rootCause = int(Verdict::RootCause);

constexpr int noPriority = -1;

} // namespace

const TaskWords::Table &TaskWords::statuses()
{
    static const Table table{
        {"en", unknown, "unknown|no status"},
        {"en", cancelled,
         "cancelled|canceled|cancel|rejected|declined|abandoned|aborted|duplicate|invalid|wontfix|"
         "wont fix|wont do|not planned|discarded|dropped|removed|cannot reproduce|not a bug|works "
         "for me|worksforme"},
        {"en", finished,
         "done|finish|finished|complete|completed|closed|close|resolved|fixed|accepted|merged|"
         "delivered|released|shipped|deployed|live|verified|yes|x|true|✓|✔|✅|☑"},
        {"en", finishedLate, "finish delay|finished late|done late|completed late"},
        {"en", postponed,
         "postponed|postpone|on hold|hold|deferred|blocked|stuck|parked|paused|suspended|icebox|"
         "later|someday"},
        {"en", running,
         "in progress|progress|doing|started|running|active|under way|underway|wip|working|ongoing|"
         "in development|in work|working on it|assigned|implementing|committed|on track|at risk|"
         "off track"},
        {"en", waiting,
         "to do|todo|open|opened|new|backlog|waiting|waitting|planned|not started|unstarted|"
         "unscheduled|scheduled|pending|ready|reopened|triage|selected for development|next|queued|"
         "proposed|draft|not done|incomplete|confirmed|unconfirmed|no|false|☐"},
        {"en", approval,
         "waiting for approval|waitting agree|in review|review|reviewing|under review|code review|"
         "awaiting approval|pending approval|needs review|ready for review|approval|qa|in qa|"
         "testing|in testing|in test|ready for test|feedback|verify|to verify|verification"},

        {"zh", unknown, "未知"},
        {"zh", cancelled, "取消|已取消|已拒绝|拒绝|作废|废弃|不予处理|无效|无法重现"},
        {"zh", finished,
         "完成|已完成|关闭|已关闭|已解决|解决|已发布|已实现|已修复|已验证|已验收|已上线"},
        {"zh", finishedLate, "延期完成|逾期完成|已延期完成"},
        {"zh", postponed, "延期|已延期|推迟|已推迟|挂起|暂停|已暂停|搁置|阻塞|受阻"},
        {"zh", running, "进行中|处理中|正在进行|开发中|执行中|实施中|实现中|修复中|已开始|已分配"},
        {"zh", waiting,
         "规划中|激活|未处理|待办|未开始|新建|新的|打开|等待|待处理|未完成|未解决|计划中|待开始|"
         "重新打开"},
        {"zh", approval, "待审批|审核中|待审核|评审中|待评审|待确认|等待审批|测试中|待验收|反馈"},

        {"zh_TW", cancelled, "已拒絕|拒絕|作廢|無效|無法重現|不處理"},
        {"zh_TW", finished, "關閉|已關閉|已解決|已結束|結束|已發佈|已修正|已驗證"},
        {"zh_TW", finishedLate, "逾期完成|延遲完成"},
        {"zh_TW", postponed, "延後|已延後|暫停|已暫停|擱置|受阻|保留"},
        {"zh_TW", running, "進行中|處理中|開發中|執行中|實作中|已指派|已開始|正在進行"},
        {"zh_TW", waiting,
         "待辦|待辦事項|未開始|尚未開始|新建立|新增|開啟|開放|等待|待處理|未完成|計畫中|重新開啟"},
        {"zh_TW", approval, "待審核|審核中|審查中|待確認|測試中|待驗收|回饋|等待核准"},

        {"ja", cancelled, "キャンセル|却下|中止|無効|重複|再現不可|対応しない|取り消し|取消"},
        {"ja", finished, "完了|完了済み|終了|解決|解決済み|クローズ|済|済み|対応済み|修正済み"},
        {"ja", finishedLate, "遅れて完了|遅延完了"},
        {"ja", postponed, "延期|保留|保留中|中断|ブロック|一時停止|停止中"},
        {"ja", running, "進行中|作業中|対応中|処理中|実行中|着手|着手済み|開発中|仕掛中"},
        {"ja", waiting,
         "未着手|未対応|新規|オープン|待機中|予定|計画中|バックログ|作業前|未完了|再オープン|"
         "to do|開始前|未開始"},
        {"ja", approval,
         "承認待ち|レビュー中|レビュー待ち|確認中|確認待ち|フィードバック|テスト中|検証中"},

        {"ko", cancelled, "취소|취소됨|거절|거부됨|기각|중복|무효|재현 불가"},
        {"ko", finished, "완료|완료됨|종료|해결|해결됨|닫힘|완료 됨|마침"},
        {"ko", finishedLate, "지연 완료|늦게 완료"},
        {"ko", postponed, "보류|연기|연기됨|보류 중|중단|중단됨|차단됨|일시 중지"},
        {"ko", running, "진행 중|진행중|진행|처리 중|작업 중|개발 중|시작됨"},
        {"ko", waiting,
         "할 일|해야 할 일|신규|대기|대기 중|열림|미완료|시작 안 함|예정|계획됨|백로그|시작 전|"
         "다시 열림|재오픈"},
        {"ko", approval, "승인 대기|승인 대기 중|검토 중|검토|리뷰 중|의견|테스트 중|확인 중"},

        {"de", unknown, "unbekannt|kein status"},
        {"de", cancelled,
         "abgebrochen|abgelehnt|abgewiesen|verworfen|storniert|zurückgewiesen|ungültig|duplikat|"
         "wird nicht behoben|wird nicht erledigt|nicht reproduzierbar|entfallen|hinfällig"},
        {"de", finished,
         "fertig|erledigt|abgeschlossen|geschlossen|gelöst|behoben|beendet|umgesetzt|ja|wahr|"
         "freigegeben|ausgeliefert"},
        {"de", finishedLate, "verspätet erledigt|verspätet abgeschlossen|verspätet fertig"},
        {"de", postponed,
         "zurückgestellt|verschoben|blockiert|pausiert|ruht|angehalten|aufgeschoben|später"},
        {"de", running,
         "in bearbeitung|in arbeit|wird ausgeführt|begonnen|läuft|aktiv|laufend|angefangen|"
         "in entwicklung|in umsetzung|zugewiesen"},
        {"de", waiting,
         "offen|zu erledigen|aufgaben|neu|geplant|nicht begonnen|wartend|ausstehend|bereit|"
         "wiedereröffnet|wieder geöffnet|erneut geöffnet|vorgeschlagen|entwurf|nein|falsch|"
         "unerledigt|warten auf jemand anderen|warten"},
        {"de", approval,
         "wartet auf freigabe|in prüfung|zu prüfen|in überprüfung|wartet auf genehmigung|"
         "rückfrage|im test|zur abnahme|in abnahme|überprüfung"},

        {"fr", unknown, "inconnu|sans statut"},
        {"fr", cancelled,
         "annulé|annulée|rejeté|rejetée|refusé|refusée|abandonné|abandonnée|doublon|"
         "ne sera pas corrigé|non reproductible|invalidé"},
        {"fr", finished,
         "terminé|terminée|terminé(e)|terminés|fini|finie|fermé|fermée|résolu|résolue|clos|close|"
         "achevé|achevée|fait|faite|corrigé|corrigée|livré|livrée|oui|vrai|clôturé|clôturée"},
        {"fr", finishedLate, "terminé en retard|terminée en retard"},
        {"fr", postponed,
         "reporté|reportée|suspendu|suspendue|bloqué|bloquée|différé|différée|en pause"},
        {"fr", running,
         "en cours|en cours de traitement|commencé|commencée|démarré|démarrée|actif|active|"
         "en développement|assigné|assignée"},
        {"fr", waiting,
         "à faire|en attente|nouveau|nouvelle|ouvert|ouverte|non commencé|non "
         "commencée|prévu|prévue|"
         "planifié|planifiée|rouvert|rouverte|proposé|proposée|brouillon|non|faux|à traiter|"
         "pas commencé"},
        {"fr", approval,
         "en attente d'approbation|en revue|en cours de revue|à valider|en validation|"
         "en relecture|commentaire|en test|à vérifier|en cours d'examen"},

        {"es", unknown, "desconocido|sin estado"},
        {"es", cancelled,
         "cancelado|cancelada|rechazado|rechazada|descartado|descartada|anulado|anulada|duplicado|"
         "no se solucionará|no reproducible|abandonado"},
        {"es", finished,
         "hecho|hecha|listo|lista|finalizado|finalizada|terminado|terminada|completado|completada|"
         "cerrado|cerrada|resuelto|resuelta|entregado|sí|verdadero|corregido|completo|completa"},
        {"es", finishedLate, "terminado con retraso|finalizado con retraso|completado con retraso"},
        {"es", postponed,
         "aplazado|aplazada|pospuesto|pospuesta|en espera|bloqueado|bloqueada|suspendido|"
         "suspendida|en pausa"},
        {"es", running,
         "en curso|en progreso|en proceso|iniciado|iniciada|comenzado|activo|activa|"
         "en desarrollo|asignado|asignada|en ejecución"},
        {"es", waiting,
         "por hacer|tareas por hacer|pendiente|nuevo|nueva|abierto|abierta|no iniciado|no iniciada|"
         "sin empezar|planificado|planificada|reabierto|reabierta|propuesto|borrador|"
         "sin comenzar|a la espera de otra persona|no comenzada|no comenzado"},
        {"es", approval,
         "pendiente de aprobación|en revisión|por revisar|esperando aprobación|comentarios|"
         "en pruebas|por verificar|en validación"},

        {"pt_BR", unknown, "desconhecido|sem status"},
        {"pt_BR", cancelled,
         "cancelado|cancelada|rejeitado|rejeitada|recusado|recusada|descartado|descartada|"
         "não será corrigido|não reproduzível|abandonado"},
        {"pt_BR", finished,
         "concluído|concluída|feito|feita|finalizado|finalizada|terminado|terminada|fechado|"
         "fechada|resolvido|resolvida|itens concluídos|encerrado|encerrada|entregue|sim|"
         "verdadeiro|pronto|completo|corrigido"},
        {"pt_BR", finishedLate, "concluído com atraso|concluída com atraso"},
        {"pt_BR", postponed,
         "adiado|adiada|em espera|bloqueado|bloqueada|suspenso|suspensa|pausado|parado|impedido"},
        {"pt_BR", running,
         "em andamento|em progresso|iniciado|iniciada|em desenvolvimento|fazendo|ativo|ativa|"
         "em execução|atribuído|em curso"},
        {"pt_BR", waiting,
         "a fazer|tarefas pendentes|pendente|itens pendentes|novo|nova|aberto|aberta|"
         "não iniciado|não iniciada|planejado|planejada|reaberto|reaberta|proposto|rascunho|não|"
         "falso|aguardando"},
        {"pt_BR", approval,
         "aguardando aprovação|em revisão|em análise|para revisar|em teste|em aprovação|"
         "em validação|em homologação"},

        {"it", unknown, "sconosciuto|nessuno stato"},
        {"it", cancelled,
         "annullato|annullata|rifiutato|rifiutata|scartato|scartata|respinto|respinta|duplicato|"
         "non verrà corretto|non riproducibile|abbandonato"},
        {"it", finished,
         "fatto|fatta|completato|completata|terminato|terminata|chiuso|chiusa|risolto|risolta|"
         "finito|finita|concluso|conclusa|consegnato|vero|corretto"},
        {"it", finishedLate, "completato in ritardo|completata in ritardo|terminato in ritardo"},
        {"it", postponed,
         "rinviato|rinviata|rimandato|rimandata|sospeso|sospesa|bloccato|bloccata|in pausa|"
         "posticipato|posticipata"},
        {"it", running,
         "in corso|in lavorazione|iniziato|iniziata|avviato|avviata|attivo|attiva|in sviluppo|"
         "assegnato|assegnata|in esecuzione"},
        {"it", waiting,
         "da fare|da completare|nuovo|nuova|aperto|aperta|in attesa|non iniziato|non iniziata|"
         "pianificato|pianificata|riaperto|riaperta|proposto|bozza|da iniziare|"
         "non avviata|in attesa di altri"},
        {"it", approval,
         "in attesa di approvazione|in revisione|da approvare|da verificare|in verifica|in prova|"
         "commenti|in fase di test"},

        {"pl", unknown, "nieznany|brak statusu"},
        {"pl", cancelled,
         "anulowane|anulowany|anulowano|odrzucone|odrzucony|odrzucono|porzucone|duplikat|"
         "nieaktualne|nie do odtworzenia"},
        {"pl", finished,
         "gotowe|zrobione|zakończone|zakończony|zakończono|ukończone|ukończono|zamknięte|"
         "zamknięty|rozwiązane|rozwiązany|wykonane|naprawione|tak|prawda|wdrożone"},
        {"pl", finishedLate, "zakończone z opóźnieniem|ukończone z opóźnieniem"},
        {"pl", postponed,
         "odłożone|odroczone|wstrzymane|wstrzymany|zablokowane|zablokowany|zawieszone|przełożone"},
        {"pl", running,
         "w toku|w trakcie|rozpoczęte|rozpoczęty|realizowane|w realizacji|aktywne|w trakcie prac|"
         "przypisane|w opracowaniu"},
        {"pl", waiting,
         "do zrobienia|nowe|nowy|otwarte|otwarty|oczekujące|oczekuje|nierozpoczęte|"
         "nie rozpoczęto|zaplanowane|planowane|ponownie otwarte|zaproponowane|szkic|nie|fałsz|"
         "oczekiwanie na inną osobę|niewykonane"},
        {"pl", approval,
         "do zatwierdzenia|oczekuje na zatwierdzenie|w przeglądzie|do sprawdzenia|w weryfikacji|"
         "odpowiedź|w testach|testowanie|do weryfikacji"},

        {"ru", unknown, "неизвестно|без статуса"},
        {"ru", cancelled,
         "отменено|отменена|отменён|отменен|отклонено|отклонена|отклонён|отклонен|отказ|дубликат|"
         "не будет исправлено|не воспроизводится|снято"},
        {"ru", finished,
         "готово|выполнено|выполнена|завершено|завершена|завершён|завершен|закрыто|закрыта|"
         "закрыт|решено|решена|решён|решен|сделано|исправлено|да|истина|внедрено"},
        {"ru", finishedLate,
         "завершено с опозданием|выполнено с опозданием|завершена с опозданием"},
        {"ru", postponed,
         "отложено|отложена|отложен|приостановлено|приостановлена|заблокировано|заблокирована|"
         "на паузе|на удержании"},
        {"ru", running,
         "в работе|в процессе|выполняется|начато|начата|активно|активна|в разработке|назначено|"
         "исполняется"},
        {"ru", waiting,
         "к выполнению|сделать|нужно сделать|новое|новая|новый|открыто|открыта|открыт|ожидает|"
         "в ожидании|не начато|не начата|запланировано|запланирована|переоткрыто|переоткрыта|"
         "черновик|нет|ложь|бэклог|не выполнено|ожидание"},
        {"ru", approval,
         "ожидает утверждения|на согласовании|на утверждении|на проверке|на рассмотрении|"
         "обратная связь|на тестировании|тестирование|проверка"},

        {"ar", unknown, "غير معروف|غير معروفة"},
        {"ar", cancelled, "ملغى|ملغاة|ملغي|مرفوض|مرفوضة|تم الإلغاء|مكرر|مكررة|غير صالح"},
        {"ar", finished,
         "تم|منجز|منجزة|مكتمل|مكتملة|تم الإنجاز|مغلق|مغلقة|تم الحل|محلول|محلولة|منتهي|منتهية|نعم"},
        {"ar", finishedLate, "منجز متأخرا|منجزة متأخرة|اكتملت متأخرة"},
        {"ar", postponed, "مؤجل|مؤجلة|معلق|معلقة|متوقف|متوقفة|محظور|محظورة"},
        {"ar", running, "قيد التنفيذ|قيد التقدم|جار|جارية|جاري|جاري العمل|قيد العمل|بدأت|نشط|نشطة"},
        {"ar", waiting,
         "للتنفيذ|المهام|مطلوب|جديد|جديدة|مفتوح|مفتوحة|لم تبدأ|لم يبدأ|مخطط|مخططة|قيد الانتظار|"
         "في الانتظار|معاد فتحه|أعيد فتحها|لا|المهام المطلوبة"},
        {"ar", approval,
         "بانتظار الموافقة|في انتظار الموافقة|قيد المراجعة|للمراجعة|قيد الاختبار|قيد التحقق"},
    };
    return table;
}

const TaskWords::Table &TaskWords::priorities()
{
    static const Table table{
        {"en", 0, "p0"},
        {"en", 1, "highest|blocker|show stopper|urgent|immediate|top|p1"},
        {"en", 2, "high|critical|important|p2"},
        {"en", 3, "medium|normal|major|middle|moderate|standard|default|p3"},
        {"en", 4, "low|minor|optional|p4"},
        {"en", 5, "lowest|trivial|nice to have|p5"},
        {"en", noPriority, "none|no priority|not set|unset|-"},
        {"zh", 1, "最高|紧急|特急|立即|立刻|非常高|阻塞"},
        {"zh", 2, "高|较高|重要|严重"},
        {"zh", 3, "中|普通|一般|正常|中等|主要"},
        {"zh", 4, "低|较低|次要"},
        {"zh", 5, "最低|微不足道|非常低"},
        {"zh", noPriority, "无|未设置|没有"},
        {"zh_TW", 1, "緊急|速|急|特急|阻斷"},
        {"zh_TW", 2, "較高|嚴重|高等"},
        {"zh_TW", 3, "中等|正常|一般"},
        {"zh_TW", 4, "較低"},
        {"zh_TW", noPriority, "無|未設定"},
        {"ja", 1, "今すぐ|緊急|急いで|至急|最優先|致命的"},
        {"ja", 2, "高め|重要|高い"},
        {"ja", 3, "通常|標準|普通|中程度"},
        {"ja", 4, "低め|低い|軽微"},
        {"ja", 5, "些細"},
        {"ja", noPriority, "なし|未設定|優先度なし"},
        {"ko", 1, "가장 높음|최고|최상|즉시|긴급|매우 높음"},
        {"ko", 2, "높음|중요"},
        {"ko", 3, "보통|중간|일반"},
        {"ko", 4, "낮음"},
        {"ko", 5, "가장 낮음|최저|최하|매우 낮음"},
        {"ko", noPriority, "없음|미설정"},
        {"de", 1, "höchste|am höchsten|sehr hoch|sofort|dringend|blocker|höchstes"},
        {"de", 2, "hoch|kritisch|wichtig"},
        {"de", 3, "mittel|durchschnittlich"},
        {"de", 4, "niedrig|gering|unwichtig"},
        {"de", 5, "niedrigste|am niedrigsten|sehr niedrig|trivial|sehr gering"},
        {"de", noPriority, "keine|ohne|nicht gesetzt"},
        {"fr", 1, "la plus haute|très haute|très élevée|urgente|immédiat|immédiate|bloquant"},
        {"fr", 2, "haut|haute|élevé|élevée|critique|importante"},
        {"fr", 3, "moyen|moyenne|normale|majeur|majeure"},
        {"fr", 4, "bas|basse|faible|mineur|mineure"},
        {"fr", 5, "la plus basse|très basse|très faible|triviale"},
        {"fr", noPriority, "aucun|aucune|non défini|non définie"},
        {"es", 1, "la más alta|más alta|muy alta|urgente|inmediata|muy alto|bloqueante"},
        {"es", 2, "alta|alto|crítica|crítico|importante"},
        {"es", 3, "media|medio|mediana"},
        {"es", 4, "baja|bajo|menor"},
        {"es", 5, "la más baja|más baja|muy baja|trivial|muy bajo"},
        {"es", noPriority, "ninguno|ninguna|sin prioridad"},
        {"pt_BR", 1, "mais alta|altíssima|muito alta|imediata|imediato"},
        {"pt_BR", 2, "crítica|crítico|elevada"},
        {"pt_BR", 3, "média|médio|padrão"},
        {"pt_BR", 4, "baixa|baixo|leve"},
        {"pt_BR", 5, "mais baixa|baixíssima|muito baixa"},
        {"pt_BR", noPriority, "nenhum|nenhuma|sem prioridade"},
        {"it", 1, "la più alta|più alta|massima|molto alta|immediata|immediato"},
        {"it", 2, "critica|critico|elevata"},
        {"it", 3, "normale|intermedia"},
        {"it", 4, "bassa|basso|minore"},
        {"it", 5, "la più bassa|più bassa|minima|molto bassa|banale"},
        {"it", noPriority, "nessuno|nessuna|non impostata"},
        {"pl", 1, "najwyższy|pilny|pilne|natychmiastowy|bardzo wysoki|najwyższa|bloker"},
        {"pl", 2, "wysoki|wysoka|krytyczny|ważne|ważny"},
        {"pl", 3, "średni|średnia|normalny|zwykły|normalna"},
        {"pl", 4, "niski|niska|drobny"},
        {"pl", 5, "najniższy|bardzo niski|najniższa|trywialny"},
        {"pl", noPriority, "brak|nieustawiony"},
        {"ru", 1,
         "наивысший|самый высокий|немедленный|срочный|срочно|очень высокий|блокирующий|наивысшая"},
        {"ru", 2, "высокий|высокая|критический|важный"},
        {"ru", 3, "средний|средняя|нормальный|обычный|нормальная"},
        {"ru", 4, "низкий|низкая|незначительный"},
        {"ru", 5, "самый низкий|наименьший|очень низкий|тривиальный|самая низкая|низший"},
        {"ru", noPriority, "не задан|отсутствует|без приоритета"},
        {"ar", 1, "الأعلى|عاجل|فوري|عاجلة|عالية جدا|مرتفع جدا"},
        {"ar", 2, "مرتفع|مرتفعة|عالية|عالي|هام|هامة|حرج"},
        {"ar", 3, "متوسط|متوسطة|عادي|عادية"},
        {"ar", 4, "منخفض|منخفضة"},
        {"ar", 5, "الأدنى|منخفضة جدا|منخفض جدا"},
        {"ar", noPriority, "بدون|لا شيء|بلا"},
    };
    return table;
}

const TaskWords::Table &TaskWords::verdicts()
{
    static const Table table{
        {"en", suspected, "suspected|suspect|possible|likely"},
        {"en", checking, "checking|being checked|investigating|under investigation"},
        {"en", confirmed, "confirmed|verified|contributing|contributing cause"},
        {"en", ruledOut, "ruledout|ruled out|not a cause|excluded|rejected"},
        {"en", rootCause, "rootcause|root cause|root"},
        {"zh", suspected, "怀疑|可疑|疑似"},
        {"zh", checking, "调查中|验证中"},
        {"zh", confirmed, "已确认|确认|要因"},
        {"zh", ruledOut, "已排除|排除|非要因"},
        {"zh", rootCause, "根本原因|根因"},
        {"zh_TW", suspected, "懷疑|可能"},
        {"zh_TW", checking, "調查中|驗證中"},
        {"zh_TW", confirmed, "已確認|確認"},
        {"ja", suspected, "疑い|推定|可能性あり"},
        {"ja", checking, "確認中|検証中"},
        {"ja", confirmed, "確認済み|確定"},
        {"ja", ruledOut, "除外|該当なし"},
        {"ja", rootCause, "真因"},
        {"ko", suspected, "의심|추정"},
        {"ko", checking, "확인 중|조사 중"},
        {"ko", confirmed, "확인됨|확정"},
        {"ko", ruledOut, "배제|제외됨|배제됨"},
        {"ko", rootCause, "근본 원인"},
        {"de", suspected, "vermutet|möglich|wahrscheinlich"},
        {"de", checking, "in prüfung|wird geprüft"},
        {"de", confirmed, "bestätigt"},
        {"de", ruledOut, "ausgeschlossen|widerlegt"},
        {"de", rootCause, "grundursache|hauptursache"},
        {"fr", suspected, "suspectée|suspecté|probable|supposée"},
        {"fr", checking, "en cours de vérification|en vérification"},
        {"fr", confirmed, "confirmée|confirmé"},
        {"fr", ruledOut, "écartée|écarté|exclue|exclu"},
        {"fr", rootCause, "cause racine|cause première"},
        {"es", suspected, "sospechada|sospecha|posible"},
        {"es", checking, "en comprobación|en verificación"},
        {"es", confirmed, "confirmada|confirmado"},
        {"es", ruledOut, "descartada|descartado"},
        {"es", rootCause, "causa raíz"},
        {"pt_BR", suspected, "suspeita|possível|provável"},
        {"pt_BR", checking, "em verificação|em investigação"},
        {"pt_BR", ruledOut, "excluída|excluído"},
        {"pt_BR", rootCause, "causa raiz"},
        {"it", suspected, "sospetta|presunta|possibile"},
        {"it", checking, "in verifica|in corso di verifica"},
        {"it", confirmed, "confermata|confermato"},
        {"it", ruledOut, "esclusa|escluso"},
        {"it", rootCause, "causa radice|causa principale"},
        {"pl", suspected, "podejrzewana|podejrzenie|możliwa"},
        {"pl", checking, "sprawdzana|w trakcie sprawdzania"},
        {"pl", confirmed, "potwierdzona|potwierdzone"},
        {"pl", ruledOut, "wykluczona|wykluczone"},
        {"pl", rootCause, "przyczyna źródłowa|przyczyna główna"},
        {"ru", suspected, "предполагаемая|подозрение|возможная"},
        {"ru", checking, "проверяется|на проверке"},
        {"ru", confirmed, "подтверждена|подтверждено"},
        {"ru", ruledOut, "исключена|исключено"},
        {"ru", rootCause, "коренная причина|первопричина|корневая причина"},
        {"ar", suspected, "مشتبه به|محتمل"},
        {"ar", checking, "قيد التحقق|قيد الفحص"},
        {"ar", confirmed, "مؤكد|مؤكدة"},
        {"ar", ruledOut, "مستبعد|مستبعدة"},
        {"ar", rootCause, "السبب الجذري"},
    };
    return table;
}
