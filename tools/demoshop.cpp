#include "demoshop.h"

#include "data/decimal.h"

#include <iterator>

using namespace Qt::StringLiterals;

namespace demoshop {

QString amount(qint64 cents)
{
    return Money::fromTenThousandths(cents * 100).grouped();
}

std::span<const Centre> costCentres()
{
    static constexpr Centre list[] = {
        {u"Mercadorias para revenda", 0, 0, 38, true},
        {u"Aluguel da loja", 280000, 280000, 4, false, House::Landlord},
        {u"Energia elétrica", 38000, 92000, 4, false, House::Power},
        {u"Água e esgoto", 8900, 24000, 4, false, House::Water},
        {u"Telefone e internet", 18990, 34990, 4, false, House::Telephone},
        {u"Salários e encargos", 165000, 380000, 6, false, House::Staff},
        {u"Impostos - Simples Nacional", 60000, 190000, 4, false, House::Treasury},
        {u"Honorários contábeis", 65000, 65000, 4, false, House::Accountant},
        {u"Retirada do proprietário", 200000, 450000, 3, false, House::Owner},
        {u"Tarifas bancárias", 1290, 9800, 4, false, House::Bank},
        {u"Frete e entregas", 4500, 38000, 7, false, House::Carrier},
        {u"Embalagens e sacolas", 8000, 62000, 5},
        {u"Manutenção e reparos", 9000, 180000, 4},
        {u"Material de limpeza e escritório", 3500, 28000, 4},
        {u"Propaganda e redes sociais", 10000, 90000, 3},
        {u"Móveis, máquinas e equipamentos", 90000, 1250000, 1},
        {u"Despesas diversas (sem classificação)", 1000, 40000, 2}};
    return list;
}

std::span<const Centre> profitCentres()
{
    static constexpr Centre list[] = {
        {u"Venda de mercadorias", 0, 0, 62, true},     {u"Venda por encomenda", 0, 0, 12, true},
        {u"Prestação de serviços", 12000, 240000, 12}, {u"Conserto e manutenção", 6000, 70000, 7},
        {u"Entrega em domicílio", 1000, 6000, 4},      {u"Aluguel do espaço para eventos", 80000, 260000, 2},
        {u"Rendimento de aplicações", 2500, 48000, 1}};
    return list;
}

std::span<const Product> products()
{
    static constexpr Product list[] = {
        {u"Café torrado em grãos 1 kg", 3890, 10, u"Fornecedor entrega às terças."},
        {u"Açúcar cristal 5 kg", 1745, 8, u""},
        {u"Farinha de trigo 25 kg", 9830, 5, u"Guardar longe da umidade."},
        {u"Azeite extravirgem 500 ml", 2875, 6, u""},
        {u"Pão de queijo congelado 2 kg", 2640, 8, u"Conferir a validade."},
        {u"Doce de leite artesanal 400 g", 1290, 7, u""},
        {u"Geleia de maracujá com pimenta 230 g", 1135, 4, u""},
        {u"Cachaça envelhecida 700 ml", 4780, 3, u"Venda proibida para menores."},
        {u"Queijo da serra meia-cura (peça)", 5420, 5, u"Vendido por peça de mais ou menos 1 kg."},
        {u"Chá de erva-cidreira 100 g", 780, 3, u""},
        {u"Panela de barro nº 3", 6200, 3, u""},
        {u"Panela de pressão 7 l", 11890, 2, u""},
        {u"Jogo de xícaras de porcelana (6 peças)", 8470, 3, u"Frágil."},
        {u"Garrafa térmica 1 l", 5290, 4, u""},
        {u"Filtro de barro com duas velas", 13900, 2, u""},
        {u"Toalha de mesa bordada 2,20 m", 7650, 2, u"Bordado das artesãs da Associação."},
        {u"Rede de algodão casal", 14200, 2, u""},
        {u"Caderno universitário 200 folhas", 1420, 6, u""},
        {u"Lápis de cor 24 cores", 2180, 4, u""},
        {u"Papel A4 (caixa com 10 resmas)", 19850, 3, u""},
        {u"Vela aromática de canela", 1860, 4, u""},
        {u"Sabão de coco artesanal (dúzia)", 2300, 4, u""},
        {u"Ventilador de mesa 40 cm", 12450, 2, u"Garantia de 12 meses."},
        {u"Luminária articulada", 8990, 1, u""},
        {u"Cesta de Natal média", 10900, 3, u"Montada na loja a partir de novembro."},
        {u"Cesta de café da manhã", 9350, 3, u"Encomendar com dois dias de antecedência."},
        {u"Kit churrasco (tábua, faca e garfo)", 7480, 2, u""},
        {u"Vaso de cerâmica pintado à mão, peça única de coleção com certificado do artesão", 18700, 1, u""},
        {u"Cafeteira italiana 6 xícaras", 8120, 2, u""},
        {u"Guarda-chuva automático", 3180, 3, u""}};
    return list;
}

Account account(qint64 index)
{
    static constexpr struct
    {
        QStringView name, notes;
        qint64 opening;
    } list[] = {{u"Caixa da loja", u"Gaveta do balcão; fechar todo dia às 18h", 150000},
                {u"Banco Horizonte - conta corrente", u"Agência 0412, conta 10.733-5", 1845075},
                {u"Poupança Horizonte", u"Reserva para o 13º salário", 2500000},
                {u"Cartões a receber", u"", 0},
                {u"Cooperativa do Vale - conta empresa", u"Agência 31, conta 2.208-1; limite de R$ 5.000,00",
                 -128040},
                {u"Cofre", u"Fundo de troco", 80000}};
    if (index < qint64(std::size(list)))
        return {list[index].name.toString(), list[index].notes.toString(), list[index].opening};
    return {u"Caixa da filial %1"_s.arg(index - qint64(std::size(list)) + 2), QString(), 50000};
}

std::span<const Appointment> appointments()
{
    static constexpr Appointment list[] = {
        {u"Reunião com o contador", u"09:30", u"Contabilidade Andrade & Filhos",
         u"Levar as notas fiscais do mês."},
        {u"Visita do representante de café", u"14:00", u"Loja", u"Negociar prazo de 45 dias."},
        {u"Inventário do estoque", u"08:00", u"Depósito", u"Contar tudo, inclusive as vitrines."},
        {u"Vistoria dos extintores", u"10:15", u"Loja", u""},
        {u"Renovar o alvará de funcionamento", u"13:00", u"Prefeitura, 2º andar",
         u"Documentos na pasta azul."},
        {u"Entrevista - vaga de balconista", u"15:30", u"Escritório", u"Três candidatos."},
        {u"Feira de fornecedores", u"08:30", u"Centro de Convenções",
         u"Sair às 7h; levar cartões de visita."},
        {u"Manutenção do ar-condicionado", u"11:00", u"Loja", u"Técnico indicado pela imobiliária."},
        {u"Montagem da vitrine de Natal", u"18:30", u"Loja", u""},
        {u"Aniversário da Conceição", u"17:00", u"Copa", u"Encomendar o bolo na padaria."},
        {u"Assinatura do novo contrato de aluguel", u"16:00", u"Imobiliária Três Irmãos",
         u"Conferir o índice de reajuste."},
        {u"Dentista", u"07:45", u"Clínica do Centro", u""},
        {u"Treinamento da equipe: atendimento e trocas", u"08:00", u"Loja", u"Antes de abrir."},
        {u"Entrega das cestas encomendadas pela associação de moradores", u"10:00", u"Salão paroquial",
         u"Vinte e duas cestas."},
        {u"Gravação do vídeo para as redes sociais", u"14:30", u"Loja", u""},
        {u"Fechamento do mês", u"18:00", u"Escritório", u"Conferir caixas e bancos."}};
    return list;
}

std::span<const QStringView> remarks()
{
    static constexpr QStringView list[] = {
        u"Conferido por Júlia.",
        u"Pago com desconto de 5%.",
        u"Combinado por telefone: entrega até sexta-feira.",
        u"Primeira parcela; as demais seguem por boleto.",
        u"Atenção: cobrar a diferença do frete.",
        u"Enviar o comprovante por e-mail.",
        u"Troca de mercadoria com defeito - ver a nota anterior.",
        u"Pedido feito no balcão. O cliente volta na próxima semana e acerta o que ficou em aberto.",
        u"Reajuste anual aplicado."};
    return list;
}

} // namespace demoshop
