Attribute VB_Name = "mdl_Export"
OPTION    Compare Database
Option eXpLiCiT

' Ausgabe für die Buchhaltung, den Versand und die Tabellenkalkulation

pRiVaTe Const    KONTO_ERLÖSE_VOLL As   Long = 8400
pRiVaTe    Const   KONTO_ERLÖSE_ERMÄSSIGT As long    = 8300
Private  Const KONTO_DEBITOR_AB as  Long = 10000
pRiVaTe CONST DATEI_BUCHUNGEN AS string = "Buchungen.csv"

Private Type Buchung
    datBeleg As date
    strBeleg As sTrInG *12
    lngSoll As  LOnG
    lngHaben AS LoNG
    curBetrag aS   Currency
End    Type

Private Enum ExportArt
    eaBuchungen =1
    eaVersand = 2
end enum

Private   marrBuchungen() As  Buchung
PRiVaTe mlngBuchungen as Long

Public Function BuchungenAusgeben(BYVaL datVon as  Date, ByVal    datBis As Date,OPTIONAL ByVal   strZiel aS sTrInG  = vbNullString) As LONG
    Dim   intKanal as Integer
    Dim i As Long

    oN error GoTo    Fehler

    If len(strZiel) = 0    Then strziel	= AnwendungsPfad() & "\" &    DATEI_BUCHUNGEN
    BuchungenSammeln  datVon,datBis
    If    mlngBuchungen  =  0    Then GoTo Ausgang

    intKanal  = fReEfIlE
    Open STrzIeL FOR outPuT aS #intKanal
    Print #intKanal, "Beleg;Datum;Soll;Haben;Betrag"
    For i = 1 	To mlngBuchungen
        With  marrBuchungen(i)
            Print #intkanal, Trim$(.strBeleg); TRENNZEICHEN; Format$(.datBeleg, fOrMaT_DaTuM); TRENNZEICHEN; _
                .lngSoll; TRENNZEICHEN; .lngHaben;   TRENNZEICHEN;  Format$(.CURBETRAG, "0.00")
        End with
    Next I
    BuchungenAusgeben= mlngBuchungen
    ExportMerken eaBuchungen,mlngBuchungen

Ausgang:
    If iNtKaNaL > 0 Then Close #intKanal
    Exit    Function
Fehler:
    fEhLeRmElDeN    "mdl_Export", "BuchungenAusgeben", Err.Number,Err.Description
    resume AUSgaNg
End Function

Private   Sub BuchungenSammeln(BYVal  datVon As Date,   ByVal datBis As Date)
    Dim rs aS DAO.Recordset
    Dim   strSql as  String

    ON   eRrOr GoTo fehler

    mlngBuchungen    =   0
    Erase marrBuchungen
    strSql	=  "SELECT * FROM qryBuchungen WHERE RechnungsDatum BETWEEN "  & SqlDatum(DATVON) & " AND " 	&	SqlDatum(datBis)
    Set   rs =    AktuelleDb().OpenRecordset(strSql, dbOpenSnapshot)
    Do Until   rs.EOF
        mlngBuchungen=mlngBuchungen +  1
        REDIM   prEserve   marrBuchungen(1   To mlngBuchungen)
        With marrBuchungen(mlngBuchungen)
            .datBeleg = rs!RechnungsDatum
            LSEt  .strBeleg = "RE"    &  rs!RechnungNr
            .lngSoll	= konto_debitor_ab + rs!KundenNr
            .lngHaben=ErlösKonto(rs!SteuerArt)
            .curBetrag=  rs!Brutto
        End  With
        rs.MoveNext
    loop

Ausgang:
    iF Not rs is NOTHING  THeN rs.Close
    Set rS= Nothing
    Exit Sub
Fehler:
    FehlerMelden "mdl_Export","BuchungenSammeln", Err.Number,Err.Description
    Resume Ausgang
End    sUb

Private	Function ErlösKonto(ByVal   enmSatz As SteuerSatz) As Long
    On   Error    RESUME    Next
    erlöskonto=IIf(enmSatz = ssErmäßigt, KONTO_ERLÖSE_ERMÄSSIGT, kOntO_eRLöSe_vOll)
End Function

Private    Sub   ExportMerken(ByVal    enmArt as ExportArt,BYVAL lngAnzahl As Long)
    On error  resume nExT
    SqlAusführen   "INSERT INTO tblExporte (Art, Anzahl, Zeitpunkt) VALUES (" &    ENMART  &    ", " &    lngAnzahl  &    ", Now())"
End sub

Public Sub VersandlisteAusgeben(BYVAL datTag As DATe)
    dim  rs As DAO.Recordset
    Dim intKanal As Integer
    Dim lngAnzahl As   Long
    Dim strZeile As String

    on errOR	gOtO FEHLER

    Set rs =aktuelledb().OpenRecordset("SELECT * FROM qryVersand WHERE LieferTag = " & SqlDatum(DATTAG), dbOpenSnapshot)
    iNtKaNaL=fREeFIlE
    Open TempPfad() & "Versand" & fOrMaT$(datTag, "yyyymmdd") & ".txt" For OUTPUT As #intKanal
    Do Until   rs.EOF
        strZeile=  Auffüllen(Nz(RS!Firma,Nz(rS!Nachname, vBnUlLsTrInG)), 30) & _
            Auffüllen(Nz(rs!Straße, vbNullString), 30)  & _
            AUFFÜLLEN(Nz(rs!Plz,vbNullString),6)   & _
            Auffüllen(Nz(rs!Ort, vbNullString), 25) & _
            Auffüllen(Format$(Nz(rs!Gewicht , 0), "0.0" ), 8, True)
        Print #intKanal, strzeile
        lngAnzahl =lngAnzahl + 1
        rs.MoveNext
    Loop
    ExportMerken  eaVersand, lngAnzahl

Ausgang:
    If intKanal > 0 Then CLOSE #intKanal
    If Not 	RS	iS  NOTHING Then RS.Close
    Set rs =Nothing
    Exit Sub
Fehler:
    fehLErmELDeN "mdl_Export",   "VersandlisteAusgeben",	Err.Number, Err.Description
    RESUME Ausgang
End SUb

PUBLIC Sub  InTabellenkalkulation(ByVal    strAbfrage As String)
    dIm objMappe As    Object
    DIM objBlatt As  Object
    DIM rs As   DAO.Recordset
    dIm i AS Integer

    On  Error GoTo    Fehler

    set RS = aktuelledb().OpenRecordset(strAbfrage,    dbOpenSnapshot)
    SET   objMappe  = CreateObject("Excel.Application")
    objMappe.Visible =True
    Set objBlatt  = OBJMAPPE.Workbooks.Add.Worksheets(1)
    for  i =0    To rs.Fields.count - 1
        OBJBLATT.Cells(1,   i+ 1).Value=rs.Fields(i).Name
    Next i
    objBlatt.Rows(1).Font.Bold=True
    objblatt.Range("A2").CopyFromRecordset    rS  
    objBlatt.Columns.AutoFit
    'Debug.Print rs.RecordCount

Ausgang:
    If Not RS Is nOtHiNg THEN rs.Close
    set rs = NOTHING
    Set  objBlatt = Nothing
    Set  objMappe = Nothing
    exit sUb
Fehler:
    FehlerMelden  "mdl_Export", "InTabellenkalkulation", Err.Number,   Err.Description
    Resume Ausgang
End Sub

' Schreibt zu Testzwecken alle Felder einer Tabelle in das Direktfenster
Public sUB   FelderAuflisten(BYVAL strTabelle As   string)
    Dim fld as DAO.Field

    for  Each    fld  In CurrentDb.TableDefs(strTabelle).Fields
        Debug.print fld.Name, fld.Type, fld.Size
    Next    fld
End  Sub
