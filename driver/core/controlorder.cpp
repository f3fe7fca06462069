// SPDX-License-Identifier: Apache-2.0
#include "controlorder.h"

#include "driver/model/valueconversion.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDataStream>
#include <QtCore/QStringList>

#include <algorithm>
#include <chrono>
#include <cmath>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(IedDriver)
};

// The codes of the Check type: its two bits as a number.
constexpr quint8 interlockCheck = 1;
constexpr quint8 synchrocheck = 2;
constexpr quint8 allChecks = interlockCheck | synchrocheck;
/// So many bits has the fraction of a time stamp.
constexpr unsigned fractionBits = 24;
constexpr std::uint8_t millisecondAccuracy = 10;
/// How long a command may take where the device does not say, and at most.
constexpr std::chrono::milliseconds usualTermination{30000};
constexpr std::chrono::milliseconds longestTermination{3600000};
/// What the device needs to tell of the end of a command that took all its time.
constexpr std::chrono::milliseconds terminationMargin{2000};

} // namespace

std::optional<ControlBlock> ControlOrder::read(const QByteArray &bytes)
{
    QDataStream stream(bytes);
    stream.setVersion(QDataStream::Qt_5_12);
    stream.setByteOrder(QDataStream::BigEndian);
    stream.setFloatingPointPrecision(QDataStream::DoublePrecision);
    ControlBlock block;
    stream >> block.objectReference >> block.controlValue >> block.orCat >> block.check >>
        block.test >> block.controlModel;
    if (stream.status() != QDataStream::Ok || !stream.atEnd())
        return std::nullopt;
    return block;
}

bool ControlOrder::isEmpty(const ControlBlock &block)
{
    return block.controlValue == 0 && block.orCat == 0 && block.check == 0 && block.test == 0;
}

mms::Result<acsi::ControlRequest> ControlOrder::toRequest(const ControlBlock &block,
                                                          const QByteArray &originator,
                                                          std::uint8_t ctlNum)
{
    const auto error = [](const QString &sentence) {
        return mms::Error{mms::verbatim(sentence.toStdString()), 0};
    };
    if (!std::isfinite(block.controlValue))
        return error(Texts::tr("The control value is no finite number."));
    if (block.check > allChecks)
        return error(Texts::tr("%1 is no code of the check conditions.").arg(block.check));
    if (block.test > 1)
        return error(Texts::tr("The test flag is 0 or 1, not %1.").arg(block.test));
    if (block.orCat > highestCategory)
        return error(
            Texts::tr("%1 is no originator category; they go from 0 to 8.").arg(block.orCat));
    acsi::ControlRequest request;
    request.value = mms::Data::float64(block.controlValue);
    request.originator.category = block.orCat;
    request.originator.identification.assign(originator.begin(), originator.end());
    request.ctlNum = ctlNum;
    request.time = now();
    request.test = block.test != 0;
    request.interlockCheck = (block.check & interlockCheck) != 0;
    request.synchrocheck = (block.check & synchrocheck) != 0;
    return request;
}

std::chrono::milliseconds
ControlOrder::terminationPatience(const std::optional<std::chrono::milliseconds> &operateTimeout)
{
    const std::chrono::milliseconds timeout = operateTimeout.value_or(usualTermination);
    if (timeout <= std::chrono::milliseconds(0))
        return usualTermination;
    return operateTimeout ? std::min(timeout, longestTermination) + terminationMargin : timeout;
}

bool ControlOrder::repeats(const ControlBlock &block, const ControlBlock &selected)
{
    return isEmpty(block) ||
           (block.controlValue == selected.controlValue && block.orCat == selected.orCat &&
            block.check == selected.check && block.test == selected.test);
}

mms::UtcTime ControlOrder::now()
{
    using namespace std::chrono;
    const auto since = system_clock::now().time_since_epoch();
    const auto whole = duration_cast<seconds>(since);
    const auto rest = duration_cast<microseconds>(since - whole);
    mms::UtcTime time;
    time.seconds = static_cast<std::uint32_t>(whole.count());
    time.fraction = static_cast<std::uint32_t>(
        (static_cast<std::uint64_t>(rest.count()) << fractionBits) / 1000000U);
    time.quality = millisecondAccuracy;
    return time;
}

QString ControlOrder::text(const ControlBlock &block)
{
    QStringList parts{ValueConversion::text(block.controlValue),
                      Texts::tr("category %1").arg(block.orCat)};
    if ((block.check & interlockCheck) != 0)
        parts.append(Texts::tr("interlock check"));
    if ((block.check & synchrocheck) != 0)
        parts.append(Texts::tr("synchrocheck"));
    if (block.test != 0)
        parts.append(Texts::tr("test"));
    return parts.join(QStringLiteral(", "));
}
