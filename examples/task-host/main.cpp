// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <hosttexts.h>
#include <rehearsal.h>
#include <taskdesk.h>
#include <taskform.h>
#include <taskwindow.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/model/treeitem.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTextStream>
#include <QThread>

#include <cstdio>

namespace {

QString contentOf(QFile &file)
{
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/** Where this program keeps what is a user's own. */
QString usualFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
}

/** The file that a user's tasks are in unless another data base is named. */
QString usualFile()
{
    QDir().mkpath(usualFolder());
    return usualFolder() + QStringLiteral("/tasks.sqlite");
}

/** Goes once through what a user does, and says whether the data base has it afterwards. */
bool demonstrate(TaskDesk &desk)
{
    FishModel &model = desk.model();
    const QModelIndex bone = model.index(0, 0, model.index(0, 0));
    if (desk.windows().isEmpty() || !bone.isValid())
        return false;
    TaskWindow &window = *desk.windows().constFirst();
    const QString uuid = bone.siblingAtColumn(1).data().toString();
    Q_EMIT window.editor().insertChildTask(bone);
    Q_EMIT window.editor().oneTaskClicked(bone.data().toString(), uuid);
    window.form().setPerson(QStringLiteral("Ada"));
    window.form().apply();
    const int count = desk.sync().current().size();
    const bool isStored = desk.sync().synchronize();
    const Task task = desk.sync().known().value(uuid);
    QTextStream(stdout) << desk.store().errorText() << "revision " << desk.sync().revision() << ", "
                        << count << " tasks\n";
    return isStored && desk.sync().known().size() == count &&
           task.fields.value(QStringLiteral("mgrname")) == QStringLiteral("Ada");
}

/** Hands the lines of the standard input to @p rehearsal. */
class InputThread : public QThread
{
public:
    explicit InputThread(Rehearsal &rehearsal)
        : m_rehearsal(rehearsal)
    {
    }

protected:
    void run() override
    {
        const QString quit = QStringLiteral("quit");
        QTextStream in(stdin);
        QString line;
        while (line != quit) { // who waits for this thread waits for no further line then
            line = in.readLine();
            if (line.isNull())
                line = quit; // whoever tells what to do has gone
            QMetaObject::invokeMethod(
                &m_rehearsal, [this, line] { m_rehearsal.command(line); }, Qt::QueuedConnection);
        }
    }

private:
    Rehearsal &m_rehearsal;
};

int rehearse(TaskDesk &desk)
{
    Rehearsal rehearsal(desk);
    InputThread input(rehearsal);
    input.start();
    const int code = QApplication::exec();
    input.wait();
    return code;
}

} // namespace

/**
 * A small task manager for one or for several people.
 *
 * --database names a file, or postgresql://user@host/name; --author who works here. A diagram
 * that is named is brought in. --demo plays through what a user does on a data base of its own and
 * ends; --rehearse does what the standard input says.
 */
int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("fishbone-task-host"));
    const std::unique_ptr<QTranslator> texts = HostTexts::load();
    if (texts)
        QApplication::installTranslator(texts.get());
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOptions(
        {{QStringLiteral("database"), QStringLiteral("File or server."), QStringLiteral("address")},
         {QStringLiteral("author"), QStringLiteral("Who works here."), QStringLiteral("name"),
          qEnvironmentVariable("USER")},
         {QStringLiteral("demo"), QStringLiteral("Plays through and ends.")},
         {QStringLiteral("rehearse"), QStringLiteral("Does what the input says.")}});
    parser.addPositionalArgument(QStringLiteral("diagram"), QStringLiteral("Is brought in."),
                                 QStringLiteral("[diagram]"));
    parser.process(application);

    const QTemporaryDir scratch;
    const bool isDemo = parser.isSet(QStringLiteral("demo"));
    QString address = parser.value(QStringLiteral("database"));
    if (address.isEmpty())
        address = isDemo ? scratch.filePath(QStringLiteral("demo.sqlite")) : usualFile();
    const QStringList diagrams = parser.positionalArguments();

    TaskDesk desk(address, parser.value(QStringLiteral("author")));
    if (!isDemo)
        desk.setJournalFolder(usualFolder() + QStringLiteral("/waiting"));
    if (!desk.start(diagrams.isEmpty()))
        QTextStream(stderr) << desk.store().errorText() << '\n'; // the windows say it as well
    for (const QString &diagram : diagrams) {
        QFile file(diagram);
        desk.merge(contentOf(file).toUtf8());
        desk.sync().synchronize();
    }
    if (parser.isSet(QStringLiteral("rehearse")))
        return rehearse(desk);
    return isDemo ? (demonstrate(desk) ? 0 : 1) : QApplication::exec();
}
