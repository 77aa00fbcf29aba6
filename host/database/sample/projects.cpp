// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Projects with their activities and their log.

#include "host/database/bulk_insert.h"
#include "host/database/sample/log_lines.h"
#include "host/database/sample/people.h"
#include "host/database/sample/words.h"
#include "host/database/sample/world.h"

namespace dn::host::sample {
namespace {

struct Project {
    int key = 0;
    int agent = 0;
    DateTime created;
    std::optional<DateTime> lastContact;
    std::optional<DateTime> lastAttempt;
    std::optional<int> result;
};

void invent(World& world, Project& project)
{
    Dice& dice = world.dice;
    const int age = dice.between(0, 720);
    project.agent = dice.between(1, world.sizes.agents);
    project.created = world.workingMoment(-age);
    if (dice.chance(30)) return;
    project.lastAttempt = world.workingMoment(-dice.between(0, age));
    project.result = dice.chance(65) ? 50 : failedResult(dice);
    if (*project.result == 50) project.lastContact = project.lastAttempt;
}

std::optional<std::string> amount(Dice& dice)
{
    if (dice.chance(20)) return {};
    if (dice.chance(10)) return "0";
    return std::to_string(dice.between(1, 900'000)) + "." + std::to_string(dice.between(10, 99));
}

void writeProject(World& world, BulkInsert& rows, const Project& project)
{
    Dice& dice = world.dice;
    rows.row().number(project.key).text(dice.identifier()).moment(project.created);
    rows.text(std::string(dice.pick(projectKinds())) + " en " + company(dice)).number(project.agent);
    rows.number(dice.between(1, static_cast<int>(goals().size())));
    rows.number(dice.between(1, world.sizes.organisations));
    rows.number(dice.between(1, world.sizes.persons));
    rows.moment(world.workingMoment(-dice.between(-30, 300))).number(dice.between(1, 6));
    rows.number(dice.chance(40) ? std::nullopt : std::optional(dice.between(0, 4))).text(amount(dice));
    rows.moment(project.lastContact).moment(project.lastAttempt).number(project.result);
    rows.number(project.lastContact ? std::optional(1) : std::nullopt).moment(project.lastContact);
}

void writeActivities(World& world, BulkInsert& rows, const Project& project)
{
    Dice& dice = world.dice;
    const int count = dice.between(0, 3);
    for (int i = 0; i < count; ++i) {
        const int days = dice.between(-20, 40);
        rows.row().number(project.key);
        rows.number(dice.between(1, static_cast<int>(activityKinds().size())));
        rows.text(dice.pick(activitySubjects())).moment(world.workingMoment(days));
        rows.number(dice.chance(days < 0 ? 75 : 10) ? 1 : 0); // what is past is done, as a rule
    }
}

void writeLog(World& world, LogLines& log, const Project& project)
{
    Dice& dice = world.dice;
    if (project.lastAttempt) {
        const std::string number = telephone(dice);
        const std::string message =
            *project.result == 50 ? reachedMessage(dice, number) : notReachedMessage(number, *project.result);
        log.aboutProject(project.key, *project.lastAttempt, message, project.agent);
    }
    if (dice.chance(40)) log.aboutProject(project.key, project.created, dice.pick(notes()), project.agent);
}

} // namespace

void writeProjects(World& world)
{
    BulkInsert projects(
        world.connection, world.engine, "Proyecto",
        "Sys_PK, Sys_GUID, Sys_DTCreated, Descripcion, IEjecutivo, IMeta, IOrganizacion, IContacto, "
        "FInicio, UF_Status1, UF_Color, UF_monto, uf_ultimocontac, uf_ultimointento, "
        "uf_res_ultimointento, uf_contactado, uf_primercontac");
    BulkInsert activities(world.connection, world.engine, "actividad",
                          "IProyecto, ITpActividad, Asunto, FInicio, Hecho");
    LogLines log(world);
    for (Project project; project.key < world.sizes.projects;) {
        project = Project{
            .key = project.key + 1, .agent = 0, .created = {}, .lastContact = {}, .lastAttempt = {}, .result = {}};
        invent(world, project);
        writeProject(world, projects, project);
        writeActivities(world, activities, project);
        writeLog(world, log, project);
    }
    projects.finish();
    activities.finish();
    log.finish();
}

} // namespace dn::host::sample
