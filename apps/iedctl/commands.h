// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "exitstatus.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

class Session;

/// The commands of the program: each performs its operations on the session's device, writes
/// results and complaints to the session's output, and answers how it ended. References are in the
/// notations of Selection unless said otherwise.
namespace Commands {

/// When a stream of values ends by itself; the operator ends it in any case.
struct StreamLimit
{
    int count = 0;   ///< values; 0: no limit
    int seconds = 0; ///< 0: no limit
};

// modelcommands.cpp
ExitStatus model(Session &session, bool withAttributes);

struct DirectoryRequest
{
    QString reference; ///< empty: the server
    bool dataSets = false;
    bool reports = false;
    bool settingGroups = false;
};
ExitStatus directory(Session &session, const DirectoryRequest &request);

// valuecommands.cpp
ExitStatus read(Session &session, const QStringList &references);
ExitStatus write(Session &session, const QString &reference, const QString &value);
ExitStatus watch(Session &session, const QStringList &references, StreamLimit limit);

// datasetcommands.cpp; a data set is "LD/LN$name" or "@name"
ExitStatus listDataSets(Session &session, const QString &logicalDevice);
ExitStatus showDataSet(Session &session, const QString &dataSet);
ExitStatus readDataSet(Session &session, const QString &dataSet);
ExitStatus createDataSet(Session &session, const QString &dataSet, const QStringList &members);
ExitStatus deleteDataSet(Session &session, const QString &dataSet);

// reportcommands.cpp; a block is "LD/LN$BR$name" or "LD/LN$RP$name"
struct ReportRequest
{
    QString block;
    std::optional<QString> rptId;
    std::optional<QString> dataSet;
    std::optional<QString> triggers;
    std::optional<QString> optionalFields;
    std::optional<int> integrityPeriod; ///< milliseconds
    std::optional<int> bufferTime;      ///< milliseconds
    bool generalInterrogation = false;
    StreamLimit limit;
};
ExitStatus listReports(Session &session);
ExitStatus showReport(Session &session, const QString &block);
/// @param settings "Name=value"
ExitStatus setReport(Session &session, const QString &block, const QStringList &settings);
/// Enables and shows what comes until stopped.
ExitStatus enableReport(Session &session, const ReportRequest &request);
ExitStatus disableReport(Session &session, const QString &block);
ExitStatus interrogate(Session &session, const QString &block);
ExitStatus purge(Session &session, const QString &block);

// controlcommands.cpp
struct ControlRequest
{
    QString object;
    std::optional<QString> value;
    std::optional<int> originatorCategory; ///< remote-control unless it is given
    bool test = false;
    bool interlock = false;
    bool synchro = false;
    /// The object was selected before in this session: what is not given is that of the select,
    /// what is given has to be the same.
    bool selected = false;
};
ExitStatus selectObject(Session &session, const ControlRequest &request);
/// Selects first where the object's control model wants that.
ExitStatus operate(Session &session, const ControlRequest &request);
ExitStatus cancel(Session &session, const ControlRequest &request);

// groupcommands.cpp; the block is named by its logical device
ExitStatus showGroups(Session &session, const QString &logicalDevice);
ExitStatus readGroup(Session &session, const QString &logicalDevice, bool edited);
ExitStatus activateGroup(Session &session, const QString &logicalDevice, int group);
ExitStatus editGroup(Session &session, const QString &logicalDevice, int group);
/// @param group 0: the one being edited
/// @param settings "NAME=VALUE" with names as readGroup() shows them, of either functional
/// constraint, or as "LN.Data.attribute"
ExitStatus writeGroup(Session &session, const QString &logicalDevice, int group,
                      const QStringList &settings);

// filecommands.cpp; paths on the device with either slash
ExitStatus listFiles(Session &session, const QString &directory);
/// @param local a file or a folder; empty for one of the same name
/// @param overwrites a file that is there without a question; otherwise the session is asked, and
/// where nobody answers the file stays
ExitStatus getFile(Session &session, const QString &remote, const QString &local, bool overwrites);
ExitStatus putFile(Session &session, const QString &local, const QString &remote);
ExitStatus removeFile(Session &session, const QString &remote);

/// Aborts the association.
ExitStatus abort(Session &session);

} // namespace Commands
