// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "shell/ctr_dn_contacts.h"

#include "shell/rooms.h"

namespace dn {

ctrDnContacts::ctrDnContacts(screen::Ports ports) : rooms_(std::make_unique<shell::Rooms>(ports, *this))
{
    rooms_->wire();
    rooms_->startUp_.UserControl_Initialize();
}

ctrDnContacts::~ctrDnContacts() = default;

const std::string& ctrDnContacts::Call_Tabla() const { return rooms_->session_.Call_Tabla; }
void ctrDnContacts::Call_Tabla(std::string table) { rooms_->session_.Call_Tabla = std::move(table); }
std::int32_t ctrDnContacts::Call_PK() const { return rooms_->session_.Call_PK; }
void ctrDnContacts::Call_PK(std::int32_t key) { rooms_->session_.Call_PK = key; }
const std::string& ctrDnContacts::Call_Tel() const { return rooms_->session_.Call_Tel; }
void ctrDnContacts::Call_Tel(std::string number) { rooms_->session_.Call_Tel = std::move(number); }
bool ctrDnContacts::Call_Progress() const { return rooms_->session_.Call_Progress; }
void ctrDnContacts::Call_Progress(bool progress) { rooms_->session_.Call_Progress = progress; }
const std::string& ctrDnContacts::TemplatePath() const { return rooms_->session_.TemplatePath; }
void ctrDnContacts::TemplatePath(std::string path) { rooms_->session_.TemplatePath = std::move(path); }
const std::shared_ptr<UI_CRM>& ctrDnContacts::oUICRM() const { return rooms_->session_.oUICRM; }
void ctrDnContacts::oUICRM(std::shared_ptr<UI_CRM> screens) { rooms_->session_.oUICRM = std::move(screens); }
const std::string& ctrDnContacts::Usuario() const { return rooms_->session_.Usuario; }
void ctrDnContacts::Usuario(std::string user) { rooms_->session_.Usuario = std::move(user); }
data::Connection* ctrDnContacts::AdoCnn() const { return rooms_->session_.AdoCnn; }
void ctrDnContacts::AdoCnn(data::Connection* connection) { rooms_->session_.AdoCnn = connection; }
std::int32_t ctrDnContacts::PKAgente() const { return rooms_->session_.PKAgente; }
void ctrDnContacts::PKAgente(std::int32_t key) { rooms_->session_.PKAgente = key; }
bool ctrDnContacts::GAdmon() const { return rooms_->session_.GAdmon; }
void ctrDnContacts::GAdmon(bool administrator) { rooms_->session_.GAdmon = administrator; }
const std::any& ctrDnContacts::eBasic() const { return rooms_->session_.eBasic; }
void ctrDnContacts::eBasic(std::any object) { rooms_->session_.eBasic = std::move(object); }
void ctrDnContacts::hostObjects(HostFactory* factory) { rooms_->hostScreens_.factory(factory); }
void ctrDnContacts::SetObjects(data::Connection* Cn, std::int32_t Agente, bool Admon, const std::string& pUsuario)
{
    rooms_->startUp_.SetObjects(Cn, Agente, Admon, pUsuario);
}
void ctrDnContacts::InitUICRM(const std::string& PathXML, HostObject& FXLands)
{
    rooms_->hostScreens_.InitUICRM(PathXML, FXLands);
}
std::int32_t ctrDnContacts::NuevoProyecto(std::int32_t& Key) { return rooms_->hostScreens_.NuevoProyecto(Key); }
void ctrDnContacts::RefreshData() { rooms_->startUp_.RefreshData(); }
void ctrDnContacts::RefreshRobot() { rooms_->queue_.RefreshRobot(); }
void ctrDnContacts::SelAgente(std::int32_t PK) { rooms_->agents_.SelAgente(PK); }
void ctrDnContacts::openTab(std::int16_t tab) { rooms_->elements_.top.lblItem(tab).click(); }
std::int16_t ctrDnContacts::activeTab() const { return rooms_->tabStrip_.GetActiveTab(); }
std::int32_t ctrDnContacts::ShSelAgente() { return rooms_->agents_.ShSelAgente(); }
void ctrDnContacts::ExportarListas() { rooms_->projectCommands_.ExportarListas(); }
void ctrDnContacts::cmdSend_Click() { rooms_->mail_.cmdSend_Click(); }
void ctrDnContacts::Historial(std::int16_t& t, std::int32_t& Sys_PK) { rooms_->recordMail_.Historial(t, Sys_PK); }
void ctrDnContacts::IniciarLlamada(const std::string& Tabla, std::int32_t PK, const std::string& Tel)
{
    rooms_->callFlow_.IniciarLlamada(Tabla, PK, Tel);
}
void ctrDnContacts::Call_Connect(std::int16_t R) { rooms_->callOutcomes_.Call_Connect(R); }
void ctrDnContacts::Call_Resumen(const std::string& S) { rooms_->callOutcomes_.Call_Resumen(S); }
void ctrDnContacts::Call_NoConnect(std::int16_t motivo) { rooms_->callOutcomes_.Call_NoConnect(motivo); }
screen::Signal<std::string, std::int32_t, std::string>& ctrDnContacts::callStarted()
{
    return rooms_->callFlow_.started;
}
screen::Signal<>& ctrDnContacts::callEnded() { return rooms_->callOutcomes_.ended; }
screen::Signal<>& ctrDnContacts::callSettled() { return rooms_->callOutcomes_.turn().settled; }
screen::UserControl& ctrDnContacts::root() { return rooms_->elements_.control; }
desk::Elements& ctrDnContacts::elements() { return rooms_->elements_; }
std::int16_t ctrDnContacts::MotorBD() const { return rooms_->session_.MotorBD; }

} // namespace dn
