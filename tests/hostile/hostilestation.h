// SPDX-License-Identifier: Apache-2.0
#pragma once

// Asio goes before Qt.
#include "driver/simulatedstation.h"
#include "hostile/hostileline.h"
#include "simulator/directoryfiles.h"

#include "driver/indicatorfile.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtCore/QString>
#include <QtCore/QTemporaryDir>

#include <memory>

namespace hostile {

struct StepCase
{
    const char *name;
    Step step;
    /// It comes while an association is made and the model read; otherwise somebody asks for it.
    bool isOpening;
};

inline constexpr std::array<StepCase, 13> stepCases = {{
    {"connect", Step::Connect, true},
    {"transport", Step::Transport, true},
    {"associate", Step::Associate, true},
    {"identify", Step::Identify, true},
    {"names", Step::Names, true},
    {"types", Step::Types, true},
    {"data sets", Step::DataSets, true},
    {"read", Step::Read, false},
    {"write", Step::Write, false},
    {"file list", Step::FileList, false},
    {"file open", Step::FileOpen, false},
    {"file read", Step::FileRead, false},
    {"conclude", Step::Conclude, false},
}};

/// A simulated IED of a few indications with a file, behind a line that can be hostile.
class HostileDevice
{
public:
    explicit HostileDevice(const QString &folder, const QByteArray &name)
        : m_file(name, 2, 4)
    {
        const QDir files(folder + QLatin1Char('/') + QString::fromLatin1(name));
        const QString path = folder + QLatin1Char('/') + QString::fromLatin1(name) + ".icd";
        QFile record(files.filePath(QStringLiteral("record.dat")));
        if (!files.mkpath(QStringLiteral(".")) || !m_file.write(path) ||
            !record.open(QIODevice::WriteOnly) || record.write(QByteArray(3000, 'x')) != 3000)
            qFatal("the files of a device cannot be written");
        record.close();
        sim::FileOptions served;
        served.directory = files.path().toStdString();
        const auto service = sim::DirectoryFiles::create(served);
        if (!service)
            qFatal("%s", service.error().message.english().c_str());
        sim::DeviceOptions options;
        options.files = *service;
        m_ied = std::make_unique<drivertest::SimulatedIed>(path, QString(), std::string(), options);
        m_line = std::make_unique<HostileLine>(m_ied->port());
    }

    drivertest::SimulatedIed &ied() { return *m_ied; }
    HostileLine &line() { return *m_line; }
    QString domain() const { return QString::fromLatin1(m_file.domain()); }
    QString item(int index) const { return QString::fromLatin1(m_file.item(index)); }
    /// Of the value of an indication.
    QString reference(int index) const
    {
        return m_file.reference(index) + QStringLiteral("$stVal");
    }

    /// Changes an indication; whether it is on now.
    bool toggle(int index)
    {
        const std::string value = m_file.item(index).toStdString() + "$stVal";
        const bool isOn =
            !m_ied->value(m_file.domain().toStdString(), value).toBoolean().value_or(false);
        m_ied->set(m_file.domain().toStdString(), value, mms::Data::boolean(isOn));
        return isOn;
    }

private:
    drivertest::IndicatorFile m_file;
    std::unique_ptr<drivertest::SimulatedIed> m_ied;
    std::unique_ptr<HostileLine> m_line;
};

/// Begins like a sentence, perhaps behind the name of a file, ends like one, and has nothing in it
/// that a terminal would take amiss.
inline bool isSentence(const QString &text)
{
    static const QRegularExpression form(
        QStringLiteral("^(?:[\\w.]+: )?[\\p{Lu}\"\\d][^\\x00-\\x1f\\x7f]*[^.\\s]\\.$"));
    return form.match(text).hasMatch();
}

} // namespace hostile
