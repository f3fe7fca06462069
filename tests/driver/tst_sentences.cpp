// SPDX-License-Identifier: Apache-2.0
#include "driver/administration/deviceconfiguration.h"
#include "driver/model/sclimport.h"
#include "driver/service/ieddriver.h"
#include "driver/text/sentences.h"

#include "acsi/control.h"
#include "acsi/dataset.h"
#include "acsi/reference.h"
#include "acsi/report.h"
#include "acsi/uploadsteps.h"
#include "mms/pdu.h"
#include "mms/shorthand.h"
#include "osi/acse.h"
#include "osi/cotp.h"
#include "osi/presentation.h"
#include "osi/session.h"
#include "osi/tls.h"
#include "osi/tpkt.h"

#include <QtCore/QDir>
#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTranslator>
#include <QtNetwork/QTcpServer>
#include <QtNetwork/QTcpSocket>
#include <QtTest/QtTest>

#include <functional>
#include <set>

namespace {

const QChar opening(0x27E6);
const QChar closing(0x27E7);

/// Makes of every text that is in the table marks around its arguments, so that what is left is
/// either an argument or was never translated.
class MarkingTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        if (qstrcmp(context, "IedDriver") != 0)
            return QString();
        QString result = opening;
        static const QRegularExpression place(QStringLiteral("%[1-9]"));
        auto each = place.globalMatch(QString::fromUtf8(source));
        while (each.hasNext())
            result += QLatin1Char(' ') + each.next().captured() + QLatin1Char(' ');
        return result + closing;
    }
};

/// What stands outside of all marks but the full stops between sentences.
QString outside(const QString &text)
{
    QString result;
    int depth = 0;
    for (const QChar c : text) {
        if (c == opening)
            ++depth;
        else if (c == closing)
            --depth;
        else if (depth == 0 && c != QLatin1Char('.'))
            result += c;
    }
    return result.trimmed();
}

/// Two words behind each other, which no name, code or type has.
bool hasWords(const QString &text)
{
    static const QRegularExpression words(QStringLiteral("\\b[a-z]{3,} [a-z]{2,}\\b"));
    return words.match(text).hasMatch();
}

using mms::Text;

std::vector<std::uint8_t> octets(const char *hex)
{
    const QByteArray bytes = QByteArray::fromHex(hex);
    return {bytes.begin(), bytes.end()};
}

} // namespace

class TestSentences : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QCoreApplication::installTranslator(&m_translator); }

    void theTableHasEverySentence();
    void dataAccessErrorsAreInTheReadersLanguage();
    void serviceErrorsAreInTheReadersLanguage();
    void rejectsAreInTheReadersLanguage();
    void reasonsOfCommandsAreInTheReadersLanguage();
    void refusalsOfAssociationsAreInTheReadersLanguage();
    void brokenMessagesAreInTheReadersLanguage();
    void mistakesInTlsSettingsAreInTheReadersLanguage();
    void wrongNamesAreInTheReadersLanguage();
    void uploadsAreInTheReadersLanguage();
    void findingsOfFilesAreInTheReadersLanguage();
    void aDeviceThatCannotBeReachedSaysSoInTheReadersLanguage();

private:
    /// The English words are in the table and nothing of them is left.
    void check(const Text &text)
    {
        const QString shown = wording::text(text);
        const QByteArray said = QByteArray::fromStdString(text.english());
        QVERIFY2(!shown.isEmpty(), "nothing is said");
        QVERIFY2(outside(shown).isEmpty(), said + " leaves " + outside(shown).toUtf8());
        QVERIFY2(!hasWords(shown), said + " leaves " + shown.toUtf8());
        text.inLanguage([&](const std::string &words) {
            if (!m_table.contains(QString::fromStdString(words)))
                QTest::qFail(("not in the table: " + words).c_str(), __FILE__, __LINE__);
            return words;
        });
    }

    MarkingTranslator m_translator;
    const QStringList m_table = wording::allWords();
};

void TestSentences::theTableHasEverySentence()
{
    QVERIFY(m_table.size() > 300);
    for (const QString &words : m_table)
        QVERIFY2(!words.trimmed().isEmpty(), qPrintable(words));
}

void TestSentences::dataAccessErrorsAreInTheReadersLanguage()
{
    for (int code = -1; code <= 13; ++code)
        check(mms::describe(static_cast<mms::DataAccessError>(code)));
}

void TestSentences::serviceErrorsAreInTheReadersLanguage()
{
    for (int errorClass = 0; errorClass <= 13; ++errorClass) {
        for (int code = -1; code <= 12; ++code) {
            mms::ServiceError error;
            error.errorClass = static_cast<mms::ErrorClass>(errorClass);
            error.code = code;
            check(mms::describe(error));
            error.additionalCode = 7;
            check(mms::describe(error));
            error.additionalDescription = "LOCKED";
            check(mms::describe(error));
        }
    }
}

void TestSentences::rejectsAreInTheReadersLanguage()
{
    for (int rejected = 1; rejected <= 11; ++rejected) {
        for (int code = -1; code <= 12; ++code)
            check(mms::describe(mms::RejectPdu{7, static_cast<mms::RejectedPdu>(rejected), code}));
    }
}

void TestSentences::reasonsOfCommandsAreInTheReadersLanguage()
{
    for (int code = -1; code <= 30; ++code) {
        check(acsi::additionalCauseText(code));
        check(acsi::controlErrorText(code));
    }
}

void TestSentences::refusalsOfAssociationsAreInTheReadersLanguage()
{
    for (int code = 0; code <= 255; ++code) {
        const auto octet = static_cast<std::uint8_t>(code);
        check(osi::cotp::reasonText(octet));
        check(osi::cotp::causeText(octet));
        check(osi::session::refusalText(octet));
        check(osi::presentation::rejectionText(code));
        check(osi::presentation::abortText(code));
        for (const bool byProvider : {false, true}) {
            check(
                osi::acse::refusalText(osi::acse::Result::RejectedPermanently, {byProvider, code}));
            check(
                osi::acse::refusalText(osi::acse::Result::RejectedTransiently, {byProvider, code}));
        }
    }
    check(osi::presentation::rejectionText({}));
    check(osi::presentation::abortText({}));
}

void TestSentences::brokenMessagesAreInTheReadersLanguage()
{
    const std::vector<std::uint8_t> samples[] = {
        mms::encode(mms::ConfirmedRequestPdu{1, mms::StatusRequest()}),
        octets("a11302010ca40e a10ca00a30088006 616263646566"),
        octets("a0180201 07a413a1 11a00f30 0da00ba1 091a024c 441a0341 4243"),
        octets("a30a a0080a0100 8000 a1020000"),
        octets("0300001611e00000000100c0010ac1020001c2020001"),
        octets("0d1005061301001602 3302 0001 3402 0001 c100"),
        octets("3120a003800101a219 80020001 81020001 a40f300d020101 06022803 300406025101"),
        octets("6020a1060604 28ca2202 a203 020103 be0b 2809 060251 01020103 a000"),
    };
    int broken = 0;
    const auto look = [&](const auto &result) {
        if (result.ok())
            return;
        ++broken;
        check(result.error().message);
    };
    for (const std::vector<std::uint8_t> &sample : samples) {
        for (std::size_t at = 0; at < sample.size(); ++at) {
            for (int change = 0; change < 256; change += 5) {
                std::vector<std::uint8_t> bytes = sample;
                bytes[at] = static_cast<std::uint8_t>(change);
                for (const std::size_t size : {bytes.size(), at}) {
                    const std::span<const std::uint8_t> part(bytes.data(), size);
                    look(mms::decodePdu(part));
                    look(osi::cotp::decode(part));
                    look(osi::session::decode(part));
                    look(osi::presentation::decodeConnect(part));
                    look(osi::presentation::decodeAccept(part));
                    look(osi::presentation::decodeReject(part));
                    look(osi::presentation::decodeAbort(part));
                    look(osi::presentation::decodeData(part));
                    look(osi::acse::decode(part));
                    look(wiretest::decodeData(part));
                    look(wiretest::decodeTypeDescription(part));
                    if (QTest::currentTestFailed())
                        return;
                }
            }
        }
    }
    QVERIFY(broken > 1000);
}

void TestSentences::mistakesInTlsSettingsAreInTheReadersLanguage()
{
    QTemporaryDir folder;
    const auto write = [&](const char *name, const QByteArray &content) {
        QFile file(folder.filePath(QString::fromLatin1(name)));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    };
    write("empty.pem", "");
    write("broken.pem", "-----BEGIN CERTIFICATE-----\nAAAA\n-----END CERTIFICATE-----\n");
    osi::TlsOptions options;
    check(osi::validate(options).error().message);
    options.pins = {"12"};
    check(osi::validate(options).error().message);
    options.pins = {std::string(64, 'a')};
    for (const char *name : {"", "none.pem", "empty.pem", "broken.pem"}) {
        options.certificateFile =
            *name ? folder.filePath(QString::fromLatin1(name)).toStdString() : std::string();
        check(osi::validate(options).error().message);
        options.authorityFiles.clear();
    }
    options.revocationFiles = {"list.pem"};
    check(osi::validate(options).error().message);
    std::swap(options.minimumVersion, options.maximumVersion);
    options.minimumVersion = osi::TlsVersion::Tls13;
    options.maximumVersion = osi::TlsVersion::Tls12;
    check(osi::validate(options).error().message);
}

void TestSentences::wrongNamesAreInTheReadersLanguage()
{
    for (const char *name : {"", "LD", "LD/", "LD/LLN0$XX", "LD/LLN0$ST$", "/LLN0$ST", "LD/$ST",
                             "LD/LLN0$ST$a b", "LD/LLN0$ST$a(", "LD/LLN0$ST$a(x)"}) {
        const auto reference = acsi::parseReference(name);
        if (!reference)
            check(reference.error().message);
        const auto set = acsi::dataSetName("LD", name);
        if (!set)
            check(set.error().message);
    }
}

void TestSentences::uploadsAreInTheReadersLanguage()
{
    using Answer = acsi::UploadSteps::Answer;
    const auto answer = [](Answer::Kind kind, std::int32_t code, bool begun) {
        Answer result;
        result.kind = kind;
        result.text = mms::say("The peer did not answer in time.");
        result.errorClass = mms::ErrorClass::File;
        result.code = code;
        result.begun = begun;
        return result;
    };
    const std::vector<Answer> answers{
        answer(Answer::Kind::Done, 0, true),     answer(Answer::Kind::Refused, 0, false),
        answer(Answer::Kind::Refused, 7, false), answer(Answer::Kind::Refused, 8, true),
        answer(Answer::Kind::Silent, 0, true),   answer(Answer::Kind::Lost, 0, true)};
    int failed = 0;
    std::function<void(const acsi::UploadSteps &, int)> walk = [&](const acsi::UploadSteps &before,
                                                                   int depth) {
        for (const Answer &each : answers) {
            acsi::UploadSteps steps = before;
            steps.take(each);
            if (steps.next()) {
                if (depth < 7)
                    walk(steps, depth + 1);
            } else if (!steps.result().ok()) {
                ++failed;
                check(steps.result().error().message);
            }
            if (QTest::currentTestFailed())
                return;
        }
    };
    walk(acsi::UploadSteps("f", 100), 0);
    QVERIFY(failed > 50);
}

void TestSentences::findingsOfFilesAreInTheReadersLanguage()
{
    std::set<std::string> different;
    const QDir folder(QStringLiteral(SCL_FIXTURES));
    for (const QString &name : folder.entryList(QDir::Files)) {
        const scl::ReadResult result = SclImport::readFile(folder.filePath(name));
        if (!result.document) {
            check(result.errorText);
            continue;
        }
        for (const scl::Finding &finding : result.document->findings) {
            check(finding.text);
            different.insert(finding.text.english());
        }
    }
    QVERIFY(different.size() > 40);
    check(SclImport::readFile(QStringLiteral("/no/such/file.icd")).errorText);
    check(SclImport::readFile(QDir::tempPath()).errorText);
    check(scl::readBytes("<SCL><").errorText);
    check(scl::readBytes("<SCL></LCS>").errorText);
    check(scl::readBytes("<SCL a='1' a='2'/>").errorText);
}

void TestSentences::aDeviceThatCannotBeReachedSaysSoInTheReadersLanguage()
{
    // A port at which nobody listens, and one of somebody who speaks something else.
    QTcpServer silent;
    QVERIFY(silent.listen(QHostAddress::LocalHost));
    const quint16 closedPort = silent.serverPort();
    silent.close();
    QTcpServer other;
    QVERIFY(other.listen(QHostAddress::LocalHost));
    connect(&other, &QTcpServer::newConnection, &other, [&other] {
        QTcpSocket *socket = other.nextPendingConnection();
        socket->write("HTTP/1.1 400 Bad Request\r\n\r\n");
    });
    IedDriver driver;
    int number = 0;
    for (const quint16 port : {closedPort, other.serverPort()}) {
        DeviceConfiguration device;
        device.number = ++number;
        device.name = QStringLiteral("IED%1").arg(number);
        device.host = QStringLiteral("127.0.0.1");
        device.port = port;
        QCOMPARE(driver.setDevice(device), QStringList());
        driver.connectDevice(number);
        QTRY_VERIFY_WITH_TIMEOUT(!driver.status(number).reason.isEmpty(), 20000);
        const QString reason = driver.status(number).reason;
        QVERIFY2(outside(reason).isEmpty(), qPrintable(reason));
        QVERIFY2(!hasWords(reason), qPrintable(reason));
    }
}

QTEST_GUILESS_MAIN(TestSentences)
#include "tst_sentences.moc"
