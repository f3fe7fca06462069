// SPDX-License-Identifier: Apache-2.0
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtTest/QtTest>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

namespace {

using Generator = std::mt19937;

std::vector<std::string> fixtures()
{
    std::vector<std::string> result;
    const QDir folder(QStringLiteral(SCL_FIXTURES));
    const QStringList names = folder.entryList(QDir::Files, QDir::Name);
    for (const QString &name : names) {
        QFile file(folder.filePath(name));
        if (file.open(QIODevice::ReadOnly))
            result.push_back(file.readAll().toStdString());
    }
    return result;
}

std::size_t below(Generator &generator, std::size_t limit)
{
    return std::uniform_int_distribution<std::size_t>(0, limit - 1)(generator);
}

void run(const std::string &text)
{
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(text.data()), text.size());
}

/// Begin and length of the attribute values of a file.
std::vector<std::pair<std::size_t, std::size_t>> attributeValues(const std::string &text)
{
    std::vector<std::pair<std::size_t, std::size_t>> result;
    std::size_t begin = text.find("<SCL");
    while ((begin = text.find("=\"", begin)) != std::string::npos) {
        begin += 2;
        const std::size_t end = text.find('"', begin);
        if (end == std::string::npos)
            break;
        result.emplace_back(begin, end - begin);
        begin = end;
    }
    return result;
}

/// An element with everything in it, as far as its end tag is found; empty when there is none.
std::string someElement(const std::string &text, Generator &generator)
{
    const std::size_t begin = text.find('<', below(generator, text.size()));
    if (begin == std::string::npos)
        return {};
    const std::size_t nameEnd = text.find_first_of(" />", begin + 1);
    const std::size_t tagEnd = text.find('>', begin);
    if (nameEnd == std::string::npos || tagEnd == std::string::npos || nameEnd == begin + 1)
        return {};
    if (text[tagEnd - 1] == '/')
        return text.substr(begin, tagEnd + 1 - begin);
    const std::string close = "</" + text.substr(begin + 1, nameEnd - begin - 1) + ">";
    const std::size_t end = text.find(close, tagEnd);
    return end == std::string::npos ? std::string()
                                    : text.substr(begin, end + close.size() - begin);
}

} // namespace

/// Every input must end in an error or a document that agrees with itself; the function under test
/// aborts otherwise.
class tst_SclRobustness : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyFixtureAndItsBeginningsAreHandled();
    void changedBytesAreHandled();
    void exchangedAttributeValuesAreHandled();
    void movedElementsAreHandled();

private:
    std::vector<std::string> m_fixtures;
};

void tst_SclRobustness::initTestCase()
{
    m_fixtures = fixtures();
    QVERIFY(m_fixtures.size() > 30);
}

void tst_SclRobustness::everyFixtureAndItsBeginningsAreHandled()
{
    for (const std::string &fixture : m_fixtures) {
        run(fixture);
        for (std::size_t length = 0; length < fixture.size(); length += 97)
            run(fixture.substr(0, length));
    }
}

void tst_SclRobustness::changedBytesAreHandled()
{
    Generator generator(1);
    for (int i = 0; i < 3000; ++i) {
        std::string text = m_fixtures[below(generator, m_fixtures.size())];
        for (std::size_t changes = below(generator, 4) + 1; changes > 0; --changes)
            text[below(generator, text.size())] = static_cast<char>(below(generator, 256));
        run(text);
    }
}

void tst_SclRobustness::exchangedAttributeValuesAreHandled()
{
    const std::vector<std::string> special = {
        "",          "0",    "-1", "4294967295",  "true",   "ST",   "Struct",  "Enum",
        "a(3).b(4)", "....", "((", "99999999999", "numHar", "LLN0", "\xC3\xA4"};
    Generator generator(2);
    for (int i = 0; i < 6000; ++i) {
        std::string text = m_fixtures[below(generator, m_fixtures.size())];
        for (std::size_t changes = below(generator, 5) + 1; changes > 0; --changes) {
            const auto values = attributeValues(text);
            if (values.empty())
                break;
            const auto [begin, length] = values[below(generator, values.size())];
            const auto [from, fromLength] = values[below(generator, values.size())];
            const std::string other = below(generator, 3) == 0
                                          ? special[below(generator, special.size())]
                                          : text.substr(from, fromLength);
            text.replace(begin, length, other);
        }
        run(text);
    }
}

void tst_SclRobustness::movedElementsAreHandled()
{
    Generator generator(3);
    for (int i = 0; i < 6000; ++i) {
        std::string text = m_fixtures[below(generator, m_fixtures.size())];
        const std::string &other = m_fixtures[below(generator, m_fixtures.size())];
        for (std::size_t changes = below(generator, 4) + 1; changes > 0; --changes) {
            const std::string element = someElement(below(generator, 2) ? text : other, generator);
            const std::size_t place = text.find('<', below(generator, text.size()));
            if (place == std::string::npos || element.empty())
                continue;
            if (below(generator, 3) == 0)
                text.replace(place, std::min(element.size(), text.size() - place), element);
            else
                text.insert(place, element);
            if (text.size() > 100000)
                break;
        }
        run(text);
    }
}

QTEST_GUILESS_MAIN(tst_SclRobustness)
#include "tst_sclrobustness.moc"
