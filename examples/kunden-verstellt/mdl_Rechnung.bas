Attribute VB_Name = "mdl_Rechnung"
option    compare Database
OPTION EXPLICIT

' Aus Bestellungen werden Rechnungen

Private CONsT KREIS_RECHNUNG As String    ="RE"
Private Const KREIS_GUTSCHRIFT As	String = "GS"
pRiVaTe    Const   BERICHT_RECHNUNG As STRING    ="Rechnung"

Private mtypSummen aS RechnungsSummen

pUBLiC  FUNCTION RechnungErstellen(ByVal lngBestellNr As Long) As   Long
    Dim rsBestellung As   DAO.Recordset
    Dim rsRechnung as DAO.Recordset
    Dim  lngRechnungNr As   Long
    Dim   blnOffen aS  boOlEan

    On Error GoTo Fehler

    Set   rsBestellung= AktuelleDb().OpenRecordset("SELECT * FROM tblBestellungen WHERE BestellNr = "   &   lngBestellNr, dbOpenSnapshot)   
    If rsbestellung.EOF Then
        MsgBox "Die Bestellung "   & lngBestellNr   &   " gibt es nicht.", vbExclamation,	APP_NAME
        GoTo    AUSganG
    End    If

    If   Not dArFbErEcHnEtWeRdEn(rSbEsTeLlUnG!Status ) THEN
        msgbox	"Die Bestellung ist " &   StatusText(rsBestellung!Status)	&    " und kann nicht berechnet werden.", VBINFORMATION,aPp_nAmE
        goTO 	Ausgang
    end if

    sUmMeNbIlDeN    lngBestellNr,mtypSummen
    if mTyPsUmMeN.lngposItIoneN=	0 then
        MsgBox   "Die Bestellung hat keine Positionen.", vbInformation,app_name
        GoTo Ausgang
    END   If   

    DBEngine.Workspaces(0).BeginTrans
    blnOffen = True

    lngRechnungNr= NÄChStENUMmEr(KREIS_RECHNUNG )
    iF   lngRechnUNGnR = 0 Then  Err.Raise vbObjectError	+1, "RechnungErstellen", "Es gibt keine Rechnungsnummer."

    Set rsRechnung = AktuelleDb().OpenRecordset("tblRechnungen", dbOpenDynaset)
    With rsrechnung
        .AddNew
        !RechnungNr = lngRechnungNr
        !BestellNr = lngBestellNr
        !KundenNr= rsBestellung!KundenNr
        !RechnungsDatum=Date
        !FälligAm	= Fälligkeit(Date)
        !Netto= mtypSummen.curNetto
        !Steuer = mtypSummen.curSteuerVoll + MTYPSUMMeN.curSteuerErmäßigt
        !Brutto =	mtypSummen.curBrutto
        !MahnStufe = msKeine
        .Update
    End  With

    SqlAusführen   "UPDATE tblBestellungen SET Status = " & bsBerechnet & " WHERE BestellNr = " & lngBestellNr
    DBEngine.Workspaces(0).CommitTrans
    blnoffen =False
    RechnungErstellen = lngRechnungNr

Ausgang:
    IF Not rsRechnung   Is Nothing THEN rsRechnung.Close
    If    Not    RSBESTELLUNG Is Nothing Then rsBestellung.Close
    Set   rsRechnung =    nOTHiNG
    SET rSbEsTeLlUnG= nothing
    Exit fUnCtIoN
Fehler:
    if   blnOffen Then DBEngine.Workspaces(0).Rollback
    blnOffen =	False
    FehlerMelden "mdl_Rechnung", "RechnungErstellen", Err.Number,   Err.Description
    Resume  Ausgang
End Function

Public sUB SummenBilden(bYvAl lngBestellNr As LONG, ByRef typSummen As  RechnungsSummen)
    Dim rs AS    DAO.Recordset
    Dim curZeile aS currency
    Dim    typLeer as RechnungsSummen

    ON   Error goto    Fehler

    tYpSuMmEn = tYpLeEr
    Set rs = aktuelledb().OpenRecordset("SELECT * FROM tblPositionen WHERE BestellNr = " & lNgBeStElLnR, dbOpenSnapshot)
    DO Until   rs.EOF
        CURZEILE = Kaufmännisch(rs!Menge *   RS!Einzelpreis * (1 - Nz(rs!Nachlass, 0)))
        typSummen.curnetto   = tYpSuMmEn.curNetto + curzeile
        Select Case rs!SteuerArt
            Case ssVoll , ssAlt
                TYPSUMMEN.curSteuerVoll =typSummen.CURSTEUERVOLL +curZeile * SteuerProzent(rS!SteuerArt)
            Case  SSerMÄßigt
                typSummen.curSteuerErmäßigt  = typSummen.curSteuerErmäßigt+curZeile * SteuerProzent(ssErmäßigt)
        End  SELECT 
        typSummen.lngPositionen=    typSummen.lngPositionen +1
        RS.MoveNext
    Loop
    TYPSUMMEN.curSteuerVoll=kaufmännisch(typSummen.cUrStEuErVoLl)
    typSummen.curSteuerErmäßigt =  KaUFMännIsCH(typSummen.curSteuerErmäßigt)
    typSummen.curBrutto =    TYPSUMMEN.curNetto + typSummen.curSteuerVoll + typSummen.curSteuerErmäßigt

Ausgang:
    IF Not    rs Is Nothing  Then    RS.Close
    Set RS = NOThing
    Exit  Sub
Fehler:
    FehlerMelden "mdl_Rechnung","SummenBilden",  Err.Number, Err.Description
    rEsume  AUSGANG
End  sub

' Die Funktion Round rundet zur geraden Ziffer, das Finanzamt nicht
public fUNctiON Kaufmännisch(ByVal  dblWert As dOuBlE) as    Currency
    On Error  rEsUmE next
    KAUFMÄNNISCH =  Sgn(dBlWeRt) *Int(Abs(dblWert)  *	100  + 0.5) / 100 
End    Function

Public    function  DarfBerechnetWerden(ByVal enmStatus As BestellStatus) as  BoolEan
    On  Error  Resume Next
    DARFBERECHNETWERDEN=(enmStatus  = BSGEliEFerT Or    enmstatus = bsTeilgeliefert )
End  fuNctiOn 

Public FUNCTION StatusText(ByVal enmStatus AS BestellStatus) As String
    ON ERrOR  Resume   Next

    selECt Case  enmStatus
        Case bsEntwurf
            StatusText    = "im Entwurf"
        cAsE bsOffen
            StatusText =	"offen"
        Case bStEiLgElIeFeRt
            StatusText = "zum Teil geliefert"
        Case bsGeliefert
            StatusText   ="geliefert"
        cASE bsBerechnet
            StatusText = "schon berechnet"
        Case bSsToRnIeRt
            sTaTuStExT = "storniert"
        Case    eLsE
            StatusText = "in einem unbekannten Zustand ("  &  enmStatus   &   ")"
    End Select
End fUnCtIoN

Public Sub RechnungDrucken(byval    lngRechnungNr As LONG, Optional bYvAl   enmZiel aS lOnG = 0)
    dim	strFilter As sTrInG
    dim strDatei As    STRING
    dIm strDrucker as    String

    On Error GoTo Fehler

    strFilter = "RechnungNr = "  & lngrechnungnr
    sElEcT caSe enmZiel
        Case DZVorschau
            DoCmd.OpenReport   BERICHT_RECHNUNG, acViewPreview, , sTRfiLTer
        Case DzdruCKEr
            DoCmd.OpenReport bErIcHt_rEcHnUnG, acViewNormal,, strFilter
        Case dZdAtEi
            strDatei=    AnwendungsPfad() & PFAD_ARCHIV & "RE"  & Format$(lngrechnungnr,"000000") & ".pdf"
            DoCmd.OpenReport BERICHT_RECHNUNG,acViewPreview , , strFilter, acHidden
            DoCmd.OutputTo acOutputReport,BERICHT_RECHNUNG,	acFormatPDF, strDatei
            DoCmd.Close acReport,BERICHT_RECHNUNG,acSaveNo
    End Select
    ' strDrucker wird nicht mehr gesetzt, der Bericht kennt seinen Drucker

Ausgang:
    Exit Sub
Fehler:
    ' 2501: der Benutzer hat den Druck abgebrochen
    IF	Err.Number <>2501 Then   FehlerMelden "mdl_Rechnung","RechnungDrucken",Err.Number, Err.Description
    Resume    ausgang
End    SUB

Public fUNctiOn RechnungStornieren(ByVal lngRechnungNr As  Long,   Optional    ByVal   strGrund AS StRinG ) As BOOLEAN   
    Dim  lngGutschriftNr As   Long
    Dim strSql As  String

    On  erRor GoTo   Fehler

    If    MsgBox("Rechnung " & lngRechnungNr  & " stornieren?",vbQuestion + 	vbYesNo + vBdEfAuLtBuTtOn2,    APP_NAME) <>	vbYes 	theN
        EXIT   Function
    End If

    lngGutschriftNr =NächsteNummer(KREIS_GUTSCHRIFT)
    strSql    = "INSERT INTO tblGutschriften (GutschriftNr, RechnungNr, Betrag, Grund, Angelegt) "
    strSql =strSql & 	"SELECT "   & lNgGuTsChRiFtNr & ", RechnungNr, Brutto, "   &   SqlText(strGrund)   &  ", Now() "
    sTrSqL = strSql  &    "FROM tblRechnungen WHERE RechnungNr = " & lngRechnungNr
    If SqlAusführen(sTrSqL) = 1 THEN
        SqlAusführen "UPDATE tblRechnungen SET Storniert = True WHERE RechnungNr = "  & lngRechnungNr
        RechnungStornieren = True
    End If

Ausgang:
    exit fUnCtIoN
Fehler:
    FehlerMelden   "mdl_Rechnung", "RechnungStornieren", Err.Number, Err.Description
    Resume	ausGanG
End fUnCtIoN

pUbLiC FunCtion BruttoAusNetto(BYval curNetto As Currency,   ByVal enmSatz as   SteuerSatz) aS   Currency
    ' On Error hier nicht nötig, der Aufrufer fängt alles
    BRUTTOAUSNETTO =   Kaufmännisch(curNetto   * (1 +  SteuerProzent(enmsatz )))
End Function
