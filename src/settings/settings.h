#pragma once

#include <QString>
#include <QStringView>

#include <utility>
#include <vector>

/// The per-user settings: texts addressed by application, section and key, in any letter case. They live in
/// one file per application under $XDG_CONFIG_HOME/tavaro, readable by the owner only, and are written the
/// moment they change.
namespace settings {

struct Key
{
    QStringView section, name, defaultValue;
};

inline constexpr QStringView application = u"Tavaro";
inline constexpr QStringView general = u"Configurações";
inline constexpr QStringView report = u"Configurações\\relatorio";
inline constexpr QStringView tips = u"configuracoes";

inline constexpr Key databasePath{general, u"RedeLocal", u"SemRede"};
inline constexpr Key networkOn{general, u"EmRede", u"0"};
/// A random name by which the journal tells the installations apart.
inline constexpr Key installation{general, u"Instalacao", u""};
inline constexpr Key automaticBackup{general, u"BackupAutomatico", u"1"};
/// The program opens on the page of what is due today.
inline constexpr Key openToday{general, u"AbrirHoje", u"1"};
/// Somebody with an empty file is led to the first entry.
inline constexpr Key firstSteps{general, u"PrimeirosPassos", u"1"};
/// Entries that are overdue, due today or settled bear a sign in the lists.
inline constexpr Key rowSigns{general, u"SinaisListas", u"1"};
/// Empty: a folder of the program folder.
inline constexpr Key backupFolder{general, u"BackupPasta", u""};
/// The database as it was when it was last copied: path, size and time.
inline constexpr Key backupState{general, u"BackupEstado", u""};
inline constexpr Key startWithSystem{general, u"Iniciar", u"0"};
inline constexpr Key dueAlerts{general, u"AlertasVencimento", u"1"};
/// The settings screen switches the alerts off under this misspelt key, which nothing reads.
inline constexpr Key dueAlertsMisspelt{general, u"AertasVencimento", u"1"};
inline constexpr Key updateBalances{general, u"AtualizarSaldo", u"1"};
inline constexpr Key refreshMainWindow{general, u"ExibirPrincipal", u"1"};
inline constexpr Key viewOrder{general, u"Ordem", u"ASC"};
inline constexpr Key fontName{general, u"Fontenome", u"Arial"};
inline constexpr Key fontSize{general, u"TamanhoFonte", u"10"};
inline constexpr Key textColour{general, u"Corfonte", u"0"};
inline constexpr Key firstBackground{general, u"CorFundo1", u"&HFFFFFF"};
inline constexpr Key secondBackground{general, u"CorFundo2", u"&HFFFFFF"};
inline constexpr Key textColourIndex{general, u"Corescolhidafonte", u"9"};
inline constexpr Key firstBackgroundIndex{general, u"Corescolhida", u"0"};
inline constexpr Key secondBackgroundIndex{general, u"Corescolhida2", u"0"};
inline constexpr Key bankViewPeriod{general, u"VisualizarDadosBancario", u"0"};
inline constexpr Key payablePeriod{general, u"FiltroP", u"Todos os dados"};
inline constexpr Key receivablePeriod{general, u"FiltroR", u"Todos os dados"};
inline constexpr Key movementPeriod{general, u"FiltroM", u"Todos os dados"};
inline constexpr Key payableStatus{general, u"MostrarP", u"Pendentes e Concluídos"};
inline constexpr Key receivableStatus{general, u"MostrarR", u"Pendentes e Concluídos"};
inline constexpr Key movementKind{general, u"MostrarM", u"Todos os dados"};
inline constexpr Key payableAccount{general, u"OrigemP", u"Todos os bancos"};
inline constexpr Key receivableAccount{general, u"OrigemR", u"Todos os bancos"};
inline constexpr Key costCentre{general, u"Centro de Custo", u"Todos os centros de custos"};
inline constexpr Key profitCentre{general, u"Centro de Lucro", u"Todos os centros de lucros"};
inline constexpr Key supplier{general, u"Fornecedor", u"Todos os fornecedores"};
inline constexpr Key client{general, u"Cliente", u"Todos os clientes"};
inline constexpr Key movementSort{general, u"OrganizarM", u"Data de cadastro"};
inline constexpr Key movementAscending{general, u"OrdemM", u"true"};
/// What the e-mail screen sends; its second tab, of statistics, has choices of its own.
inline constexpr Key mailPayables{general, u"email-pagar", u"0"};
inline constexpr Key mailReceivables{general, u"email-receber", u"0"};
inline constexpr Key mailMovements{general, u"email-bancario", u"0"};
inline constexpr Key mailDated{general, u"email-entredatas", u"0"};
inline constexpr Key mailStatus{general, u"email-tiporet", u"Todos"};
inline constexpr Key mailPayables2{general, u"email-pagar2", u"0"};
inline constexpr Key mailReceivables2{general, u"email-receber2", u"0"};
inline constexpr Key mailMovements2{general, u"email-bancario2", u"0"};
inline constexpr Key mailDated2{general, u"email-entredatas2", u"0"};
/// The names that stand there before the user's own are of a domain that never exists.
inline constexpr Key mailName{general, u"email-nome", u"Seu Nome"};
inline constexpr Key mailAddress{general, u"email-email", u"seu.nome@provedor.example"};
inline constexpr Key mailServer{general, u"email-servidor", u"smtp.provedor.example:587"};
inline constexpr Key mailLogin{general, u"email-login", u""};
inline constexpr Key mailPassword{general, u"email-senha", u""};
/// "1": the server's certificate is not checked.
inline constexpr Key mailAnyCertificate{general, u"email-certificado", u"0"};
inline constexpr Key companyName{report, u"nome", u"Tavaro"};
inline constexpr Key companySlogan{report, u"slogan", u"© Tavaro - controle financeiro e de estoque"};
inline constexpr Key companySite{report, u"site", u""};
inline constexpr Key tipOfTheDay{tips, u"Exibir dica do dia", u""};

/// Never fails: a missing key gives the key's default.
QString value(const Key &key);
/// Stores at once. Throws Error::Kind::File when the file cannot be written.
void setValue(const Key &key, const QString &value);
/// Stores several at once, with one write to the disk. Throws as setValue() does.
void setValues(const std::vector<std::pair<Key, QString>> &values);
/// The general form, for keys under another application's name.
QString read(const QString &appName, const QString &section, const QString &key, const QString &defaultValue);
void write(const QString &appName, const QString &section, const QString &key, const QString &value);

/// Where the settings files live; reads them again when it changes. For tests and tools.
void setFolder(const QString &folder);

inline bool isOn(const Key &key)
{
    return value(key) == u"1";
}

} // namespace settings
