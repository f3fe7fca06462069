// SPDX-License-Identifier: Apache-2.0
#include "keptcall.h"

#include <type_traits>
#include <utility>

KeptCall::KeptCall(const DriverCall &call)
    : m_call(call.operation(), call.deviceNo())
{
    for (const DriverArgument &argument : call.arguments()) {
        const auto keep = [this](auto given) {
            using Given = decltype(given);
            if constexpr (std::is_same_v<Given, FileSink *>) {
                m_values.emplace_back(std::make_unique<KeptSink>(*given));
                m_call.add(
                    static_cast<FileSink &>(*std::get<std::unique_ptr<KeptSink>>(m_values.back())));
            } else if constexpr (std::is_same_v<Given, FileSource *>) {
                m_values.emplace_back(std::make_unique<KeptSource>(*given));
                m_call.add(static_cast<FileSource &>(
                    *std::get<std::unique_ptr<KeptSource>>(m_values.back())));
            } else if constexpr (std::is_same_v<Given, int>) {
                m_values.emplace_back(given);
                m_call.add(std::get<int>(m_values.back()));
            } else if constexpr (std::is_pointer_v<Given>) {
                using Argument = std::remove_pointer_t<Given>;
                using Type = std::remove_const_t<Argument>;
                if constexpr (std::is_const_v<Argument>)
                    m_values.emplace_back(*given);
                else
                    m_values.emplace_back(Type());
                m_call.add(static_cast<Argument &>(std::get<Type>(m_values.back())));
            }
        };
        std::visit(keep, argument);
    }
    m_call.add(m_error);
}

void KeptCall::leave()
{
    for (const Value &value : m_values) {
        if (const auto *sink = std::get_if<std::unique_ptr<KeptSink>>(&value))
            (*sink)->leave();
        else if (const auto *source = std::get_if<std::unique_ptr<KeptSource>>(&value))
            (*source)->leave();
    }
}

void KeptCall::answer(const DriverCall &call)
{
    for (int i = 0; i < call.arguments().size(); ++i) {
        const auto give = [this, i](auto wanted) {
            using Wanted = decltype(wanted);
            using File = std::disjunction<std::is_same<Wanted, FileSink *>,
                                          std::is_same<Wanted, FileSource *>>;
            if constexpr (std::is_pointer_v<Wanted> && !File::value) {
                using Argument = std::remove_pointer_t<Wanted>;
                if constexpr (!std::is_const_v<Argument>)
                    *wanted = std::move(std::get<Argument>(m_values[static_cast<std::size_t>(i)]));
            }
        };
        std::visit(give, call.arguments().at(i));
    }
}
