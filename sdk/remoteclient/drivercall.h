// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "driverservice.h"

#include <QtCore/QVarLengthArray>

#include <cstddef>
#include <initializer_list>
#include <type_traits>
#include <utility>
#include <variant>

/// The table of the operations of DriverService, each with what it does to a device. An operation
/// that is declared there and has no line here leaves every ForwardingDriverService abstract, so
/// that the program does not compile.
#define DRIVER_OPERATIONS(OPERATION)                                                               \
    OPERATION(getIEDModel, Reads)                                                                  \
    OPERATION(getServerDirectory, Reads)                                                           \
    OPERATION(getLogicalDeviceDirectory, Reads)                                                    \
    OPERATION(getLogicalNodeDirectory, Reads)                                                      \
    OPERATION(getDataDirectory, Reads)                                                             \
    OPERATION(getDataSetList, Reads)                                                               \
    OPERATION(getDataSetDirectory, Reads)                                                          \
    OPERATION(getXRCB, Reads)                                                                      \
    OPERATION(getSGCBBlock, Reads)                                                                 \
    OPERATION(readVariable, Reads)                                                                 \
    OPERATION(readDataSetValue, Reads)                                                             \
    OPERATION(writeVariable, Changes)                                                              \
    OPERATION(writeValue, Changes)                                                                 \
    OPERATION(selectObject, Commands)                                                              \
    OPERATION(controlObject, Commands)                                                             \
    OPERATION(cancelObject, Withdraws)                                                             \
    OPERATION(createDataSet, Changes)                                                              \
    OPERATION(deleteDataSet, Changes)                                                              \
    OPERATION(getFileDirectory, Reads)                                                             \
    OPERATION(getFile, Reads)                                                                      \
    OPERATION(deleteFile, Changes)                                                                 \
    OPERATION(writeFile, Changes)                                                                  \
    OPERATION(getBRCBValues, Reads)                                                                \
    OPERATION(enableReportBlock, Changes)                                                          \
    OPERATION(getSGCB, Reads)                                                                      \
    OPERATION(getSGCBValue, Reads)                                                                 \
    OPERATION(setSGCBValues, Changes)                                                              \
    OPERATION(selectEditSG, Changes)                                                               \
    OPERATION(selectActiveSG, Commands)                                                            \
    OPERATION(abortClose, Reads)

/// The operations of DriverService, under their names there and in the order of the table.
enum class DriverOperation {
#define DRIVER_OPERATION(name, effect) name,
    DRIVER_OPERATIONS(DRIVER_OPERATION)
#undef DRIVER_OPERATION
};

#define DRIVER_OPERATION(name, effect) DriverOperation::name,
constexpr int driverOperationCount = static_cast<int>(
    std::initializer_list<DriverOperation>{DRIVER_OPERATIONS(DRIVER_OPERATION)}.size());
#undef DRIVER_OPERATION

/// What an operation does to a device.
enum class DriverEffect {
    Reads,     ///< changes nothing there
    Changes,   ///< values, settings, data sets, report blocks, files
    Commands,  ///< selects or operates an object, or makes a setting group the active one
    Withdraws, ///< cancels a command
};

/// An argument of a call between the device's number and the error text: a number, what is asked
/// for (const), what the answer goes to, or a file. Nothing is owned.
using DriverArgument =
    std::variant<std::monostate, int, const QString *, const QStringList *, const QByteArray *,
                 const ReportBlock *, const QList<SGCBValue> *, QByteArray *,
                 QList<NameVaildValue> *, QList<MMSFileEntry> *, ReportBlock *, SGCB *,
                 QList<SGCBValue> *, FileSink *, FileSource *>;

/// One call of any operation of a driver service, for what is done alike for all of them: observe,
/// refuse, count, hand over to another thread, send away. The arguments are those of the caller and
/// live as long as his call does.
class REMOTECLIENT_EXPORT DriverCall
{
public:
    using Arguments = QVarLengthArray<DriverArgument, 6>;

    DriverCall(DriverOperation operation, long deviceNo);
    Q_DISABLE_COPY(DriverCall)

    DriverOperation operation() const { return m_operation; }
    /// The operation's name, as in DriverService.
    const char *name() const;
    DriverEffect effect() const;
    /// Whether the operation changes something on a device.
    bool changes() const { return effect() != DriverEffect::Reads; }

    long deviceNo() const { return m_deviceNo; }
    /// In the order of the operation.
    const Arguments &arguments() const { return m_arguments; }
    /// Where the sentence of a failure goes. An operation without an error text drops it.
    QString &error() const { return m_error ? *m_error : m_dropped; }

    /// Argument number @a index as the parameter that the operation has there: a number, a const
    /// reference for what is asked, a reference for the answer. The error text counts as the last.
    /// Asking for a type that does not stand there throws std::bad_variant_access.
    template <typename Parameter>
    Parameter argument(std::size_t index) const
    {
        using Type = std::remove_reference_t<Parameter>;
        if constexpr (std::is_same_v<Parameter, QString &>)
            return error();
        else if constexpr (std::is_reference_v<Parameter>)
            return *std::get<Type *>(m_arguments.at(static_cast<int>(index)));
        else
            return std::get<Type>(m_arguments.at(static_cast<int>(index)));
    }

    /// The same call of @a service, with the caller's own arguments: they are filled as that
    /// service fills them. In this thread.
    OperationResult carryOut(DriverService &service) const;

    /// How a call is put together, argument by argument in the order of the operation.
    template <typename Argument>
    void add(Argument &argument)
    {
        if constexpr (std::is_same_v<Argument, QString>)
            m_error = &argument;
        else if constexpr (std::is_arithmetic_v<Argument>)
            m_arguments.append(DriverArgument(argument));
        else
            m_arguments.append(DriverArgument(&argument));
    }

private:
    DriverOperation m_operation;
    long m_deviceNo;
    Arguments m_arguments;
    QString *m_error = nullptr;
    mutable QString m_dropped;
};
