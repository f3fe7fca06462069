// SPDX-License-Identifier: Apache-2.0
#include "internalerror.h"

#include "driver/text/connectiontext.h"

#include <asio/error.hpp>

#include <QtCore/QCoreApplication>

#include <system_error>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(IedDriver)
};

} // namespace

bool InternalError::isCancellation(const std::exception_ptr &exception)
{
    try {
        std::rethrow_exception(exception);
    } catch (const std::system_error &error) {
        return error.code() == asio::error::operation_aborted;
    } catch (...) {
        return false;
    }
}

QString InternalError::sentence(const std::exception_ptr &exception)
{
    QString what;
    try {
        std::rethrow_exception(exception);
    } catch (const std::exception &error) {
        what = QString::fromUtf8(error.what());
    } catch (...) {
    }
    if (what.isEmpty())
        return Texts::tr("An internal error of the driver ended the association.");
    return Texts::tr("An internal error of the driver ended the association: %1.")
        .arg(ConnectionText::withoutPeriod(what));
}
