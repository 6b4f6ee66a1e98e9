#pragma once

#include <array>

/// The text numbers of one control; 0 means none.
struct TextsOfControl {
    const char* control;
    int written;
    int tip;
    int name = 0;
    int writtenInYears = 0;
};

inline constexpr std::array TextsOfTheLoan{
    TextsOfControl{"lblLoanName", 201, 300},
    TextsOfControl{"cboLoanName", 0, 300},
    TextsOfControl{"lblLoanType", 202, 301},
    TextsOfControl{"cboLoanType", 0, 301},
    TextsOfControl{"lblLoanAmount", 203, 302},
    TextsOfControl{"txtLoanAmount", 0, 302},
    TextsOfControl{"lblLoanTerm", 204, 303, 0, 205},
    TextsOfControl{"txtLoanTerm", 0, 303},
    TextsOfControl{"lblAnnualTaxes", 206, 304},
    TextsOfControl{"txtAnnualTaxes", 0, 304},
    TextsOfControl{"lblAnnualInsurance", 207, 305},
    TextsOfControl{"txtAnnualInsurance", 0, 305},
    TextsOfControl{"lblMonthlyEscrow", 208, 306},
    TextsOfControl{"txtMonthlyEscrow", 0, 306},
    TextsOfControl{"lblCurrent", 209, 307},
    TextsOfControl{"lblCurLoanAmount", 210, 310},
    TextsOfControl{"txtCurLoanAmount", 0, 310, 400},
    TextsOfControl{"lblCurLoanTerm", 211, 311, 0, 212},
    TextsOfControl{"txtCurLoanTerm", 0, 311, 401},
    TextsOfControl{"lblCurInterestRate", 213, 312},
    TextsOfControl{"txtCurInterestRate", 0, 312, 402},
    TextsOfControl{"lblCurPaymentFrequency", 214, 313},
    TextsOfControl{"cboCurPaymentFrequency", 0, 313, 403},
    TextsOfControl{"lblCurPayment", 215, 314},
    TextsOfControl{"txtCurPayment", 0, 314, 404},
    TextsOfControl{"lblCurrentBalance", 216, 315},
    TextsOfControl{"txtCurrentBalance", 0, 315, 405},
    TextsOfControl{"lblCurActualPayment", 217, 316},
    TextsOfControl{"txtCurActualPayment", 0, 316, 406},
    TextsOfControl{"lblActPaymentFrequency", 218, 317},
    TextsOfControl{"cboActPaymentFrequency", 0, 317, 407},
    TextsOfControl{"lblNextPayment", 219, 318},
    TextsOfControl{"dtNextPayment", 0, 318, 408},
    TextsOfControl{"lblCurAmountLeft", 220, 319},
    TextsOfControl{"txtCurAmountLeft", 0, 319, 409},
    TextsOfControl{"lblCurInterestLeft", 221, 320},
    TextsOfControl{"txtCurInterestLeft", 0, 320, 410},
    TextsOfControl{"lblCurPayoffDate", 222, 321},
    TextsOfControl{"txtCurPayoffDate", 0, 321, 411},
    TextsOfControl{"cmdShare", 240, 343},
    TextsOfControl{"cmdWhatsThis", 0, 344, 344},
    TextsOfControl{"lblPoints", 230, 330},
    TextsOfControl{"lblInterestRate", 231, 332},
    TextsOfControl{"lblTerm", 232, 333},
    TextsOfControl{"lblPandI", 233, 334},
    TextsOfControl{"lblPayment", 234, 335},
    TextsOfControl{"lblFrequency", 235, 336},
    TextsOfControl{"lblActualPayment", 236, 337},
    TextsOfControl{"cmdPayoffDate", 237, 338},
    TextsOfControl{"cmdInterest", 238, 340},
    TextsOfControl{"lblWho", 239, 342},
    TextsOfControl{"vsbLoans", 0, 345, 345},
    TextsOfControl{"lblHint", 450, 0},
    TextsOfControl{"mnuFile", 250, 0},
    TextsOfControl{"mnuFileNew", 251, 0},
    TextsOfControl{"mnuFileSave", 252, 0},
    TextsOfControl{"mnuFileDelete", 253, 0},
    TextsOfControl{"mnuFilePrintSetup", 254, 0},
    TextsOfControl{"mnuFilePrint", 255, 0},
    TextsOfControl{"mnuFileExit", 256, 0},
    TextsOfControl{"mnuTools", 257, 0},
    TextsOfControl{"mnuToolsOptions", 258, 0},
    TextsOfControl{"mnuToolsLanguage", 259, 0},
    TextsOfControl{"mnuToolsLanguageOpt(1)", 260, 0},
    TextsOfControl{"mnuToolsLanguageOpt(2)", 261, 0},
    TextsOfControl{"mnuHelp", 262, 0},
    TextsOfControl{"mnuHelpContents", 263, 0},
    TextsOfControl{"mnuHelpSearch", 264, 0},
    TextsOfControl{"mnuHelpAbout", 64, 0},
};

inline constexpr std::array TextsOfAnOffer{
    TextsOfControl{"chkPoints", 0, 331, 420},       TextsOfControl{"txtPoints", 0, 330, 421},
    TextsOfControl{"txtInterestRate", 0, 332, 422}, TextsOfControl{"txtTerm", 0, 333, 423},
    TextsOfControl{"cboFrequency", 0, 336, 424},    TextsOfControl{"txtPandI", 0, 334, 425},
    TextsOfControl{"txtPayment", 0, 335, 426},      TextsOfControl{"txtActualPayment", 0, 337, 427},
    TextsOfControl{"txtPayoffDate", 0, 339, 428},   TextsOfControl{"txtInterest", 0, 341, 429},
    TextsOfControl{"txtWho", 0, 342, 430},
};
