// SPDX-License-Identifier: Apache-2.0
#include "acsi/readcalls.h"

#include "acsi/callgroup.h"
#include "acsi/listcalls.h"

#include <algorithm>
#include <map>
#include <optional>
#include <utility>

namespace acsi {

using wording::say;

mms::ReadRequest readRequest(std::vector<mms::VariableAccess> variables)
{
    mms::ReadRequest request;
    request.variables = std::move(variables);
    return request;
}

std::size_t readFrameSize()
{
    static const std::size_t size = longestSize(readRequest({}));
    return size;
}

std::size_t readSize(const mms::VariableAccess &variable)
{
    return longestSize(readRequest({variable})) - readFrameSize();
}

ReadAnswer readAnswer(mms::CallOutcome outcome, std::size_t count)
{
    ReadAnswer answer;
    auto *service = std::get_if<mms::ResponseService>(&outcome);
    if (auto *read = service ? std::get_if<mms::ReadResponse>(service) : nullptr;
        read && read->results.size() == count) {
        answer.kind = ReadAnswer::Kind::Results;
        answer.results = std::move(read->results);
        return answer;
    }
    answer.reason = whyNot(outcome);
    answer.error = accessErrorOf(outcome);
    const auto *failure = std::get_if<mms::CallFailure>(&outcome);
    const auto *error = std::get_if<mms::ServiceError>(&outcome);
    if (failure && failure->kind == mms::CallFailure::Kind::TimedOut)
        answer.kind = failure->wasSent ? ReadAnswer::Kind::Silent : ReadAnswer::Kind::NotSent;
    else if (endsAll(outcome))
        answer.kind = ReadAnswer::Kind::Ended;
    else if (error && error->errorClass == mms::ErrorClass::Access)
        answer.kind = ReadAnswer::Kind::Refused;
    else
        answer.kind = ReadAnswer::Kind::TooLarge;
    return answer;
}

asio::awaitable<mms::Result<std::vector<ReadResult>>>
readEach(std::shared_ptr<Client> client, std::vector<mms::VariableAccess> variables)
{
    std::vector<std::size_t> sizes(variables.size());
    if (variables.size() > 1)
        std::ranges::transform(variables, sizes.begin(), readSize);
    const std::size_t limit = client->association().pduSize();
    ListCalls calls(listRanges(sizes, limit - std::min(limit, readFrameSize())), variables.size());
    std::vector<ReadResult> results(variables.size());
    std::map<std::size_t, ListRange> asked;
    mms::Text silence;
    CallGroup group(client);
    while ((silence.empty() && !calls.idle()) || group.onTheWay() != 0) {
        while (silence.empty() && !calls.idle() && group.onTheWay() < client->outstanding()) {
            const ListRange range = calls.next();
            asked[range.first] = range;
            group.start(range.first, readRequest(listPart(variables, range)),
                        client->options().callTimeout);
        }
        auto arrival = co_await group.next();
        if (!arrival)
            co_return mms::Error{say("The call was cancelled."), 0};
        const ListRange range = asked[arrival->id];
        ReadAnswer answer = readAnswer(std::move(arrival->outcome), range.count);
        switch (answer.kind) {
        case ReadAnswer::Kind::Results:
            for (std::size_t i = 0; i < range.count; ++i) {
                results[range.first + i].kind = ReadResult::Kind::Answered;
                results[range.first + i].result = std::move(answer.results[i]);
            }
            break;
        case ReadAnswer::Kind::TooLarge:
        case ReadAnswer::Kind::Refused:
            if (calls.refused(range)) {
                results[range.first].kind = ReadResult::Kind::Refused;
                results[range.first].result = answer.error;
                results[range.first].reason = std::move(answer.reason);
            }
            break;
        case ReadAnswer::Kind::Silent:
        case ReadAnswer::Kind::NotSent:
            silence = std::move(answer.reason);
            break;
        case ReadAnswer::Kind::Ended:
            if (!client->isOpen() && !client->closeReason().empty())
                answer.reason = client->closeReason();
            co_return mms::Error{std::move(answer.reason), 0};
        }
    }
    for (ReadResult &each : results) {
        if (each.kind == ReadResult::Kind::Missing)
            each.reason = silence;
    }
    co_return results;
}

} // namespace acsi
