// SPDX-License-Identifier: Apache-2.0
#include "sclfiledialogs.h"

#include "iedchooser.h"
#include "workbench.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QMessageBox>

namespace {

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(MainWindow)
};

} // namespace

SclFileDialogs::SclFileDialogs(Workbench &workbench, QWidget &window)
    : m_workbench(workbench)
    , m_window(window)
{
    connect(&m_workbench, &Workbench::choiceNeeded, this, &SclFileDialogs::askForIeds);
    connect(&m_workbench, &Workbench::openFailed, this, &SclFileDialogs::showFailures);
}

void SclFileDialogs::open(const QString &beside)
{
    askForFiles(Texts::tr("Open SCL File"), beside,
                [this](const QString &file) { m_workbench.open(file); });
}

void SclFileDialogs::simulate(const QString &beside)
{
    askForFiles(Texts::tr("Start Simulated Device"), beside,
                [this](const QString &file) { m_workbench.simulate(file); });
}

void SclFileDialogs::askForFiles(const QString &title, const QString &beside,
                                 const std::function<void(const QString &)> &take)
{
    auto *dialog = new QFileDialog(&m_window, title);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFiles);
    dialog->setNameFilters(
        {Texts::tr("SCL files (*.icd *.cid *.iid *.scd *.sed *.ssd *.ICD *.CID *.IID "
                   "*.SCD *.SED *.SSD *.xml)"),
         Texts::tr("All files (*)")});
    if (!beside.isEmpty() && QFileInfo(beside).dir().exists() &&
        !beside.startsWith(QLatin1Char(':')))
        dialog->setDirectory(QFileInfo(beside).dir());
    connect(dialog, &QFileDialog::filesSelected, this, [take](const QStringList &files) {
        for (const QString &file : files)
            take(file);
    });
    dialog->open();
}

void SclFileDialogs::askForIeds(const QString &file, const QVector<IedSummary> &ieds,
                                bool simulated)
{
    m_questions.append({file, ieds, simulated});
    if (m_questions.size() == 1)
        showNextQuestion();
}

void SclFileDialogs::showNextQuestion()
{
    const Question question = m_questions.first();
    auto *chooser = new IedChooser(question.file, question.ieds, &m_window);
    chooser->setAttribute(Qt::WA_DeleteOnClose);
    connect(chooser, &QDialog::finished, this, [this, chooser, question](int result) {
        if (result == QDialog::Accepted) {
            const QStringList names = chooser->chosenIeds();
            for (const QString &name : names) {
                if (question.simulated)
                    m_workbench.simulate(question.file, name);
                else
                    m_workbench.open(question.file, name);
            }
        }
        m_questions.removeFirst();
        if (!m_questions.isEmpty())
            showNextQuestion();
    });
    chooser->open();
}

void SclFileDialogs::showFailures(const QStringList &sentences)
{
    constexpr int longestList = 8;
    QStringList shown = sentences.mid(0, longestList);
    if (const auto more = sentences.size() - shown.size(); more > 0)
        shown << Texts::tr("Further files that cannot be used: %1").arg(more);
    auto *box = new QMessageBox(QMessageBox::Warning, Texts::tr("Open SCL File"),
                                shown.join(QStringLiteral("\n\n")), QMessageBox::Ok, &m_window);
    box->setTextFormat(Qt::PlainText);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}
