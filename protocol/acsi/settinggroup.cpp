// SPDX-License-Identifier: Apache-2.0
#include "acsi/settinggroup.h"

#include "acsi/blockvalue.h"

#include <algorithm>
#include <deque>

namespace acsi {

using wording::say;

namespace {

using mms::Data;
using mms::TypeDescription;

/// Variables of one request: what became of them is known together.
constexpr std::size_t mostAtATime = 20;

SettingWrite refused(const mms::CallOutcome &outcome)
{
    const mms::Text text = mms::failureText(outcome);
    return {SettingWrite::Kind::Refused,
            text.empty() ? say("The device's answer does not match the request.") : text,
            {}};
}

bool hasNoAnswer(const mms::CallOutcome &outcome)
{
    const auto *failure = std::get_if<mms::CallFailure>(&outcome);
    return failure && failure->kind != mms::CallFailure::Kind::NotOpen &&
           failure->kind != mms::CallFailure::Kind::TooLarge;
}

asio::awaitable<SettingWrite> writeGroup(std::shared_ptr<ChangingClient> client, Reference block,
                                         std::string attribute, Data value)
{
    const std::string name = blockText(block);
    Reference reference = block;
    reference.path.push_back({attribute, {}});
    const std::vector<mms::VariableAccess> variables{accessOf(reference)};
    const std::vector<Data> values{value};
    std::vector<SettingWrite> written = co_await writeSettings(client, variables, values);
    // Some devices count groups in numbers with a sign.
    const auto number = value.toInteger();
    if (written.front().refusal == mms::DataAccessError::TypeInconsistent && number &&
        value.kind() == Data::Kind::Unsigned) {
        const std::vector<Data> withSign{Data::integer(*number)};
        written = co_await writeSettings(client, variables, withSign);
    }
    SettingWrite &result = written.front();
    if (!result)
        result.message = say("%1 of %2 cannot be written: %3.", attribute, name, result.message);
    co_return std::move(result);
}

} // namespace

mms::Result<SettingGroupBlock> settingGroupBlockFrom(const TypeDescription &type, const Data &value)
{
    BlockValue from(type, value);
    SettingGroupBlock block;
    from.number<std::uint32_t>("NumOfSG", block.numOfSG);
    from.number<std::uint32_t>("ActSG", block.actSG);
    from.number<std::uint32_t>("EditSG", block.editSG);
    from.boolean("CnfEdit", block.cnfEdit);
    if (const Data *time = from.find("LActTm")) {
        block.lActTm = time->toUtcTime();
        if (!block.lActTm)
            from.wrong("LActTm", *time);
    }
    from.number<std::uint32_t>("ResvTms", block.resvTms);
    if (from.error())
        return *from.error();
    if (!from.find("NumOfSG") || !from.find("ActSG"))
        return mms::Error{
            say("This is no setting group control block: NumOfSG or ActSG is missing."), 0};
    return block;
}

asio::awaitable<mms::Result<SettingGroupBlock>>
readSettingGroupBlock(std::shared_ptr<Client> client, Reference block)
{
    const auto live = co_await readBlock(client, block);
    if (!live)
        co_return live.error();
    auto result = settingGroupBlockFrom(live->type, live->value);
    if (!result)
        co_return mms::Error{say("%1: %2.", blockText(block), result.error().message), 0};
    co_return result;
}

asio::awaitable<SettingWrite> selectActiveGroup(std::shared_ptr<ChangingClient> client,
                                                Reference block, std::uint32_t group)
{
    if (group == 0) {
        co_return SettingWrite{
            SettingWrite::Kind::Refused,
            say("Setting groups are counted from 1; 0 cannot become the active group."),
            {}};
    }
    co_return co_await writeGroup(std::move(client), std::move(block), "ActSG",
                                  Data::unsignedInteger(group));
}

asio::awaitable<SettingWrite> selectEditGroup(std::shared_ptr<ChangingClient> client,
                                              Reference block, std::uint32_t group)
{
    co_return co_await writeGroup(std::move(client), std::move(block), "EditSG",
                                  Data::unsignedInteger(group));
}

asio::awaitable<SettingWrite> confirmEdit(std::shared_ptr<ChangingClient> client, Reference block)
{
    co_return co_await writeGroup(std::move(client), std::move(block), "CnfEdit",
                                  Data::boolean(true));
}

asio::awaitable<std::vector<SettingWrite>> writeSettings(std::shared_ptr<ChangingClient> client,
                                                         std::vector<mms::VariableAccess> variables,
                                                         std::vector<Data> values)
{
    struct Range
    {
        std::size_t first = 0;
        std::size_t count = 0;
    };
    std::vector<SettingWrite> results(
        variables.size(), SettingWrite{SettingWrite::Kind::Refused, say("It was not sent."), {}});
    std::deque<Range> waiting;
    for (std::size_t i = 0; i < variables.size(); i += mostAtATime)
        waiting.push_back({i, std::min(mostAtATime, variables.size() - i)});
    while (!waiting.empty()) {
        const Range range = waiting.front();
        waiting.pop_front();
        mms::WriteRequest request;
        std::vector<mms::VariableAccess> asked;
        for (std::size_t i = range.first; i < range.first + range.count; ++i) {
            asked.push_back(variables[i]);
            request.values.push_back(values[i]);
        }
        request.variables = std::move(asked);
        const mms::CallOutcome outcome = co_await client->call(request);
        const auto *answer = mms::answerOf<mms::WriteResponse>(outcome);
        const bool isAnswered = answer && answer->results.size() == range.count;
        if (!isAnswered && !hasNoAnswer(outcome) && range.count > 1 &&
            !mms::answerOf<mms::WriteResponse>(outcome)) {
            const std::size_t half = range.count / 2;
            waiting.push_front({range.first + half, range.count - half});
            waiting.push_front({range.first, half});
            continue;
        }
        for (std::size_t i = 0; i < range.count; ++i) {
            SettingWrite &result = results[range.first + i];
            result = refused(outcome);
            if (hasNoAnswer(outcome) || (answer && !isAnswered)) {
                result.kind = SettingWrite::Kind::Unknown;
            } else if (isAnswered && answer->results[i]) {
                result = {SettingWrite::Kind::Refused, mms::describe(*answer->results[i]),
                          *answer->results[i]};
            } else if (isAnswered) {
                result = {};
            }
        }
        if (std::holds_alternative<mms::CallFailure>(outcome) && range.count > 0 &&
            results[range.first].isUnknown())
            break;
    }
    co_return results;
}

} // namespace acsi
