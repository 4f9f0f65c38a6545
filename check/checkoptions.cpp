// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "checkoptions.h"

namespace {

const char help[] =
    "Usage: filarix-check [--profile P] [--json] [--svg OUT] FILE...\n"
    "Checks programs of a winding machine before they go to its panel.\n"
    "\n"
    "  --profile P    the machine, by its profile; without it: that of the samples\n"
    "  --json         one JSON document in place of lines\n"
    "  --svg OUT      draw the coil of the one FILE into OUT\n"
    "  -h, --help     show this\n"
    "  -v, --version  tell the version\n"
    "\n"
    "FILE - is the standard input. A finding is a line FILE:LINE:COLUMN: error: ...\n"
    "Exit status: 0 all right, 1 warnings, 2 errors, 3 something could not be read or\n"
    "written, 4 refused: the command line or the profile.\n";

CheckOptions shown(const QByteArray &text)
{
    CheckOptions options;
    options.outcome = CheckOptions::ShowText;
    options.text = text;
    return options;
}

CheckOptions refusal(const QByteArray &reason)
{
    CheckOptions options;
    options.outcome = CheckOptions::Refuse;
    options.text = reason + " Try --help.";
    return options;
}

/// Takes the arguments one after the other.
class Parser
{
public:
    explicit Parser(const QList<QByteArray> &arguments) : m_arguments(arguments) {}

    CheckOptions parse()
    {
        while (!m_arguments.isEmpty()) {
            const QByteArray argument = m_arguments.takeFirst();
            if (argument == "--help" || argument == "-h")
                return shown(help);
            if (argument == "--version" || argument == "-v")
                return shown("filarix-check " FILARIX_VERSION "\n");
            const QByteArray reason = take(argument);
            if (!reason.isEmpty())
                return refusal(reason);
        }
        const QByteArray reason = missing();
        return reason.isEmpty() ? m_options : refusal(reason);
    }

private:
    /// Why it is refused; empty where it is not.
    QByteArray take(const QByteArray &argument)
    {
        if (m_areOptionsOver || argument == "-" || !argument.startsWith('-'))
            m_options.files.append(argument);
        else if (argument == "--")
            m_areOptionsOver = true;
        else if (argument == "--json")
            m_options.asJson = true;
        else if (isOption(argument, "--profile"))
            return takeValue(argument, &m_options.profile);
        else if (isOption(argument, "--svg"))
            return takeValue(argument, &m_options.svg);
        else
            return "There is no option " + argument + ".";
        return QByteArray();
    }

    static bool isOption(const QByteArray &argument, const QByteArray &name)
    {
        return argument == name || argument.startsWith(name + '=');
    }

    /// "--profile P" and "--profile=P".
    QByteArray takeValue(const QByteArray &argument, QByteArray *value)
    {
        const int equals = argument.indexOf('=');
        if (equals >= 0)
            *value = argument.mid(equals + 1);
        else if (!m_arguments.isEmpty())
            *value = m_arguments.takeFirst();
        const QByteArray name = equals >= 0 ? argument.left(equals) : argument;
        return value->isEmpty() ? name + " needs the name of a file." : QByteArray();
    }

    QByteArray missing() const
    {
        if (m_options.files.isEmpty())
            return "Which file?";
        if (m_options.files.contains(QByteArray()))
            return "The name of a file is empty.";
        if (!m_options.svg.isEmpty() && m_options.files.size() > 1)
            return "--svg draws the coil of one file.";
        if (m_options.files.count("-") > 1)
            return "The standard input can be read once.";
        return QByteArray();
    }

    QList<QByteArray> m_arguments;
    CheckOptions m_options;
    bool m_areOptionsOver = false;
};

} // namespace

CheckOptions CheckOptions::parse(const QList<QByteArray> &arguments)
{
    return Parser(arguments).parse();
}
